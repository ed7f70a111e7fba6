#include "documento/Documento.h"
#include "documento/ModelloSuFile.h"
#include "documento/Passo.h"
#include "model/FileModello.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

/// Answers as it is told to, and keeps what it was asked.
class Risponditore final : public ModelloSuFile::Interlocutore
{
public:
    void Avvisa(const QString &testo) override { Avvisi.append(testo); }
    Risposta RiprendeLavoro(const CopiaRecupero::Trovata &lavoro) override
    {
        Offerti.append(lavoro.modello.Tipo);
        return Riprende;
    }
    bool SostituisceFileCambiato() override
    {
        ++ChiestoDiSostituire;
        return Sostituisce;
    }

    Risposta Riprende = Risposta::No;
    bool Sostituisce = false;
    QStringList Avvisi;
    QStringList Offerti;
    int ChiestoDiSostituire = 0;
};

/// A folder of models with one in it, and a folder for the safety copies.
struct Banco
{
    Banco()
    {
        Modello modello;
        modello.Tipo = QStringLiteral("fattura");
        FileModello::Salva(modello, Percorso());
    }

    QString Cartella() const { return Archivio.path() + u'/'; }
    QString Percorso() const { return Cartella() + QStringLiteral("Prova.Mod"); }
    QString TipoSuDisco() const
    {
        Modello modello;
        FileModello::Carica(modello, Percorso());
        return modello.Tipo;
    }
    QString CartellaCopie() const { return Archivio.filePath(QStringLiteral("copie")); }
    qsizetype Copie() const
    {
        return QDir(CartellaCopie()).entryList({QStringLiteral("*.recupero")}, QDir::Files).size();
    }

    QTemporaryDir Archivio;
};

/// One opening of that model.
struct Apertura
{
    explicit Apertura(const Banco &banco, const QString &nome = QStringLiteral("Prova.Mod"))
        : File(documento, banco.Cartella(), nome, banco.CartellaCopie(), Utente)
    {
    }

    void ScriveTipo(const QString &tipo)
    {
        Passo passo(documento, QStringLiteral("tipo"));
        passo.ImpostaTipo(tipo);
    }

    Documento documento;
    Risponditore Utente;
    ModelloSuFile File;
};

/// What a program that dies leaves: a model modified and not saved.
void LasciaLavoro(const Banco &banco, const QString &tipo)
{
    Apertura morta(banco);
    QVERIFY(morta.File.Apre());
    morta.ScriveTipo(tipo);
    QCOMPARE(banco.Copie(), 1);
}

} // namespace

/// The file of the open model, without any window.
class tst_ModelloSuFile : public QObject
{
    Q_OBJECT
private slots:
    void ApreESalva();
    void ConLaVirgolaRestaSoloIlBordoDelleCornici();
    void GliSlotOltreIlContatoreRestano();
    void IlNomeNonGuardaLeMaiuscole();
    void UnFileCheNonCeSiDice();
    void OgniModificaConclusaVaNellaCopia();
    void ChiudendoLaCopiaSeNeVa();
    void IlLavoroRimastoSiRiprende();
    void IlLavoroRifiutatoRestaFinoAlSalvataggio();
    void AnnullandoNonSiApre();
    void UnFileCambiatoSiSostituisceSoloConIlConsenso();
    void LaCopiaMancataSiDiceUnaVolta();
    void UnSalvataggioFallitoNominaIlFile();
    void Elimina();
};

void tst_ModelloSuFile::ApreESalva()
{
    const Banco banco;
    Apertura apertura(banco);
    QVERIFY(apertura.File.Apre());
    QCOMPARE(apertura.documento.Aperto().Tipo, QStringLiteral("fattura"));
    QCOMPARE(apertura.documento.Aperto().NomeFile, QStringLiteral("Prova.Mod"));
    QVERIFY(!apertura.documento.Variato());
    apertura.ScriveTipo(QStringLiteral("bolla"));
    QVERIFY(apertura.documento.Variato());
    QVERIFY(apertura.File.Salva());
    QVERIFY(!apertura.documento.Variato());
    QCOMPARE(banco.TipoSuDisco(), QStringLiteral("bolla"));
    QCOMPARE(banco.Copie(), 0);
    QCOMPARE(apertura.Utente.Avvisi, QStringList());
}

