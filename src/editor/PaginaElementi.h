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
    void AggiungeVoce(const QString &testo);
    void Seleziona(int indice);
    /// Gives item indice a new text and selects it.
    void Rinomina(int indice, const QString &testo);
    /// Prefixes the item with " ELIMINATO: ", which keeps it from being opened.
    void SegnaEliminata(int indice);
    bool VoceEliminata() const;
    /// The chosen element, 0 for the separator. The commands ask for it when they need it: choosing
    /// an item (ComboCampi_Click, ComboCornici_Click, ComboImmagini_Change) does nothing by itself.
    int Indice() const;

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
