#include "EditoreDiProva.h"
#include "base/ErroreSistema.h"
#include "editor/Form2.h"
#include "preview/Frm1.h"
#include "support/ArchivioDiProva.h"
#include "support/DocumentoDiProva.h"
#include "support/Finestre.h"
#include "support/Robot.h"

#include <QCloseEvent>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QtTest/qtestspontaneevent.h>

namespace {

constexpr QLatin1String Separatore("------------------");
const auto SenzaStampante =
    QStringLiteral("errore 482 Nessuna stampante predefinita è impostata.\nSceglierne una nelle "
                   "impostazioni del sistema, alla voce Stampanti, e ripetere.");

QGraphicsObject *Controllo(Form2 &editor, const QString &nome)
{
    return ElementoAnteprima(*editor.Anteprima(), nome);
}

} // namespace

class tst_Form2 : public QObject
{
    Q_OBJECT
private slots:
    void ModelloNuovoMostraTreComboColSoloSeparatore();
    void VociUgualiAiNomiConIndiceUguale();
    void PagineNellOrdine();
    void TestiETooltip();
    void OgniPaginaHaScorciatoieDiverse();
    void NessunControlloTagliato_data();
    void NessunControlloTagliato();
    void NessunaLetteraDoppiaPerPagina();
    void TestiEsplicativiCominciano();
    void ModelloAppenaApertoNonVariato();
    void FileMancanteChiudeLEditor();
    void FileTroppoCortoChiudeLEditor();
    void ModelloScrittoInAltroModo();
    void CampoAggiuntoConAnteprimaScorsa();
    void TerzoCampoSiChiamaNuovocampo3();
    void CorniceAggiunta();
    void ImmagineAggiunta();
    void CentunesimoElementoErrore9_data();
    void CentunesimoElementoErrore9();
    void DopoIlCentunesimoSiSalvanoICento();
    void VoceEliminataNonSiApre();
    void SeparatoreNonApreNulla();
    void SalvaChiedeSempre();
    void NoLasciaVariato();
    void SiScriveEAzzeraVariato();
    void TipoFinisceNelFile();
    void ChiusuraSenzaVariazioniNonChiede();
    void ChiusuraConVariazioniChiedeESalva();
    void ChiusuraConNoNonScrive();
    void SalvataggioFallitoTieneApertoLEditor();
    void ChiudereLAnteprimaChiudeLEditor();
    void EliminaModelloNo();
    void EliminaModelloSi();
    void EliminaTutteLeCornici();
    void EliminaTutteSenzaCornici();
    void EliminaTutteNo();
    void CambioPaginaNascondeLeManiglie();
    void FuocoSulComboNascondeLaManiglia();
    void LAnteprimaGuidaComboEPagina();
    void ElementiAssentiNonSiVedono();
    void NuovoCampoDavantiATutti();
    void CambioPaginaRiordina();
    void StampaDomandaESenzaStampante();
    void StampaDomandaSenzaRisposta_data();
    void StampaDomandaSenzaRisposta();
    void GrigliaSenzaStampante();
    void ChiusuraDuranteLaDomanda();
};

void tst_Form2::ModelloNuovoMostraTreComboColSoloSeparatore()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    for (const char *combo : {"ComboCampi", "ComboCornici", "ComboImmagini"}) {
        QCOMPARE(Voci(editor, combo), QStringList{Separatore});
    }
    QCOMPARE(editor.windowTitle(), QStringLiteral("Plakera: Modello Prova.Mod"));
    QCOMPARE(Trova<QLabel>(editor, "Label21")->text(), prova.Stato().CartellaModelli);
}

void tst_Form2::VociUgualiAiNomiConIndiceUguale()
{
    ArchivioDiProva prova;
    prova.AggiungeCampo(QStringLiteral("Data"), 10, 10);
    prova.AggiungeCampo(QStringLiteral("R_Descr"), 20, 10);
    prova.AggiungeCornice(QStringLiteral("Titolo"), 10, 20, 30, 10);
    prova.AggiungeImmagine(QStringLiteral("logo.bmp"), 10, 40, 30, 10);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    QCOMPARE(Voci(editor, "ComboCampi"),
             QStringList({Separatore, QStringLiteral("Data"), QStringLiteral("R_Descr")}));
    QCOMPARE(Voci(editor, "ComboCornici"), QStringList({Separatore, QStringLiteral("Titolo")}));
    QCOMPARE(Voci(editor, "ComboImmagini"), QStringList({Separatore, QStringLiteral("logo.bmp")}));
}

