#pragma once

#include <QByteArrayView>

/// The markers of a JPEG, which divide the file.
namespace MarcatoriJpeg {

inline constexpr int Sof = 0xC0; ///< frame header: size and components
inline constexpr int SofProgressivo = 0xC2;
inline constexpr int SofProgressivoAritmetico = 0xCA;
inline constexpr int SofUltimo = 0xCF;
inline constexpr int Dht = 0xC4; ///< Huffman tables
inline constexpr int Soi = 0xD8; ///< start of the file
inline constexpr int Eoi = 0xD9; ///< end of the file
inline constexpr int Sos = 0xDA; ///< scan header; its data follow
inline constexpr int Dqt = 0xDB; ///< quantisation tables
inline constexpr int Dri = 0xDD; ///< restart interval
inline constexpr int App0 = 0xE0;
inline constexpr int App1 = 0xE1;
inline constexpr int App14 = 0xEE;

/// True for a marker inside the data of a scan.
bool DiRipartenza(int marcatore);
/// True for a marker that states the size and the components.
bool DiFormato(int marcatore);

/// A marker with its data; offsets in the file.
struct Segmento
{
    int Marcatore = 0;
    qint64 Posto = 0;  ///< of the marker
    qint64 Inizio = 0; ///< of the data, behind their length
    qint64 Fine = 0;   ///< behind the data
};

/// The first marker at or after posto, passing over the data of a scan. False at the end marker, at
/// the end of the file and before a segment that the file does not hold whole; segmento then has
/// the marker that was seen, 0 for none.
bool Prossimo(QByteArrayView file, qint64 posto, Segmento &segmento);

} // namespace MarcatoriJpeg
