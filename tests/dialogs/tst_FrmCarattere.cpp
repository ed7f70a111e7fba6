// What the property dialogs of fields and frames have in common: a text set in a font.

#include "dialogs/DialogoDiProva.h"

#include <QCheckBox>
#include <QGuiApplication>

using namespace Controlli;

class tst_FrmCarattere : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void ListeDeiFontEDelleDimensioni_data() { Righe(); }
    void ListeDeiFontEDelleDimensioni();
    void RiempireDueVolteNonRaddoppiaLeListe_data() { Righe(); }
    void RiempireDueVolteNonRaddoppiaLeListe();
    void DimensioneFuoriElenco_data();
    void DimensioneFuoriElenco();
    void DoppioClicSulNome_data() { Righe(); }
    void DoppioClicSulNome();

private:
    static void Righe();
};

void tst_FrmCarattere::Righe()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("campo") << Genere::Campo;
    QTest::newRow("cornice") << Genere::Cornice;
}

void tst_FrmCarattere::ListeDeiFontEDelleDimensioni()
{
    QFETCH(Genere, genere);
    DialogoAperto p(genere);
    const QComboBox *font = p.ConCarattere().Font();
    QCOMPARE(font->count(), 2);
    QCOMPARE(font->itemText(0), QStringLiteral("Arial"));
    QVERIFY(!font->isEditable());
    const QComboBox *dimensioni = p.ConCarattere().Dimensioni();
    QCOMPARE(dimensioni->count(), 35);
    QCOMPARE(dimensioni->itemText(0), QStringLiteral(" 6"));
    QCOMPARE(dimensioni->itemText(3), QStringLiteral(" 9"));
    QCOMPARE(dimensioni->itemText(4), QStringLiteral("10"));
    QCOMPARE(dimensioni->itemText(34), QStringLiteral("40"));
    QVERIFY(!dimensioni->isEditable());
}

void tst_FrmCarattere::RiempireDueVolteNonRaddoppiaLeListe()
{
    QFETCH(Genere, genere);
    DialogoAperto p(genere);
    p.ConCarattere().RiempieComboImpostazioni();
    QCOMPARE(p.ConCarattere().Font()->count(), 2);
    QCOMPARE(p.ConCarattere().Dimensioni()->count(), 35);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void tst_FrmCarattere::DimensioneFuoriElenco_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<qint16>("dimensione");
    QTest::newRow("campo grande") << Genere::Campo << qint16(60);
    QTest::newRow("cornice grande") << Genere::Cornice << qint16(41);
    QTest::newRow("campo piccolo") << Genere::Campo << qint16(5);
    QTest::newRow("cornice senza dimensione") << Genere::Cornice << qint16(0);
}

void tst_FrmCarattere::DimensioneFuoriElenco()
{
    QFETCH(Genere, genere);
    QFETCH(qint16, dimensione);
    DialogoDiProva p(genere);
    Cambia(p.stato, [dimensione](Modello &modello) {
        modello.Campi[2].Dimensione = modello.Cornici[2].Dimensione = dimensione;
    });
    p.Apre(2);
    const Modello prima = p.stato.Aperto();
    const QString messaggio =
        QStringLiteral("Dim.: l'elemento ha %1, che non è nell'elenco; sceglierne una da 6 a 40")
            .arg(dimensione);
    p.robot.Ok().Ok();
    p.Conferma();
    Preme(*p.dialogo, "Command2"); // the font of all elements
    QCOMPARE(p.robot.Testi(), QStringList(2, messaggio));
    QVERIFY(p.Intatto(prima));
    auto *elenco = Trova<QComboBox>(*p.dialogo, "ComboDim");
    QCOMPARE(p.dialogo->focusWidget(), elenco);
    elenco->setCurrentText(QStringLiteral("40"));
    p.Conferma();
    QVERIFY(!p.dialogo->isVisible());
}

void tst_FrmCarattere::DoppioClicSulNome()
{
    QFETCH(Genere, genere);
    DialogoAperto p(genere);
    Digita(*p.dialogo, "Nome", QStringLiteral("Totale"));
    QTest::mouseDClick(Trova<QLineEdit>(*p.dialogo, "Nome"), Qt::LeftButton);
    QCOMPARE(Testo(*p.dialogo, "Testo"), QStringLiteral("Totale"));
    QCOMPARE(Testo(*p.dialogo, "Nome"), QStringLiteral("Totale"));
}

QTEST_MAIN(tst_FrmCarattere)
#include "tst_FrmCarattere.moc"
