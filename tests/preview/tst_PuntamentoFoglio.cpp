#include "preview/Banco.h"

namespace {

QStringList Voci(std::initializer_list<const char *> voci)
{
    QStringList testi;
    for (const char *voce : voci) {
        testi.append(QString::fromLatin1(voce));
    }
    return testi;
}

} // namespace

class tst_PuntamentoFoglio : public QObject
{
    Q_OBJECT
private slots:
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
    void UnaPressioneToglieITastiAlloZoom();
    void SulFoglioITastiNonScorrono();
};

void tst_PuntamentoFoglio::PuntareUnCampoLoSeleziona()
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

void tst_PuntamentoFoglio::PuntareConUnBottonePremuto()
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
    QCOMPARE(banco.InMano(1), 1);
}

void tst_PuntamentoFoglio::FoglioVuotoSpegneICampi()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 20, 20);
    banco.Muove({24, 22});
    banco.Muove({100, 100});
    QVERIFY(!banco.C1(1)->Bordo());
    QCOMPARE(banco.C1(1)->Colore(), QColor(Qt::black));
    QVERIFY(!banco.S(1)->isVisible());
}

void tst_PuntamentoFoglio::TastoDestroSulCampo()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 20, 20);
    banco.Muove({24, 22});
    banco.segnali.clear();
    banco.Preme({24, 22}, Qt::RightButton);
    QCOMPARE(banco.segnali, Voci({"RichiestaProprieta 0 1"}));
    banco.Rilascia({24, 22}, Qt::RightButton);
    QCOMPARE(banco.segnali, Voci({"RichiestaProprieta 0 1"}));
    QCOMPARE(banco.InMano(1), 1);
}

void tst_PuntamentoFoglio::DoppioClickSulCampo()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 20, 20);
    banco.Muove({24, 22});
    banco.segnali.clear();
    banco.CliccaDueVolte({24, 22});
    QCOMPARE(banco.Volte("RichiestaProprieta 0 1"), 1);
}

void tst_PuntamentoFoglio::ClickSuCornice()
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

void tst_PuntamentoFoglio::TastoDestroSuCornice()
{
    Banco banco;
    banco.Cornice(20, 20, 50, 30);
    banco.Preme({40, 40}, Qt::RightButton);
    QCOMPARE(banco.segnali,
             Voci({"ElementoPuntato 1 1", "PaginaRichiesta 1", "RichiestaProprieta 1 1"}));
    QVERIFY(banco.S(2)->isVisible());
}

void tst_PuntamentoFoglio::DoppioClickSuCornice()
{
    Banco banco;
    banco.Cornice(20, 20, 50, 30);
    banco.CliccaDueVolte({40, 40});
    QCOMPARE(banco.segnali,
             Voci({"ElementoPuntato 1 1", "PaginaRichiesta 1", "RichiestaProprieta 1 1"}));
    QCOMPARE(banco.InMano(2), 1);
}

void tst_PuntamentoFoglio::ClickSuImmagine()
{
    Banco banco;
    banco.Immagine(20, 20, 50, 30);
    bool visibilePrimaDellaPagina = false;
    QObject::connect(banco.frm.get(), &Frm1::PaginaRichiesta, banco.frm.get(),
                     [&] { visibilePrimaDellaPagina = banco.S(3)->isVisible(); });
    banco.Clicca({40, 40});
    QCOMPARE(banco.segnali, Voci({"ElementoPuntato 2 1", "PaginaRichiesta 2"}));
    QVERIFY(visibilePrimaDellaPagina);
    QCOMPARE(banco.InMano(3), 1);
}

void tst_PuntamentoFoglio::TastoDestroSuImmagine()
{
    Banco banco;
    banco.Immagine(20, 20, 50, 30);
    banco.Preme({40, 40}, Qt::RightButton);
    QCOMPARE(banco.segnali,
             Voci({"ElementoPuntato 2 1", "PaginaRichiesta 2", "RichiestaProprieta 2 1"}));
    QCOMPARE(banco.InMano(3), 1);
}

void tst_PuntamentoFoglio::DoppioClickSuImmagine()
{
    Banco banco;
    banco.Immagine(20, 20, 50, 30);
    banco.CliccaDueVolte({40, 40});
    QCOMPARE(banco.Volte("RichiestaProprieta 2 1"), 1);
    QCOMPARE(banco.segnali.last(), QStringLiteral("RichiestaProprieta 2 1"));
    QCOMPARE(banco.InMano(3), 1);
}

void tst_PuntamentoFoglio::PremutoFuoriRilasciatoSopraNonEClick()
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
    QCOMPARE(banco.InMano(2), 0);
}

void tst_PuntamentoFoglio::SorvolareMandaInFondo()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 30, 30);
    banco.Cornice(20, 20, 50, 30); // created later: in front of the field
    QVERIFY(banco.C2(1)->zValue() > banco.C1(1)->zValue());
    banco.Muove({32, 32});
    QVERIFY(banco.C2(1)->zValue() < banco.C1(1)->zValue());
    banco.Muove({32, 33});
    QCOMPARE(banco.InMano(1), 1);
    banco.Immagine(20, 20, 50, 30);
    banco.Muove({60, 40});
    QVERIFY(banco.C3(1)->zValue() < banco.C2(1)->zValue());
}

void tst_PuntamentoFoglio::RilascioRiordinaPerSuperficie()
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

void tst_PuntamentoFoglio::ElementiMinuscoliSiPuntano()
{
    Banco banco;
    banco.Campo(QStringLiteral("vuoto"), 20, 20, QString());
    banco.Muove({20.6, 20.6});
    QCOMPARE(banco.InMano(1), 1);
    banco.Cornice(60, 20, 0, 0);
    banco.Clicca({60.6, 20.6});
    QCOMPARE(banco.InMano(2), 1);
}

void tst_PuntamentoFoglio::PosizioneDelPuntatoreSoloConSinistro()
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

void tst_PuntamentoFoglio::UnaPressioneToglieITastiAlloZoom()
{
    Banco banco;
    banco.frm->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(banco.frm.get()));
    QCOMPARE(QApplication::focusWidget(), Trova<QWidget>(*banco.frm, "P1")); // from the beginning
    auto *zoom = Trova<QLineEdit>(*banco.frm, "TextZoom");
    zoom->setFocus();
    banco.Muove({50, 50});
    QVERIFY(zoom->hasFocus()); // pointing is not enough
    banco.Clicca({50, 50});
    QVERIFY(!zoom->hasFocus());
    QCOMPARE(QApplication::focusWidget(), Trova<QWidget>(*banco.frm, "P1"));
}

void tst_PuntamentoFoglio::SulFoglioITastiNonScorrono()
{
    Banco banco;
    banco.frm->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(banco.frm.get()));
    banco.Clicca({50, 50});
    const auto *vista = Trova<QGraphicsView>(*banco.frm, "P1");
    const QTransform prima = vista->viewportTransform();
    for (const Qt::Key tasto : {Qt::Key_Down, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_End}) {
        QTest::keyClick(banco.frm->windowHandle(), tasto);
    }
    QCOMPARE(vista->viewportTransform(), prima); // the window alone moves the sheet
}

QTEST_MAIN(tst_PuntamentoFoglio)
#include "tst_PuntamentoFoglio.moc"
