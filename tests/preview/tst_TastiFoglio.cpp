#include "preview/Banco.h"

namespace {

const Chiave Campo1{Genere::Campo, 1};
const Chiave DiRiga{Genere::Campo, 2};
const Chiave Riquadro{Genere::Cornice, 1};
const Chiave Logo{Genere::Immagine, 1};

/// In reading order an image at (80.5, 10.25), a field at (20, 20), a frame of 30 x 20 at (60, 20)
/// and a row field at (20, 100). The sheet has the focus.
class Foglio : public Banco
{
public:
    Foglio()
    {
        Campo(QStringLiteral("uno"), 20, 20);
        Campo(QStringLiteral("R_Qta"), 20, 100);
        Cornice(60, 20, 30, 20);
        Immagine(80.5, 10.25, 30, 20, QStringLiteral("logo.bmp"));
        Cambia([](Modello &nuovo) { nuovo.Righe.yInizio = 100; });
        FuocoAlFoglio();
        segnali.clear();
    }

    QGraphicsView *P1() const { return Trova<QGraphicsView>(*frm, "P1"); }
    const QList<Chiave> &Scelti() const { return stato.selezione.Scelti(); }
    void Sceglie(const QList<Chiave> &chiavi) { stato.selezione.ImpostaScelti(chiavi); }
    QPointF Posto(Chiave chiave) const { return {modello.Di(chiave).X, modello.Di(chiave).Y}; }
};

} // namespace

class tst_TastiFoglio : public QObject
{
    Q_OBJECT
private slots:
    void UnClickDaIlFuocoAlFoglio();
    void TabPercorreInOrdineDiLettura();
    void TabPortaInVista();
    void OltreLUltimoTabEsce();
    void CtrlTabAggiunge();
    void LeFrecceSpostano();
    void LeFrecceTenuteSonoUnPasso();
    void LeFrecceConCtrlRidimensionano();
    void RidimensionatoConITastiSiRiimpila();
    void ConAltSoloLeImmagini();
    void IlCampoDiRigaRestaSuYInizio();
    void SenzaSceltiLeFrecceScorrono();
    void LePagineScorronoSempre();
    void InvioEF2ApronoLeProprieta();
    void IlFuocoSiVede();
    void UnaCifraNonCambiaLoZoom();
    void MentreSiTrascinaITastiTacciono();
};

void tst_TastiFoglio::UnClickDaIlFuocoAlFoglio()
{
    Foglio banco;
    Trova<QLineEdit>(*banco.frm, "TextZoom")->setFocus();
    banco.Clicca({150, 120});
    QVERIFY(banco.P1()->hasFocus());
}

void tst_TastiFoglio::TabPercorreInOrdineDiLettura()
{
    Foglio banco;
    for (const Chiave &atteso : {Logo, Campo1, Riquadro, DiRiga}) {
        banco.Tasto(Qt::Key_Tab);
        QCOMPARE(banco.Scelti(), (QList<Chiave>{atteso}));
        QCOMPARE(banco.stato.selezione.Attivo(atteso.genere), atteso.indice);
    }
    QVERIFY(banco.segnali.contains(QStringLiteral("PaginaRichiesta 2")));
    banco.Tasto(Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Riquadro}));
    QVERIFY(!banco.stato.documento.Variato());
    QVERIFY(banco.P1()->hasFocus());
}

void tst_TastiFoglio::TabPortaInVista()
{
    Foglio banco;
    banco.Cambia([](Modello &modello) { modello.Righe.yInizio = 300; });
    banco.Sceglie({Riquadro});
    banco.Tasto(Qt::Key_Tab);
    QVERIFY(banco.frm->ScorrimentoY() > 100);
}

