#include "SenzaSchermo.h"
#include "model/FileModello.h"
#include "support/FileDiProva.h"
#include "support/LettorePdf.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

/// The program without windows, where there is no display at all.
class tst_RigaDiComando : public QObject, private SenzaSchermo
{
    Q_OBJECT

private slots:
    void init() { CopiaIlCampione(); }
    void aiuto();
    void aiutoNonConsegnato();
    void versione();
    void stampaInPdf();
    void stampaConINomi();
    void stampaComeLEditor();
    void anteprima();
    void pdfEAnteprimaInsieme();
    void modelloMancante();
    void modelloTroppoCorto();
    void immagineMancante();
    void finestreSenzaSchermo();
    void finestreSuUnoSchermoCheNonRisponde_data();
    void finestreSuUnoSchermoCheNonRisponde();
    void finestreSenzaSchermoReale_data();
    void finestreSenzaSchermoReale();
    void opzioniSbagliate_data();
    void opzioniSbagliate();
};

void tst_RigaDiComando::aiuto()
{
    const Esito esito = Esegue({QStringLiteral("--help")});
    QCOMPARE(esito.stato, 0);
    QCOMPARE(esito.errori, QString());
    for (const char *italiano : {"Utilizzo: ", "Opzioni:", "Parametri:", "[opzioni]"}) {
        QVERIFY2(esito.uscita.contains(QString::fromLatin1(italiano)), italiano);
    }
    for (const char *inglese : {"Usage", "options", "Options", "Arguments", "Displays"}) {
        QVERIFY2(!esito.uscita.contains(QString::fromLatin1(inglese)), inglese);
    }
    for (const char *opzione : {"[modello...]", "uno solo", "Esito: 0", "dirtxt", "--help",
                                "--version", "--dati <cartella>", "--modello <file>",
                                "--pdf <file>", "--anteprima <file>", "--nomi", "--controlla"}) {
        QVERIFY2(esito.uscita.contains(QString::fromLatin1(opzione)), opzione);
    }
    QVERIFY(esito.uscita.contains(QStringLiteral("Modello da stampare senza aprire finestre.")));
}

