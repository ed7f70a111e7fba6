#pragma once

#include <QColor>
#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

/// One line of text that is as wide on the screen as on paper, at any size: it is set once at a big
/// reference size without hinting and then only scaled, so its measures are linear in the points.
class TestoScalato
{
public:
    struct Aspetto
    {
        QString famiglia;
        bool grassetto = false;
        bool barrato = false;

        bool operator==(const Aspetto &) const = default;
    };

    /// False when nothing changed. Line breaks and other control characters show as blanks, and a
    /// text longer than any sheet is cut.
    bool Imposta(const Aspetto &aspetto, const QString &testo);
    const Aspetto &Forma() const { return aspetto_; }
    const QString &Testo() const { return testo_; }

    /// Size in mm of screen at a size in points.
    QSizeF Misura(double punti) const;
    /// The line's top-left corner is at angolo (mm, the painter's unit); only what lies inside
    /// esposto is drawn.
    void Disegna(QPainter &penna, QPointF angolo, double punti, const QColor &colore,
                 const QRectF &esposto) const;

    /// A size in points that can be shown: at least 1, at most several times the sheet.
    static double PuntiMostrabili(double punti);

private:
    /// A stretch of glyphs short enough to be worth leaving out when it is not exposed.
    struct Pezzo
    {
        QGlyphRun glifi;
        double da; ///< reference pixels
        double a;
    };

    void Compone();
    void AggiungePezzi(const QGlyphRun &sequenza);

    Aspetto aspetto_;
    QString testo_;
    QList<Pezzo> pezzi_;
    double larghezza_ = 0; // reference pixels from here on
    double altezza_ = 0;
    double salita_ = 0;
    double yBarra_ = 0;
    bool composto_ = false;
};
