#include "documento/CopiaRecupero.h"
#include "model/FileModello.h"
#include "sistema/Disco.h"

#include "support/Errori.h"
#include "support/FileDiProva.h"
#include "support/GuastoDiChiamata_Windows.h"
#include "support/ModelloDiProva.h"
#include "support/RestiDiWine_Windows.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <windows.h>

using Chiamata = GuastoDiChiamata::Chiamata;
using Modo = GuastoDiChiamata::Modo;
using Quale = GuastoDiChiamata::Quale;

namespace {

constexpr int ElementiVecchi = 60;
constexpr int ElementiNuovi = 100;

QByteArray Byte(int elementi)
{
    return FileModello::Componi(ModelloDiProva(elementi), QLocale::c());
}

const QByteArray &Vecchi()
{
    static const QByteArray byte = Byte(ElementiVecchi);
    return byte;
}

const QByteArray &Nuovi()
{
    static const QByteArray byte = Byte(ElementiNuovi);
    return byte;
}

/// Another program that has the file open and lets others read and write it, but not replace it.
class TenutoAperto
{
public:
    explicit TenutoAperto(const QString &percorso)
        : aperto_(CreateFileW(QDir::toNativeSeparators(percorso).toStdWString().c_str(),
                              GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        if (aperto_ == INVALID_HANDLE_VALUE) {
            QTest::qFail("the other program cannot open the file", __FILE__, __LINE__);
        }
    }
    ~TenutoAperto() { CloseHandle(aperto_); }
    Q_DISABLE_COPY_MOVE(TenutoAperto)

private:
    HANDLE aperto_;
};

/// Saves the new model as the editor does, the work in a safety copy meanwhile when there is a
/// folder for it. The number of the error, 0 when there is none.
int Salva(const QString &file, const QString &stato)
{
    const Modello modello = ModelloDiProva(ElementiNuovi);
    return ErroreDi([&] {
        if (stato.isEmpty()) {
            FileModello::Salva(modello, file, QLocale::c());
            return;
        }
        CopiaRecupero copia(stato, file);
        copia.Parte(Disco::Legge(file, FileModello::DimensioneMassima));
        QByteArray byte;
        FileModello::ScriveModello(modello, file, &byte,
                                   [&] { copia.TieneIlLavoro(modello, byte); });
        copia.EliminaOfferte();
    });
}

struct Esito
{
    int errore = -1;
    bool guasto = false; ///< the fault did happen
};

Esito SalvaConGuasto(const Quale &quale, const QString &file, const QString &stato = {})
{
    const GuastoDiChiamata guasto(quale);
    const int errore = Salva(file, stato);
    return {errore, guasto.Avvenuto()};
}

/// The same in a child of this process, which the fault may end: its exit status.
int SalvaInUnFiglio(const Quale &quale, const QString &file, const QString &stato = {})
{
    return QProcess::execute(QCoreApplication::applicationFilePath(),
                             {QStringLiteral("--salva"), quale.cartella,
                              QString::number(int(quale.chiamata)), QString::number(quale.n),
                              QString::number(int(quale.modo)), file, stato});
}

int Figlio(const QStringList &argomenti)
{
    const Quale quale{argomenti.value(2), Chiamata(argomenti.value(3).toInt()),
                      argomenti.value(4).toInt(), ERROR_GEN_FAILURE,
                      Modo(argomenti.value(5).toInt())};
    return SalvaConGuasto(quale, argomenti.value(6), argomenti.value(7)).errore;
}

struct Nominata
{
    const char *nome;
    Chiamata chiamata;
    Modo modo = Modo::UnaVolta;
};

struct Causa
{
    const char *nome;
    unsigned long numero;
    int errore;
};

constexpr Nominata Scritture[] = {
    {"apre", Chiamata::Apre},
    {"scrive", Chiamata::Scrive},
    {"scrive a meta'", Chiamata::Scrive, Modo::AMeta},
    {"tronca", Chiamata::Tronca},
    {"sincronizza", Chiamata::Sincronizza},
};

} // namespace

/// Saving while Windows fails, or while the program is ended: the file holds the old model or the
/// new one, whole; where it can only be rewritten in its place, else the safety copy holds the new.
class tst_SalvataggioGuasti_Windows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { cartella_.reset(); }

