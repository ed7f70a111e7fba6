#include "editor/FrmCorrezione.h"

#include "StoriaDiProva.h"
#include "preview/ContornoCarta.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace {

const auto Laser = QStringLiteral("Laser");

/// An editor on its page "Spostamento", and the dialog over its model.
class Correzione : public StoriaDiProva
{
public:
    explicit Correzione(const QString &stampante = Laser)
        : dialogo(Archivio.Stato(), stampante, Archivio.CartellaStato(), Editor.get())
    {
        dialogo.show();
    }

    void Scrive(int segno, const QStringList &posti)
    {
        constexpr std::array<const char *, 4> Nomi{"AttesoX", "AttesoY", "UscitoX", "UscitoY"};
        for (std::size_t i = 0; i < Nomi.size(); ++i) {
            const QByteArray nome = Nomi.at(i) + QByteArray::number(segno);
            Controlli::Digita(dialogo, nome.constData(), posti.at(qsizetype(i)));
        }
    }
    QString Esito() const { return Trova<QLabel>(dialogo, "Esito")->text(); }
    QPushButton *Conferma() const { return Trova<QPushButton>(dialogo, "Conferma"); }
    QCheckBox *Spunta(const char *nome) const { return Trova<QCheckBox>(dialogo, nome); }

    FrmCorrezione dialogo;
};

QStringList Posti(const char *testo)
{
    return QString::fromLatin1(testo).split(u' ');
}

} // namespace

/// The dialog that corrects a model from a measured mark.
class tst_FrmCorrezione : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void diceESposta();
    void unSoloPassoEDallaPagina();
    void leRigheSeguonoNelleCaselle();
    void loSfondoRestaFermoSeNonSiVuole();
    void numeriComeSiScrivono_data();
    void numeriComeSiScrivono();
    void seLaStampanteRiduceNonOffreNulla();
    void storto();
    void nienteDaSpostare();
    void nullaDiScelto();
    void propostaAlProssimo();
    void seLaStampanteRiduceNemmenoLaProposta();
    void propostaDimenticata();
    void scriverePrevaleSullaProposta();
    void senzaCartellaSiSpostaLoStesso();
    void rinuncia();
    void laStrisciaLoDiceFinoAlProssimoPasso_data();
    void laStrisciaLoDiceFinoAlProssimoPasso();
};

void tst_FrmCorrezione::initTestCase()
{
    qputenv("CUPS_SERVER", "/nessuno/cups.sock"); // whatever this machine prints on
}

void tst_FrmCorrezione::diceESposta()
{
    Correzione prova;
    QVERIFY(!prova.Conferma()->isEnabled());
    QCOMPARE(prova.Esito(), QStringLiteral("Scrivere i due posti del segno, in millimetri."));
    prova.Scrive(1, Posti("20 30 18 31.2"));
    QCOMPARE(prova.Esito(), QStringLiteral("Spostamento: 2 mm a destra, 1 mm in alto"));
    prova.Conferma()->click();
    QCOMPARE(prova.dialogo.result(), int(QDialog::Accepted));
    QCOMPARE(prova.dialogo.Detto(),
             QStringLiteral("Modello spostato: 2 mm a destra, 1 mm in alto"));
    QCOMPARE(prova.Aperto().Campi[1].X, 22.0);
    QCOMPARE(prova.Aperto().Campi[1].Y, 29.0);
    QCOMPARE(prova.Aperto().Cornici[1].X, 32.0);
    QCOMPARE(prova.Aperto().Immagini[1].Y, 49.0);
    // The preview follows.
    QCOMPARE(prova.Archivio.Stato().documento.Variato(), true);
    QCOMPARE(static_cast<class Controllo *>(prova.Controllo("C2(1)"))->Posto().x(), 32.0);
}

