#pragma once

#include "preview/AvvisiFoglio.h"
#include "preview/Gesto.h"
#include "preview/MiraFoglio.h"
#include "preview/VistaFoglio.h"

#include <memory>

/// What the mouse does on the sheet: pointing selects, handles drag, edges resize, a right or
/// double click on an element or its handle asks for the properties. It finds what is pressed,
/// makes the gesture, and hands it the mouse until the release, wherever that goes. Only the left
/// button changes the model: pressed while another one is held it takes over, and its own release
/// ends its gesture whatever else is held.
class ManiSulFoglio : public AvvisiFoglio, public AscoltaMouse
{
    Q_OBJECT
public:
    ManiSulFoglio(StatoProgramma &stato, const GeometriaAnteprima &geometria,
                  ElementiFoglio &elementi, VistaFoglio &foglio, GuideFoglio &guide,
                  Aggancio &aggancio);
    ~ManiSulFoglio() override;

    /// One drag step of element i by the pointer offset (x, y) inside its handle, mm of screen.
    /// Nothing unless the left button is held and the handle is ready to move. A step of the
    /// document by itself.
    void Sposta(Genere genere, int i, Qt::MouseButtons bottoni, double x, double y);
    /// Pointer at (x, y) in frame or image i, which is selected: shows what an edge offers and,
    /// with the left button held, resizes. The first call with the button held begins the resize,
    /// one without it or a release ends it.
    void RidimensionaCornice(int i, Qt::MouseButtons bottoni, double x, double y);
    void RidimensionaImmagine(int i, Qt::MouseButtons bottoni, double x, double y);

    /// What a click on a frame or image does, and pointing at a field, wherever the mouse is.
    void Sceglie(Chiave chiave);

    void Preme(const EventoMouse &evento) override;
    void Muove(const EventoMouse &evento) override;
    void Rilascia(const EventoMouse &evento) override;
    void PremeDueVolte(const EventoMouse &evento) override;
    void Interrompe() override;
    /// A button is held that was pressed on the sheet.
    bool Occupate() const { return gesto_ != nullptr; }
    /// Gives up the drag or resize under way, from its press on: the element is as it was. False
    /// when there is none.
    bool Rinuncia();
    Spiegazione Suggerimento(QPointF punto) const override;

private:
    /// A press on what has been found: the right button asks for the properties, another one begins
    /// a gesture.
    void Prende(const Bersaglio &bersaglio, const EventoMouse &evento,
                std::optional<QPointF> secondaPressione = {});
    std::shared_ptr<Gesto> GestoSu(const Bersaglio &bersaglio, const EventoMouse &evento,
                                   std::optional<QPointF> secondaPressione) const;
    void ConcludeGesto(std::optional<QPointF> rilascio);
    void Ridimensiona(Chiave chiave, Qt::MouseButtons bottoni, QPointF punto);

    MiraFoglio mira_;
    ContestoGesto contesto_;
    /// The one under way; null: none. Shared with its own move, which may bring its end: a message
    /// box takes the mouse.
    std::shared_ptr<Gesto> gesto_;
    Bersaglio preso_;                        ///< what its button was pressed on
    Qt::MouseButton bottone_ = Qt::NoButton; ///< the button that holds it
    bool precedenteHaTrascinato_ = false;    ///< of the gesture before
};