    void OgniChiamataFallita_data();
    void OgniChiamataFallita();
    void SostituzioneCheNonSiPuoFare_data();
    void SostituzioneCheNonSiPuoFare();
    void UccisoAOgniChiamata_data();
    void UccisoAOgniChiamata();
    void RiscrivendoUnaChiamataFallita_data();
    void RiscrivendoUnaChiamataFallita();
    void RiscrivendoNonSiPuoTornareIndietro();
    void RiscrivendoUcciso_data();
    void RiscrivendoUcciso();

private:
    QString Archivio() const { return cartella_->filePath(QStringLiteral("archivio")); }
    QString Stato() const { return cartella_->filePath(QStringLiteral("stato")); }
    QString File() const { return Archivio() + QStringLiteral("/Fattura.Mod"); }
    void ComePrima() const;
    /// The newest work that an opening finds in a safety copy: what it would save.
    QByteArray Ripresa() const;
    void VerificaNienteDiPerso() const;

    std::unique_ptr<QTemporaryDir> cartella_;
};

void tst_SalvataggioGuasti_Windows::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkdir(Archivio()));
    ComePrima();
}

void tst_SalvataggioGuasti_Windows::ComePrima() const
{
    QDir(Stato()).removeRecursively();
    for (const QString &nome : NomiIn(Archivio())) {
        QVERIFY(QFile::remove(Archivio() + u'/' + nome));
    }
    ScriveFile(File(), Vecchi());
}

void tst_SalvataggioGuasti_Windows::OgniChiamataFallita_data()
{
    QTest::addColumn<Chiamata>("chiamata");
    QTest::addColumn<Modo>("modo");
    QTest::addColumn<unsigned long>("causa");
    QTest::addColumn<int>("errore");
    QTest::addColumn<bool>("esiste");
    for (const bool esiste : {true, false}) {
        const char *su = esiste ? "modello che c'e'" : "modello nuovo";
        for (const Causa &causa :
             {Causa{"disco pieno", ERROR_DISK_FULL, 61}, Causa{"guasto", ERROR_IO_DEVICE, 57},
              Causa{"scrittura fallita", ERROR_WRITE_FAULT, 57},
              Causa{"rete caduta", ERROR_NETNAME_DELETED, 57},
              Causa{"supporto protetto", ERROR_WRITE_PROTECT, 70},
              Causa{"nessun permesso", ERROR_ACCESS_DENIED, 75}}) {
            for (const Nominata &una : Scritture) {
                QTest::addRow("%s, %s, %s", una.nome, causa.nome, su)
                    << una.chiamata << una.modo << causa.numero << causa.errore << esiste;
            }
            QTest::addRow("prende il posto, %s, %s", causa.nome, su)
                << (esiste ? Chiamata::Sostituisce : Chiamata::Sposta) << Modo::UnaVolta
                << causa.numero << causa.errore << esiste;
        }
    }
}

void tst_SalvataggioGuasti_Windows::OgniChiamataFallita()
{
    QFETCH(Chiamata, chiamata);
    QFETCH(Modo, modo);
    QFETCH(unsigned long, causa);
    QFETCH(int, errore);
    QFETCH(bool, esiste);
    if (!esiste) {
        QVERIFY(QFile::remove(File()));
    }
    const QStringList prima = NomiIn(Archivio());
    int n = 1;
    Esito esito = SalvaConGuasto({Archivio(), chiamata, n, causa, modo}, File());
    for (; esito.guasto; esito = SalvaConGuasto({Archivio(), chiamata, ++n, causa, modo}, File())) {
        QCOMPARE(esito.errore, errore);
        QCOMPARE(NomiIn(Archivio()), prima);
        if (esiste) {
            QCOMPARE(ByteDi(File()), Vecchi());
        }
    }
    QVERIFY2(n > 1, "the fault never happened");
    QCOMPARE(esito.errore, 0);
    QCOMPARE(NomiIn(Archivio()), QStringList{QStringLiteral("Fattura.Mod")});
    QCOMPARE(ByteDi(File()), Nuovi());
}

