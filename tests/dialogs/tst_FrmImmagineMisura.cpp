#include "dialogs/DialogoImmagine.h"
#include "support/ImmaginiDiProva.h"
#include "support/ImmaginiRare.h"

#include <QFile>
#include <QLabel>
#include <QThread>

using namespace Controlli;

class tst_FrmImmagineMisura : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

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
    void MisuraNonNumericaNonScrittaSubito();
    void RimisuraLImmagineScelta();
    void IndiceFuoriTabellaNellaMisura();
    void ConLaVirgolaDellaLocale();
};

void tst_FrmImmagineMisura::GrandeProponeLaRiduzione()
{
    DialogoImmagine p;
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
    QVERIFY(p.chiamante->SoloRicollocato(2));
    QVERIFY(p.dialogo.isVisible());
}

void tst_FrmImmagineMisura::PropostaCambiata()
{
    DialogoImmagine p;
    p.Aggiunge("grande.bmp", Figura("bmp", 250, 100));
    p.robot.Digita(QStringLiteral("12.5 %"));
    p.Clicca("grande.bmp");
    QCOMPARE(Testo(p.dialogo, "Largh"), QStringLiteral("31.25"));
    QCOMPARE(p.Seconda().Larghezza, 31.25);
    QCOMPARE(p.Seconda().Altezza, 12.5);
}

void tst_FrmImmagineMisura::SoloAltaProponeDallaLarghezza()
{
    DialogoImmagine p;
    p.Aggiunge("alta.bmp", Figura("bmp", 16, 40));
    p.robot.Digita(QStringLiteral("50"));
    p.Clicca("alta.bmp");
    // 19500 / 16 = 1218.75
    QCOMPARE(p.robot.Predefiniti(), QStringList({QStringLiteral("1219")}));
    QCOMPARE(p.Seconda().Larghezza, 8.0);
    QCOMPARE(p.Seconda().Altezza, 20.0);
}

void tst_FrmImmagineMisura::PiccolaSenzaDomanda()
{
    DialogoImmagine p;
    p.Aggiunge("piccola.bmp", Figura("bmp", 15, 25));
    p.Clicca("piccola.bmp");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("piccola.bmp"));
    QCOMPARE(p.Seconda().Nome, QStringLiteral("piccola.bmp"));
    QCOMPARE(p.Seconda().Larghezza, 50.0);
    QCOMPARE(p.Seconda().Altezza, 10.0);
    QVERIFY(p.chiamante->SoloRicollocato(2));
}

void tst_FrmImmagineMisura::Soglie_data()
{
    QTest::addColumn<int>("larghezza");
    QTest::addColumn<int>("altezza");
    QTest::addColumn<bool>("domanda");
    QTest::newRow("19x29") << 19 << 29 << false;
    QTest::newRow("20x5") << 20 << 5 << true;
    QTest::newRow("5x30") << 5 << 30 << true;
}

void tst_FrmImmagineMisura::Soglie()
{
    QFETCH(int, larghezza);
    QFETCH(int, altezza);
    QFETCH(bool, domanda);
    DialogoImmagine p;
    p.Aggiunge("soglia.bmp", Figura("bmp", larghezza, altezza));
    if (domanda) {
        p.robot.Digita(QStringLiteral("100"));
    }
    p.Clicca("soglia.bmp");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.robot.Testi().size(), domanda ? 1 : 0);
}

void tst_FrmImmagineMisura::RispostaZeroVuotaOAnnullata_data()
{
    QTest::addColumn<QString>("risposta"); // null = cancelled
    QTest::newRow("0") << QStringLiteral("0");
    QTest::newRow("vuota") << QStringLiteral("");
    QTest::newRow("lettere") << QStringLiteral("abc");
    QTest::newRow("annullata") << QString();
}

void tst_FrmImmagineMisura::RispostaZeroVuotaOAnnullata()
{
    QFETCH(QString, risposta);
    DialogoImmagine p;
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
    QVERIFY(p.chiamante->Ignaro());
}

void tst_FrmImmagineMisura::PercentualeTroppoGrandeDetta_data()
{
    QTest::addColumn<QString>("risposta");
    QTest::newRow("oltre un doppio") << QStringLiteral("1e400");
    QTest::newRow("misura oltre un doppio") << QStringLiteral("1e308");
}

void tst_FrmImmagineMisura::PercentualeTroppoGrandeDetta()
{
    QFETCH(QString, risposta);
    DialogoImmagine p;
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
    QVERIFY(p.chiamante->Ignaro());
}

