#pragma once

#include <QPixmap>

#include <functional>

class QPainter;

/// The icons in the editor's column of commands, device-independent pixels.
inline constexpr int LatoIconaComandi = 18;

/// What disegna draws in a square of side 1, lato device-independent pixels wide and high and as
/// fine as the screen.
QPixmap DisegnaIcona(int lato, const std::function<void(QPainter &)> &disegna);

/// The help icon, a question mark in a disc, lato device-independent pixels wide and high.
QPixmap IconaGuida(int lato);

/// Arrows that turn back, and forth again: undo and redo.
QPixmap IconaAnnulla(int lato);
QPixmap IconaRipristina(int lato);
