#pragma once

#include <QLatin1String>

#include <span>

/// A kind of new model: the option button that chooses it, the template that is copied, the
/// document's title in the request for a name and the name that is proposed.
struct ModelloTipo
{
    QLatin1String opzione; ///< object name of the option button
    QLatin1String file;    ///< in the models folder
    QLatin1String titolo;
    QLatin1String nomeProposto;
};

/// The kinds made from a template, in the order in which their buttons are examined.
std::span<const ModelloTipo> ModelliTipo();