void tst_RigaDiComando::aiutoNonConsegnato()
{
    QProcess programma;
    programma.setProcessEnvironment(Ambiente());
    programma.setStandardOutputFile(QStringLiteral("/dev/full"));
    programma.start(QStringLiteral(PROGRAMMA), {QStringLiteral("--help")});
    QVERIFY(programma.waitForFinished(60'000));
    QCOMPARE(programma.exitCode(), 1);
    QVERIFY(QString::fromUtf8(programma.readAllStandardError()).startsWith(u"errore 61 "));
}

void tst_RigaDiComando::versione()
{
    const Esito esito = Esegue({QStringLiteral("--version")});
    QCOMPARE(esito.stato, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^plakera \\d+\\.\\d+\\.\\d+\n$"))
                .match(esito.uscita)
                .hasMatch());
}

void tst_RigaDiComando::stampaInPdf()
{
    const QString pdf = In(QStringLiteral("foglio.pdf"));
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.errori, QString());
    QCOMPARE(esito.stato, 0);
    const LettorePdf foglio(pdf);
    QCOMPARE(foglio.Pagine(), 1);
    QCOMPARE(foglio.Immagini(), 1);
    // The document's number at 104, 44 mm, without a margin.
    const QRectF numero = foglio.Parola1(QStringLiteral("128/A"));
    QVERIFY(std::abs(numero.left() - 104) < 0.1);
    QVERIFY(std::abs(foglio.Foglio().width() - 210) < 0.2);
}

void tst_RigaDiComando::stampaConINomi()
{
    const QString pdf = In(QStringLiteral("foglio.pdf"));
    const Esito esito = Esegue({QStringLiteral("--nomi"), QStringLiteral("--modello"), Modello(),
                                QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.stato, 0);
    const LettorePdf foglio(pdf);
    QVERIFY(foglio.Testi().contains(QStringLiteral("Doc_Numero")));
    QVERIFY(!foglio.Testi().contains(QStringLiteral("128/A")));
}

void tst_RigaDiComando::stampaComeLEditor()
{
    // The editor moves a row field to the rows' start and everything else to whole millimetres.
    ::Modello modello;
    modello.Righe.yInizio = 95.3;
    const auto campo = [&](const char *nome, double x, double y) {
        Campo &nuovo = modello.Campi[modello.AggiungeCampo(x, y)];
        nuovo.Nome = QString::fromLatin1(nome);
        nuovo.Testo = nuovo.Nome;
    };
    campo("R_Qta", 20, 231.7);
    campo("Totale", 30.5, 40.49);
    Cornice &cornice = modello.Cornici[modello.AggiungeCornice(50.5, 150.4, 1, 1)];
    cornice.Testo.clear();
    cornice.Larghezza = 40.5;
    cornice.Altezza = 20.6;
    const QString file = In(QStringLiteral("Frazioni.Mod"));
    FileModello::ScriveModello(modello, file);

    const QString pdf = In(QStringLiteral("foglio.pdf"));
    const Esito esito = Esegue({QStringLiteral("--modello"), file, QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.errori, QString());
    const LettorePdf foglio(pdf);
    const auto vicini = [](double a, double b) { return std::abs(a - b) < 0.1; };
    const QRectF riga = foglio.Parola1(QStringLiteral("R_Qta"));
    const QRectF totale = foglio.Parola1(QStringLiteral("Totale"));
    QVERIFY(vicini(riga.left(), 20) && vicini(totale.left(), 31));
    QVERIFY2(vicini(riga.top() - totale.top(), 95.3 - 40), qPrintable(QString::number(riga.top())));
    const QRectF quadro = foglio.Inchiostro(QRectF(45, 140, 60, 40));
    QVERIFY(vicini(quadro.left(), 51) && vicini(quadro.top(), 150));
    QVERIFY(vicini(quadro.width(), 41.3) && vicini(quadro.height(), 21.3));
}

void tst_RigaDiComando::anteprima()
{
    const QString png = In(QStringLiteral("anteprima.png"));
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--anteprima"), png});
    QCOMPARE(esito.errori, QString());
    QCOMPARE(esito.stato, 0);
    const QImage figura(png);
    // The whole sheet, 240 x 350 mm.
    QVERIFY(std::abs(figura.height() * 240.0 / figura.width() - 350) < 1);
    // The blue of the logo's corner, 10, 7 mm.
    const double pixel = figura.width() / 240.0;
    const QColor logo(figura.pixel(int(12 * pixel), int(9 * pixel)));
    QVERIFY2(logo.blue() > logo.red() + 40, qPrintable(logo.name()));
}

void tst_RigaDiComando::pdfEAnteprimaInsieme()
{
    const Esito esito = Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"),
                                In(QStringLiteral("a.pdf")), QStringLiteral("--anteprima"),
                                In(QStringLiteral("a.png"))});
    QCOMPARE(esito.stato, 0);
    QVERIFY(QFile::exists(In(QStringLiteral("a.pdf"))));
    QVERIFY(QFile::exists(In(QStringLiteral("a.png"))));
}

void tst_RigaDiComando::modelloMancante()
{
    const QString pdf = In(QStringLiteral("a.pdf"));
    const Esito esito = Esegue({QStringLiteral("--modello"), In(QStringLiteral("Manca.Mod")),
                                QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.stato, 1);
    QCOMPARE(esito.uscita, QString());
    QVERIFY2(esito.errori.startsWith(QStringLiteral("impossibile leggere file Manca.Mod 53 ")),
             qPrintable(esito.errori));
    QVERIFY(!QFile::exists(pdf));
}

void tst_RigaDiComando::modelloTroppoCorto()
{
    ScriveFile(Modello(), "Fattura\r\n\r\n");
    const Esito esito = Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"),
                                In(QStringLiteral("a.pdf"))});
    QCOMPARE(esito.stato, 1);
    QVERIFY2(
        esito.errori.startsWith(QStringLiteral("impossibile leggere file Fattura_Rossi.Mod 62 ")),
        qPrintable(esito.errori));
}

void tst_RigaDiComando::immagineMancante()
{
    QVERIFY(QFile::remove(In(QStringLiteral("LogoCascinalta.gif"))));
    const QString pdf = In(QStringLiteral("a.pdf"));
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.stato, 1);
    QVERIFY2(esito.errori.startsWith(QStringLiteral("StampaImmagine: ")) &&
                 esito.errori.contains(QStringLiteral("ERRORE 53")),
             qPrintable(esito.errori));
    // The rest of the sheet is printed all the same.
    QVERIFY(LettorePdf(pdf).Testi().contains(QStringLiteral("128/A")));
}

void tst_RigaDiComando::finestreSenzaSchermo()
{
    const QStringList inizio{QStringLiteral("--dati"), dir_->path()};
    for (const QStringList &argomenti : {inizio, QStringList{Modello()}}) {
        const Esito esito = Esegue(argomenti);
        QCOMPARE(esito.stato, 1);
        QCOMPARE(
            esito.errori,
            QStringLiteral("plakera: nessuno schermo; per stampare senza finestre vedi --help\n"));
    }
}

