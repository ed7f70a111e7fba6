// What only POSIX systems have: limits, and rights that are given up for a while.

#include "support/FileDiProva.h"

#include <QTest>

#include <csignal>

#include <sys/resource.h>
#include <unistd.h>

struct LimiteFile::Prima
{
    rlimit limite{};
    void (*segnale)(int) = nullptr;
};

LimiteFile::LimiteFile(qint64 byte)
    : prima_(std::make_unique<Prima>())
{
    prima_->segnale = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &prima_->limite);
    rlimit limite = prima_->limite;
    limite.rlim_cur = static_cast<rlim_t>(byte);
    setrlimit(RLIMIT_FSIZE, &limite);
}

LimiteFile::~LimiteFile()
{
    setrlimit(RLIMIT_FSIZE, &prima_->limite);
    std::signal(SIGXFSZ, prima_->segnale);
}

UtenteComune::UtenteComune()
{
    constexpr uid_t Nessuno = 65534;
    if (geteuid() == 0) {
        // The saved user stays, so that the way back is open.
        cambiato_ = setresuid(Nessuno, Nessuno, 0) == 0;
        if (!cambiato_) {
            QTest::qFail("cannot give up the administrator's rights", __FILE__, __LINE__);
        }
    }
}

UtenteComune::~UtenteComune()
{
    if (cambiato_ && setresuid(0, 0, 0) != 0) {
        qFatal("cannot take the administrator's rights back");
    }
}
