#include "model/FileModello.h"

#include "support/Errori.h"
#include "support/ModelloDiProva.h"
#include "support/RigheDiProva.h"

#include <QTest>

/// What the writer writes, and that it comes back.
class tst_FileModelloComposizione : public QObject
{
    Q_OBJECT

private slots:
    void ModelloSenzaElementi();
    void OgniRigaDelFile_data();
    void OgniRigaDelFile();
    void SeparatoreDiUnAltroAlfabeto();
    void SoloCampi();
    void GliElementiDaSoli();
    void AssentiFuoriDalFile();
    void OltreCentoSiScrivonoCento();
    void RitornoACapoNelTesto();
    void CarattereSenzaPosto();
    void CoppieDiSeparatori_data();
    void CoppieDiSeparatori();
    void OgniByteRestaNelTesto_data();
    void OgniByteRestaNelTesto();
    void TestiDiDiecimilaCaratteri();
    void MisureEnormi_data();
    void MisureEnormi();
};

namespace {

using namespace RigheDiProva;

const QLocale Punto = QLocale::c();
const QLocale Virgola(QLocale::Italian, QLocale::Italy);

} // namespace

void tst_FileModelloComposizione::ModelloSenzaElementi()
{
    const QByteArray atteso =
        QByteArray("\r\n").repeated(7) + " 0 \r\n 0 \r\n 0 \r\n 0 \r\n\r\n 0 \r\n" +
        QByteArray("\r\n").repeated(38) + "FINECAMPI\r\nFINECORNICI\r\nFINEIMMAGINI\r\n";
    QCOMPARE(FileModello::Componi(Modello(), Punto), atteso);
    QCOMPARE(atteso.count("\r\n"), 13 + 38 + 3);
}

void tst_FileModelloComposizione::OgniRigaDelFile_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QByteArray>("separatore");

    QTest::newRow("punto") << Punto << QByteArray(".");
    QTest::newRow("virgola") << Virgola << QByteArray(",");
}

void tst_FileModelloComposizione::OgniRigaDelFile()
{
    QFETCH(QLocale, locale);
    QFETCH(QByteArray, separatore);
    Modello modello;
    modello.Tipo = QStringLiteral("Fattura €");
    modello.Sfondo = {QStringLiteral("s.bmp"), QStringLiteral("210"), QStringLiteral("297,5"),
                      QStringLiteral(" 1 "),   QStringLiteral("x"),   2};
    modello.Righe = {12.5, -230, 4, 3.25, QStringLiteral("segue")};
    modello.NumCampi = 1;
    modello.Campi[1] = {{QStringLiteral("Data"), 12.5, 40, QStringLiteral("la data")},
                        QStringLiteral("città"),
                        QStringLiteral("No"),
                        QStringLiteral("Arial"),
                        11,
                        Vero,
                        QStringLiteral("$$")};
    modello.NumCornici = 1;
    modello.Cornici[1] = {{QStringLiteral("Riquadro"), -12.5, 0.5, QStringLiteral("il totale")},
                          QStringLiteral("Totale"),
                          QStringLiteral("Arial"),
                          8,
                          Falso,
                          10.5,
                          20,
                          1.5,
                          4,
                          15};
    modello.NumImmagini = 1;
    modello.Immagini[1] = {
        {QStringLiteral("logo.jpg"), 1, 2.5, QStringLiteral("il logo")}, 10.5, 50, 0.5};

    Righe atteso{"Fattura \x80", "",      "s.bmp", "210", "297,5", " 1 ",   "x",
                 " 12.5 ",       "-230 ", " 4 ",   " 2 ", "segue", " 3.25 "};
    atteso += Righe(38, "");
    atteso +=
        {"", "Data", "citt\xE0", "No", "12.5", "40", "Arial", "11", "-1", "$$", "la data", ""};
    atteso += "FINECAMPI";
    atteso += {"",  "Riquadro",  "Totale", "-12.5", "0.5",   "Arial", "8",
               "0", "il totale", "10.5",   "20",    "BORDO", "4",     "15"};
    atteso += "FINECORNICI";
    atteso += {"", "logo.jpg", "1", "2.5", "il logo", "10.5", "50", "0.5", ""};
    atteso += "FINEIMMAGINI";
    QByteArray byte = File(atteso);
    // The one number that has a point in every country.
    byte.replace('.', separatore);
    byte.replace("s" + separatore + "bmp", "s.bmp");
    byte.replace("logo" + separatore + "jpg", "logo.jpg");
    byte.replace("BORDO", "1.5");

    QCOMPARE(FileModello::Componi(modello, locale), byte);
}

