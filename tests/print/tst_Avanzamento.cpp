#include "print/FoglioDiProva.h"

#include <QFile>
#include <QTest>

#include <algorithm>

using namespace ImmaginiDiProva;

namespace {

/// What a sheet goes through on its way to a printer, and where it ends.
class DestinazioneInProva : public Destinazione
{
public:
    explicit DestinazioneInProva(std::unique_ptr<Destinazione> vera)
        : vera_(std::move(vera))
    {
    }
    QPagedPaintDevice &Dispositivo() override { return vera_->Dispositivo(); }
    QString Nome() const override { return vera_->Nome(); }
    void Titolo(const QString &titolo) override { vera_->Titolo(titolo); }
    ErroreSistema Rifiuto() const override { return vera_->Rifiuto(); }
    void Consegna() override
    {
        vera_->Consegna();
        ++Consegnati;
    }
    void Rinuncia() override { ++Rinunciati; }

    int Consegnati = 0;
    int Rinunciati = 0;

private:
    std::unique_ptr<Destinazione> vera_;
};

void NessunAvviso(const QString &testo)
{
    QTest::qFail(qPrintable(testo), __FILE__, __LINE__);
}

void Compone(FoglioDiProva &foglio)
{
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("testo"), 20, 20);
    for (int i = 0; i < 4; ++i) {
        foglio.ConImmagine(QStringLiteral("figura%1.bmp").arg(i),
                           InFormato(Tinta({40, 40}, qRgb(200, 30 * i, 90)), "bmp"),
                           QRectF(20 + 30 * i, 40, 20, 20));
    }
}

} // namespace

/// Who waits for a sheet is told how far it is, and can give it up.
class tst_Avanzamento : public QObject
{
    Q_OBJECT
private slots:
    void diceQuantoEFatto();
    void senzaFigureSoloAllaFine();
    void annullaNonConsegna_data();
    void annullaNonConsegna();
};

void tst_Avanzamento::diceQuantoEFatto()
{
    FoglioDiProva foglio;
    Compone(foglio);
    DestinazioneInProva destinazione(foglio.Stampante());
    QList<double> parti;
    StampaModello(foglio.Aperto, foglio.Cartella(), destinazione, false, NessunAvviso,
                  [&](double parte) { parti.append(parte); });
    QCOMPARE(destinazione.Consegnati, 1);
    QCOMPARE(parti.first(), 0.0);
    QCOMPARE(parti.last(), 0.8);
    QVERIFY(std::is_sorted(parti.begin(), parti.end()));
    // Before each picture, before each part of one that is painted, and before the sheet goes.
    QVERIFY(parti.size() >= 9);
    for (const double parte : {0.0, 0.2, 0.4, 0.6, 0.8}) {
        QVERIFY(parti.contains(parte));
    }
}

void tst_Avanzamento::senzaFigureSoloAllaFine()
{
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("testo"), 20, 20);
    DestinazioneInProva destinazione(foglio.Stampante());
    int volte = 0;
    StampaModello(foglio.Aperto, foglio.Cartella(), destinazione, false, NessunAvviso,
                  [&](double) { ++volte; });
    QCOMPARE(volte, 1);
    QCOMPARE(LettorePdf(foglio.Pdf()).Testi(), QStringList{QStringLiteral("testo")});
}

void tst_Avanzamento::annullaNonConsegna_data()
{
    QTest::addColumn<double>("da");
    QTest::newRow("at the first picture") << 0.0;
    QTest::newRow("in the middle") << 0.5;
    QTest::newRow("after the last picture") << 0.8;
}

void tst_Avanzamento::annullaNonConsegna()
{
    QFETCH(double, da);
    FoglioDiProva foglio;
    Compone(foglio);
    DestinazioneInProva destinazione(foglio.Stampante());
    const auto stampa = [&] {
        StampaModello(foglio.Aperto, foglio.Cartella(), destinazione, false, NessunAvviso,
                      [da](double parte) {
                          if (parte >= da) {
                              throw StampaAnnullata();
                          }
                      });
    };
    QVERIFY_EXCEPTION_THROWN(stampa(), StampaAnnullata);
    QCOMPARE(destinazione.Consegnati, 0);
    QCOMPARE(destinazione.Rinunciati, 1);
}

QTEST_MAIN(tst_Avanzamento)
#include "tst_Avanzamento.moc"
