#include "StoriaDiProva.h"
#include "documento/Passo.h"
#include "editor/ElencoElementi.h"
#include "editor/RigheElenco.h"
#include "support/DocumentoDiProva.h"

#include <QComboBox>
#include <QLabel>
#include <QTableView>

Q_DECLARE_METATYPE(Genere)

namespace {

constexpr Chiave Numero{Genere::Campo, 1};
constexpr Chiave Totale{Genere::Campo, 2};
constexpr Chiave Riquadro{Genere::Cornice, 1};
constexpr Chiave Scritta{Genere::Cornice, 2};
constexpr Chiave Logo{Genere::Immagine, 1};

/// The editor with its list open, worked with mouse and keys.
class ElencoDiProva : public StoriaDiProva
{
public:
    ElencoDiProva()
    {
        Tasto(Anteprima(), Qt::Key_F4);
        if (!QTest::qWaitForWindowActive(&Elenco())) {
            qFatal("the list does not open");
        }
    }

    ElencoElementi &Elenco() const { return *Trova<ElencoElementi>(Anteprima(), "ElencoElementi"); }
    QTableView &Vista() const { return *Trova<QTableView>(Elenco(), "Elementi"); }
    Selezione &Scelte() { return Archivio.Stato().selezione; }

    QStringList Nomi() const
    {
        QStringList nomi;
        for (int riga = 0; riga < Vista().model()->rowCount(); ++riga) {
            nomi.append(Casella(riga, RigheElenco::ColonnaNome).data().toString());
        }
        return nomi;
    }
    QModelIndex Casella(int riga, int colonna) const
    {
        return Vista().model()->index(riga, colonna);
    }
    int Riga(Chiave chiave) const
    {
        const Elemento &elemento = Aperto().Di(chiave);
        return static_cast<int>(Nomi().indexOf(elemento.Nome));
    }
    QPoint Punto(int riga, int colonna = RigheElenco::ColonnaNome) const
    {
        return Vista().visualRect(Casella(riga, colonna)).center();
    }
    void Clicca(Chiave chiave, Qt::KeyboardModifiers modi = {}) const
    {
        QTest::mouseClick(Vista().viewport(), Qt::LeftButton, modi, Punto(Riga(chiave)));
    }
    void DueClic(Chiave chiave, int colonna = RigheElenco::ColonnaNome) const
    {
        const QPoint punto = Punto(Riga(chiave), colonna);
        QTest::mouseClick(Vista().viewport(), Qt::LeftButton, {}, punto);
        QTest::mouseDClick(Vista().viewport(), Qt::LeftButton, {}, punto);
    }
    QStringList Selezionati() const
    {
        QStringList nomi;
        for (const QModelIndex &riga : Vista().selectionModel()->selectedRows()) {
            nomi.append(riga.siblingAtColumn(RigheElenco::ColonnaNome).data().toString());
        }
        nomi.sort();
        return nomi;
    }
    void Filtra(const QString &testo) const { Controlli::Digita(Elenco(), "Filtro", testo); }
    void Premi(Qt::Key tasto, Qt::KeyboardModifiers modi = {}) const
    {
        Tasto(Elenco(), tasto, modi);
    }
    /// Opens the box of a place, types into it and presses a key.
    void Scrive(Chiave chiave, int colonna, const char *testo, Qt::Key tasto) const
    {
        Vista().setCurrentIndex(Casella(Riga(chiave), colonna));
        Vista().setFocus();
        Premi(Qt::Key_F2);
        auto *casella = Vista().viewport()->findChild<QLineEdit *>();
        if (casella == nullptr) {
            qFatal("the place cannot be edited");
        }
        casella->selectAll();
        QTest::keyClicks(casella, QString::fromLatin1(testo));
        QTest::keyClick(casella, tasto);
        QCoreApplication::processEvents();
    }
    QString Striscia() const { return Trova<QLabel>(Anteprima(), "Text1")->text(); }
    int Voce(const char *combo) const { return Trova<QComboBox>(*Editor, combo)->currentIndex(); }
};

} // namespace

