#pragma once

#include <QPixmap>

/// Rows of a list, lato device-independent pixels wide and high.
QPixmap IconaElenco(int lato);
