#include "finestre/Finestre.h"
#include "preview/Banco.h"
#include "support/Errori.h"
#include "support/ImmaginiDiProva.h"

#include <QCloseEvent>
#include <QLabel>
#include <QWheelEvent>

namespace {

/// Sends an event as one that comes from the window system.
void MandaDaFuori(QWidget *controllo, QEvent &evento)
{
    QSpontaneKeyEvent::setSpontaneous(&evento);
    qApp->notify(controllo, &evento); // sendEvent would take the mark away
}

} // namespace

class tst_Frm1 : public QObject
{
    Q_OBJECT
private slots:
    // Opening and layout
    void TestiENomi();
    void GuidaSuOgniControllo();
    void AperturaAllZoomDelMomento_data();
    void AperturaAllZoomDelMomento();
    void DisposizioneDellaFinestra();
    void NonSiRidimensiona();
    void ChiusuraChiestaAllEditor();
    // Scrolling
    void ScorreEsattamenteInMillimetri_data();
    void ScorreEsattamenteInMillimetri();
    void ScorrimentoPerLEditor();
    void RuotaDelMouse_data();
    void RuotaDelMouse();
    // Background
    void SfondoDipintoEPulito();
    void SfondoSegueLoZoom();
    void SfondoDietroGliElementi();
    void SfondoErrato_data();
    void SfondoErrato();
    // Status
    void StriscaMostraLElementoInMano();
    void StrisciaMostraIlPuntatoreSulFoglioVuoto();
};

void tst_Frm1::TestiENomi()
{
    Banco banco;
    QCOMPARE(banco.frm->objectName(), QStringLiteral("Frm1"));
    QCOMPARE(banco.frm->windowTitle(), QStringLiteral("Anteprima Plakera"));
    QCOMPARE(Trova<QLabel>(*banco.frm, "Label1")->text(), QStringLiteral(" Zoom anteprima 1:"));
    for (const char *nome : {"P1", "RighelloX", "RighelloY", "ScrollX", "ScrollY", "Text1",
                             "Label1", "TextZoom", "PX", "PY", "LL"}) {
        QVERIFY(Trova<QWidget>(*banco.frm, nome)->isVisible());
    }
    for (const char *nome : {"RighelloX", "RighelloY"}) {
        QCOMPARE(Trova<QWidget>(*banco.frm, nome)->toolTip(),
                 QStringLiteral("righello in millimetri"));
    }
    banco.Campo(QStringLiteral("uno"), 1, 1);
    for (const char *nome : {"C1(1)", "S1", "S2", "S3", "LineXX", "LineYY"}) {
        QVERIFY(ElementoAnteprima(*banco.frm, QString::fromLatin1(nome)) != nullptr);
    }
}

void tst_Frm1::GuidaSuOgniControllo()
{
    Banco banco;
    for (const char *nome : {"P1", "RighelloX", "ScrollX", "TextZoom", "PX", "LL"}) {
        QCOMPARE(ArgomentoDi(Trova<QWidget>(*banco.frm, nome)), ArgomentoGuida);
    }
}

void tst_Frm1::AperturaAllZoomDelMomento_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QString>("testo");
    QTest::addColumn<int>("massimoX");
    QTest::addColumn<int>("massimoY");
    QTest::newRow("1") << 1.0 << QStringLiteral("1") << 240 << 350;
    QTest::newRow("1.7") << 1.7 << QStringLiteral("1.7") << 141 << 206;
    QTest::newRow("2.5") << 2.5 << QStringLiteral("2.5") << 96 << 140;
    QTest::newRow("3") << 3.0 << QStringLiteral("3") << 80 << 117;
}

void tst_Frm1::AperturaAllZoomDelMomento()
{
    QFETCH(double, zoom);
    QFETCH(QString, testo);
    QFETCH(int, massimoX);
    QFETCH(int, massimoY);
    Banco banco(zoom);
    QCOMPARE(Trova<QLineEdit>(*banco.frm, "TextZoom")->text(), testo);
    const auto *ScrollX = Trova<QScrollBar>(*banco.frm, "ScrollX");
    const auto *ScrollY = Trova<QScrollBar>(*banco.frm, "ScrollY");
    QCOMPARE(ScrollX->minimum(), 0);
    QCOMPARE(ScrollX->maximum(), massimoX);
    QCOMPARE(ScrollY->minimum(), 0);
    QCOMPARE(ScrollY->maximum(), massimoY);
    const QSize foglio(qRound(240 / zoom / MillimetriPerPixel),
                       qRound(350 / zoom / MillimetriPerPixel));
    QCOMPARE(Trova<QWidget>(*banco.frm, "P1")->size(), foglio);
    QCOMPARE(Trova<QWidget>(*banco.frm, "RighelloX")->width(), foglio.width());
    QCOMPARE(Trova<QWidget>(*banco.frm, "RighelloY")->height(), foglio.height());
    QCOMPARE(banco.stato.zoom, zoom);
    // One unit of the sheet is one millimetre of screen at any place on it.
    const auto *P1 = Trova<QGraphicsView>(*banco.frm, "P1");
    QCOMPARE(P1->mapFromScene(QPointF(50, 70)), banco.Pixel({50, 70}));
}

