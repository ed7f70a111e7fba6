#include "StoriaDiProva.h"

#include "editor/AttesaDiStampa.h"
#include "finestre/Finestre.h"
#include "print/Avanzamento.h"
#include "support/LettorePdf.h"
#include "support/Rettangoli.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QTreeView>

namespace {

const auto Domanda = QStringLiteral("stampo il 'NOME' dei campi invece del 'TESTO DI PROVA'");
const auto SenzaStampante =
    QStringLiteral("errore 482 Nessuna stampante predefinita è impostata.\nSceglierne una nelle "
                   "impostazioni del sistema, alla voce Stampanti, e ripetere.");

#ifdef Q_OS_WIN // as the system's own windows have it
constexpr const char *TipoDiCartella = "Cartella di file";
#else
constexpr const char *TipoDiCartella = "Cartella";
#endif

/// An editor, and a folder for the files that it writes.
class Prova : public StoriaDiProva
{
public:
    QString Striscia() const { return Trova<QLabel>(Anteprima(), "Text1")->text(); }
    QString In(const QString &nome) const
    {
        return QDir::toNativeSeparators(cartella_.filePath(nome));
    }
    void Esporta() const { Bottone("EsportaPdf")->click(); }
    /// What the command line, and the printer, would put on the same page.
    LettorePdf Atteso(bool StampaNome = false) const
    {
        const QString pdf = In(QStringLiteral("atteso.pdf"));
        StampaModello(Aperto(), Archivio.Stato().CartellaModelli, *Stampanti::SuPdf(pdf),
                      StampaNome, [](const QString &) {});
        return LettorePdf(pdf);
    }

private:
    QTemporaryDir cartella_;
};

/// Writes a name into the window that asks for one, and saves.
std::function<void(QDialog *)> Salva(const QString &nome)
{
    return [nome](QDialog *finestra) {
        auto *casella = finestra->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (casella == nullptr) {
            qFatal("no box for a name");
        }
        casella->setText(nome);
        QTest::keyClick(casella, Qt::Key_Return);
    };
}

QByteArray Byte(const QString &percorso)
{
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool StesseParole(const LettorePdf &uno, const LettorePdf &altro)
{
    return uno.Parole().size() == altro.Parole().size() && !uno.Parole().isEmpty() &&
           std::equal(uno.Parole().begin(), uno.Parole().end(), altro.Parole().begin(),
                      [](const auto &a, const auto &b) {
                          return a.Testo == b.Testo && Vicini(a.Millimetri, b.Millimetri, 0.01);
                      });
}

} // namespace

/// The keys and buttons that put the model on paper or into a PDF, where there is no printer.
class tst_ComandiStampa : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void ctrlPChiedeComeIlBottone_data();
    void ctrlPChiedeComeIlBottone();
    void ilPdfEQuelloDellaStampa();
    void ilPdfProponeIlNomeDelModello();
    void cartellaRicordataTraIModelli();
    void sostituisceSoloSeSiVuole();
    void maiUnModello_data();
    void maiUnModello();
    void cartellaNonScrivibile_data();
    void cartellaNonScrivibile();
    void cartellaSparitaQuellaSopra();
    void laFinestraDeiFileParlaItaliano();
    void rinunciaAlNome();
    void unaLungaAttesaSiAnnulla();
    void unaBreveAttesaNonSiVede();
};

void tst_ComandiStampa::initTestCase()
{
    qputenv("CUPS_SERVER", "/nessuno/cups.sock"); // whatever this machine prints on
    ImpostaLingua();                              // as the program does
}

void tst_ComandiStampa::ctrlPChiedeComeIlBottone_data()
{
    QTest::addColumn<bool>("dallAnteprima");
    QTest::newRow("in the editor") << false;
    QTest::newRow("in the preview") << true;
}

void tst_ComandiStampa::ctrlPChiedeComeIlBottone()
{
    QFETCH(bool, dallAnteprima);
    const Prova prova;
    Robot robot;
    robot.No().Ok();
    prova.Tasto(dallAnteprima ? static_cast<QWidget &>(prova.Anteprima()) : *prova.Editor,
                Qt::Key_P, Qt::ControlModifier);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), (QStringList{Domanda, SenzaStampante}));
    QCOMPARE(prova.Striscia(), QString());
    QVERIFY(!prova.Archivio.Stato().documento.Variato());
}

void tst_ComandiStampa::ilPdfEQuelloDellaStampa()
{
    const Prova prova;
    Robot robot;
    const QString file = prova.In(QStringLiteral("uscita.pdf"));
    // The one picture of the model has no file: told as while printing, and the rest is there.
    robot.Agisce(Salva(file)).Ok();
    prova.Tasto(prova.Anteprima(), Qt::Key_E, Qt::ControlModifier);
    QVERIFY(robot.Soddisfatto());
    QVERIFY(robot.Testi().constLast().startsWith(QStringLiteral("StampaImmagine: ")));
    const LettorePdf pdf(file);
    QCOMPARE(pdf.Pagine(), 1);
    QVERIFY(Vicini(pdf.Foglio().width(), 210) && Vicini(pdf.Foglio().height(), 297));
    QVERIFY(StesseParole(pdf, prova.Atteso()));
    QVERIFY(pdf.Pixel() == prova.Atteso().Pixel());
    QCOMPARE(prova.Striscia(),
             QStringLiteral("Esportato in %1 (A4 senza margini: nessuna stampante)").arg(file));
    QVERIFY(!prova.Archivio.Stato().documento.Variato());
}

