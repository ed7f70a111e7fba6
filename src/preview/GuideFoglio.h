#pragma once

#include "preview/Controlli.h"

#include <QList>
#include <QObject>

#include <array>
#include <optional>

class GeometriaAnteprima;
class QGraphicsScene;
struct StatoProgramma;

/// The guides that the user has pulled out of the rulers, and the one in hand. They are no part of
/// the model: they stay as long as it is open.
///
/// A guide lies on a whole millimetre of paper: one down the sheet (Qt::Vertical) at an x, one
/// across it at a y. Points are mm of screen on the sheet.
class GuideFoglio : public QObject
{
    Q_OBJECT
public:
    /// All outlive it; the lines go into scena, which owns them.
    GuideFoglio(QGraphicsScene &scena, const GeometriaAnteprima &geometria,
                const StatoProgramma &stato);

    /// No element, handle or outline has it.
    static constexpr QColor Colore{160, 20, 140};

    struct Guida
    {
        Qt::Orientation verso;
        int posto;
    };

    /// Without the one in hand.
    const QList<int> &Poste(Qt::Orientation verso) const;
    /// Where they show, the one in hand too, mm of screen.
    QList<double> InVista(Qt::Orientation verso) const;
    /// The guide within a few pixels of the point.
    std::optional<Guida> Sotto(QPointF punto) const;
    /// The same for guides of one direction, by their mark on the ruler that they cross.
    std::optional<Guida> Sotto(Qt::Orientation verso, QPointF punto) const;
    /// The pointer for a bare place of the sheet: what a guide there, or the one in hand, can do.
    Qt::CursorShape PuntatoreIn(QPointF punto) const;

    /// Takes a new guide in hand, not on the sheet yet, or (posto) one that is there; punto is
    /// where the mouse was pressed.
    void Prende(Qt::Orientation verso, std::optional<int> posto, QPointF punto);
    /// The mouse has moved to punto; visto is the corner of the sheet in sight. Before that corner
    /// lies the guide's ruler: there, and off the end of the paper, there is no guide.
    void Porta(QPointF punto, QPointF visto);
    /// Takes the guide at that place of the paper in hand for the keys, or a new one; a place off
    /// the paper is its edge.
    void PrendeIn(Qt::Orientation verso, int posto);
    /// Leaves the guide that the keys have in hand, and takes the one that follows it along the
    /// sheet, the first after the last; false, and nothing done, when it is the only one.
    bool PrendeProssima();
    /// Moves the guide that the keys have in hand, mm of paper; the edge of the paper stops it.
    void Sposta(int millimetri);
    /// Takes the guide in hand away.
    void Toglie();
    /// The guide stays where it is, or is gone.
    void Lascia();
    /// The mouse, or the keyboard, is elsewhere now: a guide that the mouse had is as before
    /// Prende, one that the keys had stays where it is.
    void Interrompe();
    /// All is as before Prende. False when none is in hand.
    bool Rinuncia();
    bool InMano() const { return mano_.has_value(); }
    bool InManoAiTasti() const { return mano_ && mano_->aiTasti; }
    /// Of the one in hand; there must be one.
    Qt::Orientation VersoInMano() const { return mano_.value().verso; }

    void Svuota();
    void SegueZoom() { Mostra(); }

signals:
    void Cambiate();
    /// What is to be said of the one in hand.
    void Detto(const QString &testo);

private:
    struct Mano
    {
        Qt::Orientation verso;
        std::optional<int> prima;
        std::optional<int> ora;
        double scarto;        ///< from the guide to the pointer, mm of paper
        bool portata = false; ///< it has moved since
        bool aiTasti = false;
    };

    QList<int> &Elenco(Qt::Orientation verso);
    void Aggiunge(Qt::Orientation verso, int posto);
    void Mostra();
    LineaGuida &Linea(int k);

    QGraphicsScene &scena_;
    const GeometriaAnteprima &geometria_;
    const StatoProgramma &stato_;
    std::array<QList<int>, 2> poste_; ///< down the sheet, across it
    std::optional<Mano> mano_;
    QList<LineaGuida *> linee_; // those not needed at the moment are hidden
};
