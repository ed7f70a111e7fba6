#pragma once

#include <QString>

#include <string>

/// The calls of Windows by which a file is written and replaced, answered as a failing medium
/// would. They are put into the program's own table of imports, through which Qt and the C library
/// go that are linked into it; what is not asked for goes on to the system. One object at a time.
class GuastoDiChiamata
{
public:
    enum class Chiamata {
        Apre,        ///< CreateFile for writing
        Scrive,      ///< WriteFile
        Tronca,      ///< SetEndOfFile
        Sincronizza, ///< FlushFileBuffers
        Sostituisce, ///< ReplaceFile
        Sposta       ///< MoveFileEx
    };

    enum class Modo {
        UnaVolta,
        Sempre,     ///< so do all such calls that follow it
        AMeta,      ///< that write writes half its bytes, and the one after it fails
        Uccide,     ///< the call ends the process, as the task manager would
        UccideAMeta ///< that write writes half its bytes, and the one after it ends the process
    };

    /// Exit status of a process that such a call has ended.
    static constexpr unsigned int StatoDiUcciso = 99;

    /// While it lives, of such calls on files of the folder the n-th, from 1, fails with that error
    /// of Windows.
    struct Quale
    {
        QString cartella;
        Chiamata chiamata;
        int n;
        unsigned long errore;
        Modo modo = Modo::UnaVolta;
    };
    explicit GuastoDiChiamata(Quale quale);
    ~GuastoDiChiamata();
    GuastoDiChiamata(const GuastoDiChiamata &) = delete;
    GuastoDiChiamata &operator=(const GuastoDiChiamata &) = delete;

    /// The fault did happen.
    bool Avvenuto() const { return avvenuto_; }

    /// For the calls that stand in for the system's.
    bool NellaCartella(std::wstring percorso) const;
    enum class Risposta { Prosegue, Fallisce, Dimezza };
    Risposta Conta(Chiamata chiamata);

private:
    Quale quale_;
    std::wstring cartella_;
    int contate_ = 0;
    bool avvenuto_ = false;
};
