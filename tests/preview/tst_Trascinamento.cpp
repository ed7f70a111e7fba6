#include "model/Numeri.h"
#include "preview/Banco.h"

class tst_Trascinamento : public QObject
{
    Q_OBJECT
private slots:
    void TrascinaCampo_data() { RigheDiZoom(); }
    void TrascinaCampo();
    void TrascinaCornice_data() { RigheDiZoom(); }
    void TrascinaCornice();
    void TrascinaImmagine_data() { RigheDiZoom(); }
    void TrascinaImmagine();
    void PassoDi3e4AZoom2();
    void PassoSoloConSinistroEPuntatoreDiSpostamento();
    void OltreIBordi_data();
    void OltreIBordi();
    void CampoDiRigaTornaAInizioRighe();
    void PiuLargoDelFoglio();
    void LineeGuidaDuranteIlTrascinamento();
    void AsseFermoTieneLeSueCifre();
    void FineDelGesto();
    void RilascioPersoConcludeIlGesto();
    void ManigliaAncheSottoAltri();
};

void tst_Trascinamento::TrascinaCampo()
{
    QFETCH(double, zoom);
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 60, 50);
    banco.Zoom(QString::number(zoom));
    const QPointF angolo(60 / zoom, 50 / zoom);
    const QPointF presa = angolo + QPointF(1, 1);
    banco.Muove(presa + QPointF(2, 1)); // pointing selects
    banco.Muove(presa);
    banco.segnali.clear();
    banco.Preme(presa);
    const QPointF fine(130, 90);
    banco.Muove(fine);
    // One step moves by the whole millimetres of screen of the pointer's offset in the handle.
    const QPointF scarto = banco.Centro(fine) - angolo;
    const QPointF atteso = angolo + QPointF(Numeri::Ar(scarto.x()), Numeri::Ar(scarto.y()));
    QCOMPARE(banco.C1(1)->Posto().topLeft(), atteso);
    QCOMPARE(banco.S(1)->Posto().topLeft(), atteso);
    QCOMPARE(banco.modello.Campi[1].X, atteso.x() * zoom);
    QCOMPARE(banco.modello.Campi[1].Y, atteso.y() * zoom);
    // The next step starts from there: the handle follows the pointer.
    banco.Muove(fine + QPointF(10, -20));
    const QPointF passo = banco.Centro(fine + QPointF(10, -20)) - atteso;
    const QPointF secondo = atteso + QPointF(Numeri::Ar(passo.x()), Numeri::Ar(passo.y()));
    QCOMPARE(banco.C1(1)->Posto().topLeft(), secondo);
    banco.Rilascia(fine + QPointF(10, -20));
    // Released, it lies on whole millimetres of paper.
    QCOMPARE(banco.modello.Campi[1].X, Numeri::Ar(secondo.x() * zoom));
    QCOMPARE(banco.modello.Campi[1].Y, Numeri::Ar(secondo.y() * zoom));
    QCOMPARE(banco.C1(1)->Posto().left(), banco.modello.Campi[1].X / zoom);
    QVERIFY(banco.stato.documento.Variato());
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
}

void tst_Trascinamento::TrascinaCornice()
{
    QFETCH(double, zoom);
    Banco banco;
    banco.Cornice(60, 50, 30, 20);
    banco.Zoom(QString::number(zoom));
    const QPointF angolo(60 / zoom, 50 / zoom);
    banco.Clicca(angolo + QPointF(5, 3));
    banco.Muove(angolo + QPointF(0.8, 0.8));
    banco.Preme(angolo + QPointF(0.8, 0.8));
    banco.segnali.clear();
    const QPointF fine(100, 80);
    banco.Muove(fine);
    const QPointF scarto = banco.Centro(fine) - angolo;
    const QPointF atteso = angolo + QPointF(Numeri::Ar(scarto.x()), Numeri::Ar(scarto.y()));
    banco.Rilascia(fine);
    const Cornice &cornice = banco.modello.Cornici[1];
    QCOMPARE(cornice.X, atteso.x() * zoom); // rounded when next placed, not now
    QCOMPARE(cornice.Y, atteso.y() * zoom);
    QCOMPARE(banco.C2(1)->Posto(), QRectF(atteso, QSizeF(30 / zoom, 20 / zoom)));
    QCOMPARE(cornice.Larghezza, 30.0);
    QVERIFY(banco.stato.documento.Variato());
    QCOMPARE(banco.segnali.last(), QStringLiteral("ModificaConclusa"));
    banco.frm->PosizionaCornice(1);
    QCOMPARE(cornice.X, Numeri::Ar(atteso.x() * zoom));
}

