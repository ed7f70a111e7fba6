#include "support/ImpostazioniDiProva.h"

#include "support/FileDiProva.h"

ImpostazioniDiProva::ImpostazioniDiProva()
{
    qputenv("XDG_CONFIG_HOME", cartella_.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", cartella_.path().toUtf8());
}

ImpostazioniDiProva::~ImpostazioniDiProva() = default;

void ImpostazioniDiProva::Dirtxt(const QString &cartella) const
{
    ScriveFile(cartella_.filePath(QStringLiteral("vastrel.ini")),
               QStringLiteral("[INI]\ndirtxt=%1\n").arg(cartella).toUtf8());
}
