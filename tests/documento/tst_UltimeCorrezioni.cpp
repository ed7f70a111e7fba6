#include "documento/UltimeCorrezioni.h"

#include "base/ErroreSistema.h"
#include "support/Permessi.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using CorrezioneGriglia::Spostamento;

namespace {

const auto Laser = QStringLiteral("Laser");
const auto Uno = QStringLiteral("/dati/uno.Mod");
const auto Due = QStringLiteral("/dati/due.Mod");

/// Each test's own folder, not yet there.
class Cartella
{
public:
    QString Percorso() const { return radice_.filePath(QStringLiteral("stato")); }
    QString File() const { return Percorso() + QStringLiteral("/correzioni.json"); }
    void Scrive(const QByteArray &byte) const
    {
        QFile file(File());
        if (!QDir().mkpath(Percorso()) || !file.open(QIODevice::WriteOnly) ||
            file.write(byte) != byte.size()) {
            qFatal("cannot write the file");
        }
    }

private:
    QTemporaryDir radice_;
};

} // namespace

class tst_UltimeCorrezioni : public QObject
{
    Q_OBJECT
private slots:
    void propostaAlProssimoModello();
    void soloPerLUtente();
    void maiDueVolteLoStessoModello();
    void unaNuovaValePerTutti();
    void ogniStampanteLaSua();
    void siDimentica();
    void senzaCartellaOStampante();
    void seGuastaNonPropone_data();
    void seGuastaNonPropone();
    void cartellaCheNonSiPuoFare();
    void nonCresceSenzaFine();
};

void tst_UltimeCorrezioni::propostaAlProssimoModello()
{
    const Cartella cartella;
    QVERIFY(!UltimeCorrezioni(cartella.Percorso()).Proposta(Laser, Due));
    UltimeCorrezioni(cartella.Percorso()).Ricorda(Laser, Uno, {2, -1});
    // Another run of the program.
    QCOMPARE(UltimeCorrezioni(cartella.Percorso()).Proposta(Laser, Due), (Spostamento{2, -1}));
    QVERIFY(!UltimeCorrezioni(cartella.Percorso()).Proposta(Laser, Uno));
}

void tst_UltimeCorrezioni::soloPerLUtente()
{
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
    const Cartella cartella;
    UltimeCorrezioni(cartella.Percorso()).Ricorda(Laser, Uno, {2, -1});
    QCOMPARE(QFile::permissions(cartella.File()) & (QFile::ReadOther | QFile::ReadGroup),
             QFile::Permissions());
}

void tst_UltimeCorrezioni::maiDueVolteLoStessoModello()
{
    const Cartella cartella;
    const UltimeCorrezioni ultime(cartella.Percorso());
    ultime.Ricorda(Laser, Uno, {2, -1});
    ultime.Ricorda(Laser, Due, {2, -1});
    QVERIFY(!ultime.Proposta(Laser, Uno));
    QVERIFY(!ultime.Proposta(Laser, Due));
    QVERIFY(ultime.Proposta(Laser, QStringLiteral("/dati/tre.Mod")));
}

void tst_UltimeCorrezioni::unaNuovaValePerTutti()
{
    const Cartella cartella;
    const UltimeCorrezioni ultime(cartella.Percorso());
    ultime.Ricorda(Laser, Uno, {2, -1});
    ultime.Ricorda(Laser, Due, {0, 4});
    QCOMPARE(ultime.Proposta(Laser, Uno), (Spostamento{0, 4}));
}

void tst_UltimeCorrezioni::ogniStampanteLaSua()
{
    const Cartella cartella;
    const UltimeCorrezioni ultime(cartella.Percorso());
    ultime.Ricorda(Laser, Uno, {2, -1});
    ultime.Ricorda(QStringLiteral("Aghi/bolle"), Uno, {0, 7});
    QCOMPARE(ultime.Proposta(Laser, Due), (Spostamento{2, -1}));
    QCOMPARE(ultime.Proposta(QStringLiteral("Aghi/bolle"), Due), (Spostamento{0, 7}));
    QVERIFY(!ultime.Proposta(QStringLiteral("Altra"), Due));
}

