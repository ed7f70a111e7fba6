#include "catalogue/TabellaFont.h"
#include "support/Robot.h"

#include <QTest>

class tst_TabellaFont : public QObject
{
    Q_OBJECT

private slots:
    void RiempieElencoFont_data();
    void RiempieElencoFont();
};

void tst_TabellaFont::RiempieElencoFont_data()
{
    QTest::addColumn<int>("font");
    QTest::addColumn<int>("elencati");
    QTest::addColumn<bool>("messaggio");
    QTest::newRow("nessun font") << 0 << 0 << false;
    QTest::newRow("un font") << 1 << 1 << false;
    QTest::newRow("1999") << 1999 << 1999 << false;
    QTest::newRow("2000 giusti") << 2000 << 2000 << false;
    QTest::newRow("il duemilaunesimo") << 2001 << 2000 << true;
    QTest::newRow("5000, un solo messaggio") << 5000 << 2000 << true;
}

void tst_TabellaFont::RiempieElencoFont()
{
    QFETCH(int, font);
    QFETCH(int, elencati);
    QFETCH(bool, messaggio);
    QStringList nomi;
    for (int i = 0; i < font; ++i) {
        nomi.append(QStringLiteral("Font %1").arg(i));
    }
    QStringList elenco{QStringLiteral("di prima")};
    Robot robot;
    if (messaggio) {
        robot.Ok();
    }
    ::RiempieElencoFont(nullptr, nomi, elenco);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(elenco, nomi.mid(0, elencati));
    if (messaggio) {
        QCOMPARE(robot.Testi(), QStringList{QStringLiteral("troppi fonts installati")});
    }
}

QTEST_MAIN(tst_TabellaFont)
#include "tst_TabellaFont.moc"
