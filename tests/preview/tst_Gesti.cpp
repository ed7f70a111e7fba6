#include "preview/Banco.h"

#include <QCloseEvent>
#include <QDialog>
#include <QGuiApplication>
#include <QStyleHints>

#include <cmath>
#include <functional>

Q_DECLARE_METATYPE(std::function<void(Banco &)>)

namespace {

/// What a drag of the row field leaves once it has ended.
void VerificaConclusa(const Banco &banco)
{
    QVERIFY(!banco.GuideInVista());
    QCOMPARE(banco.modello.Campi[1].Y, 40.0);
    QCOMPARE(banco.C1(1)->Posto().top(), 40.0);
    QVERIFY(banco.modello.Campi[1].X > 80);
    QCOMPARE(banco.modello.Campi[1].X, std::floor(banco.modello.Campi[1].X));
    QVERIFY(banco.stato.documento.Variato());
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
}

/// Shows the handle of the kind and brings the pointer onto it.
QPointF SullaManiglia(Banco &banco, Genere genere)
{
    banco.frm->Seleziona(genere, banco.Crea(genere, {60, 50}));
    const QPointF punto(60.8, 50.8);
    banco.Muove(punto);
    banco.segnali.clear();
    return punto;
}

QString Richiesta(Genere genere)
{
    return QStringLiteral("RichiestaProprieta %1 1").arg(static_cast<int>(genere));
}

double X(const Banco &banco, Genere genere)
{
    double x = 0;
    banco.modello.Con(genere, [&](const auto &tabella) { x = tabella[1].X; });
    return x;
}

} // namespace

/// How gestures on the sheet end, whatever happens to the mouse meanwhile, and what they leave.
class tst_Gesti : public QObject
{
    Q_OBJECT
private slots:
    // More than one button
    void AltroBottonePrimaDelSinistro_data();
    void AltroBottonePrimaDelSinistro();
    void AltroBottoneDuranteIlTrascinamento_data();
    void AltroBottoneDuranteIlTrascinamento();
    void AltroBottonePrimaDiRidimensionare();
    // The mouse taken away
    void MousePerduto_data();
    void MousePerduto();
    void MousePerdutoRidimensionando();
    void MousePerdutoNonEClick();
    void MousePerdutoNelMezzoDiUnPasso_data() { RigheDiGenere(); }
    void MousePerdutoNelMezzoDiUnPasso();
    // Properties by the handle
    void TastoDestroSullaManiglia_data() { RigheDiGenere(); }
    void TastoDestroSullaManiglia();
    void DoppioClickSullaManiglia_data() { RigheDiGenere(); }
    void DoppioClickSullaManiglia();
    void CampoCopertoDallaManiglia_data();
    void CampoCopertoDallaManiglia();
    void DueTrascinamentiRapidi_data() { RigheDiGenere(); }
    void DueTrascinamentiRapidi();
    void ClickETrascinamentoRapidi_data() { RigheDiGenere(); }
    void ClickETrascinamentoRapidi();
    void DoppioClickConUnTremito();
};

void tst_Gesti::AltroBottonePrimaDelSinistro_data()
{
    QTest::addColumn<Qt::MouseButton>("altro");
    QTest::addColumn<bool>("lasciatoPrima");
    QTest::newRow("middle, still held at the end") << Qt::MiddleButton << false;
    QTest::newRow("middle, released first") << Qt::MiddleButton << true;
    QTest::newRow("right, still held at the end") << Qt::RightButton << false;
    QTest::newRow("right, released first") << Qt::RightButton << true;
    QTest::newRow("a fourth button") << Qt::BackButton << false;
}