void tst_FileModelloComposizione::SeparatoreDiUnAltroAlfabeto()
{
    const QLocale persiano(QLocale::Persian, QLocale::Iran);
    QVERIFY2(persiano.decimalPoint() != QLatin1String(".") &&
                 persiano.decimalPoint() != QLatin1String(","),
             "a separator that the code page lacks");
    Modello modello = ModelloDiProva(2);
    modello.Campi[1].X = -1.5;
    modello.Cornici[1].Bordo = 1.5;
    modello.Righe.Interlinea = 4.25;
    QCOMPARE(FileModello::Componi(modello, persiano), FileModello::Componi(modello, Punto));
}

void tst_FileModelloComposizione::SoloCampi()
{
    Modello modello = ModelloDiProva(2);
    modello.NumCornici = 0;
    modello.NumImmagini = 0;
    const QByteArray byte = FileModello::Componi(modello, Punto);
    QVERIFY(byte.endsWith("\r\ndescrizione del campo 2\r\n\r\n"
                          "FINECAMPI\r\nFINECORNICI\r\nFINEIMMAGINI\r\n"));
}

void tst_FileModelloComposizione::GliElementiDaSoli()
{
    Modello modello = ModelloDiProva(7);
    modello.Cornici[2].Nome.clear();
    for (const QLocale &locale : {Punto, Virgola}) {
        const QByteArray righe = FileModello::ComponiElementi(modello, locale);
        QVERIFY(righe.startsWith("\r\nCampo1\r\n"));
        QVERIFY(FileModello::Componi(modello, locale)
                    .endsWith(QByteArray("\r\n").repeated(38) + righe));
    }
    Modello letto;
    letto.Tipo = QStringLiteral("resta");
    FileModello::AnalizzaElementi(FileModello::ComponiElementi(modello, Punto), letto);
    QCOMPARE(letto.Tipo, QStringLiteral("resta"));
    QCOMPARE(letto.NumCampi, qint16(7));
    QCOMPARE(letto.NumCornici, qint16(6));
    QCOMPARE(letto.Campi, modello.Campi);
    QCOMPARE(letto.Cornici[2], modello.Cornici[3]);
    QCOMPARE(letto.Immagini, modello.Immagini);
}

void tst_FileModelloComposizione::AssentiFuoriDalFile()
{
    Modello modello = ModelloDiProva(3);
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        modello.Nome(genere, 2).clear();
    }
    const QByteArray byte = FileModello::Componi(modello, Punto);
    QVERIFY(!byte.contains("descrizione del campo 2"));
    QVERIFY(!byte.contains("descrizione della cornice 2"));
    QVERIFY(!byte.contains("descrizione dell'immagine 2"));
    const Modello letto = Letto(byte);
    QCOMPARE(letto.NumCampi, qint16(2));
    QVERIFY(letto.Campi[2] == modello.Campi[3]);
}

void tst_FileModelloComposizione::OltreCentoSiScrivonoCento()
{
    // After a refused 101st addition the model can still be saved.
    Modello modello = ModelloDiProva(100);
    QCOMPARE(ErroreDi([&] { modello.AggiungeCampo(1, 1); }), 9);
    const Modello letto = Letto(FileModello::Componi(modello, Punto));
    QCOMPARE(letto.NumCampi, qint16(100));
    QVERIFY(letto.Campi == modello.Campi);
}

