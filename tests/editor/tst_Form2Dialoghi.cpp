#include "EditoreDiProva.h"
#include "dialogs/FrmCampo.h"
#include "dialogs/FrmCornice.h"
#include "editor/Form2.h"
#include "preview/Frm1.h"
#include "print/Stampanti.h"
#include "support/DocumentoDiProva.h"
#include "support/Finestre.h"
#include "support/ModelloDiProva.h"
#include "support/Robot.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>

namespace {

/// The editor over a field, a frame and an image, two of the kind where that matters.
class EditorDiProva : public EditorSulModello
{
public:
    EditorDiProva()
        : EditorSulModello([](ArchivioDiProva &modello) {
            modello.AggiungeCampo(QStringLiteral("Data"), 20, 30);
            modello.AggiungeCampo(QStringLiteral("Totale"), 60, 30);
            modello.AggiungeCornice(QStringLiteral("Riquadro"), 30, 40, 20, 10);
            modello.AggiungeCornice(QStringLiteral("Scritta"), 30, 60, 20, 10);
            modello.AggiungeImmagine(QStringLiteral("logo.bmp"), 40, 50, 20, 10);
            DiventaImporto(modello.DaAprire().Campi[2]);
        })
    {
    }

    QGraphicsObject *Controllo(const char *nome)
    {
        return ElementoAnteprima(*editor->Anteprima(), QString::fromLatin1(nome));
    }
};

QString Testo(QDialog *dialogo, const char *nome)
{
    return Trova<QLineEdit>(*dialogo, nome)->text();
}

} // namespace

class tst_Form2Dialoghi : public QObject
{
    Q_OBJECT
private slots:
    void ComandoSuTuttiLaManigliaNominaIlSuo_data();
    void ComandoSuTuttiLaManigliaNominaIlSuo();
    void IlCampoRiempieIlDialogo();
    void CampoNonStampato();
    void ConfermaAggiornaAnteprimaEVoce();
    void MascheraPredefinitaRipresa();
    void EliminaCampo();
    void EliminaCornice();
    void EliminaImmagine();
    void FontSconosciutoDiventaArial();
    void FontCheSiVedeResta_data();
    void FontCheSiVedeResta();
    void DimensioneFuoriElencoNonSiSceglie();
    void DimensioniConUnaCifra();
    void MascheraFuoriCatalogo();
    void FontSuTuttiICampi();
    void DialogoDentroLoSchermo_data();
    void DialogoDentroLoSchermo();
    void IndiceZeroNonApre();
    void FontSuTutteLeCorniciTieneLaManiglia();
    void SenzaArialNellElenco();
    void CambioPaginaDallAnteprimaTieneLaManiglia();
};

void tst_Form2Dialoghi::IlCampoRiempieIlDialogo()
{
    EditorDiProva e;
    QVERIFY(e.caricato);
    Robot robot;
    robot.Agisce([](QDialog *d) {
        QCOMPARE(d->windowTitle(), QStringLiteral("Modifica impostazioni Campo"));
        QCOMPARE(Testo(d, "Num"), QStringLiteral("2"));
        QCOMPARE(Testo(d, "Nome"), QStringLiteral("Totale"));
        QCOMPARE(Testo(d, "Testo"), QStringLiteral("1.234,50"));
        QCOMPARE(Testo(d, "Maschera"), QStringLiteral("###.###,###"));
        QCOMPARE(Testo(d, "MascheraDefault"), QStringLiteral("###.###,###"));
        QCOMPARE(Testo(d, "X"), QStringLiteral("60"));
        QCOMPARE(Testo(d, "Y"), QStringLiteral("30"));
        QVERIFY(Trova<QCheckBox>(*d, "Bold")->isChecked());
        QCOMPARE(Trova<QComboBox>(*d, "ComboFont")->currentText(), QStringLiteral("Arial"));
        QCOMPARE(Trova<QComboBox>(*d, "ComboDim")->currentText(), QStringLiteral(" 9"));
        QCOMPARE(Trova<QComboBox>(*d, "ComboMask")->currentText(),
                 QStringLiteral("###.###,### 2 decimali"));
        QCOMPARE(Trova<QAbstractButton>(*d, "NonStampaCampo")->text().remove(u'&'),
                 QStringLiteral("non stampare campo"));
        d->reject();
    });
    e.editor->ApreFrmCampo(2);
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!e.editor->Variato());
}

