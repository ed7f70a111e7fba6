#include "dialogs/FrmCampo.h"

#include "dialogs/Mnemonici.h"
#include "dialogs/RegistroSegnali.h"
#include "finestre/Finestre.h"
#include "support/Controlli.h"
#include "support/DocumentoDiProva.h"
#include "support/Errori.h"
#include "support/Robot.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

using namespace Controlli;

namespace {

const auto Trenta = QString(30, u'$');

/// A model of three fields and the dialog opened on the second, as the editor opens it.
struct Prova
{
    explicit Prova(int indice = 2, SorgenteCasuale casuale = {})
        : dialogo((Riempie(stato), stato), nullptr, std::move(casuale))
        , segnali(stato, dialogo)
    {
        QObject::connect(&dialogo, &FrmCampo::SettaComboMaskRichiesto, &dialogo,
                         [this] { SettaComboMask(); });
        dialogo.setModal(false); // the robot looks for modal boxes only
        Apre(indice);
    }

    void Apre(int indice)
    {
        dialogo.RiempieComboImpostazioni();
        dialogo.Carica(indice);
        const Campo &campo = stato.Aperto().Campi[indice];
        dialogo.Font()->setCurrentText(campo.Font);
        dialogo.Dimensioni()->setCurrentText(QString::number(campo.Dimensione).rightJustified(2));
        SettaComboMask();
        dialogo.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialogo));
        dialogo.activateWindow();
    }

    static void Riempie(StatoProgramma &stato)
    {
        stato.ElencoFont = {QStringLiteral("Arial"), QStringLiteral("Courier New")};
        Cambia(stato, [](Modello &modello) {
            for (int i = 1; i <= 3; ++i) {
                const int n = modello.AggiungeCampo(10 * i, 20 * i);
                modello.Campi[n].Nome = QStringLiteral("Campo%1").arg(i);
                modello.Campi[n].Testo = QStringLiteral("prova%1").arg(i);
            }
        });
    }

    void SettaComboMask()
    {
        for (int i = 0; i < dialogo.Maschere()->count(); ++i) {
            if (MaschereStampa::Propria(dialogo.Maschere()->itemText(i)) ==
                dialogo.MascheraCorrente()) {
                dialogo.Maschere()->setCurrentIndex(i);
                return;
            }
        }
    }

    void Sceglie(const QString &voce)
    {
        const int i = dialogo.Maschere()->findText(voce);
        QVERIFY(i >= 0);
        dialogo.Maschere()->setCurrentIndex(i);
    }

    void CambiaSecondo(const std::function<void(Campo &)> &cambia)
    {
        Cambia(stato, [&](Modello &modello) { cambia(modello.Campi[2]); });
    }
    const Campo &Secondo() const { return stato.Aperto().Campi[2]; }

    StatoProgramma stato;
    FrmCampo dialogo;
    RegistroSegnali segnali;
    Robot robot;
};

} // namespace

class TestFrmCampo : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void TitoloNomiETesti();
    void DidascalieDelleCaselle_data();
    void DidascalieDelleCaselle();
    void MnemoniciUnici();
    void OgniControlloHaLArgomentoDellaGuida();
    void ListeDeiFontDelleDimensioniEDelleMaschere();
    void RiempireDueVolteNonRaddoppiaLeListe();
    void CaricaIlCampo();
    void CaricaUnIndiceFuoriTabellaEErrore9();
    void LaDidascaliaSegueLaMaschera();

    void ConfermaScriveTuttiIValori();
    void ConfermaSegnalaAnteprimaPoiElenco();
    void InvioConferma();
    void InvioSuUnBottoneLoPreme();
    void EscChiudeSenzaScrivere();
    void AprireEConfermareNonCambiaNulla();
    void ConfermaIlProprioNome();
    void NomeDiUnAltroCampo_data();
    void NomeDiUnAltroCampo();
    void NomeVuotoRifiutato();
    void FineDeiCampiNonEUnNome();
    void TestoLungoQuantoLaMaschera();
    void TestoPiuLungoDellaMaschera_data();
    void TestoPiuLungoDellaMaschera();
    void IlPrimoControlloFallitoParla();
    void TestoCheNonENumero_data();
    void TestoCheNonENumero();
    void NumeriConLaVirgolaDellaLocale();
    void IndiceFuoriTabellaAllaConferma();

    void CambiaMascheraVuotaNonFaNulla();
    void DaNumericoAdAlfanumericoRifiutato();
    void MascheraNumericaGeneraIlTesto();
    void MascheraAlfanumericaTogliIlNumero();
    void MascheraAlfanumericaTieneIlTesto();
    void MascheraNoDalCatalogo();
    void RipristinaMascheraDefault();
    void RipristinaUnaMascheraFuoriCatalogo();

    void NonStampareESalvaSubito();
    void RipristinaStampaESalvaSubito();
    void NonStampareConNomeDoppioNonSalva();

    void FontSuTuttiICampi();
    void FontSuTuttiCon101Campi();
    void EliminaConNo();
    void EliminaConSi();
    void DoppioClicSulNome();
    void Numero_data();
    void Numero();
    void SoloCaratteriDelCodice();
    void StaInUnoSchermoPiccolo();
};

