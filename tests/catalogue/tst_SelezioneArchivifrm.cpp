#include "base/ErroreSistema.h"
#include "catalogue/SelezioneArchivifrm.h"
#include "finestre/ApriManuale.h"
#include "finestre/Finestre.h"
#include "print/Stampanti.h"
#include "support/Controlli.h"
#include "support/FileDiProva.h"
#include "support/Permessi.h"
#include "support/Robot.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

using Controlli::Preme;
using Controlli::Trova;

namespace {

struct RigaTipo
{
    const char *opzione;
    const char *testo;
    const char *file;
    const char *titolo;
    const char *proposto;
};

constexpr RigaTipo Tipi[] = {
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

const QString InEsecuzione = QStringLiteral("programma già in esecuzione");
const QString SenzaDirtxt = QStringLiteral("non esiste dirtxt in reg conf");
const QString ScegliCartella = QStringLiteral("Selezionare una cartella");
const QString ScegliModello = QStringLiteral("Selezionare un modello");

} // namespace

/// The start window over a real data folder: archive "Contabilita" with the models Alfa and Beta
/// and the template of the invoice, archive "Altro" with a model Gamma.
class tst_SelezioneArchivifrm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void Testi();
    void Controlli_nascosti();
    void GuidaSuOgniControllo();
    void FuocoIniziale();
    void OrdineDiTabulazione();
    void TuttoSulloSchermo();

    void Carica_dirtxt();
    void Carica_senzaDirtxt();
    void Carica_secondaIstanza();
    void Carica_datiIndicatiAlPostoDiDirtxt();
    void Carica_datiRelativi();
    void Carica_cartellaProgramma();
    void Carica_cartellaDatiMancante();
    void Carica_cartellaDatiIlleggibile();
    void Carica_senzaSottocartelle();
    void Carica_archivioPredefinito_data();
    void Carica_archivioPredefinito();
    void Carica_font();

    void Archivio_scelto();
    void Archivio_giaScelto();
    void Archivio_unElencoPerClic_data();
    void Archivio_unElencoPerClic();
    void Archivio_iniMaiuscolo();
    void Archivio_senzaIni();
    void Archivio_illeggibile();
    void Archivio_treEstensioni();
    void Archivio_modelloCheECartella();
    void Modello_scelto();

    void Apri_senzaArchivio();
    void Apri_senzaModello();
    void Apri_bottone();
    void Apri_doppioClic();
    void Apri_invio();

    void Nuovo_perTipo_data();
    void Nuovo_perTipo();
    void Nuovo_senzaArchivio();
    void Nuovo_nomeVuoto();
    void Nuovo_annullato();
    void Nuovo_nomeNonValido_data();
    void Nuovo_nomeNonValido();
    void Nuovo_DDT();
    void Nuovo_esisteNo();
    void Nuovo_esisteSi();
    void Nuovo_esisteConAltreMaiuscole();
    void Nuovo_esisteVuoto();
    void Nuovo_nomeDiCartella();
    void Nuovo_modelloTipoMancante();
    void Nuovo_modelloTipoCheECartella();
    void Nuovo_cartellaSenzaDiritti();
    void Duplico_senzaModello();
    void Duplico_nomeProposto();
    void Duplico_suSeStesso();

    void RiaperturaDopoLEditor();
    void Riapertura_archivioScomparso();
    void Manuale();

private:
    QString In(const QString &nome) const
    {
        return QDir::toNativeSeparators(dati_->filePath(nome));
    }
    QString Ini(const QString &nome = QString()) const
    {
        return In(QStringLiteral("Contabilita/ini/") + nome);
    }
    void Dirtxt(const QString &cartella) const;
    /// Loads the window, which must succeed without a message, and shows it.
    void Carica();
    QListWidget *Lista(const char *nome) const { return Trova<QListWidget>(*frm_, nome); }
    QStringList Voci(const char *nome) const;
    void Seleziona(const char *lista, const QString &voce) const;
    void ScegliTipo(const char *opzione) const
    {
        Trova<QRadioButton>(*frm_, opzione)->setChecked(true);
    }

    std::unique_ptr<QTemporaryDir> ambiente_;
    std::unique_ptr<QTemporaryDir> dati_;
    std::unique_ptr<StatoProgramma> stato_;
    std::unique_ptr<SelezioneArchivifrm> frm_;
};

void tst_SelezioneArchivifrm::initTestCase()
{
    ambiente_ = std::make_unique<QTemporaryDir>();
    QVERIFY(ambiente_->isValid());
    qputenv("XDG_CONFIG_HOME", ambiente_->path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", ambiente_->path().toUtf8());
}

void tst_SelezioneArchivifrm::init()
{
    dati_ = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(dati_->path()).mkpath(QStringLiteral("Contabilita/ini")));
    QVERIFY(QDir(dati_->path()).mkpath(QStringLiteral("Altro/ini")));
    ScriveFile(Ini(QStringLiteral("Alfa.Mod")), "alfa");
    ScriveFile(Ini(QStringLiteral("Beta.mod")), "beta");
    ScriveFile(Ini(QStringLiteral("TIFATTURA.mod")), "fattura tipo");
    ScriveFile(In(QStringLiteral("Altro/ini/Gamma.MOD")), "gamma");
    Dirtxt(dati_->path());
    stato_ = std::make_unique<StatoProgramma>();
    frm_ = std::make_unique<SelezioneArchivifrm>(*stato_);
}

