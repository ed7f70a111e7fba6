#include "CartellaDiProva.h"

#include "sistema/Disco.h"
#include "support/Errori.h"
#include "support/FileDiProva.h"

#include <cerrno>

class tst_Disco : public QObject, private CartellaDiProva
{
    Q_OBJECT

private slots:
    void init() { NuovaCartella(); }
    void cleanup() { TogliCartella(); }

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
    void NonSostituisce_data();
    void NonSostituisce();
    void FileDiSolaLettura();
    void CartellaDiSolaLettura();

    void NumeroErrore_data();
    void NumeroErrore();
};

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
