#pragma once

#include "EditoreDiProva.h"

#include <QLineEdit>
#include <QTest>

/// The editor over a model with a row field, an ordinary field, a frame and an image.
class PagineDiProva : public EditorSulModello
{
public:
    PagineDiProva()
        : EditorSulModello([](ArchivioDiProva &modello) {
            modello.AggiungeCampo(QStringLiteral("R_Descr"), 10, 100);
            modello.AggiungeCampo(QStringLiteral("Data"), 20, 30);
            modello.AggiungeCornice(QStringLiteral("Cornice"), 30, 40, 20, 10);
            modello.AggiungeImmagine(QStringLiteral("logo.bmp"), 40.5, 50.5, 20, 10);
        })
    {
    }

    void Scrive(const char *casella, const QString &testo)
    {
        auto *riga = Trova<QLineEdit>(*editor, casella);
        riga->selectAll();
        QTest::keyClicks(riga, testo);
    }
    QString Testo(const char *casella) { return Trova<QLineEdit>(*editor, casella)->text(); }
    Modello &DaAprire() { return prova.DaAprire(); }

    /// A scan of 200 x 100 mm.
    QString Scansione() { return ScriveScansione(prova, 200, 100); }

    QColor Colore(double x, double y) { return ColoreDelFoglio(*editor, x, y); }
};
