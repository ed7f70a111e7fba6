#pragma once

#include "EditoreDiProva.h"

#include "support/Generi.h"

#include <QComboBox>
#include <QGraphicsView>
#include <QScrollBar>
#include <QTabWidget>
#include <QToolButton>
#include <QWindow>

/// An editor over a few elements of each kind, worked with the mouse on the preview and the keys of
/// either window, and what its two buttons say. Points are mm of the sheet, at scale 1.
class StoriaDiProva : public EditoreDiProva
{
public:
    StoriaDiProva()
    {
        Archivio.DaAprire().Tipo = QStringLiteral("Fattura");
        Archivio.AggiungeCampo(QStringLiteral("Doc_Numero"), 20, 30);
        Archivio.AggiungeCampo(QStringLiteral("Totale"), 60, 30);
        Archivio.AggiungeCampo(QStringLiteral("R_Descrizione"), 40, 100);
        Archivio.AggiungeCornice(QStringLiteral("Riquadro"), 30, 50, 40, 20);
        Archivio.AggiungeCornice(QStringLiteral("Scritta"), 130, 50, 40, 20);
        Archivio.AggiungeImmagine(QStringLiteral("logo.bmp"), 90, 50, 30, 20);
        if (!Apre()) {
            qFatal("the model does not open");
        }
        Prima = Aperto();
    }

    const Modello &Aperto() const { return Archivio.Aperto(); }
    Documento &Aperta() { return Archivio.Stato().documento; }
    Frm1 &Anteprima() const { return *Editor->Anteprima(); }
    QGraphicsObject *Controllo(const char *nome) const
    {
        return ElementoAnteprima(Anteprima(), QString::fromLatin1(nome));
    }
    QToolButton *Bottone(const char *nome) const { return Trova<QToolButton>(*Editor, nome); }
    /// What the button would take back or do again; empty when there is nothing.
    QString Passo(const char *bottone) const
    {
        const QToolButton *b = Bottone(bottone);
        return b->isEnabled() ? b->toolTip().section(QStringLiteral(": "), 1) : QString();
    }
    QString DaAnnullare() const { return Passo("Annulla"); }
    QString DaRipristinare() const { return Passo("Ripristina"); }

    /// The key reaches whatever has the focus in the window.
    static void Tasto(QWidget &finestra, Qt::Key tasto, Qt::KeyboardModifiers modi = {})
    {
        if (!RendeAttiva(finestra)) {
            qFatal("the window does not become active");
        }
        QTest::keyClick(finestra.windowHandle(), tasto, modi);
    }
    void Annulla() const { Tasto(*Editor, Qt::Key_Z, Qt::ControlModifier); }
    void Ripristina() const { Tasto(*Editor, Qt::Key_Y, Qt::ControlModifier); }

    /// Takes everything back; the number of steps.
    int AnnullaTutto() const
    {
        int passi = 0;
        for (; Bottone("Annulla")->isEnabled(); ++passi) {
            Bottone("Annulla")->click();
        }
        return passi;
    }

    void Preme(QPointF punto) const
    {
        QTest::mousePress(Anteprima().windowHandle(), Qt::LeftButton, {}, Locale(punto));
    }
    void Rilascia(QPointF punto) const
    {
        QTest::mouseRelease(Anteprima().windowHandle(), Qt::LeftButton, {}, Locale(punto));
    }
    void Muove(QPointF punto) const { QTest::mouseMove(Anteprima().windowHandle(), Locale(punto)); }
    void Clicca(QPointF punto) const
    {
        Muove({1, 1}); // a pointer that is there already would not move
        Muove(punto);
        Preme(punto);
        Rilascia(punto);
    }
    void Afferra(QPointF da, QPointF a) const
    {
        Muove(da);
        Preme(da);
        Muove((da + a) / 2);
        Muove(a);
    }
    void Trascina(QPointF da, QPointF a) const
    {
        Afferra(da, a);
        Rilascia(a);
    }
    /// Selects the element and drags it by its handle, so that its corner ends at the point.
    void TrascinaElemento(Genere genere, int i, QPointF a) const
    {
        Anteprima().Seleziona(genere, i);
        const Elemento &elemento = Aperto().Di({genere, i});
        Trascina(QPointF(elemento.X, elemento.Y) + QPointF(0.8, 0.8), a);
    }

    /// By its dialog, which asks.
    void Elimina(Chiave chiave) const
    {
        Robot robot;
        robot.Agisce([&](QDialog *d) { ::Preme(*d, BottoneElimina(chiave.genere)); }).Si();
        ApreProprieta(chiave.genere, chiave.indice);
        if (!robot.Soddisfatto()) {
            qFatal("the element is not deleted");
        }
    }

    QTabWidget *Pagine() const { return Trova<QTabWidget>(*Editor, "SSTab1"); }
    /// The title of the page in front.
    QString Pagina() const { return Pagine()->tabText(Pagine()->currentIndex()); }
    void Apre(const char *titolo) const
    {
        for (int p = 0; p < Pagine()->count(); ++p) {
            if (Pagine()->tabText(p) == QLatin1String(titolo)) {
                Pagine()->setCurrentIndex(p);
                return;
            }
        }
        qFatal("no page %s", titolo);
    }
    using EditoreDiProva::Apre;

    Modello Prima; ///< as opened

private:
    QPoint Locale(QPointF punto) const
    {
        constexpr double MillimetriPerPixel = 25.4 / 96;
        const QWidget *vista = Trova<QGraphicsView>(Anteprima(), "P1")->viewport();
        return vista->mapTo(&Anteprima(), (punto / MillimetriPerPixel).toPoint());
    }
};
