#pragma once

#include "support/FileDiProva.h"

/// NomiIn without the empty file that Wine's own ReplaceFile leaves when it fails.
inline QStringList NomiSenzaWine(const QString &cartella)
{
    QStringList nomi = NomiIn(cartella);
    nomi.removeIf([](const QString &nome) {
        return nome.startsWith(QLatin1String("rf")) && nome.endsWith(QLatin1String(".tmp"));
    });
    return nomi;
}
