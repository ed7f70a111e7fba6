#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>
#include <QStringList>

/// True for the system's names of a kind of font ("Sans Serif"), which are no fonts.
bool FontGenerico(const QString &famiglia);

/// True for a family in which texts are set as asked: the system has it, or sets it with one of the
/// same widths. Every other one is Arial on the screen and on paper.
bool FontDisponibile(const QString &famiglia);

/// The well-known families that the system does not have but sets with one of its own, made to the
/// same widths: they are as good as installed.
QStringList FontSostituitiAllaPari();

/// The font of a text of the model, on the screen as on paper: unhinted, pixel high. A family
/// without a name, or that the system neither has nor sets to the same widths, is Arial.
QFont CarattereDiTesto(const QString &famiglia, bool grassetto, int pixel);

/// The points in which a text of the model is set, on the screen as on paper: a size of zero or
/// less, or that is no number, is 8; at most 1638.
double PuntiDiTesto(double punti);

/// Width and height in mm of one line of text as a printer sets it: unhinted, linear metrics that
/// depend neither on a screen nor on its resolution. Font and size follow CarattereDiTesto and
/// PuntiDiTesto.
QSizeF MisuraTesto(const QString &testo, const QString &font, double punti, bool grassetto);

/// The characters of the text, each once, for which its font as CarattereDiTesto finds it has no
/// shape of its own: the system takes them from another font, or leaves a box.
QString CaratteriSenzaFigura(const QString &testo, const QString &font, bool grassetto);

/// What a sheet can show of the text in one line: control characters and separators of lines are
/// blanks, and what no sheet has room for, however small and narrow the letters, is left out.
QString SuUnaRiga(const QString &testo);
