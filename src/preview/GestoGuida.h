#pragma once

#include "preview/GuideFoglio.h"
#include "preview/PuntamentoFoglio.h"

/// Dragging a guide that was pressed on the bare sheet, where the mouse goes on doing what it does
/// over the empty sheet.
class GestoGuida : public PuntamentoFoglio
{
public:
    GestoGuida(const ContestoGesto &contesto, GuideFoglio::Guida guida,
               const EventoMouse &pressione);

    void Muove(const EventoMouse &evento) override;
    void Conclude(std::optional<QPointF> rilascio) override;
    bool Rinuncia() override;
};
