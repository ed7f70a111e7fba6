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

int DaAmbiente(const char *nome, int altrimenti)
{
    bool numero = false;
    const int valore = qEnvironmentVariableIntValue(nome, &numero);
    return numero ? valore : altrimenti;
}

qint64 Durata() // ms; 0: that of the sequences asked for
{
    return 1000LL * DaAmbiente("PLAKERA_SEQUENZE_SECONDI", 0);
}

} // namespace

/// Random work on random models through the real windows, which is then taken back to the beginning
/// and done again. The seeds begin with 1, or with PLAKERA_SEME; PLAKERA_SEQUENZE says how many
/// sequences, PLAKERA_SEQUENZE_SECONDI for how long.
class tst_SequenzeCasuali : public QObject
{
    Q_OBJECT
public:
    /// Qt stops a test function after five minutes unless told otherwise.
    static void initMain()
    {
        constexpr qint64 Oltre = 300'000; // ms
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(Durata() + Oltre));
    }

private slots:
    void LavoroQualsiasi();
};

void tst_SequenzeCasuali::LavoroQualsiasi()
{
    const int quante = DaAmbiente("PLAKERA_SEQUENZE", SequenzeSolite);
    const qint64 millisecondi = Durata();
    const int primo = DaAmbiente("PLAKERA_SEME", 1);
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
