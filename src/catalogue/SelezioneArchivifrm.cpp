#include "catalogue/SelezioneArchivifrm.h"

#include "ui_SelezioneArchivifrm.h"

#include "base/ErroreSistema.h"
#include "catalogue/ModelloIndicato.h"
#include "catalogue/TabellaFont.h"
#include "finestre/ApriManuale.h"
#include "finestre/Finestre.h"
#include "finestre/FuocoInVista.h"
#include "finestre/Guardia.h"
#include "finestre/Icone.h"
#include "finestre/Messaggi.h"
#include "print/Stampanti.h"
#include "sistema/ElencoModelli.h"
#include "sistema/Impostazioni.h"
#include "sistema/Percorsi.h"

#include <QDir>
#include <QFileInfo>
#include <QFontInfo>
#include <QShortcut>
#include <QWindow>

#include <utility>

namespace {

constexpr QLatin1String ArchivioAbituale("Contabilita");
constexpr double CarattereRidotto = 0.85; ///< of the window's own font size

} // namespace

SelezioneArchivifrm::SelezioneArchivifrm(StatoProgramma &stato, QWidget *padre)
    : QWidget(padre)
    , stato_(stato)
    , ui_(std::make_unique<Ui::SelezioneArchivifrm>())
{
    ui_->setupUi(this);
    QFont piccolo = ui_->Label3->font();
    piccolo.setPointSizeF(QFontInfo(piccolo).pointSizeF() * CarattereRidotto);
    ui_->Label3->setFont(piccolo);
    ui_->Image1->setIcon(IconaGuida(ui_->Image1->iconSize().width()));
    CollegaSegnali();
}

SelezioneArchivifrm::~SelezioneArchivifrm() = default;

void SelezioneArchivifrm::CollegaSegnali()
{
    using Questa = SelezioneArchivifrm;
    Collega(ui_->List1, &QListWidget::itemSelectionChanged, this, &Questa::List1_Click);
    // The selection changes with the press; the release ends the click.
    ui_->List1->viewport()->installEventFilter(this);
    Collega(ui_->List1, &QListWidget::itemClicked, this, &Questa::RipeteElenco);
    Collega(ui_->List2, &QListWidget::itemSelectionChanged, this, &Questa::List2_Click);
    Collega(ui_->List2, &QListWidget::itemDoubleClicked, this, &Questa::Apri_Click);
    Collega(ui_->Apri, &QPushButton::clicked, this, &Questa::Apri_Click);
    Collega(ui_->Nuovo, &QPushButton::clicked, this, &Questa::Nuovo_Click);
    Collega(ui_->Image1, &QToolButton::clicked, this, &Questa::Image1_Click);
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *invio = new QShortcut(tasto, ui_->List2);
        invio->setContext(Qt::WidgetShortcut);
        Collega(invio, &QShortcut::activated, this, &Questa::Apri_Click);
    }
    auto *aggiorna = new QShortcut(Qt::Key_F5, this);
    aggiorna->setAutoRepeat(false);
    Collega(aggiorna, &QShortcut::activated, this, &Questa::AggiornaElenchi);
}

bool SelezioneArchivifrm::Form_Load(const QString &datiIndicati)
{
    PosizionaFinestra();
    ImpostaHelp(this);
    MostraFuoco(this);
    ui_->Label3->setText(CartellaProgramma());
    ui_->Label3->setToolTip(CartellaProgramma());
    if (!istanza_.Acquisisce()) {
        Messaggi::Mostra(this, QStringLiteral("programma già in esecuzione"));
        return false;
    }
    if (!LeggeCartellaDati(datiIndicati)) {
        Messaggi::Mostra(this, QStringLiteral("non esiste dirtxt in reg conf"));
        return false;
    }
    ElencaArchivi();
    SelezionaArchivioPredefinito();
    RiempieElencoFont(this, Stampanti::ElencoFont(), stato_.ElencoFont);
    return true;
}

void SelezioneArchivifrm::PosizionaFinestra()
{
    // The content scrolls on a screen that is too small for it, and only there.
    QLayout *disposizione = ui_->Contenuto->layout();
    disposizione->activate();
    const int larghezza = disposizione->totalSizeHint().width();
    resize(EntroLoSchermo(this, {larghezza, disposizione->totalHeightForWidth(larghezza)}));
    CentraForm(this);
}

