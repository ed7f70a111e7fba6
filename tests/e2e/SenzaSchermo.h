#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// The program where there is no display at all, and a folder of its own with a model of the sample
/// in it.
class SenzaSchermo
{
protected:
    struct Esito
    {
        int stato;
        QString uscita;
        QString errori;
    };

    /// For init: a new folder.
    void CopiaIlCampione();
    /// assegnazione ("NAME=value") sets one more variable.
    QProcessEnvironment Ambiente(const QString &assegnazione = {}) const;
    Esito Esegue(const QStringList &argomenti, const QString &assegnazione = {}) const;
    QString In(const QString &nome) const { return dir_->filePath(nome); }
    QString Modello() const { return In(QStringLiteral("Fattura_Rossi.Mod")); }

    std::unique_ptr<QTemporaryDir> dir_;
};