void TestFrmCampo::TitoloNomiETesti()
{
    const Prova p;
    QCOMPARE(p.dialogo.objectName(), QStringLiteral("FrmCampo"));
    QCOMPARE(p.dialogo.windowTitle(), QStringLiteral("Modifica impostazioni Campo"));
    const auto didascalia = [&](const char *nome, const char *testo) {
        QCOMPARE(Trova<QAbstractButton>(p.dialogo, nome)->text().remove(u'&'),
                 QString::fromUtf8(testo));
    };
    didascalia("PEliminaCampo", "Elimina campo");
    didascalia("Bold", "bold");
    didascalia("Command2", "imposta questo font su tutti i campi");
    didascalia("NonStampaCampo", "non stampare campo");
    didascalia("PConfemaCampo", "Conferma impostazioni campo");
    didascalia("PCambiaMaschera", "Cambia maschera");
    didascalia("PMascheraDefault", "Ripristina maschera default");
    const auto suggerimento = [&](const char *nome, const char *testo) {
        QCOMPARE(Trova<QWidget>(p.dialogo, nome)->toolTip(), QString::fromUtf8(testo));
    };
    suggerimento("Testo", "scritta che compare sull'anteprima");
    suggerimento("X", "coordinate in millimetri");
    suggerimento("Y", "coordinate in millimetri");
    suggerimento("ComboFont", "elenco fonts di caratteri disponibili");
    suggerimento("ComboDim", "dimensione carattere");
    suggerimento("Bold", "grassetto");
    suggerimento("Command2", "sostituisce su tutti i campi il font");
    suggerimento("PConfemaCampo", "click per aggiornare il font sull'anteprima");
    suggerimento("ComboMask", "selezione maschera di stampa diversa da quella prefissata");
}

void TestFrmCampo::DidascalieDelleCaselle_data()
{
    QTest::addColumn<QString>("casella");
    QTest::addColumn<QString>("didascalia");
    const auto riga = [](const char *casella, const char *didascalia) {
        QTest::newRow(casella) << QString::fromUtf8(casella) << QString::fromUtf8(didascalia);
    };
    riga("Nome", "Nome ");
    riga("Testo", "Testo di prova ");
    riga("Maschera", "maschera");
    riga("MascheraDefault", "maschera default");
    riga("ComboMask", "cambia maschera");
    riga("ComboDim", "Dim.");
    riga("X", "posizione X/Y");
}

void TestFrmCampo::DidascalieDelleCaselle()
{
    QFETCH(QString, casella);
    const Prova p;
    QStringList didascalie;
    for (const QLabel *etichetta : p.dialogo.findChildren<QLabel *>()) {
        if (etichetta->buddy() != nullptr && etichetta->buddy()->objectName() == casella) {
            didascalie.append(etichetta->text().remove(u'&'));
        }
    }
    QFETCH(QString, didascalia);
    QCOMPARE(didascalie, QStringList{didascalia});
    QCOMPARE(Trova<QGroupBox>(p.dialogo, "Frame1")->title(),
             QStringLiteral("Font, dimensione e posizione"));
}

