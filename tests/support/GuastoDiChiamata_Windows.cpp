#include "support/GuastoDiChiamata_Windows.h"

#include "support/FileDiProva.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include <windows.h>

namespace {

using Chiamata = GuastoDiChiamata::Chiamata;
using Risposta = GuastoDiChiamata::Risposta;

GuastoDiChiamata *guasto = nullptr;

constexpr qint64 SenzaLimite = -1;
qint64 limite = SenzaLimite; ///< of every file, in bytes

std::wstring PercorsoDi(HANDLE file)
{
    std::array<wchar_t, 32768> percorso{};
    const DWORD lunghezza =
        GetFinalPathNameByHandleW(file, percorso.data(), DWORD(percorso.size()), 0);
    return lunghezza < percorso.size() ? std::wstring(percorso.data(), lunghezza) : std::wstring();
}

Risposta RispostaPer(Chiamata chiamata, const std::wstring &percorso)
{
    return guasto != nullptr && guasto->NellaCartella(percorso) ? guasto->Conta(chiamata)
                                                                : Risposta::Prosegue;
}

Risposta RispostaPer(Chiamata chiamata, HANDLE file)
{
    return guasto == nullptr ? Risposta::Prosegue : RispostaPer(chiamata, PercorsoDi(file));
}

/// How many bytes the file may still take where it stands.
qint64 Resto(HANDLE file, qint64 richiesti)
{
    LARGE_INTEGER posto{};
    if (limite == SenzaLimite || GetFileType(file) != FILE_TYPE_DISK ||
        SetFilePointerEx(file, {}, &posto, FILE_CURRENT) == 0) {
        return richiesti;
    }
    return std::clamp<qint64>(limite - posto.QuadPart, 0, richiesti);
}

BOOL DiscoPieno()
{
    SetLastError(ERROR_DISK_FULL);
    return FALSE;
}

// What the table led to before.
decltype(&CreateFileW) veraApre = nullptr;
decltype(&WriteFile) veraScrive = nullptr;
decltype(&SetEndOfFile) veraTronca = nullptr;
decltype(&FlushFileBuffers) veraSincronizza = nullptr;
decltype(&ReplaceFileW) veraSostituisce = nullptr;
decltype(&MoveFileExW) veraSposta = nullptr;

HANDLE WINAPI Apre(LPCWSTR nome, DWORD accesso, DWORD agliAltri, LPSECURITY_ATTRIBUTES sicurezza,
                   DWORD modo, DWORD attributi, HANDLE campione)
{
    const bool scrive = (accesso & (GENERIC_WRITE | FILE_WRITE_DATA)) != 0;
    if (scrive && nome != nullptr && RispostaPer(Chiamata::Apre, nome) != Risposta::Prosegue) {
        return INVALID_HANDLE_VALUE;
    }
    return veraApre(nome, accesso, agliAltri, sicurezza, modo, attributi, campione);
}

BOOL WINAPI Scrive(HANDLE file, LPCVOID byte, DWORD quanti, LPDWORD scritti, LPOVERLAPPED posto)
{
    switch (RispostaPer(Chiamata::Scrive, file)) {
    case Risposta::Fallisce:
        return FALSE;
    case Risposta::Dimezza:
        return veraScrive(file, byte, quanti / 2, scritti, posto);
    case Risposta::Prosegue:
        break;
    }
    const auto entrano = static_cast<DWORD>(Resto(file, quanti));
    return entrano == 0 && quanti > 0 ? DiscoPieno()
                                      : veraScrive(file, byte, entrano, scritti, posto);
}

BOOL WINAPI Tronca(HANDLE file)
{
    if (RispostaPer(Chiamata::Tronca, file) != Risposta::Prosegue) {
        return FALSE;
    }
    LARGE_INTEGER fine{};
    const bool troppo = limite != SenzaLimite &&
                        SetFilePointerEx(file, {}, &fine, FILE_CURRENT) != 0 &&
                        fine.QuadPart > limite;
    return troppo ? DiscoPieno() : veraTronca(file);
}

BOOL WINAPI Sincronizza(HANDLE file)
{
    return RispostaPer(Chiamata::Sincronizza, file) == Risposta::Prosegue ? veraSincronizza(file)
                                                                          : FALSE;
}

BOOL WINAPI Sostituisce(LPCWSTR vecchio, LPCWSTR nuovo, LPCWSTR copia, DWORD modi, LPVOID riservato,
                        LPVOID altro)
{
    return RispostaPer(Chiamata::Sostituisce, vecchio) == Risposta::Prosegue
               ? veraSostituisce(vecchio, nuovo, copia, modi, riservato, altro)
               : FALSE;
}

BOOL WINAPI Sposta(LPCWSTR da, LPCWSTR a, DWORD modi)
{
    return RispostaPer(Chiamata::Sposta, da) == Risposta::Prosegue ? veraSposta(da, a, modi)
                                                                   : FALSE;
}

template <typename Cosa>
Cosa *Dentro(BYTE *programma, ULONGLONG dove)
{
    return reinterpret_cast<Cosa *>(programma + dove);
}

/// The program's way to a function of the system; null when it has none.
ULONGLONG *ViaPer(const char *funzione)
{
    auto *programma = reinterpret_cast<BYTE *>(GetModuleHandleW(nullptr));
    const auto *dos = Dentro<IMAGE_DOS_HEADER>(programma, 0);
    const auto *testa = Dentro<IMAGE_NT_HEADERS>(programma, ULONGLONG(dos->e_lfanew));
    const IMAGE_DATA_DIRECTORY &tabella =
        testa->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto *libreria = Dentro<IMAGE_IMPORT_DESCRIPTOR>(programma, tabella.VirtualAddress);
         libreria->Name != 0; ++libreria) {
        auto *nome = Dentro<IMAGE_THUNK_DATA>(programma, libreria->OriginalFirstThunk);
        auto *via = Dentro<IMAGE_THUNK_DATA>(programma, libreria->FirstThunk);
        for (; nome->u1.AddressOfData != 0; ++nome, ++via) {
            if (!IMAGE_SNAP_BY_ORDINAL(nome->u1.Ordinal) &&
                std::strcmp(Dentro<IMAGE_IMPORT_BY_NAME>(programma, nome->u1.AddressOfData)->Name,
                            funzione) == 0) {
                return &via->u1.Function;
            }
        }
    }
    return nullptr;
}

