#include "preview/Calamita.h"

#include <QTest>

namespace {

const QList<double> Linee{100, 20, 60.5, 62.1};

} // namespace

class tst_Calamita : public QObject
{
    Q_OBJECT
private slots:
    void TrattoAttratto_data();
    void TrattoAttratto();
    void BordoAttratto_data();
    void BordoAttratto();
    void SenzaLinee();
};

void tst_Calamita::TrattoAttratto_data()
{
    QTest::addColumn<double>("inizio");
    QTest::addColumn<double>("lunghezza");
    QTest::addColumn<double>("ultimo");
    QTest::addColumn<int>("posto"); // -1: none
    QTest::addColumn<double>("linea");
    const double largo = 300;
    QTest::newRow("beginning, from before") << 19.2 << 7.0 << largo << 20 << 20.0;
    QTest::newRow("beginning, from after") << 20.9 << 7.0 << largo << 20 << 20.0;
    QTest::newRow("a whole millimetre away") << 21.0 << 7.0 << largo << 20 << 20.0;
    QTest::newRow("a hair more than a millimetre") << 21.01 << 7.0 << largo << -1 << 0.0;
    QTest::newRow("end") << 89.4 << 10.0 << largo << 90 << 100.0;
    QTest::newRow("middle") << 90.3 << 20.0 << largo << 90 << 100.0;
    QTest::newRow("end of a length with fractions") << 89.4 << 10.3 << largo << 90 << 100.0;
    QTest::newRow("middle of an odd length") << 95.0 << 9.0 << largo << 96 << 100.0;
    QTest::newRow("line with fractions") << 60.2 << 3.0 << largo << 61 << 60.5;
    QTest::newRow("of two lines the nearest") << 61.4 << 3.0 << largo << 62 << 62.1;
    QTest::newRow("end nearer than the beginning") << 19.4 << 80.4 << largo << 20 << 100.0;
    QTest::newRow("both equally near: the beginning") << 19.5 << 80.0 << largo << 20 << 20.0;
    QTest::newRow("no place beyond the last") << 99.6 << 7.0 << 99.0 << -1 << 0.0;
    QTest::newRow("another line where the first leads off") << 99.8 << 0.5 << 99.6 << -1 << 0.0;
    QTest::newRow("no place before 0") << -0.5 << 21.0 << largo << -1 << 0.0;
    QTest::newRow("wider than the sheet") << 20.0 << 400.0 << -100.0 << -1 << 0.0;
    QTest::newRow("nothing near") << 40.0 << 5.0 << largo << -1 << 0.0;
}

void tst_Calamita::TrattoAttratto()
{
    QFETCH(double, inizio);
    QFETCH(double, lunghezza);
    QFETCH(double, ultimo);
    QFETCH(int, posto);
    const auto presa = Calamita(Linee).Tratto(inizio, lunghezza, {0, ultimo});
    QCOMPARE(presa.has_value(), posto >= 0);
    if (presa) {
        QCOMPARE(presa->posto, posto);
        QTEST(presa->linea, "linea");
    }
}

void tst_Calamita::BordoAttratto_data()
{
    QTest::addColumn<double>("bordo");
    QTest::addColumn<int>("posto");
    QTest::newRow("before") << 99.1 << 100;
    QTest::newRow("after") << 100.9 << 100;
    QTest::newRow("too far") << 101.2 << -1;
    QTest::newRow("past the last") << 62.0 << 62;
}

void tst_Calamita::BordoAttratto()
{
    QFETCH(double, bordo);
    const auto presa = Calamita(Linee).Bordo(bordo, 100);
    QTEST(presa ? presa->posto : -1, "posto");
}

void tst_Calamita::SenzaLinee()
{
    QVERIFY(!Calamita().Tratto(10, 5, {0, 100}));
    QVERIFY(!Calamita().Bordo(0, 100));
}

QTEST_MAIN(tst_Calamita)
#include "tst_Calamita.moc"
