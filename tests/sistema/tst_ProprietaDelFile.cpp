#include "sistema/Disco.h"

#include "support/Errori.h"
#include "support/FileDiProva.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cstring>
#include <memory>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

/// What a file has besides its bytes is there after a save: by a new file in its place, or by
/// writing into the old one.
class tst_ProprietaDelFile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { cartella_.reset(); }

    void AccessoEAttributi();
    void NienteDiQuelCheDaLaCartella();
    void ModoIntero();
    void AltriNomi();
    void FileDiUnCollega();
    void CartellaNonScrivibile();
    void CartellaConBitDiRestrizione();
    void SolaLetturaAncheAllAmministratore_data();
    void SolaLetturaAncheAllAmministratore();
    void SenzaPoterRiscrivereSiRinuncia();

private:
    QString File() const { return cartella_->filePath(QStringLiteral("Fattura.Mod")); }
    QByteArray Nome() const { return QFile::encodeName(File()); }
    QByteArray Attributo(const char *nome) const;
    ino_t Nodo() const;

    std::unique_ptr<QTemporaryDir> cartella_;
};

namespace {

constexpr uid_t Collega = 4001;
constexpr gid_t Ufficio = 4002;
const QByteArray Vecchi("i vecchi byte");
const QByteArray Nuovi("i nuovi byte, che sono di piu'");
constexpr auto ListaAccessi = "system.posix_acl_access";

/// An access list that lets one more user read and write.
QByteArray ConUnCollega()
{
    struct Voce
    {
        quint16 chi;
        quint16 permessi;
        quint32 numero;
    };
    constexpr quint32 Nessuno = 0xffffffff;
    constexpr std::array<Voce, 5> voci{{{0x01, 6, Nessuno},
                                        {0x02, 6, Collega},
                                        {0x04, 4, Nessuno},
                                        {0x10, 6, Nessuno},
                                        {0x20, 0, Nessuno}}};
    const quint32 versione = 2;
    QByteArray byte(reinterpret_cast<const char *>(&versione), sizeof versione);
    byte.append(reinterpret_cast<const char *>(voci.data()), sizeof voci);
    return byte;
}

void Mette(const QByteArray &file, const char *nome, const QByteArray &valore)
{
    if (setxattr(file.constData(), nome, valore.constData(), static_cast<size_t>(valore.size()),
                 0) != 0) {
        QTest::qFail(std::strerror(errno), __FILE__, __LINE__);
    }
}

int Modo(const QByteArray &file)
{
    struct stat stato
    {
    };
    return stat(file.constData(), &stato) == 0 ? int(stato.st_mode & 07777) : -1;
}

int riscritture = 0;

void ContaRiscrittura()
{
    ++riscritture;
}

} // namespace

void tst_ProprietaDelFile::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 0777), 0);
    ScriveFile(File(), Vecchi);
    riscritture = 0;
}

QByteArray tst_ProprietaDelFile::Attributo(const char *nome) const
{
    std::array<char, 1000> byte{};
    const ssize_t misura = getxattr(Nome().constData(), nome, byte.data(), byte.size());
    return misura < 0 ? QByteArray("manca") : QByteArray(byte.data(), misura);
}

ino_t tst_ProprietaDelFile::Nodo() const
{
    struct stat stato
    {
    };
    return stat(Nome().constData(), &stato) == 0 ? stato.st_ino : 0;
}

void tst_ProprietaDelFile::AccessoEAttributi()
{
    Mette(Nome(), ListaAccessi, ConUnCollega());
    Mette(Nome(), "user.nota", "di Anna");
    Mette(Nome(), "user.vuota", QByteArray());
    const int modo = Modo(Nome());
    const ino_t nodo = Nodo();
    Disco::Sostituisce(File(), Nuovi, &ContaRiscrittura);
    QCOMPARE(Attributo(ListaAccessi), ConUnCollega());
    QCOMPARE(Attributo("user.nota"), QByteArray("di Anna"));
    QCOMPARE(Attributo("user.vuota"), QByteArray());
    QCOMPARE(Modo(Nome()), modo);
    QCOMPARE(ByteDi(File()), Nuovi);
    QVERIFY2(Nodo() != nodo && riscritture == 0, "a new file can have all of that");
}

void tst_ProprietaDelFile::NienteDiQuelCheDaLaCartella()
{
    // New files of the folder let a colleague in; this one was made before, or closed to him.
    QCOMPARE(chmod(Nome().constData(), 0640), 0);
    Mette(QFile::encodeName(cartella_->path()), "system.posix_acl_default", ConUnCollega());
    Disco::Sostituisce(File(), Nuovi, &ContaRiscrittura);
    QCOMPARE(Attributo(ListaAccessi), QByteArray("manca"));
    QCOMPARE(Modo(Nome()), 0640);
    QCOMPARE(riscritture, 0);
    QCOMPARE(ByteDi(File()), Nuovi);
}

void tst_ProprietaDelFile::ModoIntero()
{
    for (const int modo : {02664, 0604, 01644}) {
        QCOMPARE(chmod(Nome().constData(), static_cast<mode_t>(modo)), 0);
        Disco::Sostituisce(File(), Nuovi, &ContaRiscrittura);
        QCOMPARE(Modo(Nome()), modo);
    }
    QCOMPARE(riscritture, 0);
}

