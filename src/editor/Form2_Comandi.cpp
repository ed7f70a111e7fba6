// The commands of the editor's buttons for the whole model: save, delete, print.

#include "documento/ModelloSuFile.h"
#include "documento/Passo.h"
#include "editor/ComandiStampa.h"
#include "editor/Form2.h"
#include "editor/PaginaElementi.h"
#include "editor/PaginaRighe.h"
#include "finestre/ApriManuale.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "preview/Frm1.h"

#include <utility>

void Form2::Salva_Click()
{
    stato_.documento.SegnaVariato();
    SalvareVariazioni();
}

bool Form2::SalvareVariazioni()
{
    if (!Variato() ||
        !Messaggi::Domanda(this, QStringLiteral("salvare le variazioni"), Messaggi::Risposta::Si)) {
        return true;
    }
    bool salvato = false;
    Guardia(this, [&] {
        const PuntatoreOccupato occupato;
        salvato = file_->Salva();
    });
    const QStringList nonConfermati = righe_->NonConfermati();
    if (salvato && !nonConfermati.isEmpty()) {
        // The names first: on a narrow strip the end is what is left out.
        nonSalvati_ = nonConfermati.join(QStringLiteral(", ")) +
                      QStringLiteral(": non confermati, non salvati");
        anteprima_->Avverte(nonSalvati_);
    }
    return salvato;
}

void Form2::RitiraNonSalvati()
{
    if (!nonSalvati_.isEmpty()) {
        anteprima_->RitiraAvviso(std::exchange(nonSalvati_, {}));
    }
}

void Form2::Elimina_Click()
{
    const QString nome = stato_.NomeFile;
    if (!Messaggi::Domanda(this, QStringLiteral("Comferma eliminazione %1 ?").arg(nome),
                           Messaggi::Risposta::No)) {
        return;
    }
    file_->Elimina();
    Messaggi::Mostra(this, nome + QStringLiteral(" eliminato"));
    close();
}

void Form2::Command7_Click()
{
    if (!Messaggi::Domanda(this, QStringLiteral("Elimino TUTTE le Cornici "),
                           Messaggi::Risposta::No)) {
        return;
    }
    {
        Passo passo(stato_.documento, QStringLiteral("elimina tutte le cornici"));
        for (int k = 1; k <= stato_.Aperto().UltimoSlot(Genere::Cornice); ++k) {
            passo.Elimina({Genere::Cornice, k});
        }
    }
    stato_.documento.DimenticaStoria();
    anteprima_->NascondiManiglie();
    Chiude();
}

void Form2::Stampa_Click()
{
    const Messaggi::Scelta scelta = Messaggi::DomandaRinunciabile(
        stampa_->Davanti(),
        QStringLiteral("stampo il 'NOME' dei campi invece del 'TESTO DI PROVA'"),
        Messaggi::Risposta::No);
    if (scelta != Messaggi::Scelta::Annulla) {
        stampa_->Stampa(scelta == Messaggi::Scelta::Si);
    }
}

void Form2::StampaRetino_Click()
{
    stampa_->StampaGriglia();
}

void Form2::Image1_Click()
{
    ApriManuale(ChiaveManuale);
}
