#pragma once

#include <QString>

#include <system_error>

/// What the system can do to an open file and Qt cannot.
namespace SuDisco {

/// Before an operation of Qt's that may fail: what UltimoErrore gives is of nothing earlier.
void DimenticaErrore();

/// Why the last operation failed; no error when the system did not say.
std::error_code UltimoErrore();

/// Whether the file has further names (hard links).
bool HaAltriNomi(const QString &percorso);

/// The path of something that is there, its names spelt as their folders spell them. On Windows,
/// where any case leads to it; elsewhere that is the path itself.
QString ComeSulDisco(const QString &percorso);

/// Why the folder's names cannot be listed; no error when they can.
std::error_code SiElenca(const QString &cartella);

/// descrittore is a C file descriptor open for writing. Media that cannot be forced (a network
/// share that knows no such call) count as done.
std::error_code Sincronizza(int descrittore);

/// Forces the names in the folder onto the medium. A folder that the user may write into but not
/// look into counts as done, and so does every folder on Windows, where none can be forced.
std::error_code SincronizzaCartella(const QString &cartella);

/// Gives the open file the owner, group, permissions, access list and user attributes of the file
/// vecchio, as far as the system lets the user: only the administrator gives files away. Takes from
/// it what the folder gives new files and vecchio has not. True when nothing is missing. On Windows
/// it is the access list alone, and PrendeIlPosto keeps the rest.
bool TieneProprieta(int descrittore, const QString &vecchio);

/// Moves the file nuovo into the place of vecchio, which may be there or not. On Windows it takes
/// over the old file's access list and the spelling of its name; one that another program holds
/// open can only be rewritten there, and counts as one that the user may not replace.
std::error_code PrendeIlPosto(const QString &nuovo, const QString &vecchio);

/// Makes a write beyond the system's limit for the size of a file (ulimit -f) fail like any other,
/// where the system would end the program. Programs started later meet the system's own way again.
/// On Windows there is no such limit.
void FallisceOltreIlLimite();

} // namespace SuDisco
