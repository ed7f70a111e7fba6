#pragma once

#include <QImage>

/// Pictures of few colours, as drawings have them.
namespace PocheTinte {

/// The opaque picture (RGB32) with the same pixels by way of a palette, in a byte each, or a bit
/// where there are two colours; null for one of more than 256, or without memory for it.
QImage ConTavolozza(const QImage &immagine);

/// Of a drawing without pixels of its own, painted as RGB32: where it has more than 256 colours
/// only by the shades along its edges, shades that hardly differ become one. What is even keeps its
/// colour; a picture with shades of its own stays as it is.
void UnisceOrli(QImage &immagine);

} // namespace PocheTinte
