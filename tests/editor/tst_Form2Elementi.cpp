#include "Form2DiProva.h"
#include "base/ErroreSistema.h"
#include "editor/Form2.h"
#include "preview/Frm1.h"
#include "support/ArchivioDiProva.h"
#include "support/DocumentoDiProva.h"
#include "support/Finestre.h"
#include "support/Generi.h"
#include "support/Robot.h"

#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

class tst_Form2Elementi : public QObject
{
    Q_OBJECT
private slots:
    void CampoAggiuntoConAnteprimaScorsa();
    void TerzoCampoSiChiamaNuovocampo3();
    void CorniceAggiunta();
    void ImmagineAggiunta();
    void CentunesimoElementoErrore9_data();
    void CentunesimoElementoErrore9();
    void DopoIlCentunesimoSiSalvanoICento();
    void VoceEliminataNonSiApre();
    void ChiHaNomeDiEliminatoSiVede_data() { RighePerGenere(); }
    void ChiHaNomeDiEliminatoSiVede();
    void SeparatoreNonApreNulla();
    void CambioPaginaNascondeLeManiglie();
    void FuocoSulComboNascondeLaManiglia();
    void LAnteprimaGuidaComboEPagina();
    void NuovoCampoDavantiATutti();
    void CambioPaginaRiordina();
};

void tst_Form2Elementi::CampoAggiuntoConAnteprimaScorsa()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    Trova<QScrollBar>(*editor.Anteprima(), "ScrollX")->setValue(40);
    Trova<QScrollBar>(*editor.Anteprima(), "ScrollY")->setValue(60);
    Robot robot;
    robot.Annulla();
    Preme(editor, "Aggiungicampo");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("FrmCampo")});
    const Campo &campo = prova.Aperto().Campi[1];
    QCOMPARE(campo.X, 50.0);
    QCOMPARE(campo.Y, 70.0);
    QCOMPARE(campo.Nome, QStringLiteral("nuovocampo1"));
    QCOMPARE(campo.Maschera, QString(30, u'$'));
    QCOMPARE(campo.Font, QStringLiteral("Arial"));
    QCOMPARE(campo.Dimensione, qint16(11));
    QCOMPARE(Trova<QComboBox>(editor, "ComboCampi")->currentIndex(), 1);
    QVERIFY(editor.Variato());
    QVERIFY(Controllo(editor, QStringLiteral("S1"))->isVisible());
    prova.Stato().documento.Salvato();
}

void tst_Form2Elementi::TerzoCampoSiChiamaNuovocampo3()
{
    ArchivioDiProva prova;
    prova.AggiungeCampo(QStringLiteral("a"), 10, 10);
    prova.AggiungeCampo(QStringLiteral("b"), 10, 20);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Robot robot;
    robot.Annulla();
    Preme(editor, "Aggiungicampo");
    QCOMPARE(prova.Aperto().Campi[3].Nome, QStringLiteral("nuovocampo3"));
    QCOMPARE(Trova<QComboBox>(editor, "ComboCampi")->currentText(), QStringLiteral("nuovocampo3"));
    prova.Stato().documento.Salvato();
}

void tst_Form2Elementi::CorniceAggiunta()
{
    ArchivioDiProva prova;
    prova.Scrive();
    // The slot keeps the colour that the model open before had in it.
    Cambia(prova.Stato(), [](Modello &modello) { modello.Cornici[1].ColoreTesto = 4; });
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Trova<QScrollBar>(*editor.Anteprima(), "ScrollX")->setValue(40);
    Trova<QScrollBar>(*editor.Anteprima(), "ScrollY")->setValue(60);
    Robot robot;
    robot.Annulla();
    Preme(editor, "AggiungiCornice");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("FrmCornice")});
    const Cornice &cornice = prova.Aperto().Cornici[1];
    QCOMPARE(QPointF(cornice.X, cornice.Y), QPointF(50, 70));
    QVERIFY2(QRegularExpression(QStringLiteral("^Nuova[0-9]{2,4}$")).match(cornice.Nome).hasMatch(),
             qPrintable(cornice.Nome));
    QCOMPARE(cornice.Testo, cornice.Nome);
    QCOMPARE(cornice.Descrizione, QStringLiteral("nuovaCornice1"));
    QCOMPARE(QSizeF(cornice.Larghezza, cornice.Altezza), QSizeF(20, 10));
    QCOMPARE(cornice.Bordo, 1.0);
    QCOMPARE(cornice.ColoreTesto, qint16(4));
    QCOMPARE(Trova<QComboBox>(editor, "ComboCornici")->currentText(), cornice.Nome);
    prova.Stato().documento.Salvato();
}

void tst_Form2Elementi::ImmagineAggiunta()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    Trova<QScrollBar>(*editor.Anteprima(), "ScrollX")->setValue(40);
    Trova<QScrollBar>(*editor.Anteprima(), "ScrollY")->setValue(60);
    Robot robot;
    robot.Annulla();
    Preme(editor, "AggiungiImmagine");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("FrmImmagine")});
    const Immagine &immagine = prova.Aperto().Immagini[1];
    QVERIFY(immagine.Nome.isEmpty());
    QCOMPARE(QPointF(immagine.X, immagine.Y), QPointF(50, 70));
    QCOMPARE(immagine.Descrizione, QStringLiteral("nuovaImmagine1"));
    QCOMPARE(QSizeF(immagine.Larghezza, immagine.Altezza), QSizeF(50, 10));
    QCOMPARE(Voci(editor, "ComboImmagini"), QStringList({Separatore, QString()}));
    prova.Stato().documento.Salvato();
}

