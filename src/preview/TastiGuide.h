#pragma once

#include <Qt>

class GuideFoglio;
class QKeyEvent;
struct PartiAnteprima;
struct StatoProgramma;

/// Guides by keys, as far as the mouse goes with them: F8 takes one down the sheet in hand, with
/// Shift one across it; arrows move it, Enter leaves it where it is, Del takes it away, Escape puts
/// it back. Any other key leaves it and goes on to what it means, and so does the keyboard that
/// goes elsewhere.
class TastiGuide
{
public:
    /// All outlive it.
    TastiGuide(GuideFoglio &guide, const StatoProgramma &stato, PartiAnteprima &parti);

    /// False when the key means nothing here.
    bool Preme(const QKeyEvent &tasto);
    /// True for a key that is the guide's at the moment, whatever command has it otherwise.
    bool Trattiene(const QKeyEvent &tasto) const;
    /// The keys go elsewhere from now on.
    void Perde();

private:
    void Prende(Qt::Orientation verso);
    int DoveComincia(Qt::Orientation verso) const;
    bool PremeConGuida(const QKeyEvent &tasto);
    bool Muove(int tasto, int millimetri);

    GuideFoglio &guide_;
    const StatoProgramma &stato_;
    PartiAnteprima &parti_;
};
