#include "SelezioneDiProva.h"
#include "base/ErroreSistema.h"
#include "catalogue/SelezioneArchivifrm.h"
#include "finestre/ApriManuale.h"
#include "finestre/Finestre.h"
#include "print/Stampanti.h"
#include "support/FileDiProva.h"
#include "support/Permessi.h"
#include "support/Robot.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using Controlli::Preme;
using Controlli::Trova;

namespace {

const QString InEsecuzione = QStringLiteral("programma già in esecuzione");
const QString SenzaDirtxt = QStringLiteral("non esiste dirtxt in reg conf");

} // namespace

/// The start window, its lists, and what it says of a data folder that it cannot use.
class tst_SelezioneArchivifrm : public QObject, private SelezioneDiProva
{
    Q_OBJECT

private slots:
    void initTestCase() { PreparaAmbiente(); }
    void init() { Prepara(); }
    void cleanup() { Chiude(); }

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
    void RiaperturaDopoLEditor();
    void Riapertura_archivioScomparso();
    void Manuale();
};

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
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
    const QString cartella = In(QStringLiteral("chiusa"));
    QVERIFY(QDir().mkpath(cartella + QStringLiteral("/Contabilita/ini")));
    Dirtxt(cartella);
    QVERIFY(QFile::setPermissions(dati_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(impostazioni_->Cartella(),
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
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
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
