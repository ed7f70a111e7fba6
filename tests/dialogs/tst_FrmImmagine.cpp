#include "dialogs/FrmImmagine.h"

#include "dialogs/Mnemonici.h"
#include "dialogs/RegistroSegnali.h"
#include "finestre/Finestre.h"
#include "support/Controlli.h"
#include "support/DocumentoDiProva.h"
#include "support/Errori.h"
#include "support/ImmaginiDiProva.h"
#include "support/ImmaginiRare.h"
#include "support/Robot.h"

#include <QDir>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtEndian>

using namespace Controlli;

namespace {

constexpr double PuntiPerPollice = 254; // 10 pixels for each millimetre

/// A picture of so many millimetres, in the format of its name's ending.
QByteArray Figura(const char *formato, int larghezza, int altezza)
{
    return ImmaginiDiProva::InFormato(
        ImmaginiDiProva::Tinta({larghezza * 10, altezza * 10}, qRgb(200, 30, 30)), formato,
        PuntiPerPollice);
}

/// A model of three pictures, a folder with files, and the dialog opened on the second picture, as
/// the editor opens it.
struct Prova
{
    explicit Prova(int indice = 2)
        : dialogo((Riempie(stato, cartella), stato))
        , segnali(stato, dialogo)
    {
        dialogo.setModal(false); // the robot looks for modal boxes only
        Apre(indice);
    }

    void Apre(int indice)
    {
        dialogo.Carica(indice);
        dialogo.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialogo));
        dialogo.activateWindow();
    }

    static void Riempie(StatoProgramma &stato, const QTemporaryDir &cartella)
    {
        stato.CartellaModelli = cartella.path() + QDir::separator();
        Cambia(stato, [](Modello &modello) {
            for (int i = 1; i <= 3; ++i) {
                const int n = modello.AggiungeImmagine(10 * i, 20 * i);
                modello.Immagini[n].Nome = QStringLiteral("vecchia%1.bmp").arg(i);
            }
        });
    }

    /// Adds a file to the folder and shows the second picture again.
    void Aggiunge(const char *nome, const QByteArray &byte)
    {
        ImmaginiDiProva::Scrive(cartella.filePath(QString::fromUtf8(nome)), byte);
        Apre(2);
    }

    /// nome: UTF-8.
    void Clicca(const char *nome)
    {
        auto *elenco = Trova<QListWidget>(dialogo, "FileImmagini");
        const QList<QListWidgetItem *> voci =
            elenco->findItems(QString::fromUtf8(nome), Qt::MatchExactly);
        QCOMPARE(voci.size(), 1);
        elenco->scrollToItem(voci.first());
        QTest::mouseClick(elenco->viewport(), Qt::LeftButton, Qt::NoModifier,
                          elenco->visualItemRect(voci.first()).center());
    }

    void CambiaSeconda(const std::function<void(Immagine &)> &cambia)
    {
        Cambia(stato, [&](Modello &modello) { cambia(modello.Immagini[2]); });
    }
    const Immagine &Seconda() const { return stato.Aperto().Immagini[2]; }

    QTemporaryDir cartella;
    StatoProgramma stato;
    FrmImmagine dialogo;
    RegistroSegnali segnali;
    Robot robot;
};

} // namespace

class TestFrmImmagine : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void TitoloNomiETesti();
    void MnemoniciUnici();
    void OgniControlloHaLArgomentoDellaGuida();
    void ElencoDeiFile();
    void CartellaCheNonCePiu();
    void CaricaLImmagine();
    void CaricaUnIndiceFuoriTabellaEErrore9();

    void GrandeProponeLaRiduzione();
    void PropostaCambiata();
    void SoloAltaProponeDallaLarghezza();
    void PiccolaSenzaDomanda();
    void Soglie_data();
    void Soglie();
    void RispostaZeroVuotaOAnnullata_data();
    void RispostaZeroVuotaOAnnullata();
    void PercentualeTroppoGrandeDetta_data();
    void PercentualeTroppoGrandeDetta();
    void MentreChiedeMostraLaLarghezza();
    void FormatiLetti_data();
    void FormatiLetti();
    void ScansioneA4A600PuntiPerPollice();
    void ClessidraMentreMisura();
    void FotografiaRuotata();
    void DanneggiataOMancanteSenzaDomanda_data();
    void DanneggiataOMancanteSenzaDomanda();
    void IlleggibileDettaSottoLElenco();
    void AprendoSiDiceSeNonSiLegge_data();
    void AprendoSiDiceSeNonSiLegge();
    void NomeCheIlModelloNonPuoContenere_data();
    void NomeCheIlModelloNonPuoContenere();
    void ScrittaSubitoAncheSeSiChiude();
    void MisuraNonNumericaNonScrittaSubito();
    void RimisuraLImmagineScelta();
    void IndiceFuoriTabellaNellaMisura();
    void SceltaConLaTastiera();
    void ConLaVirgolaDellaLocale();

    void ConfermaScriveTuttiIValori();
    void ConfermaSegnalaAnteprimaPoiElenco();
    void InvioConfermaEdEscNo();
    void AprireEConfermareNonCambiaNulla();
    void ConfermaSenzaImmagineElimina();
    void FileDiUnAltraImmagine();
    void TestoCheNonENumero_data();
    void TestoCheNonENumero();
    void Con101Immagini();
    void EliminaConNo();
    void EliminaConSi();
    void StaInUnoSchermoPiccolo();
};

