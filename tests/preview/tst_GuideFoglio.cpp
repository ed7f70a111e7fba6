#include "preview/Banco.h"
#include "preview/GuideFoglio.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace {

/// Works a ruler with the mouse. Points are mm of screen on the sheet, wherever the pointer is.
class Mano
{
public:
    Mano(Banco &banco, const char *righello)
        : banco_(banco)
        , righello_(Trova<QWidget>(*banco.frm, righello))
    {
    }
    void Preme(QPointF punto) { QTest::mousePress(righello_, Qt::LeftButton, {}, Locale(punto)); }
    void Muove(QPointF punto, Qt::MouseButtons tenuti = Qt::LeftButton)
    {
        const QPoint locale = Locale(punto);
        QMouseEvent evento(QEvent::MouseMove, locale, righello_->mapToGlobal(locale), Qt::NoButton,
                           tenuti, Qt::NoModifier);
        QApplication::sendEvent(righello_, &evento);
    }
    void Rilascia(QPointF punto)
    {
        QTest::mouseRelease(righello_, Qt::LeftButton, {}, Locale(punto));
    }
    void Trascina(QPointF da, QPointF a)
    {
        Preme(da);
        Muove(da + (a - da) / 2);
        Muove(a);
        Rilascia(a);
    }
    Qt::CursorShape Puntatore() const { return righello_->cursor().shape(); }
    /// The middle of the ruler, at a place along the sheet.
    QPointF Sul(double x, double y) const
    {
        return righello_->width() > righello_->height() ? QPointF(x, -3) : QPointF(-3, y);
    }

private:
    QPoint Locale(QPointF punto) const
    {
        return righello_->mapFromGlobal(banco_.Vista()->mapToGlobal(banco_.Pixel(punto)));
    }

    Banco &banco_;
    QWidget *righello_;
};

void TrascinaDaiRighelli(Banco &banco)
{
    Mano verticale(banco, "RighelloY");
    verticale.Trascina(verticale.Sul(0, 30), {40, 30});
    Mano orizzontale(banco, "RighelloX");
    orizzontale.Trascina(orizzontale.Sul(50, 0), {50, 60});
}

const QStringList DueGuide{QStringLiteral("X 40"), QStringLiteral("Y 60")};

} // namespace

class tst_GuideFoglio : public QObject
{
    Q_OBJECT
private slots:
    void DaiRighelliSulFoglio();
    void SuMillimetriInteriDiCarta();
    void RestanoSulLoroMillimetroAlloZoom();
    void PremutoSoloIlRighello();
    void UnaSolaPerPosto();
    void ScorrendoContaCioCheSiVede();
    void TrascinataSulFoglio();
    void RiportataSulRighelloVieneTolta_data();
    void RiportataSulRighelloVieneTolta();
    void OltreLaFineDellaCartaVieneTolta();
    void PresaPerIlSegno();
    void SegniSuiRighelli();
    void EscapeLaRimette_data();
    void EscapeLaRimette();
    void PersoIlMouseTornaDovEra();
    void LElementoHaLaPrecedenza();
    void SulVuotoIlFoglioFaIlSuo();
    void PuntatoreSullaGuida();
    void TogliTutte();
    void NonSonoDelModello();
};

void tst_GuideFoglio::DaiRighelliSulFoglio()
{
    Banco banco;
    Mano mano(banco, "RighelloY");
    mano.Preme(mano.Sul(0, 30));
    QCOMPARE(banco.Guide(), QStringList());
    mano.Muove({40, 30});
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 40")));
    QCOMPARE(banco.Striscia(), QStringLiteral("Guida verticale   X 40   mm"));
    mano.Rilascia({40, 30});
    Mano sopra(banco, "RighelloX");
    sopra.Trascina(sopra.Sul(50, 0), {50, 60});
    QCOMPARE(banco.Guide(), DueGuide);
    QCOMPARE(banco.Striscia(), QStringLiteral("Guida orizzontale   Y 60   mm"));
    // From edge to edge of the sheet.
    QCOMPARE(banco.Controllo_<LineaGuida>(QStringLiteral("Guida(1)"))->Posto(),
             QRectF(40, 0, 0, 350));
    QCOMPARE(banco.Controllo_<LineaGuida>(QStringLiteral("Guida(2)"))->Posto(),
             QRectF(0, 60, 240, 0));
    QCOMPARE(ColoreFoto(banco.Fotografia(), {40, 100}), GuideFoglio::Colore.rgb() & 0xffffff);
}

