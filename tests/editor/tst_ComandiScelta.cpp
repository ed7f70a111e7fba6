#include "StoriaDiProva.h"

#include "preview/MisuraSuCarta.h"

#include <QLabel>

namespace {

const Chiave Numero{Genere::Campo, 1};
const Chiave Totale{Genere::Campo, 2};
const Chiave Descrizione{Genere::Campo, 3};
const Chiave Riquadro{Genere::Cornice, 1};
const Chiave Scritta{Genere::Cornice, 2};
const Chiave Logo{Genere::Immagine, 1};

/// Three fields, one of them of the rows, two frames and an image.
class Scelta : public StoriaDiProva
{
public:
    const QList<Chiave> &Scelti() { return Archivio.Stato().selezione.Scelti(); }
    void Sceglie(const QList<Chiave> &chiavi) { Archivio.Stato().selezione.ImpostaScelti(chiavi); }
    QToolButton *Pulsante(const char *nome) const { return Trova<QToolButton>(Anteprima(), nome); }
    QString Striscia() const { return Trova<QLabel>(Anteprima(), "Text1")->text(); }
    void Tasti(Qt::Key tasto, Qt::KeyboardModifiers modi = {}) const
    {
        Tasto(Anteprima(), tasto, modi);
    }
};

} // namespace

/// Choosing all, arranging and deleting what is chosen, by the buttons and the keys of the preview.
class tst_ComandiScelta : public QObject
{
    Q_OBJECT
private slots:
    void TuttoDellaPaginaPoiTutto();
    void TuttoSuUnaPaginaSenzaElementi();
    void IPulsantiSeguonoLaScelta();
    void IPulsantiDiconoITasti();
    void UnPulsanteAllineaInUnPasso();
    void ITastiFannoLoStesso();
    void LaLarghezzaDiUnCampoEQuellaStampata();
    void LaStrisciaDiceCheCosaERimasto();
    void EliminaUnoChiede_data();
    void EliminaUnoChiede();
    void EliminaMoltiChiedeIlNumero();
    void ConNoNonEliminaNulla();
    void LoZoomTieneISuoiTasti();
    void MentreSiTrascinaITastiAspettano();
};

