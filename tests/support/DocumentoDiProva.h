#pragma once

#include "documento/Passo.h"
#include "documento/StatoProgramma.h"

#include <QRectF>

#include <utility>

/// Makes the open model another one, beneath the windows that show it: no step, nothing to undo,
/// and elements stand where placing puts them. For what a test begins with.
template <typename Azione>
void Cambia(StatoProgramma &stato, Azione &&azione)
{
    Modello modello = stato.Aperto();
    azione(modello);
    stato.documento.Prende(std::move(modello), stato.documento.Variato());
}

/// Makes the open model another one in one step of the history, as commands do: views follow.
template <typename Azione>
void Modifica(StatoProgramma &stato, Azione &&azione)
{
    const Modello &modello = stato.Aperto();
    Modello nuovo = modello;
    azione(nuovo);
    Passo passo(stato.documento, QStringLiteral("modifica"));
    if (nuovo.Tipo != modello.Tipo) {
        passo.ImpostaTipo(nuovo.Tipo);
    }
    if (!(nuovo.Sfondo == modello.Sfondo)) {
        passo.ImpostaSfondo(nuovo.Sfondo);
    }
    if (!(nuovo.Righe == modello.Righe)) {
        passo.ImpostaRighe(nuovo.Righe);
    }
    for (const Genere genere : Generi) {
        nuovo.Con(genere, [&](const auto &tabella) {
            for (int i = 1; i <= modello.UltimoSlot(genere); ++i) {
                passo.Scrive(i, tabella[i]);
                passo.RinominaVoce({genere, i});
            }
        });
    }
}

/// Leaves an element as a drag does: not rounded before it is placed the next time. mm; a field has
/// no size.
inline void Lascia(StatoProgramma &stato, Chiave chiave, const QRectF &posto)
{
    Passo passo(stato.documento, {});
    passo.Trascina(chiave, posto.topLeft());
    passo.Ridimensiona(chiave, posto.size());
}
