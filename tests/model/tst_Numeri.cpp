#include "model/Numeri.h"

#include "support/Errori.h"

#include <QTest>

#include <cmath>
#include <limits>

class tst_Numeri : public QObject
{
    Q_OBJECT

private slots:
    void LettureTolleranti_data();
    void LettureTolleranti();
    void OltreUnDoppio_data();
    void OltreUnDoppio();
    void Numerico_data();
    void Numerico();
    void Intero16_data();
    void Intero16();
    void PariPiuVicino_data();
    void PariPiuVicino();
    void Ar_data();
    void Ar();
    void NumeroPiano_data();
    void NumeroPiano();
    void InOgniPaeseSoloVirgolaOPunto();
    void OgniNumeroPianoSiRilegge_data();
    void OgniNumeroPianoSiRilegge();
    void CstrX_data();
    void CstrX();
    void CstrXNonNumerico_data();
    void CstrXNonNumerico();
};

namespace {

const QLocale Punto = QLocale::c();
const QLocale Virgola(QLocale::Italian, QLocale::Italy);

constexpr double Infinito = std::numeric_limits<double>::infinity();
constexpr double Nan = std::numeric_limits<double>::quiet_NaN();

} // namespace

void tst_Numeri::LettureTolleranti_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<double>("val");
    QTest::addColumn<double>("riga");

    const auto uguali = [](const char *nome, const char *testo, double valore) {
        QTest::newRow(nome) << QString::fromLatin1(testo) << valore << valore;
    };
    uguali("vuoto", "", 0);
    uguali("solo blank", "  \t ", 0);
    uguali("intero", "40", 40);
    uguali("numero stampato", " 40 ", 40);
    uguali("negativo", "-12.5", -12.5);
    uguali("segno staccato", " - 12.5", -12.5);
    uguali("positivo", "+3", 3);
    uguali("due segni", "--3", 0);
    uguali("segni opposti", "+-3", 0);
    uguali("solo segno", "-", 0);
    uguali("punto", "12.5", 12.5);
    uguali("virgola non e' un separatore", " 12,5 ", 12);
    uguali("virgola negativa", "-12,5", -12);
    uguali("solo virgola", ",5", 0);
    uguali("punto in fondo", "5.", 5);
    uguali("due punti", "1.2.3", 1.2);
    uguali("migliaia", "1.234,5", 1.234);
    uguali("blank dentro", "1 2 . 5", 12.5);
    uguali("tabulazioni dentro", "\t1\t2", 12);
    uguali("fine riga dentro", "1\n2", 12);
    uguali("esponente E", "1.5E2", 150);
    uguali("esponente e", "1.5e2", 150);
    uguali("esponente D", "1.5D2", 150);
    uguali("esponente d", "1.5d2", 150);
    uguali("esponente negativo", "5E-1", 0.5);
    uguali("esponente positivo", "5E+1", 50);
    uguali("esponente staccato", "5 E + 1", 50);
    uguali("esponente senza cifre", "5E", 5);
    uguali("esponente col solo segno", "5E-", 5);
    uguali("due esponenti", "5E1E1", 50);
    uguali("punto nell'esponente", "5E1.5", 50);
    uguali("segno dopo l'esponente", "5E1-3", 50);
    uguali("segno dopo le cifre", "5-3", 5);
    uguali("esponente senza numero", "E5", 0);
    uguali("esponente dopo il segno", "-E5", 0);
    uguali("testo dopo", "12abc", 12);
    uguali("testo prima", "abc12", 0);
    uguali("lettera nel numero", "1x2", 1);
    uguali("NaN", "NaN", 0);
    uguali("nan(0x1)", "nan(0x1)", 0);
    uguali("inf", "inf", 0);
    uguali("-Infinity", "-Infinity", 0);
    uguali("1.#INF", "1.#INF", 1);
    uguali("1.#QNAN", "1.#QNAN", 1);
    uguali("esadecimale", "0x10", 0);
    uguali("esadecimale alla maniera antica", "&H10", 0);
    uguali("zero negativo", "-0", 0);
    uguali("zeri davanti", "0007", 7);
    uguali("1e300", "1E300", 1e300);
    uguali("-1e300", "-1E300", -1e300);
    uguali("sotto il piu' piccolo doppio", "1E-400", 0);
    uguali("zero con un esponente enorme", "0E400", 0);
    uguali("zeri attorno al punto ed esponente enorme", "00.000E99999999999999999999", 0);
    uguali("grande per le cifre, piccolo per l'esponente", "1000E-400", 0);
    uguali("esponente che supera 64 bit", "1E-99999999999999999999", 0);
    uguali("byte alti", "5\xE8", 5);
    uguali("spazio fisso",
           "\xA0"
           "5",
           0);

    QTest::newRow("comincia col punto") << QStringLiteral(".5") << 0.5 << 0.0;
    QTest::newRow("segno e punto") << QStringLiteral("-.5") << -0.5 << 0.0;
    QTest::newRow("solo punto") << QStringLiteral(".") << 0.0 << 0.0;
    QTest::newRow("punto ed esponente") << QStringLiteral(".E5") << 0.0 << 0.0;
    QTest::newRow("cifre di 10.000 caratteri")
        << QStringLiteral("0.") + QString(10'000, u'3') << 1.0 / 3 << 1.0 / 3;
    QTest::newRow("10.000 zeri e un uno") << QString(10'000, u'0') + u'1' << 1.0 << 1.0;
    QTest::newRow("10.000 blank") << QString(10'000, u' ') << 0.0 << 0.0;
    QTest::newRow("esponente di 10.000 cifre, negativo")
        << QStringLiteral("1E-") + QString(10'000, u'9') << 0.0 << 0.0;
    // A digit only for those who write them: no model holds it.
    QTest::newRow("cifra araba") << QString(QChar(0x0665)) << 0.0 << 0.0;
}

void tst_Numeri::LettureTolleranti()
{
    QFETCH(QString, testo);
    QFETCH(double, val);
    QFETCH(double, riga);
    // Exact comparison: readings are not approximate.
    QVERIFY2(Numeri::Val(testo) == val, QByteArray::number(Numeri::Val(testo), 'g', 17));
    const double letto = Numeri::LeggeNumero(testo.toLatin1());
    QVERIFY2(letto == riga, QByteArray::number(letto, 'g', 17));
}

void tst_Numeri::OltreUnDoppio_data()
{
    QTest::addColumn<QString>("testo");

    QTest::newRow("1e309") << QStringLiteral("1E309");
    QTest::newRow("-1e309") << QStringLiteral("-1E309");
    QTest::newRow("1d999999999999") << QStringLiteral("1D999999999999");
    QTest::newRow("1000 cifre") << QString(1000, u'9');
    QTest::newRow("zeri davanti") << QString(1000, u'0') + QStringLiteral("1E309");
    QTest::newRow("piccolo per le cifre, grande per l'esponente")
        << QStringLiteral("0.") + QString(100, u'0') + QStringLiteral("1E500");
    QTest::newRow("esponente che supera 64 bit") << QStringLiteral("1E+99999999999999999999");
    QTest::newRow("un milione di cifre") << QString(1'000'000, u'9');
    QTest::newRow("esponente di un milione di cifre")
        << QStringLiteral("1E") + QString(1'000'000, u'9');
}

void tst_Numeri::OltreUnDoppio()
{
    QFETCH(QString, testo);
    QCOMPARE(ErroreDi([&] { Numeri::Val(testo); }), 6);
    QCOMPARE(ErroreDi([&] { Numeri::LeggeNumero(testo.toLatin1()); }), 6);
    QVERIFY(!Numeri::Numerico(testo, Punto));
    QCOMPARE(ErroreDi([&] { Numeri::Doppio(testo, Punto); }), 13);
}

void tst_Numeri::Numerico_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<QVariant>("punto"); // invalid: no number
    QTest::addColumn<QVariant>("virgola");

    const auto riga = [](const char *nome, const char *testo, const QVariant &punto,
                         const QVariant &virgola) {
        QTest::newRow(nome) << QString::fromLatin1(testo) << punto << virgola;
    };
    const QVariant nessuno;
    riga("intero", "40", 40.0, 40.0);
    riga("blank attorno", " 40 ", 40.0, 40.0);
    riga("punto", "12.5", 12.5, 12.5);
    riga("virgola", "12,5", nessuno, 12.5);
    riga("virgola e punto", "1.234,5", nessuno, nessuno);
    riga("punto e virgola", "1,234.5", nessuno, nessuno);
    riga("due virgole", "1,2,3", nessuno, nessuno);
    riga("due punti", "1.2.3", nessuno, nessuno);
    riga("comincia col punto", ".5", 0.5, 0.5);
    riga("comincia con la virgola", ",5", nessuno, 0.5);
    riga("finisce con la virgola", "5,", nessuno, 5.0);
    riga("negativo", "-12,5", nessuno, -12.5);
    riga("esponente", "1E2", 100.0, 100.0);
    riga("vuoto", "", nessuno, nessuno);
    riga("solo blank", "  ", nessuno, nessuno);
    riga("testo dopo", "12mm", nessuno, nessuno);
    riga("testo", "abc", nessuno, nessuno);
    riga("blank dentro", "1 2", nessuno, nessuno);
    riga("nan", "nan", nessuno, nessuno);
    riga("inf", "inf", nessuno, nessuno);
    riga("esadecimale", "0x10", nessuno, nessuno);
    riga("sotto il piu' piccolo doppio", "1E-400", nessuno, nessuno);
}

void tst_Numeri::Numerico()
{
    QFETCH(QString, testo);
    QFETCH(QVariant, punto);
    QFETCH(QVariant, virgola);
    const auto confronta = [&](const QLocale &locale, const QVariant &atteso) {
        const std::optional<double> trovato = Numeri::Numerico(testo, locale);
        QCOMPARE(trovato.has_value(), atteso.isValid());
        if (trovato) {
            QCOMPARE(*trovato, atteso.toDouble());
            QCOMPARE(Numeri::Doppio(testo, locale), atteso.toDouble());
        } else {
            QCOMPARE(ErroreDi([&] { Numeri::Doppio(testo, locale); }), 13);
        }
    };
    confronta(Punto, punto);
    confronta(Virgola, virgola);
}

void tst_Numeri::Intero16_data()
{
    QTest::addColumn<double>("valore");
    QTest::addColumn<int>("intero");
    QTest::addColumn<int>("errore");

    const auto riga = [](const char *nome, double valore, int intero, int errore = 0) {
        QTest::newRow(nome) << valore << intero << errore;
    };
    riga("0", 0, 0);
    riga("0.5 al pari", 0.5, 0);
    riga("1.5 al pari", 1.5, 2);
    riga("2.5 al pari", 2.5, 2);
    riga("-0.5 al pari", -0.5, 0);
    riga("-1.5 al pari", -1.5, -2);
    riga("-2.5 al pari", -2.5, -2);
    riga("appena sotto la meta'", std::nextafter(0.5, 0), 0);
    riga("appena sopra la meta'", std::nextafter(0.5, 1), 1);
    riga("massimo", 32767, 32767);
    riga("massimo con la coda", 32767.4, 32767);
    riga("massimo e mezzo va oltre", 32767.5, 0, 6);
    riga("minimo", -32768, -32768);
    riga("minimo e mezzo torna al pari", -32768.5, -32768);
    riga("sotto il minimo", -32768.6, 0, 6);
    riga("32768", 32768, 0, 6);
    riga("1e300", 1e300, 0, 6);
    riga("-1e300", -1e300, 0, 6);
    riga("infinito", Infinito, 0, 6);
    riga("nan", Nan, 0, 6);
}

void tst_Numeri::Intero16()
{
    QFETCH(double, valore);
    QFETCH(int, intero);
    QFETCH(int, errore);
    int trovato = 0;
    QCOMPARE(ErroreDi([&] { trovato = Numeri::Intero16(valore); }), errore);
    QCOMPARE(trovato, intero);
}

void tst_Numeri::PariPiuVicino_data()
{
    QTest::addColumn<double>("valore");
    QTest::addColumn<double>("atteso");

    QTest::newRow("40000.5") << 40000.5 << 40000.0;
    QTest::newRow("40001.5") << 40001.5 << 40002.0;
    QTest::newRow("-40001.5") << -40001.5 << -40002.0;
    QTest::newRow("0.4") << 0.4 << 0.0;
    QTest::newRow("0.6") << 0.6 << 1.0;
    QTest::newRow("gia' intero") << 123456789.0 << 123456789.0;
    QTest::newRow("1e300") << 1e300 << 1e300;
}

void tst_Numeri::PariPiuVicino()
{
    QFETCH(double, valore);
    QFETCH(double, atteso);
    QVERIFY(Numeri::PariPiuVicino(valore) == atteso);
}

void tst_Numeri::Ar_data()
{
    QTest::addColumn<double>("valore");
    QTest::addColumn<double>("atteso");

    QTest::newRow("0") << 0.0 << 0.0;
    QTest::newRow("2.4") << 2.4 << 2.0;
    QTest::newRow("2.5 sale") << 2.5 << 3.0;
    QTest::newRow("3.5 sale") << 3.5 << 4.0;
    QTest::newRow("-2.5 sale") << -2.5 << -2.0;
    QTest::newRow("-2.6") << -2.6 << -3.0;
    QTest::newRow("-0.4") << -0.4 << 0.0;
}

void tst_Numeri::Ar()
{
    QFETCH(double, valore);
    QFETCH(double, atteso);
    QVERIFY(Numeri::Ar(valore) == atteso);
}

void tst_Numeri::NumeroPiano_data()
{
    QTest::addColumn<double>("valore");
    QTest::addColumn<QString>("punto");
    QTest::addColumn<QString>("virgola");

    const auto riga = [](const char *nome, double valore, const char *punto, const char *virgola) {
        QTest::newRow(nome) << valore << QString::fromLatin1(punto) << QString::fromLatin1(virgola);
    };
    riga("intero", 40, "40", "40");
    riga("zero", 0, "0", "0");
    riga("zero negativo", -0.0, "0", "0");
    riga("decimale", 12.5, "12.5", "12,5");
    riga("sotto l'unita'", 0.5, "0.5", "0,5");
    riga("negativo", -12.5, "-12.5", "-12,5");
    riga("un decimo", 0.1, "0.1", "0,1");
    riga("somma che non torna in binario", 0.1 + 0.2, "0.3", "0,3");
    riga("un terzo, 15 cifre", 1.0 / 3, "0.333333333333333", "0,333333333333333");
    riga("due terzi, 15 cifre", 2.0 / 3, "0.666666666666667", "0,666666666666667");
    riga("senza migliaia", 1234567.5, "1234567.5", "1234567,5");
    riga("piccolo", 0.0001, "0.0001", "0,0001");
    riga("15 cifre intere", 123456789012345, "123456789012345", "123456789012345");
    riga("esponente", 1e300, "1E+300", "1E+300");
    riga("esponente negativo", -1.5e300, "-1.5E+300", "-1,5E+300");
    riga("il massimo resta leggibile", std::numeric_limits<double>::max(), "1.79769313486231E+308",
         "1,79769313486231E+308");
    riga("il minimo resta leggibile", std::numeric_limits<double>::lowest(),
         "-1.79769313486231E+308", "-1,79769313486231E+308");
    riga("infinito", Infinito, "1.79769313486231E+308", "1,79769313486231E+308");
}

void tst_Numeri::NumeroPiano()
{
    QFETCH(double, valore);
    QFETCH(QString, punto);
    QFETCH(QString, virgola);
    QCOMPARE(Numeri::NumeroPiano(valore, Punto), punto);
    QCOMPARE(Numeri::NumeroPiano(valore, Virgola), virgola);
    const QString davanti = punto.startsWith(u'-') ? QString() : QStringLiteral(" ");
    QCOMPARE(Numeri::NumeroStampato(valore, Punto), davanti + punto + u' ');
    QCOMPARE(Numeri::NumeroStampato(valore, Virgola), davanti + virgola + u' ');
}

void tst_Numeri::InOgniPaeseSoloVirgolaOPunto()
{
    const QList<QLocale> paesi =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    int conSeparatoreProprio = 0;
    for (const QLocale &paese : paesi) {
        const bool virgola = paese.decimalPoint() == QLatin1String(",");
        conSeparatoreProprio += !virgola && paese.decimalPoint() != QLatin1String(".") ? 1 : 0;
        const QString atteso = virgola ? QStringLiteral("-12,5") : QStringLiteral("-12.5");
        QCOMPARE(Numeri::NumeroPiano(-12.5, paese), atteso);
        QCOMPARE(Numeri::NumeroStampato(-12.5, paese), atteso + u' ');
        QCOMPARE(Numeri::CstrX(-12.5, {}, paese), QStringLiteral("-12.5"));
        QCOMPARE(Numeri::NumeroPiano(1234567890, paese), QStringLiteral("1234567890"));
    }
    QVERIFY2(conSeparatoreProprio > 0, "no locale has another separator");
}

void tst_Numeri::OgniNumeroPianoSiRilegge_data()
{
    QTest::addColumn<double>("valore");

    QTest::newRow("massimo") << std::numeric_limits<double>::max();
    QTest::newRow("un terzo") << 1.0 / 3;
    QTest::newRow("minimo normale") << std::numeric_limits<double>::min();
    QTest::newRow("minimo di tutti") << std::numeric_limits<double>::denorm_min();
    QTest::newRow("nan") << Nan;
    for (const int esponente : {-300, -5, -4, 0, 14, 15, 16, 300}) {
        QTest::addRow("7.77e%d", esponente) << 7.77 * std::pow(10, esponente);
    }
}

void tst_Numeri::OgniNumeroPianoSiRilegge()
{
    QFETCH(double, valore);
    const QString testo = Numeri::NumeroPiano(valore, Punto);
    const double letto = Numeri::LeggeNumero(testo.toLatin1());
    QCOMPARE(Numeri::NumeroPiano(letto, Punto), std::isnan(valore) ? QStringLiteral("0") : testo);
    QVERIFY(Numeri::Val(Numeri::NumeroStampato(valore, Punto)) == letto);
}

void tst_Numeri::CstrX_data()
{
    QTest::addColumn<QVariant>("valore");
    QTest::addColumn<QString>("testo");

    QTest::newRow("intero a 16 bit") << QVariant::fromValue<qint16>(-1) << QStringLiteral("-1");
    QTest::newRow("intero a 32 bit") << QVariant(70000) << QStringLiteral("70000");
    QTest::newRow("singolo") << QVariant(0.1F) << QStringLiteral("0.1");
    QTest::newRow("doppio") << QVariant(0.5) << QStringLiteral("0.5");
    QTest::newRow("doppio negativo") << QVariant(-1.25) << QStringLiteral("-1.25");
    QTest::newRow("senza decimali") << QVariant(2.0) << QStringLiteral("2");
    QTest::newRow("zero") << QVariant(0.0) << QStringLiteral("0");
    QTest::newRow("15 cifre") << QVariant(1.0 / 3) << QStringLiteral("0.333333333333333");
}

void tst_Numeri::CstrX()
{
    QFETCH(QVariant, valore);
    QFETCH(QString, testo);
    const Numeri::Avviso avviso = [](const QString &) { QFAIL("a number needs no message"); };
    QCOMPARE(Numeri::CstrX(valore, avviso, Punto), testo);
    QCOMPARE(Numeri::CstrX(valore, avviso, Virgola), testo);
}

void tst_Numeri::CstrXNonNumerico_data()
{
    QTest::addColumn<QVariant>("valore");

    QTest::newRow("testo") << QVariant(QStringLiteral("12"));
    QTest::newRow("niente") << QVariant();
    QTest::newRow("logico") << QVariant(true);
    QTest::newRow("elenco") << QVariant(QStringList{QStringLiteral("1")});
}

void tst_Numeri::CstrXNonNumerico()
{
    QFETCH(QVariant, valore);
    QStringList avvisi;
    QCOMPARE(Numeri::CstrX(valore, [&](const QString &testo) { avvisi.append(testo); }), QString());
    QCOMPARE(avvisi, QStringList{QStringLiteral("CstrX: tipo variabile errato")});
}

QTEST_GUILESS_MAIN(tst_Numeri)
#include "tst_Numeri.moc"
