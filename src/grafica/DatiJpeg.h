#pragma once

#include <QByteArrayView>

/// The compressed data of a JPEG, walked over without building the picture.
namespace DatiJpeg {

/// True when the scans hold every coefficient of every pixel at full precision, to the last bit,
/// whether or not an end marker follows. file begins with the start marker. Sequential and
/// progressive pictures of Huffman codes; of others nobody can tell where they end: false.
bool Completi(QByteArrayView file);

} // namespace DatiJpeg
