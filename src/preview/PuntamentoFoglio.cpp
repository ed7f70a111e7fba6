#include "preview/PuntamentoFoglio.h"

#include "documento/StatoProgramma.h"
#include "preview/AvvisiFoglio.h"
#include "preview/ElementiFoglio.h"
#include "preview/GuideFoglio.h"
#include "preview/VistaFoglio.h"

PuntamentoFoglio::PuntamentoFoglio(const ContestoGesto &contesto, const Bersaglio &bersaglio,
                                   const EventoMouse &pressione)
    : contesto_(contesto)
    , bersaglio_(bersaglio)
    , bottone_(pressione.bottone)
    , tasti_(pressione.tasti)
{
}

void PuntamentoFoglio::Muove(const EventoMouse &evento)
{
    switch (bersaglio_.cosa) {
    case Bersaglio::Cosa::Maniglia:
        break; // only a drag acts on it
    case Bersaglio::Cosa::Elemento:
        if (Puntato().genere == Genere::Campo) {
            CampoPuntato();
        } else {
            ElementoSorvolato(evento.punto);
        }
        break;
    case Bersaglio::Cosa::Foglio:
        P1_MouseMove(evento);
        break;
    }
    AggiornaPuntatore();
}

void PuntamentoFoglio::P1_MouseMove(const EventoMouse &evento)
{
    contesto_.elementi.Campineri();
    if (evento.bottoni == Qt::NoButton || contesto_.guide.InMano()) {
        sulVuoto_ = contesto_.guide.PuntatoreIn(evento.punto);
    }
    if (evento.bottoni & Qt::LeftButton) {
        emit contesto_.avvisi.FoglioPuntato(evento.punto);
    }
    emit contesto_.avvisi.FoglioSorvolato(evento.punto);
}

void PuntamentoFoglio::CampoPuntato()
{
    const int i = Puntato().indice;
    contesto_.elementi.CampineriTranne(i);
    contesto_.elementi.Accende(i);
    emit contesto_.avvisi.ElementoPuntato(Genere::Campo, i);
    contesto_.elementi.Seleziona(Genere::Campo, i);
    emit contesto_.avvisi.ElementoInMano(Genere::Campo, i);
    emit contesto_.avvisi.PaginaRichiesta(Genere::Campo);
}

void PuntamentoFoglio::Sorvola()
{
    const auto [genere, i] = Puntato();
    contesto_.elementi.Campineri();
    contesto_.elementi.MandaInFondo(genere, i);
    contesto_.elementi.Elemento(genere, i).ImpostaPuntatore(Qt::ArrowCursor);
}

void PuntamentoFoglio::ElementoSorvolato(QPointF punto)
{
    Sorvola();
    // Under the left button an edge offers nothing: what is gripped was decided at the press.
    if (bottone_ != Qt::LeftButton && contesto_.mira.Ridimensionabile(Puntato())) {
        ControlloElemento &controllo =
            contesto_.elementi.Elemento(Puntato().genere, Puntato().indice);
        controllo.ImpostaPuntatore(Ridimensionamento::Puntatore(
            contesto_.mira.PresaDi(Puntato(), punto - controllo.Posto().topLeft())));
    }
}

void PuntamentoFoglio::Conclude(std::optional<QPointF> rilascio)
{
    if (bersaglio_.cosa == Bersaglio::Cosa::Elemento) {
        const auto [genere, i] = Puntato();
        ControlloElemento &controllo = contesto_.elementi.Elemento(genere, i);
        const bool click = bottone_ == Qt::LeftButton && rilascio &&
                           contesto_.elementi.Tocca(controllo, *rilascio);
        if (genere != Genere::Campo) {
            controllo.ImpostaPuntatore(Qt::ArrowCursor);
            contesto_.elementi.PrimoPiano(genere);
            if (click) {
                Fa_Click();
            }
        }
        if (click && EUnClick()) {
            contesto_.stato.selezione.SceglieConClick(Puntato(), tasti_ & Qt::ControlModifier);
        }
    }
    AggiornaPuntatore();
}

void PuntamentoFoglio::Fa_Click()
{
    const auto [genere, i] = Puntato();
    emit contesto_.avvisi.ElementoPuntato(genere, i);
    // Frames turn the page before the handle shows, images after it: turning a page hides handles.
    if (genere == Genere::Cornice) {
        emit contesto_.avvisi.PaginaRichiesta(genere);
    }
    contesto_.elementi.Seleziona(genere, i);
    emit contesto_.avvisi.ElementoInMano(genere, i);
    if (genere == Genere::Immagine) {
        emit contesto_.avvisi.PaginaRichiesta(genere);
    }
}

void PuntamentoFoglio::Sceglie()
{
    if (Puntato().genere == Genere::Campo) {
        CampoPuntato();
    } else {
        contesto_.elementi.Campineri(); // no field stays lit beside it
        Fa_Click();
    }
}

void PuntamentoFoglio::AggiornaPuntatore()
{
    const Controllo *controllo = contesto_.mira.ControlloDi(bersaglio_);
    contesto_.foglio.ImpostaPuntatore(controllo == nullptr ? sulVuoto_ : controllo->Puntatore());
}
