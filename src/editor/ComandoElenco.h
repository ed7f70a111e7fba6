#pragma once

#include "model/Modello.h"

#include <QObject>

#include <memory>

class ComandiStoria;
class ElencoElementi;
class Frm1;
class QAction;
class QWidget;
struct StatoProgramma;

/// F4 and its button below the sheet: the list of the elements, made when it is first wanted. Its
/// keys work in the editor, in the preview and in the list.
class ComandoElenco : public QObject
{
    Q_OBJECT
public:
    /// All must outlive it.
    ComandoElenco(StatoProgramma &stato, QWidget &editore, Frm1 &anteprima, ComandiStoria &storia);
    ~ComandoElenco() override;

    void Chiude();

signals:
    /// The property dialog is to open.
    void RichiestaProprieta(Genere genere, int i);
    /// The list has been made: commands may give it their keys.
    void Creata(QWidget *finestra);

private:
    /// Opens the list, brings it to the front, or closes the one that has the keyboard.
    void Esegue();
    void Crea();

    StatoProgramma &stato_;
    Frm1 &anteprima_;
    ComandiStoria &storia_;
    QAction *comando_;
    std::unique_ptr<ElencoElementi> elenco_;
};
