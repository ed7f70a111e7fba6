#include "Misura.h"
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
    constexpr std::size_t Prove = 201;
    const Modello modello = ModelloDiProva(PerGenere);
    const QByteArray byte = FileModello::Componi(modello, Punto);
    // Each time into a fresh model, as opening does.
    const double analizza = Mediana(Prove, [&] {
        Modello letto;
        FileModello::Analizza(byte, letto);
    });
    Riporta("read a model of 300 elements", analizza, 1);
    Riporta("compose a model of 300 elements",
            Mediana(Prove, [&] { FileModello::Componi(modello, Virgola); }), 1);
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
