#pragma once

#include <QKeySequence>
#include <QObject>
#include <QSet>
#include <QString>

class QWidget;

/// What the windows that open while it lives call their controls, and the keys they have: what the
/// manual is held against. It sees what QApplication shows, which must be there before it.
class Inventario : public QObject
{
public:
    Inventario();

    /// One a line, sorted: "nome" or "tasti", a tab, and the text or the keys as QKeySequence's
    /// portable text has them. Line ends within a text become blanks. Throws std::runtime_error.
    void Scrive(const QString &file) const;

    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void Legge(const QWidget &finestra);
    void LeggeNomi(const QWidget &controllo);
    void LeggeTasti(const QList<QKeySequence> &tasti);

    QSet<QString> nomi_;
    QSet<QString> tasti_;
};
