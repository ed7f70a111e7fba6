#include "model/Numeri.h"
#include "preview/Banco.h"

#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

Q_DECLARE_METATYPE(Genere)

namespace {

void RigheDiZoom()
{
    QTest::addColumn<double>("zoom");
    for (const double zoom : {1.0, 1.7, 2.5, 3.0}) {
        QTest::addRow("zoom %g", zoom) << zoom;
    }
}

int Volte(const QStringList &segnali, const char *segnale)
{
    return static_cast<int>(segnali.count(QString::fromLatin1(segnale)));
}

QStringList Voci(std::initializer_list<const char *> voci)
{
    QStringList testi;
    for (const char *voce : voci) {
        testi.append(QString::fromLatin1(voce));
    }
    return testi;
}

} // namespace

class tst_ManiSulFoglio : public QObject
{
    Q_OBJECT
private slots:
    // Pointing and clicking
    void PuntareUnCampoLoSeleziona();
    void PuntareConUnBottonePremuto();
    void FoglioVuotoSpegneICampi();
    void TastoDestroSulCampo();
    void DoppioClickSulCampo();
    void ClickSuCornice();
    void TastoDestroSuCornice();
    void DoppioClickSuCornice();
    void ClickSuImmagine();
    void TastoDestroSuImmagine();
    void DoppioClickSuImmagine();
    void PremutoFuoriRilasciatoSopraNonEClick();
    void SorvolareMandaInFondo();
    void RilascioRiordinaPerSuperficie();
    void ElementiMinuscoliSiPuntano();
    void PosizioneDelPuntatoreSoloConSinistro();
    void Suggerimenti();
    void IlSuggerimentoSeNeVaConIlPuntatore();
    // Dragging
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
    // Resizing
    void Ridimensiona_data();
    void Ridimensiona();
    void PuntatoriDiRidimensionamento_data() { RigheDiZoom(); }
    void PuntatoriDiRidimensionamento();
    void ClickSenzaMovimentoNonCambiaNulla();
    void MaiSottoUnMillimetro();
    void MaiOltreIlFoglio_data() { RigheDiZoom(); }
    void MaiOltreIlFoglio();
    void BordoVietaIlRidimensionamento_data();
    void BordoVietaIlRidimensionamento();
    void CampoDavantiAlBordo_data();
    void CampoDavantiAlBordo();
    void SoloLaSelezionataSiRidimensiona();
    void PremutoAlCentroNonRidimensiona();
    void CorniceDentroUnAltraSiRidimensiona();
    void PiccolaSiRidimensionaOltreLaManiglia();
    void MisuraModelloUgualeAlControllo_data() { RigheDiZoom(); }
    void MisuraModelloUgualeAlControllo();
};

void tst_ManiSulFoglio::PuntareUnCampoLoSeleziona()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 20, 20);
    banco.Campo(QStringLiteral("due"), 60, 40);
    banco.Muove({62, 42});
    QCOMPARE(banco.segnali, Voci({"ElementoPuntato 0 2", "PaginaRichiesta 0"}));
    QCOMPARE(banco.C1(2)->Colore(), QColor(0x0000ff));
    QVERIFY(banco.C1(2)->Bordo());
    QVERIFY(banco.S(1)->isVisible());
    QCOMPARE(banco.S(1)->Tag, QStringLiteral("2"));
    QCOMPARE(banco.S(1)->Posto().topLeft(), QPointF(60, 40));
    banco.Muove({22, 22});
    QVERIFY(!banco.C1(2)->Bordo());
    QVERIFY(banco.C1(1)->Bordo());
    QCOMPARE(banco.S(1)->Tag, QStringLiteral("1"));
}

void tst_ManiSulFoglio::PuntareConUnBottonePremuto()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 20, 20);
    banco.Muove({24, 22});
    banco.Preme({24, 22}, Qt::MiddleButton);
    banco.segnali.clear();
    banco.Muove({25, 22});
    QCOMPARE(banco.segnali, Voci({"ElementoPuntato 0 1", "PaginaRichiesta 0"}));
    banco.segnali.clear();
    banco.Rilascia({25, 22}, Qt::MiddleButton);
    QCOMPARE(banco.segnali, QStringList());
}

