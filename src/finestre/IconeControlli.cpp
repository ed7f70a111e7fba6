#include "finestre/IconeControlli.h"

#include "finestre/Icone.h"

#include <QPainter>
#include <QPainterPath>

QPixmap IconaSenzaRilievi(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        constexpr QColor Verde(0x3f, 0x6b, 0x1d);
        QPainterPath segno(QPointF(0.16, 0.54));
        segno.lineTo(0.40, 0.78);
        segno.lineTo(0.86, 0.24);
        pittore.strokePath(segno, {Verde, 0.12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    });
}

QPixmap IconaConRilievi(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        constexpr QColor Ambra(0xff, 0xc8, 0x3d);
        constexpr QColor Bruno(0x6b, 0x43, 0x00);
        QPainterPath triangolo(QPointF(0.50, 0.12));
        triangolo.lineTo(0.92, 0.86);
        triangolo.lineTo(0.08, 0.86);
        triangolo.closeSubpath();
        pittore.fillPath(triangolo, Ambra);
        const QPen tratto(Bruno, 0.07, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        pittore.strokePath(triangolo, tratto);
        pittore.setPen({Bruno, 0.1, Qt::SolidLine, Qt::RoundCap});
        pittore.drawLine(QPointF(0.50, 0.40), QPointF(0.50, 0.58));
        pittore.drawPoint(QPointF(0.50, 0.73));
    });
}
