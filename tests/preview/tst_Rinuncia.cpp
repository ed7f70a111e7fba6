#include "preview/Banco.h"

#include <QApplication>

namespace {

// Of the element, mm. Only the second lies on a whole pixel, at any of the scales below.
const QPointF Angolo(60, 50);
const QPointF SulPixel(127, 127);

void RigheRidimensionabili()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("cornice") << Genere::Cornice;
    QTest::newRow("immagine") << Genere::Immagine;
}

void RigheConScala(const QList<Genere> &generi)
{
    static constexpr const char *Nomi[] = {"campo", "cornice", "immagine"};
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<double>("zoom");
    for (const Genere genere : generi) {
        for (const double zoom : {1.0, 1.25, 1.6, 2.0, 2.5, 3.0}) {
            QTest::addRow("%s 1:%g", Nomi[Posto(genere)], zoom) << genere << zoom;
        }
    }
}

ControlloElemento *Controllo1(const Banco &banco, Genere genere)
{
    return banco.Controllo_<ControlloElemento>(QStringLiteral("C%1(1)").arg(Posto(genere) + 1));
}

/// An element alone on the sheet, selected.
void Prepara(Banco &banco, Genere genere, QPointF angolo = Angolo)
{
    banco.frm->Seleziona(genere, banco.Crea(genere, angolo));
    banco.segnali.clear();
}

/// The handle, or the right edge, is taken and moved by so much; the button stays down.
QPointF Afferra(Banco &banco, QPointF presa, QPointF scarto)
{
    banco.Muove(presa);
    banco.Preme(presa);
    banco.Muove(presa + scarto / 2);
    banco.Muove(presa + scarto);
    return presa + scarto;
}

QPointF Maniglia1()
{
    return Angolo + QPointF(0.8, 0.8);
}

QPointF BordoDestro()
{
    return Angolo + QPointF(29.6, 10);
}

/// Through the window, to whatever has the focus.
void PremeEscape(const Banco &banco)
{
    QTest::keyClick(banco.frm->windowHandle(), Qt::Key_Escape);
}

/// A gesture under way on an element alone on the sheet, to be given up.
struct Rinunciato
{
    Rinunciato(Genere quale, QPointF presa, QPointF scarto)
        : genere(quale)
    {
        Prepara(banco, genere);
        prima = banco.modello;
        posto = Controllo1(banco, genere)->Posto();
        dove = Afferra(banco, presa, scarto);
    }

    void VerificaCambiato() const
    {
        QVERIFY(!(banco.modello == prima));
        QVERIFY(banco.stato.documento.Variato());
    }
    void VerificaComePrima() const
    {
        QCOMPARE(banco.modello, prima);
        QVERIFY(!banco.stato.documento.Variato());
        QCOMPARE(Controllo1(banco, genere)->Posto(), posto);
    }
    /// The release came, and found nothing to conclude.
    void VerificaNienteDaAnnullare() const
    {
        VerificaComePrima();
        QVERIFY(!banco.stato.documento.PuoAnnullare());
        // Nothing for the safety copy to keep.
        QVERIFY(!banco.segnali.contains(QStringLiteral("ModificaConclusa")));
    }

    Genere genere;
    Banco banco;
    Modello prima;
    QRectF posto; ///< of the control, mm of screen
    QPointF dove; ///< where the pointer has got to
};

} // namespace

class tst_Rinuncia : public QObject
{
    Q_OBJECT
private slots:
    void EscapeTrascinando_data() { RigheDiGenere(); }
    void EscapeTrascinando();
    void EscapeRidimensionando_data() { RigheRidimensionabili(); }
    void EscapeRidimensionando();
    void EscapeTieneIlVariatoDiPrima();
    void EscapeColFuocoNelloZoom();
    void DopoEscapeIlBottoneTenutoNonMuoveNiente_data() { RigheDiGenere(); }
    void DopoEscapeIlBottoneTenutoNonMuoveNiente();
    void DopoEscapeUnAltroBottoneNonTrascina();
    void DopoEscapeSiTrascinaAncora();
    void DopoEscapeDueVolteNonApreLeProprieta();
    void EscapeLasciaLeModificheDiPrima();
    void EscapeSenzaGestoNonFaNiente();
    void EscapePrimaDelPrimoPasso();
    void AndataERitornoNonSiAnnulla_data()
    {
        RigheConScala({Genere::Campo, Genere::Cornice, Genere::Immagine});
    }
    void AndataERitornoNonSiAnnulla();
    void AndataERitornoDelBordoNonSiAnnulla_data()
    {
        RigheConScala({Genere::Cornice, Genere::Immagine});
    }
    void AndataERitornoDelBordoNonSiAnnulla();
    void ConIlBottoneTenutoNonSiAnnulla();
};

