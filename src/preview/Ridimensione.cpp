#include "preview/Ridimensione.h"

#include "documento/StatoProgramma.h"
#include "model/FoglioCarta.h"
#include "preview/AvvisiFoglio.h"
#include "preview/ElementiFoglio.h"
#include "preview/GeometriaAnteprima.h"
#include "preview/VistaFoglio.h"

#include <algorithm>
#include <cmath>

namespace {

/// Whole millimetres in a length that a division by the zoom may have left a hair too short.
double Interi(double millimetri)
{
    return std::floor(millimetri + 1e-9);
}

/// One side of a frame: rounding must not push a gripped edge past the sheet, or farther past it
/// than it was.
double Limitato(double lato, double restante, double prima)
{
    return Interi(restante) < FoglioCarta::MisuraMinima
               ? lato
               : std::min(lato, std::max(Interi(restante), prima));
}

} // namespace

Ridimensione::Ridimensione(const ContestoGesto &contesto, Chiave chiave, Presa presa,
                           const EventoMouse &pressione)
    : PuntamentoFoglio(contesto, {Bersaglio::Cosa::Elemento, chiave}, pressione)
    , presa_(presa)
    , pressione_(pressione)
    , cartaPrima_(Carta())
    , attrazione_(contesto, chiave)
    , passo_(contesto.stato, chiave, QLatin1String("ridimensiona"))
{
    ControlloElemento &controllo = contesto.elementi.Elemento(chiave.genere, chiave.indice);
    controllo.ImpostaPuntatore(Ridimensionamento::Puntatore(presa_));
    misura_ = controllo.Posto().size();
    partenza_ = pressione.punto - controllo.Posto().topLeft();
    scarto_ = QPointF(misura_.width(), misura_.height()) - partenza_;
}

void Ridimensione::Muove(const EventoMouse &evento)
{
    Sorvola();
    if (Contesto().mira.Ridimensionabile(Puntato())) {
        ControlloElemento &controllo =
            Contesto().elementi.Elemento(Puntato().genere, Puntato().indice);
        controllo.ImpostaPuntatore(Ridimensionamento::Puntatore(presa_));
        attrazione_.Sospende(evento.tasti & Qt::AltModifier);
        RidimensionaFino(evento.punto - controllo.Posto().topLeft());
    }
    AggiornaPuntatore();
}

void Ridimensione::RidimensionaFino(QPointF dentro)
{
    if (!avviata_ && dentro == partenza_) {
        return;
    }
    avviata_ = true;
    const ContestoGesto &contesto = Contesto();
    const QPointF angolo =
        contesto.elementi.Elemento(Puntato().genere, Puntato().indice).Posto().topLeft();
    const QPointF bordo = dentro + scarto_;
    const QSizeF misura = Ridimensionamento::Misura(
        QRectF(angolo, misura_), presa_, bordo, FoglioCarta::MisuraMinima / contesto.stato.zoom,
        {contesto.geometria.LarghezzaFoglio(), contesto.geometria.AltezzaFoglio()});
    ApplicaMisura(attrazione_.Ridimensiona(angolo, bordo, presa_, misura));
}

void Ridimensione::ApplicaMisura(QSizeF misura)
{
    const auto [genere, i] = Puntato();
    const QSizeF prima = Contesto().elementi.Elemento(genere, i).Posto().size();
    if (misura == prima) {
        return;
    }
    ImpostaElastico(true);
    const double zoom = Contesto().stato.zoom;
    // An axis that did not move keeps the model's own digits.
    QSizeF carta = Carta();
    if (misura.width() != prima.width()) {
        carta.setWidth(misura.width() * zoom);
    }
    if (misura.height() != prima.height()) {
        carta.setHeight(misura.height() * zoom);
    }
    carta = attrazione_.Esatta(carta);
    Passo &passo = passo_.Iniziato();
    passo.Ridimensiona({genere, i}, {Riportato(carta.width(), cartaPrima_.width()),
                                     Riportato(carta.height(), cartaPrima_.height())});
    passo.Mostra();
    emit Contesto().avvisi.ElementoInMano(genere, i);
}

QSizeF Ridimensione::Carta() const
{
    const auto [genere, i] = Puntato();
    const Modello &modello = Contesto().stato.Aperto();
    return genere == Genere::Cornice
               ? QSizeF(modello.Cornici[i].Larghezza, modello.Cornici[i].Altezza)
               : QSizeF(modello.Immagini[i].Larghezza, modello.Immagini[i].Altezza);
}

void Ridimensione::ImpostaElastico(bool elastico)
{
    if (Puntato().genere == Genere::Immagine) {
        static_cast<RiquadroImmagine &>(
            Contesto().elementi.Elemento(Puntato().genere, Puntato().indice))
            .ImpostaElastico(elastico);
    }
}

void Ridimensione::Conclude(std::optional<QPointF> rilascio)
{
    attrazione_.NascondeLinee();
    if (avviata_) {
        ImpostaElastico(false);
        if (Puntato().genere == Genere::Cornice) {
            MisuraDiCornice();
        }
    }
    PuntamentoFoglio::Conclude(rilascio);
    passo_.Conclude();
    const ContestoGesto &contesto = Contesto();
    if (!avviata_ && rilascio &&
        !contesto.elementi.Elemento(Puntato().genere, Puntato().indice)
             .Posto()
             .contains(*rilascio)) {
        // Pressed beside the element and not moved: the click is that of what lies there.
        PuntamentoFoglio(contesto, contesto.mira.Sotto(*rilascio), pressione_).Conclude(rilascio);
    }
}

void Ridimensione::MisuraDiCornice()
{
    // A frame is placed on whole millimetres. The edges that were not gripped stay wherever they
    // are.
    Passo &passo = passo_.Iniziato();
    passo.Colloca(Puntato());
    const Cornice &cornice = Contesto().stato.Aperto().Cornici[Puntato().indice];
    const double zoom = Contesto().stato.zoom;
    QSizeF misura(cornice.Larghezza, cornice.Altezza);
    if (Ridimensionamento::InLarghezza(presa_)) {
        misura.setWidth(Limitato(misura.width(),
                                 Contesto().geometria.LarghezzaFoglio() * zoom - cornice.X,
                                 cartaPrima_.width()));
    }
    if (Ridimensionamento::InAltezza(presa_)) {
        misura.setHeight(Limitato(misura.height(),
                                  Contesto().geometria.AltezzaFoglio() * zoom - cornice.Y,
                                  cartaPrima_.height()));
    }
    passo.Ridimensiona(Puntato(), misura);
    passo.Colloca(Puntato());
}

bool Ridimensione::Rinuncia()
{
    passo_.Rinuncia();
    attrazione_.NascondeLinee();
    ImpostaElastico(false);
    emit Contesto().avvisi.ElementoInMano(Puntato().genere, Puntato().indice);
    return true;
}
