#include "RigheFile.h"
#include "Scrivania.h"
#include "support/CodaDiStampa.h"
#include "support/LettorePdf.h"
#include "support/Rettangoli.h"

#include <QRegularExpression>
#include <QTest>

namespace {

const QString Fattura = QStringLiteral("Fattura_Rossi");

} // namespace

/// What a user changes with mouse and keys is what the file holds and what the printer prints.
class tst_MuoveESalva : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void unaGiornataDiLavoro();

private:
    void CambiaMaschera(Scrivania &scrivania);
    void CambiaLogo(Scrivania &scrivania);
};

void tst_MuoveESalva::initTestCase()
{
    if (!CodaDiStampa::Installata()) {
        QSKIP("CUPS and its PDF printer (packages cups, printer-driver-cups-pdf) are missing");
    }
}

void tst_MuoveESalva::CambiaMaschera(Scrivania &scrivania)
{
    scrivania.ProprietaCampo({142, 97});
    // From three decimals to four: the list has eleven masks of each.
    scrivania.Video().Tasti({QStringLiteral("alt+b")});
    scrivania.Video().Tasto(QStringLiteral("Down"), 11);
    scrivania.Video().Tasti({QStringLiteral("alt+s"), QStringLiteral("alt+c")});
    scrivania.Video().AttendeChiusa(Scrivania::TitoloCampo);
}

void tst_MuoveESalva::CambiaLogo(Scrivania &scrivania)
{
    scrivania.ProprietaImmagine({50, 8});
    // The second picture of the folder.
    scrivania.Video().Tasti({QStringLiteral("alt+r"), QStringLiteral("Home"),
                             QStringLiteral("Down"), QStringLiteral("space")});
    scrivania.Video().Attende(QStringLiteral("^caricamento immagine LogoPerlanera\\.jpg$"));
    scrivania.Video().Scrive(QStringLiteral("30"));
    scrivania.Video().Tasti({QStringLiteral("Return")});
    scrivania.Video().Attende(Scrivania::TitoloImmagine);
    scrivania.Video().Tasti({QStringLiteral("alt+c")});
    scrivania.Video().AttendeChiusa(Scrivania::TitoloImmagine);
}

void tst_MuoveESalva::unaGiornataDiLavoro()
{
    CodaDiStampa coda;
    coda.Aggiunge(QStringLiteral("Prova"), {});
    coda.Predefinita(QStringLiteral("Prova"));
    Scrivania scrivania;
    scrivania.CollegaStampante(coda);
    const QString logo = scrivania.CartellaModelli() + QStringLiteral("LogoPerlanera.jpg");
    QVERIFY(QFile::copy(scrivania.Dati() + QStringLiteral("/Archivio_2026/ini/LogoPerlanera.jpg"),
                        logo));
    const QString file = scrivania.CartellaModelli() + Fattura + QStringLiteral(".Mod");
    const RigheFile prima(file);
    const LettorePdf fogliPrima = scrivania.StampaInPdf(Fattura);

    scrivania.Avvia();
    scrivania.ApreModello(Fattura);
    scrivania.Zoom(QStringLiteral("2"));
    scrivania.TrascinaCampo({9, 79}, {41, 139});
    constexpr int Pixel = -19; // 10.05 mm of paper at this scale
    scrivania.AllargaCornice({60, 35}, {98, 60}, Pixel);
    CambiaMaschera(scrivania);
    CambiaLogo(scrivania);
    QVERIFY2(prima.Differenza(RigheFile(file)).isEmpty(), "written before the save");
    scrivania.Salva();

    const RigheFile dopo(file);
    const QByteArray prezzo = dopo.Riga("R_Prezzo", RigheFile::Campo::Testo);
    static const QRegularExpression Campione(QStringLiteral("^\\d{6},\\d{4}$"));
    QVERIFY2(Campione.match(QString::fromLatin1(prezzo)).hasMatch(), prezzo);
    RigheFile atteso = prima;
    atteso.Mette("Vs_Ordine", RigheFile::Campo::X, "41");
    atteso.Mette("Vs_Ordine", RigheFile::Campo::Y, "139");
    atteso.Mette("Riquadro cliente", RigheFile::Cornice::Larghezza, "81");
    atteso.Mette("R_Prezzo", RigheFile::Campo::Testo, prezzo);
    atteso.Mette("R_Prezzo", RigheFile::Campo::Maschera, "######,#####");
    // 800 x 320 pixels at 96 to the inch, reduced to 30 %.
    atteso.Mette("LogoCascinalta.gif", RigheFile::Immagine::Larghezza, "63.5");
    atteso.Mette("LogoCascinalta.gif", RigheFile::Immagine::Altezza, "25.4");
    atteso.Mette("LogoCascinalta.gif", RigheFile::Immagine::Nome, "LogoPerlanera.jpg");
    QVERIFY2(dopo.Differenza(atteso).isEmpty(), dopo.Differenza(atteso));

    scrivania.ChiudeEditor();
    scrivania.ApreModello(Fattura);
    const LettorePdf coda1 = scrivania.StampaInCoda(coda);
    QCOMPARE(coda1.Pagine(), 1);
    const LettorePdf foglio = scrivania.StampaInPdf(Fattura);

    const QString data = QStringLiteral("02/03/2026");
    const QRectF parola = foglio.Parola1(data);
    const QRectF parolaAttesa = fogliPrima.Parola1(data).translated(32, 60);
    QVERIFY2(Vicini(parola, parolaAttesa), Testo(parola));
    // The longer sample runs into the next column's.
    QVERIFY2(foglio.Testi().join(u' ').contains(QString::fromLatin1(prezzo)),
             qPrintable(foglio.Testi().join(u' ')));
    // What the queue printed, from the corner that the printer can reach.
    const auto inCoda = [&](const QRectF &zona) {
        constexpr QPointF Angolo = CodaDiStampa::AngoloStampabile;
        return coda1.Inchiostro(zona.translated(Angolo)).translated(-Angolo);
    };
    const auto stessoPosto = [&](const QRectF &zona) {
        return !inCoda(zona).isEmpty() && Vicini(inCoda(zona), foglio.Inchiostro(zona));
    };
    QVERIFY(stessoPosto(parola));
    QVERIFY(stessoPosto({5, 3, 72, 27})); // the logo
    const QRectF lato = inCoda({86, 58, 4, 2});
    QVERIFY2(Vicini(lato.left(), 88) && Vicini(lato.width(), 0.3), Testo(lato));
    QVERIFY(inCoda({95, 58, 5, 2}).isEmpty());  // where the side stood
    QVERIFY(inCoda({10, 80, 30, 2}).isEmpty()); // where the field stood

    scrivania.ChiudeEditor();
    scrivania.ChiudeInizio();
    QCOMPARE(Scrivania::EsitoDi(scrivania.Programma()), 0);
}

QTEST_GUILESS_MAIN(tst_MuoveESalva)
#include "tst_MuoveESalva.moc"
