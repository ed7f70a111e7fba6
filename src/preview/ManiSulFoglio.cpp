#include "preview/ManiSulFoglio.h"

#include "documento/Passo.h"
#include "documento/StatoProgramma.h"
#include "model/Numeri.h"
#include "preview/ElementiFoglio.h"
#include "preview/GeometriaAnteprima.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <utility>

ManiSulFoglio::ManiSulFoglio(StatoProgramma &stato, const GeometriaAnteprima &geometria,
                             ElementiFoglio &elementi, Foglio &foglio)
    : stato_(stato)
    , geometria_(geometria)
    , elementi_(elementi)
    , foglio_(foglio)
{
    foglio_.ImpostaAscolto(this);
}

ManiSulFoglio::~ManiSulFoglio()
{
    foglio_.ImpostaAscolto(nullptr);
}

ManiSulFoglio::Cattura ManiSulFoglio::Bersaglio(QPointF punto) const
{
    for (const Genere genere : Generi) {
        const Maniglia &maniglia = elementi_.ManigliaDi(genere);
        if (elementi_.ManigliaIn(punto) == &maniglia) {
            return {Preso::Maniglia, genere, maniglia.Tag.toInt()};
        }
    }
    const ControlloElemento *elemento = elementi_.ElementoIn(punto);
    // A field in front is pointed at, whatever edge lies below it.
    if (elemento != nullptr && elemento->genere == Genere::Campo) {
        return {Preso::Elemento, Genere::Campo, elemento->indice};
    }
    // Pointing at a frame sends it behind the others, so the edge of the selected one must be found
    // wherever the stack has put it: otherwise nobody could grip a frame that lies in another.
    for (const Genere genere : {Genere::Cornice, Genere::Immagine}) {
        if (SulBordoSelezionato(genere, punto)) {
            return {Preso::Elemento, genere, elementi_.Selezionato(genere)};
        }
    }
    if (elemento != nullptr) {
        return {Preso::Elemento, elemento->genere, elemento->indice};
    }
    return {Preso::Foglio};
}

Controllo *ManiSulFoglio::ControlloDi(const Cattura &bersaglio) const
{
    switch (bersaglio.preso) {
    case Preso::Maniglia:
        return &elementi_.ManigliaDi(bersaglio.genere);
    case Preso::Elemento:
        return &elementi_.Elemento(bersaglio.genere, bersaglio.indice);
    case Preso::Foglio:
    case Preso::Niente:
        break;
    }
    return nullptr;
}

QSizeF ManiSulFoglio::MisuraDi(Genere genere, int i) const
{
    return stato_.Aperto().Con(genere, [i](const auto &tabella) {
        if constexpr (requires { tabella[i].Larghezza; }) {
            return QSizeF(tabella[i].Larghezza, tabella[i].Altezza);
        } else {
            return QSizeF();
        }
    });
}

void ManiSulFoglio::Preme(const EventoMouse &evento)
{
    const bool altroTenuto = preso_.preso != Preso::Niente;
    if (altroTenuto && (preso_.bottone == Qt::LeftButton || evento.bottone != Qt::LeftButton)) {
        return; // a second button while the first one is held
    }
    Cattura bersaglio = altroTenuto ? preso_ : Bersaglio(evento.punto);
    bersaglio.bottone = evento.bottone;
    const bool elemento = bersaglio.preso == Preso::Elemento;
    const bool maniglia = bersaglio.preso == Preso::Maniglia;
    if ((elemento || maniglia) && evento.bottone == Qt::RightButton) {
        if (bersaglio.genere != Genere::Campo) {
            Fa_Click(bersaglio.genere, bersaglio.indice);
        }
        ChiedeProprieta(bersaglio.genere, bersaglio.indice);
        return;
    }
    if (elemento || maniglia) {
        const Elemento &prima = stato_.Aperto().Di({bersaglio.genere, bersaglio.indice});
        bersaglio.postoPrima = {prima.X, prima.Y};
        bersaglio.misuraPrima = MisuraDi(bersaglio.genere, bersaglio.indice);
    }
    preso_ = bersaglio;
    if (elemento && evento.bottone == Qt::LeftButton &&
        Ridimensionabile(bersaglio.genere, bersaglio.indice)) {
        const Controllo &controllo = *ControlloDi(bersaglio);
        Ridimensiona(bersaglio.genere, bersaglio.indice, evento.bottoni,
                     evento.punto - controllo.Posto().topLeft());
    }
}

