#pragma once

#include "dialogs/FrmElemento.h"

#include <QObject>
#include <QStringList>

#include <functional>

/// Writes down the signals of a property dialog in their order, "Applicato 2", and what a look at
/// the program tells at that moment.
class RegistroSegnali : public QObject
{
public:
    explicit RegistroSegnali(const FrmElemento &dialogo, std::function<QString()> sguardo = {})
        : sguardo_(std::move(sguardo))
    {
        connect(&dialogo, &FrmElemento::Applicato, this,
                [this](Genere, int n) { Annota(QStringLiteral("Applicato %1").arg(n)); });
        connect(&dialogo, &FrmElemento::Ricollocato, this,
                [this](Genere, int n) { Annota(QStringLiteral("Ricollocato %1").arg(n)); });
        connect(&dialogo, &FrmElemento::VoceRinominata, this,
                [this](Genere, int n, const QString &nome) {
                    Annota(QStringLiteral("VoceRinominata %1 %2").arg(n).arg(nome));
                });
        connect(&dialogo, &FrmElemento::Eliminato, this,
                [this](Genere, int n) { Annota(QStringLiteral("Eliminato %1").arg(n)); });
        connect(&dialogo, &QDialog::finished, this, [this] { Annota(QStringLiteral("chiuso")); });
    }

    const QStringList &Voci() const { return voci_; }

private:
    void Annota(const QString &voce) { voci_.append(sguardo_ ? voce + u' ' + sguardo_() : voce); }

    std::function<QString()> sguardo_;
    QStringList voci_;
};
