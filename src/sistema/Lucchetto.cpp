#include "sistema/Lucchetto.h"

#include "base/ErroreSistema.h"
#include "sistema/FileTemporaneo.h"

#include <QFileInfo>
#include <QSysInfo>

#include <filesystem>

namespace {

/// Whether something that no process ever locks takes the place of the lock file: a folder, a link
/// that leads nowhere, a device. Qt would call it a lock that somebody holds, and reading a device
/// may never end.
bool PostoIngombro(const QString &file)
{
    namespace fs = std::filesystem;
    const fs::path percorso = QFileInfo(file).filesystemFilePath();
    std::error_code codice;
    switch (fs::status(percorso, codice).type()) {
    case fs::file_type::regular:
        return false;
    case fs::file_type::not_found:
        return fs::symlink_status(percorso, codice).type() == fs::file_type::symlink;
    default:
        return true;
    }
}

/// As Qt writes it into a lock file: on Windows that is not the name which QSysInfo tells.
QString QuestaMacchina()
{
#ifdef Q_OS_WIN
    return qEnvironmentVariable("COMPUTERNAME");
#else
    return QSysInfo::machineHostName();
#endif
}

/// Whether Qt may try to write a lock. On Windows it leaves one that it cannot write in its place,
/// and open for as long as the program runs: to everybody, this process too, somebody holds it.
bool SiPuoScrivere(const QString &file)
{
#ifdef Q_OS_WIN
    constexpr int ByteDiLucchetto = 512; // no lock has more
    FileTemporaneo prova{QFileInfo(file)};
    if (prova.Apre(FileTemporaneo::Per::Utente)) {
        return false;
    }
    try {
        prova.Scrive(QByteArray(ByteDiLucchetto, ' '));
    } catch (const ErroreSistema &) {
        return false; // that is the answer
    }
#else
    Q_UNUSED(file)
#endif
    return true;
}

} // namespace

Lucchetto::Lucchetto(const QString &file)
    : file_(file)
{
    file_.setStaleLockTime(0);
}

Lucchetto::Esito Lucchetto::Prende()
{
    if (file_.isLocked()) {
        return Esito::Preso;
    }
    if (PostoIngombro(file_.fileName())) {
        return Esito::Impossibile;
    }
    if (!SiPuoScrivere(file_.fileName())) {
        return !QFileInfo::exists(file_.fileName()) || ToglieRimasto() ? Esito::Impossibile
                                                                       : Esito::Occupato;
    }
    if (file_.tryLock(0)) {
        return Esito::Preso;
    }
    if (file_.error() != QLockFile::LockFailedError) {
        return Esito::Impossibile;
    }
    // Of a process that has died, where the disk has no room for Qt's own way to take its lock
    // over; or of a machine that died while the lock was being written, and names no process.
    if (!ToglieRimasto()) {
        return Esito::Occupato;
    }
    if (file_.tryLock(0)) {
        return Esito::Preso;
    }
    return file_.error() == QLockFile::LockFailedError ? Esito::Occupato : Esito::Impossibile;
}

bool Lucchetto::ToglieRimasto()
{
    qint64 processo = 0;
    QString macchina;
    QString programma;
    if (file_.getLockInfo(&processo, &macchina, &programma) && macchina != QuestaMacchina()) {
        return false;
    }
    // Fails while a living process holds the file.
    return file_.removeStaleLockFile();
}