void tst_FrmCorrezione::unSoloPassoEDallaPagina()
{
    StoriaDiProva prova;
    Trova<QTabWidget>(*prova.Editor, "SSTab1")->setCurrentIndex(4);
    Robot robot;
    robot.Agisce([](QDialog *dialogo) {
        Controlli::Digita(*dialogo, "AttesoX1", QStringLiteral("20"));
        Controlli::Digita(*dialogo, "AttesoY1", QStringLiteral("20"));
        Controlli::Digita(*dialogo, "UscitoX1", QStringLiteral("23"));
        Controlli::Digita(*dialogo, "UscitoY1", QStringLiteral("20"));
        Trova<QPushButton>(*dialogo, "Conferma")->click();
    });
    ::Preme(*prova.Editor, "CorreggiDaGriglia");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.DaAnnullare(), QStringLiteral("corregge da griglia: 3 mm a sinistra"));
    QCOMPARE(Trova<QLabel>(prova.Anteprima(), "Text1")->text(),
             QStringLiteral("Modello spostato: 3 mm a sinistra"));
    QCOMPARE(Trova<QTabWidget>(*prova.Editor, "SSTab1")->currentIndex(), 4);
    QCOMPARE(prova.AnnullaTutto(), 1);
    QVERIFY(prova.Aperto() == prova.Prima);
}

void tst_FrmCorrezione::leRigheSeguonoNelleCaselle()
{
    EditorSulModello prova([](ArchivioDiProva &archivio) {
        archivio.AggiungeCampo(QStringLiteral("R_Descrizione"), 40, 100);
        archivio.DaAprire().Righe = {100, 200.5, 5, 4, QStringLiteral("segue")};
    });
    QVERIFY(prova.caricato);
    Trova<QCheckBox>(*prova.editor, "OptSimuloRighe")->click();
    Robot robot;
    robot.Agisce([](QDialog *dialogo) {
        for (const char *nome : {"AttesoX1", "AttesoY1", "UscitoX1"}) {
            Controlli::Digita(*dialogo, nome, QStringLiteral("50"));
        }
        Controlli::Digita(*dialogo, "UscitoY1", QStringLiteral("46"));
        Trova<QPushButton>(*dialogo, "Conferma")->click();
    });
    ::Preme(*prova.editor, "CorreggiDaGriglia");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(Controlli::Testo(*prova.editor, "yInizio"), QStringLiteral("104"));
    QCOMPARE(Controlli::Testo(*prova.editor, "yFine"), QStringLiteral("204.5"));
    QCOMPARE(prova.Aperto().Campi[1].Y, 104.0);
    QVERIFY(Trova<QCheckBox>(*prova.editor, "OptSimuloRighe")->isChecked());
    // Confirming the page afterwards takes nothing back.
    ::Preme(*prova.editor, "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe.yInizio, 104.0);
}

void tst_FrmCorrezione::loSfondoRestaFermoSeNonSiVuole()
{
    for (const bool conLoSfondo : {false, true}) {
        EditorSulModello prova([](ArchivioDiProva &archivio) {
            archivio.AggiungeCampo(QStringLiteral("Data"), 40, 100);
            archivio.DaAprire().Sfondo = {ScriveScansione(archivio, 50, 40),
                                          QStringLiteral("50"),
                                          QStringLiteral("40"),
                                          QStringLiteral("10.5"),
                                          QStringLiteral("60"),
                                          1};
        });
        QVERIFY(prova.caricato);
        Robot robot;
        robot.Agisce([&](QDialog *dialogo) {
            auto *sfondo = Trova<QCheckBox>(*dialogo, "Sfondo");
            QVERIFY(sfondo->isEnabled() && !sfondo->isChecked());
            sfondo->setChecked(conLoSfondo);
            for (const char *nome : {"AttesoX1", "AttesoY1", "UscitoY1"}) {
                Controlli::Digita(*dialogo, nome, QStringLiteral("50"));
            }
            Controlli::Digita(*dialogo, "UscitoX1", QStringLiteral("40"));
            Trova<QPushButton>(*dialogo, "Conferma")->click();
        });
        ::Preme(*prova.editor, "CorreggiDaGriglia");
        QVERIFY(robot.Soddisfatto());
        const auto x = conLoSfondo ? QStringLiteral("20.5") : QStringLiteral("10.5");
        QCOMPARE(prova.Aperto().Sfondo.XPos, x);
        QCOMPARE(Controlli::Testo(*prova.editor, "SfondoXPosImm"), x);
        QCOMPARE(ColoreDelFoglio(*prova.editor, 12, 70) == QColor(Qt::red), !conLoSfondo);
        QCOMPARE(ColoreDelFoglio(*prova.editor, 65, 70) == QColor(Qt::red), conLoSfondo);
        QCOMPARE(prova.Aperto().Campi[1].X, 50.0);
        // One step, the boxes' filling included.
        Trova<QToolButton>(*prova.editor, "Annulla")->click();
        QCOMPARE(prova.Aperto().Sfondo.XPos, QStringLiteral("10.5"));
        QCOMPARE(prova.Aperto().Campi[1].X, 40.0);
        QVERIFY(!Trova<QToolButton>(*prova.editor, "Annulla")->isEnabled());
    }
}

void tst_FrmCorrezione::numeriComeSiScrivono_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<bool>("numero");
    QTest::newRow("a point") << QStringLiteral("17.6") << true;
    QTest::newRow("a comma, whatever the locale") << QStringLiteral("17,6") << true;
    QTest::newRow("thousands") << QStringLiteral("1.017,6") << false;
    QTest::newRow("blanks around") << QStringLiteral(" 17.6 ") << true;
    QTest::newRow("negative") << QStringLiteral("-2") << true;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("a unit behind it") << QStringLiteral("17.6 mm") << false;
    QTest::newRow("letters") << QStringLiteral("abc") << false;
    QTest::newRow("beyond any sheet") << QStringLiteral("1001") << false;
    QTest::newRow("beyond a double") << QStringLiteral("1e999") << false;
}

