#include "model/FileModello.h"

#include "base/Disco.h"
#include "base/ErroreSistema.h"

void FileModello::Carica(Modello &modello, const QString &percorso)
{
    // Emptied before the file is looked for: a model that cannot be opened shows no elements.
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        modello.Numero(genere) = 0;
    }
    Analizza(Disco::Legge(percorso, DimensioneMassima), modello);
}

void FileModello::Salva(const Modello &modello, const QString &percorso, const QLocale &locale)
{
    Disco::Sostituisce(percorso, Componi(modello, locale));
}

bool FileModello::LeggeModello(Modello &modello, const QString &percorso,
                               const Numeri::Avviso &avviso)
{
    try {
        Carica(modello, percorso);
        return true;
    } catch (const ErroreSistema &errore) {
        avviso(QStringLiteral("impossibile leggere file %1\n%2\n%3")
                   .arg(modello.NomeFile, QString::number(errore.numero), errore.descrizione));
        return false;
    }
}

void FileModello::ScriveModello(const Modello &modello, const QString &percorso)
{
    Salva(modello, percorso);
}