void tst_Gesti::AltroBottonePrimaDelSinistro()
{
    QFETCH(const Qt::MouseButton, altro);
    QFETCH(const bool, lasciatoPrima);
    Banco banco;
    const QPointF presa = SullaManigliaDiRiga(banco);
    banco.Preme(presa, altro);
    banco.Preme(presa);
    banco.Muove({100, 90});
    QVERIFY(banco.GuideInVista());
    if (lasciatoPrima) {
        banco.Rilascia({100, 90}, altro);
        QVERIFY(banco.GuideInVista());
    }
    banco.Muove({110, 95});
    const double x = banco.modello.Campi[1].X;
    banco.Rilascia({110, 95});
    VerificaConclusa(banco);
    QCOMPARE(banco.modello.Campi[1].X, x);
    banco.Muove({150, 120});
    if (!lasciatoPrima) {
        banco.Rilascia({150, 120}, altro);
    }
    QCOMPARE(banco.modello.Campi[1].X, x);
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
}

void tst_Gesti::AltroBottoneDuranteIlTrascinamento_data()
{
    QTest::addColumn<Qt::MouseButton>("altro");
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("right") << Qt::RightButton;
}

void tst_Gesti::AltroBottoneDuranteIlTrascinamento()
{
    QFETCH(const Qt::MouseButton, altro);
    Banco banco;
    const QPointF presa = SullaManigliaDiRiga(banco);
    banco.Preme(presa);
    banco.Muove({90, 80});
    banco.Preme({90, 80}, altro);
    banco.Muove({100, 90});
    QVERIFY(banco.GuideInVista());
    banco.Rilascia({100, 90});
    VerificaConclusa(banco);
    banco.Rilascia({100, 90}, altro);
    QCOMPARE(banco.Volte("RichiestaProprieta 0 1"), 0);
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
}

void tst_Gesti::AltroBottonePrimaDiRidimensionare()
{
    Banco banco;
    banco.Cornice(60, 50, 30, 20);
    banco.frm->SelezionaCornice(1);
    const QPointF presa(89.5, 60);
    banco.Muove(presa);
    banco.Preme(presa, Qt::MiddleButton);
    banco.Preme(presa);
    banco.Muove({100, 60});
    banco.Rilascia({109.5, 60});
    banco.Rilascia({109.5, 60}, Qt::MiddleButton);
    QCOMPARE(banco.modello.Cornici[1].Larghezza, std::floor(banco.modello.Cornici[1].Larghezza));
    QVERIFY(banco.modello.Cornici[1].Larghezza > 38);
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
    const double larghezza = banco.modello.Cornici[1].Larghezza;
    banco.Muove({140, 60});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, larghezza);
}

void tst_Gesti::MousePerduto_data()
{
    QTest::addColumn<std::function<void(Banco &)>>("perde");
    const auto riga = [](const char *nome, const std::function<void(Banco &)> &perde) {
        QTest::newRow(nome) << perde;
    };
    riga("another control takes the mouse", [](Banco &banco) {
        auto *TextZoom = Trova<QLineEdit>(*banco.frm, "TextZoom");
        TextZoom->grabMouse();
        banco.Muove({120, 100});
        TextZoom->releaseMouse();
    });
    riga("the system takes the mouse", [](Banco &banco) {
        QEvent evento(QEvent::UngrabMouse);
        QApplication::sendEvent(banco.Vista(), &evento);
    });
    riga("another window becomes active", [](Banco &) {
        QWidget altra;
        altra.show();
        altra.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&altra));
    });
    riga("a dialog blocks the window", [](Banco &banco) {
        QDialog dialogo(banco.frm.get());
        dialogo.open();
        QVERIFY(QTest::qWaitForWindowExposed(&dialogo));
    });
    riga("the window is hidden", [](Banco &banco) { banco.frm->hide(); });
    riga("the user closes the window", [](Banco &banco) {
        bool concluso = false;
        QObject::connect(banco.frm.get(), &Frm1::ChiusuraRichiesta, banco.frm.get(),
                         [&] { concluso = !banco.GuideInVista(); });
        QCloseEvent chiude;
        QApplication::sendEvent(banco.frm->windowHandle(), &chiude);
        QVERIFY(concluso); // before anyone is asked to save
    });
}

