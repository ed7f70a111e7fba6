#include "sistema/Impostazioni.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// Writes Vastrel's settings as its own user would have them, in a settings folder of the test.
class tst_Impostazioni : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void Dirtxt_data();
    void Dirtxt();
    void Dirtxt_senzaFile();
    void Dirtxt_rilettoOgniVolta();
    void CartellaVastrel();
    void CartellaVastrel_mancante();
    void NonScriveNulla();

private:
    QString Archivio() const { return cartella_.filePath(QStringLiteral("vastrel.ini")); }
    void Scrive(const QByteArray &byte) const;

    QTemporaryDir cartella_;
};

void tst_Impostazioni::Scrive(const QByteArray &byte) const
{
    QFile file(Archivio());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(byte);
}

void tst_Impostazioni::initTestCase()
{
    QVERIFY(cartella_.isValid());
    qputenv("XDG_CONFIG_HOME", cartella_.path().toUtf8());
}

void tst_Impostazioni::init()
{
    QFile::remove(Archivio());
}

void tst_Impostazioni::Dirtxt_data()
{
    QTest::addColumn<QByteArray>("archivio");
    QTest::addColumn<QString>("atteso");
    QTest::newRow("cartella") << QByteArray("[INI]\ndirtxt=/srv/dati\n")
                              << QStringLiteral("/srv/dati");
    QTest::newRow("spazi nel nome")
        << QByteArray("[INI]\ndirtxt=/srv/dati di prova\n") << QStringLiteral("/srv/dati di prova");
    QTest::newRow("accenti") << QByteArray("[INI]\ndirtxt=/srv/Contabilità\n")
                             << QStringLiteral("/srv/Contabilità");
    QTest::newRow("virgola nel nome")
        << QByteArray("[INI]\ndirtxt=\"/srv/a, b\"\n") << QStringLiteral("/srv/a, b");
    QTest::newRow("virgola senza virgolette")
        << QByteArray("[INI]\ndirtxt=/srv/a,b\n") << QStringLiteral("/srv/a,b");
    QTest::newRow("percorso di Windows")
        << QByteArray("[INI]\ndirtxt=C:\\\\K19\\\\dati\n") << QStringLiteral("C:\\K19\\dati");
    QTest::newRow("chiave vuota") << QByteArray("[INI]\ndirtxt=\n") << QString();
    QTest::newRow("altro gruppo") << QByteArray("[ALTRO]\ndirtxt=/srv/dati\n") << QString();
    QTest::newRow("altra chiave") << QByteArray("[INI]\ndirdati=/srv/dati\n") << QString();
}

void tst_Impostazioni::Dirtxt()
{
    QFETCH(QByteArray, archivio);
    Scrive(archivio);
    QTEST(Impostazioni::Dirtxt(), "atteso");
}

void tst_Impostazioni::Dirtxt_senzaFile()
{
    QVERIFY(!QFile::exists(Archivio()));
    QVERIFY(Impostazioni::Dirtxt().isEmpty());
}

void tst_Impostazioni::Dirtxt_rilettoOgniVolta()
{
    Scrive("[INI]\ndirtxt=/srv/uno\n");
    QCOMPARE(Impostazioni::Dirtxt(), QStringLiteral("/srv/uno"));
    Scrive("[INI]\ndirtxt=/srv/duecento\n");
    QCOMPARE(Impostazioni::Dirtxt(), QStringLiteral("/srv/duecento"));
}

void tst_Impostazioni::CartellaVastrel()
{
    Scrive("[INI]\ndirvastrel=/opt/vastrel\n");
    QCOMPARE(Impostazioni::CartellaVastrel(), QStringLiteral("/opt/vastrel"));
}

void tst_Impostazioni::CartellaVastrel_mancante()
{
    Scrive("[INI]\ndirtxt=/srv/dati\n");
    QVERIFY(Impostazioni::CartellaVastrel().isEmpty());
}

void tst_Impostazioni::NonScriveNulla()
{
    Impostazioni::Dirtxt();
    Impostazioni::CartellaVastrel();
    QVERIFY(QDir(cartella_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}

QTEST_GUILESS_MAIN(tst_Impostazioni)
#include "tst_Impostazioni.moc"
