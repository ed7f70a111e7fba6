#pragma once

#include "documento/Appunti.h"
#include "documento/Incolla.h"

#include <QByteArray>
#include <QObject>

class Frm1;
class QAction;
class QWidget;
struct StatoProgramma;

/// Copy, cut, paste and duplicate for the chosen elements, by keys in both windows of the editor.
/// While a dialog is open or the mouse has something in hand they wait; a text box keeps its keys.
class ComandiAppunti : public QObject
{
    Q_OBJECT
public:
    /// All outlive it.
    ComandiAppunti(StatoProgramma &stato, QWidget &editor, Frm1 &anteprima);

    /// The keys work in that window too.
    void AggiungeFinestra(QWidget &finestra);

private:
    using Comando = void (ComandiAppunti::*)();
    void Crea(const QString &nome, const QString &testo, const QKeySequence &tasti,
              Comando comando);
    void Abilita();
    bool Occupato() const;

    void Copia();
    void Taglia();
    void Duplica();
    void IncollaSpostato() { IncollaAppunti(false); }
    void IncollaSulPosto() { IncollaAppunti(true); }

    ElementiCopiati CopiatiDagliScelti() const;
    /// False when no chosen element can be copied; the strip says so.
    bool CopiaNegliAppunti();
    void IncollaAppunti(bool sulPosto);
    /// False when nothing was added.
    bool Aggiunge(const ElementiCopiati &elementi, const Incolla::Parole &parole, double scarto,
                  bool sulPosto, QStringList note);
    bool CiSta(const ElementiCopiati &elementi, const Incolla::Parole &parole);
    bool PuoCopiare(const QString &nome, const QString &nuovo);
    QWidget *Padre() const;

    StatoProgramma &stato_;
    QWidget &editor_;
    Frm1 &anteprima_;
    QList<QAction *> comandi_;
    QList<QAction *> deiScelti_; ///< those on the chosen elements
    QByteArray incollati_;       ///< what was pasted last, and
    int volte_ = 0;              ///< how many times, those in place left out
};
