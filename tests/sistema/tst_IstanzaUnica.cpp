#include "sistema/IstanzaUnica.h"
#include "support/FileDiProva.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

#include <sys/stat.h>

namespace {

constexpr auto VariabileFiglio = "PLAKERA_PROVA_ISTANZA";

/// The other instance: says whether it is the only one and, when it is, stays until its standard
/// input ends.
int Figlio()
{
    IstanzaUnica istanza;
    const bool unica = istanza.Acquisisce();
    std::puts(unica ? "unica" : "seconda");
    std::fflush(stdout);
    if (unica) {
        while (std::getchar() != EOF) {
        }
    }
    return 0;
}

} // namespace

class tst_IstanzaUnica : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void PrimaIstanza();
    void SecondaIstanza();
    void SecondaIstanzaDopoLaFineDellaPrima();
    void ProcessoUcciso();
    void LucchettoVuoto();
    void DiscoPieno();
    void DiscoPienoDopoUnaCaduta();
    void LucchettoCheNonLoE_data();
    void LucchettoCheNonLoE();
    void RestaAcquisita();

private:
    void Avvia(QProcess &figlio, const QByteArray &risposta) const;
    QString Lucchetto() const { return cartella_.filePath(QStringLiteral("plakera.lock")); }

    QTemporaryDir cartella_;
};

void tst_IstanzaUnica::initTestCase()
{
    QVERIFY(cartella_.isValid());
    // The folder for a user's runtime files must be the user's alone.
    QVERIFY(QFile::setPermissions(cartella_.path(),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void tst_IstanzaUnica::init()
{
    qputenv("XDG_RUNTIME_DIR", cartella_.path().toUtf8());
    QDir(Lucchetto()).removeRecursively();
    QFile::remove(Lucchetto());
}

void tst_IstanzaUnica::Avvia(QProcess &figlio, const QByteArray &risposta) const
{
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QString::fromLatin1(VariabileFiglio), QStringLiteral("1"));
    figlio.setProcessEnvironment(ambiente);
    figlio.start(QCoreApplication::applicationFilePath(), QStringList());
    QVERIFY(figlio.waitForStarted());
    QTRY_VERIFY(figlio.canReadLine());
    QCOMPARE(figlio.readLine().trimmed(), risposta);
}

void tst_IstanzaUnica::PrimaIstanza()
{
    IstanzaUnica istanza;
    QVERIFY(istanza.Acquisisce());
}

void tst_IstanzaUnica::SecondaIstanza()
{
    QProcess primo;
    Avvia(primo, "unica");
    IstanzaUnica istanza;
    QVERIFY(!istanza.Acquisisce());
    QVERIFY2(!istanza.Acquisisce(), "asking again must not take the lock away");
    primo.closeWriteChannel();
    QTRY_COMPARE(primo.state(), QProcess::NotRunning);
}

void tst_IstanzaUnica::SecondaIstanzaDopoLaFineDellaPrima()
{
    {
        IstanzaUnica istanza;
        QVERIFY(istanza.Acquisisce());
        QProcess altro;
        Avvia(altro, "seconda");
        QTRY_COMPARE(altro.state(), QProcess::NotRunning);
    }
    QProcess altro;
    Avvia(altro, "unica");
    altro.closeWriteChannel();
    QTRY_COMPARE(altro.state(), QProcess::NotRunning);
}

void tst_IstanzaUnica::ProcessoUcciso()
{
    QProcess primo;
    Avvia(primo, "unica");
    primo.kill();
    QTRY_COMPARE(primo.state(), QProcess::NotRunning);
    QVERIFY2(QFile::exists(Lucchetto()), "a killed process leaves its lock file");
    IstanzaUnica istanza;
    QVERIFY(istanza.Acquisisce());
}

void tst_IstanzaUnica::LucchettoVuoto()
{
    QFile lucchetto(Lucchetto());
    QVERIFY(lucchetto.open(QIODevice::WriteOnly));
    lucchetto.close();
    IstanzaUnica istanza;
    QVERIFY(istanza.Acquisisce());
    QProcess altro;
    Avvia(altro, "seconda");
    QTRY_COMPARE(altro.state(), QProcess::NotRunning);
}

void tst_IstanzaUnica::DiscoPieno()
{
    const LimiteFile nessunByte(0);
    IstanzaUnica istanza;
    QVERIFY2(istanza.Acquisisce(), "a full disk is no second instance");
}

void tst_IstanzaUnica::DiscoPienoDopoUnaCaduta()
{
    QProcess primo;
    Avvia(primo, "unica");
    primo.kill();
    QTRY_COMPARE(primo.state(), QProcess::NotRunning);
    const LimiteFile nessunByte(0);
    IstanzaUnica istanza;
    QVERIFY2(istanza.Acquisisce(), "what has died is no first instance");
}

void tst_IstanzaUnica::LucchettoCheNonLoE_data()
{
    QTest::addColumn<QString>("cosa");

    QTest::newRow("cartella") << QStringLiteral("cartella");
    QTest::newRow("collegamento rotto") << QStringLiteral("collegamento");
    QTest::newRow("dispositivo") << QStringLiteral("dispositivo");
    QTest::newRow("tubo") << QStringLiteral("tubo");
}

void tst_IstanzaUnica::LucchettoCheNonLoE()
{
    QFETCH(QString, cosa);
    if (cosa == QStringLiteral("cartella")) {
        QVERIFY(QDir().mkdir(Lucchetto()));
    } else if (cosa == QStringLiteral("collegamento")) {
        QVERIFY(QFile::link(QStringLiteral("/manca/plakera.lock"), Lucchetto()));
    } else if (cosa == QStringLiteral("dispositivo")) {
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), Lucchetto()));
    } else {
        QCOMPARE(mkfifo(QFile::encodeName(Lucchetto()).constData(), 0600), 0);
    }
    // In a process of its own, which the test outlives even where the question has no end.
    QProcess programma;
    Avvia(programma, "unica");
    programma.closeWriteChannel();
    QTRY_COMPARE(programma.state(), QProcess::NotRunning);
}

void tst_IstanzaUnica::RestaAcquisita()
{
    IstanzaUnica istanza;
    QVERIFY(istanza.Acquisisce());
    QVERIFY(istanza.Acquisisce());
}

int main(int argc, char *argv[])
{
    const QCoreApplication programma(argc, argv);
    if (qEnvironmentVariableIsSet(VariabileFiglio)) {
        return Figlio();
    }
    tst_IstanzaUnica prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "tst_IstanzaUnica.moc"