void tst_Form2Dialoghi::CampoNonStampato()
{
    EditorDiProva e;
    Modifica(e.prova.Stato(),
             [&](Modello &modello) { modello.Campi[2].Maschera = QStringLiteral("No"); });
    Robot robot;
    robot.Agisce([](QDialog *d) {
        QCOMPARE(Trova<QAbstractButton>(*d, "NonStampaCampo")->text().remove(u'&'),
                 QStringLiteral("ripristina stampa campo"));
        QCOMPARE(Trova<QComboBox>(*d, "ComboMask")->currentText(), QStringLiteral("No non stampa"));
        d->reject();
    });
    e.editor->ApreFrmCampo(2);
    QVERIFY(robot.Soddisfatto());
}

void tst_Form2Dialoghi::ConfermaAggiornaAnteprimaEVoce()
{
    EditorDiProva e;
    Robot robot;
    robot.Agisce([](QDialog *d) {
        Trova<QLineEdit>(*d, "Nome")->setText(QStringLiteral("Importo"));
        Trova<QLineEdit>(*d, "X")->setText(QStringLiteral("70.4"));
        Preme(*d, "PConfemaCampo");
    });
    e.editor->ApreFrmCampo(2);
    QVERIFY(robot.Soddisfatto());
    QVERIFY(e.editor->Variato());
    QCOMPARE(e.Aperto().Campi[2].X, 70.0); // the placing rounds to whole millimetres
    QCOMPARE(e.Controllo("C1(2)")->pos().x(), 70.0);
    QCOMPARE(Trova<QComboBox>(*e.editor, "ComboCampi")->currentText(), QStringLiteral("Importo"));
    QCOMPARE(Voci(*e.editor, "ComboCampi").value(2), QStringLiteral("Importo"));
}

void tst_Form2Dialoghi::MascheraPredefinitaRipresa()
{
    EditorDiProva e;
    Modifica(e.prova.Stato(),
             [&](Modello &modello) { modello.Campi[2].Maschera = QStringLiteral("No"); });
    Robot robot;
    robot.Agisce([](QDialog *d) { Preme(*d, "NonStampaCampo"); });
    e.editor->ApreFrmCampo(2);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(e.Aperto().Campi[2].Maschera, QStringLiteral("###.###,###"));
    static const QRegularExpression esempio(QStringLiteral("^\\d{3}\\.\\d{3},\\d{2}$"));
    QVERIFY2(esempio.match(e.Aperto().Campi[2].Testo).hasMatch(),
             qPrintable(e.Aperto().Campi[2].Testo));
}

void tst_Form2Dialoghi::EliminaCampo()
{
    EditorDiProva e;
    e.editor->Anteprima()->SelezionaCampo(1);
    Robot robot;
    robot.Agisce([](QDialog *d) { Preme(*d, "PEliminaCampo"); }).Si();
    e.editor->ApreFrmCampo(1);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().value(1), QStringLiteral("Elimino il campo Data"));
    QVERIFY(e.editor->Variato());
    QCOMPARE(Trova<QComboBox>(*e.editor, "ComboCampi")->currentText(),
             QStringLiteral(" ELIMINATO: Data"));
    QVERIFY(!e.Controllo("C1(1)")->isVisible());
    QVERIFY(!e.Controllo("S1")->isVisible());
    QCOMPARE(e.Aperto().NumCampi, qint16(2));
    Preme(*e.editor, "VariazioneCampo"); // an item that is deleted opens nothing
    QCOMPARE(robot.Testi().size(), 2);
}

void tst_Form2Dialoghi::EliminaCornice()
{
    EditorDiProva e;
    Robot robot;
    robot.Agisce([](QDialog *d) { Preme(*d, "Elimina"); }).Si();
    e.editor->ApreFrmCornice(2);
    QCOMPARE(robot.Testi().value(1), QStringLiteral("Elimino Cornice Scritta"));
    QCOMPARE(Voci(*e.editor, "ComboCornici").value(2), QStringLiteral(" ELIMINATO: Scritta"));
    QVERIFY(!e.Controllo("C2(2)")->isVisible());
    QVERIFY(e.Aperto().Cornici[2].Nome.isEmpty());
}

