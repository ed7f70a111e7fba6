#include "editor/ComandiScelta.h"

#include "dialogs/FrmElemento.h"
#include "documento/OrdineDiLettura.h"
#include "documento/StatoProgramma.h"
#include "finestre/Comandi.h"
#include "finestre/Guardia.h"
#include "finestre/IconeDisposizione.h"
#include "finestre/Messaggi.h"
#include "preview/Frm1.h"
#include "preview/MisuraSuCarta.h"

#include <QApplication>

#include <algorithm>

namespace {

constexpr int Lato = PulsantiStriscia::LatoIcona;

/// A command that arranges, as its button shows it.
struct Pulsante
{
    Disponi comando;
    QLatin1String nome;
    const char16_t *testo;
    Qt::Key lettera; ///< with Ctrl and Shift
    QPixmap icona;
    GruppoComandi gruppo;
};

std::vector<Pulsante> Pulsanti()
{
    using enum Disponi;
    using G = GruppoComandi;
    constexpr auto H = Qt::Horizontal;
    constexpr auto V = Qt::Vertical;
    return {
        {Sinistra, QLatin1String("AllineaSinistra"), u"Allinea a sinistra", Qt::Key_S,
         IconaAllinea(H, Bordo::Vicino, Lato), G::Allineamento},
        {Centro, QLatin1String("AllineaCentro"), u"Centra in orizzontale", Qt::Key_O,
         IconaAllinea(H, Bordo::Mezzo, Lato), G::Allineamento},
        {Destra, QLatin1String("AllineaDestra"), u"Allinea a destra", Qt::Key_D,
         IconaAllinea(H, Bordo::Lontano, Lato), G::Allineamento},
        {Alto, QLatin1String("AllineaAlto"), u"Allinea in alto", Qt::Key_A,
         IconaAllinea(V, Bordo::Vicino, Lato), G::Allineamento},
        {Mezzo, QLatin1String("AllineaMezzo"), u"Centra in verticale", Qt::Key_M,
         IconaAllinea(V, Bordo::Mezzo, Lato), G::Allineamento},
        {Basso, QLatin1String("AllineaBasso"), u"Allinea in basso", Qt::Key_B,
         IconaAllinea(V, Bordo::Lontano, Lato), G::Allineamento},
        {DistribuisceAttraverso, QLatin1String("DistribuisceAttraverso"),
         u"Distribuisce in orizzontale", Qt::Key_H, IconaDistribuisce(H, Lato), G::Distribuzione},
        {DistribuisceInGiu, QLatin1String("DistribuisceInGiu"), u"Distribuisce in verticale",
         Qt::Key_J, IconaDistribuisce(V, Lato), G::Distribuzione},
        {StessaLarghezza, QLatin1String("StessaLarghezza"), u"Stessa larghezza", Qt::Key_L,
         IconaStessaMisura(H, Lato), G::Misure},
        {StessaAltezza, QLatin1String("StessaAltezza"), u"Stessa altezza", Qt::Key_T,
         IconaStessaMisura(V, Lato), G::Misure},
        {StesseMisure, QLatin1String("StesseMisure"), u"Stessa larghezza e altezza", Qt::Key_U,
         IconaStessaMisura(H | V, Lato), G::Misure},
    };
}

} // namespace

ComandiScelta::ComandiScelta(StatoProgramma &stato, Frm1 &anteprima,
                             std::function<std::optional<Genere>()> genere, QWidget *finestra)
    : stato_(stato)
    , anteprima_(anteprima)
    , genere_(std::move(genere))
    , finestra_(finestra)
    , disposizione_(stato.documento,
                    [&stato](Chiave chiave) { return MisuraSuCarta(stato.Aperto(), chiave); })
    , elimina_(CreaComando(this, QStringLiteral("EliminaScelti"),
                           QStringLiteral("Elimina gli elementi scelti"), {Qt::Key_Delete}))
{
    QAction *tutto =
        CreaComando(this, QStringLiteral("SceglieTutto"),
                    QStringLiteral("Sceglie tutti gli elementi"), {QKeySequence::SelectAll});
    Collega(tutto, &QAction::triggered, finestra_, [this] { SceglieTutto(); });
    Collega(elimina_, &QAction::triggered, finestra_, [this] { Elimina(); });
    anteprima_.addAction(tutto);
    anteprima_.addAction(elimina_);
    CreaDisposizioni();
    connect(&stato_.selezione, &Selezione::SceltiCambiati, this, &ComandiScelta::Aggiorna);
    connect(&stato_.documento, &Documento::ModificaConclusa, this, &ComandiScelta::Aggiorna);
    Aggiorna();
}

void ComandiScelta::CreaDisposizioni()
{
    for (const Pulsante &pulsante : Pulsanti()) {
        QAction *comando =
            CreaComando(this, pulsante.nome, QString::fromUtf16(pulsante.testo),
                        {QKeySequence(Qt::ControlModifier | Qt::ShiftModifier | pulsante.lettera)},
                        pulsante.icona);
        Collega(comando, &QAction::triggered, finestra_,
                [this, quale = pulsante.comando] { Esegue(quale); });
        anteprima_.AggiungeComando(comando, pulsante.gruppo);
        disposizioni_.emplace_back(pulsante.comando, comando);
    }
}

void ComandiScelta::Aggiorna()
{
    const QList<Chiave> &scelti = stato_.selezione.Scelti();
    elimina_->setEnabled(!scelti.isEmpty());
    for (const auto &[quale, comando] : disposizioni_) {
        comando->setEnabled(disposizione_.Puo(quale, scelti));
    }
}

void ComandiScelta::AggiungeFinestra(QWidget &finestra)
{
    finestra.addAction(elimina_);
}

void ComandiScelta::SceglieTutto()
{
    const QList<Chiave> tutti = OrdineDiLettura(stato_.documento);
    QList<Chiave> dellaPagina = tutti;
    if (const std::optional<Genere> genere = genere_()) {
        dellaPagina.removeIf([&](Chiave chiave) { return chiave.genere != *genere; });
    }
    const bool giaScelti =
        std::all_of(dellaPagina.begin(), dellaPagina.end(),
                    [this](Chiave chiave) { return stato_.selezione.EScelto(chiave); });
    stato_.selezione.ImpostaScelti(giaScelti ? tutti : dellaPagina);
}

void ComandiScelta::Elimina()
{
    const QList<Chiave> scelti = stato_.selezione.Scelti();
    if (scelti.isEmpty() || stato_.documento.ModificaInCorso()) {
        return;
    }
    const Chiave primo = scelti.constFirst();
    const QString domanda =
        scelti.size() == 1
            ? FrmElemento::DomandaElimina(primo.genere) + stato_.Aperto().Di(primo).Nome
            : QStringLiteral("Elimino %1 elementi").arg(scelti.size());
    QWidget *davanti = QApplication::activeWindow();
    if (Messaggi::Domanda(davanti == nullptr ? &anteprima_ : davanti, domanda,
                          Messaggi::Risposta::No)) {
        disposizione_.Elimina(scelti);
    }
}

void ComandiScelta::Esegue(Disponi comando)
{
    if (stato_.documento.ModificaInCorso()) {
        return; // a gesture has the elements in hand
    }
    const QString esclusi = disposizione_.Esegue(comando, stato_.selezione.Scelti());
    anteprima_.ImpilaPerArea(); // equal sizes are other areas
    if (!esclusi.isEmpty()) {
        anteprima_.Avverte(esclusi);
    }
}
