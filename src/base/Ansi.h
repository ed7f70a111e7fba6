#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// The single-byte code page of every model file, Windows-1252, whatever the system's own encoding.
/// The five bytes that the code page leaves undefined (81, 8D, 8F, 90, 9D hex) stand for the
/// control characters of the same number, as Windows itself maps them, so each of the 256 bytes
/// survives a round trip.
namespace Ansi {

QString DaByte(QByteArrayView byte);

/// A character that the code page lacks becomes "?"; text boxes keep it from getting that far.
QByteArray InByte(QStringView testo);
/// As InByte, at the end of byte.
void Aggiunge(QByteArray &byte, QStringView testo);

/// True when the character can be written into a model file.
bool Rappresentabile(QChar carattere);
bool Rappresentabile(const QString &testo);

} // namespace Ansi
