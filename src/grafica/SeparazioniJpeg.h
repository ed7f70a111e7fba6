#pragma once

#include <QByteArray>
#include <QImage>

struct IntestazioneImmagine;

/// JPEGs of four inks that are stored as they are. Qt takes the inks of every such file for
/// inverted and multiplies them with the black one, so that nothing can be told from its result;
/// asked for the colours and for the black alone, it tells both.
namespace SeparazioniJpeg {

/// The file, black (or, the other way round, everything but black) replaced by an even half.
QByteArray SenzaNero(const QByteArray &file, const IntestazioneImmagine &intestazione);
QByteArray SoloNero(const QByteArray &file, const IntestazioneImmagine &intestazione);

/// Makes the picture of what Qt makes of the two (of equal size, in 32-bit pixels), in the first.
void Unisce(QImage &senzaNero, const QImage &soloNero);

} // namespace SeparazioniJpeg