void tst_ProprietaDelFile::AltriNomi()
{
    const QString altro = cartella_->filePath(QStringLiteral("Altra.Mod"));
    QCOMPARE(link(Nome().constData(), QFile::encodeName(altro).constData()), 0);
    const ino_t nodo = Nodo();
    for (const QByteArray &byte : {Nuovi, QByteArray("corti"), QByteArray(), Nuovi}) {
        Disco::Sostituisce(File(), byte, &ContaRiscrittura);
        QCOMPARE(ByteDi(File()), byte);
        QCOMPARE(ByteDi(altro), byte);
    }
    QCOMPARE(Nodo(), nodo);
    QCOMPARE(riscritture, 4);
    QCOMPARE(NomiIn(cartella_->path()).size(), 2);
}

void tst_ProprietaDelFile::FileDiUnCollega()
{
    if (geteuid() != 0) {
        QSKIP("only the administrator gives files away");
    }
    // The user may write it, and would lock its owner out by a file of his own.
    QCOMPARE(chown(Nome().constData(), Collega, Ufficio), 0);
    QCOMPARE(chmod(Nome().constData(), 0606), 0);
    const ino_t nodo = Nodo();
    int errore = -1;
    {
        const UtenteComune utente;
        errore = ErroreDi([this] { Disco::Sostituisce(File(), Nuovi, &ContaRiscrittura); });
    }
    QCOMPARE(errore, 0);
    QCOMPARE(Nodo(), nodo);
    struct stat stato
    {
    };
    QCOMPARE(stat(Nome().constData(), &stato), 0);
    QCOMPARE(stato.st_uid, Collega);
    QCOMPARE(stato.st_gid, Ufficio);
    QCOMPARE(Modo(Nome()), 0606);
    QCOMPARE(riscritture, 1);
    QCOMPARE(ByteDi(File()), Nuovi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_ProprietaDelFile::CartellaNonScrivibile()
{
    QCOMPARE(chmod(Nome().constData(), 0666), 0);
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 0555), 0);
    int errore = -1;
    int senzaRiscrivere = -1;
    {
        const UtenteComune utente;
        errore = ErroreDi([this] { Disco::Sostituisce(File(), Nuovi, &ContaRiscrittura); });
        senzaRiscrivere = ErroreDi([this] { Disco::Sostituisce(File(), Vecchi); });
    }
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 0755), 0);
    QCOMPARE(errore, 0);
    QCOMPARE(senzaRiscrivere, 75);
    QCOMPARE(ByteDi(File()), Nuovi);
    QCOMPARE(riscritture, 1);
}

void tst_ProprietaDelFile::CartellaConBitDiRestrizione()
{
    if (geteuid() != 0) {
        QSKIP("only the administrator gives files away");
    }
    // Everybody makes files there, but nobody replaces another's.
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 01777), 0);
    QCOMPARE(chmod(Nome().constData(), 0666), 0);
    int errore = -1;
    {
        const UtenteComune utente;
        errore = ErroreDi([this] { Disco::Sostituisce(File(), Nuovi, &ContaRiscrittura); });
    }
    QCOMPARE(errore, 0);
    QCOMPARE(ByteDi(File()), Nuovi);
    QCOMPARE(riscritture, 1);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_ProprietaDelFile::SolaLetturaAncheAllAmministratore_data()
{
    QTest::addColumn<int>("modo");
    for (const int modo : {0444, 0400, 0555, 0}) {
        QTest::addRow("%o", modo) << modo;
    }
}

void tst_ProprietaDelFile::SolaLetturaAncheAllAmministratore()
{
    QFETCH(int, modo);
    QCOMPARE(chmod(Nome().constData(), static_cast<mode_t>(modo)), 0);
    QCOMPARE(ErroreDi([this] { Disco::Sostituisce(File(), Nuovi, &ContaRiscrittura); }), 75);
    QCOMPARE(ErroreDi([this] { Disco::Sostituisce(File(), Nuovi); }), 75);
    QCOMPARE(Modo(Nome()), modo);
    QCOMPARE(riscritture, 0);
    QCOMPARE(chmod(Nome().constData(), 0644), 0);
    QCOMPARE(ByteDi(File()), Vecchi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_ProprietaDelFile::SenzaPoterRiscrivereSiRinuncia()
{
    // What comes before the rewriting refuses: the safety copy has no place.
    const QString altro = cartella_->filePath(QStringLiteral("Altra.Mod"));
    QCOMPARE(link(Nome().constData(), QFile::encodeName(altro).constData()), 0);
    QCOMPARE(ErroreDi([this] {
                 Disco::Sostituisce(File(), Nuovi,
                                    [] { throw ErroreSistema(ErroreSistema::DiscoPieno); });
             }),
             61);
    QCOMPARE(ByteDi(File()), Vecchi);
    QCOMPARE(ByteDi(altro), Vecchi);
}

QTEST_GUILESS_MAIN(tst_ProprietaDelFile)
#include "tst_ProprietaDelFile.moc"
