#include "RigheFile.h"
#include "Scrivania.h"
#include "support/CodaDiStampa.h"
#include "support/LettorePdf.h"
#include "support/Rettangoli.h"

#include <QDir>
#include <QTest>

namespace {

const QString Ddt = QStringLiteral("DDT_prestampato");

/// The smallest rectangle around the pixels of the zone that differ.
QRect Diversi(const QImage &a, const QImage &b, const QRect &zona)
{
    QRect diversi;
    for (int y = zona.top(); y <= zona.bottom(); ++y) {
        for (int x = zona.left(); x <= zona.right(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                diversi |= QRect(x, y, 1, 1);
            }
        }
    }
    return diversi;
}

/// The middle of the help icon in the zone, once it is there.
QPoint IconaGuida(const Schermo &video, const QRect &zona)
{
    constexpr QRgb Azzurro = 0x1F6FB5;
    QRect macchia;
    video.AttendeQui(QStringLiteral("the help icon"), [&] {
        const QImage foto = video.Foto();
        for (int y = zona.top(); y <= zona.bottom(); ++y) {
            for (int x = zona.left(); x <= zona.right(); ++x) {
                if ((foto.pixel(x, y) & 0xFFFFFF) == Azzurro) {
                    macchia |= QRect(x, y, 1, 1);
                }
            }
        }
        return !macchia.isNull();
    });
    return macchia.center();
}

} // namespace

/// The commands that are not about a single element, by mouse and keys.
class tst_RestoDellaScrivania : public QObject
{
    Q_OBJECT

private slots:
    void scansioneRigheESpostamento();
    void grigliaMillimetrata();
    void manuale();

private:
    static void ScegliScansione(Scrivania &scrivania);
};

void tst_RestoDellaScrivania::ScegliScansione(Scrivania &scrivania)
{
    Schermo &video = scrivania.Video();
    scrivania.Pagina(5);
    video.Tasti({QStringLiteral("alt+f")});
    video.Attende(QStringLiteral("^Sfoglia$"));
    // It starts among the models, where the scan lies.
    const QStringList file =
        QDir(scrivania.CartellaModelli()).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    video.Tasti({QStringLiteral("Tab"), QStringLiteral("End"), QStringLiteral("Home")});
    video.Tasto(QStringLiteral("Down"),
                static_cast<int>(file.indexOf(QStringLiteral("ScansioneDDT.jpg"))));
    video.Tasti({QStringLiteral("Return")});
    video.Attende(QStringLiteral("^caricamento immagine .*/ScansioneDDT\\.jpg$"));
    video.Scrive(QStringLiteral("100"));
    video.Tasti({QStringLiteral("Return")});
    scrivania.Editor();
}

