#include "preview/GeometriaAnteprima.h"

#include <QTest>

namespace {

constexpr double Punti96 = 96 / 25.4;

}

class tst_GeometriaAnteprima : public QObject
{
    Q_OBJECT
private slots:
    void Foglio_data();
    void Foglio();
    void DisposizioneSegueLaFinestra_data();
    void DisposizioneSegueLaFinestra();
    void FoglioAccantoAiRighelli();
    void FinestraLasciaPostoAllEditor_data();
    void FinestraLasciaPostoAllEditor();
    void PixelPiuVicino();
    void PixelMaiOltreUnaFinestra_data();
    void PixelMaiOltreUnaFinestra();
};

void tst_GeometriaAnteprima::Foglio_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("larghezza");
    QTest::addColumn<double>("altezza");
    QTest::addColumn<int>("massimoX");
    QTest::addColumn<int>("massimoY");
    QTest::newRow("zoom 1") << 1.0 << 240.0 << 350.0 << 240 << 350;
    QTest::newRow("zoom 1.7") << 1.7 << 240 / 1.7 << 350 / 1.7 << 141 << 206;
    QTest::newRow("zoom 2.5") << 2.5 << 96.0 << 140.0 << 96 << 140;
    QTest::newRow("zoom 3") << 3.0 << 80.0 << 350 / 3.0 << 80 << 117;
    QTest::newRow("halves go to even") << 1.12 << 240 / 1.12 << 312.5 << 214 << 312;
}

void tst_GeometriaAnteprima::Foglio()
{
    QFETCH(double, zoom);
    const GeometriaAnteprima geometria(Punti96, zoom);
    QTEST(geometria.LarghezzaFoglio(), "larghezza");
    QTEST(geometria.AltezzaFoglio(), "altezza");
    QTEST(geometria.MassimoScrollX(), "massimoX");
    QTEST(geometria.MassimoScrollY(), "massimoY");
}

void tst_GeometriaAnteprima::DisposizioneSegueLaFinestra_data()
{
    QTest::addColumn<double>("W");
    QTest::addColumn<double>("H");
    QTest::newRow("1366x768") << 361.4 << 150.3;
    QTest::newRow("2560x1440") << 677.3 << 328.1;
    QTest::newRow("smaller than the controls") << 20.0 << 10.0;
}

void tst_GeometriaAnteprima::DisposizioneSegueLaFinestra()
{
    QFETCH(double, W);
    QFETCH(double, H);
    const auto d = GeometriaAnteprima::Dispone(W, H);
    QCOMPARE(d.LL.left(), W - d.LL.width());
    QCOMPARE(d.LL.top(), H - d.LL.height() - 4);
    QCOMPARE(d.ScrollY.left(), W - d.ScrollY.width());
    QCOMPARE(d.ScrollY.height(), H - 15);
    QCOMPARE(d.ScrollX.width(), W - 10);
    QCOMPARE(d.ScrollX.top(), H - d.ScrollX.height() - 5);
    QCOMPARE(d.Text1.width(), W);
    QCOMPARE(d.Text1.top(), H - d.Text1.height());
    QCOMPARE(d.PX.top(), H - d.PX.height());
    QCOMPARE(d.PY.top(), H - d.PY.height());
}

void tst_GeometriaAnteprima::FoglioAccantoAiRighelli()
{
    const auto d = GeometriaAnteprima::Dispone(361.4, 150.3);
    QVERIFY(d.AreaRighelloX.height() >= 6);
    QVERIFY(d.AreaRighelloY.width() >= 6);
    QCOMPARE(d.AreaFoglio.top(), d.AreaRighelloX.bottom());
    QCOMPARE(d.AreaFoglio.left(), d.AreaRighelloY.right());
    QCOMPARE(d.AreaRighelloX.left(), d.AreaFoglio.left());
    QCOMPARE(d.AreaRighelloY.top(), d.AreaFoglio.top());
    // Nothing of the strip covers the sheet or another box.
    QVERIFY(d.AreaFoglio.bottom() <= d.ScrollX.top());
    QVERIFY(!d.LL.intersects(d.ScrollX));
    QVERIFY(!d.LL.intersects(d.ScrollY));
    QVERIFY(d.PX.right() < d.PY.left());
    QVERIFY(d.PY.right() < d.Label1.left());
    QVERIFY(d.Label1.right() <= d.TextZoom.left());
}

void tst_GeometriaAnteprima::FinestraLasciaPostoAllEditor_data()
{
    QTest::addColumn<QSize>("schermo");
    QTest::addColumn<QMargins>("cornice");
    QTest::addColumn<QSize>("interna");
    QTest::newRow("3000 twips are 200 pixels at 96 dpi")
        << QSize(1366, 768) << QMargins() << QSize(1366, 568);
    QTest::newRow("the frame counts")
        << QSize(1366, 768) << QMargins(1, 20, 1, 1) << QSize(1364, 547);
    QTest::newRow("a screen lower than the strip")
        << QSize(300, 150) << QMargins() << QSize(300, 1);
}

void tst_GeometriaAnteprima::FinestraLasciaPostoAllEditor()
{
    QFETCH(QSize, schermo);
    QFETCH(QMargins, cornice);
    QTEST(GeometriaAnteprima(Punti96, 1).MisuraInterna(schermo, cornice), "interna");
}

void tst_GeometriaAnteprima::PixelPiuVicino()
{
    const GeometriaAnteprima geometria(4, 1);
    QCOMPARE(geometria.Pixel(10), 40);
    QCOMPARE(geometria.Pixel(10.1), 40);
    QCOMPARE(geometria.Pixel(10.13), 41);
    QCOMPARE(geometria.Pixel(-10.13), -41);
    QCOMPARE(geometria.Pixel(QRectF(0.1, 0.1, 10.1, 10.1)), QRect(0, 0, 41, 41));
    QCOMPARE(geometria.Millimetri(QPointF(40, 6)), QPointF(10, 1.5));
}

void tst_GeometriaAnteprima::PixelMaiOltreUnaFinestra_data()
{
    QTest::addColumn<double>("millimetri");
    QTest::newRow("1e300") << 1e300;
    QTest::newRow("-1e300") << -1e300;
    QTest::newRow("infinite") << qInf();
    QTest::newRow("no number") << qQNaN();
}

void tst_GeometriaAnteprima::PixelMaiOltreUnaFinestra()
{
    QFETCH(double, millimetri);
    const int pixel = GeometriaAnteprima(Punti96, 1).Pixel(millimetri);
    QVERIFY(pixel >= -32768 && pixel <= 32767);
}

QTEST_MAIN(tst_GeometriaAnteprima)
#include "tst_GeometriaAnteprima.moc"
