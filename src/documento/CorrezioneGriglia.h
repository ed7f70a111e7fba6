#pragma once

#include "model/Modello.h"

#include <QList>
#include <QPointF>
#include <QString>

#include <array>

class Documento;

/// A printer that puts a model's marks elsewhere than they should stand, and the shift of the model
/// that makes up for it.
namespace CorrezioneGriglia {

/// Of two marks: less apart than this, mm, they tell nothing about the sheet.
inline constexpr double DistanzaMinima = 50;
/// No place on a sheet is further than this from its corner, mm.
inline constexpr double MillimetriMassimi = 1000;

/// Both in mm from one and the same corner, at most MillimetriMassimi.
struct Segno
{
    QPointF Atteso; ///< where it should stand
    QPointF Uscito; ///< where it came out
};

/// Whole mm, to the right and downwards.
struct Spostamento
{
    int Dx = 0;
    int Dy = 0;

    bool Nullo() const { return Dx == 0 && Dy == 0; }
    bool operator==(const Spostamento &) const = default;
};

/// "2 mm a destra, 1 mm in alto"; "nessuno" for none.
QString Frase(const Spostamento &spostamento);

enum class Giudizio {
    Sposta,          ///< a shift makes up for it, or none is needed
    Scala,           ///< the printer scales: no shift helps
    TroppoVicini,    ///< two marks that tell nothing
    NonCorrispondono ///< turned as no sheet can be fed: the marks have been taken for each other
};

struct Esito
{
    Giudizio Che = Giudizio::Sposta;
    Spostamento Quanto; ///< none but for Sposta
    double Voluta = 0;  ///< mm between two marks as they should stand
    double Uscita = 0;  ///< mm between them on the paper
    double Gradi = 0;   ///< by which the sheet was fed askew, clockwise; 0 when it hardly was
};

/// One mark, or two. Of two, each a little off its own way, the middle counts.
Esito Giudica(const QList<Segno> &segni);

/// What of a model is moved.
struct Parti
{
    std::array<bool, Generi.size()> Elementi{};
    bool Righe = false;  ///< the row area, and the row fields up and down
    bool Sfondo = false; ///< the scan

    bool Nessuna() const;
};

/// What a model has that a correction is for. Never the scan: it shows the form as it is, wherever
/// the printer prints.
Parti Proposte(const Modello &modello);

/// One step, as the bulk move of each kind. Throws ErroreSistema 6, and moves nothing, when the
/// scan's place is beyond a double.
void Esegue(Documento &documento, const Spostamento &spostamento, const Parti &parti);

} // namespace CorrezioneGriglia
