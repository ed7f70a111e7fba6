#include "finestre/Finestre.h"
#include "finestre/Sfoglia.h"
#include "model/Modello.h"
#include "sistema/PercorsoNellaCartella.h"
#include "support/Controlli.h"
#include "support/FileDiProva.h"
#include "support/Permessi.h"
#include "support/Robot.h"
#include "support/Tempi.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

using Controlli::Trova;

/// The browser on real folders: <temporary folder>/scansioni with three files and two sub-folders.
class tst_Sfoglia : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void Testi();
    void PercorsoNellaCartella_data();
    void PercorsoNellaCartella();
    void Attivazione();
    void Attivazione_altreMaiuscole();
    void Attivazione_fileAssente();
    void Attivazione_senzaBarra();
    void Attivazione_cartellaScomparsa();
    void Attivazione_nomeVuoto();
    void Attivazione_cartellaDiPartenza_data();
    void Attivazione_cartellaDiPartenza();
    void CartellaInVista();
    void Ok_dopoUnaScelta();
    void Ok_senzaScelta();
    void DoppioClicSulFile();
    void Invio_sulFile();
    void ChiudiDopoUnaScelta();
    void RiquadroDiChiusura();
    void Esc();
    void RiattivataDopoLaConferma();
    void Cartelle_antenatiESottocartelle();
    void Cartelle_doppioClic();
    void Cartelle_invioNonConferma();
    void Cartelle_ritorno();
    void Cartella_illeggibile();
    void Drive_radice();
    void Drive_nonDisponibile();
    void Drive_fileNellaRadice();
    void Drive_laRotellaNonLoCambia();
    void SceltaDaTastiera();
    void DiecimilaFile();
    void GuidaNonAssegnata();

private:
    QString In(const QString &nome) const
    {
        return QDir::toNativeSeparators(cartella_->filePath(nome));
    }
    static QListView *File(const Sfoglia &s) { return Trova<QListView>(s, "File1"); }
    static QTreeWidget *Dir(const Sfoglia &s) { return Trova<QTreeWidget>(s, "Dir1"); }
    static QComboBox *Drive(const Sfoglia &s) { return Trova<QComboBox>(s, "Drive1"); }
    static QString Etichetta(const Sfoglia &s, const char *nome)
    {
        return Trova<QLabel>(s, nome)->text();
    }
    static QStringList NomiFile(const Sfoglia &s);
    static QString FileScelto(const Sfoglia &s);
    static void ScegliFile(const Sfoglia &s, int riga);
    static void DoppioClic(QAbstractItemView *elenco, const QModelIndex &voce);
    void Mostra(Sfoglia &s, const QString &file) const;

    std::unique_ptr<QTemporaryDir> cartella_;
};

void tst_Sfoglia::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(cartella_->path()).mkpath(QStringLiteral("scansioni/Vecchie")));
    QVERIFY(QDir(cartella_->path()).mkpath(QStringLiteral("scansioni/bozze")));
    for (const char *nome : {"b.jpg", "A.bmp", "c.gif"}) {
        ScriveFile(In(QStringLiteral("scansioni/") + QString::fromLatin1(nome)), "x");
    }
    RisultatoSfoglia() = QStringLiteral("di prima");
}

void tst_Sfoglia::Mostra(Sfoglia &s, const QString &file) const
{
    s.FileEntrata()->setText(file);
    s.show();
    QVERIFY(QTest::qWaitForWindowExposed(&s));
}

QStringList tst_Sfoglia::NomiFile(const Sfoglia &s)
{
    QStringList nomi;
    const QAbstractItemModel *modello = File(s)->model();
    for (int i = 0; i < modello->rowCount(); ++i) {
        nomi.append(modello->index(i, 0).data().toString());
    }
    return nomi;
}

QString tst_Sfoglia::FileScelto(const Sfoglia &s)
{
    return File(s)->selectionModel()->selectedIndexes().value(0).data().toString();
}

void tst_Sfoglia::ScegliFile(const Sfoglia &s, int riga)
{
    QListView *elenco = File(s);
    const QModelIndex voce = elenco->model()->index(riga, 0);
    QTest::mouseClick(elenco->viewport(), Qt::LeftButton, Qt::NoModifier,
                      elenco->visualRect(voce).center());
}

