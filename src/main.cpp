#include "ControlloDaRiga.h"
#include "LineaDiComando.h"
#include "Plakera.h"
#include "UscitaStandard.h"
#include "finestre/ComboAccessibile.h"
#include "finestre/Finestre.h"
#include "finestre/ScalaSchermo.h"
#include "sistema/SenzaFinestre.h"
#include "sistema/SuDisco.h"

#include <QApplication>
#include <QCoreApplication>

#include <cstdio>
#include <memory>

namespace {

LetturaArgomenti LeggeArgomentiDi(int &argc, char **argv)
{
    if (argc <= 1) {
        return {Richieste(), {}, 0}; // the ordinary start need not pay for a reader of nothing
    }
    // Read before any window system is touched, so that --help works without one.
    const QCoreApplication applicazione(argc, argv);
    ImpostaLingua();
    return LeggeArgomenti(QCoreApplication::arguments());
}

std::unique_ptr<QApplication> Applicazione(int &argc, char **argv)
{
    const FineSenzaSchermo fine;
    auto applicazione = std::make_unique<QApplication>(argc, argv);
    if (const AlmenoUnPixel almenoUnPixel; almenoUnPixel.Occorre()) {
        applicazione.reset(); // there can be one at a time
        applicazione = std::make_unique<QApplication>(argc, argv);
    }
    return applicazione;
}

} // namespace

int main(int argc, char *argv[])
{
    SuDisco::FallisceOltreIlLimite();
    const LetturaArgomenti lettura = LeggeArgomentiDi(argc, argv);
    if (!lettura.richieste) {
        if (lettura.stato != 0) {
            std::fputs(qUtf8Printable(lettura.testo), stderr);
            return lettura.stato;
        }
        UscitaStandard::Scrive(lettura.testo);
        return UscitaStandard::Consegnata() ? 0 : 1;
    }
    if (lettura.richieste->SenzaFinestre()) {
        SenzaFinestre();
    } else if (!SchermoPresente()) {
        std::fputs(AvvisoSenzaSchermo, stderr);
        return 1;
    }
    const std::unique_ptr<QApplication> applicazione = Applicazione(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Plakera"));
    QApplication::setApplicationVersion(QStringLiteral(PLAKERA_VERSIONE));
    ImpostaLingua();
    if (!lettura.richieste->daControllare.isEmpty()) {
        return ControlloDaRiga::Esegue(lettura.richieste->daControllare);
    }
    if (lettura.richieste->SenzaFinestre()) {
        return StampaSenzaFinestre(*lettura.richieste);
    }
    InstallaComboAccessibili();
    Plakera plakera;
    if (!plakera.Avvia(lettura.richieste->dati, lettura.richieste->daAprire)) {
        return 1;
    }
    return QApplication::exec();
}
