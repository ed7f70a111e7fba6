#include "dialogs/DialogoCornice.h"
#include "dialogs/Mnemonici.h"
#include "grafica/Testo.h"
#include "model/Tavolozza.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

using namespace Controlli;

class tst_FrmCornice : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void TitoloNomiETesti();
    void CaricaLaCornice();
    void TipoAllApertura_data();
    void TipoAllApertura();
    void OptEtichettaAzzeraIlBordo();
    void OptCorniceMetteIlBordoSoloSeZero();
    void OpzioniConLaTastiera();
    void ConfermaScriveTuttiIValori();
    void SenzaBordoESenzaEtichetta();
    void LarghezzaZeroOMinore_data();
    void LarghezzaZeroOMinore();
    void AltezzaZeroONegativaAccettata();
    void OrdineDeiControlli();
    void NumeroTroppoGrandeAlSuoPosto();
    void BordoTroppoGrandeDettoSoloAllaConferma();
    void BordoConosceSoloIlPunto();
    void EtichettaMisurataDalTesto();
    void EtichettaVuoleUnaLarghezzaPositiva();
    void EtichettaNonLeggeLeMisure();
    void CorniceSenzaBordoTieneLeMisure();
};

void tst_FrmCornice::TitoloNomiETesti()
{
    const DialogoCornice p;
    QCOMPARE(p.dialogo.objectName(), QStringLiteral("FrmCornice"));
    QCOMPARE(p.dialogo.windowTitle(), QStringLiteral("Modifica impostazioni Cornice / Etichetta"));
    VerificaBottoni(p.dialogo,
                    {{"Command1", "imposta colore testo e colore cornice su tutte le cornici"},
                     {"Command2", "imposta questo font su tutte le cornici"},
                     {"Bold", "bold"},
                     {"Elimina", "Elimina cornice"},
                     {"Confema", "Conferma impostazioni cornice"},
                     {"OptEtichetta", "Etichetta"},
                     {"OptCornice", "Cornice"}});
    QCOMPARE(Trova<QGroupBox>(p.dialogo, "Frame2")->title(), QStringLiteral("Posizione"));
    QCOMPARE(Trova<QGroupBox>(p.dialogo, "Frame1")->title(),
             QStringLiteral("Font, dimensioni, colore "));
    QCOMPARE(Trova<QLabel>(p.dialogo, "Label11")->text(), QStringLiteral("Colore 0-15"));
    QStringList etichette;
    for (const QLabel *etichetta : p.dialogo.findChildren<QLabel *>()) {
        etichette.append(etichetta->text().remove(u'&'));
    }
    const auto haEtichetta = [&](const char *testo) {
        QVERIFY2(etichette.contains(QString::fromUtf8(testo)), testo);
    };
    haEtichetta("Nome ");
    haEtichetta("Scritta");
    haEtichetta("Posizione X/Y");
    haEtichetta("Larghezza/Altezza ");
    haEtichetta("Bordo: 1=cornice 2=linea 0=nessun bordo (se 1 o 2 spessore x.1,x. 2...) "
                "(default 3)");
    haEtichetta("Colore cornice: 0=nero 1=blu 2=azzurro 3=grigio 4=grigiochiaro 5=rosso 6=verde "
                "7=giallo)");
    VerificaSuggerimenti(p.dialogo, {{"Testo", "scritta che compare sull'anteprima"},
                                     {"Confema", "click per aggiornare il font sull'anteprima"},
                                     {"X", "coordinate in millimetri"},
                                     {"Y", "coordinate in millimetri"},
                                     {"Bold", "grassetto"},
                                     {"ComboDim", "dimensione carattere"},
                                     {"ComboFont", "elenco fonts di caratteri disponibili"}});
}

void tst_FrmCornice::CaricaLaCornice()
{
    DialogoCornice p;
    p.CambiaSeconda([](Cornice &cornice) {
        cornice = Cornice{{QStringLiteral("Box"), 0, 0, QStringLiteral("riquadro")},
                          QStringLiteral("Spett.le"),
                          QStringLiteral("Courier New"),
                          8,
                          Vero,
                          0,
                          0,
                          2.2,
                          4,
                          12};
    });
    Lascia(p.stato, {Genere::Cornice, 2}, {1.5, 2.5, 60.5, 30.25});
    p.Apre(2);
    const QList<std::pair<const char *, const char *>> attesi{
        {"Num", "2"},        {"Nome", "Box"},      {"Testo", "Spett.le"},
        {"X", "1.5"},        {"Y", "2.5"},         {"Descrizione", "riquadro"},
        {"Alt", "30.25"},    {"Largh", "60.5"},    {"Bordo", "2.2"},
        {"ColoreCorn", "4"}, {"ColoreTesto", "12"}};
    for (const auto &[casella, testo] : attesi) {
        QCOMPARE(Testo(p.dialogo, casella), QString::fromUtf8(testo));
    }
    QVERIFY(Trova<QCheckBox>(p.dialogo, "Bold")->isChecked());
    QCOMPARE(p.Colore(), QColor::fromRgb(Tavolozza::Rgb(12)));
}

