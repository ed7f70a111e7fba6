#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the user asked for on the command line.
struct Richieste
{
    QString dati;              ///< stands in for Vastrel's data folder
    QString modello;           ///< model file to print without windows
    QString pdf;               ///< PDF to print it into
    QString anteprima;         ///< PNG of the preview
    bool nomi = false;         ///< print field names instead of test texts
    QStringList daControllare; ///< models and folders to check
    QString daAprire;          ///< model file to open in the editor

    bool operator==(const Richieste &) const = default;

    bool Stampa() const { return !pdf.isEmpty() || !anteprima.isEmpty(); }
    bool SenzaFinestre() const { return Stampa() || !daControllare.isEmpty(); }
};

/// The result of reading the arguments: the requests, or the text to print and the exit status.
struct LetturaArgomenti
{
    std::optional<Richieste> richieste;
    QString testo;
    int stato = 0;
};

LetturaArgomenti LeggeArgomenti(const QStringList &argomenti);

/// Prints the model and the preview without opening a window. Returns the exit status: 0, or 1 when
/// anything was reported on standard error.
int StampaSenzaFinestre(const Richieste &richieste);