void ManiSulFoglio::Muove(const EventoMouse &evento)
{
    if (preso_.preso != Preso::Niente && !(evento.bottoni & preso_.bottone)) {
        Rilascia(evento); // the release went to another window
    }
    const Cattura bersaglio = preso_.preso == Preso::Niente ? Bersaglio(evento.punto) : preso_;
    EventoMouse passo = evento;
    if (preso_.preso == Preso::Niente && bersaglio.preso != Preso::Foglio) {
        // The gesture of a button that is still held is over: no other control takes it up.
        passo.bottoni.setFlag(Qt::LeftButton, false);
    }
    MuoveSu(bersaglio, passo);
    AggiornaPuntatore(bersaglio);
}

void ManiSulFoglio::AggiornaPuntatore(const Cattura &bersaglio)
{
    const Controllo *controllo = ControlloDi(bersaglio);
    foglio_.ImpostaPuntatore(controllo == nullptr ? Qt::ArrowCursor : controllo->Puntatore());
}

void ManiSulFoglio::MuoveSu(const Cattura &bersaglio, const EventoMouse &evento)
{
    switch (bersaglio.preso) {
    case Preso::Maniglia: {
        if (FermoDopoDueVolte(evento.punto)) {
            break;
        }
        const QPointF dentro =
            evento.punto - elementi_.ManigliaDi(bersaglio.genere).Posto().topLeft();
        Sposta(bersaglio.genere, bersaglio.indice, evento.bottoni, dentro.x(), dentro.y());
        break;
    }
    case Preso::Elemento:
        if (bersaglio.genere == Genere::Campo) {
            CampoPuntato(bersaglio.indice);
        } else {
            ElementoSorvolato(bersaglio.genere, bersaglio.indice, evento);
        }
        break;
    case Preso::Foglio:
    case Preso::Niente:
        P1_MouseMove(evento);
        break;
    }
}

void ManiSulFoglio::P1_MouseMove(const EventoMouse &evento)
{
    elementi_.Campineri();
    if (evento.bottoni & Qt::LeftButton) {
        emit FoglioPuntato(evento.punto);
    }
}

void ManiSulFoglio::CampoPuntato(int i)
{
    elementi_.CampineriTranne(i);
    elementi_.Accende(i);
    emit ElementoPuntato(Genere::Campo, i);
    elementi_.Seleziona(Genere::Campo, i);
    emit ElementoInMano(Genere::Campo, i);
    emit PaginaRichiesta(Genere::Campo);
}

void ManiSulFoglio::ElementoSorvolato(Genere genere, int i, const EventoMouse &evento)
{
    elementi_.Campineri();
    elementi_.MandaInFondo(genere, i);
    ControlloElemento &controllo = elementi_.Elemento(genere, i);
    controllo.ImpostaPuntatore(Qt::ArrowCursor);
    if (Ridimensionabile(genere, i)) {
        Ridimensiona(genere, i, evento.bottoni, evento.punto - controllo.Posto().topLeft());
    }
}

void ManiSulFoglio::Fa_Click(Genere genere, int i)
{
    emit ElementoPuntato(genere, i);
    // Frames turn the page before the handle shows, images after it: turning a page hides handles.
    if (genere == Genere::Cornice) {
        emit PaginaRichiesta(genere);
    }
    elementi_.Seleziona(genere, i);
    emit ElementoInMano(genere, i);
    if (genere == Genere::Immagine) {
        emit PaginaRichiesta(genere);
    }
}

void ManiSulFoglio::ChiedeProprieta(Genere genere, int i)
{
    // The dialog takes the mouse: its release will not come here.
    preso_ = {};
    passo_.reset();
    ridimensione_ = {};
    emit RichiestaProprieta(genere, i);
}

