#include "FoglioDiProva.h"

#include "model/Tavolozza.h"
#include "print/Pagina.h"
#include "support/Errori.h"
#include "support/Tempi.h"

#include <QTest>

#include <limits>

using namespace ImmaginiDiProva;

namespace {

bool Nera(QRgb colore)
{
    return (colore & 0xFFFFFF) == 0;
}

} // namespace

class tst_StampaProva : public QObject
{
    Q_OBJECT

private slots:
    void nomiInvece();
    void mascheraNo_data();
    void mascheraNo();
    void assentiNonStampati();
    void fuoriArea_data();
    void fuoriArea();
    void margini();
    void foglioPiuGrande();
    void bordi_data();
    void bordi();
    void bordoColorato();
    void coloreTornaNero();
    void unSoloFoglio();
    void tabellaOltreIlLimite();
    void valoriAssurdi_data();
    void valoriAssurdi();
    void stampanteCheRifiuta();
    void discoPieno();
    void ordineDeiMessaggi();
};

void tst_StampaProva::nomiInvece()
{
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("Numero"), QStringLiteral("0012"), 30, 40);
    foglio.ConCornice({50, 50, 30, 10}, 0.5).Testo = QStringLiteral("Data");
    const LettorePdf testi = foglio.Stampa(false);
    QCOMPARE(testi.Testi(), (QStringList{QStringLiteral("0012"), QStringLiteral("Data")}));
    const LettorePdf nomi = foglio.Stampa(true);
    QCOMPARE(nomi.Testi(), (QStringList{QStringLiteral("Numero"), QStringLiteral("Data")}));
    QVERIFY(Vicini(testi.Parola1(QStringLiteral("0012")).topLeft().x(),
                   nomi.Parola1(QStringLiteral("Numero")).topLeft().x(), 0.01));
    QVERIFY(Vicini(testi.Parola1(QStringLiteral("0012")).top(),
                   nomi.Parola1(QStringLiteral("Numero")).top(), 0.01));
}

void tst_StampaProva::mascheraNo_data()
{
    QTest::addColumn<QString>("maschera");
    QTest::addColumn<bool>("stampato");
    for (const char *no : {"No", "no", "NO", "nO"}) {
        QTest::newRow(no) << QString::fromLatin1(no) << false;
    }
    for (const char *altra : {"", "Non", "No ", " No", "###.###,##", "$$$"}) {
        QTest::addRow("'%s' is printed", altra) << QString::fromLatin1(altra) << true;
    }
}

void tst_StampaProva::mascheraNo()
{
    QFETCH(QString, maschera);
    QFETCH(bool, stampato);
    FoglioDiProva foglio;
    // Not even the messages come for a field that is not printed.
    Campo &campo = foglio.ConCampo(QStringLiteral("A"), QStringLiteral("1234"), 10, 10);
    campo.Maschera = maschera;
    foglio.ConCampo(QStringLiteral("B"), QStringLiteral("fuori"), 500, 500).Maschera = maschera;
    const LettorePdf pdf = foglio.Stampa();
    // The text is printed as it is stored: no mask is applied.
    QCOMPARE(pdf.Testi().contains(QStringLiteral("1234")), stampato);
    QCOMPARE(foglio.Avvisi.isEmpty(), !stampato);
}

void tst_StampaProva::assentiNonStampati()
{
    FoglioDiProva foglio;
    foglio.ConCampo(QString(), QStringLiteral("campo"), 300, 10);
    foglio.ConCornice({10, 30, 30, 30}, 1).Nome.clear();
    foglio.ConImmagine(QString(), {}, {50, 50, 10, 10});
    const LettorePdf pdf = foglio.Stampa();
    QVERIFY(pdf.Inchiostro().isEmpty());
    QVERIFY(pdf.Testi().isEmpty());
    QVERIFY(foglio.Avvisi.isEmpty());
}

void tst_StampaProva::fuoriArea_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<QStringList>("avvisi");
    const QString x = QStringLiteral("x");
    const QString y = QStringLiteral("y");
    QTest::newRow("inside") << 209.0 << 296.0 << QStringList();
    QTest::newRow("beyond the width") << 211.0 << 10.0 << QStringList{x};
    QTest::newRow("beyond the height") << 10.0 << 298.0 << QStringList{y};
    QTest::newRow("beyond both") << 211.0 << 298.0 << QStringList{x, y};
    QTest::newRow("negative is not beyond") << -5.0 << -5.0 << QStringList();
}

