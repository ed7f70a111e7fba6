#include "base/ErroreSistema.h"
#include "grafica/FiguraEsterna.h"
#include "grafica/Immagini.h"
#include "support/ImmaginiDiProva.h"

#include <QDataStream>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

namespace {

bool Mai()
{
    return false;
}

/// An uncompressed TIFF of one colour at 300 dots per inch, as Photoshop and scanners write it:
/// campioni are those of a pixel, of so many bits each; fotometria 2 is RGB, 5 the printer's inks.
QByteArray Tiff(const QSize &pixel, const QList<int> &campioni, int bit, int fotometria)
{
    constexpr int PostoPixel = 256;
    QByteArray testa;
    QDataStream scrive(&testa, QIODevice::WriteOnly);
    scrive.setByteOrder(QDataStream::LittleEndian);
    const auto quanti = quint32(campioni.size());
    const quint32 byte = quint32(pixel.width() * pixel.height()) * quanti * quint32(bit) / 8;
    scrive << quint16(0x4949) << quint16(42) << quint32(8) << quint16(12);
    const auto voce = [&](quint16 nome, quint16 tipo, quint32 numero, quint32 valore) {
        scrive << nome << tipo << numero << valore;
    };
    constexpr quint16 Corto = 3;
    constexpr quint16 Lungo = 4;
    constexpr quint16 Frazione = 5;
    voce(256, Lungo, 1, quint32(pixel.width()));
    voce(257, Lungo, 1, quint32(pixel.height()));
    voce(258, Corto, quanti, quanti == 1 ? quint32(bit) : 200);
    voce(259, Corto, 1, 1);
    voce(262, Corto, 1, quint32(fotometria));
    voce(273, Lungo, 1, PostoPixel);
    voce(277, Corto, 1, quanti);
    voce(278, Lungo, 1, quint32(pixel.height()));
    voce(279, Lungo, 1, byte);
    voce(282, Frazione, 1, 220);
    voce(283, Frazione, 1, 220);
    voce(296, Corto, 1, 2); // dots per inch
    testa.resize(PostoPixel, '\0');
    scrive.device()->seek(200);
    for (quint32 i = 0; i < quanti; ++i) {
        scrive << quint16(bit);
    }
    scrive.device()->seek(220);
    scrive << quint32(300) << quint32(1);
    scrive.device()->seek(PostoPixel);
    for (int i = 0; i < pixel.width() * pixel.height(); ++i) {
        for (const int campione : campioni) {
            if (bit == 16) {
                scrive << quint16(campione * 257);
            } else {
                scrive << quint8(campione);
            }
        }
    }
    return testa;
}

/// As PNG has it, bit by bit.
quint32 Somma(const QByteArray &byte)
{
    quint32 somma = 0xFFFFFFFF;
    for (const char c : byte) {
        somma ^= quint8(c);
        for (int i = 0; i < 8; ++i) {
            somma = (somma >> 1) ^ (somma & 1 ? 0xEDB88320 : 0);
        }
    }
    return ~somma;
}

int Scarto(QRgb a, QRgb b)
{
    return qMax(qAbs(qRed(a) - qRed(b)),
                qMax(qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))));
}

} // namespace

/// Pictures in formats that the program itself does not print, brought in and shown small.
class tst_FormatiEsterni : public QObject
{
    Q_OBJECT
private slots:
    void TiffRari_data();
    void TiffRari();
    void SediciBitTroppoGrande();
    void SvgDiPiuTinteConGliOrliUniti_data();
    void SvgDiPiuTinteConGliOrliUniti();
    void MiniaturaDiOgniFormato_data();
    void MiniaturaDiOgniFormato();
    void MiniaturaDiCioCheNonEUnaFigura();

private:
    QString Scrive(const QString &nome, const QByteArray &byte) const
    {
        return ImmaginiDiProva::Scrive(cartella_.filePath(nome), byte);
    }

    QTemporaryDir cartella_;
};

