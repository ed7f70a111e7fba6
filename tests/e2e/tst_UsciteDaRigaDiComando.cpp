#include "SenzaSchermo.h"
#include "support/FileDiProva.h"
#include "support/LettorePdf.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#include <unistd.h>

/// The files that the program without windows writes: over nothing that is needed, whole or not at
/// all.
class tst_UsciteDaRigaDiComando : public QObject, private SenzaSchermo
{
    Q_OBJECT

private slots:
    void init() { CopiaIlCampione(); }
    void pdfNonScrivibile();
    void anteprimaNonScrivibile();
    void modelloNonSovrascritto();
    void nonToccaLaCartellaDelModello();
    void nienteDiQuelCheServe_data();
    void nienteDiQuelCheServe();
    void collegamentoAppeso_data();
    void collegamentoAppeso();
    void dueUsciteInUnFile_data();
    void dueUsciteInUnFile();
    void discoPienoLasciaLeUsciteDiPrima_data();
    void discoPienoLasciaLeUsciteDiPrima();
    void sostituisceLUscitaDiPrima();
    void limiteDiDimensioneNonFinisceIlProgramma();
};

void tst_UsciteDaRigaDiComando::pdfNonScrivibile()
{
    const QString pdf = In(QStringLiteral("non/esiste/a.pdf"));
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.stato, 1);
    QCOMPARE(esito.errori,
             QStringLiteral("errore 76 impossibile scrivere %1: Impossibile trovare il "
                            "percorso\n")
                 .arg(In(QStringLiteral("non/esiste/a.pdf"))));
}

void tst_UsciteDaRigaDiComando::anteprimaNonScrivibile()
{
    const QString png = In(QStringLiteral("non/esiste/a.png"));
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--anteprima"), png});
    QCOMPARE(esito.stato, 1);
    QVERIFY2(esito.errori.contains(QStringLiteral("impossibile scrivere ") + png),
             qPrintable(esito.errori));
}

void tst_UsciteDaRigaDiComando::modelloNonSovrascritto()
{
    const auto byte = [this] {
        QFile file(Modello());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray prima = byte();
    for (const char *opzione : {"--pdf", "--anteprima"}) {
        const Esito esito = Esegue(
            {QStringLiteral("--modello"), Modello(), QString::fromLatin1(opzione), Modello()});
        QCOMPARE(esito.stato, 1);
        QVERIFY2(esito.errori.contains(QStringLiteral("il modello non può essere sovrascritto")),
                 qPrintable(esito.errori));
        QCOMPARE(byte(), prima);
    }
}

void tst_UsciteDaRigaDiComando::nonToccaLaCartellaDelModello()
{
    const QByteArray prima = ByteDi(Modello());
    const QStringList nomi = NomiIn(dir_->path());
    Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"),
            In(QStringLiteral("non/esiste/a.pdf")), QStringLiteral("--anteprima"),
            In(QStringLiteral("non/esiste/a.png"))});
    QCOMPARE(ByteDi(Modello()), prima);
    QCOMPARE(NomiIn(dir_->path()), nomi);
}

void tst_UsciteDaRigaDiComando::nienteDiQuelCheServe_data()
{
    QTest::addColumn<QString>("opzione");
    QTest::addColumn<QString>("uscita");
    QTest::addColumn<QString>("motivo");
    const QString modello = QStringLiteral("il modello non può essere sovrascritto");
    const QString immagine = QStringLiteral("un'immagine del modello non può essere sovrascritta");
    for (const char *opzione : {"--pdf", "--anteprima"}) {
        const auto riga = [&](const char *nome, const char *uscita, const QString &motivo) {
            QTest::addRow("%s, %s", nome, opzione)
                << QString::fromLatin1(opzione) << QString::fromLatin1(uscita) << motivo;
        };
        riga("hard link of the model", "duro.pdf", modello);
        riga("symbolic link to the model", "molle.pdf", modello);
        riga("another model", "Altro.Mod", modello);
        riga("another model, in capitals", "ALTRO2.MOD", modello);
        riga("symbolic link to another model", "molle2.pdf", modello);
        riga("model that is not there yet", "Nuovo.mod", modello);
        riga("picture", "LogoCascinalta.gif", immagine);
        riga("picture in another case", "logocascinalta.GIF", immagine);
        riga("hard link of a picture", "logo.pdf", immagine);
        riga("picture through a link to the folder", "qui/LogoCascinalta.gif", immagine);
        riga("scan", "scansione.png", immagine);
    }
}