void tst_Form2::PagineNellOrdine()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    const auto *pagine = Trova<QTabWidget>(editor, "SSTab1");
    QStringList titoli;
    for (int i = 0; i < pagine->count(); ++i) {
        titoli.append(pagine->tabText(i));
    }
    QCOMPARE(titoli,
             QStringList({QStringLiteral("Campi"), QStringLiteral("Posizione righe"),
                          QStringLiteral("Cornici ed Etichette"), QStringLiteral("Immagini"),
                          QStringLiteral("Spostamento"), QStringLiteral("Immagine sfondo")}));
}

void tst_Form2::TestiETooltip()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    const auto testo = [&](const char *nome) {
        return Trova<QAbstractButton>(editor, nome)->text().remove(u'&');
    };
    QCOMPARE(testo("Salva"), QStringLiteral("Salva modello"));
    QCOMPARE(testo("Stampa"), QStringLiteral("Stampa di prova"));
    QCOMPARE(testo("StampaRetino"), QStringLiteral("stampa griglia millimetrata"));
    QCOMPARE(testo("Elimina"), QStringLiteral("Elimina modello"));
    QCOMPARE(testo("Aggiungicampo"), QStringLiteral("Aggiungi Campo"));
    QCOMPARE(testo("VariazioneCampo"), QStringLiteral("Modifica impostazioni"));
    QCOMPARE(testo("Command1"), QStringLiteral("mette in primo piano campi secondo la superfice"));
    QCOMPARE(testo("AggiungiCornice"), QStringLiteral("Aggiungi cornice/etichetta"));
    QCOMPARE(testo("VariazioneCornice"), QStringLiteral("Modifica impostazioni"));
    QCOMPARE(testo("Command7"), QStringLiteral("Elimina tutte le cornici"));
    QCOMPARE(testo("Command3"),
             QStringLiteral("mette in primo piano cornici secondo la superfice"));
    QCOMPARE(testo("AggiungiImmagine"), QStringLiteral("Aggiungi immagine"));
    QCOMPARE(testo("VariazioneImmagine"), QStringLiteral("Modifica impostaz.Immagine"));
    QCOMPARE(testo("Command4"),
             QStringLiteral("mette in primo piano immagini secondo la superfice"));
    const auto aiuto = [&](const char *nome) { return Trova<QWidget>(editor, nome)->toolTip(); };
    QCOMPARE(aiuto("StampaRetino"), QStringLiteral("Stampa un retino millimetrato"));
    QCOMPARE(aiuto("Elimina"), QStringLiteral("ELIMINA DEFINITIVAMENTE UN TRACCIATO"));
    QCOMPARE(aiuto("ComboCampi"), QStringLiteral("elenco campi disponibili"));
    QCOMPARE(aiuto("VariazioneCampo"), QStringLiteral("posizione, tipo di font, ecc. "));
}

void tst_Form2::NessunaLetteraDoppiaPerPagina()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    auto *pagine = Trova<QTabWidget>(editor, "SSTab1");
    for (int pagina = 0; pagina < pagine->count(); ++pagina) {
        QHash<QChar, QString> lettere;
        const auto raccoglie = [&](const QString &testo) {
            const qsizetype segno = testo.indexOf(u'&');
            if (segno < 0) {
                return true;
            }
            const QChar lettera = testo.at(segno + 1).toUpper();
            const bool libera = !lettere.contains(lettera);
            lettere.insert(lettera, testo);
            return libera;
        };
        const auto visibile = [&](const QWidget *controllo) {
            const bool esterno = !pagine->isAncestorOf(controllo);
            return esterno || pagine->widget(pagina)->isAncestorOf(controllo);
        };
        for (const auto *bottone : editor.findChildren<QAbstractButton *>()) {
            if (visibile(bottone) && !bottone->isHidden()) {
                QVERIFY2(raccoglie(bottone->text()), qPrintable(bottone->text()));
            }
        }
        for (const auto *etichetta : editor.findChildren<QLabel *>()) {
            if (visibile(etichetta) && etichetta->buddy() != nullptr) {
                QVERIFY2(raccoglie(etichetta->text()), qPrintable(etichetta->text()));
            }
        }
        QVERIFY(lettere.size() >= 5);
    }
}

