#include "sistema/Disco.h"

#include "support/Errori.h"
#include "support/FileDiProva.h"
#include "support/guasti/GuastiDisco.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <memory>

#include <sys/stat.h>

class tst_Disco : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { cartella_.reset(); }

    void LeggeIByte_data();
    void LeggeIByte();
    void LeggeFinoAlMassimo();
    void NonLegge_data();
    void NonLegge();
    void NonLeggeSenzaPermesso();

    void SostituisceIlFile();
    void CreaUnFileNuovo();
    void TieneIPermessi_data();
    void TieneIPermessi();
    void SegueICollegamenti_data();
    void SegueICollegamenti();
    void CollegamentoInCerchio();
    void NomeLungoQuantoPuoEssere();
    void NonSostituisce_data();
    void NonSostituisce();
    void FileDiSolaLettura();
    void CartellaDiSolaLettura();
    void LimiteDiDimensione_data();
    void LimiteDiDimensione();
    void SincronizzazioneFallita_data();
    void SincronizzazioneFallita();
    void SincronizzaPrimaDiPrendereIlPosto();
    void CartellaNonSincronizzata();
    void CreaCartellaPrivata();
    void NonCreaCartella_data();
    void NonCreaCartella();
    void ProprietaPrimaDeiPermessi_data();
    void ProprietaPrimaDeiPermessi();
    void ProprietaDiUnFileNuovo();

    void SpazzaIResti_data();
    void SpazzaIResti();

    void NumeroErrore_data();
    void NumeroErrore();

private:
    QString CartellaVera() const { return QFileInfo(cartella_->path()).canonicalFilePath(); }
    QString In(const QString &nome) const { return cartella_->filePath(nome); }
    QString File() const { return In(QStringLiteral("Fattura.Mod")); }

    std::unique_ptr<QTemporaryDir> cartella_;
};

namespace {

const QByteArray Vecchi("i vecchi byte");
const QByteArray Nuovi(9000, 'n');

int ModoDi(const QString &percorso)
{
    struct stat stato
    {
    };
    return lstat(QFile::encodeName(percorso).constData(), &stato) == 0 ? stato.st_mode & 07777 : -1;
}

} // namespace

void tst_Disco::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    QVERIFY(cartella_->isValid());
}

void tst_Disco::LeggeIByte_data()
{
    QTest::addColumn<QByteArray>("byte");

    QTest::newRow("vuoto") << QByteArray();
    QTest::newRow("un byte nullo") << QByteArray(1, '\0');
    QTest::newRow("righe") << QByteArray("a\r\nb\nc\r");
    QTest::newRow("lungo") << QByteArray(100'000, 'x');
}

void tst_Disco::LeggeIByte()
{
    QFETCH(QByteArray, byte);
    ScriveFile(File(), byte);
    QCOMPARE(Disco::Legge(File(), 1'000'000), byte);
}

void tst_Disco::LeggeFinoAlMassimo()
{
    ScriveFile(File(), Nuovi);
    QCOMPARE(Disco::Legge(File(), Nuovi.size()), Nuovi);
    QCOMPARE(ErroreDi([&] { Disco::Legge(File(), Nuovi.size() - 1); }), 7);
}

void tst_Disco::NonLegge_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<int>("errore");

    QTest::newRow("file che non c'e'") << QStringLiteral("manca.Mod") << 53;
    QTest::newRow("cartella che non c'e'") << QStringLiteral("manca/Fattura.Mod") << 76;
    QTest::newRow("file al posto della cartella") << QStringLiteral("file/Fattura.Mod") << 76;
    QTest::newRow("cartella al posto del file") << QStringLiteral("cartella") << 75;
    QTest::newRow("tubo su cui nessuno scrive") << QStringLiteral("tubo") << 75;
    QTest::newRow("collegamento nel vuoto") << QStringLiteral("vuoto") << 53;
}

void tst_Disco::NonLegge()
{
    QFETCH(QString, nome);
    QFETCH(int, errore);
    ScriveFile(In(QStringLiteral("file")), Vecchi);
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("cartella")));
    QCOMPARE(mkfifo(QFile::encodeName(In(QStringLiteral("tubo"))).constData(), 0600), 0);
    QVERIFY(QFile::link(In(QStringLiteral("manca")), In(QStringLiteral("vuoto"))));
    QCOMPARE(ErroreDi([&] { Disco::Legge(In(nome), 1000); }), errore);
}

