#include "grafica/StrisceBmp.h"

#include "grafica/IntestazioneImmagine.h"

#include <QBuffer>
#include <QIODevice>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <vector>

namespace {

constexpr qint64 ByteFile = 14; ///< of the file's own header, before the picture's
constexpr quint32 ByteCorta = 12;
constexpr quint32 ByteNormale = 40;
constexpr quint32 CompressioneMaschere = 3;
constexpr qint64 ByteTestaMassimi = 64LL * 1024;
/// Decoded pixels of a strip: few enough to stay in the processor's cache.
constexpr qint64 PixelStriscia = 16LL * 1024;
/// What the shortest header can state.
constexpr qint64 RigheStriscia = 0xFFFF;

template <typename Numero>
Numero Piccolo(const QByteArray &byte, qsizetype posto)
{
    return qFromLittleEndian<Numero>(byte.constData() + posto);
}

/// Bytes of the palette, or of the masks that stand in its place.
qint64 ByteTavola(const QByteArray &testa, bool corta)
{
    const int bit = Piccolo<quint16>(testa, corta ? 24 : 28);
    if (!corta && Piccolo<quint32>(testa, 30) == CompressioneMaschere) {
        return Piccolo<quint32>(testa, ByteFile) == ByteNormale ? 3 * 4 : 0;
    }
    const quint32 dichiarati = corta ? 0 : Piccolo<quint32>(testa, 46);
    const qint64 colori = bit > 8 ? 0 : dichiarati > 0 ? dichiarati : 1 << bit;
    return colori * (corta ? 3 : 4);
}

/// blue, green, red
void Legge24Bit(const uchar *byte, int pixel, QRgb *riga)
{
    constexpr QRgb Opaco = 0xFF000000;
    for (int x = 0; x + 1 < pixel; ++x, byte += 3) {
        riga[x] = qFromLittleEndian<QRgb>(byte) | Opaco; // the fourth byte is the next pixel's
    }
    riga[pixel - 1] = qRgb(byte[2], byte[1], byte[0]);
}

} // namespace

StrisceBmp::StrisceBmp(QIODevice &file, const IntestazioneImmagine &intestazione)
    : file_(file)
    , pixel_(intestazione.Pixel)
{
    constexpr qint64 ByteMinimi = ByteFile + ByteNormale;
    if (intestazione.Compressa || intestazione.InizioDati < ByteFile + ByteCorta ||
        intestazione.InizioDati > ByteTestaMassimi || !file_.seek(0)) {
        return;
    }
    testa_ = file_.read(intestazione.InizioDati);
    const qint64 byteTesta = Piccolo<quint32>(testa_, ByteFile);
    corta_ = byteTesta == ByteCorta;
    // Where rows and palette overlap, only the decoder itself knows what it makes of them.
    if (testa_.size() < intestazione.InizioDati || (!corta_ && testa_.size() < ByteMinimi) ||
        ByteFile + byteTesta + ByteTavola(testa_, corta_) > intestazione.InizioDati) {
        return;
    }
    postoAltezza_ = corta_ ? 20 : 22;
    dalBasso_ = corta_ || Piccolo<qint32>(testa_, postoAltezza_) > 0;
    semplice_ = byteTesta == ByteNormale && Piccolo<quint16>(testa_, 26) == 1 &&
                Piccolo<quint16>(testa_, 28) == 24 && Piccolo<quint32>(testa_, 30) == 0;
    maschere_ = !corta_ && Piccolo<quint32>(testa_, 30) == CompressioneMaschere;
    byteRiga_ = (intestazione.FineRighe - intestazione.InizioDati) / pixel_.height();
}

bool StrisceBmp::Scorre(const Riga &riga) const
{
    if (!file_.seek(testa_.size())) {
        return false;
    }
    const int alte = int(std::clamp<qint64>(PixelStriscia / pixel_.width(), 1, RigheStriscia));
    for (int prima = 0; prima < pixel_.height(); prima += alte) {
        const int righe = std::min(alte, pixel_.height() - prima);
        const qint64 servono = righe * byteRiga_;
        QByteArray byte = file_.read(servono);
        constexpr qint64 RiempitivoMassimo = 3;
        if (byte.size() + RiempitivoMassimo < servono) {
            return false;
        }
        byte.append(servono - byte.size(), '\0'); // what fills up the last row may be missing
        if (semplice_) {
            if (!ScorreSemplice(byte, righe, riga)) {
                return true;
            }
            continue;
        }
        const QImage striscia = Striscia(byte, righe);
        if (striscia.height() != righe) {
            return false;
        }
        for (int y = righe - 1; y >= 0; --y) {
            if (!riga(reinterpret_cast<const QRgb *>(striscia.constScanLine(y)))) {
                return true;
            }
        }
    }
    return true;
}

bool StrisceBmp::ScorreSemplice(const QByteArray &byte, int righe, const Riga &riga) const
{
    std::vector<QRgb> pixel(static_cast<std::size_t>(pixel_.width()));
    const auto *dati = reinterpret_cast<const uchar *>(byte.constData());
    for (int y = 0; y < righe; ++y) {
        Legge24Bit(dati + y * byteRiga_, pixel_.width(), pixel.data());
        if (!riga(pixel.data())) {
            return false;
        }
    }
    return true;
}

/// The rows as a picture whose lowest is the first of them.
QImage StrisceBmp::Striscia(const QByteArray &byte, int righe) const
{
    // A picture of its own, of a few rows: palettes, masks and transparency are what Qt says.
    QByteArray file = testa_ + byte;
    char *altezza = file.data() + postoAltezza_;
    if (corta_) {
        qToLittleEndian(quint16(righe), altezza);
    } else {
        qToLittleEndian(qint32(righe), altezza);
    }
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    QImage striscia = QImageReader(&buffer, "bmp").read();
    striscia.convertTo(striscia.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    return striscia;
}
