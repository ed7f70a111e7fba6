#include "PagineDiProva.h"
#include "documento/Passo.h"
#include "model/Numeri.h"

#include <QLabel>
#include <QToolTip>

namespace {

constexpr QLatin1String
    NonConfermato("non ancora nel modello: lo prende 'Conferma Posizione Righe'");

QString Avviso(const QWidget &finestra, const char *casella)
{
    return Trova<QLineEdit>(finestra, casella)->accessibleDescription();
}

} // namespace

/// What the editor says of work that is not in the model, or not in its file, yet.
class tst_CioCheENelModello : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale(QLocale::Italian)); }

    void IlSegnoDelleModifiche();
    void CtrlSSalvaComeIlBottone();
    void CtrlSNelMezzoDiUnGestoTace();
    void LeRigheNonConfermate_data();
    void LeRigheNonConfermate();
    void AnnullandoTornaSoloCioCheCambia();
    void AnnullandoTornaCioCheEStatoRiscritto();
    void UnAltroComandoLasciaCioCheEScritto();
    void SalvandoSiDiceCheCosaManca();
    void SalvandoTuttoNonSiDiceNulla();
    void LetturaTollerante_data();
    void LetturaTollerante();
    void LetturaTolleranteDiCioCheSiRitrova();
    void LetturaTolleranteDelleRighe();
};

void tst_CioCheENelModello::IlSegnoDelleModifiche()
{
    PagineDiProva prova;
    prova.editor->show();
    const auto *segno = Trova<QLabel>(*prova.editor, "NonSalvato");
    QCOMPARE(segno->text(), QStringLiteral("modifiche non salvate"));
    QVERIFY(!segno->isVisible());
    const QRect posto = Trova<QWidget>(*prova.editor, "Salva")->geometry();
    Preme(*prova.editor, "ConfermaPosizioneRighe");
    QVERIFY(segno->isVisible());
    QCOMPARE(Trova<QWidget>(*prova.editor, "Salva")->geometry(), posto); // it has its own room
    prova.prova.Stato().documento.Annulla();
    QVERIFY(segno->isVisible()); // as the question at closing has it
    Robot robot;
    robot.Si();
    Preme(*prova.editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!segno->isVisible());
}

