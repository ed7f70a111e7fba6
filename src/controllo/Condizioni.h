#pragma once

#include "model/Modello.h"

#include <QHashFunctions>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>
#include <map>
#include <optional>

/// How a text is set; what its size and its shapes depend on.
struct AspettoTesto
{
    QString Testo;
    QString Font;
    qint16 Dimensione = 0; ///< points
    bool Grassetto = false;

    bool operator==(const AspettoTesto &) const = default;
};

inline size_t qHash(const AspettoTesto &aspetto, size_t seme = 0)
{
    return qHashMulti(seme, aspetto.Testo, aspetto.Font, aspetto.Dimensione, aspetto.Grassetto);
}

/// The sheet that the default printer holds, in mm from the origin of the model.
struct FoglioStampante
{
    QRectF Carta;
    QRectF Stampabile; ///< what the printer reaches of it
};

enum class StatoFile { Buono, Mancante, Cartella, Illeggibile };

/// What a check has to know besides the model. It is asked for every element at every step: whoever
/// answers remembers what the system takes long to tell.
struct Condizioni
{
    std::function<bool(const QString &famiglia)> HaFont;
    /// The characters that the font lacks.
    std::function<QString(const AspettoTesto &)> CaratteriMancanti;
    /// Of one line of text as it is printed, mm.
    std::function<QSizeF(const AspettoTesto &)> Misura;
    /// Of a picture of the models folder.
    std::function<StatoFile(const QString &nome)> Immagine;
    std::function<StatoFile(const ImmagineSfondo &)> Scansione;
    /// None without a printer: nothing is then said about paper.
    std::optional<FoglioStampante> Foglio;
    /// The row fields that the model file holds elsewhere than at the start of the rows, by slot,
    /// with their Y there, mm.
    std::map<int, double> FuoriRiga;
};
