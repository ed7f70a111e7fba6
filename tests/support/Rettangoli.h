#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>

#include <cmath>

/// Measured places held against where they should be.

/// Within the tenth of a millimetre that the printed sheet is held to.
inline bool Vicini(double a, double b, double scarto = 0.1)
{
    return std::abs(a - b) <= scarto;
}

inline bool Vicini(const QRectF &a, const QRectF &b, double scarto = 0.1)
{
    return Vicini(a.left(), b.left(), scarto) && Vicini(a.top(), b.top(), scarto) &&
           Vicini(a.right(), b.right(), scarto) && Vicini(a.bottom(), b.bottom(), scarto);
}

inline QByteArray Testo(const QRectF &r)
{
    return QStringLiteral("%1,%2 %3x%4")
        .arg(r.x())
        .arg(r.y())
        .arg(r.width())
        .arg(r.height())
        .toUtf8();
}
