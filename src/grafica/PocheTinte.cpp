#include "grafica/PocheTinte.h"

#include <QHash>
#include <QList>

#include <optional>

namespace {

constexpr qsizetype TinteMassime = 256;
constexpr qsizetype DueTinte = 2;
constexpr int BitPerByte = 8;

/// The colours by their place in the palette; nothing when there are too many.
std::optional<QHash<QRgb, uchar>> Tinte(const QImage &immagine)
{
    QHash<QRgb, uchar> tinte;
    for (int y = 0; y < immagine.height(); ++y) {
        const auto *riga = reinterpret_cast<const QRgb *>(immagine.constScanLine(y));
        for (int x = 0; x < immagine.width(); ++x) {
            if ((x > 0 && riga[x] == riga[x - 1]) || tinte.contains(riga[x])) {
                continue;
            }
            if (tinte.size() == TinteMassime) {
                return std::nullopt;
            }
            tinte.insert(riga[x], static_cast<uchar>(tinte.size()));
        }
    }
    return tinte;
}

QList<QRgb> Tavolozza(const QHash<QRgb, uchar> &tinte)
{
    QList<QRgb> tavolozza(tinte.size());
    for (auto tinta = tinte.begin(); tinta != tinte.end(); ++tinta) {
        tavolozza[tinta.value()] = tinta.key();
    }
    return tavolozza;
}

} // namespace

QImage PocheTinte::ConTavolozza(const QImage &immagine)
{
    const std::optional<QHash<QRgb, uchar>> tinte = Tinte(immagine);
    if (!tinte) {
        return {};
    }
    const bool due = tinte->size() <= DueTinte;
    QImage esito(immagine.size(), due ? QImage::Format_Mono : QImage::Format_Indexed8);
    if (esito.isNull()) {
        return {};
    }
    esito.setColorTable(Tavolozza(*tinte));
    esito.fill(0);
    for (int y = 0; y < immagine.height(); ++y) {
        const auto *da = reinterpret_cast<const QRgb *>(immagine.constScanLine(y));
        uchar *a = esito.scanLine(y);
        uchar tinta = 0;
        for (int x = 0; x < immagine.width(); ++x) {
            if (x == 0 || da[x] != da[x - 1]) {
                tinta = tinte->value(da[x]);
            }
            if (!due) {
                a[x] = tinta;
            } else if (tinta != 0) {
                a[x / BitPerByte] |= static_cast<uchar>(0x80 >> x % BitPerByte);
            }
        }
    }
    return esito;
}