void tst_GuideFoglio::SuMillimetriInteriDiCarta()
{
    Banco banco;
    banco.Zoom(QStringLiteral("2.5"));
    Mano mano(banco, "RighelloY");
    mano.Trascina(mano.Sul(0, 30), {40.3, 30});
    const double carta = qRound(banco.Centro({40.3, 30}).x() * 2.5);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X %1").arg(carta / 2.5)));
}

void tst_GuideFoglio::RestanoSulLoroMillimetroAlloZoom()
{
    Banco banco;
    TrascinaDaiRighelli(banco);
    banco.Zoom(QStringLiteral("2"));
    QCOMPARE(banco.Guide(), QStringList({QStringLiteral("X 20"), QStringLiteral("Y 30")}));
    banco.Zoom(QStringLiteral("1"));
    QCOMPARE(banco.Guide(), DueGuide);
}

void tst_GuideFoglio::PremutoSoloIlRighello()
{
    Banco banco;
    banco.Cornice(100, 100, 40, 20);
    banco.Clicca({120, 110});
    const QString detto = banco.Striscia();
    Mano mano(banco, "RighelloX");
    mano.Preme(mano.Sul(50, 0));
    mano.Rilascia(mano.Sul(50, 0));
    QCOMPARE(banco.Guide(), QStringList());
    QCOMPARE(banco.Striscia(), detto);
}

void tst_GuideFoglio::UnaSolaPerPosto()
{
    Banco banco;
    Mano mano(banco, "RighelloY");
    mano.Trascina(mano.Sul(0, 30), {40, 30});
    mano.Trascina(mano.Sul(0, 30), {40, 80});
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 40")));
}

void tst_GuideFoglio::ScorrendoContaCioCheSiVede()
{
    // The ruler covers what has been scrolled away.
    Banco banco;
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(100);
    Mano mano(banco, "RighelloY");
    mano.Preme({97, 30});
    mano.Muove({150, 30});
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 150")));
    mano.Muove({98, 30});
    QCOMPARE(banco.Guide(), QStringList());
    mano.Muove({120, 30});
    mano.Rilascia({120, 30});
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 120")));
}

void tst_GuideFoglio::TrascinataSulFoglio()
{
    Banco banco;
    TrascinaDaiRighelli(banco);
    banco.Trascina({40, 100}, {90, 130});
    QCOMPARE(banco.Guide(), QStringList({QStringLiteral("X 90"), QStringLiteral("Y 60")}));
    banco.Trascina({10, 60}, {30, 25});
    QCOMPARE(banco.Guide(), QStringList({QStringLiteral("X 90"), QStringLiteral("Y 25")}));
    // Four pixels off it is the bare sheet.
    banco.Trascina({90 + 4.4 * MillimetriPerPixel, 100}, {120, 100});
    QCOMPARE(banco.Guide(), QStringList({QStringLiteral("X 90"), QStringLiteral("Y 25")}));
}

void tst_GuideFoglio::RiportataSulRighelloVieneTolta_data()
{
    QTest::addColumn<QPointF>("da");
    QTest::addColumn<QPointF>("a");
    QTest::addColumn<QString>("resta");
    QTest::newRow("down the sheet") << QPointF(40, 100) << QPointF(-3, 100) << DueGuide[1];
    QTest::newRow("across it") << QPointF(10, 60) << QPointF(10, -3) << DueGuide[0];
}

void tst_GuideFoglio::RiportataSulRighelloVieneTolta()
{
    QFETCH(QPointF, da);
    QFETCH(QPointF, a);
    QFETCH(QString, resta);
    Banco banco;
    TrascinaDaiRighelli(banco);
    banco.Muove(da);
    banco.Preme(da);
    banco.Muove((da + a) / 2);
    banco.Muove(a);
    QVERIFY(banco.Striscia().contains(QStringLiteral("al rilascio viene tolta")));
    banco.Rilascia(a);
    QCOMPARE(banco.Guide(), QStringList(resta));
    QCOMPARE(banco.Striscia(), QString());
}