void tst_Disco::NonLeggeSenzaPermesso()
{
    ScriveFile(File(), Vecchi);
    QCOMPARE(chmod(QFile::encodeName(File()).constData(), 0), 0);
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 0755), 0);
    const UtenteComune utente;
    QCOMPARE(ErroreDi([&] { Disco::Legge(File(), 1000); }), 75);
}

void tst_Disco::SostituisceIlFile()
{
    ScriveFile(File(), Vecchi);
    Disco::Sostituisce(File(), Nuovi);
    QCOMPARE(ByteDi(File()), Nuovi);
    Disco::Sostituisce(File(), QByteArray());
    QCOMPARE(ByteDi(File()), QByteArray());
    QCOMPARE(NomiIn(cartella_->path()), QStringList{QStringLiteral("Fattura.Mod")});
}

void tst_Disco::CreaUnFileNuovo()
{
    const mode_t maschera = umask(027);
    Disco::Sostituisce(File(), Nuovi);
    umask(maschera);
    QCOMPARE(ByteDi(File()), Nuovi);
    QCOMPARE(ModoDi(File()), 0640);
    QCOMPARE(NomiIn(cartella_->path()), QStringList{QStringLiteral("Fattura.Mod")});
}

void tst_Disco::TieneIPermessi_data()
{
    QTest::addColumn<int>("modo");

    for (const int modo : {0600, 0640, 0644, 0660, 0666, 0755, 0777}) {
        QTest::addRow("%o", modo) << modo;
    }
}

void tst_Disco::TieneIPermessi()
{
    QFETCH(int, modo);
    ScriveFile(File(), Vecchi);
    QCOMPARE(chmod(QFile::encodeName(File()).constData(), static_cast<mode_t>(modo)), 0);
    Disco::Sostituisce(File(), Nuovi);
    QCOMPARE(ModoDi(File()), modo);
}

void tst_Disco::SegueICollegamenti_data()
{
    QTest::addColumn<QString>("bersaglio");
    QTest::addColumn<bool>("presente");

    QTest::newRow("assoluto") << QStringLiteral("%1/vera/Vero.Mod") << true;
    QTest::newRow("relativo") << QStringLiteral("vera/Vero.Mod") << true;
    QTest::newRow("a un altro collegamento") << QStringLiteral("vera/secondo") << true;
    QTest::newRow("a un file che ancora non c'e'") << QStringLiteral("vera/Vero.Mod") << false;
}

void tst_Disco::SegueICollegamenti()
{
    QFETCH(QString, bersaglio);
    QFETCH(bool, presente);
    const QString vero = In(QStringLiteral("vera/Vero.Mod"));
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("vera")));
    QCOMPARE(symlink("Vero.Mod", QFile::encodeName(In(QStringLiteral("vera/secondo")))), 0);
    if (presente) {
        ScriveFile(vero, Vecchi);
    }
    if (bersaglio.contains(u'%')) {
        bersaglio = bersaglio.arg(cartella_->path());
    }
    QCOMPARE(symlink(QFile::encodeName(bersaglio), QFile::encodeName(File())), 0);

    Disco::Sostituisce(File(), Nuovi);

    QVERIFY(QFileInfo(File()).isSymLink());
    QVERIFY(!QFileInfo(vero).isSymLink());
    QCOMPARE(ByteDi(vero), Nuovi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 2);
    QCOMPARE(NomiIn(In(QStringLiteral("vera"))).size(), 2);
}

void tst_Disco::CollegamentoInCerchio()
{
    const QString altro = In(QStringLiteral("altro"));
    QCOMPARE(symlink(QFile::encodeName(altro), QFile::encodeName(File())), 0);
    QCOMPARE(symlink(QFile::encodeName(File()), QFile::encodeName(altro)), 0);
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(File(), Nuovi); }), 75);
    QCOMPARE(NomiIn(cartella_->path()).size(), 2);
}

