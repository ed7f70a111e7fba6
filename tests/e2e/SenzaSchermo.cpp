#include "SenzaSchermo.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

void SenzaSchermo::CopiaIlCampione()
{
    dir_ = std::make_unique<QTemporaryDir>();
    const QDir campione(QStringLiteral(CARTELLA_CAMPIONE "/Contabilita/ini"));
    for (const char *nome : {"Fattura_Rossi.Mod", "LogoCascinalta.gif"}) {
        QVERIFY(QFile::copy(campione.filePath(QString::fromLatin1(nome)),
                            In(QString::fromLatin1(nome))));
    }
}

QProcessEnvironment SenzaSchermo::Ambiente(const QString &assegnazione) const
{
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    for (const char *nome : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"}) {
        ambiente.remove(QString::fromLatin1(nome));
    }
    ambiente.insert(QStringLiteral("HOME"), dir_->path());
    ambiente.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir_->path());
    ambiente.insert(QStringLiteral("XDG_STATE_HOME"), In(QStringLiteral("stato")));
    ambiente.insert(QStringLiteral("XDG_CONFIG_HOME"), In(QStringLiteral("impostazioni")));
    ambiente.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    if (!assegnazione.isEmpty()) {
        ambiente.insert(assegnazione.section(u'=', 0, 0), assegnazione.section(u'=', 1));
    }
    return ambiente;
}

SenzaSchermo::Esito SenzaSchermo::Esegue(const QStringList &argomenti,
                                         const QString &assegnazione) const
{
    QProcess programma;
    programma.setProcessEnvironment(Ambiente(assegnazione));
    programma.start(QStringLiteral(PROGRAMMA), argomenti);
    if (!programma.waitForFinished(60'000) || programma.exitStatus() != QProcess::NormalExit) {
        return {-1, {}, programma.errorString()};
    }
    return {programma.exitCode(), QString::fromUtf8(programma.readAllStandardOutput()),
            QString::fromUtf8(programma.readAllStandardError())};
}
