#include "FatturaAperta.h"

#include <QTest>

namespace {

using Campo = RigheFile::Campo;
using Cornice = RigheFile::Cornice;

const QByteArray Ordine("Vs_Ordine"); // at (9, 79)
const QByteArray Ddt("Ns_Ddt");       // at (84, 79)
const QByteArray Agente("Agente");    // at (162, 61)
constexpr QPointF NellOrdine(17, 81);
constexpr QPointF NelDdt(92, 81);
constexpr QPointF NellAgente(170, 63);

} // namespace

/// Choosing, moving, arranging and deleting several elements with the mouse and the keys of a real
/// screen; what the file holds then is what the rules of placing make of it.
class tst_SceltaSulloSchermo : public QObject
{
    Q_OBJECT

private slots:
    void ctrlClickELeFrecce();
    void unoTrascinatoPortaGliAltri();
    void allineatiColTastoEAnnullati();
    void laBandaEliminaConUnaDomanda();
    void soloConITasti();
    void ogniTastoDispone();
    void ogniTastoUguaglia();
};

void tst_SceltaSulloSchermo::ctrlClickELeFrecce()
{
    FatturaAperta banco;
    banco.scrivania.SceglieCampo(NellOrdine);
    banco.scrivania.SceglieCampo(NelDdt);
    banco.Tasti({QStringLiteral("Right"), QStringLiteral("Right"), QStringLiteral("shift+Down")});
    RigheFile atteso = banco.prima;
    atteso.Mette(Ordine, Campo::X, "11");
    atteso.Mette(Ordine, Campo::Y, "89");
    atteso.Mette(Ddt, Campo::X, "86");
    atteso.Mette(Ddt, Campo::Y, "89");
    const QByteArray differenza = banco.Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
}

void tst_SceltaSulloSchermo::unoTrascinatoPortaGliAltri()
{
    FatturaAperta banco;
    banco.scrivania.SceglieCampo(NelDdt);
    banco.scrivania.SceglieCampo(NellAgente);
    banco.scrivania.SceglieCampo(NellOrdine);
    banco.scrivania.TrascinaCampo({9, 79}, {29, 99});
    banco.scrivania.Salva();
    const RigheFile dopo(banco.file);
    const int x = dopo.Riga(Ordine, Campo::X).toInt() - 9;
    const int y = dopo.Riga(Ordine, Campo::Y).toInt() - 79;
    QVERIFY2(qAbs(x - 20) <= 1 && qAbs(y - 20) <= 1, dopo.Riga(Ordine, Campo::X));
    RigheFile atteso = banco.prima;
    const auto mette = [&](const QByteArray &nome, int daX, int daY) {
        atteso.Mette(nome, Campo::X, QByteArray::number(daX + x));
        atteso.Mette(nome, Campo::Y, QByteArray::number(daY + y));
    };
    mette(Ordine, 9, 79);
    mette(Ddt, 84, 79);
    mette(Agente, 162, 61);
    QVERIFY2(dopo.Differenza(atteso).isEmpty(), dopo.Differenza(atteso));
}

void tst_SceltaSulloSchermo::allineatiColTastoEAnnullati()
{
    FatturaAperta banco;
    banco.scrivania.SceglieCampo(NelDdt);
    banco.scrivania.SceglieCampo(NellAgente);
    banco.scrivania.SceglieCampo(NellOrdine);
    banco.Tasti({QStringLiteral("ctrl+shift+s")});
    RigheFile atteso = banco.prima;
    atteso.Mette(Ddt, Campo::X, "9");
    atteso.Mette(Agente, Campo::X, "9");
    const QByteArray differenza = banco.Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
    banco.Tasti({QStringLiteral("ctrl+z")});
    const QByteArray annullato = banco.Differenza(banco.prima);
    QVERIFY2(annullato.isEmpty(), annullato);
}

