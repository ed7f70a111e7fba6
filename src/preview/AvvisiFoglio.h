#pragma once

#include "model/Modello.h"

#include <QObject>
#include <QPointF>

/// What the mouse on the sheet tells the window.
class AvvisiFoglio : public QObject
{
    Q_OBJECT
signals:
    void ElementoPuntato(Genere genere, int i);
    void PaginaRichiesta(Genere genere);
    void RichiestaProprieta(Genere genere, int i);
    /// The left button is held on the empty sheet, at a point in mm of screen.
    void FoglioPuntato(QPointF punto);
    /// The pointer is over the empty sheet, whatever is held, at a point in mm of screen.
    void FoglioSorvolato(QPointF punto);
    /// Element i has been selected, moved or resized.
    void ElementoInMano(Genere genere, int i);
};
