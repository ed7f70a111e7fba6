#include "catalogue/ModelliTipo.h"

#include <array>

// Vastrel ships the templates and users know the texts: odd spellings included, none may change.
std::span<const ModelloTipo> ModelliTipo()
{
    using T = QLatin1String;
    static constexpr std::array<ModelloTipo, 13> tipi{{
        {T("OptFattura"), T("TIFATTURA.mod"), T("FATTURA"), T("Fattura_pers")},
        {T("OptFatturaRA"), T("TIFATTURARA.mod"), T("FATTURA"), T("FatturaRitAcc_pers")},
        {T("OptFatturaRifCli"), T("TIFATTURARifCli.mod"), T("FATTURA"),
         T("Fattura_con_RifCli_pers")},
        {T("OptFatturaAccompagn"), T("TIFATTACC.mod"), T("FATTURA ACCOMPAGNATORIA"),
         T("Fattura_Acc_pers")},
        {T("OptDdt"), T("TIBOLLA.mod"), T("Documento di Trasporto"), T("DDT_pers")},
        {T("OptDdtConPrezzi"), T("TIBOLLAPR.mod"), T("Documento di Trasporto"),
         T("DDT_con_Prezzi_pers")},
        {T("OptDdtRifCli"), T("TIBOLLARifCli.mod"), T("Documento di Trasporto"),
         T("DDT_con_RifCli_pers")},
        {T("OptOrdCli"), T("TIORDCLI.mod"), T("Ordine cliente / offerta"),
         T("OrdineCliente-Offerta_Pers")},
        {T("OptOrdCliRifCli"), T("TIORDCLIRifCli.mod"), T("Ordine cliente / offerta"),
         T("OrdineCliente-Offerta_con_RifCli_Pers")},
        {T("OptOrdFor"), T("TIORDFOR.mod"), T("Ordine fornitore / richiesta di offerta"),
         T("OrdineFornit-Offerta_Pers")},
        {T("OptMovimento"), T("TIMOVIMENTO.mod"), T("Movimento"), T("Movimento_Pers")},
        {T("OptScontrinoScarico"), T("TIScontrinoScarico.mod"), T("Scontrino Scarico"),
         T("Scontrino_Pers")},
        {T("OptEstrattoConto"), T("TIEC.mod"), T("Estratto Conto"), T("EstrattoConto_Pers")},
    }};
    return tipi;
}
