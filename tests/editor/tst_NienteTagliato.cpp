#include "EditoreDiProva.h"
#include "catalogue/SelezioneArchivifrm.h"
#include "documento/UltimeCorrezioni.h"
#include "editor/FrmCorrezione.h"
#include "editor/VediStampa.h"
#include "finestre/Sfoglia.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <algorithm>

/// Every window with everything in it, on the screen that the program is run on: no control is cut
/// off, covered by another one, or out of reach. Run once for each screen and scale.
class tst_NienteTagliato : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void FinestraIniziale();
    void Editor();
    void LinguetteColTopo();
    void RuotaSuUnElenco();
    void Anteprima();
    void Elenco();
    void Rilievi();
    void Dialogo_data();
    void Dialogo();
    void VediLaStampa();
    void Correzione_data();
    void Correzione();
    void Sfogliando();
    void Calibrando();

private:
    QTemporaryDir esecuzione_;
};

namespace {

QString NomeDi(const QWidget *controllo)
{
    return QStringLiteral("%1 %2").arg(QLatin1String(controllo->metaObject()->className()),
                                       controllo->objectName());
}

/// Inside a scrolling area, where what does not fit is reached by scrolling.
bool Scorre(const QWidget *controllo, const QWidget *finestra)
{
    for (const QWidget *sopra = controllo->parentWidget(); sopra != finestra && sopra != nullptr;
         sopra = sopra->parentWidget()) {
        // So are the areas of the preview that hold the sheet and its rulers.
        if (qobject_cast<const QAbstractScrollArea *>(sopra) != nullptr ||
            sopra->objectName().startsWith(QStringLiteral("Area"))) {
            return true;
        }
    }
    return false;
}

/// The strip at the bottom of the preview is made to carry others, and shows its text beside them.
bool Sfondo(const QWidget *controllo)
{
    return controllo->objectName() == QStringLiteral("Text1") &&
           controllo->parentWidget()->objectName() == QStringLiteral("Frm1");
}

bool ConTesto(const QWidget *controllo)
{
    return qobject_cast<const QLabel *>(controllo) != nullptr ||
           qobject_cast<const QAbstractButton *>(controllo) != nullptr ||
           qobject_cast<const QLineEdit *>(controllo) != nullptr ||
           qobject_cast<const QComboBox *>(controllo) != nullptr;
}

/// The least size that shows the control's text whole.
QSize Serve(const QWidget *controllo)
{
    if (controllo->hasHeightForWidth()) {
        return {0, controllo->heightForWidth(controllo->width())};
    }
    if (const auto *casella = qobject_cast<const QLineEdit *>(controllo)) {
        // The hint also has the air that a box of a usual height has around its text.
        QStyleOptionFrame aspetto;
        aspetto.initFrom(casella);
        aspetto.lineWidth = casella->style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
        const int dentro =
            casella->style()->subElementRect(QStyle::SE_LineEditContents, &aspetto).height();
        return {casella->minimumSizeHint().width(),
                casella->height() - dentro + casella->fontMetrics().height()};
    }
    return controllo->minimumSizeHint();
}

/// What the control lacks to be seen whole; empty when it lacks nothing.
QString Mancanza(const QWidget *controllo, const QWidget *finestra)
{
    const QSize serve = Serve(controllo);
    if (ConTesto(controllo) && controllo->size().expandedTo(serve) != controllo->size()) {
        return QStringLiteral("is %1 x %2, needs %3 x %4")
            .arg(controllo->width())
            .arg(controllo->height())
            .arg(serve.width())
            .arg(serve.height());
    }
    const QRect posto(controllo->mapTo(finestra, QPoint()), controllo->size());
    if (!Scorre(controllo, finestra) && !finestra->rect().contains(posto)) {
        return QStringLiteral("ends outside the window");
    }
    for (const QObject *figlio : controllo->parentWidget()->children()) {
        const auto *fratello = qobject_cast<const QWidget *>(figlio);
        if (fratello != nullptr && fratello != controllo && fratello->isVisible() &&
            ConTesto(controllo) && ConTesto(fratello) && !Sfondo(controllo) && !Sfondo(fratello) &&
            fratello->geometry().intersects(controllo->geometry())) {
            return QStringLiteral("lies on ") + NomeDi(fratello);
        }
    }
    return {};
}

/// The controls of the window as it is shown; fails the test at those that cannot be seen whole.
int Controlla(const QWidget &finestra)
{
    QCoreApplication::processEvents();
    const QRect schermo = finestra.screen()->availableGeometry();
    if (!schermo.contains(finestra.frameGeometry())) {
        QTest::qFail("the window does not fit the screen", __FILE__, __LINE__);
    }
    int controllati = 0;
    for (const auto *controllo : finestra.findChildren<QWidget *>()) {
        // Qt's own parts of a control look after themselves.
        if (!controllo->isVisible() || controllo->window() != &finestra ||
            controllo->objectName().isEmpty() || controllo->objectName().startsWith(u"qt_") ||
            qobject_cast<const QTabBar *>(controllo->parentWidget()) != nullptr) {
            continue;
        }
        const QString mancanza = Mancanza(controllo, &finestra);
        if (!mancanza.isEmpty()) {
            QTest::qFail(qPrintable(NomeDi(controllo) + u' ' + mancanza), __FILE__, __LINE__);
        }
        ++controllati;
    }
    return controllati;
}

/// The part of the window in which the control can be seen: all of it, or the area that scrolls it.
QRect Vetrina(const QWidget *controllo, const QWidget &finestra)
{
    for (const QWidget *sopra = controllo->parentWidget(); sopra != &finestra;
         sopra = sopra->parentWidget()) {
        if (const auto *area = qobject_cast<const QScrollArea *>(sopra)) {
            const QWidget *vista = area->viewport();
            return {vista->mapTo(&finestra, QPoint()), vista->size()};
        }
    }
    return finestra.rect();
}

/// Brings the keyboard to each control in turn; gives how many of them are not seen whole then.
int NonSiRaggiungono(const QWidget &finestra)
{
    int mancati = 0;
    for (auto *controllo : finestra.findChildren<QWidget *>()) {
        if (!controllo->isVisible() || !(controllo->focusPolicy() & Qt::TabFocus) ||
            controllo->focusProxy() != nullptr || !controllo->isEnabled() ||
            controllo->window() != &finestra) {
            continue;
        }
        controllo->setFocus();
        const QRect posto(controllo->mapTo(&finestra, QPoint()), controllo->size());
        // A control larger than the window is seen as far as it can be.
        const QRect vetrina = Vetrina(controllo, finestra);
        const QSize misura = posto.size().boundedTo(vetrina.size());
        if (vetrina.intersected(posto).size() != misura) {
            QTest::qFail(qPrintable(NomeDi(controllo) + QStringLiteral(" stays out of sight")),
                         __FILE__, __LINE__);
            ++mancati;
        }
    }
    return mancati;
}

/// Whether the page's tab is seen whole beside the buttons that scroll the tabs, where there are
/// any.
bool SiVede(const QTabBar &linguette, int pagina)
{
    const QRect posto = linguette.tabRect(pagina);
    const auto frecce = linguette.findChildren<QToolButton *>();
    return linguette.rect().contains(posto) &&
           std::none_of(frecce.cbegin(), frecce.cend(), [&](const QToolButton *freccia) {
               return freccia->isVisible() && freccia->geometry().intersects(posto);
           });
}

/// Where the whole screen is too narrow for the tabs and what stands beside them.
bool ScorronoLePagine(const QTabWidget &pagine)
{
    return pagine.widget(0)->findChild<QScrollArea *>(QStringLiteral("AreaScorrevole")) != nullptr;
}

bool Apre(EditoreDiProva &prova)
{
    prova.Archivio.Riempie(2);
    return prova.Apre();
}

} // namespace

