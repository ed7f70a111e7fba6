#pragma once

#include <system_error>

/// The system's own way to force the bytes of an open file onto the medium, with its failure.
namespace SuDisco {

/// descrittore is a C file descriptor open for writing. Media that cannot be forced (a network
/// share that knows no such call) count as done.
std::error_code Sincronizza(int descrittore);

} // namespace SuDisco
