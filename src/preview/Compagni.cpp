#include "preview/Compagni.h"

#include "documento/Passo.h"
#include "documento/StatoProgramma.h"
#include "model/FoglioCarta.h"
#include "preview/ContorniScelti.h"
#include "preview/ElementiFoglio.h"
#include "preview/GeometriaAnteprima.h"
#include "preview/VistaFoglio.h"

#include <QStyleOptionGraphicsItem>

#include <algorithm>

namespace {

constexpr double PianoFigura = 1.6e9; // in front of the outlines, behind guides and handles

} // namespace

FiguraCompagni::FiguraCompagni(const QPixmap &figura, const QRectF &posto)
    : Controllo(QStringLiteral("Compagni"))
    , figura_(figura)
{
    setZValue(PianoFigura);
    Colloca(posto);
    setVisible(true);
}

void FiguraCompagni::paint(QPainter *penna, const QStyleOptionGraphicsItem *, QWidget *)
{
    // Pixel by pixel: anything else would scale it at every step.
    const QPoint angolo = penna->worldTransform().map(QPointF(0, 0)).toPoint();
    penna->save();
    penna->setWorldTransform(QTransform());
    penna->drawPixmap(angolo, figura_);
    penna->restore();
}

Compagni::Compagni(const ContestoGesto &contesto, Chiave inMano)
    : contesto_(contesto)
    , inMano_(inMano)
{
    const Selezione &selezione = contesto_.stato.selezione;
    if (!selezione.EScelto(inMano)) {
        return;
    }
    chiavi_ = selezione.Scelti();
    chiavi_.removeOne(inMano);
    gruppo_ = contesto_.elementi.Elemento(inMano.genere, inMano.indice).Posto();
    for (const Chiave &chiave : chiavi_) {
        const QRectF posto = contesto_.elementi.Elemento(chiave.genere, chiave.indice).Posto();
        gruppo_.setCoords(
            std::min(gruppo_.left(), posto.left()), std::min(gruppo_.top(), posto.top()),
            std::max(gruppo_.right(), posto.right()), std::max(gruppo_.bottom(), posto.bottom()));
    }
}

Compagni::~Compagni()
{
    Ripristina();
}

QPointF Compagni::FinoAlBordo(QPointF fatto, QPointF scarto) const
{
    const QRectF ora = gruppo_.translated(fatto);
    return {FoglioCarta::FinoAlBordo(ora.left(), ora.right(), contesto_.geometria.LarghezzaFoglio(),
                                     scarto.x()),
            FoglioCarta::FinoAlBordo(ora.top(), ora.bottom(), contesto_.geometria.AltezzaFoglio(),
                                     scarto.y())};
}

bool Compagni::ConInteri() const
{
    return inMano_.genere != Genere::Immagine ||
           std::any_of(chiavi_.begin(), chiavi_.end(),
                       [](Chiave chiave) { return chiave.genere != Genere::Immagine; });
}

void Compagni::Mostra(QPointF scarto)
{
    if (!figura_) {
        CreaFigura();
    }
    figura_->Muove(angoloFigura_ + scarto);
}

void Compagni::CreaFigura()
{
    // What lies off the sheet is not seen, wherever it may come in: it shows at the release.
    const QRectF foglio(0, 0, contesto_.geometria.LarghezzaFoglio(),
                        contesto_.geometria.AltezzaFoglio());
    const double margine = contesto_.geometria.Millimetri(4); // pixels, for the outlines
    const QRectF posto = gruppo_.adjusted(-margine, -margine, margine, margine).intersected(foglio);
    // On whole pixels, so that the picture lies on those it was made for.
    const QPointF angolo = contesto_.geometria.Millimetri(
        QPoint(contesto_.geometria.Pixel(posto.left()), contesto_.geometria.Pixel(posto.top())));
    const QRectF griglia(angolo, posto.bottomRight());
    angoloFigura_ = griglia.topLeft();
    const QPixmap figura = Dipinge(griglia);
    ImpostaVisti(false);
    figura_ = std::make_unique<FiguraCompagni>(figura, griglia);
    contesto_.elementi.Aggiunge(*figura_);
}

QPixmap Compagni::Dipinge(const QRectF &posto) const
{
    const double dpr = contesto_.foglio.devicePixelRatioF();
    const double scala = contesto_.geometria.PixelPerMillimetro();
    QPixmap figura((posto.size() * scala * dpr).toSize().expandedTo(QSize(1, 1)));
    figura.setDevicePixelRatio(dpr);
    figura.fill(Qt::transparent);
    QList<Controllo *> controlli;
    for (const Chiave &chiave : chiavi_) {
        controlli.append(&contesto_.elementi.Elemento(chiave.genere, chiave.indice));
        controlli.append(contesto_.elementi.ContornoDi(chiave));
    }
    std::stable_sort(controlli.begin(), controlli.end(), [](Controllo *sotto, Controllo *sopra) {
        return sotto->zValue() < sopra->zValue();
    });
    QPainter penna(&figura);
    for (Controllo *controllo : controlli) {
        QStyleOptionGraphicsItem opzioni;
        opzioni.exposedRect = controllo->boundingRect();
        penna.setWorldTransform(QTransform::fromScale(scala, scala));
        penna.translate(controllo->pos() - posto.topLeft());
        penna.save();
        controllo->paint(&penna, &opzioni, nullptr);
        penna.restore();
    }
    return figura;
}

void Compagni::ImpostaVisti(bool visti)
{
    for (const Chiave &chiave : chiavi_) {
        contesto_.elementi.Elemento(chiave.genere, chiave.indice).setOpacity(visti ? 1 : 0);
        contesto_.elementi.ContornoDi(chiave)->setOpacity(visti ? 1 : 0);
    }
}

void Compagni::Conclude(Passo &passo, QPointF millimetri)
{
    for (const Chiave &chiave : chiavi_) {
        const Elemento &elemento = contesto_.stato.Aperto().Di(chiave);
        passo.Trascina(chiave, QPointF(elemento.X, elemento.Y) + millimetri);
        passo.Colloca(chiave);
    }
}

void Compagni::Ripristina()
{
    if (figura_) {
        figura_.reset();
        ImpostaVisti(true);
    }
}
