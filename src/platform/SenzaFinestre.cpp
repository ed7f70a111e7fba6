#include "platform/SenzaFinestre.h"

#include <QByteArray>

void SenzaFinestre()
{
#ifndef Q_OS_WIN
    qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
#endif
}

bool SchermoPresente()
{
#ifdef Q_OS_LINUX
    // Qt gives up with an abort where a message is wanted.
    for (const char *nome : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(nome)) {
            return true;
        }
    }
    return false;
#else
    return true;
#endif
}
