#include "preview/Sfondo.h"
#include "support/Errori.h"
#include "support/ImmaginiDiProva.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr double Scala = 96 / 25.4;

QImage Dipinto(Sfondo &sfondo, double zoom, const QRectF &esposto = QRectF(0, 0, 240, 350))
{
    QImage foglio(907, 1323, QImage::Format_RGB32);
    foglio.fill(Qt::white);
    QPainter penna(&foglio);
    penna.scale(Scala, Scala);
    penna.setClipRect(esposto);
    sfondo.Dipinge(penna, esposto, zoom);
    return foglio;
}

QRgb Colore(const QImage &foglio, double x, double y)
{
    return foglio.pixel(static_cast<int>(x * Scala), static_cast<int>(y * Scala)) & 0xffffff;
}

} // namespace

class tst_Sfondo : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void Stirato();
    void DecodificatoUnaVoltaSola();
    void FileCambiatoRiletto();
    void SoloLaParteEsposta();
    void MaiPiuFineDelFoglio_data();
    void MaiPiuFineDelFoglio();
    void RettangoloVuoto_data();
    void RettangoloVuoto();
    void RettangoloPiuGrandeDelFoglio();
    void ErroreLasciaVuoto();
    void ScansioneA600PuntiInFretta();

private:
    QString File(const QString &nome) const { return cartella_.filePath(nome); }

    QTemporaryDir cartella_;
    QString quadranti_; // red, green, blue, black from the top left, clockwise
};

void tst_Sfondo::init()
{
    QImage immagine(200, 200, QImage::Format_RGB32);
    QPainter penna(&immagine);
    penna.fillRect(0, 0, 100, 100, QColor(0xff0000));
    penna.fillRect(100, 0, 100, 100, QColor(0x00ff00));
    penna.fillRect(100, 100, 100, 100, QColor(0x0000ff));
    penna.fillRect(0, 100, 100, 100, Qt::black);
    penna.end();
    quadranti_ = File(QStringLiteral("quadranti.bmp"));
    QVERIFY(immagine.save(quadranti_));
}

void tst_Sfondo::Stirato()
{
    Sfondo sfondo;
    sfondo.Imposta(quadranti_, QRectF(20, 30, 100, 60), Scala);
    for (const double zoom : {1.0, 1.7, 2.5, 3.0}) {
        const QImage foglio = Dipinto(sfondo, zoom);
        QCOMPARE(Colore(foglio, 40 / zoom, 45 / zoom), 0xff0000u);
        QCOMPARE(Colore(foglio, 100 / zoom, 45 / zoom), 0x00ff00u);
        QCOMPARE(Colore(foglio, 100 / zoom, 75 / zoom), 0x0000ffu);
        QCOMPARE(Colore(foglio, 40 / zoom, 75 / zoom), 0x000000u);
        QCOMPARE(Colore(foglio, 18 / zoom, 45 / zoom), 0xffffffu);
        QCOMPARE(Colore(foglio, 122 / zoom, 45 / zoom), 0xffffffu);
        QCOMPARE(Colore(foglio, 40 / zoom, 92 / zoom), 0xffffffu);
    }
}

void tst_Sfondo::DecodificatoUnaVoltaSola()
{
    Sfondo sfondo;
    sfondo.Imposta(quadranti_, QRectF(20, 30, 100, 60), Scala);
    const qint64 chiave = sfondo.Maestra().cacheKey();
    sfondo.Imposta(quadranti_, QRectF(20.5, 30, 100, 60), Scala); // nudged
    Dipinto(sfondo, 1);
    Dipinto(sfondo, 2);
    QCOMPARE(sfondo.Maestra().cacheKey(), chiave);
    sfondo.Imposta(quadranti_, QRectF(20.5, 30, 90, 60), Scala);
    QVERIFY(sfondo.Maestra().cacheKey() != chiave);
}

void tst_Sfondo::FileCambiatoRiletto()
{
    Sfondo sfondo;
    sfondo.Imposta(quadranti_, QRectF(0, 0, 100, 60), Scala);
    ImmaginiDiProva::Tinta({200, 200}, 0xff00ffff).save(quadranti_);
    QFile file(quadranti_);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60),
                             QFileDevice::FileModificationTime));
    file.close();
    sfondo.Imposta(quadranti_, QRectF(0, 0, 100, 60), Scala);
    QCOMPARE(Colore(Dipinto(sfondo, 1), 20, 20), 0x00ffffu);
}

