#pragma once

#include <QByteArrayView>
#include <QLocale>
#include <QString>
#include <QStringView>
#include <QVariant>

#include <functional>
#include <optional>

/// Every conversion between numbers and texts. The locale is always a parameter, the user's by
/// default; only the writer's printed and plain numbers and the strict reading depend on it.
namespace Numeri {

/// Lenient reading of a text box: the leading number with "." as the decimal separator, otherwise
/// 0; blanks, tabs and line feeds are ignored wherever they stand. A leading "." counts as a number
/// here (".5"). A value beyond a double throws ErroreSistema 6.
double Val(QStringView testo);

/// What Val takes the text for where people would read another number in it: "1,5" gives 1, "uno"
/// gives 0. Nothing where they agree, and for an empty text. Throws as Val.
std::optional<double> AltroNumero(QStringView testo);

/// What the user is told of such a text, for as long as it stands in its box; empty when there is
/// nothing to say.
QString AvvisoDiLettura(const QString &testo);

/// The reading of a line of the model file, as its bytes: as Val, but a text that starts with no
/// digit (after an optional sign) gives 0. Throws ErroreSistema 6 for a value beyond a double.
double LeggeNumero(QByteArrayView riga);

/// Strict reading: the whole text is one number; "." always separates the decimals, and so does the
/// locale's own separator. Nothing when the text is not a number or is beyond a double.
std::optional<double> Numerico(const QString &testo, const QLocale &locale = QLocale());

/// What is read from a rule: as Numerico, with a comma or a point whatever the system's own.
std::optional<double> Letto(const QString &testo);

/// As Numerico, but a text that is no number throws ErroreSistema 13.
double Doppio(const QString &testo, const QLocale &locale = QLocale());

/// Rounds half to even into 16 bits; ErroreSistema 6 when it does not fit.
qint16 Intero16(double valore);

/// Rounds half to even to a whole number, of any size a double holds.
double PariPiuVicino(double valore);

/// Int(value + 0.5): the nearest whole millimetre, halves going up (2.5 gives 3, -2.5 gives -2).
double Ar(double valore);

/// Up to 15 significant digits, no thousands separators: "12,5", "40". The separator is the
/// locale's own where that is a comma, otherwise a point; all else is ASCII. Always a text that can
/// be read again: a value so near the end of the doubles that rounding to 15 digits would leave
/// them, or beyond it, is written as the last number that can be.
QString NumeroPiano(double valore, const QLocale &locale = QLocale());

/// Millimetres as the program shows them: at most one decimal, halves to even.
QString Decimi(double millimetri, const QLocale &locale = QLocale());

/// As a print statement writes it: a blank or a minus sign, the plain number, a blank.
QString NumeroStampato(double valore, const QLocale &locale = QLocale());

/// Shows a text to the user; the layers above hand in their message box.
using Avviso = std::function<void(const QString &)>;

/// Text of a number with "." as the decimal separator. A value that is no number (16- or 32-bit
/// integer, single or double) is reported through avviso and gives the empty string. A single has
/// 7 significant digits, so that 0.1 stays "0.1".
QString CstrX(const QVariant &valore, const Avviso &avviso, const QLocale &locale = QLocale());

} // namespace Numeri
