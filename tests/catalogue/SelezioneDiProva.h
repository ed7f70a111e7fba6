#pragma once

#include "ArchiviDiProva.h"

#include <QRadioButton>

/// A kind of document that a new model may be for: its option button with its text, the template,
/// and what the question for a name says and proposes.
struct RigaTipo
{
    const char *opzione;
    const char *testo;
    const char *file;
    const char *titolo;
    const char *proposto;
};

inline constexpr RigaTipo Tipi[] = {
    {"OptFattura", "Fattura", "TIFATTURA.mod", "FATTURA", "Fattura_pers"},
    {"OptFatturaRA", "Fattura con ritenuta", "TIFATTURARA.mod", "FATTURA", "FatturaRitAcc_pers"},
    {"OptFatturaRifCli", "Fattura con riferimento prodotto cliente", "TIFATTURARifCli.mod",
     "FATTURA", "Fattura_con_RifCli_pers"},
    {"OptFatturaAccompagn", "Fattura accompagnatoria", "TIFATTACC.mod", "FATTURA ACCOMPAGNATORIA",
     "Fattura_Acc_pers"},
    {"OptDdt", "DDT documento di trasporto", "TIBOLLA.mod", "Documento di Trasporto", "DDT_pers"},
    {"OptDdtConPrezzi", "DDT doc. di trasporto con prezzi", "TIBOLLAPR.mod",
     "Documento di Trasporto", "DDT_con_Prezzi_pers"},
    {"OptDdtRifCli", "DDT con riferimento prodotto cliente", "TIBOLLARifCli.mod",
     "Documento di Trasporto", "DDT_con_RifCli_pers"},
    {"OptOrdCli", "Ordine cliente / offerta", "TIORDCLI.mod", "Ordine cliente / offerta",
     "OrdineCliente-Offerta_Pers"},
    {"OptOrdCliRifCli", "Ordine cliente con riferimento prodotto cliente", "TIORDCLIRifCli.mod",
     "Ordine cliente / offerta", "OrdineCliente-Offerta_con_RifCli_Pers"},
    {"OptOrdFor", "Ordine fornitore / richesta offerta", "TIORDFOR.mod",
     "Ordine fornitore / richiesta di offerta", "OrdineFornit-Offerta_Pers"},
    {"OptMovimento", "Movimento", "TIMOVIMENTO.mod", "Movimento", "Movimento_Pers"},
    {"OptScontrinoScarico", "Scontrino", "TIScontrinoScarico.mod", "Scontrino Scarico",
     "Scontrino_Pers"},
    {"OptEstrattoConto", "Estratto conto clienti", "TIEC.mod", "Estratto Conto",
     "EstrattoConto_Pers"},
};

inline const QString ScegliCartella = QStringLiteral("Selezionare una cartella");
inline const QString ScegliModello = QStringLiteral("Selezionare un modello");

/// The start window over a real data folder, which the settings name: archive "Contabilita" with
/// the models Alfa and Beta and the template of the invoice, archive "Altro" with a model Gamma.
class SelezioneDiProva
{
protected:
    /// Once for the program.
    void PreparaAmbiente() { impostazioni_ = std::make_unique<ImpostazioniDiProva>(); }
    /// Before each test.
    void Prepara()
    {
        dati_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(dati_->path()).mkpath(QStringLiteral("Contabilita/ini")));
        QVERIFY(QDir(dati_->path()).mkpath(QStringLiteral("Altro/ini")));
        ScriveFile(Ini(QStringLiteral("Alfa.Mod")), "alfa");
        ScriveFile(Ini(QStringLiteral("Beta.mod")), "beta");
        ScriveFile(Ini(QStringLiteral("TIFATTURA.mod")), "fattura tipo");
        ScriveFile(In(QStringLiteral("Altro/ini/Gamma.MOD")), "gamma");
        Dirtxt(dati_->path());
        finestra_ = std::make_unique<FinestraIniziale>();
        stato_ = &finestra_->Stato;
        frm_ = &finestra_->Finestra;
    }
    /// After each test.
    void Chiude() { finestra_.reset(); }

    QString In(const QString &nome) const
    {
        return QDir::toNativeSeparators(dati_->filePath(nome));
    }
    QString Ini(const QString &nome = QString()) const
    {
        return In(QStringLiteral("Contabilita/ini/") + nome);
    }
    /// Makes it the data folder of the settings.
    void Dirtxt(const QString &cartella) const { impostazioni_->Dirtxt(cartella); }
    void Carica() { finestra_->Carica(QString()); }
    QListWidget *Lista(const char *nome) const { return finestra_->Lista(nome); }
    QStringList Voci(const char *nome) const { return finestra_->Voci(nome); }
    void Seleziona(const char *lista, const QString &voce) const { finestra_->Clic(lista, voce); }
    void ScegliTipo(const char *opzione) const
    {
        Controlli::Trova<QRadioButton>(*frm_, opzione)->setChecked(true);
    }

    std::unique_ptr<ImpostazioniDiProva> impostazioni_;
    std::unique_ptr<QTemporaryDir> dati_;
    StatoProgramma *stato_ = nullptr;
    SelezioneArchivifrm *frm_ = nullptr;

private:
    std::unique_ptr<FinestraIniziale> finestra_;
};
