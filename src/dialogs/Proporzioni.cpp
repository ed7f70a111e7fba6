#include "dialogs/Proporzioni.h"

#include "dialogs/MemoriaCaselle.h"
#include "finestre/Guardia.h"

#include <QCheckBox>

#include <cmath>

Proporzioni::Proporzioni(const QCheckBox *spunta, const Caselle &caselle, MemoriaCaselle &memoria)
    : spunta_(spunta)
    , caselle_(caselle)
    , memoria_(memoria)
{
    // What a person types; what the dialog itself writes has its own two sizes.
    Collega(caselle.Larghezza, &QLineEdit::textEdited, caselle.Larghezza, [this] {
        Segue(caselle_.Larghezza, caselle_.Altezza, naturale_.height() / naturale_.width());
    });
    Collega(caselle.Altezza, &QLineEdit::textEdited, caselle.Altezza, [this] {
        Segue(caselle_.Altezza, caselle_.Larghezza, naturale_.width() / naturale_.height());
    });
}

void Proporzioni::Segue(const QLineEdit *scritta, QLineEdit *altra, double rapporto)
{
    constexpr double PerMillimetro = 100; // no finer than anybody measures
    const std::optional<double> misura = memoria_.Numerico(scritta);
    if (!spunta_->isChecked() || naturale_.isEmpty() || !misura || *misura <= 0) {
        return; // half a number is none yet
    }
    const double altraMisura = std::round(*misura * rapporto * PerMillimetro) / PerMillimetro;
    if (std::isfinite(altraMisura)) {
        memoria_.Mostra(altra, altraMisura);
    }
}
