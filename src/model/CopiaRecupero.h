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
        QString file;      ///< the copy itself, for Elimina
        QDateTime scritta; ///< local time
        bool fileCambiato; ///< the model file is no longer the one that the copy came from
        Modello modello;   ///< NomeFile empty
    };

    /// The whole copies of this model, newest first. Copies that cannot be read are left alone.
    QList<Trovata> Cerca() const;

    /// Takes the checksum of the model file as it is now; the copies written from here on belong to
    /// it. A file that does not exist is told apart from every other.
    void Parte();

    /// True when the model file exists and is no longer what it was at Parte.
    bool FileCambiato() const;

    /// Replaces this opening's copy. Throws ErroreSistema when it cannot be written; the copy
    /// before stands whole then.
    void Scrive(const Modello &modello);

    /// Removes this opening's copy; the copies of earlier ones stay.
    void EliminaPropria();
    /// Removes every copy of this model: it has been saved.
    void EliminaTutte();

private:
    QStringList FileDelModello() const;
    QByteArray Impronta() const;

    QString cartella_;
    QString percorsoModello_;
    QString radice_; ///< start of the names of this model's copies
    QByteArray impronta_;
    QString propria_; ///< empty until the first copy of this opening
};
