#pragma once

#include "dialogs/FrmElemento.h"

#include <QObject>
#include <QStringList>

/// Writes down what a property dialog does to the document and says to the editor, in its order:
/// "Cambiato 2 Totale" with what the list shows by then, "VoceScelta 2", "chiuso".
class RegistroSegnali : public QObject
{
public:
    RegistroSegnali(const StatoProgramma &stato, const FrmElemento &dialogo)
    {
        const Documento *documento = &stato.documento;
        connect(documento, &Documento::Cambiato, this, [this, documento](const Cambiamento &c) {
            if (c.origine == Cambiamento::Origine::Apertura) {
                return; // the test's own
            }
            const bool soloPosto = c.origine == Cambiamento::Origine::Posto;
            const QString che =
                soloPosto ? QStringLiteral("Ricollocato %1") : QStringLiteral("Cambiato %1 %2");
            for (const Chiave &chiave : c.Elementi()) {
                const QString voce = che.arg(chiave.indice);
                voci_.append(soloPosto ? voce : voce.arg(documento->Voce(chiave)));
            }
        });
        connect(&dialogo, &FrmElemento::VoceScelta, this,
                [this](Genere, int n) { voci_.append(QStringLiteral("VoceScelta %1").arg(n)); });
        connect(&dialogo, &QDialog::finished, this,
                [this] { voci_.append(QStringLiteral("chiuso")); });
    }

    const QStringList &Voci() const { return voci_; }

private:
    QStringList voci_;
};
