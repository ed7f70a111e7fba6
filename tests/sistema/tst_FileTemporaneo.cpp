#include "CartellaDiProva.h"

#include "sistema/Disco.h"
#include "support/Errori.h"
#include "support/FileDiProva.h"
#include "support/guasti/GuastiDisco.h"

#include <cerrno>

/// The file that the new bytes are written into before it takes the place of the old one.
class tst_FileTemporaneo : public QObject, private CartellaDiProva
{
    Q_OBJECT

private slots:
    void init() { NuovaCartella(); }
    void cleanup() { TogliCartella(); }

    void NomeLungoQuantoPuoEssere();
    void ProprietaPrimaDeiPermessi_data();
    void ProprietaPrimaDeiPermessi();
    void ProprietaDiUnFileNuovo();
    void SpazzaIResti_data();
    void SpazzaIResti();
};

void tst_FileTemporaneo::NomeLungoQuantoPuoEssere()
{
    const QString lungo = In(QString(251, u'n') + QLatin1String(".Mod"));
    Disco::Sostituisce(lungo, Vecchi);
    Disco::Sostituisce(lungo, Nuovi);
    QCOMPARE(ByteDi(lungo), Nuovi);
    const QString troppo = In(QString(252, u'n') + QLatin1String(".Mod"));
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(troppo, Nuovi); }), 75);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_FileTemporaneo::ProprietaPrimaDeiPermessi_data()
{
    QTest::addColumn<bool>("tenuta");

    QTest::newRow("tenuta") << true;
    QTest::newRow("rifiutata, e si salva lo stesso") << false;
}

void tst_FileTemporaneo::ProprietaPrimaDeiPermessi()
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

void tst_FileTemporaneo::ProprietaDiUnFileNuovo()
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

void tst_FileTemporaneo::SpazzaIResti_data()
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

void tst_FileTemporaneo::SpazzaIResti()
{
    QFETCH(QString, nome);
    QFETCH(int, minuti);
    QFETCH(bool, resta);
    ScriveFile(File(), Vecchi);
    ScriveFile(In(nome), QByteArray());
    Invecchia(In(nome), qint64(minuti) * 60);

    Disco::Sostituisce(File(), Nuovi);

    QCOMPARE(QFile::exists(In(nome)), resta);
    QCOMPARE(ByteDi(File()), Nuovi);
}

QTEST_GUILESS_MAIN(tst_FileTemporaneo)
#include "tst_FileTemporaneo.moc"