void tst_RestoDellaScrivania::scansioneRigheESpostamento()
{
    Scrivania scrivania;
    Schermo &video = scrivania.Video();
    const QString file = scrivania.CartellaModelli() + Ddt + QStringLiteral(".Mod");
    RigheFile atteso(file);
    scrivania.Avvia();
    scrivania.ApreModello(Ddt);
    // Inside the line that shows who has the keys.
    const QRect foglio(scrivania.SulFoglio({1, 1}), scrivania.SulFoglio({220, 120}));

    // Waits until what differs from a picture of the sheet lies as it should, and gives the new
    // one.
    const auto quando = [&](const char *cosa, const QImage &prima,
                            const std::function<bool(QRect)> &vale) {
        QImage foto;
        video.AttendeQui(QString::fromUtf8(cosa), [&] {
            foto = video.Foto();
            return vale(Diversi(prima, foto, foglio));
        });
        return foto;
    };
    const auto x = [&](double millimetri) { return scrivania.SulFoglio({millimetri, 0}).x(); };
    const auto y = [&](double millimetri) { return scrivania.SulFoglio({0, millimetri}).y(); };

    // The outlines of the paper come when the print system has answered: not in these pictures.
    scrivania.Anteprima();
    video.Tasti({QStringLiteral("ctrl+shift+c")});
    const QImage senza = video.Foto();
    ScegliScansione(scrivania);
    // The scan lies at -5, -5 mm: it fills the sheet to 205 mm.
    const QImage con = quando("the scan", senza, [&](QRect scansione) {
        return scansione.right() <= x(205.2) && scansione.right() > x(180);
    });
    // From the tab over eight controls to the arrow to the left, then to the one down.
    video.Tasto(QStringLiteral("Tab"), 9);
    video.Tasto(QStringLiteral("space"), 2);
    video.Tasto(QStringLiteral("Tab"), 2);
    video.Tasti({QStringLiteral("space")});
    quando("the scan elsewhere", con, [](QRect diverso) { return !diverso.isEmpty(); });
    atteso.MetteTesta(3,
                      (scrivania.CartellaModelli() + QStringLiteral("ScansioneDDT.jpg")).toUtf8());
    atteso.MetteTesta(4, "210.058");
    atteso.MetteTesta(5, "297.18");
    atteso.MetteTesta(6, "-6");
    atteso.MetteTesta(7, "-4.5");

    // Without the scan, so that the rows show on white.
    video.Tasti({QStringLiteral("alt+m")});
    quando("the sheet without the scan", senza, [](QRect diverso) { return diverso.isEmpty(); });
    scrivania.Pagina(1);
    video.Tasti({QStringLiteral("Tab"), QStringLiteral("ctrl+a")});
    video.Scrive(QStringLiteral("90"));
    video.Tasti({QStringLiteral("Tab"), QStringLiteral("ctrl+a")});
    video.Scrive(QStringLiteral("112"));
    video.Tasti({QStringLiteral("Tab"), QStringLiteral("ctrl+a")});
    video.Scrive(QStringLiteral("6"));
    video.Tasti({QStringLiteral("alt+c")});
    const QImage senzaRighe = quando("the row fields five millimetres up", senza, [&](QRect campi) {
        return campi.top() > y(89.5) && campi.top() < y(92) && campi.bottom() > y(97) &&
               campi.bottom() < y(100);
    });
    video.Tasti({QStringLiteral("alt+a")});
    // Rows at 96, 102 and 108 mm, from the leftmost row field to the end of the rightmost one.
    quando("the simulated rows", senzaRighe, [&](QRect righe) {
        return righe.left() >= x(9) - 1 && righe.left() < x(11) && righe.top() >= y(96) - 1 &&
               righe.top() < y(99) && righe.right() > x(193) && righe.right() < x(197) &&
               righe.bottom() > y(109) && righe.bottom() <= y(114) + 1;
    });
    video.Tasti({QStringLiteral("alt+a")});
    quando("the rows gone", senzaRighe, [](QRect diverso) { return diverso.isEmpty(); });
    atteso.MetteTesta(8, " 90 ");
    atteso.MetteTesta(9, " 112 ");
    atteso.MetteTesta(10, " 6 ");
    atteso.MetteTesta(11, " 0 ");

    scrivania.Pagina(4);
    video.Tasti({QStringLiteral("Tab"), QStringLiteral("ctrl+a")});
    video.Scrive(QStringLiteral("2"));
    video.Tasti({QStringLiteral("alt+b"), QStringLiteral("alt+c")});
    const QList<QByteArray> nomi = atteso.NomiCampi();
    QVERIFY(nomi.size() > 10);
    for (const QByteArray &nome : nomi) {
        const bool riga = nome.startsWith("R_");
        const int alto = atteso.Riga(nome, RigheFile::Campo::Y).toInt();
        atteso.Mette(nome, RigheFile::Campo::Y, QByteArray::number(riga ? 90 : alto + 2));
    }
    scrivania.Salva();
    const QByteArray differenza = RigheFile(file).Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
    scrivania.ChiudeEditor();
}

