#include "editor/FrmCorrezione.h"

#include "base/ErroreSistema.h"
#include "documento/StatoProgramma.h"
#include "editor/DisegnoCorrezione.h"
#include "finestre/DialogoScorrevole.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "model/Numeri.h"
#include "ui_FrmCorrezione.h"

#include <QCheckBox>
#include <QLineEdit>

#include <array>
#include <cmath>

using namespace CorrezioneGriglia;

namespace {

std::optional<double> Millimetri(const QLineEdit *casella)
{
    const std::optional<double> valore = Numeri::Letto(casella->text());
    return valore && std::abs(*valore) <= MillimetriMassimi ? valore : std::nullopt;
}

} // namespace

FrmCorrezione::FrmCorrezione(StatoProgramma &stato, const QString &stampante,
                             const QString &cartella, QWidget *padre)
    : QDialog(padre)
    , ui_(std::make_unique<Ui::FrmCorrezione>())
    , stato_(stato)
    , stampante_(stampante)
    , ultime_(cartella)
    , proposta_(ultime_.Proposta(stampante, stato.CartellaModelli + stato.NomeFile))
{
    ui_->setupUi(this);
    const Parti parti = Proposte(stato_.Aperto());
    ui_->Campi->setChecked(parti.Elementi.at(Posto(Genere::Campo)));
    ui_->Cornici->setChecked(parti.Elementi.at(Posto(Genere::Cornice)));
    ui_->Immagini->setChecked(parti.Elementi.at(Posto(Genere::Immagine)));
    ui_->Righe->setChecked(parti.Righe);
    ui_->Sfondo->setChecked(parti.Sfondo);
    ui_->Sfondo->setEnabled(!stato_.Aperto().Sfondo.File.isEmpty());
    // The longest answer finds its place at once, so that nothing moves while it is typed.
    constexpr int RigheDellEsito = 6;
    ui_->Esito->setMinimumHeight(RigheDellEsito * ui_->Esito->fontMetrics().lineSpacing());
    LimitaAlCodice(this);
    ImpostaHelp(this);
    Collegamenti();
    MostraProposta();
    Aggiorna();
    AdattaAlloSchermo(*this);
}

FrmCorrezione::~FrmCorrezione() = default;

void FrmCorrezione::Collegamenti()
{
    for (const auto *casella : findChildren<QLineEdit *>()) {
        Collega(casella, &QLineEdit::textEdited, this, [this] {
            usata_ = false;
            Aggiorna();
        });
    }
    for (const QCheckBox *spunta :
         {ui_->Campi, ui_->Cornici, ui_->Immagini, ui_->Righe, ui_->Sfondo}) {
        Collega(spunta, &QCheckBox::toggled, this, &FrmCorrezione::Aggiorna);
    }
    Collega(ui_->DueSegni, &QCheckBox::toggled, this, [this] {
        usata_ = false;
        Aggiorna();
    });
    Collega(ui_->UsaProposta, &QPushButton::clicked, this, &FrmCorrezione::UsaProposta);
    Collega(ui_->DimenticaProposta, &QPushButton::clicked, this, &FrmCorrezione::DimenticaProposta);
    Collega(ui_->Conferma, &QPushButton::clicked, this, &FrmCorrezione::Conferma);
    connect(ui_->Rinuncia, &QPushButton::clicked, this, &QDialog::reject);
}

void FrmCorrezione::MostraProposta()
{
    ui_->Proposta->setVisible(proposta_.has_value());
    ui_->UsaProposta->setVisible(proposta_.has_value());
    ui_->DimenticaProposta->setVisible(proposta_.has_value());
    if (proposta_) {
        ui_->Proposta->setText(
            QStringLiteral("Ultima correzione per %1: %2").arg(stampante_, Frase(*proposta_)));
    }
}

void FrmCorrezione::UsaProposta()
{
    usata_ = true;
    Aggiorna();
    ui_->Conferma->setFocus();
}

void FrmCorrezione::DimenticaProposta()
{
    ultime_.Dimentica(stampante_);
    proposta_.reset();
    usata_ = false;
    MostraProposta();
    Aggiorna();
    ui_->AttesoX1->setFocus();
}

std::optional<Segno> FrmCorrezione::Letto(int segno) const
{
    using Caselle = std::array<const QLineEdit *, 4>;
    const Caselle caselle =
        segno == 1 ? Caselle{ui_->AttesoX1, ui_->AttesoY1, ui_->UscitoX1, ui_->UscitoY1}
                   : Caselle{ui_->AttesoX2, ui_->AttesoY2, ui_->UscitoX2, ui_->UscitoY2};
    std::array<double, 4> valori{};
    for (std::size_t i = 0; i < caselle.size(); ++i) {
        const std::optional<double> valore = Millimetri(caselle.at(i));
        if (!valore) {
            return std::nullopt;
        }
        valori.at(i) = *valore;
    }
    return Segno{QPointF(valori[0], valori[1]), QPointF(valori[2], valori[3])};
}

