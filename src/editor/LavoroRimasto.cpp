#include "editor/LavoroRimasto.h"

#include "documento/CopieRimaste.h"
#include "documento/FileCopia.h"
#include "documento/StatoProgramma.h"
#include "editor/FrmLavoroRimasto.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "finestre/NomeModello.h"
#include "model/FileModello.h"
#include "sistema/CartellaStato.h"
#include "sistema/Percorsi.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace {

using CopieRimaste::NonLetta;
using CopieRimaste::Rimasta;

void EliminaCopia(const QString &file)
{
    if (!FileCopia::Elimina(file)) {
        throw ErroreSistema(ErroreSistema::AutorizzazioneNegata,
                            DescrizioneErrore(ErroreSistema::AutorizzazioneNegata) +
                                QStringLiteral(": ") + QDir::toNativeSeparators(file));
    }
}

void OffreNonLetta(QWidget *padre, const NonLetta &nonLetta)
{
    const QString testo = QStringLiteral("copia di recupero non letta: ") +
                          nonLetta.errore.Messaggio() + u'\n' +
                          QDir::toNativeSeparators(nonLetta.file);
    enum { Tieni, GettaVia };
    if (Messaggi::DomandaAScelta(padre, testo,
                                 {QStringLiteral("&Tieni"), QStringLiteral("&Getta via")},
                                 Tieni) == GettaVia) {
        EliminaCopia(nonLetta.file);
    }
}

/// The folder for a new model: that of the old one, else that of the chosen archive; empty when
/// there is neither.
QString CartellaPerNuovo(const Rimasta &rimasta, const StatoProgramma &stato)
{
    const QString sua = QFileInfo(rimasta.percorso).path();
    if (QFileInfo(sua).isDir()) {
        return QDir::toNativeSeparators(sua) + Percorsi::Separatore();
    }
    // Without an archive it is still the folder of all of them.
    const bool archivio =
        QDir(stato.CartellaModelli).dirName().compare(QLatin1String("ini"), Qt::CaseInsensitive) ==
        0;
    return archivio ? stato.CartellaModelli : QString();
}

/// The file of the new model, in the spelling that the user gave it; empty when he gave up.
QString ChiedeFile(QWidget *padre, const Rimasta &rimasta, const QString &cartella)
{
    const auto libero = [&](const QString &nomeFile) {
        if (QFileInfo::exists(Percorsi::Risolve(cartella + nomeFile))) {
            Messaggi::Mostra(
                padre, QStringLiteral("%1 esiste già: scegliere un nome diverso").arg(nomeFile));
            return false;
        }
        return true;
    };
    const QString nomeFile = ChiedeNomeModello(
        padre, cartella,
        QStringLiteral("lavoro non salvato di %1\n\nDigitare un nome per il nuovo modello in\n%2")
            .arg(rimasta.modello.NomeFile, cartella),
        QFileInfo(rimasta.percorso).completeBaseName() + QStringLiteral("_recuperato"), libero);
    return nomeFile.isEmpty() ? QString() : cartella + nomeFile;
}

/// False when the user gave up.
bool SalvaComeNuovo(QWidget *padre, const Rimasta &rimasta, const StatoProgramma &stato)
{
    const QString cartella = CartellaPerNuovo(rimasta, stato);
    if (cartella.isEmpty()) {
        Messaggi::Mostra(padre, QStringLiteral("Selezionare una cartella"));
        return false;
    }
    const QString file = ChiedeFile(padre, rimasta, cartella);
    if (file.isEmpty()) {
        return false;
    }
    FileModello::ScriveModello(rimasta.modello, file);
    EliminaCopia(rimasta.file);
    return true;
}

bool GettaVia(QWidget *padre, const Rimasta &rimasta)
{
    if (!Messaggi::Domanda(
            padre,
            QStringLiteral("Il lavoro non salvato di %1 andrà perso.\nLO VUOI GETTARE "
                           "VIA?")
                .arg(rimasta.modello.NomeFile),
            Messaggi::Risposta::No)) {
        return false;
    }
    EliminaCopia(rimasta.file);
    return true;
}

enum class Sorte { ChiedeAncora, Tenuta, Salvata, GettataVia };

Sorte Offre(QWidget *padre, const Rimasta &rimasta, const StatoProgramma &stato)
{
    const QString testo =
        QStringLiteral(
            "lavoro non salvato di %1 del %2, rimasto da una chiusura imprevista.\n%3\n%4")
            .arg(rimasta.modello.NomeFile,
                 QLocale(QLocale::Italian).toString(rimasta.scritta, QLocale::ShortFormat),
                 rimasta.modelloCe ? QStringLiteral("Il modello non si può leggere:")
                                   : QStringLiteral("Il modello non c'è più:"),
                 QDir::toNativeSeparators(rimasta.percorso));
    enum { Guarda, Tieni, Salva, Getta };
    switch (Messaggi::DomandaAScelta(padre, testo,
                                     {QStringLiteral("G&uarda"), QStringLiteral("&Tieni"),
                                      QStringLiteral("&Salva come nuovo modello"),
                                      QStringLiteral("&Getta via")},
                                     Tieni)) {
    case Guarda:
        FrmLavoroRimasto(rimasta.modello, rimasta.percorso, padre).exec();
        return Sorte::ChiedeAncora;
    case Salva:
        return SalvaComeNuovo(padre, rimasta, stato) ? Sorte::Salvata : Sorte::ChiedeAncora;
    case Getta:
        return GettaVia(padre, rimasta) ? Sorte::GettataVia : Sorte::ChiedeAncora;
    default:
        return Sorte::Tenuta;
    }
}

} // namespace

bool OffreLavoroRimasto(QWidget *padre, const StatoProgramma &stato)
{
    const CopieRimaste::Trovate trovate = CopieRimaste::Cerca(CartellaStato());
    for (const NonLetta &nonLetta : trovate.nonLette) {
        Guardia(padre, [&] { OffreNonLetta(padre, nonLetta); });
    }
    bool salvata = false;
    for (const Rimasta &rimasta : trovate.rimaste) {
        Sorte sorte = Sorte::ChiedeAncora;
        while (sorte == Sorte::ChiedeAncora) {
            // A failure is told, and the question comes again: the work is still there.
            Guardia(padre, [&] { sorte = Offre(padre, rimasta, stato); });
        }
        salvata = salvata || sorte == Sorte::Salvata;
    }
    return salvata;
}
