#pragma once

#include "dialogs/MemoriaCaselle.h"
#include "documento/StatoProgramma.h"
#include "preview/Frm1.h"

#include <QList>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <optional>

class AvvisoCasella;
class QLabel;

namespace Ui {
class PaginaRighe;
}

/// The page "Posizione righe": the body-row area and its simulation on the preview.
class PaginaRighe : public QWidget
{
    Q_OBJECT
public:
    PaginaRighe(StatoProgramma &stato, Frm1 &anteprima, QWidget *padre = nullptr);
    ~PaginaRighe() override;

    /// Shows the model's values; the simulation is off in a freshly opened model.
    void Mostra();

    void ConfermaPosizioneRighe_Click();
    void OptSimuloRighe_Click();
    /// The labels of the boxes whose values differ from the model's: typed, not confirmed yet.
    QStringList NonConfermati() const;
    /// Removes the simulated rows and, when the box is ticked, draws them again; nothing when they
    /// would come out the same.
    void SimuloRighe();

private:
    void Collegamenti();
    /// Lenient reading of a box; a number beyond a double gives nothing, and a message that names
    /// the box by its label.
    std::optional<double> Letto(const QLineEdit *casella, const QLabel *etichetta);
    /// A box with its label; those of numbers in the order of ParametriRighe.
    struct Casella
    {
        QLineEdit *Testo;
        QLabel *Etichetta;
        AvvisoCasella *Avviso;
        double ParametriRighe::*Valore; ///< null: the box of SeguePag
        bool InPari = true;             ///< the model had its value when last looked at
    };
    void RiempieCaselle();
    void Riempie(const Casella &casella);
    /// Boxes that have waited for nothing follow a model that something else has changed, and those
    /// whose own value undo or redo has changed show it; what is typed into the others stays.
    void SegueModello(Cambiamento::Origine origine);
    bool Cambiata(const Casella &casella) const;
    void SegnalaNonConfermati();
    bool Confermata(const Casella &casella) const;
    void SegueDocumento(const Cambiamento &cambiamento);

    std::unique_ptr<Ui::PaginaRighe> ui_;
    StatoProgramma &stato_;
    Frm1 &anteprima_;
    MemoriaCaselle caselle_;
    QList<Casella> tutte_;
    ParametriRighe seguite_; ///< the model's when the boxes last followed it
    QList<Frm1::RigaSimulata> mostrate_;
};