void tst_Frm1::DisposizioneDellaFinestra()
{
    Banco banco;
    const QRect interna = banco.frm->rect();
    const auto posto = [&](const char *nome) {
        const auto *controllo = Trova<QWidget>(*banco.frm, nome);
        return QRect(controllo->mapTo(banco.frm.get(), QPoint(0, 0)), controllo->size());
    };
    const QRect P1 = posto("P1");
    QCOMPARE(P1.top(), posto("RighelloX").bottom() + 1);
    QCOMPARE(P1.left(), posto("RighelloY").right() + 1);
    QVERIFY(posto("RighelloX").height() * MillimetriPerPixel >= 6);
    QVERIFY(posto("RighelloY").width() * MillimetriPerPixel >= 6);
    QCOMPARE(posto("ScrollY").right(), interna.right());
    QCOMPARE(posto("LL").right(), interna.right());
    for (const char *nome : {"Text1", "PX", "PY"}) {
        QCOMPARE(posto(nome).bottom(), interna.bottom());
    }
    for (const char *nome :
         {"ScrollX", "ScrollY", "Text1", "PX", "PY", "Label1", "TextZoom", "LL"}) {
        QVERIFY2(interna.contains(posto(nome)), nome);
    }
}

void tst_Frm1::NonSiRidimensiona()
{
    Banco banco;
    const QSize schermo = banco.frm->screen()->availableGeometry().size();
    const QMargins cornice = banco.frm->windowHandle()->frameMargins();
    const QSize attesa(schermo.width() - cornice.left() - cornice.right(),
                       schermo.height() - 200 - cornice.top() - cornice.bottom());
    QTRY_COMPARE(banco.frm->size(), attesa);
    banco.frm->resize(300, 300);
    QTRY_COMPARE(banco.frm->size(), attesa);
    banco.frm->windowHandle()->resize(500, 200);
    QTRY_COMPARE(banco.frm->size(), attesa);
    banco.frm->move(20, 30);
    QTRY_COMPARE(banco.frm->size(), attesa);
}

void tst_Frm1::ChiusuraChiestaAllEditor()
{
    Banco banco;
    QCloseEvent chiusura; // of the window manager's close box
    MandaDaFuori(banco.frm.get(), chiusura);
    QVERIFY(!chiusura.isAccepted());
    QVERIFY(banco.frm->isVisible());
    QCOMPARE(banco.segnali, QStringList{QStringLiteral("ChiusuraRichiesta")});
    banco.frm->close(); // the editor's own
    QVERIFY(!banco.frm->isVisible());
    QCOMPARE(banco.segnali.size(), 1);
}

void tst_Frm1::ScorreEsattamenteInMillimetri_data()
{
    QTest::addColumn<int>("valore");
    for (const int valore : {0, 1, 7, 100, 240}) {
        QTest::addRow("%d", valore) << valore;
    }
}

void tst_Frm1::ScorreEsattamenteInMillimetri()
{
    QFETCH(int, valore);
    Banco banco;
    auto *P1 = Trova<QWidget>(*banco.frm, "P1");
    auto *RighelloX = Trova<QWidget>(*banco.frm, "RighelloX");
    auto *RighelloY = Trova<QWidget>(*banco.frm, "RighelloY");
    const QPoint P1Posto0 = P1->pos();
    const QPoint X0 = RighelloX->pos();
    const QPoint Y0 = RighelloY->pos();
    const int pixel = qRound(valore / MillimetriPerPixel);
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(valore);
    QCOMPARE(P1->pos(), P1Posto0 - QPoint(pixel, 0));
    QCOMPARE(RighelloX->pos(), X0 - QPoint(pixel, 0));
    QCOMPARE(RighelloY->pos(), Y0);
    Trova<QScrollBar>(*banco.frm, "ScrollY")->setValue(valore);
    QCOMPARE(P1->pos(), P1Posto0 - QPoint(pixel, pixel));
    QCOMPARE(RighelloY->pos(), Y0 - QPoint(0, pixel));
    QCOMPARE(RighelloX->pos(), X0 - QPoint(pixel, 0));
}

