#pragma once

#include <QList>
#include <QObject>

class Documento;
class QKeyEvent;
class QToolButton;
class QWidget;

/// Undo and redo for the windows of the editor: its two buttons and the keys Ctrl+Z, Ctrl+Y and
/// Ctrl+Shift+Z in any of them. While a dialog is open, or the mouse has an element in hand, they
/// wait; a text box takes back its own letters first.
class ComandiStoria : public QObject
{
    Q_OBJECT
public:
    /// All outlive it; of finestre it takes the keys.
    ComandiStoria(Documento &documento, QToolButton *annulla, QToolButton *ripristina,
                  const QList<QWidget *> &finestre);

    /// Takes the keys of one more window, until that is taken away.
    void AggiungeFinestra(QWidget *finestra) { finestre_.append(finestra); }
    void TogliFinestra(QWidget *finestra) { finestre_.removeOne(finestra); }

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void Mostra();
    bool Preme(const QKeyEvent &tasto);

    Documento &documento_;
    QToolButton *annulla_;
    QToolButton *ripristina_;
    QList<QWidget *> finestre_;
};
