#include "base/Ansi.h"

#include <QTest>

class tst_Ansi : public QObject
{
    Q_OBJECT

private slots:
    void OgniByteTorna();
    void Caratteri_data();
    void Caratteri();
    void SenzaPosto_data();
    void SenzaPosto();
    void AggiungeInFondo();
    void TestoVuoto();
};

void tst_Ansi::OgniByteTorna()
{
    QByteArray tutti;
    for (int i = 0; i < 256; ++i) {
        tutti.append(static_cast<char>(i));
    }
    const QString testo = Ansi::DaByte(tutti);
    QCOMPARE(testo.size(), 256);
    QVERIFY(Ansi::Rappresentabile(testo));
    QCOMPARE(Ansi::InByte(testo), tutti);
    for (int i = 0; i < 256; ++i) {
        QCOMPARE(testo.count(testo[i]), 1);
    }
}

void tst_Ansi::Caratteri_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<int>("carattere");

    QTest::newRow("A") << 0x41 << 0x41;
    QTest::newRow("euro") << 0x80 << 0x20AC;
    QTest::newRow("indefinito 81") << 0x81 << 0x81;
    QTest::newRow("puntini") << 0x85 << 0x2026;
    QTest::newRow("indefinito 8D") << 0x8D << 0x8D;
    QTest::newRow("Z caron") << 0x8E << 0x017D;
    QTest::newRow("indefinito 8F") << 0x8F << 0x8F;
    QTest::newRow("indefinito 90") << 0x90 << 0x90;
    QTest::newRow("apice tipografico") << 0x92 << 0x2019;
    QTest::newRow("lineetta") << 0x96 << 0x2013;
    QTest::newRow("indefinito 9D") << 0x9D << 0x9D;
    QTest::newRow("Y dieresi") << 0x9F << 0x0178;
    QTest::newRow("spazio fisso") << 0xA0 << 0xA0;
    QTest::newRow("e grave") << 0xE8 << 0xE8;
    QTest::newRow("y dieresi") << 0xFF << 0xFF;
}

void tst_Ansi::Caratteri()
{
    QFETCH(int, byte);
    QFETCH(int, carattere);
    const QByteArray uno(1, static_cast<char>(byte));
    const QString testo(QChar(static_cast<char16_t>(carattere)));
    QCOMPARE(Ansi::DaByte(uno), testo);
    QCOMPARE(Ansi::InByte(testo), uno);
    QVERIFY(Ansi::Rappresentabile(testo[0]));
}

void tst_Ansi::SenzaPosto_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<QByteArray>("byte");

    QTest::newRow("cirillico") << QStringLiteral(u"a\u0416b") << QByteArray("a?b");
    QTest::newRow("controllo 80, che in byte e' l'euro")
        << QString(QChar(u'\x80')) << QByteArray("?");
    QTest::newRow("controllo 9F") << QString(QChar(u'\x9F')) << QByteArray("?");
    QTest::newRow("faccina: due mezzi, un carattere")
        << QStringLiteral(u"a\U0001F600b") << QByteArray("a?b");
    QTest::newRow("mezzo alto solo") << QString(QChar(0xD83D)) + u'b' << QByteArray("?b");
    QTest::newRow("mezzo basso solo") << QString(QChar(0xDE00)) + u'b' << QByteArray("?b");
    QTest::newRow("mezzo alto in fondo") << u'b' + QString(QChar(0xD83D)) << QByteArray("b?");
    QTest::newRow("due mezzi alti") << QString(2, QChar(0xD83D)) << QByteArray("??");
}

void tst_Ansi::SenzaPosto()
{
    QFETCH(QString, testo);
    QFETCH(QByteArray, byte);
    QVERIFY(!Ansi::Rappresentabile(testo));
    QCOMPARE(Ansi::InByte(testo), byte);
}

void tst_Ansi::AggiungeInFondo()
{
    QByteArray byte("Totale ");
    Ansi::Aggiunge(byte, u"\u20AC");
    QCOMPARE(byte, QByteArray("Totale \x80"));
}

void tst_Ansi::TestoVuoto()
{
    QVERIFY(Ansi::DaByte(QByteArray()).isEmpty());
    QVERIFY(Ansi::InByte(QString()).isEmpty());
    QVERIFY(Ansi::Rappresentabile(QString()));
}

QTEST_GUILESS_MAIN(tst_Ansi)
#include "tst_Ansi.moc"
