#pragma once

#include <QList>

#include <optional>

/// Lines along one axis of the sheet that attract what is moved. Everything in mm of paper; what
/// they attract ends on whole millimetres.
class Calamita
{
public:
    static constexpr double Portata = 1; ///< how near something must come

    /// linee: in any order.
    explicit Calamita(QList<double> linee = {});

    struct Presa
    {
        int posto;    ///< of the beginning, or of the edge
        double linea; ///< the one that has attracted it
    };
    /// The first and the last place that may be taken.
    struct Limiti
    {
        double primo;
        double ultimo;
    };
    /// A stretch from inizio on, by its ends and its middle; the nearest line wins, and of lines
    /// equally near the one at the beginning, then the one at the end.
    std::optional<Presa> Tratto(double inizio, double lunghezza, Limiti limiti) const;
    /// A single edge that is not to pass ultimo.
    std::optional<Presa> Bordo(double posto, double ultimo) const
    {
        return Tratto(posto, 0, {0, ultimo});
    }

private:
    std::optional<double> Vicina(double posto) const;

    QList<double> linee_; // ascending
};
