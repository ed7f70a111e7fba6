#include "EditoreDiProva.h"
#include "editor/Form2.h"
#include "preview/Frm1.h"
#include "support/ArchivioDiProva.h"
#include "support/DocumentoDiProva.h"
#include "support/Finestre.h"
#include "support/Robot.h"

#include <QCloseEvent>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>
#include <QtTest/qtestspontaneevent.h>

namespace {

/// A field that has gone to x mm in the open model, but not in its file.
class CampoSpostato : public EditorAperto
{
public:
    explicit CampoSpostato(double x)
        : EditorAperto(1)
    {
        Modifica(Stato(), [x](Modello &modello) { modello.Campi[1].X = x; });
    }
};

} // namespace

class tst_Form2Chiusura : public QObject
{
    Q_OBJECT
private slots:
    void SalvaChiedeSempre();
    void NoLasciaVariato();
    void SiScriveEAzzeraVariato();
    void TipoFinisceNelFile();
    void ChiusuraSenzaVariazioniNonChiede();
    void ChiusuraConVariazioniChiedeESalva();
    void ChiusuraConNoNonScrive();
    void SalvataggioFallitoTieneApertoLEditor();
    void ChiudereLAnteprimaChiudeLEditor();
    void ChiusuraDuranteLaDomanda();
};

void tst_Form2Chiusura::SalvaChiedeSempre()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    Robot robot;
    robot.Si();
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("salvare le variazioni")});
    QCOMPARE(robot.Predefiniti(), QStringList{QStringLiteral("&Sì")});
    QCOMPARE(robot.Titoli(), QStringList{QStringLiteral("Plakera")});
}

void tst_Form2Chiusura::NoLasciaVariato()
{
    CampoSpostato prova(99);
    Form2 &editor = prova.Editor();
    const QByteArray prima = prova.ByteDelFile();
    Robot robot;
    robot.No();
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(editor.Variato());
    QCOMPARE(prova.ByteDelFile(), prima);
}

void tst_Form2Chiusura::SiScriveEAzzeraVariato()
{
    CampoSpostato prova(99);
    Form2 &editor = prova.Editor();
    Robot robot;
    robot.Si();
    Preme(editor, "Salva");
    QVERIFY(!editor.Variato());
    QCOMPARE(prova.Riletto().Campi[1].X, 99.0);
}

void tst_Form2Chiusura::TipoFinisceNelFile()
{
    ArchivioDiProva prova;
    prova.DaAprire().Tipo = QStringLiteral("Fattura");
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    auto *tipo = Trova<QLineEdit>(editor, "Tipo");
    QCOMPARE(tipo->text(), QStringLiteral("Fattura"));
    tipo->setCursorPosition(7);
    QTest::keyClicks(tipo, QStringLiteral(" B"));
    QVERIFY(editor.Variato());
    Robot robot;
    robot.Si();
    Preme(editor, "Salva");
    QCOMPARE(prova.Riletto().Tipo, QStringLiteral("Fattura B"));
}

void tst_Form2Chiusura::ChiusuraSenzaVariazioniNonChiede()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    QSignalSpy chiuso(&editor, &Form2::Chiuso);
    Robot robot;
    QVERIFY(editor.close());
    QCOMPARE(chiuso.count(), 1);
    QVERIFY(robot.Testi().isEmpty());
    QVERIFY(!editor.Anteprima()->isVisible());
}

void tst_Form2Chiusura::ChiusuraConVariazioniChiedeESalva()
{
    CampoSpostato prova(55);
    Form2 &editor = prova.Editor();
    editor.show();
    QVERIFY(editor.Variato());
    Robot robot;
    robot.Si();
    QVERIFY(editor.close());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("salvare le variazioni")});
    QCOMPARE(prova.Riletto().Campi[1].X, 55.0);
}

void tst_Form2Chiusura::ChiusuraConNoNonScrive()
{
    ArchivioDiProva prova;
    prova.Scrive();
    const QByteArray prima = prova.ByteDelFile();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    editor.show();
    prova.Stato().documento.SegnaVariato();
    Modifica(prova.Stato(), [&](Modello &modello) { modello.Tipo = QStringLiteral("altro"); });
    Robot robot;
    robot.No();
    QVERIFY(editor.close());
    QCOMPARE(prova.ByteDelFile(), prima);
}

void tst_Form2Chiusura::SalvataggioFallitoTieneApertoLEditor()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    prova.Stato().documento.SegnaVariato();
    // The archive's folder is gone: not even root can write there.
    QVERIFY(QDir(prova.Stato().CartellaModelli).removeRecursively());
    Robot robot;
    robot.Si().Ok();
    QVERIFY(!editor.close());
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().constLast().startsWith(QStringLiteral("errore 76 ")),
             qPrintable(robot.Testi().constLast()));
    QVERIFY(editor.isVisible());
    QVERIFY(editor.Variato());
    prova.Stato().documento.Salvato();
}

void tst_Form2Chiusura::ChiudereLAnteprimaChiudeLEditor()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    editor.Anteprima()->show();
    prova.Stato().documento.SegnaVariato();
    QSignalSpy chiuso(&editor, &Form2::Chiuso);
    Robot robot;
    robot.No();
    // As the window system sends it; a close() of the program's own is no request of the user's.
    QCloseEvent chiusura;
    QSpontaneKeyEvent::setSpontaneous(&chiusura);
    qApp->notify(editor.Anteprima(), &chiusura);
    QTRY_COMPARE(chiuso.count(), 1);
    QVERIFY(robot.Soddisfatto());
}

void tst_Form2Chiusura::ChiusuraDuranteLaDomanda()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    prova.Stato().documento.SegnaVariato();
    QVERIFY(QDir(prova.Stato().CartellaModelli).removeRecursively());
    Robot robot;
    // The window manager's close of the editor comes while the question of the preview's is open.
    robot.Agisce([&](QDialog *domanda) {
        QCloseEvent seconda;
        QSpontaneKeyEvent::setSpontaneous(&seconda);
        qApp->notify(&editor, &seconda);
        QVERIFY(!seconda.isAccepted());
        qobject_cast<QMessageBox *>(domanda)->button(QMessageBox::Yes)->click();
    });
    robot.Ok();
    emit editor.Anteprima()->ChiusuraRichiesta();
    QTRY_VERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().size(), 2); // the question once, and the error of the failed save
    QVERIFY(editor.isVisible());
    prova.Stato().documento.Salvato();
}

QTEST_MAIN(tst_Form2Chiusura)
#include "tst_Form2Chiusura.moc"
