#include "documento/CorrezioniInStoria.h"

#include "base/ErroreSistema.h"
#include "documento/Documento.h"

#include <algorithm>

CorrezioniInStoria::CorrezioniInStoria(Documento &documento)
    : documento_(documento)
{
    connect(&documento, &Documento::PassoPercorso, this, &CorrezioniInStoria::Percorre);
}

void CorrezioniInStoria::Aggiunge(const Correzione &correzione)
{
    passi_.append({documento_.UltimoPasso(), correzione});
}

void CorrezioniInStoria::Percorre(int numero, bool annullato)
{
    const auto passo = std::find_if(passi_.begin(), passi_.end(),
                                    [numero](const Passo &p) { return p.Numero == numero; });
    if (passo == passi_.end()) {
        return;
    }
    Correzione &che = passo->Che;
    try {
        if (annullato) {
            che.Ultime.Ritira(che.Stampante, che.Cambio);
        } else {
            che.Cambio = che.Ultime.Ricorda(che.Stampante, che.Modello, che.Quanto);
        }
    } catch (const ErroreSistema &errore) {
        emit NonAggiornate(errore.Messaggio()); // undo and redo do not depend on it
    }
}
