#include "preview/ManiSulFoglio.h"

#include "preview/BandaDiScelta.h"
#include "preview/ElementiFoglio.h"
#include "preview/GestoGuida.h"
#include "preview/PuntamentoFoglio.h"
#include "preview/Ridimensione.h"
#include "preview/Trascinamento.h"

#include <utility>

ManiSulFoglio::ManiSulFoglio(StatoProgramma &stato, const GeometriaAnteprima &geometria,
                             ElementiFoglio &elementi, VistaFoglio &foglio, GuideFoglio &guide,
                             Aggancio &aggancio)
    : mira_(stato, geometria, elementi)
    , contesto_{stato, geometria, elementi, foglio, mira_, *this, guide, aggancio}
{
    foglio.ImpostaAscolto(this);
}

ManiSulFoglio::~ManiSulFoglio()
{
    contesto_.foglio.ImpostaAscolto(nullptr);
}

void ManiSulFoglio::Sceglie(Chiave chiave)
{
    contesto_.elementi.Elemento(chiave.genere, chiave.indice); // only one that has a control
    PuntamentoFoglio(contesto_, {Bersaglio::Cosa::Elemento, chiave}).Sceglie();
}

void ManiSulFoglio::Preme(const EventoMouse &evento)
{
    if (gesto_ && (bottone_ == Qt::LeftButton || evento.bottone != Qt::LeftButton)) {
        return; // a second button while the first one is held
    }
    if (gesto_) {
        Prende(preso_, evento);
        return;
    }
    const bool sinistro = evento.bottone == Qt::LeftButton;
    Prende(sinistro ? mira_.DaPrendere(evento.punto) : mira_.Sotto(evento.punto), evento);
}

void ManiSulFoglio::PremeDueVolte(const EventoMouse &evento)
{
    if (evento.bottone != Qt::LeftButton || gesto_) {
        Preme(evento);
        return;
    }
    const Bersaglio bersaglio = mira_.Sotto(evento.punto);
    if (bersaglio.cosa == Bersaglio::Cosa::Elemento) {
        emit RichiestaProprieta(bersaglio.chiave.genere, bersaglio.chiave.indice);
        return;
    }
    // Of two quick drags of a handle the second begins like a double click. The properties wait for
    // the release: until then the pointer may still leave, and the first press must not have moved
    // the element.
    Prende(mira_.DaPrendere(evento.punto), evento,
           precedenteHaTrascinato_ ? std::nullopt : std::optional(evento.punto));
}

void ManiSulFoglio::Prende(const Bersaglio &bersaglio, const EventoMouse &evento,
                           std::optional<QPointF> secondaPressione)
{
    if (bersaglio.cosa != Bersaglio::Cosa::Foglio && evento.bottone == Qt::RightButton) {
        // The dialog takes the mouse: the release will not come here.
        if (bersaglio.chiave.genere != Genere::Campo) {
            PuntamentoFoglio(contesto_, bersaglio).Fa_Click();
        }
        emit RichiestaProprieta(bersaglio.chiave.genere, bersaglio.chiave.indice);
        return;
    }
    gesto_ = GestoSu(bersaglio, evento, secondaPressione);
    preso_ = bersaglio;
    bottone_ = evento.bottone;
}

