#include "preview/Banco.h"

#include <QAbstractButton>

namespace {

void Attiva(Banco &banco)
{
    Trova<QAbstractButton>(*banco.frm, "Aggancia")->click();
}

/// Drags the handle of a selected element so that its corner would go to a, and holds it there.
void PortaManiglia(Banco &banco, int k, QPointF a, Qt::KeyboardModifiers tasti = {})
{
    // The corner goes under the pointer, so the middle of the way does not matter.
    const QPointF da = banco.S(k)->Posto().topLeft() + QPointF(1, 1);
    banco.Muove(da);
    banco.Preme(da);
    const QPoint pixel = banco.Pixel(a);
    QMouseEvent evento(QEvent::MouseMove, pixel, banco.Vista()->mapToGlobal(pixel), Qt::NoButton,
                       Qt::LeftButton, tasti);
    QApplication::sendEvent(banco.Vista(), &evento);
}

QString LineaX(const Banco &banco)
{
    const auto *linea = banco.Controllo_<LineaGuida>(QStringLiteral("LineaAgganciaX"));
    return linea->isVisible() ? QString::number(linea->Posto().left()) : QString();
}

QString LineaY(const Banco &banco)
{
    const auto *linea = banco.Controllo_<LineaGuida>(QStringLiteral("LineaAgganciaY"));
    return linea->isVisible() ? QString::number(linea->Posto().top()) : QString();
}

void GuidaVerticale(Banco &banco, double x)
{
    auto *righello = Trova<QWidget>(*banco.frm, "RighelloY");
    const auto locale = [&](QPointF punto) {
        return righello->mapFromGlobal(banco.Vista()->mapToGlobal(banco.Pixel(punto)));
    };
    QTest::mousePress(righello, Qt::LeftButton, {}, locale({-3, 20}));
    QMouseEvent evento(QEvent::MouseMove, locale({x, 20}),
                       banco.Vista()->mapToGlobal(banco.Pixel({x, 20})), Qt::NoButton,
                       Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(righello, &evento);
    QTest::mouseRelease(righello, Qt::LeftButton, {}, locale({x, 20}));
}

/// A frame of 30 x 20 in hand at 100, 110, and a fixed one of 40 x 30 at 60, 50.
int CorniceInMano(Banco &banco)
{
    banco.Cornice(60, 50, 40, 30);
    const int i = banco.Cornice(100, 110, 30, 20);
    banco.frm->MostraModello();
    banco.frm->SelezionaCornice(i);
    return i;
}

} // namespace

class tst_Aggancio : public QObject
{
    Q_OBJECT
private slots:
    void SpentoNulla();
    void BordiECentri_data();
    void BordiECentri();
    void FuoriPortataComeSempre();
    void AlFoglio_data();
    void AlFoglio();
    void AUnaGuida();
    void NonASeStessoNeAgliNascosti();
    void NonAgliAltriScelti();
    void GliAltriSceltiVannoInsieme();
    void GliAltriSceltiRestanoSulFoglio();
    void AltLoSospende();
    void SpentoDuranteIlGesto();
    void CampoDiRigaSoloDiTraverso();
    void ImmagineSuMillimetriInteri();
    void AnchePerGliAltriZoom_data();
    void AnchePerGliAltriZoom();
    void LineeTrovateDiUnAltroColore();
    void RilascioEdEscapeLeNascondono();
    void UnPassoSolo();
    void BordiRidimensionati_data();
    void BordiRidimensionati();
    void RidimensionaImmagine();
    void RidimensionaSoloIBordiPresi();
    void RidimensionaConAlt();
    void TastoEPulsante();
};

void tst_Aggancio::SpentoNulla()
{
    Banco banco;
    const int i = CorniceInMano(banco);
    QVERIFY(!Trova<QAbstractButton>(*banco.frm, "Aggancia")->isChecked());
    PortaManiglia(banco, 2, {60.9, 120});
    QCOMPARE(banco.modello.Cornici[i].X, 61.0);
    QCOMPARE(LineaX(banco), QString());
    banco.Rilascia({60.9, 120});
}

void tst_Aggancio::BordiECentri_data()
{
    QTest::addColumn<QPointF>("verso");
    QTest::addColumn<QPointF>("posto");
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    const auto riga = [](const char *nome, QPointF verso, QPointF posto, const char *x,
                         const char *y) {
        QTest::newRow(nome) << verso << posto << QString::fromLatin1(x) << QString::fromLatin1(y);
    };
    riga("left to left", {60.7, 200}, {60, 200}, "60", "");
    riga("right to right", {69.4, 200}, {70, 200}, "100", "");
    riga("middle to middle", {64.5, 200}, {65, 200}, "80", "");
    riga("left to right", {99.4, 200}, {100, 200}, "100", "");
    riga("right to left", {30.6, 200}, {30, 200}, "60", "");
    riga("top to top", {150, 50.8}, {150, 50}, "", "50");
    riga("bottom to bottom", {150, 59.3}, {150, 60}, "", "80");
    riga("middle to middle, down", {150, 54.4}, {150, 55}, "", "65");
    riga("both ways", {60.6, 80.7}, {60, 80}, "60", "80");
}

void tst_Aggancio::BordiECentri()
{
    QFETCH(QPointF, verso);
    QFETCH(QPointF, posto);
    Banco banco;
    const int i = CorniceInMano(banco);
    Attiva(banco);
    PortaManiglia(banco, 2, verso);
    QTEST(LineaX(banco), "x");
    QTEST(LineaY(banco), "y");
    const Cornice &cornice = banco.modello.Cornici[i];
    QCOMPARE(QPointF(cornice.X, cornice.Y), posto);
    QCOMPARE(banco.C2(i)->Posto().topLeft(), posto);
    banco.Rilascia(verso);
    QCOMPARE(QPointF(cornice.X, cornice.Y), posto);
}

void tst_Aggancio::FuoriPortataComeSempre()
{
    Banco banco;
    const int i = CorniceInMano(banco);
    Attiva(banco);
    PortaManiglia(banco, 2, {62.4, 203});
    QCOMPARE(banco.modello.Cornici[i].X, 62.0);
    QCOMPARE(LineaX(banco), QString());
    banco.Rilascia({62.4, 203});
}

void tst_Aggancio::AlFoglio_data()
{
    QTest::addColumn<QPointF>("verso");
    QTest::addColumn<QPointF>("posto");
    QTest::newRow("left edge") << QPointF(0.7, 200) << QPointF(0, 200);
    QTest::newRow("right edge") << QPointF(209.3, 200) << QPointF(210, 200);
    QTest::newRow("middle") << QPointF(104.6, 210) << QPointF(105, 210);
    QTest::newRow("top edge") << QPointF(150, 0.8) << QPointF(150, 0);
    QTest::newRow("middle, down") << QPointF(150, 164.5) << QPointF(150, 165);
}

void tst_Aggancio::AlFoglio()
{
    QFETCH(QPointF, verso);
    QFETCH(QPointF, posto);
    Banco banco;
    const int i = CorniceInMano(banco);
    Attiva(banco);
    PortaManiglia(banco, 2, verso);
    QCOMPARE(QPointF(banco.modello.Cornici[i].X, banco.modello.Cornici[i].Y), posto);
    banco.Rilascia(verso);
}

void tst_Aggancio::AUnaGuida()
{
    Banco banco;
    const int i = CorniceInMano(banco);
    GuidaVerticale(banco, 141);
    Attiva(banco);
    PortaManiglia(banco, 2, {140.4, 200});
    QCOMPARE(banco.modello.Cornici[i].X, 141.0);
    QCOMPARE(LineaX(banco), QStringLiteral("141"));
    banco.Rilascia({140.4, 200});
}

void tst_Aggancio::NonASeStessoNeAgliNascosti()
{
    Banco banco;
    const int i = CorniceInMano(banco);
    banco.Cambia([](Modello &modello) { modello.Cornici[1].Nome.clear(); });
    banco.frm->NascondiElemento(Genere::Cornice, 1);
    banco.frm->SelezionaCornice(i);
    Attiva(banco);
    PortaManiglia(banco, 2, {60.7, 120}); // where the hidden one was
    QCOMPARE(LineaX(banco), QString());
    banco.Rilascia({60.7, 120});
    PortaManiglia(banco, 2, {62, 121}); // a millimetre off where it was itself
    QCOMPARE(LineaY(banco), QString());
    banco.Rilascia({62, 121});
}

void tst_Aggancio::NonAgliAltriScelti()
{
    Banco banco;
    const int i = CorniceInMano(banco);
    banco.stato.selezione.ImpostaScelti({{Genere::Cornice, 1}, {Genere::Cornice, i}});
    Attiva(banco);
    PortaManiglia(banco, 2, {60.7, 200});
    QCOMPARE(LineaX(banco), QString());
    banco.Rilascia({60.7, 200});
}

void tst_Aggancio::GliAltriSceltiVannoInsieme()
{
    Banco banco;
    const int i = CorniceInMano(banco);
    const int altra = banco.Cornice(150, 110, 20, 10);
    banco.frm->MostraModello();
    banco.frm->SelezionaCornice(i);
    banco.stato.selezione.ImpostaScelti({{Genere::Cornice, i}, {Genere::Cornice, altra}});
    Attiva(banco);
    PortaManiglia(banco, 2, {60.7, 120});
    QCOMPARE(LineaX(banco), QStringLiteral("60"));
    banco.Rilascia({60.7, 120});
    QCOMPARE(banco.modello.Cornici[i].X, 60.0);
    QCOMPARE(banco.modello.Cornici[altra].X, 110.0);
    QCOMPARE(LineaX(banco), QString());
}

void tst_Aggancio::GliAltriSceltiRestanoSulFoglio()
{
    // The line at 34 would push the other one, 35 to the left, off the sheet.
    Banco banco;
    const int i = CorniceInMano(banco);
    const int altra = banco.Cornice(65, 110, 20, 10);
    banco.Cornice(34, 50, 10, 10);
    banco.frm->MostraModello();
    banco.frm->SelezionaCornice(i);
    banco.stato.selezione.ImpostaScelti({{Genere::Cornice, i}, {Genere::Cornice, altra}});
    Attiva(banco);
    PortaManiglia(banco, 2, {34.4, 120});
    QCOMPARE(LineaX(banco), QString());
    banco.Rilascia({34.4, 120});
    QCOMPARE(banco.modello.Cornici[i].X, 35.0);
    QCOMPARE(banco.modello.Cornici[altra].X, 0.0);
}

void tst_Aggancio::AltLoSospende()
{
    Banco banco;
    const int i = CorniceInMano(banco);
    Attiva(banco);
    PortaManiglia(banco, 2, {60.9, 203}, Qt::AltModifier);
    QCOMPARE(banco.modello.Cornici[i].X, 61.0);
    QCOMPARE(LineaX(banco), QString());
    banco.Muove({60.9, 204}); // Alt is up again
    QCOMPARE(banco.modello.Cornici[i].X, 60.0);
    QCOMPARE(LineaX(banco), QStringLiteral("60"));
    banco.Rilascia({60.9, 204});
}

void tst_Aggancio::SpentoDuranteIlGesto()
{
    Banco banco;
    const int i = CorniceInMano(banco);
    Attiva(banco);
    PortaManiglia(banco, 2, {60.9, 203});
    QCOMPARE(LineaX(banco), QStringLiteral("60"));
    Attiva(banco); // off again
    QCOMPARE(LineaX(banco), QString());
    banco.Muove({61.9, 204});
    QCOMPARE(banco.modello.Cornici[i].X, 62.0);
    banco.Rilascia({61.9, 204});
}

void tst_Aggancio::CampoDiRigaSoloDiTraverso()
{
    Banco banco;
    banco.Cornice(90, 100, 40, 30);
    const QPointF maniglia = SullaManigliaDiRiga(banco);
    Attiva(banco);
    banco.Preme(maniglia);
    banco.Muove({90.6, 100.9});
    QCOMPARE(banco.modello.Campi[1].X, 90.0);
    QCOMPARE(LineaX(banco), QStringLiteral("90"));
    QCOMPARE(banco.modello.Campi[1].Y, 101.0); // and not 100: it goes back to its row anyway
    QCOMPARE(LineaY(banco), QString());
    banco.Rilascia({90.6, 100.9});
    QCOMPARE(QPointF(banco.modello.Campi[1].X, banco.modello.Campi[1].Y), QPointF(90, 40));
}

void tst_Aggancio::ImmagineSuMillimetriInteri()
{
    Banco banco;
    banco.Cornice(60, 50, 40, 30);
    const int i = banco.Immagine(120.4, 110.7, 25.5, 10);
    banco.frm->MostraModello();
    banco.frm->SelezionaImmagine(i);
    Attiva(banco);
    PortaManiglia(banco, 3, {74.2, 200}); // its right edge at 99.7
    QCOMPARE(LineaX(banco), QStringLiteral("100"));
    QCOMPARE(banco.modello.Immagini[i].X, 75.0); // 74.5 rounded
    banco.Rilascia({74.2, 200});
    QCOMPARE(banco.modello.Immagini[i].X, 75.0);
}

void tst_Aggancio::AnchePerGliAltriZoom_data()
{
    RigheDiZoom();
}

void tst_Aggancio::AnchePerGliAltriZoom()
{
    // Within reach by where the pointer is, not by the whole millimetres of screen that a drag
    // goes by; and not a fraction of a millimetre of paper is left.
    QFETCH(double, zoom);
    Banco banco;
    banco.Immagine(61, 50, 39, 30);
    const int i = banco.Immagine(150, 110, 40, 20);
    banco.frm->MostraModello();
    banco.Zoom(QString::number(zoom));
    banco.frm->SelezionaImmagine(i);
    Attiva(banco);
    const QPointF verso(61.2 / zoom, 49.9 / zoom);
    PortaManiglia(banco, 3, verso);
    QVERIFY(banco.modello.Immagini[i].X == 61 && banco.modello.Immagini[i].Y == 50);
    QCOMPARE(LineaX(banco).toDouble(), QString::number(61 / zoom).toDouble());
    banco.Rilascia(verso);
    QVERIFY(banco.modello.Immagini[i].X == 61 && banco.modello.Immagini[i].Y == 50);
}

void tst_Aggancio::LineeTrovateDiUnAltroColore()
{
    Banco banco;
    CorniceInMano(banco);
    Attiva(banco);
    PortaManiglia(banco, 2, {69.4, 200}); // its right edge at the other one's
    const QImage foglio = banco.Fotografia();
    const QRgb trovata = ColoreFoto(foglio, {100, 20});
    const QRgb mossa = ColoreFoto(foglio, {70, 20}); // the line that marks its left edge
    QVERIFY(trovata != 0xffffff && mossa != 0xffffff && trovata != mossa);
    QCOMPARE(ColoreFoto(foglio, {100, 340}), trovata); // all across the sheet
    banco.Rilascia({69.4, 200});
}

void tst_Aggancio::RilascioEdEscapeLeNascondono()
{
    Banco banco;
    const int i = CorniceInMano(banco);
    Attiva(banco);
    PortaManiglia(banco, 2, {60.7, 200});
    QCOMPARE(LineaX(banco), QStringLiteral("60"));
    QTest::keyClick(banco.frm.get(), Qt::Key_Escape);
    QCOMPARE(LineaX(banco), QString());
    QCOMPARE(banco.modello.Cornici[i].X, 100.0);
    banco.Rilascia({60.7, 200});
    PortaManiglia(banco, 2, {60.7, 200});
    QCOMPARE(LineaX(banco), QStringLiteral("60"));
    banco.Rilascia({60.7, 200});
    QCOMPARE(LineaX(banco), QString());
}

void tst_Aggancio::UnPassoSolo()
{
    Banco banco;
    const int i = CorniceInMano(banco);
    Attiva(banco);
    PortaManiglia(banco, 2, {60.7, 200});
    banco.Muove({60.2, 80.6});
    banco.Rilascia({60.2, 80.6});
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
    banco.stato.documento.Annulla();
    QVERIFY(!banco.stato.documento.PuoAnnullare());
    QCOMPARE(QPointF(banco.modello.Cornici[i].X, banco.modello.Cornici[i].Y), QPointF(100, 110));
}

void tst_Aggancio::BordiRidimensionati_data()
{
    QTest::addColumn<QPointF>("da");
    QTest::addColumn<QPointF>("a");
    QTest::addColumn<QSizeF>("misura");
    // The frame in hand reaches from 100, 90 to 130, 110; the other ends at 180 and 130.
    QTest::newRow("right edge") << QPointF(129.5, 100) << QPointF(178.8, 100) << QSizeF(80, 20);
    QTest::newRow("bottom edge") << QPointF(115, 109.5) << QPointF(115, 130.2) << QSizeF(30, 40);
    QTest::newRow("corner") << QPointF(129.5, 109.5) << QPointF(178.8, 130.2) << QSizeF(80, 40);
    QTest::newRow("the sheet's edge")
        << QPointF(129.5, 100) << QPointF(238.8, 100) << QSizeF(140, 20);
}

void tst_Aggancio::BordiRidimensionati()
{
    QFETCH(QPointF, da);
    QFETCH(QPointF, a);
    Banco banco;
    banco.Cornice(140, 120, 40, 10);
    const int i = banco.Cornice(100, 90, 30, 20);
    banco.frm->MostraModello();
    banco.Clicca({110, 100});
    Attiva(banco);
    banco.Trascina(da, a);
    const Cornice &cornice = banco.modello.Cornici[i];
    QTEST(QSizeF(cornice.Larghezza, cornice.Altezza), "misura");
    QCOMPARE(QPointF(cornice.X, cornice.Y), QPointF(100, 90));
    QCOMPARE(LineaX(banco) + LineaY(banco), QString());
}

void tst_Aggancio::RidimensionaImmagine()
{
    Banco banco;
    banco.Cornice(140, 120, 40, 10);
    const int i = banco.Immagine(100.4, 90, 30, 20);
    banco.frm->MostraModello();
    banco.Zoom(QStringLiteral("1.7"));
    banco.Clicca({110 / 1.7, 100 / 1.7});
    Attiva(banco);
    const QPointF da(129.9 / 1.7, 100 / 1.7);
    banco.Muove(da);
    banco.Preme(da);
    banco.Muove({160 / 1.7, 100 / 1.7});
    banco.Muove({179.4 / 1.7, 100 / 1.7});
    QCOMPARE(LineaX(banco).toDouble(), QString::number(180 / 1.7).toDouble());
    banco.Rilascia({179.4 / 1.7, 100 / 1.7});
    QVERIFY(banco.modello.Immagini[i].Larghezza == 80); // 79.6 rounded, and exactly
    QCOMPARE(banco.modello.Immagini[i].X, 100.4);
}

void tst_Aggancio::RidimensionaSoloIBordiPresi()
{
    Banco banco;
    banco.Cornice(140, 120, 40, 10);
    const int i = banco.Cornice(100, 90, 30, 20);
    banco.frm->MostraModello();
    banco.Clicca({110, 100});
    Attiva(banco);
    banco.Muove({129.5, 100});
    banco.Preme({129.5, 100});
    banco.Muove({150, 119.6}); // the pointer is beside a line that its bottom edge would take
    QCOMPARE(LineaY(banco), QString());
    QCOMPARE(banco.modello.Cornici[i].Altezza, 20.0);
    banco.Rilascia({150, 119.6});
}

void tst_Aggancio::RidimensionaConAlt()
{
    Banco banco;
    banco.Cornice(140, 120, 40, 10);
    const int i = banco.Immagine(100, 90, 30, 20);
    banco.frm->MostraModello();
    banco.Clicca({110, 100});
    Attiva(banco);
    banco.Muove({129.5, 100});
    banco.Preme({129.5, 100});
    const QPoint pixel = banco.Pixel({179, 100});
    QMouseEvent evento(QEvent::MouseMove, pixel, banco.Vista()->mapToGlobal(pixel), Qt::NoButton,
                       Qt::LeftButton, Qt::AltModifier);
    QApplication::sendEvent(banco.Vista(), &evento);
    QCOMPARE(LineaX(banco), QString());
    QVERIFY(banco.modello.Immagini[i].Larghezza != 80);
    banco.Rilascia({179, 100});
}

void tst_Aggancio::TastoEPulsante()
{
    Banco banco;
    auto *pulsante = Trova<QAbstractButton>(*banco.frm, "Aggancia");
    QVERIFY(pulsante->toolTip().contains(QStringLiteral("Alt")));
    QVERIFY(pulsante->toolTip().endsWith(QStringLiteral("(Ctrl+G)")));
    banco.frm->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(banco.frm.get()));
    QTest::keyClick(banco.frm.get(), Qt::Key_G, Qt::ControlModifier);
    QVERIFY(pulsante->isChecked());
    QTest::keyClick(banco.frm.get(), Qt::Key_G, Qt::ControlModifier);
    QVERIFY(!pulsante->isChecked());
}

QTEST_MAIN(tst_Aggancio)
#include "tst_Aggancio.moc"