void tst_Trascinamento::TrascinaImmagine()
{
    QFETCH(double, zoom);
    Banco banco;
    banco.Immagine(60.25, 50.5, 30, 20);
    banco.Zoom(QString::number(zoom));
    const QPointF angolo(60.25 / zoom, 50.5 / zoom);
    banco.Clicca(angolo + QPointF(5, 3));
    banco.TrascinaManiglia(3, {100, 80});
    // The handle's corner goes to the pointer itself: no rounding, then or later.
    const QPointF atteso = banco.Centro({100, 80});
    QCOMPARE(banco.C3(1)->Posto().topLeft(), atteso);
    QCOMPARE(banco.modello.Immagini[1].X, atteso.x() * zoom);
    QCOMPARE(banco.modello.Immagini[1].Y, atteso.y() * zoom);
    banco.frm->PosizionaImmagine(1);
    QCOMPARE(banco.modello.Immagini[1].X, atteso.x() * zoom);
}

void tst_Trascinamento::PassoDi3e4AZoom2()
{
    Banco banco;
    banco.stato.zoom = 2;
    banco.Campo(QStringLiteral("uno"), 101, 50);
    banco.Immagine(101, 50, 20, 20);
    QCOMPARE(banco.C1(1)->Posto().left(), 50.5);
    banco.frm->SelezionaCampo(1);
    banco.frm->SpostaCampo(1, Qt::LeftButton, {}, 3.4, 0);
    QCOMPARE(banco.C1(1)->Posto().left(), 53.5);
    QCOMPARE(banco.modello.Campi[1].X, 107.0);
    banco.frm->PosizionaCampo(1);
    QCOMPARE(banco.modello.Campi[1].X, 107.0);
    banco.frm->SelezionaImmagine(1);
    banco.frm->SpostaImmagine(1, Qt::LeftButton, {}, 3.4, 0);
    QCOMPARE(banco.modello.Immagini[1].X, 107.8);
}

void tst_Trascinamento::PassoSoloConSinistroEPuntatoreDiSpostamento()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 60, 50);
    banco.frm->SelezionaCampo(1);
    banco.frm->SpostaCampo(1, Qt::NoButton, {}, 5, 5);
    banco.frm->SpostaCampo(1, Qt::RightButton, {}, 5, 5);
    QCOMPARE(banco.C1(1)->Posto().topLeft(), QPointF(60, 50));
    banco.frm->Campineri(); // the handle loses its move pointer
    banco.frm->SpostaCampo(1, Qt::LeftButton, {}, 5, 5);
    QCOMPARE(banco.C1(1)->Posto().topLeft(), QPointF(60, 50));
    QCOMPARE(banco.segnali, QStringList());
    banco.frm->SelezionaCampo(1);
    banco.frm->SpostaCampo(1, Qt::LeftButton | Qt::RightButton, {}, 5, 5);
    QCOMPARE(banco.C1(1)->Posto().topLeft(), QPointF(65, 55));
}

void tst_Trascinamento::OltreIBordi_data()
{
    QTest::addColumn<QPointF>("passo");
    QTest::addColumn<QPointF>("angolo");
    QTest::newRow("left") << QPointF(-500, 0) << QPointF(0, 50);
    QTest::newRow("top") << QPointF(0, -500) << QPointF(60, 0);
    QTest::newRow("right: flush at 240") << QPointF(500, 0) << QPointF(240 - 30, 50);
    QTest::newRow("bottom: flush at 350") << QPointF(0, 500) << QPointF(60, 350 - 20);
    QTest::newRow("corner") << QPointF(-500, 500) << QPointF(0, 330);
}

void tst_Trascinamento::OltreIBordi()
{
    QFETCH(QPointF, passo);
    QFETCH(QPointF, angolo);
    Banco banco;
    banco.Cornice(60, 50, 30, 20);
    banco.frm->SelezionaCornice(1);
    banco.frm->SpostaCornice(1, Qt::LeftButton, {}, passo.x(), passo.y());
    QCOMPARE(banco.C2(1)->Posto().topLeft(), angolo);
    QCOMPARE(banco.modello.Cornici[1].X, angolo.x());
    QCOMPARE(banco.modello.Cornici[1].Y, angolo.y());

    banco.Campo(QStringLiteral("uno"), 60, 50);
    const QSizeF misura = banco.frm->MisuraControllo(Genere::Campo, 1);
    banco.frm->SelezionaCampo(1);
    banco.frm->SpostaCampo(1, Qt::LeftButton, {}, passo.x(), passo.y());
    const QPointF campo(passo.x() > 0 ? 240 - misura.width() : angolo.x(),
                        passo.y() > 0 ? 350 - misura.height() : angolo.y());
    QCOMPARE(banco.C1(1)->Posto().topLeft(), campo);
}

