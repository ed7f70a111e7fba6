#include "RecuperoDiProva.h"
#include "editor/Form2.h"
#include "model/FileModello.h"
#include "preview/Frm1.h"
#include "support/ArchivioDiProva.h"
#include "support/DocumentoDiProva.h"
#include "support/FileDiProva.h"
#include "support/Finestre.h"
#include "support/Permessi.h"
#include "support/Robot.h"

#include <QDialog>
#include <QFile>
#include <QMessageBox>
#include <QTest>

class tst_RecuperoOfferta : public QObject
{
    Q_OBJECT
private slots:
    void CadutaERipresa();
    void CadutaDueVolte();
    void Rifiutata();
    void NonAncoraOffertaResta();
    void RipresaSenzaPostoPerLaNuova();
    void Annullata();
    void FileCambiatoDaAllora();
    void FileSparito();
    void UnAltroModelloNonLaRiceve();
    void UgualeAlFileNonSiOffre();
    void NonLeggibileSiDice();
    void FileCambiatoDaAltriDuranteLaDomanda();
};

void tst_RecuperoOfferta::CadutaERipresa()
{
    ArchivioDiProva prova;
    prova.Riempie(2);
    prova.Scrive();
    const QByteArray prima = prova.ByteDelFile();
    ModificaEMuore(prova, 123);
    QCOMPARE(prova.ByteDelFile(), prima);
    Form2 editor(prova.Stato());
    Robot robot;
    robot.Si().Si();
    QVERIFY(editor.Form_Load());
    QVERIFY2(robot.Testi().constFirst().startsWith(
                 QStringLiteral("Il modello Prova.Mod ha modifiche non salvate del ")),
             qPrintable(robot.Testi().constFirst()));
    QCOMPARE(robot.Predefiniti().constFirst(), QStringLiteral("&Sì"));
    QVERIFY(editor.Variato());
    QCOMPARE(prova.Aperto().Campi[1].X, 123.0);
    QCOMPARE(prova.Stato().NomeFile, QStringLiteral("Prova.Mod"));
    QCOMPARE(ElementoAnteprima(*editor.Anteprima(), QStringLiteral("C1(1)"))->pos().x(), 123.0);
    Preme(editor, "Salva");
    QCOMPARE(prova.Riletto().Campi[1].X, 123.0);
    QVERIFY(Copie(prova).isEmpty());
}

void tst_RecuperoOfferta::CadutaDueVolte()
{
    LavoroLasciato prova(2);
    {
        StatoProgramma stato = prova.AltroStato();
        Form2 editor(stato);
        Robot robot;
        robot.Si();
        QVERIFY(editor.Form_Load());
        QCOMPARE(stato.Aperto().Campi[1].X, 50.0);
        Modifica(stato, [](Modello &modello) { modello.Campi[2].X = 60; });
    }
    QVERIFY2(Copie(prova).size() == 1, "the work taken up lives on in the new copy alone");
    Form2 editor(prova.Stato());
    Robot robot;
    robot.Si();
    QVERIFY(editor.Form_Load());
    QCOMPARE(prova.Aperto().Campi[1].X, 50.0);
    QCOMPARE(prova.Aperto().Campi[2].X, 60.0);
}

void tst_RecuperoOfferta::Rifiutata()
{
    ArchivioDiProva prova;
    prova.Riempie(2);
    prova.Scrive();
    const double prima = prova.DaAprire().Campi[1].X;
    ModificaEMuore(prova, 50);
    {
        StatoProgramma stato = prova.AltroStato();
        Form2 editor(stato);
        Robot robot;
        robot.No();
        QVERIFY(editor.Form_Load());
        QVERIFY(!editor.Variato());
        QCOMPARE(stato.Aperto().Campi[1].X, prima);
        // The next edit has a copy of its own: the declined one is not written over.
        SpostaCampo(stato, 70);
        QCOMPARE(Copie(prova).size(), 2);
    }
    Form2 editor(prova.Stato());
    Robot robot;
    robot.No().Si();
    QVERIFY(editor.Form_Load());
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Aperto().Campi[1].X, 50.0);
}

void tst_RecuperoOfferta::NonAncoraOffertaResta()
{
    LavoroLasciato prova(1);
    {
        StatoProgramma stato = prova.AltroStato();
        Form2 editor(stato);
        Robot robot;
        robot.No();
        QVERIFY(editor.Form_Load());
        SpostaCampo(stato, 70);
    }
    // Of two works left behind the newer is taken up; the older has not been seen this time.
    const auto trovate = CopieDi(prova).Cerca();
    QCOMPARE(trovate.size(), 2);
    Invecchia(trovate[trovate[0].modello.Campi[1].X == 50 ? 0 : 1].file, 60);
    {
        StatoProgramma stato = prova.AltroStato();
        Form2 editor(stato);
        Robot robot;
        robot.Si().Si();
        QVERIFY(editor.Form_Load());
        QCOMPARE(stato.Aperto().Campi[1].X, 70.0);
        Preme(editor, "Salva");
        QVERIFY(robot.Soddisfatto());
        QVERIFY(editor.close());
    }
    QCOMPARE(Copie(prova).size(), 1);
    Form2 editor(prova.Stato());
    Robot robot;
    robot.Si();
    QVERIFY(editor.Form_Load());
    QVERIFY2(robot.Testi().constFirst().contains(QStringLiteral("da allora il file è cambiato")),
             qPrintable(robot.Testi().constFirst()));
    QCOMPARE(prova.Aperto().Campi[1].X, 50.0);
}

