#include "sistema/Lucchetto.h"

#include "support/FileDiProva.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

class tst_Lucchetto : public QObject
{
    Q_OBJECT

private slots:
    void PresoELasciato();
    void OccupatoDaUnAltro();
    void DiUnProcessoMorto();
    void DiUnMortoADiscoPieno();
    void DiUnVivoADiscoPieno();
    void DiUnaMacchinaLontana();
    void RimastoAMeta();
    void Impossibile();
    void PostoIngombro_data();
    void PostoIngombro();
    void CollegamentoAUnLucchetto();

private:
    QString In(const QString &nome) const { return cartella_.filePath(nome); }
    QString File() const { return In(QStringLiteral("prova.lock")); }

    QTemporaryDir cartella_;
};

using Esito = Lucchetto::Esito;

void tst_Lucchetto::PresoELasciato()
{
    {
        Lucchetto lucchetto(File());
        QCOMPARE(lucchetto.Prende(), Esito::Preso);
        QVERIFY(QFile::exists(File()));
        QVERIFY2(lucchetto.Prende() == Esito::Preso, "it is held already");
    }
    QVERIFY(!QFile::exists(File()));
}

void tst_Lucchetto::OccupatoDaUnAltro()
{
    Lucchetto secondo(File());
    {
        Lucchetto primo(File());
        QCOMPARE(primo.Prende(), Esito::Preso);
        QCOMPARE(secondo.Prende(), Esito::Occupato);
        QCOMPARE(secondo.Prende(), Esito::Occupato);
    }
    QCOMPARE(secondo.Prende(), Esito::Preso);
}

void tst_Lucchetto::DiUnProcessoMorto()
{
    // One second old or ten years: only the process counts.
    ScriveFile(File(), LucchettoDiUnMorto());
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
    ScriveFile(File(), LucchettoDiUnMorto());
    Invecchia(File(), 10L * 365 * 86400);
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
}

void tst_Lucchetto::DiUnMortoADiscoPieno()
{
    ScriveFile(File(), LucchettoDiUnMorto());
    Esito esito = Esito::Preso;
    {
        const LimiteFile nessunByte(0);
        esito = Lucchetto(File()).Prende();
    }
    QCOMPARE(esito, Esito::Impossibile);
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
}

void tst_Lucchetto::DiUnVivoADiscoPieno()
{
    Lucchetto vivo(File());
    QCOMPARE(vivo.Prende(), Esito::Preso);
    const LimiteFile nessunByte(0);
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Occupato);
}

void tst_Lucchetto::DiUnaMacchinaLontana()
{
    ScriveFile(File(), "1\nplakera\nun-altra-macchina\n");
    Invecchia(File(), 10L * 365 * 86400);
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Occupato);
    QVERIFY(QFile::remove(File()));
}

void tst_Lucchetto::RimastoAMeta()
{
    ScriveFile(File(), QByteArray());
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
}

void tst_Lucchetto::Impossibile()
{
    Lucchetto lucchetto(File());
    {
        const LimiteFile nessunByte(0);
        QCOMPARE(lucchetto.Prende(), Esito::Impossibile);
    }
    QCOMPARE(lucchetto.Prende(), Esito::Preso);
    QCOMPARE(Lucchetto(cartella_.filePath(QStringLiteral("manca/prova.lock"))).Prende(),
             Esito::Impossibile);
}

void tst_Lucchetto::PostoIngombro_data()
{
    QTest::addColumn<QString>("cosa");

    // Empty is a folder, "|" a pipe, the others are where a link leads.
    QTest::newRow("cartella") << QString();
    QTest::newRow("tubo") << QStringLiteral("|");
    QTest::newRow("collegamento che non porta a nulla") << In(QStringLiteral("manca"));
    QTest::newRow("collegamento in una cartella che manca") << In(QStringLiteral("manca/manca"));
    QTest::newRow("collegamento a se stesso") << File();
    QTest::newRow("collegamento a una cartella") << cartella_.path();
    QTest::newRow("collegamento a un dispositivo senza fine") << QStringLiteral("/dev/zero");
}

void tst_Lucchetto::PostoIngombro()
{
    QFETCH(QString, cosa);
    if (cosa.isEmpty()) {
        QVERIFY(QDir().mkdir(File()));
    } else if (cosa == QStringLiteral("|")) {
        QCOMPARE(mkfifo(QFile::encodeName(File()).constData(), 0600), 0);
    } else {
        QVERIFY(QFile::link(cosa, File()));
    }
    const Esito esito = Lucchetto(File()).Prende();
    // What is there is not ours to remove.
    QVERIFY(NomiIn(cartella_.path()).contains(QStringLiteral("prova.lock")));
    QVERIFY(cosa.isEmpty() ? QDir().rmdir(File()) : QFile::remove(File()));
    QCOMPARE(esito, Esito::Impossibile);
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
}

void tst_Lucchetto::CollegamentoAUnLucchetto()
{
    const QString vero = In(QStringLiteral("vero.lock"));
    QVERIFY(QFile::link(vero, File()));
    {
        Lucchetto altro(vero);
        QCOMPARE(altro.Prende(), Esito::Preso);
        QCOMPARE(Lucchetto(File()).Prende(), Esito::Occupato);
    }
    ScriveFile(vero, LucchettoDiUnMorto());
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
    QVERIFY(QFile::remove(vero));
}

QTEST_GUILESS_MAIN(tst_Lucchetto)
#include "tst_Lucchetto.moc"
