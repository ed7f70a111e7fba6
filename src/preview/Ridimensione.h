#pragma once

#include "preview/Attrazione.h"
#include "preview/PassoDiGesto.h"
#include "preview/PuntamentoFoglio.h"

#include <QSizeF>

/// Resizing a frame or an image by an edge that was gripped at the press. Where it ends on the
/// element it is a click besides, as any press on it; beside it, and not moved, a click on what
/// lies there.
class Ridimensione : public PuntamentoFoglio
{
public:
    /// presa: the edges that it moves, at least one. pressione: of the left button.
    Ridimensione(const ContestoGesto &contesto, Chiave chiave, Presa presa,
                 const EventoMouse &pressione);

    void Muove(const EventoMouse &evento) override;
    void Conclude(std::optional<QPointF> rilascio) override;
    bool Rinuncia() override;

protected:
    bool EUnClick() const override { return !avviata_; }

private:
    void RidimensionaFino(QPointF dentro);
    void ApplicaMisura(QSizeF misura);
    void MisuraDiCornice();
    QSizeF Carta() const;
    void ImpostaElastico(bool elastico);

    Presa presa_;
    EventoMouse pressione_;
    QPointF partenza_;     // of the pointer, from the element's corner, mm of screen
    QSizeF misura_;        // of the control at the press, mm of screen
    QSizeF cartaPrima_;    // of the element at the press, mm of the sheet
    QPointF scarto_;       // from the pointer to the gripped edges
    bool avviata_ = false; // the pointer has moved since
    Attrazione attrazione_;
    PassoDiGesto passo_;
};
