#include "Modelli.h"

#include <QTest>

#include <cmath>

/// What undo and redo bring back stands where it stood, to the last digit, though it comes back
/// selected and selecting places an element on whole millimetres.
class tst_RitornoEsatto : public QObject
{
    Q_OBJECT
private slots:
    void CorniceFraDueMillimetri();
};

void tst_RitornoEsatto::CorniceFraDueMillimetri()
{
    Postazione p;
    RiempieMisto(p);
    QVERIFY(p.ApreAttiva());
    p.Zoom("2.5");
    const Cornice &cornice = p.Aperto().Cornici[1];
    p.Clicca(p.Mezzo(Genere::Cornice, 1));
    const Modello primo = p.Aperto();
    QVERIFY(p.TrascinaManiglia(Genere::Cornice, {-7.4, 13.3}));
    const Modello secondo = p.Aperto();
    QVERIFY(cornice.X != std::floor(cornice.X)); // or nothing is left to round
    QVERIFY(p.TrascinaManiglia(Genere::Cornice, {-5, 9}));
    const Modello ultimo = p.Aperto();
    QVERIFY(ultimo.Cornici[1].X != secondo.Cornici[1].X);

    QTest::keyClick(&p.Finestra(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(cornice.X, secondo.Cornici[1].X);
    QVERIFY(p.Aperto() == secondo);
    QTest::keyClick(&p.Finestra(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(p.Aperto() == primo);
    QTest::keyClick(&p.Anteprima(), Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(p.Aperto() == secondo);
    QCOMPARE(p.Mezzo(Genere::Cornice, 1),
             QPointF(cornice.X + cornice.Larghezza / 2, cornice.Y + cornice.Altezza / 2));
    QTest::keyClick(&p.Anteprima(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(p.Aperto() == ultimo);
    p.DimenticaVariazioni();
}

QTEST_MAIN(tst_RitornoEsatto)
#include "tst_RitornoEsatto.moc"
