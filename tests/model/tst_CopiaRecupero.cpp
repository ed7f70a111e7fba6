#include "base/ErroreSistema.h"
#include "model/CopiaRecupero.h"
#include "model/FileModello.h"
#include "support/Errori.h"
#include "support/FileDiProva.h"
#include "support/ModelloDiProva.h"
#include "support/Permessi.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QLocale Punto = QLocale::c();

} // namespace

/// The files of the safety copies.
class tst_CopiaRecupero : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void NienteDaCercare();
    void RilettaComeScritta();
    void DecimaliIntatti();
    void TroncaOGuastaNonSiTrova();
    void SoloDelProprioModello();
    void IlFileComeLettoDecideSeCambiato();
    void CartellaSoloDelProprietario();
    void CartellaImpossibile();
    void DiscoPienoLasciaLaPrecedente();
    void VannoViaSoloLeOfferte();
    void LaRipresaVaViaQuandoLaNuovaLaTiene();
    void EliminatiDaAltriSiRiscrivono();
    void DiUnProgrammaVivo();
    void NessunNomeTornaIndietro();
    void LucchettiDiMorti();
    void DiUnMortoADiscoPieno();
    void UgualeAlFileVaVia();
    void NonLeggibileSiDice();
    void NonEliminabileSiRiprova();
    void ByteDiUnSalvataggioFallito();
    void ByteFallitiCheSiVedonoPiuTardi();

private:
    QString Cartella() const { return dir_->filePath(QStringLiteral("stato/plakera")); }
    QString Percorso() const { return dir_->filePath(QStringLiteral("Prova.Mod")); }
    CopiaRecupero Aperta() const
    {
        CopiaRecupero copia(Cartella(), Percorso());
        copia.Parte(ByteDi(Percorso()));
        return copia;
    }
    /// Files of copies, whole or not; a lock that a killed program left is none.
    QStringList Copie() const
    {
        return NomiIn(Cartella()).filter(QRegularExpression(QStringLiteral("\\.recupero$")));
    }
    /// Left behind by a program that has ended.
    void Lascia(double x)
    {
        Modello modello = ModelloDiProva(2);
        modello.Campi[1].X = x;
        Aperta().Scrive(modello);
    }

    std::optional<QTemporaryDir> dir_;
};

void tst_CopiaRecupero::init()
{
    dir_.emplace();
    FileModello::Salva(ModelloDiProva(2), Percorso(), Punto);
}

void tst_CopiaRecupero::NienteDaCercare()
{
    QVERIFY(Aperta().Cerca().isEmpty());
    QVERIFY2(!QFileInfo::exists(Cartella()), "looking makes no folder");
}

void tst_CopiaRecupero::RilettaComeScritta()
{
    const Modello modello = ModelloDiProva(100);
    Aperta().Scrive(modello);
    const auto trovate = Aperta().Cerca();
    QCOMPARE(trovate.size(), 1);
    QCOMPARE(FileModello::Componi(trovate[0].modello, Punto), FileModello::Componi(modello, Punto));
    QVERIFY(!trovate[0].fileCambiato);
}

void tst_CopiaRecupero::DecimaliIntatti()
{
    const QLocale precedente;
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    Modello modello = ModelloDiProva(1);
    modello.Immagini[1].X = 12.75;
    modello.Righe.Interlinea = 4.5;
    Aperta().Scrive(modello);
    QLocale::setDefault(precedente);
    const auto trovata = Aperta().Cerca().constFirst();
    QCOMPARE(trovata.modello.Immagini[1].X, 12.75);
    QCOMPARE(trovata.modello.Righe.Interlinea, 4.5);
}

void tst_CopiaRecupero::TroncaOGuastaNonSiTrova()
{
    Lascia(50);
    const QString file = Aperta().Cerca().constFirst().file;
    const QByteArray intera = ByteDi(file);
    for (qsizetype n = 0; n < intera.size(); ++n) {
        ScriveFile(file, intera.left(n));
        QVERIFY2(Aperta().Cerca().isEmpty(), qPrintable(QString::number(n)));
    }
    QByteArray guasta = intera;
    guasta[guasta.size() - 30] = '#';
    ScriveFile(file, guasta);
    QVERIFY(Aperta().Cerca().isEmpty());
    QVERIFY2(QFileInfo::exists(file), "what cannot be read is left alone");
}

void tst_CopiaRecupero::SoloDelProprioModello()
{
    Lascia(50);
    CopiaRecupero altro(Cartella(), dir_->filePath(QStringLiteral("Altra.Mod")));
    altro.Parte(ByteDi(Percorso()));
    QVERIFY(altro.Cerca().isEmpty());
    // Nor under the other model's name: the path inside tells.
    const QString file = Aperta().Cerca().constFirst().file;
    altro.Scrive(ModelloDiProva(1));
    const QString altrui = altro.Cerca().constFirst().file;
    ScriveFile(altrui, ByteDi(file));
    QVERIFY(altro.Cerca().isEmpty());
}

