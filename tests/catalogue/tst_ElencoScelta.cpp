#include "ArchiviDiProva.h"

#include <QSignalSpy>

/// The choice of archives and models with the keyboard, and what a click leaves chosen.
class tst_ElencoScelta : public QObject
{
    Q_OBJECT

private slots:
    void PrimoTasto_data();
    void PrimoTasto();
    void UnicoModello_data();
    void UnicoModello();
    void DallArchivioAlPrimoModello();
    void IlFuocoNonSceglie();
    void PrimoArchivio();
    void ElencoVuoto();
    void ArchivioRestaSceltoConCtrl_data();
    void ArchivioRestaSceltoConCtrl();
    void ModelloRestaSceltoConCtrl();
};

void tst_ElencoScelta::PrimoTasto_data()
{
    QTest::addColumn<Qt::Key>("tasto");
    QTest::addColumn<QString>("scelto");

    QTest::newRow("giu'") << Qt::Key_Down << QStringLiteral("Alfa");
    QTest::newRow("su") << Qt::Key_Up << QStringLiteral("Alfa");
    QTest::newRow("inizio") << Qt::Key_Home << QStringLiteral("Alfa");
    QTest::newRow("pagina su") << Qt::Key_PageUp << QStringLiteral("Alfa");
    QTest::newRow("fine") << Qt::Key_End << QStringLiteral("Gamma");
    QTest::newRow("pagina giu'") << Qt::Key_PageDown << QStringLiteral("Gamma");
    QTest::newRow("barra spaziatrice") << Qt::Key_Space << QStringLiteral("Alfa");
    QTest::newRow("iniziale") << Qt::Key_B << QStringLiteral("Beta");
}

void tst_ElencoScelta::PrimoTasto()
{
    QFETCH(Qt::Key, tasto);
    QFETCH(QString, scelto);
    ArchiviDiProva prova;
    for (const char *nome : {"Alfa.Mod", "Beta.Mod", "Gamma.Mod"}) {
        ScriveFile(prova.Ini(QString::fromLatin1(nome)), "x");
    }
    prova.Carica();
    QTRY_VERIFY(prova.Lista("List2")->hasFocus());
    QTest::keyClick(prova.Lista("List2"), tasto);
    QCOMPARE(prova.Scelto("List2"), scelto);
    QCOMPARE(prova.Stato.NomeFile, scelto + QStringLiteral(".Mod"));
    // From there on every key moves as in any list.
    QTest::keyClick(prova.Lista("List2"), Qt::Key_Home);
    QTest::keyClick(prova.Lista("List2"), Qt::Key_Down);
    QCOMPARE(prova.Scelto("List2"), QStringLiteral("Beta"));
}

void tst_ElencoScelta::UnicoModello_data()
{
    QTest::addColumn<Qt::Key>("tasto");

    QTest::newRow("giu'") << Qt::Key_Down;
    QTest::newRow("su") << Qt::Key_Up;
    QTest::newRow("inizio") << Qt::Key_Home;
    QTest::newRow("fine") << Qt::Key_End;
    QTest::newRow("pagina giu'") << Qt::Key_PageDown;
}

void tst_ElencoScelta::UnicoModello()
{
    QFETCH(Qt::Key, tasto);
    ArchiviDiProva prova;
    ScriveFile(prova.Ini(QStringLiteral("Alfa.Mod")), "x");
    prova.Carica();
    QTRY_VERIFY(prova.Lista("List2")->hasFocus());
    const QSignalSpy aperto(&prova.Finestra, &SelezioneArchivifrm::ModelloScelto);
    QTest::keyClick(prova.Lista("List2"), tasto);
    QTest::keyClick(prova.Lista("List2"), Qt::Key_Return);
    QCOMPARE(aperto.size(), 1);
    QCOMPARE(prova.Stato.NomeFile, QStringLiteral("Alfa.Mod"));
}