void tst_Rinuncia::EscapeTrascinando()
{
    QFETCH(Genere, genere);
    Rinunciato prova(genere, Maniglia1(), {20, 15});
    prova.VerificaCambiato();
    QVERIFY(prova.banco.GuideInVista());
    PremeEscape(prova.banco);
    prova.VerificaComePrima();
    QVERIFY(!prova.banco.stato.documento.PuoAnnullare());
    QCOMPARE(prova.banco.S(static_cast<int>(Posto(genere)) + 1)->Posto().topLeft(),
             prova.posto.topLeft());
    QVERIFY(!prova.banco.GuideInVista());
    prova.banco.Rilascia(prova.dove);
    prova.VerificaNienteDaAnnullare();
}

void tst_Rinuncia::EscapeRidimensionando()
{
    QFETCH(Genere, genere);
    Rinunciato prova(genere, BordoDestro(), {12, 0});
    prova.VerificaCambiato();
    QVERIFY(Controllo1(prova.banco, genere)->Posto().width() > 41);
    PremeEscape(prova.banco);
    prova.VerificaComePrima();
    prova.banco.Muove(prova.dove + QPointF(5, 0));
    prova.banco.Rilascia(prova.dove + QPointF(5, 0));
    prova.VerificaNienteDaAnnullare();
}

void tst_Rinuncia::EscapeTieneIlVariatoDiPrima()
{
    Banco banco;
    Prepara(banco, Genere::Immagine);
    banco.stato.documento.SegnaVariato();
    Afferra(banco, Maniglia1(), {20, 15});
    PremeEscape(banco);
    QVERIFY(banco.stato.documento.Variato());
}

void tst_Rinuncia::EscapeColFuocoNelloZoom()
{
    Banco banco;
    Prepara(banco, Genere::Cornice);
    const Modello prima = banco.modello;
    Trova<QLineEdit>(*banco.frm, "TextZoom")->setFocus();
    Afferra(banco, Maniglia1(), {20, 15});
    PremeEscape(banco);
    QCOMPARE(banco.modello, prima);
    QCOMPARE(banco.stato.zoom, 1.0);
}

void tst_Rinuncia::DopoEscapeIlBottoneTenutoNonMuoveNiente()
{
    QFETCH(Genere, genere);
    Banco banco;
    Prepara(banco, genere);
    const Modello prima = banco.modello;
    const QPointF dove = Afferra(banco, Maniglia1(), {20, 15});
    PremeEscape(banco);
    // Across the element and its handle, which stand under the pointer again.
    banco.Muove(Maniglia1());
    banco.Muove(dove + QPointF(10, 10));
    banco.Rilascia(dove + QPointF(10, 10));
    QCOMPARE(banco.modello, prima);
    QVERIFY(!banco.stato.documento.Variato());
}

void tst_Rinuncia::DopoEscapeUnAltroBottoneNonTrascina()
{
    Banco banco;
    Prepara(banco, Genere::Cornice);
    const Modello prima = banco.modello;
    Afferra(banco, Maniglia1(), {20, 15});
    PremeEscape(banco);
    // The left button is still held: its gesture was given up, and the middle one has none to
    // begin.
    banco.Muove(Maniglia1());
    banco.Preme(Maniglia1(), Qt::MiddleButton);
    banco.Muove({100, 90});
    QVERIFY(!banco.GuideInVista());
    banco.Rilascia({100, 90}, Qt::MiddleButton);
    banco.Rilascia({100, 90});
    QVERIFY(!banco.GuideInVista());
    QCOMPARE(banco.modello, prima);
    QVERIFY(!banco.stato.documento.Variato());
}

void tst_Rinuncia::DopoEscapeSiTrascinaAncora()
{
    Banco banco;
    Prepara(banco, Genere::Cornice);
    const Modello prima = banco.modello;
    const QPointF dove = Afferra(banco, Maniglia1(), {20, 15});
    PremeEscape(banco);
    banco.Rilascia(dove);
    banco.frm->SelezionaCornice(1);
    banco.Trascina(Maniglia1(), Maniglia1() + QPointF(10, 0));
    QVERIFY(banco.modello.Cornici[1].X > 69);
    QCOMPARE(banco.stato.documento.TestoAnnulla(),
             QStringLiteral("sposta ") + prima.Cornici[1].Nome);
    banco.stato.documento.Annulla();
    QCOMPARE(banco.modello, prima);
}

