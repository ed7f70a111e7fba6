#pragma once

#include <QFont>
#include <QLineF>
#include <QList>
#include <QRectF>
#include <QRgb>
#include <QSize>
#include <QString>

#include <variant>

/// What has been put on a page, in printer pixels from the printable corner, in the order in which
/// it was put there. Text, bars and lines cover what lies under them; pictures AND with it.
namespace Tracciati {

struct Testo
{
    QPointF Base; ///< left end of the baseline
    QFont Font;   ///< its pixel size is in units of its own
    double Scala; ///< printer pixels to a unit of the font
    QString Stringa;
    QRgb Colore;
};

struct Barra
{
    QRectF Posto;
    QRgb Colore;
};

struct Linea
{
    QLineF Estremi;
    double Spessore; ///< printer pixels
    QRgb Colore;
};

struct Figura
{
    QRectF Posto;
    QString Percorso; ///< of the file
    QSize Pixel;      ///< that it needs there
};

using Segno = std::variant<Testo, Barra, Linea>;

struct Foglio
{
    QList<Segno> Segni;
    QList<Figura> Figure;
};

} // namespace Tracciati