void tst_Sfoglia::DoppioClic(QAbstractItemView *elenco, const QModelIndex &voce)
{
    elenco->scrollTo(voce);
    const QPoint punto = elenco->visualRect(voce).center();
    QTest::mouseClick(elenco->viewport(), Qt::LeftButton, Qt::NoModifier, punto);
    QTest::mouseDClick(elenco->viewport(), Qt::LeftButton, Qt::NoModifier, punto);
}

void tst_Sfoglia::Testi()
{
    const Sfoglia s;
    QCOMPARE(s.objectName(), QStringLiteral("Sfoglia"));
    QCOMPARE(s.windowTitle(), QStringLiteral("Sfoglia"));
    for (const char *nome : {"FileEntrata", "Percorso", "NomeFile"}) {
        QCOMPARE(Etichetta(s, nome), QString::fromLatin1(nome));
    }
    QCOMPARE(Trova<QPushButton>(s, "Command8")->text(), QStringLiteral("OK"));
    QCOMPARE(Trova<QPushButton>(s, "Command7")->text().remove(u'&'), QStringLiteral("Chiudi"));
    QVERIFY(Trova<QWidget>(s, "Frame2")->isAncestorOf(File(s)));
}

void tst_Sfoglia::PercorsoNellaCartella_data()
{
    QTest::addColumn<QStringList>("radici");
    QTest::addColumn<QString>("cartella");
    QTest::addColumn<QString>("separatore");
    QTest::addColumn<QString>("percorso");
    const QStringList lettere{QStringLiteral("a:"), QStringLiteral("c:")};
    const QStringList volumi{QStringLiteral("/"), QStringLiteral("/media/usb")};
    const QString inversa = QStringLiteral("\\");
    const QString diretta = QStringLiteral("/");
    const auto riga = [](const char *titolo, const QStringList &radici, const char *cartella,
                         const QString &separatore, const char *percorso) {
        QTest::newRow(titolo) << radici << QString::fromLatin1(cartella) << separatore
                              << QString::fromLatin1(percorso);
    };
    riga("radice di un drive", lettere, "c:\\", inversa, "c:\\x.jpg");
    riga("cartella di un drive", lettere, "c:\\dati", inversa, "c:\\dati\\x.jpg");
    riga("radice di un drive non elencato", lettere, "d:\\", inversa, "d:\\\\x.jpg");
    riga("radice", volumi, "/", diretta, "/x.jpg");
    riga("cartella", volumi, "/home/anna", diretta, "/home/anna/x.jpg");
    riga("volume montato", volumi, "/media/usb", diretta, "/media/usb/x.jpg");
}

void tst_Sfoglia::PercorsoNellaCartella()
{
    QFETCH(QStringList, radici);
    QFETCH(QString, cartella);
    QFETCH(QString, separatore);
    QTEST(::PercorsoNellaCartella(radici, cartella, QStringLiteral("x.jpg"), separatore),
          "percorso");
}

void tst_Sfoglia::Attivazione()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    QCOMPARE(Etichetta(s, "Percorso"), In(QStringLiteral("scansioni")) + QDir::separator());
    QCOMPARE(Etichetta(s, "NomeFile"), QStringLiteral("b.jpg"));
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    QCOMPARE(NomiFile(s), (QStringList{QStringLiteral("A.bmp"), QStringLiteral("b.jpg"),
                                       QStringLiteral("c.gif")}));
    QCOMPARE(FileScelto(s), QStringLiteral("b.jpg"));
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/b.jpg")));
}

void tst_Sfoglia::Attivazione_altreMaiuscole()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("SCANSIONI\\B.JPG")));
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    QCOMPARE(FileScelto(s), QStringLiteral("b.jpg"));
}

void tst_Sfoglia::Attivazione_fileAssente()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/manca.jpg")));
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    QCOMPARE(FileScelto(s), QString());
    QCOMPARE(RisultatoSfoglia(), QStringLiteral("di prima"));
}

