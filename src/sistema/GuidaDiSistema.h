#pragma once

#include <QString>

/// Shows a help file of the system's own format at the numbered topic; false where the system has
/// no such files or cannot show this one.
bool MostraArgomento(const QString &fileGuida, int argomento);
