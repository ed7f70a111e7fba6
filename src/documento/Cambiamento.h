#pragma once

#include "model/Modello.h"

#include <QList>

#include <array>
#include <bitset>

/// What an edit has touched; the views draw that again and nothing else.
class Cambiamento
{
public:
    enum class Origine {
        Comando, ///< a command or a dialog
        Gesto,   ///< the mouse, in the middle of a gesture: only places and sizes
        Posto,   ///< a dialog that is still open: places, sizes and the files of pictures
        Storia,  ///< undo or redo: boxes are filled again too
        Apertura ///< another model: everything
    };

    Origine origine = Origine::Comando;
    bool Tipo = false;
    bool Righe = false;
    bool Sfondo = false;

    void Aggiunge(Chiave chiave) { elementi_.at(Posto(chiave.genere)).set(Slot(chiave)); }
    bool Contiene(Chiave chiave) const
    {
        return elementi_.at(Posto(chiave.genere)).test(Slot(chiave));
    }
    /// True when an element of the kind is among those touched.
    bool Contiene(Genere genere) const { return elementi_.at(Posto(genere)).any(); }
    bool Vuoto() const;
    /// The elements touched, each once, in table order. Some may be gone: slots above the count,
    /// when an addition has been undone.
    QList<Chiave> Elementi() const;

private:
    using Insieme = std::bitset<Tabella<Campo>::UltimoSlot + 1>;

    static std::size_t Slot(Chiave chiave) { return static_cast<std::size_t>(chiave.indice); }

    std::array<Insieme, Generi.size()> elementi_;
};
