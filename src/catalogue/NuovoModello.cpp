// The creation of a model, from the choice of its kind to the copied file.

#include "catalogue/SelezioneArchivifrm.h"

#include "ui_SelezioneArchivifrm.h"

#include "base/ErroreSistema.h"
#include "catalogue/ModelliTipo.h"
#include "finestre/Messaggi.h"
#include "finestre/NomeModello.h"
#include "sistema/Percorsi.h"

#include <QFileInfo>

namespace {

/// Compared with the extension in place, so none of these ever matches: the reserved names can be
/// used, and archives hold models that are called so.
bool Riservato(const QString &nomeFile)
{
    const QString maiuscolo = nomeFile.toUpper();
    return maiuscolo == QLatin1String("FATTURA") ||
           maiuscolo == QLatin1String("FATTURAACCOMPAGN") || maiuscolo == QLatin1String("DDT");
}

} // namespace

void SelezioneArchivifrm::Nuovo_Click()
{
    if (!ArchivioScelto()) {
        Messaggi::Mostra(this, QStringLiteral("Selezionare una cartella"));
        return;
    }
    const std::optional<Richiesta> richiesta = RichiestaScelta();
    if (!richiesta) {
        return;
    }
    const QString nuovoNome = ChiedeNomeModello(
        this, stato_.CartellaModelli,
        richiesta->testo + QStringLiteral("\n\nDigitare un nome per il nuovo modello"),
        richiesta->nomeProposto);
    if (nuovoNome.isEmpty()) {
        return;
    }
    if (Riservato(nuovoNome)) {
        Messaggi::Mostra(this, QStringLiteral("inserire un mome diverso"));
        return;
    }
    if (!SovrascritturaAccettata(nuovoNome)) {
        return;
    }
    // A failure reaches the guard, whose message names the number and the file.
    Percorsi::Copia(stato_.CartellaModelli + richiesta->fileTipo,
                    stato_.CartellaModelli + nuovoNome);
    stato_.NomeFile = nuovoNome;
    Consegna();
}

std::optional<SelezioneArchivifrm::Richiesta> SelezioneArchivifrm::RichiestaScelta()
{
    std::optional<Richiesta> richiesta;
    for (const ModelloTipo &tipo : ModelliTipo()) {
        if (findChild<QRadioButton *>(tipo.opzione)->isChecked()) {
            richiesta =
                Richiesta{tipo.file, QStringLiteral("Creazione nuovo Modello:\n") + tipo.titolo,
                          tipo.nomeProposto};
        }
    }
    if (ui_->OptDuplico->isChecked()) {
        if (!ModelloSelezionato()) {
            Messaggi::Mostra(this, QStringLiteral("Selezionare un modello esistente"));
            return std::nullopt;
        }
        const QString &originale = stato_.NomeFile;
        // The proposed name keeps the extension of the original: users know it so.
        richiesta = Richiesta{originale,
                              QStringLiteral("Creazione nuovo modello duplicando:\n") + originale,
                              originale + QLatin1String("_nuovo")};
    }
    return richiesta;
}

bool SelezioneArchivifrm::SovrascritturaAccettata(const QString &nuovoNome)
{
    return !Esiste(Percorsi::Risolve(stato_.CartellaModelli + nuovoNome)) ||
           Messaggi::Domanda(this, nuovoNome + QStringLiteral(" esiste già \nLO VUOI SOSTITUIRE?"),
                             Messaggi::Risposta::No);
}

bool SelezioneArchivifrm::Esiste(const QString &percorso)
{
    const QFileInfo file(percorso);
    if (file.isFile() && file.size() != 0) {
        return true;
    }
    const ErroreSistema assente(ErroreSistema::FileNonTrovato);
    // Users know this box, which every new model shows; its last words keep it from being taken
    // for a failure.
    Messaggi::MostraCritico(this, assente.Messaggio() + QStringLiteral("\nnon esiste il file ") +
                                      percorso +
                                      QStringLiteral("\n\nil modello viene creato adesso"));
    return false;
}
