#pragma once

#include <QObject>
#include <QValidator>

class QPlainTextEdit;

/// Why a model file cannot hold the name of a file (it lacks one of its characters) and what to do,
/// for the user; empty when it can.
QString RifiutoDelNome(const QString &nome);

/// Keeps a line's text within what one line of a model file can hold, dropping the other characters
/// of a paste instead of refusing all of it. A CR, which alone would end the line in the file,
/// becomes a blank, together with an LF right after it; any other LF stays, as the file keeps it.
class ValidatoreAnsi : public QValidator
{
    Q_OBJECT
public:
    using QValidator::QValidator;
    State validate(QString &testo, int &cursore) const override;
};

/// Refuses a typed character that a model file cannot hold, before it replaces a selection or takes
/// its place in the undo history.
class FiltroTasti : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    bool eventFilter(QObject *oggetto, QEvent *evento) override;
};

/// Deletes the characters that a model file cannot hold from a box of several lines.
void ToglieNonAnsi(QPlainTextEdit *casella);
