#include "ProvaInCoda.h"
#include "support/Errori.h"

#include <QElapsedTimer>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <functional>

/// The test print where the queue, or the server behind it, does not take the sheet: the user is
/// told why.
class tst_StampanteRifiuta : public QObject, private ProvaInCoda
{
    Q_OBJECT

private slots:
    void initTestCase() { AvviaServer(); }
    void init();
    void senzaPredefinita();
    void svanitaPrimaDiStampare();
    void svanitaMentreStampa();
    void codaCheRifiuta();
    void codaCheRifiutaMentreStampa();
    void quotaEsaurita();
    void stampaVietata();
    void spoolPieno();
    void cartellaTemporaneaMancante();
    void serverBloccato_data();
    void serverBloccato();
    void serverLento();
    void serverMorto();

private:
    /// What the user is told when the page cannot be printed; mentre runs while it is being
    /// painted.
    QString ErroreStampando(const std::function<void()> &mentre = [] {});
};

namespace {

const QString Particolare = QStringLiteral("Particolare");

/// What the user is told when a queue does not take the sheet.
QString NonAccettata(const QString &coda, const QString &motivo)
{
    return QStringLiteral("errore 482 La stampante \"%1\" non ha accettato la stampa: %2\n"
                          "Il foglio non uscirà.")
        .arg(coda, motivo);
}

} // namespace

void tst_StampanteRifiuta::init()
{
    if (coda_) {
        coda_->Aggiunge(Prova, {});
        coda_->Predefinita(Prova);
    }
}

QString tst_StampanteRifiuta::ErroreStampando(const std::function<void()> &mentre)
{
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("a"), 500, 10);
    try {
        const auto stampante = Stampanti::Predefinita();
        StampaModello(foglio.Aperto, foglio.Cartella(), *stampante, false,
                      [&](const QString &) { mentre(); });
    } catch (const ErroreSistema &errore) {
        return errore.Messaggio();
    }
    return {};
}

void tst_StampanteRifiuta::senzaPredefinita()
{
    coda_->Toglie(Prova);
    QCOMPARE(ErroreDi([] { Stampanti::Predefinita(); }), int(ErroreSistema::Stampante));
    // The program goes on, and finds the printer when there is one again.
    coda_->Aggiunge(Prova, {});
    QCOMPARE(ErroreDi([] { Stampanti::Predefinita(); }), int(ErroreSistema::Stampante));
    coda_->Predefinita(Prova);
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("ancora"), 10, 10);
    QVERIFY(!Stampa(foglio).Inchiostro().isEmpty());
}

void tst_StampanteRifiuta::svanitaPrimaDiStampare()
{
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("a"), 500, 10);
    const auto stampante = Stampanti::Predefinita();
    coda_->Toglie(Prova);
    QCOMPARE(ErroreDi([&] {
                 StampaModello(foglio.Aperto, foglio.Cartella(), *stampante, false,
                               [&](const QString &testo) { foglio.Avvisi.append(testo); });
             }),
             int(ErroreSistema::Stampante));
    QVERIFY(foglio.Avvisi.isEmpty());
    QVERIFY(coda_->Fogli().isEmpty());
}

void tst_StampanteRifiuta::svanitaMentreStampa()
{
    QCOMPARE(ErroreStampando([this] { coda_->Toglie(Prova); }),
             NonAccettata(Prova, QStringLiteral("la coda non esiste più.")));
    QVERIFY(coda_->Fogli().isEmpty());
}

void tst_StampanteRifiuta::codaCheRifiuta()
{
    coda_->Rifiuta(Prova);
    const QString errore = ErroreStampando([] { QFAIL("painted for a queue that takes nothing"); });
    QCOMPARE(errore, NonAccettata(Prova, QStringLiteral("la coda rifiuta nuovi lavori.")));
    QVERIFY(coda_->Fogli().isEmpty());
}

void tst_StampanteRifiuta::codaCheRifiutaMentreStampa()
{
    const QString errore = ErroreStampando([this] { coda_->Rifiuta(Prova); });
    QCOMPARE(errore, NonAccettata(Prova, QStringLiteral("la coda rifiuta nuovi lavori.")));
    QVERIFY(coda_->Fogli().isEmpty());
}

