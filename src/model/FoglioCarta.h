#pragma once

#include <algorithm>

/// The sheet, of one size for every model: larger than an A4 page on purpose.
namespace FoglioCarta {

inline constexpr double Larghezza = 240; ///< mm of paper
inline constexpr double Altezza = 350;   ///< mm of paper

/// The least that frames and images are made by hand, mm.
inline constexpr double MisuraMinima = 1;

/// Where along one side of the sheet something of a size ends up that is put at a place: on the
/// sheet. The far edge has the last word: what is larger than the sheet ends flush with it. All in
/// one unit.
constexpr double Dentro(double posto, double misura, double foglio)
{
    const double dopoInizio = posto < 0 ? 0 : posto;
    return dopoInizio > foglio - misura ? foglio - misura : dopoInizio;
}

/// How far something between two places can go of the way that is asked for: the edge of the sheet
/// stops it, but does not push back what lies beyond the edge already. All in one unit.
constexpr double FinoAlBordo(double inizio, double fine, double foglio, double scarto)
{
    return scarto > 0 ? std::min(scarto, std::max(0.0, foglio - fine))
                      : std::max(scarto, std::min(0.0, -inizio));
}

} // namespace FoglioCarta
