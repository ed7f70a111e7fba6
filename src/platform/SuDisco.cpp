#include "platform/SuDisco.h"

#include <QFile>

#include <cerrno>

#ifdef _WIN32
#include <io.h>
#else
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