void tst_FormatiEsterni::TiffRari_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<QRgb>("colore");
    constexpr QSize Pixel(60, 40);
    QTest::newRow("16 bits") << Tiff(Pixel, {200, 100, 20}, 16, 2) << qRgb(200, 100, 20);
    QTest::newRow("inks") << Tiff(Pixel, {255, 0, 255, 0}, 8, 5) << qRgb(0, 255, 0);
    QTest::newRow("inks with black") << Tiff(Pixel, {0, 0, 0, 204}, 8, 5) << qRgb(51, 51, 51);
    QTest::newRow("grey") << Tiff(Pixel, {90}, 8, 1) << qRgb(90, 90, 90);
}

void tst_FormatiEsterni::TiffRari()
{
    if (ImmaginiDiProva::Manca("tiff")) {
        QSKIP("Qt was built without it");
    }
    QFETCH(QByteArray, byte);
    QFETCH(QRgb, colore);
    const FiguraEsterna figura(Scrive(QStringLiteral("scansione.tif"), byte));
    const FiguraEsterna::File file =
        figura.Converte([](const QSizeF &naturale) { return naturale; }, Mai);
    const QImage immagine = Immagini::Carica(Scrive(QStringLiteral("esito"), file.Byte));
    QCOMPARE(immagine.size(), QSize(60, 40));
    QVERIFY2(Scarto(immagine.pixel(30, 20), colore) < 6,
             QByteArray::number(immagine.pixel(30, 20), 16));
    QVERIFY(qAbs(file.Millimetri.width() - 60 * 25.4 / 300) < 0.01);
}

void tst_FormatiEsterni::SvgDiPiuTinteConGliOrliUniti_data()
{
    QTest::addColumn<QByteArray>("disegno");
    QTest::addColumn<int>("bit");
    QTest::newRow("even colours") << QByteArray("<circle cx='11' cy='10' r='9' fill='#003366'/>"
                                                "<circle cx='20' cy='9' r='8' fill='#cc6600'/>"
                                                "<circle cx='15' cy='14' r='5' fill='#118833'/>"
                                                "<circle cx='8' cy='6' r='3' fill='#ffe010'/>"
                                                "<circle cx='22' cy='6' r='4' fill='#b01060'/>")
                                  << 8;
    QTest::newRow("shades")
        << QByteArray("<defs><linearGradient id='g' x1='0' y1='0' x2='1' y2='0'><stop offset='0' "
                      "stop-color='#ff0'/>"
                      "<stop offset='0.5' stop-color='#036'/><stop offset='1' stop-color='#f00'/>"
                      "</linearGradient></defs><rect width='30' height='20' fill='url(#g)'/>"
                      "<circle cx='11' cy='10' r='3' fill='#003366'/>")
        << 24;
}

void tst_FormatiEsterni::SvgDiPiuTinteConGliOrliUniti()
{
    if (ImmaginiDiProva::Manca("svg")) {
        QSKIP("Qt was built without it");
    }
    QFETCH(QByteArray, disegno);
    QFETCH(int, bit);
    const QString svg = Scrive(QStringLiteral("logo.svg"),
                               "<svg xmlns='http://www.w3.org/2000/svg' width='30mm' height='20mm' "
                               "viewBox='0 0 30 20'>" +
                                   disegno + "</svg>");
    const FiguraEsterna::File file = FiguraEsterna(svg).Converte(
        [](const QSizeF &) { return QSizeF(90, 60); }, Mai, FiguraEsterna::Tipo::Disegno);
    QCOMPARE(file.Pixel, QSize(2126, 1417));
    QCOMPARE(int(file.Byte.at(28)), bit);
    const QImage immagine = QImage::fromData(file.Byte);
    QCOMPARE(immagine.pixel(2126 * 11 / 30, 1417 / 2), qRgb(0, 0x33, 0x66)); // to the last bit
}