void tst_SelezioneArchivifrm::cleanup()
{
    frm_.reset();
}

void tst_SelezioneArchivifrm::Dirtxt(const QString &cartella) const
{
    ScriveFile(ambiente_->filePath(QStringLiteral("vastrel.ini")),
               QStringLiteral("[INI]\ndirtxt=%1\n").arg(cartella).toUtf8());
}

void tst_SelezioneArchivifrm::Carica()
{
    const Robot robot;
    QVERIFY(frm_->Form_Load(QString()));
    QVERIFY(robot.Soddisfatto());
    frm_->show();
    QVERIFY(QTest::qWaitForWindowExposed(frm_.get()));
    QApplication::setActiveWindow(frm_.get());
}

QStringList tst_SelezioneArchivifrm::Voci(const char *nome) const
{
    QStringList voci;
    for (int i = 0; i < Lista(nome)->count(); ++i) {
        voci.append(Lista(nome)->item(i)->text());
    }
    return voci;
}

void tst_SelezioneArchivifrm::Seleziona(const char *lista, const QString &voce) const
{
    const auto trovate = Lista(lista)->findItems(voce, Qt::MatchExactly);
    QCOMPARE(trovate.size(), 1);
    QTest::mouseClick(Lista(lista)->viewport(), Qt::LeftButton, Qt::NoModifier,
                      Lista(lista)->visualItemRect(trovate.first()).center());
}

void tst_SelezioneArchivifrm::Testi()
{
    QCOMPARE(frm_->objectName(), QStringLiteral("SelezioneArchivifrm"));
    QCOMPARE(frm_->windowTitle(),
             QStringLiteral("Plakera - Modelli stampa per gestionale Vastrel "));
    QCOMPARE(Trova<QGroupBox>(*frm_, "Frame1")->title(), QStringLiteral("apri modello esistente"));
    QCOMPARE(Trova<QGroupBox>(*frm_, "Frame2")->title(), QStringLiteral("crea nuovo modello"));
    const auto *apri = Trova<QPushButton>(*frm_, "Apri");
    QCOMPARE(apri->text().remove(u'&'), QStringLiteral("Apri"));
    QCOMPARE(apri->toolTip(), QStringLiteral("APRE UN TRACCIATO PER EFFETTUARE VARIAZIONI "));
    const auto *nuovo = Trova<QPushButton>(*frm_, "Nuovo");
    QCOMPARE(nuovo->text().remove(u'&'), QStringLiteral("Nuovo"));
    QCOMPARE(nuovo->toolTip(), QStringLiteral("CREA UN NUOVO TRACCIATO"));
    QCOMPARE(
        Trova<QLabel>(*frm_, "Label1")->text(),
        QStringLiteral("Plakera consente modificare il layout (impaginazione) della stampa dei "
                       "documenti emessi con Vastrel"));
    QCOMPARE(Trova<QLabel>(*frm_, "Label24")->text(),
             QStringLiteral("Completato il lavoro, apri Vastrel ed imposta sul 'tipo documento' il "
                            "modello che hai creato; poi prova ad emettere un documento per "
                            "verificarne l'impostazione sulla carta."));
    QCOMPARE(Trova<QLabel>(*frm_, "Label26")->text(),
             QStringLiteral("Se l'impostazione non è ancora precisa puoi tornare su Plakera e fare "
                            "le variazioni."));
    for (const RigaTipo &tipo : Tipi) {
        QCOMPARE(Trova<QRadioButton>(*frm_, tipo.opzione)->text(), QString::fromLatin1(tipo.testo));
    }
    QCOMPARE(Trova<QRadioButton>(*frm_, "OptDuplico")->text(),
             QStringLiteral("Duplico un modello esistente"));
}

void tst_SelezioneArchivifrm::Controlli_nascosti()
{
    Carica();
    QVERIFY(!Lista("Dir1")->isVisible());
    QVERIFY(!Lista("File1")->isVisible());
    QCOMPARE(Voci("Dir1"), Voci("List1"));
    QCOMPARE(Voci("File1"), (QStringList{QStringLiteral("Alfa.Mod"), QStringLiteral("Beta.mod"),
                                         QStringLiteral("TIFATTURA.mod")}));
}

void tst_SelezioneArchivifrm::GuidaSuOgniControllo()
{
    Carica();
    QCOMPARE(frm_->property(ProprietaGuida).toInt(), 44);
    for (const char *nome :
         {"List1", "List2", "Apri", "Nuovo", "Image1", "OptDuplico", "Label24"}) {
        QCOMPARE(Trova<QWidget>(*frm_, nome)->property(ProprietaGuida).toInt(), 44);
    }
}

void tst_SelezioneArchivifrm::FuocoIniziale()
{
    Carica();
    QTRY_VERIFY(Lista("List2")->hasFocus());
    QVERIFY2(Lista("List2")->selectedItems().isEmpty(), "no model is chosen beforehand");
}

