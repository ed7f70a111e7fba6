#include "grafica/PerditaDiColore.h"

#include <QImage>

#include <array>

namespace {

/// Mean square by which a pixel may miss its two colours, of 255: 48 dB. Photographs whose own file
/// shares colours stay below a half of it; drawings lose more, up to a hundred times as much.
constexpr double ScartoMassimo = 3;

/// Of four values, from their mean; the sum of the squares.
int Scarto(const std::array<int, 4> &valori)
{
    int somma = 0;
    int quadrati = 0;
    for (const int v : valori) {
        somma += v;
        quadrati += v * v;
    }
    return quadrati - somma * somma / 4;
}

} // namespace

bool PerdeColore(const QImage &immagine)
{
    double scarto = 0;
    for (int y = 0; y + 1 < immagine.height(); y += 2) {
        const auto *sopra = reinterpret_cast<const QRgb *>(immagine.constScanLine(y));
        const auto *sotto = reinterpret_cast<const QRgb *>(immagine.constScanLine(y + 1));
        qint64 dellaRiga = 0;
        for (int x = 0; x + 1 < immagine.width(); x += 2) {
            const std::array<QRgb, 4> pixel{sopra[x], sopra[x + 1], sotto[x], sotto[x + 1]};
            std::array<int, 4> rosso{};
            std::array<int, 4> blu{};
            for (std::size_t i = 0; i < pixel.size(); ++i) {
                const int luce =
                    (qRed(pixel[i]) * 77 + qGreen(pixel[i]) * 150 + qBlue(pixel[i]) * 29) >> 8;
                rosso[i] = qRed(pixel[i]) - luce;
                blu[i] = qBlue(pixel[i]) - luce;
            }
            dellaRiga += Scarto(rosso) + Scarto(blu);
        }
        scarto += double(dellaRiga);
    }
    return scarto > ScartoMassimo * immagine.width() * immagine.height();
}
