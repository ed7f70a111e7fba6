#include "sistema/Disco.h"

#include "sistema/FileTemporaneo.h"
#include "sistema/SuDisco.h"
#include "sistema/SulSupporto.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>

namespace {

/// The file that the path stands for, behind any symbolic links; it need not exist.
QFileInfo Bersaglio(const QString &percorso)
{
    const QFileInfo file(Disco::DietroICollegamenti(percorso).constLast());
    // The administrator may write what nobody is meant to: whoever protected it wants it so.
    constexpr auto PerQualcuno = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (file.fileName().isEmpty() || (file.exists() && (!file.isFile() || !file.isWritable() ||
                                                        !(file.permissions() & PerQualcuno)))) {
        throw ErroreSistema(ErroreSistema::AccessoFile);
    }
    return file;
}

void Apre(QFile &file)
{
    if (file.fileName().isEmpty()) {
        throw ErroreSistema(ErroreSistema::FileNonTrovato); // Qt would say so besides
    }
    const QFileInfo info(file);
    // A folder, and a pipe on which opening would wait for ever.
    if (info.exists() && !info.isFile()) {
        throw ErroreSistema(ErroreSistema::AccessoFile);
    }
    SuDisco::DimenticaErrore();
    if (!file.open(QIODevice::ReadOnly)) {
        const int numero = info.exists() ? ErroreSistema::AccessoFile
                                         : Disco::NumeroErrore(SulSupporto::Causa(info.path()));
        const bool senzaCartella = numero == ErroreSistema::FileNonTrovato && !info.dir().exists();
        throw ErroreSistema(senzaCartella ? ErroreSistema::PercorsoNonTrovato : numero);
    }
}

/// The bytes, unless reading them from the file failed.
QByteArray Intero(const QFile &file, QByteArray byte)
{
    if (file.error() != QFileDevice::NoError) {
        throw ErroreSistema(ErroreSistema::ErroreIO);
    }
    return byte;
}

/// What must become of the file when a new one cannot have all that it has.
enum class Altrimenti { SiPerde, SiRiscrive };

/// True when the folder, or what it holds, lets the user write into the file but not replace it.
bool SoloSulPosto(const std::error_code &codice)
{
    return codice == std::errc::permission_denied || codice == std::errc::operation_not_permitted;
}

/// False when the old file has to be rewritten instead.
bool MetteIlNuovo(const QFileInfo &bersaglio, const QByteArray &byte, FileTemporaneo::Per chi,
                  Altrimenti altrimenti)
{
    const bool puoRiscrivere = altrimenti == Altrimenti::SiRiscrive && bersaglio.exists();
    if (puoRiscrivere && SuDisco::HaAltriNomi(bersaglio.filePath())) {
        return false;
    }
    FileTemporaneo nuovo(bersaglio);
    if (const std::error_code codice = nuovo.Apre(chi)) {
        if (puoRiscrivere && SoloSulPosto(codice)) {
            return false;
        }
        SulSupporto::Fallisce(codice);
    }
    if (puoRiscrivere && !nuovo.TieneTutto()) {
        return false;
    }
    // Before writing, for they may be what fills the disk.
    nuovo.SpazzaResti();
    nuovo.Scrive(byte);
    if (const std::error_code codice = nuovo.PrendeIlPosto()) {
        if (puoRiscrivere && SoloSulPosto(codice)) {
            return false;
        }
        SulSupporto::Fallisce(codice);
    }
    SulSupporto::SincronizzaNomi(bersaglio.path());
    return true;
}

void RimetteIVecchi(QFile &file, const QByteArray &vecchi, const ErroreSistema &causa)
{
    try {
        file.unsetError();
        file.seek(0);
        SulSupporto::Scrive(file, vecchi);
    } catch (const ErroreSistema &) {
        throw Disco::FileIncompleto(
            causa.numero, causa.descrizione + QStringLiteral("; il file è rimasto incompleto"));
    }
}

void Riscrive(const QFileInfo &bersaglio, const QByteArray &byte)
{
    QFile file(bersaglio.filePath());
    SuDisco::DimenticaErrore();
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)) {
        SulSupporto::Fallisce(SulSupporto::Causa(bersaglio.path()));
    }
    const QByteArray vecchi = Intero(file, file.readAll());
    try {
        file.seek(0);
        SulSupporto::Scrive(file, byte);
    } catch (const ErroreSistema &errore) {
        RimetteIVecchi(file, vecchi, errore);
        throw;
    }
}

} // namespace

