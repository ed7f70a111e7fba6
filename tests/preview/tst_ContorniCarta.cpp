#include "preview/Banco.h"
#include "preview/ContornoCarta.h"
#include "support/ImmaginiDiProva.h"

#include <QAbstractButton>
#include <QSet>

namespace {

/// An A5 sheet in a printer that leaves 4 mm free on the left and 5 above.
const ContorniCarta::Posti A5{{-4, -5, 210, 297}, {-4, -5, 148, 210}, {0, 0, 140, 200}};
const ContorniCarta::Posti SoloA4{{0, 0, 210, 297}, {}, {}};
const QStringList Nomi{QStringLiteral("ContornoA4"), QStringLiteral("ContornoCarta"),
                       QStringLiteral("ContornoStampabile")};

ContornoCarta *Contorno(const Banco &banco, int k)
{
    return banco.Controllo_<ContornoCarta>(Nomi.at(k));
}

QStringList InVista(const Banco &banco)
{
    QStringList nomi;
    for (int k = 0; k < Nomi.size(); ++k) {
        if (Contorno(banco, k)->isVisible()) {
            nomi.append(Nomi.at(k));
        }
    }
    return nomi;
}

/// Luminance as the contrast of two colours is reckoned with.
double Luminanza(const QColor &colore)
{
    const auto lineare = [](double v) {
        return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineare(colore.redF()) + 0.7152 * lineare(colore.greenF()) +
           0.0722 * lineare(colore.blueF());
}

/// Colours along a vertical line of the sheet, from one height to another.
QSet<QRgb> ColoriLungo(const QImage &foto, double x, double da, double a)
{
    QSet<QRgb> colori;
    for (double y = da; y < a; y += MillimetriPerPixel) {
        colori.insert(ColoreFoto(foto, {x, y}));
    }
    return colori;
}

} // namespace

class tst_ContorniCarta : public QObject
{
    Q_OBJECT
private slots:
    void NessunoFinoAllaRisposta();
    void PostiInMillimetriDiCarta();
    void SegueLoZoom();
    void UgualiUnaVoltaSola_data();
    void UgualiUnaVoltaSola();
    void SiDistinguonoDalBiancoETraLoro();
    void TratteggiSulFoglio();
    void DietroOgniElemento();
    void DavantiAllaScansione();
    void IlMouseNonLiConosce();
    void PulsanteETasto();
};

void tst_ContorniCarta::NessunoFinoAllaRisposta()
{
    const Banco banco;
    QCOMPARE(InVista(banco), QStringList());
}

void tst_ContorniCarta::PostiInMillimetriDiCarta()
{
    Banco banco;
    banco.frm->MostraContorni(A5);
    QCOMPARE(InVista(banco), Nomi);
    QCOMPARE(Contorno(banco, 0)->Posto(), A5.A4);
    QCOMPARE(Contorno(banco, 1)->Posto(), A5.Carta);
    QCOMPARE(Contorno(banco, 2)->Posto(), A5.Stampabile);
}

void tst_ContorniCarta::SegueLoZoom()
{
    Banco banco;
    banco.frm->MostraContorni(A5);
    banco.Zoom(QStringLiteral("2"));
    QCOMPARE(Contorno(banco, 0)->Posto(), QRectF(-2, -2.5, 105, 148.5));
    banco.frm->MostraContorni(SoloA4); // at the zoom of the moment
    QCOMPARE(Contorno(banco, 0)->Posto(), QRectF(0, 0, 105, 148.5));
    QCOMPARE(InVista(banco), QStringList(Nomi.first()));
}

void tst_ContorniCarta::UgualiUnaVoltaSola_data()
{
    QTest::addColumn<QRectF>("carta");
    QTest::addColumn<QRectF>("stampabile");
    QTest::addColumn<QStringList>("inVista");
    const QRectF altra(0, 0, 140, 200);
    QTest::newRow("the printer holds A4, in whole points")
        << QRectF(-4, -5, 209.9, 297.04) << QRectF(0, 0, 200, 287)
        << QStringList({Nomi[0], Nomi[2]});
    QTest::newRow("a printer without margins")
        << altra << QRectF(0, 0, 139.9, 200.1) << QStringList({Nomi[0], Nomi[1]});
    QTest::newRow("A4 elsewhere") << QRectF(-8, -5, 210, 297) << altra << Nomi;
}

void tst_ContorniCarta::UgualiUnaVoltaSola()
{
    QFETCH(QRectF, carta);
    QFETCH(QRectF, stampabile);
    Banco banco;
    banco.frm->MostraContorni({A5.A4, carta, stampabile});
    QTEST(InVista(banco), "inVista");
}

void tst_ContorniCarta::SiDistinguonoDalBiancoETraLoro()
{
    constexpr double Leggibile = 3; // to 1
    const Banco banco;
    QSet<QRgb> colori;
    for (int k = 0; k < Nomi.size(); ++k) {
        const QColor colore = Contorno(banco, k)->Colore();
        QVERIFY((1 + 0.05) / (Luminanza(colore) + 0.05) >= Leggibile);
        colori.insert(colore.rgb());
    }
    QCOMPARE(colori.size(), Nomi.size());
}

void tst_ContorniCarta::TratteggiSulFoglio()
{
    Banco banco;
    banco.frm->MostraContorni(A5);
    const QImage foglio = banco.Fotografia();
    const QRgb bianco = 0xffffff;
    const QList<QRectF> posti{A5.A4, A5.Carta, A5.Stampabile};
    for (int k = 0; k < posti.size(); ++k) {
        const QRgb suo = Contorno(banco, k)->Colore().rgb() & 0xffffff;
        QCOMPARE(ColoriLungo(foglio, posti[k].right(), 20, 60), QSet<QRgb>({bianco, suo}));
    }
    QCOMPARE(ColoriLungo(foglio, 170, 20, 60), QSet<QRgb>({bianco}));
}

void tst_ContorniCarta::DietroOgniElemento()
{
    Banco banco;
    banco.frm->MostraContorni(A5);
    banco.Cornice(200, 100, 6, 30);
    banco.Cornice(196, 90, 20, 60); // pointing sends it behind the other one
    banco.frm->MostraModello();
    banco.Muove({198, 145});
    for (int k = 0; k < Nomi.size(); ++k) {
        QVERIFY(Contorno(banco, k)->zValue() < banco.C2(2)->zValue());
        QVERIFY(Contorno(banco, k)->zValue() < banco.C2(1)->zValue());
    }
    // Its edge crosses a dash or a gap: the edge is seen whole.
    banco.Cornice(150, 200, 56, 30);
    banco.frm->MostraModello();
    QCOMPARE(ColoriLungo(banco.Fotografia(), 206 - MillimetriPerPixel / 2, 201, 229),
             QSet<QRgb>({0x000000}));
}

void tst_ContorniCarta::DavantiAllaScansione()
{
    Banco banco;
    const QString scansione = banco.cartella.filePath(QStringLiteral("scansione.bmp"));
    ImmaginiDiProva::Tinta({20, 20}, 0xff00ffff).save(scansione);
    banco.frm->DipingeSfondo(scansione, QRectF(0, 0, 240, 350));
    banco.frm->MostraContorni(SoloA4);
    QCOMPARE(ColoriLungo(banco.Fotografia(), 210, 20, 60),
             QSet<QRgb>({0x00ffff, Contorno(banco, 0)->Colore().rgb() & 0xffffff}));
}

void tst_ContorniCarta::IlMouseNonLiConosce()
{
    Banco banco;
    banco.frm->MostraContorni(SoloA4);
    banco.Muove({150, 100});
    banco.Clicca({210, 100});
    banco.Clicca({210, 100}, Qt::RightButton);
    banco.CliccaDueVolte({210, 100});
    QCOMPARE(banco.segnali, QStringList());
    QCOMPARE(banco.Vista()->cursor().shape(), Qt::ArrowCursor);
}

void tst_ContorniCarta::PulsanteETasto()
{
    Banco banco;
    banco.frm->MostraContorni(SoloA4);
    auto *pulsante = Trova<QAbstractButton>(*banco.frm, "MostraContorni");
    QVERIFY(pulsante->isChecked());
    // The button tells which outline is which.
    for (const char *parola : {"A4", "grigio", "marrone", "turchese", "Ctrl+Shift+C"}) {
        QVERIFY2(pulsante->toolTip().contains(QLatin1String(parola)), parola);
    }
    QTest::mouseClick(pulsante, Qt::LeftButton);
    QCOMPARE(InVista(banco), QStringList());
    banco.frm->MostraContorni(A5); // the answer of the print system changes nothing about it
    QCOMPARE(InVista(banco), QStringList());
    banco.frm->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(banco.frm.get()));
    QTest::keyClick(banco.frm.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(InVista(banco), Nomi);
    QVERIFY(pulsante->isChecked());
}

QTEST_MAIN(tst_ContorniCarta)
#include "tst_ContorniCarta.moc"
