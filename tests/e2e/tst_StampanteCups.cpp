#include "ProvaInCoda.h"
#include "base/Unita.h"

#include <QTest>

#include <cmath>

using namespace ImmaginiDiProva;
using Unita::MillimetriPerPunto;

namespace {

const QString Stretta = QStringLiteral("Stretta");
const QString Particolare = QStringLiteral("Particolare");

} // namespace

/// The test print on a real print queue, measured on the sheet that comes out of it.
class tst_StampanteCups : public QObject, private ProvaInCoda
{
    Q_OBJECT

private slots:
    void initTestCase() { AvviaServer(); }
    void init();
    void areaStampabile_data();
    void areaStampabile();
    void foglioNormale_data();
    void foglioNormale();
    void foglioDellaStampante_data();
    void foglioDellaStampante();
    void grigliaSulFoglioDellaStampante_data();
    void grigliaSulFoglioDellaStampante();
    void foglioOrizzontale();
    void impostazioniCheRidurrebbero();
    void modelloPiuGrandeDelFoglio();
    void immagineMancante();
    void retino();
    void nomeDelLavoro();
};

void tst_StampanteCups::init()
{
    if (coda_) {
        coda_->Aggiunge(Prova, {});
        coda_->Aggiunge(Stretta, {10.3, 7.6, 20.9, 30.2});
        coda_->Predefinita(Prova);
    }
}

void tst_StampanteCups::areaStampabile_data()
{
    QTest::addColumn<QString>("coda");
    QTest::addColumn<QRectF>("punti");
    QTest::newRow("whole points") << Prova << QRectF(12, 14, 595 - 24, 842 - 28);
    QTest::newRow("fractions of a point")
        << Stretta << QRectF(10.3, 7.6, 595 - 10.3 - 20.9, 842 - 7.6 - 30.2);
}

void tst_StampanteCups::areaStampabile()
{
    QFETCH(QString, coda);
    QFETCH(QRectF, punti);
    coda_->Predefinita(coda);
    const auto stampante = Stampanti::Predefinita();
    const QRectF area = stampante->Dispositivo().pageLayout().paintRect(QPageLayout::Millimeter);
    const QRectF attesa(punti.topLeft() * MillimetriPerPunto, punti.size() * MillimetriPerPunto);
    QVERIFY2(Vicini(area.left(), attesa.left()) && Vicini(area.top(), attesa.top()), Testo(area));
    // The description's sheet is rounded to whole points, the program's is a true A4.
    QVERIFY2(Vicini(area, attesa, 0.15), Testo(area));
}

void tst_StampanteCups::foglioNormale_data()
{
    QTest::addColumn<QString>("coda");
    QTest::addColumn<QPointF>("angolo");
    QTest::newRow("whole points") << Prova << CodaDiStampa::AngoloStampabile;
    QTest::newRow("fractions of a point") << Stretta << QPointF(10.3, 7.6) * MillimetriPerPunto;
}

