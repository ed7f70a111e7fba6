#include "preview/Tratti.h"

#include <QPaintDevice>

#include <algorithm>
#include <cmath>

namespace {

/// Beyond the reach of any screen, well inside the reach of Qt's fixed-point rasteriser.
constexpr double Limite = 20000;

} // namespace

Tratti::Tratti(QPainter &penna)
    : penna_(penna)
    , trasformazione_(penna.worldTransform())
    , scala_(penna.device()->devicePixelRatioF())
    , spessore_(std::max(1.0, std::floor(scala_)) / scala_)
{
}

double Tratti::Griglia(double pixel) const
{
    return std::clamp(std::floor(pixel * scala_ + 0.5) / scala_, -Limite, Limite);
}

QRectF Tratti::SullaGriglia(const QRectF &rettangolo) const
{
    const QRectF pixel = trasformazione_.mapRect(rettangolo);
    const double x = Griglia(pixel.left());
    const double y = Griglia(pixel.top());
    return {x, y, std::max(Griglia(pixel.right()) - x, spessore_),
            std::max(Griglia(pixel.bottom()) - y, spessore_)};
}

void Tratti::Riempie(const QRectF &pixel, const QColor &colore) const
{
    penna_.setWorldTransform(QTransform());
    penna_.fillRect(pixel, colore);
    penna_.setWorldTransform(trasformazione_);
}

void Tratti::Orizzontale(double y, double x1, double x2, const QColor &colore) const
{
    QRectF pixel = SullaGriglia(QRectF(QPointF(x1, y), QPointF(x2, y)));
    pixel.setHeight(spessore_);
    Riempie(pixel, colore);
}

void Tratti::Verticale(double x, double y1, double y2, const QColor &colore) const
{
    QRectF pixel = SullaGriglia(QRectF(QPointF(x, y1), QPointF(x, y2)));
    pixel.setWidth(spessore_);
    Riempie(pixel, colore);
}

QRectF Tratti::DiMisuraFissa(const QRectF &rettangolo) const
{
    const QRectF pixel = trasformazione_.mapRect(rettangolo);
    return {Griglia(pixel.left()), Griglia(pixel.top()),
            std::max(Griglia(pixel.width()), spessore_),
            std::max(Griglia(pixel.height()), spessore_)};
}

void Tratti::Riquadro(const QRectF &rettangolo, const QColor &colore) const
{
    RiquadroPixel(SullaGriglia(rettangolo), colore);
}

void Tratti::RiquadroDiMisuraFissa(const QRectF &rettangolo, const QColor &colore) const
{
    RiquadroPixel(DiMisuraFissa(rettangolo), colore);
}

void Tratti::RiquadroPixel(const QRectF &p, const QColor &colore) const
{
    penna_.setWorldTransform(QTransform());
    penna_.fillRect(QRectF(p.left(), p.top(), p.width(), spessore_), colore);
    penna_.fillRect(QRectF(p.left(), p.bottom() - spessore_, p.width(), spessore_), colore);
    penna_.fillRect(QRectF(p.left(), p.top(), spessore_, p.height()), colore);
    penna_.fillRect(QRectF(p.right() - spessore_, p.top(), spessore_, p.height()), colore);
    penna_.setWorldTransform(trasformazione_);
}

void Tratti::Pieno(const QRectF &rettangolo, const QColor &colore) const
{
    Riempie(SullaGriglia(rettangolo), colore);
}
