#pragma once

#include "dialogs/MemoriaCaselle.h"
#include "documento/Passo.h"
#include "documento/StatoProgramma.h"

#include <QDialog>
#include <QLineEdit>
#include <QString>

/// What the property dialogs of the three kinds of element share. A dialog is modal, edits one
/// record of the open model in place and knows neither the preview nor the editor: it says with its
/// signals, at the moment it happens, what they have to follow. The caller fills it with Carica and
/// shows it with exec; the dialog closes itself when its work is done.
class FrmElemento : public QDialog
{
    Q_OBJECT
public:
    /// True when the box holds a number of at most 400; otherwise puts "0" into it.
    static bool Numero(QLineEdit *casella);

    /// What undo says of a change made in a dialog.
    static QString TestoModifica(const QString &nome);
    /// The question before an element is deleted; its name follows.
    static QString DomandaElimina(Genere genere);

signals:
    /// Element n has been confirmed or deleted: the editor's list goes to it.
    void VoceScelta(Genere genere, int n);

protected:
    /// The boxes that every dialog has; they belong to the dialog.
    struct Controlli
    {
        QLineEdit *Num = nullptr;
        QLineEdit *Nome = nullptr;
        QLineEdit *Descrizione = nullptr;
        QLineEdit *X = nullptr;
        QLineEdit *Y = nullptr;
    };

    /// Ends an attempt (see Tenta) with a message to the user; the control gets the focus.
    struct Rifiuto
    {
        QString Messaggio;
        QWidget *Controllo;
    };

    FrmElemento(Genere genere, StatoProgramma &stato, QWidget *padre);

    /// Takes over the shared boxes and sets help and character limits; called once, when the
    /// derived dialog has built its form.
    void Form_Load(const Controlli &controlli);
    /// Shows what the records of all kinds have. Throws ErroreSistema 9 for an index outside the
    /// table, with the dialog untouched.
    void CaricaElemento(int k);

    /// The box in which the dialog opens, never the name's: a stray key must not rename the
    /// element.
    static void MettePrimo(QLineEdit *casella);

    const Modello &Aperto() const { return stato_.Aperto(); }
    Documento &DocumentoAperto() { return stato_.documento; }
    const StatoProgramma &Stato() const { return stato_; }
    MemoriaCaselle &Caselle() { return caselle_; }
    const MemoriaCaselle &Caselle() const { return caselle_; }
    /// The record that Num names, inside the table or not. Throws ErroreSistema 6 when the number
    /// is no 16-bit one.
    int Indice() const;

    /// Runs a command whose checks throw Rifiuto: the first one that fails shows its message and
    /// leaves the dialog open.
    template <typename Azione>
    void Tenta(Azione &&azione)
    {
        try {
            azione();
        } catch (const Rifiuto &rifiuto) {
            Rifiuta(rifiuto);
        }
    }
    /// Throws Rifiuto when another element has the name, whatever its case.
    void ControllaNomeUnico(int n, const QString &messaggio) const;
    /// Throws Rifiuto for an empty name, which would make the element absent unasked.
    void ControllaNomeScritto() const;
    /// Strict reading of a box; throws Rifiuto naming the box for a text that is no number.
    double Doppio(QLineEdit *casella) const;
    /// The number in 16 bits, rounded half to even; throws Rifiuto naming the control for a text
    /// that is no such number.
    static qint16 Intero16(QWidget *controllo, const QString &testo);

    /// Lenient reading of a box; throws Rifiuto naming it for a number beyond a double.
    double Val(QLineEdit *casella) const;
    /// The box read leniently, whatever stands in it, and rounded half to even; throws Rifiuto
    /// naming it for a number beyond 16 bits.
    static qint16 ValIntero16(QLineEdit *casella);

    /// Place of the element as typed, in mm.
    struct Posto
    {
        double X;
        double Y;
    };
    Posto PostoScritto() const;
    /// Puts name, place and description, which the confirm of every kind stores, into its record.
    void ScriveElemento(Elemento &elemento, const Posto &posto) const;
    /// The end of every confirm: the record becomes that of element n, the list takes its name, the
    /// dialog closes.
    template <typename Record>
    void Conferma(int n, const Record &record)
    {
        {
            Passo passo(stato_.documento, TestoModifica(record.Nome));
            passo.Scrive(n, record);
            passo.RinominaVoce({genere_, n});
        }
        Conclude(n);
    }
    /// Asks DomandaElimina with the name; on Yes makes it absent and closes the dialog.
    void ChiedeEliminazione();
    /// Makes element n absent and closes the dialog, without asking.
    void EliminaElemento(int n);

private:
    static Rifiuto TroppoGrande(QWidget *controllo, const QString &testo);
    void Conclude(int n);
    void Rifiuta(const Rifiuto &rifiuto);

    Genere genere_;
    StatoProgramma &stato_;
    Controlli controlli_;
    MemoriaCaselle caselle_;
};
