#include "preview/AttrezziFoglio.h"

#include "finestre/Comandi.h"
#include "finestre/Guardia.h"
#include "finestre/IconeVista.h"
#include "preview/Frm1.h"
#include "preview/PartiAnteprima.h"
#include "preview/PulsantiStriscia.h"

namespace {

constexpr int Lato = PulsantiStriscia::LatoIcona;

} // namespace

AttrezziFoglio::AttrezziFoglio(Frm1 &finestra, PartiAnteprima &parti, const StatoProgramma &stato,
                               const ElementiFoglio &elementi)
    : contorni(parti.scena)
    , zoom(finestra, parti, stato)
    , guide(parti.scena, parti.geometria, stato)
    , aggancio(stato, parti.geometria, elementi, guide, parti.scena)
    , maniSuiRighelli_(guide, parti)
    , mostraContorni_(
          CreaComando(&zoom, QStringLiteral("MostraContorni"),
                      QStringLiteral("Contorni della carta: ") + ContorniCarta::Legenda(),
                      {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C)}, IconaContorni(Lato)))
    , aggancia_(CreaComando(&zoom, QStringLiteral("Aggancia"),
                            QStringLiteral("Aggancia trascinando a bordi e centri degli altri "
                                           "elementi, al foglio e alle guide; Alt lo sospende"),
                            {QKeySequence(Qt::CTRL | Qt::Key_G)}, IconaCalamita(Lato)))
    , togliGuide_(
          CreaComando(&zoom, QStringLiteral("TogliGuide"), QStringLiteral("Toglie tutte le guide"),
                      {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G)}, IconaTogliGuide(Lato)))
{
    mostraContorni_->setCheckable(true);
    mostraContorni_->setChecked(true);
    Collega(mostraContorni_, &QAction::toggled, &finestra,
            [this](bool inVista) { contorni.ImpostaInVista(inVista); });
    aggancia_->setCheckable(true);
    Collega(aggancia_, &QAction::toggled, &finestra,
            [this](bool attivo) { aggancio.Attiva(attivo); });
    Collega(togliGuide_, &QAction::triggered, &finestra, [this] { guide.Svuota(); });
    Collega(&guide, &GuideFoglio::Detto, &finestra, &Frm1::Avverte);
}

void AttrezziFoglio::AggiungeComandi(Frm1 &finestra)
{
    finestra.AggiungeComando(zoom.Adatta(), GruppoComandi::Zoom);
    finestra.AggiungeComando(zoom.UnoAUno(), GruppoComandi::Zoom);
    finestra.AggiungeComando(mostraContorni_, GruppoComandi::Viste);
    finestra.AggiungeComando(aggancia_, GruppoComandi::Guide);
    finestra.AggiungeComando(togliGuide_, GruppoComandi::Guide);
}

void AttrezziFoglio::SegueZoom(double valore)
{
    contorni.SegueZoom(valore);
    guide.SegueZoom();
}

QList<QAction *> AttrezziFoglio::Comandi() const
{
    return {zoom.Adatta(), zoom.UnoAUno(), mostraContorni_, aggancia_, togliGuide_};
}