QStringList Disco::DietroICollegamenti(const QString &percorso)
{
    // A half of a surrogate pair can be typed by nobody, but the standard library throws its own
    // exception at it.
    if (!percorso.isValidUtf16()) {
        throw ErroreSistema(ErroreSistema::AccessoFile);
    }
    constexpr int CollegamentiAlMassimo = 40;
    QStringList nomi{percorso};
    for (QFileInfo file(percorso); file.isSymLink(); file.setFile(nomi.constLast())) {
        if (nomi.size() > CollegamentiAlMassimo) {
            throw ErroreSistema(ErroreSistema::AccessoFile);
        }
        nomi.append(file.symLinkTarget());
    }
    return nomi;
}

QByteArray Disco::Legge(const QString &percorso, qint64 massimo)
{
    QFile file(percorso);
    Apre(file);
    if (file.size() > massimo) {
        throw ErroreSistema(ErroreSistema::MemoriaEsaurita, QStringLiteral("File troppo grande"));
    }
    return Intero(file, file.readAll());
}

QByteArray Disco::LeggeInizio(const QString &percorso, qint64 massimo)
{
    QFile file(percorso);
    Apre(file);
    return Intero(file, file.read(massimo));
}

void Disco::Sostituisce(const QString &percorso, const QByteArray &byte,
                        const PrimaDiRiscrivere &prima)
{
    const QFileInfo bersaglio = Bersaglio(percorso);
    const auto altrimenti = prima ? Altrimenti::SiRiscrive : Altrimenti::SiPerde;
    if (!MetteIlNuovo(bersaglio, byte, FileTemporaneo::Per::ChiPoteva, altrimenti)) {
        prima();
        Riscrive(bersaglio, byte);
    }
}

void Disco::SostituisceInPrivato(const QString &percorso, const QByteArray &byte)
{
    MetteIlNuovo(Bersaglio(percorso), byte, FileTemporaneo::Per::Utente, Altrimenti::SiPerde);
}

Disco::Appoggio::Appoggio(const QString &percorso)
{
    FileTemporaneo vuoto(Bersaglio(percorso));
    if (const std::error_code codice = vuoto.Apre(FileTemporaneo::Per::Utente)) {
        SulSupporto::Fallisce(codice);
    }
    percorso_ = vuoto.Lascia();
}

Disco::Appoggio::~Appoggio()
{
    QFile::remove(percorso_);
}

void Disco::CreaCartellaPrivata(const QString &cartella)
{
    constexpr auto SoloMia = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    const QFileInfo info(cartella);
    if (info.isDir()) {
        return;
    }
    const QString sopra = info.path();
    if (QDir().mkpath(sopra) && QDir().mkdir(cartella, SoloMia)) {
        SulSupporto::SincronizzaNomi(sopra);
    } else if (!QFileInfo(cartella).isDir()) { // nor has another program just made it
        throw ErroreSistema(ErroreSistema::AccessoFile);
    }
}

int Disco::NumeroErrore(const std::error_code &codice)
{
    struct Voce
    {
        std::errc causa;
        int numero;
    };
    static constexpr std::array<Voce, 10> Cause{{
        {std::errc::no_such_file_or_directory, ErroreSistema::FileNonTrovato},
        {std::errc::not_a_directory, ErroreSistema::FileNonTrovato},
        {std::errc::no_space_on_device, ErroreSistema::DiscoPieno},
        {std::errc::file_too_large, ErroreSistema::DiscoPieno},
        {std::errc::read_only_file_system, ErroreSistema::AutorizzazioneNegata},
        {std::errc::device_or_resource_busy, ErroreSistema::AutorizzazioneNegata},
        {std::errc::text_file_busy, ErroreSistema::AutorizzazioneNegata},
        {std::errc::io_error, ErroreSistema::ErroreIO},
        {std::errc::no_such_device_or_address, ErroreSistema::ErroreIO},
        {std::errc::no_such_device, ErroreSistema::ErroreIO},
    }};
#ifdef EDQUOT
    // To the user an exhausted quota is a full disk; standard C++ has no name for it.
    if (codice.value() == EDQUOT) {
        return ErroreSistema::DiscoPieno;
    }
#endif
    const auto voce =
        std::find_if(Cause.begin(), Cause.end(), [&](const Voce &v) { return codice == v.causa; });
    return voce == Cause.end() ? ErroreSistema::AccessoFile : voce->numero;
}
