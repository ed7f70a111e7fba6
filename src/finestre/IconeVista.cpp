#include "finestre/IconeVista.h"

#include "finestre/Icone.h"

#include <QPainter>
#include <QPainterPath>

namespace {

/// A corner of a frame, its arms along the two sides.
QPainterPath Angolo(QPointF vertice, QPointF lungoX, QPointF lungoY)
{
    QPainterPath angolo(vertice + lungoX);
    angolo.lineTo(vertice);
    angolo.lineTo(vertice + lungoY);
    return angolo;
}

} // namespace

QPixmap IconaAdatta(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        constexpr double Braccio = 0.24;
        for (const double x : {0.06, 0.94}) {
            for (const double y : {0.06, 0.94}) {
                pittore.strokePath(Angolo({x, y}, {x < 0.5 ? Braccio : -Braccio, 0},
                                          {0, y < 0.5 ? Braccio : -Braccio}),
                                   TrattoIcona(0.09));
            }
        }
        pittore.fillRect(QRectF(0.32, 0.24, 0.36, 0.52), BluScuro);
    });
}

QPixmap IconaUnoAUno(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        for (const double x : {0.06, 0.64}) {
            QPainterPath uno(QPointF(x, 0.34));
            uno.lineTo(x + 0.18, 0.18);
            uno.lineTo(x + 0.18, 0.86);
            pittore.strokePath(uno, TrattoIcona(0.12));
        }
        for (const double y : {0.36, 0.68}) {
            pittore.fillRect(QRectF(0.44, y, 0.12, 0.12), BluScuro);
        }
    });
}

QPixmap IconaContorni(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        QPen tratteggio = TrattoIcona(0.09);
        tratteggio.setDashPattern({2, 1.4}); // in widths of the line
        pittore.setPen(tratteggio);
        pittore.drawRect(QRectF(0.08, 0.06, 0.84, 0.88));
        pittore.drawRect(QRectF(0.28, 0.26, 0.44, 0.48));
    });
}

QPixmap IconaCalamita(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        QPainterPath ferro(QPointF(0.24, 0.06));
        ferro.lineTo(0.24, 0.52);
        ferro.arcTo(QRectF(0.24, 0.26, 0.52, 0.52), 180, 180);
        ferro.lineTo(0.76, 0.06);
        pittore.strokePath(ferro, TrattoIcona(0.22));
        for (const double x : {0.10, 0.62}) { // the bright poles
            pittore.fillRect(QRectF(x, 0.24, 0.28, 0.08), Qt::white);
        }
    });
}

QPixmap IconaTogliGuide(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        QPen guida = TrattoIcona(0.08);
        guida.setDashPattern({2, 1.4});
        pittore.setPen(guida);
        pittore.drawLine(QPointF(0.30, 0.04), QPointF(0.30, 0.96));
        pittore.drawLine(QPointF(0.04, 0.30), QPointF(0.96, 0.30));
        pittore.setPen(TrattoIcona(0.12));
        pittore.drawLine(QPointF(0.52, 0.52), QPointF(0.94, 0.94));
        pittore.drawLine(QPointF(0.94, 0.52), QPointF(0.52, 0.94));
    });
}
