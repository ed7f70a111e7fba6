/* Loaded before the C library (LD_PRELOAD): makes one call on a file of one folder fail.
 *
 *   GUASTI_CARTELLA   only files whose path begins so count
 *   GUASTI_CHIAMATA   open, write, truncate, sync, rename, chown or xattr
 *   GUASTI_N          which of these calls fails, from 1
 *   GUASTI_ERRNO      the errno that it fails with
 *   GUASTI_SEMPRE     set: so do all such calls that follow it
 *   GUASTI_UCCIDE     set: instead of failing, the call kills the program
 *   GUASTI_META       set: that write writes half its bytes, and the one after it fails
 *
 * "GUASTO" goes to standard error when the fault has happened, so that a test can tell a save that
 * survived it from a save that never met it. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

static int chiamate = 0;

static int numero(const char *variabile)
{
    const char *testo = getenv(variabile);
    return testo ? atoi(testo) : 0;
}

static bool nella_cartella(const char *percorso)
{
    const char *cartella = getenv("GUASTI_CARTELLA");
    return cartella && strncmp(percorso, cartella, strlen(cartella)) == 0;
}

static bool descrittore_nella_cartella(int descrittore)
{
    char via[64];
    char percorso[PATH_MAX];
    snprintf(via, sizeof via, "/proc/self/fd/%d", descrittore);
    const ssize_t lunghezza = readlink(via, percorso, sizeof percorso - 1);
    if (lunghezza < 0) {
        return false;
    }
    percorso[lunghezza] = '\0';
    return nella_cartella(percorso);
}

/* Counts a call of this kind; true when it is the one that the fault is set on, or ritardo calls
 * after it. */
static bool tocca(const char *chiamata, int ritardo)
{
    const char *scelta = getenv("GUASTI_CHIAMATA");
    if (!scelta || strcmp(scelta, chiamata) != 0) {
        return false;
    }
    ++chiamate;
    const int n = numero("GUASTI_N") + ritardo;
    return chiamate == n || (chiamate > n && getenv("GUASTI_SEMPRE"));
}

static int guasto(void)
{
    static const char messaggio[] = "GUASTO\n";
    syscall(SYS_write, STDERR_FILENO, messaggio, sizeof messaggio - 1);
    if (getenv("GUASTI_UCCIDE")) {
        raise(SIGKILL);
    }
    errno = numero("GUASTI_ERRNO");
    return -1;
}

#define VERA(nome) ((__typeof__(&(nome)))dlsym(RTLD_NEXT, #nome))

#define APRE(nome)                                                                                 \
    int nome(const char *percorso, int modo, ...)                                                  \
    {                                                                                              \
        va_list argomenti;                                                                         \
        va_start(argomenti, modo);                                                                 \
        const mode_t permessi = modo & O_CREAT ? va_arg(argomenti, mode_t) : 0;                    \
        va_end(argomenti);                                                                         \
        if (nella_cartella(percorso) && tocca("open", 0)) {                                        \
            return guasto();                                                                       \
        }                                                                                          \
        return VERA(nome)(percorso, modo, permessi);                                               \
    }

APRE(open)
APRE(open64)

ssize_t write(int descrittore, const void *byte, size_t quanti)
{
    if (descrittore_nella_cartella(descrittore)) {
        const bool meta = getenv("GUASTI_META") != NULL;
        if (tocca("write", meta ? 1 : 0)) {
            return guasto();
        }
        if (meta && chiamate == numero("GUASTI_N")) {
            quanti = (quanti + 1) / 2;
        }
    }
    return VERA(write)(descrittore, byte, quanti);
}

int fsync(int descrittore)
{
    if (descrittore_nella_cartella(descrittore) && tocca("sync", 0)) {
        return guasto();
    }
    return VERA(fsync)(descrittore);
}

int fdatasync(int descrittore)
{
    if (descrittore_nella_cartella(descrittore) && tocca("sync", 0)) {
        return guasto();
    }
    return VERA(fdatasync)(descrittore);
}

#define TRONCA(nome, tipo)                                                                         \
    int nome(int descrittore, tipo misura)                                                         \
    {                                                                                              \
        if (descrittore_nella_cartella(descrittore) && tocca("truncate", 0)) {                     \
            return guasto();                                                                       \
        }                                                                                          \
        return VERA(nome)(descrittore, misura);                                                    \
    }

TRONCA(ftruncate, off_t)
TRONCA(ftruncate64, off64_t)

int fchown(int descrittore, uid_t proprietario, gid_t gruppo)
{
    if (descrittore_nella_cartella(descrittore) && tocca("chown", 0)) {
        return guasto();
    }
    return VERA(fchown)(descrittore, proprietario, gruppo);
}

int fsetxattr(int descrittore, const char *nome, const void *byte, size_t quanti, int modo)
{
    if (descrittore_nella_cartella(descrittore) && tocca("xattr", 0)) {
        return guasto();
    }
    return VERA(fsetxattr)(descrittore, nome, byte, quanti, modo);
}

int rename(const char *da, const char *a)
{
    if (nella_cartella(a) && tocca("rename", 0)) {
        return guasto();
    }
    return VERA(rename)(da, a);
}

int renameat2(int cartella_da, const char *da, int cartella_a, const char *a, unsigned int modo)
{
    if (nella_cartella(a) && tocca("rename", 0)) {
        return guasto();
    }
    return VERA(renameat2)(cartella_da, da, cartella_a, a, modo);
}
