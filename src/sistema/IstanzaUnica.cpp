#include "sistema/IstanzaUnica.h"

#include "sistema/CartellaStato.h"

#include <QDir>
#include <QStandardPaths>

namespace {

#ifdef Q_OS_WIN

QString Cartella()
{
    // What Qt calls the runtime folder is the user's home, which may be on a server and shared by
    // two machines; local data never is.
    QString cartella = CartellaStato();
    QDir().mkpath(cartella);
    return cartella;
}

#else

QString Cartella()
{
    // The runtime folder is the user's own and goes with the machine, so two users of one machine
    // and one user's home shared by two machines do not block each other.
    QString cartella = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (cartella.isEmpty()) {
        cartella = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
        QDir().mkpath(cartella);
    }
    return cartella;
}

#endif

QString FileLucchetto()
{
    return QDir(Cartella()).filePath(QStringLiteral("plakera.lock"));
}

} // namespace

IstanzaUnica::IstanzaUnica()
    : lucchetto_(FileLucchetto())
{
}

bool IstanzaUnica::Acquisisce()
{
    // A full or read-only disk is no second instance, nor is what somebody left in the lock's
    // place; neither may keep the user out.
    return lucchetto_.Prende() != Lucchetto::Esito::Occupato;
}
