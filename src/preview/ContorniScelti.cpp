#include "preview/ContorniScelti.h"

#include "documento/Selezione.h"
#include "preview/Tratti.h"

#include <QGraphicsScene>

namespace {

// Between the simulated rows and the guide lines.
constexpr double PianoContorni = 1.5e9;

// Device-independent pixels.
constexpr double Distanza = 2;
constexpr double Sottile = 1;
constexpr double Grosso = 2;

/// More than Distanza and Grosso are on any screen.
constexpr double MargineMillimetri = 1.5;

} // namespace

ContornoScelto::ContornoScelto(Chiave chiave)
    : Controllo(QStringLiteral("Scelto%1(%2)").arg(::Posto(chiave.genere) + 1).arg(chiave.indice))
{
    setZValue(PianoContorni);
}

void ContornoScelto::ImpostaSpesso(bool spesso)
{
    if (spesso != spesso_) {
        spesso_ = spesso;
        update();
    }
}

QRectF ContornoScelto::Dipinto() const
{
    return Locale().adjusted(-MargineMillimetri, -MargineMillimetri, MargineMillimetri,
                             MargineMillimetri);
}

void ContornoScelto::paint(QPainter *penna, const QStyleOptionGraphicsItem *, QWidget *)
{
    const double spessore = spesso_ ? Grosso : Sottile;
    const double fuori = Distanza - spessore / 2;
    const QRectF riquadro =
        Tratti(*penna).SullaGriglia(Locale()).adjusted(-fuori, -fuori, fuori, fuori);
    penna->save();
    penna->setWorldTransform(QTransform());
    penna->setBrush(Qt::NoBrush);
    // White between the dashes: they can be seen on whatever the outline crosses.
    penna->setPen(QPen(Qt::white, spessore));
    penna->drawRect(riquadro);
    QPen tratteggio(Colore, spessore);
    tratteggio.setDashPattern({4 / spessore, 3 / spessore});
    tratteggio.setCapStyle(Qt::FlatCap);
    penna->setPen(tratteggio);
    penna->drawRect(riquadro);
    penna->restore();
}

ContorniScelti::ContorniScelti(QGraphicsScene &scena, const Selezione &selezione)
    : scena_(scena)
    , selezione_(selezione)
{
}

ContornoScelto *ContorniScelti::Di(Chiave chiave) const
{
    return contorni_.at(Posto(chiave.genere))[chiave.indice];
}

ContornoScelto &ContorniScelti::Crea(Chiave chiave)
{
    ContornoScelto *&contorno = contorni_.at(Posto(chiave.genere))[chiave.indice];
    if (contorno == nullptr) {
        contorno = new ContornoScelto(chiave);
        scena_.addItem(contorno);
    }
    return *contorno;
}

void ContorniScelti::Mostra(const std::function<QRectF(Chiave)> &dove)
{
    for (const Chiave &chiave : mostrati_) {
        if (!selezione_.EScelto(chiave)) {
            Di(chiave)->setVisible(false);
        }
    }
    mostrati_ = selezione_.Scelti();
    for (const Chiave &chiave : mostrati_) {
        ContornoScelto &contorno = Crea(chiave);
        contorno.Colloca(dove(chiave));
        contorno.ImpostaSpesso(chiave == mostrati_.constLast());
        contorno.setVisible(true);
    }
}

void ContorniScelti::Segue(Chiave chiave, const QRectF &posto)
{
    if (ContornoScelto *contorno = Di(chiave)) {
        contorno->Colloca(posto);
    }
}