void TestFrmCampo::MnemoniciUnici()
{
    Prova p;
    QCOMPARE(MnemoniciRipetuti(p.dialogo, 15), QStringList());
    Digita(p.dialogo, "Maschera", QStringLiteral("No"));
    QCOMPARE(Trova<QAbstractButton>(p.dialogo, "NonStampaCampo")->text().remove(u'&'),
             QStringLiteral("ripristina stampa campo"));
    QCOMPARE(MnemoniciRipetuti(p.dialogo, 15), QStringList());
}

void TestFrmCampo::OgniControlloHaLArgomentoDellaGuida()
{
    const Prova p;
    for (const QWidget *controllo : p.dialogo.findChildren<QWidget *>()) {
        QCOMPARE(ArgomentoDi(controllo), ArgomentoGuida);
    }
}

void TestFrmCampo::ListeDeiFontDelleDimensioniEDelleMaschere()
{
    const Prova p;
    QCOMPARE(p.dialogo.Font()->count(), 2);
    QCOMPARE(p.dialogo.Font()->itemText(0), QStringLiteral("Arial"));
    QCOMPARE(p.dialogo.Dimensioni()->count(), 35);
    QCOMPARE(p.dialogo.Dimensioni()->itemText(0), QStringLiteral(" 6"));
    QCOMPARE(p.dialogo.Dimensioni()->itemText(3), QStringLiteral(" 9"));
    QCOMPARE(p.dialogo.Dimensioni()->itemText(4), QStringLiteral("10"));
    QCOMPARE(p.dialogo.Dimensioni()->itemText(34), QStringLiteral("40"));
    QCOMPARE(p.dialogo.Maschere()->count(), 128);
    QVERIFY(QFontInfo(p.dialogo.Maschere()->font()).fixedPitch());
    QVERIFY(!p.dialogo.Font()->isEditable() && !p.dialogo.Maschere()->isEditable());
}

void TestFrmCampo::RiempireDueVolteNonRaddoppiaLeListe()
{
    Prova p;
    p.dialogo.RiempieComboImpostazioni();
    QCOMPARE(p.dialogo.Font()->count(), 2);
    QCOMPARE(p.dialogo.Dimensioni()->count(), 35);
    QCOMPARE(p.dialogo.Maschere()->count(), 128);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void TestFrmCampo::CaricaIlCampo()
{
    Prova p;
    p.CambiaSecondo([](Campo &campo) {
        campo = Campo{{QStringLiteral("Data"), 0, 0, QStringLiteral("data del documento")},
                      QStringLiteral("01/02/2003"),
                      QStringLiteral("$$$"),
                      QStringLiteral("Courier New"),
                      9,
                      Vero,
                      QStringLiteral("$$$$$")};
    });
    Lascia(p.stato, {Genere::Campo, 2}, {12.5, 40.25, 0, 0});
    p.Apre(2);
    QCOMPARE(Testo(p.dialogo, "Num"), QStringLiteral("2"));
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("Data"));
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("01/02/2003"));
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("$$$"));
    QCOMPARE(Testo(p.dialogo, "MascheraDefault"), QStringLiteral("$$$$$"));
    QCOMPARE(Testo(p.dialogo, "X"), QStringLiteral("12.5"));
    QCOMPARE(Testo(p.dialogo, "Y"), QStringLiteral("40.25"));
    QCOMPARE(Testo(p.dialogo, "Descrizione"), QStringLiteral("data del documento"));
    QVERIFY(Trova<QCheckBox>(p.dialogo, "Bold")->isChecked());
}

void TestFrmCampo::CaricaUnIndiceFuoriTabellaEErrore9()
{
    Prova p;
    for (const int indice : {101, -1}) {
        QCOMPARE(ErroreDi([&] { p.dialogo.Carica(indice); }), ErroreSistema::Indice);
    }
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("Campo2"));
}

void TestFrmCampo::LaDidascaliaSegueLaMaschera()
{
    Prova p;
    const auto didascalia = [&] {
        return Trova<QPushButton>(p.dialogo, "NonStampaCampo")->text().remove(u'&');
    };
    p.CambiaSecondo([&](Campo &campo) { campo.Maschera = QStringLiteral("No"); });
    p.Apre(2);
    QCOMPARE(didascalia(), QStringLiteral("ripristina stampa campo"));
    Digita(p.dialogo, "Maschera", QStringLiteral("NO"));
    QCOMPARE(didascalia(), QStringLiteral("non stampare campo"));
}

