#pragma once

#include "dialogs/FrmElemento.h"

#include <QList>
#include <QObject>

/// What the editor that has opened a property dialog meets of it: the elements that it has to show
/// again, and the entry of its list that it has to go to.
class Chiamante : public QObject
{
public:
    Chiamante(const StatoProgramma &stato, const FrmElemento &dialogo)
    {
        const Documento &documento = stato.documento;
        connect(&documento, &Documento::Cambiato, this, [this](const Cambiamento &c) {
            if (c.origine == Cambiamento::Origine::Apertura) {
                return; // the test's own
            }
            QList<int> &toccati =
                c.origine == Cambiamento::Origine::Posto ? ricollocati_ : cambiati_;
            for (const Chiave &chiave : c.Elementi()) {
                toccati.append(chiave.indice);
            }
        });
        connect(&dialogo, &FrmElemento::VoceScelta, this,
                [this, &documento, &dialogo](Genere genere, int n) {
                    scelta_ = n;
                    voce_ = documento.Voce({genere, n});
                    inOrdine_ = cambiati_.contains(n) && dialogo.isVisible();
                });
    }

    /// Elements that a finished command has changed, in the order told.
    const QList<int> &Cambiati() const { return cambiati_; }
    /// Elements that have only moved, or taken another file, while the dialog stays open.
    const QList<int> &Ricollocati() const { return ricollocati_; }
    /// The element whose entry the list has to go to; 0 for none.
    int Scelta() const { return scelta_; }
    /// What that entry said by then.
    const QString &Voce() const { return voce_; }
    /// Whether the element had been told of before its entry, and the entry before the dialog
    /// closed.
    bool InOrdine() const { return inOrdine_; }
    /// Whether nothing has been heard but that element n has moved.
    bool SoloRicollocato(int n) const
    {
        return ricollocati_ == QList<int>{n} && cambiati_.isEmpty() && scelta_ == 0;
    }
    /// Whether nothing has been heard of the dialog.
    bool Ignaro() const { return cambiati_.isEmpty() && ricollocati_.isEmpty() && scelta_ == 0; }

private:
    QList<int> cambiati_;
    QList<int> ricollocati_;
    int scelta_ = 0;
    QString voce_;
    bool inOrdine_ = false;
};
