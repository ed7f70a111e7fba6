#pragma once

#include "preview/ComandiZoom.h"
#include "preview/ContorniCarta.h"

#include <QList>

class QWheelEvent;

/// What helps to find one's way on the sheet and is no part of the model: the outlines of the
/// paper and the commands for the zoom.
class AttrezziFoglio
{
public:
    /// All outlive it.
    AttrezziFoglio(Frm1 &finestra, PartiAnteprima &parti, StatoProgramma &stato);

    /// Gives the commands their buttons and keys in the preview window.
    void AggiungeComandi(Frm1 &finestra);
    /// Those whose keys the editor's window takes too.
    QList<QAction *> Comandi() const;

    ContorniCarta contorni;
    ComandiZoom zoom;

private:
    QAction *mostraContorni_;
};
