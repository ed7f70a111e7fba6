#include "editor/Form2.h"

#include "dialogs/MemoriaCaselle.h"
#include "documento/ModelloSuFile.h"
#include "documento/Passo.h"
#include "editor/CartaDellaStampante.h"
#include "editor/ComandiAppunti.h"
#include "editor/ComandiScelta.h"
#include "editor/ComandiStampa.h"
#include "editor/ComandiStoria.h"
#include "editor/ComandoControlli.h"
#include "editor/ComandoElenco.h"
#include "editor/ComandoSalva.h"
#include "editor/DomandeSulModello.h"
#include "editor/PaginaElementi.h"
#include "editor/PaginaRighe.h"
#include "editor/PaginaSfondo.h"
#include "editor/PaginaSpostamento.h"
#include "finestre/Finestre.h"
#include "finestre/FuocoInVista.h"
#include "finestre/Guardia.h"
#include "finestre/Icone.h"
#include "preview/Frm1.h"
#include "sistema/CartellaStato.h"
#include "ui_Form2.h"

#include <QTime>

#include <algorithm>

Form2::Form2(StatoProgramma &stato, QWidget *padre)
    : QWidget(padre)
    , ui_(std::make_unique<Ui::Form2>())
    , stato_(stato)
{
    ui_->setupUi(this);
    ui_->Image1->setIcon(IconaGuida(24));
    setWindowTitle(QStringLiteral("Plakera: Modello ") + stato_.NomeFile);
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
        pagineElementi_.at(Posto(genere)) = new PaginaElementi(genere, this);
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
    return *pagineElementi_.at(Posto(genere));
}

std::optional<Genere> Form2::GenereInPagina() const
{
    const auto pagina =
        std::find(pagineElementi_.begin(), pagineElementi_.end(), ui_->SSTab1->currentWidget());
    return pagina == pagineElementi_.end() ? std::nullopt
                                           : std::optional(Generi.at(static_cast<std::size_t>(
                                                 std::distance(pagineElementi_.begin(), pagina))));
}

bool Form2::Form_Load()
{
    stato_.zoom = 1;
    domande_ = std::make_unique<DomandeSulModello>(stato_, *this);
    file_ = std::make_unique<ModelloSuFile>(stato_.documento, stato_.CartellaModelli,
                                            stato_.NomeFile, CartellaStato(), *domande_);
    if (!file_->Apre()) {
        return false;
    }
    anteprima_ = std::make_unique<Frm1>(stato_);
    CreaPagine();
    LimitaAlCodice(this); // before the filling, which it would show from the end
    MostraDallInizioEntrando(this);
    ui_->Label21->setText(stato_.CartellaModelli);
    ui_->Label21->setToolTip(stato_.CartellaModelli);
    MostraDallInizio(ui_->Tipo, stato_.Aperto().Tipo);
    righe_->Mostra();
    spostamento_->Mostra();
    sfondo_->Mostra();
    ImpostaHelp(this);
    MostraFuoco(this);
    Collegamenti();
    CollegaAnteprima();
    storia_ = std::make_unique<ComandiStoria>(stato_.documento, ui_->Annulla, ui_->Ripristina,
                                              QList<QWidget *>{this, anteprima_.get()});
    scelta_ = std::make_unique<ComandiScelta>(
        stato_, *anteprima_, [this] { return GenereInPagina(); }, this);
    stampa_ = std::make_unique<ComandiStampa>(
        stato_, *this, *anteprima_, ComandiStampa::Bottoni{ui_->VediStampa, ui_->EsportaPdf});
    Collega(stampa_.get(), &ComandiStampa::StampaRichiesta, this, &Form2::Stampa_Click);
    appunti_ = std::make_unique<ComandiAppunti>(stato_, *this, *anteprima_);
    elenco_ = std::make_unique<ComandoElenco>(stato_, *this, *anteprima_, *storia_);
    Collega(elenco_.get(), &ComandoElenco::RichiestaProprieta, this, &Form2::ApreProprieta);
    Collega(elenco_.get(), &ComandoElenco::Creata, this, [this](QWidget *finestra) {
        appunti_->AggiungeFinestra(*finestra);
        scelta_->AggiungeFinestra(*finestra);
        salva_->AggiungeFinestra(*finestra);
        stampa_->AggiungeFinestra(*finestra);
    });
    salva_ = std::make_unique<ComandoSalva>(stato_.documento, *ui_->NonSalvato);
    Collega(salva_.get(), &ComandoSalva::Richiesto, this, &Form2::Salva_Click);
    salva_->AggiungeFinestra(*this);
    salva_->AggiungeFinestra(*anteprima_);
    controlli_ = std::make_unique<ComandoControlli>(stato_, *ui_->Controlli, *anteprima_, *storia_);
    carta_ = std::make_unique<CartaDellaStampante>(*anteprima_, *this);
    CollegaControlli();
    SistemaFinestre();
    sfondo_->ImpostaImmagineSfondo(false);
    anteprima_->MostraModello();
    for (const Genere genere : Generi) {
        MostraVoci(genere);
    }
    PPPP();
    return true;
}