void tst_Frm1::ScorrimentoPerLEditor()
{
    Banco banco;
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(40);
    Trova<QScrollBar>(*banco.frm, "ScrollY")->setValue(60);
    QCOMPARE(banco.frm->ScorrimentoX(), 40);
    QCOMPARE(banco.frm->ScorrimentoY(), 60);
}

void tst_Frm1::RuotaDelMouse_data()
{
    QTest::addColumn<QList<QPoint>>("giri");
    QTest::addColumn<bool>("maiuscole");
    QTest::addColumn<QPoint>("valori");
    QTest::newRow("one notch towards the user")
        << QList<QPoint>{{0, -120}} << false << QPoint(0, 15);
    QTest::newRow("with Shift it goes sideways")
        << QList<QPoint>{{0, -120}} << true << QPoint(15, 0);
    QTest::newRow("a wheel that tilts") << QList<QPoint>{{-120, 0}} << false << QPoint(15, 0);
    QTest::newRow("a touch pad's small turns add up")
        << QList<QPoint>(24, QPoint(0, -5)) << false << QPoint(0, 15);
    QTest::newRow("no further than the top") << QList<QPoint>{{0, 1200}} << false << QPoint(0, 0);
}

void tst_Frm1::RuotaDelMouse()
{
    QFETCH(QList<QPoint>, giri);
    QFETCH(bool, maiuscole);
    Banco banco;
    for (const QPoint giro : giri) {
        QWheelEvent ruota(QPointF(100, 100), banco.Vista()->mapToGlobal(QPointF(100, 100)), {},
                          giro, Qt::NoButton, maiuscole ? Qt::ShiftModifier : Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        MandaDaFuori(banco.Vista(), ruota);
    }
    QTEST(QPoint(banco.frm->ScorrimentoX(), banco.frm->ScorrimentoY()), "valori");
}

void tst_Frm1::SfondoDipintoEPulito()
{
    Banco banco;
    const QString percorso = banco.cartella.filePath(QStringLiteral("scansione.bmp"));
    ImmaginiDiProva::Tinta({20, 20}, 0xff00ffff).save(percorso);
    banco.frm->DipingeSfondo(percorso, QRectF(20, 10, 50, 40));
    QImage foglio = banco.Fotografia();
    QCOMPARE(ColoreFoto(foglio, {20.5, 10.5}), 0x00ffffu);
    QCOMPARE(ColoreFoto(foglio, {69.5, 49.5}), 0x00ffffu);
    QCOMPARE(ColoreFoto(foglio, {19.5, 10.5}), 0xffffffu);
    QCOMPARE(ColoreFoto(foglio, {70.5, 30}), 0xffffffu);
    // Nudged: the same picture half a millimetre further, and nothing left behind.
    banco.frm->DipingeSfondo(percorso, QRectF(22, 10, 50, 40));
    foglio = banco.Fotografia();
    QCOMPARE(ColoreFoto(foglio, {21, 30}), 0xffffffu);
    QCOMPARE(ColoreFoto(foglio, {71, 30}), 0x00ffffu);
    banco.frm->PulisceSfondo();
    QCOMPARE(ColoreFoto(banco.Fotografia(), {40, 30}), 0xffffffu);
}

void tst_Frm1::SfondoSegueLoZoom()
{
    Banco banco;
    const QString percorso = banco.cartella.filePath(QStringLiteral("scansione.bmp"));
    ImmaginiDiProva::Tinta({20, 20}, 0xff00ffff).save(percorso);
    banco.frm->DipingeSfondo(percorso, QRectF(20, 10, 50, 40));
    banco.Zoom(QStringLiteral("2"));
    const QImage foglio = banco.Fotografia();
    QCOMPARE(ColoreFoto(foglio, {10.5, 5.5}), 0x00ffffu);
    QCOMPARE(ColoreFoto(foglio, {34.5, 24.5}), 0x00ffffu);
    QCOMPARE(ColoreFoto(foglio, {35.6, 20}), 0xffffffu);
}

void tst_Frm1::SfondoDietroGliElementi()
{
    Banco banco;
    const QString percorso = banco.cartella.filePath(QStringLiteral("scansione.bmp"));
    ImmaginiDiProva::Tinta({20, 20}, 0xff00ffff).save(percorso);
    banco.Cornice(30, 20, 20, 10);
    banco.Cambia([](Modello &modello) { modello.Cornici[1].Testo.clear(); });
    banco.Cambia([&](Modello &modello) { modello.Cornici[1].ColoreCornice = 12; });
    banco.frm->ImpostazioniCornice(1);
    const QImage senza = banco.Fotografia();
    banco.frm->DipingeSfondo(percorso, QRectF(0, 0, 100, 100));
    const QImage con = banco.Fotografia();
    int rossiSenza = 0;
    int rossiCon = 0;
    for (int y = 0; y < con.height(); ++y) {
        for (int x = 0; x < con.width(); ++x) {
            rossiSenza += (senza.pixel(x, y) & 0xffffff) == 0xff0000 ? 1 : 0;
            rossiCon += (con.pixel(x, y) & 0xffffff) == 0xff0000 ? 1 : 0;
        }
    }
    QVERIFY(rossiSenza > 100);
    QCOMPARE(rossiCon, rossiSenza);
    QCOMPARE(ColoreFoto(con, {40, 25}), 0x00ffffu); // seen through the frame
}

void tst_Frm1::SfondoErrato_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<int>("errore");
    QTest::newRow("missing") << QByteArray() << 53;
    QTest::newRow("no picture") << QByteArray("no picture") << 481;
}

