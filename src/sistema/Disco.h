#pragma once

#include "base/ErroreSistema.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <system_error>

/// Whole files, read and replaced at one go. Every failure is an ErroreSistema with the number of
/// its real cause.
namespace Disco {

/// The bytes of a regular file. Throws 53 when the file is not there, 76 when its folder is not,
/// 75 when it cannot be opened or is no file, 57 when reading fails, and 7 ("File troppo grande")
/// when it holds more than massimo bytes (nothing is kept then).
QByteArray Legge(const QString &percorso, qint64 massimo);

/// The first bytes of a regular file, at most massimo of them. Throws as Legge, but not 7.
QByteArray LeggeInizio(const QString &percorso, qint64 massimo);

/// The path, and what each symbolic link on the way leads to; the last is no link, and need not
/// exist: what Sostituisce writes. Throws 75 for more links than the system would follow.
QStringList DietroICollegamenti(const QString &percorso);

/// Sees to it that the new bytes are safe on the medium elsewhere; throws when it cannot.
using PrimaDiRiscrivere = std::function<void()>;

/// Puts byte into the place of the file: whoever opens it finds the old bytes or the new ones,
/// never a part. Follows symbolic links and keeps the file's permissions, and its owner, group and
/// attributes as far as the user may. A file without a right to write for anybody is refused (75),
/// to the administrator too.
///
/// With prima nothing of these is ever lost: where a new file cannot have them all, or the old one
/// has further names, or the folder takes no new file, prima is called and the old file rewritten
/// in its place. Only then may the end of the program leave a part; after a failure the old bytes
/// are put back. Throws FileIncompleto where that fails too, and what prima throws.
///
/// After a failure (61 disk or quota full, 70 write-protected or busy, 75
/// no right or no file, 76 folder gone, 57 anything else) the old file stands whole and the
/// temporary one is gone. One failure comes later: when the folder cannot be forced onto the medium
/// the new file stands already, and only a power cut could bring the old one back. What a killed
/// program left behind in the same folder is removed by the first call that comes ten minutes
/// later.
void Sostituisce(const QString &percorso, const QByteArray &byte,
                 const PrimaDiRiscrivere &prima = {});

/// A file was being rewritten in its place and is now neither the old one nor the new.
class FileIncompleto : public ErroreSistema
{
public:
    using ErroreSistema::ErroreSistema;
};

/// Sostituisce for what nobody but the user shall read, whatever the folder lets others do.
void SostituisceInPrivato(const QString &percorso, const QByteArray &byte);

/// An empty file beside another, for its user alone and with a name that no other file has, for a
/// library that writes into files only; removed with the object. What a killed program leaves is
/// swept as that of Sostituisce.
class Appoggio
{
public:
    /// Throws ErroreSistema as Sostituisce does for percorso, which need not exist.
    explicit Appoggio(const QString &percorso);
    ~Appoggio();
    Appoggio(const Appoggio &) = delete;
    Appoggio &operator=(const Appoggio &) = delete;

    const QString &Percorso() const { return percorso_; }

private:
    QString percorso_;
};

/// Makes a folder that is the user's alone, and those above it as the system makes them. One that
/// exists stays as it is. Throws ErroreSistema: 75 when there is none then, and what Sostituisce
/// throws when a new one's name cannot be forced onto the medium.
void CreaCartellaPrivata(const QString &cartella);

/// The number of a failed operation on a file: 53, 57, 61, 70 or 75.
int NumeroErrore(const std::error_code &codice);

} // namespace Disco
