#include "preview/Banco.h"

#include <QAction>

namespace {

/// A field at (20, 30), and the keys go to the sheet.
class Foglio : public Banco
{
public:
    explicit Foglio(double zoom = 1)
        : Banco(zoom)
    {
        Campo(QStringLiteral("uno"), 20, 30);
        FuocoAlFoglio();
    }

    void ScegliIlCampo() { stato.selezione.ImpostaScelti({{Genere::Campo, 1}}); }
    void Freccia(Qt::Key tasto, int volte, Qt::KeyboardModifiers modi = {}) const
    {
        for (int i = 0; i < volte; ++i) {
            Tasto(tasto, modi);
        }
    }
    void Guida(int x) const
    {
        Tasto(Qt::Key_F8);
        Freccia(Qt::Key_Left, 250, Qt::ShiftModifier);
        Freccia(Qt::Key_Right, x);
        Tasto(Qt::Key_Return);
    }
};

} // namespace

/// Guides by keys alone.
class tst_TastiGuide : public QObject
{
    Q_OBJECT
private slots:
    void AlBordoDellUltimoScelto();
    void NelMezzoDiCioCheSiVede();
    void LeFrecceLaSpostano();
    void IlFoglioLaFerma();
    void SoloLungoLaSuaStrada();
    void InvioLaLascia();
    void CancLaToglieENienteAltro();
    void EscapeLaRimette();
    void PremutoAncoraPrendeLaProssima();
    void UnAltroTastoLaLasciaEFaIlSuo();
    void IlMouseSuiRighelliNonLaToglie();
    void AllAltraFinestraResta();
    void AdAltraCasellaResta_data();
    void AdAltraCasellaResta();
    void MentreIlMouseNeHaUnaTace();
    void SullaCartaConLoZoom();
    void LaStrisciaDiceITasti();
    void IlModelloRestaComEra();
};

void tst_TastiGuide::AlBordoDellUltimoScelto()
{
    Foglio banco;
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 20")));
    banco.Tasto(Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(banco.Guide(), (QStringList{QStringLiteral("X 20"), QStringLiteral("Y 30")}));
}

void tst_TastiGuide::NelMezzoDiCioCheSiVede()
{
    Foglio banco;
    const QRect vista = banco.Vista()->visibleRegion().boundingRect();
    banco.Tasto(Qt::Key_F8);
    const int x = qRound(vista.center().x() * MillimetriPerPixel);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X %1").arg(x)));
}

void tst_TastiGuide::LeFrecceLaSpostano()
{
    Foglio banco;
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    banco.Freccia(Qt::Key_Right, 3);
    banco.Freccia(Qt::Key_Right, 1, Qt::ShiftModifier);
    banco.Freccia(Qt::Key_Left, 1);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 32")));
    banco.Tasto(Qt::Key_F8, Qt::ShiftModifier);
    banco.Freccia(Qt::Key_Down, 2);
    banco.Freccia(Qt::Key_Up, 1, Qt::ShiftModifier);
    QCOMPARE(banco.Guide(), (QStringList{QStringLiteral("X 32"), QStringLiteral("Y 22")}));
}

void tst_TastiGuide::IlFoglioLaFerma()
{
    Foglio banco;
    banco.Tasto(Qt::Key_F8);
    banco.Freccia(Qt::Key_Left, 30, Qt::ShiftModifier);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 0")));
    banco.Freccia(Qt::Key_Right, 30, Qt::ShiftModifier);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 240")));
}

void tst_TastiGuide::SoloLungoLaSuaStrada()
{
    Foglio banco;
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    banco.Freccia(Qt::Key_Down, 3);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 20")));
    QCOMPARE(banco.modello.Campi[1].Y, 30.0);
}

void tst_TastiGuide::InvioLaLascia()
{
    Foglio banco;
    banco.ScegliIlCampo();
    banco.segnali.clear();
    banco.Tasto(Qt::Key_F8);
    banco.Tasto(Qt::Key_Return);
    QVERIFY(banco.segnali.isEmpty());
    banco.Tasto(Qt::Key_Right); // the field's again
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 20")));
    QCOMPARE(banco.modello.Campi[1].X, 21.0);
}

void tst_TastiGuide::CancLaToglieENienteAltro()
{
    Foglio banco;
    // As the window's own command for deleting has it.
    QAction elimina;
    elimina.setShortcut(Qt::Key_Delete);
    int eliminati = 0;
    QObject::connect(&elimina, &QAction::triggered, &elimina, [&] { ++eliminati; });
    banco.frm->addAction(&elimina);
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    banco.Tasto(Qt::Key_Delete);
    QVERIFY(banco.Guide().isEmpty());
    QCOMPARE(eliminati, 0);
    banco.Tasto(Qt::Key_Delete);
    QCOMPARE(eliminati, 1);
}

void tst_TastiGuide::EscapeLaRimette()
{
    Foglio banco;
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    banco.Tasto(Qt::Key_Escape);
    QVERIFY(banco.Guide().isEmpty()); // a new one was nowhere before
    banco.Guida(40);
    banco.Cambia([](Modello &modello) { modello.Campi[1].X = 40; });
    banco.Tasto(Qt::Key_F8); // takes the one that is there
    banco.Freccia(Qt::Key_Right, 5);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 45")));
    banco.Tasto(Qt::Key_Escape);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 40")));
    QCOMPARE(banco.stato.selezione.Scelti().size(), 1); // Escape was the guide's
}

void tst_TastiGuide::PremutoAncoraPrendeLaProssima()
{
    Foglio banco;
    for (const int x : {60, 10, 35}) {
        banco.Guida(x);
    }
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8); // a new one at 20
    banco.Tasto(Qt::Key_F8);
    banco.Freccia(Qt::Key_Right, 1);
    const QStringList dopo35{QStringLiteral("X 10"), QStringLiteral("X 20"), QStringLiteral("X 36"),
                             QStringLiteral("X 60")};
    QCOMPARE(banco.Guide(), dopo35);
    banco.Tasto(Qt::Key_F8);
    banco.Tasto(Qt::Key_F8); // past the last one the first
    banco.Tasto(Qt::Key_Delete);
    QCOMPARE(banco.Guide(), dopo35.mid(1));
}

