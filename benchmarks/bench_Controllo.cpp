#include "Misura.h"
#include "controllo/ControlloDelModello.h"
#include "documento/Passo.h"
#include "support/ArchivioDiProva.h"
#include "support/ImmaginiDiProva.h"
#include "support/ModelloDiProva.h"
#include "support/Tempi.h"

#include <QTest>

namespace {

constexpr int PerGenere = 100;

/// The middle one of several runs, of which only what follows the step is measured. Milliseconds of
/// processor time.
template <typename Passi, typename Azione>
double MedianaDiLavoro(std::size_t prove, Passi &&passo, Azione &&azione)
{
    std::vector<double> tempi;
    for (std::size_t i = 0; i < prove; ++i) {
        passo(i);
        const TempoDiLavoro tempo;
        azione();
        tempi.push_back(tempo.MilliSecondi());
    }
    std::nth_element(tempi.begin(), tempi.begin() + prove / 2, tempi.end());
    return tempi[prove / 2];
}

} // namespace

/// What keeping the findings costs on a model of 300 elements, each with something to be said of.
class bench_Controllo : public QObject
{
    Q_OBJECT

private slots:
    void DopoUnPasso();
    void UnModelloAppenaAperto();

private:
    static constexpr std::size_t Prove = 201;

    ArchivioDiProva archivio_;
    Documento documento_;
    ControlloDelModello controllo_{archivio_.Stato().CartellaModelli,
                                   [](const ImmagineSfondo &sfondo) { return sfondo.File; }};
};

void bench_Controllo::DopoUnPasso()
{
    Modello modello = ModelloDiProva(PerGenere);
    for (int i = 1; i <= PerGenere; i += 2) {
        ImmaginiDiProva::Scrive(archivio_.Stato().CartellaModelli + modello.Immagini[i].Nome,
                                ImmaginiDiProva::InFormato(
                                    ImmaginiDiProva::Tinta({300, 200}, qRgb(9, 90, 200)), "jpeg"));
    }
    documento_.Prende(modello, false);
    controllo_.ImpostaFoglio(FoglioStampante{QRectF(-5, -5, 210, 297), QRectF(0, 0, 200, 287)});
    QVERIFY(controllo_.Esamina(documento_).size() > PerGenere);
    const auto esamina = [&] { controllo_.Esamina(documento_); };
    const auto conPasso = [&](auto modifica) {
        return [this, modifica](std::size_t prova) {
            Passo passo(documento_, QStringLiteral("modifica"));
            modifica(passo, int(prova));
        };
    };
    Riporta("findings after a step that moves one of 300 elements",
            MedianaDiLavoro(Prove, conPasso([](Passo &p, int prova) {
                                p.Trascina({Genere::Campo, 1}, QPointF(prova % 100, 10));
                            }),
                            esamina),
            5);
    Riporta("findings after a step that moves 300 elements",
            MedianaDiLavoro(Prove, conPasso([](Passo &p, int) {
                                for (const Genere genere : Generi) {
                                    p.SpostaTutti(genere, 1, 1);
                                }
                            }),
                            esamina),
            5);
    Riporta("findings after a step that changes a text of 300 elements",
            MedianaDiLavoro(Prove, conPasso([&](Passo &p, int prova) {
                                Campo campo = documento_.Aperto().Campi[1];
                                campo.Testo = QStringLiteral("prova %1").arg(prova);
                                p.Scrive(1, campo);
                            }),
                            esamina),
            5);
    Riporta("findings after a step that changes the font of 100 fields",
            MedianaDiLavoro(Prove, conPasso([&](Passo &p, int prova) {
                                for (int i = 1; i <= PerGenere; ++i) {
                                    Campo campo = documento_.Aperto().Campi[i];
                                    campo.Dimensione = qint16(6 + prova % 30);
                                    p.Scrive(i, campo);
                                }
                            }),
                            esamina),
            5);
}

void bench_Controllo::UnModelloAppenaAperto()
{
    // Nothing is known of its texts; the files are as they were.
    Riporta(
        "findings of 300 elements, fonts and files seen anew",
        MedianaDiLavoro(
            21, [&](std::size_t) { controllo_.Rivede(); }, [&] { controllo_.Esamina(documento_); }),
        30);
}

QTEST_MAIN(bench_Controllo)
#include "bench_Controllo.moc"
