#pragma once

#include <QFile>

/// Permissions of folders in tests that look at them with an ordinary user's rights.
namespace Permessi {

/// Everyone reads and passes through, nobody writes.
inline constexpr QFile::Permissions SolaLettura = QFile::ReadOwner | QFile::ExeOwner |
                                                  QFile::ReadGroup | QFile::ExeGroup |
                                                  QFile::ReadOther | QFile::ExeOther;
/// The owner also writes.
inline constexpr QFile::Permissions PerTutti = SolaLettura | QFile::WriteOwner;
inline constexpr QFile::Permissions Nessuno = {};

} // namespace Permessi
