#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QSize>

#include <functional>

/// Picture files that are whole and right, though few programs write them so, and files that cost a
/// decoder far more than they show.
namespace ImmaginiRare {

inline constexpr QSize Pixel{42, 40};
inline constexpr QRgb ColoreSopra = 0xFFC86432; ///< of the upper half
inline constexpr QRgb ColoreSotto = 0xFF2050A0; ///< of the lower half

struct Rara
{
    const char *Nome;
    QByteArray Byte;
};

/// Each of Pixel, in the two colours.
QList<Rara> Tutte();

/// A JPEG whose blocks of 8x8 pixels are of one value in each of its components; no marker says
/// what they mean, so one is grey, three are luminance and two of colour, four are inks.
QByteArray JpegABlocchi(const QSize &pixel, int componenti,
                        const std::function<int(int componente, int colonna, int riga)> &valore);

/// The colours of a 1200-dpi A4 sheet, as JpegABlocchi: 9921 x 14031 pixels, ColoreSopra above.
QByteArray JpegA1200PuntiPerPollice();

/// A GIF of so many bytes whose codes unfold into thousands of pixels each, on 64 x 64.
QByteArray GifCheSiSrotola(int byte);
/// A JPEG with some so many bytes of segments, empty or of so many bytes of data each: before the
/// first scan, or behind the last.
QByteArray JpegDiSegmenti(int byte, char marcatore, bool inTesta, int dati = 0);
/// A BMP's header that states 2147483647 x 2147483647 pixels of 32 bits: more bytes than 64 bits
/// count.
QByteArray BmpSmisurato();
/// A progressive JPEG of so many pixels with so many scans of next to nothing.
QByteArray JpegDiScansioni(const QSize &pixel, int scansioni);
/// A grey or coloured JPEG with one scan and no more, which holds only so many of its components,
/// or (progressive) of all their pixels only the even part of each block.
QByteArray JpegDiUnaScansione(const QSize &pixel, int componenti, int nellaScansione,
                              bool progressivo);

} // namespace ImmaginiRare
