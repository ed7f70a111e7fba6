#include "ArchiviDiProva.h"

#include <QMessageBox>
#include <QSignalSpy>

/// The name that the user gives a new model, and the box that comes before it is made.
class tst_NuovoModello : public QObject
{
    Q_OBJECT

private slots:
    void NomeNonValidoRichiesto_data();
    void NomeNonValidoRichiesto();
    void NomeNonValidoPoiRinuncia_data();
    void NomeNonValidoPoiRinuncia();
    void NomeLecitoConEstensione_data();
    void NomeLecitoConEstensione();
    void AvvisoDiCreazione_data();
    void AvvisoDiCreazione();

private:
    static void Prepara(ArchiviDiProva &prova);
};

void tst_NuovoModello::Prepara(ArchiviDiProva &prova)
{
    ScriveFile(prova.Ini(QStringLiteral("TIFATTURA.mod")), "fattura tipo");
    prova.Carica();
}

void tst_NuovoModello::NomeNonValidoRichiesto_data()
{
    QTest::addColumn<QString>("nome");

    QTest::newRow("barra di Windows") << QStringLiteral("a\\b");
    QTest::newRow("fuori dall'archivio") << QStringLiteral("../../fuori");
    QTest::newRow("asterisco") << QStringLiteral("Fattura*");
    QTest::newRow("nome di dispositivo") << QStringLiteral("con");
    QTest::newRow("nome di dispositivo con estensione") << QStringLiteral("lpt1.x");
    QTest::newRow("fuori dal codice") << QStringLiteral("Фактура");
    QTest::newRow("nome di cartella") << QStringLiteral("Cartella");
}

void tst_NuovoModello::NomeNonValidoRichiesto()
{
    QFETCH(QString, nome);
    ArchiviDiProva prova;
    Prepara(prova);
    QVERIFY(QDir().mkdir(prova.Ini(QStringLiteral("cartella.mod"))));
    const QSignalSpy scelto(&prova.Finestra, &SelezioneArchivifrm::ModelloScelto);
    Robot robot;
    robot.Digita(nome).Ok().Digita(nome).Ok().Digita(QStringLiteral("Corretto")).Ok();
    Controlli::Preme(prova.Finestra, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Predefiniti().value(0), QStringLiteral("Fattura_pers"));
    // Each time in the same words, with what was typed.
    for (const int domanda : {2, 4}) {
        QCOMPARE(robot.Testi().value(domanda), robot.Testi().value(0));
        QCOMPARE(robot.Predefiniti().value(domanda), nome);
    }
    QCOMPARE(ByteDi(prova.Ini(QStringLiteral("Corretto.Mod"))), QByteArray("fattura tipo"));
    QCOMPARE(prova.Stato.NomeFile, QStringLiteral("Corretto.Mod"));
    QCOMPARE(scelto.size(), 1);
    QCOMPARE(NomiIn(prova.Ini()).size(), 3);
}

void tst_NuovoModello::NomeNonValidoPoiRinuncia_data()
{
    QTest::addColumn<bool>("annulla");

    QTest::newRow("Annulla") << true;
    QTest::newRow("nome vuoto") << false;
}

void tst_NuovoModello::NomeNonValidoPoiRinuncia()
{
    QFETCH(bool, annulla);
    ArchiviDiProva prova;
    Prepara(prova);
    Robot robot;
    robot.Digita(QStringLiteral("a/b")).Ok();
    annulla ? robot.Annulla() : robot.Digita(QString());
    Controlli::Preme(prova.Finestra, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(NomiIn(prova.Ini()), QStringList{QStringLiteral("TIFATTURA.mod")});
    QVERIFY(prova.Finestra.isVisible());
}

void tst_NuovoModello::NomeLecitoConEstensione_data()
{
    QTest::addColumn<QString>("nome");

    QTest::newRow("punto iniziale") << QStringLiteral(".x");
    QTest::newRow("punto finale") << QStringLiteral("nome.");
    QTest::newRow("spazio finale") << QStringLiteral("nome ");
    QTest::newRow("spazio iniziale") << QStringLiteral(" nome");
    QTest::newRow("punto") << QStringLiteral(".");
    QTest::newRow("due punti di fila") << QStringLiteral("..");
    QTest::newRow("spazio") << QStringLiteral(" ");
}

void tst_NuovoModello::NomeLecitoConEstensione()
{
    QFETCH(QString, nome);
    ArchiviDiProva prova;
    Prepara(prova);
    Robot robot;
    robot.Digita(nome).Ok();
    Controlli::Preme(prova.Finestra, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    const QString nomeFile = nome + QStringLiteral(".Mod");
    QVERIFY(NomiIn(prova.Ini()).contains(nomeFile));
    QCOMPARE(prova.Stato.NomeFile, nomeFile);
    // The user finds it again, and it opens.
    prova.Mostra();
    QCOMPARE(prova.Scelto("List2"), nome);
    prova.Clic("List2", QStringLiteral("TIFATTURA"));
    prova.Clic("List2", nome);
    Controlli::Preme(prova.Finestra, "Apri");
    QCOMPARE(ByteDi(prova.Stato.CartellaModelli + prova.Stato.NomeFile),
             QByteArray("fattura tipo"));
}

void tst_NuovoModello::AvvisoDiCreazione_data()
{
    QTest::addColumn<bool>("vuoto");

    QTest::newRow("file che non c'e'") << false;
    QTest::newRow("file vuoto") << true;
}

void tst_NuovoModello::AvvisoDiCreazione()
{
    QFETCH(bool, vuoto);
    ArchiviDiProva prova;
    const QString percorso = prova.Ini(QStringLiteral("Nuovo.Mod"));
    if (vuoto) {
        ScriveFile(percorso, QByteArray());
    }
    Prepara(prova);
    QMessageBox::Icon icona = QMessageBox::NoIcon;
    Robot robot;
    robot.Digita(QStringLiteral("Nuovo")).Agisce([&icona](QDialog *d) {
        icona = qobject_cast<QMessageBox *>(d)->icon();
        d->accept();
    });
    Controlli::Preme(prova.Finestra, "Nuovo");
    QVERIFY(robot.Soddisfatto());
    const QString testo = robot.Testi().value(1);
    QVERIFY2(testo.startsWith(QStringLiteral("errore 53 ")), qPrintable(testo));
    QVERIFY2(testo.contains(QStringLiteral("non esiste il file ") + percorso), qPrintable(testo));
    QVERIFY2(testo.endsWith(QStringLiteral("viene creato adesso")), qPrintable(testo));
    QCOMPARE(icona, QMessageBox::Critical);
    QCOMPARE(ByteDi(percorso), QByteArray("fattura tipo"));
}

QTEST_MAIN(tst_NuovoModello)
#include "tst_NuovoModello.moc"
