#include "editor/ComandoSalva.h"

#include "documento/Documento.h"
#include "finestre/Comandi.h"
#include "finestre/Finestre.h"

#include <QLabel>

ComandoSalva::ComandoSalva(const Documento &documento, QLabel &segno)
    : documento_(documento)
    , segno_(segno)
    , comando_(CreaComando(this, QStringLiteral("SalvaModello"), QStringLiteral("Salva modello"),
                           {QKeySequence::Save}))
{
    QSizePolicy misura = segno_.sizePolicy();
    misura.setRetainSizeWhenHidden(true);
    segno_.setSizePolicy(misura);
    segno_.setVisible(documento_.Variato());
    connect(&documento_, &Documento::VariatoCambiato, this,
            [this] { segno_.setVisible(documento_.Variato()); });
    connect(comando_, &QAction::triggered, this, [this] {
        if (!documento_.ModificaInCorso()) {
            const TastiPrestati tasti;
            emit Richiesto();
        }
    });
}

void ComandoSalva::AggiungeFinestra(QWidget &finestra) const
{
    finestra.addAction(comando_);
}