void tst_Sfoglia::Attivazione_senzaBarra()
{
    Sfoglia s;
    Mostra(s, QStringLiteral("b.jpg"));
    QCOMPARE(Etichetta(s, "Percorso"), QStringLiteral("b.jpg"));
    QCOMPARE(Etichetta(s, "NomeFile"), QStringLiteral("b.jpg"));
    QCOMPARE(s.CartellaAperta(), QDir::toNativeSeparators(QDir::homePath()));
    s.reject();
    QCOMPARE(RisultatoSfoglia(), QStringLiteral("b.jpg"));
}

void tst_Sfoglia::Attivazione_cartellaScomparsa()
{
    const Robot robot;
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/tolta/ancora/b.jpg")));
    QVERIFY2(robot.Soddisfatto(), "no message");
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
}

void tst_Sfoglia::Attivazione_nomeVuoto()
{
    Sfoglia s;
    Mostra(s, QString());
    QCOMPARE(s.CartellaAperta(), QDir::toNativeSeparators(QDir::homePath()));
    s.accept();
    QCOMPARE(RisultatoSfoglia(), QString());
}

void tst_Sfoglia::Attivazione_cartellaDiPartenza_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("partenza");
    QTest::addColumn<QString>("aperta");
    const auto riga = [](const char *titolo, const char *file, const char *partenza,
                         const char *aperta) {
        QTest::newRow(titolo) << QString::fromLatin1(file) << QString::fromLatin1(partenza)
                              << QString::fromLatin1(aperta);
    };
    riga("nessun file", "", "scansioni/", "scansioni");
    riga("nome senza cartella", "b.jpg", "scansioni/", "scansioni");
    riga("partenza scomparsa", "", "scansioni/tolta/", "scansioni");
    riga("file con la sua cartella", "scansioni/bozze/x.jpg", "scansioni/", "scansioni/bozze");
}

void tst_Sfoglia::Attivazione_cartellaDiPartenza()
{
    QFETCH(QString, file);
    QFETCH(QString, partenza);
    QFETCH(QString, aperta);
    Sfoglia s;
    s.ImpostaPartenza(In(partenza));
    const QString entrata = file.contains(u'/') ? In(file) : file;
    Mostra(s, entrata);
    QCOMPARE(s.CartellaAperta(), In(aperta));
    QCOMPARE(Etichetta(s, "CartellaInVista"), In(aperta));
    // What was handed in is shown as it came.
    QCOMPARE(Etichetta(s, "FileEntrata"), entrata);
    QCOMPARE(Etichetta(s, "Percorso"),
             file.contains(u'/') ? In(QStringLiteral("scansioni/bozze/")) : file);
    s.reject();
    QCOMPARE(RisultatoSfoglia(), entrata);
}

void tst_Sfoglia::CartellaInVista()
{
    Sfoglia s;
    const QString entrata = In(QStringLiteral("scansioni/b.jpg"));
    Mostra(s, entrata);
    QCOMPARE(Etichetta(s, "CartellaInVista"), In(QStringLiteral("scansioni")));
    QVERIFY(Trova<QLabel>(s, "CartellaInVista")->isVisible());
    QTreeWidget *dir = Dir(s);
    DoppioClic(dir, dir->model()->index(0, 0, dir->currentIndex()));
    QCOMPARE(Etichetta(s, "CartellaInVista"), In(QStringLiteral("scansioni/bozze")));
    QTest::keyClick(Drive(s), Qt::Key_Home);
    Drive(s)->setCurrentIndex(-1);
    QTest::keyClick(Drive(s), Qt::Key_Home);
    QCOMPARE(Etichetta(s, "CartellaInVista"), s.CartellaAperta());
    QVERIFY(QFileInfo(Etichetta(s, "CartellaInVista")).isRoot());
    // One that cannot be opened leaves it where it was.
    Drive(s)->addItem(In(QStringLiteral("dischetto assente")));
    Robot robot;
    robot.Ok();
    QTest::keyClick(Drive(s), Qt::Key_End);
    QVERIFY(robot.Soddisfatto());
    QVERIFY(QFileInfo(Etichetta(s, "CartellaInVista")).isRoot());
    QCOMPARE(Etichetta(s, "Percorso"), In(QStringLiteral("scansioni")) + QDir::separator());
    QCOMPARE(Etichetta(s, "NomeFile"), QStringLiteral("b.jpg"));
}

