#include "editor/Calibrazione.h"

#include "base/Unita.h"
#include "model/Numeri.h"

#include <cmath>

std::optional<QSizeF> Calibrazione::DaRisoluzione(const QSize &pixel, double puntiPerPollice)
{
    if (!(puntiPerPollice >= PuntiMinimi && puntiPerPollice <= PuntiMassimi)) {
        return std::nullopt;
    }
    return QSizeF(pixel) * Unita::MillimetriPerPollice / puntiPerPollice;
}

std::optional<QSizeF> Calibrazione::DaDuePunti(const QSizeF &naturale, const DuePunti &punti,
                                               double distanza)
{
    constexpr double Sovrapposti = 1e-6; // mm: less than any pixel
    const QPointF scarto = punti.Secondo - punti.Primo;
    const double naturali =
        std::hypot(scarto.x() * naturale.width(), scarto.y() * naturale.height());
    if (!(naturali > Sovrapposti) || !(distanza > 0)) {
        return std::nullopt;
    }
    const QSizeF misura = naturale * (distanza / naturali);
    if (!std::isfinite(misura.width()) || !std::isfinite(misura.height())) {
        return std::nullopt;
    }
    return misura;
}

QString Calibrazione::Testo(double millimetri)
{
    constexpr double PerMillimetro = 100;
    const double centesimi = std::round(millimetri * PerMillimetro) / PerMillimetro;
    return Numeri::NumeroPiano(centesimi == 0 ? 0 : centesimi, QLocale::c()); // never "-0"
}
