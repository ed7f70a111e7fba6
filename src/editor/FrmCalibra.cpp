#include "editor/FrmCalibra.h"

#include "base/Unita.h"
#include "editor/Calibrazione.h"
#include "editor/VistaCalibrazione.h"
#include "finestre/DialogoScorrevole.h"
#include "finestre/Finestre.h"
#include "finestre/FuocoInVista.h"
#include "finestre/Guardia.h"
#include "grafica/Immagini.h"
#include "grafica/IntestazioneImmagine.h"
#include "grafica/LettoreImmagine.h"
#include "model/Numeri.h"
#include "preview/SfondoDelModello.h"
#include "ui_FrmCalibra.h"

#include <QPushButton>
#include <QSignalBlocker>

#include <array>

namespace {

/// An A4 sheet at 300 dots per inch as it is; nobody sees more of it.
constexpr QSize PixelInVista(3600, 3600);
constexpr QSize Larga(980, 680); // device-independent pixels
constexpr double Ingrandimento = 1.5;

QString Risoluzione(double puntiPerPollice)
{
    return Numeri::Decimi(puntiPerPollice, QLocale::c());
}

} // namespace

FrmCalibra::Scansione FrmCalibra::Legge(const ImmagineSfondo &sfondo)
{
    const QRectF posto = SfondoDelModello::Posto(sfondo);
    const PuntatoreOccupato occupato;
    const QString file = SfondoDelModello::File(sfondo);
    const LettoreImmagine lettore(file);
    return {Immagini::Miniatura(file, PixelInVista), lettore.Pixel(), lettore.Millimetri(), posto};
}

FrmCalibra::FrmCalibra(const Scansione &scansione, const Modello &modello, QWidget *padre)
    : QDialog(padre)
    , ui_(std::make_unique<Ui::FrmCalibra>())
    , scansione_(scansione)
    , posto_(scansione.Posto)
{
    ui_->setupUi(this);
    ui_->Vista->Prepara(scansione.Immagine, scansione.Pixel, modello);
    RiempieRisoluzioni();
    const bool misurata = !scansione.Posto.isEmpty();
    ui_->Attuali->setEnabled(misurata);
    (misurata ? ui_->Attuali : ui_->PerRisoluzione)->setChecked(true);
    ImpostaHelp(this);
    FermaRotella(this);
    LimitaElenchi(this);
    MostraFuoco(this);
    Collegamenti();
    Aggiorna();
    AdattaAlloSchermo(*this);
    // The more of the sheet, the surer the hand.
    resize(EntroLoSchermo(this, Larga).expandedTo(size()));
    CentraForm(this);
    ui_->Vista->setFocus();
}

FrmCalibra::~FrmCalibra() = default;

void FrmCalibra::RiempieRisoluzioni()
{
    const QSizeF naturale = scansione_.Naturale;
    const QSizeF punti(scansione_.Pixel.width() * Unita::MillimetriPerPollice / naturale.width(),
                       scansione_.Pixel.height() * Unita::MillimetriPerPollice / naturale.height());
    QString delFile = Risoluzione(punti.width());
    if (Risoluzione(punti.height()) != delFile) {
        delFile += QStringLiteral(" x ") + Risoluzione(punti.height());
    }
    // Many a file names none and has the usual one then, which it may as well have named itself.
    const bool usuale = delFile == Risoluzione(IntestazioneImmagine::PuntiPerPollicePredefiniti);
    ui_->Risoluzioni->addItem(delFile + (usuale ? QStringLiteral(" (del file, o predefinita)")
                                                : QStringLiteral(" (del file)")));
    for (const int altra : {75, 100, 150, 200, 240, 300, 400, 600, 1200}) {
        ui_->Risoluzioni->addItem(QString::number(altra));
    }
}

