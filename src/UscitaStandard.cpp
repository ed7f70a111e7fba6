#include "UscitaStandard.h"

#include "base/ErroreSistema.h"

#include <QString>

#include <cstdio>

void UscitaStandard::Scrive(const QString &testo)
{
    std::fputs(qUtf8Printable(testo), stdout);
}

bool UscitaStandard::Consegnata()
{
    // A full buffer is written in between: what failed then is no longer seen by the last flush.
    const bool fallita = std::fflush(stdout) != 0;
    if (!fallita && std::ferror(stdout) == 0) {
        return true;
    }
    std::fputs(qUtf8Printable(ErroreSistema(ErroreSistema::DiscoPieno).Messaggio() + u'\n'),
               stderr);
    return false;
}
