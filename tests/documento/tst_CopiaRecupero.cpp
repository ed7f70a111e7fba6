#include "CopieDiProva.h"

#include "base/ErroreSistema.h"
#include "documento/CopieRimaste.h"
#include "documento/FileCopia.h"
#include "support/Errori.h"
#include "support/Permessi.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>
#include <QUrl>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QLocale Punto = QLocale::c();

} // namespace

/// The files of the safety copies.
class tst_CopiaRecupero : public QObject, private CopieDiProva
{
    Q_OBJECT
private slots:
    void init() { NuovoModello(); }
    void NienteDaCercare();
    void RilettaComeScritta();
    void DecimaliIntatti();
    void TroncaOGuastaNonSiTrova();
    void SoloDelProprioModello();
    void IlFileComeLettoDecideSeCambiato();
    void CartellaSoloDelProprietario();
    void CartellaImpossibile();
    void DiscoPienoLasciaLaPrecedente();
    void EliminatiDaAltriSiRiscrivono();
    void NonLeggibileSiDice();
    void ByteDiUnSalvataggioFallito();
    void ByteFallitiCheSiVedonoPiuTardi();
    void SoltantoPerLUtente();
    void PerQualunqueStrada_data();
    void PerQualunqueStrada();
    void ArchivioRinominato();
    void DanneggiataSiDice();
    void DiUnaVersionePrima();
    void SenzaCartellaPersonale();
};

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

void tst_CopiaRecupero::EliminatiDaAltriSiRiscrivono()
{
    // Somebody tidies the state folder while the model is open.
    CopiaRecupero copia = Aperta();
    copia.Scrive(ModelloDiProva(2));
    QVERIFY(QDir(Cartella()).removeRecursively());
    copia.Scrive(ModelloDiProva(2));
    QCOMPARE(Aperta().Cerca().size(), 1);
}

