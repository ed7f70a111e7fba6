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
    void immagineImportataEConfermata();

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
