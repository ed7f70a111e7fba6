#pragma once

#include "print/Tracciati.h"

#include <QImage>
#include <QRectF>

#include <functional>

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

/// Lays patches over a page painted as told above.
/// stampante is the device that the marks were measured for; area is its printable part in printer
/// pixels and puntiPerPollice its resolution. Patches have at most 600 dots per inch, and less when
/// there would be too many pixels. carica gives a picture's pixels, opaque in RGB32; it is asked
/// file by file, and more than once where the patches do not fit into byte all together. posa takes
/// each patch as it is ready. No more than byte, or a few million pixels, are held at a time.
void Stende(const Tracciati::Foglio &foglio, QPaintDevice *stampante, const QRectF &area,
            double puntiPerPollice, qint64 byte,
            const std::function<QImage(const Tracciati::Figura &)> &carica,
            const std::function<void(const Pezza &)> &posa);

/// Paints one mark; the painter's unit is the printer pixel.
void Dipinge(QPainter &pittore, const Tracciati::Segno &segno);

} // namespace Sovrapposizione
