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
    /// From now on shows what avviso has to say of the box's text.
    void Segue(std::function<QString(const QString &)> avviso);
    /// Looks at the text again, which somebody has set without the box telling.
    void Riguarda();

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
    std::function<QString(const QString &)> avviso_;
};

/// From now on the box says what avviso has to say of its text.
void Sorveglia(QLineEdit *casella, const std::function<QString(const QString &)> &avviso);
/// The text of a box has been set with its signals blocked: where it is watched, its mark follows.
void Riguarda(const QLineEdit *casella);
