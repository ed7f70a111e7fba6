#include "base/Disco.h"
#include "base/ErroreSistema.h"
#include "model/FileModello.h"
#include "platform/SuDisco.h"

#include "support/ModelloDiProva.h"

#include <QFile>

/// salva_modello FILE N: saves the test model with N elements of each kind, as the program does.
/// The exit status is 0, or the number of the error.
int main(int argc, char *argv[])
{
    if (argc != 3) {
        return 1;
    }
    Disco::UsaSincronizzazione(&SuDisco::Sincronizza, &SuDisco::SincronizzaCartella);
    Disco::UsaProprieta(&SuDisco::TieneProprieta);
    try {
        FileModello::Salva(ModelloDiProva(QByteArray(argv[2]).toInt()), QFile::decodeName(argv[1]),
                           QLocale::c());
    } catch (const ErroreSistema &errore) {
        return errore.numero;
    }
    return 0;
}
