#include "editor/RigheSimulate.h"

#include "grafica/Testo.h"
#include "model/FoglioCarta.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

// A spacing mistyped too small must not flood the preview: of rows closer than this only so many
// are drawn that the band they make looks the same.
constexpr double PassoMinimo = 0.1; // mm
// Below this one a number of rows is no longer a number.
constexpr double InterlineaMinima = 1e-9; // mm
// Farther away a spacing is lost in the last digit of a double, and the rows would not advance.
constexpr double InizioAlMassimo = 1e9; // mm
constexpr int CaratteriPerRiga = 200;

struct Fascia
{
    int primo;       // slot of the leftmost row field
    double sinistra; // mm
    double destra;   // mm
};

std::optional<Fascia> FasciaRighe(const Modello &modello, double zoom,
                                  const std::function<double(int)> &larghezzaCampo)
{
    constexpr double OltreOgniFoglio = 9999; // mm
    Fascia fascia{0, OltreOgniFoglio, -std::numeric_limits<double>::infinity()};
    for (int i = 1; i <= modello.UltimoSlot(Genere::Campo); ++i) {
        const Campo &campo = modello.Campi[i];
        if (!CampoDiRiga(campo)) {
            continue;
        }
        if (campo.X < fascia.sinistra) {
            fascia.primo = i;
            fascia.sinistra = campo.X;
        }
        fascia.destra = std::max(fascia.destra, campo.X + larghezzaCampo(i) * zoom);
    }
    if (fascia.primo == 0) {
        return std::nullopt;
    }
    return fascia;
}

} // namespace

QList<Frm1::RigaSimulata> RigheSimulate(const Modello &modello, double zoom,
                                        const std::function<double(int)> &larghezzaCampo)
{
    QList<Frm1::RigaSimulata> righe;
    const std::optional<Fascia> fascia = FasciaRighe(modello, zoom, larghezzaCampo);
    if (!fascia || !(modello.Righe.Interlinea > 0) ||
        std::abs(modello.Righe.yInizio) > InizioAlMassimo) {
        return righe;
    }
    const double interlinea = std::max(modello.Righe.Interlinea, InterlineaMinima);
    const double unaOgni = std::max(1.0, std::ceil(PassoMinimo / interlinea));
    const QString segni(CaratteriPerRiga, QChar(0xA4));
    const Campo &primo = modello.Campi[fascia->primo];
    const double fine = std::min(modello.Righe.yFine, FoglioCarta::Altezza);
    // Rows whose whole band lies above the sheet are skipped at once.
    const double saltate =
        std::max(0.0, std::floor(-modello.Righe.yInizio / interlinea / unaOgni) - 1);
    for (double n = 1 + saltate * unaOgni;; n += unaOgni) {
        const double y = modello.Righe.yInizio + n * interlinea;
        if (!(y < fine)) {
            break;
        }
        righe.append({QRectF(fascia->sinistra / zoom, y / zoom,
                             (fascia->destra - fascia->sinistra) / zoom, interlinea / zoom),
                      primo.Font, PuntiDiTesto(primo.Dimensione) / zoom, primo.Grassetto != Falso,
                      segni});
    }
    return righe;
}
