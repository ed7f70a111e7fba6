#pragma once

#include <QByteArray>
#include <QSizeF>

/// A drawing in SVG, judged by its own text before Qt draws it: what a few lines can make Qt draw
/// has no end, and it would open any file that the drawing names.
namespace DisegnoSvg {

/// Size in mm: the one it states, or that of its view at 96 dots per inch; empty when it states
/// neither. Throws ErroreSistema 481 for what is no such drawing, draws more than a picture for
/// paper can hold, or wants other files.
QSizeF Millimetri(const QByteArray &byte);

} // namespace DisegnoSvg
