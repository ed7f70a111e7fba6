#include "ProvaInCoda.h"
#include "base/Unita.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

using Unita::MillimetriPerPunto;

namespace {

constexpr CodaDiStampa::Bordi Bordi{10.3, 7.6, 20.9, 30.2};

const QString Istanza = QStringLiteral("Prova/istanza");

} // namespace

/// The test print on a real print queue for which the user has settings of their own, measured on
/// the sheet that comes out of it.
class tst_ImpostazioniDiStampa : public QObject, private ProvaInCoda
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void istanzaPredefinita();
    void carta_data();
    void carta();
    void orizzontale_data();
    void orizzontale();
    void paginaComeSulFoglio();
    void paginaSenzaAttese();

private:
    QTemporaryDir casa_;
};

void tst_ImpostazioniDiStampa::initTestCase()
{
    AvviaServer();
    qputenv("HOME", QFile::encodeName(casa_.path()));
}

void tst_ImpostazioniDiStampa::init()
{
    QFile::remove(casa_.filePath(QStringLiteral(".cups/lpoptions")));
    coda_->Aggiunge(Prova, Bordi);
    coda_->Predefinita(Prova);
}

void tst_ImpostazioniDiStampa::istanzaPredefinita()
{
    coda_->Imposta({QStringLiteral("-p"), Istanza, QStringLiteral("-o"), QStringLiteral("media=A5"),
                    QStringLiteral("-o"), QStringLiteral("orientation-requested=4")});
    coda_->Imposta({QStringLiteral("-d"), Istanza});
    const auto stampante = Stampanti::Predefinita();
    const QSizeF area =
        stampante->Dispositivo().pageLayout().paintRect(QPageLayout::Millimeter).size();
    QVERIFY(area.width() > area.height());
    FoglioDiProva foglio;
    foglio.ConCornice({130, 20, 40, 10}, 1.5); // beyond the width of an upright sheet
    const LettorePdf pdf = Stampa(foglio);
    QVERIFY(Vicini(pdf.Foglio().width(), 148, 0.6)); // its own whole points
    QVERIFY(Vicini(pdf.Foglio().height(), 210, 0.6));
    const QRectF quadro = pdf.Inchiostro();
    QVERIFY2(Vicini(quadro.width(), 10.5) && Vicini(quadro.height(), 40.5), Testo(quadro));
}

void tst_ImpostazioniDiStampa::carta_data()
{
    QTest::addColumn<QString>("media");
    QTest::addColumn<QSizeF>("punti"); // of the description, on which the queue lays the page
    QTest::newRow("A5") << QStringLiteral("media=A5") << QSizeF(421, 595);
    QTest::newRow("Letter") << QStringLiteral("media=Letter") << QSizeF(612, 792);
    QTest::newRow("A3") << QStringLiteral("media=A3") << QSizeF(842, 1191);
}

void tst_ImpostazioniDiStampa::carta()
{
    QFETCH(QString, media);
    QFETCH(QSizeF, punti);
    coda_->Imposta({QStringLiteral("-p"), Prova, QStringLiteral("-o"), media});
    const auto stampante = Stampanti::Predefinita();
    const QSizeF foglio =
        stampante->Dispositivo().pageLayout().pageSize().size(QPageSize::Millimeter);
    const QSizeF atteso = punti * MillimetriPerPunto;
    // A size that a standard one gives in whole points is that standard one.
    QVERIFY2(Vicini(QRectF({}, foglio), QRectF({}, atteso), 0.2), Testo(QRectF({}, foglio)));
    FoglioDiProva modello;
    modello.ConCornice({20, 30, 60, 50}, 1.5);
    const QPointF angolo = QPointF(Bordi.Sinistra, Bordi.Sopra) * MillimetriPerPunto;
    const QRectF quadro = Stampa(modello).Inchiostro().translated(-angolo);
    QVERIFY2(Vicini(quadro, QRectF(20, 30, 60.5, 50.5)), Testo(quadro));
}

