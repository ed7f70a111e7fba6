#include "support/FileDiProva.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>

QByteArray ByteDi(const QString &percorso)
{
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly)) {
        QTest::qFail(qPrintable(percorso + QLatin1String(": ") + file.errorString()), __FILE__,
                     __LINE__);
        return {};
    }
    return file.readAll();
}

void ScriveFile(const QString &percorso, const QByteArray &byte)
{
    QFile file(percorso);
    if (!file.open(QIODevice::WriteOnly) || file.write(byte) != byte.size() || !file.flush()) {
        QTest::qFail(qPrintable(percorso + QLatin1String(": ") + file.errorString()), __FILE__,
                     __LINE__);
    }
}

QStringList NomiIn(const QString &cartella)
{
    return QDir(cartella).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

void Invecchia(const QString &percorso, qint64 secondi)
{
    QFile file(percorso);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-secondi),
                             QFileDevice::FileModificationTime));
}

QByteArray LucchettoDiUnMorto()
{
    constexpr qint64 MaiEsistito = (qint64(1) << 22) + 1; // beyond what Linux numbers
    // Qt's name of the machine on Windows.
    const QString macchina = qEnvironmentVariable("COMPUTERNAME", QSysInfo::machineHostName());
    return QByteArray::number(MaiEsistito) + '\n' + QCoreApplication::applicationName().toUtf8() +
           '\n' + macchina.toUtf8() + '\n';
}
