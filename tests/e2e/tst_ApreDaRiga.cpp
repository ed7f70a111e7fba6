#include "RigheFile.h"
#include "Scrivania.h"

#include <QDir>
#include <QFile>
#include <QTest>

/// A model that is named at the start, as file managers do: straight into the editor.
class tst_ApreDaRiga : public QObject
{
    Q_OBJECT

private slots:
    void drittoNellEditor();
    void fuoriDaOgniArchivio();
    void siSalvaDoveSta();
    void nonSiApre_data();
    void nonSiApre();
    void secondaIstanza();
    void lavoroRimasto();

private:
    static QString Modello(const Scrivania &scrivania)
    {
        return scrivania.CartellaModelli() + QStringLiteral("Fattura_Rossi.Mod");
    }
    /// A copy of the model where no archive is.
    static QString Fuori(const Scrivania &scrivania)
    {
        const QString file = scrivania.In(QStringLiteral("è fuori.MOD"));
        return QFile::copy(Modello(scrivania), file) ? file : QString();
    }
    static void Conferma(Scrivania &scrivania)
    {
        scrivania.Video().Attende(Scrivania::TitoloRiquadro);
        scrivania.Video().Tasti({QStringLiteral("Return")});
    }
};

void tst_ApreDaRiga::drittoNellEditor()
{
    Scrivania scrivania;
    scrivania.Avvia({Modello(scrivania)});
    scrivania.AttendeFoglio();
    // No box and no start window besides.
    QCOMPARE(scrivania.Video().Finestre().size(), 2);
    scrivania.ChiudeEditor();
    // The start window follows, and the model is chosen in it.
    scrivania.Video().Tasti({QStringLiteral("alt+a")});
    scrivania.AttendeFoglio();
    scrivania.Video().Attiva(Scrivania::TitoloEditor + QStringLiteral("Fattura_Rossi\\.Mod$"));
    scrivania.ChiudeEditor();
    scrivania.ChiudeInizio();
    QCOMPARE(Scrivania::EsitoDi(scrivania.Programma()), 0);
    QCOMPARE(scrivania.Programma().readAllStandardError(), QByteArray());
}

void tst_ApreDaRiga::fuoriDaOgniArchivio()
{
    Scrivania scrivania;
    scrivania.Avvia({Fuori(scrivania)});
    Conferma(scrivania);
    scrivania.AttendeFoglio();
    scrivania.Video().Attiva(Scrivania::TitoloEditor + QStringLiteral("è fuori\\.MOD$"));
    scrivania.ChiudeEditor();
    scrivania.ChiudeInizio();
    QCOMPARE(Scrivania::EsitoDi(scrivania.Programma()), 0);
}

void tst_ApreDaRiga::siSalvaDoveSta()
{
    Scrivania scrivania;
    const QString file = Fuori(scrivania);
    RigheFile atteso(file);
    atteso.Mette("Vs_Ordine", RigheFile::Campo::X, "41");
    atteso.Mette("Vs_Ordine", RigheFile::Campo::Y, "104");
    const RigheFile altro(Modello(scrivania));
    scrivania.Avvia({file});
    Conferma(scrivania);
    scrivania.AttendeFoglio();
    scrivania.TrascinaCampo({9, 79}, {41, 104});
    scrivania.Editor();
    scrivania.Video().Tasti({QStringLiteral("alt+v")});
    scrivania.Video().Attende(Scrivania::TitoloRiquadro);
    scrivania.Video().Tasti({QStringLiteral("alt+s")});
    AttendeChe(QStringLiteral("the saved file"),
               [&] { return RigheFile(file).Differenza(atteso).isEmpty(); });
    QVERIFY(altro.Differenza(RigheFile(Modello(scrivania))).isEmpty());
}

void tst_ApreDaRiga::nonSiApre_data()
{
    QTest::addColumn<QString>("nome");
    QTest::newRow("not there") << QStringLiteral("Manca.Mod");
    QTest::newRow("not there, in an archive") << QStringLiteral("Dati/Contabilita/ini/Manca.Mod");
    QTest::newRow("a folder") << QStringLiteral("Dati/Contabilita");
}

void tst_ApreDaRiga::nonSiApre()
{
    QFETCH(QString, nome);
    Scrivania scrivania;
    scrivania.Avvia({scrivania.In(nome)});
    Conferma(scrivania);
    QCOMPARE(Scrivania::EsitoDi(scrivania.Programma()), 1);
    QVERIFY(QDir(scrivania.In(QStringLiteral("esecuzione"))).isEmpty());
}

void tst_ApreDaRiga::secondaIstanza()
{
    Scrivania scrivania;
    scrivania.Avvia();
    scrivania.Video().Attende(Scrivania::TitoloInizio);
    const auto seconda = scrivania.Nuovo({Modello(scrivania)});
    Conferma(scrivania);
    QCOMPARE(Scrivania::EsitoDi(*seconda), 1);
    scrivania.Video().Attende(Scrivania::TitoloInizio);
    QCOMPARE(scrivania.Video().Finestre().size(), 1);
}

void tst_ApreDaRiga::lavoroRimasto()
{
    Scrivania scrivania;
    RigheFile atteso(Modello(scrivania));
    atteso.Mette("Vs_Ordine", RigheFile::Campo::X, "41");
    atteso.Mette("Vs_Ordine", RigheFile::Campo::Y, "104");
    scrivania.Avvia({Modello(scrivania)});
    scrivania.AttendeFoglio();
    scrivania.TrascinaCampo({9, 79}, {41, 104});
    AttendeChe(QStringLiteral("the safety copy"), [&] {
        return !QDir(scrivania.Stato() + QStringLiteral("/plakera"))
                    .entryList({QStringLiteral("*.recupero")}, QDir::Files)
                    .isEmpty();
    });
    scrivania.Uccide();
    scrivania.Avvia({Modello(scrivania)});
    scrivania.Video().Attende(Scrivania::TitoloRiquadro);
    scrivania.Video().Tasti({QStringLiteral("alt+s")});
    scrivania.Salva();
    const QByteArray differenza = RigheFile(Modello(scrivania)).Differenza(atteso);
    QVERIFY2(differenza.isEmpty(), differenza);
}

QTEST_GUILESS_MAIN(tst_ApreDaRiga)
#include "tst_ApreDaRiga.moc"
