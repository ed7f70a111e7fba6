#pragma once

#include <QGraphicsView>
#include <QImage>
#include <QPointF>
#include <QRectF>

#include <array>
#include <optional>

class Modello;
class QGraphicsPixmapItem;

/// The scan on the sheet, with the elements of the model over it: two points can be put on it, and
/// it can be moved. Its scene's unit is the mm of the sheet.
class VistaCalibrazione : public QGraphicsView
{
    Q_OBJECT
public:
    /// What is in hand: the arrow keys move it.
    enum class Mobile { Scansione, Primo, Secondo };
    using Punti = std::array<std::optional<QPointF>, 2>; ///< as parts of the scan's width, height

    explicit VistaCalibrazione(QWidget *padre = nullptr);

    /// Once. immagine: as fine as it is to be seen; pixel: those of the file, by which keys move
    /// points.
    void Prepara(const QImage &immagine, const QSize &pixel, const Modello &modello);
    void MostraScansione(const QRectF &posto); ///< mm of the sheet
    QRectF Posto() const { return posto_; }
    const Punti &PuntiMessi() const { return punti_; }
    /// While it is so a click puts the next point.
    void AccettaPunti(bool accetta);
    Mobile InMano() const { return mobile_; }
    /// A point that has not been put yet is put in the middle of what is in sight.
    void PrendeInMano(Mobile mobile);
    /// All of sheet and scan in sight.
    void Adatta();
    void Ingrandisce(double fattore);

signals:
    void PuntiCambiati();            ///< not before a drag ends
    void Trascinata(QPointF scarto); ///< the scan is to move by so many mm
    void PresaInMano(VistaCalibrazione::Mobile mobile);

protected:
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void mouseDoubleClickEvent(QMouseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void wheelEvent(QWheelEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;
    void drawForeground(QPainter *penna, const QRectF &rettangolo) override;

private:
    void AggiungeElementi(const Modello &modello);
    QPointF SullaScansione(QPointF foglio) const; ///< as parts of it, kept within it
    QPointF SulFoglio(QPointF parte) const;
    std::optional<std::size_t> PuntoSotto(QPoint pixel) const;
    void Mette(std::size_t punto, QPointF parte);
    void Segnala(Mobile mobile);
    void Muove(QPointF passi, bool lungo);

    QGraphicsPixmapItem *scansione_ = nullptr;
    QSize pixel_;
    QRectF posto_;
    Punti punti_;
    Mobile mobile_ = Mobile::Scansione;
    bool accetta_ = false;
    bool adattata_ = true; ///< the user has not chosen a scale of his own

    struct Pressione
    {
        QPoint Inizio;
        QPointF Ultimo;                   ///< mm of the sheet
        std::optional<std::size_t> Punto; ///< pressed upon
        bool Mossa = false;
    };
    std::optional<Pressione> pressione_;
};
