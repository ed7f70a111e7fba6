#include "FoglioDiProva.h"

#include "support/Aperture.h"
#include "support/ImmaginiRare.h"

#include <QFileInfo>
#include <QPainter>
#include <QTest>

#include <cmath>

using namespace ImmaginiDiProva;
using ImmaginiRare::JpegABlocchi;

namespace {

constexpr double PuntiPerMillimetro = 600 / 25.4;

/// How alike two pictures are, dB; beyond some 38 no eye tells them apart.
double Somiglianza(const QImage &a, const QImage &b)
{
    double quadrati = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb uno = a.pixel(x, y);
            const QRgb altro = b.pixel(x, y);
            for (const int scarto : {qRed(uno) - qRed(altro), qGreen(uno) - qGreen(altro),
                                     qBlue(uno) - qBlue(altro)}) {
                quadrati += scarto * scarto;
            }
        }
    }
    const double medio = quadrati / (3.0 * a.width() * a.height());
    return 10 * std::log10(255.0 * 255.0 / std::max(medio, 1e-9));
}

} // namespace

/// How picture files go onto the page: as fine, as faithfully and as cheaply as it takes.
class tst_FigureSuCarta : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fotografiaComeJpeg_data();
    void fotografiaComeJpeg();
    void logoConISuoiColori_data();
    void logoConISuoiColori();
    void grigioComeJpeg();
    void disegnoSenzaPerdita_data();
    void disegnoSenzaPerdita();
    void maiPiuFineDelNecessario();
    void stessaFiguraUnaVoltaNelDocumento();
    void seiMisureUnaSolaLettura();
    void scansioniSovrapposteLettePocheVolte();
    void piccolaPrimaDellaGrande();
    void ripetutaFraMolteLettaUnaVolta();
    void figuraGuastaDettaPerOgniElemento();
    void disegnoGrandeIntero();
    void ogniPixelDelDisegno_data();
    void ogniPixelDelDisegno();
    void biancoFuoriDalDocumento();

private:
    QByteArray scansione_;
};

void tst_FigureSuCarta::initTestCase()
{
    scansione_ = InFormato(ModuloA4(), "jpeg", 600);
}

void tst_FigureSuCarta::fotografiaComeJpeg_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QSize>("pixel");
    QTest::newRow("small") << QStringLiteral("foto.jpg") << QSize(160, 160);
    QTest::newRow("odd size") << QStringLiteral("foto.jpg") << QSize(161, 97);
    QTest::newRow("large") << QStringLiteral("foto.jpg") << QSize(1200, 900);
    QTest::newRow("by its bytes, not its name") << QStringLiteral("foto.bmp") << QSize(160, 160);
}

void tst_FigureSuCarta::fotografiaComeJpeg()
{
    QFETCH(QString, nome);
    QFETCH(QSize, pixel);
    for (unsigned seme = 1; seme <= 7; ++seme) {
        FoglioDiProva foglio;
        const QByteArray byte = InFormato(Fotografia(pixel, seme), "jpeg");
        foglio.ConImmagine(nome, byte, {20, 20, 100, 80});
        const LettorePdf pdf = foglio.Stampa();
        QCOMPARE(foglio.Avvisi, QStringList());
        QCOMPARE(pdf.Codifiche(), QStringList{QStringLiteral("jpeg")});
        const QImage stampata = pdf.Immagine(0);
        QCOMPARE(stampata.size(), pixel);
        const double somiglianza = Somiglianza(stampata, QImage::fromData(byte, "jpeg"));
        QVERIFY2(somiglianza > 38, qPrintable(QString::number(somiglianza)));
    }
}

