#include "base/ErroreSistema.h"
#include "grafica/FiguraEsterna.h"
#include "grafica/Immagini.h"
#include "support/ImmaginiDiProva.h"

#include <QElapsedTimer>
#include <QImageReader>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

using Tipo = FiguraEsterna::Tipo;

bool Mai()
{
    return false;
}

QSizeF Naturale(const QSizeF &millimetri)
{
    return millimetri;
}

FiguraEsterna::Riquadro Di(const QSizeF &millimetri)
{
    return [millimetri](const QSizeF &) { return millimetri; };
}

/// The JPEG as a camera writes it that was held otherwise.
QByteArray Girata(QByteArray jpeg, char orientamento)
{
    QByteArray exif =
        QByteArray::fromHex("ffe100224578696600004d4d002a0000000800010112000300000001000600000000"
                            "0000");
    exif[29] = orientamento;
    return jpeg.insert(2, exif);
}

/// A photograph as cameras give it, its colours shared among neighbours.
QImage Scattata(const QSize &pixel, unsigned seme)
{
    return QImage::fromData(
        ImmaginiDiProva::InFormato(ImmaginiDiProva::Fotografia(pixel, seme), "jpeg"));
}

int Scarto(QRgb a, QRgb b)
{
    return qMax(qAbs(qRed(a) - qRed(b)),
                qMax(qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))));
}

} // namespace

/// Pictures of any format on their way into a model.
class tst_FiguraEsterna : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void OgniFormato_data();
    void OgniFormato();
    void TrasparenteSuBianco();
    void FotografiaSenzaPerditaVisibile();
    void ColoriNettiSenzaPerdita();
    void FotografiaGirataDrittaDopo();
    void SeicentoPuntiDelRiquadro_data();
    void SeicentoPuntiDelRiquadro();
    void GrandezzaNaturaleConservata_data();
    void GrandezzaNaturaleConservata();
    void GiaAPostoRestaComEra_data();
    void GiaAPostoRestaComEra();
    void SvgAllaFinezzaDelRiquadro();
    void Ostili_data();
    void Ostili();
    void AnnullataNonDaNulla();
    void PocheTintePerTavolozza_data();
    void PocheTintePerTavolozza();
    void DisegnoSvgDiPocheTinteGrandeMaLeggero();

private:
    QString Scrive(const QString &nome, const QByteArray &byte) const
    {
        return ImmaginiDiProva::Scrive(cartella_->filePath(nome), byte);
    }
    /// The new file, which the program itself must be able to read.
    FiguraEsterna::File Converte(const QString &percorso,
                                 const FiguraEsterna::Riquadro &riquadro = Naturale)
    {
        const FiguraEsterna::File file = FiguraEsterna(percorso).Converte(riquadro, Mai);
        esito_ = Scrive(QStringLiteral("esito"), file.Byte);
        immagine_ = Immagini::Carica(esito_);
        return file;
    }

    std::unique_ptr<QTemporaryDir> cartella_;
    QString esito_;
    QImage immagine_;
};

void tst_FiguraEsterna::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
}

void tst_FiguraEsterna::OgniFormato_data()
{
    QTest::addColumn<QByteArray>("formato");
    for (const char *formato : {"png", "bmp", "jpeg", "ppm", "xpm", "webp", "tiff", "ico"}) {
        QTest::newRow(formato) << QByteArray(formato);
    }
}

void tst_FiguraEsterna::OgniFormato()
{
    QFETCH(QByteArray, formato);
    if (ImmaginiDiProva::Manca(formato)) {
        QSKIP("Qt was built without it");
    }
    QImage figura = ImmaginiDiProva::Tinta({60, 40}, qRgb(20, 120, 200));
    QPainter(&figura).fillRect(0, 0, 30, 40, QColor(250, 240, 30));
    // The name says nothing: the bytes are looked at.
    const QString percorso =
        Scrive(QStringLiteral("figura.dat"), ImmaginiDiProva::InFormato(figura, formato));
    Converte(percorso);
    QCOMPARE(immagine_.size(), QSize(60, 40));
    QVERIFY(Scarto(immagine_.pixel(10, 20), qRgb(250, 240, 30)) < 4);
    QVERIFY(Scarto(immagine_.pixel(50, 20), qRgb(20, 120, 200)) < 4);
}

void tst_FiguraEsterna::TrasparenteSuBianco()
{
    QImage figura(40, 20, QImage::Format_ARGB32);
    figura.fill(Qt::transparent);
    QPainter(&figura).fillRect(0, 0, 20, 20, QColor(0, 0, 0, 128));
    const FiguraEsterna::File file =
        Converte(Scrive(QStringLiteral("a.png"), ImmaginiDiProva::InFormato(figura, "png")));
    QCOMPARE(file.tipo, Tipo::Disegno);
    QVERIFY(file.Byte.startsWith("BM"));
    QVERIFY(!QImage::fromData(file.Byte).hasAlphaChannel());
    QCOMPARE(immagine_.pixel(30, 10), qRgb(255, 255, 255));
    QVERIFY(Scarto(immagine_.pixel(10, 10), qRgb(127, 127, 127)) <= 1);
}

