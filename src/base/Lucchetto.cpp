#include "base/Lucchetto.h"

#include <QSysInfo>

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
    if (file_.getLockInfo(&processo, &macchina, &programma) &&
        macchina != QSysInfo::machineHostName()) {
        return Esito::Occupato;
    }
    // Of a process that has died, where the disk has no room for Qt's own way to take its lock
    // over; or of a machine that died while the lock was being written, and names no process. The
    // removal itself fails while a living process holds the file.
    if (!file_.removeStaleLockFile()) {
        return Esito::Occupato;
    }
    if (file_.tryLock(0)) {
        return Esito::Preso;
    }
    return file_.error() == QLockFile::LockFailedError ? Esito::Occupato : Esito::Impossibile;
}