void tst_Rinuncia::DopoEscapeDueVolteNonApreLeProprieta()
{
    Banco banco;
    Prepara(banco, Genere::Cornice);
    const QPointF dove = Afferra(banco, Maniglia1(), {0.6, 0.6});
    PremeEscape(banco);
    banco.Rilascia(dove);
    // The next press follows at once: to the window system a double click, to the user a new drag.
    banco.Manda(QEvent::MouseButtonDblClick, Maniglia1(), Qt::LeftButton);
    banco.Manda(QEvent::MouseButtonRelease, Maniglia1(), Qt::NoButton);
    QVERIFY(!banco.segnali.contains(QStringLiteral("RichiestaProprieta 1 1")));
}

void tst_Rinuncia::EscapeLasciaLeModificheDiPrima()
{
    Banco banco;
    Prepara(banco, Genere::Immagine);
    banco.Trascina(Maniglia1(), Maniglia1() + QPointF(10, 0));
    const Modello spostato = banco.modello;
    const QString testo = banco.stato.documento.TestoAnnulla();
    Afferra(banco, Maniglia1() + QPointF(10, 0), {20, 15});
    PremeEscape(banco);
    QCOMPARE(banco.modello, spostato);
    QVERIFY(banco.stato.documento.Variato());
    QVERIFY(!testo.isEmpty());
    QCOMPARE(banco.stato.documento.TestoAnnulla(), testo);
}

void tst_Rinuncia::EscapeSenzaGestoNonFaNiente()
{
    Banco banco;
    Prepara(banco, Genere::Cornice);
    banco.Trascina(Maniglia1(), Maniglia1() + QPointF(10, 0));
    const Modello spostato = banco.modello;
    PremeEscape(banco);
    QCOMPARE(banco.modello, spostato);
    QVERIFY(banco.stato.documento.Variato());
    QVERIFY(banco.stato.documento.PuoAnnullare());
    QVERIFY(banco.frm->isVisible());
}

void tst_Rinuncia::EscapePrimaDelPrimoPasso()
{
    Banco banco;
    Prepara(banco, Genere::Cornice);
    const Modello prima = banco.modello;
    banco.Muove(Maniglia1());
    banco.Preme(Maniglia1());
    PremeEscape(banco);
    // Given up before it began: what follows moves nothing either.
    banco.Muove(Maniglia1() + QPointF(20, 0));
    banco.Rilascia(Maniglia1() + QPointF(20, 0));
    QCOMPARE(banco.modello, prima);
    QVERIFY(!banco.stato.documento.Variato());
}

void tst_Rinuncia::AndataERitornoNonSiAnnulla()
{
    QFETCH(Genere, genere);
    QFETCH(double, zoom);
    Banco banco(zoom);
    Prepara(banco, genere, SulPixel);
    const Modello prima = banco.modello;
    const QPointF angolo = SulPixel / zoom;
    const QPointF presa = angolo + QPointF(0.8, 0.8);
    Afferra(banco, presa, {20, 15});
    QVERIFY(!(banco.modello == prima));
    banco.Muove(presa + QPointF(7.3, -11.9));
    // The corner follows the pointer, wherever the handle was taken.
    banco.Muove(angolo);
    banco.Rilascia(angolo);
    QVERIFY2(!banco.stato.documento.PuoAnnullare(), "a drag that came back is a step");
    QCOMPARE(banco.modello, prima);
}

void tst_Rinuncia::AndataERitornoDelBordoNonSiAnnulla()
{
    QFETCH(Genere, genere);
    QFETCH(double, zoom);
    Banco banco(zoom);
    Prepara(banco, genere, SulPixel);
    const Modello prima = banco.modello;
    const QPointF presa = (SulPixel + QPointF(29.6, 10)) / zoom;
    Afferra(banco, presa, {12, 0});
    QVERIFY(!(banco.modello == prima));
    banco.Muove(presa + QPointF(3.7, 0));
    banco.Muove(presa);
    banco.Rilascia(presa);
    QVERIFY2(!banco.stato.documento.PuoAnnullare(), "a resize that came back is a step");
    QCOMPARE(banco.modello, prima);
}

void tst_Rinuncia::ConIlBottoneTenutoNonSiAnnulla()
{
    Banco banco;
    Prepara(banco, Genere::Immagine);
    banco.Trascina(Maniglia1(), Maniglia1() + QPointF(10, 0));
    const QPointF presa = Maniglia1() + QPointF(10, 0);
    const QPointF dove = Afferra(banco, presa, {20, 0});
    const Modello inMano = banco.modello;
    QVERIFY(!banco.stato.documento.PuoAnnullare());
    banco.stato.documento.Annulla();
    QCOMPARE(banco.modello, inMano);
    banco.Rilascia(dove);
    QVERIFY(banco.stato.documento.PuoAnnullare());
}

QTEST_MAIN(tst_Rinuncia)
#include "tst_Rinuncia.moc"
