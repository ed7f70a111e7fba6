#include "platform/CartellaStato.h"

#include <QDir>
#include <QStandardPaths>

QString CartellaStato()
{
#ifdef Q_OS_WIN
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/Plakera");
#else
    // Qt 6.4 knows no state location.
    QString radice = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(radice)) {
        radice = QDir::homePath() + QStringLiteral("/.local/state");
    }
    return radice + QStringLiteral("/plakera");
#endif
}
