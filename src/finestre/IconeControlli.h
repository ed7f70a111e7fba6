#pragma once

#include <QPixmap>

/// A sheet with a tick, and a warning sign; lato device-independent pixels wide and high.
QPixmap IconaSenzaRilievi(int lato);
QPixmap IconaConRilievi(int lato);
