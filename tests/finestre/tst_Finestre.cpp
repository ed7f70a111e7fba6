#include "finestre/Finestre.h"
#include "finestre/Icone.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QIntValidator>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

namespace {

const QString Estranei = QStringLiteral("\u0394\u4e2d\U0001F600");

} // namespace

class tst_Finestre : public QObject
{
    Q_OBJECT

private slots:
    void CentraForm_centro();
    void CentraForm_finestraNonAncoraMostrata();
    void CentraForm_piuGrandeDelloSchermo();
    void ImpostaHelp_ogniControllo();
    void ArgomentoDi_antenato();
    void ArgomentoDi_finestraSopraUnAltra();
    void ArgomentoDi_elencoAperto();
    void ArgomentoDi_nessuno();
    void ImpostaLingua_bottoni();
    void ImpostaLingua_generiDiFile();
    void PixelPerMillimetro_daRisoluzione();
    void PuntatoreOccupato_finoAllaFine();
    void LimitaAlCodice_digitato();
    void LimitaAlCodice_incollato();
    void LimitaAlCodice_aCapoIncollato();
    void LimitaAlCodice_codiceIntero();
    void LimitaAlCodice_battutoNonToccaLaSelezione();
    void LimitaAlCodice_testoLungo();
    void LimitaAlCodice_limiteProprio();
    void LimitaAlCodice_validatoreProprio();
    void LimitaAlCodice_casellaCombinata();
    void LimitaAlCodice_piuRighe();
    void IconaGuida_disegnata();
};

void tst_Finestre::CentraForm_centro()
{
    QWidget finestra;
    finestra.resize(300, 200);
    finestra.show();
    QVERIFY(QTest::qWaitForWindowExposed(&finestra));
    CentraForm(&finestra);
    const QRect schermo = finestra.screen()->geometry();
    const QRect posto = finestra.frameGeometry();
    QVERIFY(qAbs(posto.top() - (schermo.top() + (schermo.height() - posto.height()) / 2)) <= 1);
    QVERIFY(qAbs(posto.left() - (schermo.left() + (schermo.width() - posto.width()) / 2)) <= 1);
}

void tst_Finestre::CentraForm_finestraNonAncoraMostrata()
{
    QWidget finestra;
    auto *disposizione = new QVBoxLayout(&finestra);
    auto *contenuto = new QWidget;
    contenuto->setFixedSize(320, 240);
    disposizione->addWidget(contenuto);
    CentraForm(&finestra);
    finestra.show();
    QVERIFY(QTest::qWaitForWindowExposed(&finestra));
    const QPoint scarto = finestra.geometry().center() - finestra.screen()->geometry().center();
    QVERIFY2(scarto.manhattanLength() < 60, "the size at show must be the one that was centred");
}

void tst_Finestre::CentraForm_piuGrandeDelloSchermo()
{
    QWidget finestra;
    const QRect disponibile = finestra.screen()->availableGeometry();
    finestra.resize(disponibile.width() + 500, disponibile.height() + 300);
    CentraForm(&finestra);
    QCOMPARE(finestra.pos(), disponibile.topLeft());
}

void tst_Finestre::ImpostaHelp_ogniControllo()
{
    QWidget finestra;
    QWidget riquadro(&finestra);
    const QLineEdit casella(&riquadro);
    ImpostaHelp(&finestra);
    QCOMPARE(finestra.property(ProprietaGuida).toInt(), 44);
    QCOMPARE(riquadro.property(ProprietaGuida).toInt(), 44);
    QCOMPARE(casella.property(ProprietaGuida).toInt(), 44);
}

void tst_Finestre::ArgomentoDi_antenato()
{
    QWidget finestra;
    ImpostaHelp(&finestra);
    QWidget riquadro(&finestra);
    const QLineEdit aggiunta(&riquadro);
    QCOMPARE(ArgomentoDi(&aggiunta), ArgomentoGuida);
}

void tst_Finestre::ArgomentoDi_finestraSopraUnAltra()
{
    QWidget finestra;
    ImpostaHelp(&finestra);
    QMessageBox riquadro(QMessageBox::Information, QString(), QStringLiteral("avviso"),
                         QMessageBox::Ok, &finestra);
    QCOMPARE(ArgomentoDi(&riquadro), 0);
    QCOMPARE(ArgomentoDi(riquadro.button(QMessageBox::Ok)), 0);
    ImpostaHelp(&riquadro);
    QCOMPARE(ArgomentoDi(riquadro.button(QMessageBox::Ok)), ArgomentoGuida);
}