void Form2::MostraVoci(Genere genere)
{
    Pagina(genere).Svuota();
    for (int k = 1; k <= stato_.Aperto().UltimoSlot(genere); ++k) {
        Pagina(genere).MostraVoce(k, stato_.documento.Voce({genere, k}));
    }
}

void Form2::SegueDocumento(const Cambiamento &cambiamento)
{
    if (cambiamento.origine == Cambiamento::Origine::Gesto) {
        return; // no list shows where an element stands
    }
    for (const Chiave &chiave : cambiamento.Elementi()) {
        if (chiave.indice <= stato_.Aperto().UltimoSlot(chiave.genere)) {
            Pagina(chiave.genere).MostraVoce(chiave.indice, stato_.documento.Voce(chiave));
        }
    }
    if (cambiamento.origine == Cambiamento::Origine::Storia) {
        MostraRitrovati(cambiamento);
    }
}

void Form2::MostraRitrovati(const Cambiamento &cambiamento)
{
    if (cambiamento.Tipo) {
        MostraDallInizio(ui_->Tipo, stato_.Aperto().Tipo);
    }
    for (const Genere genere : Generi) {
        Pagina(genere).Limita(stato_.Aperto().UltimoSlot(genere));
        if (cambiamento.Contiene(genere)) {
            anteprima_->PrimoPiano(genere);
        }
    }
    const QList<Chiave> elementi = cambiamento.Elementi();
    // The row area takes its fields along, but is not confirmed on theirs.
    if (cambiamento.Righe) {
        ui_->SSTab1->setCurrentWidget(righe_);
    } else if (cambiamento.Sfondo) {
        ui_->SSTab1->setCurrentWidget(sfondo_);
    } else if (!elementi.isEmpty()) {
        MostraPaginaDi(elementi.constFirst().genere);
    }
    const auto inVista = std::find_if(elementi.begin(), elementi.end(), [&](Chiave chiave) {
        return stato_.documento.InVista(chiave);
    });
    if (inVista != elementi.end()) {
        Pagina(inVista->genere).Seleziona(inVista->indice);
        anteprima_->Seleziona(inVista->genere, inVista->indice);
        anteprima_->PortaInVista(*inVista);
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
        Passo passo(stato_.documento, QStringLiteral("tipo del modello"), {QStringLiteral("Tipo")});
        passo.ImpostaTipo(ui_->Tipo->text());
    });
    Collega(ui_->Tipo, &QLineEdit::editingFinished, this,
            [this] { stato_.documento.ChiudeUnione(); });
    CollegaPagina(Genere::Campo, &Form2::Aggiungicampo_Click, &Form2::VariazioneCampo_Click,
                  &Form2::Command1_Click, &Form2::ComboCampi_GotFocus);
    CollegaPagina(Genere::Cornice, &Form2::AggiungiCornice_Click, &Form2::VariazioneCornice_Click,
                  &Form2::Command3_Click, &Form2::ComboCornici_GotFocus);
    CollegaPagina(Genere::Immagine, &Form2::AggiungiImmagine_Click,
                  &Form2::VariazioneImmagine_Click, &Form2::Command4_Click,
                  &Form2::ComboImmagini_GotFocus);
    Collega(&Pagina(Genere::Cornice), &PaginaElementi::EliminaTutte, this, &Form2::Command7_Click);
    Collega(spostamento_, &PaginaSpostamento::SpostatoSfondo, sfondo_, [this] {
        sfondo_->Mostra();
        sfondo_->ImpostaImmagineSfondo(false);
    });
    Collega(&stato_.documento, &Documento::Cambiato, this, &Form2::SegueDocumento);
    Collega(&stato_.documento, &Documento::StoriaCambiata, this, &Form2::RitiraNonSalvati);
}

void Form2::CollegaPagina(Genere genere, Procedura aggiunge, Procedura modifica,
                          Procedura primoPiano, Procedura fuocoPreso)
{
    const PaginaElementi *pagina = &Pagina(genere);
    Collega(pagina, &PaginaElementi::Aggiunge, this, aggiunge);
    Collega(pagina, &PaginaElementi::Modifica, this, modifica);
    Collega(pagina, &PaginaElementi::PrimoPiano, this, primoPiano);
    Collega(pagina, &PaginaElementi::FuocoPreso, this, fuocoPreso);
}

