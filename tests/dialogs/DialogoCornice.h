#pragma once

#include "dialogs/DialogoDiProva.h"

#include <QLabel>

#include <functional>

/// The dialog of a frame.
struct DialogoCornice : DialogoDiProva
{
    DialogoCornice()
        : DialogoDiProva(Genere::Cornice, QStringLiteral("Cornice%1"))
        , dialogo(static_cast<FrmCornice &>(*DialogoDiProva::dialogo))
    {
        Mostra();
    }

    void CambiaSeconda(const std::function<void(Cornice &)> &cambia)
    {
        Cambia(stato, [&](Modello &modello) { cambia(modello.Cornici[2]); });
    }
    const Cornice &Seconda() const { return stato.Aperto().Cornici[2]; }
    bool BordoAbilitato() const
    {
        return Controlli::Trova<QLineEdit>(dialogo, "Bordo")->isEnabled();
    }
    QColor Colore() const
    {
        return Controlli::Trova<QLabel>(dialogo, "Label11")->palette().color(QPalette::WindowText);
    }

    FrmCornice &dialogo;
};
