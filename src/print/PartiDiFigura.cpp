#include "print/PartiDiFigura.h"

#include <algorithm>
#include <new>

using PartiDiFigura::Parte;

namespace {

constexpr QRgb Colori = 0xFFFFFF; ///< the bits of a pixel that are colour; all set: white
constexpr int PixelStriscia = 4'000'000;
/// White pixels that are worth a part more.
constexpr qint64 BiancoMinimo = 8192;

const QRgb *Riga(const QImage &immagine, int y)
{
    return reinterpret_cast<const QRgb *>(immagine.constScanLine(y));
}

bool Bianco(QRgb pixel)
{
    return (pixel & Colori) == Colori;
}

/// What is not white of the row, as a rectangle one pixel high; null when all is white.
QRect Inchiostro(const QImage &immagine, int y)
{
    const QRgb *inizio = Riga(immagine, y);
    const QRgb *fine = inizio + immagine.width();
    const QRgb *primo = std::find_if_not(inizio, fine, Bianco);
    if (primo == fine) {
        return {};
    }
    while (Bianco(*(fine - 1))) {
        --fine;
    }
    return {int(primo - inizio), y, int(fine - primo), 1};
}

/// The boxes of what stands between wide white stripes, from the top down.
QList<QRect> Fasce(const QImage &immagine)
{
    const qint64 bianche = std::max<qint64>(2, BiancoMinimo / immagine.width());
    QList<QRect> fasce;
    for (int y = 0; y < immagine.height(); ++y) {
        const QRect inchiostro = Inchiostro(immagine, y);
        if (inchiostro.isNull()) {
            continue;
        }
        if (!fasce.isEmpty() && y - fasce.constLast().bottom() - 1 <= bianche) {
            fasce.last() |= inchiostro;
        } else {
            fasce.append(inchiostro);
        }
    }
    return fasce;
}

bool SoloBiancoENero(const QImage &immagine, const QRect &posto)
{
    for (int y = posto.top(); y <= posto.bottom(); ++y) {
        const QRgb *inizio = Riga(immagine, y) + posto.left();
        const bool soli = std::all_of(inizio, inizio + posto.width(),
                                      [](QRgb c) { return Bianco(c) || (c & Colori) == 0; });
        if (!soli) {
            return false;
        }
    }
    return true;
}

Parte AUnBit(const QImage &immagine, const QRect &posto)
{
    QImage bit(posto.size(), QImage::Format_Mono);
    if (bit.isNull()) {
        throw std::bad_alloc();
    }
    // This order of the colours, no other, is what the PDF engine sends as bits.
    bit.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    bit.fill(0);
    for (int y = 0; y < posto.height(); ++y) {
        const QRgb *riga = Riga(immagine, posto.top() + y) + posto.left();
        uchar *byte = bit.scanLine(y);
        for (int x = 0; x < posto.width(); ++x) {
            byte[x / 8] |= uchar((riga[x] & 1U) << (7 - x % 8));
        }
    }
    return {posto, bit};
}

/// Without a copy of the pixels: they stay as long as one of their parts does, which who shows the
/// page on the screen keeps.
Parte Ritaglio(const QImage &immagine, const QRect &posto)
{
    const auto *byte = reinterpret_cast<const uchar *>(Riga(immagine, posto.top()) + posto.left());
    return {posto,
            QImage(
                byte, posto.width(), posto.height(), immagine.bytesPerLine(), immagine.format(),
                [](void *intera) { delete static_cast<QImage *>(intera); }, new QImage(immagine))};
}

} // namespace

QList<Parte> PartiDiFigura::Divide(const QImage &immagine)
{
    Q_ASSERT(immagine.format() == QImage::Format_RGB32);
    QList<Parte> parti;
    for (const QRect &fascia : Fasce(immagine)) {
        const QRect posto = fascia.adjusted(-1, -1, 1, 1) & immagine.rect();
        if (SoloBiancoENero(immagine, posto)) {
            parti.append(AUnBit(immagine, posto));
            continue;
        }
        const int righe = std::max(1, PixelStriscia / posto.width());
        for (int prima = 0; prima < posto.height(); prima += righe) {
            const int alte = std::min(righe + 1, posto.height() - prima);
            parti.append(
                Ritaglio(immagine, QRect(posto.left(), posto.top() + prima, posto.width(), alte)));
        }
    }
    return parti;
}
