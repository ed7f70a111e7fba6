#pragma once

#include "print/Tracciati.h"

#include <QImage>
#include <QList>
#include <QRectF>

class QPaintDevice;
class QPainter;

/// The AND of pictures with the page. Printer engines know no such operation, so it is made of what
/// they do know. The AND does not mind the order: pictures go down first and black marks on top of
/// them, which is exact because black AND anything is black, and text stays text. Only where a
/// picture meets a coloured mark or another picture is the page computed pixel by pixel.
namespace Sovrapposizione {

/// Part of the page whose pixels are all computed.
struct Pezza
{
    QRectF Posto;    ///< printer pixels
    QImage Immagine; ///< opaque, RGB32
};

/// The patches to be laid over a page painted as told above.
/// stampante is the device that the marks were measured for; area is its printable part in printer
/// pixels and puntiPerPollice its resolution. Patches have at most 600 dots per inch, and less when
/// there would be too many pixels.
QList<Pezza> Pezze(const Tracciati::Foglio &foglio, QPaintDevice *stampante, const QRectF &area,
                   double puntiPerPollice);

/// Paints one mark; the painter's unit is the printer pixel.
void Dipinge(QPainter &pittore, const Tracciati::Segno &segno);

} // namespace Sovrapposizione
