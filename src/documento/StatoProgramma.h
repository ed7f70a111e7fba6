#pragma once

#include "documento/Documento.h"
#include "documento/Selezione.h"

#include <QStringList>

/// What every window shares: one instance, owned by Plakera, handed to the windows by reference.
struct StatoProgramma
{
    Documento documento;            ///< the one open model
    Selezione selezione{documento}; ///< what is active in it
    QString NomeFile;               ///< of the model chosen in the catalogue, with ".Mod"
    QString CartellaModelli;        ///< at start-up the data folder; then the open archive's models
                                    ///< folder, ending in a separator
    QString CartellaImportate;      ///< where the last picture brought in comes from; empty = none
    QString ArchivioPredefinito;    ///< archive to select at start-up; empty = "Contabilita"
    QString CartellaEsportazione;   ///< where the last PDF went in this run; empty: none did
    QStringList ElencoFont;         ///< the printer's font names, at most 2000
    double zoom = 1;                ///< preview scale 1:n, 1 to 3; outlives the preview window

    const Modello &Aperto() const { return documento.Aperto(); }
};
