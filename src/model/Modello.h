#pragma once

#include "base/Logici.h"
#include "model/Tabella.h"

#include <QString>

#include <array>
#include <utility>

/// What the three kinds of element share. An empty Nome marks an absent element, which keeps its
/// slot.
struct Elemento
{
    QString Nome;
    double X = 0; ///< left edge, mm
    double Y = 0; ///< top edge, mm
    QString Descrizione;

    bool operator==(const Elemento &) const = default;
};

/// A variable datum that Vastrel prints.
struct Campo : Elemento
{
    QString Testo;            ///< test text, shown on the preview and printed by the test print
    QString Maschera;         ///< print mask
    QString Font;             ///< family name
    qint16 Dimensione = 0;    ///< whole points
    qint16 Grassetto = Falso; ///< Vero or Falso
    QString MascheraDefault;

    /// The mask that keeps a field off the paper, as the program writes it.
    static constexpr QLatin1String MascheraNonStampata{"No"};

    /// Left out by the test print: paper takes the mask "No" in any mix of cases, as Vastrel does.
    bool NonStampato() const;
    /// Struck through on the preview, and switched back by the dialog's button: both know only the
    /// mask that the program itself writes, so a "NO" typed by hand is printed by neither and shown
    /// as any other mask.
    bool Barrato() const { return Maschera == MascheraNonStampata; }

    bool operator==(const Campo &) const = default;
};

/// A rectangle, a fixed caption, or both.
struct Cornice : Elemento
{
    /// Where the caption starts, mm from the frame's top-left corner, on paper and on the preview.
    static constexpr double RientroScritta = 1.0;
    static constexpr double DiscesaScritta = 0.4;

    QString Testo;
    QString Font;
    qint16 Dimensione = 0;    ///< whole points
    qint16 Grassetto = Falso; ///< Vero or Falso
    double Altezza = 0;       ///< mm
    double Larghezza = 0;     ///< mm
    double Bordo = 0;         ///< kind and thickness in one number, see TipoBordo
    qint16 ColoreCornice = 0; ///< palette index 0..15
    qint16 ColoreTesto = 0;   ///< palette index 0..15

    enum class Bordatura { Nessuna, Rettangolo, LineaSuperiore };
    /// What is drawn on paper: the whole part of Bordo, 1 box, 2 top line, any other none.
    Bordatura TipoBordo() const;
    /// Thickness on paper, mm: the fraction of Bordo, 0.3 when it has none.
    double SpessoreBordo() const;
    /// True when the preview shows its one thin line around the frame: for every value of 1 or
    /// more, also those that paper draws as a top line or not at all.
    bool BordoInAnteprima() const;
    /// False for a label and for a top line, whose edges the mouse does not grip.
    bool Ridimensionabile() const;

    bool operator==(const Cornice &) const = default;
};

/// A picture file of the models folder; Nome is the file's, without folder.
struct Immagine : Elemento
{
    double Altezza = 0;   ///< mm
    double Larghezza = 0; ///< mm
    double Bordo = 0;     ///< stored and edited, not used when printing

    bool operator==(const Immagine &) const = default;
};

/// The body-row area, all in mm from the top of the sheet.
struct ParametriRighe
{
    double yInizio = 0;
    double yFine = 0;
    double Interlinea = 0;
    double InterlineaDescr = 0;
    QString SeguePag;

    bool operator==(const ParametriRighe &) const = default;
};

/// The scan shown behind the preview. The four measures are kept as the user typed them.
struct ImmagineSfondo
{
    QString File;
    QString Ximmagine;     ///< width, mm
    QString Yimmagine;     ///< height, mm
    QString XPos;          ///< left edge, mm
    QString YPos;          ///< top edge, mm
    qint16 Visualizza = 0; ///< check box value: 0, 1 or 2

    bool operator==(const ImmagineSfondo &) const = default;
};

/// The three kinds of element; also the order in which the file holds and the printer prints them.
enum class Genere { Campo, Cornice, Immagine };
inline constexpr std::array<Genere, 3> Generi{Genere::Campo, Genere::Cornice, Genere::Immagine};

/// The place of a kind in a table of the three.
constexpr std::size_t Posto(Genere genere)
{
    return static_cast<std::size_t>(genere);
}

