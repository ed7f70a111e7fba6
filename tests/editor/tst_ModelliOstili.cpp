#include "OstiliDiProva.h"
#include "support/FileDiProva.h"
#include "support/Generi.h"
#include "support/ImmaginiDiProva.h"

#include <QFile>

#include <sys/resource.h>

namespace {

/// The largest memory that the process has had, MiB.
double MemoriaMassima()
{
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return double(uso.ru_maxrss) / 1024;
}

void Trascina(const EditoreDiProva &prova, QPoint da, QPoint a)
{
    auto *vista = Trova<QGraphicsView>(*prova.Editor->Anteprima(), "P1");
    QTest::mousePress(vista->viewport(), Qt::LeftButton, {}, da);
    QTest::mouseMove(vista->viewport(), (da + a) / 2);
    QTest::mouseMove(vista->viewport(), a);
    QTest::mouseRelease(vista->viewport(), Qt::LeftButton, {}, a);
    prova.Foto();
}

} // namespace

class tst_ModelliOstili : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void CentoMegabyte(); // first, while the process is still small
    void FineRiga_data();
    void FineRiga();
    void DiecimilaCaratteriPerTesto_data();
    void DiecimilaCaratteriPerTesto();
    void FontInesistenti_data();
    void FontInesistenti();
    void CoordinateEnormi_data();
    void CoordinateEnormi();
};

void tst_ModelliOstili::CentoMegabyte()
{
    EditoreDiProva prova;
    QFile file(prova.Archivio.Percorso());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(qint64(100) * 1024 * 1024));
    file.close();
    const double prima = MemoriaMassima();
    Robot robot;
    robot.Ok();
    IN_UN_SECONDO(QVERIFY(!prova.ApreComeSta()));
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(robot.Testi().constFirst().startsWith(
                 QStringLiteral("impossibile leggere file Prova.Mod\n")),
             qPrintable(robot.Testi().constFirst()));
    QVERIFY2(MemoriaMassima() - prima < 32, qPrintable(QString::number(MemoriaMassima() - prima)));
}

void tst_ModelliOstili::FineRiga_data()
{
    QTest::addColumn<QByteArray>("fine");
    QTest::addColumn<bool>("siApre");
    QTest::newRow("CR LF") << QByteArray("\r\n") << true;
    QTest::newRow("solo CR") << QByteArray("\r") << true;
    // All of it is one line then.
    QTest::newRow("solo LF") << QByteArray("\n") << false;
}

void tst_ModelliOstili::FineRiga()
{
    QFETCH(QByteArray, fine);
    QFETCH(bool, siApre);
    EditoreDiProva prova;
    prova.Archivio.Riempie(10);
    prova.Archivio.Scrive();
    const Modello scritto = prova.Archivio.Riletto();
    const QByteArray originale = prova.Archivio.ByteDelFile();
    ScriveFile(prova.Archivio.Percorso(), QByteArray(originale).replace("\r\n", fine));
    Robot robot;
    if (!siApre) {
        robot.Ok();
    }
    QCOMPARE(prova.ApreComeSta(), siApre);
    QVERIFY(robot.Soddisfatto());
    if (!siApre) {
        QVERIFY2(robot.Testi().constFirst().startsWith(
                     QStringLiteral("impossibile leggere file Prova.Mod\n62\n")),
                 qPrintable(robot.Testi().constFirst()));
        QCOMPARE(prova.Archivio.ByteDelFile(), QByteArray(originale).replace("\r\n", fine));
        return;
    }
    QCOMPARE(prova.Archivio.Aperto(), scritto);
    robot.Si();
    Preme(*prova.Editor, "Salva");
    QCOMPARE(prova.Archivio.ByteDelFile(), originale);
}

void tst_ModelliOstili::DiecimilaCaratteriPerTesto_data()
{
    QTest::addColumn<QString>("testo");
    const QString parole = QStringLiteral("testo molto lungo ");
    QTest::newRow("parole") << parole.repeated(10000 / parole.size() + 1).left(10000);
    QTest::newRow("una parola") << QString(10000, u'W');
    QTest::newRow("ritorni a capo") << QString(10000, u'\n');
    QTest::newRow("segni di controllo") << QString(10000, u'\x01');
    QTest::newRow("etichette di un'altra lingua") << QStringLiteral("<b>&amp;%1").repeated(1000);
}

