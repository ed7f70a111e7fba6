#include "editor/CartaDellaStampante.h"

#include "base/ErroreSistema.h"
#include "finestre/Guardia.h"
#include "preview/Frm1.h"
#include "print/Stampanti.h"

#include <QEvent>
#include <QPageLayout>
#include <QPageSize>

namespace {

QSizeF MisuraA4()
{
    return QPageSize::size(QPageSize::A4, QPageSize::Millimeter);
}

} // namespace

CartaDellaStampante::CartaDellaStampante(Frm1 &anteprima, QWidget &editore)
    : anteprima_(anteprima)
    , daDipingere_{&anteprima, &editore}
{
    anteprima.installEventFilter(this);
    editore.installEventFilter(this);
    // Queued: the painting that is under way comes first.
    connect(
        this, &CartaDellaStampante::Dipinte, this,
        [this] { Guardia(&anteprima_, [this] { Chiede(); }); }, Qt::QueuedConnection);
}

bool CartaDellaStampante::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (evento->type() == QEvent::Paint && daDipingere_.removeOne(oggetto)) {
        oggetto->removeEventFilter(this);
        if (daDipingere_.isEmpty()) {
            emit Dipinte();
        }
    }
    return QObject::eventFilter(oggetto, evento);
}

void CartaDellaStampante::Chiede()
{
    ContorniCarta::Posti posti = SoloA4();
    try {
        posti = Contorni(Stampanti::PaginaPredefinita());
    } catch (const ErroreSistema &) {
        // Nobody has asked to print: who does is told why there is no printer.
    }
    anteprima_.MostraContorni(posti);
    emit Chiesta(Foglio(posti));
}

ContorniCarta::Posti CartaDellaStampante::Contorni(const QPageLayout &pagina)
{
    const QRectF carta = pagina.fullRect(QPageLayout::Millimeter);
    const QRectF stampabile = pagina.paintRect(QPageLayout::Millimeter);
    const QPointF angolo = carta.topLeft() - stampabile.topLeft();
    const QSizeF a4 =
        pagina.orientation() == QPageLayout::Landscape ? MisuraA4().transposed() : MisuraA4();
    return {QRectF(angolo, a4), QRectF(angolo, carta.size()), QRectF({0, 0}, stampabile.size())};
}

std::optional<FoglioStampante> CartaDellaStampante::Foglio(const ContorniCarta::Posti &posti)
{
    return posti.Carta.isEmpty() ? std::nullopt
                                 : std::optional(FoglioStampante{posti.Carta, posti.Stampabile});
}

ContorniCarta::Posti CartaDellaStampante::SoloA4()
{
    return {QRectF({0, 0}, MisuraA4()), {}, {}};
}
