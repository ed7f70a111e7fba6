#include "preview/MisuraSuCarta.h"

#include "grafica/Testo.h"

QSizeF MisuraSuCarta(const Modello &modello, Chiave chiave)
{
    return modello.Con(chiave.genere, [&](const auto &tabella) -> QSizeF {
        const auto &elemento = tabella[chiave.indice];
        if constexpr (requires { elemento.Larghezza; }) {
            return {elemento.Larghezza, elemento.Altezza};
        } else {
            return MisuraTesto(elemento.Testo, elemento.Font, PuntiDiTesto(elemento.Dimensione),
                               elemento.Grassetto != Falso);
        }
    });
}
