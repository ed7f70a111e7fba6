#include "LineaDiComando.h"

#include "ControlloDaRiga.h"
#include "base/ErroreSistema.h"
#include "documento/StatoProgramma.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "model/FileModello.h"
#include "model/Numeri.h"
#include "preview/Frm1.h"
#include "preview/SfondoDelModello.h"
#include "print/FileDiUscita.h"
#include "print/StampaProva.h"
#include "print/Stampanti.h"
#include "sistema/Disco.h"
#include "sistema/Percorsi.h"

#include <QBuffer>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QPixmap>

#include <limits>

namespace {

struct Opzioni
{
    QCommandLineOption aiuto{{QStringLiteral("h"), QStringLiteral("help")},
                             QStringLiteral("Mostra questo aiuto.")};
    QCommandLineOption versione{{QStringLiteral("v"), QStringLiteral("version")},
                                QStringLiteral("Mostra la versione.")};
    QCommandLineOption dati{
        QStringLiteral("dati"),
        QStringLiteral("Usa questa cartella dati al posto di quella di Vastrel."),
        QStringLiteral("cartella")};
    QCommandLineOption modello{QStringLiteral("modello"),
                               QStringLiteral("Modello da stampare senza aprire finestre."),
                               QStringLiteral("file")};
    QCommandLineOption pdf{QStringLiteral("pdf"),
                           QStringLiteral("Stampa di prova del modello in un file PDF."),
                           QStringLiteral("file")};
    QCommandLineOption anteprima{QStringLiteral("anteprima"),
                                 QStringLiteral("Salva l'anteprima del modello in un file PNG."),
                                 QStringLiteral("file")};
    QCommandLineOption nomi{QStringLiteral("nomi"),
                            QStringLiteral("Stampa il nome dei campi invece del testo di prova.")};
    QCommandLineOption controlla{
        QStringLiteral("controlla"),
        QStringLiteral("Controlla i modelli indicati, o tutti quelli di una cartella, e scrive una "
                       "riga per ogni rilievo. Esito 0: nessun rilievo, 1: rilievi, 2: un modello "
                       "non si legge, una cartella non ne contiene, un argomento è sbagliato o "
                       "i rilievi non si possono scrivere.")};
};

/// What follows the options in the help.
constexpr auto Esiti =
    "\nLa cartella indicata con --dati vale per questa volta sola; senza, vale dirtxt\n"
    "di Vastrel. --pdf, --anteprima e --controlla non aprono finestre e vanno anche\n"
    "senza schermo.\n"
    "\n"
    "Esito: 0 se tutto va bene; 1 se un argomento è sbagliato, se il modello non si\n"
    "apre o non si stampa com'è, se il programma è già in esecuzione o se mancano lo\n"
    "schermo o dirtxt; il messaggio dice quale. Dopo --controlla vedi sopra.\n";

QString Errore(const QString &testo)
{
    return QStringLiteral("plakera: ") + testo + u'\n';
}

/// The contradiction between the options and the other arguments, if any.
QString Contraddizione(const Richieste &richieste, const QStringList &altri)
{
    if (richieste.Stampa() && richieste.modello.isEmpty()) {
        return QStringLiteral("--pdf e --anteprima vogliono un --modello");
    }
    if (!richieste.Stampa() && !richieste.modello.isEmpty()) {
        return QStringLiteral("--modello vuole --pdf o --anteprima");
    }
    if (richieste.nomi && richieste.pdf.isEmpty()) {
        return QStringLiteral("--nomi vuole --pdf");
    }
    if (!altri.isEmpty() && (richieste.Stampa() || altri.constFirst().isEmpty())) {
        return QStringLiteral("argomento inatteso: ") + altri.constFirst();
    }
    if (altri.size() > 1) {
        return QStringLiteral("si apre un solo modello alla volta");
    }
    return {};
}

/// What is wrong with a request to check models, if anything.
QString ControlloImpossibile(const Richieste &richieste)
{
    if (richieste.daControllare.isEmpty()) {
        return QStringLiteral("--controlla vuole almeno un modello o una cartella");
    }
    const Richieste solo{{}, {}, {}, {}, false, richieste.daControllare, {}};
    return richieste == solo ? QString()
                             : QStringLiteral("--controlla non va con le altre opzioni");
}

void Avvisa(const QString &testo)
{
    Messaggi::Mostra(nullptr, testo);
}

QString CartellaDi(const QString &percorso)
{
    return QFileInfo(percorso).absolutePath() + Percorsi::Separatore();
}

void StampaPdf(const StatoProgramma &stato, const Richieste &richieste)
{
    FileDiUscita::Scrive(richieste.pdf, [&](const QString &appoggio) {
        const auto stampante = Stampanti::SuPdf(appoggio);
        StampaModello(stato.Aperto(), stato.CartellaModelli, *stampante, richieste.nomi, Avvisa);
        return Disco::Legge(appoggio, std::numeric_limits<qint64>::max());
    });
}

void SalvaAnteprima(StatoProgramma &stato, const Richieste &richieste)
{
    Frm1 anteprima(stato);
    try {
        SfondoDelModello::Disegna(stato.Aperto().Sfondo, anteprima);
    } catch (const ErroreSistema &errore) {
        // Told, and the sheet is shown without it, as in the editor.
        Avvisa(SfondoDelModello::NonCaricato(stato.Aperto().Sfondo, errore));
    }
    anteprima.MostraModello();
    FileDiUscita::Scrive(richieste.anteprima, [&](const QString &) {
        QBuffer byte;
        if (!byte.open(QIODevice::WriteOnly) || !anteprima.Ritratto().save(&byte, "PNG")) {
            throw ErroreSistema(ErroreSistema::MemoriaEsaurita);
        }
        return byte.data();
    });
}

QStringList Uscite(const Richieste &richieste)
{
    QStringList uscite{richieste.pdf, richieste.anteprima};
    uscite.removeAll(QString());
    return uscite;
}

} // namespace

