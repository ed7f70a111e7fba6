#pragma once

#include <QString>

#include <system_error>

/// What the system can do to an open file and Qt cannot.
namespace SuDisco {

/// descrittore is a C file descriptor open for writing. Media that cannot be forced (a network
/// share that knows no such call) count as done.
std::error_code Sincronizza(int descrittore);

/// Gives the open file the owner and group of the file vecchio, or at least its group: only the
/// administrator gives files away. True when it has both. On Windows a file inherits its rights
/// from the folder, and nothing is to be done.
bool TieneProprieta(int descrittore, const QString &vecchio);

} // namespace SuDisco
