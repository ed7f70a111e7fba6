// What the property dialogs of the three kinds have in common for whoever uses them.

#include "dialogs/FrmCampo.h"
#include "dialogs/FrmCornice.h"
#include "dialogs/FrmImmagine.h"
#include "dialogs/Mnemonici.h"
#include "finestre/DialogoScorrevole.h"
#include "support/Controlli.h"
#include "support/DocumentoDiProva.h"
#include "support/Robot.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QScrollArea>
#include <QTemporaryDir>

#include <memory>

using namespace Controlli;

namespace {

constexpr double PiuLungo = -1.23456789012345e+105; // than any box of a dialog

/// A model with an element of each kind, and the dialog of one of them as the editor opens it.
struct Prova
{
    explicit Prova(Genere genere, qint16 dimensione = 11, bool scorre = false)
    {
        stato.CartellaModelli = cartella.path() + u'/';
        stato.ElencoFont = {QStringLiteral("Arial"), QStringLiteral("Courier New")};
        Cambia(stato, [dimensione](Modello &modello) {
            modello.AggiungeCampo(PiuLungo, PiuLungo);
            modello.AggiungeCornice(PiuLungo, PiuLungo, 5, 7);
            modello.AggiungeImmagine(PiuLungo, PiuLungo);
            modello.Campi[1].Dimensione = dimensione;
            modello.Cornici[1].Dimensione = dimensione;
            modello.Immagini[1].Nome = QStringLiteral("logo.bmp");
        });
        Crea(genere);
        if (scorre) {
            constexpr int OltreLoSchermo = 3000;
            Trova<QWidget>(*dialogo, "Nome")->setMinimumWidth(OltreLoSchermo);
        }
        AdattaAlloSchermo(*dialogo);
        dialogo->setModal(false); // the robot looks for modal boxes only
        dialogo->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialogo.get()));
        dialogo->activateWindow();
    }

    void Crea(Genere genere)
    {
        switch (genere) {
        case Genere::Campo: {
            auto campo = std::make_unique<FrmCampo>(stato);
            campo->RiempieComboImpostazioni();
            campo->Carica(1);
            Sceglie(*campo, stato.Aperto().Campi[1].Dimensione);
            campo->Maschere()->setCurrentIndex(60);
            dialogo = std::move(campo);
            break;
        }
        case Genere::Cornice: {
            auto cornice = std::make_unique<FrmCornice>(stato);
            cornice->RiempieComboImpostazioni();
            cornice->Carica(1);
            Sceglie(*cornice, stato.Aperto().Cornici[1].Dimensione);
            dialogo = std::move(cornice);
            break;
        }
        case Genere::Immagine: {
            auto immagine = std::make_unique<FrmImmagine>(stato);
            immagine->Carica(1);
            dialogo = std::move(immagine);
            break;
        }
        }
    }

    static void Sceglie(FrmCarattere &dialogo, qint16 dimensione)
    {
        dialogo.Font()->setCurrentIndex(1);
        dialogo.Dimensioni()->setCurrentIndex(
            dialogo.Dimensioni()->findText(QString::number(dimensione).rightJustified(2)));
    }

    QTemporaryDir cartella;
    StatoProgramma stato;
    std::unique_ptr<FrmElemento> dialogo;
    Robot robot;
};

void Generi_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("campo") << Genere::Campo;
    QTest::newRow("cornice") << Genere::Cornice;
    QTest::newRow("immagine") << Genere::Immagine;
}

/// Narrow enough to cut its text, a box shows the beginning of it.
bool MostraLInizio(QLineEdit &casella)
{
    casella.setFixedWidth(60);
    casella.grab(); // painting scrolls the text to the cursor
    return casella.fontMetrics().horizontalAdvance(casella.text()) > casella.width() &&
           casella.cursorPositionAt({2, casella.height() / 2}) == 0;
}

} // namespace

