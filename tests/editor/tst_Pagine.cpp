#include "editor/Form2.h"
#include "editor/PaginaSfondo.h"
#include "finestre/Sfoglia.h"
#include "preview/Frm1.h"
#include "support/ArchivioDiProva.h"
#include "support/DocumentoDiProva.h"
#include "support/Finestre.h"
#include "support/Robot.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTabWidget>
#include <QTest>

namespace {

/// The editor over a model with a row field, an ordinary field, a frame and an image.
class EditorDiProva
{
public:
    EditorDiProva()
    {
        prova.AggiungeCampo(QStringLiteral("R_Descr"), 10, 100);
        prova.AggiungeCampo(QStringLiteral("Data"), 20, 30);
        prova.AggiungeCornice(QStringLiteral("Cornice"), 30, 40, 20, 10);
        prova.AggiungeImmagine(QStringLiteral("logo.bmp"), 40.5, 50.5, 20, 10);
        prova.Scrive();
        editor = std::make_unique<Form2>(prova.Stato());
        caricato = editor->Form_Load();
    }
    ~EditorDiProva() { prova.Stato().documento.Salvato(); }

    void Scrive(const char *casella, const QString &testo)
    {
        auto *riga = Trova<QLineEdit>(*editor, casella);
        riga->selectAll();
        QTest::keyClicks(riga, testo);
    }
    QString Testo(const char *casella) { return Trova<QLineEdit>(*editor, casella)->text(); }
    Modello &DaAprire() { return prova.DaAprire(); }
    const Modello &Aperto() const { return prova.Aperto(); }

    /// A picture of 200 x 100 mm at 10 dots a millimetre.
    QString Scansione()
    {
        QImage immagine(200, 100, QImage::Format_RGB32);
        immagine.fill(Qt::red);
        immagine.setDotsPerMeterX(1000);
        immagine.setDotsPerMeterY(1000);
        const QString percorso = prova.Stato().CartellaModelli + QStringLiteral("scansione.bmp");
        immagine.save(percorso);
        return percorso;
    }

    /// Colour of the sheet at a point in mm of screen.
    QColor Colore(double x, double y)
    {
        auto *foglio = Trova<QGraphicsView>(*editor->Anteprima(), "P1");
        const QPixmap foto = foglio->grab();
        const double scala = foglio->width() / 240.0;
        return foto.toImage().pixelColor(qRound(x * scala), qRound(y * scala));
    }

    ArchivioDiProva prova;
    std::unique_ptr<Form2> editor;
    bool caricato = false;
};

constexpr double Larghezza100dpi = 200; // mm

} // namespace

class tst_Pagine : public QObject
{
    Q_OBJECT
private slots:
    void RigheMostrateColPunto();
    void ConfermaScriveEAllinea();
    void ConfermaTestoSenzaNumeroDaZero();
    void SimulazioneAccesaESpenta();
    void SimulazioneSegueGliAltriComandi();
    void InvioConfermaLeRighe();
    void NumeroTroppoGrande();
    void TooltipDellePagine();
    void SpostamentoPredefinito();
    void SpostamentoCampi_data();
    void SpostamentoCampi();
    void SpostamentoConLaVirgola();
    void SpostamentoCorniciEImmagini_data();
    void SpostamentoCorniciEImmagini();
    void SpostamentoMuoveGliEliminati();
    void TestiDelloSpostamento();
    void SfondoMostraITestiDelModello();
    void SfondoQuattroPressioniDueMillimetri();
    void SfondoSpentoNonSiVede();
    void SfondoDimezzato();
    void SfondoRispostaNonNumerica();
    void SfondoDomandaAnnullata();
    void SfondoTastoDestroTogliIlFile();
    void SfondoFuocoSelezionaTutto_data();
    void SfondoFuocoSelezionaTutto();
    void SfondoFileMancante();
    void SfondoFileGuasto();
    void SfondoSiSpostaSulFoglio();
    void SfondoSceltoConSfoglia();
    void SfondoSfogliaDallaCartellaDelModello();
    void SfondoCaratteriDiControlloIntatti();
};

