#include "FoglioDiProva.h"

#include "model/Tavolozza.h"

#include <QElapsedTimer>
#include <QTest>

using namespace ImmaginiDiProva;

namespace {

constexpr QRgb Bianco = 0xFFFFFFFF;

QByteArray Bmp(QRgb colore)
{
    return InFormato(Tinta({16, 16}, colore), "bmp");
}

QRgb And(QRgb a, QRgb b)
{
    return (a & b) | 0xFF000000;
}

QRgb Palette(int indice)
{
    return 0xFF000000 | Tavolozza::Rgb(indice);
}

} // namespace

/// The AND of pictures with the page, read from the pixels of the printed sheet.
class tst_Sovrapposizione : public QObject
{
    Q_OBJECT

private slots:
    void coloreSuColore_data();
    void coloreSuColore();
    void biancoLascia();
    void neroResta();
    void immagineSuImmagine();
    void treImmagini();
    void testoColorato();
    void testoNeroRestaTesto();
    void testoFuoriRestaTesto();
    void ordineFraBarre();
    void gifTrasparente();
    void margini();
    void foglioIntero();
    void stessaImmaginePiuVolte();
    void lineeSottiliEsatte();
    void moltePagineDiPixel();
};

void tst_Sovrapposizione::coloreSuColore_data()
{
    QTest::addColumn<int>("barra");
    QTest::addColumn<QRgb>("immagine");
    for (int barra = 0; barra < Tavolozza::Colori; ++barra) {
        for (const QRgb immagine :
             {qRgb(255, 255, 0), qRgb(0, 255, 255), qRgb(0x5A, 0xC3, 0x77), qRgb(0, 0, 0)}) {
            QTest::addRow("bar %d under %06x", barra, immagine & 0xFFFFFF) << barra << immagine;
        }
    }
}

void tst_Sovrapposizione::coloreSuColore()
{
    QFETCH(int, barra);
    QFETCH(QRgb, immagine);
    FoglioDiProva foglio;
    foglio.Misura = {40, 40};
    foglio.ConCornice({5, 10, 20, 5}, 2.9, barra);
    foglio.ConImmagine(QStringLiteral("a.bmp"), Bmp(immagine), {10, 5, 25, 25});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Colore(7, 10.5), Palette(barra));                 // bar alone
    QCOMPARE(pdf.Colore(15, 10.5), And(Palette(barra), immagine)); // both
    QCOMPARE(pdf.Colore(30, 10.5), immagine);                      // picture alone
    QCOMPARE(pdf.Colore(15, 25), immagine);
}

void tst_Sovrapposizione::biancoLascia()
{
    FoglioDiProva foglio;
    foglio.ConCornice({10, 10, 100, 50}, 1.9, 12);
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("Testo"), 20, 20);
    const QRectF solo = foglio.Stampa().Inchiostro();
    foglio.ConImmagine(QStringLiteral("bianca.bmp"), Bmp(Bianco), {0, 0, 210, 297});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Testi(), QStringList{QStringLiteral("Testo")});
    const QRectF inchiostro = pdf.Inchiostro();
    QVERIFY2(Vicini(inchiostro, solo), Testo(inchiostro));
    QCOMPARE(pdf.Colore(50, 10.5), Palette(12));
    QCOMPARE(pdf.Colore(50, 30), Bianco);
}

void tst_Sovrapposizione::neroResta()
{
    FoglioDiProva foglio;
    foglio.Misura = {60, 60};
    foglio.ConCornice({5, 10, 50, 5}, 2.9, 0);
    foglio.ConCornice({5, 40, 50, 5}, 2.9, 14);
    foglio.ConImmagine(QStringLiteral("nera.bmp"), Bmp(qRgb(0, 0, 0)), {20, 30, 10, 25});
    foglio.ConImmagine(QStringLiteral("gialla.bmp"), Bmp(qRgb(255, 255, 0)), {20, 5, 10, 20});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Colore(25, 10.5), qRgb(0, 0, 0)); // black bar under yellow
    QCOMPARE(pdf.Colore(25, 40.5), qRgb(0, 0, 0)); // yellow bar under black
    QCOMPARE(pdf.Colore(25, 20), qRgb(255, 255, 0));
    QCOMPARE(pdf.Immagini(), 3); // the two pictures, and one patch where two colours meet
}

