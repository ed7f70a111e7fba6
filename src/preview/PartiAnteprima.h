#pragma once

#include "preview/GeometriaAnteprima.h"

#include <QGraphicsScene>

class VistaFoglio;
class CorniceFuoco;
class EtichettaAbbreviata;
class PulsantiStriscia;
class QLabel;
class QLineEdit;
class QScrollBar;
class QWidget;
class RighelloFoglio;
struct StatoProgramma;

/// The controls of the preview window, named as the system names them, and where they stand. The
/// layout is computed in millimetres of screen, so it is built here and not in a form.
struct PartiAnteprima
{
    PartiAnteprima(QWidget *finestra, const StatoProgramma &stato);
    ~PartiAnteprima();

    /// Places everything for the window's inner size and clips the sheet and the rulers to it.
    void Dispone(QSize interna);
    /// Size of the part of the window where the sheet shows, mm of screen.
    QSizeF VistaInMillimetri() const;
    /// The part of that which the sheet leaves free on its right, pixels of the screen.
    QRect AccantoAlFoglio() const;
    /// Moves the sheet and its rulers to the values of the scroll bars.
    void ScorreX();
    void ScorreY();

    GeometriaAnteprima geometria;
    QGraphicsScene scena;
    QWidget *AreaFoglio;
    CorniceFuoco *Fuoco;  ///< around AreaFoglio
    CorniceFuoco *FuocoX; ///< around ScrollX
    CorniceFuoco *FuocoY;
    QWidget *AreaRighelloX;
    QWidget *AreaRighelloY;
    VistaFoglio *P1;
    RighelloFoglio *RighelloX;
    RighelloFoglio *RighelloY;
    QScrollBar *ScrollX;
    QScrollBar *ScrollY;
    EtichettaAbbreviata *Text1; ///< the strip at the bottom; shows the place of the element in hand
    PulsantiStriscia *Pulsanti;
    QLabel *EtichettaPX;
    QLineEdit *PX;
    QLabel *EtichettaPY;
    QLineEdit *PY;
    QLabel *Label1;
    QLineEdit *TextZoom;
    QLineEdit *LL; ///< shows the control in hand, as "C1(4)"
    int P1Left0;   ///< where the sheet rests in its area, pixels
    int P1Top0;    ///< the same from the top

private:
    void DisponePulsanti(int fine);
    void CreaFoglio(QWidget *finestra, const StatoProgramma &stato);
    void CreaScorrimento(QWidget *finestra);
    void CreaStriscia(QWidget *finestra);
};