void tst_NienteTagliato::initTestCase()
{
    // Where the program keeps its one instance: other tests that run meanwhile are none.
    QVERIFY(esecuzione_.isValid());
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(esecuzione_.path()));
}

void tst_NienteTagliato::FinestraIniziale()
{
    ArchivioDiProva prova;
    prova.Scrive();
    SelezioneArchivifrm finestra(prova.Stato());
    QVERIFY(finestra.Form_Load(QStringLiteral(CARTELLA_CAMPIONE)));
    finestra.show();
    QVERIFY(Controlla(finestra) > 10);
}

void tst_NienteTagliato::Editor()
{
    EditoreDiProva prova;
    QVERIFY(Apre(prova));
    prova.Editor->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(prova.Editor.get()));
    auto *pagine = Trova<QTabWidget>(*prova.Editor, "SSTab1");
    const QTabBar &linguette = *pagine->tabBar();
    for (int p = 0; p < pagine->count(); ++p) {
        pagine->setCurrentIndex(p);
        QVERIFY2(Controlla(*prova.Editor) > 15, qPrintable(pagine->tabText(p)));
        QVERIFY2(SiVede(linguette, p), qPrintable(pagine->tabText(p)));
        QVERIFY2(SiVede(linguette, 0) || ScorronoLePagine(*pagine), qPrintable(pagine->tabText(p)));
        QCOMPARE(NonSiRaggiungono(*prova.Editor), 0);
    }
}

