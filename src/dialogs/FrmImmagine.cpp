#include "dialogs/FrmImmagine.h"

#include "ui_FrmImmagine.h"

#include "dialogs/ImportaImmagine.h"
#include "dialogs/Proporzioni.h"
#include "dialogs/Riduzione.h"
#include "finestre/FiltroAnsi.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "finestre/MiniatureFile.h"
#include "grafica/Immagini.h"
#include "model/Numeri.h"
#include "sistema/Percorsi.h"

#include <QKeyEvent>

#include <optional>

namespace {

constexpr double LarghezzaGrande = 19;     // mm
constexpr double AltezzaGrande = 29;       // mm
constexpr double PercentualeUtile = 19500; // brings a width to 195 mm

/// The text of a single-precision number.
QString NumeroSingolo(double valore)
{
    constexpr int Cifre = 7;
    return Numeri::NumeroPiano(QString::number(valore, 'g', Cifre).toDouble());
}

} // namespace

FrmImmagine::FrmImmagine(StatoProgramma &stato, QWidget *padre)
    : FrmElemento(Genere::Immagine, stato, padre)
    , ui_(std::make_unique<Ui::FrmImmagine>())
    , importa_(std::make_unique<ImportaImmagine>(stato, this))
{
    ui_->setupUi(this);
    Form_Load();
    CollegaSegnali();
}

FrmImmagine::~FrmImmagine() = default;

void FrmImmagine::Form_Load()
{
    FrmElemento::Form_Load({ui_->Num, ui_->Nome, ui_->Descrizione, ui_->X, ui_->Y});
    ui_->FileImmagini->installEventFilter(this);
    miniature_ = new MiniatureFile(ui_->FileImmagini);
    proporzioni_ = std::make_unique<Proporzioni>(
        ui_->Proporzioni, Proporzioni::Caselle{ui_->Largh, ui_->Alt}, Caselle());
    ui_->Label4->setText(Stato().CartellaModelli);
    ui_->Label4->setToolTip(Stato().CartellaModelli);
}

void FrmImmagine::CollegaSegnali()
{
    Collega(ui_->FileImmagini, &QListWidget::itemClicked, this, &FrmImmagine::FileImmagini_Click);
    Collega(ui_->Importa, &QPushButton::clicked, this, &FrmImmagine::Importa_Click);
    Collega(ui_->Command1, &QPushButton::clicked, this, &FrmImmagine::Command1_Click);
    Collega(ui_->Confema, &QPushButton::clicked, this, &FrmImmagine::Confema_Click);
    Collega(ui_->Elimina, &QPushButton::clicked, this, &FrmImmagine::Elimina_Click);
}

void FrmImmagine::Carica(int k)
{
    CaricaElemento(k);
    const Immagine &immagine = Aperto().Immagini[k];
    Caselle().Mostra(ui_->Bordo, immagine.Bordo);
    Caselle().Mostra(ui_->Largh, immagine.Larghezza);
    Caselle().Mostra(ui_->Alt, immagine.Altezza);
    MettePrimo(ui_->Descrizione);
    Guardia(this, [this] { RiempieFileImmagini(); });
    Guardia(this, [this] { MisuraImmagine(); }); // only for the line that it may show
}

void FrmImmagine::RiempieFileImmagini()
{
    ui_->FileImmagini->clear();
    miniature_->ImpostaCartella(Stato().CartellaModelli);
    // The first pattern has no point: a name that only ends in "jpg" is a picture too.
    ui_->FileImmagini->addItems(
        Percorsi::FileConModello(Stato().CartellaModelli, QStringLiteral("*jpg;*.bmp;*.gif")));
    IndicaFileScelto();
}

void FrmImmagine::IndicaFileScelto()
{
    ui_->FileImmagini->setCurrentItem(VoceDi(ui_->Nome->text()));
}

QListWidgetItem *FrmImmagine::VoceDi(const QString &nome) const
{
    QListWidgetItem *trovata = nullptr;
    for (int i = 0; i < ui_->FileImmagini->count(); ++i) {
        QListWidgetItem *voce = ui_->FileImmagini->item(i);
        if (voce->text().compare(nome, Qt::CaseInsensitive) == 0) {
            trovata = voce;
        }
    }
    return trovata;
}

bool FrmImmagine::eventFilter(QObject *oggetto, QEvent *evento)
{
    bool trattato = false;
    if (oggetto == ui_->FileImmagini && evento->type() == QEvent::KeyPress) {
        const int tasto = static_cast<QKeyEvent *>(evento)->key();
        Guardia(this, [&] { trattato = SceglieConTasto(tasto); });
    }
    return trattato || FrmElemento::eventFilter(oggetto, evento);
}

bool FrmImmagine::SceglieConTasto(int tasto)
{
    QListWidgetItem *voce = ui_->FileImmagini->currentItem();
    if (voce == nullptr) {
        return false;
    }
    const bool invio = tasto == Qt::Key_Return || tasto == Qt::Key_Enter;
    if (tasto != Qt::Key_Space && (!invio || voce->text() == Caselle().Testo(ui_->Nome))) {
        return false;
    }
    FileImmagini_Click(voce);
    return true;
}

void FrmImmagine::FileImmagini_Click(QListWidgetItem *voce)
{
    const QString rifiuto = RifiutoDelNome(voce->text());
    if (!rifiuto.isEmpty()) {
        IndicaFileScelto();
        Messaggi::Mostra(this, rifiuto);
        return;
    }
    Caselle().Mostra(ui_->Nome, voce->text());
    ImpostaImmagine();
}

void FrmImmagine::Command1_Click()
{
    ImpostaImmagine();
}