void tst_FrmCornice::TipoAllApertura_data()
{
    QTest::addColumn<double>("bordo");
    QTest::addColumn<bool>("etichetta");
    QTest::addColumn<QString>("testo");
    QTest::newRow("0 e' un'etichetta") << 0.0 << true << QStringLiteral("0");
    QTest::newRow("1") << 1.0 << false << QStringLiteral("1");
    QTest::newRow("2.2") << 2.2 << false << QStringLiteral("2.2");
    QTest::newRow("0.5 non e' zero") << 0.5 << false << QStringLiteral("0.5");
}

void tst_FrmCornice::TipoAllApertura()
{
    QFETCH(double, bordo);
    QFETCH(bool, etichetta);
    QFETCH(QString, testo);
    DialogoCornice p;
    p.CambiaSeconda([&](Cornice &cornice) { cornice.Bordo = bordo; });
    // The dialog may have shown a record of the other type before.
    Cambia(p.stato, [&](Modello &modello) { modello.Cornici[3].Bordo = etichetta ? 1 : 0; });
    p.Apre(3);
    p.Apre(2);
    QCOMPARE(Trova<QRadioButton>(p.dialogo, "OptEtichetta")->isChecked(), etichetta);
    QCOMPARE(Trova<QRadioButton>(p.dialogo, "OptCornice")->isChecked(), !etichetta);
    QCOMPARE(p.BordoAbilitato(), !etichetta);
    QCOMPARE(Testo(p.dialogo, "Bordo"), testo);
}

void tst_FrmCornice::OptEtichettaAzzeraIlBordo()
{
    DialogoCornice p;
    Digita(p.dialogo, "Bordo", QStringLiteral("2.3"));
    Preme(p.dialogo, "OptEtichetta");
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("0"));
    QVERIFY(!p.BordoAbilitato());
}

void tst_FrmCornice::OptCorniceMetteIlBordoSoloSeZero()
{
    DialogoCornice p;
    Preme(p.dialogo, "OptEtichetta");
    Preme(p.dialogo, "OptCornice");
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("1"));
    QVERIFY(p.BordoAbilitato());
    Digita(p.dialogo, "Bordo", QStringLiteral("2.3"));
    Preme(p.dialogo, "OptCornice");
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("2.3"));
}

void tst_FrmCornice::OpzioniConLaTastiera()
{
    DialogoCornice p;
    auto *cornice = Trova<QRadioButton>(p.dialogo, "OptCornice");
    cornice->setFocus();
    QTest::keyClick(cornice, Qt::Key_Left);
    QVERIFY(Trova<QRadioButton>(p.dialogo, "OptEtichetta")->isChecked());
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("0"));
    QVERIFY(!p.BordoAbilitato());
}

void tst_FrmCornice::ConfermaScriveTuttiIValori()
{
    DialogoCornice p;
    Digita(p.dialogo, "Nome", QStringLiteral("Totali"));
    Digita(p.dialogo, "Descrizione", QStringLiteral("riquadro totali"));
    Digita(p.dialogo, "Testo", QStringLiteral("Totale"));
    Digita(p.dialogo, "Bordo", QStringLiteral("2.2"));
    Digita(p.dialogo, "ColoreCorn", QStringLiteral("2.5"));
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("15"));
    Digita(p.dialogo, "X", QStringLiteral("1.25"));
    Digita(p.dialogo, "Y", QStringLiteral("-3"));
    Digita(p.dialogo, "Largh", QStringLiteral("70.5"));
    Digita(p.dialogo, "Alt", QStringLiteral("8"));
    p.dialogo.Font()->setCurrentText(QStringLiteral("Courier New"));
    p.dialogo.Dimensioni()->setCurrentText(QStringLiteral(" 8"));
    Preme(p.dialogo, "Bold");
    Preme(p.dialogo, "Confema");
    const Cornice attesa{{QStringLiteral("Totali"), 1, -3, QStringLiteral("riquadro totali")},
                         QStringLiteral("Totale"),
                         QStringLiteral("Courier New"),
                         8,
                         Vero,
                         8,
                         71,
                         2.2,
                         2,
                         15};
    QVERIFY(p.Seconda() == attesa);
    QVERIFY(!p.dialogo.isVisible());
    QVERIFY(p.robot.Soddisfatto());
}