void tst_NienteTagliato::LinguetteColTopo()
{
    EditoreDiProva prova;
    QVERIFY(Apre(prova));
    auto *pagine = Trova<QTabWidget>(*prova.Editor, "SSTab1");
    QTabBar *linguette = pagine->tabBar();
    QCoreApplication::processEvents();
    auto *avanti = Trova<QToolButton>(*linguette, "ScrollRightButton");
    QCOMPARE(avanti->isVisible(), ScorronoLePagine(*pagine));
    for (int p = 1; p < pagine->count(); ++p) {
        for (int giro = 0; giro < pagine->count() && !SiVede(*linguette, p); ++giro) {
            QTest::mouseClick(avanti, Qt::LeftButton);
        }
        QVERIFY2(SiVede(*linguette, p), qPrintable(pagine->tabText(p)));
        QTest::mouseClick(linguette, Qt::LeftButton, {}, linguette->tabRect(p).center());
        QCOMPARE(pagine->currentIndex(), p);
    }
}

void tst_NienteTagliato::RuotaSuUnElenco()
{
    EditoreDiProva prova;
    QVERIFY(Apre(prova));
    auto *pagine = Trova<QTabWidget>(*prova.Editor, "SSTab1");
    auto *elenco = Trova<QComboBox>(*prova.Editor, "ComboCampi");
    QCOMPARE(elenco->currentIndex(), 0);
    Controlli::GiraRotella(elenco, -1);
    // Where the page scrolls, the wheel is the page's.
    QCOMPARE(elenco->currentIndex(), ScorronoLePagine(*pagine) ? 0 : 1);
}

void tst_NienteTagliato::Anteprima()
{
    EditoreDiProva prova;
    QVERIFY(Apre(prova));
    const Frm1 &anteprima = *prova.Editor->Anteprima();
    QVERIFY(Controlla(anteprima) > 5);
    QVERIFY(!anteprima.frameGeometry().intersects(prova.Editor->frameGeometry()));
    // A part of the sheet worth the name, beside its rulers.
    const auto *foglio = Trova<QWidget>(anteprima, "AreaFoglio");
    QVERIFY(foglio->width() > 400 && foglio->height() > 100);
}

void tst_NienteTagliato::Elenco()
{
    EditoreDiProva prova;
    QVERIFY(Apre(prova));
    Trova<QToolButton>(*prova.Editor->Anteprima(), "MostraElenco")->click();
    const auto *elenco = Trova<QWidget>(*prova.Editor->Anteprima(), "ElencoElementi");
    QVERIFY(QTest::qWaitForWindowExposed(const_cast<QWidget *>(elenco)));
    QVERIFY(Controlla(*elenco) > 2);
    // Rows beside the titles, even where the editor leaves little of the screen.
    const auto *righe = Trova<QAbstractItemView>(*elenco, "Elementi");
    QVERIFY(righe->viewport()->height() >= 2 * righe->sizeHintForRow(0));
}

void tst_NienteTagliato::Rilievi()
{
    EditoreDiProva prova;
    // Three digits on the counter, and its window as it is then.
    prova.Archivio.Riempie(100);
    QVERIFY(prova.Apre());
    auto *contatore = Trova<QToolButton>(*prova.Editor, "Controlli");
    QTRY_VERIFY(contatore->text().size() == 3);
    QVERIFY(Controlla(*prova.Editor) > 15);
    contatore->click();
    const auto *elenco = Trova<QWidget>(*prova.Editor->Anteprima(), "ElencoRilievi");
    QVERIFY(QTest::qWaitForWindowExposed(const_cast<QWidget *>(elenco)));
    QVERIFY(Controlla(*elenco) > 1);
    const auto *righe = Trova<QAbstractItemView>(*elenco, "Rilievi");
    QVERIFY(righe->viewport()->height() >= righe->visualRect(righe->model()->index(0, 0)).height());
}

void tst_NienteTagliato::Dialogo_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("FrmCampo") << Genere::Campo;
    QTest::newRow("FrmCornice") << Genere::Cornice;
    QTest::newRow("FrmImmagine") << Genere::Immagine;
}

