#include "preview/Banco.h"
#include "preview/ContorniScelti.h"

namespace {

const Chiave Campo1{Genere::Campo, 1};
const Chiave Campo2{Genere::Campo, 2};
const Chiave Riquadro{Genere::Cornice, 1};
const Chiave Logo{Genere::Immagine, 1};

/// Fields at (20, 20) and (20, 40), a frame of 30 x 20 at (60, 20) and an image of 30 x 20 at
/// (60.5, 60.25).
class Foglio : public Banco
{
public:
    explicit Foglio(double zoom = 1)
    {
        Campo(QStringLiteral("uno"), 20, 20);
        Campo(QStringLiteral("due"), 20, 40);
        Cornice(60, 20, 30, 20);
        Immagine(60.5, 60.25, 30, 20, QStringLiteral("logo.bmp"));
        if (zoom != 1) {
            Zoom(QString::number(zoom));
        }
        segnali.clear();
    }

    const QList<Chiave> &Scelti() const { return stato.selezione.Scelti(); }
    void Sceglie(const QList<Chiave> &chiavi) { stato.selezione.ImpostaScelti(chiavi); }
    ContornoScelto *Contorno(const char *nome) const
    {
        return Controllo_<ContornoScelto>(QLatin1String(nome));
    }
    QPointF Posto(Chiave chiave) const
    {
        const Elemento &elemento = modello.Di(chiave);
        return {elemento.X, elemento.Y};
    }
};

constexpr QPointF NelRiquadro(75, 35);
constexpr QPointF NellImmagine(80, 75);
constexpr QPointF NelCampo1(24, 22);
constexpr QPointF SulVuoto(150, 120);

} // namespace

/// Choosing with the mouse, and dragging what is chosen.
class tst_Scelta : public QObject
{
    Q_OBJECT
private slots:
    void PuntareNonSceglie();
    void UnClickSceglieDaSolo();
    void CtrlClickAggiungeEToglie();
    void CtrlClickFaAncheIlClick();
    void CtrlClickSullaManiglia();
    void UnClickSulVuotoNonSceglieNulla();
    void LaBandaSceglieCioCheStaTuttoDentro();
    void ConMaiuscLaBandaAggiunge();
    void DuranteLaBandaPXePYScrivono();
    void EscapeRinunciaAllaBandaPoiSvuota();
    void IContorniSeguono();
    void TrascinareUnoSceltoMuoveTutti_data() { RigheDiZoom(); }
    void TrascinareUnoSceltoMuoveTutti();
    void TrascinareUnoNonSceltoMuoveSoloLui();
    void IlGruppoSiFermaInsieme();
    void IlCampoDiRigaRestaAlSuoPosto();
    void TraAndataERitornoNessunPasso();
    void RinunciandoTuttiTornano();
    void MentreSiTrascinaSiVedonoTutti();
};

void tst_Scelta::PuntareNonSceglie()
{
    Foglio banco;
    banco.Sceglie({Logo});
    banco.Muove(NelCampo1);
    banco.Muove(NelRiquadro);
    banco.Muove(SulVuoto);
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Logo}));
    QVERIFY(!banco.stato.documento.Variato());
}

void tst_Scelta::UnClickSceglieDaSolo()
{
    Foglio banco;
    banco.Clicca(NelRiquadro);
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Riquadro}));
    banco.Clicca(NellImmagine);
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Logo}));
    banco.Clicca(banco.C1(1)->Posto().center());
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Campo1}));
}

void tst_Scelta::CtrlClickAggiungeEToglie()
{
    Foglio banco;
    banco.CliccaConCtrl(NelRiquadro);
    banco.CliccaConCtrl(NellImmagine);
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Riquadro, Logo}));
    banco.CliccaConCtrl(NelRiquadro);
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Logo}));
}

void tst_Scelta::CtrlClickFaAncheIlClick()
{
    Foglio banco;
    banco.CliccaConCtrl(NelRiquadro);
    QCOMPARE(banco.InMano(2), 1);
    QVERIFY(banco.segnali.contains(QStringLiteral("ElementoPuntato 1 1")));
    QVERIFY(banco.segnali.contains(QStringLiteral("PaginaRichiesta 1")));
}

void tst_Scelta::CtrlClickSullaManiglia()
{
    Foglio banco;
    banco.Muove(NelCampo1);
    banco.CliccaConCtrl({20.5, 20.5}); // its handle has come there
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Campo1}));
    banco.CliccaConCtrl({20.5, 20.5});
    QVERIFY(banco.Scelti().isEmpty());
    banco.Clicca({20.5, 20.5});
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Campo1}));
    QVERIFY(!banco.stato.documento.PuoAnnullare());
}

void tst_Scelta::UnClickSulVuotoNonSceglieNulla()
{
    Foglio banco;
    banco.Sceglie({Logo, Campo1});
    banco.Clicca(SulVuoto, Qt::RightButton);
    QCOMPARE(banco.Scelti().size(), 2);
    banco.Clicca(SulVuoto);
    QVERIFY(banco.Scelti().isEmpty());
}

