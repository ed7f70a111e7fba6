#pragma once

#include <QString>
#include <QStringList>

/// Files of archives. Names come from Windows, so they are compared without regard to case even on
/// a file system that minds it, and "\" separates as well as the native separator everywhere: a
/// file or folder whose name holds one is not listed.
namespace Percorsi {

/// The native separator, as one character.
QString Separatore();

/// The path with native separators whose last components (as far as they exist in any case) carry
/// the spelling found on disk: an exact match wins, then the first in name order. A part that does
/// not exist stays as given, so the result can also name a file to be created.
QString Risolve(const QString &percorso);

/// The folder itself, or the nearest one above it that exists, in any case; empty when there is
/// none.
QString CartellaEsistente(const QString &cartella);

/// Full native paths of the sub-folders, in name order without regard to case. Throws ErroreSistema
/// 76 when the folder does not exist, 75 when it cannot be read.
QStringList SottoCartelle(const QString &cartella);

/// Whether names that begin with a dot are listed: as the system has it, which hides them elsewhere
/// than on Windows, or always.
enum class NomiConPunto { ComeIlSistema, Sempre };

/// Names of the files that match one of the patterns ("*.mod", "*jpg;*.bmp") without regard to
/// case, in name order without regard to case. Folders never match. Throws ErroreSistema 76 when
/// the folder does not exist, 75 when it cannot be read.
QStringList FileConModello(const QString &cartella, const QString &modelli,
                           NomiConPunto conPunto = NomiConPunto::ComeIlSistema);

/// Replaces destinazione by a copy of origine, atomically; both are found in any case, as Risolve
/// does. Throws ErroreSistema (53, 57, 61, 70, 75, 76) whose description names the file at fault.
void Copia(const QString &origine, const QString &destinazione);

/// Removes a file, found in any case; a folder is refused. Throws ErroreSistema (53, 70, 75) whose
/// description names the file.
void Elimina(const QString &percorso);

/// Text after the last "\" or native separator; empty when there is none.
QString ToglieUltimaBarra(const QString &percorso);
/// Text up to and including the last separator; the whole text when there is none.
QString EstraeUltimaBarra(const QString &percorso);
/// Text after the last separator; the whole text when there is none.
QString EstraeNomeFile(const QString &percorso);

/// True when the text can name one file inside a folder on every system: not empty, no separator,
/// no ":*?\"<>|" or control character, no trailing dot or blank, no device
/// name of Windows ("CON", "lpt1.x", "COM¹"). A name that is to get an extension is judged with it.
bool NomeFileValido(const QString &nome);

} // namespace Percorsi
