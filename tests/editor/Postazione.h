#pragma once

#include "EditoreDiProva.h"

#include <QByteArray>
#include <QPointF>
#include <QString>

class Controllo;

/// A text that may be given as UTF-8 letters, which is how scripts read best.
class Parole : public QString
{
public:
    Parole(const char *testo)
        : QString(QString::fromUtf8(testo))
    {
    }
    Parole(const QString &testo)
        : QString(testo)
    {
    }
};

/// The edges by which an element is resized.
enum class Bordo { Destra, Basso, Angolo };

/// An open editor, worked with the mouse and the keys as its user works it. Controls are found by
/// their names and the page that holds one is turned up first; points on the sheet are mm of paper,
/// and the sheet is scrolled until the point can be seen.
class Postazione : public EditoreDiProva
{
public:
    Postazione();

    /// As Apre and ApreComeSta, with the editor as the active window.
    bool ApreAttiva();
    bool RiapreAttiva();

    // How the program keeps its open model is known here and nowhere else in these tests.
    const Modello &Aperto() const { return Archivio.Aperto(); }
    double Scala() const { return Archivio.Stato().zoom; }
    bool Variato() const { return Editor->Variato(); }
    void DimenticaVariazioni() { Archivio.Stato().documento.Salvato(); }
    /// The bytes that a save would write now.
    QByteArray DaSalvare() const;
    QWidget &Finestra() const { return *Editor; }
    QWidget &Anteprima() const { return *Editor->Anteprima(); }

    void Preme(const char *controllo, Qt::MouseButton bottone = Qt::LeftButton) const;
    /// Replaces the text of a box; invio ends the edit with the Return key.
    void Digita(const char *casella, const Parole &testo, bool invio = false) const;
    /// Chooses item i of the kind's combo with the arrow keys, without the focus.
    void SceglieVoce(Genere genere, int i) const;
    /// Gives the kind's combo the focus.
    void FuocoAlleVoci(Genere genere) const;
    void Pagina(int pagina) const;
    void Zoom(const Parole &testo) const { EditoreDiProva::Zoom(testo); }
    void Scorre(int x, int y) const;

    Controllo *Elemento(Genere genere, int i) const;
    /// The middle of an element, mm of paper.
    QPointF Mezzo(Genere genere, int i) const;

    /// True for a point of the sheet that the mouse can reach.
    bool SulFoglio(QPointF carta) const;
    void Sorvola(QPointF carta) const;
    void Clicca(QPointF carta, Qt::MouseButton bottone = Qt::LeftButton,
                Qt::KeyboardModifiers tasti = {}) const;
    /// Gives the sheet the focus and presses the key there.
    void TastoSulFoglio(Qt::Key tasto, Qt::KeyboardModifiers modi = {}) const;
    void CliccaDueVolte(QPointF carta) const;
    void PremeFoglio(QPointF carta) const;
    void RilasciaFoglio(QPointF carta) const;
    /// Drags the visible handle of the kind by so many mm of paper; false when there is none that
    /// the mouse can reach.
    bool TrascinaManiglia(Genere genere, QPointF di) const;
    /// Drags an edge of the element by so many mm of paper. Only a selected one is resized.
    bool TiraBordo(Genere genere, int i, Bordo bordo, QPointF di) const;
    void Trascina(QPointF da, QPointF a) const;

    /// The window manager's close of a window.
    void ChiudeFinestra(QWidget &finestra) const;

private:
    void Attiva(QWidget &finestra) const;
    QWidget *Controllo_(const char *nome) const;
    const Controllo *ManigliaDi(Genere genere) const;
    QPoint Pixel(QPointF carta) const; ///< in the preview's window
    void MostraPunto(QPointF carta) const;
};

/// A picture file of the archive, pixels at ten to the millimetre.
void ScriveImmagine(const ArchivioDiProva &archivio, const Parole &nome, QSize pixel,
                    QRgb colore = 0xff0000);

/// Names of the controls of a kind, in the order of Genere.
const char *NomeCombo(Genere genere);
const char *NomeAggiungi(Genere genere);
const char *NomeModifica(Genere genere);

/// Chooses an item of a dialog's combo with the keys; false when it has none with that text.
bool SceglieNelCombo(QWidget &dialogo, const char *combo, const Parole &testo);