void TestFrmImmagine::TitoloNomiETesti()
{
    const Prova p;
    QCOMPARE(p.dialogo.objectName(), QStringLiteral("FrmImmagine"));
    QCOMPARE(p.dialogo.windowTitle(), QStringLiteral("Modifica impostazioni Immagine"));
    QCOMPARE(Trova<QPushButton>(p.dialogo, "Elimina")->text().remove(u'&'),
             QStringLiteral("Elimina immagine"));
    QCOMPARE(Trova<QPushButton>(p.dialogo, "Confema")->text().remove(u'&'),
             QStringLiteral("Conferma impostazioni immagine"));
    QCOMPARE(Trova<QWidget>(p.dialogo, "Confema")->toolTip(),
             QStringLiteral("click per aggiornare il font sull'anteprima"));
    for (const char *casella : {"X", "Y"}) {
        QCOMPARE(Trova<QWidget>(p.dialogo, casella)->toolTip(),
                 QStringLiteral("coordinate in millimetri"));
    }
    QStringList etichette;
    for (const QLabel *etichetta : p.dialogo.findChildren<QLabel *>()) {
        etichette.append(etichetta->text().remove(u'&'));
    }
    for (const char *testo :
         {"Immagine selezionata", "immagine disponibili nella cartella:", "Larghezza/Altezza ",
          "Posizione X/Y", "Bordo (0=no 1=si) NIN utilizzato",
          "si possono inserire le immagini contenute in:"}) {
        QVERIFY2(etichette.contains(QString::fromUtf8(testo)), testo);
    }
    QCOMPARE(Trova<QLabel>(p.dialogo, "Label4")->text(), p.stato.CartellaModelli);
}

void TestFrmImmagine::MnemoniciUnici()
{
    const Prova p;
    QCOMPARE(MnemoniciRipetuti(p.dialogo, 9), QStringList());
}

void TestFrmImmagine::OgniControlloHaLArgomentoDellaGuida()
{
    const Prova p;
    for (const QWidget *controllo : p.dialogo.findChildren<QWidget *>()) {
        QCOMPARE(ArgomentoDi(controllo), ArgomentoGuida);
    }
}

void TestFrmImmagine::ElencoDeiFile()
{
    Prova p;
    for (const char *nome : {"logo.jpg", "senzapuntojpg", "TIMBRO.BMP", "firma.Gif", "foto.jpeg",
                             "disegno.png", "fattura.Mod", "logo.jpg.txt"}) {
        ImmaginiDiProva::Scrive(p.cartella.filePath(QString::fromLatin1(nome)), "x");
    }
    QVERIFY(QDir(p.cartella.path()).mkdir(QStringLiteral("cartella.jpg")));
    p.Apre(2);
    const auto *elenco = Trova<QListWidget>(p.dialogo, "FileImmagini");
    QStringList voci;
    for (int i = 0; i < elenco->count(); ++i) {
        voci.append(elenco->item(i)->text());
    }
    QCOMPARE(voci, QStringList({QStringLiteral("firma.Gif"), QStringLiteral("logo.jpg"),
                                QStringLiteral("senzapuntojpg"), QStringLiteral("TIMBRO.BMP")}));
}

void TestFrmImmagine::CartellaCheNonCePiu()
{
    Prova p;
    QVERIFY(p.cartella.remove());
    p.robot.Ok();
    p.Apre(3);
    QVERIFY2(p.robot.Testi().value(0).startsWith(QStringLiteral("errore 76 ")),
             qPrintable(p.robot.Testi().value(0)));
    QCOMPARE(Trova<QListWidget>(p.dialogo, "FileImmagini")->count(), 0);
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("vecchia3.bmp"));
}

void TestFrmImmagine::CaricaLImmagine()
{
    Prova p;
    p.CambiaSeconda([](Immagine &immagine) {
        immagine = Immagine{
            {QStringLiteral("LOGO.bmp"), 1.5, 2.5, QStringLiteral("il logo")}, 30.25, 60.5, 1};
    });
    p.Aggiunge("logo.bmp", Figura("bmp", 5, 5));
    const QList<std::pair<const char *, const char *>> attesi{
        {"Num", "2"},     {"Nome", "LOGO.bmp"}, {"X", "1.5"},   {"Y", "2.5"},
        {"Alt", "30.25"}, {"Largh", "60.5"},    {"Bordo", "1"}, {"Descrizione", "il logo"}};
    for (const auto &[casella, testo] : attesi) {
        QCOMPARE(Testo(p.dialogo, casella), QString::fromUtf8(testo));
    }
    QVERIFY(Trova<QListWidget>(p.dialogo, "FileImmagini")->currentItem() != nullptr);
    QVERIFY(p.segnali.Voci().isEmpty());
}