void tst_StampaProva::fuoriArea()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(QStringList, avvisi);
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("a"), x, y);
    foglio.ConCampo(QStringLiteral("B"), QStringLiteral("dopo"), 10, 10);
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(foglio.Avvisi, avvisi);
    QVERIFY(pdf.Testi().contains(QStringLiteral("dopo")));
}

void tst_StampaProva::margini()
{
    FoglioDiProva foglio;
    foglio.Margini = QMarginsF(4.2, 4.9, 4.2, 4.9);
    foglio.ConCornice({0, 0, 100, 100}, 1.5);
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("a"), 205, 10);
    const QRectF inchiostro = foglio.Stampa().Inchiostro(QRectF(0, 0, 150, 150));
    QVERIFY2(Vicini(inchiostro, QRectF(4.2, 4.9, 100.5, 100.5)), Testo(inchiostro));
    QCOMPARE(foglio.Avvisi, QStringList{QStringLiteral("x")}); // 201.6 mm are printable
}

void tst_StampaProva::foglioPiuGrande()
{
    FoglioDiProva foglio; // a model for a larger sheet than the printer's is cut, never shrunk
    foglio.ConCornice({10, 10, 300, 400}, 1);
    foglio.ConCornice({50, 50, 100, 100}, 1, 9);
    const LettorePdf pdf = foglio.Stampa();
    const QRectF inchiostro = pdf.Inchiostro(QRectF(0, 0, 210, 297), [](QRgb colore) {
        return colore == (0xFF000000 | Tavolozza::Rgb(9));
    });
    QVERIFY2(Vicini(inchiostro, QRectF(50, 50, 100.3, 100.3)), Testo(inchiostro));
    QVERIFY(Vicini(pdf.Inchiostro().top(), 10) && Vicini(pdf.Inchiostro().bottom(), 297));
}

void tst_StampaProva::bordi_data()
{
    QTest::addColumn<double>("bordo");
    QTest::addColumn<bool>("lati");
    QTest::addColumn<double>("spessore");
    QTest::newRow("1: a box 0.3 mm thick") << 1.0 << true << 0.3;
    QTest::newRow("1.5: a box 0.5 mm thick") << 1.5 << true << 0.5;
    QTest::newRow("1.1: a box 0.1 mm thick") << 1.1 << true << 0.1;
    QTest::newRow("2: a top line 0.3 mm thick") << 2.0 << false << 0.3;
    QTest::newRow("2.2: a top line 0.2 mm thick") << 2.2 << false << 0.2;
    QTest::newRow("0: the label only") << 0.0 << false << 0.0;
    QTest::newRow("0.5: the label only") << 0.5 << false << 0.0;
    QTest::newRow("3: the label only") << 3.0 << false << 0.0;
    QTest::newRow("-1: the label only") << -1.0 << false << 0.0;
    QTest::newRow("-1.5: the label only") << -1.5 << false << 0.0;
}

void tst_StampaProva::bordi()
{
    QFETCH(double, bordo);
    QFETCH(bool, lati);
    QFETCH(double, spessore);
    FoglioDiProva foglio;
    foglio.ConCornice({20, 30, 60, 25}, bordo).Testo = QStringLiteral("titolo");
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Testi(), QStringList{QStringLiteral("titolo")});

    const auto barra = [&](const QRectF &zona) { return pdf.Inchiostro(zona); };
    const QRectF sopra = barra({55, 25, 1, 15});
    const QRectF sotto = barra({55, 45, 1, 15});
    const QRectF sinistra = barra({10, 50, 30, 1});
    const QRectF destra = barra({70, 50, 30, 1});
    const double pixel = 25.4 / LettorePdf::PuntiPerPollice;
    QVERIFY2(Vicini(sopra.height(), spessore, pixel), Testo(sopra));
    if (spessore > 0) {
        QVERIFY2(Vicini(sopra.top(), 30), Testo(sopra));
    }
    QCOMPARE(!sotto.isEmpty(), lati);
    QCOMPARE(!sinistra.isEmpty(), lati);
    QCOMPARE(!destra.isEmpty(), lati);
    if (lati) {
        QVERIFY2(Vicini(sotto.top(), 55) && Vicini(sotto.height(), spessore, pixel), Testo(sotto));
        QVERIFY2(Vicini(sinistra.left(), 20) && Vicini(sinistra.width(), spessore, pixel),
                 Testo(sinistra));
        QVERIFY2(Vicini(destra.left(), 80) && Vicini(destra.width(), spessore, pixel),
                 Testo(destra));
        // The far corner is closed.
        const QRectF tutto = pdf.Inchiostro();
        QVERIFY2(Vicini(tutto, QRectF(20, 30, 60 + spessore, 25 + spessore)), Testo(tutto));
        const double angolo = spessore / 2;
        QVERIFY(Nera(pdf.Colore(80 + angolo, 55 + angolo)));
        QVERIFY(Nera(pdf.Colore(80 + angolo, 30 + angolo)));
    }
}

