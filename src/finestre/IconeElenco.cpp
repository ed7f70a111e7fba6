#include "finestre/IconeElenco.h"

#include "finestre/Icone.h"

#include <QPainter>

QPixmap IconaElenco(int lato)
{
    return DisegnaIcona(lato, [](QPainter &pittore) {
        pittore.setPen({BluScuro, 0.1, Qt::SolidLine, Qt::RoundCap});
        for (const double y : {0.22, 0.50, 0.78}) {
            pittore.drawPoint(QPointF(0.14, y));
            pittore.drawLine(QPointF(0.36, y), QPointF(0.88, y));
        }
    });
}