void tst_TastiGuide::UnAltroTastoLaLasciaEFaIlSuo()
{
    Foglio banco;
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    banco.Freccia(Qt::Key_Right, 5);
    banco.Tasto(Qt::Key_F2);
    QCOMPARE(banco.Volte("RichiestaProprieta 0 1"), 1);
    banco.Tasto(Qt::Key_Right);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 25")));
}

void tst_TastiGuide::IlMouseSuiRighelliNonLaToglie()
{
    Foglio banco;
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    for (const char *nome : {"RighelloX", "RighelloY"}) {
        QTest::mouseMove(Trova<QWidget>(*banco.frm, nome), {5, 5});
        QTest::mouseMove(Trova<QWidget>(*banco.frm, nome), {7, 7});
    }
    banco.Freccia(Qt::Key_Right, 1);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 21")));
}

void tst_TastiGuide::AllAltraFinestraResta()
{
    Foglio banco;
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    QWidget altra;
    altra.show();
    altra.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&altra));
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 20")));
    banco.frm->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(banco.frm.get()));
    banco.Tasto(Qt::Key_Right);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 20")));
    QCOMPARE(banco.modello.Campi[1].X, 21.0);
}

void tst_TastiGuide::AdAltraCasellaResta_data()
{
    QTest::addColumn<bool>("conIlMouse");
    QTest::newRow("by the mouse") << true;
    QTest::newRow("by itself") << false;
}

void tst_TastiGuide::AdAltraCasellaResta()
{
    QFETCH(bool, conIlMouse);
    Foglio banco;
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    banco.Freccia(Qt::Key_Right, 3);
    auto *zoom = Trova<QLineEdit>(*banco.frm, "TextZoom");
    if (conIlMouse) {
        QTest::mouseClick(banco.frm->windowHandle(), Qt::LeftButton, {},
                          zoom->mapTo(banco.frm.get(), zoom->rect().center()));
    } else {
        zoom->setFocus();
    }
    QVERIFY(zoom->hasFocus());
    QVERIFY(!banco.Striscia().contains(QStringLiteral("Invio")));
    // Back on the sheet the keys are the element's again, and Escape puts no guide back.
    Trova<QGraphicsView>(*banco.frm, "P1")->setFocus();
    banco.Tasto(Qt::Key_Right);
    banco.Tasto(Qt::Key_Escape);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 23")));
    QCOMPARE(banco.modello.Campi[1].X, 21.0);
}

void tst_TastiGuide::MentreIlMouseNeHaUnaTace()
{
    Foglio banco;
    banco.Guida(60);
    banco.Muove({60, 100});
    banco.Preme({60, 100});
    banco.Muove({70, 100});
    banco.Tasto(Qt::Key_F8);
    banco.Muove({80, 100});
    banco.Rilascia({80, 100});
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 80")));
}

void tst_TastiGuide::SullaCartaConLoZoom()
{
    Foglio banco(2);
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    banco.Tasto(Qt::Key_Right);
    QCOMPARE(banco.Guide(), QStringList(QStringLiteral("X 10.5"))); // 21 mm of paper
}

void tst_TastiGuide::LaStrisciaDiceITasti()
{
    Foglio banco;
    banco.ScegliIlCampo();
    banco.Tasto(Qt::Key_F8);
    QVERIFY2(banco.Striscia().contains(QStringLiteral("Guida verticale   X 20   mm")),
             qPrintable(banco.Striscia()));
    QVERIFY(banco.Striscia().contains(QStringLiteral("Invio: lascia")));
    banco.Tasto(Qt::Key_Return);
    QVERIFY(!banco.Striscia().contains(QStringLiteral("Invio")));
}

void tst_TastiGuide::IlModelloRestaComEra()
{
    Foglio banco;
    banco.ScegliIlCampo();
    const Modello prima = banco.modello;
    banco.Tasto(Qt::Key_F8);
    banco.Freccia(Qt::Key_Right, 4);
    banco.Tasto(Qt::Key_Return);
    QVERIFY(banco.modello == prima);
    QVERIFY(!banco.stato.documento.Variato());
}

QTEST_MAIN(tst_TastiGuide)
#include "tst_TastiGuide.moc"
