#pragma once

#include <QPixmap>

/// A sheet under a lens: what would be printed, seen. lato device-independent pixels wide and high.
QPixmap IconaVediStampa(int lato);

/// A sheet that goes into a file.
QPixmap IconaEsporta(int lato);
