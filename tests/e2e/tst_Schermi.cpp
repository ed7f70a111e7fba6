#include "RigheFile.h"
#include "Scrivania.h"
#include "support/CodaDiStampa.h"
#include "support/LettorePdf.h"
#include "support/Rettangoli.h"

#include <QTest>

#include <cmath>
#include <functional>
#include <optional>

namespace {

const QString Fattura = QStringLiteral("Fattura_Rossi");

constexpr int StrisciaEditor = 200; // the program's pixels

} // namespace

/// The same work on screens of several sizes and scales: everything stands on the screen, the file
/// gets the same millimetres, and the sheet of paper does not change by a hair.
class tst_Schermi : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void stessoLavoro_data();
    void stessoLavoro();
    void menoDiUnPixelSiVedeComeUno();

private:
    void OgniFinestraSulloSchermo(Scrivania &scrivania);

    std::optional<CodaDiStampa> coda_;
    QList<LettorePdf> fogli_; ///< of the first screen: from the queue, from the command line
};

void tst_Schermi::initTestCase()
{
    if (!CodaDiStampa::Installata()) {
        QSKIP("CUPS and its PDF printer (packages cups, printer-driver-cups-pdf) are missing");
    }
    coda_.emplace();
    coda_->Aggiunge(QStringLiteral("Prova"), {});
    coda_->Predefinita(QStringLiteral("Prova"));
}

void tst_Schermi::OgniFinestraSulloSchermo(Scrivania &scrivania)
{
    Schermo &video = scrivania.Video();
    const QString sfoglia = QStringLiteral("^Sfoglia$");
    const auto chiude = [&](const Schermo::Finestra &dialogo, const QString &titolo) {
        video.Tasti({QStringLiteral("Escape")});
        video.AttendeChiusa(titolo);
        QVERIFY2(video.Pixel().contains(dialogo.Ingombro()), Testo(dialogo.Ingombro()));
        // Where there is room, the editor above stays in sight.
        QVERIFY2(scrivania.Scala() != 1 || titolo == sfoglia ||
                     dialogo.Ingombro().top() >= StrisciaEditor,
                 Testo(dialogo.Ingombro()));
    };
    chiude(scrivania.ProprietaCampo({142, 97}), Scrivania::TitoloCampo);
    chiude(scrivania.ProprietaCornice({60, 63}), Scrivania::TitoloCornice);
    chiude(scrivania.ProprietaImmagine({50, 8}), Scrivania::TitoloImmagine);
    scrivania.Pagina(5);
    video.Tasti({QStringLiteral("alt+f")});
    chiude(video.Attende(sfoglia), sfoglia);
}

void tst_Schermi::stessoLavoro_data()
{
    QTest::addColumn<QSize>("pixel");
    QTest::addColumn<double>("scala");
    QTest::newRow("1366x768") << QSize(1366, 768) << 1.0;
    QTest::newRow("1920x1080") << QSize(1920, 1080) << 1.0;
    QTest::newRow("1366x768, scale 1.25") << QSize(1366, 768) << 1.25;
    QTest::newRow("1920x1080, scale 2") << QSize(1920, 1080) << 2.0;
}

void tst_Schermi::stessoLavoro()
{
    QFETCH(QSize, pixel);
    QFETCH(double, scala);
    Scrivania scrivania(pixel, scala);
    scrivania.CollegaStampante(*coda_);
    const QString file = scrivania.CartellaModelli() + Fattura + QStringLiteral(".Mod");
    RigheFile atteso(file);
    scrivania.Avvia();
    const Schermo &video = scrivania.Video();
    const QRect inizio = video.Attende(Scrivania::TitoloInizio).Ingombro();
    QVERIFY2(video.Pixel().contains(inizio), Testo(inizio));

    scrivania.ApreModello(Fattura);
    const QRect editor = scrivania.Editor().Ingombro();
    const QRect anteprima = scrivania.Anteprima().Ingombro();
    QVERIFY2(video.Pixel().contains(editor), Testo(editor));
    QVERIFY2(video.Pixel().contains(anteprima), Testo(anteprima));
    QVERIFY2(!editor.intersects(anteprima), Testo(editor));
    QVERIFY2(editor.height() <= StrisciaEditor * scala, Testo(editor));
    // To the pixels that a fraction of one of the program's takes.
    QVERIFY2(editor.width() >= pixel.width() - 2 * scala &&
                 editor.height() >= (StrisciaEditor - 3) * scala,
             Testo(editor));
    QVERIFY2(anteprima.bottom() >= pixel.height() - 1 - 2 * scala, Testo(anteprima));

    scrivania.Zoom(QStringLiteral("2"));
    OgniFinestraSulloSchermo(scrivania);
    scrivania.TrascinaCampo({9, 79}, {41, 109});
    constexpr int Pixel = -19; // 10.05 mm of paper at this zoom
    scrivania.AllargaCornice({60, 35}, {98, 60}, Pixel);
    scrivania.Salva();
    atteso.Mette("Vs_Ordine", RigheFile::Campo::X, "41");
    atteso.Mette("Vs_Ordine", RigheFile::Campo::Y, "109");
    atteso.Mette("Riquadro cliente", RigheFile::Cornice::Larghezza, "81");
    const QByteArray differenza = RigheFile(file).Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);

    const QList<LettorePdf> fogli{scrivania.StampaInCoda(*coda_), scrivania.StampaInPdf(Fattura)};
    if (fogli_.isEmpty()) {
        fogli_ = fogli;
    }
    for (qsizetype i = 0; i < fogli.size(); ++i) {
        QVERIFY(fogli[i].Pixel() == fogli_[i].Pixel());
        QCOMPARE(fogli[i].Parole().size(), fogli_[i].Parole().size());
        for (qsizetype k = 0; k < fogli[i].Parole().size(); ++k) {
            QCOMPARE(fogli[i].Parole()[k].Testo, fogli_[i].Parole()[k].Testo);
            QCOMPARE(fogli[i].Parole()[k].Millimetri, fogli_[i].Parole()[k].Millimetri);
        }
    }
    scrivania.ChiudeEditor();
    scrivania.ChiudeInizio();
    QCOMPARE(Scrivania::EsitoDi(scrivania.Programma()), 0);
}

void tst_Schermi::menoDiUnPixelSiVedeComeUno()
{
    Scrivania scrivania;
    Schermo &video = scrivania.Video();
    QList<QImage> attesi;
    const auto giro = [&](const std::function<void()> &guarda) {
        scrivania.Avvia();
        video.Attende(Scrivania::TitoloInizio);
        guarda();
        scrivania.ApreModello(Fattura);
        guarda();
        scrivania.ProprietaCampo({142, 97});
        guarda();
        video.Tasti({QStringLiteral("Escape")});
        video.AttendeChiusa(Scrivania::TitoloCampo);
        scrivania.ChiudeEditor();
        scrivania.ChiudeInizio();
        QCOMPARE(Scrivania::EsitoDi(scrivania.Programma()), 0);
    };
    giro([&] { attesi.append(video.Foto()); });
    scrivania.Ambiente().insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("0.5"));
    // More than once, for the blinking of the text cursor.
    giro([&] {
        const QImage atteso = attesi.takeFirst();
        video.AttendeQui(QStringLiteral("the windows as at scale 1"),
                         [&] { return video.Foto() == atteso; });
    });
}

QTEST_GUILESS_MAIN(tst_Schermi)
#include "tst_Schermi.moc"
