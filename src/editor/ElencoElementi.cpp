#include "editor/ElencoElementi.h"

#include "documento/StatoProgramma.h"
#include "editor/RigheElenco.h"
#include "finestre/Finestre.h"
#include "finestre/FuocoInVista.h"
#include "finestre/Guardia.h"
#include "preview/Frm1.h"
#include "ui_ElencoElementi.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>

namespace {

/// The box in which a place is edited says what it is about to those who do not see its column.
class CasellaDiPosto : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *padre, const QStyleOptionViewItem &aspetto,
                          const QModelIndex &indice) const override
    {
        QWidget *casella = QStyledItemDelegate::createEditor(padre, aspetto, indice);
        if (casella != nullptr) {
            const QString colonna =
                indice.model()->headerData(indice.column(), Qt::Horizontal).toString();
            const QModelIndex nome = indice.siblingAtColumn(RigheElenco::ColonnaNome);
            casella->setAccessibleName(colonna + u' ' + nome.data().toString());
        }
        return casella;
    }
};

} // namespace

ElencoElementi::ElencoElementi(StatoProgramma &stato, Frm1 &anteprima)
    : FinestraAttrezzi(anteprima)
    , ui_(std::make_unique<Ui::ElencoElementi>())
    , stato_(stato)
    , righe_(new RigheElenco(stato.documento, this))
    , ordinate_(new QSortFilterProxyModel(this))
{
    ui_->setupUi(this);
    ordinate_->setSourceModel(righe_);
    ordinate_->setFilterKeyColumn(-1);
    ordinate_->setFilterCaseSensitivity(Qt::CaseInsensitive);
    ordinate_->setSortRole(RigheElenco::RuoloOrdine);
    ordinate_->setSortCaseSensitivity(Qt::CaseInsensitive);
    CollegaRighe();
    ui_->Elementi->setModel(ordinate_);
    ui_->Elementi->setItemDelegate(new CasellaDiPosto(this));
    LarghezzeColonne();
    ImpostaHelp(this);
    MostraFuoco(this);
    Collegamenti();
    MostraScelti();
}

ElencoElementi::~ElencoElementi() = default;

void ElencoElementi::CollegaRighe()
{
    // Before the view knows the rows: what it does when they go is seen in between.
    connect(ordinate_, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this] { righeVia_ = true; });
    connect(ordinate_, &QAbstractItemModel::rowsRemoved, this, [this] { righeVia_ = false; });
}

void ElencoElementi::Collegamenti()
{
    Collega(ui_->Filtro, &QLineEdit::textChanged, this, &ElencoElementi::Filtra);
    Collega(ui_->Elementi->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { PrendeScelti(); });
    Collega(ui_->Elementi->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &indice, const QModelIndex &) { Sceglie(indice); });
    Collega(ui_->Elementi, &QTableView::clicked, this, &ElencoElementi::Sceglie);
    Collega(ui_->Elementi, &QTableView::doubleClicked, this, &ElencoElementi::ApreProprieta);
    Collega(ordinate_, &QAbstractItemModel::rowsInserted, this, [this] { MostraScelti(); });
    Collega(ordinate_, &QAbstractItemModel::modelReset, this, [this] { MostraScelti(); });
    Collega(&stato_.selezione, &Selezione::SceltiCambiati, this, &ElencoElementi::MostraScelti);
    Collega(righe_, &RigheElenco::Avviso, &Anteprima(), &Frm1::Avverte);
}

void ElencoElementi::LarghezzeColonne()
{
    QHeaderView *testata = ui_->Elementi->horizontalHeader();
    const QFontMetrics misure = fontMetrics();
    constexpr int Margine = 12;
    const auto larghezza = [&](const QString &esempio) {
        return misure.horizontalAdvance(esempio) + Margine;
    };
    const int numero = larghezza(QStringLiteral("000,0"));
    for (int colonna = 0; colonna < RigheElenco::NumeroColonne; ++colonna) {
        testata->resizeSection(colonna, numero);
    }
    testata->resizeSection(RigheElenco::ColonnaGenere, larghezza(QStringLiteral("Immagine")));
    testata->resizeSection(RigheElenco::ColonnaNome, larghezza(QStringLiteral("Doc_NumeroDoc")));
    testata->resizeSection(RigheElenco::ColonnaTesto, larghezza(QStringLiteral("testo di prova")));
    for (const int colonna : {RigheElenco::ColonnaLarghezza, RigheElenco::ColonnaAltezza}) {
        testata->resizeSection(colonna, testata->sectionSizeHint(colonna));
    }
    testata->resizeSection(RigheElenco::ColonnaFont,
                           larghezza(QStringLiteral("Times New Roman 11 grassetto")));
    // A third click on a title brings back the order of the model.
    testata->setSortIndicatorClearable(true);
    testata->setSortIndicator(-1, Qt::AscendingOrder);
    ui_->Elementi->setSortingEnabled(true);
    constexpr int SopraESotto = 4;
    ui_->Elementi->verticalHeader()->setDefaultSectionSize(misure.height() + SopraESotto);
}

