#include "finestre/Sfoglia.h"

#include "ui_Sfoglia.h"

#include "base/ErroreSistema.h"
#include "base/Logici.h"
#include "finestre/Finestre.h"
#include "finestre/FuocoInVista.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "sistema/Percorsi.h"
#include "sistema/PercorsoNellaCartella.h"
#include "sistema/Volumi.h"

#include <QDir>
#include <QFileInfo>
#include <QShortcut>
#include <QShowEvent>
#include <QStringListModel>

#include <algorithm>

namespace {

constexpr int RuoloPercorso = Qt::UserRole;
constexpr QLatin1String CartellaChiusa("cartella non accessibile");

QTreeWidgetItem *Voce(const QString &percorso, const QIcon &icona)
{
    const QString nome = Percorsi::EstraeNomeFile(percorso);
    auto *voce = new QTreeWidgetItem({nome.isEmpty() ? percorso : nome});
    voce->setData(0, RuoloPercorso, percorso);
    voce->setIcon(0, icona);
    return voce;
}

/// A native full path that ends in a separator only when it is a root ("/", "C:\").
QString PercorsoPieno(const QString &cartella)
{
    // A bare drive letter would mean the drive's current folder.
    const QString intera = cartella.endsWith(u':') ? cartella + Percorsi::Separatore() : cartella;
    return QDir::toNativeSeparators(
        QDir::cleanPath(QFileInfo(Percorsi::Risolve(intera)).absoluteFilePath()));
}

/// From the root down to the folder itself.
QStringList Antenati(const QString &cartella)
{
    QStringList percorsi{cartella};
    QDir sopra(cartella);
    while (sopra.cdUp()) {
        percorsi.prepend(QDir::toNativeSeparators(sopra.path()));
    }
    return percorsi;
}

} // namespace

QString &RisultatoSfoglia()
{
    static QString risultato;
    return risultato;
}

Sfoglia::Sfoglia(QWidget *padre)
    : QDialog(padre)
    , ui_(std::make_unique<Ui::Sfoglia>())
    , file_(new QStringListModel(this))
{
    ui_->setupUi(this);
    ui_->File1->setModel(file_);
    miniature_ = new MiniatureFile(ui_->File1);
    resize(EntroLoSchermo(this, size()));
    FermaRotella(this);
    LimitaElenchi(this);
    MostraFuoco(this);
    CollegaSegnali();
}

Sfoglia::~Sfoglia() = default;

void Sfoglia::CollegaSegnali()
{
    Collega(ui_->Drive1, &QComboBox::activated, this, &Sfoglia::Drive1_Change);
    Collega(ui_->Dir1, &QTreeWidget::itemDoubleClicked, this, &Sfoglia::ApreCartellaScelta);
    Collega(ui_->File1->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Sfoglia::File1_Click);
    Collega(ui_->File1, &QListView::doubleClicked, this, &Sfoglia::Command8_Click);
    Collega(ui_->Command8, &QPushButton::clicked, this, &Sfoglia::Command8_Click);
    Collega(ui_->Command7, &QPushButton::clicked, this, &Sfoglia::Command7_Click);
    // In the folder list Enter opens a folder; elsewhere it confirms.
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *invio = new QShortcut(tasto, ui_->Dir1);
        invio->setContext(Qt::WidgetShortcut);
        Collega(invio, &QShortcut::activated, this, &Sfoglia::ApreCartellaScelta);
    }
    auto *indietro = new QShortcut(Qt::Key_Backspace, ui_->Dir1);
    indietro->setContext(Qt::WidgetShortcut);
    Collega(indietro, &QShortcut::activated, this, &Sfoglia::SaleDiUnaCartella);
}

QLabel *Sfoglia::FileEntrata() const
{
    return ui_->FileEntrata;
}

void Sfoglia::ImpostaMiniature(const LettoreMiniature &lettore)
{
    miniature_->ImpostaLettore(lettore);
}

void Sfoglia::showEvent(QShowEvent *evento)
{
    // Coming back from an icon is no new activation.
    if (!evento->spontaneous()) {
        Guardia(this, [this] { Form_Activate(); });
    }
    QDialog::showEvent(evento);
}

void Sfoglia::done(int esito)
{
    Form_Unload();
    QDialog::done(esito);
}

void Sfoglia::Form_Activate()
{
    confermato_ = Falso;
    ui_->Percorso->setText(Percorsi::EstraeUltimaBarra(ui_->FileEntrata->text()));
    ui_->NomeFile->setText(Percorsi::EstraeNomeFile(ui_->FileEntrata->text()));
    ui_->Drive1->clear();
    ui_->Drive1->addItems(Volumi());
    const bool trovata = ApreCartellaIniziale();
    ui_->Dir1->setFocus();
    if (!trovata) {
        return; // a file of the same name elsewhere is another one
    }
    const QString cercato = ui_->NomeFile->text().toUpper();
    const QStringList nomi = file_->stringList();
    const auto trovato = std::find_if(
        nomi.begin(), nomi.end(), [&](const QString &nome) { return nome.toUpper() == cercato; });
    if (trovato != nomi.end()) {
        ui_->File1->setFocus();
        ui_->File1->setCurrentIndex(file_->index(static_cast<int>(trovato - nomi.begin())));
    }
}

