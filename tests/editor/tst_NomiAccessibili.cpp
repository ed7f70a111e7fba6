#include "EditoreDiProva.h"
#include "catalogue/SelezioneArchivifrm.h"
#include "documento/UltimeCorrezioni.h"
#include "editor/AttesaDiStampa.h"
#include "editor/FrmCorrezione.h"
#include "editor/FrmLavoroRimasto.h"
#include "editor/VediStampa.h"
#include "finestre/Attesa.h"
#include "finestre/ComboAccessibile.h"
#include "finestre/Contrasto.h"
#include "finestre/Messaggi.h"
#include "finestre/NomeModello.h"
#include "finestre/Sfoglia.h"
#include "model/Tavolozza.h"
#include "preview/Controlli.h"
#include "print/Avanzamento.h"
#include "support/DocumentoDiProva.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QThread>
#include <QToolButton>

namespace {

bool SiAdopera(const QAccessibleInterface &parte)
{
    switch (parte.role()) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::PageTabList:
    case QAccessible::PageTab:
    case QAccessible::ScrollBar:
    case QAccessible::SpinBox:
    case QAccessible::Slider:
        return true;
    default:
        return parte.state().focusable;
    }
}

/// Parts that Qt makes of a control look after themselves: the lists below combos, what scrolls an
/// area, the arrows of a row of tabs, a corner that selects all.
bool DiQt(const QWidget *controllo)
{
    if (controllo->objectName().startsWith(QStringLiteral("qt_")) ||
        controllo->inherits("QTableCornerButton")) {
        return true;
    }
    const auto *area = qobject_cast<const QAbstractScrollArea *>(controllo->parentWidget());
    if (area != nullptr && area->viewport() == controllo) {
        return true;
    }
    for (const QWidget *sopra = controllo->parentWidget(); sopra != nullptr;
         sopra = sopra->parentWidget()) {
        if (sopra->objectName().startsWith(QStringLiteral("qt_scrollarea_")) &&
            qobject_cast<const QScrollBar *>(controllo) != nullptr) {
            return true;
        }
        if (qobject_cast<const QTabBar *>(sopra) != nullptr ||
            qobject_cast<const QComboBox *>(sopra) != nullptr ||
            qobject_cast<const QLineEdit *>(sopra) != nullptr) {
            return true;
        }
    }
    return false;
}

/// Goes round the window by the keyboard, as who has no mouse; fails the test where nothing shows
/// that the keyboard has come to a control.
void GiraColTabulatore(QWidget &finestra)
{
    QVERIFY(RendeAttiva(finestra));
    QSet<QWidget *> visti;
    for (QWidget *prima = nullptr;;) {
        QTest::keyClick(finestra.windowHandle(), Qt::Key_Tab);
        QWidget *fuoco = finestra.focusWidget();
        QVERIFY(fuoco != nullptr);
        if (fuoco == prima) {
            continue; // the sheet goes on to its next element
        }
        prima = fuoco;
        if (visti.contains(fuoco)) {
            break;
        }
        visti.insert(fuoco);
        const QImage con = finestra.grab().toImage();
        fuoco->clearFocus();
        const QImage senza = finestra.grab().toImage();
        fuoco->setFocus(Qt::TabFocusReason);
        // A dialog's own button is drawn alike, and then nothing else is.
        const auto *pulsante = qobject_cast<const QPushButton *>(fuoco);
        if (con == senza && (pulsante == nullptr || !pulsante->isDefault())) {
            QTest::qFail(qPrintable(finestra.objectName() + u' ' + fuoco->objectName()), __FILE__,
                         __LINE__);
        }
    }
    QVERIFY(visti.size() > 1);
}

/// What is wrong with the name of a part; empty when nothing is.
QString Difetto(const QAccessibleInterface &parte, const QWidget *controllo)
{
    const QString nome = parte.text(QAccessible::Name);
    if (nome.trimmed().isEmpty()) {
        return QStringLiteral("has no name");
    }
    if (nome.contains(QStringLiteral("---"))) {
        return QStringLiteral("is called ") + nome;
    }
    const auto *combo = qobject_cast<const QComboBox *>(controllo);
    if (combo != nullptr && nome == combo->currentText()) {
        return QStringLiteral("is called as what is chosen in it, ") + nome;
    }
    return {};
}

