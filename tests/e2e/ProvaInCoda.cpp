#include "ProvaInCoda.h"

#include <QTest>

#include <exception>

void ProvaInCoda::AvviaServer()
{
    if (!CodaDiStampa::Installata()) {
        QSKIP("CUPS and its PDF printer (packages cups, printer-driver-cups-pdf) are missing");
    }
    try {
        coda_.emplace();
    } catch (const std::exception &errore) {
        QFAIL(errore.what());
    }
    qputenv("CUPS_SERVER", coda_->Server().toUtf8());
    qunsetenv("LPDEST");
    qunsetenv("PRINTER");
}

LettorePdf ProvaInCoda::UnicoFoglio()
{
    const QStringList fogli = coda_->Fogli();
    if (fogli.size() != 1) {
        qFatal("%d sheets instead of one", int(fogli.size()));
    }
    return LettorePdf(fogli.first());
}

LettorePdf ProvaInCoda::Stampa(FoglioDiProva &foglio)
{
    const auto stampante = Stampanti::Predefinita();
    StampaModello(foglio.Aperto, foglio.Cartella(), *stampante, false,
                  [&](const QString &testo) { foglio.Avvisi.append(testo); });
    return UnicoFoglio();
}
