#include "CartellaDiProva.h"

#include "sistema/Disco.h"
#include "support/Errori.h"
#include "support/FileDiProva.h"
#include "support/guasti/GuastiDisco.h"

#include <cerrno>

/// Files and folders on a medium that is full, fails, or has yet to take what it was given.
class tst_SulSupporto : public QObject, private CartellaDiProva
{
    Q_OBJECT

private slots:
    void init() { NuovaCartella(); }
    void cleanup() { TogliCartella(); }

    void LimiteDiDimensione_data();
    void LimiteDiDimensione();
    void SincronizzazioneFallita_data();
    void SincronizzazioneFallita();
    void SincronizzaPrimaDiPrendereIlPosto();
    void CartellaNonSincronizzata();
    void CreaCartellaPrivata();
    void NonCreaCartella_data();
    void NonCreaCartella();
};

void tst_SulSupporto::LimiteDiDimensione_data()
{
    QTest::addColumn<qint64>("limite");
    QTest::addColumn<int>("errore");

    QTest::newRow("0 byte") << qint64(0) << 61;
    QTest::newRow("4096 byte") << qint64(4096) << 61;
    QTest::newRow("un byte in meno") << qint64(Nuovi.size() - 1) << 61;
    QTest::newRow("quanto basta") << qint64(Nuovi.size()) << 0;
}

void tst_SulSupporto::LimiteDiDimensione()
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

void tst_SulSupporto::SincronizzazioneFallita_data()
{
    QTest::addColumn<int>("causa");
    QTest::addColumn<int>("errore");

    QTest::newRow("disco pieno") << ENOSPC << 61;
    QTest::newRow("guasto") << EIO << 57;
    QTest::newRow("nessuno") << 0 << 0;
}

void tst_SulSupporto::SincronizzazioneFallita()
{
    QFETCH(int, causa);
    QFETCH(int, errore);
    ScriveFile(File(), Vecchi);
    const GuastiDisco guasto(GuastiDisco::Chiamata::SincronizzaFile, causa);
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(File(), Nuovi); }), errore);
    QCOMPARE(ByteDi(File()), errore == 0 ? Nuovi : Vecchi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_SulSupporto::SincronizzaPrimaDiPrendereIlPosto()
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

void tst_SulSupporto::CartellaNonSincronizzata()
{
    // The new file stands already, and is no half of one.
    ScriveFile(File(), Vecchi);
    const GuastiDisco guasto(GuastiDisco::Chiamata::SincronizzaCartella, EIO);
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(File(), Nuovi); }), 57);
    QCOMPARE(ByteDi(File()), Nuovi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_SulSupporto::CreaCartellaPrivata()
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

void tst_SulSupporto::NonCreaCartella_data()
{
    QTest::addColumn<QString>("nome");

    QTest::newRow("file al suo posto") << QStringLiteral("file");
    QTest::newRow("file sopra di lei") << QStringLiteral("file/nuova");
    QTest::newRow("senza permesso") << QStringLiteral("chiusa/nuova");
}

void tst_SulSupporto::NonCreaCartella()
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

QTEST_GUILESS_MAIN(tst_SulSupporto)
#include "tst_SulSupporto.moc"
