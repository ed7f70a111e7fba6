#pragma once

#include <QFont>
#include <QImage>
#include <QLineF>
#include <QList>
#include <QRectF>
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
    QImage Immagine;   ///< opaque, RGB32
    bool SenzaPerdita; ///< false: may travel compressed with loss
};

using Segno = std::variant<Testo, Barra, Linea>;

struct Foglio
{
    QList<Segno> Segni;
    QList<Figura> Figure;
};

} // namespace Tracciati
