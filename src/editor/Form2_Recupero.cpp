// Reading the model, and the safety copies of unsaved work.

#include "base/ErroreSistema.h"
#include "documento/CopiaRecupero.h"
#include "editor/Form2.h"
#include "finestre/Messaggi.h"
#include "model/FileModello.h"
#include "sistema/CartellaStato.h"

#include <QDir>
#include <QLocale>

bool Form2::LeggeModello()
{
    // Slots that the file does not fill keep what they held.
    Modello modello = stato_.Aperto();
    modello.NomeFile = stato_.NomeFile;
    std::optional<QByteArray> byte;
    const bool letto = FileModello::LeggeModello(
        modello, percorso_, [](const QString &testo) { Messaggi::Mostra(nullptr, testo); }, &byte);
    copia_ = std::make_unique<CopiaRecupero>(CartellaStato(), percorso_);
    copia_->Parte(byte);
    const Recupero recupero = OffreRecupero(modello, letto);
    const bool ripreso = recupero == Recupero::Ripreso;
    // What was read before a failure stays in the model.
    stato_.documento.Prende(std::move(modello), ripreso);
    if (recupero == Recupero::Annullato || (!letto && !ripreso)) {
        return false;
    }
    if (ripreso) {
        ModificaConclusa();
    }
    return true;
}

Form2::Recupero Form2::OffreRecupero(Modello &modello, bool letto)
{
    const QList<CopiaRecupero::Trovata> trovate = copia_->Cerca([](const QString &file,
                                                                   const ErroreSistema &errore) {
        Messaggi::Mostra(nullptr, QStringLiteral("copia di recupero non letta: ") +
                                      errore.Messaggio() + u'\n' + QDir::toNativeSeparators(file));
    });
    for (const CopiaRecupero::Trovata &trovata : trovate) {
        if (trovata.inUso || (letto && copia_->EliminaSuperata(trovata, modello))) {
            continue;
        }
        QString domanda =
            QStringLiteral("Il modello %1 ha modifiche non salvate del %2, rimaste da una chiusura "
                           "imprevista.\nVuoi riprenderle?")
                .arg(stato_.NomeFile,
                     QLocale(QLocale::Italian).toString(trovata.scritta, QLocale::ShortFormat));
        if (trovata.fileCambiato) {
            domanda += QStringLiteral("\n\nAttenzione: da allora il file è cambiato; riprendendo "
                                      "queste modifiche e salvando, i cambiamenti andranno persi.");
        }
        if (trovata.interrotta) {
            domanda +=
                QStringLiteral("\n\nAttenzione: un salvataggio è stato interrotto e il file è "
                               "rimasto incompleto.");
        }
        copia_->SegnaOfferta(trovata);
        const auto predefinita = trovata.fileCambiato ? Messaggi::Scelta::No : Messaggi::Scelta::Si;
        switch (Messaggi::DomandaAnnullabile(nullptr, domanda, predefinita)) {
        case Messaggi::Scelta::Si: {
            copia_->Riprende(trovata);
            modello = trovata.modello;
            modello.NomeFile = stato_.NomeFile;
            return Recupero::Ripreso;
        }
        case Messaggi::Scelta::No:
            break;
        case Messaggi::Scelta::Annulla:
            return Recupero::Annullato;
        }
    }
    return Recupero::Nessuno;
}

void Form2::ModificaConclusa()
{
    if (!Variato() || !copia_) {
        return;
    }
    try {
        copia_->Scrive(stato_.Aperto());
        copiaMancata_ = false;
    } catch (const ErroreSistema &errore) {
        // Told once until it works again: the work itself goes on, and a box at every edit would
        // stop it.
        if (!copiaMancata_) {
            copiaMancata_ = true;
            Messaggi::Mostra(this, QStringLiteral("copia di recupero non scritta: ") +
                                       errore.Messaggio());
        }
    }
}

bool Form2::PuoSovrascrivere()
{
    return !copia_->FileCambiato() ||
           Messaggi::Domanda(
               this,
               QStringLiteral("Il file %1 è stato cambiato da un altro programma dopo "
                              "l'apertura.\nLO VUOI SOSTITUIRE?")
                   .arg(stato_.NomeFile),
               Messaggi::Risposta::No);
}
