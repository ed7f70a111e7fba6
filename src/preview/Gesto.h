#pragma once

#include <QPointF>

#include <optional>

class AvvisiFoglio;
class ElementiFoglio;
class VistaFoglio;
class GeometriaAnteprima;
class GuideFoglio;
class Aggancio;
class MiraFoglio;
struct EventoMouse;
class Passo;
struct StatoProgramma;

/// What the gestures on the sheet work on; all of it outlives them.
struct ContestoGesto
{
    StatoProgramma &stato;
    const GeometriaAnteprima &geometria;
    ElementiFoglio &elementi;
    VistaFoglio &foglio;
    const MiraFoglio &mira;
    AvvisiFoglio &avvisi;
    GuideFoglio &guide;
    Aggancio &aggancio;
};

/// What one press on the sheet does, from its construction at the press until it ends in one of
/// two ways: concluded or given up. What it changes of the model is one step of the document, which
/// ends with it at the latest.
class Gesto
{
public:
    virtual ~Gesto() = default;

    virtual void Muove(const EventoMouse &evento) = 0;
    /// rilascio: where the button was released, mm of screen; none when the mouse was taken away.
    virtual void Conclude(std::optional<QPointF> rilascio) = 0;
    /// Leaves the element as it was at the press. False when this is no gesture that changes one:
    /// it goes on.
    virtual bool Rinuncia() = 0;
    /// True once it has dragged an element: the next press is no second one of a double click.
    virtual bool HaTrascinato() const { return false; }
};
