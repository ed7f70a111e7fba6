#include "documento/ModelloSuFile.h"

#include "documento/Documento.h"
#include "model/FileModello.h"
#include "sistema/Percorsi.h"

#include <QDir>

#include <new>
#include <utility>

ModelloSuFile::ModelloSuFile(Documento &documento, const QString &cartella, QString nomeFile,
                             const QString &cartellaCopie, Interlocutore &interlocutore)
    : documento_(documento)
    , nomeFile_(std::move(nomeFile))
    , percorso_(Percorsi::Risolve(cartella + nomeFile_))
    , copia_(cartellaCopie, percorso_)
    , interlocutore_(interlocutore)
{
}

ModelloSuFile::~ModelloSuFile() = default;

bool ModelloSuFile::Apre()
{
    Modello modello = documento_.Aperto();
    modello.NomeFile = nomeFile_;
    std::optional<QByteArray> byte;
    const bool letto = FileModello::LeggeModello(
        modello, percorso_, [this](const QString &testo) { interlocutore_.Avvisa(testo); }, &byte);
    copia_.Parte(byte);
    const Recupero recupero = OffreRecupero(modello, letto);
    const bool ripreso = recupero == Recupero::Ripreso;
    documento_.Prende(std::move(modello), ripreso);
    if (recupero == Recupero::Annullato || (!letto && !ripreso)) {
        return false;
    }
    connect(&documento_, &Documento::ModificaConclusa, this, &ModelloSuFile::ScriveCopia);
    if (ripreso) {
        ScriveCopia();
    }
    return true;
}

ModelloSuFile::Recupero ModelloSuFile::OffreRecupero(Modello &modello, bool letto)
{
    const QList<CopiaRecupero::Trovata> trovate =
        copia_.Cerca([this](const QString &file, const ErroreSistema &errore) {
            interlocutore_.Avvisa(QStringLiteral("copia di recupero non letta: ") +
                                  errore.Messaggio() + u'\n' + QDir::toNativeSeparators(file));
        });
    for (const CopiaRecupero::Trovata &trovata : trovate) {
        if (trovata.inUso || (letto && copia_.EliminaSuperata(trovata, modello))) {
            continue;
        }
        copia_.SegnaOfferta(trovata);
        switch (interlocutore_.RiprendeLavoro(trovata)) {
        case Interlocutore::Risposta::Si:
            copia_.Riprende(trovata);
            modello = trovata.modello;
            modello.NomeFile = nomeFile_;
            return Recupero::Ripreso;
        case Interlocutore::Risposta::No:
            break;
        case Interlocutore::Risposta::Annulla:
            return Recupero::Annullato;
        }
    }
    return Recupero::Nessuno;
}

void ModelloSuFile::ScriveCopia()
{
    if (!documento_.Variato()) {
        return;
    }
    try {
        copia_.Scrive(documento_.Aperto());
        copiaMancata_ = false;
    } catch (const ErroreSistema &errore) {
        AvvisaCopiaMancata(errore);
    } catch (const std::bad_alloc &) {
        AvvisaCopiaMancata(ErroreSistema(ErroreSistema::MemoriaEsaurita));
    }
}

void ModelloSuFile::AvvisaCopiaMancata(const ErroreSistema &errore)
{
    // Told once until it works again: the work itself goes on, and a box at every edit would stop
    // it.
    if (!std::exchange(copiaMancata_, true)) {
        interlocutore_.Avvisa(QStringLiteral("copia di recupero non scritta: ") +
                              errore.Messaggio());
    }
}

bool ModelloSuFile::Salva()
{
    try {
        if (copia_.FileCambiato() && !interlocutore_.SostituisceFileCambiato()) {
            return false;
        }
        Scrive();
    } catch (const ErroreSistema &errore) {
        throw ErroreSistema(
            errore.numero,
            QStringLiteral("%1\nsalvataggio del file %2").arg(errore.descrizione, nomeFile_));
    }
    documento_.Salvato();
    return true;
}

void ModelloSuFile::Scrive()
{
    QByteArray byte;
    try {
        FileModello::ScriveModello(documento_.Aperto(), percorso_, &byte,
                                   [&] { copia_.TieneIlLavoro(documento_.Aperto(), byte); });
    } catch (const Disco::FileIncompleto &errore) {
        copia_.Incompleto();
        throw ErroreSistema(errore.numero,
                            errore.descrizione +
                                QStringLiteral(", il lavoro è nella copia di recupero"));
    } catch (const ErroreSistema &) {
        // The new bytes may stand all the same; they would be no other program's.
        copia_.Tentati(byte);
        throw;
    }
    copia_.EliminaOfferte();
    copia_.Parte(byte);
}

void ModelloSuFile::Elimina()
{
    Percorsi::Elimina(percorso_);
    copia_.EliminaOfferte();
    // Asking about unsaved work would bring the deleted file back.
    documento_.Salvato();
}

void ModelloSuFile::Chiude()
{
    // A box that loses the focus of a closing window would bring the copy back.
    documento_.disconnect(this);
    copia_.Chiude();
}
