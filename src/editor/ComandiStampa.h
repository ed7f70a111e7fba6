#pragma once

#include "model/Numeri.h"

#include <QList>
#include <QObject>

#include <functional>

class AttesaDiStampa;
class Destinazione;
class Frm1;
class QAction;
class QPageLayout;
class QToolButton;
class VediStampa;
struct StatoProgramma;

/// What puts the open model, or the grid, on paper or into a PDF file: the editor's buttons, and
/// keys in its windows. The strip says what went where.
class ComandiStampa : public QObject
{
    Q_OBJECT
public:
    struct Bottoni
    {
        QToolButton *Vedi;
        QToolButton *Esporta;
    };
    /// The two windows and the buttons outlive it.
    ComandiStampa(StatoProgramma &stato, QWidget &editore, Frm1 &anteprima, const Bottoni &bottoni);

    /// The keys of the commands work in that window too.
    void AggiungeFinestra(QWidget &finestra);

    /// What a box of these commands stands before: the dialog that is open, or the editor.
    QWidget *Davanti() const;

    /// Prints the model on the default printer. Throws ErroreSistema.
    void Stampa(bool StampaNome);
    /// Prints the grid there. Throws ErroreSistema.
    void StampaGriglia();
    /// Shows the sheet that Stampa would print, until the user closes it. Throws ErroreSistema.
    void Vedi();
    /// Asks for a file and writes the sheet that Stampa would print into it, whole or not at all:
    /// the page is the default printer's, and A4 without margins where there is none. Throws
    /// ErroreSistema.
    void EsportaPdf(bool StampaNome);

signals:
    void StampaRichiesta(); ///< the test print is to begin, with its question

private:
    /// Paints the model. Throws StampaAnnullata when the user gives it up.
    void Dipinge(Destinazione &destinazione, bool StampaNome, AttesaDiStampa &attesa);
    /// Lets stampa put something on the default printer, and says what has come of it.
    void Invia(const QString &cosa, AttesaDiStampa &attesa,
               const std::function<void(Destinazione &)> &stampa);
    void EsportaTesti() { EsportaPdf(false); }
    /// The file to write; empty when the user wants none.
    QString ChiedeFile();
    void Dice(const QString &testo);

    StatoProgramma &stato_;
    QWidget &editore_;
    Frm1 &anteprima_;
    QList<QAction *> comandi_;
    VediStampa *vista_ = nullptr; ///< while it is open
};
