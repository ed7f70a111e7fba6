#pragma once

#include "base/Unita.h"
#include "model/FoglioCarta.h"

#include <QMargins>
#include <QRect>
#include <QRectF>
#include <QSize>

/// The arithmetic of the preview window, without a window: the sheet, the scroll bars, the layout
/// and the one place where millimetres of screen become pixels. Pixels are device-independent ones.
class GeometriaAnteprima
{
public:
    /// Height of the editor's strip across the top of the screen, its frame included: 3000 twips.
    static constexpr double AltezzaEditor = 3000 * Unita::MillimetriPerTwip;
    static constexpr double SpessoreRighello = 6.5;
    static constexpr double ZoomMinimo = 1;
    static constexpr double ZoomMassimo = 3;

    /// Where each control stands, in mm of screen from the window's inner corner.
    struct Disposizione
    {
        QRectF AreaFoglio; ///< the part of the window where the sheet shows
        QRectF AreaRighelloX;
        QRectF AreaRighelloY;
        QRectF ScrollX;
        QRectF ScrollY;
        QRectF Text1;
        QRectF EtichettaPX;
        QRectF PX;
        QRectF EtichettaPY;
        QRectF PY;
        QRectF Label1;
        QRectF TextZoom;
        QRectF LL;
        double FinePulsanti; ///< right end of the strip's buttons, left of LL
    };

    /// zoom: the scale at the moment of opening, which fixes the size of the sheet.
    GeometriaAnteprima(double pixelPerMillimetro, double zoom);

    double PixelPerMillimetro() const { return pixelPerMillimetro_; }
    double LarghezzaFoglio() const { return larghezzaFoglio_; } ///< mm of screen
    double AltezzaFoglio() const { return altezzaFoglio_; }     ///< mm of screen
    int MassimoScrollX() const;
    int MassimoScrollY() const;

    /// The nearest pixel; a value beyond what a window can have is brought back to its limit.
    int Pixel(double millimetri) const;
    QRect Pixel(const QRectF &millimetri) const;
    QSize PixelFoglio() const;
    double Millimetri(double pixel) const { return pixel / pixelPerMillimetro_; }
    QPointF Millimetri(QPointF pixel) const { return pixel / pixelPerMillimetro_; }

    /// The layout for an inner window of larghezza x altezza mm. No minimum size is enforced:
    /// on a window too small the controls overlap.
    static Disposizione Dispone(double larghezza, double altezza);

    /// Inner size in pixels that makes the whole window, its frame included, as wide as the screen
    /// and 3000 twips lower, which is the room of the editor's strip.
    QSize MisuraInterna(QSize schermo, const QMargins &cornice) const;

private:
    double pixelPerMillimetro_;
    double larghezzaFoglio_;
    double altezzaFoglio_;
};