void tst_StampanteRifiuta::quotaEsaurita()
{
    coda_->Aggiunge(Particolare, {},
                    {QStringLiteral("job-quota-period=3600"), QStringLiteral("job-k-limit=1")});
    coda_->Predefinita(Particolare);
    QCOMPARE(ErroreStampando(), QString());
    QCOMPARE(coda_->Fogli().size(), 1);
    QCOMPARE(
        ErroreStampando(),
        NonAccettata(Particolare, QStringLiteral("la quota di stampa è esaurita, o i lavori in "
                                                 "attesa sono troppi.")));
    QVERIFY(coda_->Fogli().isEmpty());
    coda_->Toglie(Particolare);
}

void tst_StampanteRifiuta::stampaVietata()
{
    coda_->Vieta(Prova, QStringLiteral("root"));
    const QString errore = ErroreStampando();
    coda_->Vieta(Prova, QStringLiteral("none"));
    QCOMPARE(errore,
             NonAccettata(Prova, QStringLiteral("a questo utente la coda non è permessa.")));
    QVERIFY(coda_->Fogli().isEmpty());
}

void tst_StampanteRifiuta::spoolPieno()
{
    if (!coda_->RiempieSpool()) {
        QSKIP("this system lets no small disk be mounted");
    }
    const QString errore = ErroreStampando();
    coda_->SvuotaSpool();
    QCOMPARE(errore,
             NonAccettata(Prova, QStringLiteral("lo spazio per i lavori di stampa (spool) è "
                                                "esaurito, o il foglio vi occuperebbe più "
                                                "del permesso.")));
    QVERIFY(coda_->Fogli().isEmpty()); // and no job without a document holds the queue up
    QCOMPARE(ErroreStampando(), QString());
    QCOMPARE(coda_->Fogli().size(), 1);
}

void tst_StampanteRifiuta::cartellaTemporaneaMancante()
{
    const QByteArray prima = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/cartella/che/non/esiste");
    const QString errore = ErroreStampando();
    prima.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", prima);
    QCOMPARE(errore, QString());
    QCOMPARE(coda_->Fogli().size(), 1);
}

void tst_StampanteRifiuta::serverBloccato_data()
{
    QTest::addColumn<bool>("primaDiStampare");
    QTest::newRow("before the print") << true;
    QTest::newRow("while the page is painted") << false;
}

void tst_StampanteRifiuta::serverBloccato()
{
    QFETCH(bool, primaDiStampare);
    QElapsedTimer tempo;
    tempo.start();
    if (primaDiStampare) {
        coda_->SiBlocca();
    }
    const QString errore = ErroreStampando([&] { coda_->SiBlocca(); });
    const qint64 attesa = tempo.elapsed();
    coda_->Riprende();
    QCOMPARE(errore, QStringLiteral("errore 482 Il sistema di stampa non risponde") +
                         (primaDiStampare
                              ? QStringLiteral(".\nControllare la stampante e ripetere; nulla è "
                                               "stato stampato.")
                              : QStringLiteral(": non si sa se il foglio uscirà.\nControllare la "
                                               "stampante e ripetere.")));
    constexpr qint64 AlMassimo = 10'000;
    QVERIFY2(attesa < AlMassimo, qPrintable(QString::number(attesa)));
    coda_->Fogli();
    QCOMPARE(ErroreStampando(), QString()); // and it serves again
    QCOMPARE(coda_->Fogli().size(), 1);
}

void tst_StampanteRifiuta::serverLento()
{
    constexpr int Lentezza = 5000; // ms
    QThread altrove;               // this one waits for the printer
    QTimer sveglia;
    sveglia.setSingleShot(true);
    sveglia.setInterval(Lentezza);
    connect(&sveglia, &QTimer::timeout, &sveglia, [this] { coda_->Riprende(); });
    sveglia.moveToThread(&altrove);
    altrove.start();
    const QString errore = ErroreStampando([&] {
        coda_->SiBlocca();
        QMetaObject::invokeMethod(&sveglia, "start", Qt::QueuedConnection);
    });
    altrove.quit();
    altrove.wait();
    coda_->Riprende();
    QCOMPARE(errore, QString());
    QCOMPARE(coda_->Fogli().size(), 1);
}

void tst_StampanteRifiuta::serverMorto()
{
    FoglioDiProva foglio;
    const auto stampante = Stampanti::Predefinita();
    coda_.reset();
    QCOMPARE(ErroreDi([&] {
                 StampaModello(foglio.Aperto, foglio.Cartella(), *stampante, false,
                               [](const QString &) {});
             }),
             int(ErroreSistema::Stampante));
    QCOMPARE(ErroreDi([] { Stampanti::Predefinita(); }), int(ErroreSistema::Stampante));
}

QTEST_MAIN(tst_StampanteRifiuta)
#include "tst_StampanteRifiuta.moc"
