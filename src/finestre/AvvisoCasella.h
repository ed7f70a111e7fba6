#pragma once

#include <QObject>
#include <QPalette>
#include <QString>

#include <functional>

class QLineEdit;

/// A mark on a text box, and what is to be said of what stands in it: by its ground, by a hint
/// below it as soon as there is something to say and whenever keyboard or pointer come to it, and
/// to screen readers. The text itself is left as it was typed.
class AvvisoCasella : public QObject
{
    Q_OBJECT
public:
    /// casella owns it.
    explicit AvvisoCasella(QLineEdit *casella);

    /// Empty: no mark.
    void Mostra(const QString &testo);

signals:
    void Entrato(); ///< the keyboard has come to the marked box

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void MostraFumetto(const QString &testo) const;
    void MostraEntrando() const;

    QLineEdit *casella_;
    QPalette tavolozza_; ///< without the mark
    QString testo_;
};

/// From now on the box says what avviso has to say of its text.
void Sorveglia(QLineEdit *casella, const std::function<QString(const QString &)> &avviso);
