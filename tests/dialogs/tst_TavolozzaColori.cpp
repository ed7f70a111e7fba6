#include "dialogs/DialogoCornice.h"
#include "model/Tavolozza.h"

#include <QMenu>
#include <QPushButton>
#include <QToolButton>

using namespace Controlli;

/// The palette beside the boxes of a colour's number.
class tst_TavolozzaColori : public QObject
{
    Q_OBJECT
private slots:
    void ScriveIlNumero_data();
    void ScriveIlNumero();
    void OgniColoreColSuoNumero();
    void SegnaQuelloScritto();
    void ConLaTastiera();
    void ConfermatoEntraNelModello();
};

namespace {

QMenu *Apre(const FrmCornice &dialogo, const char *bottone)
{
    QMenu *menu = Trova<QToolButton>(dialogo, bottone)->menu();
    menu->popup(QPoint(10, 10));
    return menu;
}

} // namespace

void tst_TavolozzaColori::ScriveIlNumero_data()
{
    QTest::addColumn<QString>("bottone");
    QTest::addColumn<QString>("casella");
    QTest::newRow("testo") << QStringLiteral("TavolozzaTesto") << QStringLiteral("ColoreTesto");
    QTest::newRow("cornice") << QStringLiteral("TavolozzaCorn") << QStringLiteral("ColoreCorn");
}

void tst_TavolozzaColori::ScriveIlNumero()
{
    QFETCH(QString, bottone);
    QFETCH(QString, casella);
    DialogoCornice p;
    QMenu *menu = Apre(p.dialogo, bottone.toLatin1());
    menu->actions().at(12)->trigger();
    QCOMPARE(Trova<QLineEdit>(p.dialogo, casella.toLatin1())->text(), QStringLiteral("12"));
    QVERIFY(p.robot.Soddisfatto());
}

void tst_TavolozzaColori::OgniColoreColSuoNumero()
{
    DialogoCornice p;
    const QList<QAction *> colori = Apre(p.dialogo, "TavolozzaTesto")->actions();
    QCOMPARE(colori.size(), Tavolozza::Colori);
    for (int i = 0; i < colori.size(); ++i) {
        QCOMPARE(colori.at(i)->text(), QString::number(i));
        const QImage campione = colori.at(i)->icon().pixmap(16).toImage();
        QCOMPARE(campione.pixelColor(campione.rect().center()).rgb() & 0xFFFFFF, Tavolozza::Rgb(i));
    }
}

void tst_TavolozzaColori::SegnaQuelloScritto()
{
    DialogoCornice p;
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("9"));
    QMenu *menu = Apre(p.dialogo, "TavolozzaTesto");
    QVERIFY(menu->activeAction() != nullptr);
    QCOMPARE(menu->activeAction()->text(), QStringLiteral("9"));
}

void tst_TavolozzaColori::ConLaTastiera()
{
    DialogoCornice p;
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("4"));
    QMenu *menu = Apre(p.dialogo, "TavolozzaTesto");
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    QCOMPARE(Trova<QLineEdit>(p.dialogo, "ColoreTesto")->text(), QStringLiteral("5"));
    QCOMPARE(p.Colore(), QColor::fromRgb(Tavolozza::Rgb(5)));
}

void tst_TavolozzaColori::ConfermatoEntraNelModello()
{
    DialogoCornice p;
    Apre(p.dialogo, "TavolozzaCorn")->actions().at(10)->trigger();
    Trova<QPushButton>(p.dialogo, "Confema")->click();
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.Seconda().ColoreCornice, 10);
}

QTEST_MAIN(tst_TavolozzaColori)
#include "tst_TavolozzaColori.moc"
