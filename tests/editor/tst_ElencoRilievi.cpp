#include "StoriaDiProva.h"
#include "documento/Passo.h"
#include "editor/ElencoRilievi.h"
#include "editor/RigheRilievi.h"
#include "support/DocumentoDiProva.h"

#include <QLabel>
#include <QListView>
#include <QSignalSpy>

namespace {

constexpr Chiave Numero{Genere::Campo, 1};
constexpr Chiave Totale{Genere::Campo, 2};
constexpr Chiave Logo{Genere::Immagine, 1};

/// The editor over a model of which only the picture is missing, and the list of the findings.
class RilieviDiProva : public StoriaDiProva
{
public:
    RilieviDiProva() { AspettaConto(1); }

    void Chiede() const
    {
        Tasto(Anteprima(), Qt::Key_F7);
        if (!QTest::qWaitForWindowActive(&Elenco())) {
            qFatal("the list does not open");
        }
    }
    /// Of the counter; nothing while it has none.
    QString Conto() const { return Bottone("Controlli")->text(); }
    void AspettaConto(int rilievi) const
    {
        const QString testo = rilievi == 0 ? QString() : QString::number(rilievi);
        if (!QTest::qWaitFor([&] { return Conto() == testo; })) {
            qFatal("the counter stays at %s", qPrintable(Conto()));
        }
    }
    ElencoRilievi &Elenco() const { return *Trova<ElencoRilievi>(Anteprima(), "ElencoRilievi"); }
    QListView &Vista() const { return *Trova<QListView>(Elenco(), "Rilievi"); }
    QStringList Righe() const
    {
        QStringList righe;
        for (int riga = 0; riga < Vista().model()->rowCount(); ++riga) {
            righe.append(Vista().model()->index(riga, 0).data().toString());
        }
        return righe;
    }
    int Riga(const char *inizio) const
    {
        const QStringList righe = Righe();
        for (int riga = 0; riga < righe.size(); ++riga) {
            if (righe.at(riga).startsWith(QString::fromUtf8(inizio))) {
                return riga;
            }
        }
        qFatal("no finding %s", inizio);
    }
    void Clicca(const char *inizio) const
    {
        QTest::mouseClick(Vista().viewport(), Qt::LeftButton, {}, Punto(inizio));
    }
    QPoint Punto(const char *inizio) const
    {
        const QModelIndex indice = Vista().model()->index(Riga(inizio), 0);
        Vista().scrollTo(indice);
        return Vista().visualRect(indice).center();
    }
    Selezione &Scelte() { return Archivio.Stato().selezione; }
    QString Riassunto() const { return Trova<QLabel>(Elenco(), "Riassunto")->text(); }
    QString FileDelLogo() const
    {
        return Archivio.Stato().CartellaModelli + QStringLiteral("logo.bmp");
    }
    void ScriveIlLogo() const
    {
        ImmaginiDiProva::Scrive(
            FileDelLogo(), ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({30, 20}, 0), "bmp"));
    }
};

} // namespace

/// The check in the editor, as the user works it.
class tst_ElencoRilievi : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void NienteFinoAllaPittura();
    void IlContatore();
    void F7DaTutteLeFinestre();
    void ApertaSenzaScegliere();
    void DopoOgniPasso();
    void MaiTrascinando();
    void UnGestoLasciatoNonFermaIlControllo();
    void ConUnDialogoApertoAspetta();
    void UnClicSceglieEScorre();
    void LeFrecceScelgono();
    void RigheESfondoHannoLaLoroPagina();
    void UnDoppioClicApreLeImpostazioni();
    void LaRigaSceltaResta();
    void IlDiscoSiRivedeAprendoETornando();
    void SalvandoIlCampoFuoriRigaSparisce();
    void SenzaStampanteLoDice();
    void LeFrasiStannoNellaFinestra();
    void NonFermaLaStampa();
    void EscapeChiude();
};

void tst_ElencoRilievi::initTestCase()
{
    qputenv("CUPS_SERVER", "/nessuno/cups.sock"); // whatever this machine prints on
}

void tst_ElencoRilievi::NienteFinoAllaPittura()
{
    EditorSulModello prova(
        [](ArchivioDiProva &p) { p.AggiungeImmagine(QStringLiteral("manca.bmp"), 5, 5, 9, 9); });
    QCoreApplication::processEvents();
    auto *contatore = Trova<QToolButton>(*prova.editor, "Controlli");
    QCOMPARE(contatore->text(), QString());
    QCOMPARE(contatore->toolTip(), QStringLiteral("Controlli (F7)"));
    prova.editor->show();
    prova.editor->Anteprima()->show();
    QTRY_COMPARE(contatore->text(), QStringLiteral("1"));
}

