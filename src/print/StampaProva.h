#pragma once

#include "model/Modello.h"
#include "model/Numeri.h"
#include "print/Avanzamento.h"

#include <QRect>
#include <QRgb>

class Destinazione;
class Pagina;

/// The test print of a model on one page: all fields, then all frames and captions, then all
/// images, each in table order; absent elements are left out.
class StampaProva
{
public:
    /// All references must outlive the object. cartellaModelli is where image files are looked up;
    /// avviso shows a message to the user.
    StampaProva(const Modello &modello, QString cartellaModelli, Pagina &pagina,
                Numeri::Avviso avviso);

    /// StampaNome prints the fields' names instead of their test texts.
    void Stampa(bool StampaNome);

    /// Element i of the table, 1 to the count; another slot throws ErroreSistema 9.
    void StampaCampo(int i, bool StampaNome);
    void StampaCornice(int i);
    void StampaImmagine(int i);

    /// A caption, with the font and colour that it is set in.
    struct Scritta
    {
        QString Testo; ///< empty: no caption
        QString Font;
        int Dimensione; ///< points
        bool Grassetto;
        QRgb Colore;
    };
    /// One frame between two corners, mm: its caption, then its border of the kind tipo (1 box, 2
    /// top line, else none), bars filled with the swatch P, spessore mm thick.
    void Linea(double x1, double y1, double x2, double y2, const Scritta &scritta, QRgb P,
               Cornice::Bordatura tipo, double spessore);

    /// Paints the picture file NomeFile (full path) at whole millimetres; without both sizes over
    /// the whole printable area. Throws ErroreSistema (5 for a bad size, 53, 481).
    void StampaImmagineX(const QString &NomeFile, int xMillimetri, int yMillimetri,
                         int WidthMillimetri = 0, int HeightMillimetri = 0);

private:
    /// A picture file and where it is printed, mm.
    struct Collocata
    {
        QString Percorso;
        QRect Posto;
    };
    /// Throws ErroreSistema (6 for what is no 16-bit number, 53).
    Collocata Colloca(const Immagine &immagine) const;
    void PrevedeImmagini();
    /// The size that a picture is printed at, mm: both 0 stand for the whole printable area.
    QSizeF MisuraFigura(double larghezza, double altezza) const;
    QString Diagnosi(const Immagine &immagine, const ErroreSistema &errore) const;

    const Modello &modello_;
    QString cartellaModelli_;
    Pagina &pagina_;
    Numeri::Avviso avviso_;
};

/// Prints the model on the printer. Messages about single elements go through avviso and do not
/// stop the print; the destination's ErroreSistema is thrown when it does not take the sheet. What
/// avanza throws gives the sheet up.
void StampaModello(const Modello &modello, const QString &cartellaModelli,
                   Destinazione &destinazione, bool StampaNome, const Numeri::Avviso &avviso,
                   const Avanzamento &avanza = {});
