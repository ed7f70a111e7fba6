#include "ArchiviDiProva.h"

#include "base/ErroreSistema.h"

/// Archives and models are listed again when the window comes back after the editor, and on F5.
class tst_ElenchiRiletti : public QObject
{
    Q_OBJECT

private slots:
    void ArchiviEModelli_data();
    void ArchiviEModelli();
    void ModelloScomparso_data();
    void ModelloScomparso();
    void ArchivioScomparso_data();
    void ArchivioScomparso();
    void CartellaDeiDatiCheTorna_data();
    void CartellaDeiDatiCheTorna();
    void F5_senzaModelloScelto();
    void F5_senzaArchivioScelto();
    void F5_archivioPredefinitoArrivatoDopo();
    void F5_ilFuocoResta();
    void F5_unElencoPerVolta();

private:
    static void OgniModo();
    /// F5, or the way through an editor: true leads through it.
    static void Rilegge(ArchiviDiProva &prova, bool editor);
};

void tst_ElenchiRiletti::OgniModo()
{
    QTest::addColumn<bool>("editor");

    QTest::newRow("F5") << false;
    QTest::newRow("dopo l'editor") << true;
}

void tst_ElenchiRiletti::Rilegge(ArchiviDiProva &prova, bool editor)
{
    if (editor) {
        prova.Mostra();
    } else {
        // A box that has just closed may have taken the activation with it.
        QApplication::setActiveWindow(&prova.Finestra);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F5);
    }
}

void tst_ElenchiRiletti::ArchiviEModelli_data()
{
    OgniModo();
}

void tst_ElenchiRiletti::ArchiviEModelli()
{
    QFETCH(bool, editor);
    ArchiviDiProva prova;
    prova.Crea(QStringLiteral("Zeta"));
    ScriveFile(prova.Ini(QStringLiteral("Alfa.Mod")), "x");
    ScriveFile(prova.Ini(QStringLiteral("Beta.mod")), "x");
    prova.Carica();
    prova.Clic("List2", QStringLiteral("Beta"));
    if (editor) {
        Controlli::Preme(prova.Finestra, "Apri");
    }
    prova.Crea(QStringLiteral("Aggiunto"));
    QVERIFY(QDir(prova.In(QStringLiteral("Zeta"))).removeRecursively());
    ScriveFile(prova.Ini(QStringLiteral("Aaa.Mod")), "x");
    const Robot robot;
    Rilegge(prova, editor);
    QVERIFY(robot.Soddisfatto());
    const QStringList archivi{prova.In(QStringLiteral("Aggiunto")),
                              prova.In(QStringLiteral("Contabilita"))};
    QCOMPARE(prova.Voci("List1"), archivi);
    QCOMPARE(prova.Voci("Dir1"), archivi);
    QCOMPARE(prova.Scelto("List1"), prova.In(QStringLiteral("Contabilita")));
    QCOMPARE(prova.Voci("List2"),
             (QStringList{QStringLiteral("Aaa"), QStringLiteral("Alfa"), QStringLiteral("Beta")}));
    QCOMPARE(prova.Scelto("List2"), QStringLiteral("Beta"));
    QCOMPARE(prova.Stato.CartellaModelli, prova.Ini());
    QCOMPARE(prova.Stato.NomeFile, QStringLiteral("Beta.Mod"));
}

void tst_ElenchiRiletti::ModelloScomparso_data()
{
    OgniModo();
}

void tst_ElenchiRiletti::ModelloScomparso()
{
    QFETCH(bool, editor);
    ArchiviDiProva prova;
    ScriveFile(prova.Ini(QStringLiteral("Alfa.Mod")), "x");
    ScriveFile(prova.Ini(QStringLiteral("Beta.Mod")), "x");
    prova.Carica();
    prova.Clic("List2", QStringLiteral("Beta"));
    if (editor) {
        Controlli::Preme(prova.Finestra, "Apri");
    }
    QVERIFY(QFile::remove(prova.Ini(QStringLiteral("Beta.Mod"))));
    Rilegge(prova, editor);
    QCOMPARE(prova.Voci("List2"), QStringList{QStringLiteral("Alfa")});
    QCOMPARE(prova.Scelto("List2"), QString());
    // The keys still choose from the first entry.
    QTest::keyClick(prova.Lista("List2"), Qt::Key_Down);
    QCOMPARE(prova.Scelto("List2"), QStringLiteral("Alfa"));
}

void tst_ElenchiRiletti::ArchivioScomparso_data()
{
    OgniModo();
}

void tst_ElenchiRiletti::ArchivioScomparso()
{
    QFETCH(bool, editor);
    ArchiviDiProva prova;
    prova.Crea(QStringLiteral("Zeta"));
    ScriveFile(prova.In(QStringLiteral("Zeta/ini/Alfa.Mod")), "x");
    ScriveFile(prova.Ini(QStringLiteral("Alfa.Mod")), "x");
    prova.Carica();
    prova.Clic("List1", prova.In(QStringLiteral("Zeta")));
    prova.Clic("List2", QStringLiteral("Alfa"));
    if (editor) {
        Controlli::Preme(prova.Finestra, "Apri");
    }
    QVERIFY(QDir(prova.In(QStringLiteral("Zeta"))).removeRecursively());
    Robot robot;
    robot.Ok();
    Rilegge(prova, editor);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("l'archivio scelto non c'è più\n") +
                                        prova.In(QStringLiteral("Zeta"))});
    QCOMPARE(prova.Voci("List1"), QStringList{prova.In(QStringLiteral("Contabilita"))});
    QCOMPARE(prova.Scelto("List1"), QString());
    QVERIFY(prova.Voci("List2").isEmpty());
    QVERIFY(prova.Voci("File1").isEmpty());
    // Nothing can be opened in a folder that is gone.
    robot.Ok();
    Controlli::Preme(prova.Finestra, "Apri");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().last(), QStringLiteral("Selezionare una cartella"));
}

