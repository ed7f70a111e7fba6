#include "editor/PaginaElementi.h"

#include "editor/TestiEsplicativi.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "ui_PaginaElementi.h"

#include <QEvent>

namespace {

constexpr QLatin1String Separatore("------------------");
constexpr QLatin1String InizioEliminato(" ELIMINATO:");

/// What tells the pages of the three kinds apart; an empty name means that the control is absent.
struct Descrizione
{
    const char *combo;
    const char *aiutoCombo;
    const char *aggiungi;
    const char *titoloAggiungi;
    const char *modifica;
    const char *titoloModifica;
    const char *aiutoModifica;
    const char *primoPiano;
    const char *titoloPrimoPiano;
    const char *eliminaTutte;
    const char *testo;
    QString (*contenuto)();
};

const Descrizione &DescrizioneDi(Genere genere)
{
    static const Descrizione campi{"ComboCampi",
                                   "elenco campi disponibili",
                                   "Aggiungicampo",
                                   "&Aggiungi Campo",
                                   "VariazioneCampo",
                                   "&Modifica impostazioni",
                                   "posizione, tipo di font, ecc. ",
                                   "Command1",
                                   "mette in primo p&iano campi secondo la superfice",
                                   "",
                                   "Text1",
                                   &TestiEsplicativi::Campi};
    static const Descrizione cornici{"ComboCornici",
                                     "elenco cornici ed etichette",
                                     "AggiungiCornice",
                                     "&Aggiungi cornice/etichetta",
                                     "VariazioneCornice",
                                     "&Modifica impostazioni",
                                     "posizione, scritta, colori, ecc.",
                                     "Command3",
                                     "mette in primo p&iano cornici secondo la superfice",
                                     "Command7",
                                     "Text3",
                                     &TestiEsplicativi::Cornici};
    static const Descrizione immagini{"ComboImmagini",
                                      "elenco immagini",
                                      "AggiungiImmagine",
                                      "&Aggiungi immagine",
                                      "VariazioneImmagine",
                                      "&Modifica impostaz.Immagine",
                                      "file, posizione, dimensioni",
                                      "Command4",
                                      "mette in primo p&iano immagini secondo la superfice",
                                      "",
                                      "Text4",
                                      &TestiEsplicativi::Immagini};
    switch (genere) {
    case Genere::Campo:
        return campi;
    case Genere::Cornice:
        return cornici;
    case Genere::Immagine:
        break;
    }
    return immagini;
}

QString Italiano(const char *testo)
{
    return QString::fromUtf8(testo);
}

} // namespace

PaginaElementi::PaginaElementi(Genere genere, QWidget *padre)
    : QWidget(padre)
    , ui_(std::make_unique<Ui::PaginaElementi>())
    , genere_(genere)
{
    ui_->setupUi(this);
    LimitaElenchi(this);
    const Descrizione &d = DescrizioneDi(genere);
    ui_->combo->setObjectName(Italiano(d.combo));
    ui_->combo->setToolTip(Italiano(d.aiutoCombo));
    ui_->combo->setAccessibleName(Italiano(d.aiutoCombo));
    ui_->aggiungi->setObjectName(Italiano(d.aggiungi));
    ui_->aggiungi->setText(Italiano(d.titoloAggiungi));
    ui_->modifica->setObjectName(Italiano(d.modifica));
    ui_->modifica->setText(Italiano(d.titoloModifica));
    ui_->modifica->setToolTip(Italiano(d.aiutoModifica));
    ui_->primoPiano->setObjectName(Italiano(d.primoPiano));
    ui_->primoPiano->setText(Italiano(d.titoloPrimoPiano));
    ui_->eliminaTutte->setObjectName(Italiano(d.eliminaTutte));
    ui_->eliminaTutte->setText(QStringLiteral("Elimina tutte le &cornici"));
    ui_->eliminaTutte->setVisible(*d.eliminaTutte != '\0');
    ui_->testo->setObjectName(Italiano(d.testo));
    ui_->testo->setPlainText(d.contenuto());
    ui_->testo->setAccessibleName(QStringLiteral("Spiegazione"));
    Svuota();
    Collegamenti();
}

PaginaElementi::~PaginaElementi() = default;

void PaginaElementi::Collegamenti()
{
    connect(ui_->aggiungi, &QPushButton::clicked, this, &PaginaElementi::Aggiunge);
    connect(ui_->modifica, &QPushButton::clicked, this, &PaginaElementi::Modifica);
    connect(ui_->primoPiano, &QPushButton::clicked, this, &PaginaElementi::PrimoPiano);
    connect(ui_->eliminaTutte, &QPushButton::clicked, this, &PaginaElementi::EliminaTutte);
    ui_->combo->installEventFilter(this);
}

void PaginaElementi::Svuota()
{
    ui_->combo->clear();
    ui_->combo->addItem(Separatore);
}

void PaginaElementi::MostraVoce(int indice, const QString &testo)
{
    if (indice < ui_->combo->count()) {
        ui_->combo->setItemText(indice, testo);
    } else {
        ui_->combo->addItem(testo);
    }
}

void PaginaElementi::Limita(int ultimo)
{
    if (Indice() > ultimo) {
        Seleziona(0);
    }
    while (ui_->combo->count() > ultimo + 1) {
        ui_->combo->removeItem(ui_->combo->count() - 1);
    }
}

void PaginaElementi::Seleziona(int indice)
{
    ui_->combo->setCurrentIndex(indice);
}

int PaginaElementi::Indice() const
{
    return ui_->combo->currentIndex();
}

bool PaginaElementi::SiApre() const
{
    return !ui_->combo->currentText().startsWith(InizioEliminato);
}

bool PaginaElementi::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (oggetto == ui_->combo && evento->type() == QEvent::FocusIn) {
        Guardia(this, [this] { emit FuocoPreso(); });
    }
    return QWidget::eventFilter(oggetto, evento);
}
