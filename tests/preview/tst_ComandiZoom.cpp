#include "preview/Banco.h"
#include "preview/ComandiZoom.h"

#include <QAbstractButton>
#include <QWheelEvent>

namespace {

constexpr int Scatto = 120;

/// A turn of the wheel over a place of the window that holds the preview, as the system sends it.
void Gira(Banco &banco, QPoint posto, int giro, Qt::KeyboardModifiers tasti = Qt::ControlModifier)
{
    QWidget *sotto = banco.frm->childAt(posto);
    if (sotto == nullptr) {
        sotto = banco.frm.get();
    }
    QWheelEvent ruota(sotto->mapFrom(banco.frm.get(), posto), banco.frm->mapToGlobal(posto), {},
                      {0, giro}, Qt::NoButton, tasti, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&ruota);
    qApp->notify(sotto, &ruota); // sendEvent would take the mark away
}

QPoint NellaFinestra(const Banco &banco, QPointF punto)
{
    return banco.Vista()->mapTo(banco.frm.get(), banco.Pixel(punto));
}

/// What of the paper lies under a place of the window, mm.
QPointF CartaSotto(const Banco &banco, QPoint posto)
{
    return QPointF(banco.Vista()->mapFrom(banco.frm.get(), posto)) * MillimetriPerPixel *
           banco.stato.zoom;
}

QString Casella(const Banco &banco)
{
    return Trova<QLineEdit>(*banco.frm, "TextZoom")->text();
}

QScrollBar *Scorrimento(const Banco &banco, const char *nome)
{
    return Trova<QScrollBar>(*banco.frm, nome);
}

} // namespace

class tst_ComandiZoom : public QObject
{
    Q_OBJECT
private slots:
    void ZoomCheAdatta_data();
    void ZoomCheAdatta();
    void AdattaMostraTuttoIlFoglio();
    void UnoAUno();
    void TastiEPulsanti();
    void RuotaDiUnDecimo_data();
    void RuotaDiUnDecimo();
    void RuotaDaUnoZoomFrazionario();
    void IlPuntoSottoIlPuntatoreResta();
    void AvantiEIndietroNelloStessoPosto();
    void SopraIRighelli();
    void RuotaSenzaCtrlScorre();
    void NienteMentreSiTrascina();
    void FoglioEScorrimentoRestano();
    void UnTestoSenzaNumeroEsceDallaCasella();
};

void tst_ComandiZoom::ZoomCheAdatta_data()
{
    QTest::addColumn<QSizeF>("vista");
    QTest::addColumn<double>("zoom");
    QTest::newRow("room for all of it") << QSizeF(300, 400) << 1.0;
    QTest::newRow("just room for it") << QSizeF(240, 350) << 1.0;
    QTest::newRow("a hair too low") << QSizeF(300, 349.9) << 1.1;
    QTest::newRow("exactly a tenth") << QSizeF(240 / 1.5, 500) << 1.5;
    QTest::newRow("rounded up") << QSizeF(500, 350 / 2.41) << 2.5;
    QTest::newRow("too narrow") << QSizeF(100, 400) << 2.4;
    QTest::newRow("no zoom is enough") << QSizeF(300, 50) << 3.0;
    QTest::newRow("no room at all") << QSizeF(0, 0) << 3.0;
}

void tst_ComandiZoom::ZoomCheAdatta()
{
    QFETCH(QSizeF, vista);
    QTEST(ComandiZoom::ZoomCheAdatta(vista), "zoom");
}

void tst_ComandiZoom::AdattaMostraTuttoIlFoglio()
{
    Banco banco;
    banco.Cornice(20, 20, 40, 20);
    Scorrimento(banco, "ScrollX")->setValue(30);
    Scorrimento(banco, "ScrollY")->setValue(90);
    Trova<QAbstractButton>(*banco.frm, "Adatta")->click();
    const QSizeF area =
        QSizeF(Trova<QWidget>(*banco.frm, "AreaFoglio")->size()) * MillimetriPerPixel;
    const double zoom = banco.stato.zoom;
    QCOMPARE(zoom, ComandiZoom::ZoomCheAdatta(area));
    QVERIFY(zoom > 1 && zoom <= 3);
    QCOMPARE(Casella(banco), QString::number(zoom));
    QCOMPARE(banco.C2(1)->Posto().left(), 20 / zoom);
    QCOMPARE(Scorrimento(banco, "ScrollX")->value(), 0);
    QCOMPARE(Scorrimento(banco, "ScrollY")->value(), 0);
}

