#include "finestre/ApriManuale.h"
#include "support/FileDiProva.h"
#include "support/Robot.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_ApriManuale : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void AccantoAlProgramma_data();
    void AccantoAlProgramma();
    void SottoK19_data();
    void SottoK19();
    void DocumentoMancante();
    void ApriGuida_fileDiVastrel();
    void ApriGuida_fileDiVastrelMancante();
    void ApriGuida_vastrelNonInstallato();
    void ApriGuida_nessunArgomento();

private:
    void Vastrel(const QString &cartella) const;
    QString ManualeDelProgramma() const;
    Apritore Annota();
    ApritoreArgomento AnnotaArgomento();

    QTemporaryDir cartella_;
    QStringList aperti_;
};

void tst_ApriManuale::initTestCase()
{
    QVERIFY(cartella_.isValid());
    qputenv("XDG_CONFIG_HOME", cartella_.path().toUtf8());
}

void tst_ApriManuale::init()
{
    aperti_.clear();
    Vastrel(QStringLiteral("C:\\K19\\Vastrel"));
}

/// Says in Vastrel's settings where it is installed.
void tst_ApriManuale::Vastrel(const QString &cartella) const
{
    QString valore = cartella;
    valore.replace(u'\\', QLatin1String("\\\\"));
    ScriveFile(cartella_.filePath(QStringLiteral("vastrel.ini")),
               QStringLiteral("[INI]\ndirvastrel=%1\n").arg(valore).toUtf8());
}

QString tst_ApriManuale::ManualeDelProgramma() const
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath() +
                                    QStringLiteral("/XtHelpPdf/zPlakera-XtHelp.pdf"));
}

Apritore tst_ApriManuale::Annota()
{
    return [this](const QString &documento) {
        aperti_.append(documento);
        return true;
    };
}

ApritoreArgomento tst_ApriManuale::AnnotaArgomento()
{
    return [this](const QString &documento, int argomento) {
        aperti_.append(QStringLiteral("%1#%2").arg(documento).arg(argomento));
        return true;
    };
}

void tst_ApriManuale::AccantoAlProgramma_data()
{
    QTest::addColumn<QString>("cartella");
    QTest::addColumn<QString>("documento");
    QTest::newRow("D:\\Programmi\\Plakera")
        << QStringLiteral("D:\\Programmi\\Plakera")
        << QStringLiteral("D:\\Programmi\\Plakera\\XtHelpPdf\\zPlakera-XtHelp.pdf");
    QTest::newRow("D:\\K19") << QStringLiteral("D:\\K19\\Plakera")
                             << QStringLiteral("D:\\K19\\Plakera\\XtHelpPdf\\zPlakera-XtHelp.pdf");
    QTest::newRow("C:\\K1") << QStringLiteral("C:\\K1")
                            << QStringLiteral("C:\\K1\\XtHelpPdf\\zPlakera-XtHelp.pdf");
    QTest::newRow("C:\\Programmi\\K19")
        << QStringLiteral("C:\\Programmi\\K19")
        << QStringLiteral("C:\\Programmi\\K19\\XtHelpPdf\\zPlakera-XtHelp.pdf");
#ifndef Q_OS_WIN
    QTest::newRow("separatore nativo")
        << QStringLiteral("/opt/plakera")
        << QStringLiteral("/opt/plakera/XtHelpPdf/zPlakera-XtHelp.pdf");
#endif
}

void tst_ApriManuale::AccantoAlProgramma()
{
    QFETCH(QString, cartella);
    QFETCH(QString, documento);
    const Robot robot;
    ApriManuale(ChiaveManuale, cartella, Annota());
    QVERIFY2(robot.Soddisfatto(), "no question is asked");
    QCOMPARE(aperti_, QStringList{documento});
}

void tst_ApriManuale::SottoK19_data()
{
    QTest::addColumn<QString>("cartella");
    QTest::addColumn<bool>("word");
    QTest::addColumn<QString>("documento");
    const QString pdf = QStringLiteral("C:\\K19\\Vastrel\\XtHelpPdf\\zPlakera-XtHelp.pdf");
    const QString doc = QStringLiteral("C:\\K19\\Vastrel\\XtHelpWord\\zPlakera-XtHelp.doc");
    for (const char *cartella : {"c:\\K19", "C:\\k19\\Plakera", "C:\\K19\\PLAKERA", "c:\\k19\\x\\y",
                                 "C:\\K19bis\\Plakera"}) {
        QTest::addRow("%s, No", cartella) << QString::fromLatin1(cartella) << false << pdf;
        QTest::addRow("%s, Sì", cartella) << QString::fromLatin1(cartella) << true << doc;
    }
}

void tst_ApriManuale::SottoK19()
{
    QFETCH(QString, cartella);
    QFETCH(bool, word);
    QFETCH(QString, documento);
    Robot robot;
    if (word) {
        robot.Si();
    } else {
        robot.No();
    }
    ApriManuale(ChiaveManuale, cartella, Annota());
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("apro Word")});
    QCOMPARE(robot.Titoli(), QStringList{QStringLiteral("Plakera")});
    QCOMPARE(aperti_, QStringList{documento});
}

void tst_ApriManuale::DocumentoMancante()
{
    // With the real opening of documents: nothing happens and nothing is said.
    const Robot robot;
    ApriManuale(ChiaveManuale, cartella_.filePath(QStringLiteral("senza manuale")));
    QVERIFY(robot.Soddisfatto());
}

void tst_ApriManuale::ApriGuida_fileDiVastrel()
{
    // The host's files carry whatever case its installer gave them.
    QVERIFY(QDir(cartella_.path()).mkpath(QStringLiteral("v/MANUALEVASTREL")));
    const QString guida = cartella_.filePath(QStringLiteral("v/MANUALEVASTREL/vastrel.HLP"));
    ScriveFile(guida, "guida");
    Vastrel(cartella_.filePath(QStringLiteral("v")));
    ApriGuida(44, AnnotaArgomento(), Annota());
    QCOMPARE(aperti_, QStringList{QDir::toNativeSeparators(guida) + QStringLiteral("#44")});
}

void tst_ApriManuale::ApriGuida_fileDiVastrelMancante()
{
    Vastrel(cartella_.filePath(QStringLiteral("altrove")));
    ApriGuida(44, AnnotaArgomento(), Annota());
    QCOMPARE(aperti_, QStringList{ManualeDelProgramma()});
}

void tst_ApriManuale::ApriGuida_vastrelNonInstallato()
{
    QVERIFY(QFile::remove(cartella_.filePath(QStringLiteral("vastrel.ini"))));
    ApriGuida(44, AnnotaArgomento(), Annota());
    QCOMPARE(aperti_, QStringList{ManualeDelProgramma()});
}

void tst_ApriManuale::ApriGuida_nessunArgomento()
{
    QVERIFY(QDir(cartella_.path()).mkpath(QStringLiteral("n/ManualeVastrel")));
    ScriveFile(cartella_.filePath(QStringLiteral("n/ManualeVastrel/Vastrel.hlp")), "guida");
    Vastrel(cartella_.filePath(QStringLiteral("n")));
    ApriGuida(0, AnnotaArgomento(), Annota());
    QCOMPARE(aperti_, QStringList{ManualeDelProgramma()});
}

QTEST_MAIN(tst_ApriManuale)
#include "tst_ApriManuale.moc"