void tst_FileModelloComposizione::RitornoACapoNelTesto()
{
    Modello modello = ModelloDiProva(1);
    modello.Campi[1].Testo = QStringLiteral("due\r\nrighe\re\nmezza");
    const Modello letto = Letto(FileModello::Componi(modello, Punto));
    QCOMPARE(letto.Campi[1].Testo, QStringLiteral("due \nrighe e\nmezza"));
    QCOMPARE(letto.Campi[1].Maschera, modello.Campi[1].Maschera);
    QVERIFY(letto.Cornici == modello.Cornici);
}

void tst_FileModelloComposizione::CarattereSenzaPosto()
{
    Modello modello;
    modello.Tipo = QStringLiteral(u"prezzo in \u20BD");
    QCOMPARE(Letto(FileModello::Componi(modello, Punto)).Tipo, QStringLiteral("prezzo in ?"));
}

void tst_FileModelloComposizione::CoppieDiSeparatori_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<double>("valore");
    QTest::addColumn<double>("riletto");
    QTest::addColumn<double>("bordoRiletto");

    QTest::newRow("12.5 con la virgola") << Virgola << 12.5 << 12.0 << 12.5;
    QTest::newRow("12.5 col punto") << Punto << 12.5 << 12.5 << 12.5;
    QTest::newRow("0.5 con la virgola") << Virgola << 0.5 << 0.0 << 0.5;
    QTest::newRow("0.5 col punto") << Punto << 0.5 << 0.5 << 0.5;
    QTest::newRow("-12.75 con la virgola") << Virgola << -12.75 << -12.0 << -12.75;
    QTest::newRow("-12.75 col punto") << Punto << -12.75 << -12.75 << -12.75;
    QTest::newRow("40 con la virgola") << Virgola << 40.0 << 40.0 << 40.0;
    QTest::newRow("40 col punto") << Punto << 40.0 << 40.0 << 40.0;
}

void tst_FileModelloComposizione::CoppieDiSeparatori()
{
    QFETCH(QLocale, locale);
    QFETCH(double, valore);
    QFETCH(double, riletto);
    QFETCH(double, bordoRiletto);
    Modello modello = ModelloDiProva(1);
    Campo &campo = modello.Campi[1];
    Cornice &cornice = modello.Cornici[1];
    Immagine &immagine = modello.Immagini[1];
    ParametriRighe &righe = modello.Righe;
    for (double *misura :
         {&campo.X, &campo.Y, &cornice.X, &cornice.Y, &cornice.Altezza, &cornice.Larghezza,
          &immagine.X, &immagine.Y, &immagine.Altezza, &immagine.Larghezza, &immagine.Bordo,
          &righe.yInizio, &righe.yFine, &righe.Interlinea, &righe.InterlineaDescr}) {
        *misura = valore;
    }
    cornice.Bordo = valore;

    Modello atteso = modello;
    for (double *misura :
         {&atteso.Campi[1].X, &atteso.Campi[1].Y, &atteso.Cornici[1].X, &atteso.Cornici[1].Y,
          &atteso.Cornici[1].Altezza, &atteso.Cornici[1].Larghezza, &atteso.Immagini[1].X,
          &atteso.Immagini[1].Y, &atteso.Immagini[1].Altezza, &atteso.Immagini[1].Larghezza,
          &atteso.Immagini[1].Bordo, &atteso.Righe.yInizio, &atteso.Righe.yFine,
          &atteso.Righe.Interlinea, &atteso.Righe.InterlineaDescr}) {
        *misura = riletto;
    }
    atteso.Cornici[1].Bordo = bordoRiletto;
    QVERIFY(Letto(FileModello::Componi(modello, locale)) == atteso);
}

