#include "editor/ComandoElenco.h"

#include "documento/StatoProgramma.h"
#include "editor/ComandiStoria.h"
#include "editor/ElencoElementi.h"
#include "finestre/Comandi.h"
#include "finestre/Guardia.h"
#include "finestre/IconeElenco.h"
#include "preview/Frm1.h"

ComandoElenco::ComandoElenco(StatoProgramma &stato, QWidget &editore, Frm1 &anteprima,
                             ComandiStoria &storia)
    : stato_(stato)
    , anteprima_(anteprima)
    , storia_(storia)
    , comando_(CreaComando(this, QStringLiteral("MostraElenco"),
                           QStringLiteral("Elenco degli elementi"), {Qt::Key_F4},
                           IconaElenco(PulsantiStriscia::LatoIcona)))
{
    anteprima_.AggiungeComando(comando_, GruppoComandi::Viste);
    editore.addAction(comando_);
    Collega(comando_, &QAction::triggered, &editore, [this] { Esegue(); });
}

ComandoElenco::~ComandoElenco()
{
    if (elenco_) {
        storia_.TogliFinestra(elenco_.get());
    }
}

void ComandoElenco::Crea()
{
    elenco_ = std::make_unique<ElencoElementi>(stato_, anteprima_);
    elenco_->addAction(comando_);
    storia_.AggiungeFinestra(elenco_.get());
    connect(elenco_.get(), &ElencoElementi::RichiestaProprieta, this,
            &ComandoElenco::RichiestaProprieta);
    emit Creata(elenco_.get());
}

void ComandoElenco::Esegue()
{
    if (stato_.documento.ModificaInCorso()) {
        return; // a window that comes to the front would end the drag under way
    }
    if (!elenco_) {
        Crea();
    }
    elenco_->Alterna();
}

void ComandoElenco::Chiude()
{
    if (elenco_) {
        elenco_->close();
    }
}
