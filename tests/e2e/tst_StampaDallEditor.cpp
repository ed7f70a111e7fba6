#include "ProvaInCoda.h"
#include "editor/StoriaDiProva.h"
#include "support/Rettangoli.h"

#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QTimer>

namespace {

QString Striscia(const Form2 &editor)
{
    return Trova<QLabel>(*editor.Anteprima(), "Text1")->text();
}

/// Writes a name into the window that asks for one, and saves.
std::function<void(QDialog *)> Salva(const QString &nome)
{
    return [nome](QDialog *finestra) {
        auto *casella = Trova<QLineEdit>(*finestra, "fileNameEdit");
        casella->setText(nome);
        QTest::keyClick(casella, Qt::Key_Return);
    };
}

/// A picture that no compression makes small.
QImage Rumore(int lato, quint32 seme)
{
    QImage rumore(lato, lato, QImage::Format_RGB32);
    QRandomGenerator caso(seme);
    for (int y = 0; y < lato; ++y) {
        caso.fillRange(reinterpret_cast<quint32 *>(rumore.scanLine(y)), lato);
    }
    return rumore;
}

/// Beats while the windows answer.
class Battito
{
public:
    Battito()
    {
        QObject::connect(&orologio_, &QTimer::timeout, &orologio_, [this] { ++colpi_; });
        orologio_.start(10);
    }
    bool HaBattuto() const { return colpi_ > 10; }

private:
    QTimer orologio_;
    int colpi_ = 0;
};

const auto NonRisponde =
    QStringLiteral("errore 482 Il sistema di stampa non risponde.\nControllare la stampante e "
                   "ripetere; nulla è stato stampato.");

} // namespace

/// What the editor's print commands bring to a real queue.
class tst_StampaDallEditor : public QObject, private ProvaInCoda
{
    Q_OBJECT
private slots:
    void initTestCase() { AvviaServer(); }
    void init();
    void laStrisciaDiceDoveEAndata();
    void ilPdfEIlFoglioParolaPerParola_data();
    void ilPdfEIlFoglioParolaPerParola();
    void dallaVistaSiStampaDopoLaDomanda();
    void unaLungaStampaSiAnnulla();
    void unLungoPdfSiAnnulla();
    void laVistaSiPuoNonAspettare();
    void ilSistemaBloccatoSiLascia_data();
    void ilSistemaBloccatoSiLascia();
    void ilSistemaBloccatoNonFermaLeFinestre();
    void laConsegnaSiLasciaSenzaSapere();
    void laConsegnaCheNonRispondeSiDice();

private:
    /// Six pictures that take seconds to be put on a page.
    static void Appesantisce(ArchivioDiProva &archivio);
    /// Cancels what shows its progress; gives how far it was, in hundredths.
    static std::function<void(QDialog *)> Smette(int &centesimi);

    QTemporaryDir cartella_;
};

void tst_StampaDallEditor::init()
{
    if (coda_) {
        coda_->Aggiunge(Prova, {});
        coda_->Predefinita(Prova);
    }
}

void tst_StampaDallEditor::Appesantisce(ArchivioDiProva &archivio)
{
    constexpr int Lato = 2200; // pixels of 90 mm at the finest that is printed
    constexpr int Figure = 6;
    for (int i = 0; i < Figure; ++i) {
        const QString nome = QStringLiteral("rumore%1.bmp").arg(i);
        ImmaginiDiProva::Scrive(archivio.Stato().CartellaModelli + nome,
                                ImmaginiDiProva::InFormato(Rumore(Lato, quint32(i)), "bmp"));
        const int riga = i / 2;
        archivio.AggiungeImmagine(nome, 5 + 95 * (i % 2), 5 + 95 * riga, 90, 90);
    }
}

std::function<void(QDialog *)> tst_StampaDallEditor::Smette(int &centesimi)
{
    return [&centesimi](QDialog *attesa) {
        centesimi = attesa->findChild<QProgressBar *>()->value();
        attesa->findChild<QPushButton *>()->click();
    };
}

void tst_StampaDallEditor::laStrisciaDiceDoveEAndata()
{
    EditorAperto prova(1);
    Robot robot;
    robot.No().Ok(); // the picture of the model has no file
    ::Preme(prova.Editor(), "Stampa");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(Striscia(prova.Editor()), QStringLiteral("Stampa di prova inviata a Prova"));
    QVERIFY(!UnicoFoglio().Inchiostro().isEmpty());
    ::Preme(prova.Editor(), "StampaRetino");
    QCOMPARE(Striscia(prova.Editor()), QStringLiteral("Griglia millimetrata inviata a Prova"));
    QVERIFY(!UnicoFoglio().Inchiostro().isEmpty());
    // A question without an answer prints nothing, and says so by saying nothing new.
    robot.Annulla();
    ::Preme(prova.Editor(), "Stampa");
    QCOMPARE(Striscia(prova.Editor()), QStringLiteral("Griglia millimetrata inviata a Prova"));
}

