#include "base/ErroreSistema.h"
#include "editor/EditoreDiProva.h"
#include "support/FileDiProva.h"
#include "support/ImmaginiDiProva.h"
#include "support/ModelloDiProva.h"
#include "support/Tempi.h"

#include <QAbstractButton>
#include <QFile>
#include <QTabWidget>

#include <sys/resource.h>

#include <cmath>

namespace {

constexpr double Secondo = 1000; // ms of work that no action may exceed
constexpr int PerGenere = Tabella<Campo>::UltimoSlot;

/// Times what it runs against one second of work.
#define IN_UN_SECONDO(azione)                                                                      \
    do {                                                                                           \
        const TempoDiLavoro tempo;                                                                 \
        azione;                                                                                    \
        QVERIFY2(tempo.Entro(Secondo),                                                             \
                 qPrintable(QStringLiteral("%1 ms: " #azione).arg(tempo.MilliSecondi())));         \
    } while (false)

/// The largest memory that the process has had, MiB.
double MemoriaMassima()
{
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return double(uso.ru_maxrss) / 1024;
}

/// Every number of the model with a fraction.
QList<double> NumeriDi(const Modello &m)
{
    QList<double> numeri{m.Righe.yInizio, m.Righe.yFine, m.Righe.Interlinea,
                         m.Righe.InterlineaDescr};
    for (int i = 1; i <= PerGenere; ++i) {
        numeri << m.Campi[i].X << m.Campi[i].Y << m.Cornici[i].X << m.Cornici[i].Y
               << m.Cornici[i].Larghezza << m.Cornici[i].Altezza << m.Cornici[i].Bordo
               << m.Immagini[i].X << m.Immagini[i].Y << m.Immagini[i].Larghezza
               << m.Immagini[i].Altezza << m.Immagini[i].Bordo;
    }
    return numeri;
}

/// The actions of a user on the open model that have to do with all of its elements.
void LavoraConTutto(const EditoreDiProva &prova)
{
    Frm1 &anteprima = *prova.Editor->Anteprima();
    for (const Genere genere : Generi) {
        for (int i = 1; i <= prova.Archivio.Stato().Aperto().UltimoSlot(genere); ++i) {
            anteprima.Seleziona(genere, i);
        }
    }
    prova.Foto();
    auto *pagine = Trova<QTabWidget>(*prova.Editor, "SSTab1");
    for (int p = pagine->count(); p > 0; --p) {
        pagine->setCurrentIndex(p - 1);
    }
    for (const char *bottone : {"Command1", "Command3", "Command4", "OptSimuloRighe",
                                "ConfermaPosizioneRighe", "SfondoSpostaDx"}) {
        Preme(*prova.Editor, bottone);
    }
    prova.Foto();
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
    void TestiDelloSfondo_data();
    void TestiDelloSfondo();
    void TestiAlPostoDeiNumeri_data();
    void TestiAlPostoDeiNumeri();
    void TestiNelleCaselle_data();
    void TestiNelleCaselle();
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
            Preme(*dialogo, genere == Genere::Campo ? "PEliminaCampo" : "Elimina");
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

void tst_ModelliOstili::TestiDelloSfondo_data()
{
    QTest::addColumn<QString>("testo");
    for (const char *testo : {"nan", "-nan", "inf", "-inf", "1e400", "-1e400", "1#INF", "0x10",
                              "1e", "--5", ".", "+", "1,5", "1.7e308"}) {
        QTest::addRow("%s", testo) << QString::fromLatin1(testo);
    }
    QTest::newRow("cifre senza fine") << QString(10000, u'9');
}

void tst_ModelliOstili::TestiDelloSfondo()
{
    QFETCH(QString, testo);
    EditoreDiProva prova;
    ImmaginiDiProva::Scrive(
        prova.Archivio.Stato().CartellaModelli + QStringLiteral("foglio.bmp"),
        ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({20, 20}, qRgb(0, 90, 0)), "bmp"));
    prova.Archivio.DaAprire().Sfondo = {prova.Archivio.Stato().CartellaModelli +
                                            QStringLiteral("foglio.bmp"),
                                        testo,
                                        testo,
                                        testo,
                                        testo,
                                        1};
    prova.Archivio.Scrive();
    const QByteArray prima = prova.Archivio.ByteDelFile();
    {
        Robot robot; // whatever it says, it says it once and the model opens
        IN_UN_SECONDO(QVERIFY(prova.ApreComeSta()));
        QVERIFY(robot.Testi().size() <= 1);
    }
    QVERIFY(!prova.Editor->Variato());
    Robot robot;
    robot.Si();
    Preme(*prova.Editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Archivio.ByteDelFile(), prima);
}

void tst_ModelliOstili::TestiAlPostoDeiNumeri_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<bool>("siApre");
    for (const char *testo : {"nan", "-nan", "inf", "-inf", "1#INF", "0x10", "1e", "--5", ".", "+",
                              "1,5", "1.7e308", ""}) {
        QTest::addRow("%s", testo) << QString::fromLatin1(testo) << true;
    }
    QTest::newRow("1e400") << QStringLiteral("1e400") << false;
    QTest::newRow("-1e400") << QStringLiteral("-1e400") << false;
    QTest::newRow("cifre senza fine") << QString(10000, u'9') << false;
}

void tst_ModelliOstili::TestiAlPostoDeiNumeri()
{
    // Every number with a fraction of one element of each kind and of the rows, as a hand at a text
    // editor may leave it in the file.
    QFETCH(QString, testo);
    QFETCH(bool, siApre);
    constexpr double Segno = 777;
    EditoreDiProva prova;
    prova.Archivio.Riempie(3);
    Modello &modello = prova.Archivio.DaAprire();
    QList<double *> numeri{&modello.Righe.yInizio,        &modello.Righe.yFine,
                           &modello.Righe.Interlinea,     &modello.Righe.InterlineaDescr,
                           &modello.Campi[2].X,           &modello.Campi[2].Y,
                           &modello.Cornici[2].X,         &modello.Cornici[2].Y,
                           &modello.Cornici[2].Larghezza, &modello.Cornici[2].Altezza,
                           &modello.Cornici[2].Bordo,     &modello.Immagini[2].X,
                           &modello.Immagini[2].Y,        &modello.Immagini[2].Larghezza,
                           &modello.Immagini[2].Altezza,  &modello.Immagini[2].Bordo};
    for (double *numero : numeri) {
        *numero = Segno;
    }
    prova.Archivio.Scrive();
    QList<QByteArray> righe = prova.Archivio.ByteDelFile().split('\n');
    const QByteArrayView segno("777");
    qsizetype cambiate = 0;
    for (QByteArray &riga : righe) {
        if (riga.trimmed() == segno) {
            riga.replace(segno, testo.toLatin1());
            ++cambiate;
        }
    }
    QCOMPARE(cambiate, numeri.size());
    const QByteArray byte = righe.join('\n');
    ScriveFile(prova.Archivio.Percorso(), byte);

    bool aperto = false;
    {
        Robot robot;
        IN_UN_SECONDO(aperto = prova.ApreComeSta());
        // A number beyond what can be stored keeps the model closed, and says so; a text that is no
        // number is none that anybody need be told of.
        QCOMPARE(aperto, siApre);
        QCOMPARE(robot.Testi().size(), siApre ? 0 : 1);
    }
    if (!siApre) {
        QCOMPARE(prova.Archivio.ByteDelFile(), byte);
        return;
    }
    for (const double numero : NumeriDi(modello)) {
        QVERIFY2(std::isfinite(numero), "a number that no file can hold");
    }
    Robot robot;
    IN_UN_SECONDO(LavoraConTutto(prova));
    IN_UN_SECONDO(prova.Stampa());
    QVERIFY(robot.Soddisfatto());
    robot.Si();
    Preme(*prova.Editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Archivio.Riletto().NumImmagini, qint16(3));
}

void tst_ModelliOstili::TestiNelleCaselle_data()
{
    TestiDelloSfondo_data();
}

void tst_ModelliOstili::TestiNelleCaselle()
{
    QFETCH(QString, testo);
    EditoreDiProva prova;
    prova.Archivio.Riempie(5);
    prova.Archivio.DaAprire().Campi[2].Nome = QStringLiteral("R_Prezzo");
    QVERIFY(prova.Apre());
    IN_UN_SECONDO(prova.Zoom(testo));
    QVERIFY(prova.Archivio.Stato().zoom >= 1 && prova.Archivio.Stato().zoom <= 3);
    struct
    {
        QStringList Caselle;
        QStringList Bottoni;
    } const pagine[] = {
        {{QStringLiteral("yInizio"), QStringLiteral("yFine"), QStringLiteral("Interlinea"),
          QStringLiteral("InterlineaDescr")},
         {QStringLiteral("OptSimuloRighe"), QStringLiteral("ConfermaPosizioneRighe")}},
        {{QStringLiteral("Spostamento")},
         {QStringLiteral("Command2"), QStringLiteral("Command5"), QStringLiteral("Command6")}},
        {{QStringLiteral("SfondoXimmagine"), QStringLiteral("SfondoYImmagine"),
          QStringLiteral("SfondoXPosImm"), QStringLiteral("SfondoYPosImm")},
         {QStringLiteral("SfondoSpostaDx"), QStringLiteral("SfondoSpostaSu"),
          QStringLiteral("VisualizzaImmagineSfondo")}},
    };
    for (const auto &pagina : pagine) {
        Robot robot; // a box may complain, once for each button; it is closed
        for (const QString &casella : pagina.Caselle) {
            Trova<QLineEdit>(*prova.Editor, casella.toLatin1())->setText(testo);
        }
        for (const QString &bottone : pagina.Bottoni) {
            IN_UN_SECONDO(Preme(*prova.Editor, bottone.toLatin1()));
        }
        QVERIFY2(robot.Testi().size() <= pagina.Bottoni.size(),
                 qPrintable(robot.Testi().join(u'|')));
    }
    for (const Genere genere : Generi) {
        Robot suo;
        suo.Agisce([&](QDialog *dialogo) {
            for (const char *casella : {"X", "Y", "Largh", "Alt", "Bordo"}) {
                if (auto *campo = dialogo->findChild<QLineEdit *>(QLatin1String(casella))) {
                    campo->setText(testo);
                }
            }
            Preme(*dialogo, genere == Genere::Campo ? "PConfemaCampo" : "Confema");
            if (dialogo->isVisible()) {
                dialogo->reject();
            }
        });
        IN_UN_SECONDO(prova.ApreProprieta(genere, 1));
        // The dialog, and at most one complaint.
        QVERIFY2(suo.Testi().size() <= 2 && suo.Testi().constFirst().startsWith(u"Frm"),
                 qPrintable(suo.Testi().join(u'|')));
    }
    prova.Foto();
    for (const double numero : NumeriDi(prova.Archivio.Aperto())) {
        QVERIFY2(std::isfinite(numero), "a number that no file can hold");
    }
    Robot si;
    si.Si();
    Preme(*prova.Editor, "Salva");
    QVERIFY(si.Soddisfatto());
    QCOMPARE(prova.Archivio.Riletto().NumCampi, 5);
}

QTEST_MAIN(tst_ModelliOstili)
#include "tst_ModelliOstili.moc"
