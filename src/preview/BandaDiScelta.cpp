#include "preview/BandaDiScelta.h"

#include "documento/OrdineDiLettura.h"
#include "documento/StatoProgramma.h"
#include "preview/ElementiFoglio.h"
#include "preview/GeometriaAnteprima.h"
#include "preview/Tratti.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace {

constexpr double PianoBanda = 2e9;
constexpr QColor ColoreBanda(0x1f, 0x6f, 0xb5);
constexpr int Velatura = 40; // of 255

} // namespace

Banda::Banda()
    : Controllo(QStringLiteral("Banda"))
{
    setZValue(PianoBanda);
}

void Banda::paint(QPainter *penna, const QStyleOptionGraphicsItem *, QWidget *)
{
    QColor velo = ColoreBanda;
    velo.setAlpha(Velatura);
    const Tratti tratti(*penna);
    tratti.Pieno(Locale(), velo);
    tratti.Riquadro(Locale(), ColoreBanda);
}

BandaDiScelta::BandaDiScelta(const ContestoGesto &contesto, const EventoMouse &pressione)
    : PuntamentoFoglio(contesto, {}, pressione)
    , inizio_(pressione.punto)
    , tasti_(pressione.tasti)
{
}

BandaDiScelta::~BandaDiScelta() = default;

void BandaDiScelta::Muove(const EventoMouse &evento)
{
    PuntamentoFoglio::Muove(evento);
    if (!banda_) {
        const double soglia =
            Contesto().geometria.Millimetri(QGuiApplication::styleHints()->startDragDistance());
        if ((evento.punto - inizio_).manhattanLength() < soglia) {
            return;
        }
        banda_ = std::make_unique<Banda>();
        Contesto().elementi.Aggiunge(*banda_);
        banda_->setVisible(true);
    }
    banda_->Colloca(QRectF(inizio_, evento.punto).normalized());
}

QList<Chiave> BandaDiScelta::Dentro() const
{
    QList<Chiave> dentro = OrdineDiLettura(Contesto().stato.documento);
    dentro.removeIf([this](Chiave chiave) {
        return !banda_->Posto().contains(
            Contesto().elementi.Elemento(chiave.genere, chiave.indice).Posto());
    });
    return dentro;
}

void BandaDiScelta::Conclude(std::optional<QPointF> rilascio)
{
    Selezione &selezione = Contesto().stato.selezione;
    if (banda_) {
        const QList<Chiave> dentro = Dentro();
        banda_.reset();
        if (tasti_ & Qt::ShiftModifier) {
            selezione.AggiungeScelti(dentro);
        } else {
            selezione.ImpostaScelti(dentro);
        }
    } else if (rilascio && !(tasti_ & (Qt::ShiftModifier | Qt::ControlModifier))) {
        selezione.SvuotaScelti();
    }
    PuntamentoFoglio::Conclude(rilascio);
}

bool BandaDiScelta::Rinuncia()
{
    return std::exchange(banda_, nullptr) != nullptr;
}