void tst_Form2::OgniPaginaHaScorciatoieDiverse()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    auto *pagine = Trova<QTabWidget>(editor, "SSTab1");
    for (int p = 0; p < pagine->count(); ++p) {
        pagine->setCurrentIndex(p);
        QStringList lettere;
        for (const auto *bottone : editor.findChildren<QAbstractButton *>()) {
            if (bottone->isVisible()) {
                lettere.append(bottone->shortcut().toString());
            }
        }
        for (const auto *etichetta : editor.findChildren<QLabel *>()) {
            if (etichetta->isVisible() && etichetta->buddy() != nullptr) {
                lettere.append(QKeySequence::mnemonic(etichetta->text()).toString());
            }
        }
        lettere.removeAll(QString());
        QVERIFY(lettere.size() >= 5);
        QCOMPARE(lettere.removeDuplicates(), 0);
    }
}

void tst_Form2::NessunControlloTagliato_data()
{
    QTest::addColumn<int>("larghezza");
    QTest::newRow("1366x768") << 1366;
    QTest::newRow("1366x768, scale 1.25") << 1092;
    QTest::newRow("1920x1080, scale 2") << 960;
}

void tst_Form2::NessunControlloTagliato()
{
    QFETCH(int, larghezza);
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    // What the usual frames leave of the strip of 200 pixels.
    constexpr QSize Cornice(2, 28);
    editor.resize(larghezza - Cornice.width(), 200 - Cornice.height());
    QCOMPARE(editor.size(), QSize(larghezza - Cornice.width(), 200 - Cornice.height()));
    auto *pagine = Trova<QTabWidget>(editor, "SSTab1");
    for (int p = 0; p < pagine->count(); ++p) {
        pagine->setCurrentIndex(p);
        QCoreApplication::processEvents();
        int controllati = 0;
        for (const auto *controllo : editor.findChildren<QWidget *>()) {
            if (!controllo->isVisible() || controllo->objectName().startsWith(u"qt_")) {
                continue;
            }
            const QByteArray nome = controllo->objectName().toUtf8();
            const QSize minima = controllo->minimumSizeHint();
            QVERIFY2(controllo->width() >= minima.width() && controllo->height() >= minima.height(),
                     nome);
            if (controllo->parentWidget() == pagine->currentWidget()) {
                QVERIFY2(pagine->currentWidget()->rect().contains(controllo->geometry()), nome);
            }
            ++controllati;
        }
        QVERIFY(controllati > 15);
    }
}

void tst_Form2::TestiEsplicativiCominciano()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    const QHash<const char *, QString> inizi{
        {"Text1",
         QStringLiteral("I 'CAMPI' sono i dati variabili che vengono stampati sul documento")},
        {"Text2", QStringLiteral("Le 'RIGHE' sono i campi 'descrizione merce', 'quantità', "
                                 "'prezzo' ecc.")},
        {"Text3",
         QStringLiteral("'CORNICI' ed 'ETICHETTE' sono i riquadri e le scritte fisse che")},
        {"Text4", QStringLiteral("Le 'IMMAGINI'")},
        {"Text5", QStringLiteral("per spostare in blocco tutti gli oggetti (campi, cornici, "
                                 "immagini)")},
        {"Text6", QStringLiteral("Qualora si utilizzi un modello prestampato, per facilitare il "
                                 "posizionamento dei campi, è possibile inserire nell'anteprima "
                                 "l'immagine del modello")}};
    for (auto it = inizi.begin(); it != inizi.end(); ++it) {
        const auto *testo = Trova<QPlainTextEdit>(editor, it.key());
        QVERIFY2(testo->toPlainText().startsWith(it.value()), it.key());
        QVERIFY(testo->isReadOnly());
    }
}