void tst_StampanteCups::foglioNormale()
{
    QFETCH(QString, coda);
    QFETCH(QPointF, angolo);
    coda_->Predefinita(coda);
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("HHH"), 30, 40, 11);
    Campo &scuro = foglio.ConCampo(QStringLiteral("B"), QStringLiteral("HHH"), 30, 60, 20);
    scuro.Grassetto = Vero;
    foglio.ConCornice({50, 100, 100, 100}, 1.5);
    foglio.ConCornice({50, 220, 100, 10}, 2.2, 12);
    foglio.ConImmagine(QStringLiteral("a.bmp"), InFormato(Tinta({9, 9}, qRgb(0, 0, 255)), "bmp"),
                       {100, 30, 40, 25});
    foglio.ConCornice({20, 250, 30, 8}, 2.9, 14);
    foglio.ConImmagine(QStringLiteral("b.bmp"), InFormato(Tinta({9, 9}, qRgb(0, 255, 255)), "bmp"),
                       {30, 245, 10, 15});
    const LettorePdf pdf = Stampa(foglio);
    QCOMPARE(pdf.Pagine(), 1);
    QVERIFY(Vicini(pdf.Foglio().width(), 210, 0.3) && Vicini(pdf.Foglio().height(), 297, 0.3));

    const QRectF quadro =
        pdf.Inchiostro(QRectF(angolo + QPointF(45, 95), QSizeF(110, 110))).translated(-angolo);
    QVERIFY2(Vicini(quadro, QRectF(50, 100, 100.5, 100.5)), Testo(quadro));
    const QRectF linea =
        pdf.Inchiostro(QRectF(angolo + QPointF(45, 215), QSizeF(110, 20))).translated(-angolo);
    QVERIFY2(Vicini(linea, QRectF(50, 220, 100, 0.2)), Testo(linea));
    const QRectF figura =
        pdf.Inchiostro(QRectF(angolo + QPointF(95, 25), QSizeF(50, 40))).translated(-angolo);
    QVERIFY2(Vicini(figura, QRectF(100, 30, 40, 25)), Testo(figura));
    // Text loses its letters' names on the way through PostScript, so its ink is measured: capitals
    // of Arial are 0.688 em high, stand 0.905 em below the top of the line and begin 0.079 em in.
    const double em = 11 * MillimetriPerPunto;
    const QRectF campo =
        pdf.Inchiostro(QRectF(angolo + QPointF(28, 38), QSizeF(20, 8))).translated(-angolo);
    QVERIFY2(Vicini(campo.left(), 30 + 0.079 * em) && Vicini(campo.bottom(), 40 + 0.905 * em) &&
                 Vicini(campo.height(), 0.688 * em),
             Testo(campo));
    const double emScuro = 20 * MillimetriPerPunto;
    const QRectF lettere =
        pdf.Inchiostro(QRectF(angolo + QPointF(28, 58), QSizeF(60, 14))).translated(-angolo);
    QVERIFY2(Vicini(lettere.height(), 0.688 * emScuro), Testo(lettere));
    QVERIFY2(Vicini(lettere.bottom(), 60 + 0.905 * emScuro), Testo(lettere));
    // The stem of a bold H is 0.14 em wide, a normal one's 0.09.
    const QRectF asta =
        pdf.Inchiostro(QRectF(angolo + lettere.topLeft(), QSizeF(0.3 * emScuro, 0.2 * emScuro)));
    QVERIFY2(Vicini(asta.width(), 0.14 * emScuro), Testo(asta));

    const auto colore = [&](double x, double y) {
        return pdf.Colore(angolo.x() + x, angolo.y() + y);
    };
    QCOMPARE(colore(120, 40), qRgb(0, 0, 255));
    QCOMPARE(colore(35, 250.5), qRgb(0, 255, 0)); // cyan AND yellow
    QCOMPARE(colore(25, 250.5), qRgb(255, 255, 0));
    QCOMPARE(colore(35, 247), qRgb(0, 255, 255));
}

void tst_StampanteCups::foglioDellaStampante_data()
{
    QTest::addColumn<QString>("formato");
    QTest::addColumn<QSizeF>("millimetri");
    QTest::newRow("A4") << QStringLiteral("A4") << QSizeF(210, 297);
    QTest::newRow("A5") << QStringLiteral("A5") << QSizeF(148, 210);
    QTest::newRow("Letter") << QStringLiteral("Letter") << QSizeF(215.9, 279.4);
    QTest::newRow("A3") << QStringLiteral("A3") << QSizeF(297, 420);
    QTest::newRow("a form of its own") << QStringLiteral("Custom.240x350mm") << QSizeF(240, 350);
    QTest::newRow("wider than high") << QStringLiteral("Custom.210x100mm") << QSizeF(210, 100);
}

