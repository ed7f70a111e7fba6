#include "finestre/Documenti.h"

#include "sistema/GuidaDiSistema.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

bool ApreDocumento(const QString &percorso)
{
    const QFileInfo documento(percorso);
    return documento.isFile() &&
           QDesktopServices::openUrl(QUrl::fromLocalFile(documento.absoluteFilePath()));
}

bool ApreArgomento(const QString &fileGuida, int argomento)
{
    return MostraArgomento(fileGuida, argomento) || ApreDocumento(fileGuida);
}