void tst_Sovrapposizione::immagineSuImmagine()
{
    FoglioDiProva foglio;
    foglio.Misura = {60, 60};
    foglio.ConImmagine(QStringLiteral("a.bmp"), Bmp(qRgb(255, 200, 0)), {5, 5, 30, 30});
    foglio.ConImmagine(QStringLiteral("b.bmp"), Bmp(qRgb(0, 250, 255)), {20, 20, 30, 30});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Colore(10, 10), qRgb(255, 200, 0));
    QCOMPARE(pdf.Colore(27, 27), And(qRgb(255, 200, 0), qRgb(0, 250, 255)));
    QCOMPARE(pdf.Colore(45, 45), qRgb(0, 250, 255));
    const QRectF incontro = pdf.Inchiostro(
        {0, 0, 60, 60}, [](QRgb c) { return c == And(qRgb(255, 200, 0), qRgb(0, 250, 255)); });
    QVERIFY2(Vicini(incontro, QRectF(20, 20, 15, 15)), Testo(incontro));
}

void tst_Sovrapposizione::treImmagini()
{
    FoglioDiProva foglio;
    foglio.Misura = {60, 60};
    foglio.ConCornice({0, 25, 60, 9}, 2.9, 15); // white: covers nothing, hides nothing
    foglio.ConImmagine(QStringLiteral("a.bmp"), Bmp(qRgb(255, 255, 0)), {5, 5, 30, 30});
    foglio.ConImmagine(QStringLiteral("b.bmp"), Bmp(qRgb(255, 0, 255)), {15, 15, 30, 30});
    foglio.ConImmagine(QStringLiteral("c.bmp"), Bmp(qRgb(0, 255, 255)), {25, 10, 30, 30});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Colore(30, 20), qRgb(0, 0, 0));     // all three
    QCOMPARE(pdf.Colore(20, 20), qRgb(255, 0, 0));   // first and second
    QCOMPARE(pdf.Colore(30, 12), qRgb(0, 255, 0));   // first and third
    QCOMPARE(pdf.Colore(40, 25.5), qRgb(0, 0, 255)); // second and third, over the white bar
    QCOMPARE(pdf.Colore(10, 25.5), qRgb(255, 255, 0));
}

void tst_Sovrapposizione::testoColorato()
{
    FoglioDiProva foglio;
    Cornice &cornice = foglio.ConCornice({20, 20, 100, 30}, 0);
    cornice.Testo = QStringLiteral("MMMMMM");
    cornice.Dimensione = 60;
    cornice.ColoreTesto = 12; // red
    foglio.ConImmagine(QStringLiteral("a.bmp"), Bmp(qRgb(0x60, 0xC0, 0xFF)), {50, 10, 100, 60});
    const LettorePdf pdf = foglio.Stampa();
    const QRgb incontro = And(qRgb(255, 0, 0), qRgb(0x60, 0xC0, 0xFF));
    // In the patch there are only the picture's colour and the AND, bit by bit, no shades between.
    const QImage pezza = pdf.Immagine(1);
    QVERIFY(pezza.width() > 1000);
    int incontri = 0;
    for (int y = 0; y < pezza.height(); ++y) {
        for (int x = 0; x < pezza.width(); ++x) {
            const QRgb c = pezza.pixel(x, y);
            QVERIFY2(c == incontro || c == qRgb(0x60, 0xC0, 0xFF),
                     qPrintable(QString::number(c, 16)));
            incontri += c == incontro ? 1 : 0;
        }
    }
    QVERIFY(incontri > 100'000);
    const QRectF sotto = pdf.Inchiostro({50, 10, 100, 60}, [&](QRgb c) { return c == incontro; });
    const QRectF fuori =
        pdf.Inchiostro({0, 0, 49.9, 297}, [](QRgb c) { return c == qRgb(255, 0, 0); });
    QVERIFY2(sotto.width() > 50, Testo(sotto));
    QVERIFY2(Vicini(sotto.top(), fuori.top()) && Vicini(sotto.bottom(), fuori.bottom()),
             "the covered letters stand at the height of the others");
    // What lies beside the picture is still text.
    QCOMPARE(pdf.Testi(), QStringList{QStringLiteral("MMMMMM")});
}

void tst_Sovrapposizione::testoNeroRestaTesto()
{
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("MMMM"), 30, 30, 60);
    foglio.ConImmagine(QStringLiteral("a.bmp"), Bmp(qRgb(200, 220, 90)), {20, 20, 150, 60});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Immagini(), 1);
    QCOMPARE(pdf.Testi(), QStringList{QStringLiteral("MMMM")});
    const QRectF altri = pdf.Inchiostro({20.2, 20.2, 149.6, 59.6}, [](QRgb c) {
        return c != qRgb(0, 0, 0) && c != qRgb(200, 220, 90);
    });
    QVERIFY2(altri.isEmpty(), Testo(altri));
    QVERIFY(
        !pdf.Inchiostro({20, 20, 150, 60}, [](QRgb c) { return c == qRgb(0, 0, 0); }).isEmpty());
}

