#include "base/ErroreSistema.h"
#include "model/FileModello.h"

#include "support/ModelloDiProva.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <ctime>
#include <vector>

/// Reading and composing a model of 300 elements, in memory.
class bench_Modello : public QObject
{
    Q_OBJECT

private slots:
    void Analizza();
    void Componi();
    void ComponiConLaVirgola();
    void EntroIlMillisecondo();
    void RigaPiuLunga_data();
    void RigaPiuLunga();
};

namespace {

constexpr int PerGenere = 100;

const QLocale Punto = QLocale::c();
const QLocale Virgola(QLocale::Italian, QLocale::Italy);

/// The middle one of many runs, in microseconds: what the machine does besides does not count.
template <typename Azione>
double Mediana(Azione &&azione)
{
    constexpr std::size_t Prove = 201;
    std::vector<double> tempi;
    for (std::size_t i = 0; i < Prove; ++i) {
        QElapsedTimer tempo;
        tempo.start();
        azione();
        tempi.push_back(static_cast<double>(tempo.nsecsElapsed()) / 1000);
    }
    std::nth_element(tempi.begin(), tempi.begin() + Prove / 2, tempi.end());
    return tempi[Prove / 2];
}

} // namespace

void bench_Modello::Analizza()
{
    const QByteArray byte = FileModello::Componi(ModelloDiProva(PerGenere), Punto);
    Modello modello;
    QBENCHMARK
    {
        FileModello::Analizza(byte, modello);
    }
    QVERIFY(modello == ModelloDiProva(PerGenere));
}

void bench_Modello::Componi()
{
    const Modello modello = ModelloDiProva(PerGenere);
    QBENCHMARK
    {
        FileModello::Componi(modello, Punto);
    }
}

void bench_Modello::ComponiConLaVirgola()
{
    const Modello modello = ModelloDiProva(PerGenere);
    QBENCHMARK
    {
        FileModello::Componi(modello, Virgola);
    }
}

void bench_Modello::EntroIlMillisecondo()
{
    constexpr double Microsecondi = 1000;
    const Modello modello = ModelloDiProva(PerGenere);
    const QByteArray byte = FileModello::Componi(modello, Punto);
    // Each time into a fresh model, as opening does.
    const double analizza = Mediana([&] {
        Modello letto;
        FileModello::Analizza(byte, letto);
    });
    const double componi = Mediana([&] { FileModello::Componi(modello, Virgola); });
    qInfo("model of 300 elements, %lld bytes: read in %.0f us, composed in %.0f us",
          static_cast<long long>(byte.size()), analizza, componi);
    QVERIFY(analizza <= Microsecondi);
    QVERIFY(componi <= Microsecondi);
}

void bench_Modello::RigaPiuLunga_data()
{
    QTest::addColumn<QByteArray>("inizio");
    QTest::addColumn<char>("resto");

    const QByteArray righeVuote = QByteArray("\r\n").repeated(7);
    QTest::newRow("testo") << QByteArray() << 'x';
    QTest::newRow("cifre") << righeVuote << '9';
    QTest::newRow("decimali") << righeVuote + "0." << '3';
    QTest::newRow("esponente") << righeVuote + "1E-" << '9';
    QTest::newRow("blank") << righeVuote << ' ';
}

void bench_Modello::RigaPiuLunga()
{
    QFETCH(QByteArray, inizio);
    QFETCH(char, resto);
    constexpr qint64 Millisecondi = 1000;
    // A file of the size still read, of one line that never ends.
    const QByteArray byte =
        inizio + QByteArray(FileModello::DimensioneMassima - inizio.size(), resto);
    Modello modello;
    // The processor's time, so that what the machine does besides does not count.
    const std::clock_t prima = std::clock();
    QVERIFY_EXCEPTION_THROWN(FileModello::Analizza(byte, modello), ErroreSistema);
    const qint64 trascorsi = qint64(std::clock() - prima) * 1000 / CLOCKS_PER_SEC;
    qInfo("refused after %lld ms", static_cast<long long>(trascorsi));
    QVERIFY(trascorsi <= Millisecondi);
}

QTEST_GUILESS_MAIN(bench_Modello)
#include "bench_Modello.moc"
