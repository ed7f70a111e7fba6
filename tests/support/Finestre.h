#pragma once

#include "support/Controlli.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QStringList>
#include <QWidget>

using Controlli::Trova;

/// Works a button wherever it is, on a hidden page too.
inline void Preme(QWidget &finestra, const char *nome)
{
    Trova<QAbstractButton>(finestra, nome)->click();
}

inline QStringList Voci(QWidget &finestra, const char *nome)
{
    const auto *combo = Trova<QComboBox>(finestra, nome);
    QStringList voci;
    for (int i = 0; i < combo->count(); ++i) {
        voci.append(combo->itemText(i));
    }
    return voci;
}

/// The element, handle or guide line of the preview with that object name; null when there is none.
inline QGraphicsObject *ElementoAnteprima(QWidget &anteprima, const QString &nome)
{
    const auto elementi = Trova<QGraphicsView>(anteprima, "P1")->scene()->items();
    for (QGraphicsItem *elemento : elementi) {
        QGraphicsObject *oggetto = elemento->toGraphicsObject();
        if (oggetto != nullptr && oggetto->objectName() == nome) {
            return oggetto;
        }
    }
    return nullptr;
}
