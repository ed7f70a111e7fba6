#include "dialogs/FrmCornice.h"

#include "dialogs/TavolozzaColori.h"
#include "ui_FrmCornice.h"

#include "finestre/AvvisoCasella.h"
#include "finestre/Contrasto.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "grafica/Testo.h"
#include "model/Numeri.h"
#include "model/Tavolozza.h"

namespace {

const auto BordoAssente = QStringLiteral("0");
const auto BordoPieno = QStringLiteral("1");

/// A background on which a text of the colour can be read: one of the two always can.
QColor Sfondo(const QColor &colore)
{
    return Contrasto(colore, Qt::white) >= Contrasto(colore, Qt::black) ? Qt::white : Qt::black;
}

} // namespace

FrmCornice::FrmCornice(StatoProgramma &stato, QWidget *padre)
    : FrmCarattere(Genere::Cornice, stato, padre)
    , ui_(std::make_unique<Ui::FrmCornice>())
{
    ui_->setupUi(this);
    Form_Load();
    CollegaSegnali();
}

FrmCornice::~FrmCornice() = default;

void FrmCornice::Form_Load()
{
    FrmCarattere::Form_Load({ui_->Num, ui_->Nome, ui_->Descrizione, ui_->X, ui_->Y},
                            {ui_->ComboFont, ui_->ComboDim, ui_->Bold, ui_->Testo});
    if (ui_->OptEtichetta->isChecked()) {
        ImpostaBordo(BordoAssente, false);
    }
}

void FrmCornice::CollegaSegnali()
{
    OffreColori(ui_->TavolozzaTesto, ui_->ColoreTesto);
    OffreColori(ui_->TavolozzaCorn, ui_->ColoreCorn);
    Sorveglia(ui_->Bordo, Numeri::AvvisoDiLettura);
    Collega(ui_->OptEtichetta, &QRadioButton::clicked, this, &FrmCornice::OptEtichetta_Click);
    Collega(ui_->OptCornice, &QRadioButton::clicked, this, &FrmCornice::OptCornice_Click);
    Collega(ui_->ColoreTesto, &QLineEdit::textChanged, this, &FrmCornice::ColoreTesto_Change);
    Collega(ui_->Confema, &QPushButton::clicked, this, &FrmCornice::Confema_Click);
    Collega(ui_->Command1, &QPushButton::clicked, this, &FrmCornice::Command1_Click);
    Collega(ui_->Command2, &QPushButton::clicked, this, &FrmCornice::Command2_Click);
    Collega(ui_->Elimina, &QPushButton::clicked, this, &FrmCornice::Elimina_Click);
}

void FrmCornice::Carica(int k)
{
    CaricaElemento(k);
    const Cornice &cornice = Aperto().Cornici[k];
    CaricaCarattere(cornice);
    Caselle().Mostra(ui_->ColoreCorn, QString::number(cornice.ColoreCornice));
    Caselle().Mostra(ui_->ColoreTesto, QString::number(cornice.ColoreTesto));
    Caselle().Mostra(ui_->Largh, cornice.Larghezza);
    Caselle().Mostra(ui_->Alt, cornice.Altezza);
    // The reading of this box knows only the point.
    Caselle().Mostra(ui_->Bordo, cornice.Bordo, QLocale::c());
    if (cornice.Bordo == 0) {
        ui_->OptEtichetta->setChecked(true);
        OptEtichetta_Click();
    } else {
        ui_->OptCornice->setChecked(true);
        OptCornice_Click();
    }
}

void FrmCornice::ImpostaBordo(const QString &testo, bool abilitato)
{
    MostraDallInizio(ui_->Bordo, testo);
    ui_->Bordo->setEnabled(abilitato);
}

bool FrmCornice::SenzaBordo() const
{
    try {
        return Val(ui_->Bordo) == 0;
    } catch (const Rifiuto &) {
        return false; // the confirm tells of it, once
    }
}

void FrmCornice::OptEtichetta_Click()
{
    const bool etichetta = ui_->OptEtichetta->isChecked();
    ImpostaBordo(etichetta ? BordoAssente : BordoPieno, !etichetta);
}

void FrmCornice::OptCornice_Click()
{
    if (ui_->OptEtichetta->isChecked()) {
        ImpostaBordo(BordoAssente, false);
    } else {
        ImpostaBordo(SenzaBordo() ? BordoPieno : ui_->Bordo->text(), true);
    }
}

void FrmCornice::ColoreTesto_Change()
{
    const std::optional<double> numero = Numeri::Numerico(ui_->ColoreTesto->text());
    const double intero = Numeri::PariPiuVicino(numero.value_or(-1));
    if (intero < 0 || intero >= Tavolozza::Colori) {
        return; // half-typed texts pass by without a word
    }
    const QColor colore = QColor::fromRgb(Tavolozza::Rgb(static_cast<int>(intero)));
    QPalette tavolozza = ui_->Label11->palette();
    tavolozza.setColor(QPalette::WindowText, colore);
    tavolozza.setColor(QPalette::Window, Sfondo(colore));
    ui_->Label11->setPalette(tavolozza);
}

