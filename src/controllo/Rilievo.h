#pragma once

#include "model/Modello.h"

#include <QString>

/// The kinds of finding, in the order in which those of one element are told.
enum class SpecieRilievo {
    FontMancante,
    CaratteriMancanti,
    FileImmagine,
    TestoSulVicino,
    TestoOltreStampabile,
    FuoriDallaCarta,
    NelBordo,
    NomeDoppio,
    MascheraETesto,
    CampoFuoriRiga,
    Coperto,
    RigheCapovolte,
    InterlineaNulla,
    Scansione
};

/// Something that will not come out on paper as the model's author wants it.
struct Rilievo
{
    /// What it is about: one element, the row area or the scan.
    enum class Luogo { Elemento, Righe, Sfondo };

    SpecieRilievo Specie = SpecieRilievo::FontMancante;
    Luogo Dove = Luogo::Elemento;
    Chiave Di;        ///< the element; of no meaning for the row area and the scan
    QString Soggetto; ///< as the user calls it: "campo Doc_Numero", "righe"
    QString Testo;    ///< one sentence: what happens on paper, and what to do

    bool operator==(const Rilievo &) const = default;

    /// As one line: subject, colon, sentence.
    QString SuUnaLinea() const { return Soggetto + QStringLiteral(": ") + Testo; }
};