void tst_SelezioneArchivifrm::OrdineDiTabulazione()
{
    Carica();
    Lista("List1")->setFocus();
    QStringList percorsi;
    for (int i = 0; i < 6; ++i) {
        percorsi.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(percorsi, (QStringList{QStringLiteral("List1"), QStringLiteral("List2"),
                                    QStringLiteral("Apri"), QStringLiteral("OptFattura"),
                                    QStringLiteral("Nuovo"), QStringLiteral("Image1")}));
}

void tst_SelezioneArchivifrm::TuttoSulloSchermo()
{
    Carica();
    const QRect schermo = frm_->screen()->availableGeometry();
    QVERIFY(schermo.contains(frm_->geometry()));
    const QPoint scarto = frm_->geometry().center() - frm_->screen()->geometry().center();
    QVERIFY(qAbs(scarto.x()) <= 2);
}

void tst_SelezioneArchivifrm::Carica_dirtxt()
{
    Carica();
    QCOMPARE(Voci("List1"),
             (QStringList{In(QStringLiteral("Altro")), In(QStringLiteral("Contabilita"))}));
    QCOMPARE(Lista("List1")->selectedItems().value(0)->text(), In(QStringLiteral("Contabilita")));
    QCOMPARE(stato_->CartellaModelli, Ini());
    QCOMPARE(stato_->ArchivioPredefinito, QStringLiteral("Contabilita"));
    QCOMPARE(Voci("List2"), (QStringList{QStringLiteral("Alfa"), QStringLiteral("Beta"),
                                         QStringLiteral("TIFATTURA")}));
}

void tst_SelezioneArchivifrm::Carica_senzaDirtxt()
{
    Dirtxt(QString());
    Robot robot;
    robot.Ok();
    QVERIFY(!frm_->Form_Load(QString()));
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{SenzaDirtxt});
    QCOMPARE(robot.Titoli(), QStringList{QStringLiteral("Plakera")});
    QVERIFY(Voci("List1").isEmpty());
    QVERIFY(stato_->ElencoFont.isEmpty());
}

void tst_SelezioneArchivifrm::Carica_secondaIstanza()
{
    // Before the setting is even looked at.
    Dirtxt(QString());
    IstanzaUnica altra;
    QVERIFY(altra.Acquisisce());
    Robot robot;
    robot.Ok();
    QVERIFY(!frm_->Form_Load(QString()));
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{InEsecuzione});
}

void tst_SelezioneArchivifrm::Carica_datiIndicatiAlPostoDiDirtxt()
{
    Dirtxt(QString());
    const Robot robot;
    QVERIFY(frm_->Form_Load(dati_->path() + u'/'));
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(Voci("List1").size(), 2);
    QCOMPARE(stato_->CartellaModelli, Ini());
}

void tst_SelezioneArchivifrm::Carica_datiRelativi()
{
    QVERIFY(frm_->Form_Load(QDir::current().relativeFilePath(dati_->path())));
    QCOMPARE(Voci("List1").value(1), In(QStringLiteral("Contabilita")));
}

void tst_SelezioneArchivifrm::Carica_cartellaProgramma()
{
    Carica();
    const auto *etichetta = Trova<QLabel>(*frm_, "Label3");
    QCOMPARE(etichetta->text(), CartellaProgramma());
    QVERIFY(QFontInfo(etichetta->font()).pointSizeF() < QFontInfo(frm_->font()).pointSizeF());
}

void tst_SelezioneArchivifrm::Carica_cartellaDatiMancante()
{
    const QString cartella = In(QStringLiteral("rete assente"));
    Dirtxt(cartella);
    Robot robot;
    robot.Ok();
    QVERIFY(frm_->Form_Load(QString()));
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().value(0).contains(cartella), qPrintable(robot.Testi().value(0)));
    QVERIFY(Voci("List1").isEmpty());
    QCOMPARE(stato_->CartellaModelli, cartella);
}

void tst_SelezioneArchivifrm::Carica_cartellaDatiIlleggibile()
{
    const QString cartella = In(QStringLiteral("chiusa"));
    QVERIFY(QDir().mkpath(cartella + QStringLiteral("/Contabilita/ini")));
    Dirtxt(cartella);
    QVERIFY(QFile::setPermissions(dati_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(ambiente_->path(),
                                  Permessi::PerTutti | QFile::WriteGroup | QFile::WriteOther));
    QVERIFY(QFile::setPermissions(cartella, Permessi::Nessuno));
    Robot robot;
    robot.Ok();
    bool caricata = false;
    {
        const UtenteComune utente;
        caricata = frm_->Form_Load(QString());
    }
    QVERIFY(QFile::setPermissions(cartella, Permessi::PerTutti));
    QVERIFY(caricata);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(),
             QStringList{QStringLiteral("impossibile leggere la cartella dei dati\n%1\n%2")
                             .arg(cartella, DescrizioneErrore(ErroreSistema::AccessoFile))});
    QVERIFY(Voci("List1").isEmpty());
    QCOMPARE(stato_->CartellaModelli, cartella);
}

