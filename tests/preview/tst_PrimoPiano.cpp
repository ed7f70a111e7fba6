#include "preview/PrimoPiano.h"

#include <QTest>

class tst_PrimoPiano : public QObject
{
    Q_OBJECT
private slots:
    void ChiaveDi31CaratteriEIndice();
    void MezziAlPari_data();
    void MezziAlPari();
    void AreaImpossibile_data();
    void AreaImpossibile();
    void AreaNegativa();
    void LaPiuPiccolaSopra();
    void AreeUgualiPerTestoDellIndice();
    void AreeMinimePerTestoDellIndice();
    void NessunElemento();
};

void tst_PrimoPiano::ChiaveDi31CaratteriEIndice()
{
    const QString chiave = PrimoPiano::Chiave(5000, 7);
    QCOMPARE(chiave, QStringLiteral("000000000000000000000000005000-7"));
    QCOMPARE(chiave.size(), 30 + 1 + 1);
    QCOMPARE(PrimoPiano::Chiave(5000, 100).mid(31), QStringLiteral("100"));
}

void tst_PrimoPiano::MezziAlPari_data()
{
    QTest::addColumn<double>("area");
    QTest::addColumn<int>("intera");
    QTest::newRow("12.5 gives 12") << 12.5 << 12;
    QTest::newRow("13.5 gives 14") << 13.5 << 14;
    QTest::newRow("12.51 gives 13") << 12.51 << 13;
    QTest::newRow("0.5 gives 0") << 0.5 << 0;
}

void tst_PrimoPiano::MezziAlPari()
{
    QFETCH(double, area);
    QFETCH(int, intera);
    QCOMPARE(PrimoPiano::Chiave(area, 1).left(30).toInt(), intera);
}

void tst_PrimoPiano::AreaImpossibile_data()
{
    QTest::addColumn<double>("area");
    QTest::newRow("1e300") << 1e300;
    QTest::newRow("infinite") << qInf();
    QTest::newRow("no number") << qQNaN();
}

void tst_PrimoPiano::AreaImpossibile()
{
    QFETCH(double, area);
    const QString chiave = PrimoPiano::Chiave(area, 42);
    QCOMPARE(chiave.size(), 33);
    QCOMPARE(chiave.at(30), u'-');
    QCOMPARE(chiave.mid(31), QStringLiteral("42"));
    const QString cifre = chiave.left(30);
    QVERIFY(std::all_of(cifre.begin(), cifre.end(), [](QChar c) { return c.isDigit(); }));
}

void tst_PrimoPiano::AreaNegativa()
{
    // Of a frame whose height is below zero.
    QCOMPARE(PrimoPiano::Chiave(-100, 2), QStringLiteral("00000000000000000000000000-100-2"));
    QCOMPARE(PrimoPiano::Chiave(-0.2, 2), PrimoPiano::Chiave(0, 2));
    QCOMPARE(PrimoPiano::Chiave(-1e300, 42).size(), 33);
    QCOMPARE(PrimoPiano::Ordine({0, -100, 1}), QList<int>({3, 1, 2}));
}

void tst_PrimoPiano::LaPiuPiccolaSopra()
{
    QCOMPARE(PrimoPiano::Ordine({5000, 400}), QList<int>({1, 2}));
    QCOMPARE(PrimoPiano::Ordine({400, 5000}), QList<int>({2, 1}));
    QCOMPARE(PrimoPiano::Ordine({400, 1e29, 30, 5000}), QList<int>({2, 4, 1, 3}));
}

void tst_PrimoPiano::AreeUgualiPerTestoDellIndice()
{
    // As texts "1" < "10" < "2": element 2 comes forward before 10, which ends above it.
    const QList<int> ordine = PrimoPiano::Ordine(QList<double>(10, 100.0));
    QCOMPARE(ordine, QList<int>({9, 8, 7, 6, 5, 4, 3, 2, 10, 1}));
    QVERIFY(ordine.indexOf(2) < ordine.indexOf(10));
}

void tst_PrimoPiano::AreeMinimePerTestoDellIndice()
{
    QCOMPARE(PrimoPiano::Ordine({0.4, 1.2, 0.3}), QList<int>({2, 3, 1}));
}

void tst_PrimoPiano::NessunElemento()
{
    QVERIFY(PrimoPiano::Ordine({}).isEmpty());
}

QTEST_APPLESS_MAIN(tst_PrimoPiano)
#include "tst_PrimoPiano.moc"
