#include "RecuperoDiProva.h"
#include "documento/CopiaRecupero.h"
#include "editor/Form2.h"
#include "model/FileModello.h"
#include "support/ArchivioDiProva.h"
#include "support/DocumentoDiProva.h"
#include "support/FileDiProva.h"
#include "support/Finestre.h"
#include "support/Robot.h"
#include "support/guasti/GuastiDisco.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <cstdio>

namespace {

constexpr QLatin1String ArgomentoFiglio("--modifica");

/// The child process: edits without end, and says the number of each finished edit.
int ModificaSenzaFine(const QString &cartella, const QString &nome)
{
    StatoProgramma stato;
    stato.CartellaModelli = cartella;
    stato.NomeFile = nome;
    stato.ElencoFont = {QStringLiteral("Arial")};
    Form2 editor(stato);
    if (!editor.Form_Load()) {
        return 1;
    }
    for (int n = 1;; ++n) {
        SpostaCampo(stato, n);
        std::printf("%d\n", n);
        std::fflush(stdout);
    }
}

} // namespace

class tst_Recupero : public QObject
{
    Q_OBJECT
private slots:
    void NessunaCopiaSenzaModifiche();
    void CopiaAllaFineDiOgniModifica();
    void CopiaAncheDaiControlliDellEditor();
    void CopiaPrimaCheIlDialogoSiChiuda();
    void UnProgrammaVivoTieneLaSua();
    void DiscoPieno();
    void CartellaImpossibile();
    void ViaDopoIlSalvataggio();
    void ViaDopoLaChiusuraSenzaSalvare();
    void FileCambiatoDaAltriPrimaDiSalvare();
    void FileGiganteDaAltriPrimaDiSalvare();
    void SecondoSalvataggioNonChiede();
    void FileSparitoPrimaDiSalvare();
    void SalvatoNonostanteLErroreNonChiede();
    void DuecentoUccisioni();
};

void tst_Recupero::NessunaCopiaSenzaModifiche()
{
    EditorAperto prova(3);
    emit prova.Stato().documento.ModificaConclusa();
    QVERIFY(Copie(prova).isEmpty());
}

void tst_Recupero::CopiaAllaFineDiOgniModifica()
{
    EditorAperto prova(1);
    {
        Passo passo(prova.Stato().documento, {});
        passo.Trascina({Genere::Campo, 1}, {77, 20});
        passo.Mostra();
        QVERIFY2(Copie(prova).isEmpty(), "a move step is no finished edit");
    }
    QCOMPARE(Copie(prova).size(), 1);
    QVERIFY2(QDir(prova.Stato().CartellaModelli)
                     .entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot) ==
                 QStringList{prova.Stato().NomeFile},
             "the archive holds the model and nothing else");
    const auto trovate = CopieDi(prova).Cerca();
    QCOMPARE(trovate.size(), 1);
    QCOMPARE(trovate.constFirst().modello.Campi[1].X, 77.0);
    QVERIFY(!trovate.constFirst().fileCambiato);
}

void tst_Recupero::CopiaAncheDaiControlliDellEditor()
{
    const auto lasciaCopia = [](const std::function<void(Form2 &)> &azione) {
        ArchivioDiProva prova;
        prova.Riempie(1);
        prova.Scrive();
        Form2 editor(prova.Stato());
        return editor.Form_Load() && (azione(editor), Copie(prova).size() == 1);
    };
    QVERIFY(lasciaCopia([](Form2 &e) { Preme(e, "ConfermaPosizioneRighe"); }));
    QVERIFY(lasciaCopia([](Form2 &e) { Preme(e, "Command2"); }));
    QVERIFY(lasciaCopia([](Form2 &e) { Preme(e, "SfondoSpostaDx"); }));
    QVERIFY(lasciaCopia([](Form2 &e) {
        auto *tipo = Trova<QLineEdit>(e, "Tipo");
        QTest::keyClicks(tipo, QStringLiteral("x"));
        QTest::keyClick(tipo, Qt::Key_Return);
    }));
    QVERIFY(lasciaCopia([](Form2 &e) {
        Robot robot;
        robot.Annulla();
        Preme(e, "Aggiungicampo");
    }));
    QVERIFY(lasciaCopia([](Form2 &e) {
        Robot robot;
        robot.Agisce([](QDialog *d) { Preme(*d, "PConfemaCampo"); });
        e.ApreFrmCampo(1);
    }));
    QVERIFY(lasciaCopia([](Form2 &e) {
        Robot robot;
        robot.Agisce([](QDialog *d) { Preme(*d, "Elimina"); }).Si();
        e.ApreFrmCornice(1);
    }));
}

