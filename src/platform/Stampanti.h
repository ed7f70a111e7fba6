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

/// False when the system no longer knows the printer; true for one that writes to a file.
bool Pronta(const QPrinter &stampante);

/// After the end of a document: false when it is known not to have been taken, because the printer
/// has vanished or failed or the PDF file is not whole.
bool Consegnata(const QPrinter &stampante);

} // namespace Stampanti
