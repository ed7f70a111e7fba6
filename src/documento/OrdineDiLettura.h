#pragma once

#include "model/Modello.h"

#include <QList>

class Documento;

/// The elements that the sheet shows, as one reads it: from the top down, on one height from left
/// to right; what begins at one point stands in the order of kinds and numbers.
QList<Chiave> OrdineDiLettura(const Documento &documento);