void tst_Disco::NomeLungoQuantoPuoEssere()
{
    const QString lungo = In(QString(251, u'n') + QLatin1String(".Mod"));
    Disco::Sostituisce(lungo, Vecchi);
    Disco::Sostituisce(lungo, Nuovi);
    QCOMPARE(ByteDi(lungo), Nuovi);
    const QString troppo = In(QString(252, u'n') + QLatin1String(".Mod"));
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(troppo, Nuovi); }), 75);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_Disco::NonSostituisce_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<int>("errore");

    QTest::newRow("cartella che non c'e'") << QStringLiteral("manca/Fattura.Mod") << 76;
    QTest::newRow("file al posto della cartella") << QStringLiteral("file/Fattura.Mod") << 76;
    QTest::newRow("cartella al posto del file") << QStringLiteral("cartella") << 75;
    QTest::newRow("cartella con la barra") << QStringLiteral("cartella/") << 75;
    QTest::newRow("tubo") << QStringLiteral("tubo") << 75;
    QTest::newRow("mezzo carattere nel nome") << QString(QChar(0xD83D)) << 75;
}

void tst_Disco::NonSostituisce()
{
    QFETCH(QString, nome);
    QFETCH(int, errore);
    ScriveFile(In(QStringLiteral("file")), Vecchi);
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("cartella")));
    QCOMPARE(mkfifo(QFile::encodeName(In(QStringLiteral("tubo"))).constData(), 0600), 0);
    const QStringList prima = NomiIn(cartella_->path());
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(In(nome), Nuovi); }), errore);
    QCOMPARE(NomiIn(cartella_->path()), prima);
    QCOMPARE(ByteDi(In(QStringLiteral("file"))), Vecchi);
}

void tst_Disco::FileDiSolaLettura()
{
    ScriveFile(File(), Vecchi);
    QCOMPARE(chmod(QFile::encodeName(File()).constData(), 0444), 0);
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 0777), 0);
    {
        const UtenteComune utente;
        QCOMPARE(ErroreDi([&] { Disco::Sostituisce(File(), Nuovi); }), 75);
    }
    QCOMPARE(ByteDi(File()), Vecchi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_Disco::CartellaDiSolaLettura()
{
    ScriveFile(File(), Vecchi);
    QCOMPARE(chmod(QFile::encodeName(File()).constData(), 0666), 0);
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 0555), 0);
    {
        const UtenteComune utente;
        QCOMPARE(ErroreDi([&] { Disco::Sostituisce(File(), Nuovi); }), 75);
        QCOMPARE(ErroreDi([&] { Disco::Sostituisce(In(QStringLiteral("nuovo")), Nuovi); }), 75);
    }
    QCOMPARE(ByteDi(File()), Vecchi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 0755), 0);
}

void tst_Disco::LimiteDiDimensione_data()
{
    QTest::addColumn<qint64>("limite");
    QTest::addColumn<int>("errore");

    QTest::newRow("0 byte") << qint64(0) << 61;
    QTest::newRow("4096 byte") << qint64(4096) << 61;
    QTest::newRow("un byte in meno") << qint64(Nuovi.size() - 1) << 61;
    QTest::newRow("quanto basta") << qint64(Nuovi.size()) << 0;
}

