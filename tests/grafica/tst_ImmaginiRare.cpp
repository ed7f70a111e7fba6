#include "grafica/Immagini.h"

#include "base/ErroreSistema.h"
#include "support/Errori.h"
#include "support/ImmaginiDiProva.h"
#include "support/ImmaginiRare.h"
#include "support/Tempi.h"

#include <QBuffer>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace ImmaginiRare;

namespace {

constexpr double Secondo = 1000; // ms
constexpr int Grande = 65'533;   ///< bytes that a segment holds at most

bool Simili(QRgb a, QRgb b)
{
    constexpr int Scarto = 6;
    return qAbs(qRed(a) - qRed(b)) <= Scarto && qAbs(qGreen(a) - qGreen(b)) <= Scarto &&
           qAbs(qBlue(a) - qBlue(b)) <= Scarto;
}

QByteArray Progressiva(const QImage &immagine)
{
    QByteArray byte;
    QBuffer uscita(&byte);
    QImageWriter scrittore(&uscita, "jpeg");
    scrittore.setProgressiveScanWrite(true);
    scrittore.setQuality(90);
    return scrittore.write(immagine) ? byte : QByteArray();
}

/// Something of everything: slopes, edges and noise.
QImage Fotografia(const QSize &pixel)
{
    QImage immagine(pixel, QImage::Format_RGB32);
    quint32 seme = 7;
    for (int y = 0; y < pixel.height(); ++y) {
        for (int x = 0; x < pixel.width(); ++x) {
            seme = seme * 1664525 + 1013904223;
            const int rumore = int(seme >> 27);
            immagine.setPixel(x, y,
                              qRgb((x * 5 + rumore) % 256, (y * 3 + rumore) % 256,
                                   (x / 7 + y / 9) % 2 * 200 + rumore));
        }
    }
    return immagine;
}

/// True when the picture is refused for its size, and the message says so.
bool DettaTroppoGrande(const QString &percorso)
{
    try {
        Immagini::CaricaScalata(percorso, {600, 800});
    } catch (const Immagini::TroppoGrande &errore) {
        return errore.Messaggio() == QLatin1String("errore 481 Immagine troppo grande");
    } catch (const ErroreSistema &) { // any other has been judged by its data
    }
    return false;
}

} // namespace

class tst_ImmaginiRare : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void SiLegge_data();
    void SiLegge();
    void JpegDi139Megapixel();
    void JpegTagliatoOvunqueRifiutato_data();
    void JpegTagliatoOvunqueRifiutato();
    void BmpTagliatoNeiPixelRifiutato();
    void AlfaDatoRimane();
    void GifOltreIPixelMassimi();
    void InchiostriDirittiOltreIPixelMassimi();
    void JpegDiTroppeScansioni();
    void JpegOltreICoefficientiMassimi_data();
    void JpegOltreICoefficientiMassimi();
    void MoltoPrimaDeiPixel();
    void EntroUnSecondo_data();
    void EntroUnSecondo();

private:
    QString Scrivi(const QByteArray &byte)
    {
        return ImmaginiDiProva::Scrive(dir_.filePath(QStringLiteral("rara")), byte);
    }

    QTemporaryDir dir_;
};

void tst_ImmaginiRare::initTestCase()
{
    // The decoder comments on every damaged file that these tests feed it.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false"));
}

void tst_ImmaginiRare::SiLegge_data()
{
    QTest::addColumn<QByteArray>("byte");
    for (const Rara &rara : Tutte()) {
        QTest::newRow(rara.Nome) << rara.Byte;
    }
}

void tst_ImmaginiRare::SiLegge()
{
    QFETCH(QByteArray, byte);
    const QString percorso = Scrivi(byte);
    const QImage intera = Immagini::Carica(percorso);
    QCOMPARE(intera.size(), Pixel);
    QVERIFY(!intera.hasAlphaChannel());
    for (int x = 0; x < Pixel.width(); x += 41) {
        QVERIFY2(Simili(intera.pixel(x, 2), ColoreSopra), "above");
        QVERIFY2(Simili(intera.pixel(x, 39), ColoreSotto), "below");
    }
    const QImage piccola = Immagini::CaricaScalata(percorso, {4, 4});
    QVERIFY(Simili(piccola.pixel(1, 0), ColoreSopra) && Simili(piccola.pixel(1, 3), ColoreSotto));
    QVERIFY(Immagini::DimensioniNaturali(percorso).height() > 0);
}

