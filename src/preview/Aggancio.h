#pragma once

#include "model/Modello.h"
#include "preview/Calamita.h"

#include <QList>

#include <optional>

class ElementiFoglio;
class GeometriaAnteprima;
class GuideFoglio;
class LineaGuida;
class QGraphicsScene;
struct StatoProgramma;

/// Snapping: whether it is on, to what, and the lines that show it. A gesture uses it by way of
/// Attrazione.
class Aggancio
{
public:
    /// All outlive it; the lines go into scena, which owns them.
    Aggancio(const StatoProgramma &stato, const GeometriaAnteprima &geometria,
             const ElementiFoglio &elementi, const GuideFoglio &guide, QGraphicsScene &scena);

    bool Attivo() const { return attivo_; }
    void Attiva(bool attivo);

    struct Calamite
    {
        Calamita x;
        Calamita y;
    };
    /// Edges and middles of the elements in sight but those that move, and of the sheet, and the
    /// guides. Walks over the model.
    Calamite Raccoglie(const QList<Chiave> &mossi) const;

    /// Shows a line at an x, at a y, mm of paper.
    void MostraLinee(std::optional<double> x, std::optional<double> y);
    void NascondeLinee() { MostraLinee({}, {}); }

private:
    const StatoProgramma &stato_;
    const GeometriaAnteprima &geometria_;
    const ElementiFoglio &elementi_;
    const GuideFoglio &guide_;
    LineaGuida *lineaX_;
    LineaGuida *lineaY_;
    bool attivo_ = false;
};