void tst_ElencoRilievi::IlContatore()
{
    RilieviDiProva prova;
    const QToolButton *contatore = prova.Bottone("Controlli");
    QCOMPARE(contatore->toolTip(), QStringLiteral("Controlli: un rilievo (F7)"));
    QCOMPARE(contatore->accessibleName(), QStringLiteral("Controlli: un rilievo"));
    const QImage avviso = contatore->icon().pixmap(20).toImage();
    Modifica(prova.Archivio.Stato(), [](Modello &m) { m.Campi[1].Maschera.clear(); });
    prova.AspettaConto(2);
    QCOMPARE(contatore->toolTip(), QStringLiteral("Controlli: 2 rilievi (F7)"));
    Modifica(prova.Archivio.Stato(), [](Modello &m) {
        m.Campi[1].Maschera = QString(30, u'$');
        m.Immagini[1].Nome.clear();
    });
    prova.AspettaConto(0);
    QCOMPARE(contatore->toolTip(), QStringLiteral("Controlli: nessun rilievo (F7)"));
    QVERIFY(contatore->icon().pixmap(20).toImage() != avviso);
}

void tst_ElencoRilievi::F7DaTutteLeFinestre()
{
    const RilieviDiProva prova;
    QVERIFY(prova.Anteprima().findChild<ElencoRilievi *>() == nullptr);
    prova.Chiede();
    QVERIFY(prova.Elenco().isVisible());
    QVERIFY(!prova.Elenco().isModal());
    QVERIFY(prova.Vista().hasFocus());
    prova.Tasto(prova.Elenco(), Qt::Key_F7);
    QTRY_VERIFY(!prova.Elenco().isVisible());
    prova.Tasto(*prova.Editor, Qt::Key_F7);
    QTRY_VERIFY(QApplication::activeWindow() == &prova.Elenco());
    prova.Elenco().close();
    prova.Bottone("Controlli")->click();
    QTRY_VERIFY(prova.Elenco().isVisible());
}

void tst_ElencoRilievi::ApertaSenzaScegliere()
{
    RilieviDiProva prova;
    prova.Chiede();
    QCoreApplication::processEvents();
    QVERIFY(prova.Scelte().Scelti().isEmpty());
    QVERIFY(!prova.Aperta().Variato());
}

void tst_ElencoRilievi::DopoOgniPasso()
{
    RilieviDiProva prova;
    prova.Chiede();
    QCOMPARE(prova.Righe().size(), 1);
    prova.TrascinaElemento(Genere::Campo, Totale.indice, {25, 31});
    prova.AspettaConto(2);
    QVERIFY(prova.Righe().constFirst().startsWith(
        QStringLiteral("campo Doc_Numero: il testo è largo ")));
    prova.Annulla();
    prova.AspettaConto(1);
    prova.Ripristina();
    prova.AspettaConto(2);
    QCOMPARE(prova.Righe().size(), 2);
}

void tst_ElencoRilievi::MaiTrascinando()
{
    RilieviDiProva prova;
    prova.Anteprima().Seleziona(Genere::Campo, Totale.indice);
    prova.Afferra({60.8, 30.8}, {25, 31});
    QCoreApplication::processEvents();
    QVERIFY(prova.Aperto().Campi[2].X < 30);
    QCOMPARE(prova.Conto(), QStringLiteral("1"));
    prova.Rilascia({25, 31});
    prova.AspettaConto(2);
}

void tst_ElencoRilievi::UnGestoLasciatoNonFermaIlControllo()
{
    RilieviDiProva prova;
    prova.Anteprima().Seleziona(Genere::Campo, Totale.indice);
    // A change is told while the mouse has an element in hand, and the gesture changes nothing.
    prova.Afferra({60.8, 30.8}, {25, 31});
    prova.ScriveIlLogo();
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    QCoreApplication::processEvents();
    QCOMPARE(prova.Conto(), QStringLiteral("1"));
    QTest::keyClick(prova.Anteprima().windowHandle(), Qt::Key_Escape);
    prova.Rilascia({25, 31});
    prova.AspettaConto(0);
    QCOMPARE(prova.Aperto(), prova.Prima);
}

