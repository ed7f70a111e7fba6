#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

/// Lines one device pixel thick (as many as the scale of the screen asks for), drawn exactly on the
/// pixel grid whatever the painter's scale: never blurred and never invisible.
///
/// Coordinates are the painter's own at the moment of construction.
class Tratti
{
public:
    explicit Tratti(QPainter &penna);

    void Orizzontale(double y, double x1, double x2, const QColor &colore) const;
    void Verticale(double x, double y1, double y2, const QColor &colore) const;
    /// The outline just inside the rectangle.
    void Riquadro(const QRectF &rettangolo, const QColor &colore) const;
    void Pieno(const QRectF &rettangolo, const QColor &colore) const;
    /// The rectangle on the pixel grid, in device-independent pixels; at least one pixel each way.
    QRectF SullaGriglia(const QRectF &rettangolo) const;
    /// The same, but its size in pixels does not depend on where it lies: for pictures, which are
    /// scaled once for each size.
    QRectF DiMisuraFissa(const QRectF &rettangolo) const;
    /// The outline of what DiMisuraFissa gives.
    void RiquadroDiMisuraFissa(const QRectF &rettangolo, const QColor &colore) const;

private:
    double Griglia(double pixel) const;
    void RiquadroPixel(const QRectF &pixel, const QColor &colore) const;
    void Riempie(const QRectF &pixel, const QColor &colore) const;

    QPainter &penna_;
    QTransform trasformazione_;
    double scala_;    ///< device pixels per device-independent pixel
    double spessore_; ///< in device-independent pixels
};
