#include "editor/ComandiStoria.h"

#include "documento/Documento.h"
#include "finestre/Guardia.h"
#include "finestre/Icone.h"
#include "finestre/Suggerimenti.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

namespace {

void Prepara(QToolButton *bottone, const QPixmap &icona)
{
    bottone->setIcon(icona);
    bottone->setIconSize(QSize(LatoIconaComandi, LatoIconaComandi));
}

void MostraPasso(QToolButton *bottone, const QString &verbo, bool possibile, const QString &passo)
{
    const QString testo = possibile ? verbo + QStringLiteral(": ") + passo : verbo;
    bottone->setEnabled(possibile);
    bottone->setToolTip(PerSuggerimento(testo));
    bottone->setAccessibleName(testo);
}

} // namespace

ComandiStoria::ComandiStoria(Documento &documento, QToolButton *annulla, QToolButton *ripristina,
                             const QList<QWidget *> &finestre)
    : documento_(documento)
    , annulla_(annulla)
    , ripristina_(ripristina)
    , finestre_(finestre)
{
    Prepara(annulla_, IconaAnnulla(LatoIconaComandi));
    Prepara(ripristina_, IconaRipristina(LatoIconaComandi));
    connect(&documento_, &Documento::StoriaCambiata, this, &ComandiStoria::Mostra);
    Collega(annulla_, &QToolButton::clicked, annulla_, [this] { documento_.Annulla(); });
    Collega(ripristina_, &QToolButton::clicked, ripristina_, [this] { documento_.Ripristina(); });
    Mostra();
    // Not as shortcuts: those of a text box would come first even when it has nothing to take back.
    qApp->installEventFilter(this);
}

void ComandiStoria::Mostra()
{
    MostraPasso(annulla_, QStringLiteral("Annulla"), documento_.PuoAnnullare(),
                documento_.TestoAnnulla());
    MostraPasso(ripristina_, QStringLiteral("Ripristina"), documento_.PuoRipristinare(),
                documento_.TestoRipristina());
}

bool ComandiStoria::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (evento->type() == QEvent::KeyPress && oggetto->isWidgetType()) {
        QWidget *finestra = static_cast<QWidget *>(oggetto)->window();
        if (finestre_.contains(finestra) && QApplication::activeModalWidget() == nullptr) {
            bool preso = false;
            Guardia(finestra, [&] { preso = Preme(*static_cast<QKeyEvent *>(evento)); });
            return preso;
        }
    }
    return QObject::eventFilter(oggetto, evento);
}

bool ComandiStoria::Preme(const QKeyEvent &tasto)
{
    const Qt::KeyboardModifiers modi = tasto.modifiers() & ~Qt::KeypadModifier;
    const bool annulla = tasto.key() == Qt::Key_Z && modi == Qt::ControlModifier;
    const bool ripristina =
        (tasto.key() == Qt::Key_Y && modi == Qt::ControlModifier) ||
        (tasto.key() == Qt::Key_Z && modi == (Qt::ControlModifier | Qt::ShiftModifier));
    if (!annulla && !ripristina) {
        return false;
    }
    auto *casella = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    if (annulla && casella != nullptr && casella->isUndoAvailable()) {
        casella->undo();
    } else if (annulla) {
        documento_.Annulla();
    } else if (casella != nullptr && casella->isRedoAvailable()) {
        casella->redo();
    } else {
        documento_.Ripristina();
    }
    return true;
}
