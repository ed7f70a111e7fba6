#pragma once

#include <QColor>
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
    /// Marks for the guides that cross the ruler, at places in mm of screen.
    void ImpostaSegni(const QList<double> &guide, const QColor &colore);
    Qt::Orientation Verso() const { return verso_; }
    const SegniRighello &Segni() const { return segni_; }

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    void DipingeTacche(QPainter &penna, double da, double a) const;
    void DipingeScritte(QPainter &penna, double da, double a) const;
    void DipingeGuide(QPainter &penna) const;

    Qt::Orientation verso_;
    double pixelPerMillimetro_;
    SegniRighello segni_;
    QList<double> guide_;
    QColor coloreGuide_;
};
