#include "model/FileModello.h"

#include "support/Errori.h"
#include "support/FileDiProva.h"
#include "support/ModelloDiProva.h"
#include "support/Tempi.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

/// The file on the disk: opening, saving, failing. What its bytes mean is tested beside it.
class tst_FileModello : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { cartella_.reset(); }

    void SalvatoSiRilegge();
    void SalvatoCentoVolteNonCambia();
    void EliminatiERinumerati();
    void EliminatiTuttiIContiTornanoAZero();

    void OgniModelloDelCampione_data();
    void OgniModelloDelCampione();

    void MessaggioDiLetturaFallita_data();
    void MessaggioDiLetturaFallita();
    void RestaQuantoLetto();
    void FileMancanteAzzeraIConti();
    void FileEnorme_data();
    void FileEnorme();
    void EnormeSiDiceTroppoGrande();

    void LimiteDiDimensione_data();
    void LimiteDiDimensione();
    void NonSiSalva_data();
    void NonSiSalva();
    void CartellaDiSolaLettura();
    void FileDiSolaLettura();
    void CollegamentoEPermessi();
    void CambiatoDaAltri();

private:
    QString In(const QString &nome) const { return cartella_->filePath(nome); }
    QString File() const { return In(QStringLiteral("Fattura.Mod")); }

    std::unique_ptr<QTemporaryDir> cartella_;
};

namespace {

const QLocale Punto = QLocale::c();

const Numeri::Avviso NessunAvviso = [](const QString &testo) {
    QFAIL(qPrintable(QLatin1String("unexpected message: ") + testo));
};

const Modello &Vecchio()
{
    static const Modello modello = ModelloDiProva(3);
    return modello;
}

const Modello &Nuovo()
{
    static const Modello modello = ModelloDiProva(100);
    return modello;
}

} // namespace

void tst_FileModello::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    QVERIFY(cartella_->isValid());
    FileModello::Salva(Vecchio(), File(), Punto);
}

void tst_FileModello::SalvatoSiRilegge()
{
    FileModello::Salva(Nuovo(), File(), Punto);
    Modello letto;
    QVERIFY(FileModello::LeggeModello(letto, File(), NessunAvviso));
    QVERIFY(letto == Nuovo());
    QCOMPARE(NomiIn(cartella_->path()), QStringList{QStringLiteral("Fattura.Mod")});
}

void tst_FileModello::SalvatoCentoVolteNonCambia()
{
    FileModello::Salva(Nuovo(), File(), Punto);
    const QByteArray primo = ByteDi(File());
    for (int i = 0; i < 100; ++i) {
        Modello modello;
        FileModello::Carica(modello, File());
        FileModello::Salva(modello, File(), Punto);
        QCOMPARE(ByteDi(File()), primo);
    }
}

void tst_FileModello::EliminatiERinumerati()
{
    Modello modello = ModelloDiProva(5);
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        modello.Nome(genere, 3).clear();
    }
    FileModello::Salva(modello, File(), Punto);
    Modello letto;
    FileModello::Carica(letto, File());
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        QCOMPARE(letto.Numero(genere), qint16(4));
        QCOMPARE(letto.Nome(genere, 2), modello.Nome(genere, 2));
        QCOMPARE(letto.Nome(genere, 3), modello.Nome(genere, 4));
        QCOMPARE(letto.Nome(genere, 4), modello.Nome(genere, 5));
    }
    QVERIFY(letto.Campi[3] == modello.Campi[4]);
    QVERIFY(letto.Cornici[3] == modello.Cornici[4]);
    QVERIFY(letto.Immagini[3] == modello.Immagini[4]);
}

void tst_FileModello::EliminatiTuttiIContiTornanoAZero()
{
    Modello modello = ModelloDiProva(5);
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        for (int i = 1; i <= 5; ++i) {
            modello.Nome(genere, i).clear();
        }
        QCOMPARE(modello.Numero(genere), qint16(5));
    }
    FileModello::Salva(modello, File(), Punto);
    FileModello::Carica(modello, File());
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        QCOMPARE(modello.Numero(genere), qint16(0));
    }
}

