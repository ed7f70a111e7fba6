// The gestures that change the model: dragging by a handle, resizing by an edge.

#include "documento/Passo.h"
#include "documento/StatoProgramma.h"
#include "model/Numeri.h"
#include "preview/ElementiFoglio.h"
#include "preview/GeometriaAnteprima.h"
#include "preview/ManiSulFoglio.h"

#include <algorithm>
#include <cmath>

namespace {

// Pixels.
constexpr double ZonaBordo = 6;
constexpr double FuoriBordo = 3;
constexpr double OltreManiglia = 4;

constexpr double MisuraMinima = 1; // mm of paper

/// Whole millimetres in a length that a division by the zoom may have left a hair too short.
double Interi(double millimetri)
{
    return std::floor(millimetri + 1e-9);
}

/// The same length, where only the arithmetic of the way there and back tells them apart.
double Riportato(double millimetri, double prima)
{
    constexpr double Inezia = 1e-6;
    return std::abs(millimetri - prima) < Inezia ? prima : millimetri;
}

double NelFoglio(double posto, double misura, double foglio)
{
    const double dopoInizio = posto < 0 ? 0 : posto;
    // The far edge has the last word: an element larger than the sheet ends flush with it.
    return dopoInizio > foglio - misura ? foglio - misura : dopoInizio;
}

} // namespace

Passo &ManiSulFoglio::PassoDi(Genere genere, int i, QLatin1String verbo)
{
    if (!passo_) {
        passo_ = std::make_unique<Passo>(stato_.documento,
                                         verbo + u' ' + stato_.Aperto().Nome(genere, i));
        passo_->SoloSeCambia();
    }
    return *passo_;
}

void ManiSulFoglio::ConcludePassoIsolato()
{
    if (preso_.preso == Preso::Niente) {
        passo_.reset();
    }
}

void ManiSulFoglio::Sposta(Genere genere, int i, Qt::MouseButtons bottoni, double x, double y)
{
    Maniglia &maniglia = elementi_.ManigliaDi(genere);
    ControlloElemento &controllo = elementi_.Elemento(genere, i);
    if (!(bottoni & Qt::LeftButton) || maniglia.Puntatore() != Qt::SizeAllCursor) {
        return;
    }
    if (genere != Genere::Immagine) {
        x = Numeri::Ar(x);
        y = Numeri::Ar(y);
    }
    const QRectF prima = controllo.Posto();
    const QPointF dopo(NelFoglio(prima.left() + x, prima.width(), geometria_.LarghezzaFoglio()),
                       NelFoglio(prima.top() + y, prima.height(), geometria_.AltezzaFoglio()));
    elementi_.MostraGuide(dopo, maniglia.Sfondo());
    if (dopo == prima.topLeft()) {
        return;
    }
    // An axis that did not move keeps the model's own digits.
    const Elemento &elemento = stato_.Aperto().Di({genere, i});
    QPointF posto(dopo.x() == prima.left() ? elemento.X : dopo.x() * stato_.zoom,
                  dopo.y() == prima.top() ? elemento.Y : dopo.y() * stato_.zoom);
    if (preso_.preso != Preso::Niente) {
        posto = {Riportato(posto.x(), preso_.postoPrima.x()),
                 Riportato(posto.y(), preso_.postoPrima.y())};
    }
    Passo &passo = PassoDi(genere, i, VerboSposta);
    passo.Trascina({genere, i}, posto);
    passo.Mostra();
    preso_.trascinato = true;
    emit ElementoInMano(genere, i);
    ConcludePassoIsolato();
}

bool ManiSulFoglio::Ridimensionabile(Genere genere, int i) const
{
    if (genere == Genere::Campo || elementi_.Selezionato(genere) != i) {
        return false;
    }
    if (genere == Genere::Immagine) {
        return true;
    }
    return stato_.Aperto().Cornici[i].Ridimensionabile();
}

bool ManiSulFoglio::SulBordoSelezionato(Genere genere, QPointF punto) const
{
    const int i = elementi_.Selezionato(genere);
    if (i == 0 || !Ridimensionabile(genere, i)) {
        return false;
    }
    const QRectF &posto = elementi_.Elemento(genere, i).Posto();
    const double lato = elementi_.ManigliaDi(genere).Posto().width();
    // On an element that its handle covers, the edges can still be gripped past the handle.
    const double fuori =
        std::max(geometria_.Millimetri(FuoriBordo), lato + geometria_.Millimetri(OltreManiglia) -
                                                        std::min(posto.width(), posto.height()));
    return Ridimensionamento::PresaIn(posto.size(), punto - posto.topLeft(),
                                      geometria_.Millimetri(ZonaBordo), fuori) != Presa::Nessuna;
}