void tst_FrmCorrezione::numeriComeSiScrivono()
{
    QFETCH(QString, testo);
    QFETCH(bool, numero);
    Correzione prova;
    prova.Scrive(1, {QStringLiteral("20"), QStringLiteral("30"), testo, QStringLiteral("30")});
    QCOMPARE(prova.Conferma()->isEnabled(), numero);
    QCOMPARE(prova.Esito().startsWith(QStringLiteral("Spostamento: ")), numero);
    prova.dialogo.reject();
}

void tst_FrmCorrezione::seLaStampanteRiduceNonOffreNulla()
{
    Correzione prova;
    prova.Spunta("DueSegni")->click();
    prova.Scrive(1, Posti("20 20 24 25"));
    QVERIFY(!prova.Conferma()->isEnabled());
    prova.Scrive(2, Posti("20 220 24 219"));
    QVERIFY2(prova.Esito().startsWith(QStringLiteral(
                 "Tra i due segni dovrebbero esserci 200 mm, sulla carta ce ne sono 194: la "
                 "stampante riduce il foglio")),
             qPrintable(prova.Esito()));
    QVERIFY(prova.Esito().contains(QStringLiteral("dimensioni effettive (100 %)")));
    QVERIFY(!prova.Conferma()->isEnabled());
    QTest::keyClick(&prova.dialogo, Qt::Key_Return); // moves nothing either
    QVERIFY(prova.Aperto() == prova.Prima);
    prova.dialogo.reject();
}

void tst_FrmCorrezione::storto()
{
    Correzione prova;
    prova.Spunta("DueSegni")->click();
    prova.Scrive(1, Posti("20 20 22 20"));
    prova.Scrive(2, Posti("20 220 20 220"));
    QVERIFY2(prova.Esito().startsWith(QStringLiteral(
                 "Spostamento: 1 mm a sinistra\nIl foglio è entrato storto di 0.6 gradi")),
             qPrintable(prova.Esito()));
    QVERIFY(prova.Conferma()->isEnabled());
    prova.Scrive(2, Posti("20 40 20 40"));
    QVERIFY(prova.Esito().contains(QStringLiteral("troppo vicini")));
    prova.Scrive(1, Posti("20 20 20 20"));
    prova.Scrive(2, Posti("20 220 220 20"));
    QVERIFY(prova.Esito().contains(QStringLiteral("non si corrispondono")));
    QVERIFY(!prova.Conferma()->isEnabled());
    prova.dialogo.reject();
}

void tst_FrmCorrezione::nienteDaSpostare()
{
    Correzione prova;
    prova.Scrive(1, Posti("20 30 20.4 30.4"));
    QVERIFY(prova.Esito().startsWith(QStringLiteral("Nessuno spostamento")));
    QVERIFY(!prova.Conferma()->isEnabled());
    prova.dialogo.reject();
}

void tst_FrmCorrezione::nullaDiScelto()
{
    Correzione prova;
    prova.Scrive(1, Posti("20 30 10 30"));
    QVERIFY(prova.Conferma()->isEnabled());
    for (const char *nome : {"Campi", "Cornici", "Immagini", "Righe", "Sfondo"}) {
        prova.Spunta(nome)->setChecked(false);
    }
    QVERIFY(!prova.Conferma()->isEnabled());
    prova.Spunta("Cornici")->click();
    prova.Conferma()->click();
    QCOMPARE(prova.Aperto().Cornici[1].X, 40.0);
    QCOMPARE(prova.Aperto().Campi[1].X, 20.0);
}

