#include "base/Lucchetto.h"

Lucchetto::Lucchetto(const QString &file)
    : file_(file)
{
    file_.setStaleLockTime(0);
}

Lucchetto::Esito Lucchetto::Prende()
{
    if (file_.isLocked() || file_.tryLock(0)) {
        return Esito::Preso;
    }
    if (file_.error() != QLockFile::LockFailedError) {
        return Esito::Impossibile;
    }
    qint64 processo = 0;
    QString macchina;
    QString programma;
    if (file_.getLockInfo(&processo, &macchina, &programma)) {
        return Esito::Occupato;
    }
    // A machine that died while the lock was being written left a file that names no process. The
    // removal itself fails while a living process holds the file.
    return file_.removeStaleLockFile() && file_.tryLock(0) ? Esito::Preso : Esito::Occupato;
}
