#include "editor/Form2.h"

#include "base/ErroreSistema.h"
#include "catalogue/ApriManuale.h"
#include "editor/PaginaElementi.h"
#include "editor/PaginaRighe.h"
#include "editor/PaginaSfondo.h"
#include "editor/PaginaSpostamento.h"
#include "model/CopiaRecupero.h"
#include "model/FileModello.h"
#include "platform/Finestre.h"
#include "platform/Guardia.h"
#include "platform/IconaGuida.h"
#include "platform/Messaggi.h"
#include "platform/Percorsi.h"
#include "platform/Stampanti.h"
#include "preview/Frm1.h"
#include "preview/GeometriaAnteprima.h"
#include "print/Retino.h"
#include "print/StampaProva.h"
#include "ui_Form2.h"

#include <QCloseEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTime>
#include <QWindow>

namespace {

constexpr std::array<Genere, 3> Generi{Genere::Campo, Genere::Cornice, Genere::Immagine};

// Order of the pages of SSTab1; the preview asks for the pages of the three kinds.
enum Pagine { PaginaCampi, PaginaPosizioneRighe, PaginaCornici, PaginaImmagini };

int PaginaDi(Genere genere)
{
    switch (genere) {
    case Genere::Campo:
        return PaginaCampi;
    case Genere::Cornice:
        return PaginaCornici;
    case Genere::Immagine:
        break;
    }
    return PaginaImmagini;
}

} // namespace

Form2::Form2(StatoProgramma &stato, QWidget *padre)
    : QWidget(padre)
    , ui_(std::make_unique<Ui::Form2>())
    , stato_(stato)
{
    ui_->setupUi(this);
    ui_->Image1->setIcon(IconaGuida(24));
    setWindowTitle(QStringLiteral("Plakera: Modello ") + stato_.Aperto.NomeFile);
}

Form2::~Form2()
{
    // A box that loses the focus while it is destroyed must not act on a preview already gone.
    const auto controlli = findChildren<QWidget *>();
    for (QWidget *controllo : controlli) {
        controllo->blockSignals(true);
    }
}

void Form2::CreaPagine()
{
    for (const Genere genere : Generi) {
        pagineElementi_[static_cast<std::size_t>(genere)] = new PaginaElementi(genere, this);
    }
    righe_ = new PaginaRighe(stato_, *anteprima_, this);
    spostamento_ = new PaginaSpostamento(stato_, *anteprima_, this);
    sfondo_ = new PaginaSfondo(stato_, *anteprima_, this);
    ui_->SSTab1->addTab(&Pagina(Genere::Campo), QStringLiteral("Campi"));
    ui_->SSTab1->addTab(righe_, QStringLiteral("Posizione righe"));
    ui_->SSTab1->addTab(&Pagina(Genere::Cornice), QStringLiteral("Cornici ed Etichette"));
    ui_->SSTab1->addTab(&Pagina(Genere::Immagine), QStringLiteral("Immagini"));
    ui_->SSTab1->addTab(spostamento_, QStringLiteral("Spostamento"));
    ui_->SSTab1->addTab(sfondo_, QStringLiteral("Immagine sfondo"));
}

PaginaElementi &Form2::Pagina(Genere genere) const
{
    return *pagineElementi_[static_cast<std::size_t>(genere)];
}

bool Form2::Form_Load()
{
    stato_.zoom = 1;
    Variato = false;
    copiaMancata_ = false;
    percorso_ = Percorsi::Risolve(stato_.CartellaModelli + stato_.Aperto.NomeFile);
    if (!LeggeModello()) {
        return false;
    }
    anteprima_ = std::make_unique<Frm1>(stato_);
    CreaPagine();
    ui_->Label21->setText(stato_.CartellaModelli);
    ui_->Label21->setToolTip(stato_.CartellaModelli);
    ui_->Tipo->setText(stato_.Aperto.Tipo);
    righe_->Mostra();
    spostamento_->Mostra();
    sfondo_->Mostra();
    LimitaAlCodice(this);
    ImpostaHelp(this);
    Collegamenti();
    CollegaAnteprima();
    SistemaFinestre();
    sfondo_->ImpostaImmagineSfondo(false);
    for (const Genere genere : Generi) {
        MostraElementi(genere);
    }
    PPPP();
    return true;
}

