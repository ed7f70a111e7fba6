#pragma once

/// Gives combos their accessible names: Qt itself calls them by what is chosen in them, on some
/// systems. Before the first window is made; once is enough, more often does nothing.
void InstallaComboAccessibili();
