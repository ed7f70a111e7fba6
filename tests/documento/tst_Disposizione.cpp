#include "documento/Disposizione.h"
#include "documento/OrdineDiLettura.h"
#include "documento/StatoProgramma.h"

#include <QSignalSpy>
#include <QTest>

namespace {

constexpr QSizeF MisuraCampo(12.5, 4.5);

const Chiave Campo1{Genere::Campo, 1};
const Chiave DiRiga{Genere::Campo, 2};
const Chiave Riquadro{Genere::Cornice, 1};
const Chiave Etichetta{Genere::Cornice, 2};
const Chiave Secondo{Genere::Cornice, 3};
const Chiave Logo{Genere::Immagine, 1};

/// A field at (20, 30), a row field, a box at (50, 60) of 40 x 20, a label, a second box at
/// (100, 90) of 30 x 10 and an image at (150.5, 10.25) of 30 x 20.
struct Banco
{
    Banco()
        : disposizione(stato.documento, [this](Chiave chiave) { return Misura(chiave); })
    {
        Modello modello;
        modello.Righe.yInizio = 120;
        modello.AggiungeCampo(20, 30);
        modello.Campi[modello.AggiungeCampo(70, 120)].Nome = QStringLiteral("R_Qta");
        AggiungeCornice(modello, {50, 60, 40, 20}, 1);
        AggiungeCornice(modello, {10, 200, 25, 6}, 0);
        AggiungeCornice(modello, {100, 90, 30, 10}, 1.5);
        Immagine &logo = modello.Immagini[modello.AggiungeImmagine(150.5, 10.25)];
        logo.Nome = QStringLiteral("logo.bmp");
        logo.Larghezza = 30;
        logo.Altezza = 20;
        stato.documento.Prende(modello, false);
    }

    static void AggiungeCornice(Modello &modello, const QRectF &posto, double bordo)
    {
        Cornice &cornice =
            modello.Cornici[modello.AggiungeCornice(posto.x(), posto.y(), 1, modello.NumCornici)];
        cornice.Larghezza = posto.width();
        cornice.Altezza = posto.height();
        cornice.Bordo = bordo;
    }

    QSizeF Misura(Chiave chiave) const
    {
        const Modello &modello = stato.Aperto();
        switch (chiave.genere) {
        case Genere::Campo:
            return MisuraCampo;
        case Genere::Cornice:
            return {modello.Cornici[chiave.indice].Larghezza,
                    modello.Cornici[chiave.indice].Altezza};
        case Genere::Immagine:
            break;
        }
        return {modello.Immagini[chiave.indice].Larghezza, modello.Immagini[chiave.indice].Altezza};
    }

    QRectF Posto(Chiave chiave) const { return disposizione.Posto(chiave); }

    StatoProgramma stato;
    Disposizione disposizione;
};

} // namespace

/// Aligning, distributing, making equal, moving and deleting several elements.
class tst_Disposizione : public QObject
{
    Q_OBJECT
private slots:
    void Allinea_data();
    void Allinea();
    void LUltimoSceltoNonSiMuove();
    void UnCampoDiRigaSiMuoveSoloAttraverso();
    void UnCampoDiRigaPuoFareDaRiferimento();
    void DistribuisceConSpaziUguali();
    void DistribuisceTraGliEstremi();
    void StessaMisuraSenzaCampiEdEtichette();
    void UnaMisuraSenzaPostoSpostaLElemento();
    void PuoSoloSeCambierebbe();
    void UnComandoEUnPasso();
    void SenzaEffettoNessunPasso();
    void SpostaIlGruppoFinoAlBordo();
    void OltreIlBordoNonSiRimbalza();
    void SottoIlMillimetroSoloImmagini();
    void PressioniDiSeguitoUnPassoSolo();
    void IngrandisceDaUnMillimetroAlBordo();
    void EliminaTuttiInUnPasso();
    void UnImmagineSenzaNomeSiChiamaColNumero();
    void OrdineDallAltoInBasso();
};

void tst_Disposizione::Allinea_data()
{
    QTest::addColumn<Disponi>("comando");
    QTest::addColumn<QPointF>("campo"); // rounded to whole mm
    QTest::addColumn<QPointF>("logo");  // keeps fractions
    QTest::newRow("a sinistra") << Disponi::Sinistra << QPointF(50, 30) << QPointF(50, 10.25);
    QTest::newRow("al centro") << Disponi::Centro << QPointF(64, 30) << QPointF(55, 10.25);
    QTest::newRow("a destra") << Disponi::Destra << QPointF(78, 30) << QPointF(60, 10.25);
    QTest::newRow("in alto") << Disponi::Alto << QPointF(20, 60) << QPointF(150.5, 60);
    QTest::newRow("in mezzo") << Disponi::Mezzo << QPointF(20, 68) << QPointF(150.5, 60);
    QTest::newRow("in basso") << Disponi::Basso << QPointF(20, 76) << QPointF(150.5, 60);
}

