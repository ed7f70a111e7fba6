#include "SenzaSchermo.h"
#include "model/FileModello.h"
#include "support/CodaDiStampa.h"
#include "support/FileDiProva.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

namespace {

const auto Controlla = QStringLiteral("--controlla");
/// No print system, whatever this machine prints on.
const auto SenzaStampe = QStringLiteral("CUPS_SERVER=/nessuno/cups.sock");

} // namespace

/// Models checked on the command line, where there is no display at all.
class tst_ControlloDaRiga : public QObject, private SenzaSchermo
{
    Q_OBJECT
private slots:
    void init() { CopiaIlCampione(); }
    void NessunRilievo();
    void UnaRigaPerRilievo();
    void PiuFile();
    void UnFileIllegibileNonFermaGliAltri();
    void UnNomeVuotoSiDiceUnaVoltaSola();
    void TuttiIModelliDiUnaCartella();
    void LaCartellaDiUnArchivio();
    void CartellaSenzaModelli();
    void IlNomeInAltreMaiuscole();
    void CampoFuoriRigaNelFile();
    void ControllareNonScrive();
    void LaCartaDellaStampante();
    void UnaStampanteMutaNonFaAspettare();
    void RigheNonConsegnate();
    void OpzioniSbagliate_data();
    void OpzioniSbagliate();

private:
    /// A sick copy of the model: its mask is too short for its test text.
    QString Malato(const QString &nome) const
    {
        ::Modello modello;
        FileModello::Carica(modello, Modello());
        modello.Campi[9].Maschera = QStringLiteral("$");
        FileModello::Salva(modello, In(nome), QLocale::c());
        return In(nome);
    }
};

void tst_ControlloDaRiga::NessunRilievo()
{
    const Esito esito = Esegue({Controlla, Modello()}, SenzaStampe);
    QCOMPARE(esito.errori, QString());
    QCOMPARE(esito.uscita, QString());
    QCOMPARE(esito.stato, 0);
}

void tst_ControlloDaRiga::UnaRigaPerRilievo()
{
    const QString malato = Malato(QStringLiteral("Città.Mod"));
    QVERIFY(QFile::remove(In(QStringLiteral("LogoCascinalta.gif"))));
    const Esito esito = Esegue({Controlla, malato}, SenzaStampe);
    QCOMPARE(esito.errori, QString());
    QCOMPARE(esito.stato, 1);
    const QStringList righe = esito.uscita.split(u'\n');
    QCOMPARE(righe.size(), 3);
    QCOMPARE(righe[0], malato + QStringLiteral(": campo Doc_Numero: il testo di prova ha più "
                                               "caratteri (5) della maschera (1), e il dato vero "
                                               "sulla carta esce diverso dalla prova: correggere "
                                               "il testo o la maschera."));
    QVERIFY(righe[1].startsWith(malato +
                                QStringLiteral(": immagine LogoCascinalta.gif: il file manca ")));
    QCOMPARE(righe[2], QString());
}

void tst_ControlloDaRiga::PiuFile()
{
    const QString malato = Malato(QStringLiteral("Malato.Mod"));
    const QString altro = Malato(QStringLiteral("Altro.Mod"));
    // The option may stand anywhere among the files.
    const Esito esito = Esegue({malato, Controlla, Modello(), altro}, SenzaStampe);
    QCOMPARE(esito.stato, 1);
    const QStringList righe = esito.uscita.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(righe.size(), 2);
    QVERIFY(righe[0].startsWith(malato) && righe[1].startsWith(altro));
}

void tst_ControlloDaRiga::UnFileIllegibileNonFermaGliAltri()
{
    ScriveFile(In(QStringLiteral("Corto.Mod")), "Fattura\r\n");
    const QString malato = Malato(QStringLiteral("Malato.Mod"));
    const Esito esito = Esegue(
        {Controlla, In(QStringLiteral("Manca.Mod")), In(QStringLiteral("Corto.Mod")), malato},
        SenzaStampe);
    QCOMPARE(esito.stato, 2);
    QVERIFY2(esito.errori.contains(QStringLiteral("impossibile leggere file Manca.Mod 53 ")) &&
                 esito.errori.contains(QStringLiteral("impossibile leggere file Corto.Mod 62 ")),
             qPrintable(esito.errori));
    QVERIFY(esito.uscita.startsWith(malato));
}

