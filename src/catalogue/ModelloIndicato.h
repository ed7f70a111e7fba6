#pragma once

#include <QString>
#include <QStringList>

/// The folder of an archive that holds its models.
inline constexpr QLatin1String CartellaIni("ini");

/// A model file that the user has named himself, instead of choosing it in the lists.
struct ModelloIndicato
{
    QString cartella; ///< absolute, native, ending in a separator
    QString nomeFile; ///< as spelled on disk, where it is there
    QString archivio; ///< the archive whose "ini" the folder is; empty for none

    QString Percorso() const { return cartella + nomeFile; }
    bool ConEstensione() const; ///< the one that catalogues look for, in any case
};

/// The file at the path, which may be relative, or missing. A symbolic link that stands in an
/// archive is a model of that archive; any other stands for the file that it leads to. archivi:
/// full paths.
ModelloIndicato TrovaModello(const QString &percorso, const QStringList &archivi);