void tst_ModelloSuFile::ConLaVirgolaRestaSoloIlBordoDelleCornici()
{
    const Banco banco;
    {
        Modello modello;
        modello.Righe.yInizio = 101.5;
        modello.Cornici[modello.AggiungeCornice(10, 20, 1, 2)].Bordo = 1.5;
        Immagine &immagine = modello.Immagini[modello.AggiungeImmagine(12.5, 30)];
        immagine.Nome = QStringLiteral("logo.bmp");
        immagine.Bordo = 2.5;
        FileModello::Salva(modello, banco.Percorso());
    }
    const QLocale precedente;
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    {
        Apertura apertura(banco);
        QVERIFY(apertura.File.Apre());
        QCOMPARE(apertura.documento.Aperto().Righe.yInizio, 101.5);
        QCOMPARE(apertura.documento.Aperto().Immagini[1].X, 12.5);
        apertura.ScriveTipo(QStringLiteral("bolla"));
        QVERIFY(apertura.File.Salva());
    }
    QFile file(banco.Percorso());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> righe = file.readAll().split('\n');
    QCOMPARE(righe.value(7), QByteArray(" 101,5 \r"));
    QVERIFY(righe.contains("12,5\r"));
    QVERIFY(righe.contains("2,5\r"));
    QVERIFY(righe.contains("1.5\r"));
    Apertura dopo(banco);
    const bool aperto = dopo.File.Apre();
    QLocale::setDefault(precedente);
    QVERIFY(aperto);
    QCOMPARE(dopo.documento.Aperto().Righe.yInizio, 101.0);
    QCOMPARE(dopo.documento.Aperto().Immagini[1].X, 12.0);
    QCOMPARE(dopo.documento.Aperto().Immagini[1].Bordo, 2.0);
    QCOMPARE(dopo.documento.Aperto().Cornici[1].Bordo, 1.5);
}

void tst_ModelloSuFile::GliSlotOltreIlContatoreRestano()
{
    const Banco banco;
    const QString altro = QStringLiteral("Altro.Mod");
    {
        Modello modello;
        for (int i = 0; i < 2; ++i) {
            modello.Cornici[modello.AggiungeCornice(10, 20, i, 2)].ColoreTesto = 5;
        }
        FileModello::Salva(modello, banco.Cartella() + altro);
    }
    // One program opens one model after the other.
    Documento documento;
    Risponditore utente;
    ModelloSuFile conCornici(documento, banco.Cartella(), altro, banco.CartellaCopie(), utente);
    QVERIFY(conCornici.Apre());
    conCornici.Chiude();
    ModelloSuFile senza(documento, banco.Cartella(), QStringLiteral("Prova.Mod"),
                        banco.CartellaCopie(), utente);
    QVERIFY(senza.Apre());
    QCOMPARE(documento.Aperto().NumCornici, qint16(0));
    Passo passo(documento, QStringLiteral("aggiunge"));
    const Chiave nuova = passo.Aggiunge(Genere::Cornice, {10, 10}, QTime(10, 5, 7));
    QCOMPARE(nuova.indice, 1);
    // The text colour is the one value that a new frame does not set.
    QCOMPARE(documento.Aperto().Cornici[1].ColoreTesto, qint16(5));
}

void tst_ModelloSuFile::IlNomeNonGuardaLeMaiuscole()
{
    const Banco banco;
    Apertura apertura(banco, QStringLiteral("PROVA.mod"));
    QVERIFY(apertura.File.Apre());
    apertura.ScriveTipo(QStringLiteral("bolla"));
    QVERIFY(apertura.File.Salva());
    QCOMPARE(QDir(banco.Cartella()).entryList({QStringLiteral("*.mod")}, QDir::Files),
             QStringList{QStringLiteral("Prova.Mod")});
    QCOMPARE(banco.TipoSuDisco(), QStringLiteral("bolla"));
}

void tst_ModelloSuFile::UnFileCheNonCeSiDice()
{
    const Banco banco;
    Apertura apertura(banco, QStringLiteral("Manca.Mod"));
    QVERIFY(!apertura.File.Apre());
    QCOMPARE(apertura.Utente.Avvisi.size(), 1);
    QVERIFY(apertura.Utente.Avvisi.constFirst().startsWith(
        QStringLiteral("impossibile leggere file Manca.Mod\n53\n")));
}

void tst_ModelloSuFile::OgniModificaConclusaVaNellaCopia()
{
    const Banco banco;
    Apertura apertura(banco);
    QVERIFY(apertura.File.Apre());
    QCOMPARE(banco.Copie(), 0);
    apertura.ScriveTipo(QStringLiteral("uno"));
    QCOMPARE(banco.Copie(), 1);
    apertura.documento.Annulla();
    QCOMPARE(banco.Copie(), 1);
    QCOMPARE(banco.TipoSuDisco(), QStringLiteral("fattura"));
}

void tst_ModelloSuFile::ChiudendoLaCopiaSeNeVa()
{
    const Banco banco;
    Apertura apertura(banco);
    QVERIFY(apertura.File.Apre());
    apertura.ScriveTipo(QStringLiteral("uno"));
    apertura.File.Chiude();
    QCOMPARE(banco.Copie(), 0);
    apertura.ScriveTipo(QStringLiteral("due"));
    QCOMPARE(banco.Copie(), 0);
}

void tst_ModelloSuFile::IlLavoroRimastoSiRiprende()
{
    const Banco banco;
    LasciaLavoro(banco, QStringLiteral("lavoro"));
    Apertura apertura(banco);
    apertura.Utente.Riprende = ModelloSuFile::Interlocutore::Risposta::Si;
    QVERIFY(apertura.File.Apre());
    QCOMPARE(apertura.Utente.Offerti, QStringList{QStringLiteral("lavoro")});
    QCOMPARE(apertura.documento.Aperto().Tipo, QStringLiteral("lavoro"));
    QCOMPARE(apertura.documento.Aperto().NomeFile, QStringLiteral("Prova.Mod"));
    QVERIFY(apertura.documento.Variato());
    QCOMPARE(banco.Copie(), 1); // this opening's own
    QVERIFY(apertura.File.Salva());
    QCOMPARE(banco.TipoSuDisco(), QStringLiteral("lavoro"));
    QCOMPARE(banco.Copie(), 0);
}

