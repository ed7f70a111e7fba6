#include "dialogs/FrmCampo.h"

#include "dialogs/DialogoDiProva.h"
#include "dialogs/Mnemonici.h"
#include "model/FileModello.h"

#include <QCheckBox>
#include <QPushButton>

using namespace Controlli;

namespace {

const auto Trenta = QString(30, u'$');

/// The dialog of a field with the editor's part in choosing the mask.
struct Prova : DialogoDiProva
{
    explicit Prova(int indice = 2, SorgenteCasuale casuale = {})
        : DialogoDiProva(Genere::Campo, QStringLiteral("Campo%1"), std::move(casuale))
        , dialogo(static_cast<FrmCampo &>(*DialogoDiProva::dialogo))
    {
        QObject::connect(&dialogo, &FrmCampo::SettaComboMaskRichiesto, &dialogo,
                         [this] { SettaComboMask(); });
        Apre(indice);
    }

    void Apre(int indice)
    {
        Carica(indice);
        SettaComboMask();
        Mostra();
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

    FrmCampo &dialogo;
};

} // namespace

class tst_FrmCampo : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void TitoloNomiETesti();
    void DidascalieDelleCaselle_data();
    void DidascalieDelleCaselle();
    void MnemoniciUniciRipristinandoLaStampa();
    void ListaDelleMaschere();
    void RiempireDueVolteNonRaddoppiaLeMaschere();
    void CaricaIlCampo();
    void LaDidascaliaSegueLaMaschera();

    void ConfermaScriveTuttiIValori();
    void UnMarcatoreEUnNomeComeGliAltri();
    void TestoLungoQuantoLaMaschera();
    void TestoPiuLungoDellaMaschera_data();
    void TestoPiuLungoDellaMaschera();
    void IlPrimoControlloFallitoParla();

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
};

void tst_FrmCampo::TitoloNomiETesti()
{
    const Prova p;
    QCOMPARE(p.dialogo.objectName(), QStringLiteral("FrmCampo"));
    QCOMPARE(p.dialogo.windowTitle(), QStringLiteral("Modifica impostazioni Campo"));
    VerificaBottoni(p.dialogo, {{"PEliminaCampo", "Elimina campo"},
                                {"Bold", "bold"},
                                {"Command2", "imposta questo font su tutti i campi"},
                                {"NonStampaCampo", "non stampare campo"},
                                {"PConfemaCampo", "Conferma impostazioni campo"},
                                {"PCambiaMaschera", "Cambia maschera"},
                                {"PMascheraDefault", "Ripristina maschera default"}});
    VerificaSuggerimenti(
        p.dialogo, {{"Testo", "scritta che compare sull'anteprima"},
                    {"X", "coordinate in millimetri"},
                    {"Y", "coordinate in millimetri"},
                    {"ComboFont", "elenco fonts di caratteri disponibili"},
                    {"ComboDim", "dimensione carattere"},
                    {"Bold", "grassetto"},
                    {"Command2", "sostituisce su tutti i campi il font"},
                    {"PConfemaCampo", "click per aggiornare il font sull'anteprima"},
                    {"ComboMask", "selezione maschera di stampa diversa da quella prefissata"}});
}

void tst_FrmCampo::DidascalieDelleCaselle_data()
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

void tst_FrmCampo::DidascalieDelleCaselle()
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

void tst_FrmCampo::MnemoniciUniciRipristinandoLaStampa()
{
    Prova p;
    Digita(p.dialogo, "Maschera", QStringLiteral("No"));
    QCOMPARE(Trova<QAbstractButton>(p.dialogo, "NonStampaCampo")->text().remove(u'&'),
             QStringLiteral("ripristina stampa campo"));
    QCOMPARE(MnemoniciRipetuti(p.dialogo, 15), QStringList());
}

void tst_FrmCampo::ListaDelleMaschere()
{
    const Prova p;
    QCOMPARE(p.dialogo.Maschere()->count(), 128);
    QVERIFY(QFontInfo(p.dialogo.Maschere()->font()).fixedPitch());
    QVERIFY(!p.dialogo.Maschere()->isEditable());
}

void tst_FrmCampo::RiempireDueVolteNonRaddoppiaLeMaschere()
{
    Prova p;
    p.dialogo.RiempieComboImpostazioni();
    QCOMPARE(p.dialogo.Maschere()->count(), 128);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void tst_FrmCampo::CaricaIlCampo()
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

void tst_FrmCampo::LaDidascaliaSegueLaMaschera()
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

void tst_FrmCampo::ConfermaScriveTuttiIValori()
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

void tst_FrmCampo::UnMarcatoreEUnNomeComeGliAltri()
{
    // The reader looks for the end of the fields where a field's block opens, not at its name.
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("FINECAMPI"));
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.dialogo.result(), int(QDialog::Accepted));
    QCOMPARE(p.Secondo().Nome, QStringLiteral("FINECAMPI"));
    Modello riletto;
    FileModello::Analizza(FileModello::Componi(p.stato.Aperto()), riletto);
    QCOMPARE(riletto.NumCampi, p.stato.Aperto().NumCampi);
    QVERIFY(riletto.Campi[2] == p.Secondo());
}

void tst_FrmCampo::TestoLungoQuantoLaMaschera()
{
    Prova p;
    Digita(p.dialogo, "Maschera", QStringLiteral("$$$"));
    Digita(p.dialogo, "Testo", QStringLiteral("abc"));
    Preme(p.dialogo, "PConfemaCampo");
    QCOMPARE(p.Secondo().Testo, QStringLiteral("abc"));
}

