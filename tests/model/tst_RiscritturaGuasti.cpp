#include "SalvaConGuasti.h"
#include "documento/CopiaRecupero.h"
#include "model/FileModello.h"
#include "sistema/Disco.h"

#include "support/FileDiProva.h"
#include "support/ModelloDiProva.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <memory>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

/// Saving a model that can only be rewritten in its place, while the system fails or the program is
/// killed: the file holds the old model or the new one, or else the safety copy holds the new.
class tst_RiscritturaGuasti : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { cartella_.reset(); }

    void UnaChiamataFallita_data();
    void UnaChiamataFallita();
    void TutteLeSeguentiFallite_data() { Chiamate(); }
    void TutteLeSeguentiFallite();
    void UccisoAOgniChiamata_data() { Chiamate(); }
    void UccisoAOgniChiamata();
    void SenzaCopiaNonSiRiscrive();
    void QuelCheIlFileNuovoNonPuoAvere_data();
    void QuelCheIlFileNuovoNonPuoAvere();

private:
    EsitoDelSalvataggio Salva(const QByteArray &chiamata, int n, int causa,
                              const QByteArrayList &modi = {}) const;
    static void Chiamate();
    void ComePrima() const;
    /// The newest work that an opening finds in a safety copy: what it would save.
    QByteArray Ripresa(bool *interrotta = nullptr) const;
    void VerificaNienteDiPerso(const QByteArray &dove) const;

    QString Archivio() const { return cartella_->filePath(QStringLiteral("archivio")); }
    QString Stato() const { return cartella_->filePath(QStringLiteral("stato")); }
    QString File() const { return Archivio() + QStringLiteral("/Fattura.Mod"); }
    QString Altra() const { return Archivio() + QStringLiteral("/Fattura2.Mod"); }

    std::unique_ptr<QTemporaryDir> cartella_;
};

namespace {

constexpr int ElementiVecchi = 60;
constexpr int ElementiNuovi = 100;

QByteArray Vecchi()
{
    static const QByteArray byte =
        FileModello::Componi(ModelloDiProva(ElementiVecchi), QLocale::c());
    return byte;
}

QByteArray Nuovi()
{
    static const QByteArray byte =
        FileModello::Componi(ModelloDiProva(ElementiNuovi), QLocale::c());
    return byte;
}

} // namespace

void tst_RiscritturaGuasti::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkdir(Archivio()));
    ComePrima();
}

void tst_RiscritturaGuasti::ComePrima() const
{
    QDir(Stato()).removeRecursively();
    for (const QString &nome : NomiIn(Archivio())) {
        QVERIFY(QFile::remove(Archivio() + u'/' + nome));
    }
    ScriveFile(File(), Vecchi());
    QCOMPARE(link(QFile::encodeName(File()).constData(), QFile::encodeName(Altra()).constData()),
             0);
}

EsitoDelSalvataggio tst_RiscritturaGuasti::Salva(const QByteArray &chiamata, int n, int causa,
                                                 const QByteArrayList &modi) const
{
    return SalvaConGuasti({Archivio(), chiamata, n, causa, modi},
                          {File(), QString::number(ElementiNuovi), Stato()});
}

QByteArray tst_RiscritturaGuasti::Ripresa(bool *interrotta) const
{
    CopiaRecupero copia(Stato(), File());
    copia.Parte(ByteDi(File()));
    const auto trovate = copia.Cerca();
    if (trovate.isEmpty()) {
        return {};
    }
    if (interrotta != nullptr) {
        *interrotta = trovate[0].interrotta;
    }
    return trovate[0].fileCambiato ? QByteArray()
                                   : FileModello::Componi(trovate[0].modello, QLocale::c());
}

