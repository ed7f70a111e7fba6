#include "dialogs/FrmCornice.h"

#include "dialogs/Mnemonici.h"
#include "dialogs/RegistroSegnali.h"
#include "finestre/Finestre.h"
#include "grafica/Testo.h"
#include "model/Tavolozza.h"
#include "support/Controlli.h"
#include "support/DocumentoDiProva.h"
#include "support/Errori.h"
#include "support/Robot.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Controlli;

namespace {

/// A model of three frames and the dialog opened on the second, as the editor opens it.
struct Prova
{
    explicit Prova(int indice = 2)
        : dialogo((Riempie(stato), stato))
        , segnali(stato, dialogo)
    {
        dialogo.setModal(false); // the robot looks for modal boxes only
        Apre(indice);
    }

    void Apre(int indice)
    {
        dialogo.RiempieComboImpostazioni();
        dialogo.Carica(indice);
        const Cornice &cornice = stato.Aperto().Cornici[indice];
        dialogo.Font()->setCurrentText(cornice.Font);
        dialogo.Dimensioni()->setCurrentText(QString::number(cornice.Dimensione).rightJustified(2));
        dialogo.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialogo));
        dialogo.activateWindow();
    }

    static void Riempie(StatoProgramma &stato)
    {
        stato.ElencoFont = {QStringLiteral("Arial"), QStringLiteral("Courier New")};
        Cambia(stato, [](Modello &modello) {
            for (int i = 1; i <= 3; ++i) {
                const int n = modello.AggiungeCornice(10 * i, 20 * i, 0, 0);
                modello.Cornici[n].Nome = QStringLiteral("Cornice%1").arg(i);
            }
        });
    }

    void CambiaSeconda(const std::function<void(Cornice &)> &cambia)
    {
        Cambia(stato, [&](Modello &modello) { cambia(modello.Cornici[2]); });
    }
    const Cornice &Seconda() const { return stato.Aperto().Cornici[2]; }
    bool BordoAbilitato() const { return Trova<QLineEdit>(dialogo, "Bordo")->isEnabled(); }
    QColor Colore() const
    {
        return Trova<QLabel>(dialogo, "Label11")->palette().color(QPalette::WindowText);
    }

    StatoProgramma stato;
    FrmCornice dialogo;
    RegistroSegnali segnali;
    Robot robot;
};

} // namespace

class TestFrmCornice : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void TitoloNomiETesti();
    void MnemoniciUnici();
    void OgniControlloHaLArgomentoDellaGuida();
    void ListeDeiFontEDelleDimensioni();
    void CaricaLaCornice();
    void CaricaUnIndiceFuoriTabellaEErrore9();
    void TipoAllApertura_data();
    void TipoAllApertura();

    void OptEtichettaAzzeraIlBordo();
    void OptCorniceMetteIlBordoSoloSeZero();
    void OpzioniConLaTastiera();
    void ColoreMentreSiScrive_data();
    void ColoreMentreSiScrive();

    void ConfermaScriveTuttiIValori();
    void ConfermaSegnalaAnteprimaPoiElenco();
    void InvioConfermaEdEscNo();
    void AprireEConfermareNonCambiaNulla();
    void NomiUgualiSalvoLeMaiuscole();
    void ConfermaIlProprioNome();
    void NomeVuotoRifiutato();
    void SenzaBordoESenzaEtichetta();
    void LarghezzaZeroOMinore_data();
    void LarghezzaZeroOMinore();
    void AltezzaZeroONegativaAccettata();
    void Colori_data();
    void Colori();
    void OrdineDeiControlli();
    void TestoCheNonENumero_data();
    void TestoCheNonENumero();
    void NumeroTroppoGrandeAlSuoPosto();
    void BordoTroppoGrandeDettoSoloAllaConferma();
    void BordoConosceSoloIlPunto();
    void IndiceFuoriTabellaAllaConferma();

    void EtichettaMisurataDalTesto();
    void EtichettaVuoleUnaLarghezzaPositiva();
    void EtichettaNonLeggeLeMisure();
    void CorniceSenzaBordoTieneLeMisure();

    void ColoriSuTutte();
    void ColoriSuTutteSenzaControllo_data();
    void ColoriSuTutteSenzaControllo();
    void ColoriSuTutteOltre16Bit();
    void FontSuTutte();
    void FontSuTutteEConfermaArrotondanoIlColore_data();
    void FontSuTutteEConfermaArrotondanoIlColore();
    void FontSuTutteConColoreErrato();
    void SuTutteCon101Cornici();
    void EliminaConNo();
    void EliminaConSi();
    void DoppioClicSulNome();
    void StaInUnoSchermoPiccolo();
};