void tst_ElencoScelta::DallArchivioAlPrimoModello()
{
    ArchiviDiProva prova;
    prova.Crea(QStringLiteral("Altro"));
    ScriveFile(prova.In(QStringLiteral("Altro/ini/Uno.Mod")), "x");
    ScriveFile(prova.In(QStringLiteral("Altro/ini/Zeta.Mod")), "x");
    prova.Carica();
    prova.Lista("List1")->setFocus();
    QTest::keyClick(prova.Lista("List1"), Qt::Key_Up);
    QCOMPARE(prova.Scelto("List1"), prova.In(QStringLiteral("Altro")));
    QTest::keyClick(prova.Lista("List1"), Qt::Key_Tab);
    QVERIFY(prova.Lista("List2")->hasFocus());
    QTest::keyClick(prova.Lista("List2"), Qt::Key_Down);
    QCOMPARE(prova.Scelto("List2"), QStringLiteral("Uno"));
}

void tst_ElencoScelta::IlFuocoNonSceglie()
{
    ArchiviDiProva prova;
    ScriveFile(prova.Ini(QStringLiteral("Alfa.Mod")), "x");
    prova.Carica();
    QTRY_VERIFY(prova.Lista("List2")->hasFocus());
    QTest::keyClick(prova.Lista("List2"), Qt::Key_Shift);
    QCOMPARE(prova.Scelto("List2"), QString());
}

void tst_ElencoScelta::PrimoArchivio()
{
    ArchiviDiProva prova;
    prova.Stato.ArchivioPredefinito = QStringLiteral("nessuno");
    ScriveFile(prova.Ini(QStringLiteral("Alfa.Mod")), "x");
    prova.Carica();
    QTRY_VERIFY(prova.Lista("List1")->hasFocus());
    QTest::keyClick(prova.Lista("List1"), Qt::Key_Down);
    QCOMPARE(prova.Scelto("List1"), prova.In(QStringLiteral("Contabilita")));
    QCOMPARE(prova.Voci("List2"), QStringList{QStringLiteral("Alfa")});
}

void tst_ElencoScelta::ElencoVuoto()
{
    ArchiviDiProva prova;
    prova.Carica();
    QTRY_VERIFY(prova.Lista("List2")->hasFocus());
    for (const Qt::Key tasto : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End}) {
        QTest::keyClick(prova.Lista("List2"), tasto);
    }
    QCOMPARE(prova.Scelto("List2"), QString());
    QVERIFY(prova.Stato.NomeFile.isEmpty());
}

void tst_ElencoScelta::ArchivioRestaSceltoConCtrl_data()
{
    QTest::addColumn<bool>("tastiera");

    QTest::newRow("clic") << false;
    QTest::newRow("barra spaziatrice") << true;
}

void tst_ElencoScelta::ArchivioRestaSceltoConCtrl()
{
    QFETCH(bool, tastiera);
    ArchiviDiProva prova;
    ScriveFile(prova.Ini(QStringLiteral("Alfa.Mod")), "x");
    prova.Carica();
    const QString archivio = prova.In(QStringLiteral("Contabilita"));
    if (tastiera) {
        QTest::keyClick(prova.Lista("List1"), Qt::Key_Space, Qt::ControlModifier);
    } else {
        prova.Clic("List1", archivio, Qt::ControlModifier);
    }
    QCOMPARE(prova.Scelto("List1"), archivio);
    QCOMPARE(prova.Voci("List2"), QStringList{QStringLiteral("Alfa")});
    // What is listed can be opened.
    const QSignalSpy aperto(&prova.Finestra, &SelezioneArchivifrm::ModelloScelto);
    prova.Clic("List2", QStringLiteral("Alfa"));
    Controlli::Preme(prova.Finestra, "Apri");
    QCOMPARE(aperto.size(), 1);
}

void tst_ElencoScelta::ModelloRestaSceltoConCtrl()
{
    ArchiviDiProva prova;
    ScriveFile(prova.Ini(QStringLiteral("Alfa.Mod")), "x");
    ScriveFile(prova.Ini(QStringLiteral("Beta.Mod")), "x");
    prova.Carica();
    prova.Clic("List2", QStringLiteral("Beta"));
    prova.Clic("List2", QStringLiteral("Beta"), Qt::ControlModifier);
    QCOMPARE(prova.Scelto("List2"), QStringLiteral("Beta"));
    prova.Clic("List2", QStringLiteral("Alfa"), Qt::ControlModifier);
    QCOMPARE(prova.Scelto("List2"), QStringLiteral("Alfa"));
}

QTEST_MAIN(tst_ElencoScelta)
#include "tst_ElencoScelta.moc"
