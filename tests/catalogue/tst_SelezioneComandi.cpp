#include "SelezioneDiProva.h"
#include "catalogue/SelezioneArchivifrm.h"
#include "support/FileDiProva.h"
#include "support/Permessi.h"
#include "support/Robot.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

using Controlli::Preme;
using Controlli::Trova;

/// Opening a model from the start window, and making one from a template or another model.
class tst_SelezioneComandi : public QObject, private SelezioneDiProva
{
    Q_OBJECT

private slots:
    void initTestCase() { PreparaAmbiente(); }
    void init() { Prepara(); }
    void cleanup() { Chiude(); }

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
};

void tst_SelezioneComandi::Apri_senzaArchivio()
{
    stato_->ArchivioPredefinito = QStringLiteral("nessuno");
    Carica();
    const QSignalSpy scelto(frm_, &SelezioneArchivifrm::ModelloScelto);
    Robot robot;
    robot.Ok();
    Preme(*frm_, "Apri");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{ScegliCartella});
    QVERIFY(frm_->isVisible());
    QVERIFY(scelto.isEmpty());
}

void tst_SelezioneComandi::Apri_senzaModello()
{
    Carica();
    const QSignalSpy scelto(frm_, &SelezioneArchivifrm::ModelloScelto);
    Robot robot;
    robot.Ok().Ok();
    Preme(*frm_, "Apri");
    // The focus marks a model without choosing it.
    QApplication::setActiveWindow(frm_);
    Lista("List2")->setFocus();
    QTest::keyClick(Lista("List2"), Qt::Key_Return);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), (QStringList{ScegliModello, ScegliModello}));
    QVERIFY(scelto.isEmpty());
}

void tst_SelezioneComandi::Apri_bottone()
{
    Carica();
    Seleziona("List2", QStringLiteral("Beta"));
    bool chiusa = false;
    connect(frm_, &SelezioneArchivifrm::ModelloScelto, this, [&] { chiusa = !frm_->isVisible(); });
    const QSignalSpy scelto(frm_, &SelezioneArchivifrm::ModelloScelto);
    Preme(*frm_, "Apri");
    QCOMPARE(scelto.size(), 1);
    QVERIFY2(chiusa, "the window has closed before the signal");
    QCOMPARE(stato_->CartellaModelli, Ini());
    QCOMPARE(stato_->NomeFile, QStringLiteral("Beta.Mod"));
}

void tst_SelezioneComandi::Apri_doppioClic()
{
    Carica();
    const QSignalSpy scelto(frm_, &SelezioneArchivifrm::ModelloScelto);
    Seleziona("List2", QStringLiteral("Alfa"));
    QTest::mouseDClick(Lista("List2")->viewport(), Qt::LeftButton, Qt::NoModifier,
                       Lista("List2")->visualItemRect(Lista("List2")->currentItem()).center());
    QCOMPARE(scelto.size(), 1);
    QCOMPARE(stato_->NomeFile, QStringLiteral("Alfa.Mod"));
}

void tst_SelezioneComandi::Apri_invio()
{
    Carica();
    const QSignalSpy scelto(frm_, &SelezioneArchivifrm::ModelloScelto);
    QTest::keyClick(Lista("List2"), Qt::Key_Down);
    QTest::keyClick(Lista("List2"), Qt::Key_Down);
    QTest::keyClick(Lista("List2"), Qt::Key_Return);
    QCOMPARE(scelto.size(), 1);
    QCOMPARE(stato_->NomeFile, QStringLiteral("Beta.Mod"));
}

void tst_SelezioneComandi::Nuovo_perTipo_data()
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

void tst_SelezioneComandi::Nuovo_perTipo()
{
    QFETCH(QString, opzione);
    QFETCH(QString, file);
    QFETCH(QString, titolo);
    QFETCH(QString, proposto);
    const QByteArray byte = "modello " + file.toLatin1() + "\r\n\x81\xff";
    ScriveFile(Ini(file), byte);
    Carica();
    const QSignalSpy scelto(frm_, &SelezioneArchivifrm::ModelloScelto);
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

void tst_SelezioneComandi::Nuovo_senzaArchivio()
{
    stato_->ArchivioPredefinito = QStringLiteral("nessuno");
    Carica();
    Robot robot;
    robot.Ok();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{ScegliCartella});
}

void tst_SelezioneComandi::Nuovo_nomeVuoto()
{
    Carica();
    Robot robot;
    robot.Digita(QString());
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(NomiIn(Ini()).size(), 3);
    QVERIFY(frm_->isVisible());
}

void tst_SelezioneComandi::Nuovo_annullato()
{
    Carica();
    Robot robot;
    robot.Annulla();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(NomiIn(Ini()).size(), 3);
}

void tst_SelezioneComandi::Nuovo_nomeNonValido_data()
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

void tst_SelezioneComandi::Nuovo_nomeNonValido()
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

void tst_SelezioneComandi::Nuovo_DDT()
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

void tst_SelezioneComandi::Nuovo_esisteNo()
{
    Carica();
    const QSignalSpy scelto(frm_, &SelezioneArchivifrm::ModelloScelto);
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

void tst_SelezioneComandi::Nuovo_esisteSi()
{
    Carica();
    Robot robot;
    robot.Digita(QStringLiteral("Alfa")).Si();
    Preme(*frm_, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(ByteDi(Ini(QStringLiteral("Alfa.Mod"))), QByteArray("fattura tipo"));
    QCOMPARE(stato_->NomeFile, QStringLiteral("Alfa.Mod"));
}

void tst_SelezioneComandi::Nuovo_esisteConAltreMaiuscole()
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

void tst_SelezioneComandi::Nuovo_esisteVuoto()
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

void tst_SelezioneComandi::Nuovo_nomeDiCartella()
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

void tst_SelezioneComandi::Nuovo_modelloTipoMancante()
{
    Carica();
    ScegliTipo("OptMovimento");
    const QSignalSpy scelto(frm_, &SelezioneArchivifrm::ModelloScelto);
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

void tst_SelezioneComandi::Nuovo_modelloTipoCheECartella()
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

void tst_SelezioneComandi::Nuovo_cartellaSenzaDiritti()
{
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
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

void tst_SelezioneComandi::Duplico_senzaModello()
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

void tst_SelezioneComandi::Duplico_nomeProposto()
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

void tst_SelezioneComandi::Duplico_suSeStesso()
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

QTEST_MAIN(tst_SelezioneComandi)
#include "tst_SelezioneComandi.moc"