void tst_NienteTagliato::Dialogo()
{
    QFETCH(Genere, genere);
    EditoreDiProva prova;
    QVERIFY(Apre(prova));
    Robot robot;
    int controllati = 0;
    int mancati = -1;
    QString primo;
    robot.Agisce([&](QDialog *dialogo) {
        QVERIFY(QTest::qWaitForWindowActive(dialogo));
        primo = dialogo->focusWidget()->objectName();
        controllati = Controlla(*dialogo);
        mancati = NonSiRaggiungono(*dialogo);
        dialogo->reject();
    });
    prova.ApreProprieta(genere, 1);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(primo,
             genere == Genere::Immagine ? QStringLiteral("Descrizione") : QStringLiteral("Testo"));
    QCOMPARE(mancati, 0);
    QVERIFY(controllati > 15);
}

void tst_NienteTagliato::VediLaStampa()
{
    EditoreDiProva prova;
    QVERIFY(Apre(prova));
    VediStampa finestra(prova.Archivio.Stato(), QStringLiteral("Stampante dell'ufficio/bolle"),
                        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                    QMarginsF(4, 5, 6, 7), QPageLayout::Millimeter),
                        prova.Editor.get());
    finestra.Dipinge();
    finestra.show();
    finestra.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&finestra));
    QVERIFY(Controlla(finestra) > 10);
    QCOMPARE(NonSiRaggiungono(finestra), 0);
}

void tst_NienteTagliato::Correzione_data()
{
    QTest::addColumn<bool>("scala");
    QTest::newRow("a shift") << false;
    QTest::newRow("the longest answer") << true;
}

void tst_NienteTagliato::Correzione()
{
    QFETCH(bool, scala);
    EditoreDiProva prova;
    QVERIFY(Apre(prova));
    const auto stampante = QStringLiteral("Laser");
    UltimeCorrezioni(prova.Archivio.CartellaStato())
        .Ricorda(stampante, QStringLiteral("/altro.Mod"), {12, -11});
    FrmCorrezione dialogo(prova.Archivio.Stato(), stampante, prova.Archivio.CartellaStato(),
                          prova.Editor.get());
    dialogo.show();
    dialogo.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialogo));
    QCOMPARE(dialogo.focusWidget()->objectName(), QStringLiteral("AttesoX1"));
    Trova<QCheckBox>(dialogo, "DueSegni")->setChecked(scala);
    const auto scrive = [&](const char *nome, const char *testo) {
        Controlli::Digita(dialogo, nome, QString::fromLatin1(testo));
    };
    for (const char *nome : {"AttesoX1", "AttesoY1", "UscitoX1", "UscitoY1"}) {
        scrive(nome, "20");
    }
    scrive("AttesoX2", "123.4");
    scrive("AttesoY2", "234.5");
    scrive("UscitoX2", "145.6");
    scrive("UscitoY2", "256.7");
    QVERIFY(Controlla(dialogo) > 25);
    QCOMPARE(NonSiRaggiungono(dialogo), 0);
}

void tst_NienteTagliato::Sfogliando()
{
    Robot robot;
    int controllati = 0;
    robot.Agisce([&](QDialog *dialogo) {
        controllati = Controlla(*dialogo);
        dialogo->reject();
    });
    // A folder as deep as users keep theirs.
    QDir profonda(esecuzione_.path());
    const QString cartella = QStringLiteral("Documenti della ditta/Contabilità dell'anno %1/ini");
    for (int anno = 2024; anno < 2027; ++anno) {
        QVERIFY(profonda.mkpath(cartella.arg(anno)) && profonda.cd(cartella.arg(anno)));
    }
    const QString file = profonda.filePath(QStringLiteral("LogoPerlanera.jpg"));
    QVERIFY(QFile::copy(QStringLiteral(CARTELLA_CAMPIONE "/Archivio_2026/ini/LogoPerlanera.jpg"),
                        file));
    Sfoglia sfoglia;
    sfoglia.FileEntrata()->setText(file);
    sfoglia.exec();
    QVERIFY(robot.Soddisfatto());
    QVERIFY(controllati > 8);
}

void tst_NienteTagliato::Calibrando()
{
    EditoreDiProva prova;
    prova.Archivio.Riempie(2);
    prova.Archivio.DaAprire().Sfondo.File = ScriveScansione(prova.Archivio, 210, 297);
    QVERIFY(prova.Apre());
    Robot robot;
    int controllati = 0;
    int mancati = -1;
    robot.Agisce([&](QDialog *dialogo) {
        QVERIFY(QTest::qWaitForWindowActive(dialogo));
        controllati = Controlla(*dialogo);
        mancati = NonSiRaggiungono(*dialogo);
        dialogo->reject();
    });
    Trova<QAbstractButton>(*prova.Editor, "SfondoCalibra")->click();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(mancati, 0);
    QVERIFY(controllati > 12);
}

QTEST_MAIN(tst_NienteTagliato)
#include "tst_NienteTagliato.moc"
