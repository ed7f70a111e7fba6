#pragma once

#include "model/Modello.h"

/// A model with so many elements of each kind (at most 100), no two of whose values are alike, with
/// fractions, negative places, palette colours, all bold states and characters beyond ASCII. Every
/// text fits the code page and every number 15 digits, so it equals itself after a save and a load
/// under a decimal point.
Modello ModelloDiProva(int perGenere);

/// Makes the field an amount: text, masks, a size of its own, bold.
void DiventaImporto(Campo &campo);
