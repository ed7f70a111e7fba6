#pragma once

#include "documento/Passo.h"
#include "model/Modello.h"

#include <memory>
#include <optional>

struct StatoProgramma;

/// The step of one gesture. The first change begins it: a press that changes nothing is none. From
/// the press on undo and redo wait, until it is concluded or given up.
class PassoDiGesto
{
public:
    /// verbo: what undo says that it does to the element.
    PassoDiGesto(StatoProgramma &stato, Chiave chiave, QLatin1String verbo);

    Passo &Iniziato();
    void Conclude();
    /// Gives up what was changed, if anything was.
    void Rinuncia();

private:
    StatoProgramma &stato_;
    Chiave chiave_;
    QLatin1String verbo_;
    std::unique_ptr<Passo> passo_;
    std::optional<StoriaSospesa> sospesa_;
};

/// The same length, where only the arithmetic of the way there and back tells them apart: a gesture
/// that comes back to where it began changes nothing.
double Riportato(double millimetri, double prima);
