#include "StoriaDiProva.h"

#include <QKeySequence>

namespace {

constexpr QPointF Da(20.8, 30.8);
constexpr QPointF A(45.8, 47.8);

} // namespace

/// Keys that are pressed while the mouse has an element in hand.
class tst_TastiTrascinando : public QObject
{
    Q_OBJECT
private slots:
    void IlTrascinamentoVaComeSenza_data();
    void IlTrascinamentoVaComeSenza();
};

void tst_TastiTrascinando::IlTrascinamentoVaComeSenza_data()
{
    QTest::addColumn<QString>("tasti");
    for (const char *tasti :
         {"Del",    "Ctrl+X", "Ctrl+C",       "Ctrl+V",       "Ctrl+Shift+V", "Ctrl+D", "Ctrl+A",
          "Ctrl+Z", "Ctrl+Y", "Ctrl+Shift+Z", "Left",         "Right",        "Up",     "Down",
          "Tab",    "Return", "F2",           "F8",           "Shift+F8",     "Ctrl+S", "Ctrl+P",
          "Ctrl+E", "Ctrl+G", "Ctrl++",       "Ctrl+Shift+P", "Ctrl+0",       "Ctrl+1", "PgDown",
          "Home",   "Space",  "F4",           "F7",           "Ctrl+Shift+G"}) {
        QTest::newRow(tasti) << QString::fromLatin1(tasti);
    }
}

void tst_TastiTrascinando::IlTrascinamentoVaComeSenza()
{
    QFETCH(QString, tasti);
    const StoriaDiProva senza;
    senza.Anteprima().Seleziona(Genere::Campo, 1);
    senza.Trascina(Da, A);
    const StoriaDiProva con;
    QVERIFY(RendeAttiva(con.Anteprima()));
    con.Anteprima().Seleziona(Genere::Campo, 1);
    Robot robot;
    con.Afferra(Da, (Da + A) / 2);
    const QKeyCombination combinazione = QKeySequence(tasti)[0];
    QTest::keyClick(con.Anteprima().windowHandle(), combinazione.key(),
                    combinazione.keyboardModifiers());
    con.Muove((Da + 2 * A) / 3);
    con.Muove(A);
    con.Rilascia(A);
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QCOMPARE(con.Aperto().Campi[1].X, senza.Aperto().Campi[1].X);
    QVERIFY(con.Aperto() == senza.Aperto());
    QCOMPARE(con.AnnullaTutto(), 1);
    QVERIFY(con.Aperto() == con.Prima);
}

QTEST_MAIN(tst_TastiTrascinando)
#include "tst_TastiTrascinando.moc"
