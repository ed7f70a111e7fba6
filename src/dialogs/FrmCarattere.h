#pragma once

#include "dialogs/FrmElemento.h"

class QCheckBox;
class QComboBox;

/// What the dialogs of fields and frames share: a text set in a font.
class FrmCarattere : public FrmElemento
{
    Q_OBJECT
public:
    /// ComboFont and ComboDim, for the editor's SettaFont.
    QComboBox *Font() const { return carattere_.ComboFont; }
    QComboBox *Dimensioni() const { return carattere_.ComboDim; }

    /// Fills ComboFont with the printer's fonts and ComboDim with the sizes " 6" to "40".
    void RiempieComboImpostazioni();

protected:
    struct ControlliCarattere
    {
        QComboBox *ComboFont = nullptr;
        QComboBox *ComboDim = nullptr;
        QCheckBox *Bold = nullptr;
        QLineEdit *Testo = nullptr;
    };

    using FrmElemento::FrmElemento;

    void Prepara(const Controlli &controlli, const ControlliCarattere &carattere);
    void CaricaElemento(int k);
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

    /// The chosen size; throws Rifiuto when none is chosen.
    qint16 DimensioneScelta() const;
    qint16 GrassettoScelto() const;
    QString FontScelto() const;

private:
    QLineEdit *nome_ = nullptr;
    ControlliCarattere carattere_;
};
