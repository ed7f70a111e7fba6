#pragma once

#include <QStringList>

/// Checks model files, and all models of a folder that is named (of an archive: of its "ini"), and
/// prints a line for each finding: "file: element: finding". What cannot be read is told on
/// standard error, and the others are checked all the same.
namespace ControlloDaRiga {

/// Exit statuses.
inline constexpr int NessunRilievo = 0;
inline constexpr int ConRilievi = 1;
inline constexpr int Illeggibile = 2; ///< at least one file, whatever the others have

int Esegue(const QStringList &percorsi);

} // namespace ControlloDaRiga
