#include "preview/PrimoPiano.h"

#include "model/Numeri.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr int CifreArea = 30;
constexpr double AreaMassima = 9.9e28; // with its sign it still fits

} // namespace

QString PrimoPiano::Chiave(double area, int indice)
{
    const double mostrabile = std::isnan(area) ? 0 : std::clamp(area, -AreaMassima, AreaMassima);
    // Added to nothing, a zero loses its sign.
    const QString cifre = QString::number(Numeri::PariPiuVicino(mostrabile) + 0.0, 'f', 0);
    return cifre.rightJustified(CifreArea, u'0') + u'-' + QString::number(indice);
}

QList<int> PrimoPiano::Ordine(const QList<double> &aree)
{
    QStringList chiavi;
    for (qsizetype k = 0; k < aree.size(); ++k) {
        chiavi.append(Chiave(aree.at(k), static_cast<int>(k) + 1));
    }
    std::sort(chiavi.begin(), chiavi.end());
    QList<int> ordine;
    for (qsizetype p = chiavi.size() - 1; p >= 0; --p) {
        ordine.append(chiavi.at(p).mid(CifreArea + 1).toInt());
    }
    return ordine;
}