void tst_SalvataggioGuasti_Windows::SostituzioneCheNonSiPuoFare_data()
{
    QTest::addColumn<unsigned long>("causa");
    QTest::addColumn<int>("errore");
    QTest::newRow("il file system non la conosce") << 0UL + ERROR_INVALID_FUNCTION << 0;
    QTest::newRow("nemmeno la rete") << 0UL + ERROR_NOT_SUPPORTED << 0;
    QTest::newRow("interrotta, il vecchio al suo posto")
        << 0UL + ERROR_UNABLE_TO_MOVE_REPLACEMENT << 0;
    QTest::newRow("spazio dell'utente finito") << 1295UL << 61; // ERROR_DISK_QUOTA_EXCEEDED
    QTest::newRow("il vecchio non si toglie") << 0UL + ERROR_UNABLE_TO_REMOVE_REPLACED << 75;
    QTest::newRow("in memoria di un altro") << 0UL + ERROR_USER_MAPPED_FILE << 75;
    QTest::newRow("bloccato in parte") << 0UL + ERROR_LOCK_VIOLATION << 75;
}

void tst_SalvataggioGuasti_Windows::SostituzioneCheNonSiPuoFare()
{
    QFETCH(unsigned long, causa);
    QFETCH(int, errore);
    const Esito esito = SalvaConGuasto({Archivio(), Chiamata::Sostituisce, 1, causa}, File());
    QVERIFY(esito.guasto);
    QCOMPARE(esito.errore, errore);
    QCOMPARE(ByteDi(File()), errore == 0 ? Nuovi() : Vecchi());
    QCOMPARE(NomiIn(Archivio()), QStringList{QStringLiteral("Fattura.Mod")});
}

void tst_SalvataggioGuasti_Windows::UccisoAOgniChiamata_data()
{
    QTest::addColumn<Chiamata>("chiamata");
    QTest::addColumn<Modo>("modo");
    for (const Nominata &una : Scritture) {
        QTest::newRow(una.nome) << una.chiamata
                                << (una.modo == Modo::AMeta ? Modo::UccideAMeta : Modo::Uccide);
    }
    QTest::newRow("prende il posto") << Chiamata::Sostituisce << Modo::Uccide;
}

void tst_SalvataggioGuasti_Windows::UccisoAOgniChiamata()
{
    QFETCH(Chiamata, chiamata);
    QFETCH(Modo, modo);
    int n = 1;
    int stato = SalvaInUnFiglio({Archivio(), chiamata, n, 0, modo}, File());
    for (; stato == GuastoDiChiamata::StatoDiUcciso;
         stato = SalvaInUnFiglio({Archivio(), chiamata, ++n, 0, modo}, File())) {
        QCOMPARE(ByteDi(File()), Vecchi());
        for (const QString &nome : NomiIn(Archivio())) {
            Invecchia(Archivio() + u'/' + nome, 3600);
        }
    }
    QVERIFY2(n > 1, "the kill never happened");
    QCOMPARE(stato, 0);
    // What the killed ones left behind went with the save that followed.
    QCOMPARE(NomiIn(Archivio()), QStringList{QStringLiteral("Fattura.Mod")});
    QCOMPARE(ByteDi(File()), Nuovi());
}

QByteArray tst_SalvataggioGuasti_Windows::Ripresa() const
{
    CopiaRecupero copia(Stato(), File());
    copia.Parte(ByteDi(File()));
    const auto trovate = copia.Cerca();
    return trovate.isEmpty() || trovate[0].fileCambiato
               ? QByteArray()
               : FileModello::Componi(trovate[0].modello, QLocale::c());
}

void tst_SalvataggioGuasti_Windows::VerificaNienteDiPerso() const
{
    const QByteArray adesso = ByteDi(File());
    if (adesso != Vecchi() && adesso != Nuovi()) {
        QVERIFY2(Ripresa() == Nuovi(), "the work is nowhere");
    }
}

