#pragma once

class QLineEdit;
class QToolButton;

/// From now on the button offers the 16 colours with their numbers; the one that is chosen is typed
/// into the box in place of what it holds. The colour that the box names is marked.
void OffreColori(QToolButton *bottone, QLineEdit *casella);
