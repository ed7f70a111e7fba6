#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>

struct Modello;

/// The files that the program writes beside its models: PDF sheets and pictures.
namespace FileDiUscita {

/// Throws ErroreSistema 75, whose description names the file, when one of the files must not be
/// written: two of them are one, or one is the model or bears a model's name, or is a picture or
/// the scan that the model shows. Files are compared by what they are on the disk, whatever they
/// are called there.
void Verifica(const QStringList &uscite, const QString &percorsoModello, const Modello &modello);

/// Gets the bytes from compone and puts them into the place of the file, whole or not at all.
/// compone gets the path of an empty file beside it, which only its user can read, for a library
/// that writes nowhere else; it is gone afterwards. The description of every ErroreSistema thrown
/// names the file.
void Scrive(const QString &percorso,
            const std::function<QByteArray(const QString &appoggio)> &compone);

} // namespace FileDiUscita
