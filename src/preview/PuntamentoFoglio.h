#pragma once

#include "preview/Gesto.h"
#include "preview/MiraFoglio.h"
#include "preview/VistaFoglio.h"

/// Pointing: a field is selected, a frame or image goes behind the others and shows what its edges
/// offer, over the bare sheet no field stays lit. With a button held it goes on so with what was
/// pressed; the release on a frame or image restacks the kind, and is a click when it was the left
/// button's. A click chooses what it meets: alone, or with Ctrl in and out of the set.
class PuntamentoFoglio : public Gesto
{
public:
    /// pressione: of the button that is held; none while the pointer only passes over.
    PuntamentoFoglio(const ContestoGesto &contesto, const Bersaglio &bersaglio,
                     const EventoMouse &pressione = {});

    void Muove(const EventoMouse &evento) override;
    void Conclude(std::optional<QPointF> rilascio) override;
    bool Rinuncia() override { return false; }

    /// A click on the frame or image: it is selected and its page shown.
    void Fa_Click();
    /// The same, or for a field that it is pointed at.
    void Sceglie();

protected:
    const ContestoGesto &Contesto() const { return contesto_; }
    /// What is pointed at; its number is taken at the press, whatever comes under the mouse later.
    Chiave Puntato() const { return bersaglio_.chiave; }
    /// False when the press has done something else than to point.
    virtual bool EUnClick() const { return true; }
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
    Qt::KeyboardModifiers tasti_;
    Qt::CursorShape sulVuoto_ = Qt::ArrowCursor; // the pointer of the bare sheet
};
