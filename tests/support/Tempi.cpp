#include "support/Tempi.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <ctime>
#endif

double TempoDiLavoro::Processore()
{
#ifdef Q_OS_WIN
    // clock() is there the time that has passed since the process began, whoever had the processor.
    FILETIME nascita;
    FILETIME fine;
    FILETIME nelSistema;
    FILETIME nelProgramma;
    if (GetProcessTimes(GetCurrentProcess(), &nascita, &fine, &nelSistema, &nelProgramma) == 0) {
        qFatal("the system does not tell the time of the process");
    }
    const auto millisecondi = [](const FILETIME &tempo) { // of 100 ns
        return (4294967296.0 * tempo.dwHighDateTime + tempo.dwLowDateTime) / 10000;
    };
    return millisecondi(nelSistema) + millisecondi(nelProgramma);
#else
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
#endif
}