void TestFrmImmagine::CaricaUnIndiceFuoriTabellaEErrore9()
{
    Prova p;
    QCOMPARE(ErroreDi([&] { p.dialogo.Carica(101); }), ErroreSistema::Indice);
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("vecchia2.bmp"));
}

void TestFrmImmagine::GrandeProponeLaRiduzione()
{
    Prova p;
    p.Aggiunge("grande.bmp", Figura("bmp", 250, 100));
    p.robot.Digita(QStringLiteral("78"));
    p.Clicca("grande.bmp");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.robot.Titoli(), QStringList({QStringLiteral("caricamento immagine grande.bmp")}));
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral(
                                  "Impostare la % di riduzione delle dimensioni dell'immagine")}));
    QCOMPARE(p.robot.Predefiniti(), QStringList({QStringLiteral("78")}));
    QCOMPARE(Testo(p.dialogo, "Largh"), QStringLiteral("195"));
    QCOMPARE(Testo(p.dialogo, "Alt"), QStringLiteral("78"));
    QCOMPARE(p.Seconda().Nome, QStringLiteral("grande.bmp"));
    QCOMPARE(p.Seconda().Larghezza, 195.0);
    QCOMPARE(p.Seconda().Altezza, 78.0);
    QCOMPARE(p.segnali.Voci(), QStringList({QStringLiteral("Ricollocato 2")}));
    QVERIFY(p.dialogo.isVisible());
}

void TestFrmImmagine::PropostaCambiata()
{
    Prova p;
    p.Aggiunge("grande.bmp", Figura("bmp", 250, 100));
    p.robot.Digita(QStringLiteral("12.5 %"));
    p.Clicca("grande.bmp");
    QCOMPARE(Testo(p.dialogo, "Largh"), QStringLiteral("31.25"));
    QCOMPARE(p.Seconda().Larghezza, 31.25);
    QCOMPARE(p.Seconda().Altezza, 12.5);
}

void TestFrmImmagine::SoloAltaProponeDallaLarghezza()
{
    Prova p;
    p.Aggiunge("alta.bmp", Figura("bmp", 16, 40));
    p.robot.Digita(QStringLiteral("50"));
    p.Clicca("alta.bmp");
    // 19500 / 16 = 1218.75
    QCOMPARE(p.robot.Predefiniti(), QStringList({QStringLiteral("1219")}));
    QCOMPARE(p.Seconda().Larghezza, 8.0);
    QCOMPARE(p.Seconda().Altezza, 20.0);
}

void TestFrmImmagine::PiccolaSenzaDomanda()
{
    Prova p;
    p.Aggiunge("piccola.bmp", Figura("bmp", 15, 25));
    p.Clicca("piccola.bmp");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("piccola.bmp"));
    QCOMPARE(p.Seconda().Nome, QStringLiteral("piccola.bmp"));
    QCOMPARE(p.Seconda().Larghezza, 50.0);
    QCOMPARE(p.Seconda().Altezza, 10.0);
    QCOMPARE(p.segnali.Voci(), QStringList({QStringLiteral("Ricollocato 2")}));
}

void TestFrmImmagine::Soglie_data()
{
    QTest::addColumn<int>("larghezza");
    QTest::addColumn<int>("altezza");
    QTest::addColumn<bool>("domanda");
    QTest::newRow("19x29") << 19 << 29 << false;
    QTest::newRow("20x5") << 20 << 5 << true;
    QTest::newRow("5x30") << 5 << 30 << true;
}

void TestFrmImmagine::Soglie()
{
    QFETCH(int, larghezza);
    QFETCH(int, altezza);
    QFETCH(bool, domanda);
    Prova p;
    p.Aggiunge("soglia.bmp", Figura("bmp", larghezza, altezza));
    if (domanda) {
        p.robot.Digita(QStringLiteral("100"));
    }
    p.Clicca("soglia.bmp");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.robot.Testi().size(), domanda ? 1 : 0);
}

void TestFrmImmagine::RispostaZeroVuotaOAnnullata_data()
{
    QTest::addColumn<QString>("risposta"); // null = cancelled
    QTest::newRow("0") << QStringLiteral("0");
    QTest::newRow("vuota") << QStringLiteral("");
    QTest::newRow("lettere") << QStringLiteral("abc");
    QTest::newRow("annullata") << QString();
}

void TestFrmImmagine::RispostaZeroVuotaOAnnullata()
{
    QFETCH(QString, risposta);
    Prova p;
    p.Aggiunge("grande.bmp", Figura("bmp", 250, 100));
    const Modello prima = p.stato.Aperto();
    if (risposta.isNull()) {
        p.robot.Annulla();
    } else {
        p.robot.Digita(risposta);
    }
    p.Clicca("grande.bmp");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY(p.stato.Aperto() == prima);
    QCOMPARE(Testo(p.dialogo, "Largh"), QStringLiteral("50"));
    QCOMPARE(Testo(p.dialogo, "Alt"), QStringLiteral("10"));
    QVERIFY(p.segnali.Voci().isEmpty());
}