void tst_ComandiZoom::UnoAUno()
{
    Banco banco(2.5);
    Trova<QAbstractButton>(*banco.frm, "UnoAUno")->click();
    QCOMPARE(banco.stato.zoom, 1.0);
    QCOMPARE(Casella(banco), QStringLiteral("1"));
}

void tst_ComandiZoom::TastiEPulsanti()
{
    Banco banco;
    banco.frm->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(banco.frm.get()));
    // With the zoom box in use too: it has no other use for them.
    Trova<QLineEdit>(*banco.frm, "TextZoom")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_0, Qt::ControlModifier);
    QVERIFY(banco.stato.zoom > 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(banco.stato.zoom, 1.0);
    QVERIFY(Trova<QAbstractButton>(*banco.frm, "Adatta")
                ->toolTip()
                .endsWith(QStringLiteral("(Ctrl+0)")));
    QVERIFY(Trova<QAbstractButton>(*banco.frm, "UnoAUno")
                ->toolTip()
                .endsWith(QStringLiteral("(Ctrl+1)")));
}

void tst_ComandiZoom::RuotaDiUnDecimo_data()
{
    QTest::addColumn<QList<int>>("giri");
    QTest::addColumn<QString>("testo");
    QTest::newRow("towards the user it shrinks") << QList<int>{-Scatto} << QStringLiteral("2.1");
    QTest::newRow("away from the user it grows") << QList<int>{Scatto} << QStringLiteral("1.9");
    QTest::newRow("two notches at once") << QList<int>{-2 * Scatto} << QStringLiteral("2.2");
    QTest::newRow("a touch pad's small turns add up")
        << QList<int>(24, -5) << QStringLiteral("2.1");
    QTest::newRow("less than a notch") << QList<int>{-60} << QStringLiteral("2");
    QTest::newRow("no further than 1") << QList<int>(15, Scatto) << QStringLiteral("1");
    QTest::newRow("no further than 3") << QList<int>(15, -Scatto) << QStringLiteral("3");
    QTest::newRow("no tenth is lost in ten")
        << (QList<int>(7, -Scatto) + QList<int>(10, Scatto)) << QStringLiteral("1.7");
}

void tst_ComandiZoom::RuotaDiUnDecimo()
{
    QFETCH(QList<int>, giri);
    QFETCH(QString, testo);
    Banco banco(2);
    for (const int giro : giri) {
        Gira(banco, NellaFinestra(banco, {50, 50}), giro);
    }
    QCOMPARE(Casella(banco), testo);
    QCOMPARE(banco.stato.zoom, testo.toDouble());
}

void tst_ComandiZoom::RuotaDaUnoZoomFrazionario()
{
    Banco banco;
    banco.Zoom(QStringLiteral("1.75"));
    Gira(banco, NellaFinestra(banco, {50, 50}), -Scatto);
    QCOMPARE(Casella(banco), QStringLiteral("1.85"));
}

void tst_ComandiZoom::IlPuntoSottoIlPuntatoreResta()
{
    Banco banco;
    Scorrimento(banco, "ScrollX")->setValue(120);
    Scorrimento(banco, "ScrollY")->setValue(160);
    const QPoint posto = NellaFinestra(banco, {160, 200});
    const QPointF prima = CartaSotto(banco, posto);
    for (int k = 0; k < 8; ++k) {
        Gira(banco, posto, -Scatto);
        // The scroll bars go by whole millimetres of screen.
        const QPointF scarto = (CartaSotto(banco, posto) - prima) / banco.stato.zoom;
        QVERIFY2(qAbs(scarto.x()) < 0.7 && qAbs(scarto.y()) < 0.7, qPrintable(Casella(banco)));
    }
    QCOMPARE(banco.stato.zoom, 1.8);
}

