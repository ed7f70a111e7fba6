#pragma once

#include "preview/Aggancio.h"
#include "preview/ComandiZoom.h"
#include "preview/ContorniCarta.h"
#include "preview/GuideFoglio.h"
#include "preview/ManiSuiRighelli.h"

#include <QList>

class QWheelEvent;

/// What helps to find one's way on the sheet and is no part of the model: the outlines of the
/// paper, the commands for the zoom, guides and snapping.
class AttrezziFoglio
{
public:
    /// All outlive it.
    AttrezziFoglio(Frm1 &finestra, PartiAnteprima &parti, const StatoProgramma &stato,
                   const ElementiFoglio &elementi);

    /// Gives the commands their buttons and keys in the preview window.
    void AggiungeComandi(Frm1 &finestra);
    /// Draws all of it for the zoom of the moment.
    void SegueZoom(double valore);
    /// Those whose keys the editor's window takes too.
    QList<QAction *> Comandi() const;

    ContorniCarta contorni;
    ComandiZoom zoom;
    GuideFoglio guide;
    Aggancio aggancio;

private:
    ManiSuiRighelli maniSuiRighelli_;
    QAction *mostraContorni_;
    QAction *aggancia_;
    QAction *togliGuide_;
};