void tst_FrmImmagineMisura::MentreChiedeMostraLaLarghezza()
{
    DialogoImmagine p;
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

void tst_FrmImmagineMisura::FormatiLetti_data()
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

void tst_FrmImmagineMisura::FormatiLetti()
{
    QFETCH(QByteArray, nome);
    QFETCH(QByteArray, byte);
    QFETCH(bool, grande);
    DialogoImmagine p;
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

void tst_FrmImmagineMisura::ScansioneA4A600PuntiPerPollice()
{
    DialogoImmagine p;
    const QImage foglio = ImmaginiDiProva::Tinta({4960, 7016}, qRgb(255, 255, 255));
    p.Aggiunge("scansione.jpg", ImmaginiDiProva::InFormato(foglio, "jpeg", 600));
    p.robot.Digita(QStringLiteral("10"));
    p.Clicca("scansione.jpg");
    QCOMPARE(p.robot.Predefiniti(), QStringList({QStringLiteral("93")}));
    QCOMPARE(qRound(p.Seconda().Larghezza), 21);
    QCOMPARE(qRound(p.Seconda().Altezza * 10), 297);
}

void tst_FrmImmagineMisura::ClessidraMentreMisura()
{
    // The decoder complains of a few bytes that lack before the picture's end, and so tells when it
    // is at work.
    QByteArray byte = Figura("jpeg", 100, 40);
    byte.remove(byte.size() - 22, 20);
    DialogoImmagine p;
    p.Aggiunge("foto.jpg", byte);
    bool normaleMentreChiede = false;
    p.robot.Agisce([&](QDialog *domanda) {
        normaleMentreChiede = QGuiApplication::overrideCursor() == nullptr;
        domanda->reject();
    });
    static QList<int> puntatori;
    puntatori.clear();
    const QtMessageHandler prima = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &,
                                                             const QString &testo) {
        // The small picture beside the name is read by a thread of its own.
        if (testo.contains(QLatin1String("JPEG")) && QThread::currentThread() == qApp->thread()) {
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

void tst_FrmImmagineMisura::FotografiaRuotata()
{
    // Orientation 6 of a camera: the stored width is the height that is seen.
    const QByteArray ruota =
        QByteArray::fromHex("ffe100224578696600004d4d002a000000080001011200030000000100060000"
                            "00000000");
    QByteArray byte = Figura("jpeg", 100, 40);
    byte.insert(2, ruota);
    DialogoImmagine p;
    p.Aggiunge("foto.jpg", byte);
    p.robot.Digita(QStringLiteral("50"));
    p.Clicca("foto.jpg");
    QCOMPARE(qRound(p.Seconda().Larghezza), 20);
    QCOMPARE(qRound(p.Seconda().Altezza), 50);
}

void tst_FrmImmagineMisura::DanneggiataOMancanteSenzaDomanda_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("vuota") << QByteArray();
    QTest::newRow("non e' un'immagine") << QByteArray("Fattura di prova");
    QTest::newRow("troncata") << Figura("bmp", 250, 100).left(1000);
    QTest::newRow("JPEG troncato") << Figura("jpeg", 250, 100).chopped(200);
    QTest::newRow("mancante") << QByteArray("tolta");
}

void tst_FrmImmagineMisura::DanneggiataOMancanteSenzaDomanda()
{
    QFETCH(QByteArray, byte);
    DialogoImmagine p;
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
    QVERIFY(p.chiamante->SoloRicollocato(2));
}

void tst_FrmImmagineMisura::MisuraNonNumericaNonScrittaSubito()
{
    DialogoImmagine p;
    p.Aggiunge("piccola.bmp", Figura("bmp", 15, 25));
    Digita(p.dialogo, "Largh", QStringLiteral("abc"));
    Digita(p.dialogo, "Alt", QStringLiteral("7"));
    p.Clicca("piccola.bmp");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.Seconda().Nome, QStringLiteral("piccola.bmp"));
    QCOMPARE(p.Seconda().Larghezza, 50.0);
    QCOMPARE(p.Seconda().Altezza, 7.0);
}

void tst_FrmImmagineMisura::RimisuraLImmagineScelta()
{
    DialogoImmagine p;
    p.Aggiunge("grande.bmp", Figura("bmp", 250, 100));
    Digita(p.dialogo, "Nome", QStringLiteral("GRANDE.bmp")); // names mind no case
    p.robot.Digita(QStringLiteral("10"));
    Preme(p.dialogo, "Command1");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.Seconda().Nome, QStringLiteral("GRANDE.bmp"));
    QCOMPARE(p.Seconda().Larghezza, 25.0);
    QVERIFY(p.chiamante->SoloRicollocato(2));
}

void tst_FrmImmagineMisura::IndiceFuoriTabellaNellaMisura()
{
    DialogoImmagine p;
    const Modello prima = p.stato.Aperto();
    Trova<QLineEdit>(p.dialogo, "Num")->setText(QStringLiteral("101"));
    Preme(p.dialogo, "Command1");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY(p.stato.Aperto() == prima && p.chiamante->Ignaro());
}

void tst_FrmImmagineMisura::ConLaVirgolaDellaLocale()
{
    QLocale::setDefault(QLocale(QStringLiteral("it_IT")));
    DialogoImmagine p;
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

QTEST_MAIN(tst_FrmImmagineMisura)
#include "tst_FrmImmagineMisura.moc"