void tst_Scelta::LaBandaSceglieCioCheStaTuttoDentro()
{
    Foglio banco;
    banco.Trascina({100, 100}, {15, 15}); // backwards, too
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Campo1, Riquadro, Campo2, Logo}));
    banco.Trascina({15, 15}, {70, 100}); // cuts frame and image
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Campo1, Campo2}));
    banco.Trascina({150, 110}, {160, 120});
    QVERIFY(banco.Scelti().isEmpty());
    QVERIFY(!banco.stato.documento.Variato());
}

void tst_Scelta::ConMaiuscLaBandaAggiunge()
{
    Foglio banco;
    banco.Sceglie({Logo});
    banco.Trascina({15, 15}, {50, 50}, Qt::ShiftModifier);
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Logo, Campo1, Campo2}));
    banco.Clicca(SulVuoto, Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(banco.Scelti().size(), 3);
}

void tst_Scelta::DuranteLaBandaPXePYScrivono()
{
    Foglio banco;
    banco.Muove({100, 100});
    banco.Preme({100, 100});
    banco.Muove({110, 120});
    const QPointF punto = banco.Centro({110, 120});
    QCOMPARE(Trova<QLineEdit>(*banco.frm, "PX")->text().toFloat(), float(punto.x()));
    QCOMPARE(Trova<QLineEdit>(*banco.frm, "PY")->text().toFloat(), float(punto.y()));
    QCOMPARE(banco.Controllo_<Controllo>(QStringLiteral("Banda"))->Posto(),
             QRectF(banco.Centro({100, 100}), punto));
    banco.Rilascia({110, 120});
    QVERIFY(ElementoAnteprima(*banco.frm, QStringLiteral("Banda")) == nullptr);
}

void tst_Scelta::EscapeRinunciaAllaBandaPoiSvuota()
{
    Foglio banco;
    banco.Sceglie({Logo});
    banco.Muove({100, 100});
    banco.Preme({100, 100});
    banco.Muove({15, 15});
    QTest::keyClick(banco.frm.get(), Qt::Key_Escape);
    banco.Rilascia({15, 15});
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Logo}));
    QTest::keyClick(banco.frm.get(), Qt::Key_Escape);
    QVERIFY(banco.Scelti().isEmpty());
}

void tst_Scelta::IContorniSeguono()
{
    Foglio banco;
    banco.Sceglie({Riquadro, Campo1});
    QVERIFY(banco.Contorno("Scelto1(1)")->isVisible());
    QVERIFY(banco.Contorno("Scelto1(1)")->Spesso()); // chosen last
    QVERIFY(!banco.Contorno("Scelto2(1)")->Spesso());
    QCOMPARE(banco.Contorno("Scelto2(1)")->Posto(), QRectF(60, 20, 30, 20));
    banco.Zoom(QStringLiteral("2"));
    QCOMPARE(banco.Contorno("Scelto2(1)")->Posto(), QRectF(30, 10, 15, 10));
    QCOMPARE(banco.Contorno("Scelto1(1)")->Posto(), banco.C1(1)->Posto());
    Passo(banco.stato.documento, QStringLiteral("elimina")).Elimina(Riquadro);
    QVERIFY(!banco.Contorno("Scelto2(1)")->isVisible());
    banco.Sceglie({});
    QVERIFY(!banco.Contorno("Scelto1(1)")->isVisible());
}

void tst_Scelta::TrascinareUnoSceltoMuoveTutti()
{
    QFETCH(double, zoom);
    Foglio banco(zoom);
    banco.Clicca(NelRiquadro / zoom);
    banco.Sceglie({Campo1, Riquadro, Logo});
    const QPointF campo = banco.Posto(Campo1);
    const QPointF cornice = banco.Posto(Riquadro);
    const QPointF immagine = banco.Posto(Logo);
    banco.TrascinaManiglia(2, QPointF(80, 60) / zoom);
    const QPointF scarto = banco.Posto(Riquadro) - cornice;
    QVERIFY(scarto.x() > 15);
    QCOMPARE(scarto, QPointF(scarto.toPoint())); // all of them by the same whole millimetres
    QCOMPARE(banco.Posto(Campo1), campo + scarto);
    QCOMPARE(banco.Posto(Logo), immagine + scarto);
    QCOMPARE(banco.Posto(Campo2), QPointF(20, 40));
    QCOMPARE(banco.C1(1)->Posto().topLeft(), (campo + scarto) / zoom);
    QCOMPARE(banco.stato.documento.TestoAnnulla(), QStringLiteral("sposta 3 elementi"));
    QCOMPARE(banco.Scelti().size(), 3);
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
    banco.stato.documento.Annulla();
    QCOMPARE(banco.Posto(Campo1), campo);
    QCOMPARE(banco.Posto(Logo), immagine);
    QVERIFY(!banco.stato.documento.PuoAnnullare());
}

