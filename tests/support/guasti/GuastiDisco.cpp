#include "support/guasti/GuastiDisco.h"

#include <QFile>
#include <QScopedValueRollback>

#include <array>
#include <cerrno>
#include <utility>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::array<GuastiDisco::Risposta, GuastiDisco::QuanteChiamate> risposte;
bool rispondendo = false;

GuastiDisco::Risposta &Di(GuastiDisco::Chiamata chiamata)
{
    return risposte[static_cast<std::size_t>(chiamata)];
}

/// True when the call is to fail; errno then says why.
bool Fallisce(GuastiDisco::Chiamata chiamata, int descrittore)
{
    if (rispondendo || !Di(chiamata)) {
        return false;
    }
    const QScopedValueRollback<bool> finche(rispondendo, true);
    const int causa = Di(chiamata)(descrittore);
    errno = causa;
    return causa != 0;
}

GuastiDisco::Chiamata Sincronia(int descrittore)
{
    struct stat stato
    {
    };
    return fstat(descrittore, &stato) == 0 && S_ISDIR(stato.st_mode)
               ? GuastiDisco::Chiamata::SincronizzaCartella
               : GuastiDisco::Chiamata::SincronizzaFile;
}

/// What stands behind the test's own: the C library's, or a sanitizer's that leads there.
template <typename Funzione>
Funzione Vera(const char *nome)
{
    return reinterpret_cast<Funzione>(dlsym(RTLD_NEXT, nome));
}

} // namespace

extern "C" {

int fsync(int descrittore)
{
    static const auto vera = Vera<int (*)(int)>("fsync");
    return Fallisce(Sincronia(descrittore), descrittore) ? -1 : vera(descrittore);
}

int fdatasync(int descrittore)
{
    static const auto vera = Vera<int (*)(int)>("fdatasync");
    return Fallisce(Sincronia(descrittore), descrittore) ? -1 : vera(descrittore);
}

int fchown(int descrittore, uid_t proprietario, gid_t gruppo) noexcept
{
    static const auto vera = Vera<int (*)(int, uid_t, gid_t)>("fchown");
    return Fallisce(GuastiDisco::Chiamata::CambiaProprietario, descrittore)
               ? -1
               : vera(descrittore, proprietario, gruppo);
}

int fchmod(int descrittore, mode_t modo) noexcept
{
    static const auto vera = Vera<int (*)(int, mode_t)>("fchmod");
    return Fallisce(GuastiDisco::Chiamata::CambiaModo, descrittore) ? -1 : vera(descrittore, modo);
}

} // extern "C"

GuastiDisco::GuastiDisco(Chiamata chiamata, Risposta risposta)
    : chiamata_(chiamata)
{
    if (Di(chiamata)) {
        qFatal("this call is answered already");
    }
    Di(chiamata) = std::move(risposta);
}

GuastiDisco::GuastiDisco(Chiamata chiamata, int causa)
    : GuastiDisco(chiamata, [causa](int) { return causa; })
{
}

GuastiDisco::~GuastiDisco()
{
    Di(chiamata_) = nullptr;
}

QString GuastiDisco::Percorso(int descrittore)
{
    return QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(descrittore));
}
