#include "dialogs/DialogoCornice.h"
#include "model/Tavolozza.h"

#include <QGuiApplication>

using namespace Controlli;

class tst_FrmCorniceColori : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void ColoreMentreSiScrive_data();
    void ColoreMentreSiScrive();
    void Colori_data();
    void Colori();
    void ColoriSuTutte();
    void ColoriSuTutteSenzaControllo_data();
    void ColoriSuTutteSenzaControllo();
    void ColoriSuTutteOltre16Bit();
    void FontSuTutte();
    void FontSuTutteEConfermaArrotondanoIlColore_data();
    void FontSuTutteEConfermaArrotondanoIlColore();
    void FontSuTutteConColoreErrato();
    void SuTutteCon101Cornici();
};

void tst_FrmCorniceColori::ColoreMentreSiScrive_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<int>("indice"); // palette colour shown; 3 = the one before stays
    QTest::newRow("0") << QStringLiteral("0") << 0;
    QTest::newRow("15") << QStringLiteral("15") << 15;
    QTest::newRow("2.5 vale 2") << QStringLiteral("2.5") << 2;
    QTest::newRow("vuoto") << QString() << 3;
    QTest::newRow("lettere") << QStringLiteral("abc") << 3;
    QTest::newRow("negativo") << QStringLiteral("-1") << 3;
    QTest::newRow("enorme") << QStringLiteral("99999999") << 9; // its first digit was a colour
}

void tst_FrmCorniceColori::ColoreMentreSiScrive()
{
    QFETCH(QString, testo);
    QFETCH(int, indice);
    DialogoCornice p;
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("3"));
    Digita(p.dialogo, "ColoreTesto", testo);
    QCOMPARE(p.Colore(), QColor::fromRgb(Tavolozza::Rgb(indice)));
    QVERIFY(p.robot.Soddisfatto());
}

void tst_FrmCorniceColori::Colori_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<int>("colore"); // -1 = refused
    QTest::newRow("0") << QStringLiteral("0") << 0;
    QTest::newRow("15") << QStringLiteral("15") << 15;
    QTest::newRow("16") << QStringLiteral("16") << -1;
    QTest::newRow("15.4") << QStringLiteral("15.4") << -1;
    QTest::newRow("-1") << QStringLiteral("-1") << -1;
    QTest::newRow("lettere") << QStringLiteral("rosso") << -1;
    QTest::newRow("vuoto") << QString() << -1;
    QTest::newRow("2.5 alla pari") << QStringLiteral("2.5") << 2;
    QTest::newRow("3.5 alla pari") << QStringLiteral("3.5") << 4;
}

void tst_FrmCorniceColori::Colori()
{
    QFETCH(QString, testo);
    QFETCH(int, colore);
    const QList<std::pair<const char *, QString>> caselle{
        {"ColoreTesto", QStringLiteral("Colore errato")},
        {"ColoreCorn", QStringLiteral("Colore cornice errato")}};
    for (const auto &[casella, messaggio] : caselle) {
        DialogoCornice p;
        const Modello prima = p.stato.Aperto();
        if (colore < 0) {
            p.robot.Ok();
        }
        Digita(p.dialogo, casella, testo);
        Preme(p.dialogo, "Confema");
        QVERIFY(p.robot.Soddisfatto());
        if (colore < 0) {
            QCOMPARE(p.robot.Testi(), QStringList({messaggio}));
            QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
            QCOMPARE(p.dialogo.focusWidget(), Trova<QWidget>(p.dialogo, casella));
        } else {
            const bool delTesto = qstrcmp(casella, "ColoreTesto") == 0;
            QCOMPARE(delTesto ? p.Seconda().ColoreTesto : p.Seconda().ColoreCornice,
                     qint16(colore));
        }
    }
}

void tst_FrmCorniceColori::ColoriSuTutte()
{
    DialogoCornice p;
    Modello atteso = p.stato.Aperto();
    for (int i = 1; i <= 3; ++i) {
        atteso.Cornici[i].ColoreTesto = 12;
        atteso.Cornici[i].ColoreCornice = 2;
    }
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("12"));
    Digita(p.dialogo, "ColoreCorn", QStringLiteral("2.5"));
    Digita(p.dialogo, "Nome", QStringLiteral("non salvato"));
    Preme(p.dialogo, "Command1");
    QVERIFY(p.stato.Aperto() == atteso);
    QCOMPARE(p.chiamante->Cambiati(), QList<int>({1, 2, 3}));
    QCOMPARE(p.chiamante->Scelta(), 0);
    for (int i = 1; i <= 3; ++i) {
        QCOMPARE(p.stato.documento.Voce({Genere::Cornice, i}), QStringLiteral("Cornice%1").arg(i));
    }
    QVERIFY(!p.dialogo.isVisible());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void tst_FrmCorniceColori::ColoriSuTutteSenzaControllo_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<int>("colore");
    QTest::newRow("fuori dalla tavolozza") << QStringLiteral("99") << 99;
    QTest::newRow("negativo") << QStringLiteral("-1") << -1;
    QTest::newRow("lettere") << QStringLiteral("rosso") << 0;
    QTest::newRow("vuoto") << QString() << 0;
    QTest::newRow("numero e lettere") << QStringLiteral("12 blu") << 12;
    QTest::newRow("arrotondato") << QStringLiteral("3.7") << 4;
    QTest::newRow("arrotondato, negativo") << QStringLiteral("-3.2") << -3;
    QTest::newRow("2.5 alla pari") << QStringLiteral("2.5") << 2;
    QTest::newRow("3.5 alla pari") << QStringLiteral("3.5") << 4;
    QTest::newRow("la virgola chiude il numero") << QStringLiteral("3,7") << 3;
    QTest::newRow("ultimo di 16 bit") << QStringLiteral("32767.4") << 32767;
}

