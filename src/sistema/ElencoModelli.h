#pragma once

#include <QStringList>

/// The models among the files of a folder, as the catalogue shows and names them.
namespace ElencoModelli {

inline constexpr QLatin1String Estensione(".Mod");

/// Names without ".mod" in any case. Where names differ only by case the file system tells them
/// apart but the program does not: the one that opening would find stands for all. Takes the names
/// in order without regard to case, and keeps it.
QStringList Nomi(const QStringList &file);

} // namespace ElencoModelli