void tst_Form2Dialoghi::EliminaImmagine()
{
    EditorDiProva e;
    Robot robot;
    robot.Agisce([](QDialog *d) { Preme(*d, "Elimina"); }).Si();
    e.editor->ApreFrmImmagine(1);
    QCOMPARE(robot.Testi().value(1), QStringLiteral("Elimino Immagine logo.bmp"));
    QCOMPARE(Voci(*e.editor, "ComboImmagini").value(1), QStringLiteral(" ELIMINATO: logo.bmp"));
    QVERIFY(!e.Controllo("C3(1)")->isVisible());
}

void tst_Form2Dialoghi::FontSconosciutoDiventaArial()
{
    EditorDiProva e;
    Modifica(e.prova.Stato(),
             [&](Modello &modello) { modello.Campi[2].Font = QStringLiteral("Inesistente"); });
    Robot robot;
    robot.Ok().Agisce([](QDialog *d) {
        QCOMPARE(Trova<QComboBox>(*d, "ComboFont")->currentText(), QStringLiteral("Arial"));
        d->reject();
    });
    e.editor->ApreFrmCampo(2);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constFirst(),
             QStringLiteral("font Inesistente non esistente: verrà impostato Arial"));
    QCOMPARE(e.Aperto().Campi[2].Font, QStringLiteral("Inesistente"));
}

void tst_Form2Dialoghi::FontCheSiVedeResta_data()
{
    QTest::addColumn<QString>("font");
    QTest::newRow("sostituito alla pari") << QStringLiteral("Times New Roman");
    if (const auto nimbus = QStringLiteral("Nimbus Sans"); QFontDatabase::hasFamily(nimbus)) {
        QTest::newRow("di due fonderie") << nimbus;
    }
}

void tst_Form2Dialoghi::FontCheSiVedeResta()
{
    QFETCH(QString, font);
    EditorDiProva e;
    e.prova.Stato().ElencoFont = Stampanti::ElencoFont();
    Modifica(e.prova.Stato(), [&](Modello &modello) { modello.Cornici[2].Font = font; });
    Robot robot;
    robot.Agisce([](QDialog *d) { Preme(*d, "Confema"); });
    e.editor->ApreFrmCornice(2);
    QVERIFY2(robot.Soddisfatto(), "no box says that the font is missing");
    QCOMPARE(e.Aperto().Cornici[2].Font, font);
}

void tst_Form2Dialoghi::DimensioneFuoriElencoNonSiSceglie()
{
    EditorDiProva e;
    Modifica(e.prova.Stato(), [&](Modello &modello) { modello.Cornici[1].Dimensione = 60; });
    Robot robot;
    robot.Agisce([](QDialog *d) {
        QCOMPARE(Trova<QComboBox>(*d, "ComboDim")->currentIndex(), -1);
        d->reject();
    });
    e.editor->ApreFrmCornice(1);
    QVERIFY(robot.Soddisfatto());
}

void tst_Form2Dialoghi::DimensioniConUnaCifra()
{
    EditorDiProva e;
    FrmCornice dialogo(e.prova.Stato(), nullptr);
    dialogo.RiempieComboImpostazioni();
    e.editor->SettaFont(dialogo, QStringLiteral("DejaVu Sans"), QStringLiteral("6"));
    QCOMPARE(dialogo.Font()->currentText(), QStringLiteral("DejaVu Sans"));
    QCOMPARE(dialogo.Dimensioni()->currentText(), QStringLiteral(" 6"));
    e.editor->SettaFont(dialogo, QStringLiteral("Arial"), QStringLiteral("40"));
    QCOMPARE(dialogo.Dimensioni()->currentText(), QStringLiteral("40"));
}

void tst_Form2Dialoghi::MascheraFuoriCatalogo()
{
    EditorDiProva e;
    Modifica(e.prova.Stato(),
             [&](Modello &modello) { modello.Campi[1].Maschera = QStringLiteral("##/##/####"); });
    Robot robot;
    robot.Agisce([](QDialog *d) {
        QCOMPARE(Trova<QComboBox>(*d, "ComboMask")->currentIndex(), -1);
        QCOMPARE(Testo(d, "Maschera"), QStringLiteral("##/##/####"));
        d->reject();
    });
    e.editor->ApreFrmCampo(1);
    QVERIFY(robot.Soddisfatto());
}

