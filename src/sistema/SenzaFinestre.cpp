#include "sistema/SenzaFinestre.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace {

QtMessageHandler precedente = nullptr;

void FinisceSeFatale(QtMsgType tipo, const QMessageLogContext &contesto, const QString &testo)
{
    if (tipo == QtFatalMsg) {
        std::fputs(AvvisoSenzaSchermo, stderr);
        std::fflush(stderr);
        // Half an application object exists: nothing may be torn down.
        std::_Exit(1);
    }
    // The reason, which Qt tells beforehand.
    precedente(tipo, contesto, testo);
}

} // namespace

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

FineSenzaSchermo::FineSenzaSchermo()
{
    precedente = qInstallMessageHandler(FinisceSeFatale);
}

FineSenzaSchermo::~FineSenzaSchermo()
{
    qInstallMessageHandler(precedente);
}
