#pragma once

#include <QObject>
#include <QWidget>

#include <functional>
#include <type_traits>
#include <utility>

/// Reports the exception being handled in a message box ("errore 9 ..."); call it in a catch.
void SegnalaErrore(QWidget *padre);

/// Runs one user action; whatever it throws becomes a message box and ends there, so nothing thrown
/// ever crosses Qt's event loop. False when the action failed.
template <typename Azione>
bool Guardia(QWidget *padre, Azione &&azione)
{
    try {
        std::forward<Azione>(azione)();
        return true;
    } catch (...) {
        SegnalaErrore(padre);
        return false;
    }
}

/// Connects a signal to a member function of a window, or to a function object that lives with it,
/// run inside the guard. It takes either the signal's arguments or none.
template <typename Mittente, typename... Argomenti, typename Classe, typename Ricevente,
          typename Slot>
QMetaObject::Connection Collega(const Mittente *mittente, void (Classe::*segnale)(Argomenti...),
                                Ricevente *ricevente, Slot slot)
{
    return QObject::connect(
        mittente, segnale, ricevente, [ricevente, slot](Argomenti... argomenti) {
            Guardia(ricevente, [&] {
                if constexpr (std::is_invocable_v<Slot, Ricevente *, Argomenti...>) {
                    std::invoke(slot, ricevente, argomenti...);
                } else if constexpr (std::is_invocable_v<Slot, Argomenti...>) {
                    slot(argomenti...);
                } else if constexpr (std::is_invocable_v<Slot, Ricevente *>) {
                    std::invoke(slot, ricevente);
                } else {
                    slot();
                }
            });
        });
}
