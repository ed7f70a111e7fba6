#pragma once

#include <QPrinter>
#include <QStringList>

#include <memory>

/// Printers and their fonts.
namespace Stampanti {

inline constexpr int FontAlMassimo = 2000;

/// The printer's font families. "Arial" is among them also where the system knows it only through
/// substitution, so that models made elsewhere find their fonts.
QStringList ElencoFont();

/// The default printer at its own page and highest resolution, origin at the printable corner, no
/// fitting. Throws ErroreSistema 482 when there is none.
std::unique_ptr<QPrinter> Predefinita();

/// A printer that writes an A4 sheet without margins to a PDF file, pictures lossless.
std::unique_ptr<QPrinter> SuPdf(const QString &percorso);

} // namespace Stampanti