void tst_ElencoRilievi::ConUnDialogoApertoAspetta()
{
    RilieviDiProva prova;
    Robot robot;
    QString durante;
    robot.Agisce([&](QDialog *dialogo) {
        emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        Controlli::Digita(*dialogo, "Maschera", QStringLiteral("$$$$$$$$$$"));
        Controlli::Digita(*dialogo, "X", QStringLiteral("52"));
        QCoreApplication::processEvents();
        durante = prova.Conto();
        ::Preme(*dialogo, "PConfemaCampo");
    });
    prova.ApreProprieta(Genere::Campo, Numero.indice);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(durante, QStringLiteral("1"));
    prova.AspettaConto(2); // it runs into Totale now
}

void tst_ElencoRilievi::UnClicSceglieEScorre()
{
    RilieviDiProva prova;
    Modifica(prova.Archivio.Stato(), [](Modello &m) { m.Immagini[1].Y = 320; });
    prova.Apre("Spostamento");
    prova.Chiede();
    QCOMPARE(prova.Anteprima().ScorrimentoY(), 0);
    prova.Clicca("immagine logo.bmp");
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>{Logo});
    QCOMPARE(prova.Scelte().Attivo(Genere::Immagine), 1);
    QCOMPARE(prova.Pagina(), QStringLiteral("Immagini"));
    QVERIFY(prova.Controllo("S3")->isVisible());
    QVERIFY(prova.Anteprima().ScorrimentoY() > 0);
    QVERIFY(QApplication::activeWindow() == &prova.Elenco());
}

void tst_ElencoRilievi::LeFrecceScelgono()
{
    RilieviDiProva prova;
    Modifica(prova.Archivio.Stato(), [](Modello &m) {
        m.Campi[1].Maschera.clear();
        m.Campi[2].Maschera.clear();
    });
    prova.Chiede();
    QCOMPARE(prova.Righe().size(), 3);
    prova.Clicca("campo Doc_Numero");
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>{Numero});
    prova.Tasto(prova.Elenco(), Qt::Key_Down);
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>{Totale});
    prova.Tasto(prova.Elenco(), Qt::Key_Down);
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>{Logo});
}

void tst_ElencoRilievi::RigheESfondoHannoLaLoroPagina()
{
    RilieviDiProva prova;
    Modifica(prova.Archivio.Stato(), [](Modello &m) {
        m.Righe.Interlinea = 0;
        m.Sfondo.File = QStringLiteral("/nessuno/scansione.jpg");
    });
    prova.Chiede();
    QCOMPARE(prova.Righe().size(), 3);
    prova.Clicca("righe: l'interlinea");
    QCOMPARE(prova.Pagina(), QStringLiteral("Posizione righe"));
    prova.Clicca("immagine di sfondo: il file /nessuno/scansione.jpg manca");
    QCOMPARE(prova.Pagina(), QStringLiteral("Immagine sfondo"));
    QVERIFY(prova.Scelte().Scelti().isEmpty());
}

void tst_ElencoRilievi::UnDoppioClicApreLeImpostazioni()
{
    RilieviDiProva prova;
    Modifica(prova.Archivio.Stato(), [](Modello &m) { m.Campi[2].Maschera.clear(); });
    prova.Chiede();
    Robot robot;
    QString nome;
    const auto legge = [&](QDialog *dialogo) {
        nome = Controlli::Testo(*dialogo, "Nome");
        dialogo->reject();
    };
    robot.Agisce(legge);
    prova.Clicca("campo Totale");
    QTest::mouseDClick(prova.Vista().viewport(), Qt::LeftButton, {}, prova.Punto("campo Totale"));
    QCOMPARE(nome, QStringLiteral("Totale"));
    nome.clear();
    robot.Agisce(legge);
    prova.Tasto(prova.Elenco(), Qt::Key_Return);
    QCOMPARE(nome, QStringLiteral("Totale"));
    QVERIFY(robot.Soddisfatto());
}

void tst_ElencoRilievi::LaRigaSceltaResta()
{
    RilieviDiProva prova;
    Modifica(prova.Archivio.Stato(), [](Modello &m) { m.Campi[2].Maschera.clear(); });
    prova.Chiede();
    prova.Clicca("immagine logo.bmp");
    // Another finding comes before it; what the user has chosen meanwhile stays chosen.
    prova.Scelte().ImpostaScelti({Totale});
    Modifica(prova.Archivio.Stato(), [](Modello &m) { m.Campi[1].Maschera.clear(); });
    prova.AspettaConto(3);
    QCOMPARE(prova.Vista().currentIndex().row(), prova.Riga("immagine logo.bmp"));
    QVERIFY(prova.Vista().selectionModel()->isSelected(prova.Vista().currentIndex()));
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>{Totale});
    // Put right, it leaves no row chosen.
    Modifica(prova.Archivio.Stato(), [](Modello &m) { m.Immagini[1].Nome.clear(); });
    prova.AspettaConto(2);
    QVERIFY(!prova.Vista().selectionModel()->hasSelection());
    QCOMPARE(prova.Scelte().Scelti(), QList<Chiave>{Totale});
}