void tst_ControlloDaRiga::UnNomeVuotoSiDiceUnaVoltaSola()
{
    const Esito esito = Esegue({Controlla, QString()}, SenzaStampe);
    QCOMPARE(esito.stato, 2);
    QCOMPARE(esito.uscita, QString());
    QVERIFY2(esito.errori.startsWith(QStringLiteral("impossibile leggere file")) &&
                 esito.errori.count(u'\n') == 1,
             qPrintable(esito.errori));
}

void tst_ControlloDaRiga::TuttiIModelliDiUnaCartella()
{
    Malato(QStringLiteral("a.mod"));
    Malato(QStringLiteral("B.MOD"));
    ScriveFile(In(QStringLiteral("note.txt")), "niente");
    const Esito esito = Esegue({Controlla, dir_->path()}, SenzaStampe);
    QCOMPARE(esito.errori, QString());
    QCOMPARE(esito.stato, 1);
    const QStringList righe = esito.uscita.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(righe.size(), 2);
    QVERIFY(righe[0].startsWith(In(QStringLiteral("a.mod: "))) &&
            righe[1].startsWith(In(QStringLiteral("B.MOD: "))));
    // Named with the separator at its end the paths are the same.
    QCOMPARE(Esegue({Controlla, dir_->path() + u'/'}, SenzaStampe).uscita, esito.uscita);
}

void tst_ControlloDaRiga::LaCartellaDiUnArchivio()
{
    for (const char *archivio : {"Contabilita", "Archivio_2026"}) {
        const Esito esito = Esegue(
            {Controlla, QStringLiteral(CARTELLA_CAMPIONE "/") + QString::fromLatin1(archivio)},
            SenzaStampe);
        QCOMPARE(esito.errori, QString());
        QCOMPARE(esito.uscita, QString());
        QCOMPARE(esito.stato, 0);
    }
}

void tst_ControlloDaRiga::CartellaSenzaModelli()
{
    QVERIFY(QDir(dir_->path()).mkdir(QStringLiteral("vuota")));
    const Esito esito = Esegue({Controlla, In(QStringLiteral("vuota"))}, SenzaStampe);
    QCOMPARE(esito.stato, 2);
    QVERIFY2(esito.errori.contains(QStringLiteral("nessun modello in ")), qPrintable(esito.errori));
}

void tst_ControlloDaRiga::IlNomeInAltreMaiuscole()
{
    const Esito esito = Esegue({Controlla, In(QStringLiteral("fattura_rossi.mod"))}, SenzaStampe);
    QCOMPARE(esito.errori, QString());
    QCOMPARE(esito.stato, 0);
}

void tst_ControlloDaRiga::CampoFuoriRigaNelFile()
{
    ::Modello modello;
    FileModello::Carica(modello, Modello());
    for (int i = 1; i <= modello.NumCampi; ++i) {
        if (modello.Campi[i].Nome == QStringLiteral("R_Qta")) {
            modello.Campi[i].Y = 97;
        }
    }
    FileModello::Salva(modello, Modello(), QLocale::c());
    const Esito esito = Esegue({Controlla, Modello()}, SenzaStampe);
    QCOMPARE(esito.stato, 1);
    QVERIFY2(esito.uscita.contains(QStringLiteral(": campo R_Qta: nel file sta a Y 97 mm ")),
             qPrintable(esito.uscita));
}

void tst_ControlloDaRiga::ControllareNonScrive()
{
    Malato(QStringLiteral("Malato.Mod"));
    const QStringList prima = NomiIn(dir_->path());
    const QByteArray byte = ByteDi(Modello());
    QCOMPARE(Esegue({Controlla, dir_->path()}, SenzaStampe).stato, 1);
    QCOMPARE(NomiIn(dir_->path()), prima);
    QCOMPARE(ByteDi(Modello()), byte);
}

