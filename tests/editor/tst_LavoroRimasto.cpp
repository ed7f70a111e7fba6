#include "documento/CopiaRecupero.h"
#include "editor/FrmLavoroRimasto.h"
#include "editor/LavoroRimasto.h"
#include "model/FileModello.h"
#include "sistema/CartellaStato.h"
#include "support/ArchivioDiProva.h"
#include "support/FileDiProva.h"
#include "support/Finestre.h"
#include "support/Robot.h"

#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

/// Unsaved work whose model is gone, as the start offers it.
class tst_LavoroRimasto : public QObject
{
    Q_OBJECT

private slots:
    void NienteDaOffrire();
    void SiTiene();
    void SiGuarda();
    void SiSalvaComeNuovoModello();
    void NomeGiudicatoConLEstensione_data();
    void NomeGiudicatoConLEstensione();
    void SiSalvaNellArchivioScelto();
    void DiscoPienoNonPerdeNulla();
    void SiGettaVia();
    void DanneggiataSiDice();

private:
    static QString Copie(const ArchivioDiProva &prova)
    {
        return prova.CartellaStato() + QStringLiteral("/plakera");
    }
    /// Field 1 at x, in a copy whose model is then gone.
    static void Lascia(ArchivioDiProva &prova, double x)
    {
        prova.Riempie(3);
        prova.Scrive();
        {
            CopiaRecupero copia(Copie(prova), prova.Percorso());
            copia.Parte(prova.ByteDelFile());
            prova.DaAprire().Campi[1].X = x;
            copia.Scrive(prova.DaAprire());
        }
        QVERIFY(QFile::remove(prova.Percorso()));
    }
};

namespace {

const QString Guarda = QStringLiteral("G&uarda");
const QString Tieni = QStringLiteral("&Tieni");
const QString Salva = QStringLiteral("&Salva come nuovo modello");
const QString GettaVia = QStringLiteral("&Getta via");

/// The next box is answered by the button of that text.
Robot &Sceglie(Robot &robot, const QString &testo)
{
    return robot.Agisce([testo](QDialog *dialogo) {
        for (QAbstractButton *bottone : qobject_cast<QMessageBox *>(dialogo)->buttons()) {
            if (bottone->text() == testo) {
                bottone->click();
                return;
            }
        }
        dialogo->done(QDialog::Rejected);
        QTest::qFail(qPrintable(testo + QLatin1String(": no such button")), __FILE__, __LINE__);
    });
}

} // namespace

void tst_LavoroRimasto::NienteDaOffrire()
{
    ArchivioDiProva prova;
    Robot robot;
    QVERIFY(!OffreLavoroRimasto(nullptr, prova.Stato()));
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(!QFileInfo::exists(prova.CartellaStato()), "looking makes no folder");
}

void tst_LavoroRimasto::SiTiene()
{
    ArchivioDiProva prova;
    Lascia(prova, 77);
    const QStringList copie = NomiIn(Copie(prova));
    Robot robot;
    Sceglie(robot, Tieni);
    robot.Agisce([](QDialog *dialogo) { QTest::keyClick(dialogo, Qt::Key_Escape); });
    QVERIFY(!OffreLavoroRimasto(nullptr, prova.Stato()));
    QVERIFY(!OffreLavoroRimasto(nullptr, prova.Stato()));
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(
        robot.Testi().constFirst().startsWith(QStringLiteral("lavoro non salvato di Prova.Mod ")),
        qPrintable(robot.Testi().constFirst()));
    QVERIFY(robot.Testi().constFirst().endsWith(QStringLiteral("Il modello non c'è più:\n") +
                                                prova.Percorso()));
    QCOMPARE(robot.Predefiniti().constFirst(), Tieni);
    QCOMPARE(NomiIn(Copie(prova)), copie);
}

void tst_LavoroRimasto::SiGuarda()
{
    ArchivioDiProva prova;
    Lascia(prova, 77);
    Robot robot;
    QImage visto;
    Sceglie(robot, Guarda);
    robot.Agisce([&](QDialog *dialogo) {
        visto = Trova<QLabel>(*dialogo, "Foglio")->pixmap().toImage();
        Trova<QPushButton>(*dialogo, "Chiudi")->click();
    });
    Sceglie(robot, Tieni);
    QVERIFY(!OffreLavoroRimasto(nullptr, prova.Stato()));
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Titoli().value(1), QStringLiteral("Plakera: lavoro non salvato di Prova.Mod"));
    // The whole sheet, and something on it where the field now is.
    QVERIFY(std::abs(visto.height() * 240.0 / visto.width() - 350) < 1);
    const double pixel = visto.width() / 240.0;
    const Campo &campo = prova.DaAprire().Campi[1];
    int scuri = 0;
    for (int x = int(77 * pixel); x < int(90 * pixel); ++x) {
        for (int y = int(campo.Y * pixel); y < int((campo.Y + 5) * pixel); ++y) {
            scuri += qGray(visto.pixel(x, y)) < 128 ? 1 : 0;
        }
    }
    QVERIFY2(scuri > 10, qPrintable(QString::number(scuri)));
}

