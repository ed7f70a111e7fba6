#include "preview/TastiGuide.h"

#include "documento/StatoProgramma.h"
#include "model/Numeri.h"
#include "preview/GuideFoglio.h"
#include "preview/PartiAnteprima.h"
#include "preview/PassiTasti.h"
#include "preview/VistaFoglio.h"

#include <QKeyEvent>

TastiGuide::TastiGuide(GuideFoglio &guide, const StatoProgramma &stato, PartiAnteprima &parti)
    : guide_(guide)
    , stato_(stato)
    , parti_(parti)
{
}

bool TastiGuide::Preme(const QKeyEvent &tasto)
{
    const Qt::KeyboardModifiers modi = tasto.modifiers() & ~Qt::KeypadModifier;
    if (tasto.key() == Qt::Key_F8 && (modi & ~Qt::ShiftModifier) == Qt::NoModifier) {
        Prende(modi & Qt::ShiftModifier ? Qt::Horizontal : Qt::Vertical);
        return true;
    }
    if (!guide_.InManoAiTasti()) {
        return false;
    }
    // A modifier alone belongs to the key that follows.
    const bool soloModo = tasto.key() == Qt::Key_Shift || tasto.key() == Qt::Key_Control ||
                          tasto.key() == Qt::Key_Alt || tasto.key() == Qt::Key_AltGr;
    if (soloModo || ((modi & ~Qt::ShiftModifier) == Qt::NoModifier && PremeConGuida(tasto))) {
        return true;
    }
    guide_.Lascia();
    return false;
}

bool TastiGuide::Trattiene(const QKeyEvent &tasto) const
{
    return guide_.InManoAiTasti() && tasto.key() == Qt::Key_Delete;
}

void TastiGuide::Perde()
{
    if (guide_.InManoAiTasti()) {
        guide_.Lascia();
    }
}

bool TastiGuide::PremeConGuida(const QKeyEvent &tasto)
{
    switch (tasto.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
        return Muove(tasto.key(),
                     tasto.modifiers() & Qt::ShiftModifier ? PassiTasti::Dieci : PassiTasti::Uno);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        guide_.Lascia();
        return true;
    case Qt::Key_Delete:
        guide_.Toglie();
        return true;
    case Qt::Key_Escape:
        guide_.Rinuncia();
        return true;
    default:
        return false;
    }
}

bool TastiGuide::Muove(int tasto, int millimetri)
{
    const bool lungoX = tasto == Qt::Key_Left || tasto == Qt::Key_Right;
    const bool indietro = tasto == Qt::Key_Left || tasto == Qt::Key_Up;
    if (lungoX == (guide_.VersoInMano() == Qt::Vertical)) {
        guide_.Sposta(indietro ? -millimetri : millimetri);
    }
    return true; // across its way a guide cannot go, and nothing else shall
}

void TastiGuide::Prende(Qt::Orientation verso)
{
    if (guide_.InMano() && !guide_.InManoAiTasti()) {
        return; // the mouse has one
    }
    const bool altra = guide_.InManoAiTasti() && guide_.VersoInMano() == verso;
    if (!altra || !guide_.PrendeProssima()) {
        guide_.PrendeIn(verso, DoveComincia(verso));
    }
}

int TastiGuide::DoveComincia(Qt::Orientation verso) const
{
    const QList<Chiave> scelti = stato_.selezione.Scelti();
    double posto = 0;
    if (scelti.isEmpty()) {
        const QPoint mezzoVista = parti_.P1->viewport()->visibleRegion().boundingRect().center();
        const QPointF mezzo = parti_.geometria.Millimetri(mezzoVista) * stato_.zoom;
        posto = verso == Qt::Vertical ? mezzo.x() : mezzo.y();
    } else {
        const Elemento &ultimo = stato_.Aperto().Di(scelti.constLast());
        posto = verso == Qt::Vertical ? ultimo.X : ultimo.Y;
    }
    return static_cast<int>(Numeri::Ar(posto));
}
