#include "model/MaschereStampa.h"

#include <QSet>
#include <QTest>

class TestMaschereStampa : public QObject
{
    Q_OBJECT
private slots:
    void IlCatalogoHa128Voci();
    void VociDelCatalogo_data();
    void VociDelCatalogo();
    void MascheraPropria_data();
    void MascheraPropria();
    void AndDellePosizioni_data();
    void AndDellePosizioni();
    void TestoDiProva_data();
    void TestoDiProva();
    void OgniCifraEstraeDueVolteEUsaLaSeconda();
    void LaSorgenteUniformeStaFraZeroEUno();
};

void TestMaschereStampa::IlCatalogoHa128Voci()
{
    const QStringList catalogo = MaschereStampa::Catalogo();
    QCOMPARE(catalogo.size(), 48 + 80);
    QCOMPARE(QSet<QString>(catalogo.begin(), catalogo.end()).size(), catalogo.size());
}

void TestMaschereStampa::VociDelCatalogo_data()
{
    QTest::addColumn<int>("numero"); // from 1
    QTest::addColumn<QString>("voce");
    const auto riga = [](int numero, const char *voce) {
        QTest::addRow("%d", numero) << numero << QString::fromLatin1(voce);
    };
    riga(1, "No non stampa");
    riga(2, "###.###,### 2 decimali");
    riga(3, "#.###.###,### 2 decimali");
    riga(4, "##.###.###,### 2 decimali");
    riga(5, "#, no decimali");
    riga(6, "##, no decimali");
    riga(7, "###, no decimali");
    riga(8, "####, no decimali");
    riga(9, "#####, no decimali");
    riga(10, "######, no decimali");
    riga(11, "#######, no decimali");
    riga(12, "########, no decimali");
    riga(13, "#########, no decimali");
    riga(14, "##########, no decimali");
    riga(15, "###########, no decimali");
    riga(16, "#,### 2 decimali");
    riga(17, "##,### 2 decimali");
    riga(18, "###,### 2 decimali");
    riga(19, "####,### 2 decimali");
    riga(20, "#####,### 2 decimali");
    riga(21, "######,### 2 decimali");
    riga(22, "#######,### 2 decimali");
    riga(23, "########,### 2 decimali");
    riga(24, "#########,### 2 decimali");
    riga(25, "##########,### 2 decimali");
    riga(26, "###########,### 2 decimali");
    riga(27, "#,#### 3 decimali");
    riga(28, "##,#### 3 decimali");
    riga(29, "###,#### 3 decimali");
    riga(30, "####,#### 3 decimali");
    riga(31, "#####,#### 3 decimali");
    riga(32, "######,#### 3 decimali");
    riga(33, "#######,#### 3 decimali");
    riga(34, "########,#### 3 decimali");
    riga(35, "#########,#### 3 decimali");
    riga(36, "##########,#### 3 decimali");
    riga(37, "###########,#### 3 decimali");
    riga(38, "#,##### 4 decimali");
    riga(39, "##,##### 4 decimali");
    riga(40, "###,##### 4 decimali");
    riga(41, "####,##### 4 decimali");
    riga(42, "#####,##### 4 decimali");
    riga(43, "######,##### 4 decimali");
    riga(44, "#######,##### 4 decimali");
    riga(45, "########,##### 4 decimali");
    riga(46, "#########,##### 4 decimali");
    riga(47, "##########,##### 4 decimali");
    riga(48, "###########,##### 4 decimali");
    riga(49, "$ 1  caratteri");
    riga(51, "$$$ 3  caratteri");
    riga(58, "$$$$$$$$$$ 10  caratteri");
    riga(128, "$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$"
              "$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$ 80  caratteri");
}

void TestMaschereStampa::VociDelCatalogo()
{
    QFETCH(int, numero);
    QFETCH(QString, voce);
    QCOMPARE(MaschereStampa::Catalogo().at(numero - 1), voce);
}

