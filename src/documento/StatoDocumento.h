#pragma once

#include "documento/Cambiamento.h"
#include "model/Modello.h"

#include <QList>

#include <array>
#include <optional>
#include <variant>
#include <vector>

/// All that a step changes and undo brings back: the model, the texts under which the editor's
/// lists show its elements, and which of them have been deleted. A list keeps its text until the
/// element is confirmed under another name, and marks it when the element is deleted; the mark
/// alone tells nothing, since an element may be named like it.
struct StatoDocumento
{
    Modello modello;
    std::array<Tabella<QString>, Generi.size()> voci;
    std::array<Tabella<bool>, Generi.size()> eliminati{};

    QString &Voce(Chiave chiave) { return voci.at(Posto(chiave.genere))[chiave.indice]; }
    const QString &Voce(Chiave chiave) const
    {
        return voci.at(Posto(chiave.genere))[chiave.indice];
    }
    bool &Eliminato(Chiave chiave) { return eliminati.at(Posto(chiave.genere))[chiave.indice]; }
    const bool &Eliminato(Chiave chiave) const
    {
        return eliminati.at(Posto(chiave.genere))[chiave.indice];
    }

    bool operator==(const StatoDocumento &) const = default;
};

/// The parts in which one state differs from another, as they are in the first. Swapped into the
/// second they make it the first, and hold what leads back.
class Differenza
{
public:
    Differenza(const StatoDocumento &prima, const StatoDocumento &dopo);

    bool Vuota() const;
    /// True when swapping would change nothing.
    bool Uguale(const StatoDocumento &stato) const;
    /// Exchanges the parts held with those of the state.
    void Scambia(StatoDocumento &stato);
    /// Takes from a later difference what this one does not hold: the two become one step.
    void Unisce(Differenza &&successiva);

    /// Adds what swapping touches.
    void Segnala(Cambiamento &cambiamento) const;

private:
    /// An element of which more than the place differs.
    struct Pezzo
    {
        Chiave chiave;
        std::variant<Campo, Cornice, Immagine> record;
        QString voce;
        bool eliminato;
    };
    /// One that was only moved: most steps are such, and a shift holds every element of a kind.
    struct Mossa
    {
        Chiave chiave;
        double x;
        double y;
    };

    template <typename Record>
    void Raccoglie(Genere genere, const StatoDocumento &prima, const StatoDocumento &dopo,
                   Tabella<Record> Modello::*tabella);

    void UnisceMossa(const Mossa &mossa);
    void UniscePezzo(Pezzo &&pezzo);

    std::vector<Mossa> mosse_;
    std::vector<Pezzo> pezzi_;
    std::optional<std::array<qint16, Generi.size()>> numeri_;
    std::optional<QString> tipo_;
    std::optional<ParametriRighe> righe_;
    std::optional<ImmagineSfondo> sfondo_;
};
