#pragma once

#include <QFile>
#include <QTemporaryFile>

/// Permissions of folders in tests that look at them with an ordinary user's rights.
namespace Permessi {

/// Everyone reads and passes through, nobody writes.
inline constexpr QFile::Permissions SolaLettura = QFile::ReadOwner | QFile::ExeOwner |
                                                  QFile::ReadGroup | QFile::ExeGroup |
                                                  QFile::ReadOther | QFile::ExeOther;
/// The owner also writes.
inline constexpr QFile::Permissions PerTutti = SolaLettura | QFile::WriteOwner;
inline constexpr QFile::Permissions Nessuno = {};

/// Whether files and folders have permissions for the owner, the group and others at all. Windows
/// has access lists instead, and only forbids everybody to write into a file.
inline constexpr const char *Assenti = "here access lists say who may do what";
inline bool DiOgnuno()
{
    QTemporaryFile file;
    return file.open() && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
           !(file.permissions() & QFile::ReadOther);
}

} // namespace Permessi
