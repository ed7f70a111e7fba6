#include "grafica/Opacita.h"

#include <algorithm>

bool Opacita::AlfaVuoto(const QRgb *riga, int pixel)
{
    return std::all_of(riga, riga + pixel, [](QRgb c) { return qAlpha(c) == 0; });
}

void Opacita::ToglieAlfaVuoto(QImage &immagine)
{
    const QRect tutta = immagine.rect();
    for (int y = 0; y < tutta.height(); ++y) {
        if (!AlfaVuoto(reinterpret_cast<const QRgb *>(immagine.constScanLine(y)), tutta.width())) {
            return;
        }
    }
    for (int y = 0; y < tutta.height(); ++y) {
        auto *riga = reinterpret_cast<QRgb *>(immagine.scanLine(y));
        std::for_each(riga, riga + tutta.width(), [](QRgb &c) { c |= 0xFF000000; });
    }
    immagine.reinterpretAsFormat(QImage::Format_RGB32);
}

void Opacita::SuBianco(const QRgb *riga, int pixel, QRgb *esito)
{
    const auto misto = [](int colore, int alfa) {
        return (colore * alfa + 255 * (255 - alfa) + 127) / 255;
    };
    std::transform(riga, riga + pixel, esito, [&](QRgb c) {
        const int alfa = qAlpha(c);
        return qRgb(misto(qRed(c), alfa), misto(qGreen(c), alfa), misto(qBlue(c), alfa));
    });
}

void Opacita::SuBianco(QImage &immagine)
{
    if (!immagine.hasAlphaChannel()) {
        return;
    }
    for (int y = 0; y < immagine.height(); ++y) {
        auto *riga = reinterpret_cast<QRgb *>(immagine.scanLine(y));
        SuBianco(riga, immagine.width(), riga);
    }
    immagine.reinterpretAsFormat(QImage::Format_RGB32);
}
