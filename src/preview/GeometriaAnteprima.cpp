#include "preview/GeometriaAnteprima.h"

#include "model/Numeri.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int PixelMassimo = 30000; // X11 windows end at 32767

// Sizes of the controls, mm of screen.
constexpr double AltezzaStriscia = 5;
constexpr double SpessoreScroll = 4.5;
constexpr QSizeF MisuraLL{10, 5.5};
constexpr QSizeF MisuraEtichettaPX{3, AltezzaStriscia};
constexpr QSizeF MisuraPX{17, AltezzaStriscia};
constexpr QSizeF MisuraLabel1{33, AltezzaStriscia};
constexpr QSizeF MisuraTextZoom{12, AltezzaStriscia};

// The gaps that the layout keeps free at the right and the bottom edge.
constexpr double SottoLL = 4;
constexpr double SottoScrollY = 15;
constexpr double ADestraDiScrollX = 10;
constexpr double SottoScrollX = 5;

} // namespace

GeometriaAnteprima::GeometriaAnteprima(double pixelPerMillimetro, double zoom)
    : pixelPerMillimetro_(pixelPerMillimetro)
    , larghezzaFoglio_(FoglioCarta::Larghezza / zoom)
    , altezzaFoglio_(FoglioCarta::Altezza / zoom)
{
}

int GeometriaAnteprima::MassimoScrollX() const
{
    return static_cast<int>(Numeri::PariPiuVicino(larghezzaFoglio_));
}

int GeometriaAnteprima::MassimoScrollY() const
{
    return static_cast<int>(Numeri::PariPiuVicino(altezzaFoglio_));
}

int GeometriaAnteprima::Pixel(double millimetri) const
{
    const double pixel = std::floor(millimetri * pixelPerMillimetro_ + 0.5);
    return static_cast<int>(
        std::clamp<double>(std::isnan(pixel) ? 0 : pixel, -PixelMassimo, PixelMassimo));
}

QRect GeometriaAnteprima::Pixel(const QRectF &millimetri) const
{
    // Edges are rounded, not sizes: controls that touch in millimetres touch in pixels.
    const QPoint angolo(Pixel(millimetri.left()), Pixel(millimetri.top()));
    const QPoint opposto(Pixel(millimetri.right()), Pixel(millimetri.bottom()));
    return {angolo, QSize(opposto.x() - angolo.x(), opposto.y() - angolo.y())};
}

QSize GeometriaAnteprima::PixelFoglio() const
{
    return {Pixel(larghezzaFoglio_), Pixel(altezzaFoglio_)};
}

GeometriaAnteprima::Disposizione GeometriaAnteprima::Dispone(double larghezza, double altezza)
{
    const double W = larghezza;
    const double H = altezza;
    Disposizione d;
    d.LL = {QPointF(W - MisuraLL.width(), H - MisuraLL.height() - SottoLL), MisuraLL};
    d.ScrollY = {W - SpessoreScroll, 0, SpessoreScroll, H - SottoScrollY};
    d.ScrollX = {0, H - SpessoreScroll - SottoScrollX, W - ADestraDiScrollX, SpessoreScroll};
    d.Text1 = {0, H - AltezzaStriscia, W, AltezzaStriscia};
    d.EtichettaPX = {QPointF(0, d.Text1.top()), MisuraEtichettaPX};
    d.PX = {QPointF(d.EtichettaPX.right() + 1, H - MisuraPX.height()), MisuraPX};
    d.EtichettaPY = {QPointF(d.PX.right(), d.Text1.top()), MisuraEtichettaPX};
    d.PY = {QPointF(d.EtichettaPY.right() + 1, H - MisuraPX.height()), MisuraPX};
    d.Label1 = {QPointF(d.PY.right() + 2, d.Text1.top()), MisuraLabel1};
    d.TextZoom = {QPointF(d.Label1.right(), d.Text1.top()), MisuraTextZoom};
    d.FinePulsanti = d.LL.left() - 1;
    d.AreaFoglio = {SpessoreRighello, SpessoreRighello, d.ScrollY.left() - SpessoreRighello,
                    d.ScrollX.top() - SpessoreRighello};
    d.AreaRighelloX = {SpessoreRighello, 0, d.AreaFoglio.width(), SpessoreRighello};
    d.AreaRighelloY = {0, SpessoreRighello, SpessoreRighello, d.AreaFoglio.height()};
    return d;
}

QSize GeometriaAnteprima::MisuraInterna(QSize schermo, const QMargins &cornice) const
{
    const int editor = Pixel(AltezzaEditor);
    return QSize(schermo.width() - cornice.left() - cornice.right(),
                 schermo.height() - editor - cornice.top() - cornice.bottom())
        .expandedTo(QSize(1, 1));
}
