#include "editor/EditoreDiProva.h"
#include "support/ImmaginiDiProva.h"
#include "support/ImmaginiRare.h"
#include "support/LettorePdf.h"
#include "support/Tempi.h"

#include <QDialog>
#include <QGraphicsView>
#include <QListView>
#include <QListWidget>
#include <QLoggingCategory>

using namespace ImmaginiRare;

namespace {

constexpr double Secondo = 1000; // ms

bool Simili(QRgb a, QRgb b)
{
    constexpr int Scarto = 8;
    return qAbs(qRed(a) - qRed(b)) <= Scarto && qAbs(qGreen(a) - qGreen(b)) <= Scarto &&
           qAbs(qBlue(a) - qBlue(b)) <= Scarto;
}

class Editore : public EditoreDiProva
{
public:
    QString In(const QString &nome) const { return Archivio.Stato().CartellaModelli + nome; }

    void ConSfondo(const QString &percorso, const char *x = "0")
    {
        Archivio.DaAprire().Sfondo = {percorso,
                                      QStringLiteral("84"),
                                      QStringLiteral("80"),
                                      QString::fromLatin1(x),
                                      QStringLiteral("0"),
                                      1};
    }

    /// Colour of the sheet at a point in mm of screen.
    QRgb Colore(double x, double y) const
    {
        auto *foglio = Trova<QGraphicsView>(*Editor->Anteprima(), "P1");
        const QImage foto = foglio->grab().toImage();
        const double scala = foglio->width() / 240.0;
        return foto.pixel(qRound(x * scala), qRound(y * scala));
    }

    /// Chooses a file of the models folder in the browser that opens next.
    void SceglieNelBrowser(Robot &robot, const QString &nome)
    {
        robot.Agisce([nome](QDialog *sfoglia) {
            auto *elenco = Trova<QListView>(*sfoglia, "File1");
            for (int riga = 0; riga < elenco->model()->rowCount(); ++riga) {
                const QModelIndex voce = elenco->model()->index(riga, 0);
                if (voce.data().toString() == nome) {
                    elenco->setCurrentIndex(voce);
                }
            }
            Preme(*sfoglia, "Command8");
        });
    }
};

} // namespace

class tst_ImmaginiDaOvunque : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // The decoder's own remarks on files that are meant to be wrong.
        QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false"));
    }
    void init() { QLocale::setDefault(QLocale::c()); }

    void AnteprimaSfondoECarta_data();
    void AnteprimaSfondoECarta();
    void ScansioneA1200PuntiPerPollice();
    void SegmentiVuoti_data();
    void SegmentiVuoti();
    void SfondoInAltreMaiuscole();
    void SfondoConNomeCheIlModelloNonPuoContenere();
};

void tst_ImmaginiDaOvunque::AnteprimaSfondoECarta_data()
{
    QTest::addColumn<QByteArray>("byte");
    for (const Rara &rara : Tutte()) {
        QTest::newRow(rara.Nome) << rara.Byte;
    }
}

void tst_ImmaginiDaOvunque::AnteprimaSfondoECarta()
{
    QFETCH(QByteArray, byte);
    Editore prova;
    ImmaginiDiProva::Scrive(prova.In(QStringLiteral("rara.bmp")), byte);
    prova.ConSfondo(prova.In(QStringLiteral("rara.bmp")));
    prova.Archivio.AggiungeImmagine(QStringLiteral("rara.bmp"), 100, 20, 84, 80);
    Robot robot;
    QVERIFY(prova.Apre());
    QVERIFY(robot.Soddisfatto());
    // The scan behind, and the picture.
    QVERIFY(Simili(prova.Colore(40, 8), ColoreSopra) && Simili(prova.Colore(40, 74), ColoreSotto));
    QVERIFY(Simili(prova.Colore(140, 28), ColoreSopra) &&
            Simili(prova.Colore(140, 94), ColoreSotto));
    QVERIFY(prova.Stampa().isEmpty());
    const LettorePdf carta(prova.In(QStringLiteral("../foglio.pdf")));
    QVERIFY(Simili(carta.Colore(145, 35), ColoreSopra));
    QVERIFY(Simili(carta.Colore(145, 95), ColoreSotto));
}

