// Annota [WORD...]: appends what it was called with to a file beside itself, Annota.exe.txt for
// Annota.exe, a word a line, in UTF-8. For trying what the Windows program has others open.
#include <windows.h>

#include <string>

namespace {
std::string InUtf8(const std::wstring &parole)
{
    const int lunghezza = static_cast<int>(parole.size());
    std::string testo(parole.size() * 3, '\0');
    testo.resize(
        static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, parole.data(), lunghezza, testo.data(),
                                                static_cast<int>(testo.size()), nullptr, nullptr)));
    return testo;
}
} // namespace

int wmain(int quante, wchar_t **parole)
{
    std::wstring percorso(32768, L'\0');
    percorso.resize(
        GetModuleFileNameW(nullptr, percorso.data(), static_cast<DWORD>(percorso.size())));
    HANDLE file = CreateFileW((percorso + L".txt").c_str(), FILE_APPEND_DATA, FILE_SHARE_READ,
                              nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return 1;
    }
    std::wstring tutte;
    for (int i = 1; i < quante; ++i) {
        tutte += parole[i];
        tutte += L"\n";
    }
    const std::string testo = InUtf8(tutte);
    DWORD scritti = 0;
    return WriteFile(file, testo.data(), static_cast<DWORD>(testo.size()), &scritti, nullptr) ? 0
                                                                                              : 1;
}
