#pragma once

#include "documento/UltimeCorrezioni.h"

#include <QList>
#include <QObject>
#include <QString>

class Documento;

/// Keeps what is remembered of the printers true to the history of the open model: a correction
/// that is taken back is remembered no more, and is again when it is done again.
class CorrezioniInStoria : public QObject
{
    Q_OBJECT
public:
    struct Correzione
    {
        UltimeCorrezioni Ultime;
        QString Stampante;
        QString Modello; ///< its whole path
        CorrezioneGriglia::Spostamento Quanto;
        UltimeCorrezioni::Cambio Cambio; ///< what remembering it has changed
    };

    /// documento must outlive it; its model is the one that is corrected.
    explicit CorrezioniInStoria(Documento &documento);

    /// The document's last step is this correction.
    void Aggiunge(const Correzione &correzione);

signals:
    /// What is remembered is no longer what holds: it could not be written.
    void NonAggiornate(const QString &motivo);

private:
    struct Passo
    {
        int Numero;
        Correzione Che;
    };
    void Percorre(int numero, bool annullato);

    Documento &documento_;
    QList<Passo> passi_;
};