void FrmCalibra::Collegamenti()
{
    for (QRadioButton *scelta : {ui_->Attuali, ui_->PerRisoluzione, ui_->PerPunti}) {
        Collega(scelta, &QRadioButton::toggled, this, [this](bool scelto) {
            if (scelto) {
                Aggiorna();
            }
        });
    }
    Collega(ui_->Risoluzioni, &QComboBox::editTextChanged, this, [this] {
        ui_->PerRisoluzione->setChecked(true);
        Aggiorna();
    });
    Collega(ui_->Distanza, &QLineEdit::textEdited, this, [this] {
        ui_->PerPunti->setChecked(true);
        Aggiorna();
    });
    Collega(ui_->Muove, &QComboBox::activated, this, &FrmCalibra::PrendeInMano);
    Collega(ui_->Vista, &VistaCalibrazione::PuntiCambiati, this, &FrmCalibra::Aggiorna);
    Collega(ui_->Vista, &VistaCalibrazione::PresaInMano, this,
            [this](VistaCalibrazione::Mobile mobile) {
                ui_->Muove->setCurrentIndex(static_cast<int>(mobile));
            });
    Collega(ui_->Vista, &VistaCalibrazione::Trascinata, this, [this](QPointF scarto) {
        posto_.translate(scarto);
        Aggiorna();
    });
    Collega(ui_->Ingrandisci, &QToolButton::clicked, this,
            [this] { ui_->Vista->Ingrandisce(Ingrandimento); });
    Collega(ui_->Riduci, &QToolButton::clicked, this,
            [this] { ui_->Vista->Ingrandisce(1 / Ingrandimento); });
    Collega(ui_->Adatta, &QToolButton::clicked, this, [this] { ui_->Vista->Adatta(); });
    Collega(ui_->Conferma, &QPushButton::clicked, this, &QDialog::accept);
    Collega(ui_->Rinuncia, &QPushButton::clicked, this, &QDialog::reject);
}

void FrmCalibra::PrendeInMano(int indice)
{
    const auto mobile = static_cast<VistaCalibrazione::Mobile>(indice);
    if (mobile != VistaCalibrazione::Mobile::Scansione) {
        ui_->PerPunti->setChecked(true);
    }
    ui_->Vista->PrendeInMano(mobile);
    ui_->Vista->setFocus();
}

void FrmCalibra::Aggiorna()
{
    ui_->Vista->AccettaPunti(ui_->PerPunti->isChecked());
    QString perche;
    const std::optional<QSizeF> misura = Misura(perche);
    if (misura) {
        posto_.setSize(*misura);
    } else if (posto_.isEmpty()) {
        posto_.setSize(scansione_.Naturale); // something to click on
    }
    ui_->Vista->MostraScansione(posto_);
    ui_->Conferma->setEnabled(misura.has_value());
    ui_->Esito->setText(
        misura ? QStringLiteral("X %1  Y %2\n%3 x %4 mm")
                     .arg(Calibrazione::Testo(posto_.x()), Calibrazione::Testo(posto_.y()),
                          Calibrazione::Testo(posto_.width()), Calibrazione::Testo(posto_.height()))
               : perche);
}

std::optional<QSizeF> FrmCalibra::Misura(QString &perche) const
{
    return ui_->Attuali->isChecked()          ? scansione_.Posto.size()
           : ui_->PerRisoluzione->isChecked() ? MisuraDaRisoluzione(perche)
                                              : MisuraDaPunti(perche);
}

std::optional<QSizeF> FrmCalibra::MisuraDaRisoluzione(QString &perche) const
{
    const QString testo = ui_->Risoluzioni->currentText();
    if (testo == ui_->Risoluzioni->itemText(0)) {
        return scansione_.Naturale; // whatever it is, also pixels that are not square
    }
    const std::optional<QSizeF> misura =
        Calibrazione::DaRisoluzione(scansione_.Pixel, Numeri::Numerico(testo).value_or(0));
    if (!misura) {
        perche = QStringLiteral("La risoluzione va\nda %1 a %2 punti per pollice.")
                     .arg(Calibrazione::PuntiMinimi)
                     .arg(Calibrazione::PuntiMassimi);
    }
    return misura;
}

std::optional<QSizeF> FrmCalibra::MisuraDaPunti(QString &perche) const
{
    const VistaCalibrazione::Punti &punti = ui_->Vista->PuntiMessi();
    if (!punti[0] || !punti[1]) {
        perche = QStringLiteral("Fare clic su due punti\ndella scansione.");
        return std::nullopt;
    }
    const std::optional<double> distanza = Numeri::Letto(ui_->Distanza->text());
    if (!distanza || *distanza <= 0) {
        perche = QStringLiteral("Scrivere quanti millimetri\nci sono tra i due punti.");
        return std::nullopt;
    }
    const std::optional<QSizeF> misura =
        Calibrazione::DaDuePunti(scansione_.Naturale, {*punti[0], *punti[1]}, *distanza);
    if (!misura) {
        perche = QStringLiteral("I due punti devono essere\nlontani tra loro.");
    }
    return misura;
}
