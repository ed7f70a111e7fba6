#include "support/CodaDiStampa.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>
#include <exception>

/// Runs a command beside a print server whose default queue prints into files. The command finds
/// the server through CUPS_SERVER and the folder of the sheets in PLAKERA_FOGLI; they are gone when
/// the command has ended. Its exit status is the command's own, 125 when the server does not start.
int main(int argc, char *argv[])
{
    constexpr int NonAvviata = 125;
    const QCoreApplication programma(argc, argv);
    QStringList argomenti = QCoreApplication::arguments().mid(1);
    if (argomenti.isEmpty()) {
        std::fputs("usage: coda_di_stampa COMMAND [ARGUMENT...]\n", stderr);
        return NonAvviata;
    }
    try {
        CodaDiStampa coda;
        coda.Aggiunge(QStringLiteral("Prova"), {});
        coda.Predefinita(QStringLiteral("Prova"));
        QProcess processo;
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert(QStringLiteral("CUPS_SERVER"), coda.Server());
        ambiente.insert(QStringLiteral("PLAKERA_FOGLI"), coda.CartellaFogli());
        processo.setProcessEnvironment(ambiente);
        processo.setProcessChannelMode(QProcess::ForwardedChannels);
        processo.setInputChannelMode(QProcess::ForwardedInputChannel);
        const QString comando = argomenti.takeFirst();
        processo.start(comando, argomenti);
        if (!processo.waitForFinished(-1)) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(comando),
                         qPrintable(processo.errorString()));
            return NonAvviata;
        }
        coda.Fogli();
        return processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : NonAvviata;
    } catch (const std::exception &errore) {
        std::fprintf(stderr, "coda_di_stampa: %s\n", errore.what());
        return NonAvviata;
    }
}
