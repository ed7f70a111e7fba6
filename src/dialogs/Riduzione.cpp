#include "dialogs/Riduzione.h"

#include "base/ErroreSistema.h"
#include "dialogs/MemoriaCaselle.h"
#include "finestre/Messaggi.h"
#include "model/Numeri.h"

#include <cmath>

namespace {

std::optional<QSizeF> Percentuale(const QSizeF &misura, const QString &percentuale)
{
    constexpr double Intero = 100; // percent
    try {
        const QSizeF ridotta = misura * Numeri::Val(percentuale) / Intero;
        if (std::isfinite(ridotta.width()) && std::isfinite(ridotta.height())) {
            return ridotta;
        }
    } catch (const ErroreSistema &) {
        return std::nullopt; // the percentage alone is beyond it
    }
    return std::nullopt;
}

} // namespace

std::optional<QSizeF> Ridotta(QWidget *padre, const QSizeF &misura, const QString &percentuale)
{
    const std::optional<QSizeF> ridotta = Percentuale(misura, percentuale);
    if (!ridotta) {
        Messaggi::Mostra(padre, NumeroTroppoGrande(QStringLiteral("Percentuale"), percentuale));
    }
    return ridotta;
}
