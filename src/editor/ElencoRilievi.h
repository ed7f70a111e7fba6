#pragma once

#include "controllo/Rilievo.h"
#include "editor/FinestraAttrezzi.h"

#include <QList>

#include <memory>

class QModelIndex;
class RigheRilievi;
struct StatoProgramma;

namespace Ui {
class ElencoRilievi;
}

/// The list of the findings, a tool window beside the sheet. The finding that the user goes to has
/// its element chosen on the sheet and scrolled into view, or asks for the page of what it is
/// about.
class ElencoRilievi : public FinestraAttrezzi
{
    Q_OBJECT
public:
    /// Both must outlive it.
    ElencoRilievi(StatoProgramma &stato, Frm1 &anteprima);
    ~ElencoRilievi() override;

    /// Nothing is chosen by it. conCarta: the printer's paper is known, and has been checked.
    void Mostra(const QList<Rilievo> &rilievi, bool conCarta);

    /// "nessun rilievo", "un rilievo", "3 rilievi".
    static QString Conto(qsizetype rilievi);

signals:
    /// The property dialog is to open.
    void RichiestaProprieta(Genere genere, int i);
    /// The editor's page of the row area or of the scan is to show.
    void RichiestaPagina(Rilievo::Luogo luogo);

protected:
    QWidget *Primo() const override;
    QRect Parte(const QRect &accanto) const override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    void Collegamenti();
    void Raggiunge(const QModelIndex &indice);
    void Apre(const QModelIndex &indice);

    std::unique_ptr<Ui::ElencoRilievi> ui_;
    StatoProgramma &stato_;
    RigheRilievi *righe_;
    bool mostra_ = false; ///< the rows change: nobody goes to one of them
};
