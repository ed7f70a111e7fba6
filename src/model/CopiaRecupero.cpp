#include "model/CopiaRecupero.h"

#include "base/Disco.h"
#include "base/Lucchetto.h"
#include "model/FileModello.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QUrl>

namespace {

constexpr QByteArrayView Firma = "plakera-recupero 1";
constexpr QLatin1String Estensione(".recupero");
constexpr QLatin1String EstensioneLucchetto(".lock");
constexpr qint64 DimensioneMassima = FileModello::DimensioneMassima + qint64(64) * 1024;
constexpr int RigheIntestazione = 4;
constexpr const char *Assente = "assente";

QByteArray Somma(const QByteArray &byte)
{
    return QCryptographicHash::hash(byte, QCryptographicHash::Sha256).toHex();
}

/// The head of a copy: signature, path of the model, checksum of the model file, checksum of the
/// body; one line each. The path is percent-encoded, since it may hold a line feed.
QByteArray Intestazione(const QString &percorso, const QByteArray &impronta,
                        const QByteArray &corpo)
{
    return Firma.toByteArray() + '\n' + QUrl::toPercentEncoding(percorso) + '\n' + impronta + '\n' +
           Somma(corpo) + '\n';
}

/// A file that is not there, or cannot be read, equals no file that ever was.
QByteArray Impronta(const std::optional<QByteArray> &byte)
{
    return byte ? Somma(*byte) : QByteArray(Assente);
}

/// With no file to be read there is nothing that taking up a copy could lose.
bool Cambiato(const QByteArray &allora, const QByteArray &adesso)
{
    return adesso != Assente && adesso != allora;
}

struct Letta
{
    QString percorso;
    QByteArray impronta;
    QByteArray corpo;
};

std::optional<Letta> Legge(const QString &file)
{
    const QByteArray byte = Disco::Legge(file, DimensioneMassima);
    QList<QByteArray> righe;
    qsizetype inizio = 0;
    while (righe.size() < RigheIntestazione) {
        const qsizetype fine = byte.indexOf('\n', inizio);
        if (fine < 0) {
            return std::nullopt;
        }
        righe.append(byte.mid(inizio, fine - inizio));
        inizio = fine + 1;
    }
    const QByteArray corpo = byte.mid(inizio);
    if (righe[0] != Firma || righe[3] != Somma(corpo)) {
        return std::nullopt;
    }
    return Letta{QUrl::fromPercentEncoding(righe[1]), righe[2], corpo};
}

std::unique_ptr<Lucchetto> LucchettoDi(const QString &copia)
{
    return std::make_unique<Lucchetto>(copia + EstensioneLucchetto);
}

/// True when a living program is writing the copy.
bool InUso(const QString &copia)
{
    return LucchettoDi(copia)->Prende() == Lucchetto::Esito::Occupato;
}

/// False when the copy is still there.
bool Elimina(const QString &copia)
{
    return QFile::remove(copia) || !QFileInfo::exists(copia);
}

} // namespace

CopiaRecupero::CopiaRecupero(QString cartella, const QString &percorsoModello)
    : cartella_(std::move(cartella))
    , percorsoModello_(QFileInfo(percorsoModello).absoluteFilePath())
    , radice_(QString::fromLatin1(
          QCryptographicHash::hash(percorsoModello_.toUtf8(), QCryptographicHash::Sha1).toHex()))
{
}

CopiaRecupero::~CopiaRecupero() = default;
CopiaRecupero::CopiaRecupero(CopiaRecupero &&) noexcept = default;
CopiaRecupero &CopiaRecupero::operator=(CopiaRecupero &&) noexcept = default;

void CopiaRecupero::Parte(const std::optional<QByteArray> &byte)
{
    impronta_ = Impronta(byte);
    tentata_.clear();
}

void CopiaRecupero::Tentati(const QByteArray &byte)
{
    tentata_ = Somma(byte);
    try {
        if (Disco::Legge(percorsoModello_, FileModello::DimensioneMassima) == byte) {
            Parte(byte);
        }
    } catch (const ErroreSistema &) {
        // What cannot be read now is judged before the next save.
        return;
    }
}