void tst_Disposizione::Allinea()
{
    QFETCH(Disponi, comando);
    Banco banco;
    QCOMPARE(banco.disposizione.Esegue(comando, {Campo1, Logo, Riquadro}), QString());
    QTEST(banco.Posto(Campo1).topLeft(), "campo");
    QTEST(banco.Posto(Logo).topLeft(), "logo");
    QVERIFY(banco.stato.documento.Variato());
}

void tst_Disposizione::LUltimoSceltoNonSiMuove()
{
    Banco banco;
    banco.disposizione.Esegue(Disponi::Sinistra, {Riquadro, Logo});
    QCOMPARE(banco.Posto(Logo).topLeft(), QPointF(150.5, 10.25));
    QCOMPARE(banco.Posto(Riquadro).left(), 151.0); // a frame stands at whole millimetres
}

void tst_Disposizione::UnCampoDiRigaSiMuoveSoloAttraverso()
{
    Banco banco;
    QCOMPARE(banco.disposizione.Esegue(Disponi::Sinistra, {DiRiga, Riquadro}), QString());
    QCOMPARE(banco.Posto(DiRiga).topLeft(), QPointF(50, 120));
    const QString escluso = banco.disposizione.Esegue(Disponi::Alto, {DiRiga, Campo1, Riquadro});
    QCOMPARE(escluso, QStringLiteral("1 elemento lasciato: i campi di riga stanno all'inizio delle "
                                     "righe"));
    QCOMPARE(banco.Posto(DiRiga).topLeft(), QPointF(50, 120));
    QCOMPARE(banco.Posto(Campo1).top(), 60.0);
}

void tst_Disposizione::UnCampoDiRigaPuoFareDaRiferimento()
{
    Banco banco;
    QCOMPARE(banco.disposizione.Esegue(Disponi::Alto, {Riquadro, DiRiga}), QString());
    QCOMPARE(banco.Posto(Riquadro).top(), 120.0);
}

void tst_Disposizione::DistribuisceConSpaziUguali()
{
    Banco banco;
    // From 10 to 180.5: 25 + 40 + 30 + 30 are taken, 45.5 are left for three gaps.
    banco.disposizione.Esegue(Disponi::DistribuisceAttraverso,
                              {Logo, Riquadro, Etichetta, Secondo});
    QCOMPARE(banco.Posto(Etichetta).left(), 10.0);
    QCOMPARE(banco.Posto(Riquadro).left(), 50.0); // 50.17
    QCOMPARE(banco.Posto(Secondo).left(), 105.0); // 105.33
    QCOMPARE(banco.Posto(Logo).left(), 150.5);
    QCOMPARE(banco.Posto(Riquadro).top(), 60.0);
}

void tst_Disposizione::DistribuisceTraGliEstremi()
{
    Banco banco;
    const QString escluso = banco.disposizione.Esegue(Disponi::DistribuisceInGiu,
                                                      {Logo, DiRiga, Riquadro, Secondo, Etichetta});
    QVERIFY(escluso.contains(QLatin1String("campi di riga")));
    // From 10.25 to 206: 20 + 20 + 10 + 6 are taken.
    QCOMPARE(banco.Posto(Logo).top(), 10.25);
    QCOMPARE(banco.Posto(Riquadro).top(), 77.0); // 76.83
    QCOMPARE(banco.Posto(Secondo).top(), 143.0); // 143.42
    QCOMPARE(banco.Posto(Etichetta).top(), 200.0);
    QCOMPARE(banco.Posto(DiRiga).top(), 120.0);
}

void tst_Disposizione::StessaMisuraSenzaCampiEdEtichette()
{
    Banco banco;
    const QString escluso = banco.disposizione.Esegue(Disponi::StesseMisure,
                                                      {Campo1, Etichetta, Logo, Secondo, Riquadro});
    QCOMPARE(escluso, QStringLiteral("2 elementi lasciati: campi ed etichette sono grandi quanto "
                                     "il loro testo"));
    QCOMPARE(banco.Posto(Logo).size(), QSizeF(40, 20));
    QCOMPARE(banco.Posto(Secondo).size(), QSizeF(40, 20));
    QCOMPARE(banco.Posto(Etichetta).size(), QSizeF(25, 6));
    banco.disposizione.Esegue(Disponi::StessaLarghezza, {Secondo, Campo1});
    QCOMPARE(banco.Posto(Secondo).size(), QSizeF(13, 20)); // the field's 12.5
    banco.disposizione.Esegue(Disponi::StessaAltezza, {Logo, Etichetta});
    QCOMPARE(banco.Posto(Logo).size(), QSizeF(40, 6));
}

