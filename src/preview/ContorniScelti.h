#pragma once

#include "preview/Controlli.h"

#include <array>

class QGraphicsScene;
class Selezione;

/// The dashed outline of a chosen element; a little outside of it, so that its own border shows.
class ContornoScelto : public Controllo
{
    Q_OBJECT
public:
    explicit ContornoScelto(Chiave chiave);

    /// Thicker, as that of the last chosen element.
    void ImpostaSpesso(bool spesso);
    bool Spesso() const { return spesso_; }

    void paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *dove) override;

    /// At least 3 to 1 on white, on which it is drawn.
    static constexpr QColor Colore{0x7a, 0x1f, 0xa2};

protected:
    QRectF Dipinto() const override;

private:
    bool spesso_ = false;
};

/// The outlines of the chosen set, in front of all elements. Each is made when its element is
/// chosen for the first time.
class ContorniScelti
{
public:
    /// Both outlive it; the outlines go into scena, which owns them.
    ContorniScelti(QGraphicsScene &scena, const Selezione &selezione);

    /// Shows what is chosen now. dove tells where an element stands, mm of screen.
    void Mostra(const std::function<QRectF(Chiave)> &dove);
    /// The element stands there now.
    void Segue(Chiave chiave, const QRectF &posto);
    /// Null when it has never been chosen.
    ContornoScelto *Di(Chiave chiave) const;

private:
    ContornoScelto &Crea(Chiave chiave);

    QGraphicsScene &scena_;
    const Selezione &selezione_;
    std::array<Tabella<ContornoScelto *>, Generi.size()> contorni_{};
    QList<Chiave> mostrati_;
};