void tst_ModelliOstili::DiecimilaCaratteriPerTesto()
{
    QFETCH(QString, testo);
    EditoreDiProva prova;
    Modello &modello = prova.Archivio.DaAprire();
    prova.Archivio.Riempie(PerGenere);
    for (int i = 1; i <= PerGenere; ++i) {
        const QString suo = QString::number(i) + testo;
        Campo &campo = modello.Campi[i];
        Cornice &cornice = modello.Cornici[i];
        Immagine &immagine = modello.Immagini[i];
        for (QString *membro : {&campo.Nome, &campo.Testo, &campo.Maschera, &campo.MascheraDefault,
                                &campo.Descrizione, &cornice.Nome, &cornice.Testo,
                                &cornice.Descrizione, &immagine.Nome, &immagine.Descrizione}) {
            *membro = suo;
        }
    }
    modello.Tipo = modello.Righe.SeguePag = modello.Sfondo.File = testo;
    prova.Archivio.Scrive();
    const Modello scritto = prova.Archivio.Riletto();

    Robot robot;
    IN_UN_SECONDO(QVERIFY(prova.ApreComeSta()));
    IN_UN_SECONDO(LavoraConTutto(prova));
    IN_UN_SECONDO(prova.Zoom(QStringLiteral("1.7")));
    IN_UN_SECONDO(prova.Zoom(QStringLiteral("3")));
    IN_UN_SECONDO(Trascina(prova, {60, 60}, {200, 160}));
    for (const Genere genere : Generi) {
        robot.Agisce(ChiudeSeSulloSchermo);
        IN_UN_SECONDO(prova.ApreProprieta(genere, 1));
        QVERIFY(robot.Soddisfatto());
        // The question names the element.
        robot.Agisce([&](QDialog *dialogo) {
            robot.Agisce(ChiudeSeSulloSchermo);
            Preme(*dialogo, BottoneElimina(genere));
            dialogo->reject();
        });
        IN_UN_SECONDO(prova.ApreProprieta(genere, 1));
        QVERIFY(robot.Soddisfatto());
    }
    IN_UN_SECONDO(QCOMPARE(prova.Stampa().size(), PerGenere)); // the pictures that do not exist
    robot.Si();
    IN_UN_SECONDO(Preme(*prova.Editor, "Salva"));
    QVERIFY(robot.Soddisfatto());
    const Modello riletto = prova.Archivio.Riletto();
    for (int i = 1; i <= PerGenere; ++i) {
        QCOMPARE(riletto.Campi[i].Testo, scritto.Campi[i].Testo);
        QCOMPARE(riletto.Campi[i].MascheraDefault, scritto.Campi[i].MascheraDefault);
        QCOMPARE(riletto.Cornici[i].Testo, scritto.Cornici[i].Testo);
        QCOMPARE(riletto.Immagini[i].Nome, scritto.Immagini[i].Nome);
    }
    QCOMPARE(riletto.Tipo, scritto.Tipo);
    QCOMPARE(riletto.Sfondo.File, scritto.Sfondo.File);
}

void tst_ModelliOstili::FontInesistenti_data()
{
    QTest::addColumn<QString>("font");
    QTest::newRow("nessuno") << QString();
    QTest::newRow("sconosciuto") << QStringLiteral("Carattere Che Non Esiste");
    QTest::newRow("lunghissimo") << QString(10000, u'F');
    QTest::newRow("a capo") << QString(1000, u'\n');
    QTest::newRow("segni") << QStringLiteral("-*-%n%s;:'\"\\/[],<b>");
    QTest::newRow("virgole") << QString(5000, u',');
}