void tst_GuideFoglio::OltreLaFineDellaCartaVieneTolta()
{
    Banco banco;
    banco.Zoom(QStringLiteral("2")); // 240 mm of paper end at 120 of screen
    Mano mano(banco, "RighelloY");
    mano.Trascina(mano.Sul(0, 30), {120, 30});
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 120")));
    banco.Trascina({120, 30}, {122, 30});
    QCOMPARE(banco.Guide(), QStringList());
}

void tst_GuideFoglio::PresaPerIlSegno()
{
    Banco banco;
    TrascinaDaiRighelli(banco);
    Mano sopra(banco, "RighelloX");
    sopra.Muove(sopra.Sul(20, 0), Qt::NoButton);
    QCOMPARE(sopra.Puntatore(), Qt::SplitVCursor); // a new one across the sheet
    sopra.Muove(sopra.Sul(40, 0), Qt::NoButton);
    QCOMPARE(sopra.Puntatore(), Qt::SplitHCursor); // the mark of the one down the sheet
    sopra.Trascina(sopra.Sul(40, 0), sopra.Sul(70, 0));
    QCOMPARE(banco.Guide(), QStringList({QStringLiteral("X 70"), QStringLiteral("Y 60")}));
    // Pressed and released where it is, it stays there to the millimetre.
    sopra.Preme(sopra.Sul(70.7, 0));
    sopra.Muove(sopra.Sul(70.7, 0));
    sopra.Rilascia(sopra.Sul(70.7, 0));
    QCOMPARE(banco.Guide(), QStringList({QStringLiteral("X 70"), QStringLiteral("Y 60")}));
    sopra.Trascina(sopra.Sul(70, 0), sopra.Sul(-3, 0)); // off the end
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("Y 60")));
}

void tst_GuideFoglio::SegniSuiRighelli()
{
    Banco banco;
    const auto segnato = [&](const char *righello, double lungo) {
        auto *quale = Trova<QWidget>(*banco.frm, righello);
        const QImage foto = quale->grab().toImage();
        const double traverso = 5; // mm: inside a mark
        const QPointF punto =
            quale->width() > quale->height() ? QPointF(lungo, traverso) : QPointF(traverso, lungo);
        return ColoreFoto(foto, punto) == (GuideFoglio::Colore.rgb() & 0xffffff);
    };
    QVERIFY(!segnato("RighelloX", 40) && !segnato("RighelloY", 60));
    TrascinaDaiRighelli(banco);
    QVERIFY(segnato("RighelloX", 40) && segnato("RighelloY", 60));
    QVERIFY(!segnato("RighelloX", 60) && !segnato("RighelloY", 40));
    banco.Zoom(QStringLiteral("2"));
    QVERIFY(segnato("RighelloX", 20) && !segnato("RighelloX", 40));
}

void tst_GuideFoglio::EscapeLaRimette_data()
{
    QTest::addColumn<bool>("dalFoglio");
    QTest::newRow("on the sheet") << true;
    QTest::newRow("by its mark") << false;
}

void tst_GuideFoglio::EscapeLaRimette()
{
    QFETCH(bool, dalFoglio);
    Banco banco;
    TrascinaDaiRighelli(banco);
    Mano sopra(banco, "RighelloX");
    if (dalFoglio) {
        banco.Muove({40, 100});
        banco.Preme({40, 100});
        banco.Muove({90, 100});
    } else {
        sopra.Preme(sopra.Sul(40, 0));
        sopra.Muove(sopra.Sul(90, 0));
    }
    QVERIFY(banco.Guide().contains(QStringLiteral("X 90")));
    QTest::keyClick(banco.frm.get(), Qt::Key_Escape);
    QCOMPARE(banco.Guide(), DueGuide);
    if (dalFoglio) {
        banco.Muove({120, 100});
        banco.Rilascia({120, 100});
    } else {
        sopra.Muove(sopra.Sul(120, 0));
        sopra.Rilascia(sopra.Sul(120, 0));
    }
    QCOMPARE(banco.Guide(), DueGuide);
}

