#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// What fails during a save: of the calls of that name on files of the folder the n-th, from 1,
/// with the errno causa. modi are further variables of the library of faults to be set.
struct Guasto
{
    QString cartella;
    QByteArray chiamata;
    int n;
    int causa;
    QByteArrayList modi;
};

struct EsitoDelSalvataggio
{
    bool finito = false; ///< by itself
    int stato = -1;
    bool guasto = false; ///< the fault did happen
};

/// Runs salva_modello with those arguments while that fails.
inline EsitoDelSalvataggio SalvaConGuasti(const Guasto &guasto, const QStringList &argomenti)
{
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    const auto pone = [&](const char *nome, const QString &valore) {
        ambiente.insert(QString::fromLatin1(nome), valore);
    };
    pone("LD_PRELOAD", QStringLiteral(LIBRERIA_GUASTI));
    // A checking build wants its own library first, which only costs it a few checks here.
    pone("ASAN_OPTIONS", QStringLiteral("verify_asan_link_order=0:detect_leaks=0"));
    pone("GUASTI_CARTELLA", guasto.cartella);
    pone("GUASTI_CHIAMATA", QString::fromLatin1(guasto.chiamata));
    pone("GUASTI_N", QString::number(guasto.n));
    pone("GUASTI_ERRNO", QString::number(guasto.causa));
    for (const QByteArray &modo : guasto.modi) {
        pone(modo.constData(), QStringLiteral("1"));
    }
    QProcess figlio;
    figlio.setProcessEnvironment(ambiente);
    figlio.start(QStringLiteral(SALVA_MODELLO), argomenti);
    if (!figlio.waitForFinished()) {
        return {};
    }
    return {figlio.exitStatus() == QProcess::NormalExit, figlio.exitCode(),
            figlio.readAllStandardError().contains("GUASTO")};
}
