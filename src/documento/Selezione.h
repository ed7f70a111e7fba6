#pragma once

#include "model/Modello.h"

#include <QList>
#include <QObject>

#include <array>

class Cambiamento;
class Documento;

/// What is selected in the open model. Per kind the active element: the one on which the sheet's
/// handle stands. Beside them the chosen set, of any kinds, on which the commands for several
/// elements work: pointing never alters it. Neither is part of the history; what leaves the sheet
/// is neither active nor chosen any more.
class Selezione : public QObject
{
    Q_OBJECT
public:
    /// documento must outlive it.
    explicit Selezione(const Documento &documento);

    /// Number of the active element of the kind; 0 when there is none.
    int Attivo(Genere genere) const { return attivi_.at(Posto(genere)); }
    /// Throws ErroreSistema 9 for a number outside the table, and does nothing for an element that
    /// is not in view. Tells it anew, too, when the element was the active one already: its handle
    /// comes back to it.
    void Sceglie(Chiave chiave);
    /// No element of the kind is active.
    void Lascia(Genere genere);

    /// The chosen elements, each once, in the order in which they were chosen.
    const QList<Chiave> &Scelti() const { return scelti_; }
    bool EScelto(Chiave chiave) const { return scelti_.contains(chiave); }
    /// The elements as the chosen set, the last one chosen last; a repeated one counts where it
    /// stands first, one that is not in view is left out. Throws ErroreSistema 9, and changes
    /// nothing, for a number outside the table.
    void ImpostaScelti(const QList<Chiave> &chiavi);
    /// Puts the elements that are not there yet at the end of the set. Throws as ImpostaScelti.
    void AggiungeScelti(const QList<Chiave> &chiavi);
    /// Takes the element out of the set, or puts it at its end. Throws as ImpostaScelti.
    void AlternaScelto(Chiave chiave);
    /// As a click on the element does: it is chosen alone, or with aggiunge in or out of the set.
    void SceglieConClick(Chiave chiave, bool aggiunge);
    void SvuotaScelti() { ImpostaScelti({}); }

signals:
    void Cambiata(Genere genere);
    void SceltiCambiati();

private:
    void Segue(const Cambiamento &cambiamento);

    const Documento &documento_;
    std::array<int, Generi.size()> attivi_{};
    QList<Chiave> scelti_;
};