void tst_ComandiZoom::AvantiEIndietroNelloStessoPosto()
{
    Banco banco;
    Scorrimento(banco, "ScrollX")->setValue(90);
    Scorrimento(banco, "ScrollY")->setValue(130);
    const QPoint posto = NellaFinestra(banco, {140, 170});
    for (int k = 0; k < 6; ++k) {
        Gira(banco, posto, -Scatto);
    }
    for (int k = 0; k < 6; ++k) {
        Gira(banco, posto, Scatto);
    }
    QCOMPARE(banco.stato.zoom, 1.0);
    QCOMPARE(Scorrimento(banco, "ScrollX")->value(), 90);
    QCOMPARE(Scorrimento(banco, "ScrollY")->value(), 130);
}

void tst_ComandiZoom::SopraIRighelli()
{
    Banco banco;
    Scorrimento(banco, "ScrollX")->setValue(100);
    Scorrimento(banco, "ScrollY")->setValue(100);
    const QWidget *righello = Trova<QWidget>(*banco.frm, "RighelloX");
    const QPoint posto(NellaFinestra(banco, {150, 100}).x(),
                       righello->mapTo(banco.frm.get(), QPoint(0, 0)).y() + righello->height() / 2);
    const double prima = CartaSotto(banco, posto).x();
    Gira(banco, posto, -Scatto);
    QCOMPARE(banco.stato.zoom, 1.1);
    QVERIFY(qAbs(CartaSotto(banco, posto).x() - prima) < 0.8);
    // Down the sheet it is the upper edge of what is seen that stays.
    QVERIFY(qAbs(Scorrimento(banco, "ScrollY")->value() - 100 / 1.1) < 0.6);
}

void tst_ComandiZoom::RuotaSenzaCtrlScorre()
{
    Banco banco(2);
    Gira(banco, NellaFinestra(banco, {50, 50}), -Scatto, Qt::NoModifier);
    QCOMPARE(banco.stato.zoom, 2.0);
    QCOMPARE(banco.frm->ScorrimentoY(), 15);
    Gira(banco, NellaFinestra(banco, {50, 50}), -Scatto);
    QCOMPARE(banco.stato.zoom, 2.1);
}

void tst_ComandiZoom::NienteMentreSiTrascina()
{
    Banco banco;
    banco.Cornice(40, 40, 30, 20);
    banco.frm->MostraModello();
    banco.Clicca({55, 50});
    Scorrimento(banco, "ScrollY")->setValue(10);
    banco.Muove({41, 41});
    banco.Preme({41, 41});
    banco.Muove({60, 60});
    const QRectF posto = banco.C2(1)->Posto();
    Gira(banco, NellaFinestra(banco, {60, 60}), -Scatto);
    Trova<QAbstractButton>(*banco.frm, "Adatta")->click();
    QCOMPARE(banco.stato.zoom, 1.0);
    QCOMPARE(banco.C2(1)->Posto(), posto);
    QCOMPARE(banco.frm->ScorrimentoY(), 10);
    banco.Rilascia({60, 60});
    Gira(banco, NellaFinestra(banco, {60, 60}), -Scatto);
    QCOMPARE(banco.stato.zoom, 1.1);
}

void tst_ComandiZoom::FoglioEScorrimentoRestano()
{
    Banco banco;
    const QSize foglio = Trova<QWidget>(*banco.frm, "P1")->size();
    Trova<QAbstractButton>(*banco.frm, "Adatta")->click();
    QVERIFY(banco.stato.zoom > 1);
    QCOMPARE(Trova<QWidget>(*banco.frm, "P1")->size(), foglio);
    QCOMPARE(Scorrimento(banco, "ScrollX")->maximum(), 240);
    QCOMPARE(Scorrimento(banco, "ScrollY")->maximum(), 350);
    QCOMPARE(banco.Volte("SfondoDaRidisegnare"), 1);
    QCOMPARE(banco.Volte("RigheDaRidisegnare"), 1);
}

void tst_ComandiZoom::UnTestoSenzaNumeroEsceDallaCasella()
{
    Banco banco;
    banco.Zoom(QStringLiteral("abc"));
    Trova<QAbstractButton>(*banco.frm, "UnoAUno")->click();
    QCOMPARE(Casella(banco), QStringLiteral("1"));
    QCOMPARE(banco.segnali, QStringList()); // it was 1 already: nothing is drawn anew
}

QTEST_MAIN(tst_ComandiZoom)
#include "tst_ComandiZoom.moc"
