#include "editor/Calibrazione.h"

#include <QTest>

#include <limits>

/// How large a scan is, from what is known of it.
class tst_Calibrazione : public QObject
{
    Q_OBJECT
private slots:
    void DaRisoluzione_data();
    void DaRisoluzione();
    void DaDuePunti_data();
    void DaDuePunti();
    void Testo_data();
    void Testo();
};

void tst_Calibrazione::DaRisoluzione_data()
{
    QTest::addColumn<QSize>("pixel");
    QTest::addColumn<double>("punti");
    QTest::addColumn<QSizeF>("misura"); // invalid: refused
    const QSize a4(2480, 3508);
    QTest::newRow("A4 at 300") << a4 << 300.0 << QSizeF(209.97333, 297.01067);
    QTest::newRow("the coarsest") << QSize(75, 150) << 75.0 << QSizeF(25.4, 50.8);
    QTest::newRow("the finest") << QSize(1200, 600) << 1200.0 << QSizeF(25.4, 12.7);
    QTest::newRow("not whole") << QSize(1000, 1000) << 127.5 << QSizeF(199.21569, 199.21569);
    QTest::newRow("too coarse") << a4 << 74.9 << QSizeF();
    QTest::newRow("too fine") << a4 << 1200.1 << QSizeF();
    QTest::newRow("zero") << a4 << 0.0 << QSizeF();
    QTest::newRow("negative") << a4 << -300.0 << QSizeF();
    QTest::newRow("no number") << a4 << std::numeric_limits<double>::quiet_NaN() << QSizeF();
}

void tst_Calibrazione::DaRisoluzione()
{
    QFETCH(QSize, pixel);
    QFETCH(double, punti);
    QFETCH(QSizeF, misura);
    const auto esito = Calibrazione::DaRisoluzione(pixel, punti);
    QCOMPARE(esito.has_value(), misura.isValid());
    if (esito) {
        QVERIFY(qAbs(esito->width() - misura.width()) < 1e-4);
        QVERIFY(qAbs(esito->height() - misura.height()) < 1e-4);
    }
}

void tst_Calibrazione::DaDuePunti_data()
{
    QTest::addColumn<QSizeF>("naturale");
    QTest::addColumn<QPointF>("primo");
    QTest::addColumn<QPointF>("secondo");
    QTest::addColumn<double>("distanza");
    QTest::addColumn<QSizeF>("misura"); // invalid: refused
    const QSizeF a4(210, 297);
    QTest::newRow("as the file says")
        << a4 << QPointF(0, 0) << QPointF(1, 0) << 210.0 << QSizeF(210, 297);
    QTest::newRow("half of it") << a4 << QPointF(0, 0.5) << QPointF(0, 1) << 74.25
                                << QSizeF(105, 148.5);
    QTest::newRow("the other way round")
        << a4 << QPointF(1, 1) << QPointF(0.5, 1) << 105.0 << QSizeF(210, 297);
    QTest::newRow("slanted") << QSizeF(300, 400) << QPointF(0, 0) << QPointF(0.1, 0.1) << 100.0
                             << QSizeF(600, 800);
    QTest::newRow("pixels that are not square")
        << QSizeF(200, 100) << QPointF(0.5, 0) << QPointF(0.5, 1) << 50.0 << QSizeF(100, 50);
    QTest::newRow("a file of 72 dots")
        << QSizeF(874.9, 1237.5) << QPointF(0, 0) << QPointF(1, 0) << 210.0 << QSizeF(210, 297.033);
    QTest::newRow("on each other")
        << a4 << QPointF(0.3, 0.3) << QPointF(0.3, 0.3) << 10.0 << QSizeF();
    QTest::newRow("no distance") << a4 << QPointF(0, 0) << QPointF(1, 0) << 0.0 << QSizeF();
    QTest::newRow("negative") << a4 << QPointF(0, 0) << QPointF(1, 0) << -5.0 << QSizeF();
    QTest::newRow("beyond a double")
        << a4 << QPointF(0, 0) << QPointF(1e-7, 0) << 1e307 << QSizeF();
}

void tst_Calibrazione::DaDuePunti()
{
    QFETCH(QSizeF, naturale);
    QFETCH(QPointF, primo);
    QFETCH(QPointF, secondo);
    QFETCH(double, distanza);
    QFETCH(QSizeF, misura);
    const auto esito = Calibrazione::DaDuePunti(naturale, {primo, secondo}, distanza);
    QCOMPARE(esito.has_value(), misura.isValid());
    if (esito) {
        QVERIFY(qAbs(esito->width() - misura.width()) < 0.01);
        QVERIFY(qAbs(esito->height() - misura.height()) < 0.01);
    }
}

void tst_Calibrazione::Testo_data()
{
    QTest::addColumn<double>("millimetri");
    QTest::addColumn<QString>("testo");
    QTest::newRow("whole") << 210.0 << QStringLiteral("210");
    QTest::newRow("hundredths") << 209.97333 << QStringLiteral("209.97");
    QTest::newRow("up") << 297.0166 << QStringLiteral("297.02");
    QTest::newRow("negative") << -4.2333 << QStringLiteral("-4.23");
    QTest::newRow("nearly nothing") << -0.0001 << QStringLiteral("0");
}

void tst_Calibrazione::Testo()
{
    QFETCH(double, millimetri);
    QFETCH(QString, testo);
    const QLocale precedente;
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    QCOMPARE(Calibrazione::Testo(millimetri), testo);
    QLocale::setDefault(precedente);
}

QTEST_APPLESS_MAIN(tst_Calibrazione)
#include "tst_Calibrazione.moc"
