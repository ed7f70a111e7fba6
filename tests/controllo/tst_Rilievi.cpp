#include "ModelloSano.h"

#include "grafica/Testo.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <functional>

namespace {

using Guasto = std::function<void(ModelloSano &)>;

double Largo(const char *testo)
{
    return MisuraTesto(QString::fromUtf8(testo), QStringLiteral("Arial"), 11, false).width();
}

} // namespace

Q_DECLARE_METATYPE(Guasto)

/// Each kind of finding: a model that provokes it, and a twin, as near to it as can be, that does
/// not.
class tst_Rilievi : public QObject
{
    Q_OBJECT
private slots:
    void UnModelloSanoNonHaRilievi();
    void OgniRilievoEIlSuoGemello_data();
    void OgniRilievoEIlSuoGemello();
    void UnaCartellaNonMancaMaNonEUnFile();
    void UnCampoNonStampatoNonHaPosto();
    void GliElementiEliminatiTacciono();
    void SenzaStampanteNienteSullaCarta();
    void SenzaIlFileNonCEFigura();
    void UnCampoDiRigaNonStampatoTace();
    void UnRigoPerRilievo();
    void InOrdineDiElemento();
};

void tst_Rilievi::UnModelloSanoNonHaRilievi()
{
    ModelloSano sano;
    QCOMPARE(sano.Righe(), QStringList());
}

