#include "editor/PaginaSfondo.h"

#include "base/ErroreSistema.h"
#include "dialogs/MemoriaCaselle.h"
#include "dialogs/Riduzione.h"
#include "documento/Passo.h"
#include "editor/Calibrazione.h"
#include "editor/FrmCalibra.h"
#include "editor/TestiEsplicativi.h"
#include "finestre/AvvisoCasella.h"
#include "finestre/FiltroAnsi.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "finestre/Sfoglia.h"
#include "grafica/Immagini.h"
#include "model/Numeri.h"
#include "preview/Frm1.h"
#include "preview/SfondoDelModello.h"
#include "ui_PaginaSfondo.h"

#include <QLabel>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <optional>

namespace {

constexpr double PassoSpostamento = 0.5; // mm

// Read back with "." as the decimal separator, whatever the user's locale.
QString TestoNumero(double valore)
{
    return Numeri::NumeroPiano(valore, QLocale::c());
}

const QString NonSiVede =
    QStringLiteral("l'immagine di sfondo non si vede: spuntare Visualizza Immagine di sfondo");

void MostraTesto(QLineEdit *casella, const QString &testo)
{
    // Filling a box is no edit: the model keeps the text that was read.
    const QSignalBlocker muto(casella);
    MostraDallInizio(casella, testo);
    Riguarda(casella);
}

} // namespace

PaginaSfondo::PaginaSfondo(StatoProgramma &stato, Frm1 &anteprima, QWidget *padre)
    : QWidget(padre)
    , ui_(std::make_unique<Ui::PaginaSfondo>())
    , stato_(stato)
    , anteprima_(anteprima)
{
    ui_->setupUi(this);
    ui_->Text6->setPlainText(TestiEsplicativi::Sfondo());
    Collegamenti();
}

PaginaSfondo::~PaginaSfondo() = default;

void PaginaSfondo::Collegamenti()
{
    Collega(ui_->VisualizzaImmagineSfondo, &QCheckBox::clicked, this,
            &PaginaSfondo::VisualizzaImmagineSfondo_Click);
    Collega(ui_->Command8, &QPushButton::clicked, this, &PaginaSfondo::Command8_Click);
    Collega(ui_->SfondoCalibra, &QPushButton::clicked, this, &PaginaSfondo::Calibra_Click);
    Collega(ui_->SfondoOpacita, &QSpinBox::valueChanged, this, [this](int percento) {
        constexpr double Intero = 100;
        anteprima_.ImpostaOpacitaSfondo(percento / Intero);
    });
    Collega(ui_->SfondoSfoglia, &QPushButton::clicked, this, &PaginaSfondo::SfondoSfoglia_Click);
    Collega(ui_->SfondoSpostaSx, &QToolButton::clicked, this, &PaginaSfondo::SfondoSpostaSx_Click);
    Collega(ui_->SfondoSpostaDx, &QToolButton::clicked, this, &PaginaSfondo::SfondoSpostaDx_Click);
    Collega(ui_->SfondoSpostaSu, &QToolButton::clicked, this, &PaginaSfondo::SfondoSpostaSu_Click);
    Collega(ui_->SfondoSpostaGiu, &QToolButton::clicked, this,
            &PaginaSfondo::SfondoSpostaGiu_Click);
    for (QLineEdit *casella :
         {ui_->SfondoXimmagine, ui_->SfondoYImmagine, ui_->SfondoXPosImm, ui_->SfondoYPosImm}) {
        Sorveglia(casella, Numeri::AvvisoDiLettura);
    }
    LegaTesto(ui_->SfondoFileImmagine, &ImmagineSfondo::File);
    LegaTesto(ui_->SfondoXimmagine, &ImmagineSfondo::Ximmagine);
    LegaTesto(ui_->SfondoYImmagine, &ImmagineSfondo::Yimmagine);
    LegaTesto(ui_->SfondoXPosImm, &ImmagineSfondo::XPos);
    LegaTesto(ui_->SfondoYPosImm, &ImmagineSfondo::YPos);
    Collega(&stato_.documento, &Documento::Cambiato, this, &PaginaSfondo::SegueDocumento);
    // Queued, because the press that brings the focus still places the cursor afterwards.
    connect(this, &PaginaSfondo::SelezioneChiesta, this, &SelezionaDallInizio,
            Qt::QueuedConnection);
    ui_->VisualizzaImmagineSfondo->installEventFilter(this);
    ui_->SfondoXimmagine->installEventFilter(this);
    ui_->SfondoYImmagine->installEventFilter(this);
}

