#include "RecuperoDiProva.h"
#include "documento/CopiaRecupero.h"
#include "model/FileModello.h"
#include "support/FileDiProva.h"
#include "support/guasti/GuastiDisco.h"

#include "support/DocumentoDiProva.h"

#include <QDir>
#include <QMessageBox>
#include <QTest>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

/// Models that no new file can take the place of: they are saved into the old one.
class tst_RiscritturaDelModello : public QObject
{
    Q_OBJECT

private slots:
    void ConDueNomi();
    void InUnaCartellaNonScrivibile();
    void RestatoIncompletoSiDice();
    void IncompletoSiChiudeSenzaPerdere();
    void InterrottaSiRiprende();
};

namespace {

QString AltroNome(const ArchivioDiProva &prova)
{
    const QString altro = prova.Stato().CartellaModelli + QStringLiteral("Altra.Mod");
    if (!QFile::exists(altro) && link(QFile::encodeName(prova.Percorso()).constData(),
                                      QFile::encodeName(altro).constData()) != 0) {
        QTest::qFail("no hard link", __FILE__, __LINE__);
    }
    return altro;
}

/// Saves while the medium refuses what is forced onto it of the one file.
void SalvaSulGuasto(Form2 &editor, const QString &file)
{
    const QString modello = QFileInfo(file).canonicalFilePath();
    const GuastiDisco guasto(GuastiDisco::Chiamata::SincronizzaFile, [&](int descrittore) {
        return GuastiDisco::Percorso(descrittore) == modello ? EIO : 0;
    });
    Preme(editor, "Salva");
}

} // namespace

void tst_RiscritturaDelModello::ConDueNomi()
{
    EditorAperto prova(2);
    const QString altro = AltroNome(prova);
    Robot robot;
    for (const double x : {60.0, 70.0}) {
        Modifica(prova.Stato(), [&](Modello &modello) { modello.Campi[1].X = x; });
        robot.Si();
        Preme(prova.Editor(), "Salva");
        QVERIFY(robot.Soddisfatto());
        QVERIFY(!prova.Editor().Variato());
        QCOMPARE(prova.Riletto().Campi[1].X, x);
        QCOMPARE(ByteDi(altro), prova.ByteDelFile());
        QVERIFY(Copie(prova).isEmpty());
    }
}

void tst_RiscritturaDelModello::InUnaCartellaNonScrivibile()
{
    if (geteuid() != 0) {
        QSKIP("only the administrator gives up his rights");
    }
    EditorAperto prova(2);
    const QByteArray archivio = QFile::encodeName(prova.Stato().CartellaModelli);
    QVERIFY(QDir().mkpath(prova.CartellaStato()));
    QCOMPARE(chmod(QFile::encodeName(prova.CartellaStato()).constData(), 0777), 0);
    QCOMPARE(chmod((archivio + "/../..").constData(), 0755), 0);
    QCOMPARE(chmod(QFile::encodeName(prova.Percorso()).constData(), 0666), 0);
    QCOMPARE(chmod(archivio.constData(), 0555), 0);
    Robot robot;
    robot.Si();
    {
        const UtenteComune utente;
        Modifica(prova.Stato(), [](Modello &modello) { modello.Campi[1].X = 60; });
        Preme(prova.Editor(), "Salva");
    }
    QCOMPARE(chmod(archivio.constData(), 0755), 0);
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QVERIFY(!prova.Editor().Variato());
    QCOMPARE(prova.Riletto().Campi[1].X, 60.0);
}

void tst_RiscritturaDelModello::RestatoIncompletoSiDice()
{
    EditorAperto prova(2);
    AltroNome(prova);
    Modifica(prova.Stato(), [](Modello &modello) { modello.Campi[1].X = 60; });
    Robot robot;
    robot.Si().Ok();
    SalvaSulGuasto(prova.Editor(), prova.Percorso());
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().constLast(),
             QStringLiteral("errore 57 Errore di I/O della periferica; il file è rimasto "
                            "incompleto, il lavoro è nella copia di recupero\n"
                            "salvataggio del file Prova.Mod"));
    QVERIFY(prova.Editor().Variato());
    QCOMPARE(Copie(prova).size(), 1);
    // What is left in the file is nobody else's.
    ScriveFile(prova.Percorso(), prova.ByteDelFile().chopped(10));
    robot.Si();
    Preme(prova.Editor(), "Salva");
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QCOMPARE(prova.Riletto().Campi[1].X, 60.0);
    QVERIFY(Copie(prova).isEmpty());
}