LetturaArgomenti LeggeArgomenti(const QStringList &argomenti)
{
    const Opzioni opzioni;
    QCommandLineParser lettore;
    lettore.setApplicationDescription(
        QStringLiteral("Plakera - Modelli stampa per gestionale Vastrel"));
    lettore.addOptions({opzioni.aiuto, opzioni.versione, opzioni.dati, opzioni.modello, opzioni.pdf,
                        opzioni.anteprima, opzioni.nomi, opzioni.controlla});
    lettore.addPositionalArgument(
        QStringLiteral("modello"),
        QStringLiteral("Il modello da aprire nell'editor, uno solo: le sue immagini sono nella sua "
                       "cartella. Senza, si apre la finestra iniziale. Dopo --controlla: i file e "
                       "le cartelle da controllare, uno o più."),
        QStringLiteral("[modello...]"));
    const bool letti = lettore.parse(argomenti);
    const bool controlla = lettore.isSet(opzioni.controlla);
    const int statoErrore = controlla ? ControlloDaRiga::Illeggibile : 1;
    if (!letti) {
        return {std::nullopt, Errore(lettore.errorText()), statoErrore};
    }
    if (lettore.isSet(opzioni.aiuto)) {
        return {std::nullopt, lettore.helpText() + QString::fromUtf8(Esiti), 0};
    }
    if (lettore.isSet(opzioni.versione)) {
        return {std::nullopt, QStringLiteral("plakera " PLAKERA_VERSIONE "\n"), 0};
    }
    const QStringList altri = lettore.positionalArguments();
    Richieste richieste{lettore.value(opzioni.dati),
                        lettore.value(opzioni.modello),
                        lettore.value(opzioni.pdf),
                        lettore.value(opzioni.anteprima),
                        lettore.isSet(opzioni.nomi),
                        controlla ? altri : QStringList(),
                        controlla ? QString() : altri.value(0)};
    const QString contraddizione =
        controlla ? ControlloImpossibile(richieste) : Contraddizione(richieste, altri);
    if (!contraddizione.isEmpty()) {
        return {std::nullopt, Errore(contraddizione), statoErrore};
    }
    return {std::move(richieste), {}, 0};
}

int StampaSenzaFinestre(const Richieste &richieste)
{
    Messaggi::SoloErroreStandard();
    Guardia(nullptr, [&] {
        const QString percorso = Percorsi::Risolve(richieste.modello);
        StatoProgramma stato;
        stato.CartellaModelli = CartellaDi(percorso);
        stato.NomeFile = QFileInfo(percorso).fileName();
        Modello modello;
        modello.NomeFile = stato.NomeFile;
        if (!FileModello::LeggeModello(modello, percorso, Avvisa)) {
            return;
        }
        FileDiUscita::Verifica(Uscite(richieste), percorso, modello);
        stato.documento.Prende(std::move(modello), false);
        if (!richieste.pdf.isEmpty()) {
            StampaPdf(stato, richieste);
        }
        if (!richieste.anteprima.isEmpty()) {
            SalvaAnteprima(stato, richieste);
        }
    });
    return Messaggi::Emessi() == 0 ? 0 : 1;
}
