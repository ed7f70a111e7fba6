#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/// The files of safety copies: a head of lines that says whose copy it is, then the model.
namespace FileCopia {

inline constexpr QLatin1String Estensione(".recupero");
inline constexpr QLatin1String EstensioneLucchetto(".lock");

/// The checksum of a model file that is not there or cannot be read: no file ever has it.
inline constexpr auto Assente = "assente";

/// What is said of a copy that is not whole.
inline constexpr auto Danneggiata = "la copia è danneggiata";

struct Copia
{
    QString percorso;    ///< full path of the model file, without links as far as that can be told
    QByteArray impronta; ///< checksum of the model file that the work began from
    /// Checksum of the bytes that were about to be written over the model file in its place; empty
    /// when none were.
    QByteArray riscrittura;
    QByteArray corpo; ///< the model
};

QByteArray Somma(const QByteArray &byte);

QByteArray Compone(const Copia &copia);

/// Nothing when the copy is not whole. Throws ErroreSistema as Disco::Legge does.
std::optional<Copia> Legge(const QString &file);

/// Percorso, impronta and riscrittura alone, without a look at the rest; nothing when the head is
/// not whole. Throws ErroreSistema as Disco::Legge does.
std::optional<Copia> LeggeTesta(const QString &file);

/// Full paths of the copies in the folder, newest first; none where there is no such folder.
QStringList Elenca(const QString &cartella);

/// True when a living program is writing the copy.
bool InUso(const QString &file);

/// False when the copy is still there.
bool Elimina(const QString &file);

} // namespace FileCopia