void TestFrmImmagine::PercentualeTroppoGrandeDetta_data()
{
    QTest::addColumn<QString>("risposta");
    QTest::newRow("oltre un doppio") << QStringLiteral("1e400");
    QTest::newRow("misura oltre un doppio") << QStringLiteral("1e308");
}

void TestFrmImmagine::PercentualeTroppoGrandeDetta()
{
    QFETCH(QString, risposta);
    Prova p;
    p.Aggiunge("grande.bmp", Figura("bmp", 250, 100));
    const Modello prima = p.stato.Aperto();
    p.robot.Digita(risposta).Ok();
    p.Clicca("grande.bmp");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.robot.Testi().value(1),
             QStringLiteral("Percentuale: «%1» è un numero troppo grande").arg(risposta));
    QVERIFY(p.stato.Aperto() == prima);
    QCOMPARE(Testo(p.dialogo, "Largh"), QStringLiteral("50"));
    QCOMPARE(Testo(p.dialogo, "Alt"), QStringLiteral("10"));
    QVERIFY(p.segnali.Voci().isEmpty());
}

void TestFrmImmagine::MentreChiedeMostraLaLarghezza()
{
    Prova p;
    // 1000 pixels at 300 dpi are 84.66667 mm in single precision.
    p.Aggiunge("trecento.bmp", ImmaginiDiProva::InFormato(
                                   ImmaginiDiProva::Tinta({1000, 10}, qRgb(0, 0, 0)), "bmp", 300));
    QString mostrata;
    p.robot.Agisce([&](QDialog *domanda) {
        mostrata = Testo(p.dialogo, "Largh");
        domanda->reject();
    });
    p.Clicca("trecento.bmp");
    QVERIFY2(mostrata.startsWith(QStringLiteral("84.66")), qPrintable(mostrata));
    QVERIFY(mostrata.length() <= 8);
}

void TestFrmImmagine::FormatiLetti_data()
{
    QTest::addColumn<QByteArray>("nome");
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<bool>("grande");
    QTest::newRow("JPEG") << QByteArray("a.jpg") << Figura("jpeg", 40, 10) << true;
    QTest::newRow("JPEG senza punto") << QByteArray("ajpg") << Figura("jpeg", 40, 10) << true;
    QTest::newRow("JPEG CMYK") << QByteArray("c.jpg") << ImmaginiDiProva::JpegCmyk() << false;
    QTest::newRow("BMP") << QByteArray("a.bmp") << Figura("bmp", 40, 10) << true;
    QTest::newRow("GIF") << QByteArray("a.gif") << ImmaginiDiProva::GifTrasparente() << false;
    QTest::newRow("GIF animata") << QByteArray("b.gif") << ImmaginiDiProva::GifAnimata() << false;
    for (const ImmaginiRare::Rara &rara : ImmaginiRare::Tutte()) {
        QTest::newRow(rara.Nome) << QByteArray("r.bmp") << rara.Byte << false;
    }
}

void TestFrmImmagine::FormatiLetti()
{
    QFETCH(QByteArray, nome);
    QFETCH(QByteArray, byte);
    QFETCH(bool, grande);
    Prova p;
    p.Aggiunge(nome.constData(), byte);
    if (grande) {
        p.robot.Digita(QStringLiteral("50"));
    }
    p.Clicca(nome.constData());
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.robot.Testi().size(), grande ? 1 : 0);
    QCOMPARE(p.Seconda().Nome, QString::fromLatin1(nome));
    QCOMPARE(qRound(p.Seconda().Larghezza), grande ? 20 : 50);
    QVERIFY(!Trova<QLabel>(p.dialogo, "AvvisoImmagine")->isVisible());
}

void TestFrmImmagine::ScansioneA4A600PuntiPerPollice()
{
    Prova p;
    const QImage foglio = ImmaginiDiProva::Tinta({4960, 7016}, qRgb(255, 255, 255));
    p.Aggiunge("scansione.jpg", ImmaginiDiProva::InFormato(foglio, "jpeg", 600));
    p.robot.Digita(QStringLiteral("10"));
    p.Clicca("scansione.jpg");
    QCOMPARE(p.robot.Predefiniti(), QStringList({QStringLiteral("93")}));
    QCOMPARE(qRound(p.Seconda().Larghezza), 21);
    QCOMPARE(qRound(p.Seconda().Altezza * 10), 297);
}