void tst_ModelliOstili::FontInesistenti()
{
    QFETCH(QString, font);
    EditoreDiProva prova;
    prova.Archivio.Riempie(20);
    for (int i = 1; i <= 20; ++i) {
        prova.Archivio.DaAprire().Campi[i].Font = font;
        prova.Archivio.DaAprire().Cornici[i].Font = font;
    }
    Robot robot;
    IN_UN_SECONDO(QVERIFY(prova.Apre()));
    IN_UN_SECONDO(LavoraConTutto(prova));
    for (const Genere genere : {Genere::Campo, Genere::Cornice}) {
        robot.Agisce(ChiudeSeSulloSchermo).Agisce(ChiudeSeSulloSchermo);
        IN_UN_SECONDO(prova.ApreProprieta(genere, 1));
        QVERIFY(robot.Soddisfatto());
        const QString messaggio = robot.Testi().at(robot.Testi().size() - 2);
        QVERIFY2(messaggio.startsWith(QStringLiteral("font ")) &&
                     messaggio.endsWith(QStringLiteral(" non esistente: verrà impostato Arial")),
                 qPrintable(messaggio));
    }
    IN_UN_SECONDO(prova.Stampa());
    robot.Si();
    Preme(*prova.Editor, "Salva");
    // The dialog was only looked at.
    QCOMPARE(prova.Archivio.Riletto().Campi[1].Font, font);
}

void tst_ModelliOstili::CoordinateEnormi_data()
{
    QTest::addColumn<double>("valore");
    for (const double valore : {1e300, -1e300, 1.7e308, -1.7e308, 1e-300, 1e18, -3e9, 40000.0}) {
        QTest::addRow("%g", valore) << valore;
    }
}

void tst_ModelliOstili::CoordinateEnormi()
{
    QFETCH(double, valore);
    EditoreDiProva prova;
    prova.Archivio.Riempie(20);
    Modello &modello = prova.Archivio.DaAprire();
    ImmaginiDiProva::Scrive(
        prova.Archivio.Stato().CartellaModelli + QStringLiteral("logo.bmp"),
        ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({20, 20}, qRgb(0, 90, 0)), "bmp"));
    // The members one after the other, so that each meets ordinary values of the others.
    const auto ostile = [&](int i, QList<double *> membri) {
        *membri[(i - 1) % membri.size()] = valore;
        if (i > membri.size()) {
            *membri[i % membri.size()] = valore;
        }
    };
    for (int i = 1; i <= 20; ++i) {
        Campo &campo = modello.Campi[i];
        Cornice &cornice = modello.Cornici[i];
        Immagine &immagine = modello.Immagini[i];
        campo.Nome.prepend(i % 2 == 0 ? QStringLiteral("R_") : QString());
        immagine.Nome = QStringLiteral("logo.bmp");
        ostile(i, {&campo.X, &campo.Y});
        ostile(i, {&cornice.X, &cornice.Y, &cornice.Larghezza, &cornice.Altezza, &cornice.Bordo});
        ostile(i, {&immagine.X, &immagine.Y, &immagine.Larghezza, &immagine.Altezza});
    }
    modello.Righe = {valore, valore, valore, valore, QString()};
    const QString testo = QString::number(valore, 'g', 15);
    modello.Sfondo = {prova.Archivio.Stato().CartellaModelli + QStringLiteral("logo.bmp"),
                      testo,
                      testo,
                      testo,
                      testo,
                      1};
    Robot robot;
    IN_UN_SECONDO(QVERIFY(prova.Apre()));
    IN_UN_SECONDO(LavoraConTutto(prova));
    IN_UN_SECONDO(prova.Zoom(QStringLiteral("2.5")));
    IN_UN_SECONDO(Trascina(prova, {60, 60}, {200, 160}));
    Trova<QLineEdit>(*prova.Editor, "Spostamento")->setText(testo);
    for (const char *bottone : {"Command2", "Command5", "Command6"}) {
        IN_UN_SECONDO(Preme(*prova.Editor, bottone));
    }
    prova.Foto();
    IN_UN_SECONDO(prova.Stampa());
    QVERIFY(robot.Soddisfatto());
    robot.Si();
    IN_UN_SECONDO(Preme(*prova.Editor, "Salva"));
    QVERIFY(robot.Soddisfatto());
    // What is saved can be opened again.
    Modello riletto = prova.Archivio.Riletto();
    QCOMPARE(riletto.NumCampi, 20);
    QCOMPARE(riletto.NumImmagini, 20);
}

QTEST_MAIN(tst_ModelliOstili)
#include "tst_ModelliOstili.moc"
