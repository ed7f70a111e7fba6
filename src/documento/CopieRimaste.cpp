#include "documento/CopieRimaste.h"

#include "documento/FileCopia.h"
#include "model/FileModello.h"

#include <QFileInfo>

namespace {

using CopieRimaste::Rimasta;

bool SiApre(const QString &percorso)
{
    try {
        Modello modello;
        FileModello::Carica(modello, percorso);
        return true;
    } catch (const ErroreSistema &) {
        return false; // why is said when it is opened
    }
}

/// Nothing when the opening of its model will offer the copy.
std::optional<Rimasta> Legge(const QString &file)
{
    const std::optional<FileCopia::Copia> copia = FileCopia::Legge(file);
    if (!copia) {
        throw ErroreSistema(ErroreSistema::ErroreIO, QString::fromUtf8(FileCopia::Danneggiata));
    }
    if (SiApre(copia->percorso)) {
        return std::nullopt;
    }
    const QFileInfo modello(copia->percorso);
    Rimasta rimasta{file, copia->percorso, modello.exists(), QFileInfo(file).lastModified(), {}};
    FileModello::Analizza(copia->corpo, rimasta.modello);
    rimasta.modello.NomeFile = modello.fileName();
    return rimasta;
}

} // namespace

CopieRimaste::Trovate CopieRimaste::Cerca(const QString &cartella)
{
    Trovate trovate;
    for (const QString &file : FileCopia::Elenca(cartella)) {
        if (FileCopia::InUso(file)) {
            continue;
        }
        try {
            if (std::optional<Rimasta> rimasta = Legge(file)) {
                trovate.rimaste.append(std::move(*rimasta));
            }
        } catch (const ErroreSistema &errore) {
            if (QFileInfo::exists(file)) { // else another program has just needed it no more
                trovate.nonLette.append({file, errore});
            }
        }
    }
    return trovate;
}