void tst_SelezioneArchivifrm::Carica_senzaSottocartelle()
{
    QVERIFY(QDir(dati_->path()).mkdir(QStringLiteral("vuota")));
    Dirtxt(In(QStringLiteral("vuota")));
    Carica();
    QVERIFY(Voci("List1").isEmpty());
    QCOMPARE(stato_->CartellaModelli, In(QStringLiteral("vuota")));
    Robot robot;
    robot.Ok().Ok();
    Preme(*frm_, "Apri");
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), (QStringList{ScegliCartella, ScegliCartella}));
}

void tst_SelezioneArchivifrm::Carica_archivioPredefinito_data()
{
    QTest::addColumn<QStringList>("archivi");
    QTest::addColumn<QString>("predefinito");
    QTest::addColumn<QString>("scelto");
    const auto riga = [](const char *titolo, const char *archivi, const char *predefinito,
                         const char *scelto) {
        QTest::newRow(titolo) << QString::fromUtf8(archivi).split(u'|')
                              << QString::fromUtf8(predefinito) << QString::fromUtf8(scelto);
    };
    riga("CONTABILITA", "A|CONTABILITA|Z", "", "CONTABILITA");
    riga("contabilita", "contabilita", "", "contabilita");
    riga("nessuno di quel nome", "A|Contabilita2|La Contabilita", "", "");
    riga("altro predefinito", "Contabilita|Ditta Rossi", "ditta rossi", "Ditta Rossi");
    riga("accenti", "contabilità", "CONTABILITÀ", "contabilità");
    riga("predefinito assente", "Contabilita", "Altra", "");
}

void tst_SelezioneArchivifrm::Carica_archivioPredefinito()
{
    QFETCH(QStringList, archivi);
    QFETCH(QString, predefinito);
    QFETCH(QString, scelto);
    for (const QString &archivio : archivi) {
        QVERIFY(QDir(dati_->path()).mkpath(QStringLiteral("d/%1/ini").arg(archivio)));
    }
    Dirtxt(In(QStringLiteral("d")));
    stato_->ArchivioPredefinito = predefinito;
    Carica();
    const auto scelti = Lista("List1")->selectedItems();
    QCOMPARE(scelti.size(), scelto.isEmpty() ? 0 : 1);
    if (!scelto.isEmpty()) {
        QCOMPARE(scelti.first()->text(), In(QStringLiteral("d/") + scelto));
    } else {
        QTRY_VERIFY(Lista("List1")->hasFocus());
    }
}

void tst_SelezioneArchivifrm::Carica_font()
{
    Carica();
    QCOMPARE(stato_->ElencoFont, Stampanti::ElencoFont());
    QVERIFY(!stato_->ElencoFont.isEmpty());
}

void tst_SelezioneArchivifrm::Archivio_scelto()
{
    Carica();
    Seleziona("List2", QStringLiteral("Alfa"));
    Seleziona("List1", In(QStringLiteral("Altro")));
    QCOMPARE(stato_->CartellaModelli, In(QStringLiteral("Altro/ini")) + QDir::separator());
    QCOMPARE(Voci("List2"), QStringList{QStringLiteral("Gamma")});
    QVERIFY(Lista("List2")->selectedItems().isEmpty());
}

void tst_SelezioneArchivifrm::Archivio_giaScelto()
{
    Carica();
    Seleziona("List2", QStringLiteral("Alfa"));
    ScriveFile(Ini(QStringLiteral("Aggiunto.Mod")), "nuovo");
    QVERIFY(QFile::remove(Ini(QStringLiteral("Beta.mod"))));
    Seleziona("List1", In(QStringLiteral("Contabilita")));
    QCOMPARE(Voci("List2"), (QStringList{QStringLiteral("Aggiunto"), QStringLiteral("Alfa"),
                                         QStringLiteral("TIFATTURA")}));
    QCOMPARE(stato_->CartellaModelli, Ini());
    QVERIFY(Lista("List2")->selectedItems().isEmpty());
}

void tst_SelezioneArchivifrm::Archivio_unElencoPerClic_data()
{
    QTest::addColumn<QString>("scelto");

    QTest::newRow("archivio che il clic sceglie") << QStringLiteral("Altro");
    QTest::newRow("archivio gia' scelto") << QStringLiteral("Contabilita");
}

void tst_SelezioneArchivifrm::Archivio_unElencoPerClic()
{
    QFETCH(QString, scelto);
    Carica();
    const QSignalSpy svuotato(Lista("File1")->model(), &QAbstractItemModel::modelReset);
    Seleziona("List1", In(scelto));
    QCOMPARE(svuotato.size(), 1);
    // With the keys, too, and the next click starts afresh.
    QTest::keyClick(Lista("List1"), scelto == QStringLiteral("Altro") ? Qt::Key_Down : Qt::Key_Up);
    QCOMPARE(svuotato.size(), 2);
    Seleziona("List1", Lista("List1")->selectedItems().value(0)->text());
    QCOMPARE(svuotato.size(), 3);
}

