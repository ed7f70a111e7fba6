#pragma once

#include "documento/Disposizione.h"

#include <QObject>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

class Frm1;
class QAction;
class QWidget;
struct StatoProgramma;

/// The commands on the chosen elements: choosing all, aligning, distributing, making equal and
/// deleting them. Each has its keys in the preview; those that arrange have a button on its strip.
class ComandiScelta : public QObject
{
    Q_OBJECT
public:
    /// All outlive it. genere: the kind whose page the editor shows; none on another page.
    ComandiScelta(StatoProgramma &stato, Frm1 &anteprima,
                  std::function<std::optional<Genere>()> genere, QWidget *finestra);

    /// Del works in that window too; what it asks is asked over it.
    void AggiungeFinestra(QWidget &finestra);
    /// The elements of the page's kind; all of every kind when those are chosen already, and on a
    /// page of none.
    void SceglieTutto();
    /// Asks, and deletes the chosen elements.
    void Elimina();

private:
    void CreaDisposizioni();
    void Aggiorna();
    void Esegue(Disponi comando);

    StatoProgramma &stato_;
    Frm1 &anteprima_;
    std::function<std::optional<Genere>()> genere_;
    QWidget *finestra_;
    Disposizione disposizione_;
    QAction *elimina_;
    std::vector<std::pair<Disponi, QAction *>> disposizioni_;
};
