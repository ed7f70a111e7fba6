#pragma once

#include "model/Modello.h"
#include "preview/Ridimensionamento.h"

#include <QPointF>

class Controllo;
class ElementiFoglio;
class GeometriaAnteprima;
struct StatoProgramma;

/// What lies under the mouse: the bare sheet, a handle or an element. chiave is the handle's
/// element too, and nothing on the bare sheet.
struct Bersaglio
{
    enum class Cosa { Foglio, Maniglia, Elemento };

    Cosa cosa = Cosa::Foglio;
    Chiave chiave = {};
};

/// Finds what the mouse points at. Points are mm of screen on the sheet. All that it is made of
/// must outlive it.
class MiraFoglio
{
public:
    MiraFoglio(const StatoProgramma &stato, const GeometriaAnteprima &geometria,
               const ElementiFoglio &elementi);

    /// What opens, is clicked or explains itself there.
    Bersaglio Sotto(QPointF punto) const;
    /// What a press of the left button takes hold of, and the pointer announces: as Sotto, but the
    /// edges of the selected frame or image can be gripped from a little outside too, whatever lies
    /// there.
    Bersaglio DaPrendere(QPointF punto) const;
    /// Null for the bare sheet.
    Controllo *ControlloDi(const Bersaglio &bersaglio) const;
    /// True for the selected frame or image, unless its border forbids it.
    bool Ridimensionabile(Chiave chiave) const;
    /// What can be gripped of an element at a point measured from its corner. The point may be
    /// outside: whoever asks has already decided that it belongs to the element.
    Presa PresaDi(Chiave chiave, QPointF dentro) const;

private:
    enum class Margine { Nessuno, Fuori };

    Bersaglio Cerca(QPointF punto, Margine margine) const;
    bool SulBordoSelezionato(Genere genere, QPointF punto, Margine margine) const;

    const StatoProgramma &stato_;
    const GeometriaAnteprima &geometria_;
    const ElementiFoglio &elementi_;
};
