#include "editor/VediStampa.h"

#include "base/ErroreSistema.h"
#include "documento/StatoProgramma.h"
#include "editor/AttesaDiStampa.h"
#include "finestre/EtichettaAbbreviata.h"
#include "finestre/Finestre.h"
#include "finestre/FuocoInVista.h"
#include "finestre/Guardia.h"
#include "preview/SfondoDelModello.h"
#include "print/Pagina.h"
#include "print/StampaProva.h"
#include "ui_VediStampa.h"

#include <QGraphicsView>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScopeGuard>
#include <QVBoxLayout>

namespace {

/// Of the screen, at the largest that a sheet is looked at.
constexpr int PuntiPerPollice = 300;

/// The paper of a printer, to be looked at.
class FoglioDaVedere : public Destinazione
{
public:
    explicit FoglioDaVedere(QPrinter &foglio)
        : foglio_(foglio)
    {
    }
    QPagedPaintDevice &Dispositivo() override { return foglio_; }
    QString Nome() const override { return foglio_.docName(); }
    void Titolo(const QString &titolo) override { foglio_.setDocName(titolo); }
    bool SulloSchermo() const override { return true; }
    ErroreSistema Rifiuto() const override { return ErroreSistema(ErroreSistema::Stampante); }
    void Consegna() override {} // it stays where it is seen

private:
    QPrinter &foglio_;
};

std::unique_ptr<QPrinter> StampanteInMemoria(const QPageLayout &pagina)
{
    auto foglio = std::make_unique<QPrinter>(QPrinter::HighResolution);
    // Any paper, whatever the print system would say of it now.
    foglio->setOutputFormat(QPrinter::PdfFormat);
    foglio->setResolution(PuntiPerPollice);
    foglio->setPageLayout(pagina);
    return foglio;
}

/// The edge of what the printer reaches, dashed.
void TratteggiaBordo(Pagina &pagina)
{
    constexpr QRgb AzzurroBordo = 0xFF1F6FB5;
    constexpr double Tratto = 3; // mm, as all here
    constexpr double Periodo = 5;
    constexpr double Spessore = 0.3;
    const double w = pagina.Larghezza();
    const double h = pagina.Altezza();
    for (double x = 0; x < w; x += Periodo) {
        const double lungo = qMin(Tratto, w - x);
        pagina.Barra(x, -Spessore / 2, lungo, Spessore, AzzurroBordo);
        pagina.Barra(x, h - Spessore / 2, lungo, Spessore, AzzurroBordo);
    }
    for (double y = 0; y < h; y += Periodo) {
        const double lungo = qMin(Tratto, h - y);
        pagina.Barra(-Spessore / 2, y, Spessore, lungo, AzzurroBordo);
        pagina.Barra(w - Spessore / 2, y, Spessore, lungo, AzzurroBordo);
    }
}

/// Whether there is a scan with a size that could be shown.
bool HaScansione(const ImmagineSfondo &sfondo)
{
    try {
        return !sfondo.File.isEmpty() && !SfondoDelModello::Posto(sfondo).isEmpty();
    } catch (const ErroreSistema &) {
        return false; // its page tells of the number that cannot be read
    }
}

QString InMillimetri(const QSizeF &misura)
{
    return QStringLiteral("%1 x %2 mm")
        .arg(Numeri::Decimi(misura.width()), Numeri::Decimi(misura.height()));
}

} // namespace

VediStampa::VediStampa(const StatoProgramma &stato, const QString &stampante,
                       const QPageLayout &pagina, QWidget *padre)
    : QDialog(padre)
    , ui_(std::make_unique<Ui::VediStampa>())
    , stato_(stato)
    , foglio_(StampanteInMemoria(pagina))
{
    ui_->setupUi(this);
    auto *posto = new QVBoxLayout(ui_->Posto);
    posto->setContentsMargins(0, 0, 0, 0);
    vista_ = new QPrintPreviewWidget(foglio_.get(), ui_->Posto);
    vista_->setObjectName(QStringLiteral("Foglio"));
    posto->addWidget(vista_);
    for (auto *foglio : vista_->findChildren<QGraphicsView *>()) {
        foglio->setAccessibleName(QStringLiteral("Foglio come viene stampato"));
    }
    ui_->Avvisi->ImpostaModo(Qt::ElideRight);
    ui_->Stampante->setText(Descrizione(stampante, pagina));
    ui_->Scansione->setEnabled(HaScansione(stato_.Aperto().Sfondo));
    setWindowTitle(QStringLiteral("Vedi stampa: ") + stato_.NomeFile);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    ImpostaHelp(this);
    MostraFuoco(this);
    Collegamenti();
    constexpr QSize Comoda(900, 700); // device-independent pixels
    resize(EntroLoSchermo(this, Comoda));
}

