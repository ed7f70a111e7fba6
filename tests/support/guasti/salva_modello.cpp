#include "base/ErroreSistema.h"
#include "documento/CopiaRecupero.h"
#include "model/FileModello.h"
#include "sistema/Disco.h"

#include "support/ModelloDiProva.h"

#include <QFile>

#include <limits>

namespace {

/// As the editor does, which keeps the work in a safety copy meanwhile.
void SalvaConCopia(const Modello &modello, const QString &file, const QString &stato)
{
    CopiaRecupero copia(stato, file);
    copia.Parte(Disco::Legge(file, std::numeric_limits<qint64>::max()));
    QByteArray byte;
    FileModello::ScriveModello(modello, file, &byte, [&] { copia.TieneIlLavoro(modello, byte); });
    copia.EliminaOfferte();
}

} // namespace

/// salva_modello FILE N [STATE]: saves the test model with N elements of each kind, as the program
/// does; with safety copies in the folder STATE if that is given. The exit status is 0, or the
/// number of the error.
int main(int argc, char *argv[])
{
    if (argc != 3 && argc != 4) {
        return 1;
    }
    QLocale::setDefault(QLocale::c());
    const QString file = QFile::decodeName(argv[1]);
    const Modello modello = ModelloDiProva(QByteArray(argv[2]).toInt());
    try {
        if (argc == 4) {
            SalvaConCopia(modello, file, QFile::decodeName(argv[3]));
        } else {
            FileModello::Salva(modello, file, QLocale::c());
        }
    } catch (const ErroreSistema &errore) {
        return errore.numero;
    }
    return 0;
}
