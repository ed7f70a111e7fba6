#pragma once

#include <QByteArray>
#include <QPointF>
#include <QRectF>
#include <QString>

/// What the measures of several tests share.

inline constexpr double MillimetriPerPunto = 25.4 / 72;

/// From the sheet's corner to the first point that a queue of CodaDiStampa with its usual margins
/// reaches, mm.
inline constexpr QPointF AngoloStampabile(12 * MillimetriPerPunto, 14 * MillimetriPerPunto);

inline QByteArray Testo(const QRectF &r)
{
    return QStringLiteral("%1,%2 %3x%4")
        .arg(r.x())
        .arg(r.y())
        .arg(r.width())
        .arg(r.height())
        .toUtf8();
}
