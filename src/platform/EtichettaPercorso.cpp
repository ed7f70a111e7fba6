#include "platform/EtichettaPercorso.h"

#include <QPainter>
#include <QStyle>

QSize EtichettaPercorso::sizeHint() const
{
    return minimumSizeHint();
}

QSize EtichettaPercorso::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void EtichettaPercorso::paintEvent(QPaintEvent * /*evento*/)
{
    QPainter pittore(this);
    const QString visibile =
        fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
    style()->drawItemText(&pittore, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), visibile, foregroundRole());
}
