#pragma once

#include "print/FoglioDiProva.h"
#include "support/CodaDiStampa.h"

#include <optional>

/// A print server for the tests of a class, and the sheets that come out of its queues.
class ProvaInCoda
{
protected:
    /// For initTestCase: makes the server that of this process. Where none is installed, the tests
    /// are skipped.
    void AvviaServer();

    /// Waits for it; ends the program when more than one has come, or none.
    LettorePdf UnicoFoglio();
    /// Prints on the default queue and gives the only sheet back.
    LettorePdf Stampa(FoglioDiProva &foglio);

    inline static const QString Prova = QStringLiteral("Prova");
    std::optional<CodaDiStampa> coda_;
};
