#pragma once

#include <QImage>
#include <QSize>

#include <cstdint>
#include <functional>
#include <vector>

/// Shrinks a picture that comes row by row, from its top or from its bottom; each new pixel is the
/// mean of what it covers.
class Rimpicciolimento
{
public:
    /// Where a new row of a pixels is to be written, as each one is ready: the first of them is
    /// that of the first row handed over.
    using RigaNuova = std::function<QRgb *(int)>;

    /// Both sizes positive, a no larger than da either way.
    Rimpicciolimento(const QSize &da, const QSize &a, RigaNuova rigaNuova);
    /// The next row, as wide as da; its place may be that of a new row.
    void Aggiunge(const QRgb *riga);

private:
    QSize da_;
    QSize a_;
    RigaNuova rigaNuova_;
    int nuova_ = 0;
    std::uint32_t manca_; ///< of the new row
    std::vector<std::uint64_t> somme_;
    std::vector<std::uint64_t> colonna_;
};

/// Shrinks an RGB32 picture to pixel (positive, no larger than the picture either way). Works
/// within the picture's own memory: beside a scan there is no room for a second one. Throws
/// std::bad_alloc.
void Rimpicciolisce(QImage &immagine, const QSize &pixel);
