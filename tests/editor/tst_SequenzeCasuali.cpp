#include "Confronti.h"
#include "Sequenza.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QTest>

namespace {

constexpr int SequenzeSolite = 6;
constexpr int PassiFraVerifiche = 10;

/// Runs the sequence that the seed gives; what went wrong, or an empty text.
QString Esegue(unsigned seme)
{
    Sequenza sequenza(seme);
    QString guasto = sequenza.Apre();
    const int passi = sequenza.Passi();
    for (int passo = 1; passo <= passi && guasto.isEmpty(); ++passo) {
        guasto = sequenza.Comando();
        if (guasto.isEmpty() && passo % PassiFraVerifiche == 0) {
            guasto = ComeRiaperto(sequenza);
        }
    }
    if (guasto.isEmpty()) {
        guasto = ComeRiaperto(sequenza);
    }
    if (guasto.isEmpty()) {
        guasto = AvantiEIndietro(sequenza);
    }
    if (guasto.isEmpty()) {
        guasto = sequenza.Chiude();
    }
    return guasto.isEmpty() ? guasto
                            : QStringLiteral("PLAKERA_SEME=%1 PLAKERA_SEQUENZE=1\n%2\n%3")
                                  .arg(seme)
                                  .arg(sequenza.Diario().join(u'\n'), guasto);
}

} // namespace

/// Random work on random models through the real windows, which is then taken back to the beginning
/// and done again. The seeds begin with 1, or with
/// PLAKERA_SEME; PLAKERA_SEQUENZE says how many sequences, PLAKERA_SEQUENZE_SECONDI for how long.
class tst_SequenzeCasuali : public QObject
{
    Q_OBJECT
private slots:
    void LavoroQualsiasi();
};

void tst_SequenzeCasuali::LavoroQualsiasi()
{
    const auto daAmbiente = [](const char *nome, int altrimenti) {
        bool numero = false;
        const int valore = qEnvironmentVariableIntValue(nome, &numero);
        return numero ? valore : altrimenti;
    };
    const int quante = daAmbiente("PLAKERA_SEQUENZE", SequenzeSolite);
    const qint64 millisecondi = 1000LL * daAmbiente("PLAKERA_SEQUENZE_SECONDI", 0);
    const int primo = daAmbiente("PLAKERA_SEME", 1);
    QElapsedTimer orologio;
    orologio.start();
    int fatte = 0;
    while (millisecondi > 0 ? orologio.elapsed() < millisecondi : fatte < quante) {
        const QString guasto = Esegue(static_cast<unsigned>(primo + fatte));
        if (!guasto.isEmpty()) {
            qWarning().noquote() << guasto; // longer than what a failure shows
        }
        QVERIFY(guasto.isEmpty());
        ++fatte;
    }
    QVERIFY(fatte > 0);
}

QTEST_MAIN(tst_SequenzeCasuali)
#include "tst_SequenzeCasuali.moc"
