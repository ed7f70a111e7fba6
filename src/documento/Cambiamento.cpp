#include "documento/Cambiamento.h"

#include <algorithm>

bool Cambiamento::Vuoto() const
{
    return !Tipo && !Righe && !Sfondo &&
           std::none_of(Generi.begin(), Generi.end(),
                        [this](Genere genere) { return Contiene(genere); });
}

QList<Chiave> Cambiamento::Elementi() const
{
    QList<Chiave> chiavi;
    for (const Genere genere : Generi) {
        if (!Contiene(genere)) {
            continue;
        }
        for (int i = 1; i <= Tabella<Campo>::UltimoSlot; ++i) {
            if (Contiene(Chiave{genere, i})) {
                chiavi.append({genere, i});
            }
        }
    }
    return chiavi;
}
