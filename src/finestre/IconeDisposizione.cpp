#include "finestre/IconeDisposizione.h"

#include "finestre/Icone.h"

#include <QPainter>

namespace {

constexpr QColor Celeste(0x5b, 0x8f, 0xc7);
constexpr double Spessore = 0.08;

/// What is drawn for sideways is turned over the diagonal for up and down.
void Orienta(QPainter &pittore, Qt::Orientation verso)
{
    if (verso == Qt::Vertical) {
        pittore.setTransform(QTransform(0, 1, 1, 0, 0, 0), true);
    }
}

void DoppiaFreccia(QPainter &pittore)
{
    pittore.drawLine(QPointF(0.08, 0.1), QPointF(0.08, 0.9));
    pittore.drawLine(QPointF(0.92, 0.1), QPointF(0.92, 0.9));
    pittore.drawLine(QPointF(0.16, 0.5), QPointF(0.84, 0.5));
    for (const double punta : {0.18, 0.82}) {
        const double coda = punta < 0.5 ? punta + 0.18 : punta - 0.18;
        pittore.drawLine(QPointF(punta, 0.5), QPointF(coda, 0.32));
        pittore.drawLine(QPointF(punta, 0.5), QPointF(coda, 0.68));
    }
}

} // namespace

QPixmap IconaAllinea(Qt::Orientation verso, Bordo bordo, int lato)
{
    return DisegnaIcona(lato, [verso, bordo](QPainter &pittore) {
        Orienta(pittore, verso);
        const double linea = bordo == Bordo::Vicino ? 0.08 : bordo == Bordo::Mezzo ? 0.5 : 0.92;
        const double frazione = bordo == Bordo::Vicino ? 0 : bordo == Bordo::Mezzo ? 0.5 : 1;
        const auto barra = [&](double alto, double larghezza) {
            const double sinistra = linea - larghezza * frazione;
            pittore.fillRect(QRectF(sinistra, alto, larghezza, 0.24), Celeste);
        };
        barra(0.18, 0.8);
        barra(0.58, 0.5);
        pittore.setPen(TrattoIcona(Spessore));
        pittore.drawLine(QPointF(linea, 0.02), QPointF(linea, 0.98));
    });
}

QPixmap IconaDistribuisce(Qt::Orientation verso, int lato)
{
    return DisegnaIcona(lato, [verso](QPainter &pittore) {
        Orienta(pittore, verso);
        pittore.setPen(TrattoIcona(Spessore));
        for (const double linea : {0.12, 0.5, 0.88}) {
            pittore.fillRect(QRectF(linea - 0.09, 0.25, 0.18, 0.5), Celeste);
            pittore.drawLine(QPointF(linea, 0.05), QPointF(linea, 0.95));
        }
    });
}

QPixmap IconaStessaMisura(Qt::Orientations versi, int lato)
{
    return DisegnaIcona(lato, [versi](QPainter &pittore) {
        pittore.setPen(TrattoIcona(Spessore));
        if (versi & Qt::Horizontal) {
            DoppiaFreccia(pittore);
        }
        if (versi & Qt::Vertical) {
            Orienta(pittore, Qt::Vertical);
            DoppiaFreccia(pittore);
        }
    });
}
