#pragma once

#include "editor/FinestraAttrezzi.h"
#include "model/Modello.h"

#include <memory>

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
class ElencoElementi : public FinestraAttrezzi
{
    Q_OBJECT
public:
    /// A tool of the preview's window; the window belongs to whoever makes it. Both must outlive
    /// it.
    ElencoElementi(StatoProgramma &stato, Frm1 &anteprima);
    ~ElencoElementi() override;

signals:
    /// The property dialog is to open.
    void RichiestaProprieta(Genere genere, int i);

protected:
    QWidget *Primo() const override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    void Collegamenti();
    void CollegaRighe();
    void LarghezzeColonne();
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
    RigheElenco *righe_;
    QSortFilterProxyModel *ordinate_;
    /// Rows go, filtered out or with their elements: what they lose is not the user's choice.
    bool righeVia_ = false;
};
