#pragma once

#include "model/Modello.h"

#include <QObject>

#include <array>

class Documento;

/// Per kind the active element of the open model: the one on which the sheet's handle stands. It is
/// no part of the history; what leaves the sheet is not active any more.
class Selezione : public QObject
{
    Q_OBJECT
public:
    /// documento must outlive it.
    explicit Selezione(const Documento &documento);

    /// Number of the active element of the kind; 0 when there is none.
    int Attivo(Genere genere) const { return attivi_.at(Posto(genere)); }
    /// Throws ErroreSistema 9 for a number outside the table. Tells it anew, too, when the element
    /// was the active one already: its handle comes back to it.
    void Sceglie(Chiave chiave);
    /// No element of the kind is active.
    void Lascia(Genere genere);

signals:
    void Cambiata(Genere genere);

private:
    void Segue();

    const Documento &documento_;
    std::array<int, Generi.size()> attivi_{};
};
