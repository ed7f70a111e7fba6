#include "preview/ContorniCarta.h"

#include "preview/ContornoCarta.h"

#include <QGraphicsScene>

#include <algorithm>
#include <cmath>

namespace {

/// Elements that are sent to the back are numbered downwards from 0 and never get so far.
constexpr double PianoCarta = -1e9;
/// Sheets of the same name differ by as much, in points or in whole millimetres.
constexpr double StessoFoglio = 0.5; // mm

bool Uguali(const QRectF &uno, const QRectF &altro)
{
    return std::abs(uno.left() - altro.left()) < StessoFoglio &&
           std::abs(uno.top() - altro.top()) < StessoFoglio &&
           std::abs(uno.right() - altro.right()) < StessoFoglio &&
           std::abs(uno.bottom() - altro.bottom()) < StessoFoglio;
}

} // namespace

ContorniCarta::ContorniCarta(QGraphicsScene &scena)
    : contorni_{
          new ContornoCarta(QStringLiteral("ContornoA4"), QColor(0x60, 0x60, 0x60), 4, 2),
          new ContornoCarta(QStringLiteral("ContornoCarta"), QColor(0x8a, 0x58, 0x00), 2, 1.5),
          new ContornoCarta(QStringLiteral("ContornoStampabile"), QColor(0x00, 0x70, 0x7f), 0.8, 1),
      }
{
    for (ContornoCarta *contorno : contorni_) {
        contorno->setZValue(PianoCarta);
        scena.addItem(contorno);
    }
}

void ContorniCarta::Imposta(const Posti &posti, double zoom)
{
    posti_ = {posti.A4, posti.Carta, posti.Stampabile};
    for (auto posto = posti_.begin(); posto != posti_.end(); ++posto) {
        const bool doppio = std::any_of(posti_.begin(), posto, [&](const QRectF &altro) {
            return !altro.isEmpty() && Uguali(*posto, altro);
        });
        if (doppio) {
            *posto = {};
        }
    }
    SegueZoom(zoom);
}

void ContorniCarta::SegueZoom(double zoom)
{
    zoom_ = zoom;
    Mostra();
}

void ContorniCarta::ImpostaInVista(bool inVista)
{
    inVista_ = inVista;
    Mostra();
}

void ContorniCarta::Mostra()
{
    for (std::size_t k = 0; k < contorni_.size(); ++k) {
        const QRectF &posto = posti_.at(k);
        contorni_.at(k)->Colloca({posto.topLeft() / zoom_, posto.size() / zoom_});
        contorni_.at(k)->setVisible(inVista_ && !posto.isEmpty());
    }
}

QString ContorniCarta::Legenda()
{
    return QStringLiteral("A4 in grigio, carta della stampante predefinita in marrone, area "
                          "stampabile in turchese a puntini");
}