void tst_Sfoglia::Ok_dopoUnaScelta()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    ScegliFile(s, 2);
    Controlli::Preme(s, "Command8");
    QCOMPARE(s.result(), static_cast<int>(QDialog::Accepted));
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/c.gif")));
}

void tst_Sfoglia::Ok_senzaScelta()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/manca.jpg")));
    Controlli::Preme(s, "Command8");
    QVERIFY(!s.isVisible());
    QCOMPARE(RisultatoSfoglia(), QStringLiteral("di prima"));
}

void tst_Sfoglia::DoppioClicSulFile()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    DoppioClic(File(s), File(s)->model()->index(0, 0));
    QVERIFY(!s.isVisible());
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/A.bmp")));
}

void tst_Sfoglia::Invio_sulFile()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    QTest::keyClick(File(s), Qt::Key_Down);
    QTest::keyClick(File(s), Qt::Key_Return);
    QVERIFY(!s.isVisible());
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/c.gif")));
}

void tst_Sfoglia::ChiudiDopoUnaScelta()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    ScegliFile(s, 2);
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/c.gif")));
    Controlli::Preme(s, "Command7");
    QVERIFY(!s.isVisible());
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/b.jpg")));
}

void tst_Sfoglia::RiquadroDiChiusura()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    ScegliFile(s, 2);
    s.close();
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/b.jpg")));
}

void tst_Sfoglia::Esc()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    ScegliFile(s, 2);
    QTest::keyClick(File(s), Qt::Key_Escape);
    QVERIFY(!s.isVisible());
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/b.jpg")));
}

void tst_Sfoglia::RiattivataDopoLaConferma()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    Controlli::Preme(s, "Command8");
    Mostra(s, In(QStringLiteral("scansioni/A.bmp")));
    ScegliFile(s, 2);
    s.close();
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/A.bmp")));
}

void tst_Sfoglia::Cartelle_antenatiESottocartelle()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    QTreeWidgetItem *aperta = Dir(s)->currentItem();
    QCOMPARE(aperta->text(0), QStringLiteral("scansioni"));
    QCOMPARE(aperta->childCount(), 2);
    QCOMPARE(aperta->child(0)->text(0), QStringLiteral("bozze"));
    QCOMPARE(aperta->child(1)->text(0), QStringLiteral("Vecchie"));
    QCOMPARE(aperta->parent()->text(0), QDir(cartella_->path()).dirName());
    QCOMPARE(Dir(s)->topLevelItemCount(), 1);
    QVERIFY(QFileInfo(Dir(s)->topLevelItem(0)->text(0)).isRoot());
}

void tst_Sfoglia::Cartelle_doppioClic()
{
    ScriveFile(In(QStringLiteral("scansioni/Vecchie/x.jpg")), "x");
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    QTreeWidget *dir = Dir(s);
    const QModelIndex vecchie = dir->model()->index(1, 0, dir->currentIndex());
    QTest::mouseClick(dir->viewport(), Qt::LeftButton, Qt::NoModifier,
                      dir->visualRect(vecchie).center());
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    DoppioClic(dir, vecchie);
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni/Vecchie")));
    QCOMPARE(NomiFile(s), QStringList{QStringLiteral("x.jpg")});
    QCOMPARE(FileScelto(s), QString());
    DoppioClic(dir, dir->currentIndex().parent());
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
}

void tst_Sfoglia::Cartelle_invioNonConferma()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/manca.jpg")));
    QTreeWidget *dir = Dir(s);
    QApplication::setActiveWindow(&s);
    QTRY_VERIFY(dir->hasFocus());
    QTest::keyClick(dir, Qt::Key_Down);
    QTest::keyClick(dir, Qt::Key_Return);
    QVERIFY(s.isVisible());
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni/bozze")));
}

void tst_Sfoglia::Cartelle_ritorno()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/manca.jpg")));
    QApplication::setActiveWindow(&s);
    QTRY_VERIFY(Dir(s)->hasFocus());
    QTest::keyClick(Dir(s), Qt::Key_Backspace);
    QCOMPARE(s.CartellaAperta(), QDir::toNativeSeparators(cartella_->path()));
}

