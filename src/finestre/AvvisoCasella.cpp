#include "finestre/AvvisoCasella.h"

#include "finestre/Suggerimenti.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

#include <utility>

namespace {

// Black on it stands 15:1 apart.
constexpr QColor Fondo{255, 226, 140};

} // namespace

AvvisoCasella::AvvisoCasella(QLineEdit *casella)
    : QObject(casella)
    , casella_(casella)
    , tavolozza_(casella->palette())
{
    casella->installEventFilter(this);
    connect(this, &AvvisoCasella::Entrato, this, &AvvisoCasella::MostraEntrando,
            Qt::QueuedConnection);
}

void AvvisoCasella::Mostra(const QString &testo)
{
    if (testo == testo_) {
        return;
    }
    testo_ = testo;
    QPalette tavolozza = tavolozza_;
    if (!testo.isEmpty()) {
        tavolozza.setColor(QPalette::Base, Fondo);
        tavolozza.setColor(QPalette::Text, Qt::black);
    }
    casella_->setPalette(tavolozza);
    casella_->setAccessibleDescription(testo);
    if (casella_->hasFocus()) {
        MostraFumetto(testo);
    }
}

void AvvisoCasella::Segue(std::function<QString(const QString &)> avviso)
{
    avviso_ = std::move(avviso);
    connect(casella_, &QLineEdit::textChanged, this, &AvvisoCasella::Riguarda);
    Riguarda();
}

void AvvisoCasella::Riguarda()
{
    if (avviso_) {
        Mostra(avviso_(casella_->text()));
    }
}

void AvvisoCasella::MostraFumetto(const QString &testo) const
{
    QToolTip::showText(casella_->mapToGlobal(QPoint(0, casella_->height() / 2)),
                       PerSuggerimento(testo), casella_);
}

void AvvisoCasella::MostraEntrando() const
{
    if (casella_->hasFocus()) {
        MostraFumetto(testo_);
    }
}

bool AvvisoCasella::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (testo_.isEmpty()) {
        return QObject::eventFilter(oggetto, evento);
    }
    if (evento->type() == QEvent::FocusIn) {
        // What follows the keyboard's change closes every hint.
        emit Entrato();
    } else if (evento->type() == QEvent::ToolTip) {
        const QString suo = casella_->toolTip();
        MostraFumetto(suo.isEmpty() ? testo_ : suo + u'\n' + testo_);
        return true;
    }
    return QObject::eventFilter(oggetto, evento);
}

void Sorveglia(QLineEdit *casella, const std::function<QString(const QString &)> &avviso)
{
    auto *segno = new AvvisoCasella(casella);
    segno->Segue(avviso);
}

void Riguarda(const QLineEdit *casella)
{
    if (auto *segno = casella->findChild<AvvisoCasella *>()) {
        segno->Riguarda();
    }
}