void tst_SelezioneArchivifrm::Archivio_iniMaiuscolo()
{
    QVERIFY(QDir(dati_->path()).mkpath(QStringLiteral("Zeta/INI")));
    ScriveFile(In(QStringLiteral("Zeta/INI/Z.MOD")), "z");
    Carica();
    Seleziona("List1", In(QStringLiteral("Zeta")));
    QCOMPARE(stato_->CartellaModelli, In(QStringLiteral("Zeta/INI")) + QDir::separator());
    QCOMPARE(Voci("List2"), QStringList{QStringLiteral("Z")});
}

void tst_SelezioneArchivifrm::Archivio_senzaIni()
{
    QVERIFY(QDir(dati_->path()).mkpath(QStringLiteral("Zeta")));
    Carica();
    Robot robot;
    robot.Ok();
    Seleziona("List1", In(QStringLiteral("Zeta")));
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().value(0).contains(In(QStringLiteral("Zeta/ini"))),
             qPrintable(robot.Testi().value(0)));
    QVERIFY(Voci("List2").isEmpty());
    QVERIFY(!QFile::exists(In(QStringLiteral("Zeta/ini"))));
}

void tst_SelezioneArchivifrm::Archivio_illeggibile()
{
    QVERIFY(QDir(dati_->path()).mkpath(QStringLiteral("Zeta/ini")));
    QVERIFY(QFile::setPermissions(dati_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(In(QStringLiteral("Zeta/ini")), Permessi::Nessuno));
    Carica();
    Robot robot;
    robot.Ok();
    {
        const UtenteComune utente;
        Seleziona("List1", In(QStringLiteral("Zeta")));
    }
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(),
             QStringList{QStringLiteral("impossibile leggere la cartella dei modelli\n%1\n%2")
                             .arg(In(QStringLiteral("Zeta/ini/")),
                                  DescrizioneErrore(ErroreSistema::AccessoFile))});
    QVERIFY(Voci("List2").isEmpty());
    QCOMPARE(Lista("List1")->selectedItems().value(0)->text(), In(QStringLiteral("Zeta")));
}

void tst_SelezioneArchivifrm::Archivio_treEstensioni()
{
    ScriveFile(Ini(QStringLiteral("uno.mod")), "1");
    ScriveFile(Ini(QStringLiteral("due.Mod")), "2");
    ScriveFile(Ini(QStringLiteral("tre.MOD")), "3");
    ScriveFile(Ini(QStringLiteral("quattro.txt")), "4");
    Carica();
    for (const char *nome : {"uno", "due", "tre"}) {
        QVERIFY(Voci("List2").contains(QString::fromLatin1(nome)));
    }
    QVERIFY(!Voci("List2").contains(QStringLiteral("quattro")));
}

void tst_SelezioneArchivifrm::Archivio_modelloCheECartella()
{
    QVERIFY(QDir().mkdir(Ini(QStringLiteral("cartella.Mod"))));
    Carica();
    QVERIFY(!Voci("List2").contains(QStringLiteral("cartella")));
}

void tst_SelezioneArchivifrm::Modello_scelto()
{
    Carica();
    Seleziona("List2", QStringLiteral("Beta"));
    QCOMPARE(stato_->NomeFile, QStringLiteral("Beta.Mod"));
    QTest::keyClick(Lista("List2"), Qt::Key_Up);
    QCOMPARE(stato_->NomeFile, QStringLiteral("Alfa.Mod"));
}

void tst_SelezioneArchivifrm::Apri_senzaArchivio()
{
    stato_->ArchivioPredefinito = QStringLiteral("nessuno");
    Carica();
    const QSignalSpy scelto(frm_.get(), &SelezioneArchivifrm::ModelloScelto);
    Robot robot;
    robot.Ok();
    Preme(*frm_, "Apri");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{ScegliCartella});
    QVERIFY(frm_->isVisible());
    QVERIFY(scelto.isEmpty());
}

void tst_SelezioneArchivifrm::Apri_senzaModello()
{
    Carica();
    const QSignalSpy scelto(frm_.get(), &SelezioneArchivifrm::ModelloScelto);
    Robot robot;
    robot.Ok().Ok();
    Preme(*frm_, "Apri");
    // The focus marks a model without choosing it.
    QApplication::setActiveWindow(frm_.get());
    Lista("List2")->setFocus();
    QTest::keyClick(Lista("List2"), Qt::Key_Return);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), (QStringList{ScegliModello, ScegliModello}));
    QVERIFY(scelto.isEmpty());
}

void tst_SelezioneArchivifrm::Apri_bottone()
{
    Carica();
    Seleziona("List2", QStringLiteral("Beta"));
    bool chiusa = false;
    connect(frm_.get(), &SelezioneArchivifrm::ModelloScelto, this,
            [&] { chiusa = !frm_->isVisible(); });
    const QSignalSpy scelto(frm_.get(), &SelezioneArchivifrm::ModelloScelto);
    Preme(*frm_, "Apri");
    QCOMPARE(scelto.size(), 1);
    QVERIFY2(chiusa, "the window has closed before the signal");
    QCOMPARE(stato_->CartellaModelli, Ini());
    QCOMPARE(stato_->NomeFile, QStringLiteral("Beta.Mod"));
}

