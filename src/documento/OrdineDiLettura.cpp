#include "documento/OrdineDiLettura.h"

#include "documento/Documento.h"

#include <algorithm>
#include <tuple>

QList<Chiave> OrdineDiLettura(const Documento &documento)
{
    const Modello &modello = documento.Aperto();
    QList<Chiave> chiavi;
    for (const Genere genere : Generi) {
        for (int i = 1; i <= modello.UltimoSlot(genere); ++i) {
            if (documento.InVista({genere, i})) {
                chiavi.append({genere, i});
            }
        }
    }
    std::sort(chiavi.begin(), chiavi.end(), [&](Chiave a, Chiave b) {
        const Elemento &prima = modello.Di(a);
        const Elemento &dopo = modello.Di(b);
        return std::tie(prima.Y, prima.X, a.genere, a.indice) <
               std::tie(dopo.Y, dopo.X, b.genere, b.indice);
    });
    return chiavi;
}