void tst_Recupero::CopiaPrimaCheIlDialogoSiChiuda()
{
    EditorAperto prova(3);
    Robot robot;
    qsizetype copie = 0;
    robot.Agisce([&](QDialog *dialogo) {
        Preme(*dialogo, "Command2"); // the font for all fields leaves the dialog open
        copie = Copie(prova).size();
        dialogo->reject();
    });
    prova.Editor().ApreFrmCampo(1);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(copie, qsizetype(1));
}

void tst_Recupero::UnProgrammaVivoTieneLaSua()
{
    // On another machine that shares the home, where the one instance is not seen.
    ArchivioDiProva prova;
    prova.Riempie(2);
    prova.Scrive();
    QProcess altro;
    altro.start(QCoreApplication::applicationFilePath(),
                {ArgomentoFiglio, prova.Stato().CartellaModelli, prova.Stato().NomeFile});
    QVERIFY(altro.waitForReadyRead(30000));
    {
        Form2 editor(prova.Stato());
        Robot robot;
        QVERIFY(editor.Form_Load());
        QVERIFY2(robot.Testi().isEmpty(), "what its owner is still at is not offered");
        robot.Si();
        Preme(editor, "Salva");
        QVERIFY(robot.Soddisfatto());
        QCOMPARE(Copie(prova).size(), 1);
    }
    altro.kill();
    QVERIFY(altro.waitForFinished(30000));
    Form2 editor(prova.Stato());
    Robot robot;
    robot.Si();
    QVERIFY(editor.Form_Load());
    QVERIFY(robot.Soddisfatto());
    QVERIFY(editor.Variato());
}

void tst_Recupero::DiscoPieno()
{
    EditorAperto prova(2);
    SpostaCampo(prova.Stato(), 50);
    Robot robot;
    robot.Ok();
    {
        const LimiteFile poco(prova.ByteDelFile().size() / 2);
        SpostaCampo(prova.Stato(), 51);
        SpostaCampo(prova.Stato(), 52);
    }
    // Told once, and the copy of the edit before stands whole.
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi(),
             QStringList{QStringLiteral("copia di recupero non scritta: errore 61 Disco pieno")});
    QCOMPARE(CopieDi(prova).Cerca().constFirst().modello.Campi[1].X, 50.0);
    // With room again, the next edit is kept, and a new lack of it told anew.
    SpostaCampo(prova.Stato(), 53);
    {
        robot.Ok();
        const LimiteFile poco(100);
        SpostaCampo(prova.Stato(), 54);
    }
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().size(), 2);
    QCOMPARE(CopieDi(prova).Cerca().constFirst().modello.Campi[1].X, 53.0);
    QCOMPARE(Copie(prova).size(), 1);
}

void tst_Recupero::CartellaImpossibile()
{
    ArchivioDiProva prova;
    prova.Riempie(2);
    prova.Scrive();
    // A file where the folder should be: nothing can be written there, not even by root.
    QFile ostacolo(prova.CartellaStato());
    QVERIFY(ostacolo.open(QIODevice::WriteOnly));
    ostacolo.close();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Robot robot;
    robot.Ok().Si();
    SpostaCampo(prova.Stato(), 50);
    SpostaCampo(prova.Stato(), 51);
    QCOMPARE(robot.Testi().size(), 1);
    QVERIFY2(robot.Testi().constFirst().startsWith(
                 QStringLiteral("copia di recupero non scritta: errore ")),
             qPrintable(robot.Testi().constFirst()));
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Riletto().Campi[1].X, 51.0);
}

void tst_Recupero::ViaDopoIlSalvataggio()
{
    LavoroLasciato prova(1);
    Form2 editor(prova.Stato());
    Robot robot;
    robot.No().Si();
    QVERIFY(editor.Form_Load());
    SpostaCampo(prova.Stato(), 60);
    QCOMPARE(Copie(prova).size(), 2);
    Preme(editor, "Salva");
    QVERIFY(Copie(prova).isEmpty());
    SpostaCampo(prova.Stato(), 61);
    QCOMPARE(Copie(prova).size(), 1);
}

void tst_Recupero::ViaDopoLaChiusuraSenzaSalvare()
{
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    editor.show();
    SpostaCampo(prova.Stato(), 60);
    Robot robot;
    robot.No();
    QVERIFY(editor.close());
    QVERIFY(Copie(prova).isEmpty());
}

void tst_Recupero::FileCambiatoDaAltriPrimaDiSalvare()
{
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    Modello altrui = prova.Aperto();
    altrui.Tipo = QStringLiteral("di un altro");
    FileModello::Salva(altrui, prova.Percorso(), QLocale::c());
    const QByteArray altro = prova.ByteDelFile();
    Robot robot;
    robot.Si().No();
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constLast(),
             QStringLiteral("Il file Prova.Mod è stato cambiato da un altro programma dopo "
                            "l'apertura.\nLO VUOI SOSTITUIRE?"));
    QCOMPARE(robot.Predefiniti().constLast(), QStringLiteral("&No"));
    QCOMPARE(prova.ByteDelFile(), altro);
    QVERIFY(editor.Variato());
    robot.Si().Si();
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(prova.Riletto().Tipo.isEmpty());
}

