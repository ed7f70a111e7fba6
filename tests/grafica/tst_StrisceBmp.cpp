#include "grafica/Immagini.h"

#include "support/Errori.h"
#include "support/ImmaginiDiProva.h"

#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <random>

using namespace ImmaginiDiProva;

namespace {

struct Bmp
{
    int Bit = 24;
    quint32 Testa = 40;
    quint32 Compressione = 0;
    quint32 Colori = 0; ///< as stated; 0 = all
    QList<quint32> Maschere;
    bool DallAlto = false;
    bool SenzaRiempitivo = false;
    QSize Pixel{301, 187}; ///< several strips of it, the last one lower
};

template <typename Numero>
QByteArray Piccolo(Numero numero)
{
    QByteArray byte(sizeof(Numero), '\0');
    qToLittleEndian(numero, byte.data());
    return byte;
}

/// Every byte of its rows is another; whatever they stand for.
QByteArray Casuale(const Bmp &bmp, unsigned seme = 1)
{
    std::minstd_rand caso(seme);
    const bool corta = bmp.Testa == 12;
    const auto aCaso = [&](qsizetype quanti) {
        QByteArray byte(quanti, '\0');
        std::generate(byte.begin(), byte.end(), [&] { return char(caso() >> 16); });
        return byte;
    };
    QByteArray tavola;
    if (bmp.Bit <= 8) {
        tavola = aCaso(qsizetype(bmp.Colori > 0 ? bmp.Colori : 1U << bmp.Bit) * (corta ? 3 : 4));
    }
    QByteArray maschere;
    for (const quint32 maschera : bmp.Maschere) {
        maschere += Piccolo(maschera);
    }
    const qsizetype riga = (qsizetype(bmp.Pixel.width()) * bmp.Bit + 31) / 32 * 4;
    QByteArray righe = aCaso(riga * bmp.Pixel.height());
    righe.chop(bmp.SenzaRiempitivo ? riga - (qsizetype(bmp.Pixel.width()) * bmp.Bit + 7) / 8 : 0);
    const qsizetype inTesta = bmp.Testa > 40 ? maschere.size() : 0;
    QByteArray testa;
    if (corta) {
        testa = Piccolo(bmp.Testa) + Piccolo(quint16(bmp.Pixel.width())) +
                Piccolo(quint16(bmp.Pixel.height())) + Piccolo(quint16(1)) +
                Piccolo(quint16(bmp.Bit));
    } else {
        testa = Piccolo(bmp.Testa) + Piccolo(qint32(bmp.Pixel.width())) +
                Piccolo(qint32(bmp.DallAlto ? -bmp.Pixel.height() : bmp.Pixel.height())) +
                Piccolo(quint16(1)) + Piccolo(quint16(bmp.Bit)) + Piccolo(bmp.Compressione) +
                Piccolo(quint32(righe.size())) + QByteArray(8, '\0') + Piccolo(bmp.Colori) +
                QByteArray(4, '\0') + maschere;
        testa = testa.leftJustified(qsizetype(bmp.Testa) + maschere.size() - inTesta, '\0');
    }
    const auto inizio = quint32(14 + testa.size() + tavola.size());
    return "BM" + Piccolo(quint32(inizio + righe.size())) + Piccolo(quint32(0)) + Piccolo(inizio) +
           testa + tavola + righe;
}

QImage SuCarta(const QImage &immagine)
{
    QImage carta(immagine.size(), QImage::Format_RGB32);
    for (int y = 0; y < carta.height(); ++y) {
        for (int x = 0; x < carta.width(); ++x) {
            const QRgb c = immagine.pixel(x, y);
            const auto misto = [&](int v) {
                return (v * qAlpha(c) + 255 * (255 - qAlpha(c)) + 127) / 255;
            };
            carta.setPixel(x, y, qRgb(misto(qRed(c)), misto(qGreen(c)), misto(qBlue(c))));
        }
    }
    return carta;
}

} // namespace

/// Bitmaps decoded a few rows at a time, for paper, show what they show decoded whole.
class tst_StrisceBmp : public QObject
{
    Q_OBJECT

private slots:
    void comeIntera_data();
    void comeIntera();
    void alfaSoloNellUltimaRiga();
    void rimpicciolitaUgualeDaSopraEDaSotto();
    void troncata();

private:
    QString Scrivi(const QByteArray &byte) const
    {
        return Scrive(dir_.filePath(QStringLiteral("figura.bmp")), byte);
    }

    QTemporaryDir dir_;
};

