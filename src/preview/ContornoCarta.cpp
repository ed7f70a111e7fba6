#include "preview/ContornoCarta.h"

#include "preview/Tratti.h"

#include <QStyleOptionGraphicsItem>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Margine = 1; // mm of screen, more than a line is thick

} // namespace

ContornoCarta::ContornoCarta(const QString &nome, const QColor &colore, double tratto, double vuoto)
    : Controllo(nome)
    , colore_(colore)
    , tratto_(tratto)
    , vuoto_(vuoto)
{
    setFlag(ItemUsesExtendedStyleOption); // exposedRect
}

void ContornoCarta::paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *)
{
    // Every drag uncovers a bit of the sheet: only the dashes in it are drawn.
    const QRectF esposto =
        opzioni->exposedRect.adjusted(-Margine, -Margine, Margine, Margine).intersected(Locale());
    const Tratti tratti(*penna);
    const double passo = tratto_ + vuoto_;
    const auto percorre = [&](double da, double a, double fine, auto &&disegna) {
        for (double inizio = std::floor(da / passo) * passo; inizio < a; inizio += passo) {
            disegna(inizio, std::min(inizio + tratto_, fine));
        }
    };
    const QRectF q = Locale();
    for (const double y : {q.top(), q.bottom()}) {
        if (y >= esposto.top() && y <= esposto.bottom()) {
            percorre(esposto.left(), esposto.right(), q.right(),
                     [&](double da, double a) { tratti.Orizzontale(y, da, a, colore_); });
        }
    }
    for (const double x : {q.left(), q.right()}) {
        if (x >= esposto.left() && x <= esposto.right()) {
            percorre(esposto.top(), esposto.bottom(), q.bottom(),
                     [&](double da, double a) { tratti.Verticale(x, da, a, colore_); });
        }
    }
}
