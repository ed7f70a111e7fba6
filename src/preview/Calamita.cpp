#include "preview/Calamita.h"

#include "model/Numeri.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

/// What the way over the screen leaves of a whole or half millimetre.
constexpr double Briciola = 1e-6;

} // namespace

Calamita::Calamita(QList<double> linee)
    : linee_(std::move(linee))
{
    std::sort(linee_.begin(), linee_.end());
}

std::optional<double> Calamita::Vicina(double posto) const
{
    const auto dopo = std::lower_bound(linee_.begin(), linee_.end(), posto);
    std::optional<double> vicina;
    if (dopo != linee_.end()) {
        vicina = *dopo;
    }
    if (dopo != linee_.begin()) {
        const double prima = *std::prev(dopo);
        if (!vicina || posto - prima <= *vicina - posto) {
            vicina = prima;
        }
    }
    return vicina && std::abs(*vicina - posto) <= Portata + Briciola ? vicina : std::nullopt;
}

std::optional<Calamita::Presa> Calamita::Tratto(double inizio, double lunghezza,
                                                Limiti limiti) const
{
    std::optional<Presa> presa;
    double distanza = 0;
    for (const double scarto : std::array{0.0, lunghezza, lunghezza / 2}) {
        const std::optional<double> linea = Vicina(inizio + scarto);
        if (!linea) {
            continue;
        }
        const double posto = Numeri::Ar(*linea - scarto + Briciola);
        const double suaDistanza = std::abs(*linea - inizio - scarto);
        if (posto >= limiti.primo - Briciola && posto <= limiti.ultimo + Briciola &&
            (!presa || suaDistanza < distanza - Briciola)) {
            presa = Presa{static_cast<int>(posto), *linea};
            distanza = suaDistanza;
        }
    }
    return presa;
}