void tst_FiguraEsterna::FotografiaSenzaPerditaVisibile()
{
    const QImage foto = Scattata({300, 200}, 3);
    const FiguraEsterna::File file =
        Converte(Scrive(QStringLiteral("f.png"), ImmaginiDiProva::InFormato(foto, "png")));
    QCOMPARE(file.tipo, Tipo::Fotografia);
    QVERIFY(file.Byte.startsWith("\xFF\xD8"));
    qint64 somma = 0;
    for (int y = 0; y < foto.height(); ++y) {
        for (int x = 0; x < foto.width(); ++x) {
            somma += qAbs(qGray(foto.pixel(x, y)) - qGray(immagine_.pixel(x, y)));
        }
    }
    const double scarto = double(somma) / (foto.width() * foto.height());
    QVERIFY2(scarto < 2, qPrintable(QString::number(scarto))); // of 255
}

void tst_FiguraEsterna::ColoriNettiSenzaPerdita()
{
    // No drawing by its colours, but a JPEG would smear them: each pixel has its own.
    QImage figura(200, 150, QImage::Format_RGB32);
    for (int y = 0; y < figura.height(); ++y) {
        for (int x = 0; x < figura.width(); ++x) {
            figura.setPixel(x, y, (x + y) % 2 == 0 ? qRgb(255 - y, 20, x) : qRgb(10, x, 255 - y));
        }
    }
    const FiguraEsterna::File file =
        Converte(Scrive(QStringLiteral("n.png"), ImmaginiDiProva::InFormato(figura, "png")));
    QCOMPARE(file.tipo, Tipo::Disegno);
    QCOMPARE(immagine_.pixel(100, 75), figura.pixel(100, 75));
}

void tst_FiguraEsterna::FotografiaGirataDrittaDopo()
{
    // As a telephone held upright writes it: to be turned by a quarter.
    QImage figura = ImmaginiDiProva::Fotografia({120, 80}, 2);
    QPainter(&figura).fillRect(0, 0, 40, 80, QColor(0, 0, 0));
    const QByteArray girata = Girata(ImmaginiDiProva::InFormato(figura, "jpeg"), 6);
    const FiguraEsterna::File file = Converte(Scrive(QStringLiteral("g.jpg"), girata));
    QCOMPARE(immagine_.size(), QSize(80, 120));
    QCOMPARE(file.Pixel, QSize(80, 120));
    QVERIFY(qGray(immagine_.pixel(40, 10)) < 30);
    // Upright as it is stored, for who knows nothing of turning.
    QImageReader lettore(esito_, "jpeg");
    QCOMPARE(lettore.transformation(), QImageIOHandler::TransformationNone);
    QCOMPARE(lettore.size(), QSize(80, 120));
}

void tst_FiguraEsterna::SeicentoPuntiDelRiquadro_data()
{
    QTest::addColumn<QSizeF>("riquadro");
    QTest::addColumn<QSize>("pixel");
    // 1200 x 800 pixels; a millimetre has 23.62 at 600 to the inch.
    QTest::newRow("larger than it needs") << QSizeF(100, 100) << QSize(1200, 800);
    QTest::newRow("half") << QSizeF(25.4, 16.9333) << QSize(600, 400);
    QTest::newRow("its height decides") << QSizeF(1, 16.9333) << QSize(600, 400);
    QTest::newRow("its width decides") << QSizeF(25.4, 1) << QSize(600, 400);
    QTest::newRow("tiny") << QSizeF(0.001, 0.001) << QSize(1, 1);
}

void tst_FiguraEsterna::SeicentoPuntiDelRiquadro()
{
    QFETCH(QSizeF, riquadro);
    QFETCH(QSize, pixel);
    const QString percorso =
        Scrive(QStringLiteral("f.png"),
               ImmaginiDiProva::InFormato(ImmaginiDiProva::Fotografia({1200, 800}, 1), "png", 300));
    const FiguraEsterna::File file = Converte(percorso, Di(riquadro));
    QCOMPARE(file.Pixel, pixel);
    QCOMPARE(immagine_.size(), pixel);
}

