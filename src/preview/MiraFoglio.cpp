#include "preview/MiraFoglio.h"

#include "documento/StatoProgramma.h"
#include "preview/ElementiFoglio.h"
#include "preview/GeometriaAnteprima.h"

#include <algorithm>

namespace {

// Pixels.
constexpr double ZonaBordo = 6;
constexpr double FuoriBordo = 3;
constexpr double OltreManiglia = 4;

} // namespace

MiraFoglio::MiraFoglio(const StatoProgramma &stato, const GeometriaAnteprima &geometria,
                       const ElementiFoglio &elementi)
    : stato_(stato)
    , geometria_(geometria)
    , elementi_(elementi)
{
}

Bersaglio MiraFoglio::Sotto(QPointF punto) const
{
    return Cerca(punto, Margine::Nessuno);
}

Bersaglio MiraFoglio::DaPrendere(QPointF punto) const
{
    return Cerca(punto, Margine::Fuori);
}

Bersaglio MiraFoglio::Cerca(QPointF punto, Margine margine) const
{
    for (const Genere genere : Generi) {
        const Maniglia &maniglia = elementi_.ManigliaDi(genere);
        if (elementi_.ManigliaIn(punto) == &maniglia) {
            return {Bersaglio::Cosa::Maniglia, {genere, maniglia.Tag.toInt()}};
        }
    }
    const ControlloElemento *elemento = elementi_.ElementoIn(punto);
    // A field in front is pointed at, whatever edge lies below it.
    if (elemento != nullptr && elemento->genere == Genere::Campo) {
        return {Bersaglio::Cosa::Elemento, {Genere::Campo, elemento->indice}};
    }
    // Pointing at a frame sends it behind the others, so the edge of the selected one must be found
    // wherever the stack has put it: otherwise nobody could grip a frame that lies in another.
    for (const Genere genere : {Genere::Cornice, Genere::Immagine}) {
        if (SulBordoSelezionato(genere, punto, margine)) {
            return {Bersaglio::Cosa::Elemento, {genere, stato_.selezione.Attivo(genere)}};
        }
    }
    if (elemento != nullptr) {
        return {Bersaglio::Cosa::Elemento, {elemento->genere, elemento->indice}};
    }
    return {};
}

Controllo *MiraFoglio::ControlloDi(const Bersaglio &bersaglio) const
{
    switch (bersaglio.cosa) {
    case Bersaglio::Cosa::Maniglia:
        return &elementi_.ManigliaDi(bersaglio.chiave.genere);
    case Bersaglio::Cosa::Elemento:
        return &elementi_.Elemento(bersaglio.chiave.genere, bersaglio.chiave.indice);
    case Bersaglio::Cosa::Foglio:
        break;
    }
    return nullptr;
}

bool MiraFoglio::Ridimensionabile(Chiave chiave) const
{
    if (chiave.genere == Genere::Campo || stato_.selezione.Attivo(chiave.genere) != chiave.indice) {
        return false;
    }
    if (chiave.genere == Genere::Immagine) {
        return true;
    }
    return stato_.Aperto().Cornici[chiave.indice].Ridimensionabile();
}

Presa MiraFoglio::PresaDi(Chiave chiave, QPointF dentro) const
{
    return Ridimensionamento::PresaIn(
        elementi_.Elemento(chiave.genere, chiave.indice).Posto().size(), dentro,
        geometria_.Millimetri(ZonaBordo), geometria_.LarghezzaFoglio());
}

bool MiraFoglio::SulBordoSelezionato(Genere genere, QPointF punto, Margine margine) const
{
    const int i = stato_.selezione.Attivo(genere);
    if (i == 0 || !Ridimensionabile({genere, i})) {
        return false;
    }
    const QRectF &posto = elementi_.Elemento(genere, i).Posto();
    if (margine == Margine::Nessuno && !posto.contains(punto)) {
        return false;
    }
    const double lato = elementi_.ManigliaDi(genere).Posto().width();
    // On an element that its handle covers, the edges can still be gripped past the handle.
    const double fuori =
        std::max(geometria_.Millimetri(FuoriBordo), lato + geometria_.Millimetri(OltreManiglia) -
                                                        std::min(posto.width(), posto.height()));
    return Ridimensionamento::PresaIn(posto.size(), punto - posto.topLeft(),
                                      geometria_.Millimetri(ZonaBordo), fuori) != Presa::Nessuna;
}