void tst_Sovrapposizione::testoFuoriRestaTesto()
{
    FoglioDiProva foglio;
    foglio.ConCornice({100, 100, 50, 50}, 1, 9).Testo = QStringLiteral("vicino");
    foglio.ConImmagine(QStringLiteral("a.bmp"), Bmp(qRgb(255, 0, 0)), {10, 10, 50, 50});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Immagini(), 1); // nothing lies under the picture: no patch
    QCOMPARE(pdf.Testi(), QStringList{QStringLiteral("vicino")});
}

void tst_Sovrapposizione::ordineFraBarre()
{
    FoglioDiProva foglio;
    foglio.Misura = {60, 60};
    foglio.ConCornice({5, 10, 50, 5}, 2.9, 12); // red
    foglio.ConCornice({5, 10, 25, 5}, 2.9, 10); // green over its left half
    foglio.ConImmagine(QStringLiteral("a.bmp"), Bmp(qRgb(255, 255, 0)), {10, 5, 40, 20});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Colore(20, 10.5), qRgb(0, 255, 0));
    QCOMPARE(pdf.Colore(40, 10.5), qRgb(255, 0, 0));
    QCOMPARE(pdf.Colore(7, 10.5), qRgb(0, 255, 0));
}

void tst_Sovrapposizione::gifTrasparente()
{
    FoglioDiProva foglio;
    foglio.Misura = {60, 60};
    foglio.ConCornice({5, 20, 50, 5}, 2.9, 14); // yellow
    foglio.ConImmagine(QStringLiteral("a.gif"), GifTrasparente(), {10, 10, 40, 20});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Colore(20, 15), qRgb(255, 0, 0));
    QCOMPARE(pdf.Colore(40, 15), Bianco);
    QCOMPARE(pdf.Colore(20, 20.5), qRgb(255, 0, 0)); // red AND yellow
    QCOMPARE(pdf.Colore(40, 20.5), qRgb(255, 255, 0));
}

void tst_Sovrapposizione::margini()
{
    FoglioDiProva foglio;
    foglio.Misura = {60, 60};
    foglio.Margini = {4.2, 4.9, 4.2, 4.9};
    foglio.ConCornice({5, 10, 40, 5}, 2.9, 14);
    foglio.ConImmagine(QStringLiteral("a.bmp"), Bmp(qRgb(0, 255, 255)), {20, 5, 10, 20});
    const LettorePdf pdf = foglio.Stampa();
    const QRectF incontro =
        pdf.Inchiostro({0, 0, 60, 60}, [](QRgb c) { return c == qRgb(0, 255, 0); });
    QVERIFY2(Vicini(incontro, QRectF(24.2, 14.9, 10, 0.9)), Testo(incontro));
    const QRectF resto =
        pdf.Inchiostro({0, 0, 60, 60}, [](QRgb c) { return c == qRgb(255, 255, 0); });
    QVERIFY2(Vicini(resto, QRectF(9.2, 14.9, 40, 0.9)), Testo(resto));
}