void TestFrmCornice::TitoloNomiETesti()
{
    const Prova p;
    QCOMPARE(p.dialogo.objectName(), QStringLiteral("FrmCornice"));
    QCOMPARE(p.dialogo.windowTitle(), QStringLiteral("Modifica impostazioni Cornice / Etichetta"));
    const auto didascalia = [&](const char *nome, const char *testo) {
        QCOMPARE(Trova<QAbstractButton>(p.dialogo, nome)->text().remove(u'&'),
                 QString::fromUtf8(testo));
    };
    didascalia("Command1", "imposta colore testo e colore cornice su tutte le cornici");
    didascalia("Command2", "imposta questo font su tutte le cornici");
    didascalia("Bold", "bold");
    didascalia("Elimina", "Elimina cornice");
    didascalia("Confema", "Conferma impostazioni cornice");
    didascalia("OptEtichetta", "Etichetta");
    didascalia("OptCornice", "Cornice");
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
    const auto suggerimento = [&](const char *nome, const char *testo) {
        QCOMPARE(Trova<QWidget>(p.dialogo, nome)->toolTip(), QString::fromUtf8(testo));
    };
    suggerimento("Testo", "scritta che compare sull'anteprima");
    suggerimento("Confema", "click per aggiornare il font sull'anteprima");
    suggerimento("X", "coordinate in millimetri");
    suggerimento("Y", "coordinate in millimetri");
    suggerimento("Bold", "grassetto");
    suggerimento("ComboDim", "dimensione carattere");
    suggerimento("ComboFont", "elenco fonts di caratteri disponibili");
}

void TestFrmCornice::MnemoniciUnici()
{
    const Prova p;
    QCOMPARE(MnemoniciRipetuti(p.dialogo, 15), QStringList());
}

void TestFrmCornice::OgniControlloHaLArgomentoDellaGuida()
{
    const Prova p;
    for (const QWidget *controllo : p.dialogo.findChildren<QWidget *>()) {
        QCOMPARE(ArgomentoDi(controllo), ArgomentoGuida);
    }
}

void TestFrmCornice::ListeDeiFontEDelleDimensioni()
{
    const Prova p;
    QCOMPARE(p.dialogo.Font()->count(), 2);
    QCOMPARE(p.dialogo.Dimensioni()->count(), 35);
    QCOMPARE(p.dialogo.Dimensioni()->itemText(0), QStringLiteral(" 6"));
    QCOMPARE(p.dialogo.Dimensioni()->itemText(34), QStringLiteral("40"));
}

void TestFrmCornice::CaricaLaCornice()
{
    Prova p;
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

void TestFrmCornice::CaricaUnIndiceFuoriTabellaEErrore9()
{
    Prova p;
    QCOMPARE(ErroreDi([&] { p.dialogo.Carica(101); }), ErroreSistema::Indice);
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("Cornice2"));
}

void TestFrmCornice::TipoAllApertura_data()
{
    QTest::addColumn<double>("bordo");
    QTest::addColumn<bool>("etichetta");
    QTest::addColumn<QString>("testo");
    QTest::newRow("0 e' un'etichetta") << 0.0 << true << QStringLiteral("0");
    QTest::newRow("1") << 1.0 << false << QStringLiteral("1");
    QTest::newRow("2.2") << 2.2 << false << QStringLiteral("2.2");
    QTest::newRow("0.5 non e' zero") << 0.5 << false << QStringLiteral("0.5");
}

void TestFrmCornice::TipoAllApertura()
{
    QFETCH(double, bordo);
    QFETCH(bool, etichetta);
    QFETCH(QString, testo);
    Prova p;
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

void TestFrmCornice::OptEtichettaAzzeraIlBordo()
{
    Prova p;
    Digita(p.dialogo, "Bordo", QStringLiteral("2.3"));
    Preme(p.dialogo, "OptEtichetta");
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("0"));
    QVERIFY(!p.BordoAbilitato());
}

