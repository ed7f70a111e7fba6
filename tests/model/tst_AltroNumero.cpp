#include "model/Numeri.h"

#include <QTest>

/// Texts that a lenient reading takes for another number than people do.
class tst_AltroNumero : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale(QLocale::Italian)); }
    void Avvisi_data();
    void Avvisi();
    void LettoConVirgolaOPunto_data();
    void LettoConVirgolaOPunto();
};

void tst_AltroNumero::LettoConVirgolaOPunto_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<double>("valore"); // 0 = none
    QTest::newRow("comma") << QStringLiteral("100,5") << 100.5;
    QTest::newRow("point") << QStringLiteral(" 100.5 ") << 100.5;
    QTest::newRow("both") << QStringLiteral("1.100,5") << 0.0;
    QTest::newRow("nothing") << QString() << 0.0;
    QTest::newRow("words") << QStringLiteral("cento") << 0.0;
}

void tst_AltroNumero::LettoConVirgolaOPunto()
{
    QFETCH(QString, testo);
    QFETCH(double, valore);
    for (const QLocale &locale : {QLocale::c(), QLocale(QLocale::Italian)}) {
        QLocale::setDefault(locale);
        QCOMPARE(Numeri::Letto(testo).value_or(0), valore);
    }
}

void tst_AltroNumero::Avvisi_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<QString>("avviso");
    const auto riga = [](const char *testo, const char *avviso) {
        QTest::newRow(testo) << QString::fromUtf8(testo) << QString::fromUtf8(avviso);
    };
    riga("1,5", "si legge 1: usare il punto");
    riga("1.234,5", "si legge 1.234: usare il punto");
    riga("1.000,00", "si legge 1: usare il punto");
    riga("-2,25", "si legge -2: usare il punto");
    riga("0,5", "si legge 0: usare il punto");
    riga(",5", "si legge 0: usare il punto");
    riga("uno", "si legge 0: scrivere un numero");
    riga("mm 12", "si legge 0: scrivere un numero");
    riga("12x3", "si legge 12: scrivere un numero");
    riga("10-5", "si legge 10: scrivere un numero");
    riga("1.5.2", "si legge 1.5: scrivere un numero");
    // The same number for all.
    for (const char *testo : {"", "  ", "1.5", "-3", ".5", "12 mm", "1,", "1,00", "1 000", "1e2"}) {
        riga(testo, "");
    }
    riga("1E309", ""); // whoever reads it reports it
}

void tst_AltroNumero::Avvisi()
{
    QFETCH(QString, testo);
    QFETCH(QString, avviso);
    QCOMPARE(Numeri::AvvisoDiLettura(testo), avviso);
}

QTEST_APPLESS_MAIN(tst_AltroNumero)
#include "tst_AltroNumero.moc"
