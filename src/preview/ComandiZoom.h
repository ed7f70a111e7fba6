#pragma once

#include <QAction>
#include <QObject>
#include <QPoint>
#include <QPointF>

#include <optional>

class Frm1;
class QWheelEvent;
struct PartiAnteprima;
struct StatoProgramma;

/// The commands for the zoom: the whole sheet, 1:1, and the wheel with Ctrl, which keeps the point
/// under the pointer where it is as far as the scroll bars reach. All write the zoom box.
class ComandiZoom : public QObject
{
    Q_OBJECT
public:
    /// All outlive it.
    ComandiZoom(Frm1 &finestra, PartiAnteprima &parti, const StatoProgramma &stato);

    QAction *Adatta() const { return adatta_; }
    QAction *UnoAUno() const { return unoAUno_; }
    /// A turn of the wheel with Ctrl held, anywhere on the window: 0.1 for each notch.
    void Gira(const QWheelEvent &evento);
    /// The least zoom of one decimal at which the whole sheet of paper fits into vista (mm of
    /// screen), or the largest there is.
    static double ZoomCheAdatta(const QSizeF &vista);

private:
    /// The point of the paper under the pointer when the wheel began to turn. Scrolling goes by
    /// whole millimetres: taken anew at every notch it would wander off.
    struct Ancora
    {
        QPoint puntatore; ///< in the window
        QPoint scorrimento;
        double zoom;
        QPointF carta; ///< mm of paper
    };

    void ApplicaAdatta();
    void ZoomAttorno(double zoom, QPoint puntatore);
    QPoint Scorrimento() const;

    Frm1 &finestra_;
    PartiAnteprima &parti_;
    const StatoProgramma &stato_;
    QAction *adatta_;
    QAction *unoAUno_;
    int giro_ = 0; ///< turned and not zoomed yet; a touch pad turns by less than a notch
    std::optional<Ancora> ancora_;
};
