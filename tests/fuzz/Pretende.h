#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the fuzz run at an expectation that does not hold, naming it.
#define PRETENDE(condizione)                                                                       \
    do {                                                                                           \
        if (!(condizione)) {                                                                       \
            std::fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condizione);                  \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)