void tst_FigureSuCarta::logoConISuoiColori_data()
{
    QTest::addColumn<QByteArray>("byte");
    const auto colorato = [](int componente, int colonna, int riga) {
        return componente == 0 ? 120 : 40 + (colonna * (3 + componente) + riga * 5) * 37 % 176;
    };
    QTest::newRow("a colour to each pixel") << JpegABlocchi({320, 200}, 3, colorato);
    QTest::newRow("a colour to each pixel, large") << JpegABlocchi({2400, 1800}, 3, colorato);
    for (const QSize &pixel : {QSize(60, 40), QSize(160, 160), QSize(1000, 700)}) {
        for (const char *testo : {"A", "Vastrel", "Rosso e blu"}) {
            QTest::addRow("%d pixels, %s", pixel.width(), testo)
                << InFormato(Disegno(pixel, QString::fromLatin1(testo)), "jpeg");
        }
    }
}

void tst_FigureSuCarta::logoConISuoiColori()
{
    QFETCH(QByteArray, byte);
    FoglioDiProva foglio;
    foglio.ConImmagine(QStringLiteral("logo.jpg"), byte, {5, 5, 200, 280});
    const LettorePdf pdf = foglio.Stampa();
    const QImage logo = QImage::fromData(byte, "jpeg");
    int prima = 0;
    for (int k = 0; k < pdf.Immagini(); ++k) {
        // A large one is handed over in parts, each with a row of the next.
        const QImage parte = pdf.Immagine(k);
        const QImage attesa = logo.copy(0, prima, logo.width(), parte.height());
        const double somiglianza = Somiglianza(parte, attesa);
        QVERIFY2(somiglianza > 38, qPrintable(QString::number(somiglianza)));
        QCOMPARE(pdf.Codifiche().at(k), QStringLiteral("image"));
        QCOMPARE(parte, attesa.convertToFormat(parte.format()));
        prima += parte.height() - 1;
    }
    QCOMPARE(prima, logo.height() - 1);
}

void tst_FigureSuCarta::grigioComeJpeg()
{
    // A scan without colours has none to lose, whatever place its file has for them.
    FoglioDiProva foglio;
    const QByteArray byte = JpegABlocchi({800, 600}, 3, [](int componente, int colonna, int riga) {
        return componente == 0 ? 30 + (colonna * 7 + riga * 5) * 37 % 200 : 128;
    });
    foglio.ConImmagine(QStringLiteral("modulo.jpg"), byte, {5, 5, 100, 75});
    QCOMPARE(foglio.Stampa().Codifiche(), QStringList{QStringLiteral("jpeg")});
}

void tst_FigureSuCarta::disegnoSenzaPerdita_data()
{
    QTest::addColumn<QByteArray>("formato");
    QTest::addColumn<QString>("nome");
    QTest::newRow("BMP") << QByteArray("bmp") << QStringLiteral("disegno.bmp");
    QTest::newRow("BMP named like a photograph") << QByteArray("bmp") << QStringLiteral("a.jpg");
}

void tst_FigureSuCarta::disegnoSenzaPerdita()
{
    QFETCH(QByteArray, formato);
    QFETCH(QString, nome);
    FoglioDiProva foglio;
    const QImage disegno = Disegno({320, 200}, QStringLiteral("Vastrel"));
    foglio.ConImmagine(nome, InFormato(disegno, formato.constData()), {20, 20, 100, 80});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Codifiche(), QStringList{QStringLiteral("image")});
    QCOMPARE(pdf.Immagine(0), disegno);
}

void tst_FigureSuCarta::maiPiuFineDelNecessario()
{
    FoglioDiProva foglio;
    const QByteArray foto = InFormato(Fotografia({1000, 800}, 3), "jpeg");
    const QByteArray disegno = InFormato(Disegno({1000, 800}, QStringLiteral("X")), "bmp");
    foglio.ConImmagine(QStringLiteral("f.jpg"), foto, {10, 10, 20, 16});
    foglio.ConImmagine(QStringLiteral("d.bmp"), disegno, {50, 10, 20, 16});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Immagini(), 2);
    const QSize atteso(qRound(20 * PuntiPerMillimetro), qRound(16 * PuntiPerMillimetro));
    for (int k = 0; k < 2; ++k) {
        QCOMPARE(pdf.Immagine(k).size(), atteso);
    }
}