/// The list of the elements, as the user works it.
class tst_ElencoElementi : public QObject
{
    Q_OBJECT
private slots:
    void NasceAlPrimoUso();
    void F4DaTutteLeFinestre();
    void StaAccantoAlFoglio();
    void IlPulsanteSullaStriscia();
    void UnClicScegle_data();
    void UnClicScegle();
    void LeFrecceScelgono();
    void UnClicRimetteLaManiglia();
    void ScorreFinoAllElemento();
    void PassandoSulFoglioLElencoStaFermo();
    void LeRigheSceltiPerDueVersi();
    void FiltrandoIlSeguitoResta();
    void OrdinaPerNumero();
    void RaggiungeChiECoperto();
    void InvioOUnDoppioClicApronoIlDialogo_data();
    void InvioOUnDoppioClicApronoIlDialogo();
    void UnEliminatoNonSiApreNeSiSceglie();
    void ScriveUnPosto();
    void UnaParolaNonEUnPosto();
    void SegueIlTrascinamento();
    void AnnullaDallElenco();
    void ConUnDialogoApertoAspetta();
    void EscapeChiude();
    void SiChiudeConLEditor();
};

void tst_ElencoElementi::NasceAlPrimoUso()
{
    const StoriaDiProva storia;
    QVERIFY(storia.Anteprima().findChild<ElencoElementi *>() == nullptr);
}

void tst_ElencoElementi::F4DaTutteLeFinestre()
{
    const ElencoDiProva prova;
    QVERIFY(prova.Elenco().isVisible());
    QVERIFY(prova.Vista().hasFocus());
    prova.Premi(Qt::Key_F4);
    QTRY_VERIFY(!prova.Elenco().isVisible());
    QTRY_VERIFY(QApplication::activeWindow() == &prova.Anteprima());
    prova.Tasto(*prova.Editor, Qt::Key_F4);
    QTRY_VERIFY(QApplication::activeWindow() == &prova.Elenco());
    prova.Anteprima().activateWindow();
    QTRY_VERIFY(QApplication::activeWindow() == &prova.Anteprima());
    prova.Tasto(prova.Anteprima(), Qt::Key_F4); // open but behind: it comes to the front
    QTRY_VERIFY(QApplication::activeWindow() == &prova.Elenco());
    QVERIFY(prova.Elenco().isVisible());
}

void tst_ElencoElementi::StaAccantoAlFoglio()
{
    const ElencoDiProva prova;
    const QRect accanto = prova.Anteprima().AccantoAlFoglio();
    const QRect elenco = prova.Elenco().frameGeometry();
    QCOMPARE(elenco.right(), accanto.right());
    QCOMPARE(elenco.top(), accanto.top());
    // On a screen as wide as the sheet it covers only so much of it.
    QCOMPARE(elenco.width(), qMax(accanto.width(), 360));
    QVERIFY(
        prova.Anteprima().screen()->availableGeometry().contains(prova.Elenco().frameGeometry()));
}

void tst_ElencoElementi::IlPulsanteSullaStriscia()
{
    const StoriaDiProva storia;
    auto *pulsante = Trova<QToolButton>(storia.Anteprima(), "MostraElenco");
    QCOMPARE(pulsante->toolTip(), QStringLiteral("Elenco degli elementi (F4)"));
    pulsante->click();
    QVERIFY(Trova<ElencoElementi>(storia.Anteprima(), "ElencoElementi")->isVisible());
}

void tst_ElencoElementi::UnClicScegle_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QString>("pagina");
    QTest::addColumn<QString>("combo");
    QTest::addColumn<QString>("maniglia");
    QTest::newRow("campo") << Genere::Campo << "Campi"
                           << "ComboCampi"
                           << "S1";
    QTest::newRow("cornice") << Genere::Cornice << "Cornici ed Etichette"
                             << "ComboCornici"
                             << "S2";
    QTest::newRow("immagine") << Genere::Immagine << "Immagini"
                              << "ComboImmagini"
                              << "S3";
}

