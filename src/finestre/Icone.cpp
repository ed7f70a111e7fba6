#include "finestre/Icone.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QColor Azzurro(0x1f, 0x6f, 0xb5);

QPen TrattoTondo(const QColor &colore)
{
    return {colore, 0.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QPainterPath Gancio()
{
    QPainterPath gancio(QPointF(0.34, 0.40));
    gancio.arcTo(QRectF(0.34, 0.22, 0.32, 0.32), 170, -215);
    gancio.quadTo(QPointF(0.50, 0.56), QPointF(0.50, 0.64));
    return gancio;
}

/// An arrow that turns back to the left, over what was done.
QPainterPath FrecciaIndietro()
{
    QPainterPath freccia(QPointF(0.14, 0.42));
    freccia.lineTo(0.62, 0.42);
    freccia.arcTo(QRectF(0.44, 0.42, 0.40, 0.40), 90, -180);
    freccia.lineTo(0.40, 0.82);
    freccia.moveTo(0.34, 0.22);
    freccia.lineTo(0.14, 0.42);
    freccia.lineTo(0.34, 0.62);
    return freccia;
}

} // namespace

QPen TrattoIcona(double spessore)
{
    return {BluScuro, spessore, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

QPixmap DisegnaIcona(int lato, const std::function<void(QPainter &)> &disegna)
{
    // Drawn rather than set in a font, so that it looks the same on every machine.
    const double scala = qGuiApp->devicePixelRatio();
    QPixmap icona(QSize(lato, lato) * scala);
    icona.setDevicePixelRatio(scala);
    icona.fill(Qt::transparent);
    QPainter pittore(&icona);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.scale(lato, lato);
    disegna(pittore);
    return icona;
}

QPixmap IconaGuida(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        pittore.setPen(Qt::NoPen);
        pittore.setBrush(Azzurro);
        pittore.drawEllipse(QRectF(0.04, 0.04, 0.92, 0.92));
        pittore.strokePath(Gancio(), TrattoTondo(Qt::white));
        pittore.setBrush(Qt::white);
        pittore.drawEllipse(QPointF(0.50, 0.77), 0.06, 0.06);
    });
}

QPixmap IconaAnnulla(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        pittore.strokePath(FrecciaIndietro(), TrattoTondo(BluScuro));
    });
}

QPixmap IconaRipristina(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        pittore.translate(1, 0);
        pittore.scale(-1, 1);
        pittore.strokePath(FrecciaIndietro(), TrattoTondo(BluScuro));
    });
}
