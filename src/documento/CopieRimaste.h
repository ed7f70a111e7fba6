#pragma once

#include "base/ErroreSistema.h"
#include "model/Modello.h"

#include <QDateTime>
#include <QList>
#include <QString>

/// Safety copies that no opening will offer, because their model is gone, has another name or
/// cannot be read; and those that cannot be read themselves.
namespace CopieRimaste {

struct Rimasta
{
    QString file;      ///< the copy
    QString percorso;  ///< where the model was
    bool modelloCe;    ///< there is a file, which cannot be read as a model
    QDateTime scritta; ///< local time
    Modello modello;   ///< NomeFile as it was
};

struct NonLetta
{
    QString file;
    ErroreSistema errore;
};

struct Trovate
{
    QList<Rimasta> rimaste; ///< newest first
    QList<NonLetta> nonLette;
};

/// Leaves out what a living program is writing. Where there are no copies only the folder is looked
/// at.
Trovate Cerca(const QString &cartella);

} // namespace CopieRimaste
