#pragma once

#include "dialogs/FrmCarattere.h"

#include <memory>

namespace Ui {
class FrmCornice;
}

/// Property dialog of a frame or label; a record without border is a label. To open it:
/// RiempieComboImpostazioni, Carica, the editor's SettaFont, exec.
class FrmCornice : public FrmCarattere
{
    Q_OBJECT
public:
    explicit FrmCornice(StatoProgramma &stato, QWidget *padre = nullptr);
    ~FrmCornice() override;

    /// Shows frame k. Throws ErroreSistema 9 for an index outside the table.
    void Carica(int k);

private:
    void CollegaSegnali();
    void OptEtichetta_Click();
    void OptCornice_Click();
    void ColoreTesto_Change();
    void Confema_Click();
    void Command1_Click();
    void Command2_Click();

    bool ColoreErrato(const QLineEdit *casella) const;
    void ControllaColore(QLineEdit *casella, const QString &messaggio) const;
    /// The text of the box as a 16-bit number, rounded half to even; throws Rifiuto when it is
    /// none.
    qint16 Colore(QLineEdit *casella) const;
    void Abilita(bool bordo);
    void AdattaAllaScritta();

    std::unique_ptr<Ui::FrmCornice> ui_;
};
