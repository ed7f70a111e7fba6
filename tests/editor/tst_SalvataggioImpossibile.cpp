#include "EditoreDiProva.h"
#include "model/FileModello.h"
#include "support/FileDiProva.h"
#include "support/guasti/GuastiDisco.h"

#include "support/DocumentoDiProva.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <cerrno>

#include <sys/stat.h>

/// What keeps a model from being saved while its editor is open: the user is told why, the model
/// counts as modified, the file stands as it was, and the save is made good once it can be.
class tst_SalvataggioImpossibile : public QObject
{
    Q_OBJECT
private slots:
    void SalvaDiceIlPerche_data();
    void SalvaDiceIlPerche();
    void ChiudendoNonSiPerdeNulla();
    void AttraversoUnCollegamento();
    void NonOltreQuantoSiRilegge();

private:
    /// So long as one lives, the model cannot be saved.
    using Ostacolo = std::shared_ptr<void>;
    using Ostacola = std::function<Ostacolo(const ArchivioDiProva &)>;
};

namespace {

void Permessi(const QString &percorso, mode_t permessi)
{
    QCOMPARE(chmod(QFile::encodeName(percorso).constData(), permessi), 0);
}

/// An ordinary user, to whom the path in the archive is read-only.
std::shared_ptr<void> SolaLettura(const ArchivioDiProva &archivio, const QString &percorso,
                                  mode_t chiuso, mode_t aperto)
{
    const QString modelli = archivio.Stato().CartellaModelli;
    Permessi(modelli + QStringLiteral("/../.."), 0755);
    Permessi(modelli, 0777);
    Permessi(percorso, chiuso);
    auto utente = std::make_shared<UtenteComune>();
    return {utente.get(), [utente, percorso, aperto](void *) mutable {
                utente.reset();
                Permessi(percorso, aperto);
            }};
}

std::shared_ptr<void> CartellaAltrove(const ArchivioDiProva &archivio)
{
    const QString cartella = QDir(archivio.Stato().CartellaModelli).absolutePath();
    QDir().rename(cartella, cartella + u'2');
    return {nullptr, [cartella](void *) { QDir().rename(cartella + u'2', cartella); }};
}

std::shared_ptr<void> CartellaAlPostoDelFile(const ArchivioDiProva &archivio)
{
    const QString file = archivio.Percorso();
    QFile::rename(file, file + u'2');
    QDir().mkdir(file);
    return {nullptr, [file](void *) {
                QDir().rmdir(file);
                QFile::rename(file + u'2', file);
            }};
}

/// So that nothing has been forced onto the medium, the bytes least of all.
template <int Causa>
std::shared_ptr<void> SincroniaFallita(const ArchivioDiProva &)
{
    return std::make_shared<GuastiDisco>(GuastiDisco::Chiamata::SincronizzaFile, Causa);
}

} // namespace

void tst_SalvataggioImpossibile::SalvaDiceIlPerche_data()
{
    QTest::addColumn<Ostacola>("ostacola");
    QTest::addColumn<QString>("messaggio");
    const QString pieno = QStringLiteral("errore 61 Disco pieno");
    for (const qint64 byte : {qint64(0), qint64(100), qint64(4096)}) {
        QTest::addRow("full disk after %lld bytes", byte)
            << Ostacola(
                   [byte](const ArchivioDiProva &) { return std::make_shared<LimiteFile>(byte); })
            << pieno;
    }
    QTest::newRow("full disk before the last byte")
        << Ostacola([](const ArchivioDiProva &archivio) {
               return std::make_shared<LimiteFile>(archivio.ByteDelFile().size() - 1);
           })
        << pieno;
    QTest::newRow("full disk, seen when forcing") << Ostacola(&SincroniaFallita<ENOSPC>) << pieno;
    QTest::newRow("fault when forcing")
        << Ostacola(&SincroniaFallita<EIO>)
        << QStringLiteral("errore 57 Errore di I/O della periferica");
    QTest::newRow("forcing refused")
        << Ostacola(&SincroniaFallita<EACCES>)
        << QStringLiteral("errore 75 Errore di accesso al percorso/file");
    QTest::newRow("read-only folder") << Ostacola([](const ArchivioDiProva &archivio) {
        return SolaLettura(archivio, archivio.Stato().CartellaModelli, 0555, 0755);
    }) << QStringLiteral("errore 75 Errore di accesso al percorso/file");
    QTest::newRow("read-only folder, a file to be rewritten, no place for the safety copy")
        << Ostacola([](const ArchivioDiProva &archivio) {
               Permessi(archivio.Percorso(), 0666);
               return SolaLettura(archivio, archivio.Stato().CartellaModelli, 0555, 0755);
           })
        << QStringLiteral(
               "errore 75 copia di recupero non scritta: Errore di accesso al percorso/file");
    QTest::newRow("read-only file") << Ostacola([](const ArchivioDiProva &archivio) {
        return SolaLettura(archivio, archivio.Percorso(), 0444, 0644);
    }) << QStringLiteral("errore 75 Errore di accesso al percorso/file");
    QTest::newRow("folder removed")
        << Ostacola(CartellaAltrove) << QStringLiteral("errore 76 Impossibile trovare il percorso");
    QTest::newRow("a folder in the place of the file")
        << Ostacola(CartellaAlPostoDelFile)
        << QStringLiteral("errore 75 Errore di accesso al percorso/file");
}