void tst_FigureSuCarta::stessaFiguraUnaVoltaNelDocumento()
{
    FoglioDiProva foglio;
    const QByteArray byte = InFormato(Fotografia({300, 300}, 1), "jpeg");
    foglio.ConImmagine(QStringLiteral("f.jpg"), byte, {10, 10, 20, 20});
    const LettorePdf uno = foglio.Stampa();
    const qint64 sola = QFileInfo(foglio.Pdf()).size();
    for (int i = 1; i < 20; ++i) {
        const int riga = i / 5;
        foglio.ConImmagine(QStringLiteral("f.jpg"), {}, {i % 5 * 40.0, riga * 40.0, 20.0 + i, 20});
    }
    foglio.Stampa();
    QVERIFY(QFileInfo(foglio.Pdf()).size() < sola + byte.size() / 4);
}

void tst_FigureSuCarta::seiMisureUnaSolaLettura()
{
    FoglioDiProva foglio;
    for (const QRectF &posto : SeiPosti()) {
        foglio.ConImmagine(
            QStringLiteral("s.jpg"),
            foglio.Aperto.UltimoSlot(Genere::Immagine) == 0 ? scansione_ : QByteArray(), posto);
    }
    const Aperture aperture(foglio.Cartella() + QStringLiteral("s.jpg"));
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(aperture.Nuove(), 1);
    QCOMPARE(foglio.Avvisi, QStringList());
    for (const QRectF &posto : SeiPosti()) {
        const QRectF inchiostro =
            pdf.Inchiostro(posto.adjusted(-0.5, -0.5, 0.5, 0.5), [](QRgb) { return true; });
        QVERIFY(!inchiostro.isEmpty());
        // The printed boxes of the form stand where they stand on the scan: 700 pixels apart.
        const double linea = posto.x() + posto.width() * 704 / 4960;
        const double fra = posto.x() + posto.width() * 1050 / 4960;
        const double y = posto.y() + posto.height() * 250 / 7016;
        QVERIFY2(qGray(pdf.Colore(linea, y)) < 140, Testo(posto));
        QVERIFY2(qGray(pdf.Colore(fra, y)) > 220, Testo(posto));
    }
}

void tst_FigureSuCarta::scansioniSovrapposteLettePocheVolte()
{
    // The page is computed in two parts, and only one scan has a place in memory beside one.
    FoglioDiProva foglio;
    foglio.ConImmagine(QStringLiteral("a.jpg"), scansione_, {0, 0, 210, 297});
    foglio.ConImmagine(QStringLiteral("b.jpg"), scansione_, {0, 0, 210, 297});
    const Aperture prima(foglio.Cartella() + QStringLiteral("a.jpg"));
    const Aperture seconda(foglio.Cartella() + QStringLiteral("b.jpg"));
    foglio.Stampa();
    QCOMPARE(foglio.Avvisi, QStringList());
    QCOMPARE(prima.Nuove(), 2);
    QCOMPARE(seconda.Nuove(), 2);
}

void tst_FigureSuCarta::piccolaPrimaDellaGrande()
{
    // The first use must not settle how fine the second one is.
    FoglioDiProva foglio;
    const QByteArray byte = InFormato(Fotografia({1600, 1600}, 2), "jpeg");
    foglio.ConImmagine(QStringLiteral("f.jpg"), byte, {10, 10, 10, 10});
    foglio.ConImmagine(QStringLiteral("f.jpg"), {}, {30, 30, 60, 60});
    const Aperture aperture(foglio.Cartella() + QStringLiteral("f.jpg"));
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(aperture.Nuove(), 1);
    int maggiore = 0;
    for (int k = 0; k < pdf.Immagini(); ++k) {
        maggiore = std::max(maggiore, pdf.Immagine(k).width());
    }
    QCOMPARE(maggiore, qRound(60 * PuntiPerMillimetro));
}