void tst_StampaDallEditor::ilPdfEIlFoglioParolaPerParola_data()
{
    QTest::addColumn<QString>("modello");
    const QDir campione(QStringLiteral(CARTELLA_CAMPIONE "/Contabilita/ini"));
    const QStringList modelli = campione.entryList({QStringLiteral("*.Mod")}, QDir::Files);
    for (const QString &nome : modelli) {
        QTest::addRow("%s", qPrintable(nome)) << nome;
    }
    QVERIFY(!modelli.isEmpty());
}

void tst_StampaDallEditor::ilPdfEIlFoglioParolaPerParola()
{
    QFETCH(QString, modello);
    StatoProgramma stato;
    stato.CartellaModelli = QStringLiteral(CARTELLA_CAMPIONE "/Contabilita/ini/");
    stato.NomeFile = modello;
    coda_->Aggiunge(Prova, {10.3, 7.6, 20.9, 30.2}); // fractions of a point too
    Form2 editor(stato);
    Robot robot;
    QVERIFY(editor.Form_Load());
    const QString file = cartella_.filePath(modello + QStringLiteral(".pdf"));
    robot.Agisce(Salva(file));
    ::Preme(editor, "EsportaPdf");
    QCOMPARE(Striscia(editor), QStringLiteral("Esportato in ") + file);
    robot.No();
    ::Preme(editor, "Stampa");
    QVERIFY(robot.Soddisfatto());
    UnicoFoglio();
    const LettorePdf pdf(file);
    const LettorePdf stampato(coda_->Documento());
    QVERIFY(Vicini(pdf.Foglio().width(), stampato.Foglio().width(), 0.01));
    QVERIFY(Vicini(pdf.Foglio().height(), stampato.Foglio().height(), 0.01));
    QVERIFY(!pdf.Parole().isEmpty());
    QCOMPARE(pdf.Testi(), stampato.Testi());
    for (qsizetype i = 0; i < pdf.Parole().size(); ++i) {
        QVERIFY2(Vicini(pdf.Parole().at(i).Millimetri, stampato.Parole().at(i).Millimetri, 0.02),
                 qPrintable(pdf.Parole().at(i).Testo));
    }
    QCOMPARE(pdf.Immagini(), stampato.Immagini());
    stato.documento.Salvato();
}

void tst_StampaDallEditor::dallaVistaSiStampaDopoLaDomanda()
{
    EditorAperto prova;
    Robot robot;
    QString stampante;
    QString esito;
    robot.Agisce([&](QDialog *vista) {
        stampante = Trova<QLabel>(*vista, "Stampante")->text();
        Trova<QPushButton>(*vista, "StampaDiProva")->click();
        esito = Trova<QLabel>(*vista, "Avvisi")->text();
        vista->reject();
    });
    robot.Si();
    ::Preme(prova.Editor(), "VediStampa");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(stampante,
             QStringLiteral("Stampante: Prova\nCarta: 210 x 297 mm\nArea stampabile: 201.5 x "
                            "287.1 mm"));
    QCOMPARE(robot.Testi().at(1),
             QStringLiteral("stampo il 'NOME' dei campi invece del 'TESTO DI PROVA'"));
    QCOMPARE(esito, QStringLiteral("Stampa di prova inviata a Prova"));
    QCOMPARE(Striscia(prova.Editor()), esito);
    QCOMPARE(coda_->Fogli().size(), 1);
}

void tst_StampaDallEditor::unaLungaStampaSiAnnulla()
{
    EditorSulModello prova(Appesantisce);
    QVERIFY(prova.caricato);
    Robot robot;
    int centesimi = -1;
    robot.No().AgisceSuAttesa(Smette(centesimi));
    ::Preme(*prova.editor, "Stampa");
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(centesimi > 0 && centesimi < 100, QByteArray::number(centesimi));
    QCOMPARE(Striscia(*prova.editor),
             QStringLiteral("Stampa di prova annullata: il foglio non uscirà"));
    QVERIFY(coda_->Fogli().isEmpty());
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
}

void tst_StampaDallEditor::unLungoPdfSiAnnulla()
{
    EditorSulModello prova(Appesantisce);
    QVERIFY(prova.caricato);
    const QString file = cartella_.filePath(QStringLiteral("lungo.pdf"));
    const QStringList prima = QDir(cartella_.path()).entryList(QDir::Files);
    Robot robot;
    int centesimi = -1;
    robot.Agisce(Salva(file)).AgisceSuAttesa(Smette(centesimi));
    ::Preme(*prova.editor, "EsportaPdf");
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(centesimi > 0, QByteArray::number(centesimi));
    QCOMPARE(Striscia(*prova.editor),
             QStringLiteral("Esportazione annullata: nessun file è stato scritto"));
    QCOMPARE(QDir(cartella_.path()).entryList(QDir::Files), prima);
}

