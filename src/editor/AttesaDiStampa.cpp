#include "editor/AttesaDiStampa.h"

#include "finestre/Attesa.h"
#include "finestre/Messaggi.h"

#include <QApplication>
#include <QProgressDialog>

#include <limits>

namespace {

constexpr int Centesimi = 100;

/// Shows itself when it is told to, and only closes with its owner.
std::unique_ptr<QProgressDialog> Riquadro(QWidget *padre, const QString &testo)
{
    auto riquadro =
        std::make_unique<QProgressDialog>(testo, QStringLiteral("Annulla"), 0, Centesimi, padre);
    riquadro->setObjectName(QStringLiteral("AttesaDiStampa"));
    riquadro->setWindowTitle(Messaggi::Titolo);
    riquadro->setWindowModality(Qt::ApplicationModal);
    riquadro->setMinimumDuration(std::numeric_limits<int>::max());
    riquadro->setAutoClose(false);
    riquadro->setAutoReset(false);
    return riquadro;
}

} // namespace

AttesaDiStampa::AttesaDiStampa(QWidget *padre, const QString &testo, int pazienza)
    : padre_(padre)
    , testo_(testo)
    , pazienza_(pazienza)
{
    trascorso_.start();
}

AttesaDiStampa::~AttesaDiStampa() = default;

void AttesaDiStampa::Avanza(double parte)
{
    if (!riquadro_) {
        if (trascorso_.elapsed() < pazienza_) {
            return;
        }
        riquadro_ = Riquadro(padre_, testo_);
        riquadro_->show();
        if (QApplication::overrideCursor() != nullptr) {
            // The pointer that waits would say that the button does not work.
            QApplication::changeOverrideCursor(Qt::BusyCursor);
        }
    }
    riquadro_->setValue(qRound(parte * Centesimi));
    QApplication::processEvents();
    if (riquadro_->wasCanceled()) {
        throw StampaAnnullata();
    }
}

void AttesaDiStampa::Aspetta(const LavoroDelSistema &lavoro)
{
    riquadro_.reset();
    if (!EsegueConAttesa(padre_, QStringLiteral("In attesa del sistema di stampa..."), lavoro)) {
        throw StampaAnnullata();
    }
    trascorso_.restart();
}
