#pragma once

#include "preview/Aggancio.h"
#include "preview/Gesto.h"
#include "preview/Ridimensionamento.h"

#include <QSizeF>

/// Snapping during one gesture. What attracts is gathered at the press; while snapping is off or
/// suspended every member gives back what it is given.
class Attrazione
{
public:
    /// chiave: what the gesture moves; when it is chosen, the whole chosen set moves.
    Attrazione(const ContestoGesto &contesto, Chiave chiave);
    ~Attrazione();
    Q_DISABLE_COPY_MOVE(Attrazione)

    void Sospende(bool sospesa) { sospesa_ = sospesa; }

    /// Where the corner goes, mm of screen. voluto: the element where the pointer wants it;
    /// insieme: all that moves with it then, which is not to leave the sheet; proposto: its corner
    /// where it goes by itself. A row field is attracted across only.
    QPointF Sposta(const QRectF &voluto, const QRectF &insieme, QPointF proposto);
    /// The size of the element at angolo whose gripped edges the pointer wants at bordo, measured
    /// from that corner, mm of screen. proposta: the size that it takes by itself.
    QSizeF Ridimensiona(QPointF angolo, QPointF bordo, Presa presa, QSizeF proposta);
    /// The same place or size in mm of paper, without what the way over the screen does to whole
    /// millimetres.
    QPointF Esatto(QPointF carta) const;
    QSizeF Esatta(QSizeF carta) const;

    void NascondeLinee();

private:
    bool InFunzione() const;
    /// The line that attracts an edge wanted at bordo, and the size that brings it there from
    /// inizio without passing limite; all mm of paper.
    std::optional<double> Allunga(const Calamita &calamita, double bordo, double inizio,
                                  double limite, std::optional<int> &misura) const;
    double Limite(double foglio, double carta) const;

    ContestoGesto contesto_;
    Chiave chiave_;
    std::optional<Aggancio::Calamite> calamite_; // none: snapping was off at the press
    bool sospesa_ = false;
    std::optional<int> x_; // what has been taken last: of the corner, or the size
    std::optional<int> y_;
};
