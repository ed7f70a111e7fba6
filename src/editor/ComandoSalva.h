#pragma once

#include <QObject>

class Documento;
class QAction;
class QLabel;
class QWidget;

/// The key of the editor's button Salva, and the mark that there is something to save.
class ComandoSalva : public QObject
{
    Q_OBJECT
public:
    /// segno shows while the document is modified, and keeps its room otherwise. Both outlive it.
    ComandoSalva(const Documento &documento, QLabel &segno);

    /// The key works there too.
    void AggiungeFinestra(QWidget &finestra) const;

signals:
    /// Not in the middle of a gesture.
    void Richiesto();

private:
    const Documento &documento_;
    QLabel &segno_;
    QAction *comando_;
};
