#include "sistema/Memoria.h"

#include <QtGlobal>

#ifdef __GLIBC__
#include <malloc.h>
#endif

void TieneMemoriaLiberata()
{
#ifdef __GLIBC__
    constexpr int ByteTenuti = 4 * 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, ByteTenuti);
    mallopt(M_TRIM_THRESHOLD, 2 * ByteTenuti);
#endif
}
