#include "grafica/Immagini.h"

#include "base/ErroreSistema.h"
#include "support/ImmaginiDiProva.h"
#include "support/Tempi.h"

#include <QBuffer>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using namespace ImmaginiDiProva;

namespace {

int Errore(const std::function<void()> &azione)
{
    try {
        azione();
    } catch (const ErroreSistema &errore) {
        return errore.numero;
    }
    return 0;
}

bool Simili(QRgb a, QRgb b, int scarto = 4)
{
    return qAbs(qRed(a) - qRed(b)) <= scarto && qAbs(qGreen(a) - qGreen(b)) <= scarto &&
           qAbs(qBlue(a) - qBlue(b)) <= scarto;
}

/// A JPEG with the given segment right after its start marker, and without the JFIF one.
QByteArray ConSegmento(const QByteArray &jpeg, char marcatore, const QByteArray &segmento)
{
    const qsizetype jfif = 2 + 2 + (quint8(jpeg.at(4)) << 8 | quint8(jpeg.at(5)));
    const qsizetype lunghezza = segmento.size() + 2;
    QByteArray esito = jpeg.left(2);
    esito.append('\xFF').append(marcatore);
    esito.append(char(lunghezza >> 8)).append(char(lunghezza & 0xFF));
    return esito + segmento + jpeg.mid(jfif);
}

QByteArray Exif(quint16 unita, quint32 risoluzione)
{
    QByteArray esito("Exif\0\0II*\0\10\0\0\0\3\0", 16);
    const auto corto = [&](int v) { esito.append(char(v & 0xFF)).append(char(v >> 8)); };
    const auto lungo = [&](quint32 v) {
        corto(int(v & 0xFFFF));
        corto(int(v >> 16));
    };
    for (const int etichetta : {0x11A, 0x11B}) {
        corto(etichetta);
        corto(5);
        lungo(1);
        lungo(50);
    }
    corto(0x128);
    corto(3);
    lungo(1);
    lungo(unita);
    lungo(0); // no further directory
    lungo(risoluzione);
    lungo(1);
    return esito;
}

} // namespace

class tst_Immagini : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void naturale_data();
    void naturale();
    void jpegRuotato();
    void jpegCmyk();
    void gifPrimoFotogramma();
    void gifTrasparente();
    void gifConFotogrammaPiccolo();
    void scalata_data();
    void scalata();
    void entro();
    void percorsoInCartella();
    void scansione35Megapixel_data();
    void scansione35Megapixel();
    void nonEsiste();
    void nonValide_data();
    void nonValide();
    void bombe_data();
    void bombe();
    void troncata_data();
    void troncata();

private:
    QString Scrivi(const QByteArray &byte)
    {
        return Scrive(dir_.filePath(QStringLiteral("prova%1").arg(++numero_)), byte);
    }

    QTemporaryDir dir_;
    int numero_ = 0;
};

void tst_Immagini::initTestCase()
{
    // The decoder comments on every damaged file that these tests feed it.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*=false"));
}

void tst_Immagini::naturale_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<QSizeF>("millimetri");
    const QImage immagine = Tinta({600, 300}, qRgb(1, 2, 3));
    const QByteArray jpeg = InFormato(immagine, "jpeg", 300);

    QTest::newRow("bmp 300 dpi") << InFormato(immagine, "bmp", 300) << QSizeF(50.8, 25.4);
    QTest::newRow("jpeg 300 dpi") << jpeg << QSizeF(50.8, 25.4);
    QByteArray senza = jpeg;
    senza[13] = 0;
    QTest::newRow("jpeg without a unit: 96 dpi") << senza << QSizeF(158.75, 79.375);
    QByteArray centimetri = jpeg;
    centimetri.replace(13, 5, QByteArray("\2\0\100\0\200", 5));
    QTest::newRow("jpeg per centimetre, 64 x 128") << centimetri << QSizeF(600 / 6.4, 300 / 12.8);
    QByteArray uno = jpeg;
    uno.replace(13, 5, QByteArray("\1\0\1\0\1", 5));
    QTest::newRow("jpeg of 1 dot per inch: 96 dpi") << uno << QSizeF(158.75, 79.375);
    QTest::newRow("jpeg with EXIF only, inches")
        << ConSegmento(jpeg, '\xE1', Exif(2, 200)) << QSizeF(76.2, 38.1);
    QTest::newRow("jpeg with EXIF only, centimetres")
        << ConSegmento(jpeg, '\xE1', Exif(3, 100)) << QSizeF(60, 30);
    QTest::newRow("jpeg with a cut EXIF: 96 dpi")
        << ConSegmento(jpeg, '\xE1', Exif(2, 200).left(30)) << QSizeF(158.75, 79.375);
    QTest::newRow("gif: 96 dpi") << GifTrasparente() << QSizeF(4 * 25.4 / 96, 2 * 25.4 / 96);
    QByteArray bmp = InFormato(immagine, "bmp", 300);
    bmp.replace(38, 8, QByteArray(8, '\0'));
    QTest::newRow("bmp without resolution: 96 dpi") << bmp << QSizeF(158.75, 79.375);
}

