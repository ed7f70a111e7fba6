#pragma once

/// How far one press of an arrow moves what is in hand, elements and guides alike, mm of paper.
namespace PassiTasti {

inline constexpr int Uno = 1;
inline constexpr int Dieci = 10; ///< with Maiusc

} // namespace PassiTasti
