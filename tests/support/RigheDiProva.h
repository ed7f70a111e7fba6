#pragma once

#include "model/Modello.h"

#include <QByteArray>
#include <QList>

/// Model files built line by line, in the words of the file itself.
namespace RigheDiProva {

using Righe = QList<QByteArray>;

/// Each line ended by CR LF.
QByteArray File(const Righe &righe);

/// Lines 1 to 13.
Righe Testata();
/// Header and free lines, what every model begins with: 51 lines.
Righe Inizio();

Righe BloccoCampo(const QByteArray &nome);
Righe BloccoCornice(const QByteArray &nome);
Righe BloccoImmagine(const QByteArray &nome);
Righe Blocco(Genere genere, const QByteArray &nome);

/// A whole file with these blocks in the section of the kind.
Righe Intero(Genere genere, const Righe &blocchi);

/// The model that the bytes hold; throws what the reader throws.
Modello Letto(const QByteArray &byte);

/// The number of the error that reading the bytes into the model ends with; 0 for none.
int ErroreLeggendo(const QByteArray &byte, Modello &modello);

} // namespace RigheDiProva
