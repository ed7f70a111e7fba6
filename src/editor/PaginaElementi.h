#pragma once

#include "model/Modello.h"

#include <QWidget>

#include <memory>

namespace Ui {
class PaginaElementi;
}

/// The page of one kind of element: its combo, whose item 0 is a separator so that a list index is
/// an element's slot, and the commands of the kind. Its controls carry the kind's own names.
class PaginaElementi : public QWidget
{
    Q_OBJECT
public:
    explicit PaginaElementi(Genere genere, QWidget *padre = nullptr);
    ~PaginaElementi() override;

    Genere Tipo() const { return genere_; }

    /// Empties the combo down to the separator.
    void Svuota();
    /// Gives item indice its text; one more than there are adds it.
    void MostraVoce(int indice, const QString &testo);
    /// Takes the items after ultimo away; a choice among them goes to the separator.
    void Limita(int ultimo);
    void Seleziona(int indice);
    /// The chosen element, 0 for the separator. The commands ask for it when they need it: choosing
    /// an item (ComboCampi_Click, ComboCornici_Click, ComboImmagini_Change) does nothing by itself.
    int Indice() const;
    /// False when the chosen item's text begins as that of a deleted element does: the text alone
    /// decides, also for an element of that name.
    bool SiApre() const;

signals:
    void Aggiunge();
    void Modifica();
    void PrimoPiano();
    void EliminaTutte();
    void FuocoPreso();

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void Collegamenti();

    std::unique_ptr<Ui::PaginaElementi> ui_;
    Genere genere_;
};