void tst_ManiSulFoglio::FoglioVuotoSpegneICampi()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 20, 20);
    banco.Muove({24, 22});
    banco.Muove({100, 100});
    QVERIFY(!banco.C1(1)->Bordo());
    QCOMPARE(banco.C1(1)->Colore(), QColor(Qt::black));
    QVERIFY(!banco.S(1)->isVisible());
}

void tst_ManiSulFoglio::TastoDestroSulCampo()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 20, 20);
    banco.Muove({24, 22});
    banco.segnali.clear();
    banco.Preme({24, 22}, Qt::RightButton);
    QCOMPARE(banco.segnali, Voci({"RichiestaProprieta 0 1"}));
    banco.Rilascia({24, 22}, Qt::RightButton);
    QCOMPARE(banco.segnali, Voci({"RichiestaProprieta 0 1"}));
}

void tst_ManiSulFoglio::DoppioClickSulCampo()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 20, 20);
    banco.Muove({24, 22});
    banco.segnali.clear();
    banco.CliccaDueVolte({24, 22});
    QCOMPARE(Volte(banco.segnali, "RichiestaProprieta 0 1"), 1);
}

void tst_ManiSulFoglio::ClickSuCornice()
{
    Banco banco;
    banco.Cornice(20, 20, 50, 30);
    banco.Muove({40, 40});
    QCOMPARE(banco.segnali, QStringList());
    banco.Preme({40, 40});
    QCOMPARE(banco.segnali, QStringList());
    banco.Rilascia({40, 40});
    // The page turns first: turning it hides the handles.
    QCOMPARE(banco.segnali, Voci({"ElementoPuntato 1 1", "PaginaRichiesta 1"}));
    QVERIFY(banco.S(2)->isVisible());
    QCOMPARE(banco.S(2)->Tag, QStringLiteral("1"));
    banco.Muove({100, 100});
    QVERIFY(banco.S(2)->isVisible()); // frames stay selected
}

void tst_ManiSulFoglio::TastoDestroSuCornice()
{
    Banco banco;
    banco.Cornice(20, 20, 50, 30);
    banco.Preme({40, 40}, Qt::RightButton);
    QCOMPARE(banco.segnali,
             Voci({"ElementoPuntato 1 1", "PaginaRichiesta 1", "RichiestaProprieta 1 1"}));
    QVERIFY(banco.S(2)->isVisible());
}

void tst_ManiSulFoglio::DoppioClickSuCornice()
{
    Banco banco;
    banco.Cornice(20, 20, 50, 30);
    banco.CliccaDueVolte({40, 40});
    QCOMPARE(banco.segnali,
             Voci({"ElementoPuntato 1 1", "PaginaRichiesta 1", "RichiestaProprieta 1 1"}));
}

void tst_ManiSulFoglio::ClickSuImmagine()
{
    Banco banco;
    banco.Immagine(20, 20, 50, 30);
    bool visibilePrimaDellaPagina = false;
    QObject::connect(banco.frm.get(), &Frm1::PaginaRichiesta, banco.frm.get(),
                     [&] { visibilePrimaDellaPagina = banco.S(3)->isVisible(); });
    banco.Clicca({40, 40});
    QCOMPARE(banco.segnali, Voci({"ElementoPuntato 2 1", "PaginaRichiesta 2"}));
    QVERIFY(visibilePrimaDellaPagina);
}

void tst_ManiSulFoglio::TastoDestroSuImmagine()
{
    Banco banco;
    banco.Immagine(20, 20, 50, 30);
    banco.Preme({40, 40}, Qt::RightButton);
    QCOMPARE(banco.segnali,
             Voci({"ElementoPuntato 2 1", "PaginaRichiesta 2", "RichiestaProprieta 2 1"}));
}