void tst_Pagine::RigheMostrateColPunto()
{
    const QLocale precedente;
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    EditorDiProva e;
    e.DaAprire().Righe.Interlinea = 4.5;
    e.prova.Scrive();
    Form2 editor(e.prova.Stato());
    QVERIFY(editor.Form_Load());
    QCOMPARE(Trova<QLineEdit>(editor, "Interlinea")->text(), QStringLiteral("4.5"));
    Preme(editor, "ConfermaPosizioneRighe");
    QCOMPARE(e.Aperto().Righe.Interlinea, 4.5);
    QLocale::setDefault(precedente);
}

void tst_Pagine::ConfermaScriveEAllinea()
{
    EditorDiProva e;
    QVERIFY(e.caricato);
    e.Scrive("yInizio", QStringLiteral("110.5"));
    e.Scrive("yFine", QStringLiteral("210"));
    e.Scrive("Interlinea", QStringLiteral("6"));
    e.Scrive("InterlineaDescr", QStringLiteral("3.5"));
    e.Scrive("SeguePag", QStringLiteral("continua"));
    QVERIFY(!e.editor->Variato());
    Preme(*e.editor, "ConfermaPosizioneRighe");
    QVERIFY(e.editor->Variato());
    QCOMPARE(e.Aperto().Righe, (ParametriRighe{110.5, 210, 6, 3.5, QStringLiteral("continua")}));
    QCOMPARE(e.Aperto().Campi[1].Y, 110.5);
    QCOMPARE(e.Aperto().Campi[2].Y, 30.0);
    QCOMPARE(ElementoAnteprima(*e.editor->Anteprima(), QStringLiteral("C1(1)"))->pos().y(), 110.5);
}

void tst_Pagine::ConfermaTestoSenzaNumeroDaZero()
{
    EditorDiProva e;
    e.Scrive("yInizio", QStringLiteral("abc"));
    e.Scrive("Interlinea", QStringLiteral("4,5"));
    Preme(*e.editor, "ConfermaPosizioneRighe");
    QCOMPARE(e.Aperto().Righe.yInizio, 0.0);
    QCOMPARE(e.Aperto().Righe.Interlinea, 4.0);
}

void tst_Pagine::SimulazioneAccesaESpenta()
{
    EditorDiProva e;
    const auto elementi = [&] {
        const auto tutti = Trova<QGraphicsView>(*e.editor->Anteprima(), "P1")->scene()->items();
        return std::count_if(tutti.begin(), tutti.end(),
                             [](const QGraphicsItem *i) { return i->isVisible(); });
    };
    const auto prima = elementi();
    e.Scrive("yInizio", QStringLiteral("100"));
    e.Scrive("yFine", QStringLiteral("130"));
    e.Scrive("Interlinea", QStringLiteral("5"));
    Trova<QCheckBox>(*e.editor, "OptSimuloRighe")->click();
    QCOMPARE(elementi(), prima + 5);
    e.Scrive("yInizio", QStringLiteral("90"));
    Trova<QCheckBox>(*e.editor, "OptSimuloRighe")->click();
    QCOMPARE(elementi(), prima);
    QCOMPARE(e.Aperto().Righe.yInizio, 90.0);
    QCOMPARE(e.Aperto().Campi[1].Y, 90.0);
}

