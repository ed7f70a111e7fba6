#pragma once

#include "model/Modello.h"

#include <QString>
#include <QStringList>

#include <functional>

/// Uniform random numbers in [0, 1).
using SorgenteCasuale = std::function<double()>;

/// The print masks that Vastrel knows. "#" is a digit place, "." the thousands and "," the decimal
/// separator, a run of "$" an alphanumeric mask, and "No" marks a field that is not printed.
namespace MaschereStampa {

inline constexpr QLatin1String NonStampata = Campo::MascheraNonStampata;

/// The 128 entries of the catalogue in its order: mask, one blank, description.
QStringList Catalogo();

/// The mask proper of an entry: what stands before the first blank.
QString Propria(const QString &voce);

/// True when the field's default mask is numeric and the entry alphanumeric.
bool DaNumericoAdAlfanumerico(const QString &mascheraDefault, const QString &voce);

/// True for a mask with digit places.
bool Numerica(const QString &maschera);

/// What a numeric mask prints: the last place of a mask is one more than its decimals, and is left
/// out.
QString Forma(const QString &maschera);

/// A sample text of a numeric mask: a random digit for each "#" of its Forma, the separators as
/// they are. casuale is drawn twice for each digit, and the second number counts.
QString TestoDiProva(const QString &maschera, const SorgenteCasuale &casuale);

/// A generator of its own, seeded by the system.
SorgenteCasuale Uniforme();

} // namespace MaschereStampa