void tst_ModelloSuFile::IlLavoroRifiutatoRestaFinoAlSalvataggio()
{
    const Banco banco;
    LasciaLavoro(banco, QStringLiteral("lavoro"));
    Apertura apertura(banco);
    QVERIFY(apertura.File.Apre());
    QCOMPARE(apertura.documento.Aperto().Tipo, QStringLiteral("fattura"));
    QVERIFY(!apertura.documento.Variato());
    QCOMPARE(banco.Copie(), 1);
    QVERIFY(apertura.File.Salva());
    QCOMPARE(banco.Copie(), 0);
}

void tst_ModelloSuFile::AnnullandoNonSiApre()
{
    const Banco banco;
    LasciaLavoro(banco, QStringLiteral("lavoro"));
    Apertura apertura(banco);
    apertura.Utente.Riprende = ModelloSuFile::Interlocutore::Risposta::Annulla;
    QVERIFY(!apertura.File.Apre());
    QCOMPARE(banco.Copie(), 1);
}

void tst_ModelloSuFile::UnFileCambiatoSiSostituisceSoloConIlConsenso()
{
    const Banco banco;
    Apertura apertura(banco);
    QVERIFY(apertura.File.Apre());
    Modello altrui;
    altrui.Tipo = QStringLiteral("altrui");
    FileModello::Salva(altrui, banco.Percorso());
    apertura.ScriveTipo(QStringLiteral("mio"));
    QVERIFY(!apertura.File.Salva());
    QCOMPARE(apertura.Utente.ChiestoDiSostituire, 1);
    QCOMPARE(banco.TipoSuDisco(), QStringLiteral("altrui"));
    QVERIFY(apertura.documento.Variato());
    apertura.Utente.Sostituisce = true;
    QVERIFY(apertura.File.Salva());
    QCOMPARE(banco.TipoSuDisco(), QStringLiteral("mio"));
    QVERIFY(apertura.File.Salva());
    QCOMPARE(apertura.Utente.ChiestoDiSostituire, 2); // what we wrote is nobody else's
}

void tst_ModelloSuFile::LaCopiaMancataSiDiceUnaVolta()
{
    const Banco banco;
    QFile ostacolo(banco.CartellaCopie()); // a file where the folder should be
    QVERIFY(ostacolo.open(QIODevice::WriteOnly));
    Apertura apertura(banco);
    QVERIFY(apertura.File.Apre());
    apertura.ScriveTipo(QStringLiteral("uno"));
    apertura.ScriveTipo(QStringLiteral("due"));
    QCOMPARE(apertura.Utente.Avvisi.size(), 1);
    QVERIFY(apertura.Utente.Avvisi.constFirst().startsWith(
        QStringLiteral("copia di recupero non scritta: ")));
    QVERIFY(ostacolo.remove());
    apertura.ScriveTipo(QStringLiteral("tre"));
    QCOMPARE(banco.Copie(), 1);
    const QDir copie(banco.CartellaCopie());
    const QString copia = copie.entryList({QStringLiteral("*.recupero")}, QDir::Files).value(0);
    QVERIFY(QFile::remove(copie.filePath(copia)));
    QVERIFY(copie.mkdir(copia)); // a folder where the file should be
    apertura.ScriveTipo(QStringLiteral("quattro"));
    QCOMPARE(apertura.Utente.Avvisi.size(), 2); // it had worked again
}

void tst_ModelloSuFile::UnSalvataggioFallitoNominaIlFile()
{
    const Banco banco;
    Apertura apertura(banco);
    QVERIFY(apertura.File.Apre());
    apertura.ScriveTipo(QStringLiteral("mio"));
    QVERIFY(QFile::setPermissions(banco.Percorso(), QFile::ReadOwner));
    try {
        apertura.File.Salva();
        QFAIL("a file that nobody may write has been written");
    } catch (const ErroreSistema &errore) {
        QCOMPARE(errore.numero, ErroreSistema::AccessoFile);
        QVERIFY(errore.descrizione.endsWith(QStringLiteral("\nsalvataggio del file Prova.Mod")));
    }
    QVERIFY(apertura.documento.Variato());
    QCOMPARE(banco.TipoSuDisco(), QStringLiteral("fattura"));
}

void tst_ModelloSuFile::Elimina()
{
    const Banco banco;
    Apertura apertura(banco);
    QVERIFY(apertura.File.Apre());
    apertura.ScriveTipo(QStringLiteral("uno"));
    apertura.File.Elimina();
    QVERIFY(!QFile::exists(banco.Percorso()));
    QCOMPARE(banco.Copie(), 0);
    QVERIFY(!apertura.documento.Variato());
}

QTEST_GUILESS_MAIN(tst_ModelloSuFile)
#include "tst_ModelloSuFile.moc"
