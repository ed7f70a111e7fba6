#pragma once

#include "base/Unita.h"

#include <QPointF>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A print server of its own with real queues, whose printed sheets arrive as PDF files in a
/// folder. Server, spool and sheets live in a temporary folder and end with the object; the
/// system's own print server is not touched. For POSIX systems with CUPS and its PDF printer; needs
/// root, like every print server that starts that printer.
class CodaDiStampa
{
public:
    /// Margins that no printer can reach, in points.
    struct Bordi
    {
        double Sinistra = 12;
        double Sopra = 14;
        double Destra = 12;
        double Sotto = 14;
    };
    /// From the sheet's corner to the first point that a queue with these margins reaches, mm.
    static constexpr QPointF AngoloStampabile{12 * Unita::MillimetriPerPunto,
                                              14 * Unita::MillimetriPerPunto};

    /// True when the server and the PDF printer are installed at all.
    static bool Installata();

    /// Starts the server; throws std::runtime_error with the reason when it does not come up.
    CodaDiStampa();
    ~CodaDiStampa();
    Q_DISABLE_COPY_MOVE(CodaDiStampa)

    /// What the environment variable CUPS_SERVER of a printing program must hold.
    QString Server() const;
    /// The folder in which the sheets arrive.
    QString CartellaFogli() const;

    /// Adds a queue for A4 sheets, with the margins on every size, or sets an existing one up anew.
    /// opzioni are those of lpadmin's -o ("PageSize=A5"). Throws std::runtime_error.
    void Aggiunge(const QString &nome, const Bordi &bordi, const QStringList &opzioni = {});
    void Predefinita(const QString &nome);
    void Toglie(const QString &nome);
    /// What a user sets for a queue or an instance of it ("queue/instance"), in the home folder
    /// that the environment names: arguments of lpoptions.
    void Imposta(const QStringList &argomenti);
    /// The queue takes no jobs any more.
    void Rifiuta(const QString &nome);
    /// Lets one user not print on the queue; "none" is nobody.
    void Vieta(const QString &nome, const QString &utente);
    /// Stops the server where it stands: it takes calls and answers none. Riprende ends that.
    void SiBlocca();
    void Riprende();
    /// Fills the disk on which the server keeps the jobs' documents; false where the system lets no
    /// such disk be made. SvuotaSpool ends that.
    bool RiempieSpool();
    void SvuotaSpool();

    /// Waits until no job is left, then names the sheets that have come since the last call, oldest
    /// first. Throws std::runtime_error when the queue does not come to rest.
    QStringList Fogli();
    /// The document of the last job as it was handed over, before any filter: a PDF. Throws
    /// std::runtime_error when there is none.
    QString Documento() const;

private:
    void Prepara();
    QByteArray Comando(const QString &programma, const QStringList &argomenti) const;
    QString In(const QString &nome) const { return dir_.filePath(nome); }

    QTemporaryDir dir_;
    QString istanza_;      ///< name of the PDF printer's own settings
    QString impostazioni_; ///< their file, which that printer only looks for in the system's folder
    QProcess server_;
    QStringList visti_;
};
