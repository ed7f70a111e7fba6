#include "preview/ComandiZoom.h"

#include "documento/StatoProgramma.h"
#include "finestre/Comandi.h"
#include "finestre/Guardia.h"
#include "finestre/IconeVista.h"
#include "model/FoglioCarta.h"
#include "preview/Frm1.h"
#include "preview/PartiAnteprima.h"
#include "preview/PulsantiStriscia.h"
#include "preview/VistaFoglio.h"

#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr double ScattiPerUnita = 10; // of zoom
constexpr double BriciolaZoom = 1e-9;

/// The same number without what adding tenths leaves behind the comma.
double Pulito(double zoom)
{
    constexpr double Cifre = 1e6;
    return std::round(zoom * Cifre) / Cifre;
}

} // namespace

ComandiZoom::ComandiZoom(Frm1 &finestra, PartiAnteprima &parti, const StatoProgramma &stato)
    : finestra_(finestra)
    , parti_(parti)
    , stato_(stato)
    , adatta_(CreaComando(
          this, QStringLiteral("Adatta"), QStringLiteral("Adatta: mostra tutto il foglio"),
          {QKeySequence(Qt::CTRL | Qt::Key_0)}, IconaAdatta(PulsantiStriscia::LatoIcona)))
    , unoAUno_(CreaComando(
          this, QStringLiteral("UnoAUno"), QStringLiteral("Grandezza naturale 1:1"),
          {QKeySequence(Qt::CTRL | Qt::Key_1)}, IconaUnoAUno(PulsantiStriscia::LatoIcona)))
{
    Collega(adatta_, &QAction::triggered, &finestra_, [this] { ApplicaAdatta(); });
    Collega(unoAUno_, &QAction::triggered, &finestra_,
            [this] { finestra_.ImpostaZoom(GeometriaAnteprima::ZoomMinimo); });
}

double ComandiZoom::ZoomCheAdatta(const QSizeF &vista)
{
    if (vista.isEmpty()) {
        return GeometriaAnteprima::ZoomMassimo;
    }
    const double serve =
        std::max(FoglioCarta::Larghezza / vista.width(), FoglioCarta::Altezza / vista.height());
    return std::clamp(std::ceil(serve * ScattiPerUnita - BriciolaZoom) / ScattiPerUnita,
                      GeometriaAnteprima::ZoomMinimo, GeometriaAnteprima::ZoomMassimo);
}

void ComandiZoom::ApplicaAdatta()
{
    if (finestra_.ImpostaZoom(ZoomCheAdatta(parti_.VistaInMillimetri()))) {
        parti_.ScrollX->setValue(0);
        parti_.ScrollY->setValue(0);
    }
}

void ComandiZoom::Gira(const QWheelEvent &evento)
{
    giro_ += evento.angleDelta().y();
    const int scatti = giro_ / QWheelEvent::DefaultDeltasPerStep;
    giro_ -= scatti * QWheelEvent::DefaultDeltasPerStep;
    if (scatti != 0) {
        ZoomAttorno(std::clamp(Pulito(stato_.zoom - scatti / ScattiPerUnita),
                               GeometriaAnteprima::ZoomMinimo, GeometriaAnteprima::ZoomMassimo),
                    evento.position().toPoint());
    }
}

void ComandiZoom::ZoomAttorno(double zoom, QPoint puntatore)
{
    const GeometriaAnteprima &geometria = parti_.geometria;
    // Over a ruler or the strip it is the nearest point in sight that stays.
    const QPoint nellArea = parti_.AreaFoglio->mapFrom(&finestra_, puntatore);
    const QRect area = parti_.AreaFoglio->rect();
    const QPoint visto(std::clamp(nellArea.x(), area.left(), std::max(area.left(), area.right())),
                       std::clamp(nellArea.y(), area.top(), std::max(area.top(), area.bottom())));
    if (!ancora_ || ancora_->puntatore != puntatore || ancora_->scorrimento != Scorrimento() ||
        ancora_->zoom != stato_.zoom) {
        const QPoint sulFoglio = visto - parti_.P1->pos();
        ancora_ = Ancora{puntatore, {}, {}, geometria.Millimetri(QPointF(sulFoglio)) * stato_.zoom};
    }
    if (!finestra_.ImpostaZoom(zoom)) {
        return;
    }
    const QPointF riposo(parti_.P1Left0, parti_.P1Top0);
    const QPointF scorrimento =
        ancora_->carta / stato_.zoom - geometria.Millimetri(QPointF(visto) - riposo);
    parti_.ScrollX->setValue(static_cast<int>(std::lround(scorrimento.x())));
    parti_.ScrollY->setValue(static_cast<int>(std::lround(scorrimento.y())));
    ancora_->scorrimento = Scorrimento();
    ancora_->zoom = stato_.zoom;
}

QPoint ComandiZoom::Scorrimento() const
{
    return {parti_.ScrollX->value(), parti_.ScrollY->value()};
}
