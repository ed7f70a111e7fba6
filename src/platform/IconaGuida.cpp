#include "platform/IconaGuida.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QColor Azzurro(0x1f, 0x6f, 0xb5);

/// A question mark in a square of side 1, drawn rather than set in a font so that it looks the same
/// on every machine.
QPainterPath Gancio()
{
    QPainterPath gancio(QPointF(0.34, 0.40));
    gancio.arcTo(QRectF(0.34, 0.22, 0.32, 0.32), 170, -215);
    gancio.quadTo(QPointF(0.50, 0.56), QPointF(0.50, 0.64));
    return gancio;
}

} // namespace

QPixmap IconaGuida(int lato)
{
    const double scala = qGuiApp->devicePixelRatio();
    QPixmap icona(QSize(lato, lato) * scala);
    icona.setDevicePixelRatio(scala);
    icona.fill(Qt::transparent);
    QPainter pittore(&icona);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.scale(lato, lato);
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(Azzurro);
    pittore.drawEllipse(QRectF(0.04, 0.04, 0.92, 0.92));
    pittore.strokePath(Gancio(), QPen(Qt::white, 0.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pittore.setBrush(Qt::white);
    pittore.drawEllipse(QPointF(0.50, 0.77), 0.06, 0.06);
    return icona;
}