void tst_ComandiStampa::ilPdfProponeIlNomeDelModello()
{
    const Prova prova;
    Robot robot;
    QString proposto;
    robot.Agisce([&](QDialog *finestra) {
        proposto = finestra->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text();
        finestra->reject();
    });
    prova.Esporta();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(proposto, QStringLiteral("Prova.pdf"));
}

void tst_ComandiStampa::cartellaRicordataTraIModelli()
{
    Prova prova;
    Robot robot;
    robot.Agisce(Salva(prova.In(QStringLiteral("uno")))).Ok();
    prova.Esporta();
    QVERIFY(QFile::exists(prova.In(QStringLiteral("uno.pdf"))));
    // The next editor of the same run begins there.
    prova.Archivio.Stato().documento.Salvato();
    Form2 altro(prova.Archivio.Stato());
    QVERIFY(altro.Form_Load());
    QString cartella;
    robot.Agisce([&](QDialog *finestra) {
        cartella = static_cast<QFileDialog *>(finestra)->directory().path();
        finestra->reject();
    });
    ::Preme(altro, "EsportaPdf");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(cartella, QFileInfo(prova.In(QStringLiteral("uno"))).path());
}

void tst_ComandiStampa::sostituisceSoloSeSiVuole()
{
    const Prova prova;
    const QString file = prova.In(QStringLiteral("vecchio.pdf"));
    ImmaginiDiProva::Scrive(file, "quello di prima");
    Robot robot;
    // No asks for another name; Escape gives the whole up.
    robot.Agisce(Salva(file)).No().Annulla();
    prova.Esporta();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().at(1), QStringLiteral("vecchio.pdf esiste già\nLO VUOI SOSTITUIRE?"));
    QCOMPARE(robot.Predefiniti().at(1), QStringLiteral("&No"));
    QCOMPARE(Byte(file), QByteArray("quello di prima"));
    QCOMPARE(prova.Striscia(), QString());
    robot.Agisce(Salva(file)).Si().Ok();
    prova.Esporta();
    QVERIFY(robot.Soddisfatto());
    QVERIFY(StesseParole(LettorePdf(file), prova.Atteso()));
}

void tst_ComandiStampa::maiUnModello_data()
{
    QTest::addColumn<QString>("nome");
    QTest::newRow("the open one") << QStringLiteral("Prova.Mod");
    QTest::newRow("in another spelling") << QStringLiteral("PROVA.MOD");
    QTest::newRow("a new one") << QStringLiteral("Altro.mod");
}

void tst_ComandiStampa::maiUnModello()
{
    QFETCH(QString, nome);
    const Prova prova;
    const QByteArray prima = prova.Archivio.ByteDelFile();
    const QString file = prova.Archivio.Stato().CartellaModelli + nome;
    const bool esiste = QFile::exists(file);
    Robot robot;
    robot.Agisce(Salva(file));
    if (esiste) {
        robot.Si();
    }
    robot.Ok();
    prova.Esporta();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constLast(),
             QStringLiteral("errore 75 il modello non può essere sovrascritto: ") + file);
    QCOMPARE(prova.Archivio.ByteDelFile(), prima);
    QCOMPARE(QFile::exists(file), esiste);
}

void tst_ComandiStampa::cartellaNonScrivibile_data()
{
    // Refused to the administrator too.
    QTest::addColumn<QString>("cartella");
#ifndef Q_OS_WIN
    QTest::newRow("a folder of the system's") << QStringLiteral("/proc");
#endif
    QTest::newRow("a file in its place") << QStringLiteral("%MODELLO");
}

void tst_ComandiStampa::cartellaNonScrivibile()
{
    QFETCH(QString, cartella);
    const Prova prova;
    const QString uscita = cartella.replace(QStringLiteral("%MODELLO"), prova.Archivio.Percorso()) +
                           QDir::separator() + QStringLiteral("uscita.pdf");
    Robot robot;
    robot.Agisce(Salva(uscita)).Ok();
    prova.Esporta();
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(
        robot.Testi().constLast().contains(QStringLiteral("impossibile scrivere %1: ").arg(uscita)),
        qPrintable(robot.Testi().constLast()));
    QCOMPARE(prova.Striscia(), QString());
}

void tst_ComandiStampa::cartellaSparitaQuellaSopra()
{
    Prova prova;
    prova.Archivio.Stato().CartellaEsportazione = prova.In(QStringLiteral("sparita/anche questa"));
    Robot robot;
    QString cartella;
    robot.Agisce([&](QDialog *finestra) {
        cartella = static_cast<QFileDialog *>(finestra)->directory().path();
        finestra->reject();
    });
    prova.Esporta();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(cartella, QFileInfo(prova.In(QStringLiteral("x"))).path());
}

