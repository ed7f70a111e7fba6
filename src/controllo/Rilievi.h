#pragma once

#include "controllo/Condizioni.h"
#include "controllo/Rilievo.h"

#include <QList>

/// Everything that there is to say about the model: its elements in table order, then the row area
/// and the scan. Absent elements, and fields that are not printed where only print matters, have
/// nothing to be said about.
QList<Rilievo> Rilievi(const Modello &modello, const Condizioni &condizioni);
