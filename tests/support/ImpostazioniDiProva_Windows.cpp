#include "support/ImpostazioniDiProva.h"

#include "sistema/Impostazioni.h"

#include <QTest>

#include <windows.h>

namespace {

const wchar_t *const ChiaveDelDato = L"Software\\VB and VBA Program Settings\\vastrel\\INI";
const wchar_t *const VoceDati = L"dirtxt";

} // namespace

ImpostazioniDiProva::ImpostazioniDiProva()
    : prima_(Impostazioni::Dirtxt())
{
    qputenv("LOCALAPPDATA", cartella_.path().toUtf8());
    Dirtxt(QString());
}

ImpostazioniDiProva::~ImpostazioniDiProva()
{
    Dirtxt(prima_);
}

void ImpostazioniDiProva::Dirtxt(const QString &cartella) const
{
    if (cartella.isEmpty()) {
        RegDeleteKeyValueW(HKEY_CURRENT_USER, ChiaveDelDato, VoceDati); // there need not be any
        return;
    }
    // As the host application's own language writes settings.
    const std::wstring testo = cartella.toStdWString();
    QCOMPARE(RegSetKeyValueW(HKEY_CURRENT_USER, ChiaveDelDato, VoceDati, REG_SZ, testo.c_str(),
                             DWORD((testo.size() + 1) * sizeof(wchar_t))),
             ERROR_SUCCESS);
}
