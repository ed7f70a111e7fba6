#include "CopieDiProva.h"

#include "documento/CopieRimaste.h"
#include "support/Errori.h"
#include "support/Permessi.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

/// Which safety copies are offered, which wait for their program, and which go.
class tst_CopieOfferte : public QObject, private CopieDiProva
{
    Q_OBJECT

private slots:
    void init() { NuovoModello(); }
    void VannoViaSoloLeOfferte();
    void LaRipresaVaViaQuandoLaNuovaLaTiene();
    void DiUnProgrammaVivo();
    void NessunNomeTornaIndietro();
    void LucchettiDiMorti();
    void DiUnMortoADiscoPieno();
    void UgualeAlFileVaVia();
    void NonEliminabileSiRiprova();
    void RimasteSenzaModello_data();
    void RimasteSenzaModello();
};

void tst_CopieOfferte::VannoViaSoloLeOfferte()
{
    Lascia(50);
    const QString offerta = Aperta().Cerca().constFirst().file;
    Lascia(60);
    CopiaRecupero copia = Aperta();
    const auto trovate = copia.Cerca();
    QCOMPARE(trovate.size(), 2);
    const QString guasta =
        QString(offerta).replace(QStringLiteral(".rec"), QStringLiteral("9.rec"));
    ScriveFile(guasta, "non e' una copia");
    copia.SegnaOfferta(trovate[trovate[0].file == offerta ? 0 : 1]);
    copia.Scrive(ModelloDiProva(2));
    QCOMPARE(Copie().size(), 4);
    copia.EliminaOfferte();
    QVERIFY(!QFileInfo::exists(offerta));
    QVERIFY(QFileInfo::exists(guasta));
    QCOMPARE(NomiIn(Cartella()), Copie());
    QCOMPARE(Copie().size(), 2);
    QCOMPARE(Aperta().Cerca().constFirst().modello.Campi[1].X, 60.0);
}

void tst_CopieOfferte::LaRipresaVaViaQuandoLaNuovaLaTiene()
{
    Lascia(50);
    CopiaRecupero copia = Aperta();
    const auto trovata = copia.Cerca().constFirst();
    copia.Riprende(trovata);
    QVERIFY(QFileInfo::exists(trovata.file));
    {
        const LimiteFile niente(0);
        QCOMPARE(ErroreDi([&] { copia.Scrive(trovata.modello); }), 61);
    }
    QVERIFY(QFileInfo::exists(trovata.file));
    copia.Scrive(trovata.modello);
    QVERIFY(!QFileInfo::exists(trovata.file));
    QCOMPARE(Aperta().Cerca().constFirst().modello.Campi[1].X, 50.0);
}

void tst_CopieOfferte::DiUnProgrammaVivo()
{
    CopiaRecupero prima = Aperta();
    {
        CopiaRecupero viva = Aperta();
        viva.Scrive(ModelloDiProva(2));
        const auto trovate = prima.Cerca();
        QCOMPARE(trovate.size(), 1);
        QVERIFY(trovate[0].inUso);
    }
    QVERIFY2(!prima.Cerca().constFirst().inUso, "its program has ended");
    prima.SegnaOfferta(prima.Cerca().constFirst());
    prima.EliminaOfferte();
    QVERIFY(Copie().isEmpty());
    QVERIFY2(NomiIn(Cartella()).isEmpty(), "no lock stays behind");
}

void tst_CopieOfferte::NessunNomeTornaIndietro()
{
    // While the one is asked about a copy, another takes it up, saves, edits on and dies.
    Lascia(50);
    CopiaRecupero prima = Aperta();
    const auto offerta = prima.Cerca().constFirst();
    prima.SegnaOfferta(offerta);
    QVERIFY(QFile::remove(offerta.file));
    Lascia(60);
    prima.Riprende(offerta);
    prima.Scrive(offerta.modello);
    QVERIFY2(Copie().size() == 2, "the copy just written stands beside the other's");
    prima.EliminaOfferte();
    QCOMPARE(Copie().size(), 1);
    QCOMPARE(Aperta().Cerca().constFirst().modello.Campi[1].X, 60.0);
}

void tst_CopieOfferte::LucchettiDiMorti()
{
    // Of programs killed before their first copy, of one whose copy is damaged, of one alive.
    Lascia(50);
    CopiaRecupero viva = Aperta();
    viva.Scrive(ModelloDiProva(2));
    const QString radice = Copie().constFirst().section(u'-', 0, 0);
    const QString guasta = Cartella() + u'/' + radice + QStringLiteral("-9.recupero");
    ScriveFile(guasta, "non e' una copia");
    for (const char *nome : {"-7.recupero.lock", "-8.recupero.lock", "-9.recupero.lock"}) {
        ScriveFile(Cartella() + u'/' + radice + QLatin1String(nome), LucchettoDiUnMorto());
    }
    QCOMPARE(Aperta().Cerca().size(), 2);
    QCOMPARE(Copie().size(), 3);
    QVERIFY2(NomiIn(Cartella()).size() == 4, "one lock, of the living");
}

