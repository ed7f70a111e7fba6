#pragma once

#include "finestre/LavoroInDisparte.h"

#include <QString>

/// Does the work beside the window, which is painted meanwhile but takes no command; work of more
/// than a second shows what is going on and can be given up. False when the user has. Throws what
/// the work throws.
bool EsegueConAttesa(QWidget *padre, const QString &testo, const LavoroInDisparte::Lavoro &lavoro);
