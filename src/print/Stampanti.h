#pragma once

#include "print/Avanzamento.h"
#include "print/Destinazione.h"

#include <QPageLayout>
#include <QPrinter>
#include <QStringList>

#include <memory>

/// Printers and their fonts.
namespace Stampanti {

inline constexpr int FontAlMassimo = 2000;

/// The printer's font families, each once whatever foundries it comes from, without the system's
/// generic names; with the well-known ones that the system sets with another of the same widths, so
/// that models made elsewhere find their fonts.
QStringList ElencoFont();

/// The default printer's own page at its highest resolution, origin at the printable corner, no
/// fitting. Throws ErroreSistema 482 when there is none or when the print system is silent, which a
/// few seconds tell; the sheet's delivery, last of all, waits for its answer up to ten seconds.
/// attende: does all that waits for the print system, now and when the sheet is printed; without
/// one it is done as it comes. Where it throws, so do this and the Destinazione, which says
/// ConsegnaAbbandonata of a sheet that may have been taken.
std::unique_ptr<Destinazione> Predefinita(const AttesaDelSistema &attende = {});

/// The page of Predefinita, for who only shows it. Throws ErroreSistema 482 as it does, and gives a
/// print system that is silent up within a blink.
QPageLayout PaginaPredefinita(const AttesaDelSistema &attende = {});

/// The name of the default printer, empty when there is none. Gives a print system that is silent
/// up within a blink, and throws ErroreSistema 482 then.
QString NomePredefinita();

/// Writes an A4 sheet without margins to a PDF file, pictures lossless. Asks no print system.
std::unique_ptr<Destinazione> SuPdf(const QString &percorso);
/// The same with another page, such as a printer's.
std::unique_ptr<Destinazione> SuPdf(const QString &percorso, const QPageLayout &pagina);

/// The system's default printer set to its own page and margins. Throws ErroreSistema 482 when
/// there is none. It asks the print system, and waits for it as long as that takes.
std::unique_ptr<QPrinter> NativaPredefinita();

} // namespace Stampanti
