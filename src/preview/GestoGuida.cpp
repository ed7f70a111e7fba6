#include "preview/GestoGuida.h"

#include "preview/GeometriaAnteprima.h"
#include "preview/VistaFoglio.h"

GestoGuida::GestoGuida(const ContestoGesto &contesto, GuideFoglio::Guida guida,
                       const EventoMouse &pressione)
    : PuntamentoFoglio(contesto, {}, pressione)
{
    contesto.guide.Prende(guida.verso, guida.posto, pressione.punto);
}

void GestoGuida::Muove(const EventoMouse &evento)
{
    PuntamentoFoglio::Muove(evento);
    Contesto().guide.Porta(evento.punto,
                           Contesto().geometria.Millimetri(-QPointF(Contesto().foglio.pos())));
}

void GestoGuida::Conclude(std::optional<QPointF> rilascio)
{
    if (rilascio) {
        Contesto().guide.Lascia();
    } else {
        Contesto().guide.Rinuncia();
    }
    PuntamentoFoglio::Conclude(rilascio);
}

bool GestoGuida::Rinuncia()
{
    return Contesto().guide.Rinuncia();
}