void tst_StampaDallEditor::laVistaSiPuoNonAspettare()
{
    EditorSulModello prova(Appesantisce);
    QVERIFY(prova.caricato);
    // Without waiting it comes at once or after its progress; either way it can be left.
    Robot robot;
    robot.AgisceSuAttesa([](QDialog *finestra) {
        auto *annulla = finestra->objectName() == QStringLiteral("AttesaDiStampa")
                            ? finestra->findChild<QPushButton *>()
                            : Trova<QPushButton>(*finestra, "Chiudi");
        annulla->click();
    });
    ::Preme(*prova.editor, "VediStampa");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    QVERIFY(coda_->Fogli().isEmpty());
}

void tst_StampaDallEditor::ilSistemaBloccatoSiLascia_data()
{
    QTest::addColumn<QString>("bottone");
    QTest::addColumn<QString>("detto");
    QTest::newRow("test print") << QStringLiteral("Stampa")
                                << QStringLiteral(
                                       "Stampa di prova annullata: il foglio non uscirà");
    QTest::newRow("grid") << QStringLiteral("StampaRetino")
                          << QStringLiteral("Griglia millimetrata annullata: il foglio non uscirà");
    QTest::newRow("view") << QStringLiteral("VediStampa") << QString();
}

void tst_StampaDallEditor::ilSistemaBloccatoSiLascia()
{
    QFETCH(QString, bottone);
    QFETCH(QString, detto);
    EditorAperto prova;
    Robot robot;
    if (bottone == QStringLiteral("Stampa")) {
        robot.No();
    }
    QString attesa;
    robot.AgisceSuAttesa([&](QDialog *riquadro) {
        attesa = riquadro->findChild<QLabel *>()->text();
        riquadro->findChild<QPushButton *>()->click();
    });
    coda_->SiBlocca();
    const auto riprende = qScopeGuard([this] { coda_->Riprende(); });
    const Battito battito;
    ::Preme(prova.Editor(), qPrintable(bottone));
    QVERIFY(battito.HaBattuto());
    coda_->Riprende();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(attesa, QStringLiteral("In attesa del sistema di stampa..."));
    QCOMPARE(Striscia(prova.Editor()), detto);
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    QVERIFY(coda_->Fogli().isEmpty());
}

void tst_StampaDallEditor::ilSistemaBloccatoNonFermaLeFinestre()
{
    EditorAperto prova;
    Robot robot;
    bool modale = false;
    robot.No()
        .AgisceSuAttesa(
            [&](QDialog *riquadro) { modale = riquadro->windowModality() == Qt::ApplicationModal; })
        .Ok();
    coda_->SiBlocca();
    const auto riprende = qScopeGuard([this] { coda_->Riprende(); });
    const Battito battito;
    ::Preme(prova.Editor(), "Stampa");
    QVERIFY(battito.HaBattuto());
    QVERIFY(robot.Soddisfatto());
    QVERIFY(modale); // the model that is printed is not to change
    QCOMPARE(robot.Testi().constLast(), NonRisponde);
    QCOMPARE(Striscia(prova.Editor()), QString());
}

void tst_StampaDallEditor::laConsegnaSiLasciaSenzaSapere()
{
    EditorSulModello prova([](ArchivioDiProva &archivio) {
        archivio.AggiungeCampo(QStringLiteral("Fuori"), 500, 10);
    });
    QVERIFY(prova.caricato);
    Robot robot;
    robot.No()
        .Agisce([this](QDialog *avviso) { // while the sheet is painted
            coda_->SiBlocca();
            avviso->accept();
        })
        .AgisceSuAttesa([](QDialog *riquadro) { riquadro->findChild<QPushButton *>()->click(); });
    const auto riprende = qScopeGuard([this] { coda_->Riprende(); });
    const Battito battito;
    ::Preme(*prova.editor, "Stampa");
    QVERIFY(battito.HaBattuto());
    coda_->Riprende();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().at(1), QStringLiteral("x"));
    QCOMPARE(Striscia(*prova.editor),
             QStringLiteral("Stampa di prova interrotta: non si sa se il foglio uscirà"));
    coda_->Fogli(); // it may have come
    robot.No().Ok();
    ::Preme(*prova.editor, "Stampa");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(Striscia(*prova.editor), QStringLiteral("Stampa di prova inviata a Prova"));
    QVERIFY(!coda_->Fogli().isEmpty());
}

void tst_StampaDallEditor::laConsegnaCheNonRispondeSiDice()
{
    EditorSulModello prova([](ArchivioDiProva &archivio) {
        archivio.AggiungeCampo(QStringLiteral("Fuori"), 500, 10);
    });
    QVERIFY(prova.caricato);
    Robot robot;
    robot.No()
        .Agisce([this](QDialog *avviso) {
            coda_->SiBlocca();
            avviso->accept();
        })
        .Ok();
    const auto riprende = qScopeGuard([this] { coda_->Riprende(); });
    const Battito battito;
    ::Preme(*prova.editor, "Stampa");
    QVERIFY(battito.HaBattuto());
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constLast(),
             QStringLiteral("errore 482 Il sistema di stampa non risponde: non si sa se il foglio "
                            "uscirà.\nControllare la stampante e ripetere."));
    coda_->Riprende();
    coda_->Fogli();
}

QTEST_MAIN(tst_StampaDallEditor)
#include "tst_StampaDallEditor.moc"
