#include "model/FileModello.h"
#include "support/FileDiProva.h"
#include "support/LettorePdf.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTest>

#include <unistd.h>

/// The program without windows, where there is no display at all.
class tst_RigaDiComando : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aiuto();
    void versione();
    void stampaInPdf();
    void stampaConINomi();
    void stampaComeLEditor();
    void anteprima();
    void pdfEAnteprimaInsieme();
    void modelloMancante();
    void modelloTroppoCorto();
    void immagineMancante();
    void pdfNonScrivibile();
    void anteprimaNonScrivibile();
    void modelloNonSovrascritto();
    void finestreSenzaSchermo();
    void finestreSuUnoSchermoCheNonRisponde_data();
    void finestreSuUnoSchermoCheNonRisponde();
    void finestreSenzaSchermoReale_data();
    void finestreSenzaSchermoReale();
    void opzioniSbagliate_data();
    void opzioniSbagliate();
    void nonToccaLaCartellaDelModello();
    void nienteDiQuelCheServe_data();
    void nienteDiQuelCheServe();
    void dueUsciteInUnFile_data();
    void dueUsciteInUnFile();
    void discoPienoLasciaLeUsciteDiPrima_data();
    void discoPienoLasciaLeUsciteDiPrima();
    void sostituisceLUscitaDiPrima();
    void limiteDiDimensioneNonFinisceIlProgramma();

private:
    struct Esito
    {
        int stato;
        QString uscita;
        QString errori;
    };
    /// Where there is no display; assegnazione ("NAME=value") sets one more variable.
    QProcessEnvironment Ambiente(const QString &assegnazione = {}) const;
    Esito Esegue(const QStringList &argomenti, const QString &assegnazione = {}) const;
    QString In(const QString &nome) const { return dir_->filePath(nome); }
    QString Modello() const { return In(QStringLiteral("Fattura_Rossi.Mod")); }

    std::unique_ptr<QTemporaryDir> dir_;
};

void tst_RigaDiComando::init()
{
    dir_ = std::make_unique<QTemporaryDir>();
    const QDir campione(QStringLiteral(CARTELLA_CAMPIONE "/Contabilita/ini"));
    for (const char *nome : {"Fattura_Rossi.Mod", "LogoCascinalta.gif"}) {
        QVERIFY(QFile::copy(campione.filePath(QString::fromLatin1(nome)),
                            In(QString::fromLatin1(nome))));
    }
}

QProcessEnvironment tst_RigaDiComando::Ambiente(const QString &assegnazione) const
{
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    for (const char *nome : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"}) {
        ambiente.remove(QString::fromLatin1(nome));
    }
    ambiente.insert(QStringLiteral("HOME"), dir_->path());
    ambiente.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir_->path());
    ambiente.insert(QStringLiteral("XDG_STATE_HOME"), In(QStringLiteral("stato")));
    ambiente.insert(QStringLiteral("XDG_CONFIG_HOME"), In(QStringLiteral("impostazioni")));
    ambiente.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    if (!assegnazione.isEmpty()) {
        ambiente.insert(assegnazione.section(u'=', 0, 0), assegnazione.section(u'=', 1));
    }
    return ambiente;
}

tst_RigaDiComando::Esito tst_RigaDiComando::Esegue(const QStringList &argomenti,
                                                   const QString &assegnazione) const
{
    QProcess programma;
    programma.setProcessEnvironment(Ambiente(assegnazione));
    programma.start(QStringLiteral(PROGRAMMA), argomenti);
    if (!programma.waitForFinished(60'000) || programma.exitStatus() != QProcess::NormalExit) {
        return {-1, {}, programma.errorString()};
    }
    return {programma.exitCode(), QString::fromUtf8(programma.readAllStandardOutput()),
            QString::fromUtf8(programma.readAllStandardError())};
}

void tst_RigaDiComando::aiuto()
{
    const Esito esito = Esegue({QStringLiteral("--help")});
    QCOMPARE(esito.stato, 0);
    QCOMPARE(esito.errori, QString());
    QVERIFY(esito.uscita.contains(QStringLiteral("Opzioni:")));
    for (const char *opzione : {"--help", "--version", "--dati <cartella>", "--modello <file>",
                                "--pdf <file>", "--anteprima <file>", "--nomi"}) {
        QVERIFY2(esito.uscita.contains(QString::fromLatin1(opzione)), opzione);
    }
    QVERIFY(esito.uscita.contains(QStringLiteral("Modello da stampare senza aprire finestre.")));
}

void tst_RigaDiComando::versione()
{
    const Esito esito = Esegue({QStringLiteral("--version")});
    QCOMPARE(esito.stato, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^plakera \\d+\\.\\d+\\.\\d+\n$"))
                .match(esito.uscita)
                .hasMatch());
}

void tst_RigaDiComando::stampaInPdf()
{
    const QString pdf = In(QStringLiteral("foglio.pdf"));
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.errori, QString());
    QCOMPARE(esito.stato, 0);
    const LettorePdf foglio(pdf);
    QCOMPARE(foglio.Pagine(), 1);
    QCOMPARE(foglio.Immagini(), 1);
    // The document's number at 104, 44 mm, without a margin.
    const QRectF numero = foglio.Parola1(QStringLiteral("128/A"));
    QVERIFY(std::abs(numero.left() - 104) < 0.1);
    QVERIFY(std::abs(foglio.Foglio().width() - 210) < 0.2);
}