void TestFrmCornice::OptCorniceMetteIlBordoSoloSeZero()
{
    Prova p;
    Preme(p.dialogo, "OptEtichetta");
    Preme(p.dialogo, "OptCornice");
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("1"));
    QVERIFY(p.BordoAbilitato());
    Digita(p.dialogo, "Bordo", QStringLiteral("2.3"));
    Preme(p.dialogo, "OptCornice");
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("2.3"));
}

void TestFrmCornice::OpzioniConLaTastiera()
{
    Prova p;
    auto *cornice = Trova<QRadioButton>(p.dialogo, "OptCornice");
    cornice->setFocus();
    QTest::keyClick(cornice, Qt::Key_Left);
    QVERIFY(Trova<QRadioButton>(p.dialogo, "OptEtichetta")->isChecked());
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("0"));
    QVERIFY(!p.BordoAbilitato());
}

void TestFrmCornice::ColoreMentreSiScrive_data()
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

void TestFrmCornice::ColoreMentreSiScrive()
{
    QFETCH(QString, testo);
    QFETCH(int, indice);
    Prova p;
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("3"));
    Digita(p.dialogo, "ColoreTesto", testo);
    QCOMPARE(p.Colore(), QColor::fromRgb(Tavolozza::Rgb(indice)));
    QVERIFY(p.robot.Soddisfatto());
}

void TestFrmCornice::ConfermaScriveTuttiIValori()
{
    Prova p;
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

void TestFrmCornice::ConfermaSegnalaAnteprimaPoiElenco()
{
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("Box"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.segnali.Voci(),
             QStringList({QStringLiteral("Cambiato 2 Box"), QStringLiteral("VoceScelta 2"),
                          QStringLiteral("chiuso")}));
}

void TestFrmCornice::InvioConfermaEdEscNo()
{
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("Box"));
    QTest::keyClick(Trova<QLineEdit>(p.dialogo, "Nome"), Qt::Key_Escape);
    QCOMPARE(p.Seconda().Nome, QStringLiteral("Cornice2"));
    QVERIFY(!p.dialogo.isVisible());
    p.Apre(2);
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("Cornice2"));
    Digita(p.dialogo, "Nome", QStringLiteral("Box"));
    QTest::keyClick(Trova<QLineEdit>(p.dialogo, "Nome"), Qt::Key_Return);
    QCOMPARE(p.Seconda().Nome, QStringLiteral("Box"));
}

void TestFrmCornice::AprireEConfermareNonCambiaNulla()
{
    for (const QLocale &locale : {QLocale::c(), QLocale(QStringLiteral("it_IT"))}) {
        QLocale::setDefault(locale);
        Prova p;
        p.CambiaSeconda([](Cornice &cornice) {
            cornice.Nome = QStringLiteral("nome\tcon \x01 e\nriga");
            cornice.Testo = QString(40000, u'è');
            cornice.X = 1.0 / 3;
            cornice.Y = -1e-20;
            cornice.Larghezza = 20.0 / 3;
            cornice.Altezza = -1;
            cornice.Bordo = 1.1 + 1e-14 / 3;
        });
        const Modello prima = p.stato.Aperto();
        p.Apre(2);
        Preme(p.dialogo, "Confema");
        QVERIFY(!p.dialogo.isVisible());
        QVERIFY(p.stato.Aperto() == prima);
    }
}

void TestFrmCornice::NomiUgualiSalvoLeMaiuscole()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QStringLiteral("cORNICE3"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("nome già esistente")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
}

void TestFrmCornice::ConfermaIlProprioNome()
{
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("CORNICE2"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.Seconda().Nome, QStringLiteral("CORNICE2"));
}

void TestFrmCornice::NomeVuotoRifiutato()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QString());
    Digita(p.dialogo, "X", QStringLiteral("abc")); // looked at only afterwards
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("Nome: non può essere vuoto")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
}