void tst_CopieOfferte::DiUnMortoADiscoPieno()
{
    Lascia(50);
    const QString file = Aperta().Cerca().constFirst().file;
    ScriveFile(file + QStringLiteral(".lock"), LucchettoDiUnMorto());
    QList<CopiaRecupero::Trovata> trovate;
    {
        const LimiteFile niente(0);
        trovate = Aperta().Cerca();
    }
    QCOMPARE(trovate.size(), 1);
    QVERIFY2(!trovate[0].inUso, "a full disk makes nobody alive");
}

void tst_CopieOfferte::UgualeAlFileVaVia()
{
    const Modello letto = ModelloDiProva(2);
    Lascia(50);
    Aperta().Scrive(letto); // as after a save whose program died before removing its copy
    const CopiaRecupero copia = Aperta();
    int superate = 0;
    for (const auto &trovata : copia.Cerca()) {
        superate += copia.EliminaSuperata(trovata, letto) ? 1 : 0;
    }
    QCOMPARE(superate, 1);
    QCOMPARE(Copie().size(), 1);
    QCOMPARE(copia.Cerca().constFirst().modello.Campi[1].X, 50.0);
}

void tst_CopieOfferte::NonEliminabileSiRiprova()
{
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
    Lascia(50);
    CopiaRecupero copia = Aperta();
    copia.SegnaOfferta(copia.Cerca().constFirst());
    copia.Scrive(ModelloDiProva(2));
    QVERIFY(QFile::setPermissions(dir_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(Cartella(), Permessi::SolaLettura));
    {
        const UtenteComune utente;
        copia.EliminaOfferte();
    }
    QCOMPARE(Copie().size(), 2);
    QVERIFY(QFile::setPermissions(Cartella(), Permessi::PerTutti));
    copia.Scrive(ModelloDiProva(2));
    QVERIFY2(Copie().size() == 2, "the copy that stayed is written on");
    copia.EliminaOfferte();
    QVERIFY(Copie().isEmpty());
}

void tst_CopieOfferte::RimasteSenzaModello_data()
{
    using Azione = std::function<void(const QString &)>;
    QTest::addColumn<Azione>("azione");
    QTest::addColumn<bool>("rimasta");
    QTest::addColumn<bool>("modelloCe");
    const auto niente = [](const QString &) {};
    QTest::newRow("model as it was") << Azione(niente) << false << true;
    QTest::newRow("model gone") << Azione([](const QString &file) { QVERIFY(QFile::remove(file)); })
                                << true << false;
    QTest::newRow("model renamed") << Azione([](const QString &file) {
        QVERIFY(QFile::rename(file, file + QStringLiteral(".Mod")));
    }) << true << false;
    QTest::newRow("model cut short")
        << Azione([](const QString &file) { ScriveFile(file, "x\r\n"); }) << true << true;
    QTest::newRow("folder in its place")
        << Azione([](const QString &file) { QVERIFY(QFile::remove(file) && QDir().mkdir(file)); })
        << true << true;
}

void tst_CopieOfferte::RimasteSenzaModello()
{
    using Azione = std::function<void(const QString &)>;
    QFETCH(Azione, azione);
    QFETCH(bool, rimasta);
    QFETCH(bool, modelloCe);
    Lascia(50);
    azione(Percorso());
    const auto trovate = CopieRimaste::Cerca(Cartella());
    QVERIFY(trovate.nonLette.isEmpty());
    QCOMPARE(trovate.rimaste.size(), rimasta ? 1 : 0);
    if (rimasta) {
        QCOMPARE(trovate.rimaste[0].modelloCe, modelloCe);
        QCOMPARE(trovate.rimaste[0].percorso, QFileInfo(Percorso()).absoluteFilePath());
        QCOMPARE(trovate.rimaste[0].modello.NomeFile, QStringLiteral("Prova.Mod"));
        QCOMPARE(trovate.rimaste[0].modello.Campi[1].X, 50.0);
    }
    // What its program is still at waits.
    CopiaRecupero viva(Cartella(), Percorso());
    viva.Parte(std::nullopt);
    viva.Scrive(ModelloDiProva(1));
    QCOMPARE(CopieRimaste::Cerca(Cartella()).rimaste.size(), rimasta ? 1 : 0);
}

QTEST_GUILESS_MAIN(tst_CopieOfferte)
#include "tst_CopieOfferte.moc"