void tst_SelezioneArchivifrm::Apri_doppioClic()
{
    Carica();
    const QSignalSpy scelto(frm_.get(), &SelezioneArchivifrm::ModelloScelto);
    Seleziona("List2", QStringLiteral("Alfa"));
    QTest::mouseDClick(Lista("List2")->viewport(), Qt::LeftButton, Qt::NoModifier,
                       Lista("List2")->visualItemRect(Lista("List2")->currentItem()).center());
    QCOMPARE(scelto.size(), 1);
    QCOMPARE(stato_->NomeFile, QStringLiteral("Alfa.Mod"));
}

void tst_SelezioneArchivifrm::Apri_invio()
{
    Carica();
    const QSignalSpy scelto(frm_.get(), &SelezioneArchivifrm::ModelloScelto);
    QTest::keyClick(Lista("List2"), Qt::Key_Down);
    QTest::keyClick(Lista("List2"), Qt::Key_Down);
    QTest::keyClick(Lista("List2"), Qt::Key_Return);
    QCOMPARE(scelto.size(), 1);
    QCOMPARE(stato_->NomeFile, QStringLiteral("Beta.Mod"));
}

void tst_SelezioneArchivifrm::Nuovo_perTipo_data()
{
    QTest::addColumn<QString>("opzione");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("titolo");
    QTest::addColumn<QString>("proposto");
    for (const RigaTipo &tipo : Tipi) {
        QTest::newRow(tipo.testo) << QString::fromLatin1(tipo.opzione)
                                  << QString::fromLatin1(tipo.file)
                                  << QString::fromLatin1(tipo.titolo)
                                  << QString::fromLatin1(tipo.proposto);
    }
}

void tst_SelezioneArchivifrm::Nuovo_perTipo()
{
    QFETCH(QString, opzione);
    QFETCH(QString, file);
    QFETCH(QString, titolo);
    QFETCH(QString, proposto);
    const QByteArray byte = "modello " + file.toLatin1() + "\r\n\x81\xff";
    ScriveFile(Ini(file), byte);
    Carica();
    const QSignalSpy scelto(frm_.get(), &SelezioneArchivifrm::ModelloScelto);
    QTest::mouseClick(Trova<QRadioButton>(*frm_, opzione.toLatin1()), Qt::LeftButton,
                      Qt::NoModifier, QPoint(10, 8));
    QMessageBox::Icon icona = QMessageBox::NoIcon;
    Robot robot;
    robot.Digita(proposto).Agisce([&icona](QDialog *d) {
        icona = qobject_cast<QMessageBox *>(d)->icon();
        d->accept();
    });
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Titoli().value(0), QStringLiteral("Nuovo modello di stampa"));
    QCOMPARE(robot.Testi().value(0), QStringLiteral("Creazione nuovo Modello:\n%1\n\nDigitare un "
                                                    "nome per il nuovo modello")
                                         .arg(titolo));
    QCOMPARE(robot.Predefiniti().value(0), proposto);
    const QString percorso = Ini(proposto + QStringLiteral(".Mod"));
    QVERIFY(robot.Testi().value(1).contains(QStringLiteral("non esiste il file ") + percorso));
    QVERIFY(robot.Testi().value(1).contains(QStringLiteral("53")));
    QCOMPARE(icona, QMessageBox::Critical);
    QCOMPARE(ByteDi(percorso), byte);
    QCOMPARE(scelto.size(), 1);
    QVERIFY(!frm_->isVisible());
    QCOMPARE(stato_->NomeFile, proposto + QStringLiteral(".Mod"));
}

void tst_SelezioneArchivifrm::Nuovo_senzaArchivio()
{
    stato_->ArchivioPredefinito = QStringLiteral("nessuno");
    Carica();
    Robot robot;
    robot.Ok();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{ScegliCartella});
}

void tst_SelezioneArchivifrm::Nuovo_nomeVuoto()
{
    Carica();
    Robot robot;
    robot.Digita(QString());
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(NomiIn(Ini()).size(), 3);
    QVERIFY(frm_->isVisible());
}

void tst_SelezioneArchivifrm::Nuovo_annullato()
{
    Carica();
    Robot robot;
    robot.Annulla();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(NomiIn(Ini()).size(), 3);
}

void tst_SelezioneArchivifrm::Nuovo_nomeNonValido_data()
{
    QTest::addColumn<QString>("nome");
    QTest::newRow("barra") << QStringLiteral("a/b");
    QTest::newRow("barra di Windows") << QStringLiteral("a\\b");
    QTest::newRow("fuori dall'archivio") << QStringLiteral("../../fuori");
    QTest::newRow("due punti") << QStringLiteral("C:Fattura");
    QTest::newRow("asterisco") << QStringLiteral("Fattura*");
    QTest::newRow("nome di dispositivo") << QStringLiteral("con");
    QTest::newRow("fuori dal codice") << QStringLiteral("Фактура");
}

