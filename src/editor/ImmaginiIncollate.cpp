#include "editor/ImmaginiIncollate.h"

#include "base/ErroreSistema.h"
#include "grafica/Immagini.h"
#include "sistema/Disco.h"
#include "sistema/Percorsi.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace {

/// By what they are, not how they are spelled: a link to a folder is the folder.
bool StessaCartella(const QString &una, const QString &altra)
{
    if (una.isEmpty()) {
        return false;
    }
    // Windows finds no folder by a name that ends with a separator; QDir takes it away.
    std::error_code codice;
    return std::filesystem::equivalent(QDir(una).filesystemPath(), QDir(altra).filesystemPath(),
                                       codice) &&
           !codice;
}

/// Full path of a picture of the folder; empty when the name leads out of it.
QString PercorsoIn(const QString &cartella, const QString &nome)
{
    try {
        return Immagini::PercorsoInCartella(cartella, nome);
    } catch (const ErroreSistema &) {
        return {}; // the caller says that the image is left out
    }
}

bool Esiste(const QString &percorso)
{
    const QFileInfo file(percorso);
    return file.exists() || file.isSymLink();
}

QByteArray Contenuto(const QString &percorso)
{
    constexpr qint64 ByteAlMassimo = qint64(512) * 1024 * 1024; // as much as Percorsi::Copia takes
    try {
        return Disco::Legge(percorso, ByteAlMassimo);
    } catch (const ErroreSistema &errore) {
        throw ErroreSistema(errore.numero, errore.descrizione + QStringLiteral(": ") + percorso);
    }
}

bool StessoContenuto(const QString &uno, const QString &altro)
{
    return QFileInfo(altro).isFile() && QFileInfo(uno).size() == QFileInfo(altro).size() &&
           Contenuto(uno) == Contenuto(altro);
}

/// What comes from the clipboard names any file of the disk; only pictures are copied.
bool EUnImmagine(const QString &percorso)
{
    try {
        Immagini::DimensioniNaturali(percorso);
        return true;
    } catch (const ErroreSistema &) {
        return false; // the caller says that the image is left out
    }
}

/// Where a number is put into the name of a picture: before its extension, which need not begin
/// with a dot ("logojpg").
qsizetype FineDelNome(const QString &nome)
{
    const qsizetype punto = nome.lastIndexOf(u'.');
    if (punto > 0) {
        return punto;
    }
    const QLatin1String jpg("jpg");
    return nome.endsWith(jpg, Qt::CaseInsensitive) ? nome.size() - jpg.size() : nome.size();
}

} // namespace

ImmaginiIncollate::ImmaginiIncollate(ElementiCopiati &elementi, const Modello &modello,
                                     const QString &cartella)
    : elementi_(elementi)
    , cartella_(cartella)
    , stessaCartella_(StessaCartella(elementi.CartellaFonte, cartella))
{
    for (int i = 1; i <= modello.UltimoSlot(Genere::Immagine); ++i) {
        presi_.insert(modello.Immagini[i].Nome.toCaseFolded());
    }
}

void ImmaginiIncollate::Sceglie()
{
    const QList<Chiave> chiavi = elementi_.Ordine;
    for (const Chiave &chiave : chiavi) {
        if (chiave.genere == Genere::Immagine) {
            Sceglie(chiave);
        }
    }
}

void ImmaginiIncollate::Sceglie(Chiave chiave)
{
    const QString nome = Nome(chiave);
    const QString qui = PercorsoIn(cartella_, nome);
    if (qui.isEmpty()) {
        Tralascia(chiave, QStringLiteral("non è il nome di un file della cartella"));
        return;
    }
    if (stessaCartella_) {
        // Also one whose file is missing: it is as it was where it comes from.
        if (Preso(nome)) {
            Tralascia(chiave, QStringLiteral("il modello usa già questo file"));
        } else {
            Prende(chiave, nome);
        }
        return;
    }
    const QString fonte = elementi_.CartellaFonte.isEmpty()
                              ? QString()
                              : PercorsoIn(elementi_.CartellaFonte + u'/', nome);
    const bool esisteQui = QFileInfo(qui).isFile();
    const bool esisteFonte = QFileInfo(fonte).isFile();
    if (!esisteFonte && !esisteQui) {
        Tralascia(chiave, QStringLiteral("il file non si trova più"));
    } else if (!esisteFonte || (esisteQui && StessoContenuto(fonte, qui)) ||
               (Preso(nome) && !Esiste(qui))) {
        if (Preso(nome)) {
            Tralascia(chiave, QStringLiteral("il modello usa già questo file"));
        } else {
            Prende(chiave, nome);
        }
    } else if (!Percorsi::NomeFileValido(nome) || !EUnImmagine(fonte)) {
        Tralascia(chiave, QStringLiteral("il file non è un'immagine che si possa copiare"));
    } else if (Esiste(qui) || Preso(nome)) {
        daChiedere_.append({chiave, fonte});
    } else {
        Prende(chiave, nome);
        daCopiare_.append({chiave, fonte});
    }
}

void ImmaginiIncollate::Tralascia(Chiave chiave, const QString &perche)
{
    elementi_.Tralascia(chiave);
    note_.append(QStringLiteral("immagine %1 tralasciata: %2").arg(Nome(chiave), perche));
}

void ImmaginiIncollate::Prende(Chiave chiave, const QString &nome)
{
    Nome(chiave) = nome;
    presi_.insert(nome.toCaseFolded());
}

QString ImmaginiIncollate::NomeLibero(const QString &nome, const QString &fonte) const
{
    const qsizetype fine = FineDelNome(nome);
    for (int k = 2;; ++k) {
        const QString altro = nome.left(fine) + u'_' + QString::number(k) + nome.mid(fine);
        const QString percorso = PercorsoIn(cartella_, altro);
        // The copy that an earlier paste made is good enough.
        if (!Preso(altro) && (!Esiste(percorso) || StessoContenuto(fonte, percorso))) {
            return altro;
        }
    }
}

void ImmaginiIncollate::Chiede(const Domanda &domanda)
{
    for (const Copiata &figura : std::as_const(daChiedere_)) {
        const QString nuovo = NomeLibero(Nome(figura.chiave), figura.fonte);
        if (!domanda(Nome(figura.chiave), nuovo)) {
            Tralascia(figura.chiave, QStringLiteral("nella cartella un altro file ha il suo nome"));
            continue;
        }
        Prende(figura.chiave, nuovo);
        if (!Esiste(PercorsoIn(cartella_, nuovo))) {
            daCopiare_.append(figura);
        }
    }
}

void ImmaginiIncollate::Copia() const
{
    QStringList copiati;
    try {
        for (const Copiata &figura : daCopiare_) {
            const QString percorso =
                PercorsoIn(cartella_, elementi_.Elementi.Di(figura.chiave).Nome);
            if (Esiste(percorso)) {
                // Another program's, put there while the question was open.
                throw ErroreSistema(ErroreSistema::AccessoFile,
                                    QStringLiteral("Il file esiste già: ") + percorso);
            }
            Percorsi::Copia(figura.fonte, percorso);
            copiati.append(percorso);
        }
    } catch (const ErroreSistema &) {
        for (const QString &percorso : std::as_const(copiati)) {
            QFile::remove(percorso);
        }
        throw;
    }
}
