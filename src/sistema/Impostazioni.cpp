#include "sistema/Impostazioni.h"

#include <QSettings>

namespace {

#ifdef Q_OS_WIN

QString Valore(const QString &chiave)
{
    const QSettings archivio(QStringLiteral("HKEY_CURRENT_USER\\Software\\VB and VBA Program "
                                            "Settings\\vastrel\\INI"),
                             QSettings::NativeFormat);
    return archivio.value(chiave).toString();
}

#else

QString Valore(const QString &chiave)
{
    QSettings archivio(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("vastrel"));
    // The setting belongs to the user: one of the whole machine must not stand in for it.
    archivio.setFallbacksEnabled(false);
    archivio.beginGroup(QStringLiteral("INI"));
    // A folder whose name has a comma reads as a list unless the line is quoted.
    return archivio.value(chiave).toStringList().join(u',');
}

#endif

} // namespace

QString Impostazioni::Dirtxt()
{
    return Valore(QStringLiteral("dirtxt"));
}

QString Impostazioni::CartellaVastrel()
{
#ifdef Q_OS_WIN
    return QStringLiteral("C:\\K19\\Vastrel");
#else
    return Valore(QStringLiteral("dirvastrel"));
#endif
}
