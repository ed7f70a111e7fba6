#pragma once

#include "Postazione.h"
#include "support/ModelloDiProva.h"

/// Two ordinary fields and two row fields, two frames and a label, two pictures; nothing lies upon
/// anything else.
inline void RiempieMisto(Postazione &posto)
{
    ArchivioDiProva &a = posto.Archivio;
    a.AggiungeCampo(QStringLiteral("Data"), 20, 30);
    a.AggiungeCampo(QStringLiteral("Totale"), 120.4, 30.5);
    a.AggiungeCampo(QStringLiteral("R_Descr"), 10, 44);
    a.AggiungeCampo(QStringLiteral("R_Qta"), 90, 100);
    DiventaImporto(a.DaAprire().Campi[2]);
    a.AggiungeCornice(QStringLiteral("Riquadro"), 30, 50, 40, 20);
    a.AggiungeCornice(QStringLiteral("Linea"), 100.5, 50.4, 30.5, 10);
    a.AggiungeCornice(QStringLiteral("Scritta"), 30, 80, 25, 6);
    a.DaAprire().Cornici[2].Bordo = 2.3;
    a.DaAprire().Cornici[3].Bordo = 0;
    a.DaAprire().Cornici[3].ColoreTesto = 4;
    ScriveImmagine(a, QStringLiteral("logo.bmp"), {150, 100});
    ScriveImmagine(a, QStringLiteral("grande.bmp"), {2500, 1000}, 0x0000ff);
    a.AggiungeImmagine(QStringLiteral("logo.bmp"), 150.5, 10.25, 30, 20);
    a.AggiungeImmagine(QStringLiteral("manca.gif"), 190, 50, 20, 30);
    a.DaAprire().Righe = {100, 130, 5, 4, QStringLiteral("segue a pagina")};
    a.DaAprire().Tipo = QStringLiteral("Fattura");
}
