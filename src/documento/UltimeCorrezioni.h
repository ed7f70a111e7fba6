#pragma once

#include "documento/CorrezioneGriglia.h"

#include <QJsonObject>
#include <QString>

#include <optional>

/// The last shift that was given for each printer, in a small file of the user's own: the same
/// printer is likely to be off by as much with the next model. Nothing depends on the file; it can
/// be deleted at any time, and one that is damaged holds nothing.
class UltimeCorrezioni
{
public:
    /// cartella need not exist; empty, nothing is ever remembered.
    explicit UltimeCorrezioni(QString cartella)
        : cartella_(std::move(cartella))
    {
    }

    /// The shift to propose for a model, by its whole path: nothing for one that has had it.
    std::optional<CorrezioneGriglia::Spostamento> Proposta(const QString &stampante,
                                                           const QString &modello) const;
    /// What is remembered of a printer, before and after.
    struct Cambio
    {
        QJsonObject Prima;
        QJsonObject Dopo;
    };

    /// The model has been shifted for the printer. Throws ErroreSistema when that cannot be
    /// written.
    Cambio Ricorda(const QString &stampante, const QString &modello,
                   const CorrezioneGriglia::Spostamento &spostamento) const;
    /// Puts back what was remembered before; not where something else is by now. Throws
    /// ErroreSistema.
    void Ritira(const QString &stampante, const Cambio &cambio) const;
    /// Nothing is proposed for the printer any more. Throws ErroreSistema.
    void Dimentica(const QString &stampante) const;

private:
    QString Percorso() const;
    void Scrive(const QJsonObject &tutte) const;

    QString cartella_;
};
