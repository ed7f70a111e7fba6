#include "print/Stampanti.h"

#include "base/ErroreSistema.h"
#include "grafica/Testo.h"

#include <QFontDatabase>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QStringList Generici{QStringLiteral("Serif"), QStringLiteral("Sans Serif"),
                           QStringLiteral("Monospace")};

} // namespace

class tst_Stampanti : public QObject
{
    Q_OBJECT

private slots:
    void elencoFont();
    void elencoFontSenzaDoppi();
    void iNomiGenericiNonSonoFont();
    void inElencoComeSulFoglio_data();
    void inElencoComeSulFoglio();
    void iFontDiPariLarghezzeSonoInElenco();
    void senzaStampantePredefinita();
    void suPdfInMillimetri();
};

void tst_Stampanti::elencoFont()
{
    const QStringList elenco = Stampanti::ElencoFont();
    QVERIFY(!elenco.isEmpty());
    QVERIFY2(elenco.contains(QStringLiteral("Arial")), "a new element's font must be on the list");
    for (const QString &famiglia : QFontDatabase::families()) {
        // Qt tells families of one name apart by their foundries. A model holds the name alone,
        // which is what other machines and other programs know.
        const QString nome = famiglia.section(QStringLiteral(" ["), 0, 0);
        if (!QFontDatabase::isPrivateFamily(famiglia) && !Generici.contains(famiglia)) {
            QVERIFY2(elenco.contains(nome), qPrintable(famiglia));
        }
    }
    QVERIFY2(elenco.filter(QStringLiteral("[")).isEmpty(), "a foundry is no part of a name");
}

void tst_Stampanti::elencoFontSenzaDoppi()
{
    QStringList elenco = Stampanti::ElencoFont();
    QCOMPARE(elenco.removeDuplicates(), 0);
    QStringList ordinato = elenco;
    ordinato.sort(Qt::CaseInsensitive);
    QCOMPARE(elenco, ordinato);
}

void tst_Stampanti::iNomiGenericiNonSonoFont()
{
    const QStringList elenco = Stampanti::ElencoFont();
    for (const QString &nome : Generici) {
        QVERIFY2(!elenco.contains(nome, Qt::CaseInsensitive), qPrintable(nome));
    }
}

void tst_Stampanti::inElencoComeSulFoglio_data()
{
    QTest::addColumn<QString>("famiglia");
    for (const char *famiglia : {"Times New Roman", "Courier New", "Times", "Courier", "Helvetica",
                                 "DejaVu Sans", "Nimbus Sans", "Serif", "Font Mai Esistito"}) {
        QTest::newRow(famiglia) << QString::fromLatin1(famiglia);
    }
}

void tst_Stampanti::inElencoComeSulFoglio()
{
    // What the dialogs cannot offer is set in Arial, and nothing else is.
    QFETCH(QString, famiglia);
    const bool offerta = Stampanti::ElencoFont().contains(famiglia, Qt::CaseInsensitive);
    const QString attesa = offerta ? famiglia : QStringLiteral("Arial");
    QCOMPARE(CarattereDiTesto(famiglia, false, 100).families(), QStringList{attesa});
}

void tst_Stampanti::iFontDiPariLarghezzeSonoInElenco()
{
    const QStringList elenco = Stampanti::ElencoFont();
    const QList<std::pair<QString, QString>> coppie{
        {QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif")},
        {QStringLiteral("Courier New"), QStringLiteral("Liberation Mono")}};
    for (const auto &[nome, pari] : coppie) {
        if (!QFontDatabase::hasFamily(pari)) {
            QSKIP("the system has no font of the same widths");
        }
        QCOMPARE(elenco.count(nome), 1);
        const QString testo = QStringLiteral("Spett.le Ditta");
        QCOMPARE(MisuraTesto(testo, nome, 11, false), MisuraTesto(testo, pari, 11, false));
    }
}

void tst_Stampanti::senzaStampantePredefinita()
{
    if (!QPrinterInfo::defaultPrinter().isNull()) {
        QSKIP("this machine has a default printer; the print queue test covers the case");
    }
    try {
        Stampanti::Predefinita();
        QFAIL("a printer out of nothing");
    } catch (const ErroreSistema &errore) {
        QCOMPARE(errore.numero, int(ErroreSistema::Stampante));
        QVERIFY(errore.descrizione.contains(QStringLiteral("Nessuna stampante predefinita")));
        QVERIFY(errore.descrizione.contains(QStringLiteral("impostazioni del sistema")));
    }
}

void tst_Stampanti::suPdfInMillimetri()
{
    QTemporaryDir dir;
    const auto stampante = Stampanti::SuPdf(dir.filePath(QStringLiteral("foglio.pdf")));
    const QRectF pagina = stampante->Dispositivo().pageLayout().paintRect(QPageLayout::Millimeter);
    QCOMPARE(pagina.topLeft(), QPointF(0, 0));
    QVERIFY(qAbs(pagina.width() - 210) < 0.01 && qAbs(pagina.height() - 297) < 0.01);
}

QTEST_MAIN(tst_Stampanti)
#include "tst_Stampanti.moc"
