#include "RigheFile.h"
#include "Scrivania.h"
#include "support/CodaDiStampa.h"
#include "support/LettorePdf.h"

#include <QFile>
#include <QTest>

namespace {

const QString Fattura = QStringLiteral("Fattura_Rossi");
const QString TitoloVista = QStringLiteral("^Vedi stampa: Fattura_Rossi\\.Mod$");
const QString TitoloFile = QStringLiteral("^Esporta PDF$");
const QString TitoloCorrezione = QStringLiteral("^Correggi da griglia$");

/// The sample invoice in the real program, and a printer.
struct Banco
{
    Banco()
    {
        coda.Aggiunge(QStringLiteral("Prova"), {});
        coda.Predefinita(QStringLiteral("Prova"));
        scrivania.CollegaStampante(coda);
        scrivania.Avvia();
        scrivania.ApreModello(Fattura);
    }

    Schermo &Video() { return scrivania.Video(); }
    void Tasto(const QString &tasto) { Video().Tasti({tasto}); }

    CodaDiStampa coda;
    Scrivania scrivania;
    const QString file = scrivania.CartellaModelli() + Fattura + QStringLiteral(".Mod");
};

} // namespace

/// Seeing, printing, exporting and correcting by the keys of a real screen.
class tst_StampaSulloSchermo : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void vistaStampataEsportata();
    void ctrlPDallAnteprima();
    void correttoDaGriglia();
};

void tst_StampaSulloSchermo::initTestCase()
{
    if (!CodaDiStampa::Installata()) {
        QSKIP("CUPS and its PDF printer (packages cups, printer-driver-cups-pdf) are missing");
    }
}

void tst_StampaSulloSchermo::vistaStampataEsportata()
{
    Banco banco;
    banco.scrivania.Anteprima();
    banco.Tasto(QStringLiteral("ctrl+shift+p"));
    const Schermo::Finestra vista = banco.Video().Attende(TitoloVista);
    QVERIFY(banco.Video().Pixel().contains(vista.Ingombro()));
    // The firm's logo, as blue as in its file.
    const QImage foto = banco.Video().Foto().copy(vista.Interno);
    int blu = 0;
    for (int y = 0; y < foto.height() / 3; ++y) {
        for (int x = 0; x < foto.width(); ++x) {
            const QColor colore = foto.pixelColor(x, y);
            blu += colore.blue() > 80 && colore.red() < 40 && colore.green() < 70 ? 1 : 0;
        }
    }
    QVERIFY2(blu > 100, QByteArray::number(blu));
    banco.Tasto(QStringLiteral("alt+s"));
    banco.Video().Attende(Scrivania::TitoloRiquadro);
    banco.Tasto(QStringLiteral("alt+n"));
    const LettorePdf foglio = Scrivania::UnicoFoglio(banco.coda);
    banco.Video().Attende(TitoloVista);
    banco.Tasto(QStringLiteral("alt+e"));
    banco.Video().Attende(TitoloFile);
    const QString pdf = banco.scrivania.In(QStringLiteral("vista.pdf"));
    banco.Video().Scrive(pdf);
    banco.Tasto(QStringLiteral("Return"));
    banco.Video().Attende(TitoloVista);
    AttendeChe(QStringLiteral("the PDF file"), [&] { return QFile::exists(pdf); });
    const LettorePdf esportato(pdf);
    QCOMPARE(esportato.Testi(), LettorePdf(banco.coda.Documento()).Testi());
    const QRectF inchiostro = foglio.Inchiostro();
    const QRectF scritto = esportato.Inchiostro();
    QVERIFY(qAbs(inchiostro.left() - scritto.left()) < 0.3 &&
            qAbs(inchiostro.bottom() - scritto.bottom()) < 0.3);
    banco.Tasto(QStringLiteral("Escape"));
    banco.Video().AttendeChiusa(TitoloVista);
    banco.scrivania.ChiudeEditor(); // nothing to be saved
}

void tst_StampaSulloSchermo::ctrlPDallAnteprima()
{
    Banco banco;
    banco.scrivania.Anteprima();
    banco.Tasto(QStringLiteral("ctrl+p"));
    banco.Video().Attende(Scrivania::TitoloRiquadro);
    banco.Tasto(QStringLiteral("Escape"));
    banco.scrivania.Anteprima();
    banco.Tasto(QStringLiteral("ctrl+p"));
    banco.Video().Attende(Scrivania::TitoloRiquadro);
    banco.Tasto(QStringLiteral("alt+n"));
    QVERIFY(!Scrivania::UnicoFoglio(banco.coda).Inchiostro().isEmpty());
    banco.scrivania.ChiudeEditor();
}

void tst_StampaSulloSchermo::correttoDaGriglia()
{
    Banco banco;
    RigheFile prima(banco.file);
    banco.scrivania.Pagina(4);
    banco.Tasto(QStringLiteral("alt+o"));
    banco.Video().Attende(TitoloCorrezione);
    for (const char *posto : {"20", "30", "18", "31.2"}) {
        banco.Video().Scrive(QString::fromLatin1(posto));
        banco.Tasto(QStringLiteral("Tab"));
    }
    banco.Tasto(QStringLiteral("alt+s"));
    banco.Video().AttendeChiusa(TitoloCorrezione);
    banco.scrivania.Salva();
    const RigheFile dopo(banco.file);
    for (const QByteArray &campo : prima.NomiCampi()) {
        const auto sposta = [&](int riga, double millimetri) {
            return QByteArray::number(prima.Riga(campo, riga).toDouble() + millimetri);
        };
        QCOMPARE(dopo.Riga(campo, RigheFile::Campo::X), sposta(RigheFile::Campo::X, 2));
        QCOMPARE(dopo.Riga(campo, RigheFile::Campo::Y), sposta(RigheFile::Campo::Y, -1));
    }
    // The next model is proposed the same.
    QFile ricordate(banco.scrivania.Stato() + QStringLiteral("/plakera/correzioni.json"));
    QVERIFY(ricordate.open(QIODevice::ReadOnly));
    QVERIFY(ricordate.readAll().contains("\"Prova\""));
    banco.scrivania.ChiudeEditor();
}

QTEST_GUILESS_MAIN(tst_StampaSulloSchermo)
#include "tst_StampaSulloSchermo.moc"
