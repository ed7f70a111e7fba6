#include "preview/AttrezziFoglio.h"

#include "finestre/Comandi.h"
#include "finestre/Guardia.h"
#include "finestre/IconeVista.h"
#include "preview/Frm1.h"
#include "preview/PartiAnteprima.h"
#include "preview/PulsantiStriscia.h"

AttrezziFoglio::AttrezziFoglio(Frm1 &finestra, PartiAnteprima &parti, StatoProgramma &stato)
    : contorni(parti.scena)
    , zoom(finestra, parti, stato)
    , mostraContorni_(
          CreaComando(&zoom, QStringLiteral("MostraContorni"),
                      QStringLiteral("Contorni della carta: ") + ContorniCarta::Legenda(),
                      {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C)},
                      IconaContorni(PulsantiStriscia::LatoIcona)))
{
    mostraContorni_->setCheckable(true);
    mostraContorni_->setChecked(true);
    Collega(mostraContorni_, &QAction::toggled, &finestra,
            [this](bool inVista) { contorni.ImpostaInVista(inVista); });
}

void AttrezziFoglio::AggiungeComandi(Frm1 &finestra)
{
    finestra.AggiungeComando(zoom.Adatta(), GruppoComandi::Zoom);
    finestra.AggiungeComando(zoom.UnoAUno(), GruppoComandi::Zoom);
    finestra.AggiungeComando(mostraContorni_, GruppoComandi::Viste);
}

QList<QAction *> AttrezziFoglio::Comandi() const
{
    return {zoom.Adatta(), zoom.UnoAUno(), mostraContorni_};
}
