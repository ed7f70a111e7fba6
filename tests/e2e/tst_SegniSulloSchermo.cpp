#include "FatturaAperta.h"

#include <QTest>

namespace {

// Lines of the model file's head.
constexpr int YInizio = 8;
constexpr int YFine = 9;

const QByteArray Logo("LogoCascinalta.gif"); // at (7, 4), the first in reading order

} // namespace

/// What the editor says of work that is not in the model, or not saved, on a real screen.
class tst_SegniSulloSchermo : public QObject
{
    Q_OBJECT

private slots:
    void ctrlSSalvaDallAnteprima();
    void leRigheEntranoConLaConferma();
    void laTavolozzaScriveIlNumero();
};

void tst_SegniSulloSchermo::ctrlSSalvaDallAnteprima()
{
    FatturaAperta banco;
    banco.FuocoAlFoglio();
    banco.Tasti({QStringLiteral("Tab"), QStringLiteral("Right"), QStringLiteral("ctrl+s")});
    banco.Risponde(QStringLiteral("alt+s"));
    RigheFile atteso = banco.prima;
    atteso.Mette(Logo, RigheFile::Immagine::X, "8");
    banco.Video().AttendeQui(QStringLiteral("the saved model"),
                             [&] { return RigheFile(banco.file).Differenza(atteso).isEmpty(); });
    banco.scrivania.ChiudeEditor(); // nothing is left to be asked
}

void tst_SegniSulloSchermo::leRigheEntranoConLaConferma()
{
    FatturaAperta banco;
    banco.scrivania.Pagina(1);
    banco.Video().Tasti({QStringLiteral("Tab")});
    banco.Video().Scrive(QStringLiteral("96"));
    const QByteArray senza = banco.Differenza(banco.prima);
    QVERIFY2(senza.isEmpty(), senza); // typed only
    banco.scrivania.Pagina(1);
    banco.Video().Tasti({QStringLiteral("Tab"), QStringLiteral("Return")});
    const RigheFile dopo = banco.Salvato();
    QCOMPARE(dopo.Testa(YInizio), QByteArray(" 96 "));
    QCOMPARE(dopo.Testa(YFine), banco.prima.Testa(YFine));
}

void tst_SegniSulloSchermo::laTavolozzaScriveIlNumero()
{
    FatturaAperta banco;
    banco.scrivania.ProprietaCornice({90, 58});
    // From the box of the text's colour, 2, to its palette, and on to the next colour.
    banco.Video().Tasti({QStringLiteral("alt+l")});
    banco.Video().Tasti({QStringLiteral("Tab"), QStringLiteral("space")});
    banco.Video().Tasti({QStringLiteral("Down"), QStringLiteral("Return")});
    banco.Video().Tasti({QStringLiteral("alt+c")});
    banco.Video().AttendeChiusa(Scrivania::TitoloCornice);
    RigheFile atteso = banco.prima;
    atteso.Mette("Riquadro cliente", RigheFile::Cornice::ColoreTesto, "3");
    const QByteArray differenza = banco.Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
}

QTEST_GUILESS_MAIN(tst_SegniSulloSchermo)
#include "tst_SegniSulloSchermo.moc"
