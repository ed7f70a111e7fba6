#include "print/FileDiUscita.h"

#include "base/ErroreSistema.h"
#include "grafica/Immagini.h"
#include "model/Modello.h"
#include "sistema/Disco.h"
#include "sistema/Percorsi.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>

namespace {

constexpr QLatin1String EstensioneModello(".Mod");

bool UnSoloFile(const QString &uno, const QString &altro)
{
    std::error_code codice;
    return std::filesystem::equivalent(QFileInfo(uno).filesystemFilePath(),
                                       QFileInfo(altro).filesystemFilePath(), codice) &&
           !codice;
}

/// True also for two names of a file that is not there yet. Names that differ only by case are one
/// to the program, and on some disks.
bool Coincidono(const QString &uno, const QString &altro)
{
    const QFileInfo primo(uno);
    const QFileInfo secondo(altro);
    return UnSoloFile(Percorsi::Risolve(uno), Percorsi::Risolve(altro)) ||
           (primo.fileName().compare(secondo.fileName(), Qt::CaseInsensitive) == 0 &&
            (primo.absolutePath() == secondo.absolutePath() ||
             UnSoloFile(primo.path(), secondo.path())));
}

/// The files behind the pictures and the scan of the model; they need not exist.
QStringList FigureDi(const Modello &modello, const QString &cartella)
{
    QStringList figure;
    if (!modello.Sfondo.File.isEmpty()) {
        figure.append(modello.Sfondo.File);
    }
    for (int i = 1; i <= modello.UltimoSlot(Genere::Immagine); ++i) {
        try {
            figure.append(Immagini::PercorsoInCartella(cartella, modello.Immagini[i].Nome));
        } catch (const ErroreSistema &) {
            continue; // a name that leads to no file of the archive has none to be lost
        }
    }
    return figure;
}

/// Asked of each name on the way too: a link with a model's name is the model to Vastrel.
bool HaNomeDiModello(const QStringList &nomi)
{
    return std::any_of(nomi.begin(), nomi.end(), [](const QString &nome) {
        return nome.endsWith(EstensioneModello, Qt::CaseInsensitive);
    });
}

[[noreturn]] void Rifiuta(const QString &motivo, const QString &file)
{
    throw ErroreSistema(ErroreSistema::AccessoFile, motivo + QStringLiteral(": ") + file);
}

/// Runs the action; what it throws names the file.
void Nominando(const QString &percorso, const std::function<void()> &azione)
{
    try {
        azione();
    } catch (const ErroreSistema &errore) {
        throw ErroreSistema(
            errore.numero,
            QStringLiteral("impossibile scrivere %1: %2").arg(percorso, errore.descrizione));
    }
}

} // namespace

void FileDiUscita::Verifica(const QStringList &uscite, const QString &percorsoModello,
                            const Modello &modello)
{
    const QString cartella = QFileInfo(percorsoModello).absolutePath() + Percorsi::Separatore();
    const QStringList figure = FigureDi(modello, cartella);
    QStringList file; // behind any links
    for (const QString &uscita : uscite) {
        QStringList nomi;
        Nominando(uscita, [&] { nomi = Disco::DietroICollegamenti(uscita); });
        const QString &scritto = nomi.constLast();
        if (HaNomeDiModello(nomi) || UnSoloFile(scritto, percorsoModello)) {
            Rifiuta(QStringLiteral("il modello non può essere sovrascritto"), uscita);
        }
        const auto coincide = [&](const QString &altro) { return Coincidono(scritto, altro); };
        if (std::any_of(figure.begin(), figure.end(), coincide)) {
            Rifiuta(QStringLiteral("un'immagine del modello non può essere sovrascritta"), uscita);
        }
        if (std::any_of(file.begin(), file.end(), coincide)) {
            Rifiuta(QStringLiteral("due uscite nello stesso file"), uscita);
        }
        file.append(scritto);
    }
}

void FileDiUscita::Scrive(const QString &percorso,
                          const std::function<QByteArray(const QString &appoggio)> &compone)
{
    Nominando(percorso, [&] {
        QByteArray byte;
        {
            const Disco::Appoggio appoggio(percorso);
            byte = compone(appoggio.Percorso());
        }
        Disco::Sostituisce(percorso, byte);
    });
}
