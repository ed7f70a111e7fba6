#pragma once

#include <QString>

/// The text as a hint window shows it letter for letter: plain whatever it looks like, carriage
/// returns as line ends, lines no longer than a screen has room for. Names come from files.
QString PerSuggerimento(const QString &testo);
