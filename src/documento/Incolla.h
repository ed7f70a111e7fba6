#pragma once

#include "documento/Appunti.h"

#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <functional>

class Documento;

/// Adds copied elements to the open model.
namespace Incolla {

/// Where the elements go, in mm of paper.
struct Dove
{
    /// From where they stood, to the right and down. The group as a whole stays on the sheet, its
    /// left and upper edge above all, and its elements as they stand to each other.
    double scarto = 0;
    /// Exactly where they stood, unless that is off the sheet.
    bool sulPosto = false;
    QSizeF foglio;
    /// Of an element on paper: of a field that of its text.
    std::function<QSizeF(const Modello &, Chiave)> misura;
};

/// What undo will say, and a message.
struct Parole
{
    QString verbo;      ///< "incolla"
    QString infinito;   ///< "incollare"
    QString possessore; ///< "gli appunti ne hanno": whose elements they are, before their number
};

/// Why the elements do not fit into the tables of modello; empty when they do.
QString SenzaPosto(const Modello &modello, const ElementiCopiati &elementi, const Parole &parole);

struct Esito
{
    QList<Chiave> nuovi;    ///< in the order of the elements
    QStringList rinominati; ///< fields that have another name than they had
};

/// Adds the elements in one step. A field or frame whose name is taken, in any case, gets "_2",
/// "_3" ... after it; a row field stands at the model's own yInizio. Throws ErroreSistema 9, with
/// some elements added, when they do not fit.
Esito Aggiunge(Documento &documento, const ElementiCopiati &elementi, const Parole &parole,
               const Dove &dove);

} // namespace Incolla