void tst_CioCheENelModello::CtrlSSalvaComeIlBottone()
{
    PagineDiProva prova;
    prova.editor->show();
    prova.editor->Anteprima()->show();
    for (QWidget *finestra : {static_cast<QWidget *>(prova.editor.get()),
                              static_cast<QWidget *>(prova.editor->Anteprima())}) {
        QVERIFY(RendeAttiva(*finestra));
        Robot robot;
        robot.No();
        QTest::keyClick(finestra->windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(robot.Testi(), QStringList{QStringLiteral("salvare le variazioni")});
        QVERIFY(prova.editor->Variato());
    }
}

void tst_CioCheENelModello::CtrlSNelMezzoDiUnGestoTace()
{
    PagineDiProva prova;
    prova.editor->show();
    QVERIFY(RendeAttiva(*prova.editor));
    Robot robot;
    {
        const Passo gesto(prova.prova.Stato().documento, QStringLiteral("sposta"));
        QTest::keyClick(prova.editor->windowHandle(), Qt::Key_S, Qt::ControlModifier);
    }
    QVERIFY(robot.Soddisfatto()); // nothing was asked
}

void tst_CioCheENelModello::LeRigheNonConfermate_data()
{
    QTest::addColumn<QString>("casella");
    for (const char *nome : {"yInizio", "yFine", "Interlinea", "InterlineaDescr", "SeguePag"}) {
        QTest::newRow(nome) << QString::fromLatin1(nome);
    }
}

void tst_CioCheENelModello::LeRigheNonConfermate()
{
    QFETCH(QString, casella);
    PagineDiProva prova;
    prova.editor->show();
    const QByteArray nome = casella.toLatin1();
    const QString prima = prova.Testo(nome);
    QVERIFY(Avviso(*prova.editor, nome).isEmpty());
    prova.Scrive(nome, QStringLiteral("77"));
    QCOMPARE(Avviso(*prova.editor, nome), NonConfermato);
    // Typed back, or confirmed, it is in the model.
    prova.Scrive(nome, prima);
    QVERIFY(Avviso(*prova.editor, nome).isEmpty());
    prova.Scrive(nome, QStringLiteral("77"));
    Preme(*prova.editor, "ConfermaPosizioneRighe");
    QVERIFY(Avviso(*prova.editor, nome).isEmpty());
}

void tst_CioCheENelModello::AnnullandoTornaSoloCioCheCambia()
{
    PagineDiProva prova;
    prova.editor->show();
    Documento &documento = prova.prova.Stato().documento;
    const QString prima = prova.Testo("yInizio");
    prova.Scrive("yInizio", QStringLiteral("77"));
    Preme(*prova.editor, "ConfermaPosizioneRighe");
    prova.Scrive("yFine", QStringLiteral("99,5"));
    prova.Scrive("SeguePag", QStringLiteral("continua"));
    const auto scrittiRestano = [&] {
        return prova.Testo("yFine") == QStringLiteral("99,5") &&
               prova.Testo("SeguePag") == QStringLiteral("continua") &&
               Avviso(*prova.editor, "yFine").contains(NonConfermato) &&
               Avviso(*prova.editor, "SeguePag") == NonConfermato;
    };
    QVERIFY(scrittiRestano());
    documento.Annulla();
    QCOMPARE(prova.Testo("yInizio"), prima);
    QVERIFY(Avviso(*prova.editor, "yInizio").isEmpty());
    QVERIFY(scrittiRestano());
    documento.Ripristina();
    QCOMPARE(prova.Testo("yInizio"), QStringLiteral("77"));
    QVERIFY(scrittiRestano());
    // Confirmed after all, they are in the model, and go with their own step.
    documento.Annulla();
    Preme(*prova.editor, "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe.SeguePag, QStringLiteral("continua"));
    documento.Annulla();
    QVERIFY(prova.Testo("SeguePag") != QStringLiteral("continua"));
}

void tst_CioCheENelModello::AnnullandoTornaCioCheEStatoRiscritto()
{
    PagineDiProva prova;
    prova.editor->show();
    const QString prima = prova.Testo("yInizio");
    prova.Scrive("yInizio", QStringLiteral("77"));
    Preme(*prova.editor, "ConfermaPosizioneRighe");
    prova.Scrive("yInizio", QStringLiteral("88"));
    prova.prova.Stato().documento.Annulla();
    QCOMPARE(prova.Testo("yInizio"), prima); // the place that the undo is about
    QVERIFY(Avviso(*prova.editor, "yInizio").isEmpty());
}

void tst_CioCheENelModello::UnAltroComandoLasciaCioCheEScritto()
{
    PagineDiProva prova;
    prova.editor->show();
    prova.Scrive("Interlinea", QStringLiteral("7,5"));
    {
        ParametriRighe righe = prova.Aperto().Righe;
        righe.yInizio += 3;
        Passo passo(prova.prova.Stato().documento, QStringLiteral("corregge"));
        passo.ImpostaRighe(righe);
    }
    QCOMPARE(prova.Testo("yInizio"),
             Numeri::NumeroPiano(prova.Aperto().Righe.yInizio, QLocale::c()));
    QVERIFY(Avviso(*prova.editor, "yInizio").isEmpty());
    QCOMPARE(prova.Testo("Interlinea"), QStringLiteral("7,5"));
    QVERIFY(Avviso(*prova.editor, "Interlinea").contains(NonConfermato));
}

void tst_CioCheENelModello::SalvandoSiDiceCheCosaManca()
{
    PagineDiProva prova;
    prova.editor->show();
    prova.editor->Anteprima()->show();
    prova.Scrive("yFine", QStringLiteral("77"));
    prova.Scrive("SeguePag", QStringLiteral("continua"));
    Robot robot;
    robot.Si();
    Preme(*prova.editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!prova.editor->Variato());
    QCOMPARE(Trova<QLabel>(*prova.editor->Anteprima(), "Text1")->text(),
             QStringLiteral("fine righe, scritta 'segue su pagina successiva': non confermati, "
                            "non salvati"));
    QVERIFY(prova.Aperto().Righe.yFine != 77);
    Preme(*prova.editor, "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe.yFine, 77.0);
    QCOMPARE(Trova<QLabel>(*prova.editor->Anteprima(), "Text1")->text(), QString());
}

void tst_CioCheENelModello::SalvandoTuttoNonSiDiceNulla()
{
    PagineDiProva prova;
    prova.editor->show();
    prova.Scrive("yFine", QStringLiteral("77"));
    Preme(*prova.editor, "ConfermaPosizioneRighe");
    Robot robot;
    robot.Si();
    Preme(*prova.editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!Trova<QLabel>(*prova.editor->Anteprima(), "Text1")
                 ->text()
                 .contains(QStringLiteral("confermati")));
}

void tst_CioCheENelModello::LetturaTollerante_data()
{
    QTest::addColumn<QString>("casella");
    QTest::addColumn<bool>("nellAnteprima");
    for (const char *nome :
         {"Spostamento", "SfondoXimmagine", "SfondoYImmagine", "SfondoXPosImm", "SfondoYPosImm"}) {
        QTest::newRow(nome) << QString::fromLatin1(nome) << false;
    }
    QTest::newRow("TextZoom") << QStringLiteral("TextZoom") << true;
}

void tst_CioCheENelModello::LetturaTollerante()
{
    QFETCH(QString, casella);
    QFETCH(bool, nellAnteprima);
    PagineDiProva prova;
    const QByteArray nome = casella.toLatin1();
    const QWidget &finestra =
        nellAnteprima ? static_cast<const QWidget &>(*prova.editor->Anteprima()) : *prova.editor;
    auto *riga = Trova<QLineEdit>(finestra, nome);
    riga->selectAll();
    riga->insert(QStringLiteral("1,5"));
    QCOMPARE(riga->text(), QStringLiteral("1,5"));
    QCOMPARE(Avviso(finestra, nome), QStringLiteral("si legge 1: usare il punto"));
    riga->selectAll();
    riga->insert(QStringLiteral("1.5"));
    QVERIFY(Avviso(finestra, nome).isEmpty());
}

void tst_CioCheENelModello::LetturaTolleranteDiCioCheSiRitrova()
{
    PagineDiProva prova;
    auto *riga = Trova<QLineEdit>(*prova.editor, "SfondoXPosImm");
    riga->selectAll();
    riga->insert(QStringLiteral("7.5"));
    QTest::keyClick(riga, Qt::Key_Return);
    riga->selectAll();
    riga->insert(QStringLiteral("7,5"));
    QTest::keyClick(riga, Qt::Key_Return);
    QCOMPARE(Avviso(*prova.editor, "SfondoXPosImm"), QStringLiteral("si legge 7: usare il punto"));
    // Boxes that follow undo and redo are filled without telling: their marks follow all the same.
    Preme(*prova.editor, "Annulla");
    QVERIFY(!riga->text().contains(u','));
    QVERIFY(Avviso(*prova.editor, "SfondoXPosImm").isEmpty());
    Preme(*prova.editor, "Ripristina");
    QCOMPARE(riga->text(), QStringLiteral("7,5"));
    QCOMPARE(Avviso(*prova.editor, "SfondoXPosImm"), QStringLiteral("si legge 7: usare il punto"));
}

void tst_CioCheENelModello::LetturaTolleranteDelleRighe()
{
    PagineDiProva prova;
    prova.Scrive("Interlinea", QStringLiteral("7,5"));
    QCOMPARE(Avviso(*prova.editor, "Interlinea"),
             QStringLiteral("si legge 7: usare il punto; ") + NonConfermato);
    Preme(*prova.editor, "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe.Interlinea, 7.0);
    QCOMPARE(Avviso(*prova.editor, "Interlinea"), QStringLiteral("si legge 7: usare il punto"));
    QCOMPARE(prova.Testo("Interlinea"), QStringLiteral("7,5"));
}

QTEST_MAIN(tst_CioCheENelModello)
#include "tst_CioCheENelModello.moc"
