#pragma once

#include <QString>
#include <QStringList>

/// The name that a picture from elsewhere gets among those of the models folder.
namespace NomeImportato {

/// The name of the source's file without its extension, as models, every file system and Vastrel
/// can hold it: what they lack becomes the letter below an accent, or "_".
QString Base(const QString &fonte);

/// base and estensione (with its dot), with a number between them where one of presi is called so
/// already, whatever the case. The result is a valid name of a file.
QString Libero(const QString &base, const QString &estensione, const QStringList &presi);

} // namespace NomeImportato
