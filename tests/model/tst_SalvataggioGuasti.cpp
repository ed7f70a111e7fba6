#include "SalvaConGuasti.h"
#include "model/FileModello.h"

#include "support/FileDiProva.h"
#include "support/ModelloDiProva.h"

#include <QDateTime>
#include <QFile>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <memory>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

/// Saving while the system fails, or while the program is killed: the file holds the old model or
/// the new one, whole, whatever happens.
class tst_SalvataggioGuasti : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { cartella_.reset(); }

    void OgniChiamataFallita_data();
    void OgniChiamataFallita();
    void MilleUccisioni();

private:
    EsitoDelSalvataggio Salva(const QByteArray &chiamata, int n, int causa, bool meta) const;
    QString File() const { return cartella_->filePath(QStringLiteral("Fattura.Mod")); }

    std::unique_ptr<QTemporaryDir> cartella_;
};

namespace {

constexpr int ElementiVecchi = 3;
constexpr int ElementiNuovi = 100;

QByteArray Byte(int elementi)
{
    return FileModello::Componi(ModelloDiProva(elementi), QLocale::c());
}

/// Names of temporary files in the folder.
QSet<QString> RestiIn(const QString &cartella)
{
    QStringList nomi = NomiIn(cartella);
    nomi.removeAll(QStringLiteral("Fattura.Mod"));
    return {nomi.constBegin(), nomi.constEnd()};
}

/// Makes what killed children left behind as old as if an hour had passed.
void InvecchiaResti(const QString &cartella)
{
    for (const QString &nome : RestiIn(cartella)) {
        Invecchia(cartella + u'/' + nome, 3600);
    }
}

/// A child of this process that saves two models in turn, the given one first, until it is killed.
class Salvatore
{
public:
    Salvatore(const QString &percorso, const Modello &primo, const Modello &secondo)
    {
        if (pipe(tubo_) != 0) {
            qFatal("no pipe");
        }
        figlio_ = fork();
        if (figlio_ < 0) {
            qFatal("no child");
        }
        if (figlio_ == 0) {
            for (;;) {
                Annuncia();
                FileModello::Salva(primo, percorso, QLocale::c());
                Annuncia();
                FileModello::Salva(secondo, percorso, QLocale::c());
            }
        }
        // Held by the child alone, so that its end is the end of the pipe.
        close(tubo_[1]);
    }
    ~Salvatore()
    {
        if (!finito_) {
            Uccide();
        }
        close(tubo_[0]);
    }
    Salvatore(const Salvatore &) = delete;
    Salvatore &operator=(const Salvatore &) = delete;

    /// Waits until the next save begins.
    bool AttendeUnSalvataggio() const
    {
        constexpr int Millisecondi = 30'000;
        pollfd attesa{tubo_[0], POLLIN, 0};
        char byte = 0;
        return poll(&attesa, 1, Millisecondi) == 1 && read(tubo_[0], &byte, 1) == 1;
    }

    /// False when it had ended by itself, which a failed save would make it do.
    bool Uccide()
    {
        finito_ = true;
        int stato = 0;
        return kill(figlio_, SIGKILL) == 0 && waitpid(figlio_, &stato, 0) == figlio_ &&
               WIFSIGNALED(stato) && WTERMSIG(stato) == SIGKILL;
    }

    /// After the kill: how many saves began beyond those waited for.
    int AltriIniziati() const
    {
        int iniziati = 0;
        while (AttendeUnSalvataggio()) {
            ++iniziati;
        }
        return iniziati;
    }

private:
    void Annuncia() const
    {
        const char byte = 's';
        if (write(tubo_[1], &byte, 1) != 1) {
            _exit(1);
        }
    }

    int tubo_[2]{};
    pid_t figlio_ = -1;
    bool finito_ = false;
};

} // namespace

void tst_SalvataggioGuasti::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    QVERIFY(cartella_->isValid());
}

EsitoDelSalvataggio tst_SalvataggioGuasti::Salva(const QByteArray &chiamata, int n, int causa,
                                                 bool meta) const
{
    const QByteArrayList modi = meta ? QByteArrayList{"GUASTI_META"} : QByteArrayList();
    const EsitoDelSalvataggio esito = SalvaConGuasti({cartella_->path(), chiamata, n, causa, modi},
                                                     {File(), QString::number(ElementiNuovi)});
    return esito.finito ? esito : EsitoDelSalvataggio();
}

void tst_SalvataggioGuasti::OgniChiamataFallita_data()
{
    QTest::addColumn<QByteArray>("chiamata");
    QTest::addColumn<int>("causa");
    QTest::addColumn<int>("errore");
    QTest::addColumn<bool>("meta");
    QTest::addColumn<bool>("esiste");

    struct Causa
    {
        const char *nome;
        int numero;
        int errore;
    };
    for (const bool esiste : {true, false}) {
        const char *su = esiste ? "modello che c'e'" : "modello nuovo";
        for (const Causa &causa : {Causa{"disco pieno", ENOSPC, 61}, Causa{"guasto", EIO, 57},
                                   Causa{"nessun permesso", EACCES, 75}}) {
            for (const char *chiamata : {"open", "write", "sync", "rename"}) {
                QTest::addRow("%s, %s, %s", chiamata, causa.nome, su)
                    << QByteArray(chiamata) << causa.numero << causa.errore << false << esiste;
            }
            QTest::addRow("write a meta', %s, %s", causa.nome, su)
                << QByteArray("write") << causa.numero << causa.errore << true << esiste;
        }
    }
}

