#include "finestre/FuocoInVista.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPalette>

namespace {

class FiltroCornice : public QObject
{
public:
    explicit FiltroCornice(QAbstractScrollArea *area)
        : QObject(area)
        , area_(*area)
        , forma_(area->frameShape())
        , ombra_(area->frameShadow())
        , tratto_(area->lineWidth())
        , colori_(area->testAttribute(Qt::WA_SetPalette) ? area->palette() : QPalette())
    {
    }

    bool eventFilter(QObject *oggetto, QEvent *evento) override
    {
        if (oggetto == &area_ && evento->type() == QEvent::FocusIn) {
            Accende();
        } else if (oggetto == &area_ && evento->type() == QEvent::FocusOut) {
            Spegne();
        }
        return QObject::eventFilter(oggetto, evento);
    }

private:
    void Accende()
    {
        // As thick as the frame was, so that nothing inside moves.
        area_.setLineWidth(area_.frameWidth());
        area_.setFrameStyle(QFrame::Box | QFrame::Plain);
        QPalette colori = area_.palette();
        colori.setBrush(QPalette::WindowText, colori.highlight());
        area_.setPalette(colori);
    }

    void Spegne()
    {
        area_.setPalette(colori_);
        area_.setLineWidth(tratto_);
        area_.setFrameStyle(static_cast<int>(forma_) | static_cast<int>(ombra_));
    }

    QAbstractScrollArea &area_;
    QFrame::Shape forma_;
    QFrame::Shadow ombra_;
    int tratto_;
    QPalette colori_; ///< those of its own
};

} // namespace

void MostraFuoco(QWidget *finestra)
{
    for (auto *area : finestra->findChildren<QAbstractScrollArea *>()) {
        if (area->focusPolicy() != Qt::NoFocus && area->frameShape() != QFrame::NoFrame) {
            area->installEventFilter(new FiltroCornice(area));
        }
    }
}
