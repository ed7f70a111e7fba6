#pragma once

#include "dialogs/FrmElemento.h"

#include <QSizeF>

#include <memory>

class QListWidgetItem;

namespace Ui {
class FrmImmagine;
}

/// Property dialog of a picture. Choosing a file writes name and size into the record at once; the
/// rest waits for the confirm. To open it: Carica, exec.
class FrmImmagine : public FrmElemento
{
    Q_OBJECT
public:
    explicit FrmImmagine(StatoProgramma &stato, QWidget *padre = nullptr);
    ~FrmImmagine() override;

    /// Shows picture k and the picture files of the models folder. Throws ErroreSistema 9 for an
    /// index outside the table; a folder that cannot be read is reported in a message and leaves
    /// the list empty.
    void Carica(int k);

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void CollegaSegnali();
    void ElencaFile();
    void FileImmagini_Click(QListWidgetItem *voce);
    void Command1_Click();
    void Confema_Click();
    void ImpostaImmagine();
    /// Natural size in mm; 0 x 0 for a picture that cannot be loaded.
    QSizeF MisuraImmagine() const;
    /// Asks for the percentage of a large picture and shows the reduced size; false when the user
    /// wants none.
    bool ChiedeRiduzione(const QSizeF &misura);
    void ScriveSubito();

    std::unique_ptr<Ui::FrmImmagine> ui_;
};
