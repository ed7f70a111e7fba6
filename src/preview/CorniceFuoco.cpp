#include "preview/CorniceFuoco.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int Spessore = 2; // device-independent pixels

} // namespace

CorniceFuoco::CorniceFuoco(QWidget *chiHaIlFuoco, QWidget *padre)
    : QWidget(padre)
{
    setObjectName(QStringLiteral("Fuoco") + chiHaIlFuoco->objectName());
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setVisible(chiHaIlFuoco->hasFocus());
    chiHaIlFuoco->installEventFilter(this);
}

bool CorniceFuoco::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (evento->type() == QEvent::FocusIn || evento->type() == QEvent::FocusOut) {
        setVisible(evento->type() == QEvent::FocusIn);
    }
    return QWidget::eventFilter(oggetto, evento);
}

void CorniceFuoco::resizeEvent(QResizeEvent *)
{
    // Only the line is there: the sheet below is painted, and scrolled, as if nothing lay on it.
    setMask(QRegion(rect()).subtracted(rect().adjusted(Spessore, Spessore, -Spessore, -Spessore)));
}

void CorniceFuoco::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), palette().color(QPalette::Highlight));
}
