#pragma once

#include "documento/StatoProgramma.h"

#include <QTemporaryDir>

/// A model in a real archive folder of its own, removed with the object.
class ArchivioDiProva
{
public:
    explicit ArchivioDiProva(const QString &nomeFile = QStringLiteral("Prova.Mod"));

    /// Writes DaAprire() into its file; call it before the file is opened.
    void Scrive();
    /// The model as the file holds it now.
    Modello Riletto() const;
    QByteArray ByteDelFile() const;
    QString Percorso() const;
    /// Where the program keeps its safety copies while this object lives (XDG_STATE_HOME,
    /// LOCALAPPDATA).
    QString CartellaStato() const;

    /// Three kinds, n of each, spread over the sheet; images get the file name immagine<k>.bmp
    /// without a file behind it.
    void Riempie(int n);
    int AggiungeCampo(const QString &nome, double x, double y);
    int AggiungeCornice(const QString &nome, double x, double y, double larghezza, double altezza);
    int AggiungeImmagine(const QString &nome, double x, double y, double larghezza, double altezza);

    /// The model that is composed, for Scrive().
    Modello &DaAprire() { return modello_; }
    /// The model that a window has opened.
    const Modello &Aperto() const { return stato_.Aperto(); }
    StatoProgramma &Stato() { return stato_; }
    /// As another run of the program has it that opens the same model.
    StatoProgramma AltroStato() const;
    const StatoProgramma &Stato() const { return stato_; }

private:
    QTemporaryDir cartella_;
    Modello modello_;
    StatoProgramma stato_;
};
