#include "editor/RigheSimulate.h"

#include "platform/Testo.h"
#include "preview/GeometriaAnteprima.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

// Below this spacing rows are no longer told apart, and a mistyped value would flood the preview.
constexpr double InterlineaMinima = 0.5; // mm
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
    const double interlinea = modello.Righe.Interlinea;
    const std::optional<Fascia> fascia = FasciaRighe(modello, zoom, larghezzaCampo);
    if (!fascia || interlinea < InterlineaMinima ||
        std::abs(modello.Righe.yInizio) > InizioAlMassimo) {
        return righe;
    }
    const Campo &primo = modello.Campi[fascia->primo];
    const double fine = std::min(modello.Righe.yFine, GeometriaAnteprima::AltezzaCarta);
    // Rows whose whole band lies above the sheet are skipped at once.
    const double saltate = std::max(0.0, std::floor(-modello.Righe.yInizio / interlinea) - 1);
    for (double n = saltate + 1;; ++n) {
        const double y = modello.Righe.yInizio + n * interlinea;
        if (!(y < fine)) {
            break;
        }
        righe.append({QRectF(fascia->sinistra / zoom, y / zoom,
                             (fascia->destra - fascia->sinistra) / zoom, interlinea / zoom),
                      primo.Font, PuntiDiTesto(primo.Dimensione) / zoom, primo.Grassetto != Falso,
                      QString(CaratteriPerRiga, QChar(0xA4))});
    }
    return righe;
}
