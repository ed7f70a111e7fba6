#include "fuzz/Pretende.h"

#include "base/ErroreSistema.h"
#include "model/FileModello.h"

namespace {

bool Analizza(const QByteArray &byte, Modello &modello)
{
    try {
        FileModello::Analizza(byte, modello);
        return true;
    } catch (const ErroreSistema &) {
        // A failure with its number is an answer too; what was read stays and must be writable.
        return false;
    }
}

} // namespace

/// Any bytes are a model or an error, and what is written of them reads and writes the same.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *dati, std::size_t quanti)
{
    // Every line of a model may turn from empty into a number, which is not longer than this.
    constexpr qsizetype Righe = 4000;
    constexpr qsizetype LunghezzaNumero = 26;

    static const QLocale punto = QLocale::c();
    static const QLocale virgola(QLocale::Italian, QLocale::Italy);
    const QByteArray byte(reinterpret_cast<const char *>(dati), static_cast<qsizetype>(quanti));

    Modello primo;
    const bool intero = Analizza(byte, primo);
    const QByteArray scritto = FileModello::Componi(primo, punto);
    PRETENDE(scritto.size() <= byte.size() + Righe * LunghezzaNumero);

    Modello secondo;
    PRETENDE(Analizza(scritto, secondo));
    const QByteArray riscritto = FileModello::Componi(secondo, punto);
    // A file that ended before its line 12 has no caption yet; reading what was written gives it
    // the usual one, so it settles a step later.
    PRETENDE(!intero || riscritto == scritto);

    Modello terzo;
    PRETENDE(Analizza(riscritto, terzo));
    PRETENDE(FileModello::Componi(terzo, punto) == riscritto);

    Modello conVirgola;
    PRETENDE(Analizza(FileModello::Componi(primo, virgola), conVirgola));
    PRETENDE(conVirgola.NumCampi == secondo.NumCampi);
    PRETENDE(conVirgola.NumCornici == secondo.NumCornici);
    PRETENDE(conVirgola.NumImmagini == secondo.NumImmagini);
    return 0;
}