void tst_RigaDiComando::stampaConINomi()
{
    const QString pdf = In(QStringLiteral("foglio.pdf"));
    const Esito esito = Esegue({QStringLiteral("--nomi"), QStringLiteral("--modello"), Modello(),
                                QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.stato, 0);
    const LettorePdf foglio(pdf);
    QVERIFY(foglio.Testi().contains(QStringLiteral("Doc_Numero")));
    QVERIFY(!foglio.Testi().contains(QStringLiteral("128/A")));
}

void tst_RigaDiComando::stampaComeLEditor()
{
    // The editor moves a row field to the rows' start and everything else to whole millimetres.
    ::Modello modello;
    modello.Righe.yInizio = 95.3;
    const auto campo = [&](const char *nome, double x, double y) {
        Campo &nuovo = modello.Campi[modello.AggiungeCampo(x, y)];
        nuovo.Nome = QString::fromLatin1(nome);
        nuovo.Testo = nuovo.Nome;
    };
    campo("R_Qta", 20, 231.7);
    campo("Totale", 30.5, 40.49);
    Cornice &cornice = modello.Cornici[modello.AggiungeCornice(50.5, 150.4, 1, 1)];
    cornice.Testo.clear();
    cornice.Larghezza = 40.5;
    cornice.Altezza = 20.6;
    const QString file = In(QStringLiteral("Frazioni.Mod"));
    FileModello::ScriveModello(modello, file);

    const QString pdf = In(QStringLiteral("foglio.pdf"));
    const Esito esito = Esegue({QStringLiteral("--modello"), file, QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.errori, QString());
    const LettorePdf foglio(pdf);
    const auto vicini = [](double a, double b) { return std::abs(a - b) < 0.1; };
    const QRectF riga = foglio.Parola1(QStringLiteral("R_Qta"));
    const QRectF totale = foglio.Parola1(QStringLiteral("Totale"));
    QVERIFY(vicini(riga.left(), 20) && vicini(totale.left(), 31));
    QVERIFY2(vicini(riga.top() - totale.top(), 95.3 - 40), qPrintable(QString::number(riga.top())));
    const QRectF quadro = foglio.Inchiostro(QRectF(45, 140, 60, 40));
    QVERIFY(vicini(quadro.left(), 51) && vicini(quadro.top(), 150));
    QVERIFY(vicini(quadro.width(), 41.3) && vicini(quadro.height(), 21.3));
}

void tst_RigaDiComando::anteprima()
{
    const QString png = In(QStringLiteral("anteprima.png"));
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--anteprima"), png});
    QCOMPARE(esito.errori, QString());
    QCOMPARE(esito.stato, 0);
    const QImage figura(png);
    // The whole sheet, 240 x 350 mm.
    QVERIFY(std::abs(figura.height() * 240.0 / figura.width() - 350) < 1);
    // The blue of the logo's corner, 10, 7 mm.
    const double pixel = figura.width() / 240.0;
    const QColor logo(figura.pixel(int(12 * pixel), int(9 * pixel)));
    QVERIFY2(logo.blue() > logo.red() + 40, qPrintable(logo.name()));
}

void tst_RigaDiComando::pdfEAnteprimaInsieme()
{
    const Esito esito = Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"),
                                In(QStringLiteral("a.pdf")), QStringLiteral("--anteprima"),
                                In(QStringLiteral("a.png"))});
    QCOMPARE(esito.stato, 0);
    QVERIFY(QFile::exists(In(QStringLiteral("a.pdf"))));
    QVERIFY(QFile::exists(In(QStringLiteral("a.png"))));
}

