#include "finestre/AvvisoCasella.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

namespace {

/// Two boxes in a window that has the keyboard; the first has a hint of its own.
struct Finestra
{
    Finestra()
    {
        auto *righe = new QVBoxLayout(&finestra);
        righe->addWidget(casella);
        righe->addWidget(altra);
        casella->setToolTip(QStringLiteral("posizione"));
        finestra.show();
        finestra.activateWindow();
        if (!QTest::qWaitForWindowActive(&finestra)) {
            qFatal("the window does not get the keyboard");
        }
        altra->setFocus();
    }
    QColor Fondo() const { return casella->palette().color(QPalette::Base); }

    QWidget finestra;
    QLineEdit *casella = new QLineEdit;
    QLineEdit *altra = new QLineEdit;
    AvvisoCasella *avviso = new AvvisoCasella(casella);
};

} // namespace

class tst_AvvisoCasella : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { QToolTip::hideText(); }
    void IlFondoLoMostraESparisce();
    void ChiScriveLoLeggeSubito();
    void ChiEntraLoLegge();
    void AltroveNonDisturba();
    void IlSuggerimentoProprioResta();
    void ILettoriDiSchermoLoSanno();
    void IlTestoRestaComEScritto();
    void RiempitaInSilenzioSiRiguarda();
};

void tst_AvvisoCasella::RiempitaInSilenzioSiRiguarda()
{
    QLineEdit casella;
    Sorveglia(&casella, [](const QString &testo) { return testo == u"7,5" ? testo : QString(); });
    const auto riempie = [&](const QString &testo) {
        const QSignalBlocker muta(&casella);
        casella.setText(testo);
        Riguarda(&casella);
    };
    riempie(QStringLiteral("7,5"));
    QCOMPARE(casella.accessibleDescription(), QStringLiteral("7,5"));
    riempie(QStringLiteral("7"));
    QVERIFY(casella.accessibleDescription().isEmpty());
    QLineEdit nonSorvegliata;
    Riguarda(&nonSorvegliata); // has nothing to say
}

void tst_AvvisoCasella::IlFondoLoMostraESparisce()
{
    Finestra prova;
    const QColor prima = prova.Fondo();
    prova.avviso->Mostra(QStringLiteral("attenzione"));
    QVERIFY(prova.Fondo() != prima);
    prova.avviso->Mostra({});
    QCOMPARE(prova.Fondo(), prima);
}

void tst_AvvisoCasella::ChiScriveLoLeggeSubito()
{
    Finestra prova;
    prova.casella->setFocus();
    prova.avviso->Mostra(QStringLiteral("attenzione"));
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), QStringLiteral("attenzione"));
    prova.avviso->Mostra({});
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_AvvisoCasella::ChiEntraLoLegge()
{
    Finestra prova;
    prova.avviso->Mostra(QStringLiteral("attenzione"));
    prova.casella->setFocus();
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), QStringLiteral("attenzione"));
}

void tst_AvvisoCasella::AltroveNonDisturba()
{
    Finestra prova;
    prova.avviso->Mostra(QStringLiteral("attenzione"));
    QVERIFY(!QToolTip::isVisible());
}

void tst_AvvisoCasella::IlSuggerimentoProprioResta()
{
    Finestra prova;
    prova.avviso->Mostra(QStringLiteral("attenzione"));
    const QPoint punto(3, 3);
    QHelpEvent chiede(QEvent::ToolTip, punto, prova.casella->mapToGlobal(punto));
    QCoreApplication::sendEvent(prova.casella, &chiede);
    QCOMPARE(QToolTip::text(), QStringLiteral("posizione\nattenzione"));
    QCOMPARE(prova.casella->toolTip(), QStringLiteral("posizione"));
}

void tst_AvvisoCasella::ILettoriDiSchermoLoSanno()
{
    Finestra prova;
    prova.avviso->Mostra(QStringLiteral("attenzione"));
    QAccessibleInterface *lettura = QAccessible::queryAccessibleInterface(prova.casella);
    QCOMPARE(lettura->text(QAccessible::Description), QStringLiteral("attenzione"));
    prova.avviso->Mostra({});
    QVERIFY(!lettura->text(QAccessible::Description).contains(QStringLiteral("attenzione")));
}

void tst_AvvisoCasella::IlTestoRestaComEScritto()
{
    Finestra prova;
    Sorveglia(prova.altra, [](const QString &testo) {
        return testo == QLatin1String("1,5") ? QStringLiteral("si legge 1") : QString();
    });
    QTest::keyClicks(prova.altra, QStringLiteral("1,5"));
    QCOMPARE(prova.altra->text(), QStringLiteral("1,5"));
    QCOMPARE(QToolTip::text(), QStringLiteral("si legge 1"));
    QTest::keyClick(prova.altra, Qt::Key_Backspace);
    QCOMPARE(prova.altra->text(), QStringLiteral("1,"));
    QTRY_VERIFY(!QToolTip::isVisible());
}

QTEST_MAIN(tst_AvvisoCasella)
#include "tst_AvvisoCasella.moc"