template <typename Funzione>
void Mette(const char *nome, Funzione propria, Funzione &vera)
{
    ULONGLONG *via = ViaPer(nome);
    DWORD prima = 0;
    if (via == nullptr || VirtualProtect(via, sizeof *via, PAGE_READWRITE, &prima) == 0) {
        qFatal("%s cannot be stood in for", nome);
    }
    vera = reinterpret_cast<Funzione>(*via);
    *via = reinterpret_cast<ULONGLONG>(propria);
    VirtualProtect(via, sizeof *via, prima, &prima);
}

void MetteTutte()
{
    if (veraApre != nullptr) {
        return; // once for all
    }
    Mette("CreateFileW", &Apre, veraApre);
    Mette("WriteFile", &Scrive, veraScrive);
    Mette("SetEndOfFile", &Tronca, veraTronca);
    Mette("FlushFileBuffers", &Sincronizza, veraSincronizza);
    Mette("ReplaceFileW", &Sostituisce, veraSostituisce);
    Mette("MoveFileExW", &Sposta, veraSposta);
}

} // namespace

GuastoDiChiamata::GuastoDiChiamata(Quale quale)
    : quale_(std::move(quale))
    , cartella_((QDir::toNativeSeparators(QFileInfo(quale_.cartella).canonicalFilePath()) +
                 QDir::separator())
                    .toStdWString())
{
    if (std::exchange(guasto, this) != nullptr) {
        qFatal("another fault is on its way");
    }
    MetteTutte();
}

GuastoDiChiamata::~GuastoDiChiamata()
{
    guasto = nullptr;
}

bool GuastoDiChiamata::NellaCartella(std::wstring percorso) const
{
    static const std::wstring Esteso = L"\\\\?\\";
    if (percorso.compare(0, Esteso.size(), Esteso) == 0) {
        percorso.erase(0, Esteso.size());
    }
    // Qt hands on both separators.
    for (wchar_t &carattere : percorso) {
        carattere = carattere == L'/' ? L'\\' : carattere;
    }
    const auto lunghezza = static_cast<int>(cartella_.size());
    return percorso.size() >= cartella_.size() &&
           CompareStringOrdinal(percorso.c_str(), lunghezza, cartella_.c_str(), lunghezza, TRUE) ==
               CSTR_EQUAL;
}

GuastoDiChiamata::Risposta GuastoDiChiamata::Conta(Chiamata chiamata)
{
    if (chiamata != quale_.chiamata || ++contate_ < quale_.n) {
        return Risposta::Prosegue;
    }
    const bool aMeta = quale_.modo == Modo::AMeta || quale_.modo == Modo::UccideAMeta;
    const bool scelta = contate_ == quale_.n + (aMeta ? 1 : 0);
    avvenuto_ = true;
    if (aMeta && contate_ == quale_.n) {
        return Risposta::Dimezza;
    }
    if (scelta && (quale_.modo == Modo::Uccide || quale_.modo == Modo::UccideAMeta)) {
        TerminateProcess(GetCurrentProcess(), StatoDiUcciso);
    }
    if (!scelta && quale_.modo != Modo::Sempre) {
        return Risposta::Prosegue;
    }
    SetLastError(quale_.errore);
    return Risposta::Fallisce;
}

struct LimiteFile::Prima
{
    qint64 limite;
};

LimiteFile::LimiteFile(qint64 byte)
    : prima_(std::make_unique<Prima>(Prima{std::exchange(limite, byte)}))
{
    MetteTutte();
}

LimiteFile::~LimiteFile()
{
    limite = prima_->limite;
}

// The administrator's rights are given up by nobody here: what forbids a file to be written forbids
// it to everybody, and access lists are not what tests with an ordinary user are about.
UtenteComune::UtenteComune() = default;
UtenteComune::~UtenteComune() = default;