void tst_FileModello::OgniModelloDelCampione_data()
{
    QTest::addColumn<QString>("percorso");

    QDirIterator modelli(QStringLiteral(CARTELLA_CAMPIONE), {QStringLiteral("*.mod")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (modelli.hasNext()) {
        const QString percorso = modelli.next();
        QTest::newRow(
            qPrintable(QDir(QStringLiteral(CARTELLA_CAMPIONE)).relativeFilePath(percorso)))
            << percorso;
    }
}

void tst_FileModello::OgniModelloDelCampione()
{
    QFETCH(QString, percorso);
    Modello modello;
    QVERIFY(FileModello::LeggeModello(modello, percorso, NessunAvviso));
    QCOMPARE(FileModello::Componi(modello, Punto), ByteDi(percorso));
}

void tst_FileModello::MessaggioDiLetturaFallita_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<QString>("fine");

    QByteArray visualizza = FileModello::Componi(Modello(), Punto);
    QList<QByteArray> righe = visualizza.split('\n');
    righe[10] = " 3 \r";
    visualizza = righe.join('\n');
    const QByteArray corto = QByteArray("\r\n").repeated(50);

    QTest::newRow("manca") << QByteArray() << QStringLiteral("\n53\nImpossibile trovare il file");
    QTest::newRow("piu' corto di 51 righe")
        << corto << QStringLiteral("\n62\nLettura oltre la fine del file");
    QTest::newRow("riga 11 rifiutata dalla casella")
        << visualizza << QStringLiteral("\n380\nValore di proprietà non valido");
}

void tst_FileModello::MessaggioDiLetturaFallita()
{
    QFETCH(QByteArray, byte);
    QFETCH(QString, fine);
    const QString percorso = In(QStringLiteral("Altro.Mod"));
    if (!byte.isEmpty()) {
        ScriveFile(percorso, byte);
    }
    Modello modello;
    modello.NomeFile = QStringLiteral("Altro.Mod");
    QStringList avvisi;
    QVERIFY(!FileModello::LeggeModello(modello, percorso,
                                       [&](const QString &testo) { avvisi.append(testo); }));
    QCOMPARE(avvisi, QStringList{QStringLiteral("impossibile leggere file Altro.Mod") + fine});
    QCOMPARE(modello.NomeFile, QStringLiteral("Altro.Mod"));
}

void tst_FileModello::RestaQuantoLetto()
{
    QByteArray byte = FileModello::Componi(Vecchio(), Punto);
    byte.truncate(byte.indexOf("Cornice2"));
    ScriveFile(File(), byte);
    Modello modello;
    QCOMPARE(ErroreDi([&] { FileModello::Carica(modello, File()); }), 62);
    QCOMPARE(modello.Tipo, Vecchio().Tipo);
    QCOMPARE(modello.NumCampi, qint16(3));
    QVERIFY(modello.Campi == Vecchio().Campi);
    QVERIFY(modello.Cornici[1] == Vecchio().Cornici[1]);
    QCOMPARE(modello.NumImmagini, qint16(0));
}

void tst_FileModello::FileMancanteAzzeraIConti()
{
    Modello modello = Nuovo();
    QCOMPARE(ErroreDi([&] { FileModello::Carica(modello, In(QStringLiteral("manca"))); }), 53);
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        QCOMPARE(modello.Numero(genere), qint16(0));
    }
    // Slots above the count are not cleared.
    QVERIFY(modello.Campi == Nuovo().Campi);
}

void tst_FileModello::FileEnorme_data()
{
    QTest::addColumn<qint64>("dimensione");
    QTest::addColumn<int>("errore");

    // Sparse files: one line of zero bytes.
    QTest::newRow("100 MB") << qint64(100) * 1000 * 1000 << 7;
    QTest::newRow("1 TB") << (qint64(1) << 40) << 7;
    QTest::newRow("un byte di troppo") << FileModello::DimensioneMassima + 1 << 7;
    QTest::newRow("il massimo") << FileModello::DimensioneMassima << 62;
}

