#include "RigheFile.h"
#include "Scrivania.h"
#include "support/FileDiProva.h"
#include "support/ImmaginiDiProva.h"

#include <QFileInfo>
#include <QTest>

/// Scans set right and pictures brought in, by the mouse and the keys of a real screen.
class tst_FigureSulloSchermo : public QObject
{
    Q_OBJECT

private slots:
    void calibrataDallaRisoluzioneESalvata();
    void calibrataDaDuePuntiESpostata();
    void escLasciaLaScansioneDovEra();
    void immagineImportataEConfermata();
    void immagineDiOgniGenereImportata_data();
    void immagineDiOgniGenereImportata();

private:
    /// The form with its scan, of the wrong size and at the wrong place, and the page of the scan.
    static void ApreIlModulo(Scrivania &scrivania)
    {
        const QString file = Modulo(scrivania);
        QList<QByteArray> righe = ByteDi(file).split('\n');
        const QString scansione = scrivania.CartellaModelli() + QStringLiteral("ScansioneDDT.jpg");
        qsizetype riga = 2;
        for (const QByteArray &testo : {scansione.toUtf8(), QByteArray("100"), QByteArray("120"),
                                        QByteArray("100"), QByteArray("150")}) {
            righe[riga++] = testo + '\r';
        }
        ScriveFile(file, righe.join('\n'));
        scrivania.Avvia();
        scrivania.ApreModello(QStringLiteral("DDT_prestampato"));
        scrivania.Pagina(5);
        scrivania.Video().Tasti({QStringLiteral("alt+l")});
        scrivania.Video().Attende(Calibra);
    }
    static QString Modulo(const Scrivania &scrivania)
    {
        return scrivania.CartellaModelli() + QStringLiteral("DDT_prestampato.Mod");
    }
    static void Prende(Scrivania &scrivania)
    {
        scrivania.Video().Tasti({QStringLiteral("Return")});
        scrivania.Video().AttendeChiusa(Calibra);
        scrivania.Salva();
    }

    static const QString Calibra;
};

const QString tst_FigureSulloSchermo::Calibra = QStringLiteral("^Calibra l'immagine di sfondo$");

void tst_FigureSulloSchermo::calibrataDallaRisoluzioneESalvata()
{
    Scrivania scrivania;
    ApreIlModulo(scrivania);
    scrivania.Video().Tasti({QStringLiteral("Tab"), QStringLiteral("Down")});
    Prende(scrivania);
    const RigheFile salvato(Modulo(scrivania));
    QCOMPARE(salvato.Testa(4), QByteArray("210.06")); // 827 x 1170 pixels at 100 to the inch
    QCOMPARE(salvato.Testa(5), QByteArray("297.18"));
    QCOMPARE(salvato.Testa(6), QByteArray("100"));
    QCOMPARE(salvato.Testa(7), QByteArray("150"));
}

void tst_FigureSulloSchermo::calibrataDaDuePuntiESpostata()
{
    Scrivania scrivania;
    ApreIlModulo(scrivania);
    Schermo &video = scrivania.Video();
    video.Tasti({QStringLiteral("Tab"), QStringLiteral("Down"), QStringLiteral("Down")});
    const Schermo::Finestra dialogo = video.Attende(Calibra);
    // Two points of a horizontal line of the scan.
    const QPoint primo = dialogo.Interno.topLeft() + QPoint(400, 400);
    video.Clic(primo);
    video.Clic(primo + QPoint(80, 0));
    video.Tasti({QStringLiteral("alt+z")});
    video.Scrive(QStringLiteral("100"));
    video.Trascina({primo + QPoint(60, 60), primo + QPoint(40, 60), primo + QPoint(20, 60)});
    Prende(scrivania);
    const RigheFile salvato(Modulo(scrivania));
    const double larghezza = salvato.Testa(4).toDouble();
    const double altezza = salvato.Testa(5).toDouble();
    QVERIFY2(larghezza > 300 && larghezza < 450, salvato.Testa(4).constData());
    QVERIFY(qAbs(altezza / larghezza - 297.18 / 210.06) < 0.001);
    const double x = salvato.Testa(6).toDouble();
    QVERIFY2(x > 35 && x < 85, salvato.Testa(6).constData());
    QCOMPARE(salvato.Testa(7), QByteArray("150"));
}

void tst_FigureSulloSchermo::escLasciaLaScansioneDovEra()
{
    Scrivania scrivania;
    ApreIlModulo(scrivania);
    Schermo &video = scrivania.Video();
    video.Tasti({QStringLiteral("Tab"), QStringLiteral("Down")});
    const QPoint foglio = video.Attende(Calibra).Interno.topLeft() + QPoint(400, 400);
    video.Trascina({foglio, foglio + QPoint(20, 0), foglio + QPoint(40, 30)});
    video.Tasti({QStringLiteral("Right"), QStringLiteral("Escape")});
    video.AttendeChiusa(Calibra);
    scrivania.Salva();
    const RigheFile salvato(Modulo(scrivania));
    const QList<QByteArray> prima{"100", "120", "100", "150"};
    for (int i = 0; i < prima.size(); ++i) {
        QCOMPARE(salvato.Testa(4 + i), prima[i]);
    }
}

