#pragma once

/// Units of length that screens, printers and picture files state.
namespace Unita {

inline constexpr double MillimetriPerPollice = 25.4;
inline constexpr double MillimetriPerPunto = MillimetriPerPollice / 72; ///< a typographic point
inline constexpr double MillimetriPerTwip = MillimetriPerPunto / 20;

} // namespace Unita
