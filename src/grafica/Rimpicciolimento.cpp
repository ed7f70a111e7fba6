#include "grafica/Rimpicciolimento.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

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

Rimpicciolimento::Rimpicciolimento(const QSize &da, const QSize &a, RigaNuova rigaNuova)
    : da_(da)
    , a_(a)
    , rigaNuova_(std::move(rigaNuova))
    , manca_(std::uint32_t(da.height()))
{
    if (da != a) {
        somme_.resize(std::size_t(a.width()) * Canali);
        colonna_.resize(somme_.size());
    }
}

void Rimpicciolimento::Aggiunge(const QRgb *riga)
{
    if (da_ == a_) {
        std::copy_n(riga, a_.width(), rigaNuova_(nuova_++));
        return;
    }
    const std::uint64_t intero = std::uint64_t(da_.width()) * std::uint64_t(da_.height());
    SommaRiga(riga, da_.width(), somme_);
    for (auto resta = std::uint32_t(a_.height()); resta > 0;) {
        const std::uint32_t parte = std::min(resta, manca_);
        std::transform(
            somme_.begin(), somme_.end(), colonna_.begin(), colonna_.begin(),
            [parte](std::uint64_t una, std::uint64_t somma) { return somma + parte * una; });
        resta -= parte;
        manca_ -= parte;
        if (manca_ == 0) {
            ScriveMedia(colonna_, intero, rigaNuova_(nuova_++));
            manca_ = std::uint32_t(da_.height());
        }
    }
}

void Rimpicciolisce(QImage &immagine, const QSize &pixel)
{
    Q_ASSERT(immagine.format() == QImage::Format_RGB32);
    if (immagine.size() == pixel) {
        return;
    }
    // There are no more new rows than old ones: what is overwritten has been read.
    Rimpicciolimento riduce(immagine.size(), pixel, [&](int nuova) {
        return reinterpret_cast<QRgb *>(immagine.scanLine(nuova));
    });
    for (int y = 0; y < immagine.height(); ++y) {
        riduce.Aggiunge(reinterpret_cast<const QRgb *>(immagine.constScanLine(y)));
    }
    // A much smaller picture is worth its own memory, where there is place for both.
    constexpr qint64 PixelInsieme = 60'000'000;
    const qint64 prima = qint64(immagine.width()) * immagine.height();
    const qint64 dopo = qint64(pixel.width()) * pixel.height();
    const bool piccola = 2 * dopo <= prima && prima + dopo <= PixelInsieme;
    immagine = piccola ? immagine.copy(QRect(QPoint(0, 0), pixel)) : Angolo(immagine, pixel);
    if (immagine.isNull()) {
        throw std::bad_alloc();
    }
}
