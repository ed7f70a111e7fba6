#include "sistema/Lucchetto.h"

#include "support/FileDiProva.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QList>
#include <QLockFile>
#include <QTemporaryDir>
#include <QTest>

/// What is in the way when the one who took the lock is gone. The locks are written by Qt, for what
/// stands in them differs between systems.
class tst_LucchettoRimasto : public QObject
{
    Q_OBJECT

private slots:
    void TenutoDaUnVivo();
    void ColNumeroDiUnVivo();
    void DiUnAltraMacchina();
    void Vuoto();
    void ADiscoPieno_data();
    void ADiscoPieno();

private:
    QString File() const { return cartella_.filePath(QStringLiteral("prova.lock")); }
    QByteArray DiQuestoProcesso() const;

    QTemporaryDir cartella_;
};

using Esito = Lucchetto::Esito;

QByteArray tst_LucchettoRimasto::DiQuestoProcesso() const
{
    const QString percorso = cartella_.filePath(QStringLiteral("altro.lock"));
    QLockFile altro(percorso);
    return altro.tryLock(0) ? ByteDi(percorso) : QByteArray();
}

void tst_LucchettoRimasto::TenutoDaUnVivo()
{
    QLockFile vivo(File());
    QVERIFY(vivo.tryLock(0));
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Occupato);
}

void tst_LucchettoRimasto::ColNumeroDiUnVivo()
{
    // The system gives the number of a process that was ended to the next one: at the first start
    // after a power cut that may be this program again.
    const QByteArray mio = DiQuestoProcesso();
    QVERIFY2(mio.startsWith(QByteArray::number(QCoreApplication::applicationPid()) + '\n'), mio);
    ScriveFile(File(), mio);
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
    QVERIFY(!QFile::exists(File()));
}

void tst_LucchettoRimasto::DiUnAltraMacchina()
{
    QList<QByteArray> righe = DiQuestoProcesso().split('\n');
    QVERIFY(righe.size() >= 3);
    righe.resize(3); // what tells one machine from another of the same name
    righe[2] = "un-altra-macchina";
    ScriveFile(File(), righe.join('\n') + '\n');
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Occupato);
    QVERIFY(QFile::remove(File()));
}

void tst_LucchettoRimasto::Vuoto()
{
    ScriveFile(File(), QByteArray());
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
}

void tst_LucchettoRimasto::ADiscoPieno_data()
{
    QTest::addColumn<QByteArray>("rimasto");
    QTest::newRow("nobody's") << QByteArray();
    QTest::newRow("of a dead process") << LucchettoDiUnMorto();
}

void tst_LucchettoRimasto::ADiscoPieno()
{
    QFETCH(QByteArray, rimasto);
    if (!rimasto.isEmpty()) {
        ScriveFile(File(), rimasto);
    }
    {
        const LimiteFile niente(0);
        for (int volta = 0; volta < 2; ++volta) {
            QCOMPARE(Lucchetto(File()).Prende(), Esito::Impossibile);
        }
    }
    // As soon as there is room, nothing of the attempts is in the way.
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
    QCOMPARE(QDir(cartella_.path()).entryList(QDir::Files), QStringList());
}

QTEST_GUILESS_MAIN(tst_LucchettoRimasto)
#include "tst_LucchettoRimasto.moc"
