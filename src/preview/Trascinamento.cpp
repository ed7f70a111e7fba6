#include "preview/Trascinamento.h"

#include "documento/StatoProgramma.h"
#include "model/FoglioCarta.h"
#include "model/Numeri.h"
#include "preview/AvvisiFoglio.h"
#include "preview/ElementiFoglio.h"
#include "preview/GeometriaAnteprima.h"
#include "preview/VistaFoglio.h"

#include <QGuiApplication>
#include <QStyleHints>

Trascinamento::Trascinamento(const ContestoGesto &contesto, Chiave chiave,
                             Qt::KeyboardModifiers tasti, std::optional<QPointF> secondaPressione)
    : contesto_(contesto)
    , chiave_(chiave)
    , tasti_(tasti)
    , compagni_(contesto, chiave)
    , secondaPressione_(secondaPressione)
    , attrazione_(contesto, chiave)
    , passo_(contesto.stato, chiave, QLatin1String("sposta"))
{
    const Elemento &elemento = contesto_.stato.Aperto().Di(chiave_);
    postoPrima_ = {elemento.X, elemento.Y};
    angoloPrima_ = contesto_.elementi.Elemento(chiave.genere, chiave.indice).Posto().topLeft();
}

void Trascinamento::Muove(const EventoMouse &evento)
{
    if (!FermoDopoDueVolte(evento.punto)) {
        const QPointF dentro =
            evento.punto - contesto_.elementi.ManigliaDi(chiave_.genere).Posto().topLeft();
        attrazione_.Sospende(evento.tasti & Qt::AltModifier);
        Sposta(evento.bottoni, dentro.x(), dentro.y());
    }
    AggiornaPuntatore();
}

bool Trascinamento::FermoDopoDueVolte(QPointF punto)
{
    if (!secondaPressione_) {
        return false;
    }
    // The same play that two presses may have to count as one double click.
    const QPointF scarto = punto - *secondaPressione_;
    if (scarto.manhattanLength() >
        contesto_.geometria.Millimetri(QGuiApplication::styleHints()->mouseDoubleClickDistance())) {
        secondaPressione_.reset();
    }
    return secondaPressione_.has_value();
}

void Trascinamento::Sposta(Qt::MouseButtons bottoni, double x, double y)
{
    const Genere genere = chiave_.genere;
    Maniglia &maniglia = contesto_.elementi.ManigliaDi(genere);
    const QRectF prima = contesto_.elementi.Elemento(genere, chiave_.indice).Posto();
    if (!(bottoni & Qt::LeftButton) || maniglia.Puntatore() != Qt::SizeAllCursor) {
        return;
    }
    const QRectF voluto = prima.translated(x, y);
    if (genere != Genere::Immagine) {
        x = Numeri::Ar(x);
        y = Numeri::Ar(y);
    }
    const GeometriaAnteprima &geometria = contesto_.geometria;
    QPointF dopo(FoglioCarta::Dentro(prima.left() + x, prima.width(), geometria.LarghezzaFoglio()),
                 FoglioCarta::Dentro(prima.top() + y, prima.height(), geometria.AltezzaFoglio()));
    if (!compagni_.Vuoti()) {
        dopo =
            prima.topLeft() + compagni_.FinoAlBordo(prima.topLeft() - angoloPrima_, QPointF(x, y));
    }
    dopo = attrazione_.Sposta(
        voluto,
        compagni_.Vuoti() ? voluto : compagni_.Gruppo().translated(voluto.topLeft() - angoloPrima_),
        dopo);
    contesto_.elementi.MostraGuide(dopo, maniglia.Sfondo());
    if (dopo == prima.topLeft()) {
        return;
    }
    // An axis that did not move keeps the model's own digits.
    const StatoProgramma &stato = contesto_.stato;
    const Elemento &elemento = stato.Aperto().Di(chiave_);
    const QPointF posto =
        attrazione_.Esatto({dopo.x() == prima.left() ? elemento.X : dopo.x() * stato.zoom,
                            dopo.y() == prima.top() ? elemento.Y : dopo.y() * stato.zoom});
    Passo &passo = passo_.Iniziato();
    passo.Trascina(chiave_,
                   {Riportato(posto.x(), postoPrima_.x()), Riportato(posto.y(), postoPrima_.y())});
    trascinato_ = true;
    passo.Mostra();
    if (!compagni_.Vuoti()) {
        compagni_.Mostra(dopo - angoloPrima_);
    }
    emit contesto_.avvisi.ElementoInMano(genere, chiave_.indice);
}

void Trascinamento::Conclude(std::optional<QPointF> rilascio)
{
    contesto_.elementi.NascondeGuide();
    attrazione_.NascondeLinee();
    if (!compagni_.Vuoti() && trascinato_) {
        ConcludeInsieme();
    } else if (chiave_.genere == Genere::Campo) {
        // Placing rounds to whole millimetres of paper and takes a row field back to yInizio.
        passo_.Iniziato().Colloca(chiave_);
        passo_.Conclude();
    }
    emit contesto_.avvisi.ElementoInMano(chiave_.genere, chiave_.indice);
    AggiornaPuntatore();
    passo_.Conclude(); // what the properties change is a step of its own
    if (trascinato_ || rilascio) {
        Sceglie();
    }
    if (secondaPressione_ && rilascio) {
        emit contesto_.avvisi.RichiestaProprieta(chiave_.genere, chiave_.indice);
    }
}

void Trascinamento::ConcludeInsieme()
{
    Passo &passo = passo_.Iniziato();
    passo.Nomina(QStringLiteral("sposta ") +
                 contesto_.stato.documento.Denominazione(contesto_.stato.selezione.Scelti()));
    const Elemento &elemento = contesto_.stato.Aperto().Di(chiave_);
    QPointF scarto = QPointF(elemento.X, elemento.Y) - postoPrima_;
    if (compagni_.ConInteri()) {
        // Rounded once for all of them, or they would not keep their distances.
        scarto = {Numeri::Ar(scarto.x()), Numeri::Ar(scarto.y())};
        passo.Trascina(chiave_, postoPrima_ + scarto);
    }
    passo.Colloca(chiave_);
    compagni_.Ripristina();
    compagni_.Conclude(passo, scarto);
    passo_.Conclude();
}

void Trascinamento::Sceglie()
{
    Selezione &selezione = contesto_.stato.selezione;
    const bool alterna = tasti_ & Qt::ControlModifier && !trascinato_;
    if (alterna || !selezione.EScelto(chiave_)) {
        selezione.SceglieConClick(chiave_, alterna);
    }
}

bool Trascinamento::Rinuncia()
{
    compagni_.Ripristina();
    passo_.Rinuncia();
    contesto_.elementi.NascondeGuide();
    attrazione_.NascondeLinee();
    emit contesto_.avvisi.ElementoInMano(chiave_.genere, chiave_.indice);
    return true;
}

void Trascinamento::AggiornaPuntatore()
{
    contesto_.foglio.ImpostaPuntatore(contesto_.elementi.ManigliaDi(chiave_.genere).Puntatore());
}
