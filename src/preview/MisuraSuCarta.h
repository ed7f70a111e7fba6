#pragma once

#include "model/Modello.h"

#include <QSizeF>

/// Size of an element on paper, mm: of a field that of its test text as the printer sets it, of a
/// frame or image that of its record.
QSizeF MisuraSuCarta(const Modello &modello, Chiave chiave);
