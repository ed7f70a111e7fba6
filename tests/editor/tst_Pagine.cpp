#include "PagineDiProva.h"
#include "documento/Passo.h"
#include "editor/Form2.h"
#include "preview/Frm1.h"
#include "support/Finestre.h"
#include "support/Robot.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

class tst_Pagine : public QObject
{
    Q_OBJECT
private slots:
    void RigheMostrateColPunto();
    void ConfermaScriveEAllinea();
    void ConfermaTestoSenzaNumeroDaZero();
    void SimulazioneAccesaESpenta();
    void SimulazioneConUnNumeroTroppoGrande_data();
    void SimulazioneConUnNumeroTroppoGrande();
    void SimulazioneSegueGliAltriComandi();
    void InvioConfermaLeRighe();
    void NumeroTroppoGrande();
    void TooltipDellePagine();
    void SpostamentoPredefinito();
    void LaDidascaliaStaSopraLeQuattroOpzioni();
    void SpostamentoCampi_data();
    void SpostamentoCampi();
    void SpostamentoConLaVirgola();
    void SpostamentoCorniciEImmagini_data();
    void SpostamentoCorniciEImmagini();
    void SpostamentoMuoveGliEliminati();
    void TestiDelloSpostamento();
};

void tst_Pagine::RigheMostrateColPunto()
{
    const QLocale precedente;
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    PagineDiProva e;
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
    PagineDiProva e;
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
    PagineDiProva e;
    e.Scrive("yInizio", QStringLiteral("abc"));
    e.Scrive("Interlinea", QStringLiteral("4,5"));
    Preme(*e.editor, "ConfermaPosizioneRighe");
    QCOMPARE(e.Aperto().Righe.yInizio, 0.0);
    QCOMPARE(e.Aperto().Righe.Interlinea, 4.0);
}

void tst_Pagine::SimulazioneAccesaESpenta()
{
    PagineDiProva e;
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

void tst_Pagine::SimulazioneConUnNumeroTroppoGrande_data()
{
    QTest::addColumn<QByteArray>("casella");
    for (const char *casella : {"yInizio", "yFine", "Interlinea", "InterlineaDescr"}) {
        QTest::newRow(casella) << QByteArray(casella);
    }
}

void tst_Pagine::SimulazioneConUnNumeroTroppoGrande()
{
    QFETCH(const QByteArray, casella);
    PagineDiProva e;
    const auto elementi = [&] {
        const auto tutti = Trova<QGraphicsView>(*e.editor->Anteprima(), "P1")->scene()->items();
        return std::count_if(tutti.begin(), tutti.end(),
                             [](const QGraphicsItem *i) { return i->isVisible(); });
    };
    const auto prima = elementi();
    e.Scrive("yFine", QStringLiteral("130"));
    auto *simulo = Trova<QCheckBox>(*e.editor, "OptSimuloRighe");
    simulo->click();
    const auto conRighe = elementi();
    QVERIFY(conRighe > prima);
    const Modello modello = e.Aperto();
    e.Scrive(casella.constData(), QStringLiteral("1e999"));
    Robot robot;
    robot.Ok();
    simulo->click();
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!simulo->isChecked());
    QCOMPARE(elementi(), prima);
    // Ticked again it shows the rows that the model has; the number was refused with its message.
    robot.Ok();
    simulo->click();
    QVERIFY(robot.Soddisfatto());
    QVERIFY(simulo->isChecked());
    QCOMPARE(elementi(), conRighe);
    QVERIFY(e.Aperto() == modello);
}

void tst_Pagine::SimulazioneSegueGliAltriComandi()
{
    PagineDiProva e;
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
    PagineDiProva e;
    e.Scrive("yInizio", QStringLiteral("120"));
    QTest::keyClick(Trova<QLineEdit>(*e.editor, "yInizio"), Qt::Key_Return);
    QCOMPARE(e.Aperto().Righe.yInizio, 120.0);
}

void tst_Pagine::NumeroTroppoGrande()
{
    PagineDiProva e;
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
    PagineDiProva e;
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
    PagineDiProva e;
    QCOMPARE(e.Testo("Spostamento"), QStringLiteral("1"));
    QVERIFY(!Trova<QCheckBox>(*e.editor, "OptSimuloRighe")->isChecked());
}

void tst_Pagine::LaDidascaliaStaSopraLeQuattroOpzioni()
{
    PagineDiProva e;
    e.editor->show();
    Trova<QTabWidget>(*e.editor, "SSTab1")->setCurrentIndex(4);
    QCoreApplication::processEvents();
    const auto *didascalia = Trova<QLabel>(*e.editor, "EtichettaDxSx");
    QCOMPARE(didascalia->text(), QStringLiteral("sposta tutto dx/sx"));
    const QRect posto = didascalia->geometry();
    for (const char *opzione : {"OptDx", "OptSx", "OptSu", "OptGiu"}) {
        const QRect sotto = Trova<QWidget>(*e.editor, opzione)->geometry();
        QVERIFY2(posto.bottom() < sotto.top(), opzione);
        QVERIFY2(posto.left() <= sotto.left() && posto.right() >= sotto.right(), opzione);
    }
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
    PagineDiProva e;
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
    PagineDiProva e;
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
    PagineDiProva e;
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
    PagineDiProva e;
    Passo(e.prova.Stato().documento, {}).Elimina({Genere::Campo, 2});
    Preme(*e.editor, "OptDx");
    Preme(*e.editor, "Command2");
    QCOMPARE(e.Aperto().Campi[2].X, 21.0);
    QVERIFY(!ElementoAnteprima(*e.editor->Anteprima(), QStringLiteral("C1(2)"))->isVisible());
}

void tst_Pagine::TestiDelloSpostamento()
{
    PagineDiProva e;
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

QTEST_MAIN(tst_Pagine)
#include "tst_Pagine.moc"
