#include "preview/Banco.h"

#include <QCloseEvent>
#include <QDialog>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QToolTip>

#include <cmath>
#include <functional>

Q_DECLARE_METATYPE(Genere)
Q_DECLARE_METATYPE(std::function<void(Banco &)>)

namespace {

int Volte(const Banco &banco, const char *segnale)
{
    return static_cast<int>(banco.segnali.count(QString::fromLatin1(segnale)));
}

bool Guide(const Banco &banco)
{
    return banco.Controllo_<LineaGuida>(QStringLiteral("LineXX"))->isVisible() ||
           banco.Controllo_<LineaGuida>(QStringLiteral("LineYY"))->isVisible();
}

/// A row field whose handle is in sight, with the pointer on the handle.
QPointF SullaManigliaDiRiga(Banco &banco)
{
    banco.Cambia([&](Modello &modello) { modello.Righe.yInizio = 40; });
    banco.Campo(QStringLiteral("R_Descr"), 60, 40);
    banco.Muove({63, 42});
    banco.Muove({61, 41});
    banco.segnali.clear();
    return {61, 41};
}

/// What a drag of that field leaves once it has ended.
void VerificaConclusa(const Banco &banco)
{
    QVERIFY(!Guide(banco));
    QCOMPARE(banco.modello.Campi[1].Y, 40.0);
    QCOMPARE(banco.C1(1)->Posto().top(), 40.0);
    QVERIFY(banco.modello.Campi[1].X > 80);
    QCOMPARE(banco.modello.Campi[1].X, std::floor(banco.modello.Campi[1].X));
    QVERIFY(banco.segnali.contains(QStringLiteral("Variato")));
    QCOMPARE(Volte(banco, "ModificaConclusa"), 1);
}

/// A mouse event straight to the sheet: QTest keeps its own presses apart from double clicks.
void Manda(const Banco &banco, QEvent::Type tipo, QPointF punto, Qt::MouseButtons tenuti)
{
    const QPoint pixel = banco.Pixel(punto);
    const Qt::MouseButton bottone = tipo == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent evento(tipo, pixel, banco.Vista()->mapToGlobal(pixel), bottone, tenuti,
                       Qt::NoModifier);
    QApplication::sendEvent(banco.Vista(), &evento);
}

int Elemento(Banco &banco, Genere genere)
{
    switch (genere) {
    case Genere::Campo:
        return banco.Campo(QStringLiteral("uno"), 60, 50);
    case Genere::Cornice:
        return banco.Cornice(60, 50, 30, 20);
    case Genere::Immagine:
        break;
    }
    return banco.Immagine(60, 50, 30, 20);
}

/// Shows the handle of the kind and brings the pointer onto it.
QPointF SullaManiglia(Banco &banco, Genere genere)
{
    banco.frm->Seleziona(genere, Elemento(banco, genere));
    const QPointF punto(60.8, 50.8);
    banco.Muove(punto);
    banco.segnali.clear();
    return punto;
}

void RigheDiGenere()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("S1") << Genere::Campo;
    QTest::newRow("S2") << Genere::Cornice;
    QTest::newRow("S3") << Genere::Immagine;
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
    // Resizing past the sheet
    void IlBordoBassoNonTagliaLaLarghezza();
    void IlBordoDestroNonTagliaLAltezza();
    void OltreIlFoglioIlPrimoPassoNonTaglia();
    void OltreIlFoglioNonSiAllontana();
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
    // Hints
    void SuggerimentoConAltraFinestraAttiva();
    void DopoLoZoomOgniManigliaNominaIlSuo();
    void DopoLoZoomIlCampoInMano();
    void TrascinatoUnCampoLaManigliaDelleCorniciLoNomina();
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
    QVERIFY(Guide(banco));
    if (lasciatoPrima) {
        banco.Rilascia({100, 90}, altro);
        QVERIFY(Guide(banco));
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
    QCOMPARE(Volte(banco, "ModificaConclusa"), 1);
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
    QVERIFY(Guide(banco));
    banco.Rilascia({100, 90});
    VerificaConclusa(banco);
    banco.Rilascia({100, 90}, altro);
    QCOMPARE(Volte(banco, "RichiestaProprieta 0 1"), 0);
    QCOMPARE(Volte(banco, "ModificaConclusa"), 1);
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
    QCOMPARE(Volte(banco, "ModificaConclusa"), 1);
    const double larghezza = banco.modello.Cornici[1].Larghezza;
    banco.Muove({140, 60});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, larghezza);
}

