#include "catalogue/ElencoScelta.h"

#include <QKeyEvent>

namespace {

bool UnPasso(int tasto)
{
    return tasto == Qt::Key_Up || tasto == Qt::Key_Down;
}

bool UnSalto(int tasto)
{
    return tasto == Qt::Key_Home || tasto == Qt::Key_End || tasto == Qt::Key_PageUp ||
           tasto == Qt::Key_PageDown;
}

} // namespace

void ElencoScelta::keyPressEvent(QKeyEvent *evento)
{
    const bool scelta = !selectedItems().isEmpty();
    if (!scelta && UnPasso(evento->key()) && currentIndex().isValid()) {
        // Qt takes the marked entry for the chosen one and would step past it.
        SceglieVoceMarcata();
        evento->accept();
        return;
    }
    QListWidget::keyPressEvent(evento);
    if (!scelta && UnSalto(evento->key()) && selectedItems().isEmpty()) {
        // A jump to where the mark stood already has chosen nothing.
        SceglieVoceMarcata();
    }
}

QItemSelectionModel::SelectionFlags ElencoScelta::selectionCommand(const QModelIndex &voce,
                                                                   const QEvent *evento) const
{
    const auto comando = QListWidget::selectionCommand(voce, evento);
    return comando.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate
                                                           : comando;
}

void ElencoScelta::SceglieVoceMarcata()
{
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
}