QStringList CopiaRecupero::FileDelModello(const QString &estensione) const
{
    const QDir cartella(cartella_);
    QStringList file;
    const QStringList nomi =
        cartella.entryList({radice_ + QStringLiteral("-*") + estensione}, QDir::Files, QDir::Time);
    for (const QString &nome : nomi) {
        file.append(cartella.filePath(nome));
    }
    return file;
}

void CopiaRecupero::PulisceLucchetti() const
{
    for (const QString &file : FileDelModello(Estensione + EstensioneLucchetto)) {
        // Taken over and given back, the lock of a program that has died is gone.
        InUso(file.chopped(EstensioneLucchetto.size()));
    }
}

QList<CopiaRecupero::Trovata> CopiaRecupero::Cerca(const Avviso &avviso) const
{
    PulisceLucchetti();
    QList<Trovata> trovate;
    for (const QString &file : FileDelModello(Estensione)) {
        try {
            const std::optional<Letta> letta = Legge(file);
            if (!letta || letta->percorso != percorsoModello_) {
                continue;
            }
            Trovata trovata{file,
                            QFileInfo(file).lastModified(),
                            Cambiato(letta->impronta, impronta_),
                            InUso(file),
                            {}};
            FileModello::Analizza(letta->corpo, trovata.modello);
            trovate.append(std::move(trovata));
        } catch (const ErroreSistema &errore) {
            // One that holds no model is none, and one that has just gone belonged to a program
            // that no longer needs it. The others may hold work.
            const bool nonSiLegge = errore.numero == ErroreSistema::ErroreIO ||
                                    errore.numero == ErroreSistema::AccessoFile;
            if (avviso && nonSiLegge) {
                avviso(file, errore);
            }
        }
    }
    return trovate;
}

bool CopiaRecupero::EliminaSuperata(const Trovata &trovata, const Modello &letto) const
{
    if (FileModello::Componi(trovata.modello, QLocale::c()) !=
        FileModello::Componi(letto, QLocale::c())) {
        return false;
    }
    Elimina(trovata.file);
    return true;
}

void CopiaRecupero::SegnaOfferta(const Trovata &trovata)
{
    offerte_.append(trovata.file);
}

void CopiaRecupero::Riprende(const Trovata &trovata)
{
    ripresa_ = trovata.file;
}

bool CopiaRecupero::FileCambiato() const
{
    try {
        const QByteArray adesso =
            Somma(Disco::Legge(percorsoModello_, FileModello::DimensioneMassima));
        return adesso != impronta_ && adesso != tentata_;
    } catch (const ErroreSistema &errore) {
        switch (errore.numero) {
        case ErroreSistema::MemoriaEsaurita: // far larger than any model
            return true;
        case ErroreSistema::FileNonTrovato:
        case ErroreSistema::PercorsoNonTrovato:
            return false;
        default:
            throw;
        }
    }
}

void CopiaRecupero::ScegliePropria()
{
    // A name that no copy has had or will have: neither is an earlier one written over, declined or
    // not, nor is one that another program has begun meanwhile ever taken for one of ours.
    const quint64 caso = QRandomGenerator::system()->generate64();
    propria_ = QDir(cartella_).filePath(radice_ + u'-' + QString::number(caso, 16) + Estensione);
    lucchetto_ = LucchettoDi(propria_);
}

void CopiaRecupero::Scrive(const Modello &modello)
{
    // What firms bill is nobody else's business on a shared machine. Each time, for somebody may
    // have tidied the folder away.
    Disco::CreaCartellaPrivata(cartella_);
    if (propria_.isEmpty()) {
        ScegliePropria();
    }
    lucchetto_->Prende(); // the copy is worth more than its lock, where the disk has no room for it
    // The copy is read back whatever the locale, so it is written with a point: nothing is rounded
    // away by going through it.
    const QByteArray corpo = FileModello::ComponiLeggibile(modello, QLocale::c());
    Disco::Sostituisce(propria_, Intestazione(percorsoModello_, impronta_, corpo) + corpo);
    if (!ripresa_.isEmpty() && Elimina(ripresa_)) {
        ripresa_.clear();
    }
}

void CopiaRecupero::EliminaPropria()
{
    if (!propria_.isEmpty() && Elimina(propria_)) {
        propria_.clear();
        lucchetto_.reset();
    }
}

void CopiaRecupero::EliminaOfferte()
{
    EliminaPropria();
    offerte_.removeIf(&Elimina);
}
