#pragma once

#include "base/ErroreSistema.h"

#include <QPagedPaintDevice>
#include <QString>

/// Where one printed sheet goes: a print queue or a PDF file. The order is Prepara, painting on the
/// device, Consegna; without Consegna nothing reaches a printer.
class Destinazione
{
public:
    Destinazione() = default;
    virtual ~Destinazione() = default;
    Q_DISABLE_COPY_MOVE(Destinazione)

    /// The sheet at true size; its margins are what the printer cannot reach.
    virtual QPagedPaintDevice &Dispositivo() = 0;
    /// What the user knows it by: the printer's name, or the file's.
    virtual QString Nome() const = 0;
    virtual void Titolo(const QString &titolo) = 0;
    /// True where the sheet is looked at, smaller than it is: with its edges smoothed, so that none
    /// vanishes, and with fewer pixels of its pictures.
    virtual bool SulloSchermo() const { return false; }
    /// True where the device paints pictures onto whole points only, and takes the point at the
    /// left or above where a place lies between two.
    virtual bool FigureSuPuntiInteri() const { return false; }
    /// To be called before painting begins. Throws ErroreSistema when nothing could be printed.
    virtual void Prepara() {}
    /// What to throw when painting can be neither begun nor ended.
    virtual ErroreSistema Rifiuto() const = 0;
    /// Hands the painted sheet over. Throws ErroreSistema when it is known not to have been taken,
    /// or when nobody answers.
    virtual void Consegna() = 0;
    /// Gives the sheet up, while it is being painted.
    virtual void Rinuncia() {}
};