void tst_RiscritturaGuasti::VerificaNienteDiPerso(const QByteArray &dove) const
{
    const QByteArray adesso = ByteDi(File());
    QVERIFY2(ByteDi(Altra()) == adesso, "the two names are one file, " + dove);
    QVERIFY2(NomiIn(Archivio()).size() == 2, "nothing is left behind, " + dove);
    if (adesso == Nuovi()) {
        return;
    }
    bool interrotta = false;
    if (adesso == Vecchi()) {
        const QByteArray ripresa = Ripresa(&interrotta);
        QVERIFY2(ripresa.isEmpty() || ripresa == Nuovi(), "another's work, " + dove);
        QVERIFY2(!interrotta, dove);
        return;
    }
    QVERIFY2(Ripresa(&interrotta) == Nuovi(), "the work is nowhere, " + dove);
    QVERIFY2(interrotta, "said to be another program's change, " + dove);
}

void tst_RiscritturaGuasti::Chiamate()
{
    QTest::addColumn<QByteArray>("chiamata");
    QTest::addColumn<bool>("meta");
    for (const char *chiamata : {"open", "write", "truncate", "sync"}) {
        QTest::newRow(chiamata) << QByteArray(chiamata) << false;
    }
    QTest::newRow("write a meta'") << QByteArray("write") << true;
}

void tst_RiscritturaGuasti::UnaChiamataFallita_data()
{
    QTest::addColumn<QByteArray>("chiamata");
    QTest::addColumn<int>("causa");
    QTest::addColumn<int>("errore");
    QTest::addColumn<bool>("meta");
    struct Causa
    {
        const char *nome;
        int numero;
        int errore;
    };
    for (const Causa &causa : {Causa{"disco pieno", ENOSPC, 61}, Causa{"guasto", EIO, 57}}) {
        for (const char *chiamata : {"open", "write", "truncate", "sync"}) {
            QTest::addRow("%s, %s", chiamata, causa.nome)
                << QByteArray(chiamata) << causa.numero << causa.errore << false;
        }
        QTest::addRow("write a meta', %s", causa.nome)
            << QByteArray("write") << causa.numero << causa.errore << true;
    }
}

void tst_RiscritturaGuasti::UnaChiamataFallita()
{
    // After one failure the old bytes can be put back.
    QFETCH(QByteArray, chiamata);
    QFETCH(int, causa);
    QFETCH(int, errore);
    QFETCH(bool, meta);
    const QByteArrayList modi = meta ? QByteArrayList{"GUASTI_META"} : QByteArrayList();
    int n = 1;
    EsitoDelSalvataggio esito = Salva(chiamata, n, causa, modi);
    for (; esito.guasto; esito = Salva(chiamata, ++n, causa, modi)) {
        QVERIFY(esito.finito);
        // The first opening is the reading before the work.
        QCOMPARE(esito.stato, chiamata == "open" && n == 1 ? 75 : errore);
        QCOMPARE(ByteDi(File()), Vecchi());
        VerificaNienteDiPerso(QByteArray::number(n));
        ComePrima();
    }
    QVERIFY2(n > 1, "the fault never happened");
    QCOMPARE(esito.stato, 0);
    QCOMPARE(ByteDi(File()), Nuovi());
    QCOMPARE(ByteDi(Altra()), Nuovi());
    QVERIFY(NomiIn(Stato()).isEmpty());
}

void tst_RiscritturaGuasti::TutteLeSeguentiFallite()
{
    QFETCH(QByteArray, chiamata);
    QFETCH(bool, meta);
    QByteArrayList modi{"GUASTI_SEMPRE"};
    modi.append(meta ? QByteArrayList{"GUASTI_META"} : QByteArrayList());
    int n = 1;
    int incompleti = 0;
    EsitoDelSalvataggio esito = Salva(chiamata, n, EIO, modi);
    for (; esito.guasto; esito = Salva(chiamata, ++n, EIO, modi)) {
        QVERIFY(esito.finito && esito.stato != 0);
        VerificaNienteDiPerso(QByteArray::number(n));
        const QByteArray adesso = ByteDi(File());
        incompleti += adesso != Vecchi() && adesso != Nuovi() ? 1 : 0;
        ComePrima();
    }
    QVERIFY2(n > 1, "the fault never happened");
    QCOMPARE(esito.stato, 0);
    // Bytes half written, and their length, cannot be put back any more.
    QCOMPARE(incompleti > 0, meta || chiamata == "truncate");
}