void tst_FigureSuCarta::ripetutaFraMolteLettaUnaVolta()
{
    // It is the largest of them and the one least lately used, but its second use is foreseen.
    FoglioDiProva foglio;
    const QString ripetuta = QStringLiteral("a.bmp");
    foglio.ConImmagine(ripetuta, InFormato(Disegno({300, 300}, QStringLiteral("A")), "bmp"),
                       {5, 5, 20, 20});
    for (int k = 0; k < 60; ++k) {
        const int riga = k / 8;
        foglio.ConImmagine(QStringLiteral("%1.bmp").arg(k),
                           InFormato(Fotografia({200, 200}, unsigned(k)), "bmp"),
                           {5.0 + k % 8 * 25, 30.0 + riga * 25, 20, 20});
    }
    foglio.ConImmagine(ripetuta, {}, {100, 250, 20, 20});
    const Aperture aperture(foglio.Cartella() + ripetuta);
    foglio.Stampa();
    QCOMPARE(foglio.Avvisi, QStringList());
    QCOMPARE(aperture.Nuove(), 1);
}

void tst_FigureSuCarta::figuraGuastaDettaPerOgniElemento()
{
    FoglioDiProva foglio;
    QByteArray byte = InFormato(Fotografia({100, 100}, 1), "jpeg");
    foglio.ConImmagine(QStringLiteral("f.jpg"), byte.left(byte.size() / 2), {10, 10, 10, 10});
    foglio.ConImmagine(QStringLiteral("manca.bmp"), {}, {10, 10, 10, 10});
    foglio.ConImmagine(QStringLiteral("f.jpg"), {}, {30, 30, 60, 60});
    foglio.ConImmagine(QStringLiteral("buona.bmp"), InFormato(Tinta({4, 4}, 0), "bmp"),
                       {100, 100, 20, 20});
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(foglio.Avvisi.size(), 3);
    QVERIFY(foglio.Avvisi.at(0).contains(QStringLiteral("ERRORE 481 ")));
    QVERIFY(foglio.Avvisi.at(1).contains(QStringLiteral("ERRORE 53 ")));
    QVERIFY(foglio.Avvisi.at(2).contains(QStringLiteral("ERRORE 481 ")));
    QVERIFY(foglio.Avvisi.at(2).contains(QStringLiteral("x,y=30,30")));
    QCOMPARE(pdf.Colore(110, 110), qRgb(0, 0, 0));
}

void tst_FigureSuCarta::disegnoGrandeIntero()
{
    // Large enough to be handed to the printer in parts: no row is lost, doubled or moved.
    FoglioDiProva foglio;
    QImage rigato(2500, 4000, QImage::Format_RGB32);
    for (int y = 0; y < rigato.height(); ++y) {
        std::fill_n(reinterpret_cast<QRgb *>(rigato.scanLine(y)), rigato.width(),
                    qRgb(y / 100 * 6, 0, 255 - y / 100 * 6));
    }
    const QRectF posto(10, 10, 125, 200);
    foglio.ConImmagine(QStringLiteral("r.bmp"), InFormato(rigato, "bmp"), posto);
    const LettorePdf pdf = foglio.Stampa();
    const QRectF inchiostro = pdf.Inchiostro();
    QVERIFY2(Vicini(inchiostro, posto), Testo(inchiostro));
    for (int banda = 0; banda < 40; ++banda) {
        for (const double y : {0.3, 2.5, 4.7}) {
            QCOMPARE(pdf.Colore(70, posto.y() + banda * 5 + y),
                     qRgb(banda * 6, 0, 255 - banda * 6));
        }
    }
}

