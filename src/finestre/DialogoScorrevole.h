#pragma once

class QDialog;
class QScrollArea;
class QWidget;

/// Puts the controls of a panel with a layout into an area that scrolls where the panel is smaller
/// than they are; with room enough it looks as before. The control that gets the keyboard is
/// brought into sight, and the one that has it keeps it. Once for each panel, which owns the area.
QScrollArea *AvvolgeInUnArea(QWidget &pannello);

/// A window that cannot be made as small as its screen.
bool NonStaSulloSchermo(const QWidget &finestra);

/// Gives a dialog with a layout the size of its form, or of what its screen has room for. A form
/// that cannot be made that small scrolls instead of losing its last controls; the control that
/// gets the keyboard is brought into sight, and the one that has it keeps it. Once for each dialog,
/// before it is shown.
void AdattaAlloSchermo(QDialog &dialogo);
