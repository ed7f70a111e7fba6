#include "grafica/Testo.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr double MillimetriPerPollice = 25.4;
const auto Arial = QStringLiteral("Arial");

} // namespace

class TestTesto : public QObject
{
    Q_OBJECT
private slots:
    void MisuraComeLaStampante_data();
    void MisuraComeLaStampante();
    void CresceInProporzioneAllaDimensione();
    void IlGrassettoEPiuLargo();
    void IlTestoVuotoHaSoloAltezza();
    void PuntiDiUnTesto_data();
    void PuntiDiUnTesto();
    void SenzaNomeEArial();
    void UnNomeConVirgoleEUnFontSolo();
    void UnFontCheNonEsisteEArial_data();
    void UnFontCheNonEsisteEArial();
    void SuUnaRigaSoloCioCheSiVede();
    void UnFontSiSaSeCE();
    void ICaratteriCheIlFontNonHa();
};

void TestTesto::MisuraComeLaStampante_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<int>("punti");
    QTest::addColumn<bool>("grassetto");
    QTest::newRow("corto") << QStringLiteral("DDT") << 11 << false;
    QTest::newRow("accenti") << QStringLiteral("Quantità è più") << 9 << false;
    QTest::newRow("piccolo") << QStringLiteral("segue su pagina successiva") << 6 << false;
    QTest::newRow("grande e grassetto") << QStringLiteral("FATTURA ACCOMPAGNATORIA") << 40 << true;
}

void TestTesto::MisuraComeLaStampante()
{
    QFETCH(QString, testo);
    QFETCH(int, punti);
    QFETCH(bool, grassetto);
    const QTemporaryDir cartella;
    QPdfWriter foglio(cartella.filePath(QStringLiteral("foglio.pdf")));
    // A whole number of dots for each point: the sheet itself rounds no font size.
    constexpr int Risoluzione = 7200;
    foglio.setResolution(Risoluzione);
    QPainter pittore(&foglio);
    QFont carattere(Arial, punti);
    carattere.setBold(grassetto);
    carattere.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF stampante(carattere, &foglio);
    const double scala = MillimetriPerPollice / Risoluzione;

    const QSizeF misura = MisuraTesto(testo, Arial, punti, grassetto);
    QVERIFY2(qAbs(misura.width() - stampante.horizontalAdvance(testo) * scala) < 0.05,
             qPrintable(QString::number(misura.width())));
    QVERIFY2(qAbs(misura.height() - stampante.height() * scala) < 0.05,
             qPrintable(QString::number(misura.height())));
}

void TestTesto::CresceInProporzioneAllaDimensione()
{
    const QSizeF piccolo = MisuraTesto(QStringLiteral("Spett.le Ditta"), Arial, 6, false);
    const QSizeF grande = MisuraTesto(QStringLiteral("Spett.le Ditta"), Arial, 24, false);
    QVERIFY(qAbs(grande.width() - 4 * piccolo.width()) < 1e-9);
    QVERIFY(qAbs(grande.height() - 4 * piccolo.height()) < 1e-9);
    QVERIFY(piccolo.width() > 10);
}

void TestTesto::IlGrassettoEPiuLargo()
{
    const QString testo = QStringLiteral("Totale documento");
    QVERIFY(MisuraTesto(testo, Arial, 11, true).width() >
            MisuraTesto(testo, Arial, 11, false).width());
}

void TestTesto::IlTestoVuotoHaSoloAltezza()
{
    const QSizeF misura = MisuraTesto(QString(), Arial, 11, false);
    QCOMPARE(misura.width(), 0.0);
    QVERIFY(misura.height() > 3);
}

void TestTesto::PuntiDiUnTesto_data()
{
    QTest::addColumn<double>("dimensione");
    QTest::addColumn<double>("punti");
    QTest::newRow("zero") << 0.0 << 8.0;
    QTest::newRow("negativa") << -3.0 << 8.0;
    QTest::newRow("la minima di un modello") << -32768.0 << 8.0;
    QTest::newRow("non un numero") << qQNaN() << 8.0;
    QTest::newRow("mezzo punto") << 0.5 << 0.5;
    QTest::newRow("1") << 1.0 << 1.0;
    QTest::newRow("11") << 11.0 << 11.0;
    QTest::newRow("enorme") << 32767.0 << 1638.0;
    QTest::newRow("infinita") << qInf() << 1638.0;
}

void TestTesto::PuntiDiUnTesto()
{
    QFETCH(double, dimensione);
    QFETCH(double, punti);
    QCOMPARE(PuntiDiTesto(dimensione), punti);
    QCOMPARE(MisuraTesto(QStringLiteral("abc"), Arial, dimensione, false),
             MisuraTesto(QStringLiteral("abc"), Arial, punti, false));
}