void tst_Pagine::SimulazioneSegueGliAltriComandi()
{
    EditorDiProva e;
    e.Scrive("yFine", QStringLiteral("130"));
    Trova<QCheckBox>(*e.editor, "OptSimuloRighe")->click();
    const auto sinistra = [&] {
        double minimo = 1e9;
        const auto tutti = Trova<QGraphicsView>(*e.editor->Anteprima(), "P1")->scene()->items();
        for (const QGraphicsItem *i : tutti) {
            // Only the simulated rows stand one spacing below the row fields.
            if (i->isVisible() && qFuzzyCompare(i->pos().y(), 105.0)) {
                minimo = qMin(minimo, i->pos().x());
            }
        }
        return minimo;
    };
    QCOMPARE(sinistra(), 10.0);
    e.Scrive("Spostamento", QStringLiteral("3"));
    Preme(*e.editor, "OptDx");
    Preme(*e.editor, "Command2");
    QCOMPARE(sinistra(), 13.0);
    Robot robot;
    robot.Agisce([](QDialog *d) {
        Trova<QLineEdit>(*d, "X")->setText(QStringLiteral("44"));
        Preme(*d, "PConfemaCampo");
    });
    e.editor->ApreFrmCampo(1);
    QCOMPARE(sinistra(), 44.0);
}

void tst_Pagine::InvioConfermaLeRighe()
{
    EditorDiProva e;
    e.Scrive("yInizio", QStringLiteral("120"));
    QTest::keyClick(Trova<QLineEdit>(*e.editor, "yInizio"), Qt::Key_Return);
    QCOMPARE(e.Aperto().Righe.yInizio, 120.0);
}

void tst_Pagine::NumeroTroppoGrande()
{
    EditorDiProva e;
    e.Scrive("yInizio", QStringLiteral("120"));
    e.Scrive("yFine", QStringLiteral("1e999"));
    e.Scrive("Spostamento", QStringLiteral("1e999"));
    Robot robot;
    robot.Ok().Ok();
    Preme(*e.editor, "ConfermaPosizioneRighe");
    Preme(*e.editor, "Command2");
    QVERIFY(robot.Soddisfatto());
    const QStringList attesi{QStringLiteral("fine righe: «1e999» è un numero troppo grande"),
                             QStringLiteral("Spostamento mm.: «1e999» è un numero troppo grande")};
    QCOMPARE(robot.Testi(), attesi);
    QCOMPARE(e.Aperto().Righe.yInizio, 100.0);
    QCOMPARE(e.Aperto().Campi[2].X, 20.0);
    QVERIFY(!e.editor->Variato());
}

void tst_Pagine::TooltipDellePagine()
{
    EditorDiProva e;
    const QHash<const char *, QString> attesi{
        {"yInizio", QStringLiteral("posizione in millimetri inizio righe nel corpo fattura/ddt")},
        {"yFine", QStringLiteral("posizione in millimetri fine righe nel corpo fattura/ddt")},
        {"Interlinea",
         QStringLiteral("Interlinea in millimetri tra le righe nel corpo fattura/ddt")},
        {"VisualizzaImmagineSfondo",
         QStringLiteral("per visualizzare nell'anteprima l'immagine acqusita da scanner della "
                        "fattura o ddt per facilitare il posizionamento dei campi")},
        {"SfondoFileImmagine", QStringLiteral("nome del file dove è stata salvata l'immagine")},
        {"SfondoXimmagine",
         QStringLiteral("dimensioni in millimetri dell'immagine della scansione fattura/ddt")},
        {"SfondoYImmagine",
         QStringLiteral("dimensioni in millimetri dell'immagine della scansione fattura/ddt")},
        {"SfondoXPosImm",
         QStringLiteral("per posizionare correttamente l'immagine sull'anteprima")},
        {"SfondoYPosImm",
         QStringLiteral("per posizionare correttamente l'immagine sull'anteprima")}};
    for (auto it = attesi.begin(); it != attesi.end(); ++it) {
        QCOMPARE(Trova<QWidget>(*e.editor, it.key())->toolTip(), it.value());
    }
    const auto testo = [&](const char *nome) {
        return Trova<QAbstractButton>(*e.editor, nome)->text().remove(u'&');
    };
    QCOMPARE(testo("OptSimuloRighe"), QStringLiteral("Simulo righe su anteprima"));
    QCOMPARE(testo("ConfermaPosizioneRighe"), QStringLiteral("Conferma Posizione Righe"));
    QCOMPARE(testo("VisualizzaImmagineSfondo"), QStringLiteral("Visualizza Immagine di sfondo"));
    QCOMPARE(testo("SfondoSfoglia"), QStringLiteral("Sfoglia"));
}

