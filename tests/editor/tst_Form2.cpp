#include "Form2DiProva.h"
#include "base/ErroreSistema.h"
#include "editor/Form2.h"
#include "finestre/Finestre.h"
#include "support/ArchivioDiProva.h"
#include "support/DocumentoDiProva.h"
#include "support/FileDiProva.h"
#include "support/Finestre.h"
#include "support/Robot.h"

#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>

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
    void OgniControlloHaLArgomentoDellaGuida();
    void TestiEsplicativiCominciano();
    void ModelloAppenaApertoNonVariato();
    void FileMancanteChiudeLEditor();
    void FileTroppoCortoChiudeLEditor();
    void ModelloScrittoInAltroModo();
    void ElementiAssentiNonSiVedono();
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

void tst_Form2::OgniControlloHaLArgomentoDellaGuida()
{
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    QCOMPARE(ArgomentoDi(&editor), ArgomentoGuida);
    auto *pagine = Trova<QTabWidget>(editor, "SSTab1");
    QList<QWidget *> radici{&editor};
    for (int i = 0; i < pagine->count(); ++i) {
        radici.append(pagine->widget(i));
    }
    for (const QWidget *radice : radici) {
        const auto controlli = radice->findChildren<QWidget *>();
        QVERIFY(controlli.size() > 5);
        for (const QWidget *controllo : controlli) {
            QVERIFY2(ArgomentoDi(controllo) == ArgomentoGuida, qPrintable(controllo->objectName()));
            // Those that a user can stand on have it of their own.
            QVERIFY2(controllo->focusPolicy() == Qt::NoFocus ||
                         controllo->property(ProprietaGuida).toInt() == ArgomentoGuida,
                     qPrintable(controllo->objectName()));
        }
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
    // By way of another name: not every disk changes the case of one alone.
    const QString via = prova.Percorso() + QStringLiteral(".via");
    QVERIFY(QFile::rename(prova.Percorso(), via) && QFile::rename(via, maiuscolo));
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Modifica(prova.Stato(), [&](Modello &modello) { modello.Campi[1].X = 77; });
    Robot robot;
    robot.Si();
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    // No second file beside the opened one, also where both names would lead to the same.
    QCOMPARE(NomiIn(prova.Stato().CartellaModelli), QStringList{QStringLiteral("PROVA.MOD")});
    QFile file(maiuscolo);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\r\n77\r\n"));
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

QTEST_MAIN(tst_Form2)
#include "tst_Form2.moc"
