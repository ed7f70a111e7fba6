#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

class QDialog;

/// Answers the modal boxes that an action opens, in order, with the real buttons, and keeps what
/// they said. A box that no answer waits for is closed and counted as unexpected; a test that looks
/// neither at Soddisfatto nor at Testi fails for it. Progress boxes go unanswered
/// but for a test that waits for one.
class Robot : public QObject
{
    Q_OBJECT
public:
    Robot();
    ~Robot() override;

    Robot &Ok();
    Robot &Si();
    Robot &No();
    /// Types testo into an input box and accepts it.
    Robot &Digita(const QString &testo);
    /// Cancels an input box, or closes a box with Escape.
    Robot &Annulla();
    /// Hands the next modal dialog of any class to azione, which must end it.
    Robot &Agisce(std::function<void(QDialog *)> azione);
    /// The same for a progress box; from now on they count as boxes.
    Robot &AgisceSuAttesa(std::function<void(QDialog *)> azione);

    /// Texts of the boxes seen so far (label text for an input box, object name for other dialogs).
    const QStringList &Testi() const
    {
        guardato_ = true;
        return testi_;
    }
    /// Titles of the boxes, in the same order.
    const QStringList &Titoli() const { return titoli_; }
    /// Text of each box's default button ("" when it has none); for an input box, its proposal.
    const QStringList &Predefiniti() const { return predefiniti_; }
    /// True when every answer was used and no box came unexpected.
    bool Soddisfatto() const
    {
        guardato_ = true;
        return risposte_.isEmpty() && inattesi_ == 0;
    }

private:
    void Guarda();
    void Annota(QDialog *dialogo);

    QTimer timer_;
    QList<std::function<void(QDialog *)>> risposte_;
    QStringList testi_;
    QStringList titoli_;
    QStringList predefiniti_;
    QList<const QObject *> visti_;
    int inattesi_ = 0;
    bool guardaAttese_ = false;
    mutable bool guardato_ = false;
};
