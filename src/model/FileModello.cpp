#include "model/FileModello.h"

#include "base/ErroreSistema.h"

namespace {

QByteArray LeggeByte(Modello &modello, const QString &percorso)
{
    // Emptied before the file is looked for: a model that cannot be opened shows no elements.
    for (const Genere genere : Generi) {
        modello.Numero(genere) = 0;
    }
    return Disco::Legge(percorso, FileModello::DimensioneMassima);
}

} // namespace

void FileModello::Carica(Modello &modello, const QString &percorso)
{
    Analizza(LeggeByte(modello, percorso), modello);
}

QByteArray FileModello::ComponiLeggibile(const Modello &modello, const QLocale &locale)
{
    QByteArray byte = Componi(modello, locale);
    if (byte.size() > DimensioneMassima) {
        throw ErroreSistema(
            ErroreSistema::MemoriaEsaurita,
            QStringLiteral("Modello troppo grande: salvato, non si potrebbe più aprire"));
    }
    return byte;
}

void FileModello::Salva(const Modello &modello, const QString &percorso, const QLocale &locale)
{
    Disco::Sostituisce(percorso, ComponiLeggibile(modello, locale));
}

bool FileModello::LeggeModello(Modello &modello, const QString &percorso,
                               const Numeri::Avviso &avviso, std::optional<QByteArray> *byte)
{
    try {
        const QByteArray letti = LeggeByte(modello, percorso);
        if (byte != nullptr) {
            *byte = letti;
        }
        Analizza(letti, modello);
        return true;
    } catch (const ErroreSistema &errore) {
        avviso(QStringLiteral("impossibile leggere file %1\n%2\n%3")
                   .arg(modello.NomeFile, QString::number(errore.numero), errore.descrizione));
        return false;
    }
}

void FileModello::ScriveModello(const Modello &modello, const QString &percorso, QByteArray *byte,
                                const Disco::PrimaDiRiscrivere &prima)
{
    const QByteArray composti = ComponiLeggibile(modello);
    if (byte != nullptr) {
        *byte = composti;
    }
    Disco::Sostituisce(percorso, composti, prima);
}
