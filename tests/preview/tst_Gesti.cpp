#include "preview/Banco.h"

/// How gestures on the sheet end, whatever happens to the mouse meanwhile, and what they leave.
class tst_Gesti : public QObject
{
    Q_OBJECT
private slots:
    // Resizing past the sheet
    void IlBordoBassoNonTagliaLaLarghezza();
    void IlBordoDestroNonTagliaLAltezza();
    void OltreIlFoglioIlPrimoPassoNonTaglia();
    void OltreIlFoglioNonSiAllontana();
};

void tst_Gesti::IlBordoBassoNonTagliaLaLarghezza()
{
    Banco banco;
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(150);
    banco.Cornice(180, 50, 100, 30); // 40 mm past the sheet
    banco.frm->SelezionaCornice(1);
    banco.Trascina({200, 79.5}, {200, 99.5});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 100.0);
    QCOMPARE(banco.modello.Cornici[1].Altezza, 50.0);
}

void tst_Gesti::IlBordoDestroNonTagliaLAltezza()
{
    Banco banco;
    Trova<QScrollBar>(*banco.frm, "ScrollY")->setValue(250);
    banco.Cornice(50, 300, 40, 80); // 30 mm past the sheet
    banco.frm->SelezionaCornice(1);
    banco.Trascina({89.5, 320}, {109.5, 320});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 60.0);
    QCOMPARE(banco.modello.Cornici[1].Altezza, 80.0);
}

void tst_Gesti::OltreIlFoglioIlPrimoPassoNonTaglia()
{
    Banco banco;
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(150);
    banco.Cornice(180, 50, 61, 30); // its right edge 1 mm past the sheet, still to be gripped
    banco.frm->SelezionaCornice(1);
    const QPointF presa(239.6, 60);
    banco.Muove(presa);
    banco.Preme(presa);
    const double passo = 2 * MillimetriPerPixel;
    banco.Muove(presa - QPointF(passo, 0));
    QCOMPARE(banco.C2(1)->Posto().width(), 61 - passo);
    banco.Muove(presa);
    QCOMPARE(banco.C2(1)->Posto().width(), 61.0);
    banco.Rilascia(presa);
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 61.0);
}

void tst_Gesti::OltreIlFoglioNonSiAllontana()
{
    Banco banco;
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(150);
    banco.Cornice(180, 50, 61, 30);
    banco.frm->SelezionaCornice(1);
    banco.Trascina({239.6, 79.5}, {300, 99.5}); // by the corner
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 61.0);
    QCOMPARE(banco.modello.Cornici[1].Altezza, 50.0);
    banco.Trascina({239.6, 60}, {220, 60});
    QVERIFY(banco.modello.Cornici[1].Larghezza < 45);
    // Back on the sheet, its edge is the limit again.
    banco.Trascina(banco.C2(1)->Posto().bottomRight() - QPointF(0.5, 20), {300, 60});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 60.0);
}

QTEST_MAIN(tst_Gesti)
#include "tst_Gesti.moc"
