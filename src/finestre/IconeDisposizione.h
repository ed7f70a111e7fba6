#pragma once

#include <QPixmap>
#include <Qt>

/// Which edges of two bars meet in a line, or their middles.
enum class Bordo { Vicino, Mezzo, Lontano };

/// Two bars of unlike length, brought to a line across them: upright for Qt::Horizontal, which
/// moves them sideways. lato: device-independent pixels.
QPixmap IconaAllinea(Qt::Orientation verso, Bordo bordo, int lato);
/// Three bars at equal distances.
QPixmap IconaDistribuisce(Qt::Orientation verso, int lato);
/// An arrow with two heads between two edges; with neither orientation left out, both arrows.
QPixmap IconaStessaMisura(Qt::Orientations versi, int lato);