void TestFrmImmagine::ClessidraMentreMisura()
{
    // The decoder complains of a few bytes that lack before the picture's end, and so tells when it
    // is at work.
    QByteArray byte = Figura("jpeg", 100, 40);
    byte.remove(byte.size() - 22, 20);
    Prova p;
    p.Aggiunge("foto.jpg", byte);
    bool normaleMentreChiede = false;
    p.robot.Agisce([&](QDialog *domanda) {
        normaleMentreChiede = QGuiApplication::overrideCursor() == nullptr;
        domanda->reject();
    });
    static QList<int> puntatori;
    puntatori.clear();
    const QtMessageHandler prima =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &testo) {
            if (testo.contains(QLatin1String("JPEG"))) {
                const QCursor *puntatore = QGuiApplication::overrideCursor();
                puntatori.append(puntatore == nullptr ? -1 : int(puntatore->shape()));
            }
        });
    p.Clicca("foto.jpg");
    qInstallMessageHandler(prima);
    QVERIFY(!puntatori.isEmpty());
    for (const int puntatore : std::as_const(puntatori)) {
        QCOMPARE(puntatore, int(Qt::WaitCursor));
    }
    QVERIFY(normaleMentreChiede);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void TestFrmImmagine::FotografiaRuotata()
{
    // Orientation 6 of a camera: the stored width is the height that is seen.
    const QByteArray ruota =
        QByteArray::fromHex("ffe100224578696600004d4d002a000000080001011200030000000100060000"
                            "00000000");
    QByteArray byte = Figura("jpeg", 100, 40);
    byte.insert(2, ruota);
    Prova p;
    p.Aggiunge("foto.jpg", byte);
    p.robot.Digita(QStringLiteral("50"));
    p.Clicca("foto.jpg");
    QCOMPARE(qRound(p.Seconda().Larghezza), 20);
    QCOMPARE(qRound(p.Seconda().Altezza), 50);
}

void TestFrmImmagine::DanneggiataOMancanteSenzaDomanda_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("vuota") << QByteArray();
    QTest::newRow("non e' un'immagine") << QByteArray("Fattura di prova");
    QTest::newRow("troncata") << Figura("bmp", 250, 100).left(1000);
    QTest::newRow("JPEG troncato") << Figura("jpeg", 250, 100).chopped(200);
    QTest::newRow("mancante") << QByteArray("tolta");
}

void TestFrmImmagine::DanneggiataOMancanteSenzaDomanda()
{
    QFETCH(QByteArray, byte);
    Prova p;
    p.Aggiunge("guasta.bmp", byte);
    if (byte == "tolta") {
        QVERIFY(QFile::remove(p.cartella.filePath(QStringLiteral("guasta.bmp"))));
    }
    Digita(p.dialogo, "Largh", QStringLiteral("33.5"));
    p.Clicca("guasta.bmp");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY(p.robot.Testi().isEmpty());
    QCOMPARE(p.Seconda().Nome, QStringLiteral("guasta.bmp"));
    QCOMPARE(p.Seconda().Larghezza, 33.5);
    QCOMPARE(p.Seconda().Altezza, 10.0);
    QCOMPARE(p.segnali.Voci(), QStringList({QStringLiteral("Ricollocato 2")}));
}

void TestFrmImmagine::IlleggibileDettaSottoLElenco()
{
    Prova p;
    ImmaginiDiProva::Scrive(p.cartella.filePath(QStringLiteral("vecchia2.bmp")),
                            Figura("bmp", 5, 5));
    ImmaginiDiProva::Scrive(p.cartella.filePath(QStringLiteral("vecchia3.bmp")),
                            Figura("bmp", 5, 5));
    ImmaginiDiProva::Scrive(p.cartella.filePath(QStringLiteral("sparita.bmp")), "x");
    ImmaginiDiProva::Scrive(p.cartella.filePath(QStringLiteral("buona.bmp")), Figura("bmp", 5, 5));
    p.Aggiunge("guasta.bmp", "Fattura di prova");
    QVERIFY(QFile::remove(p.cartella.filePath(QStringLiteral("sparita.bmp"))));
    const auto *avviso = Trova<QLabel>(p.dialogo, "AvvisoImmagine");
    QVERIFY(!avviso->isVisible());
    p.Clicca("guasta.bmp");
    QVERIFY(avviso->isVisible());
    QVERIFY(avviso->text().startsWith(QStringLiteral("«guasta.bmp»: il file non si può leggere")));
    const QWidget *elenco = Trova<QListWidget>(p.dialogo, "FileImmagini");
    QCoreApplication::processEvents();
    QVERIFY(avviso->y() >= elenco->geometry().bottom());
    p.Clicca("sparita.bmp");
    QVERIFY(avviso->text().startsWith(QStringLiteral("«sparita.bmp»: il file non si trova")));
    p.Clicca("buona.bmp");
    QVERIFY(!avviso->isVisible());
    p.Clicca("guasta.bmp");
    p.Apre(3); // another element says nothing of it
    QVERIFY(!avviso->isVisible());
    QVERIFY(p.robot.Soddisfatto() && p.robot.Testi().isEmpty());
}