void tst_FigureSuCarta::ogniPixelDelDisegno_data()
{
    QTest::addColumn<QImage>("disegno");
    constexpr QSize Pixel(100, 75);
    const QImage bianco = Tinta(Pixel, qRgb(255, 255, 255));
    QTest::newRow("all white") << bianco;
    for (const QPoint &punto : {QPoint(0, 0), QPoint(99, 74), QPoint(37, 41)}) {
        for (const QRgb colore : {qRgb(0, 0, 0), qRgb(200, 30, 90), qRgb(255, 255, 254)}) {
            QImage immagine = bianco;
            immagine.setPixel(punto, colore);
            QTest::addRow("one pixel at %d,%d of %06X", punto.x(), punto.y(), colore & 0xFFFFFF)
                << immagine;
        }
    }
    QImage mono = bianco;
    QImage strisce = bianco;
    for (int k = 0; k < 60; ++k) {
        mono.setPixel(20 + k % 30, 10 + k * 7 % 50, qRgb(0, 0, 0));
        strisce.setPixel(k, 2, qRgb(k, 0, 99));
        strisce.setPixel(99 - k, 72, qRgb(0, 0, 0));
    }
    QTest::newRow("black and white") << mono;
    QTest::newRow("stripes far apart") << strisce;
    QTest::newRow("drawing") << Disegno(Pixel, QStringLiteral("Vastrel"));
}

void tst_FigureSuCarta::ogniPixelDelDisegno()
{
    QFETCH(QImage, disegno);
    // A pixel is a fifth of a millimetre: its middle is its own in any viewer.
    constexpr double Passo = 0.2;
    FoglioDiProva foglio;
    const QPointF angolo(30, 40);
    foglio.ConImmagine(QStringLiteral("d.bmp"), InFormato(disegno, "bmp"),
                       {angolo, QSizeF(disegno.size()) * Passo});
    // The one on its own, and another where a coloured bar lies across it.
    const QPointF incontro(30, 100);
    foglio.ConImmagine(QStringLiteral("d.bmp"), {}, {incontro, QSizeF(disegno.size()) * Passo});
    const QRectF barra(25, 104, 30, 0.9);
    const QRgb ciano = qRgb(0, 255, 255);
    foglio.ConCornice(barra, 2.9, 11);
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(foglio.Avvisi, QStringList());
    QCOMPARE(pdf.Colore(26, 104.4), ciano);
    for (int y = 0; y < disegno.height(); ++y) {
        for (int x = 0; x < disegno.width(); ++x) {
            const QPointF mezzo((x + 0.5) * Passo, (y + 0.5) * Passo);
            const QRgb pixel = disegno.pixel(x, y) | 0xFF000000;
            QCOMPARE(pdf.Colore(angolo.x() + mezzo.x(), angolo.y() + mezzo.y()), pixel);
            const double riga = incontro.y() + mezzo.y();
            const bool sulBordo =
                qAbs(riga - barra.top()) < Passo || qAbs(riga - barra.bottom()) < Passo;
            const bool sotto = riga > barra.top() && riga < barra.bottom();
            if (!sulBordo) {
                QCOMPARE(pdf.Colore(incontro.x() + mezzo.x(), riga), sotto ? pixel & ciano : pixel);
            }
        }
    }
}

void tst_FigureSuCarta::biancoFuoriDalDocumento()
{
    const auto inDocumento = [](const QImage &disegno) {
        FoglioDiProva foglio;
        foglio.ConImmagine(QStringLiteral("d.bmp"), InFormato(disegno, "bmp"), {20, 20, 100, 80});
        return foglio.Stampa().Forme();
    };
    const QImage bianco = Tinta({500, 400}, qRgb(255, 255, 255));
    QCOMPARE(inDocumento(bianco), QStringList());
    QImage logo = bianco;
    QPainter(&logo).fillRect(100, 50, 30, 20, QColor(200, 0, 0));
    QCOMPARE(inDocumento(logo), QStringList{QStringLiteral("32 22 rgb 8")});
    QPainter(&logo).fillRect(100, 50, 30, 20, Qt::black);
    QCOMPARE(inDocumento(logo), QStringList{QStringLiteral("32 22 gray 1")});
    // A line of it stands far below the rest.
    QPainter(&logo).fillRect(10, 399, 480, 1, Qt::blue);
    QCOMPARE(inDocumento(logo),
             (QStringList{QStringLiteral("32 22 gray 1"), QStringLiteral("482 2 rgb 8")}));
}

QTEST_MAIN(tst_FigureSuCarta)
#include "tst_FigureSuCarta.moc"
