#pragma once

#include <QStringList>

class QWidget;

/// Puts the printer's font names into elenco, at most 2000; when there are more, says so and leaves
/// the rest out.
void RiempieElencoFont(QWidget *padre, const QStringList &font, QStringList &elenco);