void tst_SalvataggioImpossibile::SalvaDiceIlPerche()
{
    QFETCH(const Ostacola, ostacola);
    QFETCH(const QString, messaggio);
    EditoreDiProva prova;
    prova.Archivio.Riempie(50); // more than 4096 bytes
    QVERIFY(prova.Apre());
    const QByteArray prima = prova.Archivio.ByteDelFile();
    const QStringList nomi = NomiIn(prova.Archivio.Stato().CartellaModelli);
    Modifica(prova.Archivio.Stato(), [&](Modello &modello) { modello.Campi[1].X = 77; });
    Robot robot;
    robot.Si().Ok();
    {
        const Ostacolo ostacolo = ostacola(prova.Archivio);
        Preme(*prova.Editor, "Salva");
    }
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constLast(),
             messaggio + QStringLiteral("\nsalvataggio del file Prova.Mod"));
    QVERIFY(prova.Editor->Variato());
    QCOMPARE(prova.Archivio.ByteDelFile(), prima);
    QCOMPARE(NomiIn(prova.Archivio.Stato().CartellaModelli), nomi);
    robot.Si();
    Preme(*prova.Editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!prova.Editor->Variato());
    QCOMPARE(prova.Archivio.Riletto().Campi[1].X, 77.0);
}

void tst_SalvataggioImpossibile::ChiudendoNonSiPerdeNulla()
{
    EditoreDiProva prova;
    prova.Archivio.Riempie(2);
    QVERIFY(prova.Apre());
    Modifica(prova.Archivio.Stato(), [&](Modello &modello) { modello.Campi[1].X = 77; });
    prova.Archivio.Stato().documento.SegnaVariato();
    Robot robot;
    robot.Si().Ok();
    {
        const LimiteFile poco(100);
        QVERIFY2(!prova.Editor->close(), "closing now would lose the work");
    }
    QVERIFY(robot.Soddisfatto());
    QVERIFY(prova.Editor->isVisible() && prova.Editor->Anteprima()->isVisible());
    robot.Si();
    QVERIFY(prova.Editor->close());
    QCOMPARE(prova.Archivio.Riletto().Campi[1].X, 77.0);
}

void tst_SalvataggioImpossibile::AttraversoUnCollegamento()
{
    EditoreDiProva prova;
    prova.Archivio.Riempie(1);
    prova.Archivio.Scrive();
    const QString vero = prova.Archivio.Percorso() + u'2';
    QVERIFY(QFile::rename(prova.Archivio.Percorso(), vero));
    QVERIFY(QFile::link(vero, prova.Archivio.Percorso()));
    QVERIFY(prova.ApreComeSta());
    Modifica(prova.Archivio.Stato(), [&](Modello &modello) { modello.Campi[1].X = 77; });
    Robot robot;
    robot.Si();
    Preme(*prova.Editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(QFileInfo(prova.Archivio.Percorso()).isSymLink());
    QCOMPARE(prova.Archivio.Riletto().Campi[1].X, 77.0);
}

void tst_SalvataggioImpossibile::NonOltreQuantoSiRilegge()
{
    // Lines that end in CR alone are written with CR LF: the file would grow beyond what is read.
    ArchivioDiProva prova;
    prova.Riempie(1);
    prova.Scrive();
    const QByteArray descrizione = prova.DaAprire().Immagini[1].Descrizione.toLatin1();
    QByteArray byte = prova.ByteDelFile().replace("\r\n", "\r");
    byte.insert(byte.indexOf(descrizione),
                QByteArray(FileModello::DimensioneMassima - byte.size(), 'x'));
    ScriveFile(prova.Percorso(), byte);
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    const QString perche =
        QStringLiteral("errore 7 Modello troppo grande: salvato, non si potrebbe più aprire");
    Robot robot;
    robot.Ok().Si().Ok();
    prova.Stato().documento.SegnaVariato();
    emit prova.Stato().documento.ModificaConclusa();
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constFirst(),
             QStringLiteral("copia di recupero non scritta: ") + perche);
    QCOMPARE(robot.Testi().constLast(),
             perche + QStringLiteral("\nsalvataggio del file Prova.Mod"));
    QVERIFY(editor.Variato());
    QVERIFY2(prova.ByteDelFile() == byte, "the file that can be opened stands");
    Modifica(prova.Stato(),
             [](Modello &modello) { modello.Immagini[1].Descrizione.chop(1'000'000); });
    robot.Si();
    Preme(editor, "Salva");
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QVERIFY(prova.Riletto().Immagini[1].Descrizione.endsWith(QLatin1String("xxx")));
}

QTEST_MAIN(tst_SalvataggioImpossibile)
#include "tst_SalvataggioImpossibile.moc"
