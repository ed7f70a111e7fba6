#include "sistema/PercorsoNellaCartella.h"

#include <algorithm>

QString PercorsoNellaCartella(const QStringList &radici, const QString &cartella,
                              const QString &nome, const QString &separatore)
{
    const bool radice = std::any_of(radici.begin(), radici.end(), [&](const QString &voce) {
        return voce + separatore == cartella || (voce == cartella && voce.endsWith(separatore));
    });
    return cartella + (radice ? QString() : separatore) + nome;
}
