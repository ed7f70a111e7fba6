#include "sistema/SuDisco.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>

#include <cerrno>
#include <filesystem>
#include <optional>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace {

void TieneProprietario(int descrittore, const struct stat &prima)
{
    if (fchown(descrittore, prima.st_uid, prima.st_gid) != 0) {
        // Only the administrator gives files away, but to a group of his own everybody may.
        constexpr auto Immutato = static_cast<uid_t>(-1);
        [[maybe_unused]] const int seRifiutato = fchown(descrittore, Immutato, prima.st_gid);
    }
}

void TieneModo(int descrittore, const struct stat &prima)
{
    constexpr mode_t Tutto = 07777;
    constexpr mode_t Permessi = 0777;
    struct stat adesso
    {
    };
    // To run as its owner is not for a file that belongs to somebody else.
    const bool suo = fstat(descrittore, &adesso) == 0 && prima.st_uid == adesso.st_uid &&
                     prima.st_gid == adesso.st_gid;
    // File systems without permissions refuse this, and have none to keep.
    [[maybe_unused]] const int seRifiutato =
        fchmod(descrittore, prima.st_mode & (suo ? Tutto : Permessi));
}

#ifdef __linux__

/// Calls chiamata(buffer, size) until the buffer is large enough for what it gives; nothing when it
/// fails.
template <typename Chiamata>
std::optional<QByteArray> Ottiene(const Chiamata &chiamata)
{
    for (;;) {
        const ssize_t misura = chiamata(nullptr, 0);
        if (misura < 0) {
            return std::nullopt;
        }
        QByteArray byte(misura, Qt::Uninitialized);
        const ssize_t presi = chiamata(byte.data(), static_cast<size_t>(misura));
        if (presi >= 0) {
            byte.truncate(presi);
            return byte;
        }
        if (errno != ERANGE) { // else it has grown meanwhile
            return std::nullopt;
        }
    }
}

/// Access lists and the users' own. Labels of the system's security are given by its rules to each
/// new file, and some are of the bytes.
bool DaTenere(const QByteArray &nome)
{
    return nome.startsWith("user.") || nome.startsWith("system.");
}

QList<QByteArray> Nomi(const std::optional<QByteArray> &elenco)
{
    QList<QByteArray> nomi = elenco.value_or(QByteArray()).split('\0');
    nomi.removeIf([](const QByteArray &nome) { return !DaTenere(nome); });
    return nomi;
}

bool TieneAttributi(int descrittore, const QByteArray &vecchio)
{
    // A file system that knows none gives no list.
    const QList<QByteArray> daTenere = Nomi(Ottiene(
        [&](char *byte, size_t misura) { return listxattr(vecchio.constData(), byte, misura); }));
    const QList<QByteArray> avuti = Nomi(
        Ottiene([&](char *byte, size_t misura) { return flistxattr(descrittore, byte, misura); }));
    bool tutti = true;
    for (const QByteArray &nome : avuti) {
        if (!daTenere.contains(nome)) {
            tutti = fremovexattr(descrittore, nome.constData()) == 0 && tutti;
        }
    }
    for (const QByteArray &nome : daTenere) {
        const auto valore = Ottiene([&](char *byte, size_t misura) {
            return getxattr(vecchio.constData(), nome.constData(), byte, misura);
        });
        const auto avuto = Ottiene([&](char *byte, size_t misura) {
            return fgetxattr(descrittore, nome.constData(), byte, misura);
        });
        tutti = valore &&
                (valore == avuto || fsetxattr(descrittore, nome.constData(), valore->constData(),
                                              static_cast<size_t>(valore->size()), 0) == 0) &&
                tutti;
    }
    return tutti;
}

#else

bool TieneAttributi(int, const QByteArray &)
{
    return true;
}

#endif

} // namespace

void SuDisco::DimenticaErrore()
{
    errno = 0;
}

std::error_code SuDisco::UltimoErrore()
{
    return {errno, std::generic_category()};
}

bool SuDisco::HaAltriNomi(const QString &percorso)
{
    std::error_code codice;
    const auto nomi =
        std::filesystem::hard_link_count(QFileInfo(percorso).filesystemFilePath(), codice);
    return !codice && nomi > 1;
}

QString SuDisco::ComeSulDisco(const QString &percorso)
{
    return percorso;
}

std::error_code SuDisco::SiElenca(const QString &cartella)
{
    std::error_code codice;
    const std::filesystem::directory_iterator elenco(QDir(cartella).filesystemPath(), codice);
    return codice;
}

std::error_code SuDisco::Sincronizza(int descrittore)
{
    int esito = 0;
    do {
        esito = fsync(descrittore);
    } while (esito != 0 && errno == EINTR);
    if (esito == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP) {
        return {};
    }
    return {errno, std::generic_category()};
}

std::error_code SuDisco::SincronizzaCartella(const QString &cartella)
{
    const int descrittore =
        open(QFile::encodeName(cartella).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descrittore < 0) {
        return errno == EACCES ? std::error_code()
                               : std::error_code(errno, std::generic_category());
    }
    const std::error_code codice = Sincronizza(descrittore);
    close(descrittore);
    return codice;
}

bool SuDisco::TieneProprieta(int descrittore, const QString &vecchio)
{
    const QByteArray percorso = QFile::encodeName(vecchio);
    struct stat prima
    {
    };
    struct stat adesso
    {
    };
    if (stat(percorso.constData(), &prima) != 0) {
        return false;
    }
    TieneProprietario(descrittore, prima);
    const bool attributi = TieneAttributi(descrittore, percorso);
    TieneModo(descrittore, prima);
    return attributi && fstat(descrittore, &adesso) == 0 && prima.st_uid == adesso.st_uid &&
           prima.st_gid == adesso.st_gid && prima.st_mode == adesso.st_mode;
}

std::error_code SuDisco::PrendeIlPosto(const QString &nuovo, const QString &vecchio)
{
    std::error_code codice;
    std::filesystem::rename(QFileInfo(nuovo).filesystemFilePath(),
                            QFileInfo(vecchio).filesystemFilePath(), codice);
    return codice;
}

void SuDisco::FallisceOltreIlLimite()
{
    struct sigaction azione
    {
    };
    // A function, for to ignore the signal would be handed on to the programs that are started.
    azione.sa_handler = [](int) {};
    azione.sa_flags = SA_RESTART;
    sigaction(SIGXFSZ, &azione, nullptr);
}
