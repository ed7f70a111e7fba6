#pragma once

#include <QString>

/// Opens a document with the program that the system associates with it. A document that is missing
/// or has no program does nothing and returns false.
bool ApreDocumento(const QString &percorso);

/// Opens a Windows help file at the numbered topic; where the system cannot show such files, it is
/// opened as any document is.
bool ApreArgomento(const QString &fileGuida, int argomento);
