#pragma once

#include <QSizeF>
#include <QString>

/// Width and height in mm of one line of text as a printer sets it: unhinted, linear metrics that
/// depend neither on a screen nor on its resolution. punti are typographic points; a size of zero
/// or less measures nothing.
QSizeF MisuraTesto(const QString &testo, const QString &font, double punti, bool grassetto);

/// What a sheet can show of the text in one line: control characters and separators of lines are
/// blanks, and what no sheet has room for, however small and narrow the letters, is left out.
QString SuUnaRiga(const QString &testo);