void tst_Rilievi::OgniRilievoEIlSuoGemello_data()
{
    QTest::addColumn<Guasto>("guasto");
    QTest::addColumn<Guasto>("gemello");
    QTest::addColumn<int>("specie");
    QTest::addColumn<QString>("soggetto");
    const auto riga = [](const char *nome, SpecieRilievo specie, const char *soggetto,
                         const Guasto &guasto, const Guasto &gemello) {
        QTest::newRow(nome) << guasto << gemello << int(specie) << QString::fromUtf8(soggetto);
    };
    using S = ModelloSano;
    using enum SpecieRilievo;

    riga(
        "font that the system lacks", FontMancante, "campo Numero",
        [](S &m) { m.Aperto.Campi[1].Font = QStringLiteral("Font Mai Esistito"); },
        [](S &m) { m.Aperto.Campi[1].Font = QStringLiteral("DejaVu Sans"); });
    riga(
        "caption in a font that the system lacks", FontMancante, "cornice Titolo",
        [](S &m) { m.Aperto.Cornici[2].Font = QStringLiteral("Font Mai Esistito"); },
        // Of a frame without caption the font is never used.
        [](S &m) { m.Aperto.Cornici[1].Font = QStringLiteral("Font Mai Esistito"); });
    riga(
        "field without a font", FontMancante, "campo Numero",
        [](S &m) { m.Aperto.Campi[1].Font.clear(); },
        [](S &m) { m.Aperto.Campi[1].Font = QStringLiteral("Times New Roman"); });
    riga(
        "font of a field without test text", FontMancante, "campo Numero",
        [](S &m) {
            m.Aperto.Campi[1].Testo.clear();
            m.Aperto.Campi[1].Font = QStringLiteral("Font Mai Esistito");
        },
        [](S &m) { m.Aperto.Campi[1].Testo.clear(); });
    riga(
        "character that the font lacks", CaratteriMancanti, "campo Data",
        [](S &m) { m.Aperto.Campi[2].Testo = QStringLiteral("15 ☃"); },
        [](S &m) { m.Aperto.Campi[2].Testo = QStringLiteral("15 €"); });
    riga(
        "picture that is missing", FileImmagine, "immagine logo.bmp",
        [](S &m) { QVERIFY(QFile::remove(m.In("logo.bmp"))); },
        [](S &m) { m.Aperto.Immagini[1].Nome = QStringLiteral("LOGO.BMP"); });
    riga(
        "picture outside the folder", FileImmagine, "immagine ../logo.bmp",
        [](S &m) { m.Aperto.Immagini[1].Nome = QStringLiteral("../logo.bmp"); },
        [](S &m) { m.Aperto.Immagini[1].Nome = QStringLiteral("./logo.bmp"); });
    riga(
        "picture cut short", FileImmagine, "immagine timbro.gif",
        [](S &m) { m.Scrive("timbro.gif", ImmaginiDiProva::GifAnimata().left(30)); },
        [](S &m) { m.Scrive("timbro.gif", ImmaginiDiProva::GifTrasparente()); });
    riga(
        "picture that is none", FileImmagine, "immagine logo.bmp",
        [](S &m) { m.Scrive("logo.bmp", "questa non è un'immagine"); },
        [](S &m) { m.Scrive("logo.bmp", ImmaginiDiProva::JpegCmyk()); });
    riga(
        "text into its neighbour", TestoSulVicino, "campo Numero",
        [](S &m) { m.Aperto.Campi[2].X = std::floor(10 + Largo("128/A")); },
        [](S &m) { m.Aperto.Campi[2].X = std::ceil(10 + Largo("128/A")); });
    riga(
        "caption into a field", TestoSulVicino, "cornice Titolo",
        [](S &m) { m.Campo("Anno", std::floor(121 + Largo("FATTURA")), 15, "2026"); },
        [](S &m) { m.Campo("Anno", std::ceil(121 + Largo("FATTURA")), 15, "2026"); });
    riga(
        "field into a caption a little lower", TestoSulVicino, "campo Numero",
        [](S &m) { m.Cornice("Del", 12, 21, 10, 5).Testo = QStringLiteral("del"); },
        // On the line below.
        [](S &m) { m.Cornice("Del", 12, 24, 10, 5).Testo = QStringLiteral("del"); });
    riga(
        "text past what the printer reaches", TestoOltreStampabile, "campo Numero",
        [](S &m) { m.Aperto.Campi[1].X = std::ceil(S::LarghezzaStampabile - Largo("128/A")); },
        [](S &m) { m.Aperto.Campi[1].X = std::floor(S::LarghezzaStampabile - Largo("128/A")); });
    riga(
        "frame past the right edge of the paper", FuoriDallaCarta, "cornice Riquadro",
        [](S &m) { m.Aperto.Cornici[1].X = 106; }, [](S &m) { m.Aperto.Cornici[1].X = 99; });
    riga(
        "picture off the paper", FuoriDallaCarta, "immagine logo.bmp",
        [](S &m) { m.Aperto.Immagini[1].Y = 300; }, [](S &m) { m.Aperto.Immagini[1].Y = 200; });
    riga(
        "field without test text off the paper", FuoriDallaCarta, "campo Numero",
        [](S &m) {
            m.Aperto.Campi[1].Testo.clear();
            m.Aperto.Campi[1].X = 300;
        },
        [](S &m) { m.Aperto.Campi[1].Testo.clear(); });
    riga(
        "field above the paper", FuoriDallaCarta, "campo Numero",
        [](S &m) { m.Aperto.Campi[1].Y = -7; }, [](S &m) { m.Aperto.Campi[1].Y = 0; });
    riga(
        "field to the right of the paper", FuoriDallaCarta, "campo Numero",
        [](S &m) { m.Aperto.Campi[1].X = 220; }, [](S &m) { m.Aperto.Campi[1].X = 180; });
    riga(
        "frame in the edge that the printer does not reach", NelBordo, "cornice Riquadro",
        // Its right bar stands beyond it.
        [](S &m) { m.Aperto.Cornici[1].X = 100; }, [](S &m) { m.Aperto.Cornici[1].X = 99; });
    riga(
        "picture in the edge that the printer does not reach", NelBordo, "immagine logo.bmp",
        [](S &m) { m.Aperto.Immagini[1].X = -2; },
        // Printed at whole millimetres.
        [](S &m) { m.Aperto.Immagini[1].X = -0.5; });
    riga(
        "caption in the edge above", NelBordo, "cornice Titolo",
        [](S &m) { m.Aperto.Cornici[2].Y = -2; }, [](S &m) { m.Aperto.Cornici[2].Y = 0; });
    riga(
        "names equal but for case", NomeDoppio, "campo NUMERO",
        [](S &m) { m.Campo("NUMERO", 100, 60, "1"); },
        [](S &m) { m.Campo("NUMERO2", 100, 60, "1"); });
    riga(
        "names equal to the letter", NomeDoppio, "campo Numero",
        [](S &m) { m.Campo("Numero", 100, 60, "1"); },
        // Frames have names of their own.
        [](S &m) { m.Cornice("Numero", 100, 60, 10, 10).Bordo = 1; });
    riga(
        "test text longer than its mask", MascheraETesto, "campo Numero",
        [](S &m) { m.Aperto.Campi[1].Maschera = QString(4, u'$'); },
        [](S &m) { m.Aperto.Campi[1].Maschera = QString(5, u'$'); });
    riga(
        "letters in a numeric mask", MascheraETesto, "campo R_Importo",
        [](S &m) { m.Aperto.Campi[3].Testo = QStringLiteral("Importo"); },
        [](S &m) { m.Aperto.Campi[3].Testo = QStringLiteral("-234,50"); });
    riga(
        "more decimals than the mask prints", MascheraETesto, "campo R_Importo",
        [](S &m) { m.Aperto.Campi[3].Testo = QStringLiteral("34,505"); },
        [](S &m) { m.Aperto.Campi[3].Testo = QStringLiteral("34,50"); });
    riga(
        "more whole digits than the mask prints", MascheraETesto, "campo R_Importo",
        [](S &m) {
            m.Aperto.Campi[3].Maschera = QStringLiteral("###,###");
            m.Aperto.Campi[3].Testo = QStringLiteral("12345,6");
        },
        [](S &m) {
            m.Aperto.Campi[3].Maschera = QStringLiteral("###,###");
            m.Aperto.Campi[3].Testo = QStringLiteral("-345,6");
        });
    riga(
        "decimals for a mask without", MascheraETesto, "campo R_Importo",
        [](S &m) {
            m.Aperto.Campi[3].Maschera = QStringLiteral("####,");
            m.Aperto.Campi[3].Testo = QStringLiteral("3,5");
        },
        [](S &m) {
            m.Aperto.Campi[3].Maschera = QStringLiteral("####,");
            m.Aperto.Campi[3].Testo = QStringLiteral("35");
        });
    riga(
        "row field between two rows", CampoFuoriRiga, "campo R_Importo",
        [](S &m) { m.Aperto.Campi[3].Y = 102.5; },
        // No row field: the "r" is a small one.
        [](S &m) {
            m.Aperto.Campi[3].Y = 102;
            m.Aperto.Campi[3].Nome = QStringLiteral("r_Importo");
        });
    riga(
        "two texts at one place", Coperto, "campo Copia",
        [](S &m) { m.Campo("Copia", 10, 20, "128"); },
        [](S &m) { m.Campo("Copia", 10, 25, "128"); });
    riga(
        "caption over a field", Coperto, "cornice Scritta",
        [](S &m) { m.Cornice("Scritta", 9, 20, 10, 5).Testo = QStringLiteral("N."); },
        [](S &m) { m.Cornice("Scritta", 9, 15, 10, 5).Testo = QStringLiteral("N."); });
    riga(
        "picture inside a picture", Coperto, "immagine timbro.gif",
        [](S &m) { m.Aperto.Immagini[2].Y = 40; },
        // It sticks out by a millimetre.
        [](S &m) { m.Aperto.Immagini[2].Y = 41; });
    riga(
        "frame exactly over a frame", Coperto, "cornice Riquadro",
        [](S &m) { m.Cornice("Doppia", 5, 15, 100, 12).Bordo = 1; },
        [](S &m) { m.Cornice("Doppia", 5, 15, 101, 12).Bordo = 1; });
    riga(
        "thin frame under a thick one", Coperto, "cornice Doppia",
        [](S &m) {
            m.Aperto.Cornici[1].Bordo = 1.8;
            m.Cornice("Doppia", 5, 15, 100, 12).Bordo = 1.2;
        },
        // A label draws no lines.
        [](S &m) { m.Cornice("Doppia", 5, 15, 100, 12).Bordo = 0; });
    riga(
        "text under a logo", Coperto, "campo Numero", [](S &m) { m.Aperto.Campi[1].Y = 50; },
        // A form of the width of the sheet is there to be printed on.
        [](S &m) {
            m.Aperto.Immagini[2] = {{QStringLiteral("timbro.gif"), 0, 2, {}}, 36, 195, 0};
        });
    riga(
        "row area upside down", RigheCapovolte, "righe", [](S &m) { m.Aperto.Righe.yFine = 99; },
        [](S &m) { m.Aperto.Righe.yFine = 101; });
    riga(
        "row area without height", RigheCapovolte, "righe",
        [](S &m) { m.Aperto.Righe.yFine = 100; },
        // A model without rows has no such area.
        [](S &m) {
            m.Aperto.Righe.yFine = 100;
            m.Aperto.Campi[3].Nome = QStringLiteral("Importo");
        });
    riga(
        "spacing zero", InterlineaNulla, "righe", [](S &m) { m.Aperto.Righe.Interlinea = 0; },
        [](S &m) { m.Aperto.Righe.Interlinea = 0.5; });
    riga(
        "spacing below zero", InterlineaNulla, "righe",
        [](S &m) { m.Aperto.Righe.Interlinea = -5; },
        [](S &m) { m.Aperto.Righe.Interlinea = 5.5; });
    riga(
        "spacing of long descriptions zero", InterlineaNulla, "righe",
        [](S &m) { m.Aperto.Righe.InterlineaDescr = 0; },
        [](S &m) { m.Aperto.Righe.InterlineaDescr = 0.5; });
    riga(
        "folder instead of a scan", Scansione, "immagine di sfondo",
        [](S &m) { m.Aperto.Sfondo.File = m.In("."); }, [](S &m) { m.Aperto.Sfondo.File.clear(); });
    riga(
        "scan that is missing", Scansione, "immagine di sfondo",
        [](S &m) { QVERIFY(QFile::remove(m.In("scansione.bmp"))); },
        [](S &m) { m.Aperto.Sfondo.File.clear(); });
}