void tst_Pagine::SpostamentoPredefinito()
{
    EditorDiProva e;
    QCOMPARE(e.Testo("Spostamento"), QStringLiteral("1"));
    QVERIFY(!Trova<QCheckBox>(*e.editor, "OptSimuloRighe")->isChecked());
}

void tst_Pagine::SpostamentoCampi_data()
{
    QTest::addColumn<QByteArray>("verso");
    QTest::addColumn<QPointF>("atteso");
    QTest::newRow("destra") << QByteArray("OptDx") << QPointF(23, 30);
    QTest::newRow("sinistra") << QByteArray("OptSx") << QPointF(17, 30);
    QTest::newRow("alto") << QByteArray("OptSu") << QPointF(20, 27);
    QTest::newRow("basso") << QByteArray("OptGiu") << QPointF(20, 33);
}

void tst_Pagine::SpostamentoCampi()
{
    QFETCH(const QByteArray, verso);
    QFETCH(const QPointF, atteso);
    EditorDiProva e;
    e.Scrive("Spostamento", QStringLiteral("3"));
    Preme(*e.editor, verso.constData());
    Preme(*e.editor, "Command2");
    QCOMPARE(QPointF(e.Aperto().Campi[2].X, e.Aperto().Campi[2].Y), atteso);
    QCOMPARE(e.Aperto().Campi[1].Y, 100.0); // a row field stays at yInizio
    QCOMPARE(e.Aperto().Cornici[1].X, 30.0);
    QVERIFY(e.editor->Variato());
    QCOMPARE(ElementoAnteprima(*e.editor->Anteprima(), QStringLiteral("C1(2)"))->pos(), atteso);
}

void tst_Pagine::SpostamentoConLaVirgola()
{
    EditorDiProva e;
    Preme(*e.editor, "OptDx");
    e.Scrive("Spostamento", QStringLiteral("2,5"));
    Preme(*e.editor, "Command2");
    QCOMPARE(e.Aperto().Campi[2].X, 22.0);
    e.Scrive("Spostamento", QStringLiteral("abc"));
    Preme(*e.editor, "Command2");
    QCOMPARE(e.Aperto().Campi[2].X, 22.0);
}

void tst_Pagine::SpostamentoCorniciEImmagini_data()
{
    QTest::addColumn<QByteArray>("verso");
    QTest::addColumn<QPointF>("passo");
    QTest::newRow("destra") << QByteArray("OptDx") << QPointF(100, 0);
    QTest::newRow("sinistra") << QByteArray("OptSx") << QPointF(-100, 0);
    QTest::newRow("alto") << QByteArray("OptSu") << QPointF(0, -100);
    QTest::newRow("basso") << QByteArray("OptGiu") << QPointF(0, 100);
}

void tst_Pagine::SpostamentoCorniciEImmagini()
{
    QFETCH(const QByteArray, verso);
    QFETCH(const QPointF, passo);
    EditorDiProva e;
    Preme(*e.editor, verso.constData());
    e.Scrive("Spostamento", QStringLiteral("100"));
    Preme(*e.editor, "Command5");
    const Cornice &cornice = e.Aperto().Cornici[1];
    QCOMPARE(QPointF(cornice.X, cornice.Y), QPointF(30, 40) + passo); // no bound is applied
    const Immagine &immagine = e.Aperto().Immagini[1];
    QCOMPARE(QPointF(immagine.X, immagine.Y), QPointF(40.5, 50.5));
    e.Scrive("Spostamento", QStringLiteral("0.25"));
    Preme(*e.editor, "Command6");
    QCOMPARE(QPointF(immagine.X, immagine.Y), QPointF(40.5, 50.5) + passo / 400);
    QCOMPARE(e.Aperto().Campi[2].X, 20.0);
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
}