void tst_ManiSulFoglio::DoppioClickSuImmagine()
{
    Banco banco;
    banco.Immagine(20, 20, 50, 30);
    banco.CliccaDueVolte({40, 40});
    QCOMPARE(Volte(banco.segnali, "RichiestaProprieta 2 1"), 1);
    QCOMPARE(banco.segnali.last(), QStringLiteral("RichiestaProprieta 2 1"));
}

void tst_ManiSulFoglio::PremutoFuoriRilasciatoSopraNonEClick()
{
    Banco banco;
    banco.Cornice(20, 20, 50, 30);
    banco.Muove({100, 100});
    banco.Preme({100, 100});
    banco.Rilascia({40, 40});
    QCOMPARE(banco.segnali, QStringList());
    banco.Preme({40, 40});
    banco.Rilascia({100, 100});
    QCOMPARE(banco.segnali, QStringList());
}

void tst_ManiSulFoglio::SorvolareMandaInFondo()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 30, 30);
    banco.Cornice(20, 20, 50, 30); // created later: in front of the field
    QVERIFY(banco.C2(1)->zValue() > banco.C1(1)->zValue());
    banco.Muove({32, 32});
    QVERIFY(banco.C2(1)->zValue() < banco.C1(1)->zValue());
    banco.Muove({32, 33});
    QVERIFY(banco.segnali.contains(QStringLiteral("ElementoPuntato 0 1")));
    banco.Immagine(20, 20, 50, 30);
    banco.Muove({60, 40});
    QVERIFY(banco.C3(1)->zValue() < banco.C2(1)->zValue());
}

void tst_ManiSulFoglio::RilascioRiordinaPerSuperficie()
{
    Banco banco;
    banco.Cornice(20, 20, 20, 20);
    banco.Cornice(20, 20, 100, 50);
    banco.Muove({100, 60});
    banco.Muove({30, 30}); // the small one goes behind the large one
    QVERIFY(banco.C2(1)->zValue() < banco.C2(2)->zValue());
    banco.Clicca({100, 60});
    QVERIFY(banco.C2(1)->zValue() > banco.C2(2)->zValue());
    QVERIFY(banco.S(2)->zValue() > banco.C2(1)->zValue());
}

void tst_ManiSulFoglio::ElementiMinuscoliSiPuntano()
{
    Banco banco;
    banco.Campo(QStringLiteral("vuoto"), 20, 20, QString());
    banco.Muove({20.6, 20.6});
    QVERIFY(banco.segnali.contains(QStringLiteral("ElementoPuntato 0 1")));
    banco.Cornice(60, 20, 0, 0);
    banco.Clicca({60.6, 20.6});
    QVERIFY(banco.segnali.contains(QStringLiteral("ElementoPuntato 1 1")));
}

void tst_ManiSulFoglio::PosizioneDelPuntatoreSoloConSinistro()
{
    Banco banco;
    const auto *PX = Trova<QLineEdit>(*banco.frm, "PX");
    const auto *PY = Trova<QLineEdit>(*banco.frm, "PY");
    banco.stato.zoom = 2; // the read-out is in mm of screen, whatever the zoom
    banco.Muove({100, 80});
    QCOMPARE(PX->text(), QString());
    banco.Preme({100, 80});
    banco.Muove({110, 90});
    const QPointF punto = banco.Centro({110, 90});
    QLocale locale;
    QCOMPARE(PX->text(), locale.toString(static_cast<float>(punto.x()), 'g', 7));
    QCOMPARE(PY->text(), locale.toString(static_cast<float>(punto.y()), 'g', 7));
    banco.Rilascia({110, 90});
    const QString fermo = PX->text();
    banco.Muove({120, 90});
    QCOMPARE(PX->text(), fermo);
}

