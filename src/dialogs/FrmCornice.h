#pragma once

#include "dialogs/FrmCarattere.h"

#include <functional>
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
    struct MisuraEtichetta
    {
        double Larghezza; ///< mm
        double Altezza;   ///< mm
    };

    void Form_Load();
    void CollegaSegnali();
    void OptEtichetta_Click();
    void OptCornice_Click();
    void ColoreTesto_Change();
    void Confema_Click();
    void Command1_Click();
    void Command2_Click();
    void Elimina_Click();

    /// True when the border, read leniently, is 0; a number beyond any is none.
    bool SenzaBordo() const;
    void ImpostaBordo(const QString &testo, bool abilitato);
    /// A wrong colour is no number or outside 0..15; throws Rifiuto with the message.
    static void ControllaColore(QLineEdit *casella, const QString &messaggio);
    /// Throws Rifiuto when the width, read leniently, is zero or less, or beyond a double.
    void ControllaLarghezza() const;
    /// Changes the record of every frame, as one step of that text.
    void SuTutte(const QString &testo, const std::function<void(Cornice &)> &cambia);
    /// Size of a label, from its text: the boxes then show it.
    MisuraEtichetta AdattaAllaScritta(const Carattere &carattere);

    std::unique_ptr<Ui::FrmCornice> ui_;
};