void tst_Disco::LimiteDiDimensione()
{
    QFETCH(qint64, limite);
    QFETCH(int, errore);
    ScriveFile(File(), Vecchi);
    int trovato = -1;
    {
        const LimiteFile limiteFile(limite);
        trovato = ErroreDi([&] { Disco::Sostituisce(File(), Nuovi); });
    }
    QCOMPARE(trovato, errore);
    QCOMPARE(ByteDi(File()), errore == 0 ? Nuovi : Vecchi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_Disco::SincronizzazioneFallita_data()
{
    QTest::addColumn<int>("causa");
    QTest::addColumn<int>("errore");

    QTest::newRow("disco pieno") << ENOSPC << 61;
    QTest::newRow("guasto") << EIO << 57;
    QTest::newRow("nessuno") << 0 << 0;
}

void tst_Disco::SincronizzazioneFallita()
{
    QFETCH(int, causa);
    QFETCH(int, errore);
    ScriveFile(File(), Vecchi);
    const GuastiDisco guasto(GuastiDisco::Chiamata::SincronizzaFile, causa);
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(File(), Nuovi); }), errore);
    QCOMPARE(ByteDi(File()), errore == 0 ? Nuovi : Vecchi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_Disco::SincronizzaPrimaDiPrendereIlPosto()
{
    // What is forced onto the medium are all the new bytes, while the old file still stands.
    ScriveFile(File(), Vecchi);
    QByteArray vistiPrima;
    QByteArray vistiPoi;
    const GuastiDisco deiByte(GuastiDisco::Chiamata::SincronizzaFile, [&](int descrittore) {
        if (ByteDi(GuastiDisco::Percorso(descrittore)) == Nuovi) {
            vistiPrima = ByteDi(File());
        }
        return 0;
    });
    const GuastiDisco delNome(GuastiDisco::Chiamata::SincronizzaCartella, [&](int descrittore) {
        // The name comes after them, once it stands for the new file.
        if (GuastiDisco::Percorso(descrittore) == CartellaVera()) {
            vistiPoi = ByteDi(File());
        }
        return 0;
    });
    Disco::Sostituisce(File(), Nuovi);
    QCOMPARE(vistiPrima, Vecchi);
    QCOMPARE(vistiPoi, Nuovi);
    QCOMPARE(ByteDi(File()), Nuovi);
}

void tst_Disco::CartellaNonSincronizzata()
{
    // The new file stands already, and is no half of one.
    ScriveFile(File(), Vecchi);
    const GuastiDisco guasto(GuastiDisco::Chiamata::SincronizzaCartella, EIO);
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(File(), Nuovi); }), 57);
    QCOMPARE(ByteDi(File()), Nuovi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_Disco::CreaCartellaPrivata()
{
    QStringList sincronizzate;
    const GuastiDisco nomi(GuastiDisco::Chiamata::SincronizzaCartella, [&](int descrittore) {
        sincronizzate.append(GuastiDisco::Percorso(descrittore));
        return 0;
    });
    const QString nuova = In(QStringLiteral("una/due"));
    Disco::CreaCartellaPrivata(nuova);
    QCOMPARE(ModoDi(nuova), 0700);
    QVERIFY2(ModoDi(In(QStringLiteral("una"))) != 0700, "those above are as others make them");
    QCOMPARE(sincronizzate, QStringList{CartellaVera() + QStringLiteral("/una")});

    // One that is there stays as its owner made it.
    QCOMPARE(chmod(QFile::encodeName(nuova).constData(), 0750), 0);
    Disco::CreaCartellaPrivata(nuova);
    QCOMPARE(ModoDi(nuova), 0750);
    QCOMPARE(sincronizzate.size(), 1);
}

void tst_Disco::NonCreaCartella_data()
{
    QTest::addColumn<QString>("nome");

    QTest::newRow("file al suo posto") << QStringLiteral("file");
    QTest::newRow("file sopra di lei") << QStringLiteral("file/nuova");
    QTest::newRow("senza permesso") << QStringLiteral("chiusa/nuova");
}

void tst_Disco::NonCreaCartella()
{
    QFETCH(QString, nome);
    ScriveFile(In(QStringLiteral("file")), Vecchi);
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("chiusa")));
    const QByteArray chiusa = QFile::encodeName(In(QStringLiteral("chiusa")));
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 0755), 0);
    QCOMPARE(chmod(chiusa.constData(), 0555), 0);
    int errore = -1;
    {
        const UtenteComune utente;
        errore = ErroreDi([&] { Disco::CreaCartellaPrivata(In(nome)); });
    }
    QCOMPARE(errore, 75);
    QCOMPARE(ByteDi(In(QStringLiteral("file"))), Vecchi);
    QCOMPARE(chmod(chiusa.constData(), 0755), 0);
}

void tst_Disco::ProprietaPrimaDeiPermessi_data()
{
    QTest::addColumn<bool>("tenuta");

    QTest::newRow("tenuta") << true;
    QTest::newRow("rifiutata, e si salva lo stesso") << false;
}

void tst_Disco::ProprietaPrimaDeiPermessi()
{
    QFETCH(bool, tenuta);
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("vera")));
    const QString vero = In(QStringLiteral("vera/Vero.Mod"));
    ScriveFile(vero, Vecchi);
    QCOMPARE(chmod(QFile::encodeName(vero).constData(), 0664), 0);
    QVERIFY(QFile::link(vero, File()));
    QStringList cartelle;
    int modo = -1;
    int permessi = 0;
    const GuastiDisco delProprietario(GuastiDisco::Chiamata::CambiaProprietario, [&](int nuovo) {
        cartelle.append(QFileInfo(GuastiDisco::Percorso(nuovo)).path());
        modo = ModoDi(GuastiDisco::Percorso(nuovo));
        // As a change of owner may do.
        return fchmod(nuovo, 0400) == 0 ? 0 : errno;
    });
    const GuastiDisco deiPermessi(GuastiDisco::Chiamata::CambiaModo,
                                  [&](int) { return ++permessi == 1 && !tenuta ? EPERM : 0; });
    Disco::Sostituisce(File(), Nuovi);
    QCOMPARE(cartelle, QStringList{CartellaVera() + QStringLiteral("/vera")});
    QCOMPARE(modo, 0600);
    QCOMPARE(permessi, tenuta ? 1 : 2);
    QCOMPARE(ModoDi(vero), 0664);
    QCOMPARE(ByteDi(vero), Nuovi);
}

