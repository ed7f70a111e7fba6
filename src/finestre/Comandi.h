#pragma once

#include <QAction>
#include <QIcon>
#include <QKeySequence>
#include <QList>

/// A command that a button and keys share. The hint says what it does, and by which keys; the keys
/// work in every window that it is added to, unless a text box there wants them. Owned by padre.
QAction *CreaComando(QObject *padre, const QString &nome, const QString &testo,
                     const QList<QKeySequence> &tasti, const QIcon &icona = {});

/// What the hint of a command says: the text, and its first keys in brackets.
QString TestoConTasti(const QString &testo, const QList<QKeySequence> &tasti);