bool SelezioneArchivifrm::LeggeCartellaDati(const QString &datiIndicati)
{
    const QString cartella = datiIndicati.isEmpty() ? Impostazioni::Dirtxt() : datiIndicati;
    if (cartella.isEmpty()) {
        return false;
    }
    cartellaDati_ =
        QDir::toNativeSeparators(QFileInfo(Percorsi::Risolve(cartella)).absoluteFilePath());
    stato_.CartellaModelli = cartellaDati_;
    return true;
}

bool SelezioneArchivifrm::ElencaArchivi()
{
    ui_->Dir1->clear();
    ui_->List1->clear();
    try {
        ui_->Dir1->addItems(Percorsi::SottoCartelle(cartellaDati_));
    } catch (const ErroreSistema &errore) {
        Messaggi::Mostra(this, QStringLiteral("impossibile leggere la cartella dei dati\n%1\n%2")
                                   .arg(cartellaDati_, errore.descrizione));
        return false;
    }
    for (int i = 0; i < ui_->Dir1->count(); ++i) {
        auto *archivio = new QListWidgetItem(ui_->Dir1->item(i)->text(), ui_->List1);
        archivio->setToolTip(archivio->text());
        // No wider than the list: of a long path the beginning is left out, not the archive's name.
        archivio->setSizeHint({0, ui_->List1->sizeHintForRow(i)});
    }
    return true;
}

void SelezioneArchivifrm::SelezionaArchivioPredefinito()
{
    if (stato_.ArchivioPredefinito.isEmpty()) {
        stato_.ArchivioPredefinito = ArchivioAbituale;
    }
    const QString predefinito = stato_.ArchivioPredefinito.toUpper();
    for (int i = 0; i < ui_->List1->count(); ++i) {
        if (Percorsi::ToglieUltimaBarra(ui_->List1->item(i)->text()).toUpper() == predefinito) {
            ui_->List1->setCurrentRow(i);
            return;
        }
    }
}

void SelezioneArchivifrm::GuardaCornice()
{
    if (conCornice_ || windowHandle() == nullptr || windowHandle()->frameMargins().isNull()) {
        return;
    }
    conCornice_ = true;
    CentraForm(this);
}

void SelezioneArchivifrm::moveEvent(QMoveEvent *)
{
    // The frame is known only once the window manager has drawn it, and it moves the window then.
    Guardia(this, [this] { GuardaCornice(); });
}

void SelezioneArchivifrm::showEvent(QShowEvent *evento)
{
    QWidget::showEvent(evento);
    Guardia(this, [this] {
        GuardaCornice();
        if (riapertura_) {
            riapertura_ = false;
            // A model from elsewhere may have the name of one of theirs.
            RiprendeElenchi(inElenco_ ? stato_.NomeFile : QString());
        }
        if (ArchivioScelto()) {
            ui_->List2->setFocus();
        } else {
            ui_->List1->setFocus();
        }
    });
}

bool SelezioneArchivifrm::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (oggetto == ui_->List1->viewport() && evento->type() == QEvent::MouseButtonPress) {
        elencatoColClic_ = false;
    }
    return QWidget::eventFilter(oggetto, evento);
}

void SelezioneArchivifrm::AggiornaElenchi()
{
    RiprendeElenchi(ModelloSelezionato() ? stato_.NomeFile : QString());
}

void SelezioneArchivifrm::RiprendeElenchi(const QString &nomeFile)
{
    const bool letti = ElencaArchivi();
    SvuotaModelli();
    // A data folder that does not answer may do so later: its archive is not given up.
    if (letti) {
        RiprendeArchivio();
        RiprendeModello(nomeFile);
    }
}

void SelezioneArchivifrm::RiprendeArchivio()
{
    if (archivio_.isEmpty()) {
        SelezionaArchivioPredefinito();
        return;
    }
    const auto trovati = ui_->List1->findItems(archivio_, Qt::MatchExactly);
    if (!trovati.isEmpty()) {
        ui_->List1->setCurrentItem(trovati.first());
        return;
    }
    const QString scomparso = std::exchange(archivio_, QString());
    Messaggi::Mostra(this, QStringLiteral("l'archivio scelto non c'è più\n") + scomparso);
}

void SelezioneArchivifrm::RiprendeModello(const QString &nomeFile)
{
    for (int i = 0; i < ui_->List2->count(); ++i) {
        const QString altro = ui_->List2->item(i)->text() + ElencoModelli::Estensione;
        if (altro.compare(nomeFile, Qt::CaseInsensitive) == 0) {
            ui_->List2->setCurrentRow(i);
            return;
        }
    }
}

