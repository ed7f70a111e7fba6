// How the boxes and lists of the property dialogs behave, whichever the kind.

#include "dialogs/DialogoDiProva.h"
#include "dialogs/Mnemonici.h"
#include "finestre/DialogoScorrevole.h"

#include <QApplication>
#include <QScrollArea>

using namespace Controlli;

namespace {

constexpr double PiuLungo = -1.23456789012345e+105; // than any box of a dialog

/// The dialog of an element that stands farther off than its boxes can show, with something chosen
/// in each list.
struct Prova : DialogoDiProva
{
    explicit Prova(Genere delGenere, bool scorre = false)
        : DialogoDiProva(delGenere)
    {
        Cambia(stato, [](Modello &modello) {
            for (const Genere uno : Generi) {
                Elemento &elemento = modello.Di({uno, 2});
                elemento.X = elemento.Y = PiuLungo;
            }
            modello.Campi[2].Font = modello.Cornici[2].Font = QStringLiteral("Courier New");
        });
        Carica(2);
        if (genere == Genere::Campo) {
            static_cast<FrmCampo &>(*dialogo).Maschere()->setCurrentIndex(60);
        }
        if (scorre) {
            constexpr int OltreLoSchermo = 3000;
            Trova<QWidget>(*dialogo, "Nome")->setMinimumWidth(OltreLoSchermo);
        }
        AdattaAlloSchermo(*dialogo);
        Mostra();
    }
};

} // namespace

class tst_FrmElementoCaselle : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void UnTastoAllAperturaNonRinomina_data() { RighePerGenere(); }
    void UnTastoAllAperturaNonRinomina();
    void ScorrevoleSiApreNellaStessaCasella_data() { RighePerGenere(); }
    void ScorrevoleSiApreNellaStessaCasella();
    void LaRotellaSugliElenchiChiusiNonCambiaNulla_data() { RighePerGenere(); }
    void LaRotellaSugliElenchiChiusiNonCambiaNulla();
    void GliElenchiSiApronoSuVentiRighe_data();
    void GliElenchiSiApronoSuVentiRighe();
    void INumeriLunghiMostranoLInizio_data() { RighePerGenere(); }
    void INumeriLunghiMostranoLInizio();
    void EntrandoDaTastieraSiVedeLInizio_data() { RighePerGenere(); }
    void EntrandoDaTastieraSiVedeLInizio();
    void UnRifiutoMostraLInizio_data() { RighePerGenere(); }
    void UnRifiutoMostraLInizio();
    void IMnemoniciSonoLettere_data() { RighePerGenere(); }
    void IMnemoniciSonoLettere();
};

void tst_FrmElementoCaselle::UnTastoAllAperturaNonRinomina()
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

void tst_FrmElementoCaselle::ScorrevoleSiApreNellaStessaCasella()
{
    QFETCH(Genere, genere);
    const Prova p(genere, true);
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

void tst_FrmElementoCaselle::LaRotellaSugliElenchiChiusiNonCambiaNulla()
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

void tst_FrmElementoCaselle::GliElenchiSiApronoSuVentiRighe_data()
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

void tst_FrmElementoCaselle::GliElenchiSiApronoSuVentiRighe()
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
    VerificaVentiRighe(*elenco);
}

void tst_FrmElementoCaselle::INumeriLunghiMostranoLInizio()
{
    QFETCH(Genere, genere);
    const Prova p(genere);
    int lunghi = 0;
    for (auto *casella : p.dialogo->findChildren<QLineEdit *>()) {
        if (!casella->text().contains(QLatin1String("E+"))) {
            continue;
        }
        ++lunghi;
        QVERIFY2(MostraLInizio(*casella), qPrintable(casella->objectName() + casella->text()));
    }
    QVERIFY(lunghi >= 2);
}

void tst_FrmElementoCaselle::EntrandoDaTastieraSiVedeLInizio()
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

void tst_FrmElementoCaselle::UnRifiutoMostraLInizio()
{
    QFETCH(Genere, genere);
    Prova p(genere);
    auto *casella = Trova<QLineEdit>(*p.dialogo, "Y");
    casella->setText(QStringLiteral("1234567890123456789 millimetri"));
    p.robot.Ok();
    p.Conferma();
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.dialogo->focusWidget(), casella);
    QCOMPARE(casella->selectedText(), casella->text());
    QVERIFY(MostraLInizio(*casella));
}

void tst_FrmElementoCaselle::IMnemoniciSonoLettere()
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

QTEST_MAIN(tst_FrmElementoCaselle)
#include "tst_FrmElementoCaselle.moc"
