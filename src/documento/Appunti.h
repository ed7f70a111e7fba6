#pragma once

#include "model/Modello.h"

#include <QList>
#include <QString>

#include <memory>
#include <optional>

class QMimeData;

/// Elements on their way from one place to another, without the model they come from.
struct ElementiCopiati
{
    Modello Elementi;      ///< its tables and counts; the rest is that of an empty model
    QList<Chiave> Ordine;  ///< the elements of those tables, in the order in which they were chosen
    QString CartellaFonte; ///< models folder where their pictures are; empty when not known

    /// The elements of modello that have a name (an image without a file yet has none), in the
    /// order of chiavi.
    static ElementiCopiati Da(const Modello &modello, const QList<Chiave> &chiavi,
                              const QString &cartella);

    /// Takes the element out of Ordine: it is not to be added. Its record stays.
    void Tralascia(Chiave chiave) { Ordine.removeOne(chiave); }
    int Quanti(Genere genere) const;
};

/// The clipboard's content: the elements as the lines of the model file (FileModello), with a
/// decimal point in every country, in a type of our own and as text; beside them, for the pictures,
/// where they come from.
namespace Appunti {

inline constexpr QLatin1String TipoElementi("application/x-plakera-elementi");
inline constexpr QLatin1String TipoOrigine("application/x-plakera-origine");

/// Holds all it gives: whoever copied may close the model and the program's windows.
std::unique_ptr<QMimeData> Compone(const ElementiCopiati &elementi);

/// Nothing when the content is not, to the byte, what Compone can have written: other programs can
/// put anything under our types. contenuto may be null. An origin that cannot be understood is
/// none.
std::optional<ElementiCopiati> Legge(const QMimeData *contenuto);

} // namespace Appunti
