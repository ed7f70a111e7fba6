#pragma once

#include <QColor>
#include <QPen>
#include <QPixmap>

#include <functional>

class QPainter;

/// The icons in the editor's column of commands, device-independent pixels.
inline constexpr int LatoIconaComandi = 18;

/// The colour that nearly all icons are drawn with.
inline constexpr QColor BluScuro(0x2b, 0x4a, 0x72);

/// Straight lines with square corners in that colour; spessore in sides of the icon.
QPen TrattoIcona(double spessore);

/// What disegna draws in a square of side 1, lato device-independent pixels wide and high and as
/// fine as the screen.
QPixmap DisegnaIcona(int lato, const std::function<void(QPainter &)> &disegna);

/// The help icon, a question mark in a disc, lato device-independent pixels wide and high.
QPixmap IconaGuida(int lato);

/// Arrows that turn back, and forth again: undo and redo.
QPixmap IconaAnnulla(int lato);
QPixmap IconaRipristina(int lato);
