#pragma once

class Destinazione;

/// Prints one sheet with a grid and rulers in millimetres of the printable area. Throws the
/// destination's ErroreSistema when the sheet is not taken.
void StampaRetino(Destinazione &destinazione);