/// The word for a kind, with a capital.
constexpr QLatin1String NomeDi(Genere genere)
{
    constexpr std::array<QLatin1String, Generi.size()> Nomi{
        QLatin1String("Campo"), QLatin1String("Cornice"), QLatin1String("Immagine")};
    return Nomi.at(Posto(genere));
}

/// Which element: its kind and its slot, 1 to 100.
struct Chiave
{
    Genere genere = Genere::Campo;
    int indice = 0;

    bool operator==(const Chiave &) const = default;
    /// Kinds in their order, then slots.
    bool operator<(const Chiave &altra) const
    {
        return genere != altra.genere ? genere < altra.genere : indice < altra.indice;
    }
};

/// One print model: a plain value. Elements of a kind occupy slots 1 to their count; slots above
/// the count keep what they held. The slot number is an element's identity while the model is open.
struct Modello
{
    static constexpr QLatin1String SeguePagPredefinito{"segue su pagina successiva"};

    QString NomeFile; ///< with ".Mod", without folder
    QString Tipo;

    qint16 NumCampi = 0;
    qint16 NumCornici = 0;
    qint16 NumImmagini = 0;
    Tabella<Campo> Campi;
    Tabella<Cornice> Cornici;
    Tabella<Immagine> Immagini;

    ParametriRighe Righe;
    ImmagineSfondo Sfondo;

    bool operator==(const Modello &) const = default;

    /// Calls azione with the table of the kind, for what the three kinds share.
    template <typename Azione>
    decltype(auto) Con(Genere genere, Azione &&azione);
    template <typename Azione>
    decltype(auto) Con(Genere genere, Azione &&azione) const;

    qint16 &Numero(Genere genere);
    qint16 Numero(Genere genere) const;
    /// The last slot that a walk over the elements visits: the count, but never beyond the table
    /// (a refused 101st addition leaves the count at 101).
    int UltimoSlot(Genere genere) const;
    /// What the element has in common with those of the other kinds.
    Elemento &Di(Chiave chiave);
    const Elemento &Di(Chiave chiave) const;
    QString &Nome(Genere genere, int indice);
    const QString &Nome(Genere genere, int indice) const;
    /// False when the element is deleted (empty Nome). A new image has no Nome yet and is absent
    /// until it is given a picture.
    bool Presente(Genere genere, int indice) const;
    /// True when an element of the kind, other than tranne, has the name, whatever its case.
    bool NomePreso(Genere genere, const QString &nome, int tranne = 0) const;

    /// Raises the count of the kind, then fills the new slot with the values of a new element at
    /// (x, y) mm and returns its number. minuto and secondo of the clock name a new frame; they run
    /// on until no other frame has the name, whatever its case. The 101st addition throws
    /// ErroreSistema 9 with the count already raised.
    int AggiungeCampo(double x, double y);
    int AggiungeCornice(double x, double y, int minuto, int secondo);
    int AggiungeImmagine(double x, double y);
    int Aggiunge(Genere genere, double x, double y, int minuto, int secondo);

    /// Gives the element the place at which it is shown and printed: fields and frames stand at
    /// whole millimetres (frames' sizes too), a row field at yInizio, images where they are. True
    /// when that moved or resized it.
    bool Arrotonda(Genere genere, int indice);
    /// Arrotonda for every element.
    void ArrotondaTutti();

private:
    /// One body for the constant and the changeable model.
    template <typename Questo, typename Azione>
    static decltype(auto) ConTabella(Questo &questo, Genere genere, Azione &&azione);
};

template <typename Questo, typename Azione>
decltype(auto) Modello::ConTabella(Questo &questo, Genere genere, Azione &&azione)
{
    switch (genere) {
    case Genere::Campo:
        return azione(questo.Campi);
    case Genere::Cornice:
        return azione(questo.Cornici);
    case Genere::Immagine:
        break;
    }
    return azione(questo.Immagini);
}

template <typename Azione>
decltype(auto) Modello::Con(Genere genere, Azione &&azione)
{
    return ConTabella(*this, genere, std::forward<Azione>(azione));
}

template <typename Azione>
decltype(auto) Modello::Con(Genere genere, Azione &&azione) const
{
    return ConTabella(*this, genere, std::forward<Azione>(azione));
}

/// True for a body-row field: the name begins with "R_", upper case.
bool CampoDiRiga(const Campo &campo);
