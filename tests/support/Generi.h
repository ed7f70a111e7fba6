#pragma once

#include "model/Modello.h"

#include <QTest>

/// Rows "campo", "cornice" and "immagine" in a column "genere", for a test that runs once for each
/// kind of element.
inline void RighePerGenere()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("campo") << Genere::Campo;
    QTest::newRow("cornice") << Genere::Cornice;
    QTest::newRow("immagine") << Genere::Immagine;
}

/// The buttons of the kind's property dialog that confirm and delete.
inline const char *BottoneConferma(Genere genere)
{
    return genere == Genere::Campo ? "PConfemaCampo" : "Confema";
}
inline const char *BottoneElimina(Genere genere)
{
    return genere == Genere::Campo ? "PEliminaCampo" : "Elimina";
}