void tst_Sfondo::SoloLaParteEsposta()
{
    // Painted in strips it is the same picture as painted at once.
    Sfondo sfondo;
    sfondo.Imposta(quadranti_, QRectF(20.3, 30.7, 100.9, 60.1), Scala);
    for (const double zoom : {1.0, 1.7}) {
        const QImage intero = Dipinto(sfondo, zoom);
        QImage foglio(907, 1323, QImage::Format_RGB32);
        foglio.fill(Qt::white);
        QPainter penna(&foglio);
        penna.scale(Scala, Scala);
        for (int riga = 0; riga < 1323; riga += 37) {
            const QRectF striscia(0, riga / Scala, 907 / Scala, 37 / Scala);
            penna.setClipRect(striscia);
            sfondo.Dipinge(penna, striscia, zoom);
        }
        penna.end();
        QCOMPARE(foglio, intero);
    }
}

void tst_Sfondo::MaiPiuFineDelFoglio_data()
{
    QTest::addColumn<QRectF>("posto");
    QTest::newRow("the sheet") << QRectF(0, 0, 240, 350);
    QTest::newRow("a metre") << QRectF(0, 0, 1000, 1000);
    QTest::newRow("1e9 mm") << QRectF(-5e8, -5e8, 1e9, 1e9);
}

void tst_Sfondo::MaiPiuFineDelFoglio()
{
    QFETCH(QRectF, posto);
    Sfondo sfondo;
    sfondo.Imposta(quadranti_, posto, Scala);
    QVERIFY(sfondo.Maestra().width() <= 908);
    QVERIFY(sfondo.Maestra().height() <= 1323);
    Dipinto(sfondo, 1);
    Dipinto(sfondo, 3);
}

void tst_Sfondo::RettangoloVuoto_data()
{
    QTest::addColumn<QRectF>("posto");
    QTest::newRow("both sizes 0") << QRectF(0, 0, 0, 0);
    QTest::newRow("no height") << QRectF(10, 10, 50, 0);
    QTest::newRow("negative") << QRectF(10, 10, -50, 30);
    QTest::newRow("infinite") << QRectF(10, 10, qInf(), 30);
    QTest::newRow("no number") << QRectF(qQNaN(), 10, 50, 30);
}

void tst_Sfondo::RettangoloVuoto()
{
    QFETCH(QRectF, posto);
    Sfondo sfondo;
    sfondo.Imposta(quadranti_, QRectF(0, 0, 100, 60), Scala);
    sfondo.Imposta(quadranti_, posto, Scala);
    QVERIFY(sfondo.Vuoto());
    QCOMPARE(Colore(Dipinto(sfondo, 1), 20, 20), 0xffffffu);
}

void tst_Sfondo::RettangoloPiuGrandeDelFoglio()
{
    Sfondo sfondo;
    sfondo.Imposta(quadranti_, QRectF(-100, -100, 400, 600), Scala);
    const QImage foglio = Dipinto(sfondo, 1);
    QCOMPARE(Colore(foglio, 50, 100), 0xff0000u);
    QCOMPARE(Colore(foglio, 150, 100), 0x00ff00u);
    QCOMPARE(Colore(foglio, 150, 300), 0x0000ffu);
    QCOMPARE(Colore(foglio, 50, 300), 0x000000u);
}

void tst_Sfondo::ErroreLasciaVuoto()
{
    Sfondo sfondo;
    sfondo.Imposta(quadranti_, QRectF(0, 0, 100, 60), Scala);
    QCOMPARE(ErroreDi([&] {
                 sfondo.Imposta(File(QStringLiteral("manca.bmp")), QRectF(0, 0, 100, 60), Scala);
             }),
             53);
    QVERIFY(sfondo.Vuoto());
    Dipinto(sfondo, 1);
}

void tst_Sfondo::ScansioneA600PuntiInFretta()
{
    // An A4 page at 600 dpi: 35 megapixels. Reading it may take its time, painting must not.
    QImage scansione(4960, 7016, QImage::Format_RGB32);
    scansione.fill(QColor(0x00ffff));
    const QString percorso = File(QStringLiteral("a4.jpg"));
    QVERIFY(scansione.save(percorso, nullptr, 60));
    scansione = QImage();
    Sfondo sfondo;
    sfondo.Imposta(percorso, QRectF(0, 0, 210, 297), Scala);
    QVERIFY(sfondo.Maestra().sizeInBytes() < 6'000'000);
    Dipinto(sfondo, 1);
    QElapsedTimer tempo;
    tempo.start();
    constexpr int Strisce = 50;
    for (int k = 0; k < Strisce; ++k) {
        Dipinto(sfondo, 1, QRectF(0, 0, 240, 20)); // a strip, as a drag exposes it
    }
    const qint64 striscia = tempo.restart();
    sfondo.Imposta(percorso, QRectF(0.5, 0, 210, 297), Scala); // a nudge
    Dipinto(sfondo, 1);
    const qint64 spinta = tempo.elapsed();
    QVERIFY2(striscia / Strisce < 20, qPrintable(QString::number(striscia)));
    QVERIFY2(spinta < 100, qPrintable(QString::number(spinta)));
}

QTEST_MAIN(tst_Sfondo)
#include "tst_Sfondo.moc"