void tst_Form2::ModelloAppenaApertoNonVariato()
{
    ArchivioDiProva prova;
    prova.Riempie(5);
    prova.Scrive();
    Form2 editor(prova.Stato());
    prova.Stato().zoom = 2;
    prova.Stato().documento.SegnaVariato();
    QVERIFY(editor.Form_Load());
    QVERIFY(!editor.Variato());
    QCOMPARE(prova.Stato().zoom, 1.0);
}

void tst_Form2::FileMancanteChiudeLEditor()
{
    ArchivioDiProva prova;
    Robot robot;
    robot.Ok();
    Form2 editor(prova.Stato());
    QVERIFY(!editor.Form_Load());
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().constFirst().startsWith(
                 QStringLiteral("impossibile leggere file Prova.Mod\n53\n")),
             qPrintable(robot.Testi().constFirst()));
}

void tst_Form2::FileTroppoCortoChiudeLEditor()
{
    ArchivioDiProva prova;
    QFile file(prova.Percorso());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Fattura\r\n\r\n");
    file.close();
    Robot robot;
    robot.Ok();
    Form2 editor(prova.Stato());
    QVERIFY(!editor.Form_Load());
    QCOMPARE(
        robot.Testi().constFirst(),
        QStringLiteral("impossibile leggere file Prova.Mod\n62\n%1").arg(DescrizioneErrore(62)));
}

void tst_Form2::ModelloScrittoInAltroModo()
{
    ArchivioDiProva prova;
    prova.AggiungeCampo(QStringLiteral("Data"), 10, 10);
    prova.Scrive();
    const QString maiuscolo = prova.Stato().CartellaModelli + QStringLiteral("PROVA.MOD");
    QVERIFY(QFile::rename(prova.Percorso(), maiuscolo));
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Modifica(prova.Stato(), [&](Modello &modello) { modello.Campi[1].X = 77; });
    Robot robot;
    robot.Si();
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(!QFile::exists(prova.Percorso()), "saving made a second file beside the opened one");
    QFile file(maiuscolo);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\r\n77\r\n"));
}

void tst_Form2::CampoAggiuntoConAnteprimaScorsa()
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

void tst_Form2::TerzoCampoSiChiamaNuovocampo3()
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

void tst_Form2::CorniceAggiunta()
{
    ArchivioDiProva prova;
    prova.Scrive();
    // The slot keeps the colour that the model open before had in it.
    Cambia(prova.Stato(), [](Modello &modello) { modello.Cornici[1].ColoreTesto = 4; });
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Robot robot;
    robot.Annulla();
    Preme(editor, "AggiungiCornice");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("FrmCornice")});
    const Cornice &cornice = prova.Aperto().Cornici[1];
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

void tst_Form2::ImmagineAggiunta()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    Robot robot;
    robot.Annulla();
    Preme(editor, "AggiungiImmagine");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("FrmImmagine")});
    const Immagine &immagine = prova.Aperto().Immagini[1];
    QVERIFY(immagine.Nome.isEmpty());
    QCOMPARE(immagine.Descrizione, QStringLiteral("nuovaImmagine1"));
    QCOMPARE(QSizeF(immagine.Larghezza, immagine.Altezza), QSizeF(50, 10));
    QCOMPARE(Voci(editor, "ComboImmagini"), QStringList({Separatore, QString()}));
    prova.Stato().documento.Salvato();
}

void tst_Form2::CentunesimoElementoErrore9_data()
{
    QTest::addColumn<QByteArray>("bottone");
    QTest::addColumn<Genere>("genere");
    QTest::newRow("campo") << QByteArray("Aggiungicampo") << Genere::Campo;
    QTest::newRow("cornice") << QByteArray("AggiungiCornice") << Genere::Cornice;
    QTest::newRow("immagine") << QByteArray("AggiungiImmagine") << Genere::Immagine;
}

void tst_Form2::CentunesimoElementoErrore9()
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
}

void tst_Form2::DopoIlCentunesimoSiSalvanoICento()
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

void tst_Form2::VoceEliminataNonSiApre()
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

void tst_Form2::SeparatoreNonApreNulla()
{
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    Robot robot;
    for (const char *bottone : {"VariazioneCampo", "VariazioneCornice", "VariazioneImmagine"}) {
        Preme(editor, bottone);
    }
    QVERIFY(robot.Testi().isEmpty());
}