void PaginaSfondo::LegaTesto(QLineEdit *casella, QString ImmagineSfondo::*membro)
{
    Collega(casella, &QLineEdit::textChanged, this, [this, casella, membro](const QString &testo) {
        Passo passo(stato_.documento, QStringLiteral("immagine di sfondo"),
                    {casella->objectName()});
        ImmagineSfondo sfondo = stato_.Aperto().Sfondo;
        sfondo.*membro = testo;
        passo.ImpostaSfondo(sfondo);
    });
    // An undone text is an edit too: the preview may have been drawn with the one before.
    connect(casella, &QLineEdit::textEdited, this, [this] { scritta_ = true; });
    Collega(casella, &QLineEdit::editingFinished, this,
            [this, casella] { RidisegnaSeScritta(casella); });
}

void PaginaSfondo::RidisegnaSeScritta(const QLineEdit *casella)
{
    if (!scritta_) {
        return;
    }
    scritta_ = false;
    if (casella == ui_->SfondoFileImmagine) {
        RiprendeMessaggi();
    }
    ImpostaImmagineSfondo(false);
    stato_.documento.ChiudeUnione();
    if (casella == ui_->SfondoFileImmagine) {
        AvverteSeNascosta();
    }
}

void PaginaSfondo::SegueDocumento(const Cambiamento &cambiamento)
{
    if (cambiamento.Sfondo && !Nascosta()) {
        anteprima_.RitiraAvviso(NonSiVede);
    }
    if (cambiamento.Sfondo && cambiamento.origine == Cambiamento::Origine::Storia) {
        Mostra();
        ImpostaImmagineSfondo(false);
    }
}

void PaginaSfondo::Mostra()
{
    const ImmagineSfondo &sfondo = stato_.Aperto().Sfondo;
    MostraTesto(ui_->SfondoFileImmagine, sfondo.File);
    MostraTesto(ui_->SfondoXimmagine, sfondo.Ximmagine);
    MostraTesto(ui_->SfondoYImmagine, sfondo.Yimmagine);
    MostraTesto(ui_->SfondoXPosImm, sfondo.XPos);
    MostraTesto(ui_->SfondoYPosImm, sfondo.YPos);
    // Value 2, the greyed box, is shown as such and stays until the user clicks.
    constexpr qint16 Ingrigita = 2;
    ui_->VisualizzaImmagineSfondo->setTristate(sfondo.Visualizza == Ingrigita);
    ui_->VisualizzaImmagineSfondo->setCheckState(sfondo.Visualizza == Ingrigita
                                                     ? Qt::PartiallyChecked
                                                 : sfondo.Visualizza != 0 ? Qt::Checked
                                                                          : Qt::Unchecked);
}

void PaginaSfondo::ImpostaImmagineSfondo(bool chiedeDimensione)
{
    try {
        if (chiedeDimensione) {
            anteprima_.DimenticaSfondo(); // the picture is to be loaded again
            if (SfondoDelModello::Visibile(stato_.Aperto().Sfondo)) {
                ChiedeDimensione();
            }
        }
        SfondoDelModello::Disegna(stato_.Aperto().Sfondo, anteprima_);
        if (SfondoDelModello::Visibile(stato_.Aperto().Sfondo)) {
            guastoMostrato_.clear();
        }
    } catch (const SfondoDelModello::NumeroNonLetto &errore) {
        SegnalaNumero(CasellaDi(errore.Membro), stato_.Aperto().Sfondo.*errore.Membro);
    } catch (const ErroreSistema &errore) {
        const ImmagineSfondo &sfondo = stato_.Aperto().Sfondo;
        SegnalaGuasto(sfondo.File, SfondoDelModello::NonCaricato(sfondo, errore));
    }
}

