#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

/// Files and limits of the system that tests set up.

/// The bytes of the file; a failure fails the running test and gives nothing.
QByteArray ByteDi(const QString &percorso);
void ScriveFile(const QString &percorso, const QByteArray &byte);
/// Every name in the folder but "." and "..", hidden ones included, in name order.
QStringList NomiIn(const QString &cartella);

/// Makes the file as old as if it had last been written so many seconds ago.
void Invecchia(const QString &percorso, qint64 secondi);

/// What the lock file of a process on this machine holds that was killed.
QByteArray LucchettoDiUnMorto();

/// While it lives no file of this process may grow beyond so many bytes; on Windows it finds the
/// disk full there.
class LimiteFile
{
public:
    explicit LimiteFile(qint64 byte);
    ~LimiteFile();
    LimiteFile(const LimiteFile &) = delete;
    LimiteFile &operator=(const LimiteFile &) = delete;

private:
    struct Prima;
    std::unique_ptr<Prima> prima_;
};

/// While it lives the process has no rights that an ordinary user lacks, even when the tests are
/// run by the administrator, whom no file refuses itself to. Nothing on Windows: see
/// Permessi::DiOgnuno.
class UtenteComune
{
public:
    UtenteComune();
    ~UtenteComune();
    UtenteComune(const UtenteComune &) = delete;
    UtenteComune &operator=(const UtenteComune &) = delete;

private:
    bool cambiato_ = false;
};