void tst_StampanteCups::foglioDellaStampante()
{
    QFETCH(QString, formato);
    QFETCH(QSizeF, millimetri);
    const CodaDiStampa::Bordi bordi{10.3, 7.6, 20.9, 30.2};
    coda_->Aggiunge(Stretta, bordi, {QStringLiteral("PageSize=") + formato});
    coda_->Predefinita(Stretta);
    // Near the printable corner, and near the far end of the sheet.
    const double w = std::floor(millimetri.width() - 45);
    const double h = std::floor(millimetri.height() - 40);
    FoglioDiProva foglio;
    foglio.ConCornice({5, 6, 20, 10}, 1.5);
    foglio.ConCornice({w, h, 20, 10}, 1.5);
    const LettorePdf pdf = Stampa(foglio);
    QVERIFY(Vicini(pdf.Foglio().width(), millimetri.width(), 0.6)); // its own whole points
    QVERIFY(Vicini(pdf.Foglio().height(), millimetri.height(), 0.6));
    const QPointF angolo = QPointF(bordi.Sinistra, bordi.Sopra) * MillimetriPerPunto;
    const QRectF vicino = pdf.Inchiostro(QRectF(angolo, QSizeF(30, 20))).translated(-angolo);
    QVERIFY2(Vicini(vicino, QRectF(5, 6, 20.5, 10.5)), Testo(vicino));
    const QRectF lontano =
        pdf.Inchiostro(QRectF(angolo + QPointF(w - 2, h - 2), QSizeF(25, 15))).translated(-angolo);
    QVERIFY2(Vicini(lontano, QRectF(w, h, 20.5, 10.5)), Testo(lontano));
}

void tst_StampanteCups::grigliaSulFoglioDellaStampante_data()
{
    foglioDellaStampante_data();
}

void tst_StampanteCups::grigliaSulFoglioDellaStampante()
{
    QFETCH(QString, formato);
    QFETCH(QSizeF, millimetri);
    coda_->Aggiunge(Prova, {}, {QStringLiteral("PageSize=") + formato});
    const auto stampante = Stampanti::Predefinita();
    StampaRetino(*stampante);
    const LettorePdf pdf = UnicoFoglio();
    constexpr QPointF angolo = CodaDiStampa::AngoloStampabile;
    // The last numbered ticks of both rulers stand at their millimetres.
    const double x = std::floor((millimetri.width() - 24 * MillimetriPerPunto - 6) / 10) * 10;
    const double y = std::floor((millimetri.height() - 28 * MillimetriPerPunto - 6) / 10) * 10;
    const QRectF sopra =
        pdf.Inchiostro(QRectF(angolo + QPointF(x - 1, 1), QSizeF(2, 1))).translated(-angolo);
    QVERIFY2(Vicini(sopra.center().x(), x), Testo(sopra));
    const QRectF sinistra =
        pdf.Inchiostro(QRectF(angolo + QPointF(1, y - 1), QSizeF(1, 2))).translated(-angolo);
    QVERIFY2(Vicini(sinistra.center().y(), y), Testo(sinistra));
}

void tst_StampanteCups::foglioOrizzontale()
{
    const CodaDiStampa::Bordi bordi{10.3, 7.6, 20.9, 30.2};
    coda_->Aggiunge(Stretta, bordi, {QStringLiteral("orientation-requested-default=4")});
    coda_->Predefinita(Stretta);
    const auto stampante = Stampanti::Predefinita();
    const QSizeF area =
        stampante->Dispositivo().pageLayout().paintRect(QPageLayout::Millimeter).size();
    QVERIFY(Vicini(area.width(), (842 - 7.6 - 30.2) * MillimetriPerPunto, 0.15));
    QVERIFY(Vicini(area.height(), (595 - 10.3 - 20.9) * MillimetriPerPunto, 0.15));
    FoglioDiProva foglio;
    foglio.ConCornice({230, 20, 40, 10}, 1.5); // beyond the width of an upright sheet
    const LettorePdf pdf = Stampa(foglio);
    // The sheet lies upright and shows the page turned to the left.
    QVERIFY(Vicini(pdf.Foglio().width(), 210, 0.3));
    const double sopra = 842 * MillimetriPerPunto - bordi.Sotto * MillimetriPerPunto - 270.5;
    const QRectF atteso(bordi.Sinistra * MillimetriPerPunto + 20, sopra, 10.5, 40.5);
    const QRectF quadro = pdf.Inchiostro();
    QVERIFY2(Vicini(quadro, atteso), Testo(quadro));
}