void tst_FrmCornice::SenzaBordoESenzaEtichetta()
{
    DialogoCornice p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Preme(p.dialogo, "OptEtichetta");
    Digita(p.dialogo, "Testo", QString());
    Digita(p.dialogo, "Largh", QStringLiteral("0")); // looked at only afterwards
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral(
                                  "non si può impostare cornice senza bordo e senza etichetta")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
}

void tst_FrmCornice::LarghezzaZeroOMinore_data()
{
    QTest::addColumn<QString>("testo");
    QTest::newRow("zero") << QStringLiteral("0");
    QTest::newRow("negativa") << QStringLiteral("-0.1");
    QTest::newRow("lettere") << QStringLiteral("abc");
    QTest::newRow("vuota") << QString();
    QTest::newRow("virgola, che la lettura non conosce") << QStringLiteral("0,5");
}

void tst_FrmCornice::LarghezzaZeroOMinore()
{
    QFETCH(QString, testo);
    DialogoCornice p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Largh", testo);
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(),
             QStringList({QStringLiteral("non si può LARGHEZZA cornice ZERO o minore di zero")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
}

void tst_FrmCornice::AltezzaZeroONegativaAccettata()
{
    for (const double altezza : {0.0, -5.0}) {
        DialogoCornice p;
        Digita(p.dialogo, "Alt", QString::number(altezza));
        Preme(p.dialogo, "Confema");
        QCOMPARE(p.Seconda().Altezza, altezza);
    }
}

void tst_FrmCornice::OrdineDeiControlli()
{
    DialogoCornice p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok().Ok().Ok().Ok().Ok().Ok().Ok();
    Digita(p.dialogo, "X", QStringLiteral("abc"));
    Digita(p.dialogo, "ColoreCorn", QStringLiteral("16"));
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("16"));
    Digita(p.dialogo, "Largh", QStringLiteral("abc"));
    Digita(p.dialogo, "Bordo", QStringLiteral("0"));
    Digita(p.dialogo, "Testo", QString());
    Digita(p.dialogo, "Nome", QStringLiteral("cornice1"));
    const QList<std::pair<const char *, QString>> correzioni{
        {"Nome", QStringLiteral("Box")},     {"Bordo", QStringLiteral("1")},
        {"Largh", QStringLiteral("5x")},     {"ColoreTesto", QStringLiteral("1")},
        {"ColoreCorn", QStringLiteral("2")}, {"X", QStringLiteral("3")},
        {"Largh", QStringLiteral("5")}};
    for (const auto &[casella, testo] : correzioni) {
        Preme(p.dialogo, "Confema");
        QVERIFY(p.stato.Aperto() == prima);
        Digita(p.dialogo, casella, testo);
    }
    QCOMPARE(
        p.robot.Testi(),
        QStringList({QStringLiteral("nome già esistente"),
                     QStringLiteral("non si può impostare cornice senza bordo e senza etichetta"),
                     QStringLiteral("non si può LARGHEZZA cornice ZERO o minore di zero"),
                     QStringLiteral("Colore errato"), QStringLiteral("Colore cornice errato"),
                     QStringLiteral("Posizione X: «abc» non è un numero"),
                     QStringLiteral("Larghezza: «5x» non è un numero")}));
    Preme(p.dialogo, "Confema");
    QVERIFY(!p.dialogo.isVisible());
    QCOMPARE(p.Seconda().X, 3.0);
    QCOMPARE(p.Seconda().Larghezza, 5.0);
}

void tst_FrmCornice::NumeroTroppoGrandeAlSuoPosto()
{
    DialogoCornice p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok().Ok().Ok().Ok();
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("16"));
    Digita(p.dialogo, "Largh", QStringLiteral("1e400"));
    Digita(p.dialogo, "Bordo", QStringLiteral("1e400"));
    Digita(p.dialogo, "Nome", QStringLiteral("cornice1"));
    const QList<std::pair<const char *, QString>> correzioni{{"Nome", QStringLiteral("Box")},
                                                             {"Bordo", QStringLiteral("1")},
                                                             {"Largh", QStringLiteral("5")},
                                                             {"ColoreTesto", QStringLiteral("1")}};
    for (const auto &[casella, testo] : correzioni) {
        Preme(p.dialogo, "Confema");
        QVERIFY(p.stato.Aperto() == prima);
        QCOMPARE(p.dialogo.focusWidget(), Trova<QWidget>(p.dialogo, casella));
        Digita(p.dialogo, casella, testo);
    }
    QCOMPARE(p.robot.Testi(),
             QStringList({QStringLiteral("nome già esistente"),
                          QStringLiteral("Bordo: «1e400» è un numero troppo grande"),
                          QStringLiteral("Larghezza: «1e400» è un numero troppo grande"),
                          QStringLiteral("Colore errato")}));
    Preme(p.dialogo, "Confema");
    QVERIFY(!p.dialogo.isVisible());
}

