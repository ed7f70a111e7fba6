// plakera.com: what a console calls as "plakera". The program itself has no console window, so a
// command interpreter would neither wait for it nor show what it writes: this twin starts it with
// the same words, hands on what it writes, and ends with its exit status.

#include <windows.h>

#include <array>
#include <atomic>
#include <string>
#include <thread>

namespace {

constexpr DWORD NonAvviato = 3;

/// The other end of what the program writes: a console is given characters, a file or a pipe the
/// bytes as they come.
class Uscita
{
public:
    explicit Uscita(DWORD quale)
        : mia_(GetStdHandle(quale))
    {
        SECURITY_ATTRIBUTES ereditabile{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        if (CreatePipe(&legge_, &scrive_, &ereditabile, 0) == 0) {
            legge_ = scrive_ = nullptr;
            return;
        }
        SetHandleInformation(legge_, HANDLE_FLAG_INHERIT, 0);
        DWORD modo = 0;
        console_ = GetConsoleMode(mia_, &modo) != 0;
    }
    Uscita(const Uscita &) = delete;
    Uscita &operator=(const Uscita &) = delete;
    ~Uscita()
    {
        if (filo_.joinable()) {
            filo_.join();
        }
        if (legge_ != nullptr) {
            CloseHandle(legge_);
        }
    }

    HANDLE DelProgramma() const { return scrive_; }

    /// Once the program has been started: its end must be the only one, or the pipe never ends.
    void Travasa()
    {
        CloseHandle(scrive_);
        filo_ = std::thread([this] {
            std::array<char, 4096> pezzo{};
            DWORD letti = 0;
            while (ReadFile(legge_, pezzo.data(), DWORD(pezzo.size()), &letti, nullptr) != 0 &&
                   letti > 0) {
                Scrive(std::string(pezzo.data(), letti));
            }
        });
    }
    /// The program has ended: what it wrote has all been handed on when this returns.
    void Aspetta() { filo_.join(); }
    bool Perduta() const { return perduta_; }

private:
    void Scrive(const std::string &byte)
    {
        DWORD scritti = 0;
        if (!console_) {
            std::size_t dato = 0;
            while (dato < byte.size()) {
                if (WriteFile(mia_, byte.data() + dato, DWORD(byte.size() - dato), &scritti,
                              nullptr) == 0) {
                    perduta_ = true;
                    return;
                }
                dato += scritti;
            }
            return;
        }
        resto_ += byte;
        const std::size_t interi = CaratteriInteri();
        const int larghi = MultiByteToWideChar(CP_UTF8, 0, resto_.data(), int(interi), nullptr, 0);
        std::wstring testo(std::size_t(larghi), L'\0');
        MultiByteToWideChar(CP_UTF8, 0, resto_.data(), int(interi), testo.data(), larghi);
        resto_.erase(0, interi);
        if (!testo.empty()) {
            WriteConsoleW(mia_, testo.data(), DWORD(testo.size()), &scritti, nullptr);
        }
    }

    /// How many bytes of what is there are whole characters: a piece may end in the middle of one.
    std::size_t CaratteriInteri() const
    {
        constexpr unsigned char Seguito = 0x80;
        constexpr unsigned char MascheraSeguito = 0xC0;
        std::size_t inizio = resto_.size();
        while (inizio > 0 &&
               (static_cast<unsigned char>(resto_[inizio - 1]) & MascheraSeguito) == Seguito) {
            --inizio;
        }
        if (inizio == 0) {
            return resto_.size();
        }
        const auto primo = static_cast<unsigned char>(resto_[inizio - 1]);
        const std::size_t attesi = primo < 0x80 ? 1 : primo < 0xE0 ? 2 : primo < 0xF0 ? 3 : 4;
        return resto_.size() - (inizio - 1) >= attesi ? resto_.size() : inizio - 1;
    }

    HANDLE mia_;
    HANDLE legge_ = nullptr;
    HANDLE scrive_ = nullptr;
    bool console_ = false;
    std::atomic<bool> perduta_ = false;
    std::string resto_; ///< of a character that has not yet come whole
    std::thread filo_;
};

/// The command line as it was typed, without the word that called this program: quoting stays as it
/// is, whatever the rules of who reads it.
std::wstring Argomenti()
{
    const wchar_t *dopo = GetCommandLineW();
    bool fraVirgolette = false;
    while (*dopo != L'\0' && (fraVirgolette || (*dopo != L' ' && *dopo != L'\t'))) {
        fraVirgolette = (*dopo == L'"') != fraVirgolette;
        ++dopo;
    }
    return dopo;
}

std::wstring Programma()
{
    constexpr DWORD PercorsoPiuLungo = 32768;
    std::wstring percorso(PercorsoPiuLungo, L'\0');
    percorso.resize(GetModuleFileNameW(nullptr, percorso.data(), PercorsoPiuLungo));
    const std::size_t punto = percorso.rfind(L'.');
    return percorso.substr(0, punto) + L".exe";
}

DWORD NonSiAvvia(const std::wstring &programma)
{
    const std::wstring testo = L"plakera: impossibile avviare " + programma + L"\r\n";
    std::string byte(testo.size() * 3, '\0');
    byte.resize(std::size_t(WideCharToMultiByte(CP_UTF8, 0, testo.data(), int(testo.size()),
                                                byte.data(), int(byte.size()), nullptr, nullptr)));
    DWORD scritti = 0;
    const HANDLE errore = GetStdHandle(STD_ERROR_HANDLE);
    if (WriteConsoleW(errore, testo.data(), DWORD(testo.size()), &scritti, nullptr) == 0) {
        WriteFile(errore, byte.data(), DWORD(byte.size()), &scritti, nullptr);
    }
    return NonAvviato;
}

} // namespace

int wmain()
{
    const std::wstring programma = Programma();
    std::wstring riga = L'"' + programma + L'"' + Argomenti();
    DWORD stato = NonAvviato;
    bool perduta = false;
    {
        Uscita uscita(STD_OUTPUT_HANDLE);
        Uscita errori(STD_ERROR_HANDLE);
        STARTUPINFOW avvio{};
        avvio.cb = sizeof avvio;
        avvio.dwFlags = STARTF_USESTDHANDLES;
        avvio.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
        avvio.hStdOutput = uscita.DelProgramma();
        avvio.hStdError = errori.DelProgramma();
        PROCESS_INFORMATION processo{};
        if (CreateProcessW(programma.c_str(), riga.data(), nullptr, nullptr, TRUE, 0, nullptr,
                           nullptr, &avvio, &processo) == 0) {
            return int(NonSiAvvia(programma));
        }
        uscita.Travasa();
        errori.Travasa();
        WaitForSingleObject(processo.hProcess, INFINITE);
        uscita.Aspetta();
        errori.Aspetta();
        perduta = uscita.Perduta();
        GetExitCodeProcess(processo.hProcess, &stato);
        CloseHandle(processo.hThread);
        CloseHandle(processo.hProcess);
    }
    // Findings that nobody gets are no "none".
    return perduta && stato == 0 ? 2 : int(stato);
}
