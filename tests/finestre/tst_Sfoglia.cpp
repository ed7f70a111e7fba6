#include "SfogliaDiProva.h"
#include "finestre/Finestre.h"
#include "support/Robot.h"

#include <QDir>
#include <QPushButton>
#include <QTest>

using Controlli::Trova;

/// The browser from its opening to the file that it gives back.
class tst_Sfoglia : public QObject, private SfogliaDiProva
{
    Q_OBJECT

private slots:
    void init() { Prepara(); }
    void Testi();
    void Attivazione();
    void Attivazione_altreMaiuscole();
    void Attivazione_fileAssente();
    void Attivazione_senzaBarra();
    void Attivazione_cartellaScomparsa();
    void Attivazione_nomeVuoto();
    void Attivazione_cartellaDiPartenza_data();
    void Attivazione_cartellaDiPartenza();
    void Ok_dopoUnaScelta();
    void Ok_senzaScelta();
    void DoppioClicSulFile();
    void Invio_sulFile();
    void ChiudiDopoUnaScelta();
    void RiquadroDiChiusura();
    void Esc();
    void RiattivataDopoLaConferma();
    void GuidaNonAssegnata();
};

void tst_Sfoglia::Testi()
{
    const Sfoglia s;
    QCOMPARE(s.objectName(), QStringLiteral("Sfoglia"));
    QCOMPARE(s.windowTitle(), QStringLiteral("Sfoglia"));
    for (const char *nome : {"FileEntrata", "Percorso", "NomeFile"}) {
        QCOMPARE(Etichetta(s, nome), QString::fromLatin1(nome));
    }
    QCOMPARE(Trova<QPushButton>(s, "Command8")->text(), QStringLiteral("OK"));
    QCOMPARE(Trova<QPushButton>(s, "Command7")->text().remove(u'&'), QStringLiteral("Chiudi"));
    QVERIFY(Trova<QWidget>(s, "Frame2")->isAncestorOf(File(s)));
}

void tst_Sfoglia::Attivazione()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    QCOMPARE(Etichetta(s, "Percorso"), In(QStringLiteral("scansioni")) + QDir::separator());
    QCOMPARE(Etichetta(s, "NomeFile"), QStringLiteral("b.jpg"));
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    QCOMPARE(NomiFile(s), (QStringList{QStringLiteral("A.bmp"), QStringLiteral("b.jpg"),
                                       QStringLiteral("c.gif")}));
    QCOMPARE(FileScelto(s), QStringLiteral("b.jpg"));
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/b.jpg")));
}

void tst_Sfoglia::Attivazione_altreMaiuscole()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("SCANSIONI\\B.JPG")));
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    QCOMPARE(FileScelto(s), QStringLiteral("b.jpg"));
}

void tst_Sfoglia::Attivazione_fileAssente()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/manca.jpg")));
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    QCOMPARE(FileScelto(s), QString());
    QCOMPARE(RisultatoSfoglia(), QStringLiteral("di prima"));
}

void tst_Sfoglia::Attivazione_senzaBarra()
{
    Sfoglia s;
    Mostra(s, QStringLiteral("b.jpg"));
    QCOMPARE(Etichetta(s, "Percorso"), QStringLiteral("b.jpg"));
    QCOMPARE(Etichetta(s, "NomeFile"), QStringLiteral("b.jpg"));
    QCOMPARE(s.CartellaAperta(), QDir::toNativeSeparators(QDir::homePath()));
    s.reject();
    QCOMPARE(RisultatoSfoglia(), QStringLiteral("b.jpg"));
}

void tst_Sfoglia::Attivazione_cartellaScomparsa()
{
    const Robot robot;
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/tolta/ancora/b.jpg")));
    QVERIFY2(robot.Soddisfatto(), "no message");
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    // The file of the same name that lies there is another one.
    QVERIFY(NomiFile(s).contains(QStringLiteral("b.jpg")));
    QCOMPARE(FileScelto(s), QString());
    QCOMPARE(RisultatoSfoglia(), QStringLiteral("di prima"));
}