void tst_FrmCampo::TestoPiuLungoDellaMaschera_data()
{
    QTest::addColumn<QString>("maschera");
    QTest::addColumn<bool>("rifiutato");
    QTest::newRow("un carattere in piu") << QStringLiteral("$$$") << true;
    QTest::newRow("maschera vuota") << QString() << true;
    QTest::newRow("No") << QStringLiteral("No") << false;
    QTest::newRow("nO") << QStringLiteral("nO") << false;
    QTest::newRow("non e' No") << QStringLiteral("Noo") << true;
}

void tst_FrmCampo::TestoPiuLungoDellaMaschera()
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

void tst_FrmCampo::IlPrimoControlloFallitoParla()
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

void tst_FrmCampo::CambiaMascheraVuotaNonFaNulla()
{
    Prova p;
    p.dialogo.Maschere()->setCurrentIndex(-1);
    Preme(p.dialogo, "PCambiaMaschera");
    QCOMPARE(Testo(p.dialogo, "Maschera"), Trenta);
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("prova2"));
    QVERIFY(p.robot.Soddisfatto());
}

void tst_FrmCampo::DaNumericoAdAlfanumericoRifiutato()
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

void tst_FrmCampo::MascheraNumericaGeneraIlTesto()
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

void tst_FrmCampo::MascheraAlfanumericaTogliIlNumero()
{
    Prova p;
    Digita(p.dialogo, "Testo", QStringLiteral("123.456,78"));
    p.Sceglie(QStringLiteral("$$$$$ 5  caratteri"));
    Preme(p.dialogo, "PCambiaMaschera");
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("$$$$$"));
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("Campo"));
}

void tst_FrmCampo::MascheraAlfanumericaTieneIlTesto()
{
    for (const QString &testo : {QStringLiteral("abc"), QStringLiteral("0,5"), QString()}) {
        Prova p;
        Digita(p.dialogo, "Testo", testo);
        p.Sceglie(QStringLiteral("$$$$$ 5  caratteri"));
        Preme(p.dialogo, "PCambiaMaschera");
        QCOMPARE(Testo(p.dialogo, "Testo"), testo);
    }
}

void tst_FrmCampo::MascheraNoDalCatalogo()
{
    Prova p;
    Digita(p.dialogo, "MascheraDefault", QStringLiteral("##,###"));
    Digita(p.dialogo, "Testo", QStringLiteral("12"));
    p.Sceglie(QStringLiteral("No non stampa"));
    Preme(p.dialogo, "PCambiaMaschera");
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("No"));
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("Ca"));
}

void tst_FrmCampo::RipristinaMascheraDefault()
{
    Prova p(2, [] { return 0.7; });
    Digita(p.dialogo, "MascheraDefault", QStringLiteral("##,###"));
    p.Sceglie(QStringLiteral("No non stampa"));
    Preme(p.dialogo, "PMascheraDefault");
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("##,###"));
    QCOMPARE(p.dialogo.Maschere()->currentText(), QStringLiteral("##,### 2 decimali"));
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("77,77"));
}

void tst_FrmCampo::RipristinaUnaMascheraFuoriCatalogo()
{
    Prova p;
    Digita(p.dialogo, "MascheraDefault", QStringLiteral("gg/mm"));
    p.Sceglie(QStringLiteral("No non stampa"));
    Preme(p.dialogo, "PMascheraDefault");
    QCOMPARE(Testo(p.dialogo, "Maschera"), QStringLiteral("gg/mm"));
    QCOMPARE(Testo(p.dialogo, "Testo"), QStringLiteral("prova2"));
}

void tst_FrmCampo::NonStampareESalvaSubito()
{
    Prova p;
    Preme(p.dialogo, "NonStampaCampo");
    QCOMPARE(p.Secondo().Maschera, QStringLiteral("No"));
    QCOMPARE(p.Secondo().MascheraDefault, Trenta);
    p.VerificaConcluso(QStringLiteral("Campo2"));
}

void tst_FrmCampo::RipristinaStampaESalvaSubito()
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

void tst_FrmCampo::NonStampareConNomeDoppioNonSalva()
{
    Prova p;
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QStringLiteral("campo1"));
    Preme(p.dialogo, "NonStampaCampo");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("nome già esistente")}));
    QCOMPARE(p.Secondo().Maschera, Trenta);
    QVERIFY(p.dialogo.isVisible());
}

void tst_FrmCampo::FontSuTuttiICampi()
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
    QCOMPARE(p.chiamante->Cambiati(), QList<int>({1, 2, 3}));
    QCOMPARE(p.chiamante->Scelta(), 0);
    QCOMPARE(p.stato.documento.Voce({Genere::Campo, 1}), QStringLiteral("Campo1"));
    QCOMPARE(p.stato.documento.Voce({Genere::Campo, 2}), QStringLiteral("Campo2"));
    QCOMPARE(p.stato.documento.Voce({Genere::Campo, 3}), QString());
    QVERIFY(p.dialogo.isVisible());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void tst_FrmCampo::FontSuTuttiCon101Campi()
{
    Prova p;
    Cambia(p.stato, [&](Modello &modello) { modello.NumCampi = 101; });
    Digita(p.dialogo, "Nome", QStringLiteral("Iva"));
    Preme(p.dialogo, "Command2");
    QCOMPARE(p.chiamante->Cambiati().size(), 100);
    Preme(p.dialogo, "PConfemaCampo");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.Secondo().Nome, QStringLiteral("Iva"));
}

QTEST_MAIN(tst_FrmCampo)
#include "tst_FrmCampo.moc"