void tst_FrmCorrezione::propostaAlProssimo()
{
    Correzione prima;
    QVERIFY(!Trova<QWidget>(prima.dialogo, "UsaProposta")->isVisible());
    prima.Scrive(1, Posti("20 30 18 31"));
    prima.Conferma()->click();
    // The same model again has had it.
    StatoProgramma &stato = prima.Archivio.Stato();
    FrmCorrezione ancora(stato, Laser, prima.Archivio.CartellaStato(), prima.Editor.get());
    ancora.show();
    QVERIFY(!Trova<QWidget>(ancora, "UsaProposta")->isVisible());
    stato.NomeFile = QStringLiteral("Altro.Mod");
    FrmCorrezione altra(stato, QStringLiteral("Altra"), prima.Archivio.CartellaStato(),
                        prima.Editor.get());
    altra.show();
    QVERIFY(!Trova<QWidget>(altra, "UsaProposta")->isVisible());
    FrmCorrezione prossima(stato, Laser, prima.Archivio.CartellaStato(), prima.Editor.get());
    prossima.show();
    QCOMPARE(Trova<QLabel>(prossima, "Proposta")->text(),
             QStringLiteral("Ultima correzione per Laser: 2 mm a destra, 1 mm in alto"));
    Trova<QPushButton>(prossima, "UsaProposta")->click();
    QCOMPARE(Trova<QLabel>(prossima, "Esito")->text(),
             QStringLiteral("Spostamento: 2 mm a destra, 1 mm in alto"));
    Trova<QPushButton>(prossima, "Conferma")->click();
    QCOMPARE(prima.Aperto().Campi[1].X, 24.0);
}

void tst_FrmCorrezione::seLaStampanteRiduceNemmenoLaProposta()
{
    Correzione prima;
    prima.Scrive(1, Posti("20 30 18 31"));
    prima.Conferma()->click();
    StatoProgramma &stato = prima.Archivio.Stato();
    stato.NomeFile = QStringLiteral("Altro.Mod");
    FrmCorrezione prossima(stato, Laser, prima.Archivio.CartellaStato(), prima.Editor.get());
    prossima.show();
    auto *usa = Trova<QPushButton>(prossima, "UsaProposta");
    usa->click();
    QVERIFY(Trova<QPushButton>(prossima, "Conferma")->isEnabled());
    Trova<QCheckBox>(prossima, "DueSegni")->click();
    constexpr std::array<std::pair<const char *, int>, 8> Misure{{{"AttesoX1", 20},
                                                                  {"AttesoY1", 20},
                                                                  {"UscitoX1", 24},
                                                                  {"UscitoY1", 25},
                                                                  {"AttesoX2", 20},
                                                                  {"AttesoY2", 220},
                                                                  {"UscitoX2", 24},
                                                                  {"UscitoY2", 219}}};
    for (const auto &[casella, millimetri] : Misure) {
        Controlli::Digita(prossima, casella, QString::number(millimetri));
    }
    QVERIFY(!usa->isEnabled());
    QVERIFY(!Trova<QPushButton>(prossima, "Conferma")->isEnabled());
    Controlli::Digita(prossima, "UscitoY2", QStringLiteral("225")); // only shifted after all
    QVERIFY(usa->isEnabled());
    prossima.reject();
}

void tst_FrmCorrezione::propostaDimenticata()
{
    StoriaDiProva prova;
    const QString cartella = prova.Archivio.CartellaStato();
    UltimeCorrezioni(cartella).Ricorda(Laser, QStringLiteral("/altro.Mod"), {2, -1});
    FrmCorrezione dialogo(prova.Archivio.Stato(), Laser, cartella, prova.Editor.get());
    dialogo.show();
    Trova<QPushButton>(dialogo, "UsaProposta")->click();
    Trova<QPushButton>(dialogo, "DimenticaProposta")->click();
    QVERIFY(!Trova<QWidget>(dialogo, "Proposta")->isVisible());
    QVERIFY(!Trova<QPushButton>(dialogo, "Conferma")->isEnabled());
    QVERIFY(!UltimeCorrezioni(cartella).Proposta(Laser, QStringLiteral("/terzo.Mod")));
}