void tst_Form2Elementi::CentunesimoElementoErrore9_data()
{
    QTest::addColumn<QByteArray>("bottone");
    QTest::addColumn<Genere>("genere");
    QTest::newRow("campo") << QByteArray("Aggiungicampo") << Genere::Campo;
    QTest::newRow("cornice") << QByteArray("AggiungiCornice") << Genere::Cornice;
    QTest::newRow("immagine") << QByteArray("AggiungiImmagine") << Genere::Immagine;
}

void tst_Form2Elementi::CentunesimoElementoErrore9()
{
    QFETCH(const QByteArray, bottone);
    QFETCH(const Genere, genere);
    EditorAperto prova(100);
    Form2 &editor = prova.Editor();
    Robot robot;
    robot.Ok();
    Preme(editor, bottone.constData());
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("errore 9 ") + DescrizioneErrore(9)});
    QCOMPARE(prova.Aperto().Numero(genere), qint16(101));
    // It failed before anything was written: there is nothing to take back, nor to save.
    QVERIFY(!editor.Variato());
    QVERIFY(!Trova<QToolButton>(editor, "Annulla")->isEnabled());
    editor.close();
    QCOMPARE(robot.Testi().size(), 1);
}

void tst_Form2Elementi::DopoIlCentunesimoSiSalvanoICento()
{
    EditorAperto prova(100);
    Form2 &editor = prova.Editor();
    Robot robot;
    robot.Ok().Si();
    Preme(editor, "Aggiungicampo");
    Modifica(prova.Stato(), [](Modello &modello) { modello.Campi[100].X = 123; });
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Riletto().NumCampi, qint16(100));
    QCOMPARE(prova.Riletto().Campi[100].X, 123.0);
}

void tst_Form2Elementi::VoceEliminataNonSiApre()
{
    ArchivioDiProva prova;
    prova.AggiungeCampo(QStringLiteral("Data"), 10, 10);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    auto *combo = Trova<QComboBox>(editor, "ComboCampi");
    Passo(prova.Stato().documento, {}).Elimina({Genere::Campo, 1});
    QCOMPARE(combo->itemText(1), QStringLiteral(" ELIMINATO: Data"));
    combo->setCurrentIndex(1);
    Robot robot;
    Preme(editor, "VariazioneCampo");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(robot.Testi().isEmpty());
    prova.Stato().documento.Annulla();
    QCOMPARE(combo->itemText(1), QStringLiteral("Data"));
    robot.Annulla();
    Preme(editor, "VariazioneCampo");
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("FrmCampo")});
}

void tst_Form2Elementi::ChiHaNomeDiEliminatoSiVede()
{
    QFETCH(const Genere, genere);
    const QString nome = QStringLiteral(" ELIMINATO: x");
    const int posto = static_cast<int>(genere);
    ArchivioDiProva prova;
    prova.Riempie(2);
    prova.DaAprire().Nome(genere, 1) = nome;
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    const auto controllo = [&](int i) {
        return Controllo(editor, QStringLiteral("C%1(%2)").arg(posto + 1).arg(i));
    };
    QVERIFY(controllo(1)->isVisible()); // as it is saved and printed
    // Its item in the list opens nothing; the sheet does.
    const std::array combo{"ComboCampi", "ComboCornici", "ComboImmagini"};
    const std::array modifica{"VariazioneCampo", "VariazioneCornice", "VariazioneImmagine"};
    QCOMPARE(Voci(editor, combo.at(Posto(genere))).at(1), nome);
    Trova<QComboBox>(editor, combo.at(Posto(genere)))->setCurrentIndex(1);
    Robot robot;
    Preme(editor, modifica.at(Posto(genere)));
    QVERIFY(robot.Testi().isEmpty());
    robot.Annulla();
    emit editor.Anteprima()->RichiestaProprieta(genere, 1);
    QCOMPARE(robot.Testi().size(), 1);
    // Confirmed under such a name, it stays where it is.
    robot.Agisce([&](QDialog *d) {
        Trova<QLineEdit>(*d, "Nome")->setText(QStringLiteral(" ELIMINATO: y"));
        Preme(*d, BottoneConferma(genere));
    });
    emit editor.Anteprima()->RichiestaProprieta(genere, 2);
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QCOMPARE(prova.Aperto().Nome(genere, 2), QStringLiteral(" ELIMINATO: y"));
    QVERIFY(controllo(2)->isVisible());
    editor.Anteprima()->Seleziona(genere, 2);
    QVERIFY(Controllo(editor, QStringLiteral("S%1").arg(posto + 1))->isVisible());
    prova.Stato().documento.Salvato();
}

