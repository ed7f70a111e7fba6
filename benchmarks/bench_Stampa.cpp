#include "Misura.h"
#include "print/StampaProva.h"

#include "print/Retino.h"
#include "print/Stampanti.h"
#include "support/ImmaginiDiProva.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <vector>

/// The test print of 300 elements (100 fields, 100 frames, 100 different pictures) into a PDF file.
class bench_Stampa : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void Stampa();
    void StampaConSovrapposizioni();
    void Retino();
    void EntroUnDecimoDiSecondo();

private:
    void StampaUnaVolta(const Modello &modello);

    QTemporaryDir dir_;
    Modello modello_;
};

using namespace ImmaginiDiProva;

namespace {

constexpr int PerGenere = 100;

/// Half of them photographs, half drawings.
QByteArray Figura(int i)
{
    constexpr QSize Pixel(160, 160);
    return i % 2 == 0 ? InFormato(Fotografia(Pixel, unsigned(i)), "jpeg")
                      : InFormato(Disegno(Pixel, QStringLiteral("Ditta %1").arg(i)), "bmp");
}

} // namespace

void bench_Stampa::initTestCase()
{
    for (int i = 0; i < PerGenere; ++i) {
        const double colonna = i % 10 * 20;
        const int decina = i / 10;
        const double riga = decina * 27;
        const int fila = i / 5;
        Campo &campo = modello_.Campi[modello_.AggiungeCampo(5 + i % 5 * 40, 5 + fila * 13.5)];
        campo.Testo = QStringLiteral("Testo di prova %1").arg(i);
        campo.Grassetto = i % 2 == 0 ? Falso : Vero;
        campo.Dimensione = static_cast<qint16>(7 + i % 6);
        Cornice &cornice = modello_.Cornici[modello_.AggiungeCornice(3 + colonna, 3 + riga, 1, 1)];
        cornice.Testo = QStringLiteral("Cornice %1").arg(i);
        cornice.Larghezza = 18;
        cornice.Altezza = 24;
        cornice.Bordo = 1 + i % 5 * 0.1;
        cornice.ColoreCornice = static_cast<qint16>(i % 16);
        Immagine &immagine = modello_.Immagini[modello_.AggiungeImmagine(8 + colonna, 13 + riga)];
        immagine.Nome = QStringLiteral("figura%1.%2")
                            .arg(i)
                            .arg(i % 2 == 0 ? QLatin1String("jpg") : QLatin1String("bmp"));
        immagine.Larghezza = 10;
        immagine.Altezza = 7;
        Scrive(dir_.filePath(immagine.Nome), Figura(i));
    }
}

void bench_Stampa::StampaUnaVolta(const Modello &modello)
{
    const auto stampante = Stampanti::SuPdf(dir_.filePath(QStringLiteral("foglio.pdf")));
    StampaModello(modello, dir_.path() + QLatin1Char('/'), *stampante, false,
                  [](const QString &testo) { QFAIL(qPrintable(testo)); });
}

void bench_Stampa::Stampa()
{
    QBENCHMARK
    {
        StampaUnaVolta(modello_);
    }
}

void bench_Stampa::StampaConSovrapposizioni()
{
    Modello modello = modello_;
    for (int i = 1; i <= PerGenere; ++i) {
        modello.Immagini[i].Larghezza = 30; // each over its neighbour and over coloured bars
    }
    QBENCHMARK
    {
        StampaUnaVolta(modello);
    }
}

void bench_Stampa::Retino()
{
    const auto stampante = Stampanti::SuPdf(dir_.filePath(QStringLiteral("retino.pdf")));
    QBENCHMARK
    {
        StampaRetino(*stampante);
    }
}

void bench_Stampa::EntroUnDecimoDiSecondo()
{
    Riporta("300 elements to PDF, inside the program",
            Mediana(21, [this] { StampaUnaVolta(modello_); }), 100);
}

QTEST_MAIN(bench_Stampa)
#include "bench_Stampa.moc"
