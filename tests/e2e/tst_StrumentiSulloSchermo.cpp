#include "FatturaAperta.h"

#include <QFile>
#include <QTest>

namespace {

using Campo = RigheFile::Campo;

const QByteArray Ordine("Vs_Ordine"); // at (9, 79)
constexpr QPointF AngoloOrdine(9, 79);
constexpr QPointF NellOrdine(17, 81);

} // namespace

/// Copies, guides, zoom, the list and the choice of all, by the mouse and the keys of a real
/// screen.
class tst_StrumentiSulloSchermo : public QObject
{
    Q_OBJECT

private slots:
    void duplicatoTagliatoEIncollatoSulPosto();
    void trascinatoPrendeLaGuida();
    void conAltLaGuidaNonAttira();
    void leGuideVannoEVengono();
    void loZoomVaETorna();
    void dallElencoSiApronoLeProprieta();
    void daiControlliSiApronoLeProprieta();
    void tuttiICampiEliminati();
};

void tst_StrumentiSulloSchermo::duplicatoTagliatoEIncollatoSulPosto()
{
    FatturaAperta banco;
    banco.scrivania.SceglieCampo(NellOrdine);
    banco.Tasti({QStringLiteral("ctrl+d"), QStringLiteral("ctrl+x")});
    QCOMPARE(banco.Salvato().NomiCampi(), banco.prima.NomiCampi());
    banco.Tasti({QStringLiteral("ctrl+shift+v")});
    const RigheFile dopo = banco.Salvato();
    QCOMPARE(dopo.NomiCampi(), banco.prima.NomiCampi() + QList<QByteArray>{Ordine + "_2"});
    QCOMPARE(dopo.Riga(Ordine + "_2", Campo::X), QByteArray("14"));
    QCOMPARE(dopo.Riga(Ordine + "_2", Campo::Y), QByteArray("84"));
    QCOMPARE(dopo.Riga(Ordine + "_2", Campo::Testo), banco.prima.Riga(Ordine, Campo::Testo));
}

void tst_StrumentiSulloSchermo::trascinatoPrendeLaGuida()
{
    FatturaAperta banco;
    banco.Tasti({QStringLiteral("ctrl+g")});
    // Out of the ruler at the left, to where no element is near.
    banco.scrivania.TrascinaSulFoglio({-3, 60}, {205, 60});
    banco.scrivania.TrascinaCampo(AngoloOrdine, {205.8, 79.2});
    const RigheFile dopo = banco.Salvato();
    QCOMPARE(dopo.Riga(Ordine, Campo::X), QByteArray("205"));
    QCOMPARE(dopo.Riga(Ordine, Campo::Y), QByteArray("79"));
    // The same way without it.
    banco.Tasti({QStringLiteral("ctrl+z"), QStringLiteral("ctrl+g")});
    banco.scrivania.TrascinaCampo(AngoloOrdine, {205.8, 79.2});
    QCOMPARE(banco.Salvato().Riga(Ordine, Campo::X), QByteArray("206"));
}

void tst_StrumentiSulloSchermo::conAltLaGuidaNonAttira()
{
    FatturaAperta banco;
    banco.Tasti({QStringLiteral("ctrl+g")});
    banco.scrivania.TrascinaSulFoglio({-3, 60}, {205, 60});
    banco.scrivania.TrascinaCampo(AngoloOrdine, {205.8, 79.2}, QStringLiteral("alt"));
    QCOMPARE(banco.Salvato().Riga(Ordine, Campo::X), QByteArray("206"));
}

void tst_StrumentiSulloSchermo::leGuideVannoEVengono()
{
    FatturaAperta banco;
    banco.Tasti({QStringLiteral("ctrl+shift+c")}); // no outlines that come when they like
    banco.FuocoAlFoglio();
    // From here on the pointer stands where it does not show on the sheet.
    const auto vede = [&](const QString &cosa, const QImage &foglio) {
        banco.Video().Sposta(banco.scrivania.SulFoglio({232, 60}));
        banco.Video().AttendeQui(cosa, [&] { return banco.Foglio() == foglio; });
    };
    banco.Video().Sposta(banco.scrivania.SulFoglio({232, 60}));
    const QImage vuoto = banco.Foglio();
    const auto cambia = [&] {
        banco.Video().Sposta(banco.scrivania.SulFoglio({232, 60}));
        banco.Video().AttendeQui(QStringLiteral("a guide"),
                                 [&] { return banco.Foglio() != vuoto; });
        return banco.Foglio();
    };
    // Out of the ruler at the top, and back onto it.
    banco.scrivania.TrascinaSulFoglio({220, -3}, {220, 100});
    cambia();
    banco.scrivania.TrascinaSulFoglio({220, 100}, {220, -3});
    vede(QStringLiteral("no guide"), vuoto);
    // By the keys, twice, and away with all of them.
    banco.Tasti({QStringLiteral("shift+F8"), QStringLiteral("Down"), QStringLiteral("Return")});
    const QImage una = cambia();
    banco.Tasti({QStringLiteral("F8"), QStringLiteral("shift+Right"), QStringLiteral("Delete")});
    vede(QStringLiteral("one guide"), una);
    banco.Tasti({QStringLiteral("ctrl+shift+g")});
    vede(QStringLiteral("no guide any more"), vuoto);
}