void tst_Form2Dialoghi::FontSuTuttiICampi()
{
    EditorDiProva e;
    Robot robot;
    robot.Agisce([](QDialog *d) {
        auto *font = Trova<QComboBox>(*d, "ComboFont");
        font->setCurrentIndex(font->findText(QStringLiteral("DejaVu Sans")));
        Preme(*d, "Command2");
        d->reject();
    });
    e.editor->ApreFrmCampo(2);
    QVERIFY(robot.Soddisfatto());
    for (int k = 1; k <= 2; ++k) {
        QCOMPARE(e.Aperto().Campi[k].Font, QStringLiteral("DejaVu Sans"));
        QCOMPARE(e.Aperto().Campi[k].Dimensione, qint16(9));
        QCOMPARE(e.Aperto().Campi[k].Grassetto, Vero);
    }
    QVERIFY(e.editor->Variato());
}

void tst_Form2Dialoghi::DialogoDentroLoSchermo_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("campo") << Genere::Campo;
    QTest::newRow("cornice") << Genere::Cornice;
    QTest::newRow("immagine") << Genere::Immagine;
}

void tst_Form2Dialoghi::DialogoDentroLoSchermo()
{
    QFETCH(const Genere, genere);
    EditorDiProva e;
    e.editor->show();
    Robot robot;
    robot.Agisce([](QDialog *d) {
        const QRect schermo = d->screen()->availableGeometry();
        // The offscreen screen is 800 pixels wide; a dialog that fits stands inside it.
        QVERIFY2(d->pos().x() >= schermo.left() && d->pos().y() >= schermo.top() &&
                     d->frameGeometry().right() <= schermo.right() &&
                     d->frameGeometry().bottom() <= schermo.bottom(),
                 qPrintable(QStringLiteral("%1,%2").arg(d->pos().x()).arg(d->pos().y())));
        d->reject();
    });
    switch (genere) {
    case Genere::Campo:
        e.editor->ApreFrmCampo(1);
        break;
    case Genere::Cornice:
        e.editor->ApreFrmCornice(1);
        break;
    case Genere::Immagine:
        e.editor->ApreFrmImmagine(1);
        break;
    }
    QVERIFY(robot.Soddisfatto());
}

void tst_Form2Dialoghi::IndiceZeroNonApre()
{
    EditorDiProva e;
    Robot robot;
    e.editor->ApreFrmCampo(0);
    e.editor->ApreFrmCornice(0);
    e.editor->ApreFrmImmagine(0);
    QVERIFY(robot.Testi().isEmpty());
}

void tst_Form2Dialoghi::FontSuTutteLeCorniciTieneLaManiglia()
{
    EditorDiProva e;
    e.editor->Anteprima()->SelezionaCornice(1);
    Robot robot;
    robot.Agisce([](QDialog *d) { Preme(*d, "Command2"); });
    e.editor->ApreFrmCornice(1);
    QVERIFY(robot.Soddisfatto());
    QVERIFY(e.Controllo("S2")->isVisible());
    QCOMPARE(e.Controllo("S2")->pos(), e.Controllo("C2(1)")->pos());
    // The same after a bulk move, which places every frame.
    Preme(*e.editor, "OptGiu");
    Preme(*e.editor, "Command5");
    QCOMPARE(e.Controllo("S2")->pos(), e.Controllo("C2(1)")->pos());
}

void tst_Form2Dialoghi::SenzaArialNellElenco()
{
    EditorDiProva e;
    e.prova.Stato().ElencoFont = {QStringLiteral("DejaVu Sans")};
    Modifica(e.prova.Stato(),
             [&](Modello &modello) { modello.Campi[2].Font = QStringLiteral("Inesistente"); });
    Robot robot;
    robot.Ok().Agisce([](QDialog *d) { Preme(*d, "PConfemaCampo"); });
    e.editor->ApreFrmCampo(2);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(e.Aperto().Campi[2].Font, QStringLiteral("Arial"));
}

void tst_Form2Dialoghi::CambioPaginaDallAnteprimaTieneLaManiglia()
{
    EditorDiProva e;
    Frm1 &anteprima = *e.editor->Anteprima();
    // As a click on the image makes it, with the page of the fields in front.
    emit anteprima.ElementoPuntato(Genere::Immagine, 1);
    anteprima.SelezionaImmagine(1);
    emit anteprima.PaginaRichiesta(Genere::Immagine);
    QVERIFY(e.Controllo("S3")->isVisible());
    QCOMPARE(e.Controllo("S3")->pos(), e.Controllo("C3(1)")->pos());
}

