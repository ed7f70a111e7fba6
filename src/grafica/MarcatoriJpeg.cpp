#include "grafica/MarcatoriJpeg.h"

#include <QtEndian>

#include <cstring>

bool MarcatoriJpeg::DiRipartenza(int marcatore)
{
    return marcatore >= 0xD0 && marcatore <= 0xD7;
}

bool MarcatoriJpeg::DiFormato(int marcatore)
{
    constexpr int Jpg = 0xC8; // reserved
    constexpr int Dac = 0xCC; // conditioning of arithmetic codes
    return marcatore >= Sof && marcatore <= SofUltimo && marcatore != Dht && marcatore != Jpg &&
           marcatore != Dac;
}

bool MarcatoriJpeg::Prossimo(QByteArrayView file, qint64 posto, Segmento &segmento)
{
    constexpr int Temporaneo = 0x01; // stands alone
    segmento = {};
    while (posto + 1 < file.size()) {
        const void *ff = std::memchr(file.data() + posto, 0xFF, std::size_t(file.size() - posto));
        if (ff == nullptr) {
            return false;
        }
        posto = static_cast<const char *>(ff) - file.data();
        if (posto + 1 >= file.size()) {
            return false;
        }
        const int marcatore = quint8(file[posto + 1]);
        if (marcatore == 0xFF) { // a fill byte before the marker
            ++posto;
            continue;
        }
        if (marcatore == 0 || marcatore == Temporaneo || DiRipartenza(marcatore)) {
            posto += 2;
            continue;
        }
        segmento.Marcatore = marcatore;
        segmento.Posto = posto;
        if (marcatore == Eoi || marcatore == Soi || posto + 4 > file.size()) {
            return false;
        }
        const int lunghezza = qFromBigEndian<quint16>(file.data() + posto + 2);
        segmento.Inizio = posto + 4;
        segmento.Fine = posto + 2 + lunghezza;
        return lunghezza >= 2 && segmento.Fine <= file.size();
    }
    return false;
}