void tst_Sfoglia::Cartella_illeggibile()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    const QString chiusa = In(QStringLiteral("scansioni/bozze"));
    QVERIFY(QFile::setPermissions(cartella_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(chiusa, Permessi::Nessuno));
    QTreeWidget *dir = Dir(s);
    Robot robot;
    robot.Ok();
    {
        const UtenteComune utente;
        DoppioClic(dir, dir->model()->index(0, 0, dir->currentIndex()));
    }
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("drive non disponibile")});
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    QCOMPARE(NomiFile(s).size(), 3);
    QCOMPARE(FileScelto(s), QStringLiteral("b.jpg"));
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void tst_Sfoglia::Drive_radice()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    QComboBox *drive = Drive(s);
    QVERIFY(drive->count() >= 1);
    QTest::keyClick(drive, Qt::Key_Home);
    drive->setCurrentIndex(-1);
    QTest::keyClick(drive, Qt::Key_Home);
    QVERIFY(QFileInfo(s.CartellaAperta()).isRoot());
    QVERIFY(s.isVisible());
}

void tst_Sfoglia::Drive_nonDisponibile()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    QComboBox *drive = Drive(s);
    const QString prima = drive->currentText();
    drive->addItem(In(QStringLiteral("dischetto assente")));
    Robot robot;
    robot.Ok();
    QTest::keyClick(drive, Qt::Key_End);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("drive non disponibile")});
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    QCOMPARE(NomiFile(s).size(), 3);
    QCOMPARE(drive->currentText(), prima);
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void tst_Sfoglia::Drive_fileNellaRadice()
{
    const QString radice = QDir::toNativeSeparators(QDir::rootPath());
    const QStringList file = QDir(radice).entryList(QDir::Files);
    if (file.isEmpty()) {
        QSKIP("no file lies in the root of this machine");
    }
    Sfoglia s;
    Mostra(s, radice + file.first());
    QCOMPARE(s.CartellaAperta(), radice);
    QCOMPARE(RisultatoSfoglia(), radice + file.first());
}

void tst_Sfoglia::Drive_laRotellaNonLoCambia()
{
    Sfoglia s;
    s.show();
    Drive(s)->addItem(QStringLiteral("un altro"));
    const int scelto = Drive(s)->currentIndex();
    QVERIFY2(!Controlli::GiraRotella(Drive(s), -1), "taken by the list");
    QVERIFY(!Controlli::GiraRotella(Drive(s), 1));
    QCOMPARE(Drive(s)->currentIndex(), scelto);
}

void tst_Sfoglia::SceltaDaTastiera()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/A.bmp")));
    QTest::keyClick(File(s), 'c');
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/c.gif")));
    QTest::keyClick(File(s), Qt::Key_Up);
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/b.jpg")));
}

void tst_Sfoglia::DiecimilaFile()
{
    constexpr int Molti = 10000;
    for (int i = 0; i < Molti; ++i) {
        QFile file(In(QStringLiteral("scansioni/bozze/scan%1.jpg").arg(i)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    Sfoglia s;
    const TempoDiLavoro orologio;
    Mostra(s, In(QStringLiteral("scansioni/bozze/scan9999.jpg")));
    QCOMPARE(NomiFile(s).size(), Molti);
    QCOMPARE(FileScelto(s), QStringLiteral("scan9999.jpg"));
    QVERIFY2(orologio.Entro(2000), qPrintable(QString::number(orologio.MilliSecondi())));
}

void tst_Sfoglia::GuidaNonAssegnata()
{
    // Not even through the window that opens the browser.
    QWidget editor;
    ImpostaHelp(&editor);
    const Sfoglia s(&editor);
    QVERIFY(!File(s)->property(ProprietaGuida).isValid());
    QCOMPARE(ArgomentoDi(File(s)), 0);
    QCOMPARE(ArgomentoDi(&s), 0);
}

QTEST_MAIN(tst_Sfoglia)
#include "tst_Sfoglia.moc"