void tst_RiscritturaGuasti::UccisoAOgniChiamata()
{
    QFETCH(QByteArray, chiamata);
    QFETCH(bool, meta);
    QByteArrayList modi{"GUASTI_UCCIDE"};
    modi.append(meta ? QByteArrayList{"GUASTI_META"} : QByteArrayList());
    int n = 1;
    EsitoDelSalvataggio esito = Salva(chiamata, n, 0, modi);
    for (; esito.guasto; esito = Salva(chiamata, ++n, 0, modi)) {
        QVERIFY(!esito.finito);
        VerificaNienteDiPerso(QByteArray::number(n));
        ComePrima();
    }
    QVERIFY2(n > 1, "the kill never happened");
    QCOMPARE(esito.stato, 0);
    QCOMPARE(ByteDi(File()), Nuovi());
}

void tst_RiscritturaGuasti::SenzaCopiaNonSiRiscrive()
{
    // A folder that cannot be made: the safety copy has no place.
    ScriveFile(Stato(), "un file");
    const EsitoDelSalvataggio esito = Salva("nessuna", 1, 0);
    QCOMPARE(esito.stato, 75);
    QCOMPARE(ByteDi(File()), Vecchi());
    QVERIFY(QFile::remove(Stato()));
}

void tst_RiscritturaGuasti::QuelCheIlFileNuovoNonPuoAvere_data()
{
    QTest::addColumn<QByteArray>("chiamata");
    QTest::addColumn<int>("causa");
    QTest::newRow("owner") << QByteArray("chown") << EPERM;
    QTest::newRow("attributes") << QByteArray("xattr") << ENOTSUP;
    QTest::newRow("place in a folder of others") << QByteArray("rename") << EPERM;
    QTest::newRow("new file in the folder") << QByteArray("open") << EACCES;
}

void tst_RiscritturaGuasti::QuelCheIlFileNuovoNonPuoAvere()
{
    QFETCH(QByteArray, chiamata);
    QFETCH(int, causa);
    if (geteuid() != 0) {
        QSKIP("only the administrator gives files away");
    }
    QVERIFY(QFile::remove(Altra()));
    const QByteArray nome = QFile::encodeName(File());
    QCOMPARE(chown(nome.constData(), 4001, 4002), 0);
    QCOMPARE(setxattr(nome.constData(), "user.prova", "x", 1, 0), 0);
    struct stat prima
    {
    };
    QCOMPARE(stat(nome.constData(), &prima), 0);
    // The first opening is the reading before the work.
    const EsitoDelSalvataggio esito = chiamata == "open"
                                          ? Salva(chiamata, 2, causa)
                                          : Salva(chiamata, 1, causa, {"GUASTI_SEMPRE"});
    QVERIFY(esito.guasto);
    QCOMPARE(esito.stato, 0);
    struct stat dopo
    {
    };
    QCOMPARE(stat(nome.constData(), &dopo), 0);
    QVERIFY2(dopo.st_ino == prima.st_ino, "the file itself has been written");
    QCOMPARE(dopo.st_uid, uid_t(4001));
    QCOMPARE(dopo.st_gid, gid_t(4002));
    QCOMPARE(getxattr(nome.constData(), "user.prova", nullptr, 0), ssize_t(1));
    QCOMPARE(ByteDi(File()), Nuovi());
    QCOMPARE(NomiIn(Archivio()).size(), 1);
    QVERIFY(NomiIn(Stato()).isEmpty());
}

QTEST_GUILESS_MAIN(tst_RiscritturaGuasti)
#include "tst_RiscritturaGuasti.moc"
