// The text boxes of the editor: what they show, and what the commands take from them.

#include "editor/EditoreDiProva.h"
#include "model/FileModello.h"
#include "support/ImmaginiDiProva.h"

#include <QTabWidget>

using Controlli::MostraLInizio;
using Controlli::VerificaVentiRighe;

namespace {

/// Types a text into a box in the place of its own.
void Scrive(QLineEdit &casella, const QString &testo)
{
    casella.selectAll();
    QTest::keyClicks(&casella, testo);
}

/// Takes the typing back until the box shows the text again.
void AnnullaFinoA(QLineEdit &casella, const QString &testo)
{
    for (int i = 0; i < 100 && casella.text() != testo; ++i) {
        QTest::keyClick(&casella, Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(casella.text(), testo);
}

/// Opens the editor over a red scan of 40 x 40 mm that is shown, its corner at (20, 150).
void ApreSullaScansione(EditoreDiProva &prova)
{
    prova.Archivio.DaAprire().Sfondo = {ScriveScansione(prova.Archivio, 40, 40),
                                        QStringLiteral("40"),
                                        QStringLiteral("40"),
                                        QStringLiteral("20"),
                                        QStringLiteral("150"),
                                        1};
    QVERIFY(prova.Apre());
    QCOMPARE(ColoreDelFoglio(*prova.Editor, 30, 170), QColor(Qt::red));
}

} // namespace

class tst_CaselleEditor : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void SeguePagAnnullatoValeComeSiVede();
    void SeguePagNonToccatoTieneIlSuoTesto();
    void NumeriDelleRigheNonToccatiRestanoEsatti();
    void TipoAnnullatoValeComeSiVede();
    void SfondoAnnullatoDopoUnoZoomSiRidisegna();
    void INumeriLunghiMostranoLInizio();
    void LaMisuraCalcolataMostraLInizio();
    void LaSelezioneAllEntrataMostraLInizio();
    void EntrandoDaTastieraSiVedeLInizio();
    void PercentualeTroppoGrandeRifiutataComeNumero_data();
    void PercentualeTroppoGrandeRifiutataComeNumero();
    void NumeroTroppoGrandeDellaScansioneDettoUnaVolta_data();
    void NumeroTroppoGrandeDellaScansioneDettoUnaVolta();
    void NumeroTroppoGrandeDettoAllaSpinta();
    void ColoriFuoriDallaTavolozzaSonoNeri();
    void IlFuocoNascondeLaManigliaDelGenere_data();
    void IlFuocoNascondeLaManigliaDelGenere();
    void GliElenchiSiApronoSuVentiRighe_data();
    void GliElenchiSiApronoSuVentiRighe();
};

void tst_CaselleEditor::SeguePagAnnullatoValeComeSiVede()
{
    EditorAperto prova(1);
    auto *casella = Trova<QLineEdit>(prova.Editor(), "SeguePag");
    const QString mostrato = casella->text();
    QCOMPARE(mostrato, QString(Modello::SeguePagPredefinito));
    Scrive(*casella, QStringLiteral("continua"));
    Preme(prova.Editor(), "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe.SeguePag, QStringLiteral("continua"));
    AnnullaFinoA(*casella, mostrato);
    Preme(prova.Editor(), "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe.SeguePag, mostrato);
    Robot robot;
    robot.Si();
    Preme(prova.Editor(), "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Riletto().Righe.SeguePag, mostrato);
}

void tst_CaselleEditor::SeguePagNonToccatoTieneIlSuoTesto()
{
    ArchivioDiProva prova;
    const QString nascosto = QStringLiteral("segue\x01\n") + QString(40000, u'è');
    prova.DaAprire().Righe.SeguePag = nascosto;
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Preme(editor, "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe.SeguePag, nascosto);
    prova.Stato().documento.Salvato();
}

void tst_CaselleEditor::NumeriDelleRigheNonToccatiRestanoEsatti()
{
    EditorAperto prova;
    ParametriRighe &righe = prova.DaAprire().Righe;
    righe.yInizio = 1.0 / 3; // more digits than its text has
    righe.Interlinea = -1e-20;
    prova.Scrive();
    const QByteArray prima = FileModello::Componi(prova.Riletto(), QLocale::c());
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    const ParametriRighe lette = prova.Aperto().Righe;
    Preme(editor, "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe, lette);
    QCOMPARE(FileModello::Componi(prova.Aperto(), QLocale::c()), prima);
    prova.Stato().documento.Salvato();
    prova.Stato().documento.Salvato();
}

void tst_CaselleEditor::TipoAnnullatoValeComeSiVede()
{
    EditorAperto prova;
    auto *casella = Trova<QLineEdit>(prova.Editor(), "Tipo");
    const QString mostrato = casella->text();
    Scrive(*casella, QStringLiteral("bolla"));
    QCOMPARE(prova.Aperto().Tipo, QStringLiteral("bolla"));
    AnnullaFinoA(*casella, mostrato);
    QCOMPARE(prova.Aperto().Tipo, mostrato);
    prova.Stato().documento.Salvato();
}

void tst_CaselleEditor::SfondoAnnullatoDopoUnoZoomSiRidisegna()
{
    EditoreDiProva prova;
    ApreSullaScansione(prova);
    auto *casella = Trova<QLineEdit>(*prova.Editor, "SfondoXPosImm");
    Scrive(*casella, QStringLiteral("100"));
    prova.Zoom(QStringLiteral("2")); // draws the scan where the half-finished text says
    QCOMPARE(ColoreDelFoglio(*prova.Editor, 60, 85), QColor(Qt::red));
    AnnullaFinoA(*casella, QStringLiteral("20"));
    QTest::keyClick(casella, Qt::Key_Return);
    prova.Foto();
    QCOMPARE(prova.Archivio.Aperto().Sfondo.XPos, QStringLiteral("20"));
    QCOMPARE(ColoreDelFoglio(*prova.Editor, 15, 85), QColor(Qt::red));
    QCOMPARE(ColoreDelFoglio(*prova.Editor, 60, 85), QColor(Qt::white));
    prova.Archivio.Stato().documento.Salvato();
}

void tst_CaselleEditor::INumeriLunghiMostranoLInizio()
{
    EditoreDiProva prova;
    Modello &modello = prova.Archivio.DaAprire();
    constexpr double Lungo = -1.23456789012345e-105;
    const QString testo = QStringLiteral("123456789012345678901234567890");
    modello.Righe = {Lungo, Lungo, Lungo, Lungo, testo};
    modello.Sfondo = {testo, testo, testo, testo, testo, 0};
    modello.Tipo = testo;
    QVERIFY(prova.Apre());
    for (const char *nome :
         {"yInizio", "yFine", "Interlinea", "InterlineaDescr", "SeguePag", "SfondoFileImmagine",
          "SfondoXimmagine", "SfondoYImmagine", "SfondoXPosImm", "SfondoYPosImm", "Tipo"}) {
        auto *casella = Trova<QLineEdit>(*prova.Editor, nome);
        QVERIFY2(MostraLInizio(*casella),
                 qPrintable(QString::fromLatin1(nome) + u' ' + casella->text()));
    }
}

void tst_CaselleEditor::LaMisuraCalcolataMostraLInizio()
{
    EditoreDiProva prova;
    prova.Archivio.DaAprire().Sfondo.File = ScriveScansione(prova.Archivio, 40, 40);
    prova.Archivio.DaAprire().Sfondo.Visualizza = 1;
    prova.Archivio.DaAprire().Sfondo.XPos = QStringLiteral("1.123456789012");
    QVERIFY(prova.Apre());
    Robot robot;
    robot.Digita(QStringLiteral("33.3333333333333"));
    Preme(*prova.Editor, "Command8");
    QVERIFY(robot.Soddisfatto());
    Preme(*prova.Editor, "SfondoSpostaDx");
    for (const char *nome : {"SfondoXimmagine", "SfondoYImmagine", "SfondoXPosImm"}) {
        QVERIFY2(MostraLInizio(*Trova<QLineEdit>(*prova.Editor, nome)), nome);
    }
    prova.Archivio.Stato().documento.Salvato();
}

void tst_CaselleEditor::LaSelezioneAllEntrataMostraLInizio()
{
    EditoreDiProva prova;
    const QString lungo = QStringLiteral("123456789012345678901234567890");
    prova.Archivio.DaAprire().Sfondo.Ximmagine = lungo;
    QVERIFY(prova.Apre());
    Trova<QTabWidget>(*prova.Editor, "SSTab1")->setCurrentIndex(5);
    QVERIFY(RendeAttiva(*prova.Editor));
    auto *casella = Trova<QLineEdit>(*prova.Editor, "SfondoXimmagine");
    casella->setFocus();
    QTRY_COMPARE(casella->selectedText(), lungo);
    QVERIFY(MostraLInizio(*casella));
}

void tst_CaselleEditor::EntrandoDaTastieraSiVedeLInizio()
{
    EditoreDiProva prova;
    prova.Archivio.DaAprire().Tipo = QString(200, u'T');
    QVERIFY(prova.Apre());
    QVERIFY(RendeAttiva(*prova.Editor));
    auto *casella = Trova<QLineEdit>(*prova.Editor, "Tipo");
    Trova<QWidget>(*prova.Editor, "StampaRetino")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(casella->hasFocus());
    QCOMPARE(casella->selectedText(), casella->text());
    QVERIFY(MostraLInizio(*casella));
}

void tst_CaselleEditor::PercentualeTroppoGrandeRifiutataComeNumero_data()
{
    QTest::addColumn<QString>("risposta");
    QTest::newRow("oltre un doppio") << QStringLiteral("1e400");
    QTest::newRow("misura oltre un doppio") << QStringLiteral("1e308");
}

void tst_CaselleEditor::PercentualeTroppoGrandeRifiutataComeNumero()
{
    QFETCH(QString, risposta);
    EditoreDiProva prova;
    const ImmagineSfondo sfondo{ScriveScansione(prova.Archivio, 40, 40),
                                QStringLiteral("40"),
                                QStringLiteral("40"),
                                QStringLiteral("20"),
                                QStringLiteral("150"),
                                1};
    prova.Archivio.DaAprire().Sfondo = sfondo;
    QVERIFY(prova.Apre());
    Robot robot;
    robot.Digita(risposta).Ok();
    Preme(*prova.Editor, "Command8");
    QVERIFY2(robot.Soddisfatto(), "one mistake, one box");
    QCOMPARE(robot.Testi().value(1),
             QStringLiteral("Percentuale: «%1» è un numero troppo grande").arg(risposta));
    QCOMPARE(prova.Archivio.Aperto().Sfondo, sfondo);
    QCOMPARE(ColoreDelFoglio(*prova.Editor, 30, 170), QColor(Qt::red));
    QVERIFY(!prova.Editor->Variato());
}

void tst_CaselleEditor::NumeroTroppoGrandeDellaScansioneDettoUnaVolta_data()
{
    QTest::addColumn<QByteArray>("casella");
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QByteArray>("freccia"); // one that reads the box, where there is one
    QTest::newRow("X") << QByteArray("SfondoXPosImm") << QStringLiteral("posizione X")
                       << QByteArray("SfondoSpostaDx");
    QTest::newRow("Y") << QByteArray("SfondoYPosImm") << QStringLiteral("posizione Y")
                       << QByteArray("SfondoSpostaGiu");
    QTest::newRow("larghezza") << QByteArray("SfondoXimmagine") << QStringLiteral("dimensioni X")
                               << QByteArray("SfondoSpostaDx");
    QTest::newRow("altezza") << QByteArray("SfondoYImmagine") << QStringLiteral("dimensioni Y")
                             << QByteArray("SfondoSpostaDx");
}

void tst_CaselleEditor::NumeroTroppoGrandeDellaScansioneDettoUnaVolta()
{
    QFETCH(QByteArray, casella);
    QFETCH(QString, nome);
    QFETCH(QByteArray, freccia);
    EditoreDiProva prova;
    ApreSullaScansione(prova);
    Trova<QTabWidget>(*prova.Editor, "SSTab1")->setCurrentIndex(5);
    auto *riga = Trova<QLineEdit>(*prova.Editor, casella.constData());
    const auto scrive = [riga](const QString &testo) {
        Scrive(*riga, testo);
        QTest::keyClick(riga, Qt::Key_Return);
    };
    Robot robot;
    robot.Ok();
    scrive(QStringLiteral("1e400"));
    prova.Zoom(QStringLiteral("2"));
    Preme(*prova.Editor, freccia.constData());
    prova.Zoom(QStringLiteral("1"));
    QVERIFY2(robot.Soddisfatto(), "one mistake, one box");
    QCOMPARE(robot.Testi(),
             QStringList{nome + QStringLiteral(": «1e400» è un numero troppo grande")});
    QCOMPARE(riga->text(), QStringLiteral("1e400"));
    QCOMPARE(ColoreDelFoglio(*prova.Editor, 30, 170), QColor(Qt::white));
    scrive(QStringLiteral("30"));
    QVERIFY(robot.Soddisfatto());
    robot.Ok();
    scrive(QStringLiteral("1e400")); // another mistake
    QVERIFY(robot.Soddisfatto());
    prova.Archivio.Stato().documento.Salvato();
}

void tst_CaselleEditor::NumeroTroppoGrandeDettoAllaSpinta()
{
    // Nothing is drawn, so only the arrow reads the box.
    EditoreDiProva prova;
    prova.Archivio.DaAprire().Sfondo.XPos = QStringLiteral("-1e400");
    QVERIFY(prova.Apre());
    Robot robot;
    robot.Ok();
    Preme(*prova.Editor, "SfondoSpostaSx");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(),
             QStringList{QStringLiteral("posizione X: «-1e400» è un numero troppo grande")});
    QCOMPARE(prova.Archivio.Aperto().Sfondo.XPos, QStringLiteral("-1e400"));
    QVERIFY(!prova.Editor->Variato());
}

void tst_CaselleEditor::ColoriFuoriDallaTavolozzaSonoNeri()
{
    EditoreDiProva prova;
    prova.Archivio.AggiungeCornice(QStringLiteral("Riquadro"), 50, 60, 40, 20);
    Cornice &cornice = prova.Archivio.DaAprire().Cornici[1];
    cornice.Bordo = 1.9;
    cornice.ColoreCornice = 4;
    QVERIFY(prova.Apre());
    const auto rosso = [&] { return ColoreDelFoglio(*prova.Editor, 70, 60); };
    QVERIFY(rosso() != QColor(Qt::black));
    for (const char *testo : {"99", "-7", "32767"}) {
        Robot robot;
        robot.Agisce([testo](QDialog *d) {
            Trova<QLineEdit>(*d, "ColoreCorn")->setText(QString::fromLatin1(testo));
            Trova<QLineEdit>(*d, "ColoreTesto")->setText(QString::fromLatin1(testo));
            Preme(*d, "Command1");
        });
        prova.ApreProprieta(Genere::Cornice, 1);
        QVERIFY(robot.Soddisfatto());
        QCOMPARE(int(prova.Archivio.Aperto().Cornici[1].ColoreCornice), QByteArray(testo).toInt());
        prova.Foto();
        QCOMPARE(rosso(), QColor(Qt::black));
        QCOMPARE(prova.Stampa(), QStringList());
    }
    prova.Archivio.Stato().documento.Salvato();
}

void tst_CaselleEditor::IlFuocoNascondeLaManigliaDelGenere_data()
{
    QTest::addColumn<QByteArray>("combo");
    QTest::addColumn<int>("pagina");
    QTest::addColumn<QString>("nascosto");
    QTest::newRow("ComboCampi") << QByteArray("ComboCampi") << 0 << QStringLiteral("S1");
    QTest::newRow("ComboCornici") << QByteArray("ComboCornici") << 2 << QStringLiteral("S2");
    QTest::newRow("ComboImmagini") << QByteArray("ComboImmagini") << 3 << QStringLiteral("S3");
}

void tst_CaselleEditor::IlFuocoNascondeLaManigliaDelGenere()
{
    QFETCH(QByteArray, combo);
    QFETCH(int, pagina);
    QFETCH(QString, nascosto);
    EditoreDiProva prova;
    prova.Archivio.Riempie(1);
    QVERIFY(prova.Apre());
    QVERIFY(RendeAttiva(*prova.Editor));
    Trova<QTabWidget>(*prova.Editor, "SSTab1")->setCurrentIndex(pagina);
    Trova<QLineEdit>(*prova.Editor, "Tipo")->setFocus();
    Frm1 &anteprima = *prova.Editor->Anteprima();
    for (const Genere genere : Generi) {
        anteprima.Seleziona(genere, 1);
    }
    Trova<QComboBox>(*prova.Editor, combo.constData())->setFocus();
    for (const QString &maniglia :
         {QStringLiteral("S1"), QStringLiteral("S2"), QStringLiteral("S3")}) {
        QCOMPARE(ElementoAnteprima(anteprima, maniglia)->isVisible(), maniglia != nascosto);
    }
}

void tst_CaselleEditor::GliElenchiSiApronoSuVentiRighe_data()
{
    QTest::addColumn<QByteArray>("combo");
    QTest::addColumn<int>("pagina");
    QTest::newRow("ComboCampi") << QByteArray("ComboCampi") << 0;
    QTest::newRow("ComboCornici") << QByteArray("ComboCornici") << 2;
    QTest::newRow("ComboImmagini") << QByteArray("ComboImmagini") << 3;
}

void tst_CaselleEditor::GliElenchiSiApronoSuVentiRighe()
{
    QFETCH(QByteArray, combo);
    QFETCH(int, pagina);
    EditoreDiProva prova;
    prova.Archivio.Riempie(100);
    QVERIFY(prova.Apre());
    Trova<QTabWidget>(*prova.Editor, "SSTab1")->setCurrentIndex(pagina);
    auto *elenco = Trova<QComboBox>(*prova.Editor, combo.constData());
    VerificaVentiRighe(*elenco);
}

QTEST_MAIN(tst_CaselleEditor)
#include "tst_CaselleEditor.moc"