/// The parts with which the user works the window; fails the test at those without a proper name.
int Controlla(const QWidget &finestra)
{
    int controllati = 0;
    const auto controlla = [&](const QAccessibleInterface &parte, const QWidget *controllo) {
        const QString difetto = Difetto(parte, controllo);
        if (!difetto.isEmpty()) {
            QTest::qFail(
                qPrintable(QStringLiteral("%1: %2 %3 %4")
                               .arg(finestra.objectName(),
                                    QLatin1String(controllo->metaObject()->className()),
                                    controllo->objectName() + u'/' +
                                        controllo->parentWidget()->objectName() +
                                        QLatin1String(
                                            controllo->parentWidget()->metaObject()->className()),
                                    difetto)),
                __FILE__, __LINE__);
        }
        ++controllati;
    };
    if (finestra.windowTitle().isEmpty()) {
        QTest::qFail(qPrintable(finestra.objectName() + QStringLiteral(" has no title")), __FILE__,
                     __LINE__);
    }
    for (QWidget *controllo : finestra.findChildren<QWidget *>()) {
        // Pages behind others count; what no user ever sees does not.
        const bool maiInVista =
            controllo->isHidden() && controllo->testAttribute(Qt::WA_WState_ExplicitShowHide);
        if (controllo->window() != &finestra || DiQt(controllo) || maiInVista) {
            continue;
        }
        QAccessibleInterface *parte = QAccessible::queryAccessibleInterface(controllo);
        if (parte == nullptr || !SiAdopera(*parte)) {
            continue;
        }
        controlla(*parte, controllo);
        for (int i = 0; qobject_cast<QTabBar *>(controllo) != nullptr && i < parte->childCount();
             ++i) {
            if (parte->child(i)->role() == QAccessible::PageTab) {
                controlla(*parte->child(i), controllo);
            }
        }
    }
    return controllati;
}

constexpr double PerUnTesto = 4.5;
constexpr double PerUnContorno = 3;

QString Misurato(const QString &cosa, double contrasto)
{
    return QStringLiteral("%1: %2").arg(cosa).arg(contrasto);
}

void RigheDiGenere()
{
    QTest::addColumn<int>("genere");
    for (const Genere genere : Generi) {
        QTest::addRow("%s", NomeDi(genere).data()) << int(genere);
    }
}

} // namespace

/// Every window as those find it who do not see it, or not well: what can be worked has a name, and
/// the colours that the program chooses can be told apart.
class tst_NomiAccessibili : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void FinestraIniziale();
    void Editor();
    void Anteprima();
    void Elenco();
    void Rilievi();
    void Dialogo_data() { RigheDiGenere(); }
    void Dialogo();
    void VediLaStampa();
    void Correzione();
    void Sfogliando();
    void Calibrando();
    void Esportando();
    void Aspettando();
    void NomeDiUnModello();
    void LavoroRimasto();
    void LeVociNonSonoIlNome();
    void IlFuocoSiVede();
    void ContrastoDelleCaselleDiSolaLettura();
    void ContrastoDegliEliminati();
    void ContrastoDeiContorni();
    void ContrastoDelleRigheSimulate();
    void ContrastoDelColoreScritto_data();
    void ContrastoDelColoreScritto();

private:
    QTemporaryDir esecuzione_;
};

void tst_NomiAccessibili::initTestCase()
{
    // Where the program keeps its one instance: other tests that run meanwhile are none.
    QVERIFY(esecuzione_.isValid());
    InstallaComboAccessibili(); // as the program does before its first window
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(esecuzione_.path()));
}

void tst_NomiAccessibili::FinestraIniziale()
{
    ArchivioDiProva prova;
    prova.Scrive();
    SelezioneArchivifrm finestra(prova.Stato());
    QVERIFY(finestra.Form_Load(QStringLiteral(CARTELLA_CAMPIONE)));
    finestra.show();
    QVERIFY(Controlla(finestra) > 15);
}

void tst_NomiAccessibili::Editor()
{
    EditorAperto prova(2);
    auto *pagine = Trova<QTabWidget>(prova.Editor(), "SSTab1");
    QCOMPARE(QAccessible::queryAccessibleInterface(pagine)->text(QAccessible::Name),
             pagine->accessibleName());
    QVERIFY(!pagine->accessibleName().isEmpty());
    QCOMPARE(pagine->count(), 6);
    QVERIFY(Controlla(prova.Editor()) > 50);
}

void tst_NomiAccessibili::Anteprima()
{
    EditorAperto prova(2);
    QVERIFY(Controlla(*prova.Editor().Anteprima()) >= 7);
    for (const char *barra : {"ScrollX", "ScrollY"}) {
        QVERIFY(!Trova<QScrollBar>(*prova.Editor().Anteprima(), barra)->accessibleName().isEmpty());
    }
    for (const char *righello : {"RighelloX", "RighelloY"}) {
        QVERIFY(!Trova<QWidget>(*prova.Editor().Anteprima(), righello)->accessibleName().isEmpty());
    }
}