void tst_Immagini::naturale()
{
    QFETCH(QByteArray, byte);
    QFETCH(QSizeF, millimetri);
    const QSizeF misura = Immagini::DimensioniNaturali(Scrivi(byte));
    QVERIFY2(qAbs(misura.width() - millimetri.width()) < 0.01 &&
                 qAbs(misura.height() - millimetri.height()) < 0.01,
             qPrintable(QStringLiteral("%1 x %2").arg(misura.width()).arg(misura.height())));
}

void tst_Immagini::jpegRuotato()
{
    QImage immagine = Tinta({64, 32}, qRgb(255, 255, 255));
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 16; ++x) {
            immagine.setPixel(x, y, qRgb(0, 0, 0)); // the stored left edge is dark
        }
    }
    QByteArray byte;
    QBuffer uscita(&byte);
    QImageWriter scrittore(&uscita, "jpeg");
    scrittore.setTransformation(QImageIOHandler::TransformationRotate90);
    QVERIFY(scrittore.write(immagine));
    const QString percorso = Scrivi(byte);

    const QSizeF misura = Immagini::DimensioniNaturali(percorso);
    QVERIFY(misura.height() > misura.width());
    const QImage letta = Immagini::Carica(percorso);
    QCOMPARE(letta.size(), QSize(32, 64));
    QVERIFY(Simili(letta.pixel(16, 2), qRgb(0, 0, 0))); // now at the top
    QVERIFY(Simili(letta.pixel(16, 60), qRgb(255, 255, 255)));
    const QImage piccola = Immagini::CaricaScalata(percorso, {8, 16});
    QCOMPARE(piccola.size(), QSize(8, 16));
    QVERIFY(qGray(piccola.pixel(4, 1)) < 40 && qGray(piccola.pixel(4, 14)) > 215);
}

void tst_Immagini::jpegCmyk()
{
    const QImage letta = Immagini::Carica(Scrivi(JpegCmyk()));
    QCOMPARE(letta.size(), QSize(8, 8));
    QVERIFY(Simili(letta.pixel(4, 4), qRgb(200, 100, 50)));
}

void tst_Immagini::gifPrimoFotogramma()
{
    const QImage letta = Immagini::Carica(Scrivi(GifAnimata()));
    QCOMPARE(letta.size(), QSize(3, 2));
    QCOMPARE(letta.pixel(1, 1), qRgb(0, 255, 0));
}

void tst_Immagini::gifTrasparente()
{
    const QImage letta = Immagini::Carica(Scrivi(GifTrasparente()));
    QVERIFY(letta.hasAlphaChannel());
    QCOMPARE(letta.pixel(0, 0), qRgb(255, 0, 0));
    QCOMPARE(qAlpha(letta.pixel(3, 1)), 0);
}

void tst_Immagini::gifConFotogrammaPiccolo()
{
    QByteArray byte = GifTrasparente();
    byte.replace(6, 4, QByteArray("\x60\0\x30\0", 4)); // a canvas of 96x48 around the 4x2 frame
    const QString percorso = Scrivi(byte);
    QCOMPARE(Immagini::Carica(percorso).size(), QSize(96, 48));
    const QSizeF misura = Immagini::DimensioniNaturali(percorso);
    QVERIFY(qAbs(misura.width() - 25.4) < 0.001 && qAbs(misura.height() - 12.7) < 0.001);
}

void tst_Immagini::scalata_data()
{
    QTest::addColumn<QByteArray>("formato");
    QTest::addColumn<QSize>("pixel");
    for (const char *formato : {"jpeg", "bmp"}) {
        QTest::addRow("%s smaller", formato) << QByteArray(formato) << QSize(33, 17);
        QTest::addRow("%s larger", formato) << QByteArray(formato) << QSize(777, 555);
        QTest::addRow("%s other shape", formato) << QByteArray(formato) << QSize(10, 300);
        QTest::addRow("%s one pixel", formato) << QByteArray(formato) << QSize(1, 1);
        QTest::addRow("%s same", formato) << QByteArray(formato) << QSize(400, 200);
    }
}