void SelezioneArchivifrm::SvuotaModelli()
{
    ui_->File1->clear();
    ui_->List2->clear();
}

void SelezioneArchivifrm::ElencaModelli()
{
    SvuotaModelli();
    try {
        const QStringList file = Percorsi::FileConModello(
            stato_.CartellaModelli, QStringLiteral("*.mod"), Percorsi::NomiConPunto::Sempre);
        ui_->File1->addItems(file);
        ui_->List2->addItems(ElencoModelli::Nomi(file));
    } catch (const ErroreSistema &errore) {
        Messaggi::Mostra(this, QStringLiteral("impossibile leggere la cartella dei modelli\n%1\n%2")
                                   .arg(stato_.CartellaModelli, errore.descrizione));
    }
}

void SelezioneArchivifrm::List1_Click()
{
    if (!ArchivioScelto()) {
        return;
    }
    elencatoColClic_ = true;
    archivio_ = ui_->List1->selectedItems().constFirst()->text();
    const QString barra = Percorsi::Separatore();
    stato_.CartellaModelli = Percorsi::Risolve(archivio_ + barra + CartellaIni + barra);
    ElencaModelli();
}

void SelezioneArchivifrm::RipeteElenco()
{
    if (!elencatoColClic_) {
        List1_Click();
    }
}

void SelezioneArchivifrm::List2_Click()
{
    if (ModelloSelezionato()) {
        stato_.NomeFile =
            ui_->List2->selectedItems().constFirst()->text() + ElencoModelli::Estensione;
    }
}

void SelezioneArchivifrm::Apri_Click()
{
    if (!ArchivioScelto()) {
        Messaggi::Mostra(this, QStringLiteral("Selezionare una cartella"));
        return;
    }
    if (!ModelloSelezionato()) {
        Messaggi::Mostra(this, QStringLiteral("Selezionare un modello"));
        return;
    }
    Consegna();
}

void SelezioneArchivifrm::Image1_Click()
{
    ApriManuale(ChiaveManuale);
}

bool SelezioneArchivifrm::ArchivioScelto() const
{
    return !ui_->List1->selectedItems().isEmpty();
}

bool SelezioneArchivifrm::ModelloSelezionato() const
{
    return !ui_->List2->selectedItems().isEmpty();
}

void SelezioneArchivifrm::Indica(const QString &percorso)
{
    QStringList archivi;
    for (int i = 0; i < ui_->List1->count(); ++i) {
        archivi.append(ui_->List1->item(i)->text());
    }
    const ModelloIndicato modello = TrovaModello(percorso, archivi);
    inElenco_ = !modello.archivio.isEmpty() && modello.ConEstensione();
    if (inElenco_) {
        ui_->List1->setCurrentRow(static_cast<int>(archivi.indexOf(modello.archivio)));
        RiprendeModello(modello.nomeFile);
    } else {
        stato_.CartellaModelli = modello.cartella;
        AvvisaFuoriArchivio(modello);
    }
    // The lists know neither names that differ from another only by case nor files that are
    // missing.
    const QString scelto = Percorsi::Risolve(stato_.CartellaModelli + stato_.NomeFile);
    if (!inElenco_ || !ModelloSelezionato() || QFileInfo(scelto).fileName() != modello.nomeFile) {
        stato_.NomeFile = modello.nomeFile;
    }
    riapertura_ = true;
}

void SelezioneArchivifrm::AvvisaFuoriArchivio(const ModelloIndicato &modello)
{
    if (const QFileInfo file(modello.Percorso()); !file.isFile() || !file.isReadable()) {
        return; // which is about to be told
    }
    const QString manca =
        modello.archivio.isEmpty()
            ? QStringLiteral("non sta in un archivio:\nmanca una cartella ini in una sottocartella "
                             "di\n%1")
                  .arg(cartellaDati_)
            : QStringLiteral("non è tra i modelli del suo archivio:\nmanca l'estensione .Mod");
    Messaggi::Mostra(this,
                     QStringLiteral("%1 %2\n\nVastrel non lo trova quando stampa e la finestra "
                                    "iniziale non lo elenca.\nSi apre lo stesso, con le "
                                    "immagini della sua cartella:\n%3")
                         .arg(modello.nomeFile, manca, modello.cartella));
}

void SelezioneArchivifrm::Consegna()
{
    riapertura_ = true;
    inElenco_ = true;
    close();
    emit ModelloScelto();
}