class tst_FrmElemento : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void UnTastoAllAperturaNonRinomina_data() { Generi_data(); }
    void UnTastoAllAperturaNonRinomina();
    void ScorrevoleSiApreNellaStessaCasella_data() { Generi_data(); }
    void ScorrevoleSiApreNellaStessaCasella();
    void LaRotellaSugliElenchiChiusiNonCambiaNulla_data() { Generi_data(); }
    void LaRotellaSugliElenchiChiusiNonCambiaNulla();
    void DimensioneFuoriElenco_data();
    void DimensioneFuoriElenco();
    void GliElenchiSiApronoSuVentiRighe_data();
    void GliElenchiSiApronoSuVentiRighe();
    void INumeriLunghiMostranoLInizio_data() { Generi_data(); }
    void INumeriLunghiMostranoLInizio();
    void EntrandoDaTastieraSiVedeLInizio_data() { Generi_data(); }
    void EntrandoDaTastieraSiVedeLInizio();
    void UnRifiutoMostraLInizio_data() { Generi_data(); }
    void UnRifiutoMostraLInizio();
    void IMnemoniciSonoLettere_data() { Generi_data(); }
    void IMnemoniciSonoLettere();
};

void tst_FrmElemento::UnTastoAllAperturaNonRinomina()
{
    QFETCH(Genere, genere);
    Prova p(genere);
    const QString nome = Testo(*p.dialogo, "Nome");
    QWidget *primo = p.dialogo->focusWidget();
    QCOMPARE(primo,
             Trova<QWidget>(*p.dialogo, genere == Genere::Immagine ? "Descrizione" : "Testo"));
    QTest::keyClick(primo, Qt::Key_X);
    QCOMPARE(Testo(*p.dialogo, "Nome"), nome);
}

void tst_FrmElemento::ScorrevoleSiApreNellaStessaCasella()
{
    QFETCH(Genere, genere);
    const Prova p(genere, 11, true);
    QVERIFY(p.dialogo->findChild<QScrollArea *>() != nullptr);
    const QString nome = Testo(*p.dialogo, "Nome");
    auto *primo = qobject_cast<QLineEdit *>(p.dialogo->focusWidget());
    QCOMPARE(primo,
             Trova<QLineEdit>(*p.dialogo, genere == Genere::Immagine ? "Descrizione" : "Testo"));
    QCOMPARE(primo->selectedText(), primo->text());
    QCOMPARE(primo->cursorPosition(), 0);
    QTest::keyClick(primo, Qt::Key_X);
    QCOMPARE(primo->text(), QStringLiteral("x"));
    QCOMPARE(Testo(*p.dialogo, "Nome"), nome);
}

void tst_FrmElemento::LaRotellaSugliElenchiChiusiNonCambiaNulla()
{
    QFETCH(Genere, genere);
    Prova p(genere);
    const QList<QComboBox *> elenchi = p.dialogo->findChildren<QComboBox *>();
    QCOMPARE(elenchi.size(), genere == Genere::Campo ? 3 : genere == Genere::Cornice ? 2 : 0);
    for (QComboBox *elenco : elenchi) {
        const int scelto = elenco->currentIndex();
        QVERIFY(scelto > 0);
        elenco->setFocus();
        QVERIFY2(!GiraRotella(elenco, 1), "the window below may scroll");
        QVERIFY(!GiraRotella(elenco, -1));
        QCOMPARE(elenco->currentIndex(), scelto);
    }
}

void tst_FrmElemento::DimensioneFuoriElenco_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<qint16>("dimensione");
    QTest::newRow("campo grande") << Genere::Campo << qint16(60);
    QTest::newRow("cornice grande") << Genere::Cornice << qint16(41);
    QTest::newRow("campo piccolo") << Genere::Campo << qint16(5);
    QTest::newRow("cornice senza dimensione") << Genere::Cornice << qint16(0);
}

void tst_FrmElemento::DimensioneFuoriElenco()
{
    QFETCH(Genere, genere);
    QFETCH(qint16, dimensione);
    Prova p(genere, dimensione);
    const Modello prima = p.stato.Aperto();
    const QString messaggio =
        QStringLiteral("Dim.: l'elemento ha %1, che non è nell'elenco; sceglierne una da 6 a 40")
            .arg(dimensione);
    p.robot.Ok().Ok();
    Preme(*p.dialogo, genere == Genere::Campo ? "PConfemaCampo" : "Confema");
    Preme(*p.dialogo, "Command2"); // the font of all elements
    QCOMPARE(p.robot.Testi(), QStringList(2, messaggio));
    QVERIFY(p.stato.Aperto() == prima && p.dialogo->isVisible());
    auto *elenco = Trova<QComboBox>(*p.dialogo, "ComboDim");
    QCOMPARE(p.dialogo->focusWidget(), elenco);
    elenco->setCurrentText(QStringLiteral("40"));
    Preme(*p.dialogo, genere == Genere::Campo ? "PConfemaCampo" : "Confema");
    QVERIFY(!p.dialogo->isVisible());
}