void tst_Rilievi::OgniRilievoEIlSuoGemello()
{
    QFETCH(Guasto, guasto);
    QFETCH(Guasto, gemello);
    QFETCH(int, specie);
    QFETCH(QString, soggetto);
    ModelloSano guasta;
    guasto(guasta);
    const QList<Rilievo> rilievi = guasta.Rilievi();
    QVERIFY2(rilievi.size() == 1, qPrintable(guasta.Righe().join(u'\n')));
    QCOMPARE(int(rilievi.constFirst().Specie), specie);
    QCOMPARE(rilievi.constFirst().Soggetto, soggetto);
    // One sentence: what happens, a colon, what to do.
    const QString testo = rilievi.constFirst().Testo;
    QVERIFY2(testo.contains(QStringLiteral(": ")) && testo.endsWith(u'.'), qPrintable(testo));
    ModelloSano sana;
    gemello(sana);
    QCOMPARE(sana.Righe(), QStringList());
}

void tst_Rilievi::UnaCartellaNonMancaMaNonEUnFile()
{
    ModelloSano sana;
    QVERIFY(QFile::remove(sana.In("logo.bmp")) && QDir().mkdir(sana.In("logo.bmp")));
    sana.Aperto.Sfondo.File = sana.In("logo.bmp");
    const QStringList righe = sana.Righe();
    QCOMPARE(righe.size(), 2);
    for (const QString &riga : righe) {
        QVERIFY2(riga.contains(QStringLiteral("è una cartella, non un file")) &&
                     !riga.contains(QStringLiteral("manca")),
                 qPrintable(riga));
    }
}