std::shared_ptr<Gesto> ManiSulFoglio::GestoSu(const Bersaglio &bersaglio, const EventoMouse &evento,
                                              std::optional<QPointF> secondaPressione) const
{
    if (evento.bottone == Qt::LeftButton) {
        const Chiave chiave = bersaglio.chiave;
        if (bersaglio.cosa == Bersaglio::Cosa::Maniglia) {
            return std::make_shared<Trascinamento>(contesto_, chiave, evento.tasti,
                                                   secondaPressione);
        }
        if (bersaglio.cosa == Bersaglio::Cosa::Foglio) {
            const auto guida = contesto_.guide.Sotto(evento.punto);
            if (guida && evento.tasti == Qt::NoModifier) {
                return std::make_shared<GestoGuida>(contesto_, *guida, evento);
            }
            return std::make_shared<BandaDiScelta>(contesto_, evento);
        }
        if (bersaglio.cosa == Bersaglio::Cosa::Elemento && mira_.Ridimensionabile(chiave)) {
            // What is gripped is decided once: a press elsewhere never turns into a resize.
            const QPointF angolo = mira_.ControlloDi(bersaglio)->Posto().topLeft();
            const Presa presa = mira_.PresaDi(chiave, evento.punto - angolo);
            if (presa != Presa::Nessuna) {
                return std::make_shared<Ridimensione>(contesto_, chiave, presa, evento);
            }
        }
    }
    return std::make_shared<PuntamentoFoglio>(contesto_, bersaglio, evento);
}

void ManiSulFoglio::Muove(const EventoMouse &evento)
{
    Rilascia(evento); // where it went to another window
    if (const std::shared_ptr<Gesto> gesto = gesto_) {
        gesto->Muove(evento);
    } else {
        // A button that is still held has no gesture any more: nothing takes it up.
        PuntamentoFoglio(contesto_, mira_.DaPrendere(evento.punto)).Muove(evento);
    }
}

void ManiSulFoglio::Rilascia(const EventoMouse &evento)
{
    if (gesto_ && !(evento.bottoni & bottone_)) {
        ConcludeGesto(evento.punto);
    }
}

void ManiSulFoglio::Interrompe()
{
    if (gesto_) {
        ConcludeGesto(std::nullopt);
    }
}

void ManiSulFoglio::ConcludeGesto(std::optional<QPointF> rilascio)
{
    // Whatever its end opens or throws, the next press finds none under way.
    const std::shared_ptr<Gesto> gesto = std::move(gesto_);
    precedenteHaTrascinato_ = gesto->HaTrascinato();
    gesto->Conclude(rilascio);
}

bool ManiSulFoglio::Rinuncia()
{
    std::shared_ptr<Gesto> gesto = std::move(gesto_);
    if (!gesto || !gesto->Rinuncia()) {
        gesto_ = std::move(gesto);
        return false;
    }
    precedenteHaTrascinato_ = gesto->HaTrascinato();
    return true;
}

void ManiSulFoglio::Sposta(Genere genere, int i, Qt::MouseButtons bottoni, double x, double y)
{
    Trascinamento(contesto_, {genere, i}).Sposta(bottoni, x, y);
}

void ManiSulFoglio::RidimensionaCornice(int i, Qt::MouseButtons bottoni, double x, double y)
{
    Ridimensiona({Genere::Cornice, i}, bottoni, {x, y});
}

void ManiSulFoglio::RidimensionaImmagine(int i, Qt::MouseButtons bottoni, double x, double y)
{
    Ridimensiona({Genere::Immagine, i}, bottoni, {x, y});
}

void ManiSulFoglio::Ridimensiona(Chiave chiave, Qt::MouseButtons bottoni, QPointF punto)
{
    const Bersaglio bersaglio{Bersaglio::Cosa::Elemento, chiave};
    const EventoMouse evento{
        mira_.ControlloDi(bersaglio)->Posto().topLeft() + punto, Qt::LeftButton, bottoni, {}};
    if (!(bottoni & Qt::LeftButton)) {
        Interrompe();
        PuntamentoFoglio(contesto_, bersaglio).Muove(evento);
    } else if (gesto_) {
        Muove(evento);
    } else {
        Prende(bersaglio, evento);
    }
}

Spiegazione ManiSulFoglio::Suggerimento(QPointF punto) const
{
    const Controllo *controllo = mira_.ControlloDi(mira_.Sotto(punto));
    return controllo == nullptr ? Spiegazione{}
                                : Spiegazione{controllo->toolTip(), controllo->Posto()};
}
