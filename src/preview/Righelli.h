#pragma once

#include <QList>
#include <QString>
#include <QWidget>

/// What a ruler shows; positions and lengths in mm of screen.
struct SegniRighello
{
    struct Tacca
    {
        double posto; ///< along the ruler
        double da;    ///< across it
        double a;
    };
    struct Scritta
    {
        double posto; ///< of the tick it belongs to
        QString testo;
    };

    QList<Tacca> tacche;
    QList<Scritta> scritte;
};

/// Ticks and labels (centimetres of paper) of a ruler as long as the sheet was at its opening, for
/// the zoom of the moment.
SegniRighello CalcolaRighello(double lunghezza, double zoom);

/// One of the two rulers.
class RighelloFoglio : public QWidget
{
    Q_OBJECT
public:
    RighelloFoglio(Qt::Orientation verso, double pixelPerMillimetro, QWidget *padre);

    void Mostra(SegniRighello segni);
    const SegniRighello &Segni() const { return segni_; }

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    void DipingeTacche(QPainter &penna, double da, double a) const;
    void DipingeScritte(QPainter &penna, double da, double a) const;

    Qt::Orientation verso_;
    double pixelPerMillimetro_;
    SegniRighello segni_;
};
