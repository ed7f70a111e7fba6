#pragma once

#include "dialogs/FrmCarattere.h"
#include "model/MaschereStampa.h"

#include <memory>

namespace Ui {
class FrmCampo;
}

/// Property dialog of a field. To open it: RiempieComboImpostazioni, Carica, the editor's SettaFont
/// and SettaComboMask, exec.
class FrmCampo : public FrmCarattere
{
    Q_OBJECT
public:
    /// casuale draws the digits of sample texts; without one a uniform generator does.
    explicit FrmCampo(StatoProgramma &stato, QWidget *padre = nullptr,
                      SorgenteCasuale casuale = {});
    ~FrmCampo() override;

    /// As for every element with a font; also fills ComboMask with the catalogue of masks.
    void RiempieComboImpostazioni();
    /// Shows field k. Throws ErroreSistema 9 for an index outside the table.
    void Carica(int k);

    /// ComboMask, for the editor's SettaComboMask.
    QComboBox *Maschere() const;
    /// The mask that SettaComboMask has to find in ComboMask: the text of the box Maschera, which a
    /// command may just have changed without saving it.
    QString MascheraCorrente() const;

signals:
    /// Asks the editor for SettaComboMask and expects it done when the emission returns. ComboMask
    /// has no entry selected then, and keeps none when the catalogue lacks the mask.
    void SettaComboMaskRichiesto();

private:
    void Form_Load();
    void CollegaSegnali();
    void CambiaMaschera();
    void PCambiaMaschera_Click();
    void PMascheraDefault_Click();
    void PConfemaCampo_Click();
    void Command2_Click();
    void PEliminaCampo_Click();
    void NonStampaCampo_Click();
    void Maschera_Change();
    void ControllaLunghezzaTesto() const;

    std::unique_ptr<Ui::FrmCampo> ui_;
    SorgenteCasuale casuale_;
};