void tst_FigureSulloSchermo::immagineDiOgniGenereImportata_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<QString>("portata");
    QTest::addColumn<QRgb>("colore"); // in the middle of the left half
    QImage vetro(160, 80, QImage::Format_ARGB32);
    vetro.fill(Qt::transparent);
    QTest::newRow("transparent") << QStringLiteral("0vetro.png")
                                 << ImmaginiDiProva::InFormato(vetro, "png", 254)
                                 << QStringLiteral("0vetro.bmp") << qRgb(255, 255, 255);
    QImage bit(160, 80, QImage::Format_Mono);
    bit.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    bit.fill(0);
    QTest::newRow("one bit") << QStringLiteral("0bit.png")
                             << ImmaginiDiProva::InFormato(bit, "png", 254)
                             << QStringLiteral("0bit.bmp") << qRgb(0, 0, 0);
    QTest::newRow("name of another alphabet")
        << QStringLiteral("0 лого \u0142\u00f3d\u017a.png")
        << ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({160, 80}, qRgb(9, 99, 9)), "png", 254)
        << QStringLiteral("0 ____ _\u00f3dz.bmp") << qRgb(9, 99, 9);
    QImage foto = ImmaginiDiProva::Fotografia({80, 160}, 5);
    for (int y = 80; y < 160; ++y) { // below, and so on the left once it is turned
        for (int x = 0; x < 80; ++x) {
            foto.setPixel(x, y, qRgb(20, 30, 200));
        }
    }
    QByteArray girata = ImmaginiDiProva::InFormato(foto, "jpeg", 254);
    girata.insert(2, QByteArray::fromHex("ffe100224578696600004d4d002a0000000800010112000300000001"
                                         "000600000000" // turned to the right
                                         "0000"));
    QTest::newRow("turned camera") << QStringLiteral("0foto.jpeg") << girata
                                   << QStringLiteral("0foto.bmp") << qRgb(20, 30, 200);
}

void tst_FigureSulloSchermo::immagineDiOgniGenereImportata()
{
    QFETCH(QString, nome);
    QFETCH(QByteArray, byte);
    QFETCH(QString, portata);
    QFETCH(QRgb, colore);
    Scrivania scrivania;
    ImmaginiDiProva::Scrive(scrivania.In(nome), byte);
    scrivania.Avvia();
    scrivania.ApreModello(QStringLiteral("Fattura_Rossi"));
    scrivania.ProprietaImmagine({50, 8});
    Schermo &video = scrivania.Video();
    video.Tasti({QStringLiteral("alt+m")});
    video.Attende(QStringLiteral("^Sfoglia$"));
    video.Tasti({QStringLiteral("Tab"), QStringLiteral("space"), QStringLiteral("Return")});
    video.AttendeChiusa(QStringLiteral("^Sfoglia$"));
    const QString file = scrivania.CartellaModelli() + portata;
    video.AttendeQui(file, [&] { return QFileInfo::exists(file); });
    video.Attende(Scrivania::TitoloImmagine);
    video.Tasti({QStringLiteral("alt+c")});
    video.AttendeChiusa(Scrivania::TitoloImmagine);
    scrivania.Salva();
    const RigheFile salvato(scrivania.CartellaModelli() + QStringLiteral("Fattura_Rossi.Mod"));
    QVERIFY(salvato.Riga(portata.toLatin1(), RigheFile::Immagine::Larghezza).toDouble() > 0);
    const QImage figura(file);
    QCOMPARE(figura.size(), QSize(160, 80));
    const QColor visto = figura.pixelColor(40, 40);
    QVERIFY2(qAbs(visto.red() - qRed(colore)) < 8 && qAbs(visto.green() - qGreen(colore)) < 8 &&
                 qAbs(visto.blue() - qBlue(colore)) < 8,
             qPrintable(visto.name()));
}

void tst_FigureSulloSchermo::immagineImportataEConfermata()
{
    Scrivania scrivania;
    const QString modello = QStringLiteral("Fattura_Rossi");
    // The browser opens the user's own folder first.
    ImmaginiDiProva::Scrive(scrivania.In(QStringLiteral("0logo.png")),
                            ImmaginiDiProva::InFormato(
                                ImmaginiDiProva::Tinta({150, 100}, qRgb(10, 120, 60)), "png", 254));
    scrivania.Avvia();
    scrivania.ApreModello(modello);
    scrivania.ProprietaImmagine({50, 8});
    Schermo &video = scrivania.Video();
    video.Tasti({QStringLiteral("alt+m")});
    video.Attende(QStringLiteral("^Sfoglia$"));
    // From the folders to the files, where the first is the only one.
    video.Tasti({QStringLiteral("Tab"), QStringLiteral("space"), QStringLiteral("Return")});
    video.AttendeChiusa(QStringLiteral("^Sfoglia$"));
    const QString portata = scrivania.CartellaModelli() + QStringLiteral("0logo.bmp");
    video.AttendeQui(portata, [&] { return QFileInfo::exists(portata); });
    video.Attende(Scrivania::TitoloImmagine);
    video.Tasti({QStringLiteral("alt+c")});
    video.AttendeChiusa(Scrivania::TitoloImmagine);
    scrivania.Salva();
    const RigheFile salvato(scrivania.CartellaModelli() + modello + QStringLiteral(".Mod"));
    QVERIFY(salvato.Riga("0logo.bmp", RigheFile::Immagine::Larghezza).toDouble() > 0);
    QCOMPARE(QImage(portata).size(), QSize(150, 100));
    QCOMPARE(QImage(portata).pixel(75, 50), qRgb(10, 120, 60));
}

QTEST_GUILESS_MAIN(tst_FigureSulloSchermo)
#include "tst_FigureSulloSchermo.moc"
