#pragma once

#include "model/Modello.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>

/// The safety copies of one model file, kept in a folder of the user's own: what a modified model
/// looked like at the end of the last edit, should the program or the machine die before it is
/// saved. A copy belongs to one model file by its full path, and carries a checksum of that file as
/// it was opened and one of itself, so a torn or foreign copy is never offered.
class CopiaRecupero
{
public:
    /// cartella is made when the first copy is written. percorsoModello is the model's file,
    /// spelled as on disk.
    CopiaRecupero(QString cartella, const QString &percorsoModello);

    /// A copy found at opening.
    struct Trovata
    {
        QString file;      ///< the copy itself
        QDateTime scritta; ///< local time
        bool fileCambiato; ///< the model file can be read and is not the one the copy came from
        Modello modello;   ///< NomeFile empty
    };

    /// The bytes of the model file as they were read or written just now, nothing when there is no
    /// file that can be read: the copies found and written from here on are measured by them. The
    /// bytes in the program, not those on the disk, for another program may have changed the file
    /// in the meantime.
    void Parte(const std::optional<QByteArray> &byte);

    /// The whole copies of this model, newest first. Copies that cannot be read are left alone.
    QList<Trovata> Cerca() const;

    /// The user has been asked about this copy; only from then on a save may remove it.
    void SegnaOfferta(const Trovata &trovata);
    /// The user goes on from this copy: it goes as soon as this opening's own holds its work.
    void Riprende(const Trovata &trovata);

    /// True when the model file is no longer what it was at Parte; false when it is gone, for then
    /// there is nothing of anybody's to overwrite. Throws ErroreSistema (57, 75) when that cannot
    /// be told.
    bool FileCambiato() const;

    /// Replaces this opening's copy. Throws ErroreSistema when it cannot be written; the copy
    /// before stands whole then.
    void Scrive(const Modello &modello);

    /// Removes this opening's copy; the copies of earlier ones stay.
    void EliminaPropria();
    /// Removes this opening's copy and those that have been offered: the model has been saved.
    void EliminaOfferte();

private:
    QStringList FileDelModello() const;
    void CreaCartella() const;

    QString cartella_;
    QString percorsoModello_;
    QString radice_;      ///< start of the names of this model's copies
    QByteArray impronta_; ///< of the model file at Parte
    QStringList offerte_; ///< files of the copies the user has been asked about
    QString ripresa_;     ///< file of the copy that the user goes on from
    QString propria_;     ///< empty until the first copy of this opening
};