bool Sfoglia::ApreCartellaIniziale()
{
    const QString percorso = Percorsi::EstraeUltimaBarra(ui_->Percorso->text());
    // A name alone says nothing about a folder.
    const bool conCartella = percorso != ui_->NomeFile->text();
    if (conCartella && ApreCartella(Percorsi::CartellaEsistente(percorso))) {
        return QFileInfo(Percorsi::Risolve(percorso)).isDir();
    }
    if (!ApreCartella(Percorsi::CartellaEsistente(partenza_)) && !ApreCartella(cartella_)) {
        ApreCartella(QDir::homePath());
    }
    return !conCartella;
}

void Sfoglia::Form_Unload()
{
    if (confermato_ == Falso) {
        RisultatoSfoglia() = ui_->FileEntrata->text();
    }
}

void Sfoglia::Drive1_Change()
{
    MostraCartella(ui_->Drive1->currentText(), QStringLiteral("drive non disponibile"));
}

void Sfoglia::ApreCartellaScelta()
{
    if (const QTreeWidgetItem *voce = ui_->Dir1->currentItem()) {
        MostraCartella(voce->data(0, RuoloPercorso).toString(), CartellaChiusa);
    }
}

void Sfoglia::SaleDiUnaCartella()
{
    const QStringList antenati = Antenati(cartella_);
    if (antenati.size() > 1) {
        MostraCartella(antenati[antenati.size() - 2], CartellaChiusa);
    }
}

void Sfoglia::MostraCartella(const QString &cartella, const QString &seIlleggibile)
{
    bool aperta = false;
    {
        const PuntatoreOccupato occupato;
        aperta = ApreCartella(cartella);
    }
    if (!aperta) {
        SelezionaDrive();
        Messaggi::Mostra(this, seIlleggibile);
    }
}

bool Sfoglia::ApreCartella(const QString &cartella)
{
    if (cartella.isEmpty()) {
        return false;
    }
    const QString percorso = PercorsoPieno(cartella);
    QStringList figlie;
    try {
        nomiFile_ = Percorsi::FileConModello(percorso, QStringLiteral("*"));
        figlie = Percorsi::SottoCartelle(percorso);
    } catch (const ErroreSistema &) {
        // Whatever the reason, the folder cannot be shown: the caller knows what to say.
        return false;
    }
    cartella_ = percorso;
    ElencaCartelle(figlie);
    SelezionaDrive();
    Dir1_Change();
    return true;
}

void Sfoglia::ElencaCartelle(const QStringList &figlie)
{
    const QIcon aperta = style()->standardIcon(QStyle::SP_DirOpenIcon);
    const QIcon chiusa = style()->standardIcon(QStyle::SP_DirIcon);
    ui_->Dir1->clear();
    QTreeWidgetItem *ultima = ui_->Dir1->invisibleRootItem();
    for (const QString &antenato : Antenati(cartella_)) {
        auto *voce = Voce(antenato, aperta);
        ultima->addChild(voce);
        ultima = voce;
    }
    QList<QTreeWidgetItem *> voci;
    for (const QString &figlia : figlie) {
        voci.append(Voce(figlia, chiusa));
    }
    ultima->addChildren(voci);
    ui_->Dir1->expandAll();
    ui_->Dir1->setCurrentItem(ultima);
}

void Sfoglia::Dir1_Change()
{
    miniature_->ImpostaCartella(cartella_);
    file_->setStringList(nomiFile_);
    ui_->CartellaInVista->setText(cartella_);
    ui_->CartellaInVista->setToolTip(cartella_);
}

void Sfoglia::SelezionaDrive()
{
    // The volume of a folder is the deepest one that holds it.
    int scelto = -1;
    const QStringList radici = Radici();
    const QString barra = Percorsi::Separatore();
    for (int i = 0; i < radici.size(); ++i) {
        const QString inizio = radici[i].endsWith(barra) ? radici[i] : radici[i] + barra;
        const bool dentro = (cartella_ + barra).startsWith(inizio);
        if (dentro && (scelto < 0 || radici[i].size() > radici[scelto].size())) {
            scelto = i;
        }
    }
    ui_->Drive1->setCurrentIndex(scelto);
}

QStringList Sfoglia::Radici() const
{
    QStringList radici;
    for (int i = 0; i < ui_->Drive1->count(); ++i) {
        radici.append(ui_->Drive1->itemText(i));
    }
    return radici;
}

void Sfoglia::File1_Click()
{
    const QModelIndexList scelti = ui_->File1->selectionModel()->selectedIndexes();
    if (!scelti.isEmpty()) {
        RisultatoSfoglia() = PercorsoNellaCartella(
            Radici(), cartella_, scelti.first().data().toString(), Percorsi::Separatore());
    }
}

void Sfoglia::Command8_Click()
{
    confermato_ = Vero;
    accept();
}

void Sfoglia::Command7_Click()
{
    RisultatoSfoglia() = ui_->FileEntrata->text();
    reject();
}
