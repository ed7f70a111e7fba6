#include "finestre/EtichettaAbbreviata.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

void EtichettaAbbreviata::ImpostaModo(Qt::TextElideMode modo)
{
    modo_ = modo;
    update();
}

QSize EtichettaAbbreviata::sizeHint() const
{
    return minimumSizeHint();
}

QSize EtichettaAbbreviata::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

QString EtichettaAbbreviata::Visibile() const
{
    return fontMetrics().elidedText(text(), modo_, contentsRect().width());
}

bool EtichettaAbbreviata::event(QEvent *evento)
{
    if (evento->type() == QEvent::ToolTip && Visibile() != text()) {
        QToolTip::showText(static_cast<QHelpEvent *>(evento)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(evento);
}

void EtichettaAbbreviata::paintEvent(QPaintEvent * /*evento*/)
{
    QPainter pittore(this);
    style()->drawItemText(&pittore, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), Visibile(), foregroundRole());
}