void tst_NomiAccessibili::Elenco()
{
    EditorAperto prova(2);
    Trova<QToolButton>(*prova.Editor().Anteprima(), "MostraElenco")->click();
    const auto *elenco = Trova<QWidget>(*prova.Editor().Anteprima(), "ElencoElementi");
    QVERIFY(Controlla(*elenco) >= 2);
    auto *righe = Trova<QTableView>(*elenco, "Elementi");
    // Every cell says what it shows, and the box in which a place is written says whose it is.
    QAccessibleTableInterface *tabella =
        QAccessible::queryAccessibleInterface(righe)->tableInterface();
    QCOMPARE(tabella->rowCount(), 6);
    QCOMPARE(tabella->columnDescription(3), QStringLiteral("X"));
    QCOMPARE(tabella->cellAt(0, 1)->text(QAccessible::Name),
             righe->model()->index(0, 1).data().toString());
    righe->setCurrentIndex(righe->model()->index(0, 3));
    righe->edit(righe->currentIndex());
    QCOMPARE(righe->viewport()->findChild<QLineEdit *>()->accessibleName(),
             QStringLiteral("X ") + prova.Aperto().Campi[1].Nome);
}

void tst_NomiAccessibili::Dialogo()
{
    QFETCH(int, genere);
    EditoreDiProva prova;
    prova.Archivio.Riempie(2);
    QVERIFY(prova.Apre());
    Robot robot;
    int controllati = 0;
    robot.Agisce([&](QDialog *dialogo) {
        controllati = Controlla(*dialogo);
        dialogo->reject();
    });
    prova.ApreProprieta(Genere(genere), 1);
    QVERIFY(robot.Soddisfatto());
    QVERIFY(controllati > 10);
}

void tst_NomiAccessibili::VediLaStampa()
{
    EditorAperto prova(1);
    VediStampa finestra(prova.Stato(), QStringLiteral("Laser"),
                        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()),
                        nullptr);
    finestra.Dipinge();
    finestra.show();
    QVERIFY(Controlla(finestra) >= 10);
    GiraColTabulatore(finestra);
}

void tst_NomiAccessibili::Correzione()
{
    EditorAperto prova(1);
    UltimeCorrezioni(prova.CartellaStato())
        .Ricorda(QStringLiteral("Laser"), QStringLiteral("/altro.Mod"), {2, -1});
    FrmCorrezione dialogo(prova.Stato(), QStringLiteral("Laser"), prova.CartellaStato(), nullptr);
    dialogo.show();
    QVERIFY(Controlla(dialogo) >= 17);
    GiraColTabulatore(dialogo);
}

void tst_NomiAccessibili::Sfogliando()
{
    Robot robot;
    int controllati = 0;
    robot.Agisce([&](QDialog *dialogo) {
        controllati = Controlla(*dialogo);
        dialogo->reject();
    });
    Sfoglia sfoglia;
    sfoglia.FileEntrata()->setText(QStringLiteral(CARTELLA_CAMPIONE "/LEGGIMI.txt"));
    sfoglia.exec();
    QVERIFY(robot.Soddisfatto());
    QVERIFY(controllati > 4);
}

void tst_NomiAccessibili::Calibrando()
{
    EditoreDiProva prova;
    prova.Archivio.DaAprire().Sfondo.File = ScriveScansione(prova.Archivio, 210, 297);
    QVERIFY(prova.Apre());
    Robot robot;
    int controllati = 0;
    robot.Agisce([&](QDialog *dialogo) {
        controllati = Controlla(*dialogo);
        GiraColTabulatore(*dialogo);
        dialogo->reject();
    });
    Trova<QPushButton>(*prova.Editor, "SfondoCalibra")->click();
    QVERIFY(robot.Soddisfatto());
    QVERIFY(controllati > 10);
}

void tst_NomiAccessibili::Esportando()
{
    EditorAperto prova(1);
    Robot robot;
    int controllati = 0;
    robot.Agisce([&](QDialog *dialogo) {
        controllati = Controlla(*dialogo);
        GiraColTabulatore(*dialogo);
        dialogo->reject();
    });
    ::Preme(prova.Editor(), "EsportaPdf");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(controllati > 10);
}

