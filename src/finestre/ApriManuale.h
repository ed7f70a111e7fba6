#pragma once

#include "finestre/Documenti.h"

#include <QString>

#include <functional>

/// Key of the manual that the help icons open.
inline constexpr QLatin1String ChiaveManuale("zPlakera-XtHelp");

/// Opens the document at a path; what it returns is not examined.
using Apritore = std::function<bool(const QString &)>;
/// Opens a help file at a topic.
using ApritoreArgomento = std::function<bool(const QString &, int)>;

/// The folder of the running program, with native separators.
QString CartellaProgramma();

/// Opens the manual of the key: the PDF beside the program, or, for a program below "C:\K19", the
/// PDF or Word document of Vastrel's installation, as the user answers. A document that is missing
/// or cannot be opened goes without a message.
void ApriManuale(const QString &chiave, const QString &cartellaProgramma = CartellaProgramma(),
                 const Apritore &apre = ApreDocumento);

/// F1: opens Vastrel's help file at the topic when the file exists, else our manual. Topic 0 means
/// that the control has none, and always opens our manual.
void ApriGuida(int argomento, const ApritoreArgomento &apreArgomento = ApreArgomento,
               const Apritore &apre = ApreDocumento);