void tst_FiguraEsterna::GrandezzaNaturaleConservata_data()
{
    QTest::addColumn<QByteArray>("formato");
    QTest::addColumn<double>("punti");
    QTest::addColumn<QSizeF>("millimetri");
    QTest::newRow("png at 300 dpi") << QByteArray("png") << 300.0 << QSizeF(101.6, 67.733);
    QTest::newRow("png without dpi") << QByteArray("png") << 0.0 << QSizeF(317.5, 211.667);
    QTest::newRow("jpeg at 300 dpi") << QByteArray("jpeg") << 300.0 << QSizeF(101.6, 67.733);
}

void tst_FiguraEsterna::GrandezzaNaturaleConservata()
{
    QFETCH(QByteArray, formato);
    QFETCH(double, punti);
    QFETCH(QSizeF, millimetri);
    const QString percorso = Scrive(
        QStringLiteral("f"),
        ImmaginiDiProva::InFormato(ImmaginiDiProva::Fotografia({1200, 800}, 1), formato, punti));
    Converte(percorso, Di({20, 13.333}));
    const QSizeF dopo = Immagini::DimensioniNaturali(esito_);
    QVERIFY2(qAbs(dopo.width() - millimetri.width()) < millimetri.width() * 0.01 &&
                 qAbs(dopo.height() - millimetri.height()) < millimetri.height() * 0.01,
             qPrintable(QStringLiteral("%1 x %2").arg(dopo.width()).arg(dopo.height())));
}

void tst_FiguraEsterna::GiaAPostoRestaComEra_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<bool>("uguale");
    const QImage foto = ImmaginiDiProva::Fotografia({100, 50}, 4);
    QTest::newRow("jpeg") << ImmaginiDiProva::InFormato(foto, "jpeg", 300) << true;
    QTest::newRow("bmp") << ImmaginiDiProva::InFormato(foto, "bmp", 300) << true;
    QTest::newRow("gif") << ImmaginiDiProva::GifTrasparente() << false;
    QTest::newRow("cmyk") << ImmaginiDiProva::JpegCmyk() << false;
    QTest::newRow("turned") << Girata(ImmaginiDiProva::InFormato(foto, "jpeg"), 3) << false;
    QTest::newRow("too fine") << ImmaginiDiProva::InFormato(foto, "jpeg", 1200) << false;
}

void tst_FiguraEsterna::GiaAPostoRestaComEra()
{
    QFETCH(QByteArray, byte);
    QFETCH(bool, uguale);
    const FiguraEsterna::File file = Converte(Scrive(QStringLiteral("f"), byte));
    QCOMPARE(file.Byte == byte, uguale);
    QVERIFY(!file.Byte.startsWith("GIF"));
}

void tst_FiguraEsterna::SvgAllaFinezzaDelRiquadro()
{
    if (ImmaginiDiProva::Manca("svg")) {
        QSKIP("Qt was built without it");
    }
    const QString percorso = Scrive(
        QStringLiteral("logo.svg"),
        "<svg xmlns='http://www.w3.org/2000/svg' width='20mm' height='10mm' viewBox='0 0 200 100'>"
        "<rect x='0' y='0' width='100' height='100' fill='#0000ff'/></svg>");
    FiguraEsterna::File file = Converte(percorso);
    QCOMPARE(file.Pixel, QSize(472, 236)); // 20 x 10 mm at 600 dots per inch
    QCOMPARE(file.tipo, Tipo::Disegno);
    QCOMPARE(immagine_.pixel(100, 118), qRgb(0, 0, 255));
    QCOMPARE(immagine_.pixel(400, 118), qRgb(255, 255, 255));
    // Lines are as sharp in any box.
    file = Converte(percorso, Di({100, 50}));
    QCOMPARE(file.Pixel, QSize(2362, 1181));
    QVERIFY(qAbs(Immagini::DimensioniNaturali(esito_).width() - 20) < 0.1);
}

void tst_FiguraEsterna::Ostili_data()
{
    QTest::addColumn<QByteArray>("byte");
    const QByteArray png =
        ImmaginiDiProva::InFormato(ImmaginiDiProva::Fotografia({200, 100}, 1), "png");
    QTest::newRow("text") << QByteArray("non sono un'immagine");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("cut png") << png.left(png.size() / 2);
    QTest::newRow("only the header of a png") << png.left(60);
    QByteArray smisurato = png;
    smisurato.replace(16, 8, QByteArray::fromHex("0000ffff0000ffff"));
    QTest::newRow("png of 4 thousand million pixels") << smisurato;
    QTest::newRow("empty svg") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'></svg>");
    QTest::newRow("broken svg") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'><g>");
    QByteArray doppio = "<svg xmlns='http://www.w3.org/2000/svg' "
                        "xmlns:xlink='http://www.w3.org/1999/xlink' width='9mm' height='9mm'>"
                        "<rect id='a0' width='1' height='1'/>";
    for (int i = 1; i < 60; ++i) {
        doppio += QStringLiteral("<g id='a%1'><use xlink:href='#a%2'/><use xlink:href='#a%2'/></g>")
                      .arg(i)
                      .arg(i - 1)
                      .toLatin1();
    }
    QTest::newRow("svg that doubles itself") << doppio + "</svg>";
    QTest::newRow("svg with a file of the system") << QByteArray(
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        "width='9mm' height='9mm'><image width='9' height='9' xlink:href='/dev/zero'/></svg>");
    for (const ImmaginiDiProva::Bomba &bomba : ImmaginiDiProva::Bombe()) {
        QTest::newRow(bomba.Nome) << bomba.Byte;
    }
}