void tst_FormatiEsterni::MiniaturaDiOgniFormato_data()
{
    QTest::addColumn<QByteArray>("formato");
    QTest::addColumn<QByteArray>("byte");
    QImage figura(400, 200, QImage::Format_ARGB32);
    figura.fill(Qt::transparent);
    QPainter(&figura).fillRect(0, 0, 200, 200, QColor(200, 30, 30));
    for (const char *formato : {"png", "bmp", "jpeg", "webp", "tiff"}) {
        // What knows no transparency has it black otherwise.
        const bool opaca = qstrcmp(formato, "bmp") == 0 || qstrcmp(formato, "jpeg") == 0;
        QImage bianca(figura.size(), QImage::Format_RGB32);
        bianca.fill(Qt::white);
        QPainter(&bianca).drawImage(0, 0, figura);
        QTest::newRow(formato) << QByteArray(formato)
                               << (ImmaginiDiProva::Manca(formato)
                                       ? QByteArray()
                                       : ImmaginiDiProva::InFormato(opaca ? bianca : figura,
                                                                    formato));
    }
    QTest::newRow("svg") << QByteArray("svg")
                         << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='4000mm' "
                                       "height='2000mm' viewBox='0 0 4 2'>"
                                       "<rect width='2' height='2' fill='#c81e1e'/></svg>");
}

void tst_FormatiEsterni::MiniaturaDiOgniFormato()
{
    QFETCH(QByteArray, formato);
    if (ImmaginiDiProva::Manca(formato)) {
        QSKIP("Qt was built without it");
    }
    QFETCH(QByteArray, byte);
    const QString percorso = Scrive(QStringLiteral("figura"), byte);
    const QImage piccola = FiguraEsterna::Miniatura(percorso, {60, 40}, Mai);
    QCOMPARE(piccola.size(), QSize(60, 30));
    QVERIFY(!piccola.hasAlphaChannel());
    QVERIFY(Scarto(piccola.pixel(10, 15), qRgb(200, 30, 30)) < 6);
    QVERIFY(Scarto(piccola.pixel(50, 15), qRgb(255, 255, 255)) < 6);
}

void tst_FormatiEsterni::MiniaturaDiCioCheNonEUnaFigura()
{
    const QStringList file{
        Scrive(QStringLiteral("testo.txt"), "una lettera"), Scrive(QStringLiteral("vuoto"), {}),
        Scrive(QStringLiteral("tagliata.png"),
               ImmaginiDiProva::InFormato(ImmaginiDiProva::Fotografia({300, 300}, 3), "png")
                   .left(5000)),
        cartella_.filePath(QStringLiteral("manca"))};
    for (const QString &nome : file) {
        QVERIFY_EXCEPTION_THROWN(FiguraEsterna::Miniatura(nome, {60, 40}, Mai), ErroreSistema);
    }
    // And it ends where nobody waits.
    const QString png =
        Scrive(QStringLiteral("intera.png"),
               ImmaginiDiProva::InFormato(ImmaginiDiProva::Fotografia({300, 300}, 3), "png"));
    QVERIFY(FiguraEsterna::Miniatura(png, {60, 40}, [] { return true; }).isNull());
}

void tst_FormatiEsterni::SediciBitTroppoGrande()
{
    // 80 million pixels of eight bytes, of which only the head is there.
    QByteArray testa;
    QDataStream scrive(&testa, QIODevice::WriteOnly);
    scrive << quint32(10000) << quint32(8000) << quint8(16) << quint8(6) << quint8(0) << quint8(0)
           << quint8(0);
    QByteArray byte("\x89PNG\r\n\x1a\n", 8);
    const auto parte = [&byte](const char *nome, const QByteArray &dati) {
        QDataStream parti(&byte, QIODevice::Append);
        parti << quint32(dati.size());
        byte += nome + dati;
        QDataStream fine(&byte, QIODevice::Append);
        fine << Somma(nome + dati);
    };
    parte("IHDR", testa);
    parte("IDAT", QByteArray(1000, '\0'));
    const FiguraEsterna figura(Scrive(QStringLiteral("grande.png"), byte));
    QVERIFY_EXCEPTION_THROWN(figura.Converte([](const QSizeF &naturale) { return naturale; }, Mai),
                             Immagini::TroppoGrande);
}

QTEST_MAIN(tst_FormatiEsterni)
#include "tst_FormatiEsterni.moc"
