#include "grafica/PixelImmagine.h"

#include "grafica/Opacita.h"
#include "grafica/Rimpicciolimento.h"

#include <algorithm>
#include <cmath>
#include <new>

bool PixelImmagine::Troppi(const QSize &pixel, qint64 bytePerPixel)
{
    return qint64(pixel.width()) * pixel.height() > LimiteMiB * 1024LL * 1024 / bytePerPixel;
}

QSize PixelImmagine::Entro(const QSize &pixel, qint64 massimi)
{
    const double parte = double(massimi) / (double(pixel.width()) * pixel.height());
    return parte >= 1 ? pixel : (QSizeF(pixel) * std::sqrt(parte)).toSize().expandedTo({1, 1});
}

void PixelImmagine::A32Bit(QImage &immagine)
{
    immagine.convertTo(immagine.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

QImage PixelImmagine::Scalata(const QImage &immagine, const QSize &pixel)
{
    if (immagine.size() == pixel) {
        return immagine;
    }
    QImage scalata = immagine.scaled(pixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    A32Bit(scalata);
    return scalata;
}

QImage PixelImmagine::Rimpicciolita(const QImage &immagine, const QSize &pixel)
{
    constexpr int RigheInsieme = 16;
    QImage esito(pixel, QImage::Format_RGB32);
    if (esito.isNull()) {
        throw std::bad_alloc();
    }
    Rimpicciolimento riduce(immagine.size(), pixel, [&](int nuova) {
        return reinterpret_cast<QRgb *>(esito.scanLine(nuova));
    });
    for (int prima = 0; prima < immagine.height(); prima += RigheInsieme) {
        const int alte = std::min(RigheInsieme, immagine.height() - prima);
        QImage righe = immagine.copy(0, prima, immagine.width(), alte);
        A32Bit(righe);
        Opacita::SuBianco(righe);
        for (int y = 0; y < alte; ++y) {
            riduce.Aggiunge(reinterpret_cast<const QRgb *>(righe.constScanLine(y)));
        }
    }
    return esito;
}
