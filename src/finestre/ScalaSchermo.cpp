#include "finestre/ScalaSchermo.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace {

constexpr auto Variabile = "QT_SCALE_FACTOR";

double ScalaMinima()
{
    double minima = 1;
    for (const QScreen *schermo : QGuiApplication::screens()) {
        minima = std::min(minima, schermo->devicePixelRatio());
    }
    return minima;
}

} // namespace

AlmenoUnPixel::AlmenoUnPixel()
    : prima_(qgetenv(Variabile))
    , impostata_(qEnvironmentVariableIsSet(Variabile))
{
    const double minima = ScalaMinima();
    if (minima >= 1 || minima <= 0) {
        return;
    }
    // The variable is one factor of several: the screen's own resolution is another.
    const double scritta = prima_.toDouble();
    occorre_ = true;
    qputenv(Variabile, QByteArray::number((scritta > 0 ? scritta : 1) / minima));
}

AlmenoUnPixel::~AlmenoUnPixel()
{
    if (!occorre_) {
        return;
    }
    if (impostata_) {
        qputenv(Variabile, prima_);
    } else {
        qunsetenv(Variabile);
    }
}