void tst_SalvataggioGuasti::OgniChiamataFallita()
{
    QFETCH(QByteArray, chiamata);
    QFETCH(int, causa);
    QFETCH(int, errore);
    QFETCH(bool, meta);
    QFETCH(bool, esiste);
    const QByteArray vecchi = Byte(ElementiVecchi);
    const QStringList prima = esiste ? QStringList{QStringLiteral("Fattura.Mod")} : QStringList();
    const auto comePrima = [&] {
        if (esiste) {
            ScriveFile(File(), vecchi);
        } else {
            QFile::remove(File());
        }
    };
    comePrima();

    int n = 1;
    int colFileNuovo = 0;
    EsitoDelSalvataggio esito = Salva(chiamata, n, causa, meta);
    for (; esito.guasto; esito = Salva(chiamata, ++n, causa, meta)) {
        if (QFile::exists(File()) && ByteDi(File()) == Byte(ElementiNuovi)) {
            // Only forcing the folder onto the medium comes after the new file has its place; a
            // folder that may not be looked into need not be.
            ++colFileNuovo;
            QCOMPARE(esito.stato, chiamata == "open" && causa == EACCES ? 0 : errore);
            QCOMPARE(NomiIn(cartella_->path()), QStringList{QStringLiteral("Fattura.Mod")});
            comePrima();
            continue;
        }
        QCOMPARE(esito.stato, errore);
        QCOMPARE(NomiIn(cartella_->path()), prima);
        if (esiste) {
            QCOMPARE(ByteDi(File()), vecchi);
        }
    }
    QVERIFY2(n > 1, "the fault never happened");
    QCOMPARE(colFileNuovo, chiamata == "open" || chiamata == "sync" ? 1 : 0);
    QCOMPARE(esito.stato, 0);
    QCOMPARE(NomiIn(cartella_->path()), QStringList{QStringLiteral("Fattura.Mod")});
    QCOMPARE(ByteDi(File()), Byte(ElementiNuovi));
}

void tst_SalvataggioGuasti::MilleUccisioni()
{
    constexpr int Uccisioni = 1000;
    const Modello vecchio = ModelloDiProva(ElementiVecchi);
    const Modello nuovo = ModelloDiProva(ElementiNuovi);
    const QByteArray vecchi = Byte(ElementiVecchi);
    const QByteArray nuovi = Byte(ElementiNuovi);
    ScriveFile(File(), vecchi);

    // However slow machine and build are, and however their speed changes meanwhile, about half of
    // the kills shall come before a child's first save is done and half after: the wait follows
    // what the kills find.
    constexpr double Passo = 1.03;
    double microsecondi = 2000;

    QRandomGenerator caso(20260101);
    int conResti = 0;
    int cambiati = 0;
    qsizetype restiAlMassimo = 0;
    QByteArray ultimi = ByteDi(File());
    for (int i = 0; i < Uccisioni; ++i) {
        InvecchiaResti(cartella_->path());
        const QSet<QString> prima = RestiIn(cartella_->path());
        Salvatore salvatore(File(), ultimi == vecchi ? nuovo : vecchio,
                            ultimi == vecchi ? vecchio : nuovo);
        QVERIFY(salvatore.AttendeUnSalvataggio());
        usleep(static_cast<useconds_t>(caso.bounded(microsecondi)));
        QVERIFY2(salvatore.Uccide(), "a save failed by itself");

        const QByteArray trovati = ByteDi(File());
        QVERIFY2(trovati == vecchi || trovati == nuovi,
                 "torn after " + QByteArray::number(i) + " kills");
        const QSet<QString> dopo = RestiIn(cartella_->path());
        conResti += (dopo - prima).isEmpty() ? 0 : 1;
        restiAlMassimo = std::max(restiAlMassimo, dopo.size());
        cambiati += trovati != ultimi ? 1 : 0;
        microsecondi *= salvatore.AltriIniziati() > 0 ? 1 / Passo : Passo;
        microsecondi = std::clamp(microsecondi, 100.0, 100'000.0);
        ultimi = trovati;
    }
    // The kills did hit saves on their way, before and after the rename.
    QVERIFY2(conResti > Uccisioni / 20, QByteArray::number(conResti));
    QVERIFY2(cambiati > Uccisioni / 20, QByteArray::number(cambiati));

    // What they left behind went with the saves that followed, but for kills before the sweeping.
    QVERIFY2(restiAlMassimo < conResti / 4, QByteArray::number(restiAlMassimo));
    InvecchiaResti(cartella_->path());
    FileModello::Salva(ModelloDiProva(ElementiNuovi), File(), QLocale::c());
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
}

QTEST_GUILESS_MAIN(tst_SalvataggioGuasti)
#include "tst_SalvataggioGuasti.moc"