void tst_FrmCorrezione::scriverePrevaleSullaProposta()
{
    StoriaDiProva prova;
    const QString cartella = prova.Archivio.CartellaStato();
    UltimeCorrezioni(cartella).Ricorda(Laser, QStringLiteral("/altro.Mod"), {2, -1});
    FrmCorrezione dialogo(prova.Archivio.Stato(), Laser, cartella, prova.Editor.get());
    dialogo.show();
    Trova<QPushButton>(dialogo, "UsaProposta")->click();
    Controlli::Digita(dialogo, "AttesoX1", QStringLiteral("5"));
    QCOMPARE(Trova<QLabel>(dialogo, "Esito")->text(),
             QStringLiteral("Scrivere i due posti del segno, in millimetri."));
    QVERIFY(!Trova<QPushButton>(dialogo, "Conferma")->isEnabled());
}

void tst_FrmCorrezione::senzaCartellaSiSpostaLoStesso()
{
    StoriaDiProva prova;
    FrmCorrezione dialogo(prova.Archivio.Stato(), Laser, QStringLiteral("/proc/nessuna"),
                          prova.Editor.get());
    dialogo.show();
    for (const char *nome : {"AttesoX1", "AttesoY1", "UscitoY1"}) {
        Controlli::Digita(dialogo, nome, QStringLiteral("50"));
    }
    Controlli::Digita(dialogo, "UscitoX1", QStringLiteral("45"));
    Trova<QPushButton>(dialogo, "Conferma")->click();
    QCOMPARE(prova.Aperto().Campi[1].X, 25.0);
    QVERIFY2(dialogo.Detto().startsWith(QStringLiteral(
                 "Modello spostato: 5 mm a destra; non sarà proposto per il prossimo (errore ")),
             qPrintable(dialogo.Detto()));
}

void tst_FrmCorrezione::rinuncia()
{
    Correzione prova;
    prova.Scrive(1, Posti("20 30 18 31"));
    Trova<QPushButton>(prova.dialogo, "Rinuncia")->click();
    QVERIFY(prova.dialogo.Detto().isEmpty());
    QVERIFY(prova.Aperto() == prova.Prima);
    QVERIFY(!prova.Archivio.Stato().documento.Variato());
    QVERIFY(!QFile::exists(prova.Archivio.CartellaStato() + QStringLiteral("/correzioni.json")));
}

void tst_FrmCorrezione::laStrisciaLoDiceFinoAlProssimoPasso_data()
{
    QTest::addColumn<QString>("bottone");
    QTest::newRow("taken back") << QStringLiteral("Annulla");
    QTest::newRow("another step") << QStringLiteral("Command2");
}

void tst_FrmCorrezione::laStrisciaLoDiceFinoAlProssimoPasso()
{
    QFETCH(QString, bottone);
    StoriaDiProva prova;
    Trova<QTabWidget>(*prova.Editor, "SSTab1")->setCurrentIndex(4);
    Robot robot;
    robot.Agisce([](QDialog *dialogo) {
        for (const char *nome : {"AttesoX1", "AttesoY1", "UscitoY1"}) {
            Controlli::Digita(*dialogo, nome, QStringLiteral("20"));
        }
        Controlli::Digita(*dialogo, "UscitoX1", QStringLiteral("23"));
        Trova<QPushButton>(*dialogo, "Conferma")->click();
    });
    ::Preme(*prova.Editor, "CorreggiDaGriglia");
    QVERIFY(robot.Soddisfatto());
    const auto *striscia = Trova<QLabel>(prova.Anteprima(), "Text1");
    QCOMPARE(striscia->text(), QStringLiteral("Modello spostato: 3 mm a sinistra"));
    Trova<QAbstractButton>(*prova.Editor, qPrintable(bottone))->click();
    QVERIFY2(!striscia->text().contains(QStringLiteral("Modello spostato")),
             qPrintable(striscia->text()));
    // What the strip says of something else stays.
    prova.Anteprima().Avverte(QStringLiteral("altro"));
    prova.Annulla();
    QCOMPARE(striscia->text(), QStringLiteral("altro"));
}

QTEST_MAIN(tst_FrmCorrezione)
#include "tst_FrmCorrezione.moc"