void tst_FrmCornice::BordoTroppoGrandeDettoSoloAllaConferma()
{
    DialogoCornice p;
    Preme(p.dialogo, "OptCornice");
    Digita(p.dialogo, "Bordo", QStringLiteral("1e400"));
    Preme(p.dialogo, "OptCornice");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("1e400"));
}

void tst_FrmCornice::BordoConosceSoloIlPunto()
{
    QLocale::setDefault(QLocale(QStringLiteral("it_IT")));
    DialogoCornice p;
    p.CambiaSeconda([&](Cornice &cornice) { cornice.Bordo = 1.5; });
    Lascia(p.stato, {Genere::Cornice, 2}, {20, 40, 12.5, 10});
    p.Apre(2);
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("1.5"));
    QCOMPARE(Testo(p.dialogo, "Largh"), QStringLiteral("12,5"));
    Digita(p.dialogo, "Bordo", QStringLiteral("2.4 mm"));
    Digita(p.dialogo, "Largh", QStringLiteral("1,5"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.Seconda().Bordo, 2.4);
    QCOMPARE(p.Seconda().Larghezza, 2.0); // on whole millimetres
}

void tst_FrmCornice::EtichettaMisurataDalTesto()
{
    DialogoCornice p;
    Preme(p.dialogo, "OptEtichetta");
    Digita(p.dialogo, "Testo", QStringLiteral("Destinatario"));
    p.dialogo.Font()->setCurrentText(QStringLiteral("Courier New"));
    p.dialogo.Dimensioni()->setCurrentText(QStringLiteral("24"));
    Preme(p.dialogo, "Bold");
    Preme(p.dialogo, "Confema");
    const QSizeF scritta =
        MisuraTesto(QStringLiteral("Destinatario"), QStringLiteral("Courier New"), 24, true);
    QCOMPARE(p.Seconda().Larghezza, double(qRound(scritta.width() + 1)));
    QCOMPARE(p.Seconda().Altezza, double(qRound(scritta.height() + 1)));
    // Twelve characters of a fixed-pitch font, each 0.6 of 24 points wide.
    QCOMPARE(p.Seconda().Larghezza, 62.0);
    QCOMPARE(p.Seconda().Bordo, 0.0);
    QCOMPARE(Testo(p.dialogo, "Largh"), QStringLiteral("62"));
}

void tst_FrmCornice::EtichettaVuoleUnaLarghezzaPositiva()
{
    DialogoCornice p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Preme(p.dialogo, "OptEtichetta");
    Digita(p.dialogo, "Largh", QStringLiteral("0"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(),
             QStringList({QStringLiteral("non si può LARGHEZZA cornice ZERO o minore di zero")}));
    QVERIFY(p.stato.Aperto() == prima);
    Digita(p.dialogo, "Largh", QStringLiteral("0.1"));
    Preme(p.dialogo, "Confema");
    QVERIFY(p.Seconda().Larghezza > 1);
}

void tst_FrmCornice::EtichettaNonLeggeLeMisure()
{
    DialogoCornice p;
    Preme(p.dialogo, "OptEtichetta");
    Digita(p.dialogo, "Largh", QStringLiteral("1x"));
    Digita(p.dialogo, "Alt", QStringLiteral("abc"));
    Preme(p.dialogo, "Confema");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY(p.Seconda().Altezza > 1);
}

void tst_FrmCornice::CorniceSenzaBordoTieneLeMisure()
{
    DialogoCornice p;
    Digita(p.dialogo, "Bordo", QStringLiteral("0"));
    Digita(p.dialogo, "Largh", QStringLiteral("77"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.Seconda().Bordo, 0.0);
    QCOMPARE(p.Seconda().Larghezza, 77.0);
}

QTEST_MAIN(tst_FrmCornice)
#include "tst_FrmCornice.moc"
