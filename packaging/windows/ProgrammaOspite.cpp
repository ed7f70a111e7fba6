// Under Wine alone, for the tests: runs the program of the host that this one is named after
// (pdftotext.exe runs pdftotext) with the same words, hands on what it writes, and ends with its
// exit status. Wine starts programs of the host, but neither waits for them nor gives them its
// pipes: a script of the shell leaves in files what comes out.

#include <windows.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include <fcntl.h>
#include <io.h>

namespace {

constexpr int NonAvviato = 127;

std::string Utf8(const std::wstring &testo)
{
    std::string byte(testo.size() * 3, '\0');
    byte.resize(std::size_t(WideCharToMultiByte(CP_UTF8, 0, testo.data(), int(testo.size()),
                                                byte.data(), int(byte.size()), nullptr, nullptr)));
    return byte;
}

/// The host's name of the file; empty where this is no Wine.
std::string PercorsoOspite(const std::wstring &percorso)
{
    using Traduce = char *(CDECL *)(LPCWSTR);
    const auto traduce = reinterpret_cast<Traduce>(reinterpret_cast<void *>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    char *ospite = traduce == nullptr ? nullptr : traduce(percorso.c_str());
    if (ospite == nullptr) {
        return {};
    }
    const std::string nome(ospite);
    HeapFree(GetProcessHeap(), 0, ospite);
    return nome;
}

std::string FraApici(const std::string &testo)
{
    std::string intero = "'";
    for (const char carattere : testo) {
        intero += carattere == '\'' ? std::string("'\\''") : std::string(1, carattere);
    }
    return intero + '\'';
}

std::string Parola(const std::wstring &parola)
{
    const bool percorso = parola.size() > 2 && parola[1] == L':';
    return FraApici(percorso ? PercorsoOspite(parola) : Utf8(parola));
}

std::string NomeProprio()
{
    constexpr DWORD PercorsoPiuLungo = 32768;
    std::wstring percorso(PercorsoPiuLungo, L'\0');
    percorso.resize(GetModuleFileNameW(nullptr, percorso.data(), PercorsoPiuLungo));
    percorso.erase(0, percorso.find_last_of(L"\\/") + 1);
    return Utf8(percorso.substr(0, percorso.rfind(L'.')));
}

std::string Contenuto(const std::wstring &percorso)
{
    std::ifstream file(Utf8(percorso), std::ios::binary); // only letters of ASCII in it
    return {std::istreambuf_iterator<char>(file), {}};
}

void Travasa(const std::wstring &percorso, FILE *dove)
{
    const std::string byte = Contenuto(percorso);
    _setmode(_fileno(dove), _O_BINARY);
    std::fwrite(byte.data(), 1, byte.size(), dove);
    std::fflush(dove);
}

} // namespace

int wmain(int quante, wchar_t **parole)
{
    wchar_t cartella[MAX_PATH];
    wchar_t base[MAX_PATH];
    if (GetTempPathW(MAX_PATH, cartella) == 0 || GetTempFileNameW(cartella, L"osp", 0, base) == 0 ||
        PercorsoOspite(base).empty()) {
        return NonAvviato;
    }
    const std::wstring copione = base;
    const std::wstring uscita = copione + L".out";
    const std::wstring errori = copione + L".err";
    const std::wstring esito = copione + L".fin";

    std::string comando = NomeProprio();
    for (int i = 1; i < quante; ++i) {
        comando += ' ' + Parola(parole[i]);
    }
    const std::string ospite = PercorsoOspite(copione);
    std::ofstream(Utf8(copione), std::ios::binary)
        << comando << " >" << FraApici(ospite + ".out") << " 2>" << FraApici(ospite + ".err")
        << "\necho $? >" << FraApici(ospite + ".tmp") << "\nmv " << FraApici(ospite + ".tmp") << ' '
        << FraApici(ospite + ".fin") << '\n';

    std::wstring riga = L"sh ";
    riga += std::wstring(ospite.begin(), ospite.end());
    STARTUPINFOW avvio{};
    avvio.cb = sizeof avvio;
    PROCESS_INFORMATION processo{};
    if (CreateProcessW(L"Z:\\bin\\sh", riga.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &avvio, &processo) == 0) {
        return NonAvviato;
    }
    while (GetFileAttributesW(esito.c_str()) == INVALID_FILE_ATTRIBUTES) {
        Sleep(5);
    }
    Travasa(uscita, stdout);
    Travasa(errori, stderr);
    const int stato = std::stoi(Contenuto(esito));
    for (const std::wstring &file : {copione, uscita, errori, esito}) {
        DeleteFileW(file.c_str());
    }
    return stato;
}
