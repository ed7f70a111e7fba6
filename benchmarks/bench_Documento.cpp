#include "Misura.h"
#include "documento/Passo.h"
#include "support/ModelloDiProva.h"

#include <QTest>

#include <malloc.h>

namespace {

constexpr int PerGenere = 100;

double Mebibyte()
{
    constexpr double Byte = 1024.0 * 1024.0;
    return double(mallinfo2().uordblks) / Byte;
}

} // namespace

/// What a step costs on a model of 300 elements.
class bench_Documento : public QObject
{
    Q_OBJECT

private slots:
    void ApreUnPasso();
    void SpostaTutti();
    void DuecentoPassi();
};

void bench_Documento::ApreUnPasso()
{
    constexpr std::size_t Prove = 201;
    Documento documento;
    documento.Prende(ModelloDiProva(PerGenere), false);
    Riporta("open a step on 300 elements, and give it up",
            Mediana(Prove,
                    [&] {
                        Passo passo(documento, QStringLiteral("sposta"));
                        passo.SoloSeCambia();
                    }),
            0.1);
    int prova = 0;
    Riporta("a step that moves one of 300 elements",
            Mediana(Prove,
                    [&] {
                        Passo passo(documento, QStringLiteral("sposta"));
                        passo.Trascina({Genere::Campo, 1}, QPointF(++prova, 10));
                    }),
            0.2);
}

void bench_Documento::SpostaTutti()
{
    constexpr std::size_t Prove = 201;
    Documento documento;
    documento.Prende(ModelloDiProva(PerGenere), false);
    Riporta("a step that moves 300 elements",
            Mediana(Prove,
                    [&] {
                        Passo passo(documento, QStringLiteral("sposta tutti"));
                        for (const Genere genere : Generi) {
                            passo.SpostaTutti(genere, 1, 1);
                        }
                    }),
            1);
}

void bench_Documento::DuecentoPassi()
{
    constexpr int Passi = 200;
    Documento documento;
    documento.Prende(ModelloDiProva(PerGenere), false);
    const double prima = Mebibyte();
    for (int i = 0; i < Passi; ++i) {
        Passo passo(documento, QStringLiteral("sposta tutti"));
        for (const Genere genere : Generi) {
            passo.SpostaTutti(genere, 1, 1);
        }
    }
    Riporta("memory of 200 steps that move 300 elements", Mebibyte() - prima, 10, "MiB");
    for (int i = 0; i < Passi; ++i) {
        QVERIFY(documento.PuoAnnullare());
        documento.Annulla();
    }
}

QTEST_GUILESS_MAIN(bench_Documento)
#include "bench_Documento.moc"