void tst_ImmaginiRare::JpegDi139Megapixel()
{
    const QString percorso = Scrivi(JpegA1200PuntiPerPollice());
    const QSizeF misura = Immagini::DimensioniNaturali(percorso);
    QCOMPARE(qRound(misura.width() * 96 / 25.4), 9921);
    QCOMPARE(qRound(misura.height() * 96 / 25.4), 14031);
    const TempoDiLavoro tempo;
    const QImage anteprima = Immagini::CaricaScalata(percorso, {800, 1130});
    QVERIFY2(tempo.Entro(Secondo), qPrintable(QString::number(tempo.MilliSecondi())));
    QCOMPARE(anteprima.size(), QSize(800, 1130));
    QVERIFY(Simili(anteprima.pixel(400, 20), ColoreSopra));
    QVERIFY(Simili(anteprima.pixel(400, 1110), ColoreSotto));
    // At the resolution of paper, and where more than that is asked for.
    QCOMPARE(Immagini::CaricaEntro(percorso, {4960, 7016}).Immagine.size(), QSize(4960, 7016));
    const QImage massima = Immagini::CaricaEntro(percorso, {100'000, 100'000}).Immagine;
    QVERIFY(massima.width() >= 4960 && massima.width() < 9921);
}

void tst_ImmaginiRare::JpegTagliatoOvunqueRifiutato_data()
{
    QTest::addColumn<QByteArray>("byte");
    const QImage foto = Fotografia({45, 33});
    QTest::newRow("a colori") << ImmaginiDiProva::InFormato(foto, "jpeg");
    QTest::newRow("grigio") << ImmaginiDiProva::InFormato(
        foto.convertToFormat(QImage::Format_Grayscale8), "jpeg");
    QTest::newRow("progressivo") << Progressiva(foto);
    QTest::newRow("progressivo grigio")
        << Progressiva(foto.convertToFormat(QImage::Format_Grayscale8));
}

void tst_ImmaginiRare::JpegTagliatoOvunqueRifiutato()
{
    QFETCH(QByteArray, byte);
    QVERIFY(byte.endsWith("\xFF\xD9"));
    const qsizetype pixel = byte.size() - 2;
    for (qsizetype n = 0; n < pixel; ++n) {
        QCOMPARE(ErroreDi([&] { Immagini::Carica(Scrivi(byte.left(n))); }),
                 ErroreSistema::ImmagineNonValida);
    }
    const QImage intera = Immagini::Carica(Scrivi(byte));
    QCOMPARE(Immagini::Carica(Scrivi(byte.left(pixel))), intera);
    QCOMPARE(Immagini::Carica(Scrivi(byte.left(pixel + 1))), intera);
}

void tst_ImmaginiRare::BmpTagliatoNeiPixelRifiutato()
{
    const QByteArray byte = Tutte().at(5).Byte; // without the padding of its last row
    QVERIFY(!Immagini::Carica(Scrivi(byte)).isNull());
    for (qsizetype n = 0; n < byte.size(); n += n < byte.size() - 20 ? 13 : 1) {
        QCOMPARE(ErroreDi([&] { Immagini::Carica(Scrivi(byte.left(n))); }),
                 ErroreSistema::ImmagineNonValida);
    }
}

void tst_ImmaginiRare::AlfaDatoRimane()
{
    QByteArray byte = Tutte().at(3).Byte;
    byte[byte.size() - 1] = '\x80'; // one pixel that is not wholly transparent
    const QImage letta = Immagini::Carica(Scrivi(byte));
    QVERIFY(letta.hasAlphaChannel());
    QCOMPARE(qAlpha(letta.pixel(41, 0)), 0x80);
    QCOMPARE(qAlpha(letta.pixel(0, 0)), 0);
}