void tst_Rilievi::UnCampoNonStampatoNonHaPosto()
{
    ModelloSano sano;
    Campo &campo = sano.Campo("Taciuto", 10, 20, "un testo lungo con lettere ☃");
    campo.Font = QStringLiteral("Font Mai Esistito");
    campo.X = 500;
    campo.Maschera = QStringLiteral("no"); // as paper takes it, in any case
    QCOMPARE(sano.Righe(), QStringList());
    campo.Maschera = QString(60, u'$');
    QVERIFY(!sano.Righe().isEmpty());
}

void tst_Rilievi::GliElementiEliminatiTacciono()
{
    ModelloSano sano;
    sano.Campo("NUMERO", 500, 20, "☃");
    sano.Cornice("Riquadro2", 5, 15, 100, 12).Bordo = 1;
    sano.Immagine("manca.bmp", 500, 0, 10, 10);
    QVERIFY(sano.Rilievi().size() >= 4);
    sano.Aperto.Campi[4].Nome.clear();
    sano.Aperto.Cornici[3].Nome.clear();
    sano.Aperto.Immagini[3].Nome.clear();
    QCOMPARE(sano.Righe(), QStringList());
}

void tst_Rilievi::SenzaStampanteNienteSullaCarta()
{
    ModelloSano sano;
    sano.Aperto.Campi[1].X = 199;
    sano.Aperto.Cornici[1].X = 150;
    sano.Aperto.Immagini[1].Y = 400;
    QCOMPARE(sano.Rilievi().size(), 3);
    sano.Controllo().ImpostaFoglio(std::nullopt);
    QCOMPARE(sano.Righe(), QStringList());
}

