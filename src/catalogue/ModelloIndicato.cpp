#include "catalogue/ModelloIndicato.h"

#include "sistema/ElencoModelli.h"
#include "sistema/Percorsi.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

/// The archive whose models folder is that folder, whatever links lead there.
QString ArchivioDi(const QString &cartella, const QStringList &archivi)
{
    const QFileInfo cercata(cartella);
    const auto trovato = std::find_if(archivi.begin(), archivi.end(), [&](const QString &archivio) {
        const QFileInfo ini(Percorsi::Risolve(archivio + Percorsi::Separatore() + CartellaIni));
        return ini.isDir() && ini == cercata;
    });
    return cercata.isDir() && trovato != archivi.end() ? *trovato : QString();
}

ModelloIndicato Indicato(const QFileInfo &file, const QStringList &archivi)
{
    const QString cartella = QDir::toNativeSeparators(file.absolutePath());
    const QString barra = Percorsi::Separatore();
    return {cartella.endsWith(barra) ? cartella : cartella + barra, file.fileName(),
            ArchivioDi(cartella, archivi)};
}

} // namespace

bool ModelloIndicato::ConEstensione() const
{
    return nomeFile.endsWith(ElencoModelli::Estensione, Qt::CaseInsensitive);
}

ModelloIndicato TrovaModello(const QString &percorso, const QStringList &archivi)
{
    const QFileInfo file(Percorsi::Risolve(percorso));
    const ModelloIndicato modello = Indicato(file, archivi);
    if (modello.archivio.isEmpty() && file.isSymLink() && file.exists()) {
        return Indicato(QFileInfo(file.canonicalFilePath()), archivi);
    }
    return modello;
}
