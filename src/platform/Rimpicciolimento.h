#pragma once

#include <QImage>
#include <QSize>

/// Shrinks an RGB32 picture to pixel (positive, no larger than the picture either way); each new
/// pixel is the mean of what it covers. Works within the picture's own memory: beside a scan there
/// is no room for a second one. Throws std::bad_alloc.
void Rimpicciolisce(QImage &immagine, const QSize &pixel);
