#pragma once

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <vector>

/// True where each figure is taken once, to see that it still can be: it is no measurement then.
inline bool UnGiro()
{
    static const bool uno = qEnvironmentVariableIsSet("PLAKERA_UN_GIRO");
    return uno;
}

/// One line of the table that bench.sh prints; the benchmark fails where the goal is missed.
inline void Riporta(const QByteArray &figura, double misurato, double meta,
                    const char *unita = "ms")
{
    qInfo("misura;%s;%.3f;%.3f;%s", figura.constData(), misurato, meta, unita);
    QVERIFY2(UnGiro() || misurato <= meta, figura.constData());
}

/// The middle one of several runs (of one, where UnGiro()): what the machine does besides does not
/// count. In milliseconds.
template <typename Azione>
double Mediana(std::size_t prove, Azione &&azione)
{
    std::vector<double> tempi;
    if (UnGiro()) {
        prove = 1;
    }
    for (std::size_t i = 0; i < prove; ++i) {
        QElapsedTimer tempo;
        tempo.start();
        azione();
        tempi.push_back(static_cast<double>(tempo.nsecsElapsed()) / 1e6);
    }
    std::nth_element(tempi.begin(), tempi.begin() + prove / 2, tempi.end());
    return tempi[prove / 2];
}