void tst_ManiSulFoglio::Suggerimenti()
{
    // The hint of what lies under the pointer, as plain text, carriage return as a line end.
    Banco banco;
    banco.Campo(QStringLiteral("<b>uno</b>"), 20, 20);
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Maschera = QStringLiteral("##"); });
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Descrizione = QStringLiteral("d"); });
    banco.frm->ImpostazioniCampo(1);
    QCOMPARE(banco.C1(1)->toolTip(), QStringLiteral("campo <b>uno</b>  - d -'\r2 ##"));
    banco.Muove({100, 100});
    QHelpEvent aiuto(QEvent::ToolTip, banco.Pixel({24, 22}),
                     banco.Vista()->mapToGlobal(banco.Pixel({24, 22})));
    QApplication::sendEvent(banco.Vista(), &aiuto);
    QTRY_VERIFY(QToolTip::isVisible());
    QTextDocumentFragment mostrato = QTextDocumentFragment::fromHtml(QToolTip::text());
    QCOMPARE(mostrato.toPlainText(), QStringLiteral("campo <b>uno</b>  - d -'\n2 ##"));
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Nome = QStringLiteral("uno"); });
    banco.frm->ImpostazioniCampo(1);
    QApplication::sendEvent(banco.Vista(), &aiuto);
    QTRY_COMPARE(QToolTip::text(), QStringLiteral("campo uno  - d -'\n2 ##"));
    QToolTip::hideText();
}

void tst_ManiSulFoglio::IlSuggerimentoSeNeVaConIlPuntatore()
{
    Banco banco;
    banco.Cornice(30, 30, 60, 40);
    banco.Muove({50, 50});
    QHelpEvent aiuto(QEvent::ToolTip, banco.Pixel({50, 50}),
                     banco.Vista()->mapToGlobal(banco.Pixel({50, 50})));
    QApplication::sendEvent(banco.Vista(), &aiuto);
    QTRY_VERIFY(QToolTip::isVisible());
    const QString mostrato = QToolTip::text();
    QVERIFY(mostrato.startsWith(QLatin1String("Cornice ")));
    banco.Muove({80, 60});
    QCOMPARE(QToolTip::text(), mostrato); // still inside: it stays
    banco.Muove({120, 100});
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_ManiSulFoglio::TrascinaCampo()
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
    QVERIFY(banco.segnali.contains(QStringLiteral("Variato")));
    QCOMPARE(Volte(banco.segnali, "ModificaConclusa"), 1);
}

void tst_ManiSulFoglio::TrascinaCornice()
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
    QVERIFY(banco.segnali.contains(QStringLiteral("Variato")));
    QCOMPARE(banco.segnali.last(), QStringLiteral("ModificaConclusa"));
    banco.frm->PosizionaCornice(1);
    QCOMPARE(cornice.X, Numeri::Ar(atteso.x() * zoom));
}

void tst_ManiSulFoglio::TrascinaImmagine()
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

void tst_ManiSulFoglio::PassoDi3e4AZoom2()
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

void tst_ManiSulFoglio::PassoSoloConSinistroEPuntatoreDiSpostamento()
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

void tst_ManiSulFoglio::OltreIBordi_data()
{
    QTest::addColumn<QPointF>("passo");
    QTest::addColumn<QPointF>("angolo");
    QTest::newRow("left") << QPointF(-500, 0) << QPointF(0, 50);
    QTest::newRow("top") << QPointF(0, -500) << QPointF(60, 0);
    QTest::newRow("right: flush at 240") << QPointF(500, 0) << QPointF(240 - 30, 50);
    QTest::newRow("bottom: flush at 350") << QPointF(0, 500) << QPointF(60, 350 - 20);
    QTest::newRow("corner") << QPointF(-500, 500) << QPointF(0, 330);
}

void tst_ManiSulFoglio::OltreIBordi()
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

void tst_ManiSulFoglio::CampoDiRigaTornaAInizioRighe()
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
    QCOMPARE(Volte(banco.segnali, "ModificaConclusa"), 0);
}

void tst_ManiSulFoglio::PiuLargoDelFoglio()
{
    Banco banco;
    banco.Cornice(10, 10, 300, 20);
    banco.frm->SelezionaCornice(1);
    banco.frm->SpostaCornice(1, Qt::LeftButton, {}, 5, 0);
    QCOMPARE(banco.C2(1)->Posto().left(), -60.0); // its far edge flush with the sheet's
}