void tst_Rilievi::SenzaIlFileNonCEFigura()
{
    // Under a picture, inside another and off the paper: of a missing one only that is told.
    ModelloSano sano;
    QVERIFY(QFile::remove(sano.In("logo.bmp")));
    sano.Aperto.Campi[1].Y = 50;
    sano.Aperto.Immagini[2].X = 38;
    sano.Aperto.Immagini[2].Y = 40;
    QCOMPARE(sano.Rilievi().size(), 1);
    QCOMPARE(sano.Rilievi().constFirst().Specie, SpecieRilievo::FileImmagine);
    sano.Aperto.Immagini[1].Y = 300;
    QCOMPARE(sano.Rilievi().size(), 1);
}

void tst_Rilievi::UnCampoDiRigaNonStampatoTace()
{
    ModelloSano sano;
    sano.Aperto.Campi[3].Y = 102.5;
    sano.Aperto.Campi[3].Maschera = QStringLiteral("No");
    QCOMPARE(sano.Righe(), QStringList());
}

void tst_Rilievi::UnRigoPerRilievo()
{
    ModelloSano sano;
    sano.Aperto.Campi[1].Nome = QStringLiteral("Due\nrighe");
    sano.Aperto.Campi[1].Maschera = QStringLiteral("$");
    sano.Aperto.Sfondo.File = QStringLiteral("manca\n.bmp");
    const QStringList righe = sano.Righe();
    QCOMPARE(righe.size(), 2);
    QVERIFY(righe.constFirst().startsWith(QStringLiteral("campo Due righe: ")));
    QVERIFY(!righe.join(QString()).contains(u'\n'));
}

void tst_Rilievi::InOrdineDiElemento()
{
    ModelloSano sano;
    sano.Aperto.Sfondo.File = QStringLiteral("manca.bmp");
    sano.Aperto.Righe.Interlinea = 0;
    sano.Aperto.Immagini[1].Nome = QStringLiteral("manca.bmp");
    sano.Aperto.Cornici[2].Font = QStringLiteral("Font Mai Esistito");
    sano.Aperto.Campi[2].Maschera = QStringLiteral("$");
    sano.Aperto.Campi[1].Maschera = QStringLiteral("$");
    sano.Aperto.Campi[1].Font = QStringLiteral("Font Mai Esistito");
    QStringList soggetti;
    for (const Rilievo &rilievo : sano.Rilievi()) {
        soggetti.append(rilievo.Soggetto);
    }
    QCOMPARE(soggetti, QStringList({QStringLiteral("campo Numero"), QStringLiteral("campo Numero"),
                                    QStringLiteral("campo Data"), QStringLiteral("cornice Titolo"),
                                    QStringLiteral("immagine manca.bmp"), QStringLiteral("righe"),
                                    QStringLiteral("immagine di sfondo")}));
}

QTEST_MAIN(tst_Rilievi)
#include "tst_Rilievi.moc"