void tst_RecuperoOfferta::RipresaSenzaPostoPerLaNuova()
{
    LavoroLasciato prova(1);
    const QStringList copie = Copie(prova);
    {
        StatoProgramma stato = prova.AltroStato();
        Form2 editor(stato);
        Robot robot;
        robot.Si().Ok();
        const LimiteFile poco(100);
        QVERIFY(editor.Form_Load());
        QCOMPARE(robot.Testi().constLast(),
                 QStringLiteral("copia di recupero non scritta: errore 61 Disco pieno"));
    }
    // What could not be written anew has not been given up.
    QCOMPARE(Copie(prova), copie);
    QCOMPARE(CopieDi(prova).Cerca().constFirst().modello.Campi[1].X, 50.0);
}

void tst_RecuperoOfferta::Annullata()
{
    LavoroLasciato prova(2);
    const QStringList copie = Copie(prova);
    Form2 editor(prova.Stato());
    Robot robot;
    robot.Annulla();
    QVERIFY2(!editor.Form_Load(), "cancelling leaves the model closed");
    QCOMPARE(Copie(prova), copie);
}

void tst_RecuperoOfferta::FileCambiatoDaAllora()
{
    LavoroLasciato prova(2);
    prova.DaAprire().Tipo = QStringLiteral("cambiato");
    prova.Scrive();
    Form2 editor(prova.Stato());
    Robot robot;
    robot.No();
    QVERIFY(editor.Form_Load());
    QVERIFY2(robot.Testi().constFirst().contains(QStringLiteral("da allora il file è cambiato")),
             qPrintable(robot.Testi().constFirst()));
    QCOMPARE(robot.Predefiniti().constFirst(), QStringLiteral("&No"));
    QCOMPARE(prova.Aperto().Tipo, QStringLiteral("cambiato"));
}

void tst_RecuperoOfferta::FileSparito()
{
    LavoroLasciato prova(2);
    QVERIFY(QFile::remove(prova.Percorso()));
    Form2 editor(prova.Stato());
    Robot robot;
    robot.Ok().Si().Si();
    QVERIFY(editor.Form_Load());
    // Nothing is there that taking up the work could lose.
    QVERIFY(!robot.Testi().constLast().contains(QStringLiteral("da allora il file è cambiato")));
    QCOMPARE(robot.Predefiniti().constLast(), QStringLiteral("&Sì"));
    QCOMPARE(prova.Aperto().Campi[1].X, 50.0);
    QCOMPARE(prova.Aperto().NumCornici, qint16(2));
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Riletto().Campi[1].X, 50.0);
}

void tst_RecuperoOfferta::UnAltroModelloNonLaRiceve()
{
    LavoroLasciato prova(2);
    prova.Stato().NomeFile = QStringLiteral("Altra.Mod");
    prova.Scrive();
    Form2 editor(prova.Stato());
    Robot robot;
    QVERIFY(editor.Form_Load());
    QVERIFY(robot.Testi().isEmpty());
    SpostaCampo(prova.Stato(), 60);
    robot.Si();
    Preme(editor, "Salva");
    QCOMPARE(Copie(prova).size(), 1); // that of the other model stays
}

void tst_RecuperoOfferta::UgualeAlFileNonSiOffre()
{
    LavoroLasciato prova(2);
    // The save had come to its end, the removal of the copy had not.
    prova.DaAprire().Campi[1].X = 50;
    prova.Scrive();
    Form2 editor(prova.Stato());
    Robot robot;
    QVERIFY(editor.Form_Load());
    QVERIFY(robot.Testi().isEmpty());
    QVERIFY(!editor.Variato());
    QCOMPARE(prova.Aperto().Campi[1].X, 50.0);
    QVERIFY(Copie(prova).isEmpty());
}

void tst_RecuperoOfferta::NonLeggibileSiDice()
{
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
    LavoroLasciato prova(2);
    const QString file = CopieDi(prova).Cerca().constFirst().file;
    const QString modelli = prova.Stato().CartellaModelli;
    QVERIFY(QFile::setPermissions(modelli + QStringLiteral("/../.."), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(QFileInfo(file).path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(file, Permessi::Nessuno));
    const UtenteComune utente;
    Form2 editor(prova.Stato());
    Robot robot;
    robot.Ok();
    QVERIFY2(editor.Form_Load(), "the model itself opens");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(),
             QStringList{QStringLiteral("copia di recupero non letta: errore 75 Errore di accesso "
                                        "al percorso/file\n") +
                         file});
}

void tst_RecuperoOfferta::FileCambiatoDaAltriDuranteLaDomanda()
{
    LavoroLasciato prova(1);
    Modello altrui = prova.DaAprire();
    altrui.Tipo = QStringLiteral("di un altro");
    Form2 editor(prova.Stato());
    Robot robot;
    robot.Agisce([&](QDialog *domanda) {
        // The model has been read already: what comes now is somebody else's.
        FileModello::Salva(altrui, prova.Percorso(), QLocale::c());
        qobject_cast<QMessageBox *>(domanda)->button(QMessageBox::Yes)->click();
    });
    QVERIFY(editor.Form_Load());
    robot.Si().No();
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Riletto().Tipo, QStringLiteral("di un altro"));
}

QTEST_MAIN(tst_RecuperoOfferta)
#include "tst_RecuperoOfferta.moc"
