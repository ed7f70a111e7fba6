#include "ArchiviDiProva.h"
#include "catalogue/ModelloIndicato.h"
#include "support/Permessi.h"

#include <QFileInfo>

namespace {

constexpr const char *Scorciatoie = "here Qt makes shortcuts, through which no path leads";

} // namespace

/// A model file that is named on the command line: which archive it is of, what the start window
/// makes of it, and what is told of one from elsewhere.
class tst_ModelloIndicato : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void inUnArchivio_data();
    void inUnArchivio();
    void collegamentoNellArchivio();
    void collegamentoRotto();
    void mancanteNellArchivio();
    void fuoriDaOgniArchivio();
    void iniFuoriDaiDati();
    void altraEstensione();
    void illeggibileFuori();
    void dopoUnoDiFuoriNessunModelloScelto();
    void dopoUnoDellArchivioRestaScelto();

private:
    /// Names the model before the window is shown, as the program does.
    void Indica(const QString &percorso)
    {
        QVERIFY(archivi_->Finestra.Form_Load(archivi_->Dati()));
        archivi_->Finestra.Indica(percorso);
    }
    /// What the editor would open.
    QString Aperto() const { return archivi_->Stato.CartellaModelli + archivi_->Stato.NomeFile; }
    QString Fuori(const QString &nome) const
    {
        return QDir::toNativeSeparators(fuori_->filePath(nome));
    }

    std::unique_ptr<ArchiviDiProva> archivi_;
    std::unique_ptr<QTemporaryDir> fuori_;
    QString cartellaCorrente_;
};

void tst_ModelloIndicato::init()
{
    cartellaCorrente_ = QDir::currentPath();
    archivi_ = std::make_unique<ArchiviDiProva>();
    fuori_ = std::make_unique<QTemporaryDir>();
    archivi_->Crea(QStringLiteral("Altro"));
    for (const char *nome : {"Alfa.Mod", "Beta.mod", "BETA.MOD", "Più di una fattura.Mod"}) {
        ScriveFile(archivi_->Ini(QString::fromUtf8(nome)), nome);
    }
    ScriveFile(archivi_->In(QStringLiteral("Altro/ini/Gamma.MOD")), "gamma");
    ScriveFile(Fuori(QStringLiteral("Alfa.Mod")), "fuori");
}

void tst_ModelloIndicato::cleanup()
{
    QDir::setCurrent(cartellaCorrente_);
    archivi_.reset();
    fuori_.reset();
}

void tst_ModelloIndicato::inUnArchivio_data()
{
    QTest::addColumn<QString>("indicato");
    QTest::addColumn<QString>("archivio");
    QTest::addColumn<QString>("scelto");
    QTest::addColumn<QString>("file");
    const auto riga = [](const char *nome, const char *indicato, const char *archivio,
                         const char *scelto, const char *file) {
        QTest::newRow(nome) << QString::fromUtf8(indicato) << QString::fromUtf8(archivio)
                            << QString::fromUtf8(scelto) << QString::fromUtf8(file);
    };
    riga("of the usual archive", "%DATI/Contabilita/ini/Alfa.Mod", "Contabilita", "Alfa",
         "Alfa.Mod");
    riga("of another archive", "%DATI/Altro/ini/Gamma.MOD", "Altro", "Gamma", "Gamma.Mod");
    riga("typed in another case", "%DATI/altro/INI/gamma.mod", "Altro", "Gamma", "Gamma.Mod");
    riga("relative", "Contabilita/ini/Alfa.Mod", "Contabilita", "Alfa", "Alfa.Mod");
    riga("relative with detours", "./Altro/../Contabilita/ini/Alfa.Mod", "Contabilita", "Alfa",
         "Alfa.Mod");
    riga("with the separators of Windows", "Contabilita\\ini\\Alfa.Mod", "Contabilita", "Alfa",
         "Alfa.Mod");
    riga("blanks and accents", "%DATI/Contabilita/ini/Più di una fattura.Mod", "Contabilita",
         "Più di una fattura", "Più di una fattura.Mod");
    riga("link from elsewhere", "%FUORI/collegamento", "Altro", "Gamma", "Gamma.Mod");
    riga("folder linked from elsewhere", "%FUORI/cartella/Alfa.Mod", "Contabilita", "Alfa",
         "Alfa.Mod");
    riga("one of two names in different case", "%DATI/Contabilita/ini/Beta.mod", "Contabilita",
         "BETA", "Beta.mod");
    riga("the other of them", "%DATI/Contabilita/ini/BETA.MOD", "Contabilita", "BETA", "BETA.Mod");
}

void tst_ModelloIndicato::inUnArchivio()
{
    QFETCH(QString, indicato);
    QFETCH(QString, archivio);
    QFETCH(QString, scelto);
    QFETCH(QString, file);
    QVERIFY(QFile::link(archivi_->In(QStringLiteral("Altro/ini/Gamma.MOD")),
                        Fuori(QStringLiteral("collegamento"))));
    QVERIFY(QFile::link(archivi_->Ini(), Fuori(QStringLiteral("cartella"))));
    if (indicato.startsWith(QLatin1String("%FUORI")) &&
        !QFileInfo(Fuori(QStringLiteral("cartella"))).isSymbolicLink()) {
        QSKIP(Scorciatoie);
    }
    if (scelto == QLatin1String("BETA") &&
        ByteDi(archivi_->Ini(QStringLiteral("Beta.mod"))) != QByteArrayLiteral("Beta.mod")) {
        QSKIP("here both names are one file");
    }
    QVERIFY(QDir::setCurrent(archivi_->Dati()));
    const Robot robot;
    Indica(indicato.replace(QLatin1String("%DATI"), archivi_->Dati())
               .replace(QLatin1String("%FUORI"), fuori_->path()));
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'\n')));
    QCOMPARE(archivi_->Scelto("List1"), archivi_->In(archivio));
    QCOMPARE(archivi_->Scelto("List2"), scelto);
    QCOMPARE(Aperto(), archivi_->In(archivio + QStringLiteral("/ini/") + file));
}