void tst_RiscritturaDelModello::IncompletoSiChiudeSenzaPerdere()
{
    ArchivioDiProva prova;
    prova.Riempie(2);
    prova.Scrive();
    AltroNome(prova);
    Robot robot;
    auto editor = std::make_unique<Form2>(prova.Stato());
    QVERIFY(editor->Form_Load());
    Modifica(prova.Stato(), [&](Modello &modello) { modello.Campi[1].X = 60; });
    robot.Si().Ok();
    SalvaSulGuasto(*editor, prova.Percorso());
    ScriveFile(prova.Percorso(), prova.ByteDelFile().chopped(10));

    const auto chiude = [&] {
        robot.No();
        QVERIFY(editor->close());
        editor.reset();
        QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
        QCOMPARE(Copie(prova).size(), 1);
    };
    const auto riprende = [&] {
        editor = std::make_unique<Form2>(prova.Stato());
        robot.Ok().Si(); // the half of a model, and the work that was meant for it
        QVERIFY(editor->Form_Load());
        QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
        QVERIFY(robot.Testi().constLast().endsWith(QStringLiteral("rimasto incompleto.")));
        QCOMPARE(prova.Aperto().Campi[1].X, 60.0);
    };
    chiude();
    // The file is no better for having been opened.
    for (int volta = 0; volta < 3; ++volta) {
        riprende();
        chiude();
    }
    riprende();
    robot.Si();
    Preme(*editor, "Salva");
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QCOMPARE(prova.Riletto().Campi[1].X, 60.0);
    QVERIFY(Copie(prova).isEmpty());
}

void tst_RiscritturaDelModello::InterrottaSiRiprende()
{
    ArchivioDiProva prova;
    prova.Riempie(2);
    prova.Scrive();
    const QByteArray prima = prova.ByteDelFile();
    {
        // The program ended with half of the new bytes over the old ones.
        CopiaRecupero copia(prova.CartellaStato() + QStringLiteral("/plakera"), prova.Percorso());
        copia.Parte(prima);
        Modello modello = prova.DaAprire();
        modello.Campi[1].X = 60;
        modello.Tipo = QStringLiteral("piu' lungo di prima");
        const QByteArray nuovi = FileModello::Componi(modello, QLocale::c());
        copia.TieneIlLavoro(modello, nuovi);
        ScriveFile(prova.Percorso(), nuovi.first(nuovi.size() / 2) + prima.mid(nuovi.size() / 2));
    }
    Form2 editor(prova.Stato());
    Robot robot;
    // Whether what stands in the file is a model still is a matter of luck.
    const auto prende = [](QDialog *dialogo) {
        QVERIFY(qobject_cast<QMessageBox *>(dialogo)->text().endsWith(
            QStringLiteral("Attenzione: un salvataggio è stato interrotto e il file è rimasto "
                           "incompleto.")));
        qobject_cast<QMessageBox *>(dialogo)->button(QMessageBox::Yes)->click();
    };
    Modello rotto;
    try {
        FileModello::Carica(rotto, prova.Percorso());
    } catch (const ErroreSistema &) {
        robot.Ok();
    }
    robot.Agisce(prende);
    QVERIFY(editor.Form_Load());
    QCOMPARE(robot.Predefiniti().constLast(), QStringLiteral("&Sì"));
    QCOMPARE(prova.Aperto().Campi[1].X, 60.0);
    robot.Si();
    Preme(editor, "Salva");
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QCOMPARE(prova.Riletto().Tipo, QStringLiteral("piu' lungo di prima"));
}

QTEST_MAIN(tst_RiscritturaDelModello)
#include "tst_RiscritturaDelModello.moc"
