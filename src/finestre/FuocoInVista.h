#pragma once

class QWidget;

/// Every list and box of several lines below the window shows by its frame that the keyboard is in
/// it: styles show that only of other controls. Once for each window.
void MostraFuoco(QWidget *finestra);
