#include "sistema/Disco.h"

#include "sistema/SuDisco.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStorageInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>

namespace {

// Names of temporary files are nobody else's, so sweeping cannot hit a user's own copy, and do not
// contain the final name, which may already be as long as the file system allows.
constexpr QLatin1String Prefisso(".plakera-");
constexpr QLatin1String Suffisso(".tmp");
constexpr int CifreCasuali = 16;

// A replacement takes milliseconds, on a slow network share some seconds: what is older by this
// much belongs to no living program.
constexpr qint64 SecondiDiVita = 600;

QString NomeTemporaneo()
{
    const quint64 caso = QRandomGenerator::system()->generate64();
    return Prefisso + QString::number(caso, 16).rightJustified(CifreCasuali, u'0') + Suffisso;
}

bool Temporaneo(const QString &nome)
{
    if (nome.size() != Prefisso.size() + CifreCasuali + Suffisso.size() ||
        !nome.startsWith(Prefisso) || !nome.endsWith(Suffisso)) {
        return false;
    }
    const QStringView caso = QStringView(nome).mid(Prefisso.size(), CifreCasuali);
    return std::all_of(caso.begin(), caso.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
    });
}

// Age is measured against a file just written into the same folder, hence by one and the same
// clock, even on a server whose clock differs from ours.
void SpazzaResti(const QDir &cartella, const QDateTime &adesso)
{
    const QStringList nomi = cartella.entryList({Prefisso + u'*' + Suffisso},
                                                QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &nome : nomi) {
        const QFileInfo resto(cartella.filePath(nome));
        if (Temporaneo(nome) && resto.lastModified().secsTo(adesso) >= SecondiDiVita) {
            // One that cannot be removed harms nobody; the next call tries again.
            QFile::remove(resto.filePath());
        }
    }
}

/// Why the operation just tried on a file in the folder failed.
std::error_code Causa(const QString &cartella)
{
    if (errno != 0) {
        return {errno, std::generic_category()};
    }
    // Where Qt does not go through the C library, what can be seen must tell.
    const QFileInfo posto(cartella);
    if (!posto.exists()) {
        return std::make_error_code(std::errc::no_such_file_or_directory);
    }
    if (!posto.isWritable()) {
        return std::make_error_code(std::errc::permission_denied);
    }
    if (QStorageInfo(cartella).bytesAvailable() == 0) {
        return std::make_error_code(std::errc::no_space_on_device);
    }
    return std::make_error_code(std::errc::io_error);
}

[[noreturn]] void Fallisce(const std::error_code &codice)
{
    // Replacing may create the file, so what is not there can only be its folder.
    const int numero = Disco::NumeroErrore(codice);
    throw ErroreSistema(numero == ErroreSistema::FileNonTrovato ? ErroreSistema::PercorsoNonTrovato
                                                                : numero);
}

void SincronizzaNomi(const QString &cartella)
{
    if (const std::error_code codice = SuDisco::SincronizzaCartella(cartella)) {
        Fallisce(codice);
    }
}

/// The file that the path stands for, behind any symbolic links; it need not exist.
QFileInfo Bersaglio(const QString &percorso)
{
    // A half of a surrogate pair can be typed by nobody, but the standard library throws its own
    // exception at it.
    if (!percorso.isValidUtf16()) {
        throw ErroreSistema(ErroreSistema::AccessoFile);
    }
    constexpr int CollegamentiAlMassimo = 40;
    QFileInfo file(percorso);
    for (int i = 0; file.isSymLink(); ++i) {
        if (i == CollegamentiAlMassimo) {
            throw ErroreSistema(ErroreSistema::AccessoFile);
        }
        file.setFile(file.symLinkTarget());
    }
    // The administrator may write what nobody is meant to: whoever protected it wants it so.
    constexpr auto PerQualcuno = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (file.fileName().isEmpty() || (file.exists() && (!file.isFile() || !file.isWritable() ||
                                                        !(file.permissions() & PerQualcuno)))) {
        throw ErroreSistema(ErroreSistema::AccessoFile);
    }
    return file;
}

/// Writes through to the medium.
void Scrive(QFile &file, const QByteArray &byte)
{
    errno = 0;
    if (file.write(byte) != byte.size() || file.error() != QFileDevice::NoError ||
        !file.resize(byte.size())) {
        Fallisce(Causa(QFileInfo(file).path()));
    }
    if (const std::error_code codice = SuDisco::Sincronizza(file.handle())) {
        Fallisce(codice);
    }
}

/// The new bytes on their way: a file beside the final one, removed unless it took its place.
class FileTemporaneo
{
public:
    explicit FileTemporaneo(const QFileInfo &bersaglio)
        : bersaglio_(bersaglio)
        , file_(bersaglio.dir().filePath(NomeTemporaneo()))
    {
    }
    FileTemporaneo(const FileTemporaneo &) = delete;
    FileTemporaneo &operator=(const FileTemporaneo &) = delete;
    ~FileTemporaneo()
    {
        if (creato_) {
            file_.remove();
        }
    }

