#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

/// Pictures from files: BMP, GIF (first frame) and JPEG (CMYK and EXIF-rotated too).
namespace Immagini {

/// Natural size in mm, from the pixel size and the resolution that the file states (96 dpi when it
/// states none), after EXIF rotation; decodes nothing. Throws ErroreSistema 53 or 481.
QSizeF DimensioniNaturali(const QString &percorso);

/// The picture at its own size in 32-bit pixels. Refuses (481) one whose pixels would not fit in
/// reasonable memory (512 MiB). Throws ErroreSistema 53 or 481.
QImage Carica(const QString &percorso);

/// The picture scaled to exactly pixel (device pixels, both positive), smoothly; large files are
/// read scaled where the format can. Throws ErroreSistema 53 or 481.
QImage CaricaScalata(const QString &percorso, const QSize &pixel);

} // namespace Immagini
