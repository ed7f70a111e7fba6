#include "PagineDiProva.h"
#include "editor/Form2.h"
#include "finestre/Sfoglia.h"
#include "preview/Frm1.h"
#include "support/DocumentoDiProva.h"
#include "support/Finestre.h"
#include "support/Robot.h"

#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QTabWidget>
#include <QTest>

namespace {

constexpr double Larghezza100dpi = 200; // mm

} // namespace

class tst_PaginaSfondo : public QObject
{
    Q_OBJECT
private slots:
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
    void SfondoConfermatoSenzaScelta_data();
    void SfondoConfermatoSenzaScelta();
    void SfondoCaratteriDiControlloIntatti();
};

void tst_PaginaSfondo::SfondoMostraITestiDelModello()
{
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoQuattroPressioniDueMillimetri()
{
    const QLocale precedente;
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoSpentoNonSiVede()
{
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoDimezzato()
{
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoRispostaNonNumerica()
{
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoDomandaAnnullata()
{
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoTastoDestroTogliIlFile()
{
    PagineDiProva e;
    e.Scrive("SfondoFileImmagine", QStringLiteral("qualcosa.bmp"));
    auto *visualizza = Trova<QCheckBox>(*e.editor, "VisualizzaImmagineSfondo");
    const bool prima = visualizza->isChecked();
    QTest::mouseClick(visualizza, Qt::RightButton);
    QVERIFY(e.Testo("SfondoFileImmagine").isEmpty());
    QVERIFY(e.Aperto().Sfondo.File.isEmpty());
    QCOMPARE(visualizza->isChecked(), prima);
}

void tst_PaginaSfondo::SfondoFuocoSelezionaTutto_data()
{
    QTest::addColumn<QByteArray>("casella");
    QTest::newRow("larghezza") << QByteArray("SfondoXimmagine");
    QTest::newRow("altezza") << QByteArray("SfondoYImmagine");
}

void tst_PaginaSfondo::SfondoFuocoSelezionaTutto()
{
    QFETCH(const QByteArray, casella);
    PagineDiProva e;
    e.editor->show();
    QVERIFY(RendeAttiva(*e.editor));
    Trova<QTabWidget>(*e.editor, "SSTab1")->setCurrentIndex(5);
    auto *riga = Trova<QLineEdit>(*e.editor, casella.constData());
    riga->setText(QStringLiteral("210"));
    Trova<QAbstractButton>(*e.editor, "Command8")->setFocus();
    QTest::mouseClick(riga, Qt::LeftButton);
    QTRY_COMPARE(riga->selectedText(), QStringLiteral("210"));
    QTest::keyClicks(riga, QStringLiteral("9"));
    QCOMPARE(riga->text(), QStringLiteral("9"));
}

void tst_PaginaSfondo::SfondoFileMancante()
{
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoFileGuasto()
{
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoSiSpostaSulFoglio()
{
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoSceltoConSfoglia()
{
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoSfogliaDallaCartellaDelModello()
{
    PagineDiProva e;
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

void tst_PaginaSfondo::SfondoConfermatoSenzaScelta_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("file che non c'e'") << QStringLiteral("/manca/modulo.bmp");
    QTest::newRow("nessun file") << QString();
}

void tst_PaginaSfondo::SfondoConfermatoSenzaScelta()
{
    QFETCH(const QString, file);
    PagineDiProva e;
    Modifica(e.prova.Stato(), [&](Modello &modello) { modello.Sfondo.File = file; });
    e.prova.Stato().documento.Salvato();
    for (const QString &ultimo : {QString(), QStringLiteral("/altra/scansione.bmp")}) {
        RisultatoSfoglia() = ultimo; // of an earlier visit
        Robot robot;
        robot.Agisce([](QDialog *sfoglia) { Preme(*sfoglia, "Command8"); });
        Preme(*e.editor, "SfondoSfoglia");
        QVERIFY(robot.Soddisfatto());
        QCOMPARE(e.Aperto().Sfondo.File, file);
        QVERIFY(!e.editor->Variato());
    }
}

void tst_PaginaSfondo::SfondoCaratteriDiControlloIntatti()
{
    PagineDiProva e;
    e.DaAprire().Sfondo.XPos = QStringLiteral("1\n2\x01");
    e.prova.Scrive();
    Form2 editor(e.prova.Stato());
    QVERIFY(editor.Form_Load());
    QCOMPARE(e.Aperto().Sfondo.XPos, QStringLiteral("1\n2\x01"));
}

QTEST_MAIN(tst_PaginaSfondo)
#include "tst_PaginaSfondo.moc"
