#include "grafica/PocheTinte.h"

#include <QHash>
#include <QList>

#include <algorithm>
#include <cstdlib>
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

/// How many pixels there are of each colour; empty for a picture with shades everywhere.
QHash<QRgb, qint64> PixelPerTinta(const QImage &immagine)
{
    constexpr qsizetype TinteContate = 20'000;
    QHash<QRgb, qint64> conto;
    for (int y = 0; y < immagine.height(); ++y) {
        const auto *riga = reinterpret_cast<const QRgb *>(immagine.constScanLine(y));
        for (int inizio = 0, x = 1; x <= immagine.width(); ++x) {
            if (x == immagine.width() || riga[x] != riga[inizio]) {
                conto[riga[inizio]] += x - inizio;
                inizio = x;
            }
        }
        if (conto.size() > TinteContate) {
            return {};
        }
    }
    return conto;
}

/// From the one that most pixels have to the rarest.
QList<QRgb> PerFrequenza(const QHash<QRgb, qint64> &conto)
{
    QList<QRgb> tinte = conto.keys();
    std::sort(tinte.begin(), tinte.end(), [&](QRgb a, QRgb b) {
        const qint64 na = conto.value(a);
        const qint64 nb = conto.value(b);
        return na != nb ? na > nb : a < b;
    });
    return tinte;
}

int Scarto(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

/// For the shades along edges the colour, among 256, that takes their place: one that hardly
/// differs. Empty where that does not do.
QHash<QRgb, QRgb> Sostituti(const QHash<QRgb, qint64> &conto, double pixel)
{
    constexpr double ParteUguale = 0.001; // of the picture: what is no shade
    constexpr double ParteDegliOrli = 0.01;
    constexpr int ScartoNegliOrli = 16; // of 255: less than paper shows of a pixel at an edge
    QList<QRgb> tenute;
    QHash<QRgb, QRgb> sostituti;
    double sostituiti = 0; // pixels
    for (const QRgb tinta : PerFrequenza(conto)) {
        const auto vicina =
            std::min_element(tenute.cbegin(), tenute.cend(), [tinta](QRgb a, QRgb b) {
                return Scarto(a, tinta) < Scarto(b, tinta);
            });
        const auto pixelSuoi = double(conto.value(tinta));
        if (vicina == tenute.cend() || pixelSuoi >= ParteUguale * pixel ||
            Scarto(*vicina, tinta) > ScartoNegliOrli) {
            tenute.append(tinta);
        } else {
            sostituti.insert(tinta, *vicina);
            sostituiti += pixelSuoi;
        }
        if (tenute.size() > TinteMassime || sostituiti > ParteDegliOrli * pixel) {
            return {};
        }
    }
    return sostituti;
}

} // namespace

void PocheTinte::UnisceOrli(QImage &immagine)
{
    const QHash<QRgb, qint64> conto = PixelPerTinta(immagine);
    if (conto.size() <= TinteMassime) {
        return;
    }
    const QHash<QRgb, QRgb> sostituti =
        Sostituti(conto, double(immagine.width()) * immagine.height());
    for (int y = 0; !sostituti.isEmpty() && y < immagine.height(); ++y) {
        auto *riga = reinterpret_cast<QRgb *>(immagine.scanLine(y));
        for (int x = 0; x < immagine.width(); ++x) {
            if (x > 0 && riga[x] == riga[x - 1]) {
                continue; // it is one that stays
            }
            riga[x] = sostituti.value(riga[x], riga[x]);
        }
    }
}

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
