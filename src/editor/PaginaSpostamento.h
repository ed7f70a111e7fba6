#pragma once

#include "documento/CorrezioniInStoria.h"
#include "documento/StatoProgramma.h"

#include <QWidget>

#include <memory>

class Frm1;

namespace Ui {
class PaginaSpostamento;
}

/// The page "Spostamento": shifts all elements of a kind by a fixed distance.
class PaginaSpostamento : public QWidget
{
    Q_OBJECT
public:
    PaginaSpostamento(StatoProgramma &stato, Frm1 &anteprima, QWidget *padre = nullptr);
    ~PaginaSpostamento() override;

    /// The shift of a freshly opened model: 1 mm.
    void Mostra();

    void Command2_Click(); ///< all fields
    void Command5_Click(); ///< all frames and labels
    void Command6_Click(); ///< all images

signals:
    /// The scan has been moved: the boxes that show it are to be filled again.
    void SpostatoSfondo();

private:
    void Collegamenti();
    void CorreggiDaGriglia_Click();
    /// What the strip says of the correction goes with it, or with what is done next.
    void RitiraDetto();
    void Sposta(Genere genere);

    std::unique_ptr<Ui::PaginaSpostamento> ui_;
    StatoProgramma &stato_;
    Frm1 &anteprima_;
    CorrezioniInStoria correzioni_;
    int detta_ = 0; ///< the step that detto_ is about
    QString detto_; ///< what the strip says of it; empty: nothing any more
};
