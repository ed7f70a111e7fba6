#include "platform/Rimpicciolimento.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <new>
#include <vector>

namespace {

constexpr int Canali = 3;
constexpr std::array<int, Canali> Scarti{16, 8, 0};

/// A row of the picture shrunk sideways: for each new pixel and channel the sum of what it covers,
/// an old pixel being as many units wide as there are new ones in the row.
void SommaRiga(const QRgb *riga, int vecchi, std::vector<std::uint64_t> &somme)
{
    const auto nuovi = std::uint32_t(somme.size() / Canali);
    std::uint32_t manca = std::uint32_t(vecchi); // of the new pixel
    std::size_t nuovo = 0;
    std::fill(somme.begin(), somme.end(), 0);
    for (int x = 0; x < vecchi; ++x) {
        for (std::uint32_t resta = nuovi; resta > 0;) {
            const std::uint32_t parte = std::min(resta, manca);
            for (std::size_t c = 0; c < Canali; ++c) {
                somme[nuovo + c] += std::uint64_t(parte) * ((riga[x] >> Scarti[c]) & 0xFF);
            }
            resta -= parte;
            manca -= parte;
            if (manca == 0) {
                nuovo += Canali;
                manca = std::uint32_t(vecchi);
            }
        }
    }
}

/// Writes the mean of the sums, whose units make intero together, and empties them.
void ScriveMedia(std::vector<std::uint64_t> &somme, std::uint64_t intero, QRgb *riga)
{
    for (std::size_t i = 0; i < somme.size(); i += Canali, ++riga) {
        *riga = 0xFF000000;
        for (std::size_t c = 0; c < Canali; ++c) {
            *riga |= QRgb((somme[i + c] + intero / 2) / intero) << Scarti[c];
        }
    }
    std::fill(somme.begin(), somme.end(), 0);
}

/// The top left corner of the picture, as a picture that keeps the whole one's memory.
QImage Angolo(QImage &intera, const QSize &pixel)
{
    uchar *bit = intera.bits();
    auto tiene = std::make_unique<QImage>(intera);
    QImage angolo(
        bit, pixel.width(), pixel.height(), intera.bytesPerLine(), intera.format(),
        [](void *tenuta) { delete static_cast<QImage *>(tenuta); }, tiene.get());
    if (angolo.isNull()) {
        throw std::bad_alloc();
    }
    static_cast<void>(tiene.release()); // the corner deletes it
    return angolo;
}

} // namespace

void Rimpicciolisce(QImage &immagine, const QSize &pixel)
{
    Q_ASSERT(immagine.format() == QImage::Format_RGB32);
    if (immagine.size() == pixel) {
        return;
    }
    const int larghezza = immagine.width();
    const int altezza = immagine.height();
    const std::uint64_t intero = std::uint64_t(larghezza) * std::uint64_t(altezza);
    const auto valori = std::size_t(pixel.width()) * Canali;
    std::vector<std::uint64_t> somme(valori);
    std::vector<std::uint64_t> colonna(valori);
    const auto nuove = std::uint32_t(pixel.height());
    auto manca = std::uint32_t(altezza); // of the new row
    int nuova = 0;
    for (int y = 0; y < altezza; ++y) {
        SommaRiga(reinterpret_cast<const QRgb *>(immagine.constScanLine(y)), larghezza, somme);
        for (std::uint32_t resta = nuove; resta > 0;) {
            const std::uint32_t parte = std::min(resta, manca);
            std::transform(
                somme.begin(), somme.end(), colonna.begin(), colonna.begin(),
                [parte](std::uint64_t una, std::uint64_t somma) { return somma + parte * una; });
            resta -= parte;
            manca -= parte;
            if (manca == 0) {
                // There are no more new rows than old ones: what is overwritten has been read.
                ScriveMedia(colonna, intero, reinterpret_cast<QRgb *>(immagine.scanLine(nuova)));
                ++nuova;
                manca = std::uint32_t(altezza);
            }
        }
    }
    // A much smaller picture is worth its own memory.
    const bool piccola = 2 * qint64(pixel.width()) * pixel.height() <= qint64(intero);
    immagine = piccola ? immagine.copy(QRect(QPoint(0, 0), pixel)) : Angolo(immagine, pixel);
    if (immagine.isNull()) {
        throw std::bad_alloc();
    }
}
