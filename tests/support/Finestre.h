#pragma once

#include "support/Controlli.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QStringList>
#include <QTest>
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

/// Makes a window that shows the active one; false when it does not become that. A real screen may
/// yet activate another that was shown before it: then it is asked again.
inline bool RendeAttiva(QWidget &finestra)
{
    constexpr int Volte = 5;
    constexpr int Attesa = 1000; // ms
    bool attiva = finestra.isActiveWindow();
    for (int i = 0; i < Volte && !attiva; ++i) {
        finestra.activateWindow();
        attiva = QTest::qWaitForWindowActive(&finestra, Attesa);
    }
    return attiva;
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