void tst_SelezioneArchivifrm::Nuovo_nomeNonValido()
{
    QFETCH(QString, nome);
    Carica();
    const QStringList prima = NomiIn(Ini());
    Robot robot;
    robot.Digita(nome).Ok().Annulla();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().value(1).contains(nome), qPrintable(robot.Testi().value(1)));
    QCOMPARE(NomiIn(Ini()), prima);
    QCOMPARE(NomiIn(dati_->path()).size(), 2);
    QVERIFY(frm_->isVisible());
}

void tst_SelezioneArchivifrm::Nuovo_DDT()
{
    ScriveFile(Ini(QStringLiteral("TIBOLLA.mod")), "bolla");
    Carica();
    ScegliTipo("OptDdt");
    Robot robot;
    robot.Digita(QStringLiteral("DDT")).Ok();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!robot.Testi().contains(QStringLiteral("inserire un mome diverso")));
    QCOMPARE(ByteDi(Ini(QStringLiteral("DDT.Mod"))), QByteArray("bolla"));
}

void tst_SelezioneArchivifrm::Nuovo_esisteNo()
{
    Carica();
    const QSignalSpy scelto(frm_.get(), &SelezioneArchivifrm::ModelloScelto);
    Robot robot;
    robot.Digita(QStringLiteral("Alfa")).No();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().value(1), QStringLiteral("Alfa.Mod esiste già \nLO VUOI SOSTITUIRE?"));
    QCOMPARE(robot.Predefiniti().value(1).remove(u'&'), QStringLiteral("No"));
    QCOMPARE(ByteDi(Ini(QStringLiteral("Alfa.Mod"))), QByteArray("alfa"));
    QVERIFY(frm_->isVisible());
    QVERIFY(scelto.isEmpty());
}

void tst_SelezioneArchivifrm::Nuovo_esisteSi()
{
    Carica();
    Robot robot;
    robot.Digita(QStringLiteral("Alfa")).Si();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(ByteDi(Ini(QStringLiteral("Alfa.Mod"))), QByteArray("fattura tipo"));
    QCOMPARE(stato_->NomeFile, QStringLiteral("Alfa.Mod"));
}

void tst_SelezioneArchivifrm::Nuovo_esisteConAltreMaiuscole()
{
    Carica();
    Robot robot;
    robot.Digita(QStringLiteral("BETA")).Si();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().value(1), QStringLiteral("BETA.Mod esiste già \nLO VUOI SOSTITUIRE?"));
    QCOMPARE(ByteDi(Ini(QStringLiteral("Beta.mod"))), QByteArray("fattura tipo"));
    QCOMPARE(NomiIn(Ini()).size(), 3);
}

void tst_SelezioneArchivifrm::Nuovo_esisteVuoto()
{
    ScriveFile(Ini(QStringLiteral("Vuoto.Mod")), QByteArray());
    Carica();
    Robot robot;
    robot.Digita(QStringLiteral("Vuoto")).Ok();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(robot.Testi().value(1).contains(QStringLiteral("non esiste il file ")));
    QCOMPARE(ByteDi(Ini(QStringLiteral("Vuoto.Mod"))), QByteArray("fattura tipo"));
}

void tst_SelezioneArchivifrm::Nuovo_nomeDiCartella()
{
    QVERIFY(QDir().mkdir(Ini(QStringLiteral("cartella.mod"))));
    Carica();
    Robot robot;
    robot.Digita(QStringLiteral("Cartella")).Ok().Annulla();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(robot.Testi().value(1).contains(QStringLiteral("Cartella.Mod")));
    QCOMPARE(NomiIn(Ini()).size(), 4);
    QVERIFY(frm_->isVisible());
}

void tst_SelezioneArchivifrm::Nuovo_modelloTipoMancante()
{
    Carica();
    ScegliTipo("OptMovimento");
    const QSignalSpy scelto(frm_.get(), &SelezioneArchivifrm::ModelloScelto);
    Robot robot;
    robot.Digita(QStringLiteral("Mov")).Ok().Ok();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    const QString messaggio = robot.Testi().value(2);
    QVERIFY2(messaggio.startsWith(QStringLiteral("errore 53 Impossibile trovare il file")),
             qPrintable(messaggio));
    QVERIFY2(messaggio.contains(QStringLiteral("TIMOVIMENTO.mod")), qPrintable(messaggio));
    QCOMPARE(NomiIn(Ini()).size(), 3);
    QVERIFY(frm_->isVisible());
    QVERIFY(scelto.isEmpty());
    QVERIFY(stato_->NomeFile.isEmpty());
}

void tst_SelezioneArchivifrm::Nuovo_modelloTipoCheECartella()
{
    QVERIFY(QDir().mkdir(Ini(QStringLiteral("TIMOVIMENTO.mod"))));
    Carica();
    ScegliTipo("OptMovimento");
    Robot robot;
    robot.Digita(QStringLiteral("Mov")).Ok().Ok();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().value(2).startsWith(QStringLiteral("errore 75 ")),
             qPrintable(robot.Testi().value(2)));
    QVERIFY(!QFile::exists(Ini(QStringLiteral("Mov.Mod"))));
}

