#include "finestre/EtichettaPercorso.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

QSize EtichettaPercorso::sizeHint() const
{
    return minimumSizeHint();
}

QSize EtichettaPercorso::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

QString EtichettaPercorso::Visibile() const
{
    return fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
}

bool EtichettaPercorso::event(QEvent *evento)
{
    if (evento->type() == QEvent::ToolTip && Visibile() != text()) {
        QToolTip::showText(static_cast<QHelpEvent *>(evento)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(evento);
}

void EtichettaPercorso::paintEvent(QPaintEvent * /*evento*/)
{
    QPainter pittore(this);
    style()->drawItemText(&pittore, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), Visibile(), foregroundRole());
}
