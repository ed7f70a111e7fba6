#pragma once

#include <QList>
#include <QString>

/// The order in which the elements of a kind lie on each other: by area, the smallest on top.
namespace PrimoPiano {

/// Sort key: the area as a whole number (halves to even) padded with "0" to 30 characters, "-" and
/// the index. The sign of a negative area stands behind the padding, so it comes before 0. An area
/// that is no number is 0, one that is too large for the 30 characters the largest that fits.
QString Chiave(double area, int indice);

/// Indices of the elements in the order in which each is to be brought to the front; aree[k] is the
/// area of element k + 1. Equal areas go by the text of the index: 2 before 10, which ends above
/// it.
QList<int> Ordine(const QList<double> &aree);

} // namespace PrimoPiano
