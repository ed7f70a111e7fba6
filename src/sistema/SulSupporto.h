#pragma once

#include <QByteArray>
#include <QString>

#include <system_error>

class QFile;

/// Writing through to the medium, and why it failed. For the functions of Disco.
namespace SulSupporto {

/// Why the operation just tried on a file in the folder failed, before which
/// SuDisco::DimenticaErrore was called.
std::error_code Causa(const QString &cartella);

/// Throws the ErroreSistema of that cause, for an operation that may create its file.
[[noreturn]] void Fallisce(const std::error_code &codice);

/// Writes byte to the open, unbuffered file, from where it stands, ends it after so many bytes and
/// forces it onto the medium. Throws as Fallisce.
void Scrive(QFile &file, const QByteArray &byte);

/// Forces the names in the folder onto the medium. Throws as Fallisce.
void SincronizzaNomi(const QString &cartella);

} // namespace SulSupporto