void tst_CopiaRecupero::IlFileComeLettoDecideSeCambiato()
{
    Lascia(50);
    const QByteArray letto = ByteDi(Percorso());
    CopiaRecupero copia(Cartella(), Percorso());
    copia.Parte(letto);
    ScriveFile(Percorso(), letto + "x");
    QVERIFY2(!copia.Cerca().constFirst().fileCambiato, "the copy fits what has been read");
    QVERIFY(copia.FileCambiato());
    copia.Parte(ByteDi(Percorso()));
    QVERIFY(copia.Cerca().constFirst().fileCambiato);
    QVERIFY(!copia.FileCambiato());
    QVERIFY(QFile::remove(Percorso()));
    QVERIFY2(!copia.FileCambiato(), "gone, there is nothing to overwrite");
    copia.Parte(std::nullopt);
    ScriveFile(Percorso(), QByteArray());
    QVERIFY2(copia.FileCambiato(), "an empty file is not a missing one");
}

void tst_CopiaRecupero::CartellaSoloDelProprietario()
{
    Lascia(50);
    constexpr auto SoloSua = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                             QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
    QCOMPARE(QFileInfo(Cartella()).permissions(), SoloSua);
}

void tst_CopiaRecupero::CartellaImpossibile()
{
    ScriveFile(dir_->filePath(QStringLiteral("stato")), "un file");
    QCOMPARE(ErroreDi([this] { Lascia(50); }), 75);
}

void tst_CopiaRecupero::DiscoPienoLasciaLaPrecedente()
{
    Modello modello = ModelloDiProva(2);
    CopiaRecupero copia = Aperta();
    modello.Campi[1].X = 50;
    copia.Scrive(modello);
    const QString file = copia.Cerca().constFirst().file;
    const QByteArray prima = ByteDi(file);
    modello.Campi[1].X = 60;
    for (const qint64 byte : {qint64(0), qint64(100), prima.size() - 1}) {
        const LimiteFile limite(byte);
        QCOMPARE(ErroreDi([&] { copia.Scrive(modello); }), 61);
        QCOMPARE(ByteDi(file), prima);
    }
    copia.Scrive(modello);
    QCOMPARE(copia.Cerca().constFirst().modello.Campi[1].X, 60.0);
    QCOMPARE(Copie().size(), 1);
}

void tst_CopiaRecupero::VannoViaSoloLeOfferte()
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

void tst_CopiaRecupero::LaRipresaVaViaQuandoLaNuovaLaTiene()
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

void tst_CopiaRecupero::EliminatiDaAltriSiRiscrivono()
{
    // Somebody tidies the state folder while the model is open.
    CopiaRecupero copia = Aperta();
    copia.Scrive(ModelloDiProva(2));
    QVERIFY(QDir(Cartella()).removeRecursively());
    copia.Scrive(ModelloDiProva(2));
    QCOMPARE(Aperta().Cerca().size(), 1);
}

void tst_CopiaRecupero::DiUnProgrammaVivo()
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

void tst_CopiaRecupero::NessunNomeTornaIndietro()
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

void tst_CopiaRecupero::LucchettiDiMorti()
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

void tst_CopiaRecupero::DiUnMortoADiscoPieno()
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

void tst_CopiaRecupero::UgualeAlFileVaVia()
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

void tst_CopiaRecupero::NonLeggibileSiDice()
{
    Lascia(50);
    const QString file = Aperta().Cerca().constFirst().file;
    Lascia(60);
    QVERIFY(QFile::setPermissions(dir_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(Cartella(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(file, Permessi::Nessuno));
    QStringList detti;
    qsizetype trovate = 0;
    {
        const UtenteComune utente;
        trovate = Aperta()
                      .Cerca([&](const QString &quale, const ErroreSistema &errore) {
                          detti.append(quale + u' ' + QString::number(errore.numero));
                      })
                      .size();
    }
    QCOMPARE(detti, QStringList{file + QStringLiteral(" 75")});
    // Neither does it hide the other.
    QCOMPARE(trovate, qsizetype(1));
}

void tst_CopiaRecupero::NonEliminabileSiRiprova()
{
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

void tst_CopiaRecupero::ByteDiUnSalvataggioFallito()
{
    const QByteArray prima = ByteDi(Percorso());
    const QByteArray tentati = FileModello::Componi(ModelloDiProva(7), Punto);
    CopiaRecupero copia = Aperta();
    copia.Tentati(tentati);
    QVERIFY2(!copia.FileCambiato(), "the old bytes stand");
    ScriveFile(Percorso(), tentati);
    copia.Tentati(tentati);
    QVERIFY2(!copia.FileCambiato(), "they are the program's own");
    copia.Scrive(ModelloDiProva(8));
    QVERIFY2(!Aperta().Cerca().constFirst().fileCambiato, "nor are they after a fall");
    ScriveFile(Percorso(), prima);
    QVERIFY(copia.FileCambiato());
}

void tst_CopiaRecupero::ByteFallitiCheSiVedonoPiuTardi()
{
    // The disk that failed behind the renaming cannot be read either, for a while.
    const QByteArray tentati = FileModello::Componi(ModelloDiProva(7), Punto);
    CopiaRecupero copia = Aperta();
    ScriveFile(Percorso(), tentati);
    const QString altrove = dir_->filePath(QStringLiteral("altrove"));
    QVERIFY(QFile::rename(Percorso(), altrove));
    QVERIFY(QDir().mkdir(Percorso()));
    copia.Tentati(tentati);
    QVERIFY(QDir().rmdir(Percorso()));
    QVERIFY(QFile::rename(altrove, Percorso()));
    QVERIFY2(!copia.FileCambiato(), "they are the program's own");
    ScriveFile(Percorso(), tentati + "x");
    QVERIFY(copia.FileCambiato());
}

QTEST_GUILESS_MAIN(tst_CopiaRecupero)
#include "tst_CopiaRecupero.moc"
