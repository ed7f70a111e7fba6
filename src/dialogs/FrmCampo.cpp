#include "dialogs/FrmCampo.h"

#include "ui_FrmCampo.h"

#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "model/Numeri.h"

#include <QFontDatabase>

FrmCampo::FrmCampo(StatoProgramma &stato, QWidget *padre, SorgenteCasuale casuale)
    : FrmCarattere(Genere::Campo, stato, padre)
    , ui_(std::make_unique<Ui::FrmCampo>())
    , casuale_(casuale ? std::move(casuale) : MaschereStampa::Uniforme())
{
    ui_->setupUi(this);
    Form_Load();
    CollegaSegnali();
}

FrmCampo::~FrmCampo() = default;

void FrmCampo::Form_Load()
{
    ui_->ComboMask->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    FrmCarattere::Form_Load({ui_->Num, ui_->Nome, ui_->Descrizione, ui_->X, ui_->Y},
                            {ui_->ComboFont, ui_->ComboDim, ui_->Bold, ui_->Testo});
}

void FrmCampo::CollegaSegnali()
{
    Collega(ui_->PCambiaMaschera, &QPushButton::clicked, this, &FrmCampo::PCambiaMaschera_Click);
    Collega(ui_->PMascheraDefault, &QPushButton::clicked, this, &FrmCampo::PMascheraDefault_Click);
    Collega(ui_->PConfemaCampo, &QPushButton::clicked, this, &FrmCampo::PConfemaCampo_Click);
    Collega(ui_->Command2, &QPushButton::clicked, this, &FrmCampo::Command2_Click);
    Collega(ui_->PEliminaCampo, &QPushButton::clicked, this, &FrmCampo::PEliminaCampo_Click);
    Collega(ui_->NonStampaCampo, &QPushButton::clicked, this, &FrmCampo::NonStampaCampo_Click);
    Collega(ui_->Maschera, &QLineEdit::textChanged, this, &FrmCampo::Maschera_Change);
}

QComboBox *FrmCampo::Maschere() const
{
    return ui_->ComboMask;
}

QString FrmCampo::MascheraCorrente() const
{
    return Caselle().Testo(ui_->Maschera);
}

void FrmCampo::RiempieComboImpostazioni()
{
    const PuntatoreOccupato occupato;
    FrmCarattere::RiempieComboImpostazioni();
    ui_->ComboMask->clear();
    ui_->ComboMask->addItems(MaschereStampa::Catalogo());
    ui_->ComboMask->setCurrentIndex(-1);
}

void FrmCampo::Carica(int k)
{
    CaricaElemento(k);
    const Campo &campo = Aperto().Campi[k];
    CaricaCarattere(campo);
    Caselle().Mostra(ui_->MascheraDefault, campo.MascheraDefault);
    Caselle().Mostra(ui_->Maschera, campo.Maschera);
    Maschera_Change();
}

void FrmCampo::Maschera_Change()
{
    ui_->NonStampaCampo->setText(MascheraCorrente() == MaschereStampa::NonStampata
                                     ? QStringLiteral("ripristina st&ampa campo")
                                     : QStringLiteral("non st&ampare campo"));
}

void FrmCampo::CambiaMaschera()
{
    const QString scelta = ui_->ComboMask->currentText();
    if (scelta.isEmpty()) {
        return;
    }
    if (MaschereStampa::DaNumericoAdAlfanumerico(ui_->MascheraDefault->text(), scelta)) {
        Messaggi::Mostra(
            this, QStringLiteral("non si può cambiare la maschera da numerico ad alfanumerico"));
        return;
    }
    const QString maschera = MaschereStampa::Propria(scelta);
    Caselle().Mostra(ui_->Maschera, maschera);
    if (MaschereStampa::Numerica(maschera)) {
        Caselle().Mostra(ui_->Testo, MaschereStampa::TestoDiProva(maschera, casuale_));
    } else if (Numeri::Val(ui_->Testo->text()) != 0) {
        // The sample that a numeric mask left behind says nothing about a text field.
        Caselle().Mostra(ui_->Testo, Caselle().Testo(ui_->Nome).left(maschera.length()));
    }
}

void FrmCampo::PCambiaMaschera_Click()
{
    CambiaMaschera();
}

void FrmCampo::PMascheraDefault_Click()
{
    Caselle().Mostra(ui_->Maschera, Caselle().Testo(ui_->MascheraDefault));
    // A default mask that the catalogue lacks must not bring back the entry chosen before.
    ui_->ComboMask->setCurrentIndex(-1);
    emit SettaComboMaskRichiesto();
    PCambiaMaschera_Click();
}

void FrmCampo::NonStampaCampo_Click()
{
    if (MascheraCorrente() == MaschereStampa::NonStampata) {
        PMascheraDefault_Click();
    } else {
        Caselle().Mostra(ui_->Maschera, MaschereStampa::NonStampata);
    }
    PConfemaCampo_Click();
}

void FrmCampo::ControllaLunghezzaTesto() const
{
    const QString maschera = MascheraCorrente();
    if (maschera.compare(MaschereStampa::NonStampata, Qt::CaseInsensitive) != 0 &&
        Caselle().Testo(ui_->Testo).length() > maschera.length()) {
        throw Rifiuto{QStringLiteral("Testo di prova più lungo della maschera"), ui_->Testo};
    }
}

void FrmCampo::PConfemaCampo_Click()
{
    Tenta([this] {
        ControllaLunghezzaTesto();
        const int n = Indice();
        ControllaNomeUnico(n, QStringLiteral("nome già esistente"));
        ControllaNomeScritto();
        const Posto posto = PostoScritto();
        const Carattere carattere = CarattereScelto();

        Campo campo = Aperto().Campi[n];
        ScriveElemento(campo, posto);
        Scrive(campo, carattere);
        campo.Testo = Caselle().Testo(ui_->Testo);
        campo.MascheraDefault = Caselle().Testo(ui_->MascheraDefault);
        campo.Maschera = MascheraCorrente();
        Conferma(n, campo);
    });
}

void FrmCampo::Command2_Click()
{
    Tenta([this] {
        const PuntatoreOccupato occupato;
        const Carattere carattere = CarattereScelto();
        Passo passo(DocumentoAperto(), QStringLiteral("font su tutti i campi"));
        for (int i = 1; i <= Aperto().UltimoSlot(Genere::Campo); ++i) {
            Campo campo = Aperto().Campi[i];
            Scrive(campo, carattere);
            passo.Scrive(i, campo);
        }
    });
}

void FrmCampo::PEliminaCampo_Click()
{
    ChiedeEliminazione();
}
