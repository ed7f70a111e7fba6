#pragma once

#include <QtGlobal>

/// The classic 16-colour palette of frames and captions.
namespace Tavolozza {

inline constexpr int Colori = 16;
inline constexpr int VerdeScuro = 2; ///< ruler ticks
inline constexpr int BluChiaro = 9;  ///< the field under the pointer

/// 0xRRGGBB of index 0..15; any other index throws ErroreSistema 5.
quint32 Rgb(int indice);

/// As Rgb, but black for any other index: a model file may hold any number. What shows or prints
/// elements uses this one.
quint32 RgbONero(int indice);

} // namespace Tavolozza
