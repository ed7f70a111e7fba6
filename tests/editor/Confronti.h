#pragma once

#include "Sequenza.h"

#include <QImage>

/// What the document is and what the editor's lists say of it.
struct StatoVisto
{
    Modello modello;
    QByteArray byte; ///< what a save would write
    QStringList voci;

    static StatoVisto Di(const Postazione &posto);

    /// What tells this state from another; empty when they are the same to the bit.
    QString Differenza(const StatoVisto &altro) const;
};

/// The sheet without handles and pointer, each kind stacked anew. Turns the pages.
QImage Foglio(const Postazione &posto);

/// Lists, boxes and sheet are those of a fresh opening of what a save would write; an empty text
/// when they are. What no opening brings back is left out:
/// - deleted elements keep their item in the list, marked, and their number;
/// - elements lie upon each other as they were pointed at, until their kind is stacked anew;
/// - a handle stands on the element in hand, and the field under the pointer is lit;
/// - a dragged frame stands between whole millimetres until it is placed the next time, and an
///   image that was added shows its place before it has a picture, which alone gives it a name: of
///   such a sheet the elements are compared one by one, and not its picture.
QString ComeRiaperto(const Sequenza &sequenza);

/// Takes all back with the keys, down to the beginning, and does it all again: the first model
/// comes back and then the last, by the same states in between; an empty text when it is so.
QString AvantiEIndietro(Sequenza &sequenza);