void tst_Pagine::SpostamentoMuoveGliEliminati()
{
    EditorDiProva e;
    Passo(e.prova.Stato().documento, {}).Elimina({Genere::Campo, 2});
    Preme(*e.editor, "OptDx");
    Preme(*e.editor, "Command2");
    QCOMPARE(e.Aperto().Campi[2].X, 21.0);
    QVERIFY(!ElementoAnteprima(*e.editor->Anteprima(), QStringLiteral("C1(2)"))->isVisible());
}

void tst_Pagine::TestiDelloSpostamento()
{
    EditorDiProva e;
    const auto testo = [&](const char *nome) {
        return Trova<QAbstractButton>(*e.editor, nome)->text().remove(u'&');
    };
    QCOMPARE(testo("OptDx"), QStringLiteral("--> sposta a destra"));
    QCOMPARE(testo("OptSx"), QStringLiteral("<-- sposta s sinistra"));
    QCOMPARE(testo("OptSu"), QStringLiteral("Sposta in alto"));
    QCOMPARE(testo("OptGiu"), QStringLiteral("Sposta in basso"));
    QCOMPARE(testo("Command2"), QStringLiteral("Conferma sposta campi"));
    QCOMPARE(testo("Command5"), QStringLiteral("Conferma sposta cornici"));
    QCOMPARE(testo("Command6"), QStringLiteral("Conferma sposta immagini"));
    QStringList etichette;
    for (const auto *etichetta : e.editor->findChildren<QLabel *>()) {
        etichette.append(etichetta->text());
    }
    for (const auto &attesa :
         {QStringLiteral("Spostamento mm."), QStringLiteral("sposta tutto dx/sx"),
          QStringLiteral("inizio righe"), QStringLiteral("fine righe"),
          QStringLiteral("Interlinea tra le righe"),
          QStringLiteral("Interlinea nelle descrizioni multilinea"),
          QStringLiteral("scritta 'segue su pagina successiva'"), QStringLiteral("dimensioni X/Y "),
          QStringLiteral("posizione")}) {
        QVERIFY2(etichette.contains(attesa), qPrintable(attesa));
    }
}

void tst_Pagine::SfondoMostraITestiDelModello()
{
    EditorDiProva e;
    e.DaAprire().Sfondo = {QString(),
                           QStringLiteral("210,5 mm"),
                           QStringLiteral(" 297"),
                           QStringLiteral("-3"),
                           QStringLiteral("x"),
                           1};
    e.prova.Scrive();
    const QByteArray prima = e.prova.ByteDelFile();
    Form2 editor(e.prova.Stato());
    QVERIFY(editor.Form_Load());
    QCOMPARE(Trova<QLineEdit>(editor, "SfondoXimmagine")->text(), QStringLiteral("210,5 mm"));
    QCOMPARE(Trova<QLineEdit>(editor, "SfondoYImmagine")->text(), QStringLiteral(" 297"));
    QCOMPARE(Trova<QLineEdit>(editor, "SfondoXPosImm")->text(), QStringLiteral("-3"));
    QCOMPARE(Trova<QLineEdit>(editor, "SfondoYPosImm")->text(), QStringLiteral("x"));
    QVERIFY(Trova<QCheckBox>(editor, "VisualizzaImmagineSfondo")->isChecked());
    QVERIFY(!editor.Variato());
    Robot robot;
    robot.Si();
    Preme(editor, "Salva");
    QCOMPARE(e.prova.ByteDelFile(), prima);
}