void tst_UsciteDaRigaDiComando::nienteDiQuelCheServe()
{
    QFETCH(QString, opzione);
    QFETCH(QString, uscita);
    QFETCH(QString, motivo);
    QList<QByteArray> righe = ByteDi(Modello()).split('\n');
    righe[2] = QFile::encodeName(In(QStringLiteral("scansione.png"))) + '\r';
    ScriveFile(Modello(), righe.join('\n'));
    for (const char *nome : {"Altro.Mod", "ALTRO2.MOD", "scansione.png"}) {
        ScriveFile(In(QString::fromLatin1(nome)), nome);
    }
    const auto legaDuro = [this](const QString &a, const char *nome) {
        return link(QFile::encodeName(a).constData(),
                    QFile::encodeName(In(QString::fromLatin1(nome))).constData()) == 0;
    };
    QVERIFY(legaDuro(Modello(), "duro.pdf"));
    QVERIFY(legaDuro(In(QStringLiteral("LogoCascinalta.gif")), "logo.pdf"));
    QVERIFY(QFile::link(Modello(), In(QStringLiteral("molle.pdf"))));
    QVERIFY(QFile::link(In(QStringLiteral("Altro.Mod")), In(QStringLiteral("molle2.pdf"))));
    QVERIFY(QFile::link(dir_->path(), In(QStringLiteral("qui"))));
    const auto byteDiTutti = [this] {
        QList<QByteArray> byte;
        for (const QString &nome : NomiIn(dir_->path())) {
            if (nome != QLatin1String("qui")) {
                byte.append(nome.toUtf8() + ByteDi(In(nome)));
            }
        }
        return byte;
    };
    const QList<QByteArray> prima = byteDiTutti();
    const Esito esito = Esegue({QStringLiteral("--modello"), Modello(), opzione, In(uscita)});
    QCOMPARE(esito.errori, QStringLiteral("errore 75 %1: %2\n").arg(motivo, In(uscita)));
    QCOMPARE(esito.stato, 1);
    QCOMPARE(byteDiTutti(), prima);
}

void tst_UsciteDaRigaDiComando::collegamentoAppeso_data()
{
    QTest::addColumn<QStringList>("catena"); // of symbolic links, from the output on
    QTest::addColumn<QString>("motivo");     // empty: written where the links lead
    const QString modello = QStringLiteral("il modello non può essere sovrascritto");
    const auto riga = [](const char *nome, const char *catena, const QString &motivo) {
        QTest::newRow(nome) << QString::fromLatin1(catena).split(u' ') << motivo;
    };
    riga("model", "a.pdf nuovo.Mod", modello);
    riga("model behind another link", "a.pdf b nuovo.mod", modello);
    riga("link that bears a model's name", "a.pdf nuovo.MOD altrove", modello);
    riga("picture", "a.pdf sparita.png",
         QStringLiteral("un'immagine del modello non può essere sovrascritta"));
    riga("nothing that is needed", "a.pdf b c.pdf", QString());
}

void tst_UsciteDaRigaDiComando::collegamentoAppeso()
{
    QFETCH(QStringList, catena);
    QFETCH(QString, motivo);
    QList<QByteArray> righe = ByteDi(Modello()).split('\n');
    righe[2] = QFile::encodeName(In(QStringLiteral("sparita.png"))) + '\r';
    righe[4] = "0\r"; // not shown: no message of it
    ScriveFile(Modello(), righe.join('\n'));
    for (qsizetype i = 1; i < catena.size(); ++i) {
        QVERIFY(QFile::link(In(catena[i]), In(catena[i - 1])));
    }
    const QString uscita = In(catena.constFirst());
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"), uscita});
    QCOMPARE(esito.errori, motivo.isEmpty()
                               ? QString()
                               : QStringLiteral("errore 75 %1: %2\n").arg(motivo, uscita));
    QCOMPARE(QFile::exists(In(catena.constLast())), motivo.isEmpty());
}

void tst_UsciteDaRigaDiComando::dueUsciteInUnFile_data()
{
    QTest::addColumn<QString>("pdf");
    QTest::addColumn<QString>("png");
    QTest::newRow("one name") << QStringLiteral("a.pdf") << QStringLiteral("a.pdf");
    QTest::newRow("one file, two names") << QStringLiteral("b.pdf") << QStringLiteral("b.png");
    QTest::newRow("through a link to the folder")
        << QStringLiteral("a.pdf") << QStringLiteral("qui/a.pdf");
    QTest::newRow("names that differ by case")
        << QStringLiteral("a.pdf") << QStringLiteral("A.PDF");
    QTest::newRow("through a link to a file that is not there")
        << QStringLiteral("a.pdf") << QStringLiteral("appesa.png");
}

