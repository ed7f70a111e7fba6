#include "sistema/SuDisco.h"

#include "sistema/Disco.h"
#include "support/Errori.h"
#include "support/FileDiProva.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cerrno>
#include <memory>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

/// Saving over files of others, as it happens in a folder that several users share. Only the
/// administrator can set that up.
class tst_SuDisco : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { cartella_.reset(); }

    void ProprietarioEGruppo_data();
    void ProprietarioEGruppo();
    void SoltantoIlGruppo();
    void NienteConcesso();
    void FileCheNonCe();
    void SincronizzaUnTubo();
    void SincronizzaUnaCartella();
    void SincronizzaUnaCartellaNonLeggibile();

private:
    void CreaFile(uid_t proprietario, gid_t gruppo, mode_t modo) const;
    QString File() const { return cartella_->filePath(QStringLiteral("Fattura.Mod")); }

    std::unique_ptr<QTemporaryDir> cartella_;
};

namespace {

constexpr uid_t Nessuno = 65534; // the user that UtenteComune becomes
constexpr uid_t Collega = 4001;
constexpr gid_t Ufficio = 4002;
const QByteArray Nuovi("i nuovi byte");

struct stat StatoDi(const QString &percorso)
{
    struct stat stato
    {
    };
    if (lstat(QFile::encodeName(percorso).constData(), &stato) != 0) {
        QTest::qFail("no such file", __FILE__, __LINE__);
    }
    return stato;
}

/// While it lives this process belongs to the group, besides its own.
class Appartenenza
{
public:
    explicit Appartenenza(gid_t gruppo)
    {
        quanti_ = getgroups(static_cast<int>(prima_.size()), prima_.data());
        if (quanti_ < 0 || setgroups(1, &gruppo) != 0) {
            QTest::qFail("cannot join the group", __FILE__, __LINE__);
        }
    }
    ~Appartenenza()
    {
        if (quanti_ < 0 || setgroups(static_cast<size_t>(quanti_), prima_.data()) != 0) {
            qFatal("cannot leave the group");
        }
    }
    Appartenenza(const Appartenenza &) = delete;
    Appartenenza &operator=(const Appartenenza &) = delete;

private:
    std::array<gid_t, 1024> prima_{};
    int quanti_ = -1;
};

} // namespace

void tst_SuDisco::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    QVERIFY(cartella_->isValid());
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 0777), 0);
}

void tst_SuDisco::CreaFile(uid_t proprietario, gid_t gruppo, mode_t modo) const
{
    ScriveFile(File(), "i vecchi byte");
    const QByteArray nome = QFile::encodeName(File());
    QCOMPARE(chown(nome.constData(), proprietario, gruppo), 0);
    QCOMPARE(chmod(nome.constData(), modo), 0);
}

void tst_SuDisco::ProprietarioEGruppo_data()
{
    QTest::addColumn<int>("proprietario");
    QTest::addColumn<int>("gruppo");
    QTest::addColumn<int>("modo");

    QTest::newRow("di un collega") << int(Collega) << int(Ufficio) << 0664;
    QTest::newRow("di un collega, eseguibile") << int(Collega) << int(Ufficio) << 0775;
    QTest::newRow("di un collega, non per gli altri") << int(Collega) << int(Ufficio) << 0640;
    QTest::newRow("soltanto il gruppo") << 0 << int(Ufficio) << 0660;
    QTest::newRow("soltanto il proprietario") << int(Collega) << 0 << 0600;
    QTest::newRow("di chi salva") << 0 << 0 << 0644;
}

