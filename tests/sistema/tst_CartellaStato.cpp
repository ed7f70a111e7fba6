#include "sistema/CartellaStato.h"
#include "support/FileDiProva.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/// Where the program keeps what the user has not saved.
class tst_CartellaStato : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void dellUtente_data();
    void dellUtente();
    void senzaHome();
    void senzaCasa();

private:
    QTemporaryDir casa_;
    QByteArray home_;
    QByteArray stato_;
};

void tst_CartellaStato::init()
{
    home_ = qgetenv("HOME");
    stato_ = qgetenv("XDG_STATE_HOME");
}

void tst_CartellaStato::cleanup()
{
    qputenv("HOME", home_);
    qputenv("XDG_STATE_HOME", stato_);
}

void tst_CartellaStato::dellUtente_data()
{
    QTest::addColumn<QString>("stato");
    QTest::addColumn<QString>("attesa");
    QTest::newRow("none set") << QString()
                              << casa_.path() + QStringLiteral("/.local/state/plakera");
    QTest::newRow("set") << QStringLiteral("/srv/stato") << QStringLiteral("/srv/stato/plakera");
    QTest::newRow("relative, which does not count")
        << QStringLiteral("stato") << casa_.path() + QStringLiteral("/.local/state/plakera");
}

void tst_CartellaStato::dellUtente()
{
    QFETCH(QString, stato);
    QFETCH(QString, attesa);
    qputenv("HOME", QFile::encodeName(casa_.path()));
    qputenv("XDG_STATE_HOME", QFile::encodeName(stato));
    QCOMPARE(CartellaStato(), attesa);
}

void tst_CartellaStato::senzaHome()
{
    // What the machine knows of the user stands in for it, and never the root.
    qunsetenv("XDG_STATE_HOME");
    for (const char *home : {"", "/", "//", "casa", "/non/esiste"}) {
        qputenv("HOME", home);
        const QString cartella = CartellaStato();
        QVERIFY2(!cartella.startsWith(QLatin1String("/.")) &&
                     !cartella.startsWith(QLatin1String("//")),
                 qPrintable(cartella));
        QVERIFY2(
            cartella.isEmpty() ||
                QDir(cartella.chopped(QStringLiteral("/.local/state/plakera").size())).exists(),
            qPrintable(cartella));
    }
    qunsetenv("HOME");
    QVERIFY(!CartellaStato().startsWith(QLatin1String("/.")));
}

void tst_CartellaStato::senzaCasa()
{
    if (geteuid() != 0) {
        QSKIP("only the administrator can become a user without a home");
    }
    qunsetenv("XDG_STATE_HOME");
    qunsetenv("HOME");
    QString cartella;
    {
        const UtenteComune utente; // whose home is not there
        cartella = CartellaStato();
    }
    QCOMPARE(cartella, QString());
}

QTEST_GUILESS_MAIN(tst_CartellaStato)
#include "tst_CartellaStato.moc"
