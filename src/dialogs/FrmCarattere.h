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
    struct Carattere
    {
        QString Font;
        qint16 Grassetto;  ///< Vero or Falso
        qint16 Dimensione; ///< points
    };

    using FrmElemento::FrmElemento;

    void Form_Load(const Controlli &controlli, const ControlliCarattere &carattere);
    /// Shows test text and bold of element k; its font and size are the editor's to select.
    template <typename Record>
    void CaricaCarattere(const Record &elemento);
    /// A double click in the box Nome is Nome_DblClick.
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

    /// Throws Rifiuto when no font or no size is chosen.
    Carattere CarattereScelto() const;
    template <typename Record>
    static void Scrive(Record &elemento, const Carattere &carattere);

private:
    void Nome_DblClick();
    void MostraCarattere(const QString &testo, bool grassetto, qint16 dimensione);

    QLineEdit *nome_ = nullptr;
    ControlliCarattere carattere_;
    qint16 dimensione_ = 0; ///< the element's own, points; ComboDim may lack it
};

template <typename Record>
void FrmCarattere::CaricaCarattere(const Record &elemento)
{
    MostraCarattere(elemento.Testo, elemento.Grassetto != Falso, elemento.Dimensione);
}

template <typename Record>
void FrmCarattere::Scrive(Record &elemento, const Carattere &carattere)
{
    elemento.Font = carattere.Font;
    elemento.Grassetto = carattere.Grassetto;
    elemento.Dimensione = carattere.Dimensione;
}
