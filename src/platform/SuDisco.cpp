#include "platform/SuDisco.h"

#include <cerrno>

#ifdef _WIN32
#include <io.h>
#else
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
