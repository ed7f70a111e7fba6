#include "editor/ElencoRilievi.h"

#include "documento/StatoProgramma.h"
#include "editor/RigheRilievi.h"
#include "finestre/Finestre.h"
#include "finestre/FuocoInVista.h"
#include "finestre/Guardia.h"
#include "preview/Frm1.h"
#include "ui_ElencoRilievi.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

#include <optional>

namespace {

/// Breaks a sentence at the width of the list as it is, where the view's own would leave its
/// scroll bar out of account.
class RigaSpezzata : public QStyledItemDelegate
{
public:
    explicit RigaSpezzata(QListView *vista)
        : QStyledItemDelegate(vista)
        , vista_(vista)
    {
    }
    QSize sizeHint(const QStyleOptionViewItem &aspetto, const QModelIndex &indice) const override
    {
        constexpr int Aria = 4; // device-independent pixels between two sentences
        QStyleOptionViewItem spezzata = aspetto;
        spezzata.rect.setWidth(vista_->viewport()->width());
        const QSize misura = QStyledItemDelegate::sizeHint(spezzata, indice);
        return {qMin(misura.width(), vista_->viewport()->width()), misura.height() + Aria};
    }

private:
    QListView *vista_;
};

} // namespace

ElencoRilievi::ElencoRilievi(StatoProgramma &stato, Frm1 &anteprima)
    : FinestraAttrezzi(anteprima)
    , ui_(std::make_unique<Ui::ElencoRilievi>())
    , stato_(stato)
    , righe_(new RigheRilievi(this))
{
    ui_->setupUi(this);
    ui_->Rilievi->setModel(righe_);
    ui_->Rilievi->setItemDelegate(new RigaSpezzata(ui_->Rilievi));
    ImpostaHelp(this);
    MostraFuoco(this);
    Collegamenti();
}

ElencoRilievi::~ElencoRilievi() = default;

void ElencoRilievi::Collegamenti()
{
    // Not the current row: the first one is that as soon as the keyboard comes to the list.
    Collega(ui_->Rilievi->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection &scelta, const QItemSelection &) {
                Raggiunge(scelta.indexes().value(0));
            });
    Collega(ui_->Rilievi, &QListView::clicked, this, &ElencoRilievi::Raggiunge);
    Collega(ui_->Rilievi, &QListView::doubleClicked, this,
            [this](const QModelIndex &indice) { Apre(indice); });
}

QString ElencoRilievi::Conto(qsizetype rilievi)
{
    return rilievi == 0   ? QStringLiteral("nessun rilievo")
           : rilievi == 1 ? QStringLiteral("un rilievo")
                          : QStringLiteral("%1 rilievi").arg(rilievi);
}

void ElencoRilievi::Mostra(const QList<Rilievo> &rilievi, bool conCarta)
{
    QString riassunto = Conto(rilievi.size());
    riassunto[0] = riassunto[0].toUpper();
    if (!conCarta) {
        riassunto += QStringLiteral(". La carta non è controllata: nessuna stampante predefinita "
                                    "ha risposto.");
    }
    ui_->Riassunto->setText(riassunto);
    const QScopedValueRollback<bool> mostra(mostra_, true);
    const QModelIndexList scelti = ui_->Rilievi->selectionModel()->selectedRows();
    const std::optional<Rilievo> scelto =
        scelti.isEmpty() ? std::nullopt
                         : std::optional(righe_->Rilievi().at(scelti.constFirst().row()));
    righe_->Mostra(rilievi);
    // One that has been put right leaves no row chosen.
    const int riga = scelto ? righe_->RigaDi(*scelto) : -1;
    if (riga >= 0 && ui_->Rilievi->selectionModel()->selectedRows().isEmpty()) {
        ui_->Rilievi->setCurrentIndex(righe_->index(riga));
    }
}

QWidget *ElencoRilievi::Primo() const
{
    return ui_->Rilievi;
}

QRect ElencoRilievi::Parte(const QRect &accanto) const
{
    // The list of the elements keeps its titles and first rows in sight above it.
    constexpr int RigheMinime = 14;
    QRect parte = accanto;
    const int altezza = qMax(accanto.height() / 2, RigheMinime * fontMetrics().lineSpacing());
    parte.setTop(qMax(accanto.top(), accanto.bottom() + 1 - altezza));
    return parte;
}

void ElencoRilievi::Raggiunge(const QModelIndex &indice)
{
    if (mostra_ || !indice.isValid()) {
        return;
    }
    const Rilievo &rilievo = righe_->Rilievi().at(indice.row());
    if (rilievo.Dove != Rilievo::Luogo::Elemento) {
        emit RichiestaPagina(rilievo.Dove);
    } else if (stato_.documento.InVista(rilievo.Di)) {
        const Chiave chiave = rilievo.Di;
        stato_.selezione.ImpostaScelti({chiave});
        if (stato_.selezione.Attivo(chiave.genere) != chiave.indice) {
            Anteprima().Sceglie(chiave);
        }
        Anteprima().PortaInVista(chiave);
    }
}

void ElencoRilievi::Apre(const QModelIndex &indice)
{
    if (!indice.isValid()) {
        return;
    }
    const Rilievo &rilievo = righe_->Rilievi().at(indice.row());
    const bool elemento = rilievo.Dove == Rilievo::Luogo::Elemento;
    const Chiave chiave = rilievo.Di;
    Raggiunge(indice);
    if (elemento && stato_.documento.InVista(chiave)) {
        emit RichiestaProprieta(chiave.genere, chiave.indice);
    }
}

void ElencoRilievi::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        Guardia(this, [this] { Apre(ui_->Rilievi->currentIndex()); });
    } else {
        FinestraAttrezzi::keyPressEvent(evento);
    }
}