void FrmCornice::ControllaColore(QLineEdit *casella, const QString &messaggio)
{
    const std::optional<double> colore = Numeri::Numerico(casella->text());
    if (!colore || *colore > Tavolozza::Colori - 1 || *colore < 0) {
        throw Rifiuto{messaggio, casella};
    }
}

void FrmCornice::ControllaLarghezza() const
{
    if (Val(ui_->Largh) <= 0) {
        throw Rifiuto{QStringLiteral("non si può LARGHEZZA cornice ZERO o minore di zero"),
                      ui_->Largh};
    }
}

FrmCornice::MisuraEtichetta FrmCornice::AdattaAllaScritta(const Carattere &carattere)
{
    constexpr double Margine = 1; // mm
    const QSizeF scritta = MisuraTesto(Caselle().Testo(ui_->Testo), carattere.Font,
                                       carattere.Dimensione, carattere.Grassetto != Falso);
    const MisuraEtichetta misure{Numeri::PariPiuVicino(scritta.width() + Margine),
                                 Numeri::PariPiuVicino(scritta.height() + Margine)};
    Caselle().Mostra(ui_->Largh, misure.Larghezza);
    Caselle().Mostra(ui_->Alt, misure.Altezza);
    return misure;
}

void FrmCornice::Confema_Click()
{
    Tenta([this] {
        const int n = Indice();
        ControllaNomeUnico(n, QStringLiteral("nome già esistente"));
        const double bordo = Val(ui_->Bordo);
        if (bordo == 0 && ui_->Testo->text().isEmpty()) {
            throw Rifiuto{
                QStringLiteral("non si può impostare cornice senza bordo e senza etichetta"),
                ui_->Testo};
        }
        ControllaLarghezza();
        ControllaColore(ui_->ColoreTesto, QStringLiteral("Colore errato"));
        ControllaColore(ui_->ColoreCorn, QStringLiteral("Colore cornice errato"));
        ControllaNomeScritto();
        const Posto posto = PostoScritto();
        const Carattere carattere = CarattereScelto();
        const bool etichetta = ui_->OptEtichetta->isChecked();
        MisuraEtichetta misure{};
        if (!etichetta) {
            misure.Larghezza = Doppio(ui_->Largh);
            misure.Altezza = Doppio(ui_->Alt);
        }

        Cornice cornice = Aperto().Cornici[n];
        ScriveElemento(cornice, posto);
        cornice.Testo = Caselle().Testo(ui_->Testo);
        cornice.Bordo = bordo;
        cornice.ColoreCornice = Intero16(ui_->ColoreCorn, ui_->ColoreCorn->text());
        cornice.ColoreTesto = Intero16(ui_->ColoreTesto, ui_->ColoreTesto->text());
        if (etichetta) {
            misure = AdattaAllaScritta(carattere);
        }
        cornice.Larghezza = misure.Larghezza;
        cornice.Altezza = misure.Altezza;
        Scrive(cornice, carattere);
        Conferma(n, cornice);
    });
}

void FrmCornice::SuTutte(const QString &testo, const std::function<void(Cornice &)> &cambia)
{
    Passo passo(DocumentoAperto(), testo);
    for (int i = 1; i <= Aperto().UltimoSlot(Genere::Cornice); ++i) {
        Cornice cornice = Aperto().Cornici[i];
        cambia(cornice);
        passo.Scrive(i, cornice);
    }
}

void FrmCornice::Command1_Click()
{
    Tenta([this] {
        const PuntatoreOccupato occupato;
        const qint16 coloreTesto = ValIntero16(ui_->ColoreTesto);
        const qint16 coloreCornice = ValIntero16(ui_->ColoreCorn);
        SuTutte(QStringLiteral("colori su tutte le cornici"), [&](Cornice &cornice) {
            cornice.ColoreTesto = coloreTesto;
            cornice.ColoreCornice = coloreCornice;
        });
        accept();
    });
}

void FrmCornice::Command2_Click()
{
    Tenta([this] {
        ControllaColore(ui_->ColoreTesto, QStringLiteral("Colore errato"));
        const PuntatoreOccupato occupato;
        const Carattere carattere = CarattereScelto();
        const qint16 coloreTesto = Intero16(ui_->ColoreTesto, ui_->ColoreTesto->text());
        SuTutte(QStringLiteral("font su tutte le cornici"), [&](Cornice &cornice) {
            Scrive(cornice, carattere);
            cornice.ColoreTesto = coloreTesto;
        });
        accept();
    });
}

void FrmCornice::Elimina_Click()
{
    ChiedeEliminazione();
}
