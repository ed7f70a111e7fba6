#pragma once

#include <QImage>
#include <QSize>

/// Pixels of decoded pictures: how many there may be, in which form, and fewer of them.
namespace PixelImmagine {

/// What a decoded picture may take.
inline constexpr int LimiteMiB = 512;
inline constexpr qint64 BytePerPixel = 4;

/// What a picture has at most on a printed page, in pixels.
inline constexpr qint64 Stampati = 36'000'000;

/// True for more pixels than fit into that.
bool Troppi(const QSize &pixel, qint64 bytePerPixel = BytePerPixel);

/// The size with its proportions, made smaller where it has more than massimi pixels in all.
QSize Entro(const QSize &pixel, qint64 massimi);

/// Brings a picture to the pixel formats that the callers may count on: ARGB32, or RGB32 when it is
/// opaque.
void A32Bit(QImage &immagine);

/// The picture smoothly scaled to exactly pixel; null when there is no memory for it.
QImage Scalata(const QImage &immagine, const QSize &pixel);

/// A picture of less than 32 bits to a pixel, opaque and scaled down: never whole in 32. pixel is
/// no larger than its size either way.
QImage Rimpicciolita(const QImage &immagine, const QSize &pixel);

} // namespace PixelImmagine
