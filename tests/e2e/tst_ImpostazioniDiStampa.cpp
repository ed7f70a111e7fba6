#include "ProvaInCoda.h"
#include "base/Unita.h"

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
    QTest::addColumn<bool>("giace");
    QTest::newRow("new name") << QStringLiteral("orientation-requested=4") << true;
    QTest::newRow("old name") << QStringLiteral("landscape") << true;
    QTest::newRow("old name, denied") << QStringLiteral("landscape=no") << false;
}

void tst_ImpostazioniDiStampa::orizzontale()
{
    QFETCH(QString, impostazione);
    QFETCH(bool, giace);
    coda_->Imposta({QStringLiteral("-p"), Prova, QStringLiteral("-o"), impostazione});
    FoglioDiProva foglio;
    foglio.ConCornice({140, 20, 40, 10}, 1.5);
    const LettorePdf pdf = Stampa(foglio);
    QVERIFY(Vicini(pdf.Foglio().width(), 210, 0.3));
    // A page that lies is turned to the left on the upright sheet.
    const QRectF atteso = giace
                              ? QRectF(Bordi.Sinistra * MillimetriPerPunto + 20,
                                       (842 - Bordi.Sotto) * MillimetriPerPunto - 180.5, 10.5, 40.5)
                              : QRectF(Bordi.Sinistra * MillimetriPerPunto + 140,
                                       Bordi.Sopra * MillimetriPerPunto + 20, 40.5, 10.5);
    const QRectF quadro = pdf.Inchiostro();
    QVERIFY2(Vicini(quadro, atteso), Testo(quadro));
}

QTEST_MAIN(tst_ImpostazioniDiStampa)
#include "tst_ImpostazioniDiStampa.moc"