void tst_Disposizione::UnaMisuraSenzaPostoSpostaLElemento()
{
    Banco banco;
    banco.disposizione.Sposta({Secondo}, {500, 0});
    QCOMPARE(banco.Posto(Secondo).left(), 210.0);
    banco.disposizione.Esegue(Disponi::StessaLarghezza, {Secondo, Riquadro});
    QCOMPARE(banco.Posto(Secondo), QRectF(200, 90, 40, 10));
}

void tst_Disposizione::PuoSoloSeCambierebbe()
{
    Banco banco;
    const Disposizione &disposizione = banco.disposizione;
    QVERIFY(!disposizione.Puo(Disponi::Sinistra, {}));
    QVERIFY(!disposizione.Puo(Disponi::Sinistra, {Campo1}));
    QVERIFY(disposizione.Puo(Disponi::Sinistra, {Campo1, DiRiga}));
    QVERIFY(!disposizione.Puo(Disponi::Alto, {DiRiga, Campo1}));
    QVERIFY(disposizione.Puo(Disponi::Alto, {Campo1, DiRiga}));
    QVERIFY(!disposizione.Puo(Disponi::DistribuisceAttraverso, {Campo1, Logo}));
    QVERIFY(disposizione.Puo(Disponi::DistribuisceAttraverso, {Campo1, DiRiga, Logo}));
    QVERIFY(!disposizione.Puo(Disponi::DistribuisceInGiu, {Campo1, DiRiga, Logo}));
    QVERIFY(!disposizione.Puo(Disponi::StessaLarghezza, {Campo1, Etichetta, Logo}));
    QVERIFY(disposizione.Puo(Disponi::StessaLarghezza, {Campo1, Secondo, Logo}));
    QVERIFY(disposizione.Puo(Disponi::StessaLarghezza, {Secondo, Campo1}));
}

void tst_Disposizione::UnComandoEUnPasso()
{
    Banco banco;
    const Modello prima = banco.stato.Aperto();
    banco.disposizione.Esegue(Disponi::Destra, {Campo1, Riquadro, Logo});
    QCOMPARE(banco.stato.documento.TestoAnnulla(), QStringLiteral("allinea a destra 3 elementi"));
    banco.stato.documento.Annulla();
    QVERIFY(banco.stato.Aperto() == prima);
    QVERIFY(!banco.stato.documento.PuoAnnullare());
}

void tst_Disposizione::SenzaEffettoNessunPasso()
{
    Banco banco;
    const QSignalSpy concluse(&banco.stato.documento, &Documento::ModificaConclusa);
    banco.disposizione.Sposta({Campo1}, {-20, 0});
    banco.disposizione.Sposta({Campo1}, {-1, 0}); // at the edge already
    banco.disposizione.Esegue(Disponi::Sinistra, {Campo1, Campo1});
    QCOMPARE(banco.Posto(Campo1).left(), 0.0);
    banco.stato.documento.Annulla();
    QVERIFY(!banco.stato.documento.PuoAnnullare());
    QCOMPARE(concluse.size(), 2); // the shift and its undoing
}

void tst_Disposizione::SpostaIlGruppoFinoAlBordo()
{
    Banco banco;
    banco.disposizione.Sposta({Campo1, Logo}, {100, 0}); // the image's right edge stands at 180.5
    QCOMPARE(banco.Posto(Logo).right(), 239.5);          // all by the same whole millimetres
    QCOMPARE(banco.Posto(Campo1).left(), 79.0);
    banco.disposizione.Sposta({Riquadro, Etichetta}, {0, 200});
    QCOMPARE(banco.Posto(Etichetta).bottom(), 350.0);
    QCOMPARE(banco.Posto(Riquadro).top(), 204.0);
    QCOMPARE(banco.stato.documento.TestoAnnulla(), QStringLiteral("sposta 2 elementi"));
}