void tst_UltimeCorrezioni::siDimentica()
{
    const Cartella cartella;
    const UltimeCorrezioni ultime(cartella.Percorso());
    ultime.Dimentica(Laser); // nothing there
    QVERIFY(!QFile::exists(cartella.File()));
    ultime.Ricorda(Laser, Uno, {2, -1});
    ultime.Ricorda(QStringLiteral("Aghi"), Uno, {0, 7});
    ultime.Dimentica(Laser);
    QVERIFY(!ultime.Proposta(Laser, Due));
    QVERIFY(ultime.Proposta(QStringLiteral("Aghi"), Due));
    QVERIFY(QFile::remove(cartella.File())); // by hand, too
    QVERIFY(!ultime.Proposta(QStringLiteral("Aghi"), Due));
}

void tst_UltimeCorrezioni::senzaCartellaOStampante()
{
    const UltimeCorrezioni senza{QString()};
    senza.Ricorda(Laser, Uno, {2, -1});
    QVERIFY(!senza.Proposta(Laser, Due));
    const Cartella cartella;
    const UltimeCorrezioni ultime(cartella.Percorso());
    ultime.Ricorda(QString(), Uno, {2, -1});
    QVERIFY(!ultime.Proposta(QString(), Due));
    QVERIFY(!QDir(cartella.Percorso()).exists());
}

void tst_UltimeCorrezioni::seGuastaNonPropone_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("torn") << QByteArray(R"({"Laser": {"a destra": 2, "in ba)");
    QTest::newRow("no object") << QByteArray("[1, 2]");
    QTest::newRow("bytes") << QByteArray("\x00\xff\xfe\x80", 4);
    QTest::newRow("a list for a printer") << QByteArray(R"({"Laser": [2, 3]})");
    QTest::newRow("one number only") << QByteArray(R"({"Laser": {"a destra": 2}})");
    QTest::newRow("a text") << QByteArray(R"({"Laser": {"a destra": "2", "in basso": 1}})");
    QTest::newRow("no whole number")
        << QByteArray(R"({"Laser": {"a destra": 2.5, "in basso": 1}})");
    QTest::newRow("as far as no sheet")
        << QByteArray(R"({"Laser": {"a destra": 1e300, "in basso": 1}})");
    QTest::newRow("no shift") << QByteArray(R"({"Laser": {"a destra": 0, "in basso": 0}})");
    QTest::newRow("huge") << QByteArray(2'000'000, ' ');
}

void tst_UltimeCorrezioni::seGuastaNonPropone()
{
    QFETCH(QByteArray, byte);
    const Cartella cartella;
    cartella.Scrive(byte);
    const UltimeCorrezioni ultime(cartella.Percorso());
    QVERIFY(!ultime.Proposta(Laser, Uno));
    // And is no hindrance to what comes.
    ultime.Ricorda(Laser, Uno, {1, 1});
    QCOMPARE(ultime.Proposta(Laser, Due), (Spostamento{1, 1}));
}

void tst_UltimeCorrezioni::cartellaCheNonSiPuoFare()
{
    const UltimeCorrezioni ultime(QStringLiteral("/proc/nessuna/stato"));
    QVERIFY_EXCEPTION_THROWN(ultime.Ricorda(Laser, Uno, {1, 1}), ErroreSistema);
    QVERIFY(!ultime.Proposta(Laser, Due));
}

void tst_UltimeCorrezioni::nonCresceSenzaFine()
{
    const Cartella cartella;
    const UltimeCorrezioni ultime(cartella.Percorso());
    for (int i = 0; i < 300; ++i) {
        ultime.Ricorda(Laser, QStringLiteral("/dati/%1.Mod").arg(i), {1, 1});
    }
    QVERIFY(ultime.Proposta(Laser, QStringLiteral("/dati/0.Mod")));
    QVERIFY(!ultime.Proposta(Laser, QStringLiteral("/dati/299.Mod")));
    QVERIFY(QFile(cartella.File()).size() < 10'000);
}

QTEST_MAIN(tst_UltimeCorrezioni)
#include "tst_UltimeCorrezioni.moc"