void tst_FileModello::FileEnorme()
{
    QFETCH(qint64, dimensione);
    QFETCH(int, errore);
    QVERIFY(QFile::resize(File(), 0));
    QVERIFY(QFile::resize(File(), dimensione));
    Modello modello;
    const TempoDiLavoro tempo;
    QCOMPARE(ErroreDi([&] { FileModello::Carica(modello, File()); }), errore);
    // Generous, for builds that check every access; refusing takes no time at all.
    QVERIFY2(tempo.Entro(errore == 7 ? 100 : 5'000),
             qPrintable(QString::number(tempo.MilliSecondi())));
}

void tst_FileModello::EnormeSiDiceTroppoGrande()
{
    QVERIFY(QFile::resize(File(), FileModello::DimensioneMassima + 1));
    QString detto;
    Modello modello;
    modello.NomeFile = QStringLiteral("Fattura.Mod");
    QVERIFY(
        !FileModello::LeggeModello(modello, File(), [&](const QString &testo) { detto = testo; }));
    QCOMPARE(detto, QStringLiteral("impossibile leggere file Fattura.Mod\n7\nFile troppo grande"));
}

void tst_FileModello::LimiteDiDimensione_data()
{
    QTest::addColumn<qint64>("limite");

    const qint64 dimensione = FileModello::Componi(Nuovo(), Punto).size();
    QVERIFY(dimensione > 16'384);
    QTest::newRow("0 byte") << qint64(0);
    QTest::newRow("4096 byte") << qint64(4096);
    QTest::newRow("16384 byte") << qint64(16'384);
    QTest::newRow("un byte in meno") << dimensione - 1;
}

void tst_FileModello::LimiteDiDimensione()
{
    QFETCH(qint64, limite);
    const QByteArray prima = ByteDi(File());
    int errore = 0;
    {
        const LimiteFile limiteFile(limite);
        errore = ErroreDi([&] { FileModello::Salva(Nuovo(), File(), Punto); });
    }
    QCOMPARE(errore, 61);
    QCOMPARE(ByteDi(File()), prima);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
    FileModello::Salva(Nuovo(), File(), Punto);
    QCOMPARE(ByteDi(File()), FileModello::Componi(Nuovo(), Punto));
}

void tst_FileModello::NonSiSalva_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<int>("errore");

    QTest::newRow("cartella sparita") << QStringLiteral("sparita/Fattura.Mod") << 76;
    QTest::newRow("cartella al posto del modello") << QStringLiteral("cartella.Mod") << 75;
}

void tst_FileModello::NonSiSalva()
{
    QFETCH(QString, nome);
    QFETCH(int, errore);
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("cartella.Mod")));
    QCOMPARE(ErroreDi([&] { FileModello::ScriveModello(Nuovo(), In(nome)); }), errore);
    QCOMPARE(NomiIn(cartella_->path()).size(), 2);
}

void tst_FileModello::CartellaDiSolaLettura()
{
    const QByteArray prima = ByteDi(File());
    const QByteArray cartella = QFile::encodeName(cartella_->path());
    QCOMPARE(chmod(cartella.constData(), 0555), 0);
    {
        const UtenteComune utente;
        QCOMPARE(ErroreDi([&] { FileModello::ScriveModello(Nuovo(), File()); }), 75);
    }
    QCOMPARE(chmod(cartella.constData(), 0755), 0);
    QCOMPARE(ByteDi(File()), prima);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_FileModello::FileDiSolaLettura()
{
    const QByteArray prima = ByteDi(File());
    QCOMPARE(chmod(QFile::encodeName(File()).constData(), 0444), 0);
    QCOMPARE(chmod(QFile::encodeName(cartella_->path()).constData(), 0777), 0);
    {
        const UtenteComune utente;
        QCOMPARE(ErroreDi([&] { FileModello::ScriveModello(Nuovo(), File()); }), 75);
    }
    QCOMPARE(ByteDi(File()), prima);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

void tst_FileModello::CollegamentoEPermessi()
{
    const QString collegamento = In(QStringLiteral("Collegamento.Mod"));
    QVERIFY(QFile::link(File(), collegamento));
    QCOMPARE(chmod(QFile::encodeName(File()).constData(), 0664), 0);
    FileModello::Salva(Nuovo(), collegamento, Punto);
    QVERIFY(QFileInfo(collegamento).isSymLink());
    QCOMPARE(ByteDi(File()), FileModello::Componi(Nuovo(), Punto));
    struct stat stato
    {
    };
    QCOMPARE(lstat(QFile::encodeName(File()).constData(), &stato), 0);
    QCOMPARE(int(stato.st_mode & 07777), 0664);
}

void tst_FileModello::CambiatoDaAltri()
{
    // Between load and save the model on the disk is nobody's: the last save wins, whole.
    Modello modello;
    FileModello::Carica(modello, File());
    ScriveFile(File(), QByteArray("altro"));
    FileModello::Salva(modello, File(), Punto);
    QCOMPARE(ByteDi(File()), FileModello::Componi(Vecchio(), Punto));
}

QTEST_GUILESS_MAIN(tst_FileModello)
#include "tst_FileModello.moc"