void tst_ManiSulFoglio::LineeGuidaDuranteIlTrascinamento()
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

void tst_ManiSulFoglio::AsseFermoTieneLeSueCifre()
{
    Banco banco;
    banco.stato.zoom = 1.7;
    banco.Immagine(60.3, 0.1, 30, 20);
    banco.frm->SelezionaImmagine(1);
    banco.frm->SpostaImmagine(1, Qt::LeftButton, {}, 2, 0);
    QVERIFY(banco.modello.Immagini[1].Y == 0.1); // to the last bit
}

void tst_ManiSulFoglio::FineDelGesto()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 60, 50);
    banco.Muove({63, 52});
    banco.segnali.clear();
    banco.Preme({60.5, 50.5});
    banco.Rilascia({60.5, 50.5});
    // A click on the handle places the field again and so marks the model, but ends no edit.
    QVERIFY(banco.segnali.contains(QStringLiteral("Variato")));
    QCOMPARE(Volte(banco.segnali, "ModificaConclusa"), 0);
    QCOMPARE(banco.modello.Campi[1].X, 60.0);
}

void tst_ManiSulFoglio::RilascioPersoConcludeIlGesto()
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
    QCOMPARE(Volte(banco.segnali, "ModificaConclusa"), 1);
    QVERIFY(!banco.Controllo_<LineaGuida>(QStringLiteral("LineXX"))->isVisible());
    banco.Rilascia({150, 100});
    QCOMPARE(Volte(banco.segnali, "ModificaConclusa"), 1);
}

void tst_ManiSulFoglio::ManigliaAncheSottoAltri()
{
    Banco banco;
    banco.Cornice(60, 50, 30, 20);
    banco.frm->SelezionaCornice(1);
    banco.Immagine(40, 40, 80, 60); // lies over the handle
    banco.TrascinaManiglia(2, {100, 80});
    QVERIFY(banco.modello.Cornici[1].X > 95);
    QCOMPARE(banco.modello.Immagini[1].X, 40.0);
}

void tst_ManiSulFoglio::Ridimensiona_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPointF>("presa"); // of the element's size: 1 = the edge
    QTest::addColumn<bool>("larghezza");
    QTest::addColumn<bool>("altezza");
    for (const double zoom : {1.0, 1.7, 2.5, 3.0}) {
        for (const Genere genere : {Genere::Cornice, Genere::Immagine}) {
            const char *nome = genere == Genere::Cornice ? "frame" : "image";
            QTest::addRow("%s, right edge, zoom %g", nome, zoom)
                << genere << zoom << QPointF(1, 0.5) << true << false;
            QTest::addRow("%s, bottom edge, zoom %g", nome, zoom)
                << genere << zoom << QPointF(0.5, 1) << false << true;
            QTest::addRow("%s, corner, zoom %g", nome, zoom)
                << genere << zoom << QPointF(1, 1) << true << true;
        }
    }
}