void tst_Gesti::MousePerduto()
{
    QFETCH(const std::function<void(Banco &)>, perde);
    Banco banco;
    banco.frm->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(banco.frm.get()));
    const QPointF presa = SullaManigliaDiRiga(banco);
    banco.Preme(presa);
    banco.Muove({100, 90});
    QVERIFY(banco.GuideInVista());
    perde(banco);
    VerificaConclusa(banco);
    // The button that is still held drags nothing any more.
    const double x = banco.modello.Campi[1].X;
    banco.Manda(QEvent::MouseMove, QPointF(x + 1, 41), Qt::LeftButton);
    banco.Manda(QEvent::MouseMove, {130, 100}, Qt::LeftButton);
    banco.Rilascia({130, 100});
    QCOMPARE(banco.modello.Campi[1].X, x);
    QVERIFY(!banco.GuideInVista());
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
}

void tst_Gesti::MousePerdutoRidimensionando()
{
    Banco banco;
    banco.Cornice(60, 50, 30, 20);
    banco.frm->SelezionaCornice(1);
    const QPointF presa(89.5, 60);
    banco.Muove(presa);
    banco.Preme(presa);
    banco.Muove({100.3, 60});
    banco.frm->hide();
    const double larghezza = banco.modello.Cornici[1].Larghezza;
    QVERIFY(larghezza > 38);
    QCOMPARE(larghezza, std::floor(larghezza)); // placed, as at a release
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
    banco.Rilascia({150, 60});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, larghezza);
}

void tst_Gesti::MousePerdutoNonEClick()
{
    Banco banco;
    banco.Cornice(60, 50, 30, 20);
    banco.Preme({75, 60});
    banco.frm->hide();
    QCOMPARE(banco.segnali, QStringList());
    QCOMPARE(banco.InMano(2), 0);
}

void tst_Gesti::MousePerdutoNelMezzoDiUnPasso()
{
    QFETCH(const Genere, genere);
    Banco banco;
    const QPointF punto = SullaManiglia(banco, genere);
    banco.Preme(punto);
    // As when a message opens over the sheet while the drag step is being shown.
    QObject::connect(
        &banco.stato.documento, &Documento::Cambiato, banco.frm.get(), [&] { banco.frm->hide(); },
        Qt::SingleShotConnection);
    banco.Muove(punto + QPointF(20, 10));
    QVERIFY(X(banco, genere) > 75);
    QVERIFY(!banco.GuideInVista());
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
    banco.stato.documento.Annulla();
    QCOMPARE(X(banco, genere), 60.0);
    QVERIFY(!banco.stato.documento.PuoAnnullare());
}

void tst_Gesti::TastoDestroSullaManiglia()
{
    QFETCH(const Genere, genere);
    Banco banco;
    const QPointF punto = SullaManiglia(banco, genere);
    banco.Preme(punto, Qt::RightButton);
    QCOMPARE(banco.segnali.last(), Richiesta(genere));
    // The rest is what a right press on the element does.
    const QStringList sullaManiglia = banco.segnali;
    banco.Rilascia(punto, Qt::RightButton);
    const QPointF accanto =
        banco.S(static_cast<int>(genere) + 1)->Posto().topRight() + QPointF(1, 1);
    banco.Muove(accanto);
    banco.segnali.clear();
    banco.Preme(accanto, Qt::RightButton);
    QCOMPARE(sullaManiglia, banco.segnali);
}

void tst_Gesti::DoppioClickSullaManiglia()
{
    QFETCH(const Genere, genere);
    Banco banco;
    const QPointF punto = SullaManiglia(banco, genere);
    banco.CliccaDueVolte(punto);
    QCOMPARE(banco.segnali.count(Richiesta(genere)), 1);
    QCOMPARE(banco.segnali.last(), Richiesta(genere));
    QCOMPARE(X(banco, genere), 60.0);
    QVERIFY(!banco.GuideInVista());
}

void tst_Gesti::CampoCopertoDallaManiglia_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<bool>("destro");
    for (const double zoom : {2.5, 3.0}) {
        QTest::addRow("zoom %g, double click", zoom) << zoom << false;
        QTest::addRow("zoom %g, right press", zoom) << zoom << true;
    }
}

