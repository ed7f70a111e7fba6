#include "editor/PaginaRighe.h"

#include "base/ErroreSistema.h"
#include "documento/Passo.h"
#include "editor/RigheSimulate.h"
#include "editor/TestiEsplicativi.h"
#include "finestre/AvvisoCasella.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "model/Numeri.h"
#include "ui_PaginaRighe.h"

#include <utility>

PaginaRighe::PaginaRighe(StatoProgramma &stato, Frm1 &anteprima, QWidget *padre)
    : QWidget(padre)
    , ui_(std::make_unique<Ui::PaginaRighe>())
    , stato_(stato)
    , anteprima_(anteprima)
{
    ui_->setupUi(this);
    ui_->Text2->setPlainText(TestiEsplicativi::Righe());
    Collegamenti();
}

PaginaRighe::~PaginaRighe() = default;

void PaginaRighe::Collegamenti()
{
    Collega(ui_->ConfermaPosizioneRighe, &QPushButton::clicked, this,
            &PaginaRighe::ConfermaPosizioneRighe_Click);
    const auto aggiunge = [this](QLineEdit *casella, QLabel *etichetta,
                                 double ParametriRighe::*valore) {
        tutte_.append({casella, etichetta, new AvvisoCasella(casella), valore});
        Collega(casella, &QLineEdit::returnPressed, this,
                &PaginaRighe::ConfermaPosizioneRighe_Click);
        connect(casella, &QLineEdit::textChanged, this, &PaginaRighe::SegnalaNonConfermati);
    };
    aggiunge(ui_->yInizio, ui_->EtichettaInizio, &ParametriRighe::yInizio);
    aggiunge(ui_->yFine, ui_->EtichettaFine, &ParametriRighe::yFine);
    aggiunge(ui_->Interlinea, ui_->EtichettaInterlinea, &ParametriRighe::Interlinea);
    aggiunge(ui_->InterlineaDescr, ui_->EtichettaInterlineaDescr, &ParametriRighe::InterlineaDescr);
    aggiunge(ui_->SeguePag, ui_->EtichettaSeguePag, nullptr);
    Collega(&stato_.documento, &Documento::Cambiato, this, &PaginaRighe::SegueDocumento);
    Collega(ui_->OptSimuloRighe, &QCheckBox::clicked, this, &PaginaRighe::OptSimuloRighe_Click);
}

void PaginaRighe::Mostra()
{
    RiempieCaselle();
    ui_->OptSimuloRighe->setChecked(false);
}

void PaginaRighe::SegueDocumento(const Cambiamento &cambiamento)
{
    if (cambiamento.Righe) {
        SegueModello(cambiamento.origine);
    }
    if (cambiamento.Righe || cambiamento.Contiene(Genere::Campo)) {
        SimuloRighe();
    }
}

void PaginaRighe::Riempie(const Casella &casella)
{
    const ParametriRighe &righe = stato_.Aperto().Righe;
    if (casella.Valore == nullptr) {
        caselle_.Mostra(casella.Testo, righe.SeguePag);
    } else {
        // The boxes are read with "." as the decimal separator, so they are filled with it.
        caselle_.Mostra(casella.Testo, righe.*casella.Valore, QLocale::c());
    }
}

void PaginaRighe::RiempieCaselle()
{
    for (const Casella &casella : std::as_const(tutte_)) {
        Riempie(casella);
    }
    seguite_ = stato_.Aperto().Righe;
    SegnalaNonConfermati();
}

void PaginaRighe::SegueModello(Cambiamento::Origine origine)
{
    const bool storia = origine == Cambiamento::Origine::Storia;
    const QList<Casella> prima = tutte_; // filling one looks at all of them
    for (const Casella &casella : prima) {
        if ((casella.InPari && !Confermata(casella)) || (storia && Cambiata(casella))) {
            Riempie(casella);
        }
    }
    seguite_ = stato_.Aperto().Righe;
    SegnalaNonConfermati();
}

bool PaginaRighe::Cambiata(const Casella &casella) const
{
    const ParametriRighe &righe = stato_.Aperto().Righe;
    return casella.Valore == nullptr ? righe.SeguePag != seguite_.SeguePag
                                     : righe.*casella.Valore != seguite_.*casella.Valore;
}

bool PaginaRighe::Confermata(const Casella &casella) const
{
    const ParametriRighe &righe = stato_.Aperto().Righe;
    if (casella.Valore == nullptr) {
        return caselle_.Testo(casella.Testo) == righe.SeguePag;
    }
    try {
        return caselle_.Val(casella.Testo) == righe.*casella.Valore;
    } catch (const ErroreSistema &) {
        return false; // beyond any number: the confirm says so
    }
}

QStringList PaginaRighe::NonConfermati() const
{
    QStringList nomi;
    for (const Casella &casella : tutte_) {
        if (!Confermata(casella)) {
            nomi.append(casella.Etichetta->text());
        }
    }
    return nomi;
}

void PaginaRighe::SegnalaNonConfermati()
{
    for (Casella &casella : tutte_) {
        casella.InPari = Confermata(casella);
        QStringList avvisi;
        if (casella.Valore != nullptr) {
            avvisi.append(Numeri::AvvisoDiLettura(casella.Testo->text()));
        }
        if (!casella.InPari) {
            avvisi.append(
                QStringLiteral("non ancora nel modello: lo prende 'Conferma Posizione Righe'"));
        }
        avvisi.removeAll(QString());
        casella.Avviso->Mostra(avvisi.join(QStringLiteral("; ")));
    }
}

std::optional<double> PaginaRighe::Letto(const QLineEdit *casella, const QLabel *etichetta)
{
    try {
        return caselle_.Val(casella);
    } catch (const ErroreSistema &) {
        Messaggi::Mostra(window(), NumeroTroppoGrande(etichetta->text(), casella->text()));
        return std::nullopt;
    }
}

void PaginaRighe::ConfermaPosizioneRighe_Click()
{
    const std::optional<double> yInizio = Letto(ui_->yInizio, ui_->EtichettaInizio);
    const std::optional<double> yFine = yInizio ? Letto(ui_->yFine, ui_->EtichettaFine) : yInizio;
    const std::optional<double> interlinea =
        yFine ? Letto(ui_->Interlinea, ui_->EtichettaInterlinea) : yFine;
    const std::optional<double> interlineaDescr =
        interlinea ? Letto(ui_->InterlineaDescr, ui_->EtichettaInterlineaDescr) : interlinea;
    if (!interlineaDescr) {
        return;
    }
    // The simulation follows the step.
    Passo passo(stato_.documento, QStringLiteral("conferma posizione righe"));
    passo.ImpostaRighe(
        {*yInizio, *yFine, *interlinea, *interlineaDescr, caselle_.Testo(ui_->SeguePag)});
}

void PaginaRighe::OptSimuloRighe_Click()
{
    ConfermaPosizioneRighe_Click();
    // A number too large has been refused: the rows follow the box all the same, as the model has
    // them.
    SimuloRighe();
}

void PaginaRighe::SimuloRighe()
{
    QList<Frm1::RigaSimulata> righe;
    if (ui_->OptSimuloRighe->isChecked()) {
        righe = RigheSimulate(stato_.Aperto(), stato_.zoom, [this](int campo) {
            return anteprima_.MisuraControllo(Genere::Campo, campo).width();
        });
    }
    // Every step of a dragged field comes here, and there may be thousands of rows.
    if (righe == mostrate_) {
        return;
    }
    anteprima_.TogliRigheSimulate();
    anteprima_.AggiungeRigheSimulate(righe);
    mostrate_ = righe;
}