void tst_RigaDiComando::finestreSuUnoSchermoCheNonRisponde_data()
{
    QTest::addColumn<QString>("assegnazione");
    QTest::newRow("display that nobody serves") << QStringLiteral("DISPLAY=:987");
    QTest::newRow("display on a port that nobody serves")
        << QStringLiteral("DISPLAY=127.0.0.1:987");
    QTest::newRow("display that is no name of one") << QStringLiteral("DISPLAY=schermo");
    QTest::newRow("compositor that is not there") << QStringLiteral("WAYLAND_DISPLAY=manca");
    QTest::newRow("window system without its display") << QStringLiteral("QT_QPA_PLATFORM=xcb");
    QTest::newRow("window system that Qt does not know")
        << QStringLiteral("QT_QPA_PLATFORM=inesistente");
}

void tst_RigaDiComando::finestreSuUnoSchermoCheNonRisponde()
{
    QFETCH(QString, assegnazione);
    const Esito esito = Esegue({QStringLiteral("--dati"), dir_->path()}, assegnazione);
    QCOMPARE(esito.stato, 1);
    // After what the window system itself says of the reason.
    QVERIFY2(esito.errori.endsWith(QStringLiteral(
                 "plakera: nessuno schermo; per stampare senza finestre vedi --help\n")),
             qPrintable(esito.errori));
    // The program without windows does not care.
    const QString pdf = In(QStringLiteral("foglio.pdf"));
    QCOMPARE(
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"), pdf}, assegnazione)
            .stato,
        0);
    QCOMPARE(LettorePdf(pdf).Pagine(), 1);
}

void tst_RigaDiComando::finestreSenzaSchermoReale_data()
{
    QTest::addColumn<QString>("assegnazione");
    QTest::newRow("offscreen") << QStringLiteral("QT_QPA_PLATFORM=offscreen");
    QTest::newRow("minimal") << QStringLiteral("QT_QPA_PLATFORM=minimal");
}

void tst_RigaDiComando::finestreSenzaSchermoReale()
{
    // The start window needs no display on a window system that has none.
    QFETCH(QString, assegnazione);
    QProcess programma;
    programma.setProcessEnvironment(Ambiente(assegnazione));
    programma.start(QStringLiteral(PROGRAMMA), {QStringLiteral("--dati"), dir_->path()});
    QVERIFY(programma.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(In(QStringLiteral("plakera.lock"))) ||
                                 programma.state() == QProcess::NotRunning,
                             30'000);
    QCOMPARE(programma.state(), QProcess::Running);
    programma.kill();
    QVERIFY(programma.waitForFinished());
}

void tst_RigaDiComando::opzioniSbagliate_data()
{
    QTest::addColumn<QStringList>("argomenti");
    QTest::addColumn<QString>("errore");
    const auto riga = [](const char *nome, const char *argomenti, const char *errore) {
        QTest::newRow(nome) << QString::fromUtf8(argomenti).split(u' ')
                            << QStringLiteral("plakera: ") + QString::fromUtf8(errore) + u'\n';
    };
    riga("pdf without a model", "--pdf a.pdf", "--pdf e --anteprima vogliono un --modello");
    riga("picture without a model", "--anteprima a.png",
         "--pdf e --anteprima vogliono un --modello");
    riga("model without an output", "--modello a.Mod", "--modello vuole --pdf o --anteprima");
    riga("names of nothing", "--nomi", "--nomi vuole --pdf");
    riga("names on a picture", "--modello a.Mod --anteprima a.png --nomi", "--nomi vuole --pdf");
    riga("unknown option", "--stampa", "Opzione sconosciuta 'stampa'.");
    riga("stray argument", "--modello a.Mod --pdf a.pdf Fattura.Mod",
         "argomento inatteso: Fattura.Mod");
    riga("two models", "Fattura.Mod DDT.Mod", "si apre un solo modello alla volta");
    riga("model without a name", "", "argomento inatteso: ");
}

void tst_RigaDiComando::opzioniSbagliate()
{
    QFETCH(QStringList, argomenti);
    QFETCH(QString, errore);
    const Esito esito = Esegue(argomenti);
    QCOMPARE(esito.errori, errore);
    QCOMPARE(esito.uscita, QString());
    QCOMPARE(esito.stato, 1);
}

QTEST_GUILESS_MAIN(tst_RigaDiComando)
#include "tst_RigaDiComando.moc"
