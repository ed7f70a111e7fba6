#pragma once

#include "base/ErroreSistema.h"
#include "model/Modello.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class Lucchetto;

/// The safety copies of one model file, kept in a folder of the user's own: what a modified model
/// looked like at the end of the last edit, should the program or the machine die before it is
/// saved. A copy belongs to one model file, by whatever path that is reached; it carries that
/// file's path and checksum as it was opened, by which one that has moved with its archive is known
/// again, and a checksum of itself, so a torn or foreign copy is never offered.
class CopiaRecupero
{
public:
    /// cartella is made when the first copy is written; empty, none can be written (Scrive throws
    /// 76). percorsoModello is the model's file, spelled as on disk.
    CopiaRecupero(QString cartella, const QString &percorsoModello);
    ~CopiaRecupero();
    CopiaRecupero(CopiaRecupero &&) noexcept;
    CopiaRecupero &operator=(CopiaRecupero &&) noexcept;
    CopiaRecupero(const CopiaRecupero &) = delete;
    CopiaRecupero &operator=(const CopiaRecupero &) = delete;

    /// A copy found at opening.
    struct Trovata
    {
        QString file;        ///< the copy itself
        QDateTime scritta;   ///< local time
        bool fileCambiato;   ///< the model file can be read and is not the one the copy came from
        bool interrotta;     ///< nor is it another's: a save into its place was cut short
        bool inUso;          ///< a living program is still writing it
        QByteArray impronta; ///< checksum of the model file as it last was whole
        QByteArray riscrittura; ///< checksum of what the save that was cut short was writing
        Modello modello;        ///< NomeFile empty
    };

    /// The bytes of the model file as they were read or written just now, nothing when there is no
    /// file that can be read: the copies found and written from here on are measured by them. The
    /// bytes in the program, not those on the disk, for another program may have changed the file
    /// in the meantime.
    void Parte(const std::optional<QByteArray> &byte);

    /// A save that failed was writing these bytes: should they stand in the file all the same, they
    /// count as written, also when that can only be seen later.
    void Tentati(const QByteArray &byte);

    /// To be called before byte, the model's, is written over the model file in its place: from
    /// then on the work is safe in this opening's copy, which knows of that. Throws ErroreSistema
    /// when it cannot be written.
    void TieneIlLavoro(const Modello &modello, const QByteArray &byte);
    /// That has left the file with neither its old bytes nor the new ones: until Parte nobody else
    /// is taken to have changed it.
    void Incompleto();

    /// The whole copies of this model, newest first. avviso is told the path and the error of those
    /// that are damaged or that the system does not let be read; they are left alone.
    using Avviso = std::function<void(const QString &file, const ErroreSistema &errore)>;
    QList<Trovata> Cerca(const Avviso &avviso = {}) const;

    /// Removes the copy if it holds nothing that the model just read does not: the program died
    /// after a save and before the copy had gone. False when there is more in it.
    bool EliminaSuperata(const Trovata &trovata, const Modello &letto) const;

    /// The user has been asked about this copy; only from then on a save may remove it.
    void SegnaOfferta(const Trovata &trovata);
    /// The user goes on from this copy: it goes as soon as this opening's own holds its work. That
    /// of a save that was cut short tells that the model file is incomplete.
    void Riprende(const Trovata &trovata);

    /// True when the model file is no longer what it was at Parte; false when it is gone, for then
    /// there is nothing of anybody's to overwrite. Throws ErroreSistema (57, 75) when that cannot
    /// be told.
    bool FileCambiato() const;

    /// Replaces this opening's copy. Throws ErroreSistema when it cannot be written; the copy
    /// before stands whole then.
    void Scrive(const Modello &modello);

    /// The model is closed, and what has not been saved is given up: removes this opening's copy;
    /// the copies of earlier ones stay. While the model file is incomplete its copy stays too, for
    /// there it is all that is left, and the next opening offers it.
    void Chiude();
    /// Removes this opening's copy and those that have been offered: the model has been saved. What
    /// cannot be removed now is tried again the next time.
    void EliminaOfferte();

private:
    /// True for the copy of a file that had that path and checksum.
    bool DelModello(const QString &percorso, const QByteArray &impronta) const;
    void PulisceLucchetti() const;
    void ScegliePropria();
    void EliminaPropria();

    QString cartella_;
    QString percorsoModello_;
    QString radice_;          ///< start of the names of this model's copies
    QByteArray impronta_;     ///< of the model file at Parte
    QByteArray intera_;       ///< of the model file as it last was whole
    QByteArray riscrittura_;  ///< of what is written over it in its place; empty: nothing is
    bool incompleto_ = false; ///< the model file holds part of what was written over it
    bool ignoto_ = false;     ///< nor is it known what that is
    QByteArray tentata_;      ///< what the file holds should the failed save have come through
    QStringList offerte_;     ///< files of the copies the user has been asked about
    QString ripresa_;         ///< file of the copy that the user goes on from
    QString propria_;         ///< empty until the first copy of this opening
    /// Of propria_, as long as it may be written: no other program shall take it for a dead one's.
    std::unique_ptr<Lucchetto> lucchetto_;
};