void TestMaschereStampa::MascheraPropria_data()
{
    QTest::addColumn<QString>("voce");
    QTest::addColumn<QString>("maschera");
    QTest::newRow("no") << QStringLiteral("No non stampa") << QStringLiteral("No");
    QTest::newRow("decimali") << QStringLiteral("#,### 2 decimali") << QStringLiteral("#,###");
    QTest::newRow("caratteri") << QStringLiteral("$$$ 3  caratteri") << QStringLiteral("$$$");
    QTest::newRow("senza spazio") << QStringLiteral("##") << QStringLiteral("##");
}

void TestMaschereStampa::MascheraPropria()
{
    QFETCH(QString, voce);
    QTEST(MaschereStampa::Propria(voce), "maschera");
}

void TestMaschereStampa::AndDellePosizioni_data()
{
    QTest::addColumn<QString>("mascheraDefault");
    QTest::addColumn<QString>("voce");
    QTest::addColumn<bool>("vietato");
    const auto riga = [](const char *nome, const char *predefinita, const char *voce,
                         bool vietato) {
        QTest::newRow(nome) << QString::fromLatin1(predefinita) << QString::fromLatin1(voce)
                            << vietato;
    };
    riga("1 e 1", "###,", "$$$ 3  caratteri", true);
    riga("nessun #", "$$$", "$$$ 3  caratteri", false);
    riga("nessun $", "###,", "##, no decimali", false);
    riga("2 e 1: nessun bit comune", "-###", "$$$ 3  caratteri", false);
    riga("3 e 1: un bit comune", "--###", "$$$ 3  caratteri", true);
    riga("2 e 2", "-###", "-$$$", true);
    riga("vuota", "", "$$$ 3  caratteri", false);
}

void TestMaschereStampa::AndDellePosizioni()
{
    QFETCH(QString, mascheraDefault);
    QFETCH(QString, voce);
    QTEST(MaschereStampa::DaNumericoAdAlfanumerico(mascheraDefault, voce), "vietato");
}

void TestMaschereStampa::TestoDiProva_data()
{
    QTest::addColumn<QString>("maschera");
    QTest::addColumn<QString>("testo"); // 1, 2, 3 ... are the digits drawn
    const auto riga = [](const char *maschera, const char *testo) {
        QTest::newRow(maschera) << QString::fromLatin1(maschera) << QString::fromLatin1(testo);
    };
    riga("#,", "1");
    riga("###,", "123");
    riga("###.###,###", "123.456,78");
    riga("#.###.###,###", "1.234.567,89");
    riga("#,###", "1,23");
    riga("##,#####", "12,3456");
    riga("#", "");
}

void TestMaschereStampa::TestoDiProva()
{
    QFETCH(QString, maschera);
    int estratti = 0;
    const auto casuale = [&] {
        ++estratti;
        // The second number of each pair is the digit's; the first would give 9.
        return estratti % 2 == 1 ? 0.95 : estratti * 0.05 + 0.05;
    };
    QTEST(MaschereStampa::TestoDiProva(maschera, casuale), "testo");
    QCOMPARE(MaschereStampa::Forma(maschera), maschera.chopped(1));
}

void TestMaschereStampa::OgniCifraEstraeDueVolteEUsaLaSeconda()
{
    const QList<double> sequenza{0.11, 0.99999, 0.22, 0.0, 0.33, 0.5};
    int estratti = 0;
    const QString testo = MaschereStampa::TestoDiProva(QStringLiteral("##.#,"),
                                                       [&] { return sequenza.at(estratti++); });
    QCOMPARE(testo, QStringLiteral("90.5"));
    QCOMPARE(estratti, 6);
}

void TestMaschereStampa::LaSorgenteUniformeStaFraZeroEUno()
{
    const SorgenteCasuale casuale = MaschereStampa::Uniforme();
    QSet<int> cifre;
    for (int i = 0; i < 10000; ++i) {
        const double numero = casuale();
        QVERIFY(numero >= 0 && numero < 1);
        cifre.insert(static_cast<int>(numero * 10));
    }
    QCOMPARE(cifre.size(), 10);
}

QTEST_GUILESS_MAIN(TestMaschereStampa)
#include "tst_MaschereStampa.moc"