void tst_CopiaRecupero::NonLeggibileSiDice()
{
    Lascia(50);
    const QString file = Aperta().Cerca().constFirst().file;
    Lascia(60);
    QVERIFY(QFile::setPermissions(dir_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(Cartella(), Permessi::PerTutti));
    for (const QString &altra : Copie()) {
        QVERIFY(QFile::setPermissions(Cartella() + u'/' + altra, Permessi::PerTutti));
    }
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

void tst_CopiaRecupero::SoltantoPerLUtente()
{
    // Also in a folder that somebody made for all to look into.
    QVERIFY(QDir().mkpath(Cartella()));
    QCOMPARE(chmod(QFile::encodeName(Cartella()).constData(), 0755), 0);
    const mode_t maschera = umask(0);
    CopiaRecupero copia = Aperta();
    copia.Scrive(ModelloDiProva(2));
    const QString file = copia.Cerca().constFirst().file;
    constexpr auto SoloSua =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QCOMPARE(QFileInfo(file).permissions(), SoloSua);
    // And when it is written over one that an earlier version made for all.
    QCOMPARE(chmod(QFile::encodeName(file).constData(), 0644), 0);
    copia.Scrive(ModelloDiProva(3));
    umask(maschera);
    QCOMPARE(QFileInfo(file).permissions(), SoloSua);
}

void tst_CopiaRecupero::PerQualunqueStrada_data()
{
    QTest::addColumn<QString>("strada");
    QTest::newRow("link to the data folder") << QStringLiteral("altra/Prova.Mod");
    QTest::newRow("link to the model") << QStringLiteral("Legata.Mod");
    QTest::newRow("hard link of the model") << QStringLiteral("Dura.Mod");
    QTest::newRow("detour") << QStringLiteral("altra/./Prova.Mod");
}

void tst_CopiaRecupero::PerQualunqueStrada()
{
    QFETCH(QString, strada);
    const QString altra = dir_->filePath(strada);
    QVERIFY(QFile::link(dir_->path(), dir_->filePath(QStringLiteral("altra"))));
    QVERIFY(QFile::link(Percorso(), dir_->filePath(QStringLiteral("Legata.Mod"))));
    QCOMPARE(link(QFile::encodeName(Percorso()).constData(),
                  QFile::encodeName(dir_->filePath(QStringLiteral("Dura.Mod"))).constData()),
             0);
    Lascia(50);
    CopiaRecupero copia(Cartella(), altra);
    copia.Parte(ByteDi(altra));
    const auto trovate = copia.Cerca();
    QCOMPARE(trovate.size(), 1);
    QCOMPARE(trovate[0].modello.Campi[1].X, 50.0);
    QVERIFY(!trovate[0].fileCambiato);
}

void tst_CopiaRecupero::ArchivioRinominato()
{
    const QString prima = dir_->filePath(QStringLiteral("prima"));
    QVERIFY(QDir().mkdir(prima));
    const QString modello = prima + QStringLiteral("/Fattura.Mod");
    FileModello::Salva(ModelloDiProva(2), modello, Punto);
    {
        CopiaRecupero copia(Cartella(), modello);
        copia.Parte(ByteDi(modello));
        copia.Scrive(ModelloDiProva(3));
    }
    const QString dopo = dir_->filePath(QStringLiteral("dopo"));
    QVERIFY(QDir().rename(prima, dopo));
    const auto trovate = [&](const QString &nome, const QByteArray &byte) {
        const QString file = dopo + u'/' + nome;
        ScriveFile(file, byte);
        CopiaRecupero copia(Cartella(), file);
        copia.Parte(byte);
        return copia.Cerca().size();
    };
    const QByteArray byte = ByteDi(dopo + QStringLiteral("/Fattura.Mod"));
    QCOMPARE(trovate(QStringLiteral("FATTURA.MOD"), byte), qsizetype(1));
    QVERIFY2(trovate(QStringLiteral("Altra.Mod"), byte) == 0, "a copy made of it is another model");
    QVERIFY2(trovate(QStringLiteral("Fattura.Mod"), byte + "x") == 0, "nor is one of that name it");
    // Where the old file still stands, the new one is its copy.
    QVERIFY(QDir().mkdir(prima));
    ScriveFile(modello, byte);
    QCOMPARE(trovate(QStringLiteral("Fattura.Mod"), byte), qsizetype(0));
}

void tst_CopiaRecupero::DanneggiataSiDice()
{
    Lascia(50);
    const QString file = Aperta().Cerca().constFirst().file;
    const QByteArray intera = ByteDi(file);
    const auto detti = [this] {
        QStringList testi;
        Aperta().Cerca([&](const QString &quale, const ErroreSistema &errore) {
            testi.append(quale + u' ' + errore.Messaggio());
        });
        return testi;
    };
    const QStringList attesi{file + QStringLiteral(" errore 57 la copia è danneggiata")};
    for (const qsizetype byte : {qsizetype(0), qsizetype(10), intera.indexOf('\n') + 3,
                                 intera.size() / 2, intera.size() - 1}) {
        ScriveFile(file, intera.left(byte));
        QCOMPARE(detti(), attesi);
    }
    ScriveFile(file, intera);
    QVERIFY(detti().isEmpty());
    // The start tells of it too.
    ScriveFile(file, intera.left(100));
    const auto trovate = CopieRimaste::Cerca(Cartella());
    QCOMPARE(trovate.nonLette.size(), 1);
    QCOMPARE(trovate.nonLette[0].file, file);
    QVERIFY(trovate.rimaste.isEmpty());
}

void tst_CopiaRecupero::DiUnaVersionePrima()
{
    Lascia(50);
    const QString file = Aperta().Cerca().constFirst().file;
    const QByteArray corpo = FileModello::Componi(ModelloDiProva(4), Punto);
    ScriveFile(file, "plakera-recupero 1\n" + QUrl::toPercentEncoding(Percorso()) + '\n' +
                         FileCopia::Somma(ByteDi(Percorso())) + '\n' + FileCopia::Somma(corpo) +
                         '\n' + corpo);
    const auto trovate = Aperta().Cerca();
    QCOMPARE(trovate.size(), 1);
    QCOMPARE(trovate[0].modello.NumCampi, qint16(4));
    QVERIFY(!trovate[0].fileCambiato);
}

void tst_CopiaRecupero::SenzaCartellaPersonale()
{
    CopiaRecupero copia(QString(), Percorso());
    copia.Parte(ByteDi(Percorso()));
    const QStringList qui = NomiIn(QDir::currentPath());
    QVERIFY(copia.Cerca().isEmpty());
    QCOMPARE(ErroreDi([&] { copia.Scrive(ModelloDiProva(2)); }), 76);
    QVERIFY(CopieRimaste::Cerca(QString()).rimaste.isEmpty());
    QCOMPARE(NomiIn(QDir::currentPath()), qui);
}

QTEST_GUILESS_MAIN(tst_CopiaRecupero)
#include "tst_CopiaRecupero.moc"
