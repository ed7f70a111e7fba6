#include "preview/TastiFoglio.h"

#include "documento/OrdineDiLettura.h"
#include "documento/StatoProgramma.h"
#include "preview/Frm1.h"
#include "preview/MisuraSuCarta.h"
#include "preview/PartiAnteprima.h"
#include "preview/PassiTasti.h"

#include <QKeyEvent>
#include <QScrollBar>

namespace {

constexpr double Passetto = 0.1; // mm of paper

QPoint Verso(int tasto)
{
    switch (tasto) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

TastiFoglio::TastiFoglio(StatoProgramma &stato, Frm1 &finestra, PartiAnteprima &parti,
                         GuideFoglio &guide)
    : stato_(stato)
    , finestra_(finestra)
    , parti_(parti)
    , guide_(guide, stato, parti)
    , disposizione_(stato.documento,
                    [&stato](Chiave chiave) { return MisuraSuCarta(stato.Aperto(), chiave); })
{
    parti_.P1->ImpostaTasti(this);
}

TastiFoglio::~TastiFoglio()
{
    parti_.P1->ImpostaTasti(nullptr);
}

bool TastiFoglio::Preme(const QKeyEvent &tasto)
{
    if (stato_.documento.ModificaInCorso()) {
        return false; // the mouse has an element in hand
    }
    if (guide_.Preme(tasto)) {
        return true;
    }
    const Qt::KeyboardModifiers modi = tasto.modifiers() & ~Qt::KeypadModifier;
    const bool semplice = (modi & ~Qt::ShiftModifier) == Qt::NoModifier;
    const bool conCtrl = (modi & ~Qt::ShiftModifier) == Qt::ControlModifier;
    switch (tasto.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return (semplice || conCtrl) &&
               Percorre(tasto.key() == Qt::Key_Tab && !(modi & Qt::ShiftModifier), conCtrl);
    case Qt::Key_Space:
        return modi == Qt::ControlModifier && TogliUltimo();
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        return modi == Qt::NoModifier && ApreProprieta();
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return Freccia(Verso(tasto.key()), modi);
    default:
        return Scorre(tasto.key(), modi);
    }
}

bool TastiFoglio::Percorre(bool avanti, bool aggiunge)
{
    const QList<Chiave> ordine = OrdineDiLettura(stato_.documento);
    const QList<Chiave> scelti = stato_.selezione.Scelti();
    qsizetype posto = avanti ? 0 : ordine.size() - 1;
    if (!scelti.isEmpty()) {
        posto = ordine.indexOf(scelti.constLast()) + (avanti ? 1 : -1);
    }
    // Past the last one the key goes on to the next control, as everywhere.
    if (posto < 0 || posto >= ordine.size()) {
        return false;
    }
    const Chiave chiave = ordine.at(posto);
    finestra_.Sceglie(chiave);
    QList<Chiave> dopo;
    if (aggiunge) {
        dopo = scelti;
        dopo.removeOne(chiave); // it becomes the last one
    }
    stato_.selezione.ImpostaScelti(dopo << chiave);
    finestra_.PortaInVista(chiave);
    return true;
}

bool TastiFoglio::TogliUltimo()
{
    QList<Chiave> scelti = stato_.selezione.Scelti();
    if (scelti.isEmpty()) {
        return false;
    }
    scelti.removeLast();
    stato_.selezione.ImpostaScelti(scelti);
    return true;
}

bool TastiFoglio::ApreProprieta()
{
    if (stato_.selezione.Scelti().isEmpty()) {
        return false;
    }
    const Chiave ultimo = stato_.selezione.Scelti().constLast();
    finestra_.Sceglie(ultimo);
    emit RichiestaProprieta(ultimo.genere, ultimo.indice);
    return true;
}

bool TastiFoglio::Freccia(QPoint verso, Qt::KeyboardModifiers modi)
{
    const QList<Chiave> scelti = stato_.selezione.Scelti();
    const double lungo = modi & Qt::ShiftModifier ? PassiTasti::Dieci : PassiTasti::Uno;
    const Qt::KeyboardModifiers altri = modi & ~Qt::ShiftModifier;
    if (scelti.isEmpty()) {
        if (altri != Qt::NoModifier) {
            return false;
        }
        QScrollBar *barra = verso.y() == 0 ? parti_.ScrollX : parti_.ScrollY;
        barra->setValue(barra->value() + (verso.x() + verso.y()) * barra->singleStep());
        return true;
    }
    if (altri == Qt::ControlModifier) {
        Mostra(disposizione_.Ingrandisce(scelti, QSizeF(verso.x() * lungo, verso.y() * lungo)));
        finestra_.ImpilaPerArea(); // as where the mouse lets an edge go
    } else if (modi == Qt::AltModifier) {
        Mostra(disposizione_.Sposta(scelti, QPointF(verso) * Passetto));
    } else if (altri == Qt::NoModifier) {
        Mostra(disposizione_.Sposta(scelti, QPointF(verso) * lungo));
    } else {
        return false;
    }
    return true;
}

void TastiFoglio::Mostra(const QString &esclusi)
{
    const Chiave ultimo = stato_.selezione.Scelti().constLast();
    finestra_.PortaInVista(ultimo);
    emit ElementoInMano(ultimo.genere, ultimo.indice);
    if (!esclusi.isEmpty()) {
        finestra_.Avverte(esclusi);
    }
}

bool TastiFoglio::Scorre(int tasto, Qt::KeyboardModifiers modi)
{
    if (modi != Qt::NoModifier && modi != Qt::ShiftModifier) {
        return false;
    }
    QScrollBar *barra = modi == Qt::ShiftModifier ? parti_.ScrollX : parti_.ScrollY;
    switch (tasto) {
    case Qt::Key_PageUp:
        barra->triggerAction(QAbstractSlider::SliderPageStepSub);
        return true;
    case Qt::Key_PageDown:
        barra->triggerAction(QAbstractSlider::SliderPageStepAdd);
        return true;
    case Qt::Key_Home:
        barra->triggerAction(QAbstractSlider::SliderToMinimum);
        return true;
    case Qt::Key_End:
        barra->triggerAction(QAbstractSlider::SliderToMaximum);
        return true;
    default:
        return false;
    }
}
