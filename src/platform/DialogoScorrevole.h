#pragma once

class QDialog;

/// Gives a dialog with a layout the size of its form, or of what its screen has room for. A form
/// that cannot be made that small scrolls instead of losing its last controls; the control that
/// gets the keyboard is brought into sight, and the one that has it keeps it. Once for each dialog,
/// before it is shown.
void AdattaAlloSchermo(QDialog &dialogo);
