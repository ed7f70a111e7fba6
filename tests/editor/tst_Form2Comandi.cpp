#include "Form2DiProva.h"
#include "editor/Form2.h"
#include "support/ArchivioDiProva.h"
#include "support/Finestre.h"
#include "support/Robot.h"

#include <QDialog>
#include <QFile>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>

namespace {

const auto SenzaStampante =
    QStringLiteral("errore 482 Nessuna stampante predefinita è impostata.\nSceglierne una nelle "
                   "impostazioni del sistema, alla voce Stampanti, e ripetere.");

} // namespace

class tst_Form2Comandi : public QObject
{
    Q_OBJECT
private slots:
    void EliminaModelloNo();
    void EliminaModelloSi();
    void EliminaTutteLeCornici();
    void EliminaTutteSenzaCornici();
    void EliminaTutteNo();
    void StampaDomandaESenzaStampante();
    void StampaDomandaSenzaRisposta_data();
    void StampaDomandaSenzaRisposta();
    void GrigliaSenzaStampante();
};

void tst_Form2Comandi::EliminaModelloNo()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    Robot robot;
    robot.No();
    Preme(editor, "Elimina");
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("Comferma eliminazione Prova.Mod ?")});
    QCOMPARE(robot.Predefiniti(), QStringList{QStringLiteral("&No")});
    QVERIFY(QFile::exists(prova.Percorso()));
    QVERIFY(editor.isVisible());
}

void tst_Form2Comandi::EliminaModelloSi()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    prova.Stato().documento.SegnaVariato();
    QSignalSpy chiuso(&editor, &Form2::Chiuso);
    Robot robot;
    robot.Si().Ok();
    Preme(editor, "Elimina");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constLast(), QStringLiteral("Prova.Mod eliminato"));
    QVERIFY(!QFile::exists(prova.Percorso()));
    QCOMPARE(chiuso.count(), 1);
    QVERIFY(!editor.isVisible());
}

void tst_Form2Comandi::EliminaTutteLeCornici()
{
    ArchivioDiProva prova;
    prova.AggiungeCornice(QStringLiteral("a"), 10, 10, 20, 10);
    prova.AggiungeCornice(QStringLiteral("b"), 40, 10, 20, 10);
    prova.AggiungeCampo(QStringLiteral("Data"), 10, 40);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    editor.show();
    QSignalSpy chiuso(&editor, &Form2::Chiuso);
    Robot robot;
    robot.Si().Si();
    Preme(editor, "Command7");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList({QStringLiteral("Elimino TUTTE le Cornici "),
                                         QStringLiteral("salvare le variazioni")}));
    QCOMPARE(robot.Predefiniti().constFirst(), QStringLiteral("&No"));
    QCOMPARE(Voci(editor, "ComboCornici"), QStringList({Separatore, QStringLiteral(" ELIMINATO: a"),
                                                        QStringLiteral(" ELIMINATO: b")}));
    QCOMPARE(prova.Aperto().NumCornici, qint16(2));
    QVERIFY(!Controllo(editor, QStringLiteral("C2(1)"))->isVisible());
    QCOMPARE(chiuso.count(), 1);
    QCOMPARE(prova.Riletto().NumCornici, qint16(0));
    QCOMPARE(prova.Riletto().NumCampi, qint16(1));
}

void tst_Form2Comandi::EliminaTutteSenzaCornici()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    QSignalSpy chiuso(&editor, &Form2::Chiuso);
    Robot robot;
    robot.Si();
    Preme(editor, "Command7");
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("Elimino TUTTE le Cornici ")});
    QCOMPARE(chiuso.count(), 1);
}

void tst_Form2Comandi::EliminaTutteNo()
{
    ArchivioDiProva prova;
    prova.AggiungeCornice(QStringLiteral("a"), 10, 10, 20, 10);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    editor.show();
    Robot robot;
    robot.No();
    Preme(editor, "Command7");
    QVERIFY(editor.isVisible());
    QCOMPARE(prova.Aperto().Cornici[1].Nome, QStringLiteral("a"));
    QVERIFY(!editor.Variato());
}

void tst_Form2Comandi::StampaDomandaESenzaStampante()
{
    // No print server answers at this address, so there is no default printer.
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    Robot robot;
    robot.No().Ok();
    Preme(editor, "Stampa");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(),
             QStringList({QStringLiteral("stampo il 'NOME' dei campi invece del 'TESTO DI PROVA'"),
                          SenzaStampante}));
    QCOMPARE(robot.Predefiniti().constFirst(), QStringLiteral("&No"));
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
}

void tst_Form2Comandi::StampaDomandaSenzaRisposta_data()
{
    QTest::addColumn<bool>("esc");
    QTest::newRow("Escape") << true;
    QTest::newRow("la croce") << false;
}

void tst_Form2Comandi::StampaDomandaSenzaRisposta()
{
    QFETCH(bool, esc);
    // Printing would say that there is no printer.
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    EditorAperto prova(1);
    Robot robot;
    robot.Agisce([esc](QDialog *domanda) {
        QCOMPARE(qobject_cast<QMessageBox *>(domanda)->buttons().size(), 2);
        if (esc) {
            QTest::keyClick(domanda, Qt::Key_Escape);
        } else {
            domanda->close();
        }
    });
    Preme(prova.Editor(), "Stampa");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().size(), 1);
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
}

void tst_Form2Comandi::GrigliaSenzaStampante()
{
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    Robot robot;
    robot.Ok();
    Preme(editor, "StampaRetino");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{SenzaStampante});
}

QTEST_MAIN(tst_Form2Comandi)
#include "tst_Form2Comandi.moc"
