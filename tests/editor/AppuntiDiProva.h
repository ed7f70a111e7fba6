#pragma once

#include "StoriaDiProva.h"
#include "documento/Appunti.h"
#include "model/FileModello.h"
#include "support/FileDiProva.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>

/// What the strip below the sheet says.
inline QString Striscia(const EditoreDiProva &prova)
{
    return Trova<QLabel>(*prova.Editor->Anteprima(), "Text1")->text();
}

/// A press of the keys in the preview.
inline void Tasti(const EditoreDiProva &prova, Qt::Key tasto,
                  Qt::KeyboardModifiers modi = Qt::ControlModifier)
{
    StoriaDiProva::Tasto(*prova.Editor->Anteprima(), tasto, modi);
}

inline void Sceglie(EditoreDiProva &prova, const QList<Chiave> &chiavi)
{
    prova.Archivio.Stato().selezione.ImpostaScelti(chiavi);
}

inline const QList<Chiave> &Scelti(EditoreDiProva &prova)
{
    return prova.Archivio.Stato().selezione.Scelti();
}

inline QStringList NomiDi(const EditoreDiProva &prova, const QList<Chiave> &chiavi)
{
    QStringList nomi;
    for (const Chiave &chiave : chiavi) {
        nomi.append(prova.Archivio.Aperto().Di(chiave).Nome);
    }
    return nomi;
}

inline QPointF PostoDi(const EditoreDiProva &prova, Chiave chiave)
{
    const Elemento &elemento = prova.Archivio.Aperto().Di(chiave);
    return {elemento.X, elemento.Y};
}

/// Puts bytes into the clipboard under a type, as any program may.
inline void MetteNegliAppunti(const QString &tipo, const QByteArray &byte)
{
    auto *contenuto = new QMimeData;
    contenuto->setData(tipo, byte);
    QGuiApplication::clipboard()->setMimeData(contenuto);
}
