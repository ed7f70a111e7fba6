#include "SfogliaDiProva.h"
#include "sistema/PercorsoNellaCartella.h"
#include "support/Controlli.h"
#include "support/FileDiProva.h"
#include "support/Permessi.h"
#include "support/Robot.h"
#include "support/Tempi.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <QTreeWidget>

using Controlli::Trova;

/// Going through folders and drives with the browser.
class tst_SfogliaCartelle : public QObject, private SfogliaDiProva
{
    Q_OBJECT

private slots:
    void init() { Prepara(); }
    void PercorsoNellaCartella_data();
    void PercorsoNellaCartella();
    void CartellaInVista();
    void Cartelle_antenatiESottocartelle();
    void Cartelle_doppioClic();
    void Cartelle_invioNonConferma();
    void Cartelle_ritorno();
    void Cartella_illeggibile();
    void PuntatoreOccupatoMentreElenca();
    void Drive_radice();
    void Drive_nonDisponibile();
    void Drive_fileNellaRadice();
    void Drive_laRotellaNonLoCambia();
    void SceltaDaTastiera();
    void DiecimilaFile();
};

void tst_SfogliaCartelle::PercorsoNellaCartella_data()
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

void tst_SfogliaCartelle::PercorsoNellaCartella()
{
    QFETCH(QStringList, radici);
    QFETCH(QString, cartella);
    QFETCH(QString, separatore);
    QTEST(::PercorsoNellaCartella(radici, cartella, QStringLiteral("x.jpg"), separatore),
          "percorso");
}

void tst_SfogliaCartelle::CartellaInVista()
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

void tst_SfogliaCartelle::Cartelle_antenatiESottocartelle()
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

void tst_SfogliaCartelle::Cartelle_doppioClic()
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

void tst_SfogliaCartelle::Cartelle_invioNonConferma()
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

void tst_SfogliaCartelle::Cartelle_ritorno()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/manca.jpg")));
    QApplication::setActiveWindow(&s);
    QTRY_VERIFY(Dir(s)->hasFocus());
    QTest::keyClick(Dir(s), Qt::Key_Backspace);
    QCOMPARE(s.CartellaAperta(), QDir::toNativeSeparators(cartella_->path()));
}

void tst_SfogliaCartelle::Cartella_illeggibile()
{
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
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
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral("cartella non accessibile")});
    QCOMPARE(s.CartellaAperta(), In(QStringLiteral("scansioni")));
    QCOMPARE(NomiFile(s).size(), 3);
    QCOMPARE(FileScelto(s), QStringLiteral("b.jpg"));
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void tst_SfogliaCartelle::PuntatoreOccupatoMentreElenca()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/b.jpg")));
    QList<Qt::CursorShape> puntatori;
    connect(File(s)->model(), &QAbstractItemModel::modelAboutToBeReset, this, [&] {
        const QCursor *puntatore = QApplication::overrideCursor();
        puntatori.append(puntatore == nullptr ? Qt::ArrowCursor : puntatore->shape());
    });
    QTreeWidget *dir = Dir(s);
    DoppioClic(dir, dir->model()->index(0, 0, dir->currentIndex()));
    QCOMPARE(puntatori, QList<Qt::CursorShape>{Qt::WaitCursor});
    QVERIFY(QApplication::overrideCursor() == nullptr);
    Drive(s)->setCurrentIndex(-1);
    QTest::keyClick(Drive(s), Qt::Key_Home);
    QCOMPARE(puntatori, (QList<Qt::CursorShape>{Qt::WaitCursor, Qt::WaitCursor}));
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void tst_SfogliaCartelle::Drive_radice()
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

void tst_SfogliaCartelle::Drive_nonDisponibile()
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

void tst_SfogliaCartelle::Drive_fileNellaRadice()
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

void tst_SfogliaCartelle::Drive_laRotellaNonLoCambia()
{
    Sfoglia s;
    s.show();
    Drive(s)->addItem(QStringLiteral("un altro"));
    const int scelto = Drive(s)->currentIndex();
    QVERIFY2(!Controlli::GiraRotella(Drive(s), -1), "taken by the list");
    QVERIFY(!Controlli::GiraRotella(Drive(s), 1));
    QCOMPARE(Drive(s)->currentIndex(), scelto);
}

void tst_SfogliaCartelle::SceltaDaTastiera()
{
    Sfoglia s;
    Mostra(s, In(QStringLiteral("scansioni/A.bmp")));
    QTest::keyClick(File(s), 'c');
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/c.gif")));
    QTest::keyClick(File(s), Qt::Key_Up);
    QCOMPARE(RisultatoSfoglia(), In(QStringLiteral("scansioni/b.jpg")));
}

void tst_SfogliaCartelle::DiecimilaFile()
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

QTEST_MAIN(tst_SfogliaCartelle)
#include "tst_SfogliaCartelle.moc"