void tst_SalvataggioGuasti_Windows::RiscrivendoUnaChiamataFallita_data()
{
    QTest::addColumn<Chiamata>("chiamata");
    QTest::addColumn<Modo>("modo");
    QTest::addColumn<unsigned long>("causa");
    QTest::addColumn<int>("errore");
    for (const Causa &causa :
         {Causa{"disco pieno", ERROR_DISK_FULL, 61}, Causa{"guasto", ERROR_IO_DEVICE, 57}}) {
        for (const Nominata &una : Scritture) {
            QTest::addRow("%s, %s", una.nome, causa.nome)
                << una.chiamata << una.modo << causa.numero << causa.errore;
        }
    }
}

void tst_SalvataggioGuasti_Windows::RiscrivendoUnaChiamataFallita()
{
    QFETCH(Chiamata, chiamata);
    QFETCH(Modo, modo);
    QFETCH(unsigned long, causa);
    QFETCH(int, errore);
    const TenutoAperto altro(File());
    int n = 1;
    Esito esito = SalvaConGuasto({Archivio(), chiamata, n, causa, modo}, File(), Stato());
    for (; esito.guasto;
         esito = SalvaConGuasto({Archivio(), chiamata, ++n, causa, modo}, File(), Stato())) {
        QCOMPARE(esito.errore, errore);
        QCOMPARE(ByteDi(File()), Vecchi()); // put back
        QVERIFY(QDir(Stato()).removeRecursively());
        QCOMPARE(NomiSenzaWine(Archivio()), QStringList{QStringLiteral("Fattura.Mod")});
    }
    QVERIFY2(n > 2, "the file was not rewritten");
    QCOMPARE(esito.errore, 0);
    QCOMPARE(ByteDi(File()), Nuovi());
    QCOMPARE(NomiSenzaWine(Archivio()), QStringList{QStringLiteral("Fattura.Mod")});
    QVERIFY(NomiIn(Stato()).isEmpty());
}

void tst_SalvataggioGuasti_Windows::RiscrivendoNonSiPuoTornareIndietro()
{
    const TenutoAperto altro(File());
    // The length of the temporary file is set first, that of the rewritten one next.
    const Esito esito = SalvaConGuasto(
        {Archivio(), Chiamata::Tronca, 2, ERROR_IO_DEVICE, Modo::Sempre}, File(), Stato());
    QVERIFY(esito.guasto);
    QVERIFY(esito.errore != 0);
    VerificaNienteDiPerso();
}

void tst_SalvataggioGuasti_Windows::RiscrivendoUcciso_data()
{
    QTest::addColumn<Chiamata>("chiamata");
    QTest::addColumn<Modo>("modo");
    for (const Nominata &una : Scritture) {
        QTest::newRow(una.nome) << una.chiamata
                                << (una.modo == Modo::AMeta ? Modo::UccideAMeta : Modo::Uccide);
    }
}

void tst_SalvataggioGuasti_Windows::RiscrivendoUcciso()
{
    QFETCH(Chiamata, chiamata);
    QFETCH(Modo, modo);
    int n = 1;
    for (;; ++n) {
        ComePrima();
        const TenutoAperto altro(File());
        const int stato = SalvaInUnFiglio({Archivio(), chiamata, n, 0, modo}, File(), Stato());
        if (stato != GuastoDiChiamata::StatoDiUcciso) {
            QCOMPARE(stato, 0);
            break;
        }
        VerificaNienteDiPerso();
    }
    QVERIFY2(n > 2, "the file was not rewritten");
    QCOMPARE(ByteDi(File()), Nuovi());
}

int main(int argc, char *argv[])
{
    const QCoreApplication programma(argc, argv);
    const QStringList argomenti = QCoreApplication::arguments();
    if (argomenti.value(1) == QLatin1String("--salva")) {
        return Figlio(argomenti);
    }
    tst_SalvataggioGuasti_Windows prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "tst_SalvataggioGuasti_Windows.moc"
