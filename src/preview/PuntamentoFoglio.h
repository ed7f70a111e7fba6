#pragma once

#include "preview/Gesto.h"
#include "preview/MiraFoglio.h"

/// Pointing: a field is selected, a frame or image goes behind the others and shows what its edges
/// offer, over the bare sheet no field stays lit. With a button held it goes on so with what was
/// pressed; the release on a frame or image restacks the kind, and is a click when it was the left
/// button's.
class PuntamentoFoglio : public Gesto
{
public:
    /// bottone: the one that is pressed; none while the pointer only passes over.
    PuntamentoFoglio(const ContestoGesto &contesto, const Bersaglio &bersaglio,
                     Qt::MouseButton bottone = Qt::NoButton);

    void Muove(const EventoMouse &evento) override;
    void Conclude(std::optional<QPointF> rilascio) override;
    bool Rinuncia() override { return false; }

    /// A click on the frame or image: it is selected and its page shown.
    void Fa_Click();

protected:
    const ContestoGesto &Contesto() const { return contesto_; }
    /// What is pointed at; its number is taken at the press, whatever comes under the mouse later.
    Chiave Puntato() const { return bersaglio_.chiave; }
    /// The pointer is over the frame or image, whatever it does there.
    void Sorvola();
    /// The sheet shows the pointer of what is pointed at.
    void AggiornaPuntatore();

private:
    void P1_MouseMove(const EventoMouse &evento);
    void CampoPuntato();
    void ElementoSorvolato(QPointF punto);

    ContestoGesto contesto_;
    Bersaglio bersaglio_;
    Qt::MouseButton bottone_;
};
