#include "preview/ManiSuiRighelli.h"

#include "finestre/Guardia.h"
#include "preview/GuideFoglio.h"
#include "preview/PartiAnteprima.h"
#include "preview/Righelli.h"
#include "preview/VistaFoglio.h"

#include <QMouseEvent>

namespace {

Qt::Orientation DiTraverso(const RighelloFoglio &righello)
{
    return righello.Verso() == Qt::Vertical ? Qt::Horizontal : Qt::Vertical;
}

Qt::CursorShape Puntatore(Qt::Orientation verso)
{
    return verso == Qt::Vertical ? Qt::SplitHCursor : Qt::SplitVCursor;
}

} // namespace

ManiSuiRighelli::ManiSuiRighelli(GuideFoglio &guide, PartiAnteprima &parti)
    : guide_(guide)
    , parti_(parti)
{
    for (RighelloFoglio *righello : {parti_.RighelloX, parti_.RighelloY}) {
        righello->installEventFilter(this);
        righello->setMouseTracking(true);
        righello->setCursor(Puntatore(righello->Verso()));
    }
    Collega(&guide_, &GuideFoglio::Cambiate, parti_.P1, [this] { MostraSegni(); });
}

bool ManiSuiRighelli::eventFilter(QObject *oggetto, QEvent *evento)
{
    auto *righello = static_cast<RighelloFoglio *>(oggetto);
    const auto mouse = [&]() -> const QMouseEvent & { return *static_cast<QMouseEvent *>(evento); };
    switch (evento->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (mouse().button() == Qt::LeftButton) {
            Guardia(righello, [&] { Preme(*righello, mouse()); });
        }
        return true;
    case QEvent::MouseMove:
        Guardia(righello, [&] { Muove(*righello, mouse()); });
        return true;
    case QEvent::MouseButtonRelease:
        if (mouse().button() == Qt::LeftButton) {
            Guardia(righello, [&] { guide_.Lascia(); });
        }
        return true;
    case QEvent::UngrabMouse:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
        // The sheet's own gesture knows by itself when it loses the mouse.
        Guardia(righello, [&] { guide_.Interrompe(); });
        break;
    default:
        break;
    }
    return QObject::eventFilter(oggetto, evento);
}

QPointF ManiSuiRighelli::SulFoglio(const QMouseEvent &evento) const
{
    return parti_.geometria.Millimetri(parti_.P1->mapFromGlobal(evento.globalPosition()));
}

void ManiSuiRighelli::Preme(const RighelloFoglio &righello, const QMouseEvent &evento)
{
    const QPointF punto = SulFoglio(evento);
    if (const auto segno = guide_.Sotto(DiTraverso(righello), punto)) {
        guide_.Prende(segno->verso, segno->posto, punto);
    } else {
        guide_.Prende(righello.Verso(), std::nullopt, punto);
    }
}

void ManiSuiRighelli::Muove(RighelloFoglio &righello, const QMouseEvent &evento)
{
    const QPointF punto = SulFoglio(evento);
    if (!guide_.InMano() || guide_.InManoAiTasti()) {
        const Qt::CursorShape puntatore = Puntatore(
            guide_.Sotto(DiTraverso(righello), punto) ? DiTraverso(righello) : righello.Verso());
        if (righello.cursor().shape() != puntatore) {
            righello.setCursor(puntatore);
        }
    } else if (evento.buttons() & Qt::LeftButton) {
        guide_.Porta(punto, parti_.geometria.Millimetri(-QPointF(parti_.P1->pos())));
    } else {
        guide_.Rinuncia(); // the release went to another window
    }
}

void ManiSuiRighelli::MostraSegni()
{
    for (RighelloFoglio *righello : {parti_.RighelloX, parti_.RighelloY}) {
        righello->ImpostaSegni(guide_.InVista(DiTraverso(*righello)), GuideFoglio::Colore);
    }
}
