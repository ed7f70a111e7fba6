#include "preview/Banco.h"

#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

/// The hints of the elements and of the handles.
class tst_Suggerimenti : public QObject
{
    Q_OBJECT
private slots:
    void Suggerimenti();
    void IlSuggerimentoSeNeVaConIlPuntatore();
    void SuggerimentoConAltraFinestraAttiva();
    void DopoLoZoomOgniManigliaNominaIlSuo();
    void DopoLoZoomIlCampoInMano();
    void TrascinatoUnCampoLaManigliaDelleCorniciLoNomina();
};

void tst_Suggerimenti::Suggerimenti()
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

void tst_Suggerimenti::IlSuggerimentoSeNeVaConIlPuntatore()
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

void tst_Suggerimenti::SuggerimentoConAltraFinestraAttiva()
{
    Banco banco;
    banco.Cornice(60, 50, 30, 20);
    // Beside the element, with the screen's own pointer upon it: real moves say what these do.
    QWidget altra;
    altra.setGeometry(QRect(banco.Vista()->mapToGlobal(banco.Pixel({120, 100})), QSize(200, 100)));
    altra.show();
    altra.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&altra));
    QVERIFY(!banco.frm->isActiveWindow());
    QCursor::setPos(banco.Vista()->mapToGlobal(banco.Pixel({75, 60})));
    banco.Muove({75, 60});
    QTRY_COMPARE(QToolTip::text(), banco.C2(1)->toolTip());
    QVERIFY(QToolTip::isVisible());
    QToolTip::hideText();
}

void tst_Suggerimenti::DopoLoZoomOgniManigliaNominaIlSuo()
{
    Banco banco;
    for (int k = 1; k <= 3; ++k) {
        banco.Campo(QStringLiteral("campo%1").arg(k), 10 + 40 * k, 10);
        banco.Cornice(10 + 40 * k, 40, 30, 20);
        banco.Cambia([k](Modello &modello) {
            modello.Cornici[k].Nome = QStringLiteral("cornice%1").arg(k);
        });
        banco.Immagine(10 + 40 * k, 80, 30, 20, QStringLiteral("immagine%1").arg(k));
    }
    banco.frm->SelezionaImmagine(2);
    banco.frm->SelezionaCornice(1);
    banco.Muove({52, 12}); // the field pointed at last writes onto the frames' handle
    QCOMPARE(banco.S(2)->toolTip(), QStringLiteral("sposta campo campo1"));
    banco.Zoom(QStringLiteral("2"));
    QCOMPARE(banco.S(2)->toolTip(), QStringLiteral("sposta Cornice cornice1"));
    QCOMPARE(banco.S(3)->toolTip(), QStringLiteral("sposta Immagine immagine2"));
    QCOMPARE(banco.S(1)->toolTip(), QString());
    banco.frm->PosizionaCampo(3);
    QCOMPARE(banco.S(2)->toolTip(), QStringLiteral("sposta campo campo3"));
}

void tst_Suggerimenti::DopoLoZoomIlCampoInMano()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 20, 20);
    banco.Campo(QStringLiteral("due"), 60, 20);
    banco.Cornice(20, 60, 30, 20);
    banco.Cambia([](Modello &modello) { modello.Cornici[1].Nome = QStringLiteral("cornice"); });
    banco.frm->SelezionaCampo(1);
    banco.Zoom(QStringLiteral("2"));
    QCOMPARE(banco.S(2)->toolTip(), QStringLiteral("sposta campo uno"));
}

void tst_Suggerimenti::TrascinatoUnCampoLaManigliaDelleCorniciLoNomina()
{
    Banco banco;
    banco.Cornice(20, 60, 30, 20);
    banco.Cambia([](Modello &modello) { modello.Cornici[1].Nome = QStringLiteral("cornice"); });
    banco.frm->SelezionaCornice(1);
    const QPointF presa = SullaManigliaDiRiga(banco);
    banco.Preme(presa);
    banco.Muove({100, 90});
    banco.Rilascia({100, 90});
    QCOMPARE(banco.S(2)->toolTip(), QStringLiteral("sposta campo R_Descr"));
    banco.frm->PosizionaCornice(1);
    QCOMPARE(banco.S(2)->toolTip(), QStringLiteral("sposta Cornice cornice"));
}

QTEST_MAIN(tst_Suggerimenti)
#include "tst_Suggerimenti.moc"
