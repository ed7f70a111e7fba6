#pragma once

#include <QRectF>

/// Which edges of an element a resize moves.
enum class Presa { Nessuna, Destra, Basso, Angolo };

/// The arithmetic of resizing by the right edge, the bottom edge or their corner.
namespace Ridimensionamento {

/// The grip at a point measured from the element's corner. The zone along an edge is zona wide
/// inside the element (a third of it at most, so that a small element keeps room to be pointed at)
/// and reaches fuori beyond it.
Presa PresaIn(const QSizeF &misura, QPointF punto, double zona, double fuori);

bool InLarghezza(Presa presa);
bool InAltezza(Presa presa);

Qt::CursorShape Puntatore(Presa presa);

/// The size that brings the gripped edges to bordo (from the element's corner), for an element that
/// was at posto when it was gripped. Along each gripped axis it is at least minimo and does not
/// reach past the sheet, or no farther past it than posto did; where the sheet leaves less than
/// minimo, the size stays as it was.
QSizeF Misura(const QRectF &posto, Presa presa, QPointF bordo, double minimo, QSizeF foglio);

} // namespace Ridimensionamento