void tst_ManiSulFoglio::Ridimensiona()
{
    QFETCH(Genere, genere);
    QFETCH(double, zoom);
    QFETCH(QPointF, presa);
    QFETCH(bool, larghezza);
    QFETCH(bool, altezza);
    Banco banco;
    const bool cornice = genere == Genere::Cornice;
    if (cornice) {
        banco.Cornice(30, 30, 60, 40);
    } else {
        banco.Immagine(30, 30, 60, 40);
    }
    banco.Zoom(QString::number(zoom));
    const QRectF posto(30 / zoom, 30 / zoom, 60 / zoom, 40 / zoom);
    banco.Clicca(posto.center());
    // Gripped half a millimetre inside the edge; the edge keeps that distance from the pointer.
    const QPointF da = posto.topLeft() +
                       QPointF(presa.x() * posto.width() - 0.5, presa.y() * posto.height() - 0.5);
    const QPointF a = da + QPointF(20, 15);
    banco.segnali.clear();
    banco.Muove(da);
    banco.Preme(da);
    banco.Muove(da + QPointF(7, 3));
    banco.Muove(a);
    banco.Rilascia(a);
    const QPointF passo = banco.Centro(a) - banco.Centro(da);
    const QSizeF atteso(posto.width() + (larghezza ? passo.x() : 0),
                        posto.height() + (altezza ? passo.y() : 0));
    const double w =
        cornice ? banco.modello.Cornici[1].Larghezza : banco.modello.Immagini[1].Larghezza;
    const double h = cornice ? banco.modello.Cornici[1].Altezza : banco.modello.Immagini[1].Altezza;
    // A frame is placed on whole millimetres at the release, an image keeps its fraction.
    QCOMPARE(w, cornice ? Numeri::Ar(atteso.width() * zoom) : atteso.width() * zoom);
    QCOMPARE(h, cornice ? Numeri::Ar(atteso.height() * zoom) : atteso.height() * zoom);
    QCOMPARE(banco.frm->MisuraControllo(genere, 1) * zoom, QSizeF(w, h));
    QVERIFY(banco.segnali.contains(QStringLiteral("Variato")));
    QCOMPARE(Volte(banco.segnali, "ModificaConclusa"), 1);
    QCOMPARE(cornice ? banco.modello.Cornici[1].X : banco.modello.Immagini[1].X, 30.0);
}

void tst_ManiSulFoglio::PuntatoriDiRidimensionamento()
{
    QFETCH(double, zoom);
    Banco banco;
    banco.Cornice(30, 30, 60, 40);
    banco.Zoom(QString::number(zoom));
    const QRectF posto(30 / zoom, 30 / zoom, 60 / zoom, 40 / zoom);
    banco.Clicca(posto.center());
    const auto puntatoreA = [&](QPointF punto) {
        banco.Muove(punto);
        return banco.Vista()->cursor().shape();
    };
    QCOMPARE(puntatoreA({posto.right() - 0.6, posto.center().y()}), Qt::SizeHorCursor);
    QCOMPARE(puntatoreA({posto.center().x(), posto.bottom() - 0.6}), Qt::SizeVerCursor);
    QCOMPARE(puntatoreA(posto.bottomRight() - QPointF(0.6, 0.6)), Qt::SizeFDiagCursor);
    QCOMPARE(puntatoreA(posto.center()), Qt::ArrowCursor);
    QCOMPARE(puntatoreA({posto.right() - 2, posto.center().y()}), Qt::ArrowCursor);
    QCOMPARE(puntatoreA(posto.topLeft() + QPointF(0.8, 0.8)), Qt::SizeAllCursor);
    QCOMPARE(puntatoreA({190, 120}), Qt::ArrowCursor);
}

void tst_ManiSulFoglio::ClickSenzaMovimentoNonCambiaNulla()
{
    Banco banco;
    banco.stato.zoom = 1.7;
    banco.Immagine(30.1, 30.3, 60.7, 40.9);
    banco.frm->SelezionaImmagine(1);
    const Immagine prima = banco.modello.Immagini[1];
    banco.Clicca(banco.C3(1)->Posto().bottomRight() - QPointF(0.5, 0.5));
    QVERIFY(banco.modello.Immagini[1] == prima);
    QCOMPARE(Volte(banco.segnali, "Variato"), 0);
    QCOMPARE(Volte(banco.segnali, "ModificaConclusa"), 0);
}

void tst_ManiSulFoglio::MaiSottoUnMillimetro()
{
    Banco banco;
    banco.stato.zoom = 2;
    banco.Cornice(60, 60, 60, 40);
    banco.frm->SelezionaCornice(1);
    banco.Trascina({59.5, 49.5}, {10, 10});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 1.0);
    QCOMPARE(banco.modello.Cornici[1].Altezza, 1.0);
}