void tst_ElencoElementi::UnClicScegle()
{
    QFETCH(Genere, genere);
    ElencoDiProva prova;
    prova.Apre("Spostamento");
    const Chiave chiave{genere, 1};
    prova.Clicca(chiave);
    QTEST(prova.Pagina(), "pagina");
    QFETCH(QString, combo);
    QCOMPARE(prova.Voce(qPrintable(combo)), 1);
    QFETCH(QString, maniglia);
    QVERIFY(prova.Controllo(qPrintable(maniglia))->isVisible());
    QCOMPARE(prova.Scelte().Attivo(genere), 1);
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>{chiave});
    QVERIFY2(prova.Striscia().contains(prova.Aperto().Di(chiave).Nome),
             qPrintable(prova.Striscia()));
    QVERIFY(QApplication::activeWindow() == &prova.Elenco());
    QCOMPARE(prova.Aperto(), prova.Prima);
    QVERIFY(!prova.Aperta().Variato());
}

void tst_ElencoElementi::LeFrecceScelgono()
{
    ElencoDiProva prova;
    prova.Clicca(Numero);
    prova.Premi(Qt::Key_Down);
    QCOMPARE(prova.Scelte().Attivo(Genere::Campo), 2);
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>{Totale});
    prova.Premi(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(prova.Scelte().Scelti(), (QList<Chiave>{Totale, {Genere::Campo, 3}}));
    QCOMPARE(prova.Scelte().Attivo(Genere::Campo), 3);
    QVERIFY(prova.Vista().hasFocus());
}

void tst_ElencoElementi::UnClicRimetteLaManiglia()
{
    ElencoDiProva prova;
    prova.Clicca(Numero);
    prova.Muove({180, 100});
    QVERIFY(!prova.Controllo("S1")->isVisible());
    prova.Clicca(Numero);
    QVERIFY(prova.Controllo("S1")->isVisible());
}

void tst_ElencoElementi::ScorreFinoAllElemento()
{
    ElencoDiProva prova;
    Cambia(prova.Archivio.Stato(), [](Modello &modello) { modello.Cornici[1].Y = 320; });
    prova.Anteprima().MostraModello();
    QCOMPARE(prova.Anteprima().ScorrimentoY(), 0);
    prova.Clicca(Riquadro);
    QVERIFY(prova.Anteprima().ScorrimentoY() > 0);
}

void tst_ElencoElementi::PassandoSulFoglioLElencoStaFermo()
{
    ElencoDiProva prova;
    prova.Clicca(Scritta);
    prova.Muove({22, 32});
    QCOMPARE(prova.Scelte().Attivo(Genere::Campo), 1);
    QCOMPARE(prova.Selezionati(), QStringList{QStringLiteral("Scritta")});
    QCOMPARE(prova.Vista().currentIndex().row(), prova.Riga(Scritta));
}

void tst_ElencoElementi::LeRigheSceltiPerDueVersi()
{
    ElencoDiProva prova;
    prova.Clicca(Scritta);
    prova.Clicca(Numero, Qt::ControlModifier);
    QCOMPARE(prova.Scelte().Scelti(), (QList<Chiave>{Scritta, Numero}));
    prova.Clicca(Scritta, Qt::ControlModifier);
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>{Numero});
    prova.Scelte().ImpostaScelti({Logo, Riquadro});
    QCOMPARE(prova.Selezionati(),
             (QStringList{QStringLiteral("Riquadro"), QStringLiteral("logo.bmp")}));
    QCOMPARE(prova.Vista().currentIndex().row(), prova.Riga(Riquadro));
    QCOMPARE(prova.Scelte().Scelti(), (QList<Chiave>{Logo, Riquadro}));
    prova.Scelte().SvuotaScelti();
    QCOMPARE(prova.Selezionati(), QStringList());
}

void tst_ElencoElementi::FiltrandoIlSeguitoResta()
{
    ElencoDiProva prova;
    prova.Clicca(Scritta);
    prova.Clicca(Logo, Qt::ControlModifier);
    const QString paginaPrima = prova.Pagina();
    prova.Filtra(QStringLiteral("SCRI"));
    // In any column, whatever the case.
    QCOMPARE(prova.Nomi(),
             (QStringList{QStringLiteral("R_Descrizione"), QStringLiteral("Scritta")}));
    QCOMPARE(prova.Selezionati(), QStringList(QStringLiteral("Scritta")));
    QCOMPARE(prova.Scelte().Scelti(), (QList<Chiave>{Scritta, Logo}));
    prova.Filtra(QStringLiteral("xyz"));
    QCOMPARE(prova.Nomi(), QStringList());
    QCOMPARE(prova.Scelte().Scelti(), (QList<Chiave>{Scritta, Logo}));
    prova.Filtra(QString());
    QCOMPARE(prova.Nomi().size(), 6);
    QCOMPARE(prova.Selezionati(),
             (QStringList{QStringLiteral("Scritta"), QStringLiteral("logo.bmp")}));
    QCOMPARE(prova.Scelte().Scelti(), (QList<Chiave>{Scritta, Logo}));
    QCOMPARE(prova.Pagina(), paginaPrima);
}