QWidget *ElencoElementi::Primo() const
{
    return ui_->Elementi;
}

Chiave ElencoElementi::ChiaveDi(const QModelIndex &indice) const
{
    return righe_->ChiaveDi(ordinate_->mapToSource(indice).row());
}

QList<Chiave> ElencoElementi::Selezionati() const
{
    QList<Chiave> chiavi;
    for (const QModelIndex &indice : ui_->Elementi->selectionModel()->selectedRows()) {
        chiavi.append(ChiaveDi(indice));
    }
    return chiavi;
}

void ElencoElementi::PrendeScelti()
{
    if (righeVia_) {
        return;
    }
    // Who was chosen already keeps the place in the order of choosing.
    const QList<Chiave> selezionati = Selezionati();
    QList<Chiave> scelti = stato_.selezione.Scelti();
    scelti.removeIf([&](Chiave chiave) { return !selezionati.contains(chiave); });
    stato_.selezione.ImpostaScelti(scelti + selezionati);
}

void ElencoElementi::MostraScelti()
{
    QItemSelection righe;
    QModelIndex ultima;
    qsizetype inVista = 0;
    for (const Chiave &chiave : stato_.selezione.Scelti()) {
        const QModelIndex indice =
            ordinate_->mapFromSource(righe_->index(righe_->RigaDi(chiave), 0));
        if (indice.isValid()) {
            righe.select(indice, indice.siblingAtColumn(RigheElenco::NumeroColonne - 1));
            ultima = indice;
            ++inVista;
        }
    }
    QList<Chiave> selezionati = Selezionati();
    selezionati.removeIf([&](Chiave chiave) { return stato_.selezione.EScelto(chiave); });
    if (selezionati.isEmpty() && Selezionati().size() == inVista) {
        return;
    }
    {
        // It follows: the user has not gone to another row.
        const QSignalBlocker muta(ui_->Elementi->selectionModel());
        ui_->Elementi->selectionModel()->select(righe, QItemSelectionModel::ClearAndSelect);
        if (ultima.isValid()) {
            ui_->Elementi->selectionModel()->setCurrentIndex(ultima, QItemSelectionModel::NoUpdate);
            ui_->Elementi->scrollTo(ultima);
        }
    }
    ui_->Elementi->viewport()->update();
}

void ElencoElementi::Sceglie(const QModelIndex &indice)
{
    if (righeVia_ || !indice.isValid()) {
        return;
    }
    const Chiave chiave = ChiaveDi(indice);
    if (!stato_.documento.InVista(chiave)) {
        return;
    }
    if (stato_.selezione.Attivo(chiave.genere) != chiave.indice) {
        Anteprima().Sceglie(chiave);
    }
    Anteprima().PortaInVista(chiave);
}

void ElencoElementi::ApreProprieta(const QModelIndex &indice)
{
    if (indice.isValid() && stato_.documento.InVista(ChiaveDi(indice))) {
        const Chiave chiave = ChiaveDi(indice);
        // The row that a filter has left is the current one before anybody has chosen it.
        Sceglie(indice);
        if (!stato_.selezione.EScelto(chiave)) {
            stato_.selezione.ImpostaScelti({chiave});
        }
        emit RichiestaProprieta(chiave.genere, chiave.indice);
    }
}

void ElencoElementi::Filtra(const QString &testo)
{
    ordinate_->setFilterFixedString(testo);
    MostraScelti();
}

void ElencoElementi::keyPressEvent(QKeyEvent *evento)
{
    const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (invio && ui_->Elementi->hasFocus()) {
        // Not while a place is edited: there it confirms.
        Guardia(this, [this] { ApreProprieta(ui_->Elementi->currentIndex()); });
    } else if (invio && ui_->Filtro->hasFocus()) {
        ui_->Elementi->setFocus();
        if (!ui_->Elementi->currentIndex().isValid()) {
            ui_->Elementi->selectRow(0);
        }
    } else {
        FinestraAttrezzi::keyPressEvent(evento);
    }
}