void tst_Pagine::SfondoQuattroPressioniDueMillimetri()
{
    const QLocale precedente;
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    EditorDiProva e;
    for (int i = 0; i < 4; ++i) {
        Preme(*e.editor, "SfondoSpostaDx");
    }
    QCOMPARE(e.Testo("SfondoXPosImm"), QStringLiteral("2"));
    QVERIFY(e.editor->Variato());
    Preme(*e.editor, "SfondoSpostaSx");
    QCOMPARE(e.Testo("SfondoXPosImm"), QStringLiteral("1.5"));
    Preme(*e.editor, "SfondoSpostaSu");
    QCOMPARE(e.Testo("SfondoYPosImm"), QStringLiteral("-0.5"));
    Preme(*e.editor, "SfondoSpostaGiu");
    Preme(*e.editor, "SfondoSpostaGiu");
    QCOMPARE(e.Testo("SfondoYPosImm"), QStringLiteral("0.5"));
    QCOMPARE(e.Aperto().Sfondo.XPos, QStringLiteral("1.5"));
    QLocale::setDefault(precedente);
}

void tst_Pagine::SfondoSpentoNonSiVede()
{
    EditorDiProva e;
    e.DaAprire().Sfondo = {e.Scansione(),       QStringLiteral("200"), QStringLiteral("100"),
                           QStringLiteral("5"), QStringLiteral("150"), 0};
    e.prova.Scrive();
    e.editor = std::make_unique<Form2>(e.prova.Stato());
    QVERIFY(e.editor->Form_Load());
    QCOMPARE(e.Colore(100, 200), QColor(Qt::white));
    Preme(*e.editor, "VisualizzaImmagineSfondo");
    QCOMPARE(e.Aperto().Sfondo.Visualizza, qint16(1));
    QCOMPARE(e.Colore(100, 200), QColor(Qt::red));
    QCOMPARE(e.Colore(100, 148), QColor(Qt::white));
    QCOMPARE(e.Colore(207, 200), QColor(Qt::white));
    Preme(*e.editor, "VisualizzaImmagineSfondo");
    QCOMPARE(e.Colore(100, 200), QColor(Qt::white));
}

void tst_Pagine::SfondoDimezzato()
{
    EditorDiProva e;
    e.Scrive("SfondoFileImmagine", e.Scansione());
    Preme(*e.editor, "VisualizzaImmagineSfondo");
    Robot robot;
    robot.Digita(QStringLiteral("50"));
    Preme(*e.editor, "Command8");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral(
                                "Impostare la % di riduzione delle dimensioni dell'immagine")});
    QCOMPARE(robot.Titoli(),
             QStringList{QStringLiteral("caricamento immagine ") + e.Aperto().Sfondo.File});
    QCOMPARE(e.Testo("SfondoXimmagine").toDouble(), Larghezza100dpi / 2);
    QCOMPARE(e.Testo("SfondoYImmagine").toDouble(), Larghezza100dpi / 4);
    QCOMPARE(e.Colore(50, 45), QColor(Qt::red));
}

void tst_Pagine::SfondoRispostaNonNumerica()
{
    EditorDiProva e;
    e.Scrive("SfondoFileImmagine", e.Scansione());
    e.Scrive("SfondoXimmagine", QStringLiteral("200"));
    Preme(*e.editor, "VisualizzaImmagineSfondo");
    Robot robot;
    robot.Digita(QStringLiteral("tanto"));
    Preme(*e.editor, "Command8");
    QCOMPARE(e.Testo("SfondoXimmagine"), QStringLiteral("0"));
    QCOMPARE(e.Testo("SfondoYImmagine"), QStringLiteral("0"));
    QCOMPARE(e.Colore(50, 10), QColor(Qt::white));
}

