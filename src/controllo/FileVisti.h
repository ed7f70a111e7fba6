#pragma once

#include "controllo/Condizioni.h"

#include <QDateTime>
#include <QHash>

/// What is known of picture files: each is read when it is first asked for, and again only when
/// its time or length have changed since.
class FileVisti
{
public:
    /// Whether the file is a picture that can be printed. percorso as it stands on disk.
    StatoFile Immagine(const QString &percorso);

    /// Whether there is such a file at all; it is not opened.
    static StatoFile Esiste(const QString &percorso);

private:
    struct Visto
    {
        QDateTime modificato;
        qint64 byte = 0;
        StatoFile stato = StatoFile::Mancante;
    };
    QHash<QString, Visto> visti_;
};
