#pragma once

#include <QPixmap>

/// The help icon, a question mark in a disc, lato device-independent pixels wide and high.
QPixmap IconaGuida(int lato);

/// Arrows that turn back, and forth again: undo and redo.
QPixmap IconaAnnulla(int lato);
QPixmap IconaRipristina(int lato);