void ManiSulFoglio::PremeDueVolte(const EventoMouse &evento)
{
    if (evento.bottone != Qt::LeftButton || preso_.preso != Preso::Niente) {
        Preme(evento);
        return;
    }
    const Cattura bersaglio = Bersaglio(evento.punto);
    if (bersaglio.preso == Preso::Elemento) {
        ChiedeProprieta(bersaglio.genere, bersaglio.indice);
        return;
    }
    Preme(evento);
    // Of two quick drags of a handle the second begins like a double click. The properties wait for
    // the release: until then the pointer may still leave, and the first press must not have moved
    // the element.
    if (preso_.preso == Preso::Maniglia && !ultimoTrascinato_) {
        preso_.secondaPressione = evento.punto;
    }
}

bool ManiSulFoglio::Rinuncia()
{
    const bool trascina = preso_.preso == Preso::Maniglia && preso_.bottone == Qt::LeftButton;
    if (!trascina && ridimensione_.presa == Presa::Nessuna) {
        return false;
    }
    const Cattura preso = std::exchange(preso_, {});
    ultimoTrascinato_ = preso.trascinato;
    ridimensione_ = {};
    if (passo_) {
        passo_->Rinuncia();
        passo_.reset();
    }
    elementi_.NascondeGuide();
    if (preso.genere == Genere::Immagine) {
        static_cast<RiquadroImmagine &>(elementi_.Elemento(preso.genere, preso.indice))
            .ImpostaElastico(false);
    }
    emit ElementoInMano(preso.genere, preso.indice);
    return true;
}

bool ManiSulFoglio::FermoDopoDueVolte(QPointF punto)
{
    if (!preso_.secondaPressione) {
        return false;
    }
    // The same play that two presses may have to count as one double click.
    const QPointF scarto = punto - *preso_.secondaPressione;
    if (scarto.manhattanLength() >
        geometria_.Millimetri(QGuiApplication::styleHints()->mouseDoubleClickDistance())) {
        preso_.secondaPressione.reset();
    }
    return preso_.secondaPressione.has_value();
}

void ManiSulFoglio::Rilascia(const EventoMouse &evento)
{
    if (preso_.preso != Preso::Niente && !(evento.bottoni & preso_.bottone)) {
        ConcludeGesto(evento.punto);
    }
}

void ManiSulFoglio::Interrompe()
{
    if (preso_.preso != Preso::Niente) {
        ConcludeGesto(std::nullopt);
    }
}

void ManiSulFoglio::ConcludeGesto(std::optional<QPointF> rilascio)
{
    const Cattura preso = std::exchange(preso_, {});
    ultimoTrascinato_ = preso.trascinato;
    if (preso.preso == Preso::Maniglia && preso.bottone == Qt::LeftButton) {
        RilasciaManiglia(preso);
    } else if (preso.preso == Preso::Elemento && preso.genere != Genere::Campo) {
        RilasciaElemento(preso, rilascio);
    }
    AggiornaPuntatore(preso);
    passo_.reset();
    if (preso.secondaPressione && rilascio) {
        ChiedeProprieta(preso.genere, preso.indice);
    }
}

void ManiSulFoglio::RilasciaManiglia(const Cattura &preso)
{
    elementi_.NascondeGuide();
    if (preso.genere == Genere::Campo) {
        // Placing rounds to whole millimetres of paper and takes a row field back to yInizio.
        PassoDi(Genere::Campo, preso.indice, VerboSposta).Colloca({Genere::Campo, preso.indice});
        passo_.reset();
    }
    emit ElementoInMano(preso.genere, preso.indice);
}

void ManiSulFoglio::RilasciaElemento(const Cattura &preso, std::optional<QPointF> rilascio)
{
    ControlloElemento &controllo = elementi_.Elemento(preso.genere, preso.indice);
    controllo.ImpostaPuntatore(Qt::ArrowCursor);
    const Ridimensione ridimensione = std::exchange(ridimensione_, {});
    if (ridimensione.avviata) {
        ConcludeRidimensione(preso, ridimensione.presa);
    }
    elementi_.PrimoPiano(preso.genere);
    if (preso.bottone == Qt::LeftButton && rilascio && elementi_.Tocca(controllo, *rilascio)) {
        Fa_Click(preso.genere, preso.indice);
    }
}

Spiegazione ManiSulFoglio::Suggerimento(QPointF punto) const
{
    const Controllo *controllo = ControlloDi(Bersaglio(punto));
    return controllo == nullptr ? Spiegazione{}
                                : Spiegazione{controllo->toolTip(), controllo->Posto()};
}
