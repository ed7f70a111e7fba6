#pragma once

#include "sistema/Lucchetto.h"

/// One running instance per user. The lock of a process that has died does not block.
class IstanzaUnica
{
public:
    IstanzaUnica();
    /// True when this process is the only instance; the lock is held until destruction.
    bool Acquisisce();

private:
    Lucchetto lucchetto_;
};
