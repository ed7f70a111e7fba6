#pragma once

#include "controllo/ControlloDelModello.h"

#include <QObject>

#include <memory>

class ComandiStoria;
class ElencoRilievi;
class Frm1;
class QAction;
class QToolButton;
struct StatoProgramma;

/// The check in the editor: its counter, F7, and the list of the findings, made when it is first
/// wanted. It checks after each step, once the event that made it is over; not in the middle of a
/// gesture or a dialog, and not before the windows have been seen.
class ComandoControlli : public QObject
{
    Q_OBJECT
public:
    /// All must outlive it; contatore is a button of the editor's window.
    ComandoControlli(StatoProgramma &stato, QToolButton &contatore, Frm1 &anteprima,
                     ComandiStoria &storia);
    ~ComandoControlli() override;

    /// The windows are on the screen, and the printer has answered or not: what has waited for that
    /// begins.
    void ImpostaFoglio(const std::optional<FoglioStampante> &foglio);

signals:
    /// The property dialog is to open.
    void RichiestaProprieta(Genere genere, int i);
    /// The editor's page of the row area or of the scan is to show.
    void RichiestaPagina(Rilievo::Luogo luogo);
    /// A check is wanted, as soon as there is none under way of something else.
    void DaControllare();

private:
    void Collegamenti();
    /// Opens the list, brings it to the front, or closes the one that has the keyboard.
    void Esegue();
    void Crea();
    /// The model may have changed.
    void Richiede();
    /// The files and fonts of the system may have changed.
    void Rivede();
    void Controlla();
    void MostraConto();

    StatoProgramma &stato_;
    QToolButton &contatore_;
    Frm1 &anteprima_;
    ComandiStoria &storia_;
    QAction *comando_;
    std::unique_ptr<ElencoRilievi> elenco_;
    ControlloDelModello controllo_;
    QList<Rilievo> rilievi_;
    bool iniziato_ = false;  ///< the windows have been seen, or the list has been wanted
    bool richiesto_ = false; ///< since the last check
    bool inCoda_ = false;    ///< DaControllare is on its way
};
