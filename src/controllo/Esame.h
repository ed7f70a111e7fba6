#pragma once

#include "controllo/Condizioni.h"
#include "controllo/Rilievo.h"

#include <QList>
#include <QRectF>

#include <vector>

/// A text that the sheet will carry: what a field or a caption prints.
struct TestoSulFoglio
{
    Chiave Di;
    AspettoTesto Aspetto; ///< on one line, without blanks at its end
    QRectF Posto;         ///< mm
};

/// A picture that the sheet will carry.
struct FiguraSulFoglio
{
    Chiave Di;
    QRectF Posto; ///< mm
};

/// One check of one model: what all rules need of it, and what they have found.
class Esame
{
public:
    /// Both must outlive it.
    Esame(const Modello &modello, const Condizioni &condizioni);

    const Modello &Aperto() const { return modello_; }
    const Condizioni &Stanti() const { return condizioni_; }

    /// The texts with something to be seen, fields that are not printed left out.
    const std::vector<TestoSulFoglio> &Testi() const { return testi_; }
    /// The fields that are printed and have no test text: where the text that Vastrel will put
    /// there begins, as wide as a digit.
    const std::vector<TestoSulFoglio> &Vuoti() const { return vuoti_; }
    /// The pictures that cover something; one that fills the page does so only with a printer.
    const std::vector<FiguraSulFoglio> &Figure() const { return figure_; }
    /// The elements of the kind that are there.
    QList<Chiave> Presenti(Genere genere) const;
    /// What the border of a frame covers on paper, mm; empty for a label.
    static QRectF Bordo(const Cornice &cornice);

    /// As the user calls the element: "campo Doc_Numero", "il campo Doc_Numero".
    QString Nome(Chiave chiave) const;
    QString NomeConArticolo(Chiave chiave) const;

    void Aggiunge(SpecieRilievo specie, Chiave chiave, const QString &testo);
    void Aggiunge(SpecieRilievo specie, Rilievo::Luogo dove, const QString &testo);
    QList<Rilievo> Trovati() && { return std::move(trovati_); }

private:
    void RaccoglieTesti();
    void RaccoglieFigure();
    /// At whole millimetres, as it is printed.
    QRectF Figura(const Immagine &immagine) const;
    void RaccoglieTesto(Chiave chiave, AspettoTesto aspetto, const QPointF &angolo);

    const Modello &modello_;
    const Condizioni &condizioni_;
    std::vector<TestoSulFoglio> testi_;
    std::vector<TestoSulFoglio> vuoti_;
    std::vector<FiguraSulFoglio> figure_;
    QList<Rilievo> trovati_;
};