void tst_NomiAccessibili::Aspettando()
{
    QWidget finestra;
    finestra.show();
    Robot robot;
    int controllati = 0;
    QString detto;
    const auto guarda = [&](QDialog *attesa) {
        controllati += Controlla(*attesa);
        const QAccessibleInterface *parte = QAccessible::queryAccessibleInterface(attesa);
        detto += parte->text(QAccessible::Name) + u' ' + attesa->findChild<QLabel *>()->text();
        attesa->findChild<QPushButton *>()->click();
    };
    robot.AgisceSuAttesa(guarda).AgisceSuAttesa(guarda);
    const auto senzaFine = [](const LavoroInDisparte::Annullato &annullato) {
        while (!annullato()) {
            QThread::yieldCurrentThread();
        }
    };
    QVERIFY(!EsegueConAttesa(&finestra, QStringLiteral("Si legge"), senzaFine));
    AttesaDiStampa stampa(&finestra, QStringLiteral("Si dipinge"), 0);
    const auto dipinge = [&] {
        for (QDeadlineTimer fine(5000); !fine.hasExpired();) {
            stampa.Avanza(0.5);
        }
    };
    QVERIFY_EXCEPTION_THROWN(dipinge(), StampaAnnullata);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(controllati, 2);
    QCOMPARE(detto, QStringLiteral("Plakera Si leggePlakera Si dipinge"));
}

void tst_NomiAccessibili::NomeDiUnModello()
{
    Robot robot;
    int controllati = 0;
    robot.Agisce([&](QDialog *dialogo) {
        controllati = Controlla(*dialogo);
        dialogo->reject();
    });
    QCOMPARE(ChiedeNomeModello(nullptr, QStringLiteral("/"), QStringLiteral("nome del modello"),
                               QStringLiteral("prova")),
             QString());
    QVERIFY(robot.Soddisfatto());
    QVERIFY(controllati >= 3);
}

void tst_NomiAccessibili::LavoroRimasto()
{
    const EditorAperto prova(1);
    const FrmLavoroRimasto finestra(prova.Aperto(), prova.Percorso(), nullptr);
    QVERIFY(Controlla(finestra) >= 2);
}

void tst_NomiAccessibili::LeVociNonSonoIlNome()
{
    EditorAperto prova;
    for (const char *nome : {"ComboCampi", "ComboCornici", "ComboImmagini"}) {
        auto *combo = Trova<QComboBox>(prova.Editor(), nome);
        QCOMPARE(combo->currentText(), QStringLiteral("------------------"));
        QVERIFY2(QAccessible::queryAccessibleInterface(combo)
                     ->text(QAccessible::Name)
                     .startsWith(QStringLiteral("elenco ")),
                 nome);
    }
}

void tst_NomiAccessibili::Rilievi()
{
    EditorAperto prova(1);
    auto *contatore = Trova<QToolButton>(prova.Editor(), "Controlli");
    contatore->click();
    QCOMPARE(QAccessible::queryAccessibleInterface(contatore)->text(QAccessible::Name),
             QStringLiteral("Controlli: un rilievo"));
    const auto *elenco = Trova<QWidget>(*prova.Editor().Anteprima(), "ElencoRilievi");
    QVERIFY(Controlla(*elenco) >= 1);
    auto *righe = Trova<QAbstractItemView>(*elenco, "Rilievi");
    QCOMPARE(QAccessible::queryAccessibleInterface(righe)->child(0)->text(QAccessible::Name),
             righe->model()->index(0, 0).data().toString());
}

void tst_NomiAccessibili::IlFuocoSiVede()
{
    EditoreDiProva prova;
    prova.Archivio.Riempie(1);
    QVERIFY(prova.Apre());
    auto *pagine = Trova<QTabWidget>(*prova.Editor, "SSTab1");
    for (int pagina = 0; pagina < pagine->count(); ++pagina) {
        pagine->setCurrentIndex(pagina);
        GiraColTabulatore(*prova.Editor);
    }
    GiraColTabulatore(*prova.Editor->Anteprima());
    Trova<QToolButton>(*prova.Editor->Anteprima(), "MostraElenco")->click();
    GiraColTabulatore(*Trova<QWidget>(*prova.Editor->Anteprima(), "ElencoElementi"));
    SelezioneArchivifrm inizio(prova.Archivio.Stato());
    QVERIFY(inizio.Form_Load(QStringLiteral(CARTELLA_CAMPIONE)));
    inizio.show();
    GiraColTabulatore(inizio);
    for (const Genere genere : Generi) {
        Robot robot;
        robot.Agisce([](QDialog *dialogo) {
            GiraColTabulatore(*dialogo);
            dialogo->reject();
        });
        prova.ApreProprieta(genere, 1);
        QVERIFY(robot.Soddisfatto());
    }
}

