#include "preview/Ridimensionamento.h"

#include <algorithm>

namespace {

bool SulBordo(double misura, double posto, double zona, double fuori)
{
    return posto >= misura - std::min(zona, misura / 3) && posto <= misura + fuori;
}

double MisuraTirata(double posto, double misura, double bordo, double minimo, double foglio)
{
    const double massimo = foglio - posto;
    return massimo < minimo ? misura : std::clamp(bordo, minimo, std::max(massimo, misura));
}

} // namespace

Presa Ridimensionamento::PresaIn(const QSizeF &misura, QPointF punto, double zona, double fuori)
{
    if (punto.x() < 0 || punto.y() < 0 || punto.x() > misura.width() + fuori ||
        punto.y() > misura.height() + fuori) {
        return Presa::Nessuna;
    }
    const bool destra = SulBordo(misura.width(), punto.x(), zona, fuori);
    const bool basso = SulBordo(misura.height(), punto.y(), zona, fuori);
    if (destra && basso) {
        return Presa::Angolo;
    }
    if (destra) {
        return Presa::Destra;
    }
    return basso ? Presa::Basso : Presa::Nessuna;
}

bool Ridimensionamento::InLarghezza(Presa presa)
{
    return presa == Presa::Destra || presa == Presa::Angolo;
}

bool Ridimensionamento::InAltezza(Presa presa)
{
    return presa == Presa::Basso || presa == Presa::Angolo;
}

Qt::CursorShape Ridimensionamento::Puntatore(Presa presa)
{
    switch (presa) {
    case Presa::Destra:
        return Qt::SizeHorCursor;
    case Presa::Basso:
        return Qt::SizeVerCursor;
    case Presa::Angolo:
        return Qt::SizeFDiagCursor;
    case Presa::Nessuna:
        break;
    }
    return Qt::ArrowCursor;
}

QSizeF Ridimensionamento::Misura(const QRectF &posto, Presa presa, QPointF bordo, double minimo,
                                 QSizeF foglio)
{
    QSizeF misura = posto.size();
    if (InLarghezza(presa)) {
        misura.setWidth(
            MisuraTirata(posto.left(), posto.width(), bordo.x(), minimo, foglio.width()));
    }
    if (InAltezza(presa)) {
        misura.setHeight(
            MisuraTirata(posto.top(), posto.height(), bordo.y(), minimo, foglio.height()));
    }
    return misura;
}