void tst_FrmCorniceColori::ColoriSuTutteSenzaControllo()
{
    QFETCH(QString, testo);
    QFETCH(int, colore);
    for (const bool delTesto : {true, false}) {
        DialogoCornice p;
        Modello atteso = p.stato.Aperto();
        for (int i = 1; i <= 3; ++i) {
            atteso.Cornici[i].ColoreTesto = qint16(delTesto ? colore : 5);
            atteso.Cornici[i].ColoreCornice = qint16(delTesto ? 5 : colore);
        }
        Digita(p.dialogo, "ColoreTesto", delTesto ? testo : QStringLiteral("5"));
        Digita(p.dialogo, "ColoreCorn", delTesto ? QStringLiteral("5") : testo);
        Preme(p.dialogo, "Command1");
        QVERIFY(p.robot.Soddisfatto());
        QVERIFY(p.stato.Aperto() == atteso);
        QVERIFY(!p.dialogo.isVisible());
    }
}

void tst_FrmCorniceColori::ColoriSuTutteOltre16Bit()
{
    for (const char *testo : {"40000", "32767.9", "1e400"}) {
        DialogoCornice p;
        const Modello prima = p.stato.Aperto();
        p.robot.Ok();
        Digita(p.dialogo, "ColoreCorn", QString::fromLatin1(testo));
        Preme(p.dialogo, "Command1");
        QCOMPARE(p.robot.Testi(),
                 QStringList({QStringLiteral("Colore cornice: «%1» è un numero troppo grande")
                                  .arg(QString::fromLatin1(testo))}));
        QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
        QCOMPARE(p.dialogo.focusWidget(), Trova<QWidget>(p.dialogo, "ColoreCorn"));
        QVERIFY(p.chiamante->Ignaro());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }
}

void tst_FrmCorniceColori::FontSuTutte()
{
    DialogoCornice p;
    Modello atteso = p.stato.Aperto();
    for (int i = 1; i <= 3; ++i) {
        atteso.Cornici[i].Font = QStringLiteral("Courier New");
        atteso.Cornici[i].Dimensione = 6;
        atteso.Cornici[i].Grassetto = Vero;
        atteso.Cornici[i].ColoreTesto = 4;
    }
    p.dialogo.Font()->setCurrentText(QStringLiteral("Courier New"));
    p.dialogo.Dimensioni()->setCurrentText(QStringLiteral(" 6"));
    Preme(p.dialogo, "Bold");
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("4"));
    Digita(p.dialogo, "ColoreCorn", QStringLiteral("abc")); // not looked at
    Preme(p.dialogo, "Command2");
    QVERIFY(p.stato.Aperto() == atteso);
    QCOMPARE(p.chiamante->Cambiati(), QList<int>({1, 2, 3}));
    QCOMPARE(p.chiamante->Scelta(), 0);
    QVERIFY(!p.dialogo.isVisible());
}

void tst_FrmCorniceColori::FontSuTutteEConfermaArrotondanoIlColore_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("testo");
    QTest::addColumn<int>("colore");
    QTest::newRow("punto") << QStringLiteral("C") << QStringLiteral("2.7") << 3;
    QTest::newRow("punto, in italiano") << QStringLiteral("it_IT") << QStringLiteral("2.7") << 3;
    QTest::newRow("virgola, in italiano") << QStringLiteral("it_IT") << QStringLiteral("2,7") << 3;
    QTest::newRow("2,5 alla pari") << QStringLiteral("it_IT") << QStringLiteral("2,5") << 2;
    QTest::newRow("3.5 alla pari") << QStringLiteral("C") << QStringLiteral("3.5") << 4;
}

void tst_FrmCorniceColori::FontSuTutteEConfermaArrotondanoIlColore()
{
    QFETCH(QString, locale);
    QFETCH(QString, testo);
    QFETCH(int, colore);
    QLocale::setDefault(QLocale(locale));
    for (const char *comando : {"Command2", "Confema"}) {
        DialogoCornice p;
        Digita(p.dialogo, "ColoreTesto", testo);
        Preme(p.dialogo, comando);
        QVERIFY(p.robot.Soddisfatto());
        QCOMPARE(int(p.Seconda().ColoreTesto), colore);
    }
}

void tst_FrmCorniceColori::FontSuTutteConColoreErrato()
{
    DialogoCornice p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("16"));
    Preme(p.dialogo, "Command2");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("Colore errato")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
    QVERIFY(p.chiamante->Ignaro());
}

void tst_FrmCorniceColori::SuTutteCon101Cornici()
{
    for (const char *comando : {"Command1", "Command2", "Confema"}) {
        DialogoCornice p;
        Cambia(p.stato, [&](Modello &modello) { modello.NumCornici = 101; });
        Preme(p.dialogo, comando);
        QVERIFY(p.robot.Soddisfatto());
        QVERIFY(!p.dialogo.isVisible());
    }
}

QTEST_MAIN(tst_FrmCorniceColori)
#include "tst_FrmCorniceColori.moc"