void tst_ModelloIndicato::collegamentoNellArchivio()
{
    // A model of the archive, with the archive's pictures, wherever its bytes are.
    const QString collegamento = archivi_->Ini(QStringLiteral("Comune.Mod"));
    QVERIFY(QFile::link(Fuori(QStringLiteral("Alfa.Mod")), collegamento));
    if (!QFileInfo(collegamento).isSymbolicLink()) {
        QSKIP(Scorciatoie);
    }
    const Robot robot;
    Indica(collegamento);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(archivi_->Scelto("List2"), QStringLiteral("Comune"));
    QCOMPARE(Aperto(), collegamento);
}

void tst_ModelloIndicato::collegamentoRotto()
{
    const QString rotto = Fuori(QStringLiteral("rotto.Mod"));
    QVERIFY(QFile::link(Fuori(QStringLiteral("Manca.Mod")), rotto));
    if (!QFileInfo(rotto).isSymbolicLink()) {
        QSKIP(Scorciatoie);
    }
    const Robot robot;
    Indica(rotto);
    QVERIFY(robot.Soddisfatto()); // the editor will tell
    QCOMPARE(Aperto(), rotto);
}

void tst_ModelloIndicato::mancanteNellArchivio()
{
    const Robot robot;
    Indica(archivi_->In(QStringLiteral("Altro/ini/Manca.Mod")));
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(archivi_->Scelto("List1"), archivi_->In(QStringLiteral("Altro")));
    QCOMPARE(archivi_->Scelto("List2"), QString());
    QCOMPARE(Aperto(), archivi_->In(QStringLiteral("Altro/ini/Manca.Mod")));
}

void tst_ModelloIndicato::fuoriDaOgniArchivio()
{
    Robot robot;
    robot.Ok();
    Indica(Fuori(QStringLiteral("Alfa.Mod")));
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constFirst(),
             QStringLiteral("Alfa.Mod non sta in un archivio:\nmanca una cartella ini in una "
                            "sottocartella di\n%1\n\nVastrel non lo trova quando stampa e la "
                            "finestra iniziale non lo elenca.\nSi apre lo stesso, con le immagini "
                            "della sua cartella:\n%2")
                 .arg(archivi_->Dati(), QDir::toNativeSeparators(fuori_->path() + u'/')));
    QCOMPARE(Aperto(), Fuori(QStringLiteral("Alfa.Mod")));
}

void tst_ModelloIndicato::iniFuoriDaiDati()
{
    QVERIFY(QDir(fuori_->path()).mkpath(QStringLiteral("Contabilita/ini")));
    const QString file = Fuori(QStringLiteral("Contabilita/ini/Alfa.Mod"));
    ScriveFile(file, "fuori");
    Robot robot;
    robot.Ok();
    Indica(file);
    QVERIFY(robot.Soddisfatto());
    QVERIFY(robot.Testi().constFirst().startsWith(
        QStringLiteral("Alfa.Mod non sta in un archivio:\n")));
    QCOMPARE(Aperto(), file);
}

void tst_ModelloIndicato::altraEstensione()
{
    const QString file = archivi_->Ini(QStringLiteral("Alfa.Mod.vecchio"));
    ScriveFile(file, "alfa");
    Robot robot;
    robot.Ok();
    Indica(file);
    QVERIFY(robot.Soddisfatto());
    QVERIFY(robot.Testi().constFirst().startsWith(QStringLiteral(
        "Alfa.Mod.vecchio non è tra i modelli del suo archivio:\nmanca l'estensione .Mod\n")));
    QCOMPARE(Aperto(), file);
}

void tst_ModelloIndicato::illeggibileFuori()
{
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
    const QString file = Fuori(QStringLiteral("Chiuso.Mod"));
    ScriveFile(file, "chiuso");
    QVERIFY(QFile::setPermissions(fuori_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(file, Permessi::Nessuno));
    QVERIFY(archivi_->Finestra.Form_Load(archivi_->Dati()));
    const UtenteComune comune;
    QVERIFY(QFileInfo(file).isFile());
    const Robot robot;
    archivi_->Finestra.Indica(file);
    QVERIFY(robot.Soddisfatto()); // that it cannot be read is more, and the editor will tell
}

void tst_ModelloIndicato::dopoUnoDiFuoriNessunModelloScelto()
{
    Robot robot;
    robot.Ok();
    Indica(Fuori(QStringLiteral("Alfa.Mod")));
    QVERIFY(robot.Soddisfatto());
    archivi_->Mostra();
    // The archive has one of the same name.
    QCOMPARE(archivi_->Scelto("List1"), archivi_->In(QStringLiteral("Contabilita")));
    QCOMPARE(archivi_->Scelto("List2"), QString());
    QCOMPARE(archivi_->Stato.CartellaModelli, archivi_->Ini());
}

void tst_ModelloIndicato::dopoUnoDellArchivioRestaScelto()
{
    const Robot robot;
    Indica(archivi_->In(QStringLiteral("Altro/ini/Gamma.MOD")));
    archivi_->Mostra();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(archivi_->Scelto("List1"), archivi_->In(QStringLiteral("Altro")));
    QCOMPARE(archivi_->Scelto("List2"), QStringLiteral("Gamma"));
}

QTEST_MAIN(tst_ModelloIndicato)
#include "tst_ModelloIndicato.moc"
