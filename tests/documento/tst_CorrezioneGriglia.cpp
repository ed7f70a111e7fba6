#include "documento/CorrezioneGriglia.h"

#include "base/ErroreSistema.h"
#include "documento/Documento.h"

#include <QTest>

#include <cmath>

using namespace CorrezioneGriglia;

namespace {

Modello DiProva()
{
    Modello modello;
    modello.AggiungeCampo(20, 30);
    modello.Campi[1].Nome = QStringLiteral("Doc_Numero");
    modello.AggiungeCampo(40, 100);
    modello.Campi[2].Nome = QStringLiteral("R_Descrizione");
    modello.AggiungeCornice(30, 50, 1, 2);
    modello.AggiungeImmagine(90.4, 50.6);
    modello.Immagini[1].Nome = QStringLiteral("logo.bmp");
    modello.Righe = {100, 200.5, 5, 4, QStringLiteral("segue")};
    modello.Sfondo = {QStringLiteral("/s.bmp"), QStringLiteral("210"),    QStringLiteral("297"),
                      QStringLiteral("-5"),     QStringLiteral("2.5 mm"), 1};
    return modello;
}

/// All of a model, or nothing.
Parti Tutte(bool scelte)
{
    Parti parti;
    parti.Elementi.fill(scelte);
    parti.Righe = scelte;
    parti.Sfondo = scelte;
    return parti;
}

/// Where the point comes out on a sheet that is fed askew by so many degrees, moved and scaled.
QPointF Uscito(QPointF punto, double gradi, QPointF spostato, double scala = 1)
{
    const double angolo = gradi * M_PI / 180;
    return QPointF(punto.x() * std::cos(angolo) - punto.y() * std::sin(angolo),
                   punto.x() * std::sin(angolo) + punto.y() * std::cos(angolo)) *
               scala +
           spostato;
}

} // namespace

class tst_CorrezioneGriglia : public QObject
{
    Q_OBJECT
private slots:
    void unSegno_data();
    void unSegno();
    void dueSegni_data();
    void dueSegni();
    void lontananza_data();
    void lontananza();
    void entratoStorto();
    void frase_data();
    void frase();
    void proposte();
    void muoveQuelloCheSiSceglie_data();
    void muoveQuelloCheSiSceglie();
    void unPassoSolo();
    void loSfondoIllegibileNonMuoveNulla();
};

void tst_CorrezioneGriglia::unSegno_data()
{
    QTest::addColumn<QPointF>("atteso");
    QTest::addColumn<QPointF>("uscito");
    QTest::addColumn<int>("dx");
    QTest::addColumn<int>("dy");
    QTest::newRow("in its place") << QPointF(50, 60) << QPointF(50, 60) << 0 << 0;
    QTest::newRow("too far left and up") << QPointF(50, 60) << QPointF(48, 57) << 2 << 3;
    QTest::newRow("too far right and down") << QPointF(50, 60) << QPointF(51, 64) << -1 << -4;
    QTest::newRow("less than half") << QPointF(50, 60) << QPointF(49.6, 60.4) << 0 << 0;
    QTest::newRow("a half goes up") << QPointF(50, 60) << QPointF(49.5, 60.5) << 1 << 0;
    QTest::newRow("one and a half") << QPointF(50, 60) << QPointF(48.5, 61.5) << 2 << -1;
    QTest::newRow("a half of decimals") << QPointF(20.3, 20.1) << QPointF(19.8, 20.6) << 1 << 0;
    QTest::newRow("beyond the corner") << QPointF(2, 1) << QPointF(-1.2, -0.6) << 3 << 2;
}

void tst_CorrezioneGriglia::unSegno()
{
    QFETCH(QPointF, atteso);
    QFETCH(QPointF, uscito);
    QFETCH(int, dx);
    QFETCH(int, dy);
    const Esito esito = Giudica({{atteso, uscito}});
    QCOMPARE(esito.Che, Giudizio::Sposta);
    QCOMPARE(esito.Quanto.Dx, dx);
    QCOMPARE(esito.Quanto.Dy, dy);
    QCOMPARE(esito.Gradi, 0.0);
}

