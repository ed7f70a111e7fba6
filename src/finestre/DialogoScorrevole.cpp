#include "finestre/DialogoScorrevole.h"

#include "finestre/Finestre.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// The whole control; the area itself would be content with the text cursor in it.
void PortaInVista(QScrollArea &area, const QWidget &controllo)
{
    constexpr int Margine = 8; // pixels
    const QRect posto(controllo.mapTo(area.widget(), QPoint()), controllo.size());
    // One that just fits has no margin: what shows its beginning would hide its end.
    const QSize avanza = (area.viewport()->size() - posto.size()) / 2;
    const int x = std::clamp(avanza.width(), 0, Margine);
    const int y = std::clamp(avanza.height(), 0, Margine);
    area.ensureVisible(posto.right(), posto.bottom(), x, y);
    area.ensureVisible(posto.left(), posto.top(), x, y);
}

/// Keeps the control that the keyboard is in, with what is selected in it: controls that are moved
/// to another parent lose the focus, and a dialog would open in its first box.
class TieneFuoco
{
public:
    explicit TieneFuoco(const QWidget &pannello)
        : controllo_(pannello.focusWidget())
    {
        if (const auto *casella = qobject_cast<QLineEdit *>(controllo_.data())) {
            inizio_ = casella->selectionStart();
            fine_ = casella->selectionEnd();
            cursore_ = casella->cursorPosition();
        }
    }
    ~TieneFuoco()
    {
        if (controllo_ == nullptr) {
            return;
        }
        controllo_->setFocus();
        auto *casella = qobject_cast<QLineEdit *>(controllo_.data());
        if (casella != nullptr && inizio_ >= 0) {
            // The cursor stands at one end of the selection; a long text shows the part around it.
            const bool allIndietro = cursore_ == inizio_;
            casella->setSelection(allIndietro ? fine_ : inizio_,
                                  allIndietro ? inizio_ - fine_ : fine_ - inizio_);
        }
    }
    TieneFuoco(const TieneFuoco &) = delete;
    TieneFuoco &operator=(const TieneFuoco &) = delete;

private:
    QPointer<QWidget> controllo_;
    int inizio_ = -1; ///< -1: nothing is selected
    int fine_ = -1;
    int cursore_ = 0;
};

} // namespace

QScrollArea *AvvolgeInUnArea(QWidget &pannello)
{
    const TieneFuoco fuoco(pannello);
    auto *area = new QScrollArea(&pannello);
    area->setObjectName(QStringLiteral("AreaScorrevole"));
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it scrolls with the focus, and is no stop of its own
    area->setWidgetResizable(true);
    // A child of the panel before it takes the controls: these must not leave the window, or the
    // order in which the keyboard visits them is lost.
    auto *contenuto = new QWidget(&pannello);
    contenuto->setLayout(pannello.layout());
    area->setWidget(contenuto);
    // What the panel stands on shows through, as it does without an area.
    contenuto->setAutoFillBackground(false);
    area->viewport()->setAutoFillBackground(false);
    auto *disposizione = new QVBoxLayout(&pannello);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addWidget(area);
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget *, QWidget *ora) {
        if (ora != nullptr && area->widget()->isAncestorOf(ora)) {
            PortaInVista(*area, *ora);
        }
    });
    return area;
}

bool NonStaSulloSchermo(const QWidget &finestra)
{
    const QSize minima = finestra.minimumSizeHint();
    return EntroLoSchermo(&finestra, minima) != minima;
}

void AdattaAlloSchermo(QDialog &dialogo)
{
    QSize misura = dialogo.sizeHint();
    if (NonStaSulloSchermo(dialogo)) {
        const QScrollArea *area = AvvolgeInUnArea(dialogo);
        misura += QSize(area->verticalScrollBar()->sizeHint().width(),
                        area->horizontalScrollBar()->sizeHint().height());
    }
    dialogo.resize(EntroLoSchermo(&dialogo, misura));
}