void tst_SuDisco::ProprietarioEGruppo()
{
    QFETCH(int, proprietario);
    QFETCH(int, gruppo);
    QFETCH(int, modo);
    if (geteuid() != 0) {
        QSKIP("only the administrator gives files away");
    }
    CreaFile(static_cast<uid_t>(proprietario), static_cast<gid_t>(gruppo),
             static_cast<mode_t>(modo));
    Disco::Sostituisce(File(), Nuovi);
    const struct stat stato = StatoDi(File());
    QCOMPARE(int(stato.st_uid), proprietario);
    QCOMPARE(int(stato.st_gid), gruppo);
    QCOMPARE(int(stato.st_mode & 07777), modo);
    QCOMPARE(ByteDi(File()), Nuovi);
}

void tst_SuDisco::SoltantoIlGruppo()
{
    if (geteuid() != 0) {
        QSKIP("only the administrator gives files away");
    }
    CreaFile(Collega, Ufficio, 0666);
    int errore = -1;
    {
        const Appartenenza appartenenza(Ufficio);
        const UtenteComune utente;
        errore = ErroreDi([this] { Disco::Sostituisce(File(), Nuovi); });
    }
    QCOMPARE(errore, 0);
    const struct stat stato = StatoDi(File());
    QCOMPARE(stato.st_uid, Nessuno);
    QCOMPARE(stato.st_gid, Ufficio);
    QCOMPARE(int(stato.st_mode & 07777), 0666);
    QCOMPARE(ByteDi(File()), Nuovi);
}

void tst_SuDisco::NienteConcesso()
{
    if (geteuid() != 0) {
        QSKIP("only the administrator gives files away");
    }
    CreaFile(Collega, Ufficio, 0666);
    int errore = -1;
    {
        const UtenteComune utente;
        errore = ErroreDi([this] { Disco::Sostituisce(File(), Nuovi); });
    }
    QCOMPARE(errore, 0);
    const struct stat stato = StatoDi(File());
    QCOMPARE(stato.st_uid, Nessuno);
    QCOMPARE(int(stato.st_mode & 07777), 0666);
    QCOMPARE(ByteDi(File()), Nuovi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_SuDisco::FileCheNonCe()
{
    ScriveFile(File(), Nuovi);
    QFile file(File());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(!SuDisco::TieneProprieta(file.handle(), File() + QStringLiteral(".manca")));
    QVERIFY(SuDisco::TieneProprieta(file.handle(), File()));
}

void tst_SuDisco::SincronizzaUnTubo()
{
    // What knows no such call counts as done; what is not open does not.
    std::array<int, 2> tubo{};
    QCOMPARE(pipe(tubo.data()), 0);
    QVERIFY(!SuDisco::Sincronizza(tubo[1]));
    close(tubo[0]);
    close(tubo[1]);
    QCOMPARE(SuDisco::Sincronizza(tubo[1]), std::error_code(EBADF, std::generic_category()));
}

void tst_SuDisco::SincronizzaUnaCartella()
{
    const auto codice = [](int numero) { return std::error_code(numero, std::generic_category()); };
    QVERIFY(!SuDisco::SincronizzaCartella(cartella_->path()));
    QCOMPARE(SuDisco::SincronizzaCartella(File()), codice(ENOENT));
    ScriveFile(File(), Nuovi);
    QCOMPARE(SuDisco::SincronizzaCartella(File()), codice(ENOTDIR));
}

void tst_SuDisco::SincronizzaUnaCartellaNonLeggibile()
{
    // A letter box: files are put into it by their names, and nobody sees what is there.
    const QString buca = cartella_->filePath(QStringLiteral("buca"));
    QVERIFY(QDir().mkdir(buca));
    QCOMPARE(chmod(QFile::encodeName(buca).constData(), 0333), 0);
    int errore = -1;
    {
        const UtenteComune utente;
        errore =
            ErroreDi([&] { Disco::Sostituisce(buca + QStringLiteral("/Fattura.Mod"), Nuovi); });
    }
    QCOMPARE(errore, 0);
    QCOMPARE(ByteDi(buca + QStringLiteral("/Fattura.Mod")), Nuovi);
}

QTEST_GUILESS_MAIN(tst_SuDisco)
#include "tst_SuDisco.moc"