void tst_Gesti::CampoCopertoDallaManiglia()
{
    QFETCH(const double, zoom);
    QFETCH(const bool, destro);
    Banco banco;
    banco.stato.zoom = zoom;
    banco.Campo(QStringLiteral("uno"), 60, 60, QStringLiteral("1"));
    const QRectF campo = banco.C1(1)->Posto();
    banco.Muove(campo.center());
    QVERIFY(banco.S(1)->Posto().contains(campo.center()));
    if (destro) {
        banco.Preme(campo.center(), Qt::RightButton);
    } else {
        banco.CliccaDueVolte(campo.center());
    }
    QCOMPARE(banco.Volte("RichiestaProprieta 0 1"), 1);
}

void tst_Gesti::DueTrascinamentiRapidi()
{
    QFETCH(const Genere, genere);
    Banco banco;
    const QPointF punto = SullaManiglia(banco, genere);
    banco.Manda(QEvent::MouseButtonPress, punto, Qt::LeftButton);
    banco.Manda(QEvent::MouseMove, punto + QPointF(1, 0), Qt::LeftButton);
    banco.Manda(QEvent::MouseButtonRelease, punto + QPointF(1, 0), Qt::NoButton);
    const double x = X(banco, genere);
    QVERIFY(x > 60);
    // A millimetre away the second press still counts as one of a double click.
    const QPointF secondo = banco.S(static_cast<int>(genere) + 1)->Posto().topLeft();
    banco.Manda(QEvent::MouseButtonDblClick, secondo + QPointF(0.3, 0.3), Qt::LeftButton);
    banco.Manda(QEvent::MouseMove, secondo + QPointF(1.1, 0.3), Qt::LeftButton);
    QVERIFY(banco.GuideInVista());
    banco.Manda(QEvent::MouseButtonRelease, secondo + QPointF(1.1, 0.3), Qt::NoButton);
    QVERIFY(X(banco, genere) > x);
    QVERIFY(!banco.GuideInVista());
    QCOMPARE(banco.segnali.count(Richiesta(genere)), 0);
}

void tst_Gesti::ClickETrascinamentoRapidi()
{
    QFETCH(const Genere, genere);
    Banco banco;
    const QPointF punto = SullaManiglia(banco, genere);
    banco.Manda(QEvent::MouseButtonPress, punto, Qt::LeftButton);
    banco.Manda(QEvent::MouseButtonRelease, punto, Qt::NoButton);
    banco.Manda(QEvent::MouseButtonDblClick, punto, Qt::LeftButton);
    banco.Manda(QEvent::MouseMove, punto + QPointF(20, 10), Qt::LeftButton);
    banco.Manda(QEvent::MouseMove, punto, Qt::LeftButton);
    banco.Manda(QEvent::MouseMove, punto + QPointF(30, 10), Qt::LeftButton);
    banco.Manda(QEvent::MouseButtonRelease, punto + QPointF(30, 10), Qt::NoButton);
    QVERIFY(X(banco, genere) > 88);
    QCOMPARE(banco.segnali.count(Richiesta(genere)), 0);
}

void tst_Gesti::DoppioClickConUnTremito()
{
    Banco banco;
    const QPointF punto = SullaManiglia(banco, Genere::Immagine);
    const int gioco = QGuiApplication::styleHints()->mouseDoubleClickDistance();
    QVERIFY(gioco > 1);
    banco.Manda(QEvent::MouseButtonPress, punto, Qt::LeftButton);
    banco.Manda(QEvent::MouseButtonRelease, punto, Qt::NoButton);
    banco.Manda(QEvent::MouseButtonDblClick, punto, Qt::LeftButton);
    const QPointF vicino = punto + QPointF((gioco - 1) * MillimetriPerPixel, 0);
    banco.Manda(QEvent::MouseMove, vicino, Qt::LeftButton);
    banco.Manda(QEvent::MouseButtonRelease, vicino, Qt::NoButton);
    QCOMPARE(X(banco, Genere::Immagine), 60.0);
    QCOMPARE(banco.segnali, QStringList({Richiesta(Genere::Immagine)}));
}

QTEST_MAIN(tst_Gesti)
#include "tst_Gesti.moc"