void tst_LavoroRimasto::SiSalvaComeNuovoModello()
{
    ArchivioDiProva prova;
    Lascia(prova, 77);
    ScriveFile(prova.Stato().CartellaModelli + QStringLiteral("PRESO.MOD"), "un altro");
    Robot robot;
    Sceglie(robot, Salva).Digita(QStringLiteral("pre:so")).Ok();
    robot.Digita(QStringLiteral("Preso")).Ok();
    robot.Digita(QStringLiteral("Nuovo")); // the question again for each
    QVERIFY(OffreLavoroRimasto(nullptr, prova.Stato()));
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QCOMPARE(robot.Predefiniti().value(1), QStringLiteral("Prova_recuperato"));
    QVERIFY(robot.Testi().value(2).startsWith(
        QStringLiteral("\"pre:so\" non è un nome valido per un modello.\n\nUn nome non può ")));
    QCOMPARE(robot.Testi().value(4),
             QStringLiteral("Preso.Mod esiste già: scegliere un nome diverso"));
    QCOMPARE(ByteDi(prova.Stato().CartellaModelli + QStringLiteral("PRESO.MOD")),
             QByteArray("un altro"));
    Modello nuovo;
    FileModello::Carica(nuovo, prova.Stato().CartellaModelli + QStringLiteral("Nuovo.Mod"));
    QCOMPARE(nuovo.Campi[1].X, 77.0);
    QCOMPARE(nuovo.NumImmagini, qint16(3));
    QVERIFY(NomiIn(Copie(prova)).isEmpty());
}

void tst_LavoroRimasto::NomeGiudicatoConLEstensione_data()
{
    QTest::addColumn<QString>("nome");
    QTest::newRow("final dot") << QStringLiteral("nome.");
    QTest::newRow("final blank") << QStringLiteral("nome ");
    QTest::newRow("two dots") << QStringLiteral("..");
}

void tst_LavoroRimasto::NomeGiudicatoConLEstensione()
{
    QFETCH(QString, nome);
    ArchivioDiProva prova;
    Lascia(prova, 77);
    QVERIFY(QDir().mkdir(prova.Stato().CartellaModelli + QStringLiteral("Cartella.Mod")));
    Robot robot;
    Sceglie(robot, Salva).Digita(QStringLiteral("CARTELLA")).Ok();
    robot.Digita(nome);
    QVERIFY(OffreLavoroRimasto(nullptr, prova.Stato()));
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QCOMPARE(robot.Testi().value(2), QStringLiteral("CARTELLA.Mod è il nome di una cartella: "
                                                    "scegliere un nome diverso per il modello"));
    Modello nuovo;
    FileModello::Carica(nuovo, prova.Stato().CartellaModelli + nome + QStringLiteral(".Mod"));
    QCOMPARE(nuovo.Campi[1].X, 77.0);
    QVERIFY(NomiIn(Copie(prova)).isEmpty());
}

void tst_LavoroRimasto::SiSalvaNellArchivioScelto()
{
    // The folder of the model is gone with it.
    ArchivioDiProva scelto;
    ArchivioDiProva prova;
    Lascia(prova, 77);
    QVERIFY(QDir(prova.Stato().CartellaModelli).removeRecursively());
    Robot robot;
    // Without an archive there is no place for it.
    StatoProgramma senzaArchivio;
    senzaArchivio.CartellaModelli = prova.CartellaStato();
    Sceglie(robot, Salva).Ok();
    Sceglie(robot, Tieni);
    QVERIFY(!OffreLavoroRimasto(nullptr, senzaArchivio));
    QCOMPARE(robot.Testi().value(1), QStringLiteral("Selezionare una cartella"));
    Sceglie(robot, Salva).Digita(QStringLiteral("Nuovo"));
    QVERIFY(OffreLavoroRimasto(nullptr, scelto.Stato()));
    QVERIFY(robot.Soddisfatto());
    QVERIFY(QFile::exists(scelto.Stato().CartellaModelli + QStringLiteral("Nuovo.Mod")));
}

void tst_LavoroRimasto::DiscoPienoNonPerdeNulla()
{
    ArchivioDiProva prova;
    Lascia(prova, 77);
    const QStringList copie = NomiIn(Copie(prova));
    Robot robot;
    Sceglie(robot, Salva).Digita(QStringLiteral("Nuovo")).Ok();
    Sceglie(robot, Tieni);
    {
        const LimiteFile poco(100);
        QVERIFY(!OffreLavoroRimasto(nullptr, prova.Stato()));
    }
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Testi().value(2), QStringLiteral("errore 61 Disco pieno"));
    QCOMPARE(NomiIn(Copie(prova)), copie);
    QVERIFY(NomiIn(prova.Stato().CartellaModelli).isEmpty());
}

void tst_LavoroRimasto::SiGettaVia()
{
    ArchivioDiProva prova;
    Lascia(prova, 77);
    Robot robot;
    Sceglie(robot, GettaVia).No();
    Sceglie(robot, GettaVia).Si();
    QVERIFY(!OffreLavoroRimasto(nullptr, prova.Stato()));
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(robot.Predefiniti().value(1), QStringLiteral("&No"));
    QVERIFY(NomiIn(Copie(prova)).isEmpty());
}

void tst_LavoroRimasto::DanneggiataSiDice()
{
    ArchivioDiProva prova;
    Lascia(prova, 77);
    const QString copia = ::CartellaStato() + u'/' + NomiIn(Copie(prova)).constFirst();
    ScriveFile(copia, ByteDi(copia).chopped(1));
    Robot robot;
    Sceglie(robot, Tieni);
    OffreLavoroRimasto(nullptr, prova.Stato());
    QCOMPARE(robot.Testi().value(0),
             QStringLiteral("copia di recupero non letta: errore 57 la copia è danneggiata\n") +
                 QDir::toNativeSeparators(copia));
    QVERIFY(QFile::exists(copia));
    Sceglie(robot, GettaVia);
    OffreLavoroRimasto(nullptr, prova.Stato());
    QVERIFY(robot.Soddisfatto());
    QVERIFY(NomiIn(Copie(prova)).isEmpty());
}

QTEST_MAIN(tst_LavoroRimasto)
#include "tst_LavoroRimasto.moc"