void tst_ImmaginiDaOvunque::ScansioneA1200PuntiPerPollice()
{
    Editore prova;
    ImmaginiDiProva::Scrive(prova.In(QStringLiteral("scansione.jpg")), JpegA1200PuntiPerPollice());
    prova.ConSfondo(prova.In(QStringLiteral("scansione.jpg")));
    Robot robot;
    const TempoDiLavoro tempo;
    QVERIFY(prova.Apre());
    QVERIFY2(tempo.Entro(Secondo), qPrintable(QString::number(tempo.MilliSecondi())));
    QVERIFY(robot.Soddisfatto());
    QVERIFY(Simili(prova.Colore(40, 8), ColoreSopra) && Simili(prova.Colore(40, 74), ColoreSotto));
    prova.Archivio.AggiungeImmagine(QStringLiteral("scansione.jpg"), 100, 20, 84, 80);
    QVERIFY(prova.Stampa().isEmpty());
}

void tst_ImmaginiDaOvunque::SegmentiVuoti_data()
{
    QTest::addColumn<QByteArray>("byte");
    for (const int byte : {410'000, 810'000, 5'000'000}) {
        QTest::addRow("%d byte in testa", byte) << JpegDiSegmenti(byte, '\xE1', true);
        QTest::addRow("%d byte in coda", byte) << JpegDiSegmenti(byte, '\xE1', false);
        QTest::addRow("%d byte di GIF", byte) << GifCheSiSrotola(byte);
    }
}

void tst_ImmaginiDaOvunque::SegmentiVuoti()
{
    QFETCH(QByteArray, byte);
    Editore prova;
    ImmaginiDiProva::Scrive(prova.In(QStringLiteral("ostile.jpg")), byte);
    prova.ConSfondo(prova.In(QStringLiteral("ostile.jpg")));
    prova.Archivio.AggiungeImmagine(QStringLiteral("ostile.jpg"), 100, 20, 84, 80);
    const TempoDiLavoro apertura;
    Robot robot;
    robot.Ok();
    QVERIFY(prova.Apre());
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(apertura.Entro(Secondo), qPrintable(QString::number(apertura.MilliSecondi())));
    const TempoDiLavoro scelta;
    robot.Agisce([](QDialog *dialogo) {
        auto *file = Trova<QListWidget>(*dialogo, "FileImmagini");
        QTest::mouseClick(file->viewport(), Qt::LeftButton, {},
                          file->visualItemRect(file->item(0)).center());
        dialogo->reject();
    });
    prova.Editor->ApreFrmImmagine(1);
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(scelta.Entro(Secondo), qPrintable(QString::number(scelta.MilliSecondi())));
}

void tst_ImmaginiDaOvunque::SfondoInAltreMaiuscole()
{
    Editore prova;
    ImmaginiDiProva::Scrive(prova.In(QStringLiteral("Scansione.BMP")), Tutte().constFirst().Byte);
    const QString scritto = prova.In(QStringLiteral("SCANSIONE.bmp")).replace(u'/', u'\\');
    prova.ConSfondo(scritto);
    Robot robot;
    QVERIFY(prova.Apre());
    QVERIFY(robot.Soddisfatto());
    QVERIFY(Simili(prova.Colore(40, 8), ColoreSopra));
    // Measured, too, and the text stays as the model has it.
    robot.Digita(QStringLiteral("100"));
    Preme(*prova.Editor, "Command8");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Archivio.Aperto().Sfondo.File, scritto);
}

void tst_ImmaginiDaOvunque::SfondoConNomeCheIlModelloNonPuoContenere()
{
    Editore prova;
    const QString buona = prova.In(QStringLiteral("buona.bmp"));
    ImmaginiDiProva::Scrive(buona, Tutte().constFirst().Byte);
    ImmaginiDiProva::Scrive(prova.In(QStringLiteral("Pero\u0300.bmp")), Tutte().constFirst().Byte);
    prova.ConSfondo(buona);
    Robot robot;
    QVERIFY(prova.Apre());
    const Modello prima = prova.Archivio.Aperto();
    prova.SceglieNelBrowser(robot, QStringLiteral("Pero\u0300.bmp"));
    robot.Ok();
    Preme(*prova.Editor, "SfondoSfoglia");
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().constLast().contains(QStringLiteral("U+0300")),
             qPrintable(robot.Testi().constLast()));
    QVERIFY(prova.Archivio.Aperto() == prima);
    QVERIFY(!prova.Editor->Variato());
    QCOMPARE(Trova<QLineEdit>(*prova.Editor, "SfondoFileImmagine")->text(), buona);
}

QTEST_MAIN(tst_ImmaginiDaOvunque)
#include "tst_ImmaginiDaOvunque.moc"
