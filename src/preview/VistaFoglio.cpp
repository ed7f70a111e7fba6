#include "preview/VistaFoglio.h"

#include "documento/StatoProgramma.h"
#include "finestre/Guardia.h"
#include "finestre/Suggerimenti.h"
#include "preview/GeometriaAnteprima.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

VistaFoglio::VistaFoglio(QGraphicsScene *scena, const GeometriaAnteprima &geometria,
                         const StatoProgramma &stato, QWidget *padre)
    : QGraphicsView(scena, padre)
    , geometria_(geometria)
    , stato_(stato)
{
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setViewportUpdateMode(MinimalViewportUpdate);
    setOptimizationFlags(DontAdjustForAntialiasing | DontSavePainterState);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setBackgroundBrush(Qt::white);
    const double scala = geometria.PixelPerMillimetro();
    setTransform(QTransform::fromScale(scala, scala));
    const QSize pixel = geometria.PixelFoglio();
    resize(pixel);
    // No wider than the widget, whose size is rounded to whole pixels, or the view would scroll.
    setSceneRect(0, 0, (pixel.width() - 1) / scala, (pixel.height() - 1) / scala);
}

void VistaFoglio::ImpostaPuntatore(Qt::CursorShape puntatore)
{
    if (viewport()->cursor().shape() != puntatore) {
        viewport()->setCursor(puntatore);
    }
}

void VistaFoglio::DipingeSfondo(const QString &percorso, const QRectF &millimetri)
{
    viewport()->update();
    sfondo_.Imposta(percorso, millimetri, geometria_.PixelPerMillimetro() * devicePixelRatioF());
}

void VistaFoglio::PulisceSfondo()
{
    sfondo_.Pulisce();
    viewport()->update();
}

void VistaFoglio::DimenticaSfondo()
{
    sfondo_.Dimentica();
    viewport()->update();
}

void VistaFoglio::ImpostaOpacitaSfondo(double opacita)
{
    sfondo_.ImpostaOpacita(opacita);
    viewport()->update();
}

void VistaFoglio::drawBackground(QPainter *penna, const QRectF &rettangolo)
{
    penna->fillRect(rettangolo, backgroundBrush());
    sfondo_.Dipinge(*penna, rettangolo, stato_.zoom);
}

bool VistaFoglio::event(QEvent *evento)
{
    // Before the view itself: Tab would leave it, and arrows would scroll what must not scroll.
    if (evento->type() == QEvent::KeyPress && tasti_ != nullptr) {
        bool preso = false;
        Guardia(this, [&] { preso = tasti_->Preme(*static_cast<QKeyEvent *>(evento)); });
        if (preso) {
            return true;
        }
    }
    if (evento->type() == QEvent::ShortcutOverride && tasti_ != nullptr &&
        tasti_->Trattiene(*static_cast<QKeyEvent *>(evento))) {
        evento->accept();
        return true;
    }
    if (evento->type() == QEvent::FocusOut && tasti_ != nullptr &&
        static_cast<const QFocusEvent *>(evento)->reason() != Qt::PopupFocusReason) {
        Guardia(this, [&] { tasti_->Perde(); });
    }
    return QGraphicsView::event(evento);
}

void VistaFoglio::keyPressEvent(QKeyEvent *evento)
{
    evento->ignore(); // the window's; no element of the scene takes keys
}

bool VistaFoglio::viewportEvent(QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::ToolTip: {
        const auto *aiuto = static_cast<QHelpEvent *>(evento);
        Guardia(this, [&] { MostraSuggerimento(aiuto->pos(), aiuto->globalPos()); });
        return true;
    }
    case QEvent::UngrabMouse:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
        Interrompe();
        break;
    default:
        break;
    }
    return QGraphicsView::viewportEvent(evento);
}

bool VistaFoglio::eventFilter(QObject *oggetto, QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        // A widget that grabs the mouse tells nobody; its first event says that it has it.
        if (oggetto->isWidgetType() && oggetto != viewport()) {
            Interrompe();
        }
        break;
    default:
        break;
    }
    return QGraphicsView::eventFilter(oggetto, evento);
}

void VistaFoglio::Interrompe()
{
    QCoreApplication::instance()->removeEventFilter(this);
    if (ascolta_ != nullptr) {
        Guardia(this, [this] { ascolta_->Interrompe(); });
    }
}

void VistaFoglio::MostraSuggerimento(const QPoint &locale, const QPoint &schermo)
{
    const Spiegazione spiegazione =
        ascolta_ == nullptr ? Spiegazione{} : ascolta_->Suggerimento(geometria_.Millimetri(locale));
    // An element is also pointed at a little outside its edges, or when it is too small to be hit.
    const QRect posto = geometria_.Pixel(spiegazione.posto).united(QRect(locale, QSize(1, 1)));
    QToolTip::showText(schermo, PerSuggerimento(spiegazione.testo), viewport(), posto);
}

void VistaFoglio::Avvisa(QMouseEvent *evento, void (AscoltaMouse::*azione)(const EventoMouse &))
{
    evento->accept();
    if (ascolta_ == nullptr) {
        return;
    }
    const EventoMouse mouse{geometria_.Millimetri(evento->position()), evento->button(),
                            evento->buttons(), evento->modifiers()};
    Guardia(this, [&] { (ascolta_->*azione)(mouse); });
}

void VistaFoglio::mousePressEvent(QMouseEvent *evento)
{
    QCoreApplication::instance()->installEventFilter(this);
    Avvisa(evento, &AscoltaMouse::Preme);
}

void VistaFoglio::mouseMoveEvent(QMouseEvent *evento)
{
    Avvisa(evento, &AscoltaMouse::Muove);
}

void VistaFoglio::mouseReleaseEvent(QMouseEvent *evento)
{
    if (evento->buttons() == Qt::NoButton) {
        QCoreApplication::instance()->removeEventFilter(this);
    }
    Avvisa(evento, &AscoltaMouse::Rilascia);
}

void VistaFoglio::mouseDoubleClickEvent(QMouseEvent *evento)
{
    QCoreApplication::instance()->installEventFilter(this);
    Avvisa(evento, &AscoltaMouse::PremeDueVolte);
}

void VistaFoglio::wheelEvent(QWheelEvent *evento)
{
    evento->ignore(); // the window scrolls
}
