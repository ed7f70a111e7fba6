#pragma once

#include <QPixmap>

// Icons of the commands for looking at the sheet, lato device-independent pixels wide and high.

QPixmap IconaAdatta(int lato);   ///< the whole sheet between the corners of the window
QPixmap IconaUnoAUno(int lato);  ///< 1:1
QPixmap IconaContorni(int lato); ///< sheets of paper, dashed
QPixmap IconaCalamita(int lato);
QPixmap IconaTogliGuide(int lato); ///< a cross over guides