void tst_StrumentiSulloSchermo::loZoomVaETorna()
{
    FatturaAperta banco;
    banco.Tasti({QStringLiteral("ctrl+shift+c")}); // no outlines that come when they like
    banco.Video().Sposta(banco.scrivania.SulFoglio({215, 100}));
    const QImage prima = banco.Foglio();
    const auto diverso = [&] { return banco.Foglio() != prima; };
    const auto uguale = [&] { return banco.Foglio() == prima; };
    banco.Tasti({QStringLiteral("ctrl+0")});
    banco.Video().AttendeQui(QStringLiteral("the whole sheet"), diverso);
    banco.Tasti({QStringLiteral("ctrl+1")});
    banco.Video().AttendeQui(QStringLiteral("the sheet at its size"), uguale);
    banco.Video().Tenendo(QStringLiteral("ctrl"), [&] {
        banco.Video().Clic(banco.scrivania.SulFoglio({215, 100}), 5); // the wheel, towards the user
    });
    banco.Video().AttendeQui(QStringLiteral("a smaller sheet"), diverso);
    banco.Tasti({QStringLiteral("ctrl+1"), QStringLiteral("Home"), QStringLiteral("shift+Home")});
    banco.Video().AttendeQui(QStringLiteral("the sheet at its size again"), uguale);
}

void tst_StrumentiSulloSchermo::dallElencoSiApronoLeProprieta()
{
    FatturaAperta banco;
    const QString elenco = QStringLiteral("^Elenco degli elementi$");
    banco.Tasti({QStringLiteral("F4")});
    banco.Video().Attende(elenco);
    // From the rows back to the filter, and over the one row that it leaves to its dialog.
    banco.Video().Tasti({QStringLiteral("shift+Tab")});
    banco.Video().Scrive(QStringLiteral("Vs_Ordine"));
    banco.Video().Tasti({QStringLiteral("Tab"), QStringLiteral("Return")});
    banco.Video().Attende(Scrivania::TitoloCampo);
    banco.Video().Tasti({QStringLiteral("Escape")});
    banco.Video().AttendeChiusa(Scrivania::TitoloCampo);
    banco.Video().Attende(elenco);
    banco.Video().Tasti({QStringLiteral("Escape")});
    banco.Video().AttendeChiusa(elenco);
    // It is the chosen one now.
    banco.Tasti({QStringLiteral("shift+Down")});
    QCOMPARE(banco.Salvato().Riga(Ordine, Campo::Y), QByteArray("89"));
}

void tst_StrumentiSulloSchermo::daiControlliSiApronoLeProprieta()
{
    Scrivania scrivania;
    QVERIFY(QFile::remove(scrivania.CartellaModelli() + QStringLiteral("LogoCascinalta.gif")));
    scrivania.Avvia();
    scrivania.ApreModello(QStringLiteral("Fattura_Rossi"));
    scrivania.Anteprima();
    const QString controlli = QStringLiteral("^Controlli del modello$");
    scrivania.Video().Tasti({QStringLiteral("F7")});
    scrivania.Video().Attende(controlli);
    // The one finding, and what it is about.
    scrivania.Video().Tasti({QStringLiteral("Return")});
    scrivania.Video().Attende(Scrivania::TitoloImmagine);
    scrivania.Video().Tasti({QStringLiteral("Escape")});
    scrivania.Video().AttendeChiusa(Scrivania::TitoloImmagine);
    scrivania.Video().Attende(controlli);
    scrivania.Video().Tasti({QStringLiteral("F7")});
    scrivania.Video().AttendeChiusa(controlli);
    scrivania.ChiudeEditor();
}

void tst_StrumentiSulloSchermo::tuttiICampiEliminati()
{
    FatturaAperta banco;
    banco.Tasti({QStringLiteral("ctrl+a"), QStringLiteral("Delete")});
    banco.Risponde(QStringLiteral("alt+n")); // No
    banco.Tasti({QStringLiteral("Delete")});
    banco.Risponde(QStringLiteral("alt+s"));
    const RigheFile dopo = banco.Salvato();
    QVERIFY(dopo.NomiCampi().isEmpty());
    QCOMPARE(dopo.Riga("Riquadro cliente", RigheFile::Cornice::X),
             banco.prima.Riga("Riquadro cliente", RigheFile::Cornice::X));
}

QTEST_GUILESS_MAIN(tst_StrumentiSulloSchermo)
#include "tst_StrumentiSulloSchermo.moc"
