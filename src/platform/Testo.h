#pragma once

#include <QSizeF>
#include <QString>

/// Width and height in mm of one line of text as a printer sets it: unhinted, linear metrics that
/// depend neither on a screen nor on its resolution. punti are typographic points; a size of zero
/// or less measures nothing.
QSizeF MisuraTesto(const QString &testo, const QString &font, double punti, bool grassetto);