void tst_FileModelloComposizione::OgniByteRestaNelTesto_data()
{
    QTest::addColumn<QByteArray>("testo");

    for (int i = 0; i < 256; ++i) {
        if (i != '\r') {
            QTest::addRow("%02X", i) << QByteArray(1, static_cast<char>(i));
        }
    }
    QByteArray tutti;
    for (int i = 0; i < 256; ++i) {
        tutti.append(i == '\r' ? ' ' : static_cast<char>(i));
    }
    QTest::newRow("tutti") << tutti;
    QTest::newRow("blank in testa e in coda") << QByteArray("  a  ");
    QTest::newRow("un marcatore come testo") << QByteArray("FINECAMPI");
}

void tst_FileModelloComposizione::OgniByteRestaNelTesto()
{
    QFETCH(QByteArray, testo);
    Righe righe = Intero(Genere::Campo, {});
    for (const int riga : {1, 3, 4, 5, 6, 7, 12}) {
        righe[riga - 1] = testo;
    }
    for (const int riga : {8, 9, 10, 11, 13}) {
        righe[riga - 1] = " 1 ";
    }
    Righe campo = BloccoCampo(testo);
    for (const int riga : {2, 3, 6, 9, 10}) {
        campo[riga] = testo;
    }
    Righe cornice = BloccoCornice(testo);
    for (const int riga : {2, 5, 8}) {
        cornice[riga] = testo;
    }
    Righe immagine = BloccoImmagine(testo);
    immagine[4] = testo;
    righe = righe.first(51) + campo + Righe{"FINECAMPI"} + cornice + Righe{"FINECORNICI"} +
            immagine + Righe{"FINEIMMAGINI"};
    // Line 2 is the one that is not kept.
    righe[1] = "";
    const QByteArray byte = File(righe);
    QCOMPARE(FileModello::Componi(Letto(byte), Punto), byte);
}

void tst_FileModelloComposizione::TestiDiDiecimilaCaratteri()
{
    Modello modello = ModelloDiProva(100);
    const QString lungo = QStringLiteral(u"\u20ACabcdefghi").repeated(1000);
    QCOMPARE(lungo.size(), 10'000);
    modello.Tipo = lungo;
    modello.Righe.SeguePag = lungo;
    modello.Sfondo.File = lungo;
    for (int i = 1; i <= 100; ++i) {
        Campo &campo = modello.Campi[i];
        campo.Nome = campo.Testo = campo.Maschera = campo.Font = lungo;
        campo.MascheraDefault = campo.Descrizione = lungo;
        Cornice &cornice = modello.Cornici[i];
        cornice.Nome = cornice.Testo = cornice.Font = cornice.Descrizione = lungo;
        modello.Immagini[i].Nome = modello.Immagini[i].Descrizione = lungo;
    }
    const QByteArray byte = FileModello::Componi(modello, Punto);
    QVERIFY(byte.size() > 12'000'000);
    QVERIFY(byte.size() < FileModello::DimensioneMassima);
    QVERIFY(Letto(byte) == modello);
}

void tst_FileModelloComposizione::MisureEnormi_data()
{
    QTest::addColumn<double>("misura");

    QTest::newRow("1e300") << 1e300;
    QTest::newRow("-1e300") << -1e300;
    QTest::newRow("1e-300") << 1e-300;
    QTest::newRow("quanto un doppio puo' scrivere") << 1.79769313486231e308;
}

void tst_FileModelloComposizione::MisureEnormi()
{
    QFETCH(double, misura);
    Modello modello = ModelloDiProva(1);
    modello.Campi[1].X = modello.Cornici[1].Larghezza = modello.Cornici[1].Bordo = misura;
    modello.Immagini[1].Altezza = modello.Righe.yFine = misura;
    QVERIFY(Letto(FileModello::Componi(modello, Punto)) == modello);
}

QTEST_GUILESS_MAIN(tst_FileModelloComposizione)
#include "tst_FileModelloComposizione.moc"
