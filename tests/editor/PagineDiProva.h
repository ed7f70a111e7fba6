#pragma once

#include "editor/Form2.h"
#include "preview/Frm1.h"
#include "support/ArchivioDiProva.h"
#include "support/Finestre.h"

#include <QImage>
#include <QLineEdit>
#include <QTest>

#include <memory>

/// The editor over a model with a row field, an ordinary field, a frame and an image.
class PagineDiProva
{
public:
    PagineDiProva()
    {
        prova.AggiungeCampo(QStringLiteral("R_Descr"), 10, 100);
        prova.AggiungeCampo(QStringLiteral("Data"), 20, 30);
        prova.AggiungeCornice(QStringLiteral("Cornice"), 30, 40, 20, 10);
        prova.AggiungeImmagine(QStringLiteral("logo.bmp"), 40.5, 50.5, 20, 10);
        prova.Scrive();
        editor = std::make_unique<Form2>(prova.Stato());
        caricato = editor->Form_Load();
    }
    ~PagineDiProva() { prova.Stato().documento.Salvato(); }

    void Scrive(const char *casella, const QString &testo)
    {
        auto *riga = Trova<QLineEdit>(*editor, casella);
        riga->selectAll();
        QTest::keyClicks(riga, testo);
    }
    QString Testo(const char *casella) { return Trova<QLineEdit>(*editor, casella)->text(); }
    Modello &DaAprire() { return prova.DaAprire(); }
    const Modello &Aperto() const { return prova.Aperto(); }

    /// A picture of 200 x 100 mm at 10 dots a millimetre.
    QString Scansione()
    {
        QImage immagine(200, 100, QImage::Format_RGB32);
        immagine.fill(Qt::red);
        immagine.setDotsPerMeterX(1000);
        immagine.setDotsPerMeterY(1000);
        const QString percorso = prova.Stato().CartellaModelli + QStringLiteral("scansione.bmp");
        immagine.save(percorso);
        return percorso;
    }

    /// Colour of the sheet at a point in mm of screen.
    QColor Colore(double x, double y)
    {
        auto *foglio = Trova<QGraphicsView>(*editor->Anteprima(), "P1");
        const QPixmap foto = foglio->grab();
        const double scala = foglio->width() / 240.0;
        return foto.toImage().pixelColor(qRound(x * scala), qRound(y * scala));
    }

    ArchivioDiProva prova;
    std::unique_ptr<Form2> editor;
    bool caricato = false;
};