void tst_Immagini::scalata()
{
    QFETCH(QByteArray, formato);
    QFETCH(QSize, pixel);
    const QImage immagine = Tinta({400, 200}, qRgb(30, 160, 90));
    const QImage letta =
        Immagini::CaricaScalata(Scrivi(InFormato(immagine, formato.constData())), pixel);
    QCOMPARE(letta.size(), pixel);
    QCOMPARE(letta.format(), QImage::Format_RGB32);
    QVERIFY(Simili(letta.pixel(pixel.width() / 2, pixel.height() / 2), qRgb(30, 160, 90)));
}

void tst_Immagini::entro()
{
    for (const char *formato : {"jpeg", "bmp"}) {
        const QString percorso = Scrivi(InFormato(Tinta({400, 200}, qRgb(30, 160, 90)), formato));
        QCOMPARE(Immagini::CaricaEntro(percorso, {1000, 1000}).Immagine.size(), QSize(400, 200));
        QCOMPARE(Immagini::CaricaEntro(percorso, {1000, 50}).Immagine.size(), QSize(400, 50));
        const QImage piccola = Immagini::CaricaEntro(percorso, {40, 30}).Immagine;
        QCOMPARE(piccola.size(), QSize(40, 30));
        QVERIFY(Simili(piccola.pixel(20, 15), qRgb(30, 160, 90)));
    }
}

void tst_Immagini::percorsoInCartella()
{
    const QString cartella = dir_.path() + QLatin1Char('/');
    Scrive(cartella + QStringLiteral("LOGO.Bmp"), "x");
    QCOMPARE(Immagini::PercorsoInCartella(cartella, QStringLiteral("logo.bmp")),
             cartella + QStringLiteral("LOGO.Bmp"));
    QCOMPARE(Immagini::PercorsoInCartella(cartella, QStringLiteral("manca.bmp")),
             cartella + QStringLiteral("manca.bmp"));
    QCOMPARE(Immagini::PercorsoInCartella(cartella, QStringLiteral("manca/..\\\\LOGO.bmp")),
             cartella + QStringLiteral("LOGO.Bmp"));
    QCOMPARE(
        Errore([&] { Immagini::PercorsoInCartella(cartella, QStringLiteral("a") + QChar::Null); }),
        ErroreSistema::FileNonTrovato);
    for (const char *nome : {"", "..", "../a.bmp", "..\\a.bmp", "x/../../a.bmp", ".", "/", "\\",
                             "..\\", "/../a.bmp", ".\\..\\a.bmp", "x\\..", "x/.././../y/a.bmp"}) {
        QCOMPARE(Errore([&] { Immagini::PercorsoInCartella(cartella, QString::fromLatin1(nome)); }),
                 ErroreSistema::FileNonTrovato);
    }
}

void tst_Immagini::scansione35Megapixel_data()
{
    QTest::addColumn<QByteArray>("formato");
    QTest::newRow("JPEG") << QByteArray("jpeg");
    QTest::newRow("BMP") << QByteArray("bmp");
}

void tst_Immagini::scansione35Megapixel()
{
    QFETCH(QByteArray, formato);
    QImage foglio = Tinta({4960, 7016}, qRgb(250, 250, 240));
    for (int y = 3000; y < 3100; ++y) {
        auto *riga = reinterpret_cast<QRgb *>(foglio.scanLine(y));
        std::fill(riga, riga + foglio.width(), qRgb(20, 20, 120));
    }
    const QString percorso = Scrivi(InFormato(foglio, formato.constData(), 600));
    const QSizeF misura = Immagini::DimensioniNaturali(percorso);
    QVERIFY(qAbs(misura.width() - 210) < 0.1 && qAbs(misura.height() - 297) < 0.1);
    const QImage intera = Immagini::Carica(percorso);
    QCOMPARE(intera.size(), foglio.size());
    QVERIFY(Simili(intera.pixel(100, 3050), qRgb(20, 20, 120)));
    const QImage piccola = Immagini::CaricaScalata(percorso, {496, 702});
    QVERIFY(Simili(piccola.pixel(250, 305), qRgb(20, 20, 120), 8));
    QVERIFY(Simili(piccola.pixel(250, 400), qRgb(250, 250, 240), 8));
}