void tst_ElenchiRiletti::CartellaDeiDatiCheTorna_data()
{
    OgniModo();
}

void tst_ElenchiRiletti::CartellaDeiDatiCheTorna()
{
    QFETCH(bool, editor);
    ArchiviDiProva prova;
    prova.Crea(QStringLiteral("Zeta"));
    ScriveFile(prova.In(QStringLiteral("Zeta/ini/Alfa.Mod")), "x");
    prova.Carica();
    prova.Clic("List1", prova.In(QStringLiteral("Zeta")));
    prova.Clic("List2", QStringLiteral("Alfa"));
    if (editor) {
        Controlli::Preme(prova.Finestra, "Apri");
    }
    const QString dati = prova.Dati();
    const QString altrove = dati + QStringLiteral(" staccati");
    QVERIFY(QDir().rename(dati, altrove));
    Robot robot;
    robot.Ok();
    Rilegge(prova, editor);
    QVERIFY2(robot.Soddisfatto(), "one box for one mistake");
    QCOMPARE(robot.Testi(),
             QStringList{QStringLiteral("impossibile leggere la cartella dei dati\n%1\n%2")
                             .arg(dati, DescrizioneErrore(ErroreSistema::PercorsoNonTrovato))});
    QVERIFY(prova.Voci("List1").isEmpty());
    QVERIFY(prova.Voci("List2").isEmpty());
    QVERIFY(QDir().rename(altrove, dati));
    Rilegge(prova, false);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Scelto("List1"), prova.In(QStringLiteral("Zeta")));
    QCOMPARE(prova.Voci("List2"), QStringList{QStringLiteral("Alfa")});
}

void tst_ElenchiRiletti::F5_senzaModelloScelto()
{
    // The model opened or chosen last belongs to another archive.
    ArchiviDiProva prova;
    prova.Crea(QStringLiteral("Zeta"));
    ScriveFile(prova.In(QStringLiteral("Zeta/ini/Alfa.Mod")), "x");
    ScriveFile(prova.Ini(QStringLiteral("Alfa.Mod")), "x");
    prova.Carica();
    prova.Clic("List2", QStringLiteral("Alfa"));
    prova.Clic("List1", prova.In(QStringLiteral("Zeta")));
    Rilegge(prova, false);
    QCOMPARE(prova.Voci("List2"), QStringList{QStringLiteral("Alfa")});
    QCOMPARE(prova.Scelto("List2"), QString());
}

void tst_ElenchiRiletti::F5_senzaArchivioScelto()
{
    ArchiviDiProva prova;
    prova.Stato.ArchivioPredefinito = QStringLiteral("nessuno");
    prova.Carica();
    prova.Crea(QStringLiteral("Zeta"));
    const Robot robot;
    Rilegge(prova, false);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Voci("List1"), (QStringList{prova.In(QStringLiteral("Contabilita")),
                                               prova.In(QStringLiteral("Zeta"))}));
    QCOMPARE(prova.Scelto("List1"), QString());
}

void tst_ElenchiRiletti::F5_archivioPredefinitoArrivatoDopo()
{
    ArchiviDiProva prova;
    prova.Stato.ArchivioPredefinito = QStringLiteral("Zeta");
    prova.Carica();
    prova.Crea(QStringLiteral("zeta"));
    ScriveFile(prova.In(QStringLiteral("zeta/ini/Alfa.Mod")), "x");
    Rilegge(prova, false);
    QCOMPARE(prova.Scelto("List1"), prova.In(QStringLiteral("zeta")));
    QCOMPARE(prova.Voci("List2"), QStringList{QStringLiteral("Alfa")});
}

void tst_ElenchiRiletti::F5_ilFuocoResta()
{
    ArchiviDiProva prova;
    prova.Carica();
    for (const char *nome : {"List1", "List2", "Apri", "OptFattura", "Nuovo"}) {
        auto *controllo = Controlli::Trova<QWidget>(prova.Finestra, nome);
        controllo->setFocus();
        Rilegge(prova, false);
        QVERIFY2(controllo->hasFocus(), nome);
    }
}

void tst_ElenchiRiletti::F5_unElencoPerVolta()
{
    ArchiviDiProva prova;
    prova.Crea(QStringLiteral("Zeta"));
    prova.Carica();
    int elencati = 0;
    connect(prova.Lista("List1")->model(), &QAbstractItemModel::modelReset, this,
            [&elencati] { ++elencati; });
    Rilegge(prova, false);
    QCOMPARE(elencati, 1);
}

QTEST_MAIN(tst_ElenchiRiletti)
#include "tst_ElenchiRiletti.moc"
