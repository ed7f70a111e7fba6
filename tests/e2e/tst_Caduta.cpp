#include "RigheFile.h"
#include "Scrivania.h"
#include "support/FileDiProva.h"

#include <QDir>
#include <QTest>

/// The program is killed in the middle of the work: the work is offered again.
class tst_Caduta : public QObject
{
    Q_OBJECT

private slots:
    void ripreseESalvate();
    void rifiutateERimaste();
    void secondaIstanzaNonTocca();
    void modelloSparito();

private:
    /// Opens the invoice, moves a field and kills the program.
    static void LavoraECade(Scrivania &scrivania);
    /// Opens the invoice up to the question about the lost work.
    static void RiapreFinoAllaDomanda(Scrivania &scrivania);
    static QStringList Copie(const Scrivania &scrivania)
    {
        return QDir(scrivania.Stato() + QStringLiteral("/plakera"))
            .entryList({QStringLiteral("*.recupero")}, QDir::Files);
    }
};

namespace {

const QString Fattura = QStringLiteral("Fattura_Rossi");

QString PercorsoDi(const Scrivania &scrivania)
{
    return scrivania.CartellaModelli() + Fattura + QStringLiteral(".Mod");
}

RigheFile ConCampoMosso(const QString &percorso)
{
    RigheFile righe(percorso);
    righe.Mette("Vs_Ordine", RigheFile::Campo::X, "41");
    righe.Mette("Vs_Ordine", RigheFile::Campo::Y, "104");
    return righe;
}

} // namespace

void tst_Caduta::LavoraECade(Scrivania &scrivania)
{
    scrivania.Avvia();
    scrivania.ApreModello(Fattura);
    QVERIFY(Copie(scrivania).isEmpty());
    scrivania.TrascinaCampo({9, 79}, {41, 104});
    // The copy is written when the button is released.
    AttendeChe(QStringLiteral("the safety copy"), [&] { return Copie(scrivania).size() == 1; });
    scrivania.Uccide();
}

void tst_Caduta::RiapreFinoAllaDomanda(Scrivania &scrivania)
{
    scrivania.Avvia();
    scrivania.SceglieModello(Fattura);
    scrivania.Video().Attende(Scrivania::TitoloRiquadro);
}

void tst_Caduta::ripreseESalvate()
{
    Scrivania scrivania;
    const RigheFile prima(PercorsoDi(scrivania));
    const RigheFile atteso = ConCampoMosso(PercorsoDi(scrivania));
    LavoraECade(scrivania);
    QVERIFY(prima.Differenza(RigheFile(PercorsoDi(scrivania))).isEmpty());
    RiapreFinoAllaDomanda(scrivania);
    scrivania.Video().Tasti({QStringLiteral("alt+s")});
    scrivania.Salva();
    const QByteArray differenza = RigheFile(PercorsoDi(scrivania)).Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
    QVERIFY(Copie(scrivania).isEmpty());
    scrivania.ChiudeEditor();
}

void tst_Caduta::rifiutateERimaste()
{
    Scrivania scrivania;
    const RigheFile prima(PercorsoDi(scrivania));
    const RigheFile atteso = ConCampoMosso(PercorsoDi(scrivania));
    LavoraECade(scrivania);
    RiapreFinoAllaDomanda(scrivania);
    scrivania.Video().Tasti({QStringLiteral("alt+n")});
    // Declined work is not thrown away: it is offered again, even after a second fall.
    scrivania.Editor();
    QCOMPARE(Copie(scrivania).size(), 1);
    scrivania.Uccide();
    QVERIFY(prima.Differenza(RigheFile(PercorsoDi(scrivania))).isEmpty());
    RiapreFinoAllaDomanda(scrivania);
    scrivania.Video().Tasti({QStringLiteral("alt+s")});
    // Taken back and not yet saved, it counts as a change: closing asks.
    scrivania.Editor();
    scrivania.Video().Tasti({QStringLiteral("alt+F4")});
    scrivania.Video().Attende(Scrivania::TitoloRiquadro);
    scrivania.Video().Tasti({QStringLiteral("alt+s")});
    scrivania.Video().Attende(Scrivania::TitoloInizio);
    const QByteArray differenza = RigheFile(PercorsoDi(scrivania)).Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
    QVERIFY(Copie(scrivania).isEmpty());
}

void tst_Caduta::secondaIstanzaNonTocca()
{
    Scrivania scrivania;
    const RigheFile atteso = ConCampoMosso(PercorsoDi(scrivania));
    scrivania.Avvia();
    scrivania.ApreModello(Fattura);
    scrivania.TrascinaCampo({9, 79}, {41, 104});
    AttendeChe(QStringLiteral("the safety copy"), [&] { return Copie(scrivania).size() == 1; });
    const QString copia =
        scrivania.Stato() + QStringLiteral("/plakera/") + Copie(scrivania).constFirst();
    const QByteArray prima = ByteDi(copia);
    // A second program beside the unsaved work is refused before it opens anything.
    const auto seconda = scrivania.Nuovo();
    scrivania.Video().Attende(Scrivania::TitoloRiquadro);
    scrivania.Video().Tasti({QStringLiteral("Return")});
    QCOMPARE(Scrivania::EsitoDi(*seconda), 1);
    QCOMPARE(ByteDi(copia), prima);
    // The first goes on as if nothing had been.
    scrivania.Editor();
    scrivania.Salva();
    const QByteArray differenza = RigheFile(PercorsoDi(scrivania)).Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
    QVERIFY(Copie(scrivania).isEmpty());
    scrivania.ChiudeEditor();
}

void tst_Caduta::modelloSparito()
{
    Scrivania scrivania;
    const RigheFile atteso = ConCampoMosso(PercorsoDi(scrivania));
    LavoraECade(scrivania);
    QVERIFY(QFile::remove(PercorsoDi(scrivania)));
    // The start offers what no opening can.
    scrivania.Avvia();
    scrivania.Video().Attende(Scrivania::TitoloRiquadro);
    scrivania.Video().Tasti({QStringLiteral("alt+s")});
    scrivania.Video().Attende(QStringLiteral("Nuovo modello di stampa"));
    scrivania.Video().Tasti({QStringLiteral("Return")});
    const QString nuovo = Fattura + QStringLiteral("_recuperato");
    const QString file = scrivania.CartellaModelli() + nuovo + QStringLiteral(".Mod");
    AttendeChe(QStringLiteral("the new model"), [&] { return QFile::exists(file); });
    AttendeChe(QStringLiteral("the end of the copy"), [&] { return Copie(scrivania).isEmpty(); });
    const QByteArray differenza = RigheFile(file).Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
    // It is in the list already.
    scrivania.ApreModello(nuovo);
    scrivania.ChiudeEditor();
}

QTEST_GUILESS_MAIN(tst_Caduta)
#include "tst_Caduta.moc"
