#pragma once

#include <QDirIterator>
#include <QFile>
#include <QString>
#include <QStringList>

/// The text of a file; empty when it cannot be read.
inline QString Leggi(const QString &percorso)
{
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Paths of the C++ files of a folder and of those below it.
inline QStringList Sorgenti(const QString &cartella)
{
    QStringList trovati;
    QDirIterator giro(cartella, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (giro.hasNext()) {
        trovati.append(giro.next());
    }
    return trovati;
}