void FrmImmagine::Importa_Click()
{
    const QString nome = importa_->Importa();
    if (nome.isEmpty()) {
        return;
    }
    RiempieFileImmagini();
    QListWidgetItem *voce = VoceDi(nome);
    if (voce == nullptr) {
        return; // taken away meanwhile
    }
    ui_->FileImmagini->setCurrentItem(voce);
    FileImmagini_Click(voce);
    const Immagine &immagine = Aperto().Immagini[Indice()];
    if (immagine.Nome == nome) {
        importa_->Adegua({immagine.Larghezza, immagine.Altezza});
    }
}

void FrmImmagine::ImpostaImmagine()
{
    const QSizeF misura = MisuraImmagine();
    const bool grande = misura.width() > LarghezzaGrande || misura.height() > AltezzaGrande;
    if (grande && !ChiedeRiduzione(misura)) {
        return;
    }
    try {
        ScriveSubito();
    } catch (const ErroreSistema &) {
        // Choosing a picture never fails: a record that cannot be written is left to the confirm,
        // which says so.
        return;
    }
}

QSizeF FrmImmagine::MisuraImmagine()
{
    const QSizeF misura = LeggeMisura();
    proporzioni_->ImpostaNaturale(misura);
    return misura;
}

QSizeF FrmImmagine::LeggeMisura()
{
    MostraAvviso({});
    const QString nome = Caselle().Testo(ui_->Nome);
    if (nome.isEmpty()) {
        return {0, 0};
    }
    const PuntatoreOccupato occupato; // a scan takes seconds
    try {
        const QString percorso = Immagini::PercorsoInCartella(Stato().CartellaModelli, nome);
        // The header alone would also measure a picture whose rest is damaged.
        Immagini::CaricaScalata(percorso, {1, 1});
        return Immagini::DimensioniNaturali(percorso);
    } catch (const Immagini::TroppoGrande &) {
        MostraAvviso(QStringLiteral("«%1»: l'immagine è troppo grande per essere letta, non sarà "
                                    "mostrata né stampata")
                         .arg(nome));
        return {0, 0};
    } catch (const Immagini::Cartella &) {
        MostraAvviso(QStringLiteral("«%1»: è una cartella, non un file d'immagine").arg(nome));
        return {0, 0};
    } catch (const ErroreSistema &errore) {
        // A picture that is missing or damaged asks nothing: the size in the boxes stands.
        MostraAvviso(errore.numero == ErroreSistema::FileNonTrovato
                         ? QStringLiteral("«%1»: il file non si trova nella cartella").arg(nome)
                         : QStringLiteral("«%1»: il file non si può leggere come immagine BMP, GIF "
                                          "o JPEG, non sarà mostrato né stampato")
                               .arg(nome));
        return {0, 0};
    }
}

void FrmImmagine::MostraAvviso(const QString &testo)
{
    ui_->AvvisoImmagine->setText(testo);
    ui_->AvvisoImmagine->setVisible(!testo.isEmpty());
}

bool FrmImmagine::ChiedeRiduzione(const QSizeF &misura)
{
    const QString larghezzaPrima = ui_->Largh->text();
    MostraDallInizio(ui_->Largh, NumeroSingolo(misura.width()));
    const std::optional<QSizeF> ridotta = Ridotta(this, misura, ChiedePercentuale());
    if (!ridotta || ridotta->isNull()) {
        MostraDallInizio(ui_->Largh, larghezzaPrima);
        return false;
    }
    Caselle().Mostra(ui_->Largh, ridotta->width());
    Caselle().Mostra(ui_->Alt, ridotta->height());
    return true;
}

QString FrmImmagine::ChiedePercentuale()
{
    const double larghezza = Numeri::Doppio(ui_->Largh->text());
    const double proposta = Numeri::PariPiuVicino(PercentualeUtile / larghezza);
    return Messaggi::ChiedeTesto(
               this, QStringLiteral("caricamento immagine ") + Caselle().Testo(ui_->Nome),
               QStringLiteral("Impostare la % di riduzione delle dimensioni dell'immagine"),
               Numeri::NumeroPiano(proposta))
        .value_or(QString());
}

void FrmImmagine::ScriveSubito()
{
    if (ui_->Nome->text().isEmpty()) {
        return; // measuring nothing must not make the picture absent unasked
    }
    const int n = Indice();
    Immagine immagine = Aperto().Immagini[n];
    immagine.Nome = Caselle().Testo(ui_->Nome);
    // A size that is no number is passed over here and reported by the confirm.
    immagine.Larghezza = Caselle().Numerico(ui_->Largh).value_or(immagine.Larghezza);
    immagine.Altezza = Caselle().Numerico(ui_->Alt).value_or(immagine.Altezza);
    Passo passo(DocumentoAperto(), QStringLiteral("sceglie ") + immagine.Nome);
    passo.Scrive(n, immagine);
    // List and hint keep the former name until the confirm.
    passo.Mostra(Cambiamento::Origine::Posto);
}

void FrmImmagine::Confema_Click()
{
    if (ui_->Nome->text().isEmpty()) {
        Messaggi::Mostra(this, QStringLiteral("non è stata selezionata un immagine"));
        EliminaElemento(Indice());
        return;
    }
    Tenta([this] {
        const int n = Indice();
        ControllaNomeUnico(n, QStringLiteral("immagine già esistente"));
        const double bordo = Doppio(ui_->Bordo);
        const Posto posto = PostoScritto();
        const double larghezza = Doppio(ui_->Largh);
        const double altezza = Doppio(ui_->Alt);

        Immagine immagine = Aperto().Immagini[n];
        ScriveElemento(immagine, posto);
        immagine.Bordo = bordo;
        immagine.Larghezza = larghezza;
        immagine.Altezza = altezza;
        Conferma(n, immagine);
    });
}

void FrmImmagine::Elimina_Click()
{
    ChiedeEliminazione();
}
