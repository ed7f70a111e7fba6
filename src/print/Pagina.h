#pragma once

#include "print/Avanzamento.h"
#include "print/Destinazione.h"
#include "print/FigureInMemoria.h"
#include "print/Tracciati.h"

#include <QPainter>
#include <QPointF>
#include <QRectF>

/// One printed page whose unit is the millimetre, from the corner of the printable area, x to the
/// right and y downwards. It prints at true size whatever the printer's resolution and paper.
/// Texts, bars and lines reach the printer in Fine(): pictures, which AND with them, lie below.
/// Coordinates beyond the page, infinite ones included, are allowed and print what falls on it.
class Pagina
{
public:
    static constexpr double LineaSottile = 0.1; ///< mm; a pen of no width is invisible at 1200 dpi

    /// Starts the document; the destination must outlive the page. Throws the destination's
    /// ErroreSistema when nothing can be printed there.
    explicit Pagina(Destinazione &destinazione);
    /// Gives the document up unless Fine() was called.
    ~Pagina();
    Q_DISABLE_COPY_MOVE(Pagina)

    /// Is told of every step that may take long: each picture, and each part of one that is
    /// painted. What it throws leaves the page unfinished.
    void Segue(const Avanzamento &avanza) { avanza_ = avanza; }

    double Larghezza() const; ///< printable width, mm
    double Altezza() const;   ///< printable height, mm

    QPointF Posizione() const { return posizione_; } ///< current position, mm
    void Posizione(double x, double y) { posizione_ = {x, y}; }

    /// The font and the size follow CarattereDiTesto and PuntiDiTesto; until the first call they
    /// are those of no name and of size 0.
    void Font(const QString &famiglia, int punti, bool grassetto = false);
    QRgb Colore() const { return colore_; } ///< of texts and lines, black at first
    void Colore(QRgb colore) { colore_ = colore | 0xFF000000; }

    /// A line of text whose top is at the current position, which then goes to the start (x = 0) of
    /// the next line.
    void Stampa(const QString &testo);
    /// A thin line; the current position goes to its end. mm.
    void Linea(double x1, double y1, double x2, double y2);
    /// A filled rectangle, mm; negative sizes extend to the left and upwards.
    void Barra(double x, double y, double larghezza, double altezza, QRgb colore);
    /// FiguraAnd will be asked for this: a file that is printed in several sizes is then decoded
    /// once for all of them. Reads nothing.
    void PrevedeFigura(const QString &percorso, const QSizeF &millimetri);
    /// The picture file stretched into the rectangle (mm, both sizes positive) and ANDed with the
    /// page; what is transparent in it leaves the page as it is. Throws ErroreSistema 53 or 481.
    void FiguraAnd(const QString &percorso, const QRectF &millimetri);

    /// Sends the page. Throws the destination's ErroreSistema when it is not taken.
    void Fine();

private:
    double InPixel(double millimetri) const { return millimetri * pixelPerMillimetro_; }
    void MisuraFont();
    void Dipinge();
    void Avanza() const;
    QSize PixelPer(const QSizeF &millimetri) const;
    void DipingeFigura(const QRectF &posto, const FigureInMemoria::Figura &figura);
    void DipingeImmagine(const QRectF &posto, const QImage &immagine, bool senzaPerdita);

    Destinazione &destinazione_;
    QPagedPaintDevice &dispositivo_;
    int risoluzione_ = 0; ///< dots per inch
    QPainter pittore_;
    QRectF area_; ///< printable area, printer pixels
    double pixelPerMillimetro_;
    QPointF posizione_;
    QString famiglia_;
    int punti_ = 0;
    bool grassetto_ = false;
    bool misurato_ = false; ///< the lines below say what the font above comes to
    QFont font_;
    double ascendente_ = 0; ///< of font_, mm
    double interlinea_ = 0; ///< of font_, mm
    QRgb colore_ = 0xFF000000;
    Tracciati::Foglio foglio_;
    FigureInMemoria figure_;
    Avanzamento avanza_;
    int figurePreviste_ = 0;
    int figureFatte_ = 0;
    bool finita_ = false;
};