void TestFrmCampo::ConfermaScriveTuttiIValori()
{
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("Qta"));
    Digita(p.dialogo, "Descrizione", QStringLiteral("quantità"));
    Digita(p.dialogo, "Testo", QStringLiteral("12"));
    Digita(p.dialogo, "Maschera", QStringLiteral("###"));
    Digita(p.dialogo, "MascheraDefault", QStringLiteral("####"));
    Digita(p.dialogo, "X", QStringLiteral("1.25"));
    Digita(p.dialogo, "Y", QStringLiteral("-3"));
    p.dialogo.Font()->setCurrentText(QStringLiteral("Courier New"));
    p.dialogo.Dimensioni()->setCurrentText(QStringLiteral(" 8"));
    Preme(p.dialogo, "Bold");
    Preme(p.dialogo, "PConfemaCampo");
    const Campo atteso{{QStringLiteral("Qta"), 1, -3, QStringLiteral("quantità")},
                       QStringLiteral("12"),
                       QStringLiteral("###"),
                       QStringLiteral("Courier New"),
                       8,
                       Vero,
                       QStringLiteral("####")};
    QVERIFY(p.Secondo() == atteso);
    QCOMPARE(p.dialogo.result(), int(QDialog::Accepted));
    QVERIFY(!p.dialogo.isVisible());
    QVERIFY(p.robot.Soddisfatto());
}

void TestFrmCampo::ConfermaSegnalaAnteprimaPoiElenco()
{
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("Iva"));
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.segnali.Voci(),
             QStringList({QStringLiteral("Cambiato 2 Iva"), QStringLiteral("VoceScelta 2"),
                          QStringLiteral("chiuso")}));
}

void TestFrmCampo::InvioConferma()
{
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("Iva"));
    QTest::keyClick(Trova<QLineEdit>(p.dialogo, "Nome"), Qt::Key_Return);
    QCOMPARE(p.Secondo().Nome, QStringLiteral("Iva"));
    QVERIFY(!p.dialogo.isVisible());
}

void TestFrmCampo::InvioSuUnBottoneLoPreme()
{
    Prova p;
    p.robot.No();
    auto *elimina = Trova<QPushButton>(p.dialogo, "PEliminaCampo");
    elimina->setFocus();
    QTest::keyClick(elimina, Qt::Key_Return);
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("Elimino il campo Campo2")}));
    Trova<QLineEdit>(p.dialogo, "X")->setFocus();
    QTest::keyClick(p.dialogo.focusWidget(), Qt::Key_Return);
    QVERIFY(!p.dialogo.isVisible());
    QVERIFY(p.robot.Soddisfatto());
}

void TestFrmCampo::EscChiudeSenzaScrivere()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    Digita(p.dialogo, "Nome", QStringLiteral("Iva"));
    QTest::keyClick(Trova<QLineEdit>(p.dialogo, "Nome"), Qt::Key_Escape);
    QVERIFY(!p.dialogo.isVisible());
    QVERIFY(p.stato.Aperto() == prima);
    QCOMPARE(p.segnali.Voci(), QStringList({QStringLiteral("chiuso")}));
}

void TestFrmCampo::AprireEConfermareNonCambiaNulla()
{
    for (const QLocale &locale : {QLocale::c(), QLocale(QStringLiteral("it_IT"))}) {
        QLocale::setDefault(locale);
        Prova p;
        p.CambiaSecondo([](Campo &campo) {
            campo = Campo{{QStringLiteral("nome\tcon \x01 e\nriga"), 1.0 / 3, 1e300 / 7,
                           QStringLiteral(" a\u00A0 ")},
                          QString(40000, u'è'),
                          QString(40001, u'$'),
                          QStringLiteral("Arial"),
                          11,
                          Falso,
                          QStringLiteral("\x7F\u0081 x")};
        });
        const Modello prima = p.stato.Aperto();
        p.Apre(2);
        Preme(p.dialogo, "PConfemaCampo");
        QVERIFY(!p.dialogo.isVisible());
        QVERIFY(p.stato.Aperto() == prima);
    }
}