void tst_Sovrapposizione::foglioIntero()
{
    FoglioDiProva foglio;
    for (int i = 0; i < 20; ++i) {
        foglio.ConCornice({5, 10.0 + i * 12, 150, 8}, 1.3, i % 16).Testo = QStringLiteral("voce");
    }
    foglio.ConImmagine(QStringLiteral("a.bmp"), Bmp(qRgb(255, 255, 0)), {0, 0, 0, 0});
    foglio.ConImmagine(QStringLiteral("b.bmp"), Bmp(qRgb(0, 255, 255)), {0, 0, 0, 0});
    QElapsedTimer tempo;
    tempo.start();
    const LettorePdf pdf = foglio.Stampa();
    QVERIFY2(tempo.elapsed() < 20'000, qPrintable(QString::number(tempo.elapsed())));
    QCOMPARE(pdf.Colore(200, 290), qRgb(0, 255, 0));
    QCOMPARE(pdf.Colore(100, 10.0 + 12 * 12 + 0.1), qRgb(0, 0, 0)); // red under both
}

void tst_Sovrapposizione::stessaImmaginePiuVolte()
{
    FoglioDiProva foglio;
    const QByteArray byte = Bmp(qRgb(9, 99, 199));
    for (int i = 0; i < 50; ++i) {
        const int riga = i / 10;
        foglio.ConImmagine(QStringLiteral("a.bmp"), byte, {(i % 10) * 20.0, riga * 20.0, 10, 10});
    }
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Colore(185, 85), qRgb(9, 99, 199));
    QVERIFY(QFileInfo(foglio.Pdf()).size() < 20'000);
}

void tst_Sovrapposizione::lineeSottiliEsatte()
{
    // A picture with structure: each of its pixels must be found where it belongs, to the pixel.
    FoglioDiProva foglio;
    foglio.Misura = {60, 60};
    QImage scacchi(4, 4, QImage::Format_RGB32);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            scacchi.setPixel(x, y, (x + y) % 2 ? qRgb(0xF0, 0x0F, 0xFF) : Bianco);
        }
    }
    foglio.ConCornice({0, 20, 60, 20}, 2.9999, 11); // cyan
    foglio.ConCornice({0, 21, 60, 20}, 2.9999, 11);
    foglio.ConImmagine(QStringLiteral("s.bmp"), InFormato(scacchi, "bmp"), {10, 10, 40, 40});
    const LettorePdf pdf = foglio.Stampa();
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            const QRgb atteso = scacchi.pixel(x, y);
            QCOMPARE(pdf.Colore(15.0 + x * 10, 15.0 + y * 10), atteso);
        }
        const QRgb incontro = And(Palette(11), scacchi.pixel(y, 1));
        QCOMPARE(pdf.Colore(15.0 + y * 10, 20.5), incontro);
        QCOMPARE(pdf.Colore(10.1 + y * 10, 21.5), incontro);
        QCOMPARE(pdf.Colore(19.9 + y * 10, 21.5), incontro);
    }
}

void tst_Sovrapposizione::moltePagineDiPixel()
{
    FoglioDiProva foglio; // a plotter's sheet: the patch is bounded, its place is not disturbed
    foglio.Misura = {900, 1200};
    foglio.ConImmagine(QStringLiteral("a.bmp"), Bmp(qRgb(255, 255, 0)), {0, 0, 0, 0});
    foglio.ConImmagine(QStringLiteral("b.bmp"), Bmp(qRgb(0, 255, 255)), {100, 100, 700, 1000});
    const auto stampante = foglio.Stampante();
    QElapsedTimer tempo;
    tempo.start();
    StampaModello(foglio.Aperto, foglio.Cartella(), *stampante, false, [](const QString &) {});
    QVERIFY2(tempo.elapsed() < 20'000, qPrintable(QString::number(tempo.elapsed())));
    QVERIFY(QFileInfo(foglio.Pdf()).size() < 10'000'000);
}

QTEST_MAIN(tst_Sovrapposizione)
#include "tst_Sovrapposizione.moc"
