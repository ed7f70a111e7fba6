#include "platform/Documenti.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

bool ApreDocumento(const QString &percorso)
{
    const QFileInfo documento(percorso);
    return documento.isFile() &&
           QDesktopServices::openUrl(QUrl::fromLocalFile(documento.absoluteFilePath()));
}

bool ApreArgomento(const QString &fileGuida, int argomento)
{
#ifdef Q_OS_WIN
    if (QFileInfo(fileGuida).isFile() &&
        WinHelpW(nullptr, reinterpret_cast<const wchar_t *>(fileGuida.utf16()), HELP_CONTEXT,
                 static_cast<ULONG_PTR>(argomento)) != 0) {
        return true;
    }
#else
    Q_UNUSED(argomento)
#endif
    return ApreDocumento(fileGuida);
}