void tst_ComandiStampa::laFinestraDeiFileParlaItaliano()
{
    Prova prova;
    QVERIFY(QDir(prova.In({})).mkdir(QStringLiteral("sotto")));
    ImmaginiDiProva::Scrive(prova.In(QStringLiteral("uno.pdf")), "abc");
    ImmaginiDiProva::Scrive(prova.In(QStringLiteral("due")), QByteArray(3000, 'x'));
    prova.Archivio.Stato().CartellaEsportazione = prova.In({});
    Robot robot;
    QStringList testi;
    QHash<QString, QStringList> righe;
    QStringList date;
    robot.Agisce([&](QDialog *finestra) {
        auto *elenco = Trova<QTreeView>(*finestra, "treeView");
        static_cast<QFileDialog *>(finestra)->setNameFilter(QStringLiteral("Tutti i file (*)"));
        const QAbstractItemModel *file = elenco->model();
        QTRY_COMPARE(file->rowCount(elenco->rootIndex()), 3);
        const auto cella = [&](int riga, int colonna) {
            return file->index(riga, colonna, elenco->rootIndex()).data().toString();
        };
        for (int riga = 0; riga < 3; ++riga) {
            QTRY_VERIFY(!cella(riga, 2).isEmpty());
            righe[cella(riga, 0)] = {cella(riga, 1), cella(riga, 2)};
            date.append(cella(riga, 3));
        }
        for (int colonna = 0; colonna < file->columnCount(); ++colonna) {
            testi.append(file->headerData(colonna, Qt::Horizontal).toString());
        }
        for (const auto *bottone : finestra->findChildren<QAbstractButton *>()) {
            testi << bottone->text().remove(u'&') << bottone->toolTip()
                  << bottone->accessibleName();
        }
        for (const auto *etichetta : finestra->findChildren<QLabel *>()) {
            testi.append(etichetta->text().remove(u'&'));
        }
        for (const auto *comando : finestra->findChildren<QAction *>()) {
            testi.append(comando->text().remove(u'&'));
        }
        finestra->reject();
    });
    prova.Esporta();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(righe.value(QStringLiteral("sotto")),
             (QStringList{QString(), QLatin1String(TipoDiCartella)}));
    QCOMPARE(righe.value(QStringLiteral("uno.pdf")),
             (QStringList{QStringLiteral("3 byte"), QStringLiteral("File PDF")}));
    QCOMPARE(righe.value(QStringLiteral("due")),
             (QStringList{QStringLiteral("2,9 kB"), QStringLiteral("File")}));
    const QRegularExpression numeri(QStringLiteral("^\\d\\d/\\d\\d/\\d\\d \\d\\d:\\d\\d$"));
    for (const QString &data : std::as_const(date)) {
        QVERIFY2(numeri.match(data).hasMatch(), qPrintable(data));
    }
    for (const char *testo : {"Nome", "Dimensione", "Tipo", "Data di modifica", "Salva", "Annulla",
                              "Indietro", "Cartella superiore", "Crea nuova cartella", "Cerca in:",
                              "Nome del file:", "Tipo di file:", "Rinomina", "Elimina"}) {
        QVERIFY2(testi.contains(QString::fromUtf8(testo)), testo);
    }
    const QRegularExpression inglese(
        QStringLiteral("\\b(name|file type|size|type|date|folder|cancel|save|open|back|parent|"
                       "show|delete|rename|look|forward|view|list|new)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    for (const QString &testo : std::as_const(testi)) {
        QVERIFY2(!inglese.match(testo).hasMatch(), qPrintable(testo));
    }
}

void tst_ComandiStampa::rinunciaAlNome()
{
    const Prova prova;
    Robot robot;
    robot.Annulla();
    prova.Esporta();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Striscia(), QString());
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
}

void tst_ComandiStampa::unaLungaAttesaSiAnnulla()
{
    QWidget finestra;
    finestra.show();
    Robot robot;
    robot.AgisceSuAttesa([](QDialog *attesa) {
        QCOMPARE(attesa->findChild<QLabel *>()->text(), QStringLiteral("Si aspetta"));
        Trova<QProgressDialog>(*attesa->parentWidget(), "AttesaDiStampa")
            ->findChild<QPushButton *>()
            ->click();
    });
    AttesaDiStampa attesa(&finestra, QStringLiteral("Si aspetta"), 0);
    const auto aspetta = [&] {
        for (QDeadlineTimer fine(5000); !fine.hasExpired();) {
            attesa.Avanza(0.5);
        }
    };
    QVERIFY_EXCEPTION_THROWN(aspetta(), StampaAnnullata);
    QVERIFY(robot.Soddisfatto());
}

void tst_ComandiStampa::unaBreveAttesaNonSiVede()
{
    QWidget finestra;
    AttesaDiStampa attesa(&finestra, QStringLiteral("Si aspetta"));
    attesa.Avanza(0);
    attesa.Avanza(0.9);
    QVERIFY(finestra.findChild<QProgressDialog *>() == nullptr);
}

QTEST_MAIN(tst_ComandiStampa)
#include "tst_ComandiStampa.moc"
