#include "preview/Righelli.h"

#include "model/Tavolozza.h"
#include "preview/Tratti.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double PassoCentimetro = 10; // mm of paper
constexpr double MezzoCentimetro = 5;  // mm of paper
constexpr double FineTacca = 6;        // mm of screen, across the ruler
constexpr double ScostamentoScritta = 2;
constexpr double PuntiScritta = 5; // two digits end at their tick

/// Adds a tick at da, da + passo, ... up to fine included. Counting the steps, instead of adding
/// them up, keeps the last tick where the sum would have drifted past the end.
template <typename Azione>
void Percorre(double da, double fine, double passo, Azione &&azione)
{
    const int passi = static_cast<int>(std::floor((fine - da) / passo + 1e-6));
    for (int k = 0; k <= passi; ++k) {
        azione(da + k * passo, k);
    }
}

} // namespace

SegniRighello CalcolaRighello(double lunghezza, double zoom)
{
    SegniRighello segni;
    const double passo = PassoCentimetro / zoom;
    Percorre(0, lunghezza, passo, [&segni](double posto, int centimetro) {
        segni.tacche.append({posto, 1, FineTacca});
        segni.scritte.append({posto, QString::number(centimetro)});
    });
    Percorre(MezzoCentimetro / zoom, lunghezza, passo, [&segni](double posto, int) {
        segni.tacche.append({posto, 4, FineTacca});
    });
    if (zoom > 1) {
        return segni;
    }
    Percorre(0, lunghezza, 1, [&segni](double posto, int) {
        segni.tacche.append({posto, 5, FineTacca});
    });
    return segni;
}

RighelloFoglio::RighelloFoglio(Qt::Orientation verso, double pixelPerMillimetro, QWidget *padre)
    : QWidget(padre)
    , verso_(verso)
    , pixelPerMillimetro_(pixelPerMillimetro)
{
    setToolTip(QStringLiteral("righello in millimetri"));
    QFont carattere(QStringLiteral("Arial"));
    carattere.setPointSizeF(PuntiScritta);
    setFont(carattere);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void RighelloFoglio::Mostra(SegniRighello segni)
{
    segni_ = std::move(segni);
    update();
}

void RighelloFoglio::paintEvent(QPaintEvent *evento)
{
    QPainter penna(this);
    const QRect esposto = evento->rect();
    penna.fillRect(esposto, palette().window());
    const bool orizzontale = verso_ == Qt::Horizontal;
    const double primo = orizzontale ? esposto.left() : esposto.top();
    const double ultimo = orizzontale ? esposto.right() : esposto.bottom();
    // A label stands before its tick, so ticks just outside the exposed part count too.
    constexpr double Margine = 4;
    const double da = primo / pixelPerMillimetro_ - Margine;
    const double a = ultimo / pixelPerMillimetro_ + Margine;
    DipingeScritte(penna, da, a);
    DipingeTacche(penna, da, a); // after the digits, so that none breaks a tick
    DipingeGuide(penna);
}

void RighelloFoglio::ImpostaSegni(const QList<double> &guide, const QColor &colore)
{
    if (guide != guide_) {
        guide_ = guide;
        coloreGuide_ = colore;
        update();
    }
}

void RighelloFoglio::DipingeGuide(QPainter &penna) const
{
    if (guide_.isEmpty()) {
        return;
    }
    constexpr double Meta = 1.1; // mm of screen, half of a mark
    constexpr double Punta = 2;  // mm of screen, to its point on the sheet's side
    const bool orizzontale = verso_ == Qt::Horizontal;
    const double fine = orizzontale ? height() : width();
    const double base = fine - Punta * pixelPerMillimetro_;
    penna.setRenderHint(QPainter::Antialiasing);
    penna.setPen(Qt::NoPen);
    penna.setBrush(coloreGuide_);
    for (const double guida : guide_) {
        const double lungo = guida * pixelPerMillimetro_;
        const double meta = Meta * pixelPerMillimetro_;
        QPolygonF segno{{lungo - meta, base}, {lungo + meta, base}, {lungo, fine}};
        if (!orizzontale) {
            for (QPointF &vertice : segno) {
                vertice = vertice.transposed();
            }
        }
        penna.drawPolygon(segno);
    }
}

void RighelloFoglio::DipingeTacche(QPainter &penna, double da, double a) const
{
    const QColor colore(Tavolozza::Rgb(Tavolozza::VerdeScuro));
    const Tratti tratti(penna);
    const bool orizzontale = verso_ == Qt::Horizontal;
    // The tick that ends the ruler would fall on the first pixel beyond it.
    const double ultimo = (orizzontale ? width() : height()) - 1;
    for (const SegniRighello::Tacca &tacca : segni_.tacche) {
        if (tacca.posto < da || tacca.posto > a) {
            continue;
        }
        const double lungo = std::min(tacca.posto * pixelPerMillimetro_, ultimo);
        const double inizio = tacca.da * pixelPerMillimetro_;
        const double fine = tacca.a * pixelPerMillimetro_;
        if (orizzontale) {
            tratti.Verticale(lungo, inizio, fine, colore);
        } else {
            tratti.Orizzontale(lungo, inizio, fine, colore);
        }
    }
}

void RighelloFoglio::DipingeScritte(QPainter &penna, double da, double a) const
{
    const double salita = penna.fontMetrics().ascent();
    penna.setPen(palette().color(QPalette::WindowText));
    for (const SegniRighello::Scritta &scritta : segni_.scritte) {
        if (scritta.posto < da || scritta.posto > a) {
            continue;
        }
        // The label of the tick at 0 would stand outside the ruler, where nobody sees it.
        const double lungo =
            std::max(0.0, scritta.posto - ScostamentoScritta) * pixelPerMillimetro_;
        const QPointF angolo = verso_ == Qt::Horizontal ? QPointF(lungo, 0) : QPointF(0, lungo);
        penna.drawText(angolo + QPointF(0, salita), scritta.testo);
    }
}