void tst_Disposizione::OltreIlBordoNonSiRimbalza()
{
    Banco banco;
    {
        Passo passo(banco.stato.documento, QStringLiteral("fuori"));
        passo.Trascina(Logo, {300, 10});
    }
    banco.disposizione.Sposta({Logo}, {1, 1});
    QCOMPARE(banco.Posto(Logo).topLeft(), QPointF(300, 11));
    banco.disposizione.Sposta({Logo}, {-1, 0});
    QCOMPARE(banco.Posto(Logo).topLeft(), QPointF(299, 11));
}

void tst_Disposizione::SottoIlMillimetroSoloImmagini()
{
    Banco banco;
    const QString escluso = banco.disposizione.Sposta({Logo, Riquadro}, {0.1, 0});
    QCOMPARE(escluso,
             QStringLiteral("1 elemento lasciato: campi e cornici stanno su millimetri interi"));
    QCOMPARE(banco.Posto(Logo).left(), 150.6);
    QCOMPARE(banco.Posto(Riquadro).left(), 50.0);
    QVERIFY(!banco.disposizione.Sposta({DiRiga}, {0, 1}).isEmpty());
    QCOMPARE(banco.Posto(DiRiga).top(), 120.0);
}

void tst_Disposizione::PressioniDiSeguitoUnPassoSolo()
{
    Banco banco;
    for (int i = 0; i < 5; ++i) {
        banco.disposizione.Sposta({Campo1}, {1, 0});
    }
    banco.disposizione.Sposta({Campo1}, {0, 1}); // another way: another step
    QCOMPARE(banco.Posto(Campo1).topLeft(), QPointF(25, 31));
    banco.stato.documento.Annulla();
    QCOMPARE(banco.Posto(Campo1).topLeft(), QPointF(25, 30));
    banco.stato.documento.Annulla();
    QCOMPARE(banco.Posto(Campo1).topLeft(), QPointF(20, 30));
    QVERIFY(!banco.stato.documento.PuoAnnullare());
}

void tst_Disposizione::IngrandisceDaUnMillimetroAlBordo()
{
    Banco banco;
    banco.disposizione.Ingrandisce({Riquadro}, {10, -5});
    QCOMPARE(banco.Posto(Riquadro), QRectF(50, 60, 50, 15));
    banco.disposizione.Ingrandisce({Riquadro}, {500, -500});
    QCOMPARE(banco.Posto(Riquadro), QRectF(50, 60, 190, 1));
    const QString escluso = banco.disposizione.Ingrandisce({Campo1, Etichetta}, {1, 0});
    QVERIFY(escluso.startsWith(QLatin1String("2 elementi lasciati")));
    QCOMPARE(banco.Posto(Etichetta).size(), QSizeF(25, 6));
}

void tst_Disposizione::EliminaTuttiInUnPasso()
{
    Banco banco;
    const Modello prima = banco.stato.Aperto();
    banco.disposizione.Elimina({Campo1, Riquadro, Logo});
    QVERIFY(!banco.stato.Aperto().Presente(Genere::Campo, 1));
    QVERIFY(!banco.stato.Aperto().Presente(Genere::Immagine, 1));
    QVERIFY(banco.stato.Aperto().Presente(Genere::Cornice, 2));
    QVERIFY(banco.stato.documento.Eliminato(Riquadro));
    banco.stato.documento.Annulla();
    QVERIFY(banco.stato.Aperto() == prima);
}

void tst_Disposizione::UnImmagineSenzaNomeSiChiamaColNumero()
{
    Banco banco;
    const Chiave nuova = Passo(banco.stato.documento, QStringLiteral("aggiunge"))
                             .Aggiunge(Genere::Immagine, {5, 5}, {});
    banco.disposizione.Sposta({nuova}, {1, 0});
    QCOMPARE(banco.stato.documento.TestoAnnulla(), QStringLiteral("sposta immagine 2"));
    banco.disposizione.Elimina({nuova});
    QCOMPARE(banco.stato.documento.TestoAnnulla(), QStringLiteral("elimina immagine 2"));
}

void tst_Disposizione::OrdineDallAltoInBasso()
{
    Banco banco;
    QCOMPARE(OrdineDiLettura(banco.stato.documento),
             (QList<Chiave>{Logo, Campo1, Riquadro, Secondo, DiRiga, Etichetta}));
    banco.disposizione.Elimina({Riquadro});
    {
        Passo passo(banco.stato.documento, QStringLiteral("sposta"));
        passo.Trascina(Secondo, {5, 30});
    }
    QCOMPARE(OrdineDiLettura(banco.stato.documento),
             (QList<Chiave>{Logo, Secondo, Campo1, DiRiga, Etichetta}));
}

QTEST_GUILESS_MAIN(tst_Disposizione)
#include "tst_Disposizione.moc"