void tst_StampaProva::bordoColorato()
{
    FoglioDiProva foglio;
    for (int colore = 0; colore < Tavolozza::Colori; ++colore) {
        foglio.ConCornice({10, 10.0 + colore * 10, 50, 5}, 2.9, colore);
    }
    foglio.ConCornice({10, 200, 50, 5}, 2.9, 77);
    foglio.ConCornice({10, 210, 50, 5}, 2.9, -3);
    const LettorePdf pdf = foglio.Stampa();
    for (int colore = 0; colore < Tavolozza::Colori; ++colore) {
        QCOMPARE(pdf.Colore(30, 10.0 + colore * 10 + 0.5),
                 QRgb(0xFF000000 | Tavolozza::Rgb(colore)));
    }
    QVERIFY(Nera(pdf.Colore(30, 200.5)));
    QVERIFY(Nera(pdf.Colore(30, 210.5)));
}

void tst_StampaProva::coloreTornaNero()
{
    FoglioDiProva foglio;
    const auto stampante = foglio.Stampante();
    Pagina pagina(*stampante);
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("dopo"), 10, 40);
    Cornice &cornice = foglio.ConCornice({10, 10, 20, 20}, 1);
    cornice.Testo = QStringLiteral("prima");
    cornice.ColoreTesto = 12;
    StampaProva stampa(foglio.Aperto, foglio.Cartella(), pagina, [](const QString &) {});
    stampa.StampaCornice(1);
    QCOMPARE(pagina.Colore(), qRgb(0, 0, 0));
    stampa.StampaCampo(1, false);
    pagina.Fine();
    const LettorePdf pdf(foglio.Pdf());
    QVERIFY(Nera(pdf.Colore(10.15, 20)));
    const QRectF parola = pdf.Parola1(QStringLiteral("dopo"));
    QVERIFY(!pdf.Inchiostro(parola, Nera).isEmpty());
}

void tst_StampaProva::unSoloFoglio()
{
    FoglioDiProva foglio;
    foglio.Aperto.Sfondo.File = QStringLiteral("scansione.bmp");
    foglio.Aperto.Sfondo.Visualizza = 1;
    foglio.Aperto.Righe.SeguePag = QStringLiteral("segue");
    const LettorePdf vuoto = foglio.Stampa();
    QCOMPARE(vuoto.Pagine(), 1);
    QVERIFY(vuoto.Inchiostro().isEmpty());
    for (int i = 0; i < 100; ++i) {
        foglio.ConCampo(QStringLiteral("A"), QStringLiteral("riga"), 10, i * 10.0);
    }
    QCOMPARE(foglio.Stampa().Pagine(), 1);
}

void tst_StampaProva::tabellaOltreIlLimite()
{
    FoglioDiProva foglio;
    for (int i = 0; i < 100; ++i) {
        foglio.ConCampo(QStringLiteral("A"), QStringLiteral("riga"), 10, i * 2.5);
    }
    QCOMPARE(ErroreDi([&] { foglio.Aperto.AggiungeCampo(1, 1); }), int(ErroreSistema::Indice));
    QCOMPARE(foglio.Stampa().Testi().size(), 100);
}

void tst_StampaProva::valoriAssurdi_data()
{
    QTest::addColumn<double>("valore");
    QTest::newRow("1e300") << 1e300;
    QTest::newRow("-1e300") << -1e300;
    QTest::newRow("the largest double") << std::numeric_limits<double>::max();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("a million") << 1e6;
    QTest::newRow("minus a hundred") << -100.0;
}