void tst_Finestre::ArgomentoDi_elencoAperto()
{
    QWidget finestra;
    QComboBox casella(&finestra);
    casella.addItem(QStringLiteral("voce"));
    ImpostaHelp(&finestra);
    finestra.show();
    casella.showPopup();
    QVERIFY(casella.view()->isVisible());
    QVERIFY(casella.view()->window() != &finestra);
    QCOMPARE(ArgomentoDi(casella.view()), ArgomentoGuida);
    casella.hidePopup();
}

void tst_Finestre::ArgomentoDi_nessuno()
{
    const QWidget finestra;
    QCOMPARE(ArgomentoDi(&finestra), 0);
    QCOMPARE(ArgomentoDi(nullptr), 0);
}

void tst_Finestre::ImpostaLingua_bottoni()
{
    ImpostaLingua();
    const QDialogButtonBox bottoni(QDialogButtonBox::Cancel | QDialogButtonBox::Close);
    QCOMPARE(bottoni.button(QDialogButtonBox::Cancel)->text().remove(u'&'),
             QStringLiteral("Annulla"));
    QCOMPARE(bottoni.button(QDialogButtonBox::Close)->text().remove(u'&'),
             QStringLiteral("Chiudi"));
}

void tst_Finestre::ImpostaLingua_generiDiFile()
{
    ImpostaLingua();
    const QTemporaryDir cartella;
    const QFileIconProvider icone;
    const QString tipo = icone.type(QFileInfo(cartella.path()));
    QVERIFY2(tipo == QLatin1String("Cartella") || tipo == QLatin1String("Cartella di file"),
             qPrintable(tipo)); // the latter on Windows
    QCOMPARE(icone.type(QFileInfo(QDir::rootPath())), QStringLiteral("Unità"));
    // Nothing else takes the place of what is not translated.
    QCOMPARE(QCoreApplication::translate("QAltro", "Folder", "All other platforms"),
             QStringLiteral("Folder"));
}

void tst_Finestre::PixelPerMillimetro_daRisoluzione()
{
    const QWidget finestra;
    QCOMPARE(PixelPerMillimetro(&finestra) * 25.4, finestra.screen()->logicalDotsPerInch());
    QVERIFY(PixelPerMillimetro(nullptr) > 0);
}

