#include "sistema/GuidaDiSistema.h"

#include <QFileInfo>

#ifdef Q_OS_WIN

#include <qt_windows.h>

bool MostraArgomento(const QString &fileGuida, int argomento)
{
    return QFileInfo(fileGuida).isFile() &&
           WinHelpW(nullptr, reinterpret_cast<const wchar_t *>(fileGuida.utf16()), HELP_CONTEXT,
                    static_cast<ULONG_PTR>(argomento)) != 0;
}

#else

bool MostraArgomento(const QString & /*fileGuida*/, int /*argomento*/)
{
    return false;
}

#endif
