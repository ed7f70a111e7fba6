#include "finestre/Contrasto.h"

#include <algorithm>
#include <cmath>

namespace {

double Lineare(double componente)
{
    return componente <= 0.03928 ? componente / 12.92 : std::pow((componente + 0.055) / 1.055, 2.4);
}

double Luminanza(const QColor &colore)
{
    return 0.2126 * Lineare(colore.redF()) + 0.7152 * Lineare(colore.greenF()) +
           0.0722 * Lineare(colore.blueF());
}

} // namespace

double Contrasto(const QColor &a, const QColor &b)
{
    const auto [scuro, chiaro] = std::minmax({Luminanza(a), Luminanza(b)});
    return (chiaro + 0.05) / (scuro + 0.05);
}
