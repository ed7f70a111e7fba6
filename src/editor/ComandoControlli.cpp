#include "editor/ComandoControlli.h"

#include "documento/StatoProgramma.h"
#include "editor/ComandiStoria.h"
#include "editor/ElencoRilievi.h"
#include "finestre/Comandi.h"
#include "finestre/Guardia.h"
#include "finestre/Icone.h"
#include "finestre/IconeControlli.h"
#include "preview/Frm1.h"
#include "preview/SfondoDelModello.h"

#include <QGuiApplication>
#include <QToolButton>

#include <utility>

namespace {

const auto Nome = QStringLiteral("Controlli");

} // namespace

ComandoControlli::ComandoControlli(StatoProgramma &stato, QToolButton &contatore, Frm1 &anteprima,
                                   ComandiStoria &storia)
    : stato_(stato)
    , contatore_(contatore)
    , anteprima_(anteprima)
    , storia_(storia)
    , comando_(CreaComando(this, QStringLiteral("MostraControlli"), Nome, {Qt::Key_F7}))
    , controllo_(stato.CartellaModelli, SfondoDelModello::File)
{
    contatore_.setIconSize(QSize(LatoIconaComandi, LatoIconaComandi));
    contatore_.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    contatore_.setIcon(IconaSenzaRilievi(LatoIconaComandi));
    // Room for two digits, so that the buttons stay where they are while the number changes.
    contatore_.setText(QStringLiteral("00"));
    contatore_.setMinimumWidth(contatore_.sizeHint().width());
    contatore_.window()->addAction(comando_);
    anteprima_.addAction(comando_);
    MostraConto();
    Collegamenti();
}

ComandoControlli::~ComandoControlli()
{
    if (elenco_) {
        storia_.TogliFinestra(elenco_.get());
    }
}

void ComandoControlli::Collegamenti()
{
    Collega(comando_, &QAction::triggered, contatore_.window(), [this] { Esegue(); });
    Collega(&contatore_, &QToolButton::clicked, contatore_.window(), [this] { Esegue(); });
    const Documento &documento = stato_.documento;
    connect(&documento, &Documento::Cambiato, this, [this](const Cambiamento &cambiamento) {
        if (cambiamento.origine != Cambiamento::Origine::Gesto) {
            Richiede();
        }
    });
    connect(&documento, &Documento::ModificaConclusa, this, &ComandoControlli::Richiede);
    connect(&documento, &Documento::RigheRaddrizzate, this, &ComandoControlli::Richiede);
    // A gesture that has been given up leaves what waited for its end.
    connect(&documento, &Documento::StoriaCambiata, this, [this] {
        if (richiesto_) {
            Richiede();
        }
    });
    connect(
        this, &ComandoControlli::DaControllare, this,
        [this] { Guardia(contatore_.window(), [this] { Controlla(); }); }, Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState stato) {
                if (stato == Qt::ApplicationActive) {
                    Rivede();
                }
            });
}

void ComandoControlli::ImpostaFoglio(const std::optional<FoglioStampante> &foglio)
{
    controllo_.ImpostaFoglio(foglio);
    iniziato_ = true;
    Richiede();
}

void ComandoControlli::Richiede()
{
    richiesto_ = true;
    if (!std::exchange(inCoda_, true)) {
        emit DaControllare();
    }
}

void ComandoControlli::Rivede()
{
    controllo_.Rivede();
    Richiede();
}

void ComandoControlli::Controlla()
{
    inCoda_ = false;
    if (!richiesto_ || !iniziato_ || stato_.documento.ModificaInCorso()) {
        return;
    }
    richiesto_ = false;
    rilievi_ = controllo_.Esamina(stato_.documento);
    MostraConto();
    if (elenco_) {
        elenco_->Mostra(rilievi_, controllo_.FoglioNoto());
    }
}

void ComandoControlli::MostraConto()
{
    const bool nessuno = rilievi_.isEmpty();
    const QString conto =
        iniziato_ ? Nome + QStringLiteral(": ") + ElencoRilievi::Conto(rilievi_.size()) : Nome;
    contatore_.setIcon(nessuno ? IconaSenzaRilievi(LatoIconaComandi)
                               : IconaConRilievi(LatoIconaComandi));
    contatore_.setText(nessuno ? QString() : QString::number(rilievi_.size()));
    contatore_.setToolTip(TestoConTasti(conto, comando_->shortcuts()));
    contatore_.setAccessibleName(conto);
}

void ComandoControlli::Crea()
{
    elenco_ = std::make_unique<ElencoRilievi>(stato_, anteprima_);
    elenco_->addAction(comando_);
    storia_.AggiungeFinestra(elenco_.get());
    connect(elenco_.get(), &ElencoRilievi::RichiestaProprieta, this,
            &ComandoControlli::RichiestaProprieta);
    connect(elenco_.get(), &ElencoRilievi::RichiestaPagina, this,
            &ComandoControlli::RichiestaPagina);
}

void ComandoControlli::Esegue()
{
    if (stato_.documento.ModificaInCorso()) {
        return; // a window that comes to the front would end the drag under way
    }
    if (!elenco_) {
        Crea();
    }
    if (!elenco_->isVisible()) {
        iniziato_ = true;
        Rivede();
        Controlla();
    }
    elenco_->Alterna();
}