Parti FrmCorrezione::Scelte() const
{
    Parti parti;
    parti.Elementi.at(Posto(Genere::Campo)) = ui_->Campi->isChecked();
    parti.Elementi.at(Posto(Genere::Cornice)) = ui_->Cornici->isChecked();
    parti.Elementi.at(Posto(Genere::Immagine)) = ui_->Immagini->isChecked();
    parti.Righe = ui_->Righe->isChecked();
    parti.Sfondo = ui_->Sfondo->isChecked();
    return parti;
}

QString FrmCorrezione::Spiega(const Esito &esito) const
{
    switch (esito.Che) {
    case Giudizio::Scala:
        return QStringLiteral(
                   "Tra i due segni dovrebbero esserci %1 mm, sulla carta ce ne sono %2: la "
                   "stampante %3 il foglio, e spostare il modello non servirebbe. Nelle proprietà "
                   "della stampante, e nella finestra di stampa di Vastrel se lo chiede, scegliere "
                   "dimensioni effettive (100 %) e togliere \"adatta alla pagina\"; poi stampare e "
                   "misurare di nuovo.")
            .arg(Numeri::Decimi(esito.Voluta), Numeri::Decimi(esito.Uscita),
                 esito.Uscita < esito.Voluta ? QStringLiteral("riduce")
                                             : QStringLiteral("ingrandisce"));
    case Giudizio::TroppoVicini:
        return QStringLiteral("I due segni sono troppo vicini: sceglierne due ad almeno %1 mm, "
                              "meglio se agli angoli opposti del foglio.")
            .arg(Numeri::Decimi(DistanzaMinima));
    case Giudizio::NonCorrispondono:
        return QStringLiteral(
            "I due segni non si corrispondono: controllare di non averli scambiati "
            "e di avere misurato sempre dallo stesso angolo.");
    case Giudizio::Sposta:
        break;
    }
    QString testo =
        esito.Quanto.Nullo()
            ? QStringLiteral("Nessuno spostamento: l'errore è di mezzo millimetro al massimo.")
            : QStringLiteral("Spostamento: ") + Frase(esito.Quanto);
    if (esito.Gradi != 0) {
        testo += QStringLiteral("\nIl foglio è entrato storto di %1 gradi: sistemare le guide del "
                                "cassetto. Lo spostamento vale per il centro tra i due segni.")
                     .arg(Numeri::Decimi(std::abs(esito.Gradi)));
    }
    return testo;
}

void FrmCorrezione::Aggiorna()
{
    const bool due = ui_->DueSegni->isChecked();
    for (QWidget *parte : std::initializer_list<QWidget *>{
             ui_->EtichettaSegno2, ui_->AttesoX2, ui_->AttesoY2, ui_->UscitoX2, ui_->UscitoY2}) {
        parte->setEnabled(due);
    }
    QList<Segno> segni;
    for (int segno = 1; segno <= (due ? 2 : 1); ++segno) {
        if (const std::optional<Segno> letto = Letto(segno)) {
            segni.append(*letto);
        }
    }
    ui_->Disegno->Mostra(segni);
    const bool completi = segni.size() == (due ? 2 : 1);
    Esito esito = completi ? Giudica(segni) : Esito();
    // To a sheet that no shift makes right none is offered, from wherever it comes.
    const bool possibile = esito.Che == Giudizio::Sposta;
    ui_->UsaProposta->setEnabled(possibile);
    usata_ = usata_ && possibile;
    if (usata_) {
        esito.Quanto = *proposta_;
        ui_->Esito->setText(QStringLiteral("Spostamento: ") + Frase(*proposta_));
    } else if (completi) {
        ui_->Esito->setText(Spiega(esito));
    } else {
        ui_->Esito->setText(due ? QStringLiteral("Scrivere i posti dei due segni, in millimetri.")
                                : QStringLiteral("Scrivere i due posti del segno, in millimetri."));
    }
    ui_->Disegno->setAccessibleDescription(ui_->Esito->text());
    spostamento_ = esito.Quanto;
    ui_->Conferma->setEnabled(!spostamento_.Nullo() && !Scelte().Nessuna());
}

void FrmCorrezione::Conferma()
{
    const Parti parti = Scelte();
    Esegue(stato_.documento, spostamento_, parti);
    mosse_ = parti;
    detto_ = QStringLiteral("Modello spostato: ") + Frase(spostamento_);
    try {
        const QString modello = stato_.CartellaModelli + stato_.NomeFile;
        ricordata_ = {ultime_, stampante_, modello, spostamento_,
                      ultime_.Ricorda(stampante_, modello, spostamento_)};
    } catch (const ErroreSistema &errore) {
        // Nothing depends on it, and the model has been moved.
        detto_ +=
            QStringLiteral("; non sarà proposto per il prossimo (%1)").arg(errore.Messaggio());
    }
    accept();
}
