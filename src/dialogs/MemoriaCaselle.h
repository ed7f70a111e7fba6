#pragma once

#include <QHash>
#include <QLineEdit>
#include <QLocale>
#include <QString>

#include <optional>

/// Puts a text into a box; one too long for it shows its beginning.
void MostraDallInizio(QLineEdit *casella, const QString &testo);

/// What the user is told of a box, by its name, whose text is no number.
QString NonNumero(const QString &nome, const QString &testo);

/// What the user is told of a box, by its name, whose number is beyond what can be stored.
QString NumeroTroppoGrande(const QString &nome, const QString &testo);

/// Selects the whole text of a box; one too long for it shows its beginning.
void SelezionaDallInizio(QLineEdit *casella);

/// From now on every text box below the window that the keyboard enters shows the beginning of its
/// text, all of it selected.
void MostraDallInizioEntrando(QWidget *finestra);

/// What the text boxes of a dialog were filled with. A box that still shows its filling gives back
/// the very value it came from: neither the digits that a number's text leaves out nor what a text
/// box cannot show is lost by opening a dialog and confirming it.
class MemoriaCaselle
{
public:
    void Mostra(QLineEdit *casella, const QString &testo);
    void Mostra(QLineEdit *casella, double valore, const QLocale &locale = QLocale());

    QString Testo(const QLineEdit *casella) const;
    /// Strict reading; nothing when the text is not a number.
    std::optional<double> Numerico(const QLineEdit *casella) const;
    /// Lenient reading; a text that is no number gives 0. Throws ErroreSistema 6.
    double Val(const QLineEdit *casella) const;

private:
    struct Riempimento
    {
        QString Mostrato;
        QString Testo;
        std::optional<double> Valore;
    };

    /// Null when the user has changed the box, or nothing was ever put into it.
    const Riempimento *Intatto(const QLineEdit *casella) const;

    QHash<const QLineEdit *, Riempimento> riempimenti_;
};
