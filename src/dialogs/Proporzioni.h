#pragma once

#include <QObject>
#include <QSizeF>

class MemoriaCaselle;
class QCheckBox;
class QLineEdit;

/// Keeps the proportions of a picture while one of its two sizes is typed: the other box follows,
/// as long as the check box is ticked and the picture is known.
class Proporzioni : public QObject
{
    Q_OBJECT
public:
    struct Caselle
    {
        QLineEdit *Larghezza;
        QLineEdit *Altezza;
    };

    /// All of them must outlive it.
    Proporzioni(const QCheckBox *spunta, const Caselle &caselle, MemoriaCaselle &memoria);

    /// The picture's own size; empty for one that cannot be read, whose boxes follow nothing.
    void ImpostaNaturale(const QSizeF &naturale) { naturale_ = naturale; }

private:
    void Segue(const QLineEdit *scritta, QLineEdit *altra, double rapporto);

    const QCheckBox *spunta_;
    Caselle caselle_;
    MemoriaCaselle &memoria_;
    QSizeF naturale_;
};
