#include "platform/SenzaFinestre.h"

#include <QByteArray>

void SenzaFinestre()
{
#ifndef Q_OS_WIN
    qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
#endif
}