void tst_Trascinamento::CampoDiRigaTornaAInizioRighe()
{
    Banco banco;
    banco.Cambia([&](Modello &modello) { modello.Righe.yInizio = 40.25; });
    banco.Campo(QStringLiteral("R_Descr"), 60, 10);
    banco.Muove({63, 42});
    banco.TrascinaManiglia(1, {90, 100});
    QCOMPARE(banco.modello.Campi[1].Y, 40.25);
    QCOMPARE(banco.C1(1)->Posto().top(), 40.25);
    QVERIFY(banco.modello.Campi[1].X > 80);
    // Only its height was dropped elsewhere: nothing has changed, the gesture ends unmarked.
    banco.segnali.clear();
    const double x = banco.modello.Campi[1].X;
    banco.Muove({x + 3, 42});
    banco.Preme({x + 0.6, 40.8});
    banco.Muove({x + 0.3, 90});
    banco.Rilascia({x + 0.3, 90});
    QCOMPARE(banco.modello.Campi[1].X, x);
    QCOMPARE(banco.Volte("ModificaConclusa"), 0);
}

void tst_Trascinamento::PiuLargoDelFoglio()
{
    Banco banco;
    banco.Cornice(10, 10, 300, 20);
    banco.frm->SelezionaCornice(1);
    banco.frm->SpostaCornice(1, Qt::LeftButton, {}, 5, 0);
    QCOMPARE(banco.C2(1)->Posto().left(), -60.0); // its far edge flush with the sheet's
}

void tst_Trascinamento::LineeGuidaDuranteIlTrascinamento()
{
    Banco banco;
    banco.Cornice(60, 50, 30, 20);
    auto *LineXX = banco.Controllo_<LineaGuida>(QStringLiteral("LineXX"));
    auto *LineYY = banco.Controllo_<LineaGuida>(QStringLiteral("LineYY"));
    banco.Clicca({75, 60});
    banco.Preme({61, 51});
    QVERIFY(!LineXX->isVisible());
    banco.Muove({80, 70});
    QVERIFY(LineXX->isVisible() && LineYY->isVisible());
    const QPointF angolo = banco.C2(1)->Posto().topLeft();
    QCOMPARE(LineXX->Posto(), QRectF(0, angolo.y(), 240, 0));
    QCOMPARE(LineYY->Posto(), QRectF(angolo.x(), 0, 0, 350));
    const QImage foglio = banco.Fotografia();
    const QRgb colore = banco.S(2)->Sfondo().rgb();
    QCOMPARE(foglio.pixel(10, PuntoFoto(foglio, angolo).y()), colore);
    QCOMPARE(foglio.pixel(PuntoFoto(foglio, angolo).x(), 10), colore);
    banco.Rilascia({80, 70});
    QVERIFY(!LineXX->isVisible() && !LineYY->isVisible());
}

void tst_Trascinamento::AsseFermoTieneLeSueCifre()
{
    Banco banco;
    banco.stato.zoom = 1.7;
    banco.Immagine(60.3, 0.1, 30, 20);
    banco.frm->SelezionaImmagine(1);
    banco.frm->SpostaImmagine(1, Qt::LeftButton, {}, 2, 0);
    QVERIFY(banco.modello.Immagini[1].Y == 0.1); // to the last bit
}

void tst_Trascinamento::FineDelGesto()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 60, 50);
    banco.Muove({63, 52});
    banco.segnali.clear();
    banco.Preme({60.5, 50.5});
    banco.Rilascia({60.5, 50.5});
    // A click on the handle places the field again and so marks the model, but ends no edit.
    QVERIFY(banco.stato.documento.Variato());
    QCOMPARE(banco.Volte("ModificaConclusa"), 0);
    QCOMPARE(banco.modello.Campi[1].X, 60.0);
}

void tst_Trascinamento::RilascioPersoConcludeIlGesto()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 60, 50);
    banco.Muove({63, 52});
    banco.Preme({60.5, 50.5});
    banco.Muove({80.4, 60.4});
    QMouseEvent senzaBottoni(QEvent::MouseMove, banco.Pixel({150, 100}),
                             banco.Vista()->mapToGlobal(banco.Pixel({150, 100})), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(banco.Vista(), &senzaBottoni);
    QCOMPARE(banco.C1(1)->Posto().topLeft(), QPointF(80, 60));
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
    QVERIFY(!banco.Controllo_<LineaGuida>(QStringLiteral("LineXX"))->isVisible());
    banco.Rilascia({150, 100});
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
}

void tst_Trascinamento::ManigliaAncheSottoAltri()
{
    Banco banco;
    banco.Cornice(60, 50, 30, 20);
    banco.frm->SelezionaCornice(1);
    banco.Immagine(40, 40, 80, 60); // lies over the handle
    banco.TrascinaManiglia(2, {100, 80});
    QVERIFY(banco.modello.Cornici[1].X > 95);
    QCOMPARE(banco.modello.Immagini[1].X, 40.0);
}

QTEST_MAIN(tst_Trascinamento)
#include "tst_Trascinamento.moc"