void TestFrmCornice::SenzaBordoESenzaEtichetta()
{
    Prova p;
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

void TestFrmCornice::LarghezzaZeroOMinore_data()
{
    QTest::addColumn<QString>("testo");
    QTest::newRow("zero") << QStringLiteral("0");
    QTest::newRow("negativa") << QStringLiteral("-0.1");
    QTest::newRow("lettere") << QStringLiteral("abc");
    QTest::newRow("vuota") << QString();
    QTest::newRow("virgola, che la lettura non conosce") << QStringLiteral("0,5");
}

void TestFrmCornice::LarghezzaZeroOMinore()
{
    QFETCH(QString, testo);
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Largh", testo);
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(),
             QStringList({QStringLiteral("non si può LARGHEZZA cornice ZERO o minore di zero")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
}

void TestFrmCornice::AltezzaZeroONegativaAccettata()
{
    for (const double altezza : {0.0, -5.0}) {
        Prova p;
        Digita(p.dialogo, "Alt", QString::number(altezza));
        Preme(p.dialogo, "Confema");
        QCOMPARE(p.Seconda().Altezza, altezza);
    }
}

void TestFrmCornice::Colori_data()
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

void TestFrmCornice::Colori()
{
    QFETCH(QString, testo);
    QFETCH(int, colore);
    const QList<std::pair<const char *, QString>> caselle{
        {"ColoreTesto", QStringLiteral("Colore errato")},
        {"ColoreCorn", QStringLiteral("Colore cornice errato")}};
    for (const auto &[casella, messaggio] : caselle) {
        Prova p;
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

void TestFrmCornice::OrdineDeiControlli()
{
    Prova p;
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

void TestFrmCornice::TestoCheNonENumero_data()
{
    QTest::addColumn<QByteArray>("casella");
    QTest::addColumn<QString>("nome");
    QTest::newRow("X") << QByteArray("X") << QStringLiteral("Posizione X");
    QTest::newRow("Y") << QByteArray("Y") << QStringLiteral("Posizione Y");
    QTest::newRow("Largh") << QByteArray("Largh") << QStringLiteral("Larghezza");
    QTest::newRow("Alt") << QByteArray("Alt") << QStringLiteral("Altezza");
}

void TestFrmCornice::TestoCheNonENumero()
{
    QFETCH(QByteArray, casella);
    QFETCH(QString, nome);
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QStringLiteral("Box"));
    Digita(p.dialogo, casella, QStringLiteral("1x"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(), QStringList({nome + QStringLiteral(": «1x» non è un numero")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
    QCOMPARE(p.dialogo.focusWidget(), Trova<QWidget>(p.dialogo, casella));
}

void TestFrmCornice::NumeroTroppoGrandeAlSuoPosto()
{
    Prova p;
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

void TestFrmCornice::BordoTroppoGrandeDettoSoloAllaConferma()
{
    Prova p;
    Preme(p.dialogo, "OptCornice");
    Digita(p.dialogo, "Bordo", QStringLiteral("1e400"));
    Preme(p.dialogo, "OptCornice");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(Testo(p.dialogo, "Bordo"), QStringLiteral("1e400"));
}

void TestFrmCornice::BordoConosceSoloIlPunto()
{
    QLocale::setDefault(QLocale(QStringLiteral("it_IT")));
    Prova p;
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

void TestFrmCornice::IndiceFuoriTabellaAllaConferma()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Trova<QLineEdit>(p.dialogo, "Num")->setText(QStringLiteral("101"));
    Digita(p.dialogo, "Nome", QStringLiteral("Box"));
    Preme(p.dialogo, "Confema");
    QVERIFY(p.robot.Testi().value(0).startsWith(QStringLiteral("errore 9 ")));
    QVERIFY(p.stato.Aperto() == prima && p.segnali.Voci().isEmpty());
}

void TestFrmCornice::EtichettaMisurataDalTesto()
{
    Prova p;
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

void TestFrmCornice::EtichettaVuoleUnaLarghezzaPositiva()
{
    Prova p;
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

void TestFrmCornice::EtichettaNonLeggeLeMisure()
{
    Prova p;
    Preme(p.dialogo, "OptEtichetta");
    Digita(p.dialogo, "Largh", QStringLiteral("1x"));
    Digita(p.dialogo, "Alt", QStringLiteral("abc"));
    Preme(p.dialogo, "Confema");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY(p.Seconda().Altezza > 1);
}

void TestFrmCornice::CorniceSenzaBordoTieneLeMisure()
{
    Prova p;
    Digita(p.dialogo, "Bordo", QStringLiteral("0"));
    Digita(p.dialogo, "Largh", QStringLiteral("77"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.Seconda().Bordo, 0.0);
    QCOMPARE(p.Seconda().Larghezza, 77.0);
}

void TestFrmCornice::ColoriSuTutte()
{
    Prova p;
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
    QCOMPARE(
        p.segnali.Voci(),
        QStringList({QStringLiteral("Cambiato 1 Cornice1"), QStringLiteral("Cambiato 2 Cornice2"),
                     QStringLiteral("Cambiato 3 Cornice3"), QStringLiteral("chiuso")}));
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void TestFrmCornice::ColoriSuTutteSenzaControllo_data()
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

void TestFrmCornice::ColoriSuTutteSenzaControllo()
{
    QFETCH(QString, testo);
    QFETCH(int, colore);
    for (const bool delTesto : {true, false}) {
        Prova p;
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

void TestFrmCornice::ColoriSuTutteOltre16Bit()
{
    for (const char *testo : {"40000", "32767.9", "1e400"}) {
        Prova p;
        const Modello prima = p.stato.Aperto();
        p.robot.Ok();
        Digita(p.dialogo, "ColoreCorn", QString::fromLatin1(testo));
        Preme(p.dialogo, "Command1");
        QCOMPARE(p.robot.Testi(),
                 QStringList({QStringLiteral("Colore cornice: «%1» è un numero troppo grande")
                                  .arg(QString::fromLatin1(testo))}));
        QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
        QCOMPARE(p.dialogo.focusWidget(), Trova<QWidget>(p.dialogo, "ColoreCorn"));
        QVERIFY(p.segnali.Voci().isEmpty());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }
}

void TestFrmCornice::FontSuTutte()
{
    Prova p;
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
    QCOMPARE(p.segnali.Voci().size(), 4);
    QCOMPARE(p.segnali.Voci().last(), QStringLiteral("chiuso"));
}

void TestFrmCornice::FontSuTutteEConfermaArrotondanoIlColore_data()
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

void TestFrmCornice::FontSuTutteEConfermaArrotondanoIlColore()
{
    QFETCH(QString, locale);
    QFETCH(QString, testo);
    QFETCH(int, colore);
    QLocale::setDefault(QLocale(locale));
    for (const char *comando : {"Command2", "Confema"}) {
        Prova p;
        Digita(p.dialogo, "ColoreTesto", testo);
        Preme(p.dialogo, comando);
        QVERIFY(p.robot.Soddisfatto());
        QCOMPARE(int(p.Seconda().ColoreTesto), colore);
    }
}

void TestFrmCornice::FontSuTutteConColoreErrato()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "ColoreTesto", QStringLiteral("16"));
    Preme(p.dialogo, "Command2");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("Colore errato")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
    QVERIFY(p.segnali.Voci().isEmpty());
}

void TestFrmCornice::SuTutteCon101Cornici()
{
    for (const char *comando : {"Command1", "Command2", "Confema"}) {
        Prova p;
        Cambia(p.stato, [&](Modello &modello) { modello.NumCornici = 101; });
        Preme(p.dialogo, comando);
        QVERIFY(p.robot.Soddisfatto());
        QVERIFY(!p.dialogo.isVisible());
    }
}

void TestFrmCornice::EliminaConNo()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.No();
    Preme(p.dialogo, "Elimina");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("Elimino Cornice Cornice2")}));
    QCOMPARE(p.robot.Predefiniti(), QStringList({QStringLiteral("&No")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
}

void TestFrmCornice::EliminaConSi()
{
    Prova p;
    Modello atteso = p.stato.Aperto();
    atteso.Cornici[2].Nome.clear();
    p.robot.Si();
    Preme(p.dialogo, "Elimina");
    QVERIFY(p.stato.Aperto() == atteso);
    QCOMPARE(p.segnali.Voci(),
             QStringList({QStringLiteral("Cambiato 2  ELIMINATO: Cornice2"),
                          QStringLiteral("VoceScelta 2"), QStringLiteral("chiuso")}));
}

void TestFrmCornice::DoppioClicSulNome()
{
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("Totale"));
    QTest::mouseDClick(Trova<QLineEdit>(p.dialogo, "Nome"), Qt::LeftButton);
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("Totale"));
}

void TestFrmCornice::StaInUnoSchermoPiccolo()
{
    const Prova p;
    // 1366x768 without the strip of the editor, the title bar and the borders.
    QVERIFY2(p.dialogo.sizeHint().width() <= 1300, "too wide");
    QVERIFY2(p.dialogo.sizeHint().height() <= 500, "too high");
    for (const QPushButton *bottone : p.dialogo.findChildren<QPushButton *>()) {
        QVERIFY2(bottone->width() >= bottone->minimumSizeHint().width(),
                 qPrintable(bottone->objectName()));
    }
}

QTEST_MAIN(TestFrmCornice)
#include "tst_FrmCornice.moc"
