#include "controllo/FileVisti.h"

#include "base/ErroreSistema.h"
#include "grafica/Immagini.h"

#include <QFileInfo>

#include <new>

namespace {

StatoFile Giudica(const QString &percorso)
{
    try {
        Immagini::Verifica(percorso);
    } catch (const ErroreSistema &errore) {
        return errore.numero == ErroreSistema::FileNonTrovato ? StatoFile::Mancante
                                                              : StatoFile::Illeggibile;
    } catch (const std::bad_alloc &) {
        return StatoFile::Illeggibile; // it could not be printed either
    }
    return StatoFile::Buono;
}

} // namespace

StatoFile FileVisti::Esiste(const QString &percorso)
{
    const QFileInfo file(percorso);
    return file.isFile()  ? StatoFile::Buono
           : file.isDir() ? StatoFile::Cartella
                          : StatoFile::Mancante;
}

StatoFile FileVisti::Immagine(const QString &percorso)
{
    const QFileInfo file(percorso);
    Visto &visto = visti_[percorso];
    if (!file.isFile()) {
        visto = {};
        visto.stato = Esiste(percorso);
    } else if (visto.stato == StatoFile::Mancante || visto.modificato != file.lastModified() ||
               visto.byte != file.size()) {
        visto = {file.lastModified(), file.size(), Giudica(percorso)};
    }
    return visto.stato;
}
