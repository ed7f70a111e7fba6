#pragma once

#include <QString>

#include <functional>

/// The calls of the C library by which a file is replaced, answered as a failing medium would. They
/// stand in the test's own program, so that it and Qt meet them before those of the system; what is
/// not asked for goes on to these. Needs the library plakera_guasti.
class GuastiDisco
{
public:
    enum class Chiamata {
        SincronizzaFile,     ///< fsync and fdatasync of a file
        SincronizzaCartella, ///< the same of a folder
        CambiaProprietario,  ///< fchown
        CambiaModo           ///< fchmod
    };
    static constexpr int QuanteChiamate = 4;

    /// Told the descriptor, says the errno that the call fails with, or 0 to let it do its work.
    /// What it calls itself meets the system alone.
    using Risposta = std::function<int(int descrittore)>;

    /// While it lives, every such call is answered by risposta; one at a time for each.
    GuastiDisco(Chiamata chiamata, Risposta risposta);
    /// The same for a call that always fails; for 0 it never does.
    GuastiDisco(Chiamata chiamata, int causa);
    ~GuastiDisco();
    GuastiDisco(const GuastiDisco &) = delete;
    GuastiDisco &operator=(const GuastiDisco &) = delete;

    /// Where the file or folder of an open descriptor stands, links resolved.
    static QString Percorso(int descrittore);

private:
    Chiamata chiamata_;
};
