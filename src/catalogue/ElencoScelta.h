#pragma once

#include <QListWidget>

/// A list of which one entry is chosen, by mouse or keys, and stays so until another one is. The
/// focus marks the first entry without choosing it; the first key that moves over the list chooses
/// from there.
class ElencoScelta : public QListWidget
{
    Q_OBJECT
public:
    using QListWidget::QListWidget;

protected:
    void keyPressEvent(QKeyEvent *evento) override;
    QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex &voce, const QEvent *evento = nullptr) const override;

private:
    void SceglieVoceMarcata();
};