void tst_Immagini::nonEsiste()
{
    const QString manca = dir_.filePath(QStringLiteral("manca.jpg"));
    QCOMPARE(Errore([&] { Immagini::Carica(manca); }), ErroreSistema::FileNonTrovato);
    QCOMPARE(Errore([&] { Immagini::DimensioniNaturali(manca); }), ErroreSistema::FileNonTrovato);
    QCOMPARE(Errore([&] { Immagini::Verifica(manca); }), ErroreSistema::FileNonTrovato);
    QCOMPARE(Errore([&] {
                 Immagini::CaricaScalata(manca, {5, 5});
             }),
             ErroreSistema::FileNonTrovato);
    QCOMPARE(Errore([&] { Immagini::Carica(dir_.path()); }), ErroreSistema::FileNonTrovato);
    QCOMPARE(Errore([&] { Immagini::Carica(QString()); }), ErroreSistema::FileNonTrovato);
}

void tst_Immagini::nonValide_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("questa non è un'immagine");
    QTest::newRow("PNG") << InFormato(Tinta({4, 4}, 0), "png");
    QTest::newRow("only the start of a JPEG") << QByteArray("\xFF\xD8\xFF");
    QTest::newRow("only the start of a BMP") << QByteArray("BM");
    QTest::newRow("only the start of a GIF") << QByteArray("GIF89a");
    QTest::newRow("JPEG of fill bytes") << "\xFF\xD8" + QByteArray(5000, '\xFF');
    QTest::newRow("JPEG with an empty segment") << QByteArray("\xFF\xD8\xFF\xE0\0\0\0\0", 8);
    QByteArray rovinata = InFormato(Tinta({64, 64}, qRgb(9, 9, 9)), "jpeg");
    rovinata.replace(2, 400, QByteArray(400, '\x55'));
    QTest::newRow("JPEG without its header") << rovinata;
}

void tst_Immagini::nonValide()
{
    QFETCH(QByteArray, byte);
    const QString percorso = Scrivi(byte);
    QCOMPARE(Errore([&] { Immagini::Carica(percorso); }), ErroreSistema::ImmagineNonValida);
    QCOMPARE(Errore([&] { Immagini::Verifica(percorso); }), ErroreSistema::ImmagineNonValida);
    QCOMPARE(Errore([&] {
                 Immagini::CaricaScalata(percorso, {9, 9});
             }),
             ErroreSistema::ImmagineNonValida);
}

void tst_Immagini::bombe_data()
{
    QTest::addColumn<QByteArray>("byte");
    for (const ImmaginiDiProva::Bomba &bomba : Bombe()) {
        QTest::newRow(bomba.Nome) << bomba.Byte;
    }
}

void tst_Immagini::bombe()
{
    QFETCH(QByteArray, byte);
    const QString percorso = Scrivi(byte);
    const TempoDiLavoro tempo;
    QCOMPARE(Errore([&] { Immagini::Carica(percorso); }), ErroreSistema::ImmagineNonValida);
    QCOMPARE(Errore([&] { Immagini::Verifica(percorso); }), ErroreSistema::ImmagineNonValida);
    QCOMPARE(Errore([&] {
                 Immagini::CaricaScalata(percorso, {50, 50});
             }),
             ErroreSistema::ImmagineNonValida);
    QVERIFY2(tempo.Entro(1000), qPrintable(QString::number(tempo.MilliSecondi())));
}

void tst_Immagini::troncata_data()
{
    QTest::addColumn<QByteArray>("byte");
    QImage disegno = Tinta({40, 30}, qRgb(10, 90, 200));
    disegno.setPixel(3, 3, qRgb(255, 0, 0));
    QTest::newRow("jpeg") << InFormato(disegno, "jpeg");
    QTest::newRow("bmp") << InFormato(disegno, "bmp");
    QTest::newRow("cmyk jpeg") << JpegCmyk();
    QTest::newRow("gif") << GifTrasparente();
}

void tst_Immagini::troncata()
{
    QFETCH(QByteArray, byte);
    // The last bytes of a GIF and of a JPEG close the file, not its (first) picture.
    const qsizetype ultimo = byte.size() - (byte.startsWith("GIF")        ? 1
                                            : byte.startsWith("\xFF\xD8") ? 2
                                                                          : 0);
    for (qsizetype n = 0; n < ultimo; ++n) {
        const QString percorso = Scrive(dir_.filePath(QStringLiteral("troncata")), byte.left(n));
        QCOMPARE(Errore([&] { Immagini::Carica(percorso); }), ErroreSistema::ImmagineNonValida);
        QCOMPARE(Errore([&] { Immagini::Verifica(percorso); }), ErroreSistema::ImmagineNonValida);
    }
    QVERIFY(!Immagini::Carica(Scrivi(byte)).isNull());
    QCOMPARE(Errore([&] { Immagini::Verifica(Scrivi(byte)); }), 0);
}

QTEST_MAIN(tst_Immagini)
#include "tst_Immagini.moc"
