#include "OstiliDiProva.h"

#include "documento/Passo.h"
#include "support/FileDiProva.h"
#include "support/Generi.h"
#include "support/ImmaginiDiProva.h"

#include <QTextDocument>
#include <QToolButton>

#include <cmath>

namespace {

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

} // namespace

class tst_TestiOstili : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void TestiDelloSfondo_data();
    void TestiDelloSfondo();
    void TestiAlPostoDeiNumeri_data();
    void TestiAlPostoDeiNumeri();
    void TestiNelleCaselle_data();
    void TestiNelleCaselle();
    void NomiNeiSuggerimentiDellaStoria_data();
    void NomiNeiSuggerimentiDellaStoria();
};

void tst_TestiOstili::TestiDelloSfondo_data()
{
    QTest::addColumn<QString>("testo");
    for (const char *testo : {"nan", "-nan", "inf", "-inf", "1e400", "-1e400", "1#INF", "0x10",
                              "1e", "--5", ".", "+", "1,5", "1.7e308"}) {
        QTest::addRow("%s", testo) << QString::fromLatin1(testo);
    }
    QTest::newRow("cifre senza fine") << QString(10000, u'9');
}

void tst_TestiOstili::TestiDelloSfondo()
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

void tst_TestiOstili::TestiAlPostoDeiNumeri_data()
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

void tst_TestiOstili::TestiAlPostoDeiNumeri()
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

void tst_TestiOstili::TestiNelleCaselle_data()
{
    TestiDelloSfondo_data();
}

void tst_TestiOstili::TestiNelleCaselle()
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
            Preme(*dialogo, BottoneConferma(genere));
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

void tst_TestiOstili::NomiNeiSuggerimentiDellaStoria_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QString>("mostrato");
    QTest::newRow("marcatore") << QStringLiteral("<b>Data</b>") << QStringLiteral("<b>Data</b>");
    QTest::newRow("figura di un altro")
        << QStringLiteral("<img src='/dev/zero'>x") << QStringLiteral("<img src='/dev/zero'>x");
    // As much as a hint window has room for.
    QTest::newRow("senza fine") << QString(3000, u'M')
                                << QString(200 - QStringLiteral("Annulla: elimina ").size(), u'M') +
                                       QChar(0x2026);
}

void tst_TestiOstili::NomiNeiSuggerimentiDellaStoria()
{
    QFETCH(const QString, nome);
    QFETCH(const QString, mostrato);
    EditoreDiProva prova;
    prova.Archivio.Riempie(2);
    prova.Archivio.DaAprire().Campi[1].Nome = nome;
    QVERIFY(prova.Apre());
    {
        Passo passo(prova.Archivio.Stato().documento, QStringLiteral("elimina ") + nome);
        passo.Elimina({Genere::Campo, 1});
    }
    const auto letto = [&](const char *bottone) {
        const QString testo = Trova<QToolButton>(*prova.Editor, bottone)->toolTip();
        QTextDocument documento; // shows it as the hint window does
        if (Qt::mightBeRichText(testo)) {
            documento.setHtml(testo);
        } else {
            documento.setPlainText(testo);
        }
        return documento.toPlainText();
    };
    QCOMPARE(letto("Annulla"), QStringLiteral("Annulla: elimina ") + mostrato);
    Preme(*prova.Editor, "Annulla");
    QVERIFY(letto("Ripristina")
                .startsWith(QStringLiteral("Ripristina: elimina ") + mostrato.left(100)));
    prova.Archivio.Stato().documento.Salvato();
}

QTEST_MAIN(tst_TestiOstili)
#include "tst_TestiOstili.moc"
