#include "editor/CartaDellaStampante.h"

#include "editor/EditoreDiProva.h"
#include "preview/ContornoCarta.h"

#include <QPageLayout>

namespace {

QPageLayout PaginaDi(QPageSize::PageSizeId misura, QPageLayout::Orientation verso,
                     const QMarginsF &margini)
{
    return {QPageSize(misura), verso, margini, QPageLayout::Millimeter};
}

bool Quasi(const QRectF &uno, const QRectF &altro)
{
    constexpr double Punto = 0.36; // mm: sizes of paper are whole points
    return qAbs(uno.left() - altro.left()) < Punto && qAbs(uno.top() - altro.top()) < Punto &&
           qAbs(uno.right() - altro.right()) < Punto && qAbs(uno.bottom() - altro.bottom()) < Punto;
}

const QGraphicsObject *Contorno(const Form2 &editor, const char *nome)
{
    return ElementoAnteprima(*editor.Anteprima(), QString::fromLatin1(nome));
}

} // namespace

class tst_CartaDellaStampante : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void ContorniDallaPagina_data();
    void ContorniDallaPagina();
    void SenzaStampanteSoloA4();
    void NienteFinoAllaPittura();
    void TastiDallaFinestraDiLavoro();
};

void tst_CartaDellaStampante::initTestCase()
{
    qputenv("CUPS_SERVER", "/nessuno/cups.sock"); // whatever this machine prints on
}

void tst_CartaDellaStampante::ContorniDallaPagina_data()
{
    QTest::addColumn<QPageLayout>("pagina");
    QTest::addColumn<QRectF>("a4");
    QTest::addColumn<QRectF>("carta");
    QTest::addColumn<QRectF>("stampabile");
    const QMarginsF margini(4, 5, 6, 7);
    QTest::newRow("A4") << PaginaDi(QPageSize::A4, QPageLayout::Portrait, margini)
                        << QRectF(-4, -5, 210, 297) << QRectF(-4, -5, 210, 297)
                        << QRectF(0, 0, 200, 285);
    QTest::newRow("A5") << PaginaDi(QPageSize::A5, QPageLayout::Portrait, margini)
                        << QRectF(-4, -5, 210, 297) << QRectF(-4, -5, 148, 210)
                        << QRectF(0, 0, 138, 198);
    QTest::newRow("lying") << PaginaDi(QPageSize::A4, QPageLayout::Landscape, margini)
                           << QRectF(-4, -5, 297, 210) << QRectF(-4, -5, 297, 210)
                           << QRectF(0, 0, 287, 198);
    QTest::newRow("to the edge") << PaginaDi(QPageSize::A3, QPageLayout::Portrait, {})
                                 << QRectF(0, 0, 210, 297) << QRectF(0, 0, 297, 420)
                                 << QRectF(0, 0, 297, 420);
}

void tst_CartaDellaStampante::ContorniDallaPagina()
{
    QFETCH(QPageLayout, pagina);
    QFETCH(QRectF, a4);
    QFETCH(QRectF, carta);
    QFETCH(QRectF, stampabile);
    const ContorniCarta::Posti posti = CartaDellaStampante::Contorni(pagina);
    QVERIFY(Quasi(posti.A4, a4));
    QVERIFY(Quasi(posti.Carta, carta));
    QVERIFY(Quasi(posti.Stampabile, stampabile));
}

void tst_CartaDellaStampante::SenzaStampanteSoloA4()
{
    Robot robot; // no message: nobody has asked to print
    EditoreDiProva prova;
    QVERIFY(prova.Apre());
    QTRY_VERIFY(Contorno(*prova.Editor, "ContornoA4")->isVisible());
    const auto *a4 = dynamic_cast<const Controllo *>(Contorno(*prova.Editor, "ContornoA4"));
    QVERIFY(Quasi(a4->Posto(), QRectF(0, 0, 210, 297)));
    QVERIFY(!Contorno(*prova.Editor, "ContornoCarta")->isVisible());
    QVERIFY(!Contorno(*prova.Editor, "ContornoStampabile")->isVisible());
    QVERIFY(robot.Soddisfatto());
}

void tst_CartaDellaStampante::NienteFinoAllaPittura()
{
    EditorAperto aperto;
    QCoreApplication::processEvents();
    QVERIFY(!Contorno(aperto.Editor(), "ContornoA4")->isVisible());
    // The editor's window alone is not enough: the preview must have been seen too.
    aperto.Editor().show();
    QVERIFY(QTest::qWaitForWindowExposed(&aperto.Editor()));
    QCoreApplication::processEvents();
    QVERIFY(!Contorno(aperto.Editor(), "ContornoA4")->isVisible());
    aperto.Editor().Anteprima()->show();
    QTRY_VERIFY(Contorno(aperto.Editor(), "ContornoA4")->isVisible());
}

void tst_CartaDellaStampante::TastiDallaFinestraDiLavoro()
{
    EditoreDiProva prova;
    QVERIFY(prova.Apre());
    QTRY_VERIFY(Contorno(*prova.Editor, "ContornoA4")->isVisible());
    QVERIFY(RendeAttiva(*prova.Editor));
    QTest::keyClick(prova.Editor.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!Contorno(*prova.Editor, "ContornoA4")->isVisible());
    auto *casella = Trova<QLineEdit>(*prova.Editor, "Tipo");
    casella->setFocus();
    QTest::keyClick(casella, Qt::Key_0, Qt::ControlModifier);
    QVERIFY(prova.Archivio.Stato().zoom > 1);
    QTest::keyClick(casella, Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(prova.Archivio.Stato().zoom, 1.0);
    QVERIFY(!prova.Archivio.Stato().documento.Variato());
}

QTEST_MAIN(tst_CartaDellaStampante)
#include "tst_CartaDellaStampante.moc"
