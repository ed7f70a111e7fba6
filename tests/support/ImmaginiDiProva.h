#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// Small picture files for tests, and pictures that Qt itself cannot write.
namespace ImmaginiDiProva {

/// 4x2 GIF: left half red, right half transparent.
QByteArray GifTrasparente();
/// 3x2 animated GIF: a lime frame, then a blue one.
QByteArray GifAnimata();
/// 8x8 CMYK JPEG of about rgb(200, 100, 50).
QByteArray JpegCmyk();

/// A whole-coloured or given picture as a file in a format of QImageWriter, with a resolution
/// (dots per inch; 0 = none stated).
QByteArray InFormato(const QImage &immagine, const char *formato, double puntiPerPollice = 0);
QImage Tinta(const QSize &pixel, QRgb colore);
/// A picture as cameras take them: soft shapes and, everywhere, noise; other for another seme.
QImage Fotografia(const QSize &pixel, unsigned seme);
/// A picture as firms draw them: flat colours with sharp edges, and a text.
QImage Disegno(const QSize &pixel, const QString &testo);
/// An A4 form as a scanner gives it at 600 dpi: printed boxes on paper that is not quite white.
QImage ModuloA4();

/// A small file, or one made only to be walked over, that claims or costs far more than a picture.
struct Bomba
{
    const char *Nome;
    QByteArray Byte;
};
QList<Bomba> Bombe();

/// Whether Qt has no reader for the format: Qt for Windows is built with what sources there are. On
/// other systems the packages bring every format, so that there a missing one is a failure.
bool Manca(const QByteArray &formato);

/// Writes the bytes and returns the path. Ends the test program when the disk refuses.
QString Scrive(const QString &percorso, const QByteArray &byte);

} // namespace ImmaginiDiProva
