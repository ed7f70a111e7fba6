#pragma once

#include <QByteArrayView>

/// The compressed data of a GIF's first picture, walked over without painting.
namespace DatiGif {

/// Of a picture, which is only decoded whole: with more a page would need over 300 MiB of memory.
inline constexpr qint64 PixelMassimi = 60'000'000;

/// True when the file, from its first byte on, holds its first picture down to the last block, and
/// the data unfold into no more pixels than the picture has, give or take a little: a few bytes may
/// stand for any number of pixels beyond its end, and a decoder goes through all of them.
bool Interi(QByteArrayView file);

} // namespace DatiGif
