#pragma once

#include "preview/Controlli.h"
#include "preview/Gesto.h"

#include <QPixmap>

/// A picture that stands for several elements while they are dragged.
class FiguraCompagni : public Controllo
{
    Q_OBJECT
public:
    /// figura: as many pixels as the place has on the screen.
    FiguraCompagni(const QPixmap &figura, const QRectF &posto);

    void paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *dove) override;

private:
    QPixmap figura_;
};

/// The other chosen elements, which go along when one of them is dragged. While the mouse moves one
/// picture stands for all of them: moving each by itself would cost as many times more. Empty when
/// the element in hand is not chosen, or is the only one.
class Compagni
{
public:
    Compagni(const ContestoGesto &contesto, Chiave inMano);
    ~Compagni();
    Compagni(const Compagni &) = delete;
    Compagni &operator=(const Compagni &) = delete;

    bool Vuoti() const { return chiavi_.isEmpty(); }
    /// All of them and the one in hand as they stood at the press, mm of screen.
    const QRectF &Gruppo() const { return gruppo_; }
    /// How far the group may go of an offset, mm of screen, when the element in hand has gone
    /// fatto already: the sheet stops the group as a whole.
    QPointF FinoAlBordo(QPointF fatto, QPointF scarto) const;
    /// Shows them that far from where they stood, mm of screen.
    void Mostra(QPointF scarto);
    /// They stand that far from where they stood, mm of the sheet, and follow the rules of placing.
    void Conclude(Passo &passo, QPointF millimetri);
    /// They are seen again where they stand.
    void Ripristina();
    /// True when one of them, or the one in hand, stands at whole millimetres only.
    bool ConInteri() const;

private:
    void CreaFigura();
    QPixmap Dipinge(const QRectF &posto) const;
    void ImpostaVisti(bool visti);

    ContestoGesto contesto_;
    Chiave inMano_;
    QList<Chiave> chiavi_;
    QRectF gruppo_;
    std::unique_ptr<FiguraCompagni> figura_;
    QPointF angoloFigura_;
};
