#pragma once

#include <QLockFile>

/// A lock file that belongs to a living process: no age makes it stale, only the death of the
/// process that took it, or of the machine while it was being written. A process on another machine
/// counts as alive, for nobody here can tell.
class Lucchetto
{
public:
    explicit Lucchetto(const QString &file);

    enum class Esito {
        Preso,      ///< by this object, now or before, until its destruction
        Occupato,   ///< another object holds it, of this process or of another
        Impossibile ///< the file cannot be made: a full disk, a folder without rights, something in
                    ///< its place that is no file
    };
    /// Does not wait, whatever lies in the file's place.
    Esito Prende();

private:
    /// Removes the lock file in the place; false where a process may be alive that holds it.
    bool ToglieRimasto();

    QLockFile file_;
};
