#include "preview/Trascinamento.h"

#include "documento/StatoProgramma.h"
#include "model/Numeri.h"
#include "preview/AvvisiFoglio.h"
#include "preview/ElementiFoglio.h"
#include "preview/GeometriaAnteprima.h"
#include "preview/VistaFoglio.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace {

double NelFoglio(double posto, double misura, double foglio)
{
    const double dopoInizio = posto < 0 ? 0 : posto;
    // The far edge has the last word: an element larger than the sheet ends flush with it.
    return dopoInizio > foglio - misura ? foglio - misura : dopoInizio;
}

} // namespace

Trascinamento::Trascinamento(const ContestoGesto &contesto, Chiave chiave,
                             std::optional<QPointF> secondaPressione)
    : contesto_(contesto)
    , chiave_(chiave)
    , secondaPressione_(secondaPressione)
    , passo_(contesto.stato, chiave, QLatin1String("sposta"))
{
    const Elemento &elemento = contesto_.stato.Aperto().Di(chiave_);
    postoPrima_ = {elemento.X, elemento.Y};
}

void Trascinamento::Muove(const EventoMouse &evento)
{
    if (!FermoDopoDueVolte(evento.punto)) {
        const QPointF dentro =
            evento.punto - contesto_.elementi.ManigliaDi(chiave_.genere).Posto().topLeft();
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
    if (genere != Genere::Immagine) {
        x = Numeri::Ar(x);
        y = Numeri::Ar(y);
    }
    const GeometriaAnteprima &geometria = contesto_.geometria;
    const QPointF dopo(NelFoglio(prima.left() + x, prima.width(), geometria.LarghezzaFoglio()),
                       NelFoglio(prima.top() + y, prima.height(), geometria.AltezzaFoglio()));
    contesto_.elementi.MostraGuide(dopo, maniglia.Sfondo());
    if (dopo == prima.topLeft()) {
        return;
    }
    // An axis that did not move keeps the model's own digits.
    const StatoProgramma &stato = contesto_.stato;
    const Elemento &elemento = stato.Aperto().Di(chiave_);
    const QPointF posto(dopo.x() == prima.left() ? elemento.X : dopo.x() * stato.zoom,
                        dopo.y() == prima.top() ? elemento.Y : dopo.y() * stato.zoom);
    Passo &passo = passo_.Iniziato();
    passo.Trascina(chiave_,
                   {Riportato(posto.x(), postoPrima_.x()), Riportato(posto.y(), postoPrima_.y())});
    trascinato_ = true;
    passo.Mostra();
    emit contesto_.avvisi.ElementoInMano(genere, chiave_.indice);
}

void Trascinamento::Conclude(std::optional<QPointF> rilascio)
{
    contesto_.elementi.NascondeGuide();
    if (chiave_.genere == Genere::Campo) {
        // Placing rounds to whole millimetres of paper and takes a row field back to yInizio.
        passo_.Iniziato().Colloca(chiave_);
        passo_.Conclude();
    }
    emit contesto_.avvisi.ElementoInMano(chiave_.genere, chiave_.indice);
    AggiornaPuntatore();
    passo_.Conclude(); // what the properties change is a step of its own
    if (secondaPressione_ && rilascio) {
        emit contesto_.avvisi.RichiestaProprieta(chiave_.genere, chiave_.indice);
    }
}

bool Trascinamento::Rinuncia()
{
    passo_.Rinuncia();
    contesto_.elementi.NascondeGuide();
    emit contesto_.avvisi.ElementoInMano(chiave_.genere, chiave_.indice);
    return true;
}

void Trascinamento::AggiornaPuntatore()
{
    contesto_.foglio.ImpostaPuntatore(contesto_.elementi.ManigliaDi(chiave_.genere).Puntatore());
}