void TestFrmImmagine::AprendoSiDiceSeNonSiLegge_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<qint64>("lunghezza");
    QTest::addColumn<QString>("avviso");
    // A picture of 90 million pixels that is all there.
    QByteArray enorme = Figura("bmp", 1, 1).first(54);
    qToLittleEndian<qint32>(10'000, enorme.data() + 18);
    qToLittleEndian<qint32>(9'000, enorme.data() + 22);
    const qint64 pixel = enorme.at(28) == 32 ? 4 : 3;
    QTest::newRow("buona") << Figura("bmp", 250, 5) << qint64(0) << QString();
    QTest::newRow("mancante") << QByteArray() << qint64(0)
                              << QStringLiteral(
                                     "«aperta.bmp»: il file non si trova nella cartella");
    QTest::newRow("guasta") << QByteArray("Fattura di prova") << qint64(0)
                            << QStringLiteral(
                                   "«aperta.bmp»: il file non si può leggere come immagine BMP, "
                                   "GIF o JPEG, non sarà mostrato né stampato");
    QTest::newRow("troppo grande")
        << enorme << 54 + 90'000'000 * pixel
        << QStringLiteral("«aperta.bmp»: l'immagine è troppo grande per essere letta, non sarà "
                          "mostrata né stampata");
}

void TestFrmImmagine::AprendoSiDiceSeNonSiLegge()
{
    QFETCH(QByteArray, byte);
    QFETCH(qint64, lunghezza);
    QFETCH(QString, avviso);
    Prova p;
    const QString file = p.cartella.filePath(QStringLiteral("aperta.bmp"));
    if (!byte.isEmpty()) {
        ImmaginiDiProva::Scrive(file, byte);
    }
    if (lunghezza != 0) {
        QVERIFY(QFile::resize(file, lunghezza));
    }
    p.CambiaSeconda([&](Immagine &immagine) { immagine.Nome = QStringLiteral("aperta.bmp"); });
    const Modello prima = p.stato.Aperto();
    p.Apre(2);
    const auto *riga = Trova<QLabel>(p.dialogo, "AvvisoImmagine");
    QCOMPARE(riga->isVisible(), !avviso.isEmpty());
    QCOMPARE(riga->text(), avviso);
    QVERIFY(p.stato.Aperto() == prima);
    QVERIFY(p.segnali.Voci().isEmpty());
    QVERIFY(p.robot.Soddisfatto() && p.robot.Testi().isEmpty());
}

void TestFrmImmagine::NomeCheIlModelloNonPuoContenere_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QString>("carattere");
    QTest::newRow("lettera polacca") << QStringLiteral("\u0142ogo.bmp") << QStringLiteral("U+0142");
    QTest::newRow("accento staccato")
        << QStringLiteral("Pero\u0300.bmp") << QStringLiteral("U+0300");
    QTest::newRow("faccina") << QStringLiteral("\U0001F600.bmp") << QStringLiteral("U+1F600");
    QTest::newRow("a capo") << QStringLiteral("a\rb.bmp") << QStringLiteral("U+000D");
}

void TestFrmImmagine::NomeCheIlModelloNonPuoContenere()
{
    QFETCH(QString, nome);
    QFETCH(QString, carattere);
    Prova p;
    ImmaginiDiProva::Scrive(p.cartella.filePath(nome), Figura("bmp", 250, 100));
    p.Apre(2);
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    auto *elenco = Trova<QListWidget>(p.dialogo, "FileImmagini");
    const auto voci = elenco->findItems(nome, Qt::MatchExactly);
    QCOMPARE(voci.size(), 1);
    QTest::mouseClick(elenco->viewport(), Qt::LeftButton, {},
                      elenco->visualItemRect(voci.first()).center());
    QVERIFY(p.robot.Soddisfatto());
    const QString detto = p.robot.Testi().constFirst();
    QVERIFY2(detto.contains(carattere) && detto.contains(QStringLiteral("Rinominare il file")),
             qPrintable(detto));
    QVERIFY(p.stato.Aperto() == prima);
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("vecchia2.bmp"));
    QVERIFY(elenco->currentItem() == nullptr);
    QVERIFY(p.segnali.Voci().isEmpty());
    p.Aggiunge("Però €.bmp", Figura("bmp", 15, 25));
    p.Clicca("Però €.bmp");
    QCOMPARE(p.Seconda().Nome, QStringLiteral("Però €.bmp"));
}

void TestFrmImmagine::ScrittaSubitoAncheSeSiChiude()
{
    Prova p;
    p.Aggiunge("piccola.bmp", Figura("bmp", 15, 25));
    Digita(p.dialogo, "Largh", QStringLiteral("33.5"));
    Digita(p.dialogo, "X", QStringLiteral("99"));
    p.Clicca("piccola.bmp");
    QTest::keyClick(&p.dialogo, Qt::Key_Escape);
    QVERIFY(!p.dialogo.isVisible());
    QCOMPARE(p.Seconda().Nome, QStringLiteral("piccola.bmp"));
    QCOMPARE(p.Seconda().Larghezza, 33.5);
    QCOMPARE(p.Seconda().X, 20.0);
}

void TestFrmImmagine::MisuraNonNumericaNonScrittaSubito()
{
    Prova p;
    p.Aggiunge("piccola.bmp", Figura("bmp", 15, 25));
    Digita(p.dialogo, "Largh", QStringLiteral("abc"));
    Digita(p.dialogo, "Alt", QStringLiteral("7"));
    p.Clicca("piccola.bmp");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.Seconda().Nome, QStringLiteral("piccola.bmp"));
    QCOMPARE(p.Seconda().Larghezza, 50.0);
    QCOMPARE(p.Seconda().Altezza, 7.0);
}

