#pragma once

#include "Postazione.h"

#include <QList>
#include <QPair>
#include <QString>

/// What can be seen, one entry a thing, by its name.
using Ritratto = QList<QPair<QString, QString>>;

/// Everything that the windows show: lists, page, boxes, elements, handles, the order in which
/// elements lie upon each other. Sizes that a font decides are left out.
Ritratto DelleFinestre(const Postazione &posto);

/// What the windows must show alike whenever the same model is open, whatever was done to get
/// there: the elements that are there, numbered in their order, and the boxes of the model. Of the
/// places of fields and frames the whole millimetres count, which is what an opening leaves.
Ritratto DelModello(const Postazione &posto);

/// The entries of a property dialog.
Ritratto DelDialogo(const QWidget &dialogo);

/// What changed: "name: value" for new and changed entries, "name: -" for those that are gone.
QStringList Differenze(const Ritratto &prima, const Ritratto &dopo);

/// The lines of a model file that changed, with their numbers.
QStringList RigheCambiate(const QStringList &prima, const QStringList &dopo);

/// The text with every digit that stands in a digit place of the mask as "#", when it is a sample
/// that the mask can have given; as it is otherwise. Samples are drawn at random.
QString SenzaCifreACaso(const QString &testo, const QString &maschera);
/// The same for the field's mask, or the default one that it was drawn for.
QString SenzaCifreACaso(const QString &testo, const Campo &campo);