void tst_GuideFoglio::PersoIlMouseTornaDovEra()
{
    Banco banco;
    TrascinaDaiRighelli(banco);
    Mano mano(banco, "RighelloY");
    {
        mano.Preme(mano.Sul(0, 20));
        mano.Muove({110, 20});
        QMessageBox domanda(banco.frm.get()); // takes the mouse with all of the window
        domanda.setWindowModality(Qt::WindowModal);
        domanda.show();
        QTRY_COMPARE(banco.Guide(), DueGuide);
    }
    banco.Muove({40, 100});
    banco.Preme({40, 100});
    banco.Muove({90, 100});
    {
        QMessageBox domanda(banco.frm.get());
        domanda.setWindowModality(Qt::WindowModal);
        domanda.show();
        QTRY_COMPARE(banco.Guide(), DueGuide);
    }
    // The release went to another window: the next move tells.
    mano.Preme(mano.Sul(0, 20));
    mano.Muove({110, 20});
    mano.Muove({115, 20}, Qt::NoButton);
    QCOMPARE(banco.Guide(), DueGuide);
}

void tst_GuideFoglio::LElementoHaLaPrecedenza()
{
    Banco banco;
    banco.Cornice(30, 90, 40, 30);
    banco.frm->MostraModello();
    TrascinaDaiRighelli(banco);
    banco.Muove({40, 100});
    QCOMPARE(banco.Vista()->cursor().shape(), Qt::ArrowCursor);
    banco.Clicca({40, 100});
    QCOMPARE(banco.InMano(2), 1);
    banco.Trascina({40, 100}, {60, 100});
    QCOMPARE(banco.Guide(), DueGuide);
    // Its handle and its edge too, right on the guide.
    banco.Trascina(banco.S(2)->Posto().center(), {50, 150});
    QCOMPARE(banco.Guide(), DueGuide);
    QVERIFY(banco.modello.Cornici[1].Y > 100);
}

void tst_GuideFoglio::SulVuotoIlFoglioFaIlSuo()
{
    // Fields go dark and the boxes follow the held button, whatever lies there of ours.
    Banco banco;
    const int campo = banco.Campo(QStringLiteral("uno"), 100, 100);
    TrascinaDaiRighelli(banco);
    banco.Muove({102, 102});
    QCOMPARE(banco.InMano(1), campo);
    banco.Muove({40, 100});
    QCOMPARE(banco.InMano(1), 0);
    banco.Preme({40, 100});
    banco.Muove({55, 100});
    QCOMPARE(Trova<QLineEdit>(*banco.frm, "PX")->text().toFloat(),
             static_cast<float>(banco.Centro({55, 100}).x()));
    banco.Rilascia({55, 100});
}

void tst_GuideFoglio::PuntatoreSullaGuida()
{
    Banco banco;
    TrascinaDaiRighelli(banco);
    const auto puntatore = [&] { return banco.Vista()->cursor().shape(); };
    banco.Muove({40, 100});
    QCOMPARE(puntatore(), Qt::SplitHCursor);
    banco.Muove({20, 60});
    QCOMPARE(puntatore(), Qt::SplitVCursor);
    banco.Muove({20, 80});
    QCOMPARE(puntatore(), Qt::ArrowCursor);
    // A button held since elsewhere takes no guide up.
    banco.Preme({20, 80});
    banco.Muove({40, 80});
    QCOMPARE(puntatore(), Qt::ArrowCursor);
    banco.Rilascia({40, 80});
    QCOMPARE(banco.Guide(), DueGuide);
}

void tst_GuideFoglio::TogliTutte()
{
    Banco banco;
    TrascinaDaiRighelli(banco);
    Trova<QAbstractButton>(*banco.frm, "TogliGuide")->click();
    QCOMPARE(banco.Guide(), QStringList());
    TrascinaDaiRighelli(banco);
    banco.frm->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(banco.frm.get()));
    QTest::keyClick(banco.frm.get(), Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(banco.Guide(), QStringList());
}

void tst_GuideFoglio::NonSonoDelModello()
{
    Banco banco;
    TrascinaDaiRighelli(banco);
    banco.Trascina({40, 100}, {90, 130});
    QCOMPARE(banco.segnali, QStringList());
    QVERIFY(!banco.stato.documento.Variato());
    QVERIFY(!banco.stato.documento.PuoAnnullare());
    Frm1 riaperta(banco.stato);
    QVERIFY(ElementoAnteprima(riaperta, QStringLiteral("Guida(1)")) == nullptr);
}

QTEST_MAIN(tst_GuideFoglio)
#include "tst_GuideFoglio.moc"