void tst_ManiSulFoglio::MaiOltreIlFoglio()
{
    QFETCH(double, zoom);
    Banco banco(zoom); // the sheet is 240 x 350 mm of paper at the opening's zoom
    banco.Cornice(199, 299, 20, 20);
    banco.Immagine(199.5, 299.5, 20, 20);
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(qRound(150 / zoom));
    Trova<QScrollBar>(*banco.frm, "ScrollY")->setValue(qRound(250 / zoom));
    banco.frm->SelezionaCornice(1);
    QPointF angolo = banco.C2(1)->Posto().bottomRight();
    banco.Trascina(angolo - QPointF(0.4, 0.4), angolo + QPointF(80, 80));
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 41.0);
    QCOMPARE(banco.modello.Cornici[1].Altezza, 51.0);
    banco.frm->NascondiElemento(Genere::Cornice, 1);
    banco.frm->SelezionaImmagine(1);
    angolo = banco.C3(1)->Posto().bottomRight();
    banco.Trascina(angolo - QPointF(0.4, 0.4), angolo + QPointF(80, 80));
    QCOMPARE(banco.modello.Immagini[1].Larghezza, 40.5);
    QCOMPARE(banco.modello.Immagini[1].Altezza, 50.5);
}

void tst_ManiSulFoglio::BordoVietaIlRidimensionamento_data()
{
    QTest::addColumn<double>("bordo");
    QTest::addColumn<bool>("ridimensiona");
    QTest::newRow("0: never") << 0.0 << false;
    QTest::newRow("2: never") << 2.0 << false;
    QTest::newRow("2.2: never") << 2.2 << false;
    QTest::newRow("1") << 1.0 << true;
    QTest::newRow("1.5") << 1.5 << true;
    QTest::newRow("0.5") << 0.5 << true;
    QTest::newRow("3") << 3.0 << true;
}

void tst_ManiSulFoglio::BordoVietaIlRidimensionamento()
{
    QFETCH(double, bordo);
    QFETCH(bool, ridimensiona);
    Banco banco;
    banco.Cornice(30, 30, 60, 40, bordo);
    banco.frm->SelezionaCornice(1);
    banco.Muove({89.5, 50});
    QCOMPARE(banco.C2(1)->Puntatore(), ridimensiona ? Qt::SizeHorCursor : Qt::ArrowCursor);
    banco.Trascina({89.5, 50}, {120, 50});
    QCOMPARE(banco.modello.Cornici[1].Larghezza > 80, ridimensiona);
    QCOMPARE(banco.segnali.contains(QStringLiteral("Variato")), ridimensiona);
}

void tst_ManiSulFoglio::CampoDavantiAlBordo_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("sul bordo di una cornice") << Genere::Cornice;
    QTest::newRow("sul bordo di un'immagine") << Genere::Immagine;
}

void tst_ManiSulFoglio::CampoDavantiAlBordo()
{
    QFETCH(Genere, genere);
    Banco banco;
    if (genere == Genere::Cornice) {
        banco.Cornice(30, 30, 60, 40);
    } else {
        banco.Immagine(30, 30, 60, 40);
    }
    banco.Campo(QStringLiteral("Totale"), 85, 50, QStringLiteral("123456"));
    banco.frm->Seleziona(genere, 1);
    const QPointF sulBordo(89.5, 51.5);
    QVERIFY(banco.C1(1)->Posto().contains(sulBordo));
    banco.Muove(sulBordo);
    QVERIFY(banco.segnali.contains(QStringLiteral("ElementoPuntato 0 1")));
    QCOMPARE(banco.Vista()->cursor().shape(), Qt::ArrowCursor);
    banco.Trascina(sulBordo, {110, 51.5});
    QCOMPARE(genere == Genere::Cornice ? banco.modello.Cornici[1].Larghezza
                                       : banco.modello.Immagini[1].Larghezza,
             60.0);
    QVERIFY(!banco.segnali.contains(QStringLiteral("Variato")));
    banco.segnali.clear();
    banco.CliccaDueVolte(sulBordo);
    QVERIFY(banco.segnali.contains(QStringLiteral("RichiestaProprieta 0 1")));
    // Where no field lies, the same edge is gripped.
    banco.Trascina({89.5, 40}, {110, 40});
    QVERIFY(banco.segnali.contains(QStringLiteral("Variato")));
}

