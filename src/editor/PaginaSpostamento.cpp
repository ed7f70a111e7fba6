#include "editor/PaginaSpostamento.h"

#include "base/ErroreSistema.h"
#include "dialogs/MemoriaCaselle.h"
#include "documento/Passo.h"
#include "editor/FrmCorrezione.h"
#include "editor/TestiEsplicativi.h"
#include "finestre/AvvisoCasella.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "model/Numeri.h"
#include "preview/Frm1.h"
#include "print/Stampanti.h"
#include "sistema/CartellaStato.h"
#include "ui_PaginaSpostamento.h"

#include <utility>

namespace {

/// Empty without a printer, or with a print system that is silent: nothing is proposed then.
QString StampanteSeCE()
{
    try {
        return Stampanti::NomePredefinita();
    } catch (const ErroreSistema &) {
        return {};
    }
}

} // namespace

PaginaSpostamento::PaginaSpostamento(StatoProgramma &stato, Frm1 &anteprima, QWidget *padre)
    : QWidget(padre)
    , ui_(std::make_unique<Ui::PaginaSpostamento>())
    , stato_(stato)
    , anteprima_(anteprima)
    , correzioni_(stato.documento)
{
    ui_->setupUi(this);
    ui_->Text5->setPlainText(TestiEsplicativi::Spostamento());
    Collegamenti();
}

PaginaSpostamento::~PaginaSpostamento() = default;

void PaginaSpostamento::Collegamenti()
{
    Sorveglia(ui_->Spostamento, Numeri::AvvisoDiLettura);
    Collega(ui_->Command2, &QPushButton::clicked, this, &PaginaSpostamento::Command2_Click);
    Collega(ui_->Command5, &QPushButton::clicked, this, &PaginaSpostamento::Command5_Click);
    Collega(ui_->Command6, &QPushButton::clicked, this, &PaginaSpostamento::Command6_Click);
    Collega(ui_->CorreggiDaGriglia, &QPushButton::clicked, this,
            &PaginaSpostamento::CorreggiDaGriglia_Click);
    Collega(&stato_.documento, &Documento::StoriaCambiata, this, &PaginaSpostamento::RitiraDetto);
    Collega(&correzioni_, &CorrezioniInStoria::NonAggiornate, this, [this](const QString &motivo) {
        anteprima_.Avverte(
            QStringLiteral("L'ultima correzione ricordata non è aggiornata (%1)").arg(motivo));
    });
}

void PaginaSpostamento::Mostra()
{
    ui_->Spostamento->setText(QStringLiteral("1"));
}

void PaginaSpostamento::Command2_Click()
{
    Sposta(Genere::Campo);
}

void PaginaSpostamento::Command5_Click()
{
    Sposta(Genere::Cornice);
}

void PaginaSpostamento::Command6_Click()
{
    Sposta(Genere::Immagine);
}

void PaginaSpostamento::CorreggiDaGriglia_Click()
{
    FrmCorrezione dialogo(stato_, StampanteSeCE(), CartellaStato(), window());
    dialogo.exec();
    if (dialogo.Detto().isEmpty()) {
        return;
    }
    if (dialogo.Mosse().Sfondo) {
        emit SpostatoSfondo();
    }
    if (dialogo.Ricordata()) {
        correzioni_.Aggiunge(*dialogo.Ricordata());
    }
    detta_ = stato_.documento.UltimoPasso();
    detto_ = dialogo.Detto();
    anteprima_.Avverte(detto_);
}

void PaginaSpostamento::RitiraDetto()
{
    if (!detto_.isEmpty() && stato_.documento.UltimoPasso() != detta_) {
        anteprima_.RitiraAvviso(std::exchange(detto_, {}));
    }
}

void PaginaSpostamento::Sposta(Genere genere)
{
    double passo = 0;
    try {
        passo = Numeri::Val(ui_->Spostamento->text());
    } catch (const ErroreSistema &) {
        Messaggi::Mostra(window(), NumeroTroppoGrande(ui_->EtichettaSpostamento->text(),
                                                      ui_->Spostamento->text()));
        return;
    }
    const PuntatoreOccupato occupato;
    double dx = 0;
    double dy = 0;
    if (ui_->OptDx->isChecked()) {
        dx += passo;
    }
    if (ui_->OptSx->isChecked()) {
        dx -= passo;
    }
    if (ui_->OptSu->isChecked()) {
        dy -= passo;
    }
    if (ui_->OptGiu->isChecked()) {
        dy += passo;
    }
    static constexpr const char16_t *Tutti[] = {u"sposta tutti i campi", u"sposta tutte le cornici",
                                                u"sposta tutte le immagini"};
    const QString testo = QString::fromUtf16(Tutti[Posto(genere)]);
    // A press held, or repeated at once, is one step; the other way is another.
    Passo spostamento(
        stato_.documento, testo,
        {QStringLiteral("%1 %2 %3").arg(testo).arg(dx).arg(dy), MillisecondiDiSeguito});
    spostamento.SpostaTutti(genere, dx, dy);
}