void tst_ElencoRilievi::IlDiscoSiRivedeAprendoETornando()
{
    RilieviDiProva prova;
    prova.ScriveIlLogo();
    Modifica(prova.Archivio.Stato(), [](Modello &m) { m.Tipo = QStringLiteral("altro"); });
    QCoreApplication::processEvents();
    QCOMPARE(prova.Conto(), QStringLiteral("1")); // a step asks no disk
    prova.Chiede();
    QCOMPARE(prova.Conto(), QString());
    QCOMPARE(prova.Riassunto().section(u'.', 0, 0), QStringLiteral("Nessun rilievo"));
    QVERIFY(QFile::remove(prova.FileDelLogo()));
    emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    prova.AspettaConto(1);
    QCOMPARE(prova.Righe().size(), 1);
}

void tst_ElencoRilievi::SalvandoIlCampoFuoriRigaSparisce()
{
    EditoreDiProva prova;
    Campo &riga =
        prova.Archivio.DaAprire()
            .Campi[prova.Archivio.AggiungeCampo(QStringLiteral("R_Descrizione"), 40, 100)];
    riga.Maschera = QString(30, u'$');
    riga.Y = 102;
    QVERIFY(prova.Apre());
    const auto *contatore = Trova<QToolButton>(*prova.Editor, "Controlli");
    QTRY_COMPARE(contatore->text(), QStringLiteral("1"));
    Robot robot;
    robot.Si();
    prova.Editor->Salva_Click();
    QVERIFY(robot.Soddisfatto());
    QTRY_COMPARE(contatore->text(), QString());
    QCOMPARE(prova.Archivio.Riletto().Campi[1].Y, 100.0);
}

void tst_ElencoRilievi::SenzaStampanteLoDice()
{
    const RilieviDiProva prova;
    prova.Chiede();
    const QString senza = prova.Riassunto();
    QVERIFY2(senza.startsWith(QStringLiteral("Un rilievo. La carta non è controllata")),
             qPrintable(senza));
    prova.Elenco().Mostra({}, true);
    QCOMPARE(prova.Riassunto(), QStringLiteral("Nessun rilievo"));
}

void tst_ElencoRilievi::LeFrasiStannoNellaFinestra()
{
    RilieviDiProva prova;
    Modifica(prova.Archivio.Stato(), [](Modello &m) {
        m.Campi[1].Maschera.clear();
        m.Campi[1].Font = QStringLiteral("Font Mai Esistito Con Un Nome Molto Lungo");
        m.Campi[2].X = 25;
        m.Righe.yFine = 50;
    });
    prova.Chiede();
    for (const int larghezza : {360, 600, 220}) {
        prova.Elenco().resize(larghezza, 200);
        QCoreApplication::processEvents();
        for (int riga = 0; riga < prova.Vista().model()->rowCount(); ++riga) {
            const QModelIndex indice = prova.Vista().model()->index(riga, 0);
            const QRect posto = prova.Vista().visualRect(indice);
            QVERIFY(posto.width() <= prova.Vista().viewport()->width());
            // As high as the text set in that width.
            const QRect serve = prova.Vista().fontMetrics().boundingRect(
                QRect(0, 0, posto.width() - 6, 10'000), Qt::TextWordWrap, indice.data().toString());
            QVERIFY2(posto.height() >= serve.height(), qPrintable(indice.data().toString()));
        }
    }
}

void tst_ElencoRilievi::NonFermaLaStampa()
{
    RilieviDiProva prova;
    Modifica(prova.Archivio.Stato(), [](Modello &m) { m.Immagini[1].Nome.clear(); });
    Modifica(prova.Archivio.Stato(), [](Modello &m) {
        m.Righe.Interlinea = 0;
        m.Campi[2].X = 21;
    });
    prova.AspettaConto(2);
    Robot robot; // no question but the print's own
    QCOMPARE(prova.Stampa(), QStringList());
    QVERIFY(robot.Soddisfatto());
}

void tst_ElencoRilievi::EscapeChiude()
{
    const RilieviDiProva prova;
    prova.Chiede();
    prova.Tasto(prova.Elenco(), Qt::Key_Escape);
    QTRY_VERIFY(!prova.Elenco().isVisible());
    QTRY_VERIFY(QApplication::activeWindow() == &prova.Anteprima());
}

QTEST_MAIN(tst_ElencoRilievi)
#include "tst_ElencoRilievi.moc"