void tst_Form2Elementi::SeparatoreNonApreNulla()
{
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    Robot robot;
    for (const char *bottone : {"VariazioneCampo", "VariazioneCornice", "VariazioneImmagine"}) {
        Preme(editor, bottone);
    }
    QVERIFY(robot.Testi().isEmpty());
}

void tst_Form2Elementi::CambioPaginaNascondeLeManiglie()
{
    EditorAperto prova(2);
    Form2 &editor = prova.Editor();
    editor.Anteprima()->SelezionaCampo(1);
    editor.Anteprima()->SelezionaCornice(2);
    editor.Anteprima()->SelezionaImmagine(1);
    QVERIFY(Controllo(editor, QStringLiteral("S2"))->isVisible());
    Trova<QTabWidget>(editor, "SSTab1")->setCurrentIndex(4);
    for (const char *maniglia : {"S1", "S2", "S3"}) {
        QVERIFY(!Controllo(editor, QString::fromLatin1(maniglia))->isVisible());
    }
}

void tst_Form2Elementi::FuocoSulComboNascondeLaManiglia()
{
    EditorAperto prova(2);
    Form2 &editor = prova.Editor();
    editor.show();
    QVERIFY(RendeAttiva(editor));
    Trova<QPushButton>(editor, "Salva")->setFocus();
    editor.Anteprima()->SelezionaCampo(2);
    QVERIFY(Controllo(editor, QStringLiteral("S1"))->isVisible());
    Trova<QComboBox>(editor, "ComboCampi")->setFocus();
    QTRY_VERIFY(!Controllo(editor, QStringLiteral("S1"))->isVisible());
}

void tst_Form2Elementi::LAnteprimaGuidaComboEPagina()
{
    EditorAperto prova(3);
    Form2 &editor = prova.Editor();
    const auto *pagine = Trova<QTabWidget>(editor, "SSTab1");
    emit editor.Anteprima()->ElementoPuntato(Genere::Cornice, 3);
    emit editor.Anteprima()->PaginaRichiesta(Genere::Cornice);
    QCOMPARE(Trova<QComboBox>(editor, "ComboCornici")->currentIndex(), 3);
    QCOMPARE(pagine->currentIndex(), 2);
    emit editor.Anteprima()->PaginaRichiesta(Genere::Immagine);
    QCOMPARE(pagine->currentIndex(), 3);
    emit editor.Anteprima()->PaginaRichiesta(Genere::Campo);
    QCOMPARE(pagine->currentIndex(), 0);
    Robot robot;
    robot.Annulla();
    emit editor.Anteprima()->RichiestaProprieta(Genere::Immagine, 2);
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("FrmImmagine")});
}

void tst_Form2Elementi::NuovoCampoDavantiATutti()
{
    ArchivioDiProva prova;
    prova.AggiungeCampo(QStringLiteral("x"), 10, 10); // smaller than the new one
    prova.AggiungeCornice(QStringLiteral("c"), 10, 10, 5, 5);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Robot robot;
    robot.Annulla();
    Preme(editor, "Aggiungicampo");
    const double nuovo = Controllo(editor, QStringLiteral("C1(2)"))->zValue();
    QVERIFY(nuovo > Controllo(editor, QStringLiteral("C1(1)"))->zValue());
    QVERIFY(nuovo > Controllo(editor, QStringLiteral("C2(1)"))->zValue());
    QVERIFY(Controllo(editor, QStringLiteral("S1"))->zValue() > nuovo);
    prova.Stato().documento.Salvato();
}

void tst_Form2Elementi::CambioPaginaRiordina()
{
    ArchivioDiProva prova;
    prova.AggiungeCornice(QStringLiteral("piccola"), 10, 10, 20, 20);
    prova.AggiungeCornice(QStringLiteral("grande"), 10, 10, 100, 50);
    prova.AggiungeCampo(QStringLiteral("campo"), 10, 10);
    prova.AggiungeImmagine(QStringLiteral("i.bmp"), 10, 10, 1, 1);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    const auto quota = [&](const char *nome) {
        return Controllo(editor, QString::fromLatin1(nome))->zValue();
    };
    const auto inOrdine = [&] {
        return quota("C3(1)") < quota("C2(2)") && quota("C2(2)") < quota("C2(1)") &&
               quota("C2(1)") < quota("C1(1)");
    };
    QVERIFY(inOrdine());
    Controllo(editor, QStringLiteral("C2(2)"))->setZValue(1e6);
    Controllo(editor, QStringLiteral("C3(1)"))->setZValue(2e6);
    QVERIFY(!inOrdine());
    Trova<QTabWidget>(editor, "SSTab1")->setCurrentIndex(1);
    QVERIFY(inOrdine());
    // The restack button of a kind brings that kind to the front.
    Preme(editor, "Command4");
    QVERIFY(quota("C3(1)") > quota("C1(1)"));
    Preme(editor, "Command3");
    QVERIFY(quota("C2(2)") > quota("C3(1)"));
    Preme(editor, "Command1");
    QVERIFY(quota("C1(1)") > quota("C2(1)"));
}

QTEST_MAIN(tst_Form2Elementi)
#include "tst_Form2Elementi.moc"