void Form2::MostraElementi(Genere genere)
{
    PaginaElementi &pagina = Pagina(genere);
    pagina.Svuota();
    for (int k = 1; k <= stato_.Aperto.UltimoSlot(genere); ++k) {
        anteprima_->CreaElemento(genere, k);
        pagina.AggiungeVoce(stato_.Aperto.Nome(genere, k));
        anteprima_->Impostazioni(genere, k);
        anteprima_->Posiziona(genere, k, false);
        if (!stato_.Aperto.Presente(genere, k)) {
            anteprima_->NascondiElemento(genere, k);
        }
    }
}

void Form2::Collegamenti()
{
    Collega(ui_->Salva, &QPushButton::clicked, this, &Form2::Salva_Click);
    Collega(ui_->Stampa, &QPushButton::clicked, this, &Form2::Stampa_Click);
    Collega(ui_->StampaRetino, &QPushButton::clicked, this, &Form2::StampaRetino_Click);
    Collega(ui_->Elimina, &QPushButton::clicked, this, &Form2::Elimina_Click);
    Collega(ui_->Image1, &QToolButton::clicked, this, &Form2::Image1_Click);
    Collega(ui_->SSTab1, &QTabWidget::currentChanged, this, &Form2::SSTab1_Click);
    Collega(ui_->Tipo, &QLineEdit::textEdited, this, [this] {
        stato_.Aperto.Tipo = ui_->Tipo->text();
        SegnaVariato();
    });
    Collega(ui_->Tipo, &QLineEdit::editingFinished, this, &Form2::ModificaConclusa);
    Collega(&Pagina(Genere::Campo), &PaginaElementi::Aggiunge, this, &Form2::Aggiungicampo_Click);
    Collega(&Pagina(Genere::Cornice), &PaginaElementi::Aggiunge, this,
            &Form2::AggiungiCornice_Click);
    Collega(&Pagina(Genere::Immagine), &PaginaElementi::Aggiunge, this,
            &Form2::AggiungiImmagine_Click);
    Collega(&Pagina(Genere::Cornice), &PaginaElementi::EliminaTutte, this, &Form2::Command7_Click);
    for (const Genere genere : Generi) {
        PaginaElementi *pagina = &Pagina(genere);
        Collega(pagina, &PaginaElementi::Modifica, this, [this, genere] { Modifica(genere); });
        Collega(pagina, &PaginaElementi::PrimoPiano, this,
                [this, genere] { anteprima_->PrimoPiano(genere); });
        Collega(pagina, &PaginaElementi::FuocoPreso, this,
                [this, genere] { anteprima_->NascondiMarcatore(genere); });
    }
    connect(righe_, &PaginaRighe::Variato, this, &Form2::SegnaVariato);
    connect(sfondo_, &PaginaSfondo::Variato, this, &Form2::SegnaVariato);
    Collega(righe_, &PaginaRighe::ModificaConclusa, this, &Form2::ModificaConclusa);
    Collega(spostamento_, &PaginaSpostamento::ModificaConclusa, this, [this] {
        RidisegnaRighe();
        ModificaConclusa();
    });
    Collega(sfondo_, &PaginaSfondo::ModificaConclusa, this, &Form2::ModificaConclusa);
}

void Form2::CollegaAnteprima()
{
    Frm1 *anteprima = anteprima_.get();
    connect(anteprima, &Frm1::Variato, this, &Form2::SegnaVariato);
    Collega(anteprima, &Frm1::ModificaConclusa, this, &Form2::ModificaConclusa);
    Collega(anteprima, &Frm1::ElementoPuntato, this,
            [this](Genere genere, int i) { Pagina(genere).Seleziona(i); });
    Collega(anteprima, &Frm1::PaginaRichiesta, this, &Form2::MostraPaginaDi);
    Collega(anteprima, &Frm1::RichiestaProprieta, this, &Form2::ApreProprieta);
    Collega(anteprima, &Frm1::SfondoDaRidisegnare, this,
            [this] { sfondo_->ImpostaImmagineSfondo(false); });
    Collega(anteprima, &Frm1::RigheDaRidisegnare, this, &Form2::RidisegnaRighe);
    // An editor without its preview is of no use: closing the preview closes the editor, with its
    // question about unsaved work. Queued, because the preview is in the middle of its own event.
    connect(
        anteprima, &Frm1::ChiusuraRichiesta, this, [this] { Guardia(this, [this] { Chiude(); }); },
        Qt::QueuedConnection);
}