void tst_ComandiScelta::TuttoDellaPaginaPoiTutto()
{
    Scelta editor;
    editor.Apre("Cornici ed Etichette");
    editor.Tasti(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(editor.Scelti(), (QList<Chiave>{Riquadro, Scritta}));
    editor.Tasti(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(editor.Scelti().size(), 6);
}

void tst_ComandiScelta::TuttoSuUnaPaginaSenzaElementi()
{
    Scelta editor;
    editor.Apre("Spostamento");
    editor.Tasti(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(editor.Scelti().size(), 6);
}

void tst_ComandiScelta::IPulsantiSeguonoLaScelta()
{
    Scelta editor;
    const auto abilitati = [&] {
        QStringList nomi;
        for (const QToolButton *b : editor.Anteprima().findChildren<QToolButton *>()) {
            const QString nome = b->objectName();
            if (b->isEnabled() && (nome.startsWith(u"Allinea") || nome.startsWith(u"Distr") ||
                                   nome.startsWith(u"Stess"))) {
                nomi.append(nome);
            }
        }
        return nomi;
    };
    QVERIFY(abilitati().isEmpty());
    editor.Sceglie({Numero});
    QVERIFY(abilitati().isEmpty());
    editor.Sceglie({Numero, Totale});
    QCOMPARE(abilitati().size(), 6);
    editor.Sceglie({Numero, Totale, Riquadro});
    QCOMPARE(abilitati().size(), 8);
    editor.Sceglie({Riquadro, Logo, Numero});
    QCOMPARE(abilitati().size(), 11);
    editor.Sceglie({Descrizione, Numero}); // a row field has its height from the rows
    QCOMPARE(abilitati(),
             (QStringList{QStringLiteral("AllineaSinistra"), QStringLiteral("AllineaCentro"),
                          QStringLiteral("AllineaDestra")}));
}

void tst_ComandiScelta::IPulsantiDiconoITasti()
{
    Scelta editor;
    const QToolButton *pulsante = editor.Pulsante("StessaLarghezza");
    QCOMPARE(pulsante->toolTip(), QStringLiteral("Stessa larghezza (Ctrl+Shift+L)"));
    QCOMPARE(pulsante->accessibleName(), QStringLiteral("Stessa larghezza"));
}

void tst_ComandiScelta::UnPulsanteAllineaInUnPasso()
{
    Scelta editor;
    editor.Sceglie({Numero, Scritta, Riquadro});
    editor.Pulsante("AllineaSinistra")->click();
    QCOMPARE(editor.Aperto().Campi[1].X, 30.0);
    QCOMPARE(editor.Aperto().Cornici[2].X, 30.0);
    QCOMPARE(editor.Controllo("C2(2)")->pos().x(), 30.0);
    QCOMPARE(editor.DaAnnullare(), QStringLiteral("allinea a sinistra 3 elementi"));
    editor.Annulla();
    QCOMPARE(editor.Aperto(), editor.Prima);
    QVERIFY(editor.Editor->Variato());
}

void tst_ComandiScelta::ITastiFannoLoStesso()
{
    Scelta editor;
    editor.Sceglie({Logo, Riquadro});
    editor.Tasti(Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(editor.Aperto().Immagini[1].Larghezza, 40.0);
    editor.Tasti(Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(editor.Aperto().Immagini[1].Y, 50.0);
}

void tst_ComandiScelta::LaLarghezzaDiUnCampoEQuellaStampata()
{
    Scelta editor;
    editor.Sceglie({Numero, Riquadro});
    editor.Pulsante("AllineaDestra")->click();
    const double larghezza = MisuraSuCarta(editor.Aperto(), Numero).width();
    QVERIFY(larghezza > 5);
    QVERIFY(std::abs(editor.Aperto().Campi[1].X + larghezza - 70) <= 0.5);
}

void tst_ComandiScelta::LaStrisciaDiceCheCosaERimasto()
{
    Scelta editor;
    editor.Sceglie({Descrizione, Numero, Riquadro});
    editor.Pulsante("AllineaAlto")->click();
    QCOMPARE(editor.Striscia(), QStringLiteral("1 elemento lasciato: i campi di riga stanno "
                                               "all'inizio delle righe"));
}

void tst_ComandiScelta::EliminaUnoChiede_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QString>("domanda");
    QTest::newRow("campo") << Genere::Campo << QStringLiteral("Elimino il campo Doc_Numero");
    QTest::newRow("cornice") << Genere::Cornice << QStringLiteral("Elimino Cornice Riquadro");
    QTest::newRow("immagine") << Genere::Immagine << QStringLiteral("Elimino Immagine logo.bmp");
}

void tst_ComandiScelta::EliminaUnoChiede()
{
    QFETCH(Genere, genere);
    QFETCH(QString, domanda);
    Scelta editor;
    editor.Sceglie({{genere, 1}});
    Robot robot;
    robot.Si();
    editor.Tasti(Qt::Key_Delete);
    QCOMPARE(robot.Testi(), QStringList{domanda});
    QCOMPARE(robot.Predefiniti(), QStringList{QStringLiteral("&No")});
    QVERIFY(!editor.Aperto().Presente(genere, 1));
    QVERIFY(editor.Scelti().isEmpty());
}

void tst_ComandiScelta::EliminaMoltiChiedeIlNumero()
{
    Scelta editor;
    editor.Sceglie({Numero, Riquadro, Logo});
    Robot robot;
    robot.Si();
    editor.Tasti(Qt::Key_Delete);
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("Elimino 3 elementi")});
    QCOMPARE(Voci(*editor.Editor, "ComboCampi").at(1), QStringLiteral(" ELIMINATO: Doc_Numero"));
    QVERIFY(!editor.Controllo("C3(1)")->isVisible());
    editor.Annulla();
    QCOMPARE(editor.Aperto(), editor.Prima);
    QCOMPARE(editor.AnnullaTutto(), 0);
}

void tst_ComandiScelta::ConNoNonEliminaNulla()
{
    Scelta editor;
    editor.Sceglie({Numero, Riquadro});
    Robot robot;
    robot.No();
    editor.Tasti(Qt::Key_Delete);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(editor.Aperto(), editor.Prima);
    QVERIFY(!editor.Editor->Variato());
    QCOMPARE(editor.Scelti().size(), 2);
}

void tst_ComandiScelta::LoZoomTieneISuoiTasti()
{
    Scelta editor;
    editor.Sceglie({Numero});
    auto *TextZoom = Trova<QLineEdit>(editor.Anteprima(), "TextZoom");
    editor.Anteprima().activateWindow();
    TextZoom->setFocus();
    editor.Tasti(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(TextZoom->selectedText(), QStringLiteral("1"));
    QCOMPARE(editor.Scelti(), (QList<Chiave>{Numero}));
    editor.Tasti(Qt::Key_Delete);
    QCOMPARE(TextZoom->text(), QString());
    QCOMPARE(editor.Aperto(), editor.Prima);
}

void tst_ComandiScelta::MentreSiTrascinaITastiAspettano()
{
    Scelta editor;
    editor.Sceglie({Numero, Riquadro});
    editor.Muove({22, 32});
    editor.Afferra({20.5, 30.5}, {60, 60});
    Robot robot;
    editor.Tasti(Qt::Key_Delete);
    editor.Tasti(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(robot.Testi().isEmpty());
    editor.Rilascia({60, 60});
    QVERIFY(editor.Aperto().Presente(Genere::Campo, 1));
    QCOMPARE(editor.AnnullaTutto(), 1);
}

QTEST_MAIN(tst_ComandiScelta)
#include "tst_ComandiScelta.moc"