void tst_StrisceBmp::comeIntera_data()
{
    QTest::addColumn<QByteArray>("byte");
    for (const int bit : {1, 4, 8, 16, 24, 32}) {
        for (const quint32 testa : {12U, 40U, 64U, 108U, 124U}) {
            for (const bool dallAlto : {false, true}) {
                if (testa == 12 && (bit == 16 || bit == 32 || dallAlto)) {
                    continue;
                }
                Bmp bmp;
                bmp.Bit = bit;
                bmp.Testa = testa;
                bmp.DallAlto = dallAlto;
                QTest::addRow("%d bits, header of %u, from %s", bit, testa,
                              dallAlto ? "above" : "below")
                    << Casuale(bmp);
            }
        }
    }
    for (const quint32 colori : {1U, 2U, 7U, 200U}) {
        for (const int bit : {1, 4, 8}) {
            Bmp bmp;
            bmp.Bit = bit;
            bmp.Colori = colori;
            if (colori <= 1U << bit) {
                QTest::addRow("%d bits, %u colours", bit, colori) << Casuale(bmp);
            }
        }
    }
    Bmp maschere{16, 40, 3, 0, {0xF800, 0x7E0, 0x1F}};
    QTest::newRow("16 bits with masks") << Casuale(maschere);
    maschere = {32, 40, 3, 0, {0xFF, 0xFF00, 0xFF0000}};
    QTest::newRow("32 bits with masks") << Casuale(maschere);
    maschere = {32, 108, 3, 0, {0xFF0000, 0xFF00, 0xFF, 0xFF000000}};
    QTest::newRow("32 bits with transparency") << Casuale(maschere);
    maschere.DallAlto = true;
    QTest::newRow("32 bits with transparency, from above") << Casuale(maschere);
    maschere = {32, 124, 3, 0, {0xFF0000, 0xFF00, 0xFF, 0}};
    QTest::newRow("32 bits with masks, opaque") << Casuale(maschere);
    for (const int larghezza : {1, 2, 3, 5, 8, 40'000}) {
        Bmp bmp;
        bmp.Pixel = {larghezza, 3};
        bmp.SenzaRiempitivo = true;
        QTest::addRow("24 bits, %d wide, the last row not filled up", larghezza) << Casuale(bmp);
    }
    Bmp alta;
    alta.Bit = 1;
    alta.Pixel = {1, 70'000};
    QTest::newRow("70000 high") << Casuale(alta);
}

void tst_StrisceBmp::comeIntera()
{
    QFETCH(QByteArray, byte);
    const QString percorso = Scrivi(byte);
    const QImage intera = Immagini::Carica(percorso);
    const Immagini::Opaca opaca = Immagini::CaricaEntro(percorso, {100'000, 100'000});
    QVERIFY(!opaca.ComeJpeg);
    QCOMPARE(opaca.Immagine.format(), QImage::Format_RGB32);
    QCOMPARE(opaca.Immagine, SuCarta(intera));
}

void tst_StrisceBmp::alfaSoloNellUltimaRiga()
{
    // Whether the fourth byte means anything is only known once all of them have been seen.
    Bmp bmp{32, 108, 3, 0, {0xFF0000, 0xFF00, 0xFF, 0xFF000000}};
    QByteArray byte = Casuale(bmp);
    const qsizetype riga = qsizetype(bmp.Pixel.width()) * 4;
    for (qsizetype k = byte.size() - riga * bmp.Pixel.height() + 3; k < byte.size(); k += 4) {
        byte[k] = '\0';
    }
    const QSize misura(100'000, 100'000);
    const QImage vuota = Immagini::CaricaEntro(Scrivi(byte), misura).Immagine;
    QCOMPARE(vuota, Immagini::Carica(Scrivi(byte)).convertToFormat(QImage::Format_RGB32));
    QVERIFY(vuota.pixel(5, 5) != qRgb(255, 255, 255));
    byte[byte.size() - 1] = '\x80';
    const QImage piena = Immagini::CaricaEntro(Scrivi(byte), misura).Immagine;
    QCOMPARE(piena, SuCarta(Immagini::Carica(Scrivi(byte))));
    QCOMPARE(piena.pixel(5, 5), qRgb(255, 255, 255));
}

void tst_StrisceBmp::rimpicciolitaUgualeDaSopraEDaSotto()
{
    const QImage foto = Fotografia({611, 407}, 3);
    const QByteArray daSotto = InFormato(foto, "bmp");
    const QByteArray rovescia = InFormato(foto.mirrored(), "bmp");
    QByteArray daSopra = rovescia;
    daSopra.replace(22, 4, Piccolo(qint32(-foto.height())));
    const QSize misura(173, 240);
    const QImage una = Immagini::CaricaEntro(Scrivi(daSotto), misura).Immagine;
    QCOMPARE(una.size(), misura);
    QCOMPARE(Immagini::CaricaEntro(Scrivi(daSopra), misura).Immagine, una);
    // The mean of what each pixel covers: a tone of the picture is one of its reduction.
    const QImage liscia = foto.scaled(misura, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (const QPoint &punto : {QPoint(0, 0), QPoint(100, 7), QPoint(172, 239), QPoint(80, 120)}) {
        QVERIFY(qAbs(qGray(una.pixel(punto)) - qGray(liscia.pixel(punto))) <= 4);
    }
}

void tst_StrisceBmp::troncata()
{
    const QByteArray byte = Casuale({});
    for (const qsizetype n : {byte.size() - 4, byte.size() / 2, qsizetype(60)}) {
        const QString percorso = Scrivi(byte.left(n));
        QCOMPARE(ErroreDi([&] {
                     Immagini::CaricaEntro(percorso, {50, 50});
                 }),
                 ErroreSistema::ImmagineNonValida);
    }
}

QTEST_MAIN(tst_StrisceBmp)
#include "tst_StrisceBmp.moc"
