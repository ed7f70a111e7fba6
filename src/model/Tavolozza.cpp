#include "model/Tavolozza.h"

#include "base/ErroreSistema.h"

#include <array>

namespace {

bool NellaTavolozza(int indice)
{
    return indice >= 0 && indice < Tavolozza::Colori;
}

} // namespace

quint32 Tavolozza::Rgb(int indice)
{
    static constexpr std::array<quint32, Colori> Valori{
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    if (!NellaTavolozza(indice)) {
        throw ErroreSistema(ErroreSistema::ArgomentoNonValido);
    }
    return Valori[static_cast<std::size_t>(indice)];
}

quint32 Tavolozza::RgbONero(int indice)
{
    return Rgb(NellaTavolozza(indice) ? indice : 0);
}
