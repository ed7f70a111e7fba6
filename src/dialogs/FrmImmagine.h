#pragma once

#include "dialogs/FrmElemento.h"

#include <QSizeF>

#include <memory>

class ImportaImmagine;
class MiniatureFile;
class Proporzioni;
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

    /// Shows picture k and the picture files of the models folder, and says below the list when
    /// the picture's own cannot be read. Throws ErroreSistema 9 for an
    /// index outside the table; a folder that cannot be read is reported in a message and leaves
    /// the list empty.
    void Carica(int k);

protected:
    /// Space chooses the current file of the list, and so does Enter unless it is chosen already.
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void Form_Load();
    void CollegaSegnali();
    void FileImmagini_Click(QListWidgetItem *voce);
    void Command1_Click();
    void Importa_Click();
    void Confema_Click();
    void Elimina_Click();
    void ImpostaImmagine();

    void RiempieFileImmagini();
    bool SceglieConTasto(int tasto);
    QListWidgetItem *VoceDi(const QString &nome) const;
    /// Makes the file that the record names the current one of the list.
    void IndicaFileScelto();
    /// Natural size in mm, which the preview's scratch image Itmp would take; 0 x 0, as without a
    /// picture in it, for one that cannot be loaded, which a line below the list then says.
    QSizeF MisuraImmagine();
    QSizeF LeggeMisura();
    void MostraAvviso(const QString &testo);
    /// Proposes the percentage that makes a large picture fit and shows the reduced size; false
    /// when the user wants none.
    bool ChiedeRiduzione(const QSizeF &misura);
    /// The percentage as the user types it; empty for none.
    QString ChiedePercentuale();
    void ScriveSubito();

    std::unique_ptr<Ui::FrmImmagine> ui_;
    MiniatureFile *miniature_ = nullptr;
    std::unique_ptr<Proporzioni> proporzioni_;
    std::unique_ptr<ImportaImmagine> importa_;
};