const QLineEdit *PaginaSfondo::CasellaDi(QString ImmagineSfondo::*membro) const
{
    return membro == &ImmagineSfondo::XPos        ? ui_->SfondoXPosImm
           : membro == &ImmagineSfondo::YPos      ? ui_->SfondoYPosImm
           : membro == &ImmagineSfondo::Ximmagine ? ui_->SfondoXimmagine
                                                  : ui_->SfondoYImmagine;
}

void PaginaSfondo::SegnalaNumero(const QLineEdit *casella, const QString &testo)
{
    const QString messaggio = NumeroTroppoGrande(casella->accessibleName(), testo);
    SegnalaGuasto(messaggio, messaggio);
}

void PaginaSfondo::SegnalaGuasto(const QString &guasto, const QString &messaggio)
{
    // Told once: every zoom and every nudge draws the background again.
    if (guastoMostrato_ != guasto) {
        guastoMostrato_ = guasto;
        Messaggi::Mostra(window(), messaggio);
    }
}

void PaginaSfondo::ChiedeDimensione()
{
    const QString file = stato_.Aperto().Sfondo.File;
    const QSizeF naturali =
        Immagini::DimensioniNaturali(SfondoDelModello::File(stato_.Aperto().Sfondo));
    const std::optional<QString> risposta = Messaggi::ChiedeTesto(
        window(), QStringLiteral("caricamento immagine ") + file,
        QStringLiteral("Impostare la % di riduzione delle dimensioni dell'immagine"),
        QStringLiteral("100"));
    if (!risposta) {
        return; // cancelled: the sizes stay as they are
    }
    const std::optional<QSizeF> misura = Ridotta(window(), naturali, *risposta);
    if (!misura) {
        return;
    }
    MostraDallInizio(ui_->SfondoXimmagine, TestoNumero(misura->width()));
    MostraDallInizio(ui_->SfondoYImmagine, TestoNumero(misura->height()));
}

void PaginaSfondo::VisualizzaImmagineSfondo_Click()
{
    RiprendeMessaggi();
    ui_->VisualizzaImmagineSfondo->setTristate(false);
    const bool visibile = ui_->VisualizzaImmagineSfondo->isChecked();
    ImmagineSfondo sfondo = stato_.Aperto().Sfondo;
    sfondo.Visualizza = visibile ? 1 : 0;
    Passo passo(stato_.documento, visibile ? QStringLiteral("mostra l'immagine di sfondo")
                                           : QStringLiteral("nasconde l'immagine di sfondo"));
    passo.ImpostaSfondo(sfondo);
    ImpostaImmagineSfondo(false);
}

void PaginaSfondo::Command8_Click()
{
    RiprendeMessaggi();
    const Passo passo(stato_.documento, QStringLiteral("dimensioni dell'immagine di sfondo"));
    ImpostaImmagineSfondo(true);
}

void PaginaSfondo::SfondoSfoglia_Click()
{
    Sfoglia sfoglia(window());
    sfoglia.FileEntrata()->setText(stato_.Aperto().Sfondo.File);
    sfoglia.ImpostaPartenza(stato_.CartellaModelli);
    // What the browser gave the last time is not this scan's: confirmed without a choice, it gives
    // back what it finds there.
    RisultatoSfoglia() = stato_.Aperto().Sfondo.File;
    sfoglia.exec();
    const QString scelto = RisultatoSfoglia();
    if (scelto == stato_.Aperto().Sfondo.File) {
        return;
    }
    const QString rifiuto = RifiutoDelNome(scelto);
    if (!rifiuto.isEmpty()) {
        Messaggi::Mostra(window(), rifiuto);
        return;
    }
    const Passo passo(stato_.documento, QStringLiteral("sceglie l'immagine di sfondo"));
    MostraDallInizio(ui_->SfondoFileImmagine, scelto);
    ImpostaImmagineSfondo(true);
    AvverteSeNascosta();
}

bool PaginaSfondo::Nascosta() const
{
    const ImmagineSfondo &sfondo = stato_.Aperto().Sfondo;
    return !sfondo.File.isEmpty() && !SfondoDelModello::Visibile(sfondo);
}

void PaginaSfondo::AvverteSeNascosta() const
{
    if (Nascosta()) {
        anteprima_.Avverte(NonSiVede);
    }
}

