// What Windows can do to an open file and Qt cannot.

#include "sistema/SuDisco.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

#include <io.h>
#include <windows.h>

#include <aclapi.h>

namespace {

/// The standard library knows the causes of most errors; those that a failing medium or share gives
/// besides are named here, so that the user is told the right one.
std::error_code Codice(DWORD errore)
{
    constexpr DWORD SpazioDellUtenteFinito = 1295; // the compiler's own headers lack it
    switch (errore) {
    case SpazioDellUtenteFinito:
    case ERROR_NOT_ENOUGH_QUOTA:
        return std::make_error_code(std::errc::no_space_on_device);
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_NOT_READY:
    case ERROR_SEM_TIMEOUT:
    case ERROR_NETNAME_DELETED:
    case ERROR_CONNECTION_ABORTED:
        return std::make_error_code(std::errc::io_error);
    default:
        return {static_cast<int>(errore), std::system_category()};
    }
}

HANDLE Maniglia(int descrittore)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(descrittore));
}

struct Libera
{
    void operator()(void *memoria) const { LocalFree(memoria); }
};
using Descrizione = std::unique_ptr<void, Libera>; ///< of a file's security

struct Chiude
{
    using pointer = HANDLE;
    void operator()(HANDLE aperto) const
    {
        if (aperto != INVALID_HANDLE_VALUE) {
            CloseHandle(aperto);
        }
    }
};
using Aperto = std::unique_ptr<HANDLE, Chiude>;

/// Nobody is kept out by what is only looked at.
constexpr DWORD PerTutti = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Written like this a path may be longer than 260 characters whatever the computer's settings.
std::wstring PerIlSistema(const QString &percorso)
{
    const auto soloUnita = [](const QString &testo) {
        return testo.size() == 2 && testo[1] == u':';
    };
    const QString assoluto = soloUnita(percorso) ? percorso + u'/'
                             : QDir::isAbsolutePath(percorso)
                                 ? percorso
                                 : QDir::current().absoluteFilePath(percorso);
    const QString intero = QDir::toNativeSeparators(QDir::cleanPath(assoluto));
    if (intero.startsWith(QLatin1String("\\\\?\\")) ||
        intero.startsWith(QLatin1String("\\\\.\\"))) {
        return intero.toStdWString();
    }
    const bool rete = intero.startsWith(QLatin1String("\\\\"));
    return ((rete ? QLatin1String("\\\\?\\UNC") : QLatin1String("\\\\?\\")) +
            intero.mid(rete ? 1 : 0))
        .toStdWString();
}

/// False where the file system has no access lists, or the user may not read this one.
bool TieneListaAccessi(HANDLE nuovo, std::wstring vecchio)
{
    PACL lista = nullptr;
    PSECURITY_DESCRIPTOR descrizione = nullptr;
    if (GetNamedSecurityInfoW(vecchio.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                              nullptr, &lista, nullptr, &descrizione) != ERROR_SUCCESS) {
        return false;
    }
    const Descrizione libera(descrizione);
    SECURITY_DESCRIPTOR_CONTROL controllo = 0;
    DWORD revisione = 0;
    GetSecurityDescriptorControl(descrizione, &controllo, &revisione);
    // Whether the folder's own rights still reach the file is part of what it has.
    const DWORD eredita = (controllo & SE_DACL_PROTECTED) != 0
                              ? PROTECTED_DACL_SECURITY_INFORMATION
                              : UNPROTECTED_DACL_SECURITY_INFORMATION;
    return SetSecurityInfo(nuovo, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | eredita, nullptr,
                           nullptr, lista, nullptr) == ERROR_SUCCESS;
}

/// What a user or the system has marked the old file with. The times stay the new file's own.
void TieneAttributi(HANDLE nuovo, const std::wstring &vecchio)
{
    constexpr DWORD Tenuti =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    const DWORD attributi = GetFileAttributesW(vecchio.c_str());
    if (attributi != INVALID_FILE_ATTRIBUTES && (attributi & Tenuti) != 0) {
        FILE_BASIC_INFO informazioni{};
        informazioni.FileAttributes = (attributi & Tenuti) | FILE_ATTRIBUTE_ARCHIVE;
        SetFileInformationByHandle(nuovo, FileBasicInfo, &informazioni, sizeof informazioni);
    }
}

/// The path with its last name as the folder spells it: a file that takes the place of another gets
/// the name that it is given.
std::wstring ComeSiChiama(const std::wstring &percorso)
{
    WIN32_FIND_DATAW trovato{};
    const HANDLE ricerca = FindFirstFileW(percorso.c_str(), &trovato);
    if (ricerca == INVALID_HANDLE_VALUE) {
        return percorso;
    }
    FindClose(ricerca);
    const std::size_t inizio = percorso.find_last_of(L'\\') + 1;
    // Only that very name: "*" and "?" find others, too.
    const bool suo = CompareStringOrdinal(percorso.c_str() + inizio, -1, trovato.cFileName, -1,
                                          TRUE) == CSTR_EQUAL;
    return suo ? percorso.substr(0, inizio) + trovato.cFileName : percorso;
}

