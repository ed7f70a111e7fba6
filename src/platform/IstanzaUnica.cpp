#include "platform/IstanzaUnica.h"

#include <QDir>
#include <QStandardPaths>

namespace {

QString FileLucchetto()
{
    // The runtime folder is the user's own and goes with the machine, so two users of one machine
    // and one user's home shared by two machines do not block each other.
    QString cartella = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (cartella.isEmpty()) {
        cartella = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
        QDir().mkpath(cartella);
    }
    return QDir(cartella).filePath(QStringLiteral("plakera.lock"));
}

} // namespace

IstanzaUnica::IstanzaUnica()
    : lucchetto_(FileLucchetto())
{
    // No age makes a lock stale, only the death of its process.
    lucchetto_.setStaleLockTime(0);
}

bool IstanzaUnica::Acquisisce()
{
    if (lucchetto_.isLocked() || lucchetto_.tryLock(0)) {
        return true;
    }
    if (lucchetto_.error() != QLockFile::LockFailedError) {
        // A full or read-only disk is no second instance; it must not keep the user out.
        return true;
    }
    qint64 processo = 0;
    QString macchina;
    QString programma;
    if (lucchetto_.getLockInfo(&processo, &macchina, &programma)) {
        return false;
    }
    // A machine that died while the lock was being written left a file that names no process. The
    // removal itself fails while a living process holds the file.
    return lucchetto_.removeStaleLockFile() && lucchetto_.tryLock(0);
}
