#pragma once

#include <QtGlobal>

/// 16-bit booleans, as models keep them.
inline constexpr qint16 Vero = -1;
inline constexpr qint16 Falso = 0;
