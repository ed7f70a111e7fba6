#pragma once

#include "model/Modello.h"
#include "preview/TestoScalato.h"

#include <QDateTime>
#include <QGraphicsObject>
#include <QImage>

/// Something on the sheet with a place and a size in mm of screen, the scene's unit. The place is
/// kept as it was given, to the double; what Qt gets is brought within its limits.
class Controllo : public QGraphicsObject
{
    Q_OBJECT
public:
    explicit Controllo(const QString &nome);

    const QRectF &Posto() const { return posto_; }
    void Colloca(const QRectF &posto);
    void Muove(QPointF angolo) { Colloca(QRectF(angolo, posto_.size())); }

    Qt::CursorShape Puntatore() const { return puntatore_; }
    void ImpostaPuntatore(Qt::CursorShape puntatore) { puntatore_ = puntatore; }
    /// As toolTip, letter by letter; carriage returns included.
    void ImpostaSuggerimento(const QString &testo);

    QRectF boundingRect() const override { return ingombro_; }

protected:
    /// The control itself in its own coordinates.
    QRectF Locale() const { return {QPointF(0, 0), posto_.size()}; }
    /// What it paints, in its own coordinates; may reach out of the control.
    virtual QRectF Dipinto() const { return Locale(); }
    /// To be called when Dipinto gives another result.
    void AggiornaIngombro();

private:
    QRectF posto_;
    QRectF ingombro_;
    Qt::CursorShape puntatore_ = Qt::ArrowCursor;
};

/// The control of an element of the model.
class ControlloElemento : public Controllo
{
    Q_OBJECT
public:
    ControlloElemento(Genere genere, int indice);

    const Genere genere;
    const int indice;

    bool Bordo() const { return bordo_; }
    QColor ColoreBordo() const { return coloreBordo_; }
    /// A line one pixel thick along the inside of the control's edge.
    void ImpostaBordo(bool bordo, const QColor &colore);

private:
    bool bordo_ = false;
    QColor coloreBordo_ = Qt::black;
};

/// A control that shows a text: a field, or a frame with its caption.
class ControlloTesto : public ControlloElemento
{
    Q_OBJECT
public:
    ControlloTesto(Genere genere, int indice);

    /// punti: size on the screen. rientro: from the control's corner to the text's, mm of screen.
    void ImpostaTesto(const TestoScalato::Aspetto &aspetto, const QString &testo, double punti,
                      QPointF rientro);
    void ImpostaColore(const QColor &colore);
    const TestoScalato &Testo() const { return testo_; }
    double Punti() const { return punti_; }
    QColor Colore() const { return colore_; }
    QSizeF MisuraTesto() const { return testo_.Misura(punti_); }

    void paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *dove) override;

protected:
    QRectF Dipinto() const override;

private:
    TestoScalato testo_;
    double punti_ = 0;
    QPointF rientro_;
    QColor colore_ = Qt::black;
};

/// A picture box. The picture is decoded when it is first painted, once for each file and size.
class RiquadroImmagine : public ControlloElemento
{
    Q_OBJECT
public:
    explicit RiquadroImmagine(int indice);

    /// Takes the picture from the file. Another file's picture never stays; that of the same file
    /// does when it cannot be loaded for the moment. A file that has not changed since is not read
    /// again. An empty path: no picture.
    void Carica(const QString &percorso);
    /// While its size is being dragged, the picture is stretched instead of decoded again.
    void ImpostaElastico(bool elastico);
    const QImage &Figura() const { return figura_; }

    void paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *dove) override;

private:
    struct Origine
    {
        QString percorso;
        QDateTime modificato;
        qint64 byte = 0;

        bool operator==(const Origine &) const = default;
    };

    void Decodifica(QSize pixel);

    Origine origine_;
    Origine tentata_; // what the last attempt to decode, successful or not, was about
    QSize pixelTentati_;
    QImage figura_;
    bool elastico_ = false;
};

/// A simulated body row: a label that clips its text at the side, never in height.
class Riga : public Controllo
{
    Q_OBJECT
public:
    explicit Riga(int numero);

    void Imposta(const QRectF &posto, const TestoScalato::Aspetto &aspetto, const QString &testo,
                 double punti);

    void paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *dove) override;

private:
    TestoScalato testo_;
    double punti_ = 0;
};

/// The move handle of a kind.
class Maniglia : public Controllo
{
    Q_OBJECT
public:
    Maniglia(const QString &nome, const QColor &sfondo);

    QString Tag; ///< number of the element it belongs to
    QColor Sfondo() const { return sfondo_; }

    void paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *dove) override;

private:
    QColor sfondo_;
};

/// A guide line, across or down the sheet.
class LineaGuida : public Controllo
{
    Q_OBJECT
public:
    explicit LineaGuida(const QString &nome);

    void Mostra(QPointF da, QPointF a, const QColor &colore);

    void paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *dove) override;

private:
    QColor colore_;
};