void tst_Frm1::SfondoErrato()
{
    QFETCH(QByteArray, byte);
    QFETCH(int, errore);
    Banco banco;
    const QString buono = banco.cartella.filePath(QStringLiteral("buono.bmp"));
    ImmaginiDiProva::Tinta({20, 20}, 0xff00ffff).save(buono);
    const QString cattivo = banco.cartella.filePath(QStringLiteral("cattivo.bmp"));
    if (!byte.isEmpty()) {
        ImmaginiDiProva::Scrive(cattivo, byte);
    }
    for (const QRectF &posto : {QRectF(0, 0, 100, 100), QRectF(0, 0, 0, 0)}) {
        banco.frm->DipingeSfondo(buono, QRectF(0, 0, 100, 100));
        QCOMPARE(ErroreDi([&] { banco.frm->DipingeSfondo(cattivo, posto); }), errore);
        QCOMPARE(ColoreFoto(banco.Fotografia(), {40, 30}), 0xffffffu);
    }
}

void tst_Frm1::StriscaMostraLElementoInMano()
{
    Banco banco;
    const auto *Text1 = Trova<QLabel>(*banco.frm, "Text1");
    banco.Campo(QStringLiteral("<i>Totale</i>"), 60, 50);
    banco.Muove({63, 52});
    QCOMPARE(Text1->text(), QStringLiteral("Campo <i>Totale</i>   X 60   Y 50   mm"));
    QCOMPARE(Text1->textFormat(), Qt::PlainText);
    QCOMPARE(Trova<QLineEdit>(*banco.frm, "LL")->text(), QStringLiteral("C1(1)"));
    banco.frm->SpostaCampo(1, Qt::LeftButton, {}, 5, 0);
    QVERIFY(Text1->text().contains(QStringLiteral("X 65   Y 50")));
    banco.Cornice(100, 50, 40, 20);
    banco.Clicca({120, 60});
    QVERIFY(
        Text1->text().endsWith(QStringLiteral("X 100   Y 50   larghezza 40   altezza 20   mm")));
}

void tst_Frm1::StrisciaMostraIlPuntatoreSulFoglioVuoto()
{
    Banco banco(2);
    const auto *Text1 = Trova<QLabel>(*banco.frm, "Text1");
    const auto atteso = [&](QPointF punto) {
        const QPointF carta = banco.Centro(punto) * 2;
        const auto decimi = [](double mm) { return QString::number(qRound(mm * 10) / 10.0); };
        return QStringLiteral("X %1   Y %2   mm").arg(decimi(carta.x()), decimi(carta.y()));
    };
    banco.Cornice(40, 40, 60, 40);
    banco.Clicca({30, 30});
    const QString cornice = Text1->text();
    QVERIFY(cornice.startsWith(QStringLiteral("Cornice")));
    banco.Muove({45, 35}); // still over it
    QCOMPARE(Text1->text(), cornice);
    banco.Muove({70, 36});
    QCOMPARE(Text1->text(), atteso({70, 36}));
    QCOMPARE(Trova<QLineEdit>(*banco.frm, "PX")->text(), QString()); // only under a held button
    banco.Muove({80.2, 90.4});
    QCOMPARE(Text1->text(), atteso({80.2, 90.4}));
    // Pointing at a field tells of the field again.
    banco.Campo(QStringLiteral("uno"), 100, 100);
    banco.Muove({51, 51});
    QVERIFY(Text1->text().startsWith(QStringLiteral("Campo uno")));
}

QTEST_MAIN(tst_Frm1)
#include "tst_Frm1.moc"