void TestFrmImmagine::RimisuraLImmagineScelta()
{
    Prova p;
    p.Aggiunge("grande.bmp", Figura("bmp", 250, 100));
    Digita(p.dialogo, "Nome", QStringLiteral("GRANDE.bmp")); // names mind no case
    p.robot.Digita(QStringLiteral("10"));
    Preme(p.dialogo, "Command1");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.Seconda().Nome, QStringLiteral("GRANDE.bmp"));
    QCOMPARE(p.Seconda().Larghezza, 25.0);
    QCOMPARE(p.segnali.Voci(), QStringList({QStringLiteral("Ricollocato 2")}));
}

void TestFrmImmagine::IndiceFuoriTabellaNellaMisura()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    Trova<QLineEdit>(p.dialogo, "Num")->setText(QStringLiteral("101"));
    Preme(p.dialogo, "Command1");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY(p.stato.Aperto() == prima && p.segnali.Voci().isEmpty());
}

void TestFrmImmagine::SceltaConLaTastiera()
{
    Prova p;
    p.Aggiunge("a.bmp", Figura("bmp", 5, 5));
    p.Aggiunge("b.bmp", Figura("bmp", 5, 5));
    auto *elenco = Trova<QListWidget>(p.dialogo, "FileImmagini");
    elenco->setFocus();
    QTest::keyClick(elenco, Qt::Key_Home);
    QTest::keyClick(elenco, Qt::Key_Space);
    QCOMPARE(p.Seconda().Nome, QStringLiteral("a.bmp"));
    QTest::keyClick(elenco, Qt::Key_Down);
    QCOMPARE(p.Seconda().Nome, QStringLiteral("a.bmp"));
    QTest::keyClick(elenco, Qt::Key_Return);
    QCOMPARE(p.Seconda().Nome, QStringLiteral("b.bmp"));
    QVERIFY(p.dialogo.isVisible());
    QTest::keyClick(elenco, Qt::Key_Return); // the file is chosen: Enter confirms
    QVERIFY(!p.dialogo.isVisible());
}

void TestFrmImmagine::ConLaVirgolaDellaLocale()
{
    QLocale::setDefault(QLocale(QStringLiteral("it_IT")));
    Prova p;
    p.Aggiunge("grande.bmp", Figura("bmp", 250, 101));
    p.robot.Digita(QStringLiteral("12.5"));
    p.Clicca("grande.bmp");
    QCOMPARE(p.robot.Predefiniti(), QStringList({QStringLiteral("78")}));
    QCOMPARE(Testo(p.dialogo, "Largh"), QStringLiteral("31,25"));
    QCOMPARE(p.Seconda().Larghezza, 31.25);
    Digita(p.dialogo, "Alt", QStringLiteral("12,75"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.Seconda().Altezza, 12.75);
    QCOMPARE(p.Seconda().Larghezza, 31.25);
}

void TestFrmImmagine::ConfermaScriveTuttiIValori()
{
    Prova p;
    const QList<std::pair<const char *, const char *>> testi{
        {"Nome", "nuova.gif"}, {"Descrizione", "il logo"},
        {"Bordo", "0.5"},      {"X", "1.25"},
        {"Y", "-3"},           {"Largh", "0"},
        {"Alt", "-7.5"}};
    for (const auto &[casella, testo] : testi) {
        Digita(p.dialogo, casella, QString::fromLatin1(testo));
    }
    Preme(p.dialogo, "Confema");
    const Immagine attesa{
        QStringLiteral("nuova.gif"), 1.25, -3, QStringLiteral("il logo"), -7.5, 0, 0.5};
    QVERIFY(p.Seconda() == attesa);
    QVERIFY(!p.dialogo.isVisible());
}

void TestFrmImmagine::ConfermaSegnalaAnteprimaPoiElenco()
{
    Prova p;
    Digita(p.dialogo, "Nome", QStringLiteral("a.gif"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.segnali.Voci(),
             QStringList({QStringLiteral("Cambiato 2 a.gif"), QStringLiteral("VoceScelta 2"),
                          QStringLiteral("chiuso")}));
}

void TestFrmImmagine::InvioConfermaEdEscNo()
{
    Prova p;
    Digita(p.dialogo, "X", QStringLiteral("7"));
    QTest::keyClick(Trova<QLineEdit>(p.dialogo, "X"), Qt::Key_Escape);
    QCOMPARE(p.Seconda().X, 20.0);
    p.Apre(2);
    Digita(p.dialogo, "X", QStringLiteral("7"));
    QTest::keyClick(Trova<QLineEdit>(p.dialogo, "X"), Qt::Key_Return);
    QCOMPARE(p.Seconda().X, 7.0);
}

void TestFrmImmagine::AprireEConfermareNonCambiaNulla()
{
    for (const QLocale &locale : {QLocale::c(), QLocale(QStringLiteral("it_IT"))}) {
        QLocale::setDefault(locale);
        Prova p;
        p.CambiaSeconda([](Immagine &immagine) {
            immagine = Immagine{{QStringLiteral("nome\tcon \x01 e\nriga.jpg"), 1.0 / 3, -2.0 / 3,
                                 QString(40000, u'è')},
                                1e300 / 7,
                                20.0 / 3,
                                1.0 / 7};
        });
        const Modello prima = p.stato.Aperto();
        p.Apre(2);
        Preme(p.dialogo, "Confema");
        QVERIFY(!p.dialogo.isVisible());
        QVERIFY(p.stato.Aperto() == prima);
    }
}

void TestFrmImmagine::ConfermaSenzaImmagineElimina()
{
    Prova p;
    Modello atteso = p.stato.Aperto();
    atteso.Immagini[2].Nome.clear();
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QString());
    Digita(p.dialogo, "X", QStringLiteral("abc")); // not looked at
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("non è stata selezionata un immagine")}));
    QVERIFY(p.stato.Aperto() == atteso);
    QCOMPARE(p.segnali.Voci(),
             QStringList({QStringLiteral("Cambiato 2  ELIMINATO: vecchia2.bmp"),
                          QStringLiteral("VoceScelta 2"), QStringLiteral("chiuso")}));
}

