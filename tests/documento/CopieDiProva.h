#pragma once

#include "documento/CopiaRecupero.h"
#include "model/FileModello.h"
#include "support/FileDiProva.h"
#include "support/ModelloDiProva.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <optional>

/// A model's file and the folder of its safety copies, new for each test function.
class CopieDiProva
{
protected:
    /// For init: the folder of the copies is not there yet.
    void NuovoModello()
    {
        dir_.emplace();
        FileModello::Salva(ModelloDiProva(2), Percorso(), QLocale::c());
    }

    QString Cartella() const { return dir_->filePath(QStringLiteral("stato/plakera")); }
    QString Percorso() const { return dir_->filePath(QStringLiteral("Prova.Mod")); }
    CopiaRecupero Aperta() const
    {
        CopiaRecupero copia(Cartella(), Percorso());
        copia.Parte(ByteDi(Percorso()));
        return copia;
    }
    /// Files of copies, whole or not; a lock that a killed program left is none.
    QStringList Copie() const
    {
        return NomiIn(Cartella()).filter(QRegularExpression(QStringLiteral("\\.recupero$")));
    }
    /// Left behind by a program that has ended.
    void Lascia(double x)
    {
        Modello modello = ModelloDiProva(2);
        modello.Campi[1].X = x;
        Aperta().Scrive(modello);
    }

    std::optional<QTemporaryDir> dir_;
};
