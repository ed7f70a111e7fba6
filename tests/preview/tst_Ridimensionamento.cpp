#include "preview/Ridimensionamento.h"

#include <QTest>

class tst_Ridimensionamento : public QObject
{
    Q_OBJECT
private slots:
    void Prese_data();
    void Prese();
    void PuntatorePerPresa();
    void Misure_data();
    void Misure();
};

void tst_Ridimensionamento::Prese_data()
{
    QTest::addColumn<QSizeF>("misura");
    QTest::addColumn<QPointF>("punto");
    QTest::addColumn<Presa>("presa");
    const QSizeF grande(50, 30);
    QTest::newRow("middle") << grande << QPointF(20, 15) << Presa::Nessuna;
    QTest::newRow("right edge") << grande << QPointF(49, 15) << Presa::Destra;
    QTest::newRow("just inside the zone") << grande << QPointF(48.5, 15) << Presa::Destra;
    QTest::newRow("just before the zone") << grande << QPointF(48.4, 15) << Presa::Nessuna;
    QTest::newRow("bottom edge") << grande << QPointF(20, 29.5) << Presa::Basso;
    QTest::newRow("corner") << grande << QPointF(49.5, 29.5) << Presa::Angolo;
    QTest::newRow("left edge") << grande << QPointF(0, 15) << Presa::Nessuna;
    QTest::newRow("top edge") << grande << QPointF(20, 0) << Presa::Nessuna;
    QTest::newRow("beyond the right edge, within reach")
        << grande << QPointF(50.5, 15) << Presa::Destra;
    QTest::newRow("out of reach") << grande << QPointF(51, 15) << Presa::Nessuna;
    QTest::newRow("above") << grande << QPointF(49, -0.1) << Presa::Nessuna;
    const QSizeF piccola(3, 2.4);
    QTest::newRow("tiny: only the last third of its width")
        << piccola << QPointF(1.9, 1) << Presa::Nessuna;
    QTest::newRow("tiny: right edge") << piccola << QPointF(2.1, 1) << Presa::Destra;
    QTest::newRow("tiny: bottom edge") << piccola << QPointF(1, 1.7) << Presa::Basso;
}

void tst_Ridimensionamento::Prese()
{
    QFETCH(QSizeF, misura);
    QFETCH(QPointF, punto);
    QTEST(Ridimensionamento::PresaIn(misura, punto, 1.5, 0.8), "presa");
}

void tst_Ridimensionamento::PuntatorePerPresa()
{
    QCOMPARE(Ridimensionamento::Puntatore(Presa::Destra), Qt::SizeHorCursor);
    QCOMPARE(Ridimensionamento::Puntatore(Presa::Basso), Qt::SizeVerCursor);
    QCOMPARE(Ridimensionamento::Puntatore(Presa::Angolo), Qt::SizeFDiagCursor);
    QCOMPARE(Ridimensionamento::Puntatore(Presa::Nessuna), Qt::ArrowCursor);
}

void tst_Ridimensionamento::Misure_data()
{
    QTest::addColumn<QRectF>("posto");
    QTest::addColumn<Presa>("presa");
    QTest::addColumn<QPointF>("bordo");
    QTest::addColumn<QSizeF>("misura");
    const QRectF r(100, 200, 50, 30);
    QTest::newRow("right: only the width")
        << r << Presa::Destra << QPointF(60, 70) << QSizeF(60, 30);
    QTest::newRow("bottom: only the height")
        << r << Presa::Basso << QPointF(60, 70) << QSizeF(50, 70);
    QTest::newRow("corner: both") << r << Presa::Angolo << QPointF(60, 70) << QSizeF(60, 70);
    QTest::newRow("nothing gripped") << r << Presa::Nessuna << QPointF(60, 70) << QSizeF(50, 30);
    QTest::newRow("never below the minimum")
        << r << Presa::Angolo << QPointF(-9, 0.2) << QSizeF(1, 1);
    QTest::newRow("never past the sheet")
        << r << Presa::Angolo << QPointF(999, 999) << QSizeF(140, 150);
    const QRectF oltre(100, 200, 200, 300);
    QTest::newRow("past the sheet already: no jump to its edge")
        << oltre << Presa::Destra << QPointF(199, 5) << QSizeF(199, 300);
    QTest::newRow("past the sheet already: no farther")
        << oltre << Presa::Angolo << QPointF(999, 999) << QSizeF(200, 300);
    QTest::newRow("no room left on the sheet")
        << QRectF(239.5, 200, 20, 30) << Presa::Angolo << QPointF(5, 5) << QSizeF(20, 5);
}

void tst_Ridimensionamento::Misure()
{
    QFETCH(QRectF, posto);
    QFETCH(Presa, presa);
    QFETCH(QPointF, bordo);
    QTEST(Ridimensionamento::Misura(posto, presa, bordo, 1, {240, 350}), "misura");
}

QTEST_APPLESS_MAIN(tst_Ridimensionamento)
#include "tst_Ridimensionamento.moc"