void tst_SelezioneArchivifrm::Nuovo_cartellaSenzaDiritti()
{
    Carica();
    for (const QString &cartella : {dati_->path(), In(QStringLiteral("Contabilita"))}) {
        QVERIFY(QFile::setPermissions(cartella, Permessi::PerTutti));
    }
    QVERIFY(QFile::setPermissions(Ini(), Permessi::SolaLettura));
    Robot robot;
    robot.Digita(QStringLiteral("Nuovo")).Ok().Ok();
    {
        const UtenteComune utente;
        Preme(*frm_, "Nuovo");
    }
    QVERIFY(QFile::setPermissions(Ini(), Permessi::PerTutti));
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().value(2).startsWith(QStringLiteral("errore 7")),
             qPrintable(robot.Testi().value(2)));
    QCOMPARE(NomiIn(Ini()).size(), 3);
    QVERIFY(frm_->isVisible());
}

void tst_SelezioneArchivifrm::Duplico_senzaModello()
{
    // A model chosen in another archive does not count.
    Carica();
    Seleziona("List2", QStringLiteral("Alfa"));
    Seleziona("List1", In(QStringLiteral("Altro")));
    ScegliTipo("OptDuplico");
    Robot robot;
    robot.Ok();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("Selezionare un modello esistente")});
}

void tst_SelezioneArchivifrm::Duplico_nomeProposto()
{
    ScriveFile(Ini(QStringLiteral("Fattura_pers.mod")), "pers");
    Carica();
    Seleziona("List2", QStringLiteral("Fattura_pers"));
    ScegliTipo("OptDuplico");
    Robot robot;
    robot.Agisce([](QDialog *d) { d->accept(); }).Ok();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().value(0),
             QStringLiteral("Creazione nuovo modello duplicando:\nFattura_pers.Mod\n\nDigitare un "
                            "nome per il nuovo modello"));
    QCOMPARE(robot.Predefiniti().value(0), QStringLiteral("Fattura_pers.Mod_nuovo"));
    QCOMPARE(ByteDi(Ini(QStringLiteral("Fattura_pers.Mod_nuovo.Mod"))), QByteArray("pers"));
    QCOMPARE(ByteDi(Ini(QStringLiteral("Fattura_pers.mod"))), QByteArray("pers"));
    QCOMPARE(stato_->NomeFile, QStringLiteral("Fattura_pers.Mod_nuovo.Mod"));
}

void tst_SelezioneArchivifrm::Duplico_suSeStesso()
{
    Carica();
    Seleziona("List2", QStringLiteral("Alfa"));
    ScegliTipo("OptDuplico");
    Robot robot;
    robot.Digita(QStringLiteral("Alfa")).Si();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(ByteDi(Ini(QStringLiteral("Alfa.Mod"))), QByteArray("alfa"));
}

void tst_SelezioneArchivifrm::RiaperturaDopoLEditor()
{
    Carica();
    Seleziona("List2", QStringLiteral("Beta"));
    Preme(*frm_, "Apri");
    ScriveFile(Ini(QStringLiteral("Aggiunto.Mod")), "nuovo");
    QVERIFY(QFile::remove(Ini(QStringLiteral("Alfa.Mod"))));
    frm_->show();
    QCOMPARE(Voci("List2"), (QStringList{QStringLiteral("Aggiunto"), QStringLiteral("Beta"),
                                         QStringLiteral("TIFATTURA")}));
    QCOMPARE(Lista("List1")->selectedItems().value(0)->text(), In(QStringLiteral("Contabilita")));
    QCOMPARE(Lista("List2")->selectedItems().value(0)->text(), QStringLiteral("Beta"));
    // A model deleted in the editor leaves nothing chosen.
    Preme(*frm_, "Apri");
    QVERIFY(QFile::remove(Ini(QStringLiteral("Beta.mod"))));
    frm_->show();
    QVERIFY(Lista("List2")->selectedItems().isEmpty());
    Robot robot;
    robot.Ok();
    Preme(*frm_, "Apri");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{ScegliModello});
}

void tst_SelezioneArchivifrm::Riapertura_archivioScomparso()
{
    Carica();
    Seleziona("List2", QStringLiteral("Beta"));
    Preme(*frm_, "Apri");
    QVERIFY(QDir(In(QStringLiteral("Contabilita"))).removeRecursively());
    Robot robot;
    robot.Ok();
    frm_->show();
    QVERIFY(robot.Soddisfatto());
    QVERIFY(Voci("List2").isEmpty());
    QVERIFY(frm_->isVisible());
}

void tst_SelezioneArchivifrm::Manuale()
{
    Carica();
    auto *icona = Trova<QToolButton>(*frm_, "Image1");
    QVERIFY(!icona->icon().isNull());
    QVERIFY((icona->focusPolicy() & Qt::TabFocus) != 0);
    QVERIFY(!icona->accessibleName().isEmpty());
    const Robot robot;
    QTest::mouseClick(icona, Qt::LeftButton);
    QVERIFY2(robot.Soddisfatto(), "a missing manual goes without a message");
}

QTEST_MAIN(tst_SelezioneArchivifrm)
#include "tst_SelezioneArchivifrm.moc"