void tst_Recupero::FileGiganteDaAltriPrimaDiSalvare()
{
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    QVERIFY(QFile::resize(prova.Percorso(), FileModello::DimensioneMassima + 1));
    Robot robot;
    robot.Si().No();
    Preme(editor, "Salva");
    QVERIFY2(robot.Soddisfatto(), "too large to be read, it is changed all the same");
}

void tst_Recupero::SecondoSalvataggioNonChiede()
{
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    Robot robot;
    robot.Si().Si();
    Preme(editor, "Salva");
    SpostaCampo(prova.Stato(), 60);
    Preme(editor, "Salva");
    QVERIFY2(robot.Soddisfatto(), "the program's own save is nobody else's change");
    QCOMPARE(prova.Riletto().Campi[1].X, 60.0);
}

void tst_Recupero::FileSparitoPrimaDiSalvare()
{
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    QVERIFY(QFile::remove(prova.Percorso()));
    Robot robot;
    robot.Si();
    Preme(editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Riletto().NumCampi, qint16(1));
}

void tst_Recupero::SalvatoNonostanteLErroreNonChiede()
{
    EditorAperto prova(1);
    Form2 &editor = prova.Editor();
    Modifica(prova.Stato(), [&](Modello &modello) { modello.Campi[1].X = 60; });
    Robot robot;
    robot.Si().Ok();
    {
        const GuastiDisco guasto(GuastiDisco::Chiamata::SincronizzaCartella, EIO);
        Preme(editor, "Salva");
    }
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constLast(), QStringLiteral("errore 57 Errore di I/O della periferica\n"
                                                       "salvataggio del file Prova.Mod"));
    QVERIFY(editor.Variato());
    QVERIFY2(prova.Riletto().Campi[1].X == 60.0, "the new file had its place already");
    SpostaCampo(prova.Stato(), 70);
    robot.Si();
    Preme(editor, "Salva");
    QVERIFY2(robot.Soddisfatto(), "nobody else has changed the file");
    QCOMPARE(prova.Riletto().Campi[1].X, 70.0);
}

void tst_Recupero::DuecentoUccisioni()
{
    ArchivioDiProva prova;
    prova.Riempie(30);
    prova.Scrive();
    const QByteArray intatto = prova.ByteDelFile();
    constexpr int Uccisioni = 200;
    for (int giro = 0; giro < Uccisioni; ++giro) {
        QProcess figlio;
        figlio.start(QCoreApplication::applicationFilePath(),
                     {ArgomentoFiglio, prova.Stato().CartellaModelli, prova.Stato().NomeFile});
        QVERIFY(figlio.waitForReadyRead(30000));
        QTest::qWait(QRandomGenerator::global()->bounded(20));
        figlio.kill();
        QVERIFY(figlio.waitForFinished(30000));
        const QList<QByteArray> righe = figlio.readAllStandardOutput().split('\n');
        // The last line may be torn; the one before it is a finished edit.
        const int finita = righe.value(righe.size() - 2).toInt();
        QVERIFY(finita > 0);
        CopiaRecupero copie = CopieDi(prova);
        const auto trovate = copie.Cerca();
        QCOMPARE(trovate.size(), 1);
        const double ripresa = trovate.constFirst().modello.Campi[1].X;
        // The edit after the last one told may have been finished too.
        QVERIFY2(ripresa == finita || ripresa == finita + 1,
                 qPrintable(QStringLiteral("%1 after %2").arg(ripresa).arg(finita)));
        QCOMPARE(trovate.constFirst().modello.NumImmagini, qint16(30));
        QCOMPARE(prova.ByteDelFile(), intatto);
        copie.SegnaOfferta(trovate.constFirst());
        copie.EliminaOfferte();
    }
    // What the kills left half-written goes, once it is old, with the next copy.
    const QString cartella = prova.CartellaStato() + QStringLiteral("/plakera");
    const auto lasciati = NomiIn(cartella).filter(QStringLiteral(".tmp")).size();
    QVERIFY2(lasciati > Uccisioni / 20, qPrintable(QString::number(lasciati)));
    for (const QString &nome : NomiIn(cartella)) {
        Invecchia(cartella + u'/' + nome, 3600);
    }
    ModificaEMuore(prova, 1);
    QCOMPARE(NomiIn(cartella), Copie(prova));
}

int main(int argc, char *argv[])
{
    QApplication applicazione(argc, argv);
    const QStringList argomenti = QCoreApplication::arguments();
    if (argomenti.value(1) == ArgomentoFiglio) {
        return ModificaSenzaFine(argomenti.value(2), argomenti.value(3));
    }
    tst_Recupero prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "tst_Recupero.moc"