void tst_StampaProva::valoriAssurdi()
{
    QFETCH(double, valore);
    FoglioDiProva foglio;
    const QString lungo = QStringLiteral("parola ").repeated(1500);
    const QByteArray byte = InFormato(Tinta({9, 9}, qRgb(1, 2, 3)), "bmp");
    foglio.ConCampo(QStringLiteral("A"), lungo, valore, 10);
    foglio.ConCampo(QStringLiteral("B"), lungo, 10, valore, 32767);
    foglio.ConCampo(QStringLiteral("C"), lungo, 10, 50, -32768);
    foglio.ConCampo(QStringLiteral("D"), lungo, 10, 60, 0);
    foglio.ConCornice({valore, 10, 30, 30}, 1);
    foglio.ConCornice({10, valore, 30, 30}, 1.9, 4);
    foglio.ConCornice({10, 100, valore, 30}, 1, 4).Testo = lungo;
    foglio.ConCornice({10, 100, 30, valore}, 1);
    foglio.ConCornice({10, 100, valore, valore}, 2.3);
    foglio.ConCornice({10, 100, 30, 30}, valore);
    foglio.ConImmagine(QStringLiteral("a.bmp"), byte, {valore, 1, 9, 9});
    foglio.ConImmagine(QStringLiteral("b.bmp"), byte, {1, valore, 9, 9});
    foglio.ConImmagine(QStringLiteral("c.bmp"), byte, {1, 1, valore, 9});
    foglio.ConImmagine(QStringLiteral("d.bmp"), byte, {1, 1, 9, valore});
    foglio.ConImmagine(QStringLiteral("e.bmp"), byte, {-32768, -32768, 32767, 32767});
    foglio.ConImmagine(QStringLiteral("f.bmp"), byte, {0, 0, 32767, 32767});
    foglio.ConCampo(QStringLiteral("Z"), QStringLiteral("ultimo"), 150, 200);
    const TempoDiLavoro tempo;
    const auto stampante = foglio.Stampante();
    StampaModello(foglio.Aperto, foglio.Cartella(), *stampante, false, [](const QString &) {});
    QVERIFY2(tempo.Entro(5000), qPrintable(QString::number(tempo.MilliSecondi())));
    QVERIFY(LettorePdf(foglio.Pdf()).Testi().contains(QStringLiteral("ultimo")));
}

void tst_StampaProva::stampanteCheRifiuta()
{
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("a"), 500, 10);
    const auto stampante = Stampanti::SuPdf(QStringLiteral("/cartella/che/non/esiste/a.pdf"));
    const auto avviso = [&](const QString &testo) { foglio.Avvisi.append(testo); };
    QCOMPARE(ErroreDi([&] {
                 StampaModello(foglio.Aperto, foglio.Cartella(), *stampante, false, avviso);
             }),
             int(ErroreSistema::AccessoFile));
    QVERIFY2(foglio.Avvisi.isEmpty(), "nothing is asked of a printer that does not begin");
    QCOMPARE(ErroreDi([&] { StampaRetino(*stampante); }), int(ErroreSistema::AccessoFile));
}

void tst_StampaProva::discoPieno()
{
    if (!QFile::exists(QStringLiteral("/dev/full"))) {
        QSKIP("this system has no device that is always full");
    }
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("a"), 10, 10);
    const auto stampante = Stampanti::SuPdf(QStringLiteral("/dev/full"));
    QCOMPARE(ErroreDi([&] {
                 StampaModello(foglio.Aperto, foglio.Cartella(), *stampante, false,
                               [](const QString &) {});
             }),
             int(ErroreSistema::AccessoFile));
}

void tst_StampaProva::ordineDeiMessaggi()
{
    FoglioDiProva foglio;
    foglio.ConImmagine(QStringLiteral("manca.bmp"), {}, {1, 1, 1, 1});
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("a"), 10, 400);
    foglio.ConCampo(QStringLiteral("B"), QStringLiteral("b"), 400, 400);
    foglio.Stampa();
    QCOMPARE(foglio.Avvisi.size(), 4);
    QCOMPARE(foglio.Avvisi.mid(0, 3),
             (QStringList{QStringLiteral("y"), QStringLiteral("x"), QStringLiteral("y")}));
    QVERIFY(foglio.Avvisi.last().startsWith(QLatin1String("StampaImmagine: ")));
}

QTEST_MAIN(tst_StampaProva)
#include "tst_StampaProva.moc"