void TestFrmImmagine::FileDiUnAltraImmagine()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QStringLiteral("VECCHIA3.BMP"));
    Digita(p.dialogo, "X", QStringLiteral("abc")); // looked at only afterwards
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("immagine già esistente")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
}

void TestFrmImmagine::TestoCheNonENumero_data()
{
    QTest::addColumn<QByteArray>("casella");
    QTest::addColumn<QString>("nome");
    QTest::newRow("Bordo") << QByteArray("Bordo") << QStringLiteral("Bordo");
    QTest::newRow("X") << QByteArray("X") << QStringLiteral("Posizione X");
    QTest::newRow("Y") << QByteArray("Y") << QStringLiteral("Posizione Y");
    QTest::newRow("Largh") << QByteArray("Largh") << QStringLiteral("Larghezza");
    QTest::newRow("Alt") << QByteArray("Alt") << QStringLiteral("Altezza");
}

void TestFrmImmagine::TestoCheNonENumero()
{
    QFETCH(QByteArray, casella);
    QFETCH(QString, nome);
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(p.dialogo, "Descrizione", QStringLiteral("cambiata"));
    Digita(p.dialogo, casella, QStringLiteral("1x"));
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(), QStringList({nome + QStringLiteral(": «1x» non è un numero")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
    QCOMPARE(p.dialogo.focusWidget(), Trova<QWidget>(p.dialogo, casella));
}

void TestFrmImmagine::Con101Immagini()
{
    Prova p;
    Cambia(p.stato, [&](Modello &modello) { modello.NumImmagini = 101; });
    Digita(p.dialogo, "X", QStringLiteral("7"));
    Preme(p.dialogo, "Confema");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.Seconda().X, 7.0);
}

void TestFrmImmagine::EliminaConNo()
{
    Prova p;
    const Modello prima = p.stato.Aperto();
    p.robot.No();
    Preme(p.dialogo, "Elimina");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("Elimino Immagine vecchia2.bmp")}));
    QCOMPARE(p.robot.Predefiniti(), QStringList({QStringLiteral("&No")}));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo.isVisible());
}

void TestFrmImmagine::EliminaConSi()
{
    Prova p;
    Modello atteso = p.stato.Aperto();
    atteso.Immagini[2].Nome.clear();
    p.robot.Si();
    Preme(p.dialogo, "Elimina");
    QVERIFY(p.stato.Aperto() == atteso);
    QCOMPARE(p.segnali.Voci(),
             QStringList({QStringLiteral("Cambiato 2  ELIMINATO: vecchia2.bmp"),
                          QStringLiteral("VoceScelta 2"), QStringLiteral("chiuso")}));
}

void TestFrmImmagine::StaInUnoSchermoPiccolo()
{
    StatoProgramma stato;
    QTemporaryDir cartella;
    Prova::Riempie(stato, cartella);
    QString lunga = cartella.path();
    for (int i = 0; i < 10; ++i) {
        lunga += QStringLiteral("/cartella dal nome molto lungo");
    }
    QVERIFY(QDir().mkpath(lunga));
    stato.CartellaModelli = lunga + QDir::separator();
    const FrmImmagine dialogo(stato);
    // 1366x768 without the strip of the editor, the title bar and the borders.
    QVERIFY2(dialogo.sizeHint().width() <= 1300, "too wide");
    QVERIFY2(dialogo.sizeHint().height() <= 500, "too high");
    QCOMPARE(Trova<QLabel>(dialogo, "Label4")->text(), stato.CartellaModelli);
    QCOMPARE(Trova<QLabel>(dialogo, "Label4")->toolTip(), stato.CartellaModelli);
}

QTEST_MAIN(TestFrmImmagine)
#include "tst_FrmImmagine.moc"