/// Where ReplaceFile does not take the place, moving does: there is no old file, the file system
/// knows no such call, or it has left off half way, with the old file out of the way or not.
bool SiPuoSpostare(DWORD errore)
{
    static constexpr std::array Mancato{ERROR_FILE_NOT_FOUND,
                                        ERROR_INVALID_FUNCTION,
                                        ERROR_NOT_SUPPORTED,
                                        ERROR_INVALID_PARAMETER,
                                        ERROR_UNABLE_TO_MOVE_REPLACEMENT,
                                        ERROR_UNABLE_TO_MOVE_REPLACEMENT_2};
    return std::find(Mancato.begin(), Mancato.end(), static_cast<long>(errore)) != Mancato.end();
}

bool TenutoDaAltri(DWORD errore)
{
    return errore == ERROR_SHARING_VIOLATION || errore == ERROR_LOCK_VIOLATION ||
           errore == ERROR_USER_MAPPED_FILE || errore == ERROR_UNABLE_TO_REMOVE_REPLACED;
}

} // namespace

void SuDisco::DimenticaErrore()
{
    errno = 0;
    SetLastError(ERROR_SUCCESS);
}

std::error_code SuDisco::UltimoErrore()
{
    // Qt goes by the system's own calls; where it goes through the C library, that knows better.
    const DWORD errore = GetLastError();
    return errno != 0 ? std::error_code(errno, std::generic_category()) : Codice(errore);
}

bool SuDisco::HaAltriNomi(const QString &percorso)
{
    const Aperto file(CreateFileW(PerIlSistema(percorso).c_str(), FILE_READ_ATTRIBUTES, PerTutti,
                                  nullptr, OPEN_EXISTING, 0, nullptr));
    BY_HANDLE_FILE_INFORMATION informazioni{};
    return GetFileInformationByHandle(file.get(), &informazioni) != 0 &&
           informazioni.nNumberOfLinks > 1;
}

QString SuDisco::ComeSulDisco(const QString &percorso)
{
    // Nobody writes "..", but a text with thousands of them names a folder that is there: each part
    // would be looked up.
    if (percorso.contains(QLatin1String("\\.."))) {
        return percorso;
    }
    QString scritto = percorso;
    qsizetype inizio = 0;
    while (inizio < scritto.size()) {
        const qsizetype barra = scritto.indexOf(u'\\', inizio);
        const qsizetype fine = barra < 0 ? scritto.size() : barra;
        const auto parte = QStringView(scritto).mid(inizio, fine - inizio);
        if (parte.isEmpty() || parte == u'.') {
            inizio = fine + 1;
            continue;
        }
        const std::wstring intero = ComeSiChiama(PerIlSistema(scritto.left(fine)));
        const QString nome = QString::fromStdWString(intero.substr(intero.find_last_of(L'\\') + 1));
        // Drives, shares and short names stay as they are.
        if (nome.compare(parte, Qt::CaseInsensitive) == 0) {
            scritto.replace(inizio, fine - inizio, nome);
        }
        inizio = fine + 1;
    }
    return scritto;
}

std::error_code SuDisco::SiElenca(const QString &cartella)
{
    const Aperto aperta(CreateFileW(PerIlSistema(cartella).c_str(), FILE_LIST_DIRECTORY, PerTutti,
                                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return aperta.get() == INVALID_HANDLE_VALUE ? Codice(GetLastError()) : std::error_code();
}

std::error_code SuDisco::Sincronizza(int descrittore)
{
    // Not the C library's way, which does not tell why it failed.
    if (FlushFileBuffers(Maniglia(descrittore)) != 0) {
        return {};
    }
    const DWORD errore = GetLastError();
    return errore == ERROR_INVALID_FUNCTION || errore == ERROR_NOT_SUPPORTED ? std::error_code()
                                                                             : Codice(errore);
}

std::error_code SuDisco::SincronizzaCartella(const QString & /*cartella*/)
{
    return {};
}

bool SuDisco::TieneProprieta(int descrittore, const QString &vecchio)
{
    const HANDLE nuovo = Maniglia(descrittore);
    const std::wstring percorso = PerIlSistema(vecchio);
    TieneAttributi(nuovo, percorso);
    // The handle that Qt opened may not be allowed to; a file system without lists has none to
    // keep.
    const Aperto perLaLista(ReOpenFile(nuovo, READ_CONTROL | WRITE_DAC, PerTutti, 0));
    if (perLaLista.get() != INVALID_HANDLE_VALUE) {
        TieneListaAccessi(perLaLista.get(), percorso);
    }
    return true;
}

std::error_code SuDisco::PrendeIlPosto(const QString &nuovo, const QString &vecchio)
{
    const std::wstring da = PerIlSistema(nuovo);
    const std::wstring a = ComeSiChiama(PerIlSistema(vecchio));
    if (ReplaceFileW(a.c_str(), da.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                     nullptr) != 0) {
        return {};
    }
    DWORD errore = GetLastError();
    if (SiPuoSpostare(errore)) {
        if (MoveFileExW(da.c_str(), a.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
            return {};
        }
        errore = GetLastError();
    }
    return TenutoDaAltri(errore) ? std::make_error_code(std::errc::permission_denied)
                                 : Codice(errore);
}

void SuDisco::FallisceOltreIlLimite() {}