void tst_Pagine::SfondoDomandaAnnullata()
{
    EditorDiProva e;
    e.Scrive("SfondoFileImmagine", e.Scansione());
    e.Scrive("SfondoXimmagine", QStringLiteral("120"));
    e.Scrive("SfondoYImmagine", QStringLiteral("60"));
    Preme(*e.editor, "VisualizzaImmagineSfondo");
    Robot robot;
    robot.Annulla();
    Preme(*e.editor, "Command8");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(e.Testo("SfondoXimmagine"), QStringLiteral("120"));
    QCOMPARE(e.Colore(50, 10), QColor(Qt::red));
}

void tst_Pagine::SfondoTastoDestroTogliIlFile()
{
    EditorDiProva e;
    e.Scrive("SfondoFileImmagine", QStringLiteral("qualcosa.bmp"));
    auto *visualizza = Trova<QCheckBox>(*e.editor, "VisualizzaImmagineSfondo");
    const bool prima = visualizza->isChecked();
    QTest::mouseClick(visualizza, Qt::RightButton);
    QVERIFY(e.Testo("SfondoFileImmagine").isEmpty());
    QVERIFY(e.Aperto().Sfondo.File.isEmpty());
    QCOMPARE(visualizza->isChecked(), prima);
}

void tst_Pagine::SfondoFuocoSelezionaTutto_data()
{
    QTest::addColumn<QByteArray>("casella");
    QTest::newRow("larghezza") << QByteArray("SfondoXimmagine");
    QTest::newRow("altezza") << QByteArray("SfondoYImmagine");
}

void tst_Pagine::SfondoFuocoSelezionaTutto()
{
    QFETCH(const QByteArray, casella);
    EditorDiProva e;
    e.editor->show();
    e.editor->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(e.editor.get()));
    Trova<QTabWidget>(*e.editor, "SSTab1")->setCurrentIndex(5);
    auto *riga = Trova<QLineEdit>(*e.editor, casella.constData());
    riga->setText(QStringLiteral("210"));
    Trova<QAbstractButton>(*e.editor, "Command8")->setFocus();
    QTest::mouseClick(riga, Qt::LeftButton);
    QTRY_COMPARE(riga->selectedText(), QStringLiteral("210"));
    QTest::keyClicks(riga, QStringLiteral("9"));
    QCOMPARE(riga->text(), QStringLiteral("9"));
}

void tst_Pagine::SfondoFileMancante()
{
    EditorDiProva e;
    e.Scrive("SfondoFileImmagine", QStringLiteral("/non/esiste.jpg"));
    Robot robot;
    robot.Ok();
    Preme(*e.editor, "VisualizzaImmagineSfondo");
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().constFirst().startsWith(
                 QStringLiteral("impossibile caricare l'immagine di sfondo /non/esiste.jpg\n")),
             qPrintable(robot.Testi().constFirst()));
    QCOMPARE(e.Colore(50, 10), QColor(Qt::white));
}

void tst_Pagine::SfondoFileGuasto()
{
    EditorDiProva e;
    const QString percorso = e.prova.Stato().CartellaModelli + QStringLiteral("guasta.jpg");
    QFile file(percorso);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("\xFF\xD8\xFF nothing of a picture");
    file.close();
    e.Scrive("SfondoFileImmagine", percorso);
    Robot robot;
    robot.Ok();
    Preme(*e.editor, "VisualizzaImmagineSfondo");
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().constFirst().contains(QStringLiteral("errore 481")),
             qPrintable(robot.Testi().constFirst()));
    // Told once: neither a nudge nor a zoom says it again.
    Preme(*e.editor, "SfondoSpostaDx");
    auto *zoom = Trova<QLineEdit>(*e.editor->Anteprima(), "TextZoom");
    zoom->setText(QStringLiteral("2"));
    QTest::keyClick(zoom, Qt::Key_End);
    QCOMPARE(e.prova.Stato().zoom, 2.0);
    QVERIFY(robot.Soddisfatto());
    robot.Ok();
    Preme(*e.editor, "Command8"); // asked for, so told
    QVERIFY(robot.Soddisfatto());
}

