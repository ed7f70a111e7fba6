#pragma once

#include <QPointF>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <optional>

/// How large a scan is on the sheet, from what the user knows of it. Sizes and lengths are mm.
namespace Calibrazione {

inline constexpr double PuntiMinimi = 75; ///< dots per inch that a scan can be said to have
inline constexpr double PuntiMassimi = 1200;

/// Of so many pixels, as square as scanners make them; nothing for dots per inch outside the range.
std::optional<QSizeF> DaRisoluzione(const QSize &pixel, double puntiPerPollice);

/// Two points of the scan, each as its parts of the width and of the height.
struct DuePunti
{
    QPointF Primo;
    QPointF Secondo;
};

/// Of a scan whose two points are so far from each other in truth. naturale: the size that the file
/// states, whose proportions stay. Nothing for points that lie on each other, nor for a distance
/// that is none.
std::optional<QSizeF> DaDuePunti(const QSizeF &naturale, const DuePunti &punti, double distanza);

/// A length as the boxes of the scan hold it: in hundredths, with a point.
QString Testo(double millimetri);

} // namespace Calibrazione