void TestFrmCampo::ConfermaIlProprioNome()
{
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("CAMPO2"));
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.Secondo().Nome, QStringLiteral("CAMPO2"));
}

void TestFrmCampo::NomeDiUnAltroCampo_data()
{
    QTest::addColumn<QString>("nome");
    QTest::newRow("uguale") << QStringLiteral("Campo3");
    QTest::newRow("maiuscole diverse") << QStringLiteral("cAMPO1");
}

void TestFrmCampo::NomeDiUnAltroCampo()
{
    QFETCH(QString, nome);
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Nome", nome);
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("nome già esistente")}));
    QVERIFY(p.stato.Aperto() == prima);
    QVERIFY(p.dialogo.isVisible());
    QVERIFY(p.segnali.Voci().isEmpty());
    QCOMPARE(Testo(p.dialogo, "Nome"), nome);
}

void TestFrmCampo::NomeVuotoRifiutato()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QString());
    Digita(p.dialogo, "X", QStringLiteral("abc")); // looked at only afterwards
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("Nome: non può essere vuoto")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
}

void TestFrmCampo::FineDeiCampiNonEUnNome()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QStringLiteral("FINECAMPI"));
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("Nome: FINECAMPI è riservato")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
    // The reader tells capitals apart.
    Digita(p.dialogo, "Nome", QStringLiteral("Finecampi"));
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.Secondo().Nome, QStringLiteral("Finecampi"));
}

void TestFrmCampo::TestoLungoQuantoLaMaschera()
{
    Prova p;
    Digita(p.dialogo, "Maschera", QStringLiteral("$$$"));
    Digita(p.dialogo, "Testo", QStringLiteral("abc"));
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.Secondo().Testo, QStringLiteral("abc"));
}

void TestFrmCampo::TestoPiuLungoDellaMaschera_data()
{
    QTest::addColumn<QString>("maschera");
    QTest::addColumn<bool>("rifiutato");
    QTest::newRow("un carattere in piu") << QStringLiteral("$$$") << true;
    QTest::newRow("maschera vuota") << QString() << true;
    QTest::newRow("No") << QStringLiteral("No") << false;
    QTest::newRow("nO") << QStringLiteral("nO") << false;
    QTest::newRow("non e' No") << QStringLiteral("Noo") << true;
}

void TestFrmCampo::TestoPiuLungoDellaMaschera()
{
    QFETCH(QString, maschera);
    QFETCH(bool, rifiutato);
    Prova p;
    if (rifiutato) {
        p.robot.Ok();
    }
    Digita(p.dialogo, "Maschera", maschera);
    Digita(p.dialogo, "Testo", QStringLiteral("abcd"));
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.robot.Testi(),
             rifiutato ? QStringList({QStringLiteral("Testo di prova più lungo della maschera")})
                       : QStringList());
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.dialogo.isVisible(), rifiutato);
    QCOMPARE(p.Secondo().Maschera, rifiutato ? Trenta : maschera);
}

void TestFrmCampo::IlPrimoControlloFallitoParla()
{
    Prova p;
    p.robot.Ok().Ok().Ok();
    Digita(p.dialogo, "X", QStringLiteral("abc"));
    Digita(p.dialogo, "Nome", QStringLiteral("Campo1"));
    Digita(p.dialogo, "Maschera", QStringLiteral("$"));
    Preme(p.dialogo, "PConfemaCampo");
    Digita(p.dialogo, "Maschera", Trenta);
    Preme(p.dialogo, "PConfemaCampo");
    Digita(p.dialogo, "Nome", QStringLiteral("Campo4"));
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.robot.Testi(),
             QStringList({QStringLiteral("Testo di prova più lungo della maschera"),
                          QStringLiteral("nome già esistente"),
                          QStringLiteral("Posizione X: «abc» non è un numero")}));
}