void tst_Form2::SalvaChiedeSempre()
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

void tst_Form2::NoLasciaVariato()
{
    ArchivioDiProva prova;
    prova.AggiungeCampo(QStringLiteral("Data"), 10, 10);
    prova.Scrive();
    const QByteArray prima = prova.ByteDelFile();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Modifica(prova.Stato(), [&](Modello &modello) { modello.Campi[1].X = 99; });
    Robot robot;
    robot.No();
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(editor.Variato());
    QCOMPARE(prova.ByteDelFile(), prima);
}

void tst_Form2::SiScriveEAzzeraVariato()
{
    ArchivioDiProva prova;
    prova.AggiungeCampo(QStringLiteral("Data"), 10, 10);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Modifica(prova.Stato(), [&](Modello &modello) { modello.Campi[1].X = 99; });
    Robot robot;
    robot.Si();
    Preme(editor, "Salva");
    QVERIFY(!editor.Variato());
    QCOMPARE(prova.Riletto().Campi[1].X, 99.0);
}

void tst_Form2::TipoFinisceNelFile()
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

void tst_Form2::ChiusuraSenzaVariazioniNonChiede()
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

void tst_Form2::ChiusuraConVariazioniChiedeESalva()
{
    ArchivioDiProva prova;
    prova.AggiungeCampo(QStringLiteral("Data"), 10, 10);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    editor.show();
    Modifica(prova.Stato(), [&](Modello &modello) { modello.Campi[1].X = 55; });
    QVERIFY(editor.Variato());
    Robot robot;
    robot.Si();
    QVERIFY(editor.close());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("salvare le variazioni")});
    QCOMPARE(prova.Riletto().Campi[1].X, 55.0);
}

void tst_Form2::ChiusuraConNoNonScrive()
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

void tst_Form2::SalvataggioFallitoTieneApertoLEditor()
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

void tst_Form2::ChiudereLAnteprimaChiudeLEditor()
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

void tst_Form2::EliminaModelloNo()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    Robot robot;
    robot.No();
    Preme(editor, "Elimina");
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("Comferma eliminazione Prova.Mod ?")});
    QCOMPARE(robot.Predefiniti(), QStringList{QStringLiteral("&No")});
    QVERIFY(QFile::exists(prova.Percorso()));
    QVERIFY(editor.isVisible());
}

void tst_Form2::EliminaModelloSi()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    prova.Stato().documento.SegnaVariato();
    QSignalSpy chiuso(&editor, &Form2::Chiuso);
    Robot robot;
    robot.Si().Ok();
    Preme(editor, "Elimina");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constLast(), QStringLiteral("Prova.Mod eliminato"));
    QVERIFY(!QFile::exists(prova.Percorso()));
    QCOMPARE(chiuso.count(), 1);
    QVERIFY(!editor.isVisible());
}

void tst_Form2::EliminaTutteLeCornici()
{
    ArchivioDiProva prova;
    prova.AggiungeCornice(QStringLiteral("a"), 10, 10, 20, 10);
    prova.AggiungeCornice(QStringLiteral("b"), 40, 10, 20, 10);
    prova.AggiungeCampo(QStringLiteral("Data"), 10, 40);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    editor.show();
    QSignalSpy chiuso(&editor, &Form2::Chiuso);
    Robot robot;
    robot.Si().Si();
    Preme(editor, "Command7");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList({QStringLiteral("Elimino TUTTE le Cornici "),
                                         QStringLiteral("salvare le variazioni")}));
    QCOMPARE(robot.Predefiniti().constFirst(), QStringLiteral("&No"));
    QCOMPARE(Voci(editor, "ComboCornici"), QStringList({Separatore, QStringLiteral(" ELIMINATO: a"),
                                                        QStringLiteral(" ELIMINATO: b")}));
    QCOMPARE(prova.Aperto().NumCornici, qint16(2));
    QVERIFY(!Controllo(editor, QStringLiteral("C2(1)"))->isVisible());
    QCOMPARE(chiuso.count(), 1);
    QCOMPARE(prova.Riletto().NumCornici, qint16(0));
    QCOMPARE(prova.Riletto().NumCampi, qint16(1));
}

