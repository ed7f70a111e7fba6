#pragma once

#include "controllo/Esame.h"

/// One function for each kind of finding; each adds what it finds to the examination.
namespace Regole {

void FontMancanti(Esame &esame);
void CaratteriMancanti(Esame &esame);
void FileDelleImmagini(Esame &esame);
/// A text that runs into the next one on its line. Frames around a text are no neighbours of it,
/// and the caption of a frame ends where it ends: nothing clips it.
void TestiSuiVicini(Esame &esame);
void TestiOltreLaStampa(Esame &esame);
/// What is off the paper, and what lies in the edge that the printer does not reach.
void FuoriPosto(Esame &esame);
void NomiDoppi(Esame &esame);
void MaschereETesti(Esame &esame);
void CampiFuoriRiga(Esame &esame);
/// Two texts on one line that begin at the same place.
void TestiSovrapposti(Esame &esame);
/// A picture that lies whole inside another.
void ImmaginiSovrapposte(Esame &esame);
/// Two frames that draw the same lines.
void CorniciUguali(Esame &esame);
/// Texts that lie whole under a picture as small as a logo. A wider one is a letterhead or a form,
/// made to be printed on.
void SottoUnaFigura(Esame &esame);
/// An area in use whose end is not below its beginning, or whose rows do not advance.
void AreaRighe(Esame &esame);
void ScansioneMancante(Esame &esame);

} // namespace Regole