void Form2::SegnaVariato()
{
    Variato = true;
}

void Form2::SSTab1_Click()
{
    PPPP();
}

void Form2::PPPP()
{
    anteprima_->NascondiMarcatori();
    anteprima_->PrimoPianoImmagini();
    anteprima_->PrimoPianoCornici();
    anteprima_->PrimoPianoCampi();
}

void Form2::Aggiungicampo_Click()
{
    const int n = stato_.Aperto.AggiungeCampo(anteprima_->ScorrimentoX() + 10,
                                              anteprima_->ScorrimentoY() + 10);
    AccogliNuovo(Genere::Campo, n, stato_.Aperto.Campi[n].Nome);
    VariazioneCampo_Click();
}

void Form2::AggiungiCornice_Click()
{
    const QTime ora = QTime::currentTime();
    const int n =
        stato_.Aperto.AggiungeCornice(anteprima_->ScorrimentoX() + 10,
                                      anteprima_->ScorrimentoY() + 10, ora.minute(), ora.second());
    AccogliNuovo(Genere::Cornice, n, stato_.Aperto.Cornici[n].Nome);
    VariazioneCornice_Click();
}

void Form2::AggiungiImmagine_Click()
{
    const int n = stato_.Aperto.AggiungeImmagine(anteprima_->ScorrimentoX() + 10,
                                                 anteprima_->ScorrimentoY() + 10);
    AccogliNuovo(Genere::Immagine, n, QString());
    VariazioneImmagine_Click();
}

void Form2::AccogliNuovo(Genere genere, int n, const QString &voce)
{
    anteprima_->CreaElemento(genere, n);
    anteprima_->Impostazioni(genere, n);
    anteprima_->Posiziona(genere, n, true);
    anteprima_->Seleziona(genere, n);
    Pagina(genere).AggiungeVoce(voce);
    Pagina(genere).Seleziona(n);
    if (genere != Genere::Campo) {
        anteprima_->PrimoPiano(genere);
    }
    // A new field stays in front of all others, where it was created, however large its text.
    ModificaConclusa();
}

void Form2::VariazioneCampo_Click()
{
    Modifica(Genere::Campo);
}

void Form2::VariazioneCornice_Click()
{
    Modifica(Genere::Cornice);
}

void Form2::VariazioneImmagine_Click()
{
    Modifica(Genere::Immagine);
}

void Form2::Modifica(Genere genere)
{
    if (!Pagina(genere).VoceEliminata()) {
        ApreProprieta(genere, Pagina(genere).Indice());
    }
}

void Form2::Salva_Click()
{
    Variato = true;
    SalvareVariazioni();
}

bool Form2::SalvareVariazioni()
{
    if (!Variato ||
        !Messaggi::Domanda(this, QStringLiteral("salvare le variazioni"), Messaggi::Risposta::Si)) {
        return true;
    }
    bool salvato = false;
    Guardia(this, [&] {
        if (PuoSovrascrivere()) {
            const PuntatoreOccupato occupato;
            const QByteArray byte = FileModello::ScriveModello(stato_.Aperto, percorso_);
            Variato = false;
            salvato = true;
            copia_->EliminaOfferte();
            copia_->Parte(byte);
        }
    });
    return salvato;
}

void Form2::Elimina_Click()
{
    const QString nome = stato_.Aperto.NomeFile;
    if (!Messaggi::Domanda(this, QStringLiteral("Comferma eliminazione %1 ?").arg(nome),
                           Messaggi::Risposta::No)) {
        return;
    }
    Percorsi::Elimina(percorso_);
    copia_->EliminaOfferte();
    Messaggi::Mostra(this, nome + QStringLiteral(" eliminato"));
    // Nothing is left to save: asking would bring the deleted file back.
    Variato = false;
    close();
}

