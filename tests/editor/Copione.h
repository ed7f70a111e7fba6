#pragma once

#include "Postazione.h"
#include "Ritratto.h"

#include <functional>
#include <memory>

class QMessageBox;

/// Says what a box on the screen asks: its text, its buttons, the default one; the name and the
/// title of any other dialog.
QString DescrizioneRiquadro(const QDialog &dialogo);

/// A property dialog in the middle of a script: what is done in it is written down with what the
/// dialog shows afterwards.
class DialogoInScena
{
public:
    DialogoInScena(QDialog &dialogo, std::function<void(const QString &)> scrive);

    QDialog &Finestra() { return dialogo_; }

    void Digita(const char *casella, const Parole &testo);
    void Sceglie(const char *combo, const Parole &testo);
    void Preme(const char *controllo);
    void DoppioClick(const char *casella);
    /// Clicks a name in the list of pictures.
    void SceglieFile(const Parole &nome);
    /// Closes it with the Escape key.
    void Chiude();

private:
    void Aperto() const; ///< fails the test when the dialog has closed
    void Nota(const QString &azione);

    QDialog &dialogo_;
    std::function<void(const QString &)> scrive_;
    Ritratto prima_;
};

/// A script: work on an editor step by step, and the transcript of what can be seen after each of
/// them. The transcript is compared with the record of its name; with PLAKERA_REGISTRA=1 in the
/// environment it becomes the record, and the test fails to say so.
///
/// A step's boxes are answered in the order in which the answers were given before or during it.
class Copione
{
public:
    explicit Copione(const Parole &nome);

    Postazione Posto;

    /// Opens the model, or reopens the file as it stands, and writes down all that is seen.
    void Apre(const Parole &passo = "apre");
    void Riapre(const Parole &passo = "riapre");
    /// As Apre, with the first view of a model too large to be read left out.
    void ApreSenzaElenco();

    void Passo(const Parole &nome, const std::function<void()> &azione);

    void Si();
    void No();
    void Ok();
    void DigitaRisposta(const Parole &testo);
    void Annulla();
    void Dialogo(std::function<void(DialogoInScena &)> azione);
    /// Any dialog that is neither a question nor a property dialog.
    void AltroDialogo(std::function<void(QDialog *)> azione);

    /// Compares with the record; the last thing that a test does.
    void Confronta();

private:
    void Risponde(const QString &detto, std::function<void(QDialog *)> azione);
    void ApreFile(const QString &passo, bool scrive, bool elenca);
    void ScriveVeduta(bool elenca = true);
    void Scrive(const QString &riga);
    QStringList RigheModello() const;
    QString Disco() const;
    QString Pulito(QString testo) const;

    QString nome_;
    QStringList verbale_;
    Ritratto veduta_;
    QStringList modello_;
    std::unique_ptr<Robot> robot_;
    int passi_ = 0;
    int chiusure_ = 0;
};