void tst_Scelta::TrascinareUnoNonSceltoMuoveSoloLui()
{
    Foglio banco;
    banco.Clicca(NelRiquadro);
    banco.Sceglie({Campo1, Logo});
    banco.TrascinaManiglia(2, {80, 60});
    QCOMPARE(banco.Posto(Campo1), QPointF(20, 20));
    QVERIFY(banco.Posto(Riquadro) != QPointF(60, 20));
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Riquadro}));
}

void tst_Scelta::IlGruppoSiFermaInsieme()
{
    Foglio banco;
    banco.Clicca(NelRiquadro);
    banco.Sceglie({Campo1, Riquadro});
    banco.TrascinaManiglia(2, {5, 21});
    QCOMPARE(banco.Posto(Campo1).x(), 0.0);
    QCOMPARE(banco.Posto(Riquadro).x(), 40.0);
    banco.stato.documento.Annulla();
    banco.Clicca(NelRiquadro);
    banco.Sceglie({Campo1, Riquadro});
    banco.TrascinaManiglia(2, {239, 21});
    QCOMPARE(banco.Posto(Riquadro).x(), 210.0);
    QCOMPARE(banco.Posto(Campo1).x(), 170.0);
}

void tst_Scelta::IlCampoDiRigaRestaAlSuoPosto()
{
    Foglio banco;
    banco.Cambia([](Modello &modello) {
        modello.Righe.yInizio = 100;
        modello.Campi[2].Nome = QStringLiteral("R_Qta");
    });
    banco.Clicca(NelRiquadro);
    banco.Sceglie({Campo2, Riquadro});
    banco.TrascinaManiglia(2, {80, 60});
    const double x = banco.Posto(Riquadro).x() - 60;
    QCOMPARE(banco.Posto(Campo2), QPointF(20 + x, 100));
    QCOMPARE(banco.C1(2)->Posto().top(), 100.0);
}

void tst_Scelta::TraAndataERitornoNessunPasso()
{
    Foglio banco;
    banco.Clicca(NelRiquadro);
    banco.Sceglie({Campo1, Riquadro});
    const QPointF presa = banco.S(2)->Posto().topLeft() + QPointF(0.3, 0.3);
    banco.Muove(presa);
    banco.Preme(presa);
    banco.Muove(presa + QPointF(20, 20));
    banco.Muove(presa);
    banco.Rilascia(presa);
    QCOMPARE(banco.Posto(Campo1), QPointF(20, 20));
    QCOMPARE(banco.Posto(Riquadro), QPointF(60, 20));
    QVERIFY(!banco.stato.documento.PuoAnnullare());
}

void tst_Scelta::RinunciandoTuttiTornano()
{
    Foglio banco;
    const QImage prima = banco.Fotografia();
    banco.Clicca(NelRiquadro);
    banco.Sceglie({Campo1, Riquadro, Logo});
    const QPointF presa = banco.S(2)->Posto().topLeft() + QPointF(1, 1);
    banco.Muove(presa);
    banco.Preme(presa);
    banco.Muove(presa + QPointF(20, 20));
    QTest::keyClick(banco.frm.get(), Qt::Key_Escape);
    banco.Rilascia(presa + QPointF(20, 20));
    QCOMPARE(banco.Posto(Riquadro), QPointF(60, 20));
    QVERIFY(!banco.stato.documento.Variato());
    banco.Sceglie({});
    banco.frm->NascondiManiglie();
    banco.frm->MostraModello(); // as they were stacked
    QCOMPARE(banco.Fotografia(), prima);
}

void tst_Scelta::MentreSiTrascinaSiVedonoTutti()
{
    Foglio banco;
    banco.Clicca(NelRiquadro);
    banco.Sceglie({Riquadro, Logo});
    const QPointF presa = banco.S(2)->Posto().topLeft() + QPointF(1, 1);
    banco.Muove(presa);
    banco.Preme(presa);
    banco.Muove(presa + QPointF(40, 40));
    const QPointF scarto = banco.C2(1)->Posto().topLeft() - QPointF(60, 20);
    const QImage foto = banco.Fotografia();
    const auto scuro = [&](QPointF punto) {
        // A grey line somewhere within a pixel of the place.
        for (const double fuori : {-MillimetriPerPixel, 0.0, MillimetriPerPixel}) {
            if (qGray(ColoreFoto(foto, punto + QPointF(fuori, 0))) < 200) {
                return true;
            }
        }
        return false;
    };
    const QPointF bordo(60.5, 70); // of the image, on its left
    QVERIFY(scuro(bordo + scarto));
    QVERIFY(!scuro(bordo));
    QCOMPARE(banco.Posto(Logo), QPointF(60.5, 60.25)); // written when it is released
    banco.Rilascia(presa + QPointF(40, 40));
    QCOMPARE(banco.Posto(Logo), QPointF(60.5, 60.25) + scarto);
}

QTEST_MAIN(tst_Scelta)
#include "tst_Scelta.moc"