void tst_ImpostazioniDiStampa::orizzontale_data()
{
    QTest::addColumn<QString>("impostazione");
    QTest::addColumn<QRectF>("atteso"); // a frame 140 x 20 mm from the page's corner, mm
    constexpr QSizeF Foglio = QSizeF(595, 842) * MillimetriPerPunto;
    constexpr double Sinistra = Bordi.Sinistra * MillimetriPerPunto;
    constexpr double Sopra = Bordi.Sopra * MillimetriPerPunto;
    constexpr double Destra = Foglio.width() - Bordi.Destra * MillimetriPerPunto;
    constexpr double Sotto = Foglio.height() - Bordi.Sotto * MillimetriPerPunto;
    const QRectF diritta(Sinistra + 140, Sopra + 20, 40.5, 10.5);
    const QRectF aSinistra(Sinistra + 20, Sotto - 180.5, 10.5, 40.5);
    const QRectF aDestra(Destra - 30.5, Sopra + 140, 10.5, 40.5);
    const QRectF capovolta(Destra - 180.5, Sotto - 30.5, 40.5, 10.5);
    const auto riga = [](const char *nome, const char *impostazione, const QRectF &atteso) {
        QTest::newRow(nome) << QString::fromLatin1(impostazione) << atteso;
    };
    riga("upright", "orientation-requested=3", diritta);
    riga("new name", "orientation-requested=4", aSinistra);
    riga("turned to the right", "orientation-requested=5", aDestra);
    riga("upside down", "orientation-requested=6", capovolta);
    riga("old name", "landscape", aSinistra);
    riga("old name, denied", "landscape=no", diritta);
}

void tst_ImpostazioniDiStampa::orizzontale()
{
    QFETCH(QString, impostazione);
    QFETCH(QRectF, atteso);
    coda_->Imposta({QStringLiteral("-p"), Prova, QStringLiteral("-o"), impostazione});
    FoglioDiProva foglio;
    foglio.ConCornice({140, 20, 40, 10}, 1.5);
    const LettorePdf pdf = Stampa(foglio);
    QVERIFY(Vicini(pdf.Foglio().width(), 210, 0.3));
    const QRectF quadro = pdf.Inchiostro();
    QVERIFY2(Vicini(quadro, atteso), Testo(quadro));
}

void tst_ImpostazioniDiStampa::paginaComeSulFoglio()
{
    // What the preview outlines is what comes out: its corner is where the model's 0, 0 is printed.
    const QPageLayout pagina = Stampanti::PaginaPredefinita();
    const QRectF area = pagina.paintRect(QPageLayout::Millimeter);
    FoglioDiProva foglio;
    foglio.ConCornice({0, 0, 40, 10}, 1);
    const LettorePdf pdf = Stampa(foglio);
    const QPointF angolo = pdf.Inchiostro().topLeft();
    QVERIFY(Vicini(area.left(), angolo.x(), 0.2) && Vicini(area.top(), angolo.y(), 0.2));
    QVERIFY(Vicini(area.left(), Bordi.Sinistra * MillimetriPerPunto, 0.2));
    QVERIFY(Vicini(area.top(), Bordi.Sopra * MillimetriPerPunto, 0.2));
    const QSizeF carta = pagina.fullRect(QPageLayout::Millimeter).size();
    QVERIFY(Vicini(carta.width(), pdf.Foglio().width(), 0.3));
    QVERIFY(Vicini(carta.height(), pdf.Foglio().height(), 0.3));
    QVERIFY(Vicini(carta.width() - area.right(), Bordi.Destra * MillimetriPerPunto, 0.2));
    QVERIFY(Vicini(carta.height() - area.bottom(), Bordi.Sotto * MillimetriPerPunto, 0.2));
}

void tst_ImpostazioniDiStampa::paginaSenzaAttese()
{
    constexpr qint64 Attimo = 1500; // ms, on a busy machine
    coda_->SiBlocca();
    QElapsedTimer tempo;
    tempo.start();
    QVERIFY_EXCEPTION_THROWN(Stampanti::PaginaPredefinita(), ErroreSistema);
    const qint64 attesa = tempo.elapsed();
    coda_->Riprende();
    QVERIFY2(attesa < Attimo, qPrintable(QString::number(attesa)));
    QCOMPARE(Stampanti::PaginaPredefinita().pageSize().id(), QPageSize::A4);
}

QTEST_MAIN(tst_ImpostazioniDiStampa)
#include "tst_ImpostazioniDiStampa.moc"