void tst_StampanteCups::impostazioniCheRidurrebbero()
{
    coda_->Aggiunge(Particolare, {},
                    {QStringLiteral("fit-to-page-default=true"),
                     QStringLiteral("number-up-default=2"),
                     QStringLiteral("print-scaling-default=fit")});
    coda_->Predefinita(Particolare);
    FoglioDiProva foglio;
    foglio.ConCornice({20, 30, 100, 100}, 1.5);
    const LettorePdf pdf = Stampa(foglio);
    constexpr QPointF angolo = CodaDiStampa::AngoloStampabile;
    const QRectF quadro = pdf.Inchiostro().translated(-angolo);
    QVERIFY2(Vicini(quadro, QRectF(20, 30, 100.5, 100.5)), Testo(quadro));
    coda_->Toglie(Particolare);
}

void tst_StampanteCups::modelloPiuGrandeDelFoglio()
{
    FoglioDiProva foglio;
    foglio.ConCornice({50, 50, 100, 100}, 1);
    foglio.ConCornice({100, 160, 240, 350}, 1); // goes far beyond A4
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("fuori"), 235, 340);
    const LettorePdf pdf = Stampa(foglio);
    constexpr QPointF angolo = CodaDiStampa::AngoloStampabile;
    const QRectF quadro =
        pdf.Inchiostro(QRectF(angolo + QPointF(45, 45), QSizeF(110, 110))).translated(-angolo);
    QVERIFY2(Vicini(quadro, QRectF(50, 50, 100.3, 100.3)), Testo(quadro));
    QCOMPARE(foglio.Avvisi, (QStringList{QStringLiteral("x"), QStringLiteral("y")}));
    QVERIFY(Vicini(pdf.Foglio().width(), 210, 0.3));
    QCOMPARE(pdf.Pagine(), 1);
}

void tst_StampanteCups::immagineMancante()
{
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("resto"), 10, 10);
    foglio.ConImmagine(QStringLiteral("manca.jpg"), {}, {10, 30, 10, 10});
    foglio.ConImmagine(QStringLiteral("c.bmp"), InFormato(Tinta({9, 9}, 0), "bmp"),
                       {50, 30, 10, 10});
    const LettorePdf pdf = Stampa(foglio);
    QCOMPARE(foglio.Avvisi.size(), 1);
    QVERIFY(foglio.Avvisi.first().startsWith(QLatin1String("StampaImmagine: ")));
    QVERIFY(foglio.Avvisi.first().contains(QLatin1String("ERRORE 53")));
    constexpr QPointF angolo = CodaDiStampa::AngoloStampabile;
    QVERIFY(!pdf.Inchiostro(QRectF(angolo + QPointF(10, 10), QSizeF(20, 5))).isEmpty());
    QCOMPARE(pdf.Colore(60, 40), qRgb(0, 0, 0));
}

void tst_StampanteCups::retino()
{
    const auto stampante = Stampanti::Predefinita();
    StampaRetino(*stampante);
    const LettorePdf pdf = UnicoFoglio();
    constexpr QPointF angolo = CodaDiStampa::AngoloStampabile;
    // The grid lines at 20 and at 180 mm, and the numbered tick at 100 mm.
    for (const double x : {20.0, 180.0}) {
        const QRectF linea =
            pdf.Inchiostro(QRectF(angolo + QPointF(x - 2, 32), QSizeF(4, 4))).translated(-angolo);
        QVERIFY2(Vicini(linea.center().x(), x), Testo(linea));
    }
    const QRectF tacca =
        pdf.Inchiostro(QRectF(angolo + QPointF(99, 1), QSizeF(2, 1))).translated(-angolo);
    QVERIFY2(Vicini(tacca.center().x(), 100), Testo(tacca));
}

void tst_StampanteCups::nomeDelLavoro()
{
    FoglioDiProva foglio;
    foglio.Aperto.NomeFile = QStringLiteral("Fattura 2026.Mod");
    const auto stampante = Stampanti::Predefinita();
    StampaModello(foglio.Aperto, foglio.Cartella(), *stampante, false, [](const QString &) {});
    QVERIFY(coda_->Fogli().value(0).contains(QLatin1String("Fattura")));
}

QTEST_MAIN(tst_StampanteCups)
#include "tst_StampanteCups.moc"
