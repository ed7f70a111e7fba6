#include "preview/Attrazione.h"

#include "documento/StatoProgramma.h"
#include "model/FoglioCarta.h"
#include "model/Numeri.h"
#include "preview/GeometriaAnteprima.h"

#include <algorithm>
#include <cmath>

namespace {

QList<Chiave> Mossi(const StatoProgramma &stato, Chiave chiave)
{
    return stato.selezione.EScelto(chiave) ? stato.selezione.Scelti() : QList<Chiave>{chiave};
}

std::optional<double> LineaDi(const std::optional<Calamita::Presa> &presa)
{
    return presa ? std::optional(presa->linea) : std::nullopt;
}

} // namespace

Attrazione::Attrazione(const ContestoGesto &contesto, Chiave chiave)
    : contesto_(contesto)
    , chiave_(chiave)
{
    if (contesto_.aggancio.Attivo()) {
        calamite_ = contesto_.aggancio.Raccoglie(Mossi(contesto_.stato, chiave));
    }
}

Attrazione::~Attrazione()
{
    NascondeLinee();
}

void Attrazione::NascondeLinee()
{
    if (calamite_) {
        contesto_.aggancio.NascondeLinee();
    }
}

bool Attrazione::InFunzione() const
{
    return calamite_ && contesto_.aggancio.Attivo() && !sospesa_;
}

double Attrazione::Limite(double foglio, double carta) const
{
    return std::min(foglio * contesto_.stato.zoom, carta);
}

QPointF Attrazione::Sposta(const QRectF &voluto, const QRectF &insieme, QPointF proposto)
{
    x_.reset();
    y_.reset();
    if (!InFunzione()) {
        NascondeLinee();
        return proposto;
    }
    const double zoom = contesto_.stato.zoom;
    const GeometriaAnteprima &geometria = contesto_.geometria;
    const auto presaX =
        calamite_->x.Tratto(voluto.left() * zoom, voluto.width() * zoom,
                            {(voluto.left() - insieme.left()) * zoom,
                             Limite(geometria.LarghezzaFoglio(), FoglioCarta::Larghezza) -
                                 (insieme.right() - voluto.left()) * zoom});
    const bool diRiga = chiave_.genere == Genere::Campo &&
                        CampoDiRiga(contesto_.stato.Aperto().Campi[chiave_.indice]);
    const auto presaY =
        diRiga ? std::nullopt
               : calamite_->y.Tratto(voluto.top() * zoom, voluto.height() * zoom,
                                     {(voluto.top() - insieme.top()) * zoom,
                                      Limite(geometria.AltezzaFoglio(), FoglioCarta::Altezza) -
                                          (insieme.bottom() - voluto.top()) * zoom});
    if (presaX) {
        x_ = presaX->posto;
        proposto.setX(presaX->posto / zoom);
    }
    if (presaY) {
        y_ = presaY->posto;
        proposto.setY(presaY->posto / zoom);
    }
    contesto_.aggancio.MostraLinee(LineaDi(presaX), LineaDi(presaY));
    return proposto;
}

QSizeF Attrazione::Ridimensiona(QPointF angolo, QPointF bordo, Presa presa, QSizeF proposta)
{
    x_.reset();
    y_.reset();
    if (!InFunzione()) {
        NascondeLinee();
        return proposta;
    }
    const double zoom = contesto_.stato.zoom;
    const GeometriaAnteprima &geometria = contesto_.geometria;
    const Elemento &elemento = contesto_.stato.Aperto().Di(chiave_);
    const QPointF voluto = (angolo + bordo) * zoom;
    std::optional<double> lineaX;
    std::optional<double> lineaY;
    if (Ridimensionamento::InLarghezza(presa)) {
        lineaX = Allunga(calamite_->x, voluto.x(), elemento.X,
                         Limite(geometria.LarghezzaFoglio(), FoglioCarta::Larghezza), x_);
        proposta.setWidth(x_ ? *x_ / zoom : proposta.width());
    }
    if (Ridimensionamento::InAltezza(presa)) {
        lineaY = Allunga(calamite_->y, voluto.y(), elemento.Y,
                         Limite(geometria.AltezzaFoglio(), FoglioCarta::Altezza), y_);
        proposta.setHeight(y_ ? *y_ / zoom : proposta.height());
    }
    contesto_.aggancio.MostraLinee(lineaX, lineaY);
    return proposta;
}

std::optional<double> Attrazione::Allunga(const Calamita &calamita, double bordo, double inizio,
                                          double limite, std::optional<int> &misura) const
{
    const std::optional<Calamita::Presa> presa = calamita.Bordo(bordo, limite);
    if (!presa) {
        return std::nullopt;
    }
    // A frame is placed on whole millimetres at the release, an image stays where it is.
    const double da = chiave_.genere == Genere::Cornice ? Numeri::Ar(inizio) : inizio;
    const double intera = std::min(Numeri::Ar(presa->linea - da), std::floor(limite - da));
    if (intera < FoglioCarta::MisuraMinima) {
        return std::nullopt;
    }
    misura = static_cast<int>(intera);
    return presa->linea;
}

QPointF Attrazione::Esatto(QPointF carta) const
{
    return {x_ ? *x_ : carta.x(), y_ ? *y_ : carta.y()};
}

QSizeF Attrazione::Esatta(QSizeF carta) const
{
    return {x_ ? *x_ : carta.width(), y_ ? *y_ : carta.height()};
}