void TestFrmCampo::TestoCheNonENumero_data()
{
    QTest::addColumn<QByteArray>("casella");
    QTest::addColumn<QString>("testo");
    QTest::addColumn<QString>("messaggio");
    QTest::newRow("lettere") << QByteArray("X") << QStringLiteral("abc")
                             << QStringLiteral("Posizione X: «abc» non è un numero");
    QTest::newRow("vuoto") << QByteArray("Y") << QString()
                           << QStringLiteral("Posizione Y: manca il numero");
    QTest::newRow("misto") << QByteArray("Y") << QStringLiteral("12mm")
                           << QStringLiteral("Posizione Y: «12mm» non è un numero");
    QTest::newRow("virgola in una locale col punto")
        << QByteArray("X") << QStringLiteral("1,5")
        << QStringLiteral("Posizione X: «1,5» non è un numero");
    QTest::newRow("infinito") << QByteArray("X") << QStringLiteral("1e999")
                              << QStringLiteral("Posizione X: «1e999» non è un numero");
}

void TestFrmCampo::TestoCheNonENumero()
{
    QFETCH(QByteArray, casella);
    QFETCH(QString, testo);
    QFETCH(QString, messaggio);
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QStringLiteral("Iva"));
    Digita(p.dialogo, casella, testo);
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.robot.Testi(), QStringList({messaggio}));
    QVERIFY(p.stato.Aperto() == prima);
    QVERIFY(p.dialogo.isVisible());
    QCOMPARE(p.dialogo.focusWidget(), Trova<QWidget>(p.dialogo, casella));
}

void TestFrmCampo::NumeriConLaVirgolaDellaLocale()
{
    QLocale::setDefault(QLocale(QStringLiteral("it_IT")));
    Prova p;
    Lascia(p.stato, {Genere::Campo, 2}, {12.5, 40, 0, 0});
    p.Apre(2);
    QCOMPARE(Testo(p.dialogo, "X"), QStringLiteral("12,5"));
    Digita(p.dialogo, "X", QStringLiteral("7,25"));
    Digita(p.dialogo, "Y", QStringLiteral("8.75"));
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.Secondo().X, 7.0); // on whole millimetres
    QCOMPARE(p.Secondo().Y, 9.0);
}

void TestFrmCampo::IndiceFuoriTabellaAllaConferma()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok().Ok();
    Trova<QLineEdit>(p.dialogo, "Num")->setText(QStringLiteral("101"));
    Digita(p.dialogo, "Nome", QStringLiteral("Iva"));
    Preme(p.dialogo, "PConfemaCampo");
    Preme(p.dialogo, "PEliminaCampo");
    QCOMPARE(p.robot.Testi().size(), 2);
    for (const QString &testo : p.robot.Testi()) {
        QVERIFY2(testo.startsWith(QStringLiteral("errore 9 ")), qPrintable(testo));
    }
    QVERIFY(p.stato.Aperto() == prima);
    QVERIFY(p.segnali.Voci().isEmpty() && p.dialogo.isVisible());
}

void TestFrmCampo::CambiaMascheraVuotaNonFaNulla()
{
    Prova p;
    p.dialogo.Maschere()->setCurrentIndex(-1);
    Preme(p.dialogo, "PCambiaMaschera");
    QCOMPARE(Testo(p.dialogo, "Maschera"), Trenta);
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("prova2"));
    QVERIFY(p.robot.Soddisfatto());
}

void TestFrmCampo::DaNumericoAdAlfanumericoRifiutato()
{
    Prova p;
    p.robot.Ok();
    Digita(p.dialogo, "MascheraDefault", QStringLiteral("##,###"));
    p.Sceglie(QStringLiteral("$$$$$ 5  caratteri"));
    Preme(p.dialogo, "PCambiaMaschera");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral(
                                  "non si può cambiare la maschera da numerico ad alfanumerico")}));
    QCOMPARE(Testo(p.dialogo, "Maschera"), Trenta);
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("prova2"));
}

void TestFrmCampo::MascheraNumericaGeneraIlTesto()
{
    int estratti = 0;
    Prova p(2, [&] { return ++estratti % 2 == 1 ? 0.95 : estratti * 0.05 + 0.05; });
    p.Sceglie(QStringLiteral("###.###,### 2 decimali"));
    Preme(p.dialogo, "PCambiaMaschera");
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("###.###,###"));
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("123.456,78"));
    QCOMPARE(estratti, 16);
    p.Sceglie(QStringLiteral("#, no decimali"));
    Preme(p.dialogo, "PCambiaMaschera");
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("#,"));
    QCOMPARE(Testo(p.dialogo, "Testo").length(), 1);
    QVERIFY(p.stato.Aperto().Campi[2].Maschera == Trenta); // saved by the confirm only
}

