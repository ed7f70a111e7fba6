#pragma once

#include "model/Modello.h"

#include <QWidget>

#include <memory>

class Frm1;
class QModelIndex;
class QSortFilterProxyModel;
class RigheElenco;
struct StatoProgramma;

namespace Ui {
class ElencoElementi;
}

/// The list of all elements, a tool window beside the sheet. The row that the user goes to is
/// selected on the sheet as a click there would do it, and scrolled into view; the selected rows
/// and the chosen set are the same. Pointing at the sheet does not move it.
class ElencoElementi : public QWidget
{
    Q_OBJECT
public:
    /// A tool of the preview's window; the window belongs to whoever makes it. Both must outlive
    /// it.
    ElencoElementi(StatoProgramma &stato, Frm1 &anteprima);
    ~ElencoElementi() override;

    /// Opens beside the sheet, or where the user has left it, with the keyboard in the rows.
    void Apre();

signals:
    /// The property dialog is to open.
    void RichiestaProprieta(Genere genere, int i);

protected:
    void keyPressEvent(QKeyEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;

private:
    void Collegamenti();
    void CollegaRighe();
    void LarghezzeColonne();
    void Colloca();
    /// The rows of the chosen set are selected, the last one chosen is the current one.
    void MostraScelti();
    void PrendeScelti();
    QList<Chiave> Selezionati() const;
    Chiave ChiaveDi(const QModelIndex &indice) const;
    void Sceglie(const QModelIndex &indice);
    void ApreProprieta(const QModelIndex &indice);
    void Filtra(const QString &testo);

    std::unique_ptr<Ui::ElencoElementi> ui_;
    StatoProgramma &stato_;
    Frm1 &anteprima_;
    RigheElenco *righe_;
    QSortFilterProxyModel *ordinate_;
    bool collocata_ = false;
    /// Rows go, filtered out or with their elements: what they lose is not the user's choice.
    bool righeVia_ = false;
};