void tst_FrmElemento::GliElenchiSiApronoSuVentiRighe_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QByteArray>("nome");
    QTest::addColumn<int>("voci");
    QTest::newRow("campo, maschere") << Genere::Campo << QByteArray("ComboMask") << 128;
    QTest::newRow("campo, font") << Genere::Campo << QByteArray("ComboFont") << 60;
    QTest::newRow("campo, dimensioni") << Genere::Campo << QByteArray("ComboDim") << 35;
    QTest::newRow("cornice, font") << Genere::Cornice << QByteArray("ComboFont") << 60;
    QTest::newRow("cornice, dimensioni") << Genere::Cornice << QByteArray("ComboDim") << 35;
}

void tst_FrmElemento::GliElenchiSiApronoSuVentiRighe()
{
    QFETCH(Genere, genere);
    QFETCH(QByteArray, nome);
    QFETCH(int, voci);
    Prova p(genere);
    auto *elenco = Trova<QComboBox>(*p.dialogo, nome.constData());
    while (elenco->count() < voci) {
        elenco->addItem(QStringLiteral("Font %1").arg(elenco->count()));
    }
    QCOMPARE(elenco->count(), voci);
    elenco->showPopup();
    QTRY_VERIFY(elenco->view()->isVisible());
    const double righe =
        double(elenco->view()->viewport()->height()) / elenco->view()->sizeHintForRow(0);
    QVERIFY2(righe > 10 && righe <= 20.5, qPrintable(QString::number(righe)));
    elenco->hidePopup();
}

void tst_FrmElemento::INumeriLunghiMostranoLInizio()
{
    QFETCH(Genere, genere);
    const Prova p(genere);
    int lunghi = 0;
    for (auto *casella : p.dialogo->findChildren<QLineEdit *>()) {
        if (!casella->text().contains(u'E')) {
            continue;
        }
        ++lunghi;
        QVERIFY(MostraLInizio(*casella));
    }
    QVERIFY(lunghi >= 2);
}

void tst_FrmElemento::EntrandoDaTastieraSiVedeLInizio()
{
    QFETCH(Genere, genere);
    const Prova p(genere);
    QVERIFY(QTest::qWaitForWindowActive(p.dialogo.get()));
    auto *prima = Trova<QLineEdit>(*p.dialogo, "Nome");
    for (const char *nome : {"X", "Y"}) {
        auto *casella = Trova<QLineEdit>(*p.dialogo, nome);
        prima->setFocus();
        for (int k = 0; !casella->hasFocus() && k < 40; ++k) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY2(casella->hasFocus(), nome);
        QCOMPARE(casella->selectedText(), casella->text());
        QVERIFY2(MostraLInizio(*casella), nome);
    }
}

void tst_FrmElemento::UnRifiutoMostraLInizio()
{
    QFETCH(Genere, genere);
    Prova p(genere);
    auto *casella = Trova<QLineEdit>(*p.dialogo, "Y");
    casella->setText(QStringLiteral("1234567890123456789 millimetri"));
    p.robot.Ok();
    Preme(*p.dialogo, genere == Genere::Campo ? "PConfemaCampo" : "Confema");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.dialogo->focusWidget(), casella);
    QCOMPARE(casella->selectedText(), casella->text());
    QVERIFY(MostraLInizio(*casella));
}

void tst_FrmElemento::IMnemoniciSonoLettere()
{
    QFETCH(Genere, genere);
    const Prova p(genere);
    int mnemonici = 0;
    for (const QString &testo : Didascalie(*p.dialogo)) {
        const QString tasto = QKeySequence::mnemonic(testo).toString();
        if (!tasto.isEmpty()) {
            ++mnemonici;
            QVERIFY2(tasto.back().isLetter(), qPrintable(testo));
        }
    }
    QVERIFY(mnemonici >= 9);
}

QTEST_MAIN(tst_FrmElemento)
#include "tst_FrmElemento.moc"