void TestFrmCampo::MascheraAlfanumericaTogliIlNumero()
{
    Prova p;
    Digita(p.dialogo, "Testo", QStringLiteral("123.456,78"));
    p.Sceglie(QStringLiteral("$$$$$ 5  caratteri"));
    Preme(p.dialogo, "PCambiaMaschera");
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("$$$$$"));
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("Campo"));
}

void TestFrmCampo::MascheraAlfanumericaTieneIlTesto()
{
    for (const QString &testo : {QStringLiteral("abc"), QStringLiteral("0,5"), QString()}) {
        Prova p;
        Digita(p.dialogo, "Testo", testo);
        p.Sceglie(QStringLiteral("$$$$$ 5  caratteri"));
        Preme(p.dialogo, "PCambiaMaschera");
        QCOMPARE(Testo(p.dialogo, "Testo"), testo);
    }
}

void TestFrmCampo::MascheraNoDalCatalogo()
{
    Prova p;
    Digita(p.dialogo, "MascheraDefault", QStringLiteral("##,###"));
    Digita(p.dialogo, "Testo", QStringLiteral("12"));
    p.Sceglie(QStringLiteral("No non stampa"));
    Preme(p.dialogo, "PCambiaMaschera");
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("No"));
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("Ca"));
}

void TestFrmCampo::RipristinaMascheraDefault()
{
    Prova p(2, [] { return 0.7; });
    Digita(p.dialogo, "MascheraDefault", QStringLiteral("##,###"));
    p.Sceglie(QStringLiteral("No non stampa"));
    Preme(p.dialogo, "PMascheraDefault");
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("##,###"));
    QCOMPARE(p.dialogo.Maschere()->currentText(), QStringLiteral("##,### 2 decimali"));
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("77,77"));
}

void TestFrmCampo::RipristinaUnaMascheraFuoriCatalogo()
{
    Prova p;
    Digita(p.dialogo, "MascheraDefault", QStringLiteral("gg/mm"));
    p.Sceglie(QStringLiteral("No non stampa"));
    Preme(p.dialogo, "PMascheraDefault");
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("gg/mm"));
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("prova2"));
}

void TestFrmCampo::NonStampareESalvaSubito()
{
    Prova p;
    Preme(p.dialogo, "NonStampaCampo");
    QCOMPARE(p.Secondo().Maschera, QStringLiteral("No"));
    QCOMPARE(p.Secondo().MascheraDefault, Trenta);
    QCOMPARE(p.segnali.Voci(),
             QStringList({QStringLiteral("Cambiato 2 Campo2"), QStringLiteral("VoceScelta 2"),
                          QStringLiteral("chiuso")}));
}

void TestFrmCampo::RipristinaStampaESalvaSubito()
{
    Prova p(1, [] { return 0.4; });
    p.CambiaSecondo([&](Campo &campo) { campo.Maschera = QStringLiteral("No"); });
    p.CambiaSecondo([&](Campo &campo) { campo.MascheraDefault = QStringLiteral("###,"); });
    p.Apre(2);
    Preme(p.dialogo, "NonStampaCampo");
    QCOMPARE(p.Secondo().Maschera, QStringLiteral("###,"));
    QCOMPARE(p.Secondo().Testo, QStringLiteral("444"));
    QVERIFY(!p.dialogo.isVisible());
}

void TestFrmCampo::NonStampareConNomeDoppioNonSalva()
{
    Prova p;
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QStringLiteral("campo1"));
    Preme(p.dialogo, "NonStampaCampo");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("nome già esistente")}));
    QCOMPARE(p.Secondo().Maschera, Trenta);
    QVERIFY(p.dialogo.isVisible());
}