void tst_Form2Dialoghi::ComandoSuTuttiLaManigliaNominaIlSuo_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QByteArray>("maniglia");
    QTest::addColumn<QByteArray>("dialogo");
    QTest::addColumn<QByteArray>("bottone");
    QTest::addColumn<QString>("nome");
    const QString campo = QStringLiteral("sposta campo R_Descr");
    const QString cornice = QStringLiteral("sposta Cornice Riquadro");
    const QByteArray nessuno;
    QTest::newRow("font dei campi") << Genere::Campo << QByteArray("S2") << QByteArray("Campo")
                                    << QByteArray("Command2") << campo;
    QTest::newRow("font delle cornici")
        << Genere::Cornice << QByteArray("S2") << QByteArray("Cornice") << QByteArray("Command2")
        << cornice;
    QTest::newRow("colori delle cornici")
        << Genere::Cornice << QByteArray("S2") << QByteArray("Cornice") << QByteArray("Command1")
        << cornice;
    QTest::newRow("spostamento dei campi")
        << Genere::Campo << QByteArray("S2") << nessuno << QByteArray("Command2") << campo;
    QTest::newRow("spostamento delle cornici")
        << Genere::Cornice << QByteArray("S2") << nessuno << QByteArray("Command5") << cornice;
    QTest::newRow("spostamento delle immagini")
        << Genere::Immagine << QByteArray("S3") << nessuno << QByteArray("Command6")
        << QStringLiteral("sposta Immagine logo.bmp");
    QTest::newRow("righe") << Genere::Campo << QByteArray("S2") << nessuno
                           << QByteArray("ConfermaPosizioneRighe") << campo;
}

void tst_Form2Dialoghi::ComandoSuTuttiLaManigliaNominaIlSuo()
{
    QFETCH(Genere, genere);
    QFETCH(QByteArray, maniglia);
    QFETCH(QByteArray, dialogo);
    QFETCH(QByteArray, bottone);
    QFETCH(QString, nome);
    ArchivioDiProva prova;
    prova.AggiungeCampo(QStringLiteral("R_Descr"), 20, 30);
    prova.AggiungeCampo(QStringLiteral("R_Qta"), 60, 30);
    prova.AggiungeCornice(QStringLiteral("Riquadro"), 30, 40, 20, 10);
    prova.AggiungeCornice(QStringLiteral("Scritta"), 30, 60, 20, 10);
    prova.AggiungeImmagine(QStringLiteral("logo.bmp"), 40, 50, 20, 10);
    prova.AggiungeImmagine(QStringLiteral("firma.bmp"), 40, 90, 20, 10);
    for (int k = 1; k <= 2; ++k) {
        prova.DaAprire().Campi[k].Font = QStringLiteral("Arial");
        prova.DaAprire().Cornici[k].Font = QStringLiteral("Arial");
        prova.DaAprire().Campi[k].Dimensione = 10;
        prova.DaAprire().Cornici[k].Dimensione = 10;
    }
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    editor.Anteprima()->Seleziona(genere, 1);
    Robot robot;
    if (dialogo.isEmpty()) {
        // The pages name some of their buttons alike.
        QWidget *pagina = &editor;
        if (bottone != "ConfermaPosizioneRighe") {
            pagina = Trova<QWidget>(editor, "Command6")->parentWidget();
        }
        Trova<QPushButton>(*pagina, bottone.constData())->click();
    } else {
        robot.Agisce([&](QDialog *d) {
            Trova<QPushButton>(*d, bottone.constData())->click();
            d->reject();
        });
        emit editor.Anteprima()->RichiestaProprieta(genere, 1);
    }
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(ElementoAnteprima(*editor.Anteprima(), QString::fromLatin1(maniglia))->toolTip(),
             nome);
    const auto posto = [&](const char *controllo) {
        return ElementoAnteprima(*editor.Anteprima(), QString::fromLatin1(controllo))->pos();
    };
    const char *const coppie[][2] = {{"S1", "C1(1)"}, {"S2", "C2(1)"}, {"S3", "C3(1)"}};
    const auto &coppia = coppie[static_cast<int>(genere)];
    QCOMPARE(posto(coppia[0]), posto(coppia[1]));
    prova.Stato().documento.Salvato();
}

QTEST_MAIN(tst_Form2Dialoghi)
#include "tst_Form2Dialoghi.moc"
