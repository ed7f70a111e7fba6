#include "dialogs/DialogoImmagine.h"
#include "dialogs/FrmImmagine.h"
#include "support/ImmaginiDiProva.h"
#include "support/ImmaginiRare.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtEndian>

using namespace Controlli;

class tst_FrmImmagine : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void TitoloNomiETesti();
    void ElencoDeiFile();
    void CartellaCheNonCePiu();
    void CaricaLImmagine();
    void IlleggibileDettaSottoLElenco();
    void AprendoSiDiceSeNonSiLegge_data();
    void AprendoSiDiceSeNonSiLegge();
    void NomeCheIlModelloNonPuoContenere_data();
    void NomeCheIlModelloNonPuoContenere();
    void ScrittaSubitoAncheSeSiChiude();
    void SceltaConLaTastiera();
    void ConfermaScriveTuttiIValori();
    void ConfermaSenzaImmagineElimina();
    void LaCartellaLungaStaInUnoSchermoPiccolo();
};

void tst_FrmImmagine::TitoloNomiETesti()
{
    const DialogoImmagine p;
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

void tst_FrmImmagine::ElencoDeiFile()
{
    DialogoImmagine p;
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

void tst_FrmImmagine::CartellaCheNonCePiu()
{
    DialogoImmagine p;
    QVERIFY(p.cartella.remove());
    p.robot.Ok();
    p.Apre(3);
    QVERIFY2(p.robot.Testi().value(0).startsWith(QStringLiteral("errore 76 ")),
             qPrintable(p.robot.Testi().value(0)));
    QCOMPARE(Trova<QListWidget>(p.dialogo, "FileImmagini")->count(), 0);
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("vecchia3.bmp"));
}

void tst_FrmImmagine::CaricaLImmagine()
{
    DialogoImmagine p;
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
    QVERIFY(p.chiamante->Ignaro());
}

void tst_FrmImmagine::IlleggibileDettaSottoLElenco()
{
    DialogoImmagine p;
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
    QVERIFY(QDir(p.cartella.path()).mkdir(QStringLiteral("sparita.bmp")));
    p.Clicca("sparita.bmp");
    QCOMPARE(avviso->text(),
             QStringLiteral("«sparita.bmp»: è una cartella, non un file d'immagine"));
    QVERIFY(QDir(p.cartella.path()).rmdir(QStringLiteral("sparita.bmp")));
    p.Clicca("sparita.bmp");
    QVERIFY(avviso->text().startsWith(QStringLiteral("«sparita.bmp»: il file non si trova")));
    p.Clicca("buona.bmp");
    QVERIFY(!avviso->isVisible());
    p.Clicca("guasta.bmp");
    p.Apre(3); // another element says nothing of it
    QVERIFY(!avviso->isVisible());
    QVERIFY(p.robot.Soddisfatto() && p.robot.Testi().isEmpty());
}

void tst_FrmImmagine::AprendoSiDiceSeNonSiLegge_data()
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
    const auto troppoGrande =
        QStringLiteral("«aperta.bmp»: l'immagine è troppo grande per essere letta, non sarà "
                       "mostrata né stampata");
    QTest::newRow("troppo grande") << enorme << 54 + 90'000'000 * pixel << troppoGrande;
    QTest::newRow("JPEG progressivo A4 a 1200 punti per pollice")
        << ImmaginiRare::JpegDiScansioni({9921, 14031}, 9) << qint64(0) << troppoGrande;
}

void tst_FrmImmagine::AprendoSiDiceSeNonSiLegge()
{
    QFETCH(QByteArray, byte);
    QFETCH(qint64, lunghezza);
    QFETCH(QString, avviso);
    DialogoImmagine p;
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
    QVERIFY(p.chiamante->Ignaro());
    QVERIFY(p.robot.Soddisfatto() && p.robot.Testi().isEmpty());
}

void tst_FrmImmagine::NomeCheIlModelloNonPuoContenere_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QString>("carattere");
    QTest::newRow("lettera polacca") << QStringLiteral("\u0142ogo.bmp") << QStringLiteral("U+0142");
    QTest::newRow("accento staccato")
        << QStringLiteral("Pero\u0300.bmp") << QStringLiteral("U+0300");
    QTest::newRow("faccina") << QStringLiteral("\U0001F600.bmp") << QStringLiteral("U+1F600");
#ifndef Q_OS_WIN // whose disks know no such name
    QTest::newRow("a capo") << QStringLiteral("a\rb.bmp") << QStringLiteral("U+000D");
#endif
}

void tst_FrmImmagine::NomeCheIlModelloNonPuoContenere()
{
    QFETCH(QString, nome);
    QFETCH(QString, carattere);
    DialogoImmagine p;
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
    QVERIFY(elenco->selectedItems().isEmpty());
    QVERIFY(p.chiamante->Ignaro());
    p.Aggiunge("Però €.bmp", Figura("bmp", 15, 25));
    p.Clicca("Però €.bmp");
    QCOMPARE(p.Seconda().Nome, QStringLiteral("Però €.bmp"));
}

void tst_FrmImmagine::ScrittaSubitoAncheSeSiChiude()
{
    DialogoImmagine p;
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

void tst_FrmImmagine::SceltaConLaTastiera()
{
    DialogoImmagine p;
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

void tst_FrmImmagine::ConfermaScriveTuttiIValori()
{
    DialogoImmagine p;
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

void tst_FrmImmagine::ConfermaSenzaImmagineElimina()
{
    DialogoImmagine p;
    Modello atteso = p.stato.Aperto();
    atteso.Immagini[2].Nome.clear();
    p.robot.Ok();
    Digita(p.dialogo, "Nome", QString());
    Digita(p.dialogo, "X", QStringLiteral("abc")); // not looked at
    Preme(p.dialogo, "Confema");
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("non è stata selezionata un immagine")}));
    QVERIFY(p.stato.Aperto() == atteso);
    p.VerificaConcluso(QStringLiteral(" ELIMINATO: vecchia2.bmp"));
}

void tst_FrmImmagine::LaCartellaLungaStaInUnoSchermoPiccolo()
{
    StatoProgramma stato;
    QTemporaryDir cartella;
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

QTEST_MAIN(tst_FrmImmagine)
#include "tst_FrmImmagine.moc"