void ManiSulFoglio::RidimensionaCornice(int i, Qt::MouseButtons bottoni, double x, double y)
{
    Ridimensiona(Genere::Cornice, i, bottoni, {x, y});
}

void ManiSulFoglio::RidimensionaImmagine(int i, Qt::MouseButtons bottoni, double x, double y)
{
    Ridimensiona(Genere::Immagine, i, bottoni, {x, y});
}

void ManiSulFoglio::Ridimensiona(Genere genere, int i, Qt::MouseButtons bottoni, QPointF punto)
{
    ControlloElemento &controllo = elementi_.Elemento(genere, i);
    const QRectF posto = controllo.Posto();
    const bool sinistro = bottoni & Qt::LeftButton;
    if (!sinistro || !ridimensione_.premuto) {
        // Wide outside: whoever calls has already decided that the pointer is on this element.
        const Presa presa = Ridimensionamento::PresaIn(
            posto.size(), punto, geometria_.Millimetri(ZonaBordo), geometria_.LarghezzaFoglio());
        controllo.ImpostaPuntatore(Ridimensionamento::Puntatore(presa));
        ridimensione_ = {};
        if (sinistro) {
            // What is gripped is decided once: a press elsewhere never turns into a resize.
            ridimensione_ = {presa, punto, posto.size(),
                             QPointF(posto.width(), posto.height()) - punto, true};
        }
        return;
    }
    controllo.ImpostaPuntatore(Ridimensionamento::Puntatore(ridimensione_.presa));
    if (ridimensione_.presa == Presa::Nessuna ||
        (!ridimensione_.avviata && punto == ridimensione_.partenza)) {
        return;
    }
    ridimensione_.avviata = true;
    ApplicaMisura(genere, i,
                  Ridimensionamento::Misura(
                      QRectF(posto.topLeft(), ridimensione_.misura), ridimensione_.presa,
                      punto + ridimensione_.scarto, MisuraMinima / stato_.zoom,
                      {geometria_.LarghezzaFoglio(), geometria_.AltezzaFoglio()}));
}

void ManiSulFoglio::ApplicaMisura(Genere genere, int i, QSizeF misura)
{
    ControlloElemento &controllo = elementi_.Elemento(genere, i);
    const QSizeF prima = controllo.Posto().size();
    if (misura == prima) {
        return;
    }
    if (genere == Genere::Immagine) {
        static_cast<RiquadroImmagine &>(controllo).ImpostaElastico(true);
    }
    QSizeF carta = MisuraDi(genere, i);
    if (misura.width() != prima.width()) {
        carta.setWidth(misura.width() * stato_.zoom);
    }
    if (misura.height() != prima.height()) {
        carta.setHeight(misura.height() * stato_.zoom);
    }
    if (preso_.preso != Preso::Niente) {
        carta = {Riportato(carta.width(), preso_.misuraPrima.width()),
                 Riportato(carta.height(), preso_.misuraPrima.height())};
    }
    Passo &passo = PassoDi(genere, i, VerboRidimensiona);
    passo.Ridimensiona({genere, i}, carta);
    passo.Mostra();
    emit ElementoInMano(genere, i);
    ConcludePassoIsolato();
}

void ManiSulFoglio::ConcludeRidimensione(const Cattura &preso, Presa presa)
{
    const int i = preso.indice;
    if (preso.genere == Genere::Immagine) {
        static_cast<RiquadroImmagine &>(elementi_.Elemento(preso.genere, i)).ImpostaElastico(false);
        return;
    }
    // A frame is placed on whole millimetres; rounding must not push a gripped edge past the sheet,
    // or farther past it than it was. The other edges stay wherever they are.
    const Chiave chiave{preso.genere, i};
    Passo &passo = PassoDi(preso.genere, i, VerboRidimensiona);
    passo.Colloca(chiave);
    const Cornice &cornice = stato_.Aperto().Cornici[i];
    QSizeF misura(cornice.Larghezza, cornice.Altezza);
    const auto limita = [](double &lato, double foglio, double prima) {
        if (Interi(foglio) >= MisuraMinima) {
            lato = std::min(lato, std::max(Interi(foglio), prima));
        }
    };
    if (Ridimensionamento::InLarghezza(presa)) {
        limita(misura.rwidth(), geometria_.LarghezzaFoglio() * stato_.zoom - cornice.X,
               preso.misuraPrima.width());
    }
    if (Ridimensionamento::InAltezza(presa)) {
        limita(misura.rheight(), geometria_.AltezzaFoglio() * stato_.zoom - cornice.Y,
               preso.misuraPrima.height());
    }
    passo.Ridimensiona(chiave, misura);
    passo.Colloca(chiave);
}