void tst_UsciteDaRigaDiComando::dueUsciteInUnFile()
{
    QFETCH(QString, pdf);
    QFETCH(QString, png);
    ScriveFile(In(QStringLiteral("b.pdf")), "di prima");
    QCOMPARE(link(QFile::encodeName(In(QStringLiteral("b.pdf"))).constData(),
                  QFile::encodeName(In(QStringLiteral("b.png"))).constData()),
             0);
    QVERIFY(QFile::link(dir_->path(), In(QStringLiteral("qui"))));
    QVERIFY(QFile::link(In(QStringLiteral("a.pdf")), In(QStringLiteral("appesa.png"))));
    const QStringList prima = NomiIn(dir_->path());
    const Esito esito = Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"),
                                In(pdf), QStringLiteral("--anteprima"), In(png)});
    QCOMPARE(esito.errori,
             QStringLiteral("errore 75 due uscite nello stesso file: %1\n").arg(In(png)));
    QCOMPARE(esito.stato, 1);
    QCOMPARE(NomiIn(dir_->path()), prima);
    QCOMPARE(ByteDi(In(QStringLiteral("b.pdf"))), QByteArray("di prima"));
}

void tst_UsciteDaRigaDiComando::discoPienoLasciaLeUsciteDiPrima_data()
{
    QTest::addColumn<QString>("opzione");
    QTest::addColumn<qint64>("byte");
    for (const char *opzione : {"--pdf", "--anteprima"}) {
        for (const qint64 byte : {qint64(0), qint64(2000)}) {
            QTest::addRow("%s, %lld byte", opzione, byte) << QString::fromLatin1(opzione) << byte;
        }
    }
}

void tst_UsciteDaRigaDiComando::discoPienoLasciaLeUsciteDiPrima()
{
    QFETCH(QString, opzione);
    QFETCH(qint64, byte);
    const QString uscita = In(QStringLiteral("uscita"));
    ScriveFile(uscita, "di prima");
    Esito esito{};
    {
        const LimiteFile limite(byte);
        esito = Esegue({QStringLiteral("--modello"), Modello(), opzione, uscita});
    }
    QCOMPARE(esito.stato, 1);
    QVERIFY2(esito.errori.contains(QStringLiteral("impossibile scrivere ") + uscita + u':'),
             qPrintable(esito.errori));
    QCOMPARE(ByteDi(uscita), QByteArray("di prima"));
    QVERIFY2(NomiIn(dir_->path()).filter(QStringLiteral(".plakera-")).isEmpty(), "nothing is left");
}

void tst_UsciteDaRigaDiComando::sostituisceLUscitaDiPrima()
{
    // An older print that its user has kept to himself.
    const QString pdf = In(QStringLiteral("foglio.pdf"));
    ScriveFile(pdf, "di prima");
    QVERIFY(QFile::setPermissions(pdf, QFile::ReadOwner | QFile::WriteOwner));
    const QFile::Permissions permessi = QFile::permissions(pdf);
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.errori, QString());
    QCOMPARE(esito.stato, 0);
    QCOMPARE(LettorePdf(pdf).Pagine(), 1);
    QCOMPARE(QFile::permissions(pdf), permessi);
}

void tst_UsciteDaRigaDiComando::limiteDiDimensioneNonFinisceIlProgramma()
{
    QProcess programma;
    programma.setProcessEnvironment(Ambiente());
    programma.start(QStringLiteral("/bin/sh"),
                    {QStringLiteral("-c"), QStringLiteral("ulimit -f 2; exec \"$0\" \"$@\""),
                     QStringLiteral(PROGRAMMA), QStringLiteral("--modello"), Modello(),
                     QStringLiteral("--anteprima"), In(QStringLiteral("a.png"))});
    QVERIFY(programma.waitForFinished(60'000));
    QVERIFY2(programma.exitStatus() == QProcess::NormalExit, "ended by the system's signal");
    QCOMPARE(programma.exitCode(), 1);
    QCOMPARE(QString::fromUtf8(programma.readAllStandardError()),
             QStringLiteral("errore 61 impossibile scrivere %1: Disco pieno\n")
                 .arg(In(QStringLiteral("a.png"))));
    QVERIFY(!QFile::exists(In(QStringLiteral("a.png"))));
}

QTEST_GUILESS_MAIN(tst_UsciteDaRigaDiComando)
#include "tst_UsciteDaRigaDiComando.moc"