void tst_CorrezioneGriglia::dueSegni_data()
{
    QTest::addColumn<QPointF>("primo");
    QTest::addColumn<QPointF>("secondo");
    QTest::addColumn<Giudizio>("giudizio");
    QTest::addColumn<Spostamento>("quanto");
    // They should stand at 20, 20 and 20, 220.
    QTest::newRow("both in place")
        << QPointF(20, 20) << QPointF(20, 220) << Giudizio::Sposta << Spostamento{0, 0};
    QTest::newRow("both moved alike")
        << QPointF(18, 21) << QPointF(18, 221) << Giudizio::Sposta << Spostamento{2, -1};
    QTest::newRow("the middle of the two")
        << QPointF(18, 20) << QPointF(17.6, 220.4) << Giudizio::Sposta << Spostamento{2, 0};
    QTest::newRow("longer by half a millimetre")
        << QPointF(20, 19.8) << QPointF(20, 220.3) << Giudizio::Sposta << Spostamento{0, 0};
    QTest::newRow("longer by more")
        << QPointF(20, 19.8) << QPointF(20, 220.31) << Giudizio::Scala << Spostamento{};
    QTest::newRow("shorter by half a millimetre")
        << QPointF(20, 20.1) << QPointF(20, 219.6) << Giudizio::Sposta << Spostamento{0, 0};
    QTest::newRow("shorter by more")
        << QPointF(20, 20.1) << QPointF(20, 219.59) << Giudizio::Scala << Spostamento{};
    QTest::newRow("fitted to the page")
        << QPointF(24, 25) << QPointF(24, 219) << Giudizio::Scala << Spostamento{};
    QTest::newRow("taken for each other")
        << QPointF(20, 220) << QPointF(20, 20) << Giudizio::NonCorrispondono << Spostamento{};
    QTest::newRow("x for y") << QPointF(20, 20) << QPointF(220, 20) << Giudizio::NonCorrispondono
                             << Spostamento{};
}

void tst_CorrezioneGriglia::dueSegni()
{
    QFETCH(QPointF, primo);
    QFETCH(QPointF, secondo);
    QFETCH(Giudizio, giudizio);
    QFETCH(Spostamento, quanto);
    const Segno uno{QPointF(20, 20), primo};
    const Segno due{QPointF(20, 220), secondo};
    for (const QList<Segno> &segni : {QList<Segno>{uno, due}, QList<Segno>{due, uno}}) {
        const Esito esito = Giudica(segni);
        QCOMPARE(esito.Che, giudizio);
        QCOMPARE(esito.Quanto, quanto);
        QCOMPARE(esito.Voluta, 200.0);
    }
}

void tst_CorrezioneGriglia::lontananza_data()
{
    QTest::addColumn<double>("distanza");
    QTest::addColumn<Giudizio>("giudizio");
    QTest::newRow("the same mark twice") << 0.0 << Giudizio::TroppoVicini;
    QTest::newRow("too near") << 49.9 << Giudizio::TroppoVicini;
    QTest::newRow("just far enough") << 50.0 << Giudizio::Sposta;
}

void tst_CorrezioneGriglia::lontananza()
{
    QFETCH(double, distanza);
    QFETCH(Giudizio, giudizio);
    const QPointF secondo(10 + distanza, 10);
    QCOMPARE(Giudica({{QPointF(10, 10), QPointF(12, 10)}, {secondo, secondo + QPointF(2, 0)}}).Che,
             giudizio);
}

void tst_CorrezioneGriglia::entratoStorto()
{
    const QPointF primo(20, 20);
    const QPointF secondo(180, 260);
    for (const double gradi : {-1.0, 0.6, 2.0}) {
        const QList<Segno> segni{{primo, Uscito(primo, gradi, {3, 1})},
                                 {secondo, Uscito(secondo, gradi, {3, 1})}};
        const Esito esito = Giudica(segni);
        QCOMPARE(esito.Che, Giudizio::Sposta);
        QVERIFY(std::abs(esito.Gradi - gradi) < 1e-6);
        // After the shift the marks are off to both sides alike, within the rounding.
        const QPointF resto =
            (segni[0].Uscito - segni[0].Atteso + segni[1].Uscito - segni[1].Atteso) / 2 +
            QPointF(esito.Quanto.Dx, esito.Quanto.Dy);
        QVERIFY(std::abs(resto.x()) <= 0.5 && std::abs(resto.y()) <= 0.5);
    }
    // A tenth of a degree is three tenths of a millimetre: nobody reads a ruler better.
    QCOMPARE(
        Giudica({{primo, Uscito(primo, 0.05, {})}, {secondo, Uscito(secondo, 0.05, {})}}).Gradi,
        0.0);
}

