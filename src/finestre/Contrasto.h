#pragma once

#include <QColor>

/// How far two colours stand apart for the eye, 1 to 21, as the guidelines for accessible contents
/// reckon it: a text wants 4.5 at least, an outline 3.
double Contrasto(const QColor &a, const QColor &b);