void tst_ElencoElementi::OrdinaPerNumero()
{
    ElencoDiProva prova;
    QCOMPARE(prova.Nomi().constFirst(), QStringLiteral("Doc_Numero"));
    prova.Vista().sortByColumn(RigheElenco::ColonnaX, Qt::AscendingOrder);
    QCOMPARE(prova.Nomi(), (QStringList{QStringLiteral("Doc_Numero"), QStringLiteral("Riquadro"),
                                        QStringLiteral("R_Descrizione"), QStringLiteral("Totale"),
                                        QStringLiteral("logo.bmp"), QStringLiteral("Scritta")}));
    prova.Vista().sortByColumn(RigheElenco::ColonnaNome, Qt::DescendingOrder);
    QCOMPARE(prova.Nomi().constFirst(), QStringLiteral("Totale"));
    prova.Vista().sortByColumn(-1, Qt::AscendingOrder);
    QCOMPARE(prova.Nomi().constFirst(), QStringLiteral("Doc_Numero"));
}

void tst_ElencoElementi::RaggiungeChiECoperto()
{
    ElencoDiProva prova;
    Modifica(prova.Archivio.Stato(), [](Modello &modello) {
        modello.Cornici[1].Larghezza = 0;
        modello.Cornici[1].Altezza = 0;
        modello.Cornici[1].X = 100;
        modello.Cornici[1].Y = 60; // below the image
    });
    prova.Clicca(Riquadro);
    QCOMPARE(prova.Scelte().Attivo(Genere::Cornice), 1);
    QVERIFY(prova.Controllo("S2")->isVisible());
}

void tst_ElencoElementi::InvioOUnDoppioClicApronoIlDialogo_data()
{
    QTest::addColumn<bool>("conInvio");
    QTest::addColumn<int>("colonna");
    QTest::newRow("invio") << true << int(RigheElenco::ColonnaNome);
    QTest::newRow("invio su un posto") << true << int(RigheElenco::ColonnaX);
    QTest::newRow("doppio clic") << false << int(RigheElenco::ColonnaNome);
    QTest::newRow("doppio clic su un posto") << false << int(RigheElenco::ColonnaX);
}

void tst_ElencoElementi::InvioOUnDoppioClicApronoIlDialogo()
{
    QFETCH(bool, conInvio);
    QFETCH(int, colonna);
    const ElencoDiProva prova;
    Robot robot;
    robot.Agisce([](QDialog *dialogo) {
        QCOMPARE(Controlli::Testo(*dialogo, "Nome"), QStringLiteral("Scritta"));
        dialogo->reject();
    });
    if (conInvio) {
        prova.Vista().setCurrentIndex(prova.Casella(prova.Riga(Scritta), colonna));
        prova.Premi(Qt::Key_Return);
    } else {
        prova.DueClic(Scritta, colonna);
    }
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("FrmCornice")});
    QVERIFY(prova.Vista().viewport()->findChild<QLineEdit *>() == nullptr);
}