void TestFrmCampo::FontSuTuttiICampi()
{
    Prova p;
    Cambia(p.stato, [&](Modello &modello) { modello.Campi[3].Nome.clear(); });
    Modello atteso = p.stato.Aperto();
    for (int i = 1; i <= 3; ++i) {
        atteso.Campi[i].Font = QStringLiteral("Courier New");
        atteso.Campi[i].Dimensione = 40;
        atteso.Campi[i].Grassetto = Vero;
    }
    p.dialogo.Font()->setCurrentText(QStringLiteral("Courier New"));
    p.dialogo.Dimensioni()->setCurrentText(QStringLiteral("40"));
    Preme(p.dialogo, "Bold");
    Digita(p.dialogo, "Nome", QStringLiteral("altro"));
    Preme(p.dialogo, "Command2");
    QVERIFY(p.stato.Aperto() == atteso);
    QCOMPARE(p.segnali.Voci(),
             QStringList({QStringLiteral("Cambiato 1 Campo1"), QStringLiteral("Cambiato 2 Campo2"),
                          QStringLiteral("Cambiato 3 ")}));
    QVERIFY(p.dialogo.isVisible());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void TestFrmCampo::FontSuTuttiCon101Campi()
{
    Prova p;
    Cambia(p.stato, [&](Modello &modello) { modello.NumCampi = 101; });
    Digita(p.dialogo, "Nome", QStringLiteral("Iva"));
    Preme(p.dialogo, "Command2");
    QCOMPARE(p.segnali.Voci().size(), 100);
    Preme(p.dialogo, "PConfemaCampo");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.Secondo().Nome, QStringLiteral("Iva"));
}

void TestFrmCampo::EliminaConNo()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.No();
    Digita(p.dialogo, "Nome", QStringLiteral("altro"));
    Preme(p.dialogo, "PEliminaCampo");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("Elimino il campo Campo2")}));
    QCOMPARE(p.robot.Predefiniti(), QStringList({QStringLiteral("&No")}));
    QVERIFY(p.stato.Aperto() == prima);
    QVERIFY(p.dialogo.isVisible() && p.segnali.Voci().isEmpty());
}

void TestFrmCampo::EliminaConSi()
{
    Prova p;
    Modello atteso = p.stato.Aperto();
    atteso.Campi[2].Nome.clear();
    p.robot.Si();
    Preme(p.dialogo, "PEliminaCampo");
    QVERIFY(p.stato.Aperto() == atteso);
    QCOMPARE(p.segnali.Voci(),
             QStringList({QStringLiteral("Cambiato 2  ELIMINATO: Campo2"),
                          QStringLiteral("VoceScelta 2"), QStringLiteral("chiuso")}));
}

void TestFrmCampo::DoppioClicSulNome()
{
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("Totale"));
    QTest::mouseDClick(Trova<QLineEdit>(p.dialogo, "Nome"), Qt::LeftButton);
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("Totale"));
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("Totale"));
}

void TestFrmCampo::Numero_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<bool>("valido");
    QTest::newRow("400") << QStringLiteral("400") << true;
    QTest::newRow("negativo") << QStringLiteral("-5000") << true;
    QTest::newRow("decimali") << QStringLiteral("12.5") << true;
    QTest::newRow("401") << QStringLiteral("401") << false;
    QTest::newRow("400.1") << QStringLiteral("400.1") << false;
    QTest::newRow("lettere") << QStringLiteral("abc") << false;
    QTest::newRow("vuoto") << QString() << false;
}

void TestFrmCampo::Numero()
{
    QFETCH(QString, testo);
    QFETCH(bool, valido);
    QLineEdit casella(testo);
    QCOMPARE(FrmElemento::Numero(&casella), valido);
    QCOMPARE(casella.text(), valido ? testo : QStringLiteral("0"));
}

void TestFrmCampo::SoloCaratteriDelCodice()
{
    Prova p;
    Digita(p.dialogo, "Descrizione", QStringLiteral("prezzo € \u4E2D\u6587 più"));
    QCOMPARE(Testo(p.dialogo, "Descrizione"), QStringLiteral("prezzo €  più"));
}

void TestFrmCampo::StaInUnoSchermoPiccolo()
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

QTEST_MAIN(TestFrmCampo)
#include "tst_FrmCampo.moc"
