// SenzaDiritti PROGRAM [ARGUMENT...]: runs it as a user who is no administrator would, waits for it
// and ends with its status; 100 where it could not be started. For trying the installer under Wine,
// whose only user is one.
#include <windows.h>

#include <cstdio>
#include <cwchar>

namespace {
/// What follows the first word of the command line, as it was written.
wchar_t *RigaDopoIlPrimo(wchar_t *riga)
{
    const wchar_t fine = *riga == L'"' ? L'"' : L' ';
    riga = std::wcschr(riga + 1, fine);
    if (!riga) {
        return nullptr;
    }
    if (fine == L'"') {
        ++riga;
    }
    return riga + std::wcsspn(riga, L" ");
}

int Fallisce(const char *che)
{
    std::fprintf(stderr, "SenzaDiritti: %s: error %lu\n", che, GetLastError());
    return 100;
}
} // namespace

int wmain()
{
    wchar_t *riga = RigaDopoIlPrimo(GetCommandLineW());
    if (!riga || !*riga) {
        return Fallisce("no program named");
    }
    HANDLE mio = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &mio)) {
        return Fallisce("OpenProcessToken");
    }
    BYTE amministratori[SECURITY_MAX_SID_SIZE];
    DWORD misura = sizeof amministratori;
    if (!CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, amministratori, &misura)) {
        return Fallisce("CreateWellKnownSid");
    }
    SID_AND_ATTRIBUTES tolti{amministratori, 0};
    HANDLE ridotto = nullptr;
    if (!CreateRestrictedToken(mio, DISABLE_MAX_PRIVILEGE, 1, &tolti, 0, nullptr, 0, nullptr,
                               &ridotto)) {
        return Fallisce("CreateRestrictedToken");
    }
    STARTUPINFOW avvio{};
    avvio.cb = sizeof avvio;
    PROCESS_INFORMATION processo{};
    if (!CreateProcessAsUserW(ridotto, nullptr, riga, nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                              &avvio, &processo)) {
        return Fallisce("CreateProcessAsUser");
    }
    DWORD esito = 100;
    WaitForSingleObject(processo.hProcess, INFINITE);
    GetExitCodeProcess(processo.hProcess, &esito);
    return static_cast<int>(esito);
}
