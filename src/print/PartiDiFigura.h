#pragma once

#include <QImage>
#include <QList>
#include <QRect>

/// A picture as it is handed to the printer without loss. White leaves the page as it is, so white
/// margins and wide white stripes stay out of the document; what is only black and white takes a
/// bit to the pixel; a large rest goes in strips, because the printer's engine makes copies of what
/// it gets. All this is where the time and the memory of a drawing go.
namespace PartiDiFigura {

struct Parte
{
    QRect Posto;     ///< in the picture's pixels
    QImage Immagine; ///< RGB32, or Mono with black as 0
};

/// The parts of the picture (opaque, RGB32), which share its memory and keep it; none
/// when all of it is white. Where two parts meet, they either leave white between them or share a
/// row, and white of a pixel stands around them where the picture has it: a viewer that smooths
/// edges shows the same as of the whole.
QList<Parte> Divide(const QImage &immagine);

} // namespace PartiDiFigura
