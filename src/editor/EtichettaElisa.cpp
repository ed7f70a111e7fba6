#include "editor/EtichettaElisa.h"

#include <QPainter>
#include <QStyle>

void EtichettaElisa::paintEvent(QPaintEvent *)
{
    QPainter pittore(this);
    const QRect posto = contentsRect();
    style()->drawItemText(
        &pittore, posto, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), palette(), isEnabled(),
        fontMetrics().elidedText(text(), Qt::ElideMiddle, posto.width()), foregroundRole());
}
