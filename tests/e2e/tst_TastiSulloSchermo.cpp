#include "FatturaAperta.h"

#include <QTest>

namespace {

using Campo = RigheFile::Campo;
using Immagine = RigheFile::Immagine;

// The first two in reading order.
const QByteArray Logo("LogoCascinalta.gif"); // at (7, 4)
const QByteArray Ditta("Ditta_RagSoc");      // at (87, 5)

} // namespace

/// The keys of the sheet, pressed on a real screen; what the file holds then is what the rules of
/// placing make of it.
class tst_TastiSulloSchermo : public QObject
{
    Q_OBJECT

private slots:
    void conAltSoloLImmagineEDiUnDecimo();
    void ctrlTabAggiungeECtrlSpazioToglie();
    void ilFoglioScorre();
    void invioEF2ApronoLeProprieta();
    void escapeLasciaSenzaScelti();
};

void tst_TastiSulloSchermo::conAltSoloLImmagineEDiUnDecimo()
{
    FatturaAperta banco;
    banco.FuocoAlFoglio();
    banco.Tasti({QStringLiteral("Tab"), QStringLiteral("alt+Right"), QStringLiteral("alt+Right"),
                 QStringLiteral("alt+Down"), QStringLiteral("Tab"), QStringLiteral("alt+Right")});
    RigheFile atteso = banco.prima;
    atteso.Mette(Logo, Immagine::X, "7.2");
    atteso.Mette(Logo, Immagine::Y, "4.1");
    const QByteArray differenza = banco.Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
}

void tst_TastiSulloSchermo::ctrlTabAggiungeECtrlSpazioToglie()
{
    FatturaAperta banco;
    banco.FuocoAlFoglio();
    banco.Tasti({QStringLiteral("Tab"), QStringLiteral("ctrl+Tab"), QStringLiteral("shift+Down")});
    RigheFile atteso = banco.prima;
    atteso.Mette(Logo, Immagine::Y, "14");
    atteso.Mette(Ditta, Campo::Y, "15");
    const QByteArray insieme = banco.Differenza(atteso);
    QVERIFY2(insieme.isEmpty(), insieme);
    banco.Tasti({QStringLiteral("ctrl+space"), QStringLiteral("Left")});
    atteso.Mette(Logo, Immagine::X, "6");
    const QByteArray solo = banco.Differenza(atteso);
    QVERIFY2(solo.isEmpty(), solo);
}

void tst_TastiSulloSchermo::ilFoglioScorre()
{
    FatturaAperta banco;
    banco.Tasti({QStringLiteral("ctrl+shift+c")}); // no outlines that come when they like
    banco.FuocoAlFoglio();
    banco.Video().Sposta(banco.scrivania.SulFoglio({232, 60}));
    const QImage inCima = banco.Foglio();
    const auto dopo = [&](const char *tasto, const std::function<bool(const QImage &)> &giusto) {
        banco.Tasti({QString::fromLatin1(tasto)});
        banco.Video().AttendeQui(QStringLiteral("the sheet after %1").arg(QLatin1String(tasto)),
                                 [&] { return giusto(banco.Foglio()); });
        return banco.Foglio();
    };
    const auto uguale = [](const QImage &attesa) {
        return [attesa](const QImage &foglio) { return foglio == attesa; };
    };
    const auto diverso = [](const QImage &altra) {
        return [altra](const QImage &foglio) { return foglio != altra; };
    };
    const QImage unPasso = dopo("Down", diverso(inCima));
    dopo("Up", uguale(inCima));
    const QImage unaPagina = dopo("Next", diverso(unPasso));
    QVERIFY(unaPagina != inCima);
    const QImage inFondo = dopo("End", diverso(unaPagina));
    dopo("Prior", diverso(inFondo));
    dopo("End", uguale(inFondo));
    dopo("Home", uguale(inCima));
}

void tst_TastiSulloSchermo::invioEF2ApronoLeProprieta()
{
    FatturaAperta banco;
    banco.FuocoAlFoglio();
    const auto apre = [&](const char *tasto, const QString &titolo) {
        banco.Tasti({QString::fromLatin1(tasto)});
        banco.Video().Attende(titolo);
        banco.Video().Tasti({QStringLiteral("Escape")});
        banco.Video().AttendeChiusa(titolo);
    };
    banco.Tasti({QStringLiteral("Tab")});
    apre("Return", Scrivania::TitoloImmagine);
    banco.Tasti({QStringLiteral("Tab")});
    apre("F2", Scrivania::TitoloCampo);
}

void tst_TastiSulloSchermo::escapeLasciaSenzaScelti()
{
    FatturaAperta banco;
    banco.FuocoAlFoglio();
    // Without chosen ones the arrows scroll.
    banco.Tasti({QStringLiteral("Tab"), QStringLiteral("Escape"), QStringLiteral("Down"),
                 QStringLiteral("Up"), QStringLiteral("Tab"), QStringLiteral("Right")});
    RigheFile atteso = banco.prima;
    atteso.Mette(Logo, Immagine::X, "8");
    const QByteArray differenza = banco.Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
}

QTEST_GUILESS_MAIN(tst_TastiSulloSchermo)
#include "tst_TastiSulloSchermo.moc"