void TestTesto::SenzaNomeEArial()
{
    const QFont arial = CarattereDiTesto(Arial, true, 100);
    QCOMPARE(CarattereDiTesto(QString(), true, 100), arial);
    QCOMPARE(CarattereDiTesto(QStringLiteral("  "), true, 100), arial);
    QCOMPARE(arial.families(), QStringList{Arial});
    QCOMPARE(arial.pixelSize(), 100);
    QVERIFY(arial.bold());
    QVERIFY(!CarattereDiTesto(Arial, false, 100).bold());
    QCOMPARE(MisuraTesto(QStringLiteral("abc"), QString(), 11, false),
             MisuraTesto(QStringLiteral("abc"), Arial, 11, false));
}

void TestTesto::UnNomeConVirgoleEUnFontSolo()
{
    const QString nome = QStringLiteral("Courier New, DejaVu Sans");
    QCOMPARE(CarattereDiTesto(nome, false, 100), CarattereDiTesto(Arial, false, 100));
}

void TestTesto::UnFontCheNonEsisteEArial_data()
{
    QTest::addColumn<QString>("famiglia");
    QTest::addColumn<QString>("attesa");
    QTest::newRow("inventato") << QStringLiteral("Font Mai Esistito") << Arial;
    QTest::newRow("nome generico") << QStringLiteral("Serif") << Arial;
    QTest::newRow("altro nome generico") << QStringLiteral("monospace") << Arial;
    QTest::newRow("installato") << QStringLiteral("DejaVu Sans") << QStringLiteral("DejaVu Sans");
    QTest::newRow("installato, altre maiuscole")
        << QStringLiteral("dejavu sans") << QStringLiteral("dejavu sans");
    for (const char *taciuto : {"Times", "Courier", "Helvetica"}) {
        // Where the system has such a family it is one of the user's fonts like any other.
        const QString famiglia = QString::fromLatin1(taciuto);
        QTest::newRow(taciuto) << famiglia
                               << (QFontDatabase::hasFamily(famiglia) ? famiglia : Arial);
    }
    QTest::newRow("di pari larghezze")
        << QStringLiteral("Times New Roman") << QStringLiteral("Times New Roman");
}

void TestTesto::UnFontCheNonEsisteEArial()
{
    QFETCH(QString, famiglia);
    QFETCH(QString, attesa);
    QCOMPARE(CarattereDiTesto(famiglia, false, 100), CarattereDiTesto(attesa, false, 100));
    QCOMPARE(CarattereDiTesto(famiglia, false, 100).families(), QStringList{attesa});
    const QString testo = QStringLiteral("Spett.le Ditta");
    QCOMPARE(MisuraTesto(testo, famiglia, 11, true), MisuraTesto(testo, attesa, 11, true));
}

void TestTesto::SuUnaRigaSoloCioCheSiVede()
{
    QCOMPARE(SuUnaRiga(QStringLiteral("a\tb\nc\x01")), QStringLiteral("a b c "));
    QCOMPARE(SuUnaRiga(QStringLiteral("perché no? €")), QStringLiteral("perché no? €"));
    QVERIFY(SuUnaRiga(QString(100'000, u'i')).size() < 10'000);
    // The narrowest letter in the smallest size still fills the widest sheet.
    const QString righe = SuUnaRiga(QString(100'000, u'i'));
    QVERIFY(MisuraTesto(righe, Arial, 1, false).width() > 300);
}

void TestTesto::UnFontSiSaSeCE()
{
    QVERIFY(FontDisponibile(Arial));
    QVERIFY(FontDisponibile(QStringLiteral("DejaVu Sans")));
    QVERIFY(!FontDisponibile(QStringLiteral("Font Mai Esistito")));
    QVERIFY(!FontDisponibile(QStringLiteral("Sans Serif")));
    QVERIFY(!FontDisponibile(QString()));
}

void TestTesto::ICaratteriCheIlFontNonHa()
{
    // Every character that a model file can hold, and control characters, which nobody sees.
    QString ansi = QStringLiteral("\t€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ");
    for (char16_t c = u' '; c <= u'ÿ'; ++c) {
        ansi += QChar(c);
    }
    QCOMPARE(CaratteriSenzaFigura(ansi, Arial, false), QString());
    QCOMPARE(CaratteriSenzaFigura(ansi, Arial, true), QString());
    // Other fonts of the system have them, this one has not.
    QCOMPARE(CaratteriSenzaFigura(QStringLiteral("a☃b☃漢"), Arial, false), QStringLiteral("☃漢"));
    QCOMPARE(CaratteriSenzaFigura(QStringLiteral("a☃"), QStringLiteral("DejaVu Sans"), false),
             QString());
    QCOMPARE(CaratteriSenzaFigura(QStringLiteral("😀"), Arial, false), QStringLiteral("😀"));
}

QTEST_MAIN(TestTesto)
#include "tst_Testo.moc"