void Form2::Command7_Click()
{
    if (!Messaggi::Domanda(this, QStringLiteral("Elimino TUTTE le Cornici "),
                           Messaggi::Risposta::No)) {
        return;
    }
    for (int k = 1; k <= stato_.Aperto.UltimoSlot(Genere::Cornice); ++k) {
        EliminaElemento(Genere::Cornice, k);
    }
    anteprima_->NascondiMarcatori();
    ModificaConclusa();
    Chiude();
}

void Form2::EliminaElemento(Genere genere, int n)
{
    if (stato_.Aperto.Presente(genere, n)) {
        SegnaVariato();
    }
    stato_.Aperto.Nome(genere, n).clear();
    anteprima_->NascondiElemento(genere, n);
    Pagina(genere).SegnaEliminata(n);
}

void Form2::Stampa_Click()
{
    const bool StampaNome = Messaggi::Domanda(
        this, QStringLiteral("stampo il 'NOME' dei campi invece del 'TESTO DI PROVA'"),
        Messaggi::Risposta::No);
    const PuntatoreOccupato occupato;
    const auto stampante = Stampanti::Predefinita();
    StampaModello(stato_.Aperto, stato_.CartellaModelli, *stampante, StampaNome,
                  [this](const QString &testo) { Messaggi::Mostra(this, testo); });
}

void Form2::StampaRetino_Click()
{
    const PuntatoreOccupato occupato;
    const auto stampante = Stampanti::Predefinita();
    StampaRetino(*stampante);
}

void Form2::Image1_Click()
{
    ApriManuale(ChiaveManuale);
}

void Form2::Chiude()
{
    if (chiuso_ || Form_Unload()) {
        close();
    }
}

bool Form2::Form_Unload()
{
    if (chiude_) {
        return false; // asked already
    }
    const QScopedValueRollback<bool> chiude(chiude_, true);
    if (!SalvareVariazioni()) {
        return false; // the error was shown; closing now would lose the work
    }
    chiuso_ = true;
    if (copia_) {
        copia_->EliminaPropria(); // saved, or given up in answer to the question
    }
    if (anteprima_) {
        anteprima_->hide();
    }
    return true;
}

void Form2::closeEvent(QCloseEvent *evento)
{
    evento->ignore();
    Guardia(this, [&] {
        if (chiuso_ || Form_Unload()) {
            evento->accept();
            emit Chiuso();
        }
    });
}

void Form2::MostraPaginaDi(Genere genere)
{
    if (ui_->SSTab1->currentIndex() == PaginaDi(genere)) {
        return;
    }
    ui_->SSTab1->setCurrentIndex(PaginaDi(genere));
    // Changing the page hides the markers; the element that the user has in hand keeps its own.
    if (const int indice = Pagina(genere).Indice(); indice > 0) {
        anteprima_->Seleziona(genere, indice);
    }
}

void Form2::RidisegnaRighe()
{
    righe_->SimuloRighe();
    anteprima_->RiancoraManiglie();
}

void Form2::SistemaFinestre()
{
    const QRect schermo = screen()->availableGeometry();
    move(schermo.topLeft());
    AdattaAllaCornice();
    anteprima_->move(schermo.left(), schermo.top() + AltezzaStriscia());
}

int Form2::AltezzaStriscia() const
{
    constexpr double PollicePerTwip = 1.0 / 1440;
    constexpr int Twip = 3000;
    return qRound(Twip * PollicePerTwip * screen()->logicalDotsPerInchY());
}

void Form2::AdattaAllaCornice()
{
    // The editor takes the strip that the preview, which fills the rest of the screen, leaves free;
    // the window's frame belongs to the strip.
    resize(screen()->availableGeometry().width() - cornice_.left() - cornice_.right(),
           AltezzaStriscia() - cornice_.top() - cornice_.bottom());
}

void Form2::GuardaCornice()
{
    const QMargins cornice =
        windowHandle() == nullptr ? QMargins() : windowHandle()->frameMargins();
    // Only then: the size is the user's afterwards.
    if (cornice != cornice_) {
        cornice_ = cornice;
        AdattaAllaCornice();
    }
}

void Form2::showEvent(QShowEvent *)
{
    Guardia(this, [this] { GuardaCornice(); });
}

void Form2::moveEvent(QMoveEvent *)
{
    // The frame is known only once the window manager has drawn it, and it moves the window then.
    Guardia(this, [this] { GuardaCornice(); });
}
