#pragma once

#include "EditoreDiProva.h"
#include "support/Tempi.h"

#include <QTabWidget>

constexpr double Secondo = 1000; // ms of work that no action may exceed
constexpr int PerGenere = Tabella<Campo>::UltimoSlot;

/// Times what it runs against one second of work.
#define IN_UN_SECONDO(azione)                                                                      \
    do {                                                                                           \
        const TempoDiLavoro tempo;                                                                 \
        azione;                                                                                    \
        QVERIFY2(tempo.Entro(Secondo),                                                             \
                 qPrintable(QStringLiteral("%1 ms: " #azione).arg(tempo.MilliSecondi())));         \
    } while (false)

/// The actions of a user on the open model that have to do with all of its elements.
inline void LavoraConTutto(const EditoreDiProva &prova)
{
    Frm1 &anteprima = *prova.Editor->Anteprima();
    for (const Genere genere : Generi) {
        for (int i = 1; i <= prova.Archivio.Stato().Aperto().UltimoSlot(genere); ++i) {
            anteprima.Seleziona(genere, i);
        }
    }
    prova.Foto();
    auto *pagine = Trova<QTabWidget>(*prova.Editor, "SSTab1");
    for (int p = pagine->count(); p > 0; --p) {
        pagine->setCurrentIndex(p - 1);
    }
    for (const char *bottone : {"Command1", "Command3", "Command4", "OptSimuloRighe",
                                "ConfermaPosizioneRighe", "SfondoSpostaDx"}) {
        Preme(*prova.Editor, bottone);
    }
    prova.Foto();
}