void tst_Finestre::PuntatoreOccupato_finoAllaFine()
{
    QVERIFY(QApplication::overrideCursor() == nullptr);
    {
        const PuntatoreOccupato occupato;
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void tst_Finestre::LimitaAlCodice_digitato()
{
    QWidget finestra;
    auto *casella = new QLineEdit(QStringLiteral("ac"), &finestra);
    LimitaAlCodice(&finestra);
    casella->setCursorPosition(1);
    QTest::sendKeyEvent(QTest::Press, casella, Qt::Key_unknown, Estranei, Qt::NoModifier);
    QCOMPARE(casella->text(), QStringLiteral("ac"));
    QCOMPARE(casella->cursorPosition(), 1);
    QTest::sendKeyEvent(QTest::Press, casella, Qt::Key_unknown, QStringLiteral("\u20ac"),
                        Qt::NoModifier);
    QCOMPARE(casella->text(), QStringLiteral("a\u20acc"));
}

void tst_Finestre::LimitaAlCodice_incollato()
{
    QWidget finestra;
    auto *casella = new QLineEdit(QStringLiteral("[]"), &finestra);
    LimitaAlCodice(&finestra);
    const QSignalSpy spia(casella, &QLineEdit::textEdited);
    QApplication::clipboard()->setText(u'x' + Estranei + QStringLiteral("\u00e8") + Estranei);
    casella->setCursorPosition(1);
    casella->paste();
    QCOMPARE(casella->text(), QStringLiteral("[x\u00e8]"));
    QCOMPARE(casella->cursorPosition(), 3);
    QVERIFY2(!spia.isEmpty(), "the window must learn of the edit");
    QCOMPARE(spia.last().first().toString(), QStringLiteral("[x\u00e8]"));
}

void tst_Finestre::LimitaAlCodice_aCapoIncollato()
{
    QWidget finestra;
    auto *casella = new QLineEdit(&finestra);
    LimitaAlCodice(&finestra);
    casella->insert(QStringLiteral("una\r\ndue\rtre\nquattro"));
    QCOMPARE(casella->text(), QStringLiteral("una due tre\nquattro"));
}

void tst_Finestre::LimitaAlCodice_codiceIntero()
{
    QWidget finestra;
    auto *casella = new QLineEdit(&finestra);
    LimitaAlCodice(&finestra);
    const QString testo = QStringLiteral("\u20ac\u2019\u2026\u0081\u00ff \u00a0\u007f\tfine");
    casella->setText(testo);
    QCOMPARE(casella->text(), testo);
    QVERIFY(casella->hasAcceptableInput());
}

void tst_Finestre::LimitaAlCodice_battutoNonToccaLaSelezione()
{
    QWidget finestra;
    auto *casella = new QLineEdit(QStringLiteral("abc"), &finestra);
    LimitaAlCodice(&finestra);
    casella->selectAll();
    QTest::sendKeyEvent(QTest::Press, casella, Qt::Key_unknown, Estranei, Qt::NoModifier);
    QCOMPARE(casella->selectedText(), QStringLiteral("abc"));
}

void tst_Finestre::LimitaAlCodice_testoLungo()
{
    QWidget finestra;
    auto *casella = new QLineEdit(&finestra);
    LimitaAlCodice(&finestra);
    const QString testo(100000, u'x');
    casella->setText(testo);
    QCOMPARE(casella->text().size(), testo.size());
}

void tst_Finestre::LimitaAlCodice_limiteProprio()
{
    QWidget finestra;
    auto *casella = new QLineEdit(&finestra);
    casella->setMaxLength(3);
    LimitaAlCodice(&finestra);
    casella->setText(QStringLiteral("12345"));
    QCOMPARE(casella->text(), QStringLiteral("123"));
}

void tst_Finestre::LimitaAlCodice_validatoreProprio()
{
    QWidget finestra;
    auto *casella = new QLineEdit(&finestra);
    auto *proprio = new QIntValidator(casella);
    casella->setValidator(proprio);
    LimitaAlCodice(&finestra);
    QCOMPARE(casella->validator(), proprio);
}

void tst_Finestre::LimitaAlCodice_casellaCombinata()
{
    QWidget finestra;
    auto *combo = new QComboBox(&finestra);
    combo->setEditable(true);
    LimitaAlCodice(&finestra);
    combo->lineEdit()->insert(u'x' + Estranei);
    QCOMPARE(combo->currentText(), QStringLiteral("x"));
}

void tst_Finestre::LimitaAlCodice_piuRighe()
{
    QWidget finestra;
    auto *casella = new QPlainTextEdit(QStringLiteral("prima\nseconda"), &finestra);
    LimitaAlCodice(&finestra);
    casella->moveCursor(QTextCursor::End);
    QApplication::clipboard()->setText(Estranei + QStringLiteral(" e\u0394\nterza"));
    casella->paste();
    QCOMPARE(casella->toPlainText(), QStringLiteral("prima\nseconda e\nterza"));
    QTest::sendKeyEvent(QTest::Press, casella, Qt::Key_unknown, Estranei, Qt::NoModifier);
    QCOMPARE(casella->toPlainText(), QStringLiteral("prima\nseconda e\nterza"));
    casella->undo();
    QCOMPARE(casella->toPlainText(), QStringLiteral("prima\nseconda"));
}

void tst_Finestre::IconaGuida_disegnata()
{
    const QImage icona = IconaGuida(32).toImage();
    QCOMPARE(icona.deviceIndependentSize(), QSizeF(32, 32));
    QCOMPARE(icona.pixelColor(0, 0).alpha(), 0);
    const QColor disco = icona.pixelColor(icona.width() / 8, icona.height() / 2);
    QCOMPARE(disco.alpha(), 255);
    const QColor punto = icona.pixelColor(icona.width() / 2, icona.height() * 77 / 100);
    QCOMPARE(punto, QColor(Qt::white));
}

QTEST_MAIN(tst_Finestre)
#include "tst_Finestre.moc"
