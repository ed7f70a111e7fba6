#include "fuzz/Pretende.h"

#include "base/Ansi.h"
#include "base/ErroreSistema.h"
#include "model/Numeri.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

const QLocale Punto = QLocale::c();
const QLocale Virgola(QLocale::Italian, QLocale::Italy);

/// What the reading gives, or nothing when the text is beyond a double.
template <typename Lettura>
std::optional<double> Letto(Lettura &&lettura)
{
    try {
        const double valore = lettura();
        PRETENDE(std::isfinite(valore));
        return valore;
    } catch (const ErroreSistema &errore) {
        PRETENDE(errore.numero == ErroreSistema::Overflow);
        return std::nullopt;
    }
}

void ProvaInteri(double valore)
{
    const double pari = Numeri::PariPiuVicino(valore);
    PRETENDE(std::abs(pari - valore) <= 0.5);
    PRETENDE(std::floor(pari) == pari);
    try {
        PRETENDE(Numeri::Intero16(valore) == pari);
    } catch (const ErroreSistema &errore) {
        PRETENDE(errore.numero == ErroreSistema::Overflow);
        PRETENDE(pari > 32767 || pari < -32768);
    }
    if (std::abs(valore) < 1e15) {
        PRETENDE(std::abs(Numeri::Ar(valore) - valore) <= 0.5);
    }
}

void ProvaLetture(const QByteArray &byte)
{
    const QString testo = Ansi::DaByte(byte);
    const std::optional<double> riga = Letto([&] { return Numeri::LeggeNumero(byte); });
    const std::optional<double> val = Letto([&] { return Numeri::Val(testo); });
    // The two differ only for a text that begins with a point.
    PRETENDE(riga == val || riga == 0.0);

    const std::optional<double> colPunto = Numeri::Numerico(testo, Punto);
    const std::optional<double> conVirgola = Numeri::Numerico(testo, Virgola);
    PRETENDE(!colPunto || (std::isfinite(*colPunto) && conVirgola == colPunto));
    PRETENDE(!conVirgola || std::isfinite(*conVirgola));
    const bool stampabile =
        std::all_of(byte.begin(), byte.end(), [](char c) { return c >= ' ' && c <= '~'; });
    PRETENDE(!colPunto || !stampabile || val == colPunto);
    if (val) {
        ProvaInteri(*val);
    }
}

void ProvaScritture(double valore)
{
    const QString testo = Numeri::NumeroPiano(valore, Punto);
    const double riletto = Numeri::LeggeNumero(testo.toLatin1());
    PRETENDE(Numeri::NumeroPiano(riletto, Punto) == testo);
    PRETENDE(Numeri::Val(Numeri::NumeroStampato(valore, Punto)) == riletto);
    PRETENDE(Numeri::Doppio(testo, Punto) == riletto);
    if (std::isfinite(valore)) {
        PRETENDE(std::abs(riletto - valore) <= std::abs(valore) * 1e-14);
        ProvaInteri(valore);
    }
    const QString virgola = Numeri::NumeroPiano(valore, Virgola);
    PRETENDE(QString(virgola).replace(u',', u'.') == testo);
    PRETENDE(Numeri::Doppio(virgola, Virgola) == riletto);
    PRETENDE(Numeri::CstrX(valore, {}, Virgola) == testo);
    PRETENDE(Numeri::CstrX(valore, {}, Punto) == testo);
}

} // namespace

/// The bytes as a text to be read, and their first eight as a double to be written.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *dati, std::size_t quanti)
{
    ProvaLetture(QByteArray(reinterpret_cast<const char *>(dati), static_cast<qsizetype>(quanti)));
    double valore = 0;
    std::memcpy(&valore, dati, std::min(quanti, sizeof valore));
    if (!std::isnan(valore)) {
        ProvaScritture(valore);
    }
    return 0;
}
