#include "RigheFile.h"
#include "Scrivania.h"

#include <QTest>

namespace {

using Campo = RigheFile::Campo;

const QString Fattura = QStringLiteral("Fattura_Rossi");
const QByteArray Ordine("Vs_Ordine"); // at (9, 79)
constexpr QPointF AngoloOrdine(9, 79);
constexpr QPointF NellOrdine(17, 81);

/// The sample invoice in the real program.
struct Banco
{
    Banco()
    {
        scrivania.Avvia();
        scrivania.ApreModello(Fattura);
    }

    Schermo &Video() { return scrivania.Video(); }
    void Tasti(const QStringList &tasti)
    {
        scrivania.Anteprima();
        Video().Tasti(tasti);
    }
    RigheFile Salvato()
    {
        scrivania.Salva();
        return RigheFile(file);
    }
    /// The sheet inside the line of focus, as it shows.
    QImage Foglio()
    {
        const QRect zona(scrivania.SulFoglio({2, 2}), scrivania.SulFoglio({225, 120}));
        return Video().Foto().copy(zona);
    }
    void Risponde(const QString &tasto)
    {
        Video().Attende(Scrivania::TitoloRiquadro);
        Video().Tasti({tasto});
        Video().Attende(Scrivania::TitoloAnteprima);
    }

    Scrivania scrivania;
    const QString file = scrivania.CartellaModelli() + Fattura + QStringLiteral(".Mod");
    const RigheFile prima{file};
};

} // namespace

/// Copies, guides, zoom, the list and the choice of all, by the mouse and the keys of a real
/// screen.
class tst_StrumentiSulloSchermo : public QObject
{
    Q_OBJECT

private slots:
    void duplicatoTagliatoEIncollatoSulPosto();
    void trascinatoPrendeLaGuida();
    void loZoomVaETorna();
    void dallElencoSiApronoLeProprieta();
    void tuttiICampiEliminati();
};

void tst_StrumentiSulloSchermo::duplicatoTagliatoEIncollatoSulPosto()
{
    Banco banco;
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
    Banco banco;
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

void tst_StrumentiSulloSchermo::loZoomVaETorna()
{
    Banco banco;
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
    Banco banco;
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

void tst_StrumentiSulloSchermo::tuttiICampiEliminati()
{
    Banco banco;
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
