#include "preview/Aggancio.h"

#include "documento/StatoProgramma.h"
#include "model/FoglioCarta.h"
#include "preview/ElementiFoglio.h"
#include "preview/GeometriaAnteprima.h"
#include "preview/GuideFoglio.h"

#include <QGraphicsScene>

namespace {

constexpr double PianoAggancio = 2.5e9; // in front of the guides and of the lines that mark a drag
constexpr QColor ColoreLinea(208, 16, 48);

void AggiungeTratto(QList<double> &linee, double inizio, double lunghezza)
{
    linee.append({inizio, inizio + lunghezza / 2, inizio + lunghezza});
}

} // namespace

Aggancio::Aggancio(const StatoProgramma &stato, const GeometriaAnteprima &geometria,
                   const ElementiFoglio &elementi, const GuideFoglio &guide, QGraphicsScene &scena)
    : stato_(stato)
    , geometria_(geometria)
    , elementi_(elementi)
    , guide_(guide)
    , lineaX_(new LineaGuida(QStringLiteral("LineaAgganciaX")))
    , lineaY_(new LineaGuida(QStringLiteral("LineaAgganciaY")))
{
    for (LineaGuida *linea : {lineaX_, lineaY_}) {
        linea->setZValue(PianoAggancio);
        scena.addItem(linea);
    }
}

void Aggancio::Attiva(bool attivo)
{
    attivo_ = attivo;
    if (!attivo_) {
        NascondeLinee();
    }
}

Aggancio::Calamite Aggancio::Raccoglie(const QList<Chiave> &mossi) const
{
    QList<double> x;
    QList<double> y;
    AggiungeTratto(x, 0, FoglioCarta::Larghezza);
    AggiungeTratto(y, 0, FoglioCarta::Altezza);
    for (const Genere genere : Generi) {
        for (int i = 1; i <= stato_.Aperto().UltimoSlot(genere); ++i) {
            if (!elementi_.InVista(genere, i) || mossi.contains(Chiave{genere, i})) {
                continue;
            }
            // As it shows: only the control knows how large a field is.
            const QRectF &posto = elementi_.Elemento(genere, i).Posto();
            AggiungeTratto(x, posto.left() * stato_.zoom, posto.width() * stato_.zoom);
            AggiungeTratto(y, posto.top() * stato_.zoom, posto.height() * stato_.zoom);
        }
    }
    for (const int guida : guide_.Poste(Qt::Vertical)) {
        x.append(guida);
    }
    for (const int guida : guide_.Poste(Qt::Horizontal)) {
        y.append(guida);
    }
    return {Calamita(std::move(x)), Calamita(std::move(y))};
}

void Aggancio::MostraLinee(std::optional<double> x, std::optional<double> y)
{
    lineaX_->setVisible(x.has_value());
    if (x) {
        const double posto = *x / stato_.zoom;
        lineaX_->Mostra({posto, 0}, {posto, geometria_.AltezzaFoglio()}, ColoreLinea);
    }
    lineaY_->setVisible(y.has_value());
    if (y) {
        const double posto = *y / stato_.zoom;
        lineaY_->Mostra({0, posto}, {geometria_.LarghezzaFoglio(), posto}, ColoreLinea);
    }
}
