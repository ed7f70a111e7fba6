#include "platform/SuDisco.h"

#include <QFile>

#include <cerrno>

#ifdef _WIN32
#include <io.h>
#else
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

std::error_code SuDisco::Sincronizza(int descrittore)
{
#ifdef _WIN32
    const int esito = _commit(descrittore);
#else
    int esito = 0;
    do {
        esito = fsync(descrittore);
    } while (esito != 0 && errno == EINTR);
#endif
    if (esito == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP) {
        return {};
    }
    return {errno, std::generic_category()};
}

std::error_code SuDisco::SincronizzaCartella([[maybe_unused]] const QString &cartella)
{
#ifdef _WIN32
    return {};
#else
    const int descrittore =
        open(QFile::encodeName(cartella).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descrittore < 0) {
        return errno == EACCES ? std::error_code()
                               : std::error_code(errno, std::generic_category());
    }
    const std::error_code codice = Sincronizza(descrittore);
    close(descrittore);
    return codice;
#endif
}

bool SuDisco::TieneProprieta([[maybe_unused]] int descrittore,
                             [[maybe_unused]] const QString &vecchio)
{
#ifdef _WIN32
    return true;
#else
    struct stat prima
    {
    };
    struct stat adesso
    {
    };
    if (stat(QFile::encodeName(vecchio).constData(), &prima) != 0 ||
        fstat(descrittore, &adesso) != 0) {
        return false;
    }
    if (prima.st_uid == adesso.st_uid && prima.st_gid == adesso.st_gid) {
        return true;
    }
    if (fchown(descrittore, prima.st_uid, prima.st_gid) == 0) {
        return true;
    }
    constexpr auto Immutato = static_cast<uid_t>(-1);
    return fchown(descrittore, Immutato, prima.st_gid) == 0 && prima.st_uid == adesso.st_uid;
#endif
}

void SuDisco::FallisceOltreIlLimite()
{
#ifndef _WIN32
    struct sigaction azione
    {
    };
    // A function, for to ignore the signal would be handed on to the programs that are started.
    azione.sa_handler = [](int) {};
    azione.sa_flags = SA_RESTART;
    sigaction(SIGXFSZ, &azione, nullptr);
#endif
}