void Form2::CollegaAnteprima()
{
    Frm1 *anteprima = anteprima_.get();
    Collega(anteprima, &Frm1::ElementoPuntato, this,
            [this](Genere genere, int i) { Pagina(genere).Seleziona(i); });
    Collega(anteprima, &Frm1::PaginaRichiesta, this, &Form2::MostraPaginaDi);
    Collega(anteprima, &Frm1::RichiestaProprieta, this, &Form2::ApreProprieta);
    Collega(anteprima, &Frm1::SfondoDaRidisegnare, this,
            [this] { sfondo_->ImpostaImmagineSfondo(false); });
    addActions(anteprima->ComandiDelFoglio());
    Collega(anteprima, &Frm1::RigheDaRidisegnare, righe_, &PaginaRighe::SimuloRighe);
    // An editor without its preview is of no use: closing the preview closes the editor, with its
    // question about unsaved work. Queued, because the preview is in the middle of its own event.
    connect(
        anteprima, &Frm1::ChiusuraRichiesta, this, [this] { Guardia(this, [this] { Chiude(); }); },
        Qt::QueuedConnection);
}

void Form2::CollegaControlli()
{
    connect(carta_.get(), &CartaDellaStampante::Chiesta, controlli_.get(),
            &ComandoControlli::ImpostaFoglio);
    Collega(controlli_.get(), &ComandoControlli::RichiestaProprieta, this, &Form2::ApreProprieta);
    Collega(controlli_.get(), &ComandoControlli::RichiestaPagina, this,
            [this](Rilievo::Luogo luogo) {
                ui_->SSTab1->setCurrentWidget(
                    luogo == Rilievo::Luogo::Righe ? static_cast<QWidget *>(righe_) : sfondo_);
            });
}

void Form2::SSTab1_Click()
{
    PPPP();
}

void Form2::PPPP()
{
    anteprima_->NascondiManiglie();
    anteprima_->ImpilaPerArea();
}

void Form2::Aggiungicampo_Click()
{
    Aggiunge(Genere::Campo);
}

void Form2::AggiungiCornice_Click()
{
    Aggiunge(Genere::Cornice);
}

void Form2::AggiungiImmagine_Click()
{
    Aggiunge(Genere::Immagine);
}

void Form2::Aggiunge(Genere genere)
{
    constexpr int Rientro = 10; // mm, from the visible corner of the sheet
    // Adding and the dialog that it opens are one step.
    Passo visita(stato_.documento, QStringLiteral("aggiunge ") + QString(NomeDi(genere)).toLower());
    const Chiave chiave = visita.Aggiunge(
        genere, QPointF(anteprima_->ScorrimentoX() + Rientro, anteprima_->ScorrimentoY() + Rientro),
        QTime::currentTime());
    visita.Mostra(Cambiamento::Origine::Comando);
    anteprima_->Seleziona(genere, chiave.indice);
    Pagina(genere).Seleziona(chiave.indice);
    // A new field stays in front of all others, where it was created, however large its text.
    if (genere != Genere::Campo) {
        anteprima_->PrimoPiano(genere);
    }
    Modifica(genere);
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

void Form2::Command1_Click()
{
    anteprima_->PrimoPianoCampi();
}

void Form2::Command3_Click()
{
    anteprima_->PrimoPianoCornici();
}

void Form2::Command4_Click()
{
    anteprima_->PrimoPianoImmagini();
}

void Form2::ComboCampi_GotFocus()
{
    anteprima_->NascondiManiglia(Genere::Campo);
}

void Form2::ComboCornici_GotFocus()
{
    anteprima_->NascondiManiglia(Genere::Cornice);
}

void Form2::ComboImmagini_GotFocus()
{
    anteprima_->NascondiManiglia(Genere::Immagine);
}

void Form2::Modifica(Genere genere)
{
    if (Pagina(genere).SiApre()) {
        ApreProprieta(genere, Pagina(genere).Indice());
    }
}

void Form2::MostraPaginaDi(Genere genere)
{
    if (ui_->SSTab1->currentWidget() == &Pagina(genere)) {
        return;
    }
    ui_->SSTab1->setCurrentWidget(&Pagina(genere));
    // Changing the page hides the handles; the element that the user has in hand keeps its own.
    if (const Chiave chiave{genere, Pagina(genere).Indice()}; stato_.documento.InVista(chiave)) {
        anteprima_->Seleziona(genere, chiave.indice);
    }
}
