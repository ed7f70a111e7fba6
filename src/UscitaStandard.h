#pragma once

class QString;

/// What the program answers on the command line, in UTF-8.
namespace UscitaStandard {

void Scrive(const QString &testo);
/// False when anything written so far did not arrive: the disk is full, the output closed. Told on
/// standard error then. To be asked once, at the end.
bool Consegnata();

} // namespace UscitaStandard
