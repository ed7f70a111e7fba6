#pragma once

#include "preview/Attrazione.h"
#include "preview/Compagni.h"
#include "preview/Gesto.h"
#include "preview/PassoDiGesto.h"

/// Dragging an element by its handle. A second press of a double click waits for the release: as
/// long as the pointer stays there nothing is dragged, and the release then asks for the
/// properties. The other chosen elements go along with one of theirs. A press that moves nothing
/// chooses the element as a click does, but for one that is chosen already.
class Trascinamento : public Gesto
{
public:
    /// secondaPressione: where the handle was pressed for the second time, mm of screen. Throws
    /// ErroreSistema 9 for an element outside the table.
    Trascinamento(const ContestoGesto &contesto, Chiave chiave, Qt::KeyboardModifiers tasti = {},
                  std::optional<QPointF> secondaPressione = {});

    /// One drag step by the pointer offset (x, y) inside the handle, mm of screen. Nothing unless
    /// the left button is held and the handle is ready to move.
    void Sposta(Qt::MouseButtons bottoni, double x, double y);

    void Muove(const EventoMouse &evento) override;
    void Conclude(std::optional<QPointF> rilascio) override;
    bool Rinuncia() override;
    bool HaTrascinato() const override { return trascinato_; }

private:
    bool FermoDopoDueVolte(QPointF punto);
    void AggiornaPuntatore();
    void ConcludeInsieme();
    void Sceglie();

    ContestoGesto contesto_;
    Chiave chiave_;
    Qt::KeyboardModifiers tasti_;
    Compagni compagni_;
    QPointF postoPrima_;  // of the element at the press, mm of the sheet
    QPointF angoloPrima_; // of its control, mm of screen
    std::optional<QPointF> secondaPressione_;
    bool trascinato_ = false;
    Attrazione attrazione_;
    PassoDiGesto passo_;
};
