#pragma once

#include "model/Modello.h"
#include "model/Numeri.h"
#include "sistema/Disco.h"

#include <QByteArray>
#include <QLocale>

#include <optional>

/// The model file: one value a line, Windows-1252, CR LF. The layout is fixed to the line because
/// Vastrel reads the same file.
namespace FileModello {

/// In bytes. More than a model can hold whose every text fills its text box; what is larger is no
/// model, is not read into memory and is not written.
inline constexpr qint64 DimensioneMassima = qint64(64) * 1024 * 1024;

/// Parses byte into modello: the counts start from 0, NomeFile stays. Throws ErroreSistema (62 past
/// the end, 9 beyond 100 elements, 6 or 380 for a value that cannot be stored); what was read until
/// then stays in the model.
void Analizza(const QByteArray &byte, Modello &modello);

/// The whole file, without the absent elements. The locale's decimal separator is that of printed
/// and plain numbers; a frame's border always has a point. A CR inside a text becomes a blank.
QByteArray Componi(const Modello &modello, const QLocale &locale = QLocale());

/// The lines of the elements alone, as they end the whole file: from the first field's to the last
/// marker.
QByteArray ComponiElementi(const Modello &modello, const QLocale &locale = QLocale());

/// Parses such lines as Analizza does the end of a file, as leniently; of modello only the elements
/// and their counts change. Throws as Analizza.
void AnalizzaElementi(const QByteArray &byte, Modello &modello);

/// Componi for a file that is to be read again. Throws ErroreSistema 7 for a model that would be
/// larger than DimensioneMassima: one read from a file just below it may be, since numbers and ends
/// of lines can be written longer than they were.
QByteArray ComponiLeggibile(const Modello &modello, const QLocale &locale = QLocale());

/// Reads the file. Throws ErroreSistema (53, 57, 75, 76 for the file, 7 when it is larger than
/// DimensioneMassima, and those of Analizza).
void Carica(Modello &modello, const QString &percorso);

/// Replaces the file by Disco::Sostituisce: after a failure (thrown as ErroreSistema 7, 61, 70, 75,
/// 76, 57) the old file stands whole.
void Salva(const Modello &modello, const QString &percorso, const QLocale &locale = QLocale());

/// Carica, reporting a failure through avviso as "impossibile leggere file ", NomeFile, a line
/// feed, the number, a line feed and the description. True when the model was read to the end.
/// byte, when asked for, gets the file's bytes, also those that are no model; nothing when the file
/// could not be read.
bool LeggeModello(Modello &modello, const QString &percorso, const Numeri::Avviso &avviso,
                  std::optional<QByteArray> *byte = nullptr);

/// The editor's save: writes to percorso as Salva does, with prima as Disco::Sostituisce. byte,
/// when asked for, gets the bytes before they are written, so that they are known to prima and
/// after a failure.
void ScriveModello(const Modello &modello, const QString &percorso, QByteArray *byte = nullptr,
                   const Disco::PrimaDiRiscrivere &prima = {});

} // namespace FileModello
