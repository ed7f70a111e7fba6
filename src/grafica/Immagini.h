#pragma once

#include "base/ErroreSistema.h"

#include <QImage>
#include <QSizeF>
#include <QString>

/// Pictures from files: BMP, GIF (first frame) and JPEG (CMYK and EXIF-rotated too). A file that
/// would take a second to decode is refused (481), and so is one that ends before its pixels do.
namespace Immagini {

/// The 481 of a file that may be whole, but whose pixels or bytes are too many.
class TroppoGrande : public ErroreSistema
{
public:
    TroppoGrande();
};

/// The 53 of a name that is a folder's.
class Cartella : public ErroreSistema
{
public:
    Cartella();
};

/// Natural size in mm, from the pixel size and the resolution that the file states (96 dpi when it
/// states none), after EXIF rotation; decodes nothing. Throws ErroreSistema 53 or 481.
QSizeF DimensioniNaturali(const QString &percorso);

/// Throws what reading the picture would throw, ErroreSistema 53 or 481, without decoding it: the
/// file is there, is a picture and holds it to the end.
void Verifica(const QString &percorso);

/// The picture at its own size in 32-bit pixels. Refuses (481) one whose pixels would not fit in
/// reasonable memory (512 MiB). Throws ErroreSistema 53 or 481.
QImage Carica(const QString &percorso);

/// The picture scaled to exactly pixel (device pixels, both positive), smoothly; large files are
/// read scaled where the format can. Throws ErroreSistema 53 or 481.
QImage CaricaScalata(const QString &percorso, const QSize &pixel);

/// The picture with its proportions, on white where it is transparent, as large as fits into entro
/// (device pixels, both positive) but never above its own size. Throws ErroreSistema 53 or 481.
QImage Miniatura(const QString &percorso, const QSize &entro);

/// A picture without transparency, in RGB32.
struct Opaca
{
    QImage Immagine;
    /// It comes from a JPEG, by the file's bytes, and made one again it looks the same: neither
    /// from a file that gives each pixel its own colour, nor a small one with sharp colours.
    bool ComeJpeg = false;
    qint64 Byte = 0; ///< what decoding it took of memory at most, its own pixels included
};

/// The picture as a page needs it: on white where it is transparent, at its own size but at most
/// massimo pixels wide and high (both positive) and at most some 36 million in all; a larger one is
/// scaled down to that. Throws ErroreSistema 53 or 481.
Opaca CaricaEntro(const QString &percorso, const QSize &massimo);

/// Full path, in the spelling found on disk, of a picture of the models folder, which ends in a
/// separator. Throws ErroreSistema 53 when the name is empty or leads out of the folder, before
/// anything on disk is looked at; whether the file exists is not looked at.
QString PercorsoInCartella(const QString &cartella, const QString &nome);

} // namespace Immagini
