#pragma once

#include <QImage>

/// Pictures of few colours, as drawings have them.
namespace PocheTinte {

/// The opaque picture (RGB32) with the same pixels by way of a palette, in a byte each, or a bit
/// where there are two colours; null for one of more than 256, or without memory for it.
QImage ConTavolozza(const QImage &immagine);

} // namespace PocheTinte