void tst_RigaDiComando::modelloMancante()
{
    const QString pdf = In(QStringLiteral("a.pdf"));
    const Esito esito = Esegue({QStringLiteral("--modello"), In(QStringLiteral("Manca.Mod")),
                                QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.stato, 1);
    QCOMPARE(esito.uscita, QString());
    QVERIFY2(esito.errori.startsWith(QStringLiteral("impossibile leggere file Manca.Mod 53 ")),
             qPrintable(esito.errori));
    QVERIFY(!QFile::exists(pdf));
}

void tst_RigaDiComando::modelloTroppoCorto()
{
    ScriveFile(Modello(), "Fattura\r\n\r\n");
    const Esito esito = Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"),
                                In(QStringLiteral("a.pdf"))});
    QCOMPARE(esito.stato, 1);
    QVERIFY2(
        esito.errori.startsWith(QStringLiteral("impossibile leggere file Fattura_Rossi.Mod 62 ")),
        qPrintable(esito.errori));
}

void tst_RigaDiComando::immagineMancante()
{
    QVERIFY(QFile::remove(In(QStringLiteral("LogoCascinalta.gif"))));
    const QString pdf = In(QStringLiteral("a.pdf"));
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"), pdf});
    QCOMPARE(esito.stato, 1);
    QVERIFY2(esito.errori.startsWith(QStringLiteral("StampaImmagine: ")) &&
                 esito.errori.contains(QStringLiteral("ERRORE 53")),
             qPrintable(esito.errori));
    // The rest of the sheet is printed all the same.
    QVERIFY(LettorePdf(pdf).Testi().contains(QStringLiteral("128/A")));
}

void tst_RigaDiComando::pdfNonScrivibile()
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

void tst_RigaDiComando::anteprimaNonScrivibile()
{
    const QString png = In(QStringLiteral("non/esiste/a.png"));
    const Esito esito =
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--anteprima"), png});
    QCOMPARE(esito.stato, 1);
    QVERIFY2(esito.errori.contains(QStringLiteral("impossibile scrivere ") + png),
             qPrintable(esito.errori));
}

void tst_RigaDiComando::modelloNonSovrascritto()
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

void tst_RigaDiComando::finestreSenzaSchermo()
{
    const Esito esito = Esegue({QStringLiteral("--dati"), dir_->path()});
    QCOMPARE(esito.stato, 1);
    QCOMPARE(esito.errori,
             QStringLiteral("plakera: nessuno schermo; per stampare senza finestre vedi --help\n"));
}

void tst_RigaDiComando::finestreSuUnoSchermoCheNonRisponde_data()
{
    QTest::addColumn<QString>("assegnazione");
    QTest::newRow("display that nobody serves") << QStringLiteral("DISPLAY=:987");
    QTest::newRow("display on a port that nobody serves")
        << QStringLiteral("DISPLAY=127.0.0.1:987");
    QTest::newRow("display that is no name of one") << QStringLiteral("DISPLAY=schermo");
    QTest::newRow("compositor that is not there") << QStringLiteral("WAYLAND_DISPLAY=manca");
    QTest::newRow("window system without its display") << QStringLiteral("QT_QPA_PLATFORM=xcb");
    QTest::newRow("window system that Qt does not know")
        << QStringLiteral("QT_QPA_PLATFORM=inesistente");
}

void tst_RigaDiComando::finestreSuUnoSchermoCheNonRisponde()
{
    QFETCH(QString, assegnazione);
    const Esito esito = Esegue({QStringLiteral("--dati"), dir_->path()}, assegnazione);
    QCOMPARE(esito.stato, 1);
    // After what the window system itself says of the reason.
    QVERIFY2(esito.errori.endsWith(QStringLiteral(
                 "plakera: nessuno schermo; per stampare senza finestre vedi --help\n")),
             qPrintable(esito.errori));
    // The program without windows does not care.
    const QString pdf = In(QStringLiteral("foglio.pdf"));
    QCOMPARE(
        Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"), pdf}, assegnazione)
            .stato,
        0);
    QCOMPARE(LettorePdf(pdf).Pagine(), 1);
}

void tst_RigaDiComando::finestreSenzaSchermoReale_data()
{
    QTest::addColumn<QString>("assegnazione");
    QTest::newRow("offscreen") << QStringLiteral("QT_QPA_PLATFORM=offscreen");
    QTest::newRow("minimal") << QStringLiteral("QT_QPA_PLATFORM=minimal");
}