void tst_Form2::EliminaTutteSenzaCornici()
{
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    editor.show();
    QSignalSpy chiuso(&editor, &Form2::Chiuso);
    Robot robot;
    robot.Si();
    Preme(editor, "Command7");
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("Elimino TUTTE le Cornici ")});
    QCOMPARE(chiuso.count(), 1);
}

void tst_Form2::EliminaTutteNo()
{
    ArchivioDiProva prova;
    prova.AggiungeCornice(QStringLiteral("a"), 10, 10, 20, 10);
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    editor.show();
    Robot robot;
    robot.No();
    Preme(editor, "Command7");
    QVERIFY(editor.isVisible());
    QCOMPARE(prova.Aperto().Cornici[1].Nome, QStringLiteral("a"));
    QVERIFY(!editor.Variato());
}

void tst_Form2::CambioPaginaNascondeLeManiglie()
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

void tst_Form2::FuocoSulComboNascondeLaManiglia()
{
    EditorAperto prova(2);
    Form2 &editor = prova.Editor();
    editor.show();
    editor.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    Trova<QPushButton>(editor, "Salva")->setFocus();
    editor.Anteprima()->SelezionaCampo(2);
    QVERIFY(Controllo(editor, QStringLiteral("S1"))->isVisible());
    Trova<QComboBox>(editor, "ComboCampi")->setFocus();
    QTRY_VERIFY(!Controllo(editor, QStringLiteral("S1"))->isVisible());
}

void tst_Form2::LAnteprimaGuidaComboEPagina()
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

void tst_Form2::ElementiAssentiNonSiVedono()
{
    ArchivioDiProva prova;
    prova.AggiungeCampo(QStringLiteral("vuoto"), 10, 10);
    prova.AggiungeCampo(QStringLiteral("pieno"), 10, 20);
    prova.Scrive();
    QByteArray byte = prova.ByteDelFile();
    // A block with an empty name, as another program may leave it.
    byte.replace("\r\nvuoto\r\nvuoto\r\n", "\r\n\r\nvuoto\r\n");
    QFile file(prova.Percorso());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(byte);
    file.close();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    QCOMPARE(prova.Aperto().NumCampi, qint16(2));
    QVERIFY(!Controllo(editor, QStringLiteral("C1(1)"))->isVisible());
    QVERIFY(Controllo(editor, QStringLiteral("C1(2)"))->isVisible());
}

void tst_Form2::NuovoCampoDavantiATutti()
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

void tst_Form2::CambioPaginaRiordina()
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

void tst_Form2::StampaDomandaESenzaStampante()
{
    // No print server answers at this address, so there is no default printer.
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    Robot robot;
    robot.No().Ok();
    Preme(editor, "Stampa");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(),
             QStringList({QStringLiteral("stampo il 'NOME' dei campi invece del 'TESTO DI PROVA'"),
                          SenzaStampante}));
    QCOMPARE(robot.Predefiniti().constFirst(), QStringLiteral("&No"));
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
}

void tst_Form2::StampaDomandaSenzaRisposta_data()
{
    QTest::addColumn<bool>("esc");
    QTest::newRow("Escape") << true;
    QTest::newRow("la croce") << false;
}

void tst_Form2::StampaDomandaSenzaRisposta()
{
    QFETCH(bool, esc);
    // Printing would say that there is no printer.
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    EditorAperto prova(1);
    Robot robot;
    robot.Agisce([esc](QDialog *domanda) {
        QCOMPARE(qobject_cast<QMessageBox *>(domanda)->buttons().size(), 2);
        if (esc) {
            QTest::keyClick(domanda, Qt::Key_Escape);
        } else {
            domanda->close();
        }
    });
    Preme(prova.Editor(), "Stampa");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().size(), 1);
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
}

void tst_Form2::GrigliaSenzaStampante()
{
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    EditorAperto prova;
    Form2 &editor = prova.Editor();
    Robot robot;
    robot.Ok();
    Preme(editor, "StampaRetino");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{SenzaStampante});
}

void tst_Form2::ChiusuraDuranteLaDomanda()
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

QTEST_MAIN(tst_Form2)
#include "tst_Form2.moc"
