#pragma once

#include "documento/Appunti.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

/// The files of the images that are to be added to a model. A file may be used by one image of a
/// model only; those of another archive are copied into the models folder of this one. What cannot
/// be added is taken out of the elements, with a note for the user.
///
/// Sceglie, Chiede, Copia, in this order; each may be the last. Only Copia writes.
class ImmaginiIncollate
{
public:
    /// May the file nome be copied under another name, nuovo? The folder has a file of that name
    /// with another content.
    using Domanda = std::function<bool(const QString &nome, const QString &nuovo)>;

    /// elementi and modello must outlive it. cartella: that of the open model, ending in a
    /// separator.
    ImmaginiIncollate(ElementiCopiati &elementi, const Modello &modello, const QString &cartella);

    /// Decides what needs nobody's answer. Throws ErroreSistema for a file that cannot be read.
    void Sceglie();
    /// Asks about the names that another file has.
    void Chiede(const Domanda &domanda);
    /// Copies the files. Throws ErroreSistema whose description names the file; none of them has
    /// been copied then.
    void Copia() const;

    const QStringList &Note() const { return note_; }

private:
    struct Copiata
    {
        Chiave chiave;
        QString fonte; ///< full path
    };

    void Sceglie(Chiave chiave);
    void Tralascia(Chiave chiave, const QString &perche);
    void Prende(Chiave chiave, const QString &nome);
    bool Preso(const QString &nome) const { return presi_.contains(nome.toCaseFolded()); }
    QString NomeLibero(const QString &nome, const QString &fonte) const;
    QString &Nome(Chiave chiave) { return elementi_.Elementi.Di(chiave).Nome; }

    ElementiCopiati &elementi_;
    QString cartella_;
    bool stessaCartella_;
    QSet<QString> presi_; ///< names of the files that the model uses or will, without case
    QList<Copiata> daChiedere_;
    QList<Copiata> daCopiare_;
    QStringList note_;
};
