#include "model/FileModello.h"

#include "support/RigheDiProva.h"

#include <QTest>

/// How the reader takes the value of each line.
class tst_FileModelloValori : public QObject
{
    Q_OBJECT

private slots:
    void RigheDellaTestata();
    void SeguePagPredefinito();
    void Visualizza_data();
    void Visualizza();
    void Interi_data();
    void Interi();
    void Grassetto_data();
    void Grassetto();
    void NumeroTroppoGrande();
    void TestiCheSembranoNumeri_data();
    void TestiCheSembranoNumeri();
};

using namespace RigheDiProva;

void tst_FileModelloValori::RigheDellaTestata()
{
    Righe righe = Intero(Genere::Campo, {});
    // Line 2 is nobody's, whatever stands there; so are the free lines.
    righe[1] = "qualcosa";
    righe[20] = "FINECAMPI";
    righe[50] = "qualcosa";
    const Modello modello = Letto(File(righe));
    QCOMPARE(modello.Tipo, QStringLiteral("Fattura"));
    const ImmagineSfondo sfondo{QStringLiteral("sfondo.bmp"), QStringLiteral("210"),
                                QStringLiteral("297"),        QStringLiteral("0"),
                                QStringLiteral("5"),          1};
    QVERIFY(modello.Sfondo == sfondo);
    const ParametriRighe parametri{90, 230, 4, 3, QStringLiteral("segue")};
    QVERIFY(modello.Righe == parametri);
    QCOMPARE(modello.NumCampi, qint16(0));
}

void tst_FileModelloValori::SeguePagPredefinito()
{
    Righe righe = Intero(Genere::Campo, {});
    righe[11] = "";
    QCOMPARE(Letto(File(righe)).Righe.SeguePag, QStringLiteral("segue su pagina successiva"));
    righe[11] = " ";
    QCOMPARE(Letto(File(righe)).Righe.SeguePag, QStringLiteral(" "));
}

void tst_FileModelloValori::Visualizza_data()
{
    QTest::addColumn<QByteArray>("riga");
    QTest::addColumn<int>("valore");
    QTest::addColumn<int>("errore");

    const auto riga = [](const char *nome, const char *testo, int valore, int errore = 0) {
        QTest::newRow(nome) << QByteArray(testo) << valore << errore;
    };
    riga("0", " 0 ", 0);
    riga("1", " 1 ", 1);
    riga("2", " 2 ", 2);
    riga("vuota", "", 0);
    riga("testo", "Falso", 0);
    riga("0.5 al pari", "0.5", 0);
    riga("1.5 al pari", "1.5", 2);
    riga("2.5 al pari", "2.5", 2);
    riga("-0.5 al pari", "-0.5", 0);
    riga("3", " 3 ", 9, 380);
    riga("-1", "-1 ", 9, 380);
    riga("2.6", "2.6", 9, 380);
    riga("32767", "32767", 9, 380);
    riga("32768", "32768", 9, 6);
    riga("1e300", "1E300", 9, 6);
    riga("1e400", "1E400", 9, 6);
}

void tst_FileModelloValori::Visualizza()
{
    QFETCH(QByteArray, riga);
    QFETCH(int, valore);
    QFETCH(int, errore);
    Righe righe = Intero(Genere::Campo, {});
    righe[10] = riga;
    Modello modello;
    modello.Sfondo.Visualizza = 9;
    QCOMPARE(ErroreLeggendo(File(righe), modello), errore);
    QCOMPARE(int(modello.Sfondo.Visualizza), valore);
    // What stood before the refused line is read, what follows it is not.
    QCOMPARE(modello.Righe.Interlinea, 4.0);
    QCOMPARE(modello.Righe.SeguePag, errore == 0 ? QStringLiteral("segue") : QString());
}

void tst_FileModelloValori::Interi_data()
{
    QTest::addColumn<QByteArray>("testo");
    QTest::addColumn<int>("valore");
    QTest::addColumn<int>("errore");

    const auto riga = [](const char *nome, const char *testo, int valore, int errore = 0) {
        QTest::newRow(nome) << QByteArray(testo) << valore << errore;
    };
    riga("11", "11", 11);
    riga("vuoto", "", 0);
    riga("testo", "grande", 0);
    riga("10.5 al pari", "10.5", 10);
    riga("11.5 al pari", "11.5", 12);
    riga("virgola", "11,9", 11);
    riga("32767", "32767", 32767);
    riga("-32768", "-32768", -32768);
    riga("32768", "32768", 0, 6);
    riga("-32769", "-32769", 0, 6);
    riga("1e400", "1E400", 0, 6);
}

