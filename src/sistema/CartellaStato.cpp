#include "sistema/CartellaStato.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#ifndef Q_OS_WIN
#include <pwd.h>
#include <unistd.h>
#endif

namespace {

#ifndef Q_OS_WIN
/// The user's home; empty when there is none. The root is nobody's: Qt names it where HOME is not
/// set.
QString Casa()
{
    const passwd *utente = getpwuid(getuid());
    for (const QString &cartella :
         {QFile::decodeName(qgetenv("HOME")),
          utente != nullptr ? QFile::decodeName(utente->pw_dir) : QString()}) {
        if (QDir::isAbsolutePath(cartella) && !QDir(cartella).isRoot() && QDir(cartella).exists()) {
            return QDir::cleanPath(cartella);
        }
    }
    return {};
}
#endif

} // namespace

QString CartellaStato()
{
#ifdef Q_OS_WIN
    // Where Windows says it, as elsewhere, the environment may name another place.
    QString radice = QDir::fromNativeSeparators(qEnvironmentVariable("LOCALAPPDATA"));
    if (!QDir::isAbsolutePath(radice)) {
        radice = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    }
    return radice + QStringLiteral("/Plakera");
#else
    // Qt 6.4 knows no state location.
    QString radice = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(radice)) {
        const QString casa = Casa();
        if (casa.isEmpty()) {
            return {};
        }
        radice = casa + QStringLiteral("/.local/state");
    }
    return radice + QStringLiteral("/plakera");
#endif
}
