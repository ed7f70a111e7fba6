#pragma once

#include "base/ErroreSistema.h"

/// The number of the ErroreSistema that azione throws; 0 when it throws none.
template <typename Azione>
int ErroreDi(Azione &&azione)
{
    try {
        azione();
    } catch (const ErroreSistema &errore) {
        return errore.numero;
    }
    return 0;
}