void tst_Disco::ProprietaDiUnFileNuovo()
{
    int chieste = 0;
    const auto conta = [&chieste](int) {
        ++chieste;
        return 0;
    };
    const GuastiDisco delProprietario(GuastiDisco::Chiamata::CambiaProprietario, conta);
    const GuastiDisco deiPermessi(GuastiDisco::Chiamata::CambiaModo, conta);
    Disco::Sostituisce(File(), Nuovi);
    QVERIFY2(chieste == 0, "there is no file whose owner could be kept");
    QCOMPARE(ByteDi(File()), Nuovi);
}

void tst_Disco::SpazzaIResti_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<int>("minuti");
    QTest::addColumn<bool>("resta");

    const QString nostro = QStringLiteral(".plakera-0123456789abcdef.tmp");
    QTest::newRow("resto di un programma ucciso") << nostro << 11 << false;
    QTest::newRow("resto di ieri") << nostro << 24 * 60 << false;
    QTest::newRow("di un programma che sta scrivendo") << nostro << 0 << true;
    QTest::newRow("di un programma su una rete lenta") << nostro << 9 << true;
    QTest::newRow("copia dell'utente") << QStringLiteral("Fattura.Mod.backup") << 60 << true;
    QTest::newRow("nome piu' corto") << QStringLiteral(".plakera-0123.tmp") << 60 << true;
    QTest::newRow("nome non esadecimale")
        << QStringLiteral(".plakera-0123456789abcdeg.tmp") << 60 << true;
    QTest::newRow("altra fine") << QStringLiteral(".plakera-0123456789abcdef.Mod") << 60 << true;
}

void tst_Disco::SpazzaIResti()
{
    QFETCH(QString, nome);
    QFETCH(int, minuti);
    QFETCH(bool, resta);
    ScriveFile(File(), Vecchi);
    ScriveFile(In(nome), QByteArray());
    Invecchia(In(nome), 60 * minuti);

    Disco::Sostituisce(File(), Nuovi);

    QCOMPARE(QFile::exists(In(nome)), resta);
    QCOMPARE(ByteDi(File()), Nuovi);
}

void tst_Disco::NumeroErrore_data()
{
    QTest::addColumn<int>("causa");
    QTest::addColumn<int>("errore");

    QTest::newRow("non c'e'") << ENOENT << 53;
    QTest::newRow("non e' una cartella") << ENOTDIR << 53;
    QTest::newRow("disco pieno") << ENOSPC << 61;
    QTest::newRow("quota esaurita") << EDQUOT << 61;
    QTest::newRow("file troppo grande") << EFBIG << 61;
    QTest::newRow("supporto protetto") << EROFS << 70;
    QTest::newRow("occupato") << EBUSY << 70;
    QTest::newRow("in esecuzione") << ETXTBSY << 70;
    QTest::newRow("guasto") << EIO << 57;
    QTest::newRow("periferica sparita") << ENODEV << 57;
    QTest::newRow("nessun permesso") << EACCES << 75;
    QTest::newRow("non consentito") << EPERM << 75;
    QTest::newRow("cartella") << EISDIR << 75;
    QTest::newRow("troppi file aperti") << EMFILE << 75;
    QTest::newRow("nome troppo lungo") << ENAMETOOLONG << 75;
}

void tst_Disco::NumeroErrore()
{
    QFETCH(int, causa);
    QFETCH(int, errore);
    QCOMPARE(Disco::NumeroErrore({causa, std::generic_category()}), errore);
    QCOMPARE(Disco::NumeroErrore({causa, std::system_category()}), errore);
}

QTEST_GUILESS_MAIN(tst_Disco)
#include "tst_Disco.moc"