void tst_CorrezioneGriglia::frase_data()
{
    QTest::addColumn<Spostamento>("spostamento");
    QTest::addColumn<QString>("testo");
    QTest::newRow("none") << Spostamento{} << QStringLiteral("nessuno");
    QTest::newRow("right and up") << Spostamento{2, -1}
                                  << QStringLiteral("2 mm a destra, 1 mm in alto");
    QTest::newRow("left") << Spostamento{-3, 0} << QStringLiteral("3 mm a sinistra");
    QTest::newRow("down") << Spostamento{0, 12} << QStringLiteral("12 mm in basso");
}

void tst_CorrezioneGriglia::frase()
{
    QFETCH(Spostamento, spostamento);
    QFETCH(QString, testo);
    QCOMPARE(Frase(spostamento), testo);
}

void tst_CorrezioneGriglia::proposte()
{
    const Parti piene = Proposte(DiProva());
    QCOMPARE(piene.Elementi, (std::array{true, true, true}));
    QVERIFY(piene.Righe);
    QVERIFY(!piene.Sfondo); // though it is shown
    Modello solo;
    solo.AggiungeCornice(1, 1, 1, 1);
    const Parti parti = Proposte(solo);
    QCOMPARE(parti.Elementi, (std::array{false, true, false}));
    QVERIFY(!parti.Righe && !parti.Sfondo && !parti.Nessuna());
    QVERIFY(Proposte(Modello()).Nessuna());
}

void tst_CorrezioneGriglia::muoveQuelloCheSiSceglie_data()
{
    QTest::addColumn<int>("parte"); // kinds, then rows, then scan
    QTest::newRow("fields") << 0;
    QTest::newRow("frames") << 1;
    QTest::newRow("images") << 2;
    QTest::newRow("rows") << 3;
    QTest::newRow("scan") << 4;
}

void tst_CorrezioneGriglia::muoveQuelloCheSiSceglie()
{
    QFETCH(int, parte);
    Documento documento;
    documento.Prende(DiProva(), false);
    Modello atteso = documento.Aperto();
    Parti parti = Tutte(false);
    switch (parte) {
    case 3:
        parti.Righe = true;
        atteso.Righe.yInizio = 97;
        atteso.Righe.yFine = 197.5;
        atteso.Campi[2].Y = 97; // row fields go with the area
        break;
    case 4:
        parti.Sfondo = true;
        atteso.Sfondo.XPos = QStringLiteral("-3");
        atteso.Sfondo.YPos = QStringLiteral("-0.5");
        break;
    default:
        parti.Elementi.at(std::size_t(parte)) = true;
        for (int i = 1; i <= atteso.UltimoSlot(Generi.at(std::size_t(parte))); ++i) {
            Elemento &elemento = atteso.Di({Generi.at(std::size_t(parte)), i});
            elemento.X += 2;
            // Without the area a row field stays where that begins.
            elemento.Y -= elemento.Nome.startsWith(QStringLiteral("R_")) ? 0 : 3;
        }
    }
    Esegue(documento, {2, -3}, parti);
    QVERIFY(documento.Aperto() == atteso);
    QVERIFY(documento.Variato());
}

void tst_CorrezioneGriglia::unPassoSolo()
{
    Documento documento;
    documento.Prende(DiProva(), false);
    const Modello prima = documento.Aperto();
    Esegue(documento, {2, -3}, Tutte(true));
    QCOMPARE(documento.TestoAnnulla(),
             QStringLiteral("corregge da griglia: 2 mm a destra, 3 mm in alto"));
    QCOMPARE(documento.Aperto().Campi[2].X, 42.0);
    QCOMPARE(documento.Aperto().Campi[2].Y, 97.0);
    QVERIFY(std::abs(documento.Aperto().Immagini[1].X - 92.4) < 1e-9);
    documento.Annulla();
    QVERIFY(documento.Aperto() == prima);
    QVERIFY(!documento.PuoAnnullare());
}

void tst_CorrezioneGriglia::loSfondoIllegibileNonMuoveNulla()
{
    Documento documento;
    Modello modello = DiProva();
    modello.Sfondo.YPos = QStringLiteral("1e999");
    documento.Prende(modello, false);
    const Modello prima = documento.Aperto();
    QVERIFY_EXCEPTION_THROWN(Esegue(documento, {1, 1}, Tutte(true)), ErroreSistema);
    QVERIFY(documento.Aperto() == prima);
    QVERIFY(!documento.Variato());
}

QTEST_MAIN(tst_CorrezioneGriglia)
#include "tst_CorrezioneGriglia.moc"
