#pragma once

#include "RigheFile.h"
#include "Scrivania.h"

/// The sample invoice in the real program, and what its file held before.
struct FatturaAperta
{
    FatturaAperta()
    {
        scrivania.Avvia();
        scrivania.ApreModello(Nome);
    }

    Schermo &Video() { return scrivania.Video(); }
    /// Keys for the sheet.
    void Tasti(const QStringList &tasti)
    {
        scrivania.Anteprima();
        Video().Tasti(tasti);
    }
    /// Clicks on the bare sheet: it has the keys, and nothing is chosen.
    void FuocoAlFoglio()
    {
        scrivania.Anteprima();
        Video().Clic(scrivania.SulFoglio({225, 60}));
    }
    /// Answers the question that is asked, by a key.
    void Risponde(const QString &tasto)
    {
        Video().Attende(Scrivania::TitoloRiquadro);
        Video().Tasti({tasto});
        Video().Attende(Scrivania::TitoloAnteprima);
    }
    /// The sheet inside the line of focus, as it shows. Outlines of the paper come when the print
    /// system has answered.
    QImage Foglio()
    {
        const QRect zona(scrivania.SulFoglio({2, 2}), scrivania.SulFoglio({225, 120}));
        return Video().Foto().copy(zona);
    }
    RigheFile Salvato()
    {
        scrivania.Salva();
        return RigheFile(file);
    }
    /// Saves and compares the file with what is expected of it; empty when that is what it holds.
    QByteArray Differenza(const RigheFile &atteso) { return Salvato().Differenza(atteso); }

    const QString Nome = QStringLiteral("Fattura_Rossi");
    Scrivania scrivania;
    const QString file = scrivania.CartellaModelli() + Nome + QStringLiteral(".Mod");
    const RigheFile prima{file};
};
