#include "platform/DialogoScorrevole.h"

#include "platform/Finestre.h"

#include <QApplication>
#include <QDialog>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

/// The whole control; the area itself would be content with the text cursor in it.
void PortaInVista(QScrollArea &area, const QWidget &controllo)
{
    constexpr int Margine = 8; // pixels
    const QRect posto(controllo.mapTo(area.widget(), QPoint()), controllo.size());
    area.ensureVisible(posto.right(), posto.bottom(), Margine, Margine);
    area.ensureVisible(posto.left(), posto.top(), Margine, Margine);
}

QScrollArea *AvvolgeInUnArea(QDialog &dialogo)
{
    auto *area = new QScrollArea(&dialogo);
    area->setObjectName(QStringLiteral("AreaScorrevole"));
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it scrolls with the focus, and is no stop of its own
    area->setWidgetResizable(true);
    // A child of the dialog before it takes the controls: these must not leave the window, or the
    // order in which the keyboard visits them is lost.
    auto *contenuto = new QWidget(&dialogo);
    contenuto->setLayout(dialogo.layout());
    area->setWidget(contenuto);
    auto *disposizione = new QVBoxLayout(&dialogo);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addWidget(area);
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget *, QWidget *ora) {
        if (ora != nullptr && area->widget()->isAncestorOf(ora)) {
            PortaInVista(*area, *ora);
        }
    });
    return area;
}

} // namespace

void AdattaAlloSchermo(QDialog &dialogo)
{
    const QSize minima = dialogo.minimumSizeHint();
    QSize misura = dialogo.sizeHint();
    if (EntroLoSchermo(&dialogo, minima) != minima) {
        const QScrollArea *area = AvvolgeInUnArea(dialogo);
        misura += QSize(area->verticalScrollBar()->sizeHint().width(),
                        area->horizontalScrollBar()->sizeHint().height());
    }
    dialogo.resize(EntroLoSchermo(&dialogo, misura));
}