void tst_RigaDiComando::finestreSenzaSchermoReale()
{
    // The start window needs no display on a window system that has none.
    QFETCH(QString, assegnazione);
    QProcess programma;
    programma.setProcessEnvironment(Ambiente(assegnazione));
    programma.start(QStringLiteral(PROGRAMMA), {QStringLiteral("--dati"), dir_->path()});
    QVERIFY(programma.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(In(QStringLiteral("plakera.lock"))) ||
                                 programma.state() == QProcess::NotRunning,
                             30'000);
    QCOMPARE(programma.state(), QProcess::Running);
    programma.kill();
    QVERIFY(programma.waitForFinished());
}

void tst_RigaDiComando::opzioniSbagliate_data()
{
    QTest::addColumn<QStringList>("argomenti");
    QTest::addColumn<QString>("errore");
    const auto riga = [](const char *nome, const char *argomenti, const char *errore) {
        QTest::newRow(nome) << QString::fromUtf8(argomenti).split(u' ')
                            << QStringLiteral("plakera: ") + QString::fromUtf8(errore) + u'\n';
    };
    riga("pdf without a model", "--pdf a.pdf", "--pdf e --anteprima vogliono un --modello");
    riga("picture without a model", "--anteprima a.png",
         "--pdf e --anteprima vogliono un --modello");
    riga("model without an output", "--modello a.Mod", "--modello vuole --pdf o --anteprima");
    riga("names of nothing", "--nomi", "--nomi vuole --pdf");
    riga("names on a picture", "--modello a.Mod --anteprima a.png --nomi", "--nomi vuole --pdf");
    riga("unknown option", "--stampa", "Opzione sconosciuta 'stampa'.");
    riga("stray argument", "Fattura.Mod", "argomento inatteso: Fattura.Mod");
}

void tst_RigaDiComando::opzioniSbagliate()
{
    QFETCH(QStringList, argomenti);
    QFETCH(QString, errore);
    const Esito esito = Esegue(argomenti);
    QCOMPARE(esito.errori, errore);
    QCOMPARE(esito.uscita, QString());
    QCOMPARE(esito.stato, 1);
}

void tst_RigaDiComando::nonToccaLaCartellaDelModello()
{
    const QByteArray prima = ByteDi(Modello());
    const QStringList nomi = NomiIn(dir_->path());
    Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"),
            In(QStringLiteral("non/esiste/a.pdf")), QStringLiteral("--anteprima"),
            In(QStringLiteral("non/esiste/a.png"))});
    QCOMPARE(ByteDi(Modello()), prima);
    QCOMPARE(NomiIn(dir_->path()), nomi);
}

void tst_RigaDiComando::nienteDiQuelCheServe_data()
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

void tst_RigaDiComando::nienteDiQuelCheServe()
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

void tst_RigaDiComando::dueUsciteInUnFile_data()
{
    QTest::addColumn<QString>("pdf");
    QTest::addColumn<QString>("png");
    QTest::newRow("one name") << QStringLiteral("a.pdf") << QStringLiteral("a.pdf");
    QTest::newRow("one file, two names") << QStringLiteral("b.pdf") << QStringLiteral("b.png");
    QTest::newRow("through a link to the folder")
        << QStringLiteral("a.pdf") << QStringLiteral("qui/a.pdf");
    QTest::newRow("names that differ by case")
        << QStringLiteral("a.pdf") << QStringLiteral("A.PDF");
}

void tst_RigaDiComando::dueUsciteInUnFile()
{
    QFETCH(QString, pdf);
    QFETCH(QString, png);
    ScriveFile(In(QStringLiteral("b.pdf")), "di prima");
    QCOMPARE(link(QFile::encodeName(In(QStringLiteral("b.pdf"))).constData(),
                  QFile::encodeName(In(QStringLiteral("b.png"))).constData()),
             0);
    QVERIFY(QFile::link(dir_->path(), In(QStringLiteral("qui"))));
    const QStringList prima = NomiIn(dir_->path());
    const Esito esito = Esegue({QStringLiteral("--modello"), Modello(), QStringLiteral("--pdf"),
                                In(pdf), QStringLiteral("--anteprima"), In(png)});
    QCOMPARE(esito.errori,
             QStringLiteral("errore 75 due uscite nello stesso file: %1\n").arg(In(png)));
    QCOMPARE(esito.stato, 1);
    QCOMPARE(NomiIn(dir_->path()), prima);
    QCOMPARE(ByteDi(In(QStringLiteral("b.pdf"))), QByteArray("di prima"));
}

void tst_RigaDiComando::discoPienoLasciaLeUsciteDiPrima_data()
{
    QTest::addColumn<QString>("opzione");
    QTest::addColumn<qint64>("byte");
    for (const char *opzione : {"--pdf", "--anteprima"}) {
        for (const qint64 byte : {qint64(0), qint64(2000)}) {
            QTest::addRow("%s, %lld byte", opzione, byte) << QString::fromLatin1(opzione) << byte;
        }
    }
}

void tst_RigaDiComando::discoPienoLasciaLeUsciteDiPrima()
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

void tst_RigaDiComando::sostituisceLUscitaDiPrima()
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

void tst_RigaDiComando::limiteDiDimensioneNonFinisceIlProgramma()
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

QTEST_GUILESS_MAIN(tst_RigaDiComando)
#include "tst_RigaDiComando.moc"