void tst_TastiFoglio::OltreLUltimoTabEsce()
{
    Foglio banco;
    banco.Sceglie({DiRiga});
    banco.Tasto(Qt::Key_Tab);
    QVERIFY(!banco.P1()->hasFocus());
    QCOMPARE(banco.Scelti(), (QList<Chiave>{DiRiga}));
    banco.P1()->setFocus();
    banco.Sceglie({Logo});
    banco.Tasto(Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(!banco.P1()->hasFocus());
}

void tst_TastiFoglio::CtrlTabAggiunge()
{
    Foglio banco;
    banco.Tasto(Qt::Key_Tab);
    banco.Tasto(Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Logo, Campo1}));
    banco.Tasto(Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Logo}));
}

void tst_TastiFoglio::LeFrecceSpostano()
{
    Foglio banco;
    banco.Sceglie({Campo1, Logo});
    banco.Tasto(Qt::Key_Right);
    banco.Tasto(Qt::Key_Down, Qt::ShiftModifier);
    banco.Tasto(Qt::Key_Left, Qt::ShiftModifier);
    banco.Tasto(Qt::Key_Up);
    QCOMPARE(banco.Posto(Campo1), QPointF(11, 29));
    QCOMPARE(banco.Posto(Logo), QPointF(71.5, 19.25));
    QVERIFY(banco.stato.documento.Variato());
    QVERIFY(banco.Striscia().contains(QLatin1String("X 71.5")));
    banco.Tasto(Qt::Key_Left, Qt::ShiftModifier);
    banco.Tasto(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(banco.Posto(Campo1).x(), 0.0); // the sheet stops the group as a whole
    QCOMPARE(banco.Posto(Logo).x(), 60.5);
}

void tst_TastiFoglio::LeFrecceTenuteSonoUnPasso()
{
    Foglio banco;
    banco.Sceglie({Riquadro});
    for (int i = 0; i < 12; ++i) {
        banco.Tasto(Qt::Key_Right);
    }
    QCOMPARE(banco.Posto(Riquadro).x(), 72.0);
    banco.stato.documento.Annulla();
    QCOMPARE(banco.Posto(Riquadro).x(), 60.0);
    QVERIFY(!banco.stato.documento.PuoAnnullare());
}

void tst_TastiFoglio::LeFrecceConCtrlRidimensionano()
{
    Foglio banco;
    banco.Sceglie({Riquadro});
    banco.Tasto(Qt::Key_Right, Qt::ControlModifier);
    banco.Tasto(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 31.0);
    QCOMPARE(banco.modello.Cornici[1].Altezza, 30.0);
    QCOMPARE(banco.C2(1)->Posto(), QRectF(60, 20, 31, 30));
    banco.Sceglie({Campo1});
    banco.Tasto(Qt::Key_Right, Qt::ControlModifier);
    QVERIFY(banco.Striscia().contains(QLatin1String("grandi quanto il loro testo")));
    QCOMPARE(banco.Posto(Campo1), QPointF(20, 20));
}

void tst_TastiFoglio::RidimensionatoConITastiSiRiimpila()
{
    Foglio banco;
    const int grande = banco.Cornice(60, 20, 40, 20); // in front as long as nobody restacks
    banco.frm->ImpilaPerArea();
    QVERIFY(banco.C2(1)->zValue() > banco.C2(grande)->zValue());
    banco.Sceglie({{Genere::Cornice, 1}});
    for (int i = 0; i < 2; ++i) {
        banco.Tasto(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    }
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 50.0);
    QVERIFY(banco.C2(1)->zValue() < banco.C2(grande)->zValue());
}

void tst_TastiFoglio::ConAltSoloLeImmagini()
{
    Foglio banco;
    banco.Sceglie({Riquadro, Logo});
    banco.Tasto(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(banco.Posto(Logo).x(), 80.6);
    QCOMPARE(banco.Posto(Riquadro).x(), 60.0);
    QVERIFY(banco.Striscia().contains(QLatin1String("millimetri interi")));
}

void tst_TastiFoglio::IlCampoDiRigaRestaSuYInizio()
{
    Foglio banco;
    banco.Sceglie({DiRiga});
    banco.Tasto(Qt::Key_Down);
    QCOMPARE(banco.Posto(DiRiga), QPointF(20, 100));
    QVERIFY(banco.Striscia().contains(QLatin1String("campi di riga")));
    QVERIFY(!banco.stato.documento.PuoAnnullare());
    banco.Tasto(Qt::Key_Right);
    QCOMPARE(banco.Posto(DiRiga), QPointF(21, 100));
}

void tst_TastiFoglio::SenzaSceltiLeFrecceScorrono()
{
    Foglio banco;
    banco.Tasto(Qt::Key_Down);
    banco.Tasto(Qt::Key_Right);
    banco.Tasto(Qt::Key_Right);
    QCOMPARE(banco.frm->ScorrimentoY(), 5);
    QCOMPARE(banco.frm->ScorrimentoX(), 10);
    banco.Tasto(Qt::Key_Left);
    QCOMPARE(banco.frm->ScorrimentoX(), 5);
    QCOMPARE(banco.Posto(Campo1), QPointF(20, 20));
}

void tst_TastiFoglio::LePagineScorronoSempre()
{
    Foglio banco;
    banco.Sceglie({Campo1});
    banco.Tasto(Qt::Key_End);
    QCOMPARE(banco.frm->ScorrimentoY(), 350);
    banco.Tasto(Qt::Key_PageUp);
    QVERIFY(banco.frm->ScorrimentoY() < 350);
    banco.Tasto(Qt::Key_Home);
    QCOMPARE(banco.frm->ScorrimentoY(), 0);
    banco.Tasto(Qt::Key_PageDown);
    QVERIFY(banco.frm->ScorrimentoY() > 0);
    banco.Tasto(Qt::Key_End, Qt::ShiftModifier);
    QCOMPARE(banco.frm->ScorrimentoX(), 240);
    QCOMPARE(banco.Posto(Campo1), QPointF(20, 20));
}

void tst_TastiFoglio::InvioEF2ApronoLeProprieta()
{
    Foglio banco;
    banco.Tasto(Qt::Key_Return);
    QVERIFY(banco.segnali.isEmpty()); // nothing is chosen
    banco.Sceglie({Campo1, Riquadro});
    banco.Tasto(Qt::Key_Return);
    QCOMPARE(banco.segnali.last(), QStringLiteral("RichiestaProprieta 1 1"));
    banco.Sceglie({Logo});
    banco.Tasto(Qt::Key_F2);
    QCOMPARE(banco.segnali.last(), QStringLiteral("RichiestaProprieta 2 1"));
}

void tst_TastiFoglio::IlFuocoSiVede()
{
    Foglio banco;
    const auto *cornice = Trova<QWidget>(*banco.frm, "FuocoP1");
    QVERIFY(cornice->isVisible());
    QCOMPARE(cornice->geometry(), Trova<QWidget>(*banco.frm, "AreaFoglio")->geometry());
    Trova<QLineEdit>(*banco.frm, "TextZoom")->setFocus();
    QVERIFY(!cornice->isVisible());
}

void tst_TastiFoglio::UnaCifraNonCambiaLoZoom()
{
    Foglio banco;
    banco.Clicca({150, 120});
    banco.Tasto(Qt::Key_2);
    QCOMPARE(banco.stato.zoom, 1.0);
    QCOMPARE(Trova<QLineEdit>(*banco.frm, "TextZoom")->text(), QStringLiteral("1"));
}

void tst_TastiFoglio::MentreSiTrascinaITastiTacciono()
{
    Foglio banco;
    banco.Sceglie({Riquadro});
    banco.Muove({22, 22});
    banco.Muove({20.5, 20.5});
    banco.Preme({20.5, 20.5});
    banco.Muove({30, 30});
    banco.Tasto(Qt::Key_Right);
    banco.Tasto(Qt::Key_Tab);
    QCOMPARE(banco.Posto(Riquadro), QPointF(60, 20));
    banco.Rilascia({30, 30});
    QCOMPARE(banco.Scelti(), (QList<Chiave>{Campo1}));
}

QTEST_MAIN(tst_TastiFoglio)
#include "tst_TastiFoglio.moc"