void tst_RestoDellaScrivania::grigliaMillimetrata()
{
    if (!CodaDiStampa::Installata()) {
        QSKIP("CUPS and its PDF printer (packages cups, printer-driver-cups-pdf) are missing");
    }
    CodaDiStampa coda;
    coda.Aggiunge(QStringLiteral("Prova"), {});
    coda.Predefinita(QStringLiteral("Prova"));
    Scrivania scrivania;
    scrivania.CollegaStampante(coda);
    scrivania.Avvia();
    scrivania.ApreModello(Ddt);
    scrivania.Editor();
    scrivania.Video().Tasti({QStringLiteral("alt+g")});
    const LettorePdf foglio = Scrivania::UnicoFoglio(coda);
    QCOMPARE(foglio.Pagine(), 1);
    const auto inchiostro = [&](const QRectF &zona) {
        constexpr QPointF Angolo = CodaDiStampa::AngoloStampabile;
        return foglio.Inchiostro(zona.translated(Angolo)).translated(-Angolo);
    };
    for (int x = 20; x <= 180; x += 10) {
        const QRectF linea = inchiostro({x - 2.0, 32, 4, 4});
        QVERIFY2(Vicini(linea.center().x(), x), Testo(linea));
    }
    for (int y = 20; y <= 270; y += 10) {
        const QRectF linea = inchiostro({32, y - 2.0, 4, 4});
        QVERIFY2(Vicini(linea.center().y(), y), Testo(linea));
    }
    // Numbered ticks are 3 mm long, the others 2; their line's own thickness comes on top.
    const QRectF centimetro = inchiostro({99.5, 0.3, 1, 2.6});
    QVERIFY2(Vicini(centimetro.center().x(), 100) && centimetro.height() > 2.5, Testo(centimetro));
    const QRectF mezzo = inchiostro({104.5, 0.3, 1, 2.6});
    QVERIFY2(Vicini(mezzo.center().x(), 105) && Vicini(mezzo.bottom(), 2, 0.2), Testo(mezzo));
}

void tst_RestoDellaScrivania::manuale()
{
    Scrivania scrivania;
    Schermo &video = scrivania.Video();
    // What the system would open documents with.
    const QString programmi = scrivania.In(QStringLiteral("programmi"));
    const QString aperti = scrivania.In(QStringLiteral("aperti"));
    QVERIFY(QDir().mkpath(programmi));
    const QString apritore = programmi + QStringLiteral("/xdg-open");
    ScriveFile(apritore, "#!/bin/sh\necho \"$1\" >> '" + aperti.toUtf8() + "'\n");
    QVERIFY(QFile::setPermissions(apritore, QFile::ReadOwner | QFile::ExeOwner));
    scrivania.Ambiente().insert(QStringLiteral("PATH"),
                                programmi + QLatin1Char(':') + qEnvironmentVariable("PATH"));
    const auto attende = [&](int volte) {
        const QByteArray atteso =
            QByteArray("file://" CARTELLA_PROGRAMMA "/XtHelpPdf/zPlakera-XtHelp.pdf\n")
                .repeated(volte);
        AttendeChe(QStringLiteral("the manual"),
                   [&] { return QFile::exists(aperti) && ByteDi(aperti).size() >= atteso.size(); });
        QCOMPARE(ByteDi(aperti), atteso);
    };
    scrivania.Avvia();
    scrivania.ApreModello(QStringLiteral("Fattura_Rossi"));
    const QRect editor = scrivania.Editor().Interno;
    const QRect comandi(editor.topLeft(), QSize(editor.width() / 3, editor.height()));
    video.Clic(IconaGuida(video, comandi));
    attende(1);
    video.Tasti({QStringLiteral("F1")});
    attende(2);
    scrivania.Anteprima();
    video.Tasti({QStringLiteral("F1")});
    attende(3);
    scrivania.ProprietaCampo({142, 97});
    video.Tasti({QStringLiteral("F1")});
    attende(4);
    video.Tasti({QStringLiteral("Escape")});
    video.AttendeChiusa(Scrivania::TitoloCampo);
    scrivania.ChiudeEditor();
    const QRect inizio = video.Attende(Scrivania::TitoloInizio).Interno;
    video.Clic(IconaGuida(video, inizio));
    attende(5);
    video.Tasti({QStringLiteral("F1")});
    attende(6);
}

QTEST_GUILESS_MAIN(tst_RestoDellaScrivania)
#include "tst_RestoDellaScrivania.moc"