void tst_Sfoglia::Attivazione_nomeVuoto()
{
    Sfoglia s;
    Mostra(s, QString());
    QCOMPARE(s.CartellaAperta(), QDir::toNativeSeparators(QDir::homePath()));
    s.accept();
    QCOMPARE(RisultatoSfoglia(), QString());
}

void tst_Sfoglia::Attivazione_cartellaDiPartenza_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("partenza");
    QTest::addColumn<QString>("aperta");
    const auto riga = [](const char *titolo, const char *file, const char *partenza,
                         const char *aperta) {
        QTest::newRow(titolo) << QString::fromLatin1(file) << QString::fromLatin1(partenza)
                              << QString::fromLatin1(aperta);
    };
    riga("nessun file", "", "scansioni/", "scansioni");
    riga("nome senza cartella", "b.jpg", "scansioni/", "scansioni");
    riga("partenza scomparsa", "", "scansioni/tolta/", "scansioni");
    riga("file con la sua cartella", "scansioni/bozze/x.jpg", "scansioni/", "scansioni/bozze");
}

void tst_Sfoglia::Attivazione_cartellaDiPartenza()
{
    QFETCH(QString, file);
    QFETCH(QString, partenza);
    QFETCH(QString, aperta);
    Sfoglia s;
    s.ImpostaPartenza(In(partenza));
    const QString entrata = file.contains(u'/') ? In(file) : file;
    Mostra(s, entrata);
    QCOMPARE(s.CartellaAperta(), In(aperta));
    QCOMPARE(Etichetta(s, "CartellaInVista"), In(aperta));
    // What was handed in is shown as it came.
    QCOMPARE(Etichetta(s, "FileEntrata"), entrata);
    QCOMPARE(Etichetta(s, "Percorso"),
             file.contains(u'/') ? In(QStringLiteral("scansioni/bozze/")) : file);
    s.reject();
    QCOMPARE(RisultatoSfoglia(), entrata);
}

void tst_Sfoglia::Ok_dopoUnaScelta()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    ScegliFile(s, 2);
    Controlli::Preme(s, "Command8");
    QCOMPARE(s.result(), static_cast<int>(QDialog::Accepted));
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/c.gif")));
}

void tst_Sfoglia::Ok_senzaScelta()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/manca.jpg")));
    Controlli::Preme(s, "Command8");
    QVERIFY(!s.isVisible());
    QCOMPARE(RisultatoSfoglia(), QStringLiteral("di prima"));
}

void tst_Sfoglia::DoppioClicSulFile()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    DoppioClic(File(s), File(s)->model()->index(0, 0));
    QVERIFY(!s.isVisible());
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/A.bmp")));
}

void tst_Sfoglia::Invio_sulFile()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    QTest::keyClick(File(s), Qt::Key_Down);
    QTest::keyClick(File(s), Qt::Key_Return);
    QVERIFY(!s.isVisible());
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/c.gif")));
}

void tst_Sfoglia::ChiudiDopoUnaScelta()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    ScegliFile(s, 2);
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/c.gif")));
    Controlli::Preme(s, "Command7");
    QVERIFY(!s.isVisible());
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/b.jpg")));
}

void tst_Sfoglia::RiquadroDiChiusura()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    ScegliFile(s, 2);
    s.close();
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/b.jpg")));
}

void tst_Sfoglia::Esc()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    ScegliFile(s, 2);
    QTest::keyClick(File(s), Qt::Key_Escape);
    QVERIFY(!s.isVisible());
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/b.jpg")));
}

void tst_Sfoglia::RiattivataDopoLaConferma()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    Controlli::Preme(s, "Command8");
    Mostra(s, In(QStringLiteral("scansioni/A.bmp")));
    ScegliFile(s, 2);
    s.close();
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/A.bmp")));
}

void tst_Sfoglia::GuidaNonAssegnata()
{
    // Not even through the window that opens the browser.
    QWidget editor;
    ImpostaHelp(&editor);
    const Sfoglia s(&editor);
    QVERIFY(!File(s)->property(ProprietaGuida).isValid());
    QCOMPARE(ArgomentoDi(File(s)), 0);
    QCOMPARE(ArgomentoDi(&s), 0);
}

QTEST_MAIN(tst_Sfoglia)
#include "tst_Sfoglia.moc"
