#include "documento/CopiaRecupero.h"

#include "documento/FileCopia.h"
#include "model/FileModello.h"
#include "sistema/Disco.h"
#include "sistema/Lucchetto.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <filesystem>

namespace {

using FileCopia::Assente;
using FileCopia::Somma;

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

/// The path with the links on it resolved, as far as there is anything at it.
QString SenzaCollegamenti(const QString &percorso)
{
    const QFileInfo file(percorso);
    if (const QString vero = file.canonicalFilePath(); !vero.isEmpty()) {
        return vero;
    }
    const QString cartella = QFileInfo(file.absolutePath()).canonicalFilePath();
    return cartella.isEmpty() ? file.absoluteFilePath() : cartella + u'/' + file.fileName();
}

bool UnSoloFile(const QString &uno, const QString &altro)
{
    std::error_code codice;
    return uno == altro ||
           (std::filesystem::equivalent(QFileInfo(uno).filesystemFilePath(),
                                        QFileInfo(altro).filesystemFilePath(), codice) &&
            !codice);
}

std::unique_ptr<Lucchetto> LucchettoDi(const QString &copia)
{
    return std::make_unique<Lucchetto>(copia + FileCopia::EstensioneLucchetto);
}

} // namespace

CopiaRecupero::CopiaRecupero(QString cartella, const QString &percorsoModello)
    : cartella_(std::move(cartella))
    , percorsoModello_(SenzaCollegamenti(percorsoModello))
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
    intera_ = impronta_;
    tentata_.clear();
    riscrittura_.clear();
    incompleto_ = false;
    ignoto_ = false;
}

void CopiaRecupero::Tentati(const QByteArray &byte)
{
    tentata_ = Somma(byte);
    if (!incompleto_) {
        riscrittura_.clear();
    }
    try {
        if (Disco::Legge(percorsoModello_, FileModello::DimensioneMassima) == byte) {
            Parte(byte);
        }
    } catch (const ErroreSistema &) {
        // What cannot be read now is judged before the next save.
        return;
    }
}

void CopiaRecupero::PulisceLucchetti() const
{
    if (cartella_.isEmpty()) {
        return;
    }
    const QDir cartella(cartella_);
    const QStringList nomi = cartella.entryList(
        {radice_ + QStringLiteral("-*") + FileCopia::Estensione + FileCopia::EstensioneLucchetto},
        QDir::Files);
    for (const QString &nome : nomi) {
        // Taken over and given back, the lock of a program that has died is gone.
        FileCopia::InUso(cartella.filePath(nome.chopped(FileCopia::EstensioneLucchetto.size())));
    }
}

bool CopiaRecupero::DelModello(const QString &percorso, const QByteArray &impronta) const
{
    if (UnSoloFile(percorso, percorsoModello_)) {
        return true;
    }
    // An archive that has been renamed or moved took its models along.
    const QFileInfo altrove(percorso);
    return !altrove.exists() && impronta == impronta_ && impronta != Assente &&
           altrove.fileName().compare(QFileInfo(percorsoModello_).fileName(),
                                      Qt::CaseInsensitive) == 0;
}

QList<CopiaRecupero::Trovata> CopiaRecupero::Cerca(const Avviso &avviso) const
{
    PulisceLucchetti();
    const auto avvisa = [&avviso](const QString &file, const ErroreSistema &errore) {
        if (avviso) {
            avviso(file, errore);
        }
    };
    QList<Trovata> trovate;
    for (const QString &file : FileCopia::Elenca(cartella_)) {
        bool mia = QFileInfo(file).fileName().startsWith(radice_);
        try {
            if (const auto testa = FileCopia::LeggeTesta(file)) {
                mia = DelModello(testa->percorso, testa->impronta);
            }
            if (!mia) {
                continue;
            }
            const std::optional<FileCopia::Copia> letta = FileCopia::Legge(file);
            if (!letta) {
                throw ErroreSistema(ErroreSistema::ErroreIO,
                                    QString::fromUtf8(FileCopia::Danneggiata));
            }
            const bool cambiato =
                impronta_ != letta->riscrittura && Cambiato(letta->impronta, impronta_);
            Trovata trovata{file,
                            QFileInfo(file).lastModified(),
                            cambiato && letta->riscrittura.isEmpty(),
                            cambiato && !letta->riscrittura.isEmpty(),
                            FileCopia::InUso(file),
                            letta->impronta,
                            letta->riscrittura,
                            {}};
            FileModello::Analizza(letta->corpo, trovata.modello);
            trovate.append(std::move(trovata));
        } catch (const ErroreSistema &errore) {
            // One that has just gone belonged to a program that no longer needs it. Of those that
            // cannot be read the others may hold work.
            if (mia && errore.numero != ErroreSistema::FileNonTrovato &&
                errore.numero != ErroreSistema::PercorsoNonTrovato) {
                avvisa(file, errore);
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
    FileCopia::Elimina(trovata.file);
    return true;
}

void CopiaRecupero::SegnaOfferta(const Trovata &trovata)
{
    offerte_.append(trovata.file);
}

void CopiaRecupero::Riprende(const Trovata &trovata)
{
    ripresa_ = trovata.file;
    if (trovata.interrotta) {
        // Until a save makes the file whole, each copy shall tell what this one does.
        incompleto_ = true;
        intera_ = trovata.impronta;
        riscrittura_ = trovata.riscrittura;
    }
}

bool CopiaRecupero::FileCambiato() const
{
    if (ignoto_) {
        return false;
    }
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
    propria_ = QDir(cartella_).filePath(radice_ + u'-' + QString::number(caso, 16) +
                                        FileCopia::Estensione);
    lucchetto_ = LucchettoDi(propria_);
}

void CopiaRecupero::Scrive(const Modello &modello)
{
    if (cartella_.isEmpty()) {
        throw ErroreSistema(ErroreSistema::PercorsoNonTrovato,
                            QStringLiteral("l'utente non ha una cartella personale"));
    }
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
    Disco::SostituisceInPrivato(
        propria_, FileCopia::Compone({percorsoModello_, intera_, riscrittura_, corpo}));
    if (!ripresa_.isEmpty() && FileCopia::Elimina(ripresa_)) {
        ripresa_.clear();
    }
}

void CopiaRecupero::TieneIlLavoro(const Modello &modello, const QByteArray &byte)
{
    riscrittura_ = Somma(byte);
    try {
        Scrive(modello);
    } catch (const ErroreSistema &errore) {
        throw ErroreSistema(errore.numero,
                            QStringLiteral("copia di recupero non scritta: ") + errore.descrizione);
    }
}

void CopiaRecupero::Incompleto()
{
    incompleto_ = true;
    ignoto_ = true;
}

void CopiaRecupero::Chiude()
{
    if (!incompleto_) {
        EliminaPropria();
    }
}

void CopiaRecupero::EliminaPropria()
{
    if (!propria_.isEmpty() && FileCopia::Elimina(propria_)) {
        propria_.clear();
        lucchetto_.reset();
    }
}

void CopiaRecupero::EliminaOfferte()
{
    EliminaPropria();
    offerte_.removeIf(&FileCopia::Elimina);
}
