#include "finestre/NomeModello.h"

#include "base/Ansi.h"
#include "finestre/Messaggi.h"
#include "sistema/ElencoModelli.h"
#include "sistema/Percorsi.h"

#include <QFileInfo>

namespace {

bool Utilizzabile(QWidget *padre, const QString &cartella, const QString &nome)
{
    const QString nomeFile = nome + ElencoModelli::Estensione;
    // Vastrel, too, must be able to open a file of this name.
    if (!Percorsi::NomeFileValido(nomeFile) || !Ansi::Rappresentabile(nome)) {
        Messaggi::Mostra(
            padre,
            QStringLiteral("\"%1\" non è un nome valido per un modello.\n\nUn nome non può "
                           "contenere \\ / : * ? \" < > | né caratteri che Vastrel non "
                           "conosce e non può essere un nome riservato di Windows (CON, PRN, "
                           "AUX, NUL, COM1, LPT1...).")
                .arg(nome));
        return false;
    }
    if (QFileInfo(Percorsi::Risolve(cartella + nomeFile)).isDir()) {
        Messaggi::Mostra(padre, QStringLiteral("%1 è il nome di una cartella: scegliere un nome "
                                               "diverso per il modello")
                                    .arg(nomeFile));
        return false;
    }
    return true;
}

} // namespace

QString ChiedeNomeModello(QWidget *padre, const QString &cartella, const QString &testo,
                          const QString &proposto, const NomeAccettato &accettato)
{
    // A name that cannot be used comes back to be mended, not to be typed again.
    QString nome = proposto;
    for (;;) {
        nome = Messaggi::ChiedeTesto(padre, QStringLiteral("Nuovo modello di stampa"), testo, nome)
                   .value_or(QString());
        if (nome.isEmpty()) {
            return {};
        }
        const QString nomeFile = nome + ElencoModelli::Estensione;
        if (Utilizzabile(padre, cartella, nome) && (!accettato || accettato(nomeFile))) {
            return nomeFile;
        }
    }
}