void tst_ImmaginiRare::GifOltreIPixelMassimi()
{
    QByteArray byte = ImmaginiDiProva::GifTrasparente();
    const auto troppoGrande = [&](quint16 lato) {
        qToLittleEndian(lato, byte.data() + 6);
        qToLittleEndian(lato, byte.data() + 8);
        return DettaTroppoGrande(Scrivi(byte + QByteArray(100'000, '\0')));
    };
    QVERIFY(!troppoGrande(7745));
    QVERIFY(troppoGrande(7746)); // 60,000,516 pixels
}

void tst_ImmaginiRare::InchiostriDirittiOltreIPixelMassimi()
{
    // Decoded twice, so half as many as of other JPEGs: an A4 at 1200 dots per inch still.
    const QString percorso = Scrivi(JpegDiUnaScansione({12'247, 12'247}, 4, 4, false));
    QVERIFY(!DettaTroppoGrande(percorso));
    const TempoDiLavoro tempo;
    QVERIFY(!Immagini::CaricaEntro(percorso, {4960, 7016}).Immagine.isNull());
    QVERIFY2(tempo.Entro(Secondo), qPrintable(QString::number(tempo.MilliSecondi())));
    QVERIFY(DettaTroppoGrande(Scrivi(JpegDiUnaScansione({12'248, 12'248}, 4, 4, false))));
    QVERIFY(!DettaTroppoGrande(Scrivi(JpegDiUnaScansione({12'248, 12'248}, 3, 3, false))));
}

void tst_ImmaginiRare::JpegDiTroppeScansioni()
{
    QVERIFY(!DettaTroppoGrande(Scrivi(JpegDiScansioni({4800, 4800}, 63))));
    QVERIFY(DettaTroppoGrande(Scrivi(JpegDiScansioni({4842, 4842}, 63)))); // 1,500,477,696 pixels
    // More scans than any program writes: no picture in earnest.
    QVERIFY(!DettaTroppoGrande(Scrivi(JpegDiScansioni({64, 64}, 64))));
}

void tst_ImmaginiRare::JpegOltreICoefficientiMassimi_data()
{
    // Together with its place in the memory of a page, what the decoder keeps until the last scan.
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<bool>("oltre");
    QTest::newRow("progressivo") << JpegDiUnaScansione({8192, 16384}, 1, 1, true) << false;
    QTest::newRow("progressivo, oltre") << JpegDiUnaScansione({8192, 16385}, 1, 1, true) << true;
    QTest::newRow("progressivo A4 a 1200 punti per pollice")
        << JpegDiScansioni({9921, 14031}, 9) << true;
    QTest::newRow("di un componente su tre")
        << JpegDiUnaScansione({6688, 6688}, 3, 1, false) << false;
    QTest::newRow("di un componente su tre, oltre")
        << JpegDiUnaScansione({6689, 6689}, 3, 1, false) << true;
    QTest::newRow("di tre componenti su tre")
        << JpegDiUnaScansione({8192, 8192}, 3, 3, false) << false;
    QByteArray aritmetico = JpegDiUnaScansione({8192, 16385}, 1, 1, true);
    QTest::newRow("progressivo di codici aritmetici, oltre")
        << aritmetico.replace("\xFF\xC2", "\xFF\xCA") << true;
}

void tst_ImmaginiRare::JpegOltreICoefficientiMassimi()
{
    QFETCH(QByteArray, byte);
    QFETCH(bool, oltre);
    const QString percorso = Scrivi(byte);
    QCOMPARE(ErroreDi([&] {
                 Immagini::CaricaEntro(percorso, {600, 800});
             }) == ErroreSistema::ImmagineNonValida,
             oltre);
}

void tst_ImmaginiRare::MoltoPrimaDeiPixel()
{
    // A telephone's picture carries another one in its head; nothing carries a hundred.
    for (const char marcatore : {'\xE1', '\xE2', '\xED', '\xFE'}) {
        QVERIFY(
            !Immagini::Carica(Scrivi(JpegDiSegmenti(7'000'000, marcatore, true, Grande))).isNull());
        const QString smisurato = Scrivi(JpegDiSegmenti(9'000'000, marcatore, true, Grande));
        QCOMPARE(ErroreDi([&] { Immagini::DimensioniNaturali(smisurato); }),
                 ErroreSistema::ImmagineNonValida);
        QCOMPARE(ErroreDi([&] { Immagini::Carica(smisurato); }), ErroreSistema::ImmagineNonValida);
    }
}

void tst_ImmaginiRare::EntroUnSecondo_data()
{
    QTest::addColumn<QByteArray>("byte");
    for (const int byte : {410'000, 810'000, 5'000'000}) {
        QTest::addRow("%d byte di segmenti vuoti", byte) << JpegDiSegmenti(byte, '\xE1', true);
        QTest::addRow("%d byte di segmenti in coda", byte) << JpegDiSegmenti(byte, '\xE1', false);
        QTest::addRow("%d byte di commenti vuoti", byte) << JpegDiSegmenti(byte, '\xFE', true);
        QTest::addRow("%d byte di GIF che si srotola", byte) << GifCheSiSrotola(byte);
    }
    for (const char marcatore : {'\xE1', '\xE2', '\xED', '\xFE'}) {
        for (const int byte : {6'000'000, 63'800'000}) {
            QTest::addRow("%d byte di grandi segmenti %x", byte, quint8(marcatore))
                << JpegDiSegmenti(byte, marcatore, true, Grande);
        }
        QTest::addRow("grandi segmenti %x in coda", quint8(marcatore))
            << JpegDiSegmenti(63'800'000, marcatore, false, Grande);
    }
    QTest::newRow("4000 segmenti") << JpegDiSegmenti(16'000, '\xE1', true);
    QTest::newRow("64 scansioni di 18 megapixel") << JpegDiScansioni({4240, 4240}, 63);
    QTest::newRow("64 scansioni di 140 megapixel") << JpegDiScansioni({11832, 11832}, 63);
    QTest::newRow("10 scansioni di 140 megapixel") << JpegDiScansioni({11832, 11832}, 9);
    QTest::newRow("289 megapixel a colori, una scansione progressiva")
        << JpegDiUnaScansione({17000, 17000}, 3, 3, true);
    QTest::newRow("289 megapixel a colori, scansione d'un solo componente")
        << JpegDiUnaScansione({17000, 17000}, 3, 1, false);
    QTest::newRow("135 megapixel, una scansione progressiva")
        << JpegDiUnaScansione({11600, 11600}, 1, 1, true);
    QTest::newRow("289 megapixel di inchiostri diritti")
        << JpegDiUnaScansione({17000, 17000}, 4, 4, false);
    const QByteArray gif = ImmaginiDiProva::GifTrasparente();
    QTest::newRow("GIF di commenti d'un byte") << gif.left(19) + QByteArray("\x21\xFE") +
                                                      QByteArray("\1a").repeated(2'500'000) +
                                                      QByteArray(1, '\0') + gif.mid(19);
    QByteArray rle = ImmaginiDiProva::InFormato(
        ImmaginiDiProva::Tinta({8, 8}, 0).convertToFormat(QImage::Format_Indexed8), "bmp");
    rle[30] = 1;
    QTest::newRow("BMP di pixel che nessuno conta") << ImmaginiRare::BmpSmisurato();
    QTest::newRow("BMP di salti vuoti") << rle + QByteArray("\0\2\0\0", 4).repeated(15'000'000);
}

void tst_ImmaginiRare::EntroUnSecondo()
{
    QFETCH(QByteArray, byte);
    const QString percorso = Scrivi(byte);
    const TempoDiLavoro misura;
    ErroreDi([&] { Immagini::DimensioniNaturali(percorso); });
    QVERIFY2(misura.Entro(Secondo), qPrintable(QString::number(misura.MilliSecondi())));
    const TempoDiLavoro tempo;
    const int errore = ErroreDi([&] { Immagini::CaricaScalata(percorso, {600, 800}); });
    QVERIFY2(tempo.Entro(Secondo), qPrintable(QString::number(tempo.MilliSecondi())));

    QVERIFY(errore == 0 || errore == ErroreSistema::ImmagineNonValida);
}

QTEST_MAIN(tst_ImmaginiRare)
#include "tst_ImmaginiRare.moc"