void tst_ControlloDaRiga::LaCartaDellaStampante()
{
    if (!CodaDiStampa::Installata()) {
        QSKIP("no print server is installed");
    }
    CodaDiStampa coda;
    coda.Aggiunge(QStringLiteral("Piccola"), {}, {QStringLiteral("PageSize=A5")});
    coda.Predefinita(QStringLiteral("Piccola"));
    const QString stampe = QStringLiteral("CUPS_SERVER=") + coda.Server();
    const Esito esito = Esegue({Controlla, Modello()}, stampe);
    QCOMPARE(esito.stato, 1);
    QVERIFY2(esito.uscita.contains(QStringLiteral(
                 "campo Totale: è fuori dalla carta della stampante e non si stampa")),
             qPrintable(esito.uscita));
    coda.Aggiunge(QStringLiteral("Grande"), {});
    coda.Predefinita(QStringLiteral("Grande"));
    QCOMPARE(Esegue({Controlla, Modello()}, stampe).uscita, QString());
}

void tst_ControlloDaRiga::UnaStampanteMutaNonFaAspettare()
{
    if (!CodaDiStampa::Installata()) {
        QSKIP("no print server is installed");
    }
    CodaDiStampa coda;
    coda.Aggiunge(QStringLiteral("Muta"), {});
    coda.Predefinita(QStringLiteral("Muta"));
    coda.SiBlocca();
    QElapsedTimer tempo;
    tempo.start();
    const Esito esito =
        Esegue({Controlla, Modello()}, QStringLiteral("CUPS_SERVER=") + coda.Server());
    coda.Riprende();
    QCOMPARE(esito.errori, QString());
    QCOMPARE(esito.stato, 0);
    QVERIFY2(tempo.elapsed() < 3000, qPrintable(QString::number(tempo.elapsed())));
}

void tst_ControlloDaRiga::RigheNonConsegnate()
{
    // Findings that cannot be written are no "none".
    QProcess programma;
    programma.setProcessEnvironment(Ambiente(SenzaStampe));
    programma.setStandardOutputFile(QStringLiteral("/dev/full"));
    programma.start(QStringLiteral(PROGRAMMA), {Controlla, Malato(QStringLiteral("a.Mod"))});
    QVERIFY(programma.waitForFinished(60'000));
    QCOMPARE(programma.exitCode(), 2);
    QVERIFY(QString::fromUtf8(programma.readAllStandardError()).startsWith(u"errore 61 "));
}

void tst_ControlloDaRiga::OpzioniSbagliate_data()
{
    QTest::addColumn<QStringList>("argomenti");
    QTest::addColumn<QString>("errore");
    const auto riga = [](const char *nome, const char *argomenti, const char *errore) {
        QTest::newRow(nome) << QString::fromUtf8(argomenti).split(u' ')
                            << QStringLiteral("plakera: ") + QString::fromUtf8(errore) + u'\n';
    };
    riga("nothing to check", "--controlla", "--controlla vuole almeno un modello o una cartella");
    riga("with a print", "--controlla a.Mod --modello b.Mod --pdf c.pdf",
         "--controlla non va con le altre opzioni");
    riga("with a data folder", "--controlla a.Mod --dati cartella",
         "--controlla non va con le altre opzioni");
    riga("unknown option", "--controlla --stampa", "Opzione sconosciuta 'stampa'.");
}

void tst_ControlloDaRiga::OpzioniSbagliate()
{
    QFETCH(QStringList, argomenti);
    QFETCH(QString, errore);
    const Esito esito = Esegue(argomenti);
    QCOMPARE(esito.errori, errore);
    QCOMPARE(esito.uscita, QString());
    QCOMPARE(esito.stato, 2); // 1 would mean findings
}

QTEST_GUILESS_MAIN(tst_ControlloDaRiga)
#include "tst_ControlloDaRiga.moc"