void tst_ManiSulFoglio::SoloLaSelezionataSiRidimensiona()
{
    Banco banco;
    banco.Cornice(30, 30, 60, 40);
    banco.Cornice(120, 30, 30, 40);
    banco.frm->SelezionaCornice(2);
    banco.Trascina({89.5, 50}, {110, 50});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 60.0);
    banco.frm->NascondiManiglie();
    banco.Trascina({149.5, 50}, {170, 50});
    QCOMPARE(banco.modello.Cornici[2].Larghezza, 30.0);
}

void tst_ManiSulFoglio::PremutoAlCentroNonRidimensiona()
{
    Banco banco;
    banco.Cornice(30, 30, 60, 40);
    banco.frm->SelezionaCornice(1);
    banco.Preme({60, 50});
    for (double x = 60; x < 120; x += 0.5) {
        banco.Muove({x, 50}); // across the edge and out
    }
    banco.Rilascia({120, 50});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 60.0);
    QCOMPARE(Volte(banco.segnali, "Variato"), 0);
}

void tst_ManiSulFoglio::CorniceDentroUnAltraSiRidimensiona()
{
    // Every move sends the frame under the pointer to the back: the small one's edge must answer
    // all the same, wherever the moves have left it.
    for (int passi = 0; passi < 4; ++passi) {
        Banco banco;
        banco.Cornice(10, 10, 150, 100);
        banco.Cornice(30, 30, 60, 40);
        banco.frm->PrimoPianoCornici();
        banco.frm->SelezionaCornice(2);
        for (int k = 0; k <= passi; ++k) {
            banco.Muove({70 + k * 1.0, 50});
        }
        banco.Trascina({89.5, 50}, {109.5, 50});
        QCOMPARE(banco.modello.Cornici[2].Larghezza, 80.0);
        QCOMPARE(banco.modello.Cornici[1].Larghezza, 150.0);
    }
}

void tst_ManiSulFoglio::PiccolaSiRidimensionaOltreLaManiglia()
{
    Banco banco;
    banco.stato.zoom = 3;
    banco.Cornice(60, 60, 1, 1);
    banco.frm->SelezionaCornice(1);
    const QRectF maniglia = banco.S(2)->Posto();
    const QPointF presa = maniglia.bottomRight() + QPointF(0.5, 0.5);
    banco.Trascina(presa, presa + QPointF(10, 10));
    QVERIFY(banco.modello.Cornici[1].Larghezza > 25);
    QVERIFY(banco.modello.Cornici[1].Altezza > 25);
    QCOMPARE(banco.modello.Cornici[1].X, 60.0);
}

void tst_ManiSulFoglio::MisuraModelloUgualeAlControllo()
{
    QFETCH(double, zoom);
    Banco banco;
    banco.stato.zoom = zoom;
    banco.Immagine(30, 30, 60, 40);
    banco.frm->SelezionaImmagine(1);
    const QSizeF prima = banco.C3(1)->Posto().size();
    banco.frm->RidimensionaImmagine(1, Qt::NoButton, prima.width() - 0.5, 3);
    QCOMPARE(banco.C3(1)->Puntatore(), Qt::SizeHorCursor);
    banco.frm->RidimensionaImmagine(1, Qt::LeftButton, prima.width() - 0.5, 3);
    QCOMPARE(banco.C3(1)->Posto().size(), prima);
    for (double passo = 0; passo < 20; passo += 3.7) {
        banco.frm->RidimensionaImmagine(1, Qt::LeftButton, prima.width() + passo, 3);
        QCOMPARE(banco.modello.Immagini[1].Larghezza, banco.C3(1)->Posto().width() * zoom);
        QCOMPARE(banco.modello.Immagini[1].Altezza, 40.0);
    }
    QVERIFY(Volte(banco.segnali, "Variato") >= 5);
}

QTEST_MAIN(tst_ManiSulFoglio)
#include "tst_ManiSulFoglio.moc"
