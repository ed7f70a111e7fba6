#pragma once

#include "dialogs/MemoriaCaselle.h"
#include "documento/StatoProgramma.h"
#include "preview/Frm1.h"

#include <QList>
#include <QWidget>

#include <memory>
#include <optional>

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
    /// Removes the simulated rows and, when the box is ticked, draws them again; nothing when they
    /// would come out the same.
    void SimuloRighe();

private:
    void Collegamenti();
    /// Lenient reading of a box; a number beyond a double gives nothing, and a message that names
    /// the box by its label.
    std::optional<double> Letto(const QLineEdit *casella, const QLabel *etichetta);
    void SegueDocumento(const Cambiamento &cambiamento);
    void RiempieCaselle();

    std::unique_ptr<Ui::PaginaRighe> ui_;
    StatoProgramma &stato_;
    Frm1 &anteprima_;
    MemoriaCaselle caselle_;
    QList<Frm1::RigaSimulata> mostrate_;
};