void tst_FileModelloValori::Interi()
{
    QFETCH(QByteArray, testo);
    QFETCH(int, valore);
    QFETCH(int, errore);
    constexpr int RigaDimensioneCampo = 7;
    constexpr int RigaDimensioneCornice = 6;
    constexpr int RigaColoreCornice = 12;
    constexpr int RigaColoreTesto = 13;
    const auto prova = [&](Genere genere, int numeroRiga, auto membro) {
        Righe blocco = Blocco(genere, "nome");
        blocco[numeroRiga] = testo;
        Modello modello;
        QCOMPARE(ErroreLeggendo(File(Intero(genere, blocco)), modello), errore);
        QCOMPARE(int(membro(modello)), valore);
        // The element itself counts, with what was read of it.
        QCOMPARE(modello.Numero(genere), qint16(1));
        QCOMPARE(modello.Nome(genere, 1), QStringLiteral("nome"));
    };
    prova(Genere::Campo, RigaDimensioneCampo,
          [](const Modello &m) { return m.Campi[1].Dimensione; });
    prova(Genere::Cornice, RigaDimensioneCornice,
          [](const Modello &m) { return m.Cornici[1].Dimensione; });
    prova(Genere::Cornice, RigaColoreCornice,
          [](const Modello &m) { return m.Cornici[1].ColoreCornice; });
    prova(Genere::Cornice, RigaColoreTesto,
          [](const Modello &m) { return m.Cornici[1].ColoreTesto; });
}

void tst_FileModelloValori::Grassetto_data()
{
    QTest::addColumn<QByteArray>("testo");
    QTest::addColumn<int>("valore");

    QTest::newRow("-1") << QByteArray("-1") << -1;
    QTest::newRow("0") << QByteArray("0") << 0;
    QTest::newRow("1") << QByteArray("1") << -1;
    QTest::newRow("2") << QByteArray("2") << -1;
    QTest::newRow("0.25 non e' zero") << QByteArray("0.25") << -1;
    QTest::newRow("oltre 16 bit") << QByteArray("1E300") << -1;
    QTest::newRow("vuoto") << QByteArray() << 0;
    QTest::newRow("testo") << QByteArray("Vero") << 0;
    QTest::newRow("0,5 si legge 0") << QByteArray("0,5") << 0;
}

void tst_FileModelloValori::Grassetto()
{
    QFETCH(QByteArray, testo);
    QFETCH(int, valore);
    Righe campo = BloccoCampo("nome");
    campo[8] = testo;
    QCOMPARE(int(Letto(File(Intero(Genere::Campo, campo))).Campi[1].Grassetto), valore);
    Righe cornice = BloccoCornice("nome");
    cornice[7] = testo;
    QCOMPARE(int(Letto(File(Intero(Genere::Cornice, cornice))).Cornici[1].Grassetto), valore);
}

void tst_FileModelloValori::NumeroTroppoGrande()
{
    Righe blocco = BloccoCampo("nome");
    blocco[4] = "1E309";
    Modello modello;
    QCOMPARE(ErroreLeggendo(File(Intero(Genere::Campo, BloccoCampo("primo") + blocco)), modello),
             6);
    QCOMPARE(modello.NumCampi, qint16(2));
    QCOMPARE(modello.Campi[1].Descrizione, QStringLiteral("descr"));
    QCOMPARE(modello.Campi[2].Maschera, QStringLiteral("##"));
    QCOMPARE(modello.Campi[2].Font, QString());
}

void tst_FileModelloValori::TestiCheSembranoNumeri_data()
{
    QTest::addColumn<QByteArray>("testo");
    QTest::addColumn<double>("valore");

    QTest::newRow("NaN") << QByteArray("NaN") << 0.0;
    QTest::newRow("nan(0x1)") << QByteArray("nan(0x1)") << 0.0;
    QTest::newRow("-inf") << QByteArray("-inf") << 0.0;
    QTest::newRow("Infinity") << QByteArray("Infinity") << 0.0;
    QTest::newRow("1.#INF") << QByteArray("1.#INF") << 1.0;
    QTest::newRow("0x1p3") << QByteArray("0x1p3") << 0.0;
    QTest::newRow("byte nullo dentro") << QByteArray("1\0002", 3) << 1.0;
    QTest::newRow("10.000 nove decimali") << "0." + QByteArray(10'000, '9') << 1.0;
    QTest::newRow("10.000 blank e un uno") << QByteArray(10'000, ' ') + '1' << 1.0;
}

void tst_FileModelloValori::TestiCheSembranoNumeri()
{
    QFETCH(QByteArray, testo);
    QFETCH(double, valore);
    Righe blocco = BloccoCampo("nome");
    blocco[4] = testo;
    QCOMPARE(Letto(File(Intero(Genere::Campo, blocco))).Campi[1].X, valore);
}

QTEST_GUILESS_MAIN(tst_FileModelloValori)
#include "tst_FileModelloValori.moc"
