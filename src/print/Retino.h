#pragma once

#include <QPrinter>

/// Prints one sheet with a grid and rulers in millimetres of the printable area. Throws
/// ErroreSistema 482 when the printer refuses.
void StampaRetino(QPrinter &stampante);