void PaginaSfondo::Calibra_Click()
{
    const ImmagineSfondo &sfondo = stato_.Aperto().Sfondo;
    if (sfondo.File.isEmpty()) {
        Messaggi::Mostra(window(), QStringLiteral("nessuna immagine di sfondo: sceglierla prima "
                                                  "con Sfoglia"));
        return;
    }
    RiprendeMessaggi();
    try {
        FrmCalibra calibra(FrmCalibra::Legge(sfondo), stato_.Aperto(), window());
        if (calibra.exec() == QDialog::Accepted) {
            ScrivePosto(calibra.Posto());
        }
    } catch (const SfondoDelModello::NumeroNonLetto &errore) {
        SegnalaNumero(CasellaDi(errore.Membro), sfondo.*errore.Membro);
    } catch (const ErroreSistema &errore) {
        Messaggi::Mostra(window(), SfondoDelModello::NonCaricato(sfondo, errore));
    }
}

void PaginaSfondo::ScrivePosto(const QRectF &posto)
{
    const Passo passo(stato_.documento, QStringLiteral("calibra l'immagine di sfondo"));
    MostraDallInizio(ui_->SfondoXPosImm, Calibrazione::Testo(posto.x()));
    MostraDallInizio(ui_->SfondoYPosImm, Calibrazione::Testo(posto.y()));
    MostraDallInizio(ui_->SfondoXimmagine, Calibrazione::Testo(posto.width()));
    MostraDallInizio(ui_->SfondoYImmagine, Calibrazione::Testo(posto.height()));
    ImpostaImmagineSfondo(false);
}

void PaginaSfondo::SfondoSpostaSx_Click()
{
    Sposta(ui_->SfondoXPosImm, -PassoSpostamento);
}

void PaginaSfondo::SfondoSpostaDx_Click()
{
    Sposta(ui_->SfondoXPosImm, PassoSpostamento);
}

void PaginaSfondo::SfondoSpostaSu_Click()
{
    Sposta(ui_->SfondoYPosImm, -PassoSpostamento);
}

void PaginaSfondo::SfondoSpostaGiu_Click()
{
    Sposta(ui_->SfondoYPosImm, PassoSpostamento);
}

void PaginaSfondo::Sposta(QLineEdit *casella, double passo)
{
    double posto = 0;
    try {
        posto = Numeri::Val(casella->text());
    } catch (const ErroreSistema &) {
        SegnalaNumero(casella, casella->text());
        return;
    }
    Passo spostamento(
        stato_.documento, QStringLiteral("sposta l'immagine di sfondo"),
        {QStringLiteral("%1 %2").arg(casella->objectName()).arg(passo), MillisecondiDiSeguito});
    spostamento.SegnaVariato();
    MostraDallInizio(casella, TestoNumero(posto + passo));
    ImpostaImmagineSfondo(false);
}

void PaginaSfondo::SfondoXimmagine_GotFocus()
{
    emit SelezioneChiesta(ui_->SfondoXimmagine);
}

void PaginaSfondo::SfondoYimmagine_GotFocus()
{
    emit SelezioneChiesta(ui_->SfondoYImmagine);
}

void PaginaSfondo::VisualizzaImmagineSfondo_MouseDown(Qt::MouseButton bottone)
{
    if (bottone != Qt::RightButton || stato_.Aperto().Sfondo.File.isEmpty()) {
        return;
    }
    const Passo passo(stato_.documento, QStringLiteral("toglie l'immagine di sfondo"));
    ui_->SfondoFileImmagine->clear();
    ImpostaImmagineSfondo(false);
}

bool PaginaSfondo::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (oggetto == ui_->VisualizzaImmagineSfondo && evento->type() == QEvent::MouseButtonPress) {
        const Qt::MouseButton bottone = static_cast<QMouseEvent *>(evento)->button();
        Guardia(window(), [&] { VisualizzaImmagineSfondo_MouseDown(bottone); });
        return bottone == Qt::RightButton;
    }
    if (evento->type() == QEvent::FocusIn) {
        if (oggetto == ui_->SfondoXimmagine) {
            SfondoXimmagine_GotFocus();
        } else if (oggetto == ui_->SfondoYImmagine) {
            SfondoYimmagine_GotFocus();
        }
    }
    return QWidget::eventFilter(oggetto, evento);
}