void tst_NomiAccessibili::ContrastoDelleCaselleDiSolaLettura()
{
    EditorAperto prova(1);
    int viste = 0;
    for (const QWidget *finestra : {static_cast<const QWidget *>(&prova.Editor()),
                                    static_cast<const QWidget *>(prova.Editor().Anteprima())}) {
        for (const auto *casella : finestra->findChildren<QLineEdit *>()) {
            const QPalette colori = casella->palette();
            const double contrasto =
                Contrasto(colori.color(QPalette::Text), colori.color(QPalette::Base));
            QVERIFY2(contrasto >= PerUnTesto,
                     qPrintable(Misurato(casella->objectName(), contrasto)));
            ++viste;
        }
    }
    QVERIFY(viste > 5);
}

void tst_NomiAccessibili::ContrastoDegliEliminati()
{
    EditorAperto prova(1);
    Passo(prova.Stato().documento, {}).Elimina({Genere::Campo, 1});
    Trova<QToolButton>(*prova.Editor().Anteprima(), "MostraElenco")->click();
    const auto *righe = Trova<QTableView>(*prova.Editor().Anteprima(), "Elementi");
    const auto grigio = righe->model()->index(0, 0).data(Qt::ForegroundRole).value<QColor>();
    for (const auto sfondo : {QPalette::Base, QPalette::AlternateBase}) {
        const double contrasto = Contrasto(grigio, righe->palette().color(sfondo));
        QVERIFY2(contrasto >= PerUnTesto, qPrintable(QString::number(contrasto)));
    }
}

void tst_NomiAccessibili::ContrastoDeiContorni()
{
    EditorAperto prova(1);
    const auto controllo = [&](const char *nome) {
        return ElementoAnteprima(*prova.Editor().Anteprima(), QString::fromLatin1(nome));
    };
    const auto verifica = [](const char *nome, const QColor &colore) {
        const double contrasto = Contrasto(colore, Qt::white);
        QVERIFY2(contrasto >= PerUnContorno,
                 qPrintable(Misurato(QString::fromLatin1(nome), contrasto)));
    };
    verifica("C3(1)", static_cast<ControlloElemento *>(controllo("C3(1)"))->ColoreBordo());
    for (const char *nome : {"S1", "S2", "S3"}) {
        verifica(nome, static_cast<Maniglia *>(controllo(nome))->Sfondo());
    }
    verifica("righello", QColor(Tavolozza::Rgb(Tavolozza::VerdeScuro)));
}

void tst_NomiAccessibili::ContrastoDelleRigheSimulate()
{
    EditoreDiProva prova;
    QVERIFY(prova.Apre());
    // Letters so large that their insides are of the full colour.
    prova.Editor->Anteprima()->AggiungeRigheSimulate(
        {{QRectF(10, 10, 60, 20), QStringLiteral("Arial"), 48, true, QStringLiteral("HHH")}});
    const QImage foto = Trova<QGraphicsView>(*prova.Editor->Anteprima(), "P1")->grab().toImage();
    double massimo = 1;
    for (int x = 0; x < foto.width(); ++x) {
        massimo = qMax(massimo, Contrasto(foto.pixelColor(x, foto.height() * 18 / 350), Qt::white));
    }
    QVERIFY2(massimo >= PerUnTesto, qPrintable(QString::number(massimo)));
    QVERIFY2(massimo < 12, "no paler than the elements themselves");
}

void tst_NomiAccessibili::ContrastoDelColoreScritto_data()
{
    QTest::addColumn<int>("colore");
    for (int colore = 0; colore < Tavolozza::Colori; ++colore) {
        QTest::addRow("%d", colore) << colore;
    }
}

void tst_NomiAccessibili::ContrastoDelColoreScritto()
{
    QFETCH(int, colore);
    EditoreDiProva prova;
    prova.Archivio.Riempie(1);
    QVERIFY(prova.Apre());
    Robot robot;
    double contrasto = 0;
    robot.Agisce([&](QDialog *dialogo) {
        Controlli::Digita(*dialogo, "ColoreTesto", QString::number(colore));
        const QPalette colori = Trova<QLabel>(*dialogo, "Label11")->palette();
        contrasto = Contrasto(colori.color(QPalette::WindowText), colori.color(QPalette::Window));
        dialogo->reject();
    });
    prova.ApreProprieta(Genere::Cornice, 1);
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(contrasto >= PerUnTesto, qPrintable(QString::number(contrasto)));
}

QTEST_MAIN(tst_NomiAccessibili)
#include "tst_NomiAccessibili.moc"