void tst_Gesti::MousePerduto_data()
{
    QTest::addColumn<std::function<void(Banco &)>>("perde");
    const auto riga = [](const char *nome, std::function<void(Banco &)> perde) {
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
                         [&] { concluso = !Guide(banco); });
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
    QVERIFY(Guide(banco));
    perde(banco);
    VerificaConclusa(banco);
    // The button that is still held drags nothing any more.
    const double x = banco.modello.Campi[1].X;
    Manda(banco, QEvent::MouseMove, QPointF(x + 1, 41), Qt::LeftButton);
    Manda(banco, QEvent::MouseMove, {130, 100}, Qt::LeftButton);
    banco.Rilascia({130, 100});
    QCOMPARE(banco.modello.Campi[1].X, x);
    QVERIFY(!Guide(banco));
    QCOMPARE(Volte(banco, "ModificaConclusa"), 1);
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
    QCOMPARE(Volte(banco, "ModificaConclusa"), 1);
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
    QVERIFY(!Guide(banco));
    QCOMPARE(Volte(banco, "ModificaConclusa"), 1);
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
    QVERIFY(!Guide(banco));
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
    QCOMPARE(Volte(banco, "RichiestaProprieta 0 1"), 1);
}

void tst_Gesti::DueTrascinamentiRapidi()
{
    QFETCH(const Genere, genere);
    Banco banco;
    const QPointF punto = SullaManiglia(banco, genere);
    Manda(banco, QEvent::MouseButtonPress, punto, Qt::LeftButton);
    Manda(banco, QEvent::MouseMove, punto + QPointF(1, 0), Qt::LeftButton);
    Manda(banco, QEvent::MouseButtonRelease, punto + QPointF(1, 0), Qt::NoButton);
    const double x = X(banco, genere);
    QVERIFY(x > 60);
    // A millimetre away the second press still counts as one of a double click.
    const QPointF secondo = banco.S(static_cast<int>(genere) + 1)->Posto().topLeft();
    Manda(banco, QEvent::MouseButtonDblClick, secondo + QPointF(0.3, 0.3), Qt::LeftButton);
    Manda(banco, QEvent::MouseMove, secondo + QPointF(1.1, 0.3), Qt::LeftButton);
    QVERIFY(Guide(banco));
    Manda(banco, QEvent::MouseButtonRelease, secondo + QPointF(1.1, 0.3), Qt::NoButton);
    QVERIFY(X(banco, genere) > x);
    QVERIFY(!Guide(banco));
    QCOMPARE(banco.segnali.count(Richiesta(genere)), 0);
}

void tst_Gesti::ClickETrascinamentoRapidi()
{
    QFETCH(const Genere, genere);
    Banco banco;
    const QPointF punto = SullaManiglia(banco, genere);
    Manda(banco, QEvent::MouseButtonPress, punto, Qt::LeftButton);
    Manda(banco, QEvent::MouseButtonRelease, punto, Qt::NoButton);
    Manda(banco, QEvent::MouseButtonDblClick, punto, Qt::LeftButton);
    Manda(banco, QEvent::MouseMove, punto + QPointF(20, 10), Qt::LeftButton);
    Manda(banco, QEvent::MouseMove, punto, Qt::LeftButton);
    Manda(banco, QEvent::MouseMove, punto + QPointF(30, 10), Qt::LeftButton);
    Manda(banco, QEvent::MouseButtonRelease, punto + QPointF(30, 10), Qt::NoButton);
    QVERIFY(X(banco, genere) > 88);
    QCOMPARE(banco.segnali.count(Richiesta(genere)), 0);
}

void tst_Gesti::DoppioClickConUnTremito()
{
    Banco banco;
    const QPointF punto = SullaManiglia(banco, Genere::Immagine);
    const int gioco = QGuiApplication::styleHints()->mouseDoubleClickDistance();
    QVERIFY(gioco > 1);
    Manda(banco, QEvent::MouseButtonPress, punto, Qt::LeftButton);
    Manda(banco, QEvent::MouseButtonRelease, punto, Qt::NoButton);
    Manda(banco, QEvent::MouseButtonDblClick, punto, Qt::LeftButton);
    const QPointF vicino = punto + QPointF((gioco - 1) * MillimetriPerPixel, 0);
    Manda(banco, QEvent::MouseMove, vicino, Qt::LeftButton);
    Manda(banco, QEvent::MouseButtonRelease, vicino, Qt::NoButton);
    QCOMPARE(X(banco, Genere::Immagine), 60.0);
    QCOMPARE(banco.segnali, QStringList({Richiesta(Genere::Immagine)}));
}

void tst_Gesti::SuggerimentoConAltraFinestraAttiva()
{
    Banco banco;
    banco.Cornice(60, 50, 30, 20);
    QWidget altra;
    altra.show();
    altra.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&altra));
    QVERIFY(!banco.frm->isActiveWindow());
    banco.Muove({75, 60});
    QTRY_COMPARE(QToolTip::text(), banco.C2(1)->toolTip());
    QVERIFY(QToolTip::isVisible());
    QToolTip::hideText();
}

void tst_Gesti::DopoLoZoomOgniManigliaNominaIlSuo()
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

void tst_Gesti::DopoLoZoomIlCampoInMano()
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

void tst_Gesti::TrascinatoUnCampoLaManigliaDelleCorniciLoNomina()
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

QTEST_MAIN(tst_Gesti)
#include "tst_Gesti.moc"