void tst_FiguraEsterna::Ostili()
{
    QFETCH(QByteArray, byte);
    const QString percorso = Scrive(QStringLiteral("x"), byte);
    QElapsedTimer tempo;
    tempo.start();
    int numero = 0;
    try {
        FiguraEsterna(percorso).Converte(Naturale, Mai);
    } catch (const ErroreSistema &errore) {
        numero = errore.numero;
    }
    QCOMPARE(numero, ErroreSistema::ImmagineNonValida);
    QVERIFY(tempo.elapsed() < 10000);
}

void tst_FiguraEsterna::AnnullataNonDaNulla()
{
    const QString percorso =
        Scrive(QStringLiteral("f.png"),
               ImmaginiDiProva::InFormato(ImmaginiDiProva::Fotografia({1200, 800}, 1), "png"));
    const FiguraEsterna figura(percorso);
    QVERIFY(!figura.Converte(Naturale, Mai).Byte.isEmpty());
    int domande = 0;
    const auto subito = [&domande] { return ++domande > 3; };
    QVERIFY(figura.Converte(Naturale, subito).Byte.isEmpty());
}

void tst_FiguraEsterna::PocheTintePerTavolozza_data()
{
    QTest::addColumn<int>("tinte");
    QTest::addColumn<int>("bit");
    for (const auto &[tinte, bit] :
         {std::pair(1, 1), {2, 1}, {3, 4}, {16, 4}, {17, 8}, {256, 8}, {257, 24}}) {
        QTest::addRow("%d colours", tinte) << tinte << bit;
    }
}

void tst_FiguraEsterna::PocheTintePerTavolozza()
{
    QFETCH(int, tinte);
    QFETCH(int, bit);
    QImage figura(211, 90, QImage::Format_RGB32); // rows that end within a byte
    for (int y = 0; y < figura.height(); ++y) {
        for (int x = 0; x < figura.width(); ++x) {
            const int tinta = (x / 7 + y * 31) % tinte;
            figura.setPixel(x, y, qRgb(tinta % 16 * 16, tinta / 16, 200 - tinta / 2));
        }
    }
    const FiguraEsterna::File file =
        Converte(Scrive(QStringLiteral("f.png"), ImmaginiDiProva::InFormato(figura, "png", 300)));
    QCOMPARE(file.tipo, Tipo::Disegno);
    QCOMPARE(int(file.Byte.at(28)), bit);
    QVERIFY(file.Byte.size() < 1100 + (figura.width() * bit / 8 + 4) * figura.height());
    QCOMPARE(immagine_.convertToFormat(QImage::Format_RGB32), figura);
    QVERIFY(qAbs(Immagini::DimensioniNaturali(esito_).width() - file.Millimetri.width()) < 0.1);
    QCOMPARE(Immagini::CaricaEntro(esito_, figura.size()).Immagine, figura); // as it is printed
}

void tst_FiguraEsterna::DisegnoSvgDiPocheTinteGrandeMaLeggero()
{
    if (ImmaginiDiProva::Manca("svg")) {
        QSKIP("Qt was built without it");
    }
    // 30 x 20 mm, and then as wide as a sheet.
    const QString percorso = Scrive(
        QStringLiteral("logo.svg"),
        "<svg xmlns='http://www.w3.org/2000/svg' width='30mm' height='20mm' viewBox='0 0 30 20'>"
        "<circle cx='15' cy='10' r='9' fill='#003366'/></svg>");
    const FiguraEsterna::File file = Converte(percorso, Di({195, 130}));
    QCOMPARE(file.Pixel, QSize(4606, 3071)); // 600 dots per inch of what shows on paper
    QVERIFY2(file.Byte.size() < 15'000'000, QByteArray::number(file.Byte.size()));
    QCOMPARE(immagine_.pixel(2303, 1535), qRgb(0, 0x33, 0x66));
    QCOMPARE(immagine_.pixel(5, 5), qRgb(255, 255, 255));
    QVERIFY(qAbs(Immagini::DimensioniNaturali(esito_).width() - 30) < 0.1);
}

QTEST_MAIN(tst_FiguraEsterna)
#include "tst_FiguraEsterna.moc"