void tst_SceltaSulloSchermo::laBandaEliminaConUnaDomanda()
{
    FatturaAperta banco;
    // From the bare margin around the four lines at the right of the letterhead.
    banco.scrivania.Anteprima();
    banco.scrivania.TrascinaSulFoglio({232, 2}, {120, 26});
    banco.Tasti({QStringLiteral("Delete")});
    banco.Risponde(QStringLiteral("alt+s"));
    banco.scrivania.Salva();
    QList<QByteArray> rimasti = banco.prima.NomiCampi();
    for (const char *nome : {"Ditta_Tel", "Ditta_Email", "Ditta_Web", "Ditta_Rea"}) {
        QVERIFY(rimasti.removeOne(nome));
    }
    QCOMPARE(RigheFile(banco.file).NomiCampi(), rimasti);
}

void tst_SceltaSulloSchermo::soloConITasti()
{
    FatturaAperta banco;
    banco.FuocoAlFoglio();
    // The logo is read first.
    banco.Tasti({QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("shift+Tab"),
                 QStringLiteral("shift+Right"), QStringLiteral("ctrl+Down")});
    banco.scrivania.Salva();
    const RigheFile dopo(banco.file);
    RigheFile atteso = banco.prima;
    atteso.Mette("LogoCascinalta.gif", RigheFile::Immagine::X, "17");
    atteso.Mette("LogoCascinalta.gif", RigheFile::Immagine::Altezza, "23");
    QVERIFY2(dopo.Differenza(atteso).isEmpty(), dopo.Differenza(atteso));
}

void tst_SceltaSulloSchermo::ogniTastoDispone()
{
    FatturaAperta banco;
    banco.scrivania.SceglieCampo(NelDdt);
    banco.scrivania.SceglieCampo(NellAgente);
    banco.scrivania.SceglieCampo(NellOrdine);
    // The last one stays; what a key does goes one way only, and comes back.
    const auto prova = [&](const char *tasto, int riga, const QList<QByteArray> &mossi) {
        banco.Tasti({QStringLiteral("ctrl+shift+") + QString::fromLatin1(tasto)});
        banco.scrivania.Salva();
        const RigheFile dopo(banco.file);
        RigheFile atteso = banco.prima;
        for (const QByteArray &nome : mossi) {
            QVERIFY2(dopo.Riga(nome, riga) != banco.prima.Riga(nome, riga), tasto);
            atteso.Mette(nome, riga, dopo.Riga(nome, riga));
        }
        QVERIFY2(dopo.Differenza(atteso).isEmpty(), tasto + dopo.Differenza(atteso));
        banco.Tasti({QStringLiteral("ctrl+z")});
        const QByteArray annullato = banco.Differenza(banco.prima);
        QVERIFY2(annullato.isEmpty(), tasto + annullato);
    };
    for (const char *tasto : {"s", "o", "d"}) {
        prova(tasto, Campo::X, {Ddt, Agente});
    }
    for (const char *tasto : {"a", "m", "b"}) {
        prova(tasto, Campo::Y, {Agente});
    }
    prova("h", Campo::X, {Ddt});
    prova("j", Campo::Y, {Ddt});
}

void tst_SceltaSulloSchermo::ogniTastoUguaglia()
{
    const QByteArray cliente("Riquadro cliente"); // 91 x 34 mm
    FatturaAperta banco;
    banco.scrivania.Anteprima();
    for (const QPointF punto : {QPointF(90, 58), QPointF(140, 62)}) {
        banco.Video().Tenendo(QStringLiteral("ctrl"),
                              [&] { banco.Video().Clic(banco.scrivania.SulFoglio(punto)); });
    }
    // As the frame "Codice destinatario", 95 x 8 mm.
    const auto prova = [&](const char *tasto, const QByteArray &larghezza,
                           const QByteArray &altezza) {
        banco.Tasti({QStringLiteral("ctrl+shift+") + QString::fromLatin1(tasto)});
        RigheFile atteso = banco.prima;
        atteso.Mette(cliente, Cornice::Larghezza, larghezza);
        atteso.Mette(cliente, Cornice::Altezza, altezza);
        const QByteArray differenza = banco.Differenza(atteso);
        QVERIFY2(differenza.isEmpty(), tasto + differenza);
        banco.Tasti({QStringLiteral("ctrl+z")});
    };
    prova("l", "95", "34");
    prova("t", "91", "8");
    prova("u", "95", "8");
}

QTEST_GUILESS_MAIN(tst_SceltaSulloSchermo)
#include "tst_SceltaSulloSchermo.moc"
