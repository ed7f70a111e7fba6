#pragma once

#include "model/Modello.h"
#include "preview/Frm1.h"

#include <QList>

#include <functional>

/// The simulated body rows of a model at a zoom: one spacing below yInizio and on, above yFine.
/// larghezzaCampo gives the width of a field's control in mm of screen. Without row fields, or with
/// a spacing that is not positive, there are none; rows that no part of the sheet could show
/// are left out, however large the area is.
QList<Frm1::RigaSimulata> RigheSimulate(const Modello &modello, double zoom,
                                        const std::function<double(int)> &larghezzaCampo);