    /// Who may read the new file.
    enum class Per {
        ChiPoteva, ///< those who could read the old one; of a new one those that the system lets
        Utente     ///< the user alone
    };

    std::error_code Apre(Per chi)
    {
        // Unbuffered: a failing write is seen where it happens, not when a buffer is flushed.
        constexpr auto modo = QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered;
        errno = 0;
        // Until it carries the old file's permissions, nobody else may look into the new one.
        creato_ = bersaglio_.exists() || chi == Per::Utente
                      ? file_.open(modo, QFile::ReadOwner | QFile::WriteOwner)
                      : file_.open(modo);
        if (!creato_) {
            return Causa(bersaglio_.path());
        }
        if (bersaglio_.exists() && chi == Per::ChiPoteva) {
            tieneTutto_ = SuDisco::TieneProprieta(file_.handle(), bersaglio_.filePath());
            if (!tieneTutto_) {
                // File systems without permissions refuse this, and have none to keep.
                file_.setPermissions(bersaglio_.permissions());
            }
        }
        return {};
    }

    /// After Apre: the new file has everything that the old one has.
    bool TieneTutto() const { return tieneTutto_; }

    void Scrive(const QByteArray &byte) { ::Scrive(file_, byte); }

    /// Closes the file and gives it out of hand; its path.
    QString Lascia()
    {
        file_.close();
        creato_ = false;
        return file_.fileName();
    }

    QDateTime Nascita() const { return file_.fileTime(QFileDevice::FileModificationTime); }

    std::error_code PrendeIlPosto()
    {
        file_.close();
        const std::error_code codice =
            SuDisco::PrendeIlPosto(file_.fileName(), bersaglio_.filePath());
        creato_ = bool(codice);
        return codice;
    }

private:
    QFileInfo bersaglio_;
    QFile file_;
    bool creato_ = false;
    bool tieneTutto_ = true;
};

void Apre(QFile &file)
{
    const QFileInfo info(file);
    // A folder, and a pipe on which opening would wait for ever.
    if (info.exists() && !info.isFile()) {
        throw ErroreSistema(ErroreSistema::AccessoFile);
    }
    errno = 0;
    if (!file.open(QIODevice::ReadOnly)) {
        const int numero =
            info.exists() ? ErroreSistema::AccessoFile : Disco::NumeroErrore(Causa(info.path()));
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

bool HaAltriNomi(const QFileInfo &file)
{
    std::error_code codice;
    const auto nomi = std::filesystem::hard_link_count(file.filesystemFilePath(), codice);
    return !codice && nomi > 1;
}

/// False when the old file has to be rewritten instead.
bool MetteIlNuovo(const QFileInfo &bersaglio, const QByteArray &byte, FileTemporaneo::Per chi,
                  Altrimenti altrimenti)
{
    const bool puoRiscrivere = altrimenti == Altrimenti::SiRiscrive && bersaglio.exists();
    if (puoRiscrivere && HaAltriNomi(bersaglio)) {
        return false;
    }
    FileTemporaneo nuovo(bersaglio);
    if (const std::error_code codice = nuovo.Apre(chi)) {
        if (puoRiscrivere && SoloSulPosto(codice)) {
            return false;
        }
        Fallisce(codice);
    }
    if (puoRiscrivere && !nuovo.TieneTutto()) {
        return false;
    }
    // Before writing, for they may be what fills the disk.
    SpazzaResti(bersaglio.dir(), nuovo.Nascita());
    nuovo.Scrive(byte);
    if (const std::error_code codice = nuovo.PrendeIlPosto()) {
        if (puoRiscrivere && SoloSulPosto(codice)) {
            return false;
        }
        Fallisce(codice);
    }
    SincronizzaNomi(bersaglio.path());
    return true;
}

void RimetteIVecchi(QFile &file, const QByteArray &vecchi, const ErroreSistema &causa)
{
    try {
        file.unsetError();
        file.seek(0);
        Scrive(file, vecchi);
    } catch (const ErroreSistema &) {
        throw Disco::FileIncompleto(
            causa.numero, causa.descrizione + QStringLiteral("; il file è rimasto incompleto"));
    }
}

void Riscrive(const QFileInfo &bersaglio, const QByteArray &byte)
{
    QFile file(bersaglio.filePath());
    errno = 0;
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)) {
        Fallisce(Causa(bersaglio.path()));
    }
    const QByteArray vecchi = Intero(file, file.readAll());
    try {
        file.seek(0);
        Scrive(file, byte);
    } catch (const ErroreSistema &errore) {
        RimetteIVecchi(file, vecchi, errore);
        throw;
    }
}

} // namespace

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
        Fallisce(codice);
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
        SincronizzaNomi(sopra);
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
