#pragma once

#include "preview/Controlli.h"

/// One dashed rectangle on the sheet.
class ContornoCarta : public Controllo
{
    Q_OBJECT
public:
    /// tratto, vuoto: lengths of a dash and of the gap after it, mm of screen.
    ContornoCarta(const QString &nome, const QColor &colore, double tratto, double vuoto);

    QColor Colore() const { return colore_; }

    void paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *dove) override;

private:
    QColor colore_;
    double tratto_;
    double vuoto_;
};
