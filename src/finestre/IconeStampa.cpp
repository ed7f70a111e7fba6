#include "finestre/IconeStampa.h"

#include "finestre/Icone.h"

#include <QPainter>
#include <QPainterPath>

namespace {

/// A sheet with a folded corner; fondo is where it ends.
QPainterPath Foglio(double fondo)
{
    QPainterPath foglio(QPointF(0.14, fondo));
    foglio.lineTo(0.14, 0.06);
    foglio.lineTo(0.56, 0.06);
    foglio.lineTo(0.76, 0.26);
    foglio.lineTo(0.76, fondo);
    return foglio;
}

} // namespace

QPixmap IconaVediStampa(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        QPainterPath foglio = Foglio(0.92);
        foglio.closeSubpath();
        pittore.strokePath(foglio, TrattoIcona(0.08));
        pittore.setPen(TrattoIcona(0.09));
        pittore.setBrush(Qt::white);
        pittore.drawEllipse(QPointF(0.58, 0.58), 0.20, 0.20);
        pittore.setPen(TrattoIcona(0.14));
        pittore.drawLine(QPointF(0.73, 0.73), QPointF(0.94, 0.94));
    });
}

QPixmap IconaEsporta(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        pittore.strokePath(Foglio(0.62), TrattoIcona(0.08));
        pittore.setPen(TrattoIcona(0.12));
        pittore.drawLine(QPointF(0.45, 0.34), QPointF(0.45, 0.66));
        QPainterPath punta(QPointF(0.24, 0.60));
        punta.lineTo(0.66, 0.60);
        punta.lineTo(0.45, 0.84);
        punta.closeSubpath();
        pittore.fillPath(punta, BluScuro);
        pittore.drawLine(QPointF(0.14, 0.92), QPointF(0.76, 0.92));
    });
}
