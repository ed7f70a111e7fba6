#pragma once

#include "base/ErroreSistema.h"
#include "model/Modello.h"

#include <QRectF>
#include <QString>

class Frm1;

/// The scan of a model behind its sheet: which file it is, where it lies, and how it is drawn.
namespace SfondoDelModello {

/// One of the four numbers is beyond a double.
class NumeroNonLetto : public ErroreSistema
{
public:
    NumeroNonLetto(const ErroreSistema &errore, QString ImmagineSfondo::*membro)
        : ErroreSistema(errore)
        , Membro(membro)
    {
    }

    QString ImmagineSfondo::*Membro; ///< where it stands
};

/// The file in the spelling found on disk; a name alone is taken as typed.
QString File(const ImmagineSfondo &sfondo);

/// Mm of the sheet, read leniently. Throws NumeroNonLetto.
QRectF Posto(const ImmagineSfondo &sfondo);

/// True when the model wants a scan to be seen.
bool Visibile(const ImmagineSfondo &sfondo);

/// Draws the scan, if it is to be seen; leaves no background otherwise, nor after a failure. Throws
/// ErroreSistema 53 or 481 for the file, and NumeroNonLetto.
void Disegna(const ImmagineSfondo &sfondo, Frm1 &anteprima);

/// What the user is told of a file that cannot be loaded.
QString NonCaricato(const ImmagineSfondo &sfondo, const ErroreSistema &errore);

} // namespace SfondoDelModello