void tst_ElencoElementi::UnEliminatoNonSiApreNeSiSceglie()
{
    ElencoDiProva prova;
    prova.Clicca(Scritta);
    const int riga = prova.Riga(Scritta);
    {
        Passo passo(prova.Aperta(), {});
        passo.Elimina(Scritta);
    }
    QCOMPARE(prova.Nomi().at(riga), QStringLiteral(" ELIMINATO: Scritta"));
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>());
    QTest::mouseClick(prova.Vista().viewport(), Qt::LeftButton, {}, prova.Punto(riga));
    QTest::mouseDClick(prova.Vista().viewport(), Qt::LeftButton, {}, prova.Punto(riga));
    prova.Premi(Qt::Key_Return);
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>());
    QCOMPARE(prova.Scelte().Attivo(Genere::Cornice), 0);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void tst_ElencoElementi::ScriveUnPosto()
{
    const ElencoDiProva prova;
    // A dialog that the key opened would find no answer.
    const Robot robot;
    prova.Scrive(Totale, RigheElenco::ColonnaX, "75", Qt::Key_Return);
    QCOMPARE(prova.Aperto().Campi[2].X, 75.0);
    QCOMPARE(prova.DaAnnullare(), QStringLiteral("sposta Totale"));
    QCOMPARE(prova.Controllo("C1(2)")->pos(), QPointF(75, 30));
    prova.Scrive(Riquadro, RigheElenco::ColonnaY, "9", Qt::Key_Escape);
    QCOMPARE(prova.Aperto().Cornici[1].Y, 50.0);
    QVERIFY(prova.Elenco().isVisible()); // Escape has left the box, not the list
    QVERIFY(robot.Soddisfatto());
}

void tst_ElencoElementi::UnaParolaNonEUnPosto()
{
    const ElencoDiProva prova;
    prova.Scrive(Totale, RigheElenco::ColonnaX, "abc", Qt::Key_Return);
    QCOMPARE(prova.Aperto(), prova.Prima);
    QCOMPARE(prova.Striscia(), QStringLiteral("X: «abc» non è un numero"));
    QCOMPARE(prova.Casella(prova.Riga(Totale), RigheElenco::ColonnaX).data().toString(),
             QStringLiteral("60"));
}

void tst_ElencoElementi::SegueIlTrascinamento()
{
    const ElencoDiProva prova;
    prova.Muove({62, 33});
    prova.Afferra({60.8, 30.8}, {80, 60});
    const QString durante =
        prova.Casella(prova.Riga(Totale), RigheElenco::ColonnaX).data().toString();
    prova.Rilascia({80, 60});
    QVERIFY2(durante.toDouble() > 75, qPrintable(durante));
    QCOMPARE(prova.Casella(prova.Riga(Totale), RigheElenco::ColonnaY).data().toString(),
             QString::number(prova.Aperto().Campi[2].Y));
}

void tst_ElencoElementi::AnnullaDallElenco()
{
    const ElencoDiProva prova;
    prova.Scrive(Totale, RigheElenco::ColonnaX, "75", Qt::Key_Return);
    prova.Vista().setFocus();
    prova.Premi(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(prova.Aperto(), prova.Prima);
    prova.Premi(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(prova.Aperto().Campi[2].X, 75.0);
}

void tst_ElencoElementi::ConUnDialogoApertoAspetta()
{
    ElencoDiProva prova;
    prova.Clicca(Scritta);
    Robot robot;
    robot.Agisce([&](QDialog *dialogo) {
        QTest::mouseClick(prova.Elenco().windowHandle(), Qt::LeftButton, {},
                          prova.Vista().viewport()->mapTo(&prova.Elenco(), prova.Punto(0)));
        QTest::keyClick(prova.Elenco().windowHandle(), Qt::Key_Down);
        QCOMPARE(prova.Selezionati(), QStringList(QStringLiteral("Scritta")));
        dialogo->reject();
    });
    prova.Premi(Qt::Key_Return);
    QVERIFY(robot.Soddisfatto());
}

void tst_ElencoElementi::EscapeChiude()
{
    const ElencoDiProva prova;
    prova.Premi(Qt::Key_Escape);
    QVERIFY(!prova.Elenco().isVisible());
    QTRY_VERIFY(QApplication::activeWindow() == &prova.Anteprima());
    QVERIFY(prova.Editor->isVisible());
}

void tst_ElencoElementi::SiChiudeConLEditor()
{
    const ElencoDiProva prova;
    prova.Editor->close();
    QVERIFY(!prova.Elenco().isVisible());
    QVERIFY(!prova.Anteprima().isVisible());
}

QTEST_MAIN(tst_ElencoElementi)
#include "tst_ElencoElementi.moc"