VediStampa::~VediStampa() = default;

void VediStampa::Collegamenti()
{
    // No Collega here: what painting throws waits until Qt's own code has ended.
    connect(vista_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter *foglio) {
        try {
            DipingeSu(*foglio);
        } catch (...) {
            guasto_ = std::current_exception();
        }
    });
    Collega(ui_->Scansione, &QCheckBox::toggled, this, &VediStampa::Ridipinge);
    Collega(ui_->Nomi, &QCheckBox::toggled, this, &VediStampa::Ridipinge);
    Collega(ui_->Ingrandisci, &QPushButton::clicked, vista_, [this] { vista_->zoomIn(); });
    Collega(ui_->Riduci, &QPushButton::clicked, vista_, [this] { vista_->zoomOut(); });
    Collega(ui_->TuttoIlFoglio, &QPushButton::clicked, vista_, [this] { vista_->fitInView(); });
    Collega(ui_->TuttaLaLarghezza, &QPushButton::clicked, vista_, [this] { vista_->fitToWidth(); });
    connect(ui_->StampaDiProva, &QPushButton::clicked, this, &VediStampa::StampaRichiesta);
    Collega(ui_->Esporta, &QPushButton::clicked, this,
            [this] { emit EsportazioneRichiesta(ui_->Nomi->isChecked()); });
    connect(ui_->Chiudi, &QPushButton::clicked, this, &QDialog::accept);
}

QString VediStampa::Descrizione(const QString &stampante, const QPageLayout &pagina) const
{
    return QStringLiteral("Stampante: %1\nCarta: %2\nArea stampabile: %3")
        .arg(stampante, InMillimetri(pagina.fullRect(QPageLayout::Millimeter).size()),
             InMillimetri(pagina.paintRect(QPageLayout::Millimeter).size()));
}

void VediStampa::Dipinge()
{
    avvisi_.clear();
    guasto_ = nullptr;
    {
        const PuntatoreOccupato occupato;
        // The sheet that the widget shows is gone as soon as the next one is begun, and the windows
        // are painted while the user waits.
        vista_->setUpdatesEnabled(false);
        const auto poi = qScopeGuard([this] { vista_->setUpdatesEnabled(true); });
        vista_->updatePreview();
    }
    if (guasto_) {
        std::rethrow_exception(guasto_);
    }
    Dice(avvisi_.isEmpty() ? QString()
                           : QStringLiteral("Stampando, si verrà avvisati: ") +
                                 avvisi_.join(QStringLiteral("; ")).simplified());
}

void VediStampa::Ridipinge()
{
    try {
        Dipinge();
    } catch (const StampaAnnullata &) {
        reject();
    }
}

void VediStampa::Dice(const QString &testo)
{
    ui_->Avvisi->setText(testo);
}

void VediStampa::DipingeSu(QPrinter &foglio)
{
    const Modello &modello = stato_.Aperto();
    FoglioDaVedere destinazione(foglio);
    AttesaDiStampa attesa(isVisible() ? this : parentWidget(),
                          QStringLiteral("Preparazione del foglio..."));
    destinazione.Titolo(modello.NomeFile);
    Pagina pagina(destinazione);
    pagina.Segue([&](double parte) { attesa.Avanza(parte); });
    if (ui_->Scansione->isChecked()) {
        StendeScansione(pagina);
    }
    StampaProva(modello, stato_.CartellaModelli, pagina, [this](const QString &testo) {
        avvisi_.append(testo);
    }).Stampa(ui_->Nomi->isChecked());
    TratteggiaBordo(pagina);
    pagina.Fine();
}

void VediStampa::StendeScansione(Pagina &pagina)
{
    const ImmagineSfondo &sfondo = stato_.Aperto().Sfondo;
    try {
        pagina.FiguraAnd(SfondoDelModello::File(sfondo), SfondoDelModello::Posto(sfondo));
    } catch (const ErroreSistema &errore) {
        avvisi_.append(SfondoDelModello::NonCaricato(sfondo, errore));
    }
}
