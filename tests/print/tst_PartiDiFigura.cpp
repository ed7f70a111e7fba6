#include "print/PartiDiFigura.h"

#include "support/ImmaginiDiProva.h"

#include <QPainter>
#include <QTest>

#include <numeric>

using PartiDiFigura::Parte;

namespace {

QImage Bianca(const QSize &pixel)
{
    return ImmaginiDiProva::Tinta(pixel, qRgb(255, 255, 255));
}

QImage Ricomposta(const QList<Parte> &parti, const QSize &pixel)
{
    QImage foglio = Bianca(pixel);
    QPainter pittore(&foglio);
    for (const Parte &parte : parti) {
        pittore.drawImage(parte.Posto.topLeft(), parte.Immagine);
    }
    return foglio;
}

QImage Testo(const QSize &pixel, QRgb colore)
{
    // Without smoothing: two colours and no more.
    QImage immagine = Bianca(pixel);
    QPainter pittore(&immagine);
    pittore.setRenderHint(QPainter::TextAntialiasing, false);
    QFont font(QStringLiteral("Arial"), 40);
    font.setStyleStrategy(QFont::NoAntialias);
    pittore.setFont(font);
    pittore.setPen(QColor::fromRgb(colore));
    pittore.drawText(40, 100, QStringLiteral("Vastrel"));
    pittore.drawText(40, pixel.height() - 60, QStringLiteral("snc"));
    return immagine;
}

} // namespace

/// What a printer gets of a picture without loss: each pixel that is not white, and little else.
class tst_PartiDiFigura : public QObject
{
    Q_OBJECT

private slots:
    void tuttoCioCheNonEBianco_data();
    void tuttoCioCheNonEBianco();
    void biancoIntornoAlleParti();
    void parteGrandeInStrisce();
};

void tst_PartiDiFigura::tuttoCioCheNonEBianco_data()
{
    QTest::addColumn<QImage>("immagine");
    QTest::addColumn<int>("parti");
    QTest::addColumn<int>("bit"); ///< of all pixels sent, at most
    const QSize pixel(400, 300);
    QTest::newRow("all white") << Bianca(pixel) << 0 << 0;
    QTest::newRow("all black") << ImmaginiDiProva::Tinta(pixel, qRgb(0, 0, 0)) << 1 << 400 * 300;
    const auto conPunti = [&](const QList<QPoint> &punti, QRgb colore) {
        QImage immagine = Bianca(pixel);
        for (const QPoint &punto : punti) {
            immagine.setPixel(punto, colore);
        }
        return immagine;
    };
    const QRgb rosso = qRgb(255, 0, 0);
    QTest::newRow("one pixel") << conPunti({{200, 100}}, rosso) << 1 << 9 * 32;
    QTest::newRow("one pixel, hardly not white")
        << conPunti({{200, 100}}, qRgb(255, 255, 254)) << 1 << 9 * 32;
    QTest::newRow("one black pixel") << conPunti({{200, 100}}, qRgb(0, 0, 0)) << 1 << 9;
    QTest::newRow("corners") << conPunti({{0, 0}, {399, 0}, {0, 299}, {399, 299}}, rosso) << 2
                             << 4 * 400 * 32;
    QTest::newRow("coloured text in two lines") << Testo(pixel, rosso) << 2 << 400 * 300 * 12;
    QTest::newRow("black text in two lines") << Testo(pixel, qRgb(0, 0, 0)) << 2 << 400 * 300 / 2;
    QTest::newRow("black text on one pixel's row")
        << Testo({401, 300}, qRgb(0, 0, 0)) << 2 << 60'000;
    QImage bordo = Bianca(pixel);
    bordo.setPixel(7, 9, rosso);
    bordo.setPixel(390, 9, qRgb(0, 0, 0));
    bordo.setPixel(390, 280, qRgb(0, 0, 0));
    QTest::newRow("only one of the stripes is coloured") << bordo << 2 << 3 * 400 * 32;
    QTest::newRow("one pixel in all") << ImmaginiDiProva::Tinta({1, 1}, rosso) << 1 << 32;
    QTest::newRow("photograph") << ImmaginiDiProva::Fotografia(pixel, 1) << 1 << 400 * 300 * 32;
}

void tst_PartiDiFigura::tuttoCioCheNonEBianco()
{
    QFETCH(QImage, immagine);
    QFETCH(int, parti);
    QFETCH(int, bit);
    const QList<Parte> divisa = PartiDiFigura::Divide(immagine);
    QCOMPARE(divisa.size(), parti);
    QCOMPARE(Ricomposta(divisa, immagine.size()), immagine);
    const int mandati =
        std::accumulate(divisa.begin(), divisa.end(), 0, [](int somma, const Parte &parte) {
            return somma + parte.Posto.width() * parte.Posto.height() * parte.Immagine.depth();
        });
    QVERIFY2(mandati <= bit, qPrintable(QString::number(mandati)));
}

void tst_PartiDiFigura::biancoIntornoAlleParti()
{
    // Lest a viewer that smooths shows the edge of the part sharper than that of the picture.
    QImage immagine = Bianca({300, 300});
    QPainter(&immagine).fillRect(50, 60, 70, 80, Qt::blue);
    const QList<Parte> parti = PartiDiFigura::Divide(immagine);
    QCOMPARE(parti.size(), 1);
    QCOMPARE(parti.constFirst().Posto, QRect(49, 59, 72, 82));
    QCOMPARE(parti.constFirst().Immagine, immagine.copy(parti.constFirst().Posto));
}

void tst_PartiDiFigura::parteGrandeInStrisce()
{
    QImage immagine(3000, 3100, QImage::Format_RGB32);
    for (int y = 0; y < immagine.height(); ++y) {
        auto *riga = reinterpret_cast<QRgb *>(immagine.scanLine(y));
        std::fill_n(riga, immagine.width(), qRgb(y % 251, y / 251, 9));
    }
    const QList<Parte> parti = PartiDiFigura::Divide(immagine);
    QCOMPARE(parti.size(), 3);
    QCOMPARE(Ricomposta(parti, immagine.size()), immagine);
    for (qsizetype k = 1; k < parti.size(); ++k) {
        QCOMPARE(parti.at(k).Posto.top(), parti.at(k - 1).Posto.bottom());
    }
}

QTEST_MAIN(tst_PartiDiFigura)
#include "tst_PartiDiFigura.moc"
