#include "controllo/Rilievi.h"

#include "controllo/Regole.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace {

/// Who adds a kind of finding adds its rule here.
constexpr std::array TutteLeRegole{
    Regole::FontMancanti,     Regole::CaratteriMancanti,   Regole::FileDelleImmagini,
    Regole::TestiSuiVicini,   Regole::TestiOltreLaStampa,  Regole::FuoriPosto,
    Regole::NomiDoppi,        Regole::MaschereETesti,      Regole::CampiFuoriRiga,
    Regole::TestiSovrapposti, Regole::ImmaginiSovrapposte, Regole::CorniciUguali,
    Regole::SottoUnaFigura,   Regole::AreaRighe,           Regole::ScansioneMancante,
};

auto Ordine(const Rilievo &rilievo)
{
    return std::tuple(rilievo.Dove, Posto(rilievo.Di.genere), rilievo.Di.indice, rilievo.Specie);
}

} // namespace

QList<Rilievo> Rilievi(const Modello &modello, const Condizioni &condizioni)
{
    Esame esame(modello, condizioni);
    for (const auto &regola : TutteLeRegole) {
        regola(esame);
    }
    QList<Rilievo> rilievi = std::move(esame).Trovati();
    std::stable_sort(rilievi.begin(), rilievi.end(), [](const Rilievo &uno, const Rilievo &altro) {
        return Ordine(uno) < Ordine(altro);
    });
    return rilievi;
}