void tst_Pagine::SfondoSiSpostaSulFoglio()
{
    EditorDiProva e;
    e.DaAprire().Sfondo = {e.Scansione(),         QStringLiteral("100"), QStringLiteral("50"),
                           QStringLiteral("100"), QStringLiteral("150"), 1};
    e.prova.Scrive();
    e.editor = std::make_unique<Form2>(e.prova.Stato());
    QVERIFY(e.editor->Form_Load());
    QCOMPARE(e.Colore(101, 160), QColor(Qt::red));
    for (int i = 0; i < 4; ++i) {
        Preme(*e.editor, "SfondoSpostaDx");
    }
    QCOMPARE(e.Colore(101, 160), QColor(Qt::white));
    QCOMPARE(e.Colore(103, 160), QColor(Qt::red));
    QCOMPARE(e.Colore(201, 160), QColor(Qt::red));
    e.prova.Stato().documento.Salvato();
    QTest::mouseClick(Trova<QCheckBox>(*e.editor, "VisualizzaImmagineSfondo"), Qt::RightButton);
    QCOMPARE(e.Colore(103, 160), QColor(Qt::white));
    QVERIFY(e.editor->Variato());
}

void tst_Pagine::SfondoSceltoConSfoglia()
{
    EditorDiProva e;
    const QString file = e.Scansione();
    Preme(*e.editor, "VisualizzaImmagineSfondo");
    // The browser starts at the file that is handed in, so that file is chosen already.
    e.Scrive("SfondoFileImmagine", file + QStringLiteral(".assente"));
    Robot robot;
    robot.Agisce([&](QDialog *sfoglia) {
        auto *elenco = Trova<QListView>(*sfoglia, "File1");
        for (int riga = 0; riga < elenco->model()->rowCount(); ++riga) {
            const QModelIndex voce = elenco->model()->index(riga, 0);
            if (voce.data().toString() == QLatin1String("scansione.bmp")) {
                elenco->scrollTo(voce);
                QTest::mouseClick(elenco->viewport(), Qt::LeftButton, {},
                                  elenco->visualRect(voce).center());
            }
        }
        Trova<QAbstractButton>(*sfoglia, "Command8")->click();
    });
    robot.Digita(QStringLiteral("100"));
    Preme(*e.editor, "SfondoSfoglia");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(QDir::cleanPath(e.Aperto().Sfondo.File), QDir::cleanPath(file));
    QCOMPARE(e.Testo("SfondoXimmagine").toDouble(), Larghezza100dpi);
    robot.Agisce([](QDialog *sfoglia) { Preme(*sfoglia, "Command7"); });
    Preme(*e.editor, "SfondoSfoglia"); // unchanged: nothing is asked
    QVERIFY(robot.Soddisfatto());
}

void tst_Pagine::SfondoSfogliaDallaCartellaDelModello()
{
    EditorDiProva e;
    Modifica(e.prova.Stato(), [](Modello &modello) { modello.Sfondo.File.clear(); });
    QString aperta;
    Robot robot;
    robot.Agisce([&](QDialog *dialogo) {
        aperta = qobject_cast<Sfoglia *>(dialogo)->CartellaAperta();
        Preme(*dialogo, "Command7");
    });
    Preme(*e.editor, "SfondoSfoglia");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(aperta + QDir::separator(), e.prova.Stato().CartellaModelli);
    QVERIFY(e.Aperto().Sfondo.File.isEmpty());
}

void tst_Pagine::SfondoCaratteriDiControlloIntatti()
{
    EditorDiProva e;
    e.DaAprire().Sfondo.XPos = QStringLiteral("1\n2\x01");
    e.prova.Scrive();
    Form2 editor(e.prova.Stato());
    QVERIFY(editor.Form_Load());
    QCOMPARE(e.Aperto().Sfondo.XPos, QStringLiteral("1\n2\x01"));
}

QTEST_MAIN(tst_Pagine)
#include "tst_Pagine.moc"
