// What the property dialogs of the three kinds have in common for whoever uses them.

#include "dialogs/DialogoDiProva.h"
#include "dialogs/Mnemonici.h"
#include "finestre/Finestre.h"
#include "support/Errori.h"

#include <QPushButton>

using namespace Controlli;

class tst_FrmElemento : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void MnemoniciUnici_data() { RighePerGenere(); }
    void MnemoniciUnici();
    void OgniControlloHaLArgomentoDellaGuida_data() { RighePerGenere(); }
    void OgniControlloHaLArgomentoDellaGuida();
    void StaInUnoSchermoPiccolo_data() { RighePerGenere(); }
    void StaInUnoSchermoPiccolo();
    void CaricaUnIndiceFuoriTabellaEErrore9_data() { RighePerGenere(); }
    void CaricaUnIndiceFuoriTabellaEErrore9();
    void Numero_data();
    void Numero();
    void SoloCaratteriDelCodice_data() { RighePerGenere(); }
    void SoloCaratteriDelCodice();

    void LElencoSegueLaConfermaPoiSiChiude_data() { RighePerGenere(); }
    void LElencoSegueLaConfermaPoiSiChiude();
    void InvioConferma_data();
    void InvioConferma();
    void InvioSuUnBottoneLoPreme_data() { Domande(); }
    void InvioSuUnBottoneLoPreme();
    void EscChiudeSenzaScrivere_data() { InvioConferma_data(); }
    void EscChiudeSenzaScrivere();
    void AprireEConfermareNonCambiaNulla_data() { RighePerGenere(); }
    void AprireEConfermareNonCambiaNulla();
    void ConfermaIlProprioNome_data() { RighePerGenere(); }
    void ConfermaIlProprioNome();
    void NomeDiUnAltro_data();
    void NomeDiUnAltro();
    void NomeVuotoRifiutato_data();
    void NomeVuotoRifiutato();
    void TestoCheNonENumero_data();
    void TestoCheNonENumero();
    void NumeriConLaVirgolaDellaLocale_data() { RighePerGenere(); }
    void NumeriConLaVirgolaDellaLocale();
    void IndiceFuoriTabellaAllaConferma_data() { RighePerGenere(); }
    void IndiceFuoriTabellaAllaConferma();
    void ConfermaCon101Elementi_data() { RighePerGenere(); }
    void ConfermaCon101Elementi();

    void EliminaConNo_data() { Domande(); }
    void EliminaConNo();
    void EliminaConSi_data() { Domande(); }
    void EliminaConSi();

private:
    static void Domande();
};

void tst_FrmElemento::MnemoniciUnici()
{
    QFETCH(Genere, genere);
    const DialogoAperto p(genere);
    QCOMPARE(MnemoniciRipetuti(*p.dialogo, genere == Genere::Immagine ? 9 : 15), QStringList());
}

void tst_FrmElemento::OgniControlloHaLArgomentoDellaGuida()
{
    QFETCH(Genere, genere);
    const DialogoAperto p(genere);
    for (const QWidget *controllo : p.dialogo->findChildren<QWidget *>()) {
        QCOMPARE(ArgomentoDi(controllo), ArgomentoGuida);
    }
}

void tst_FrmElemento::StaInUnoSchermoPiccolo()
{
    QFETCH(Genere, genere);
    const DialogoAperto p(genere);
    // 1366x768 without the strip of the editor, the title bar and the borders.
    QVERIFY2(p.dialogo->sizeHint().width() <= 1300, "too wide");
    QVERIFY2(p.dialogo->sizeHint().height() <= 500, "too high");
    for (const QPushButton *bottone : p.dialogo->findChildren<QPushButton *>()) {
        QVERIFY2(bottone->width() >= bottone->minimumSizeHint().width(),
                 qPrintable(bottone->objectName()));
    }
}

void tst_FrmElemento::CaricaUnIndiceFuoriTabellaEErrore9()
{
    QFETCH(Genere, genere);
    DialogoAperto p(genere);
    for (const int indice : {101, -1}) {
        QCOMPARE(ErroreDi([&] { p.Carica(indice); }), ErroreSistema::Indice);
    }
    QCOMPARE(Testo(*p.dialogo, "Nome"), QStringLiteral("Elemento2"));
}

void tst_FrmElemento::Numero_data()
{
    QTest::addColumn<QString>("testo");
    QTest::addColumn<bool>("valido");
    QTest::newRow("400") << QStringLiteral("400") << true;
    QTest::newRow("negativo") << QStringLiteral("-5000") << true;
    QTest::newRow("decimali") << QStringLiteral("12.5") << true;
    QTest::newRow("401") << QStringLiteral("401") << false;
    QTest::newRow("400.1") << QStringLiteral("400.1") << false;
    QTest::newRow("lettere") << QStringLiteral("abc") << false;
    QTest::newRow("vuoto") << QString() << false;
}

void tst_FrmElemento::Numero()
{
    QFETCH(QString, testo);
    QFETCH(bool, valido);
    QLineEdit casella(testo);
    QCOMPARE(FrmElemento::Numero(&casella), valido);
    QCOMPARE(casella.text(), valido ? testo : QStringLiteral("0"));
}

void tst_FrmElemento::SoloCaratteriDelCodice()
{
    QFETCH(Genere, genere);
    DialogoAperto p(genere);
    Digita(*p.dialogo, "Descrizione", QStringLiteral("prezzo € \u4E2D\u6587 più"));
    QCOMPARE(Testo(*p.dialogo, "Descrizione"), QStringLiteral("prezzo €  più"));
}

void tst_FrmElemento::LElencoSegueLaConfermaPoiSiChiude()
{
    QFETCH(Genere, genere);
    DialogoAperto p(genere);
    Digita(*p.dialogo, "Nome", QStringLiteral("Iva"));
    p.Conferma();
    QCOMPARE(p.Secondo().Nome, QStringLiteral("Iva"));
    p.VerificaConcluso(QStringLiteral("Iva"));
    QCOMPARE(p.dialogo->result(), int(QDialog::Accepted));
    QVERIFY(p.robot.Soddisfatto());
}

void tst_FrmElemento::InvioConferma_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QByteArray>("casella");
    for (const char *casella : {"Nome", "X"}) {
        QTest::addRow("campo, %s", casella) << Genere::Campo << QByteArray(casella);
        QTest::addRow("cornice, %s", casella) << Genere::Cornice << QByteArray(casella);
        QTest::addRow("immagine, %s", casella) << Genere::Immagine << QByteArray(casella);
    }
}

void tst_FrmElemento::InvioConferma()
{
    QFETCH(Genere, genere);
    QFETCH(QByteArray, casella);
    DialogoAperto p(genere);
    Digita(*p.dialogo, "Nome", QStringLiteral("Iva"));
    Digita(*p.dialogo, "X", QStringLiteral("7"));
    QTest::keyClick(Trova<QLineEdit>(*p.dialogo, casella), Qt::Key_Return);
    QCOMPARE(p.Secondo().Nome, QStringLiteral("Iva"));
    QCOMPARE(p.Secondo().X, 7.0);
    QVERIFY(!p.dialogo->isVisible());
}

void tst_FrmElemento::InvioSuUnBottoneLoPreme()
{
    QFETCH(Genere, genere);
    QFETCH(QString, domanda);
    DialogoAperto p(genere);
    p.robot.No();
    auto *elimina = Trova<QPushButton>(*p.dialogo, BottoneElimina(genere));
    elimina->setFocus();
    QTest::keyClick(elimina, Qt::Key_Return);
    QCOMPARE(p.robot.Testi(), QStringList({domanda}));
    Trova<QLineEdit>(*p.dialogo, "X")->setFocus();
    QTest::keyClick(p.dialogo->focusWidget(), Qt::Key_Return);
    QVERIFY(!p.dialogo->isVisible());
    QVERIFY(p.robot.Soddisfatto());
}

void tst_FrmElemento::EscChiudeSenzaScrivere()
{
    QFETCH(Genere, genere);
    QFETCH(QByteArray, casella);
    DialogoAperto p(genere);
    const Modello prima = p.stato.Aperto();
    Digita(*p.dialogo, "Nome", QStringLiteral("Iva"));
    Digita(*p.dialogo, "X", QStringLiteral("7"));
    QTest::keyClick(Trova<QLineEdit>(*p.dialogo, casella), Qt::Key_Escape);
    QVERIFY(!p.dialogo->isVisible());
    QVERIFY(p.stato.Aperto() == prima);
    QVERIFY(p.chiamante->Ignaro());
    p.Apre(2);
    QCOMPARE(Testo(*p.dialogo, "Nome"), QStringLiteral("Elemento2"));
    QCOMPARE(Testo(*p.dialogo, "X"), QStringLiteral("20"));
}

void tst_FrmElemento::AprireEConfermareNonCambiaNulla()
{
    QFETCH(Genere, genere);
    const QString nome = QStringLiteral("nome\tcon \x01 e\nriga.jpg");
    for (const QLocale &locale : {QLocale::c(), QLocale(QStringLiteral("it_IT"))}) {
        QLocale::setDefault(locale);
        DialogoDiProva p(genere);
        Cambia(p.stato, [&nome](Modello &modello) {
            modello.Campi[2] = Campo{{nome, 1.0 / 3, 1e300 / 7, QStringLiteral(" a\u00A0 ")},
                                     QString(40000, u'è'),
                                     QString(40001, u'$'),
                                     QStringLiteral("Arial"),
                                     11,
                                     Falso,
                                     QStringLiteral("\x7F\u0081 x")};
            Cornice &cornice = modello.Cornici[2];
            cornice.Nome = nome;
            cornice.Testo = QString(40000, u'è');
            cornice.X = 1.0 / 3;
            cornice.Y = -1e-20;
            cornice.Larghezza = 20.0 / 3;
            cornice.Altezza = -1;
            cornice.Bordo = 1.1 + 1e-14 / 3;
            modello.Immagini[2] = Immagine{
                {nome, 1.0 / 3, -2.0 / 3, QString(40000, u'è')}, 1e300 / 7, 20.0 / 3, 1.0 / 7};
        });
        const Modello prima = p.stato.Aperto();
        p.Apre(2);
        p.Conferma();
        QVERIFY(!p.dialogo->isVisible());
        QVERIFY(p.stato.Aperto() == prima);
    }
}

void tst_FrmElemento::ConfermaIlProprioNome()
{
    QFETCH(Genere, genere);
    DialogoAperto p(genere);
    Digita(*p.dialogo, "Nome", QStringLiteral("ELEMENTO2"));
    p.Conferma();
    QCOMPARE(p.Secondo().Nome, QStringLiteral("ELEMENTO2"));
}

void tst_FrmElemento::NomeDiUnAltro_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QString>("messaggio");
    const auto righe = [](const char *riga, Genere genere, const char *messaggio) {
        QTest::addRow("%s, uguale", riga)
            << genere << QStringLiteral("Elemento3") << QString::fromUtf8(messaggio);
        QTest::addRow("%s, maiuscole diverse", riga)
            << genere << QStringLiteral("eLEMENTO1") << QString::fromUtf8(messaggio);
    };
    righe("campo", Genere::Campo, "nome già esistente");
    righe("cornice", Genere::Cornice, "nome già esistente");
    righe("immagine", Genere::Immagine, "immagine già esistente");
}

void tst_FrmElemento::NomeDiUnAltro()
{
    QFETCH(Genere, genere);
    QFETCH(QString, nome);
    QFETCH(QString, messaggio);
    DialogoAperto p(genere);
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(*p.dialogo, "Nome", nome);
    Digita(*p.dialogo, "X", QStringLiteral("abc")); // looked at only afterwards
    p.Conferma();
    QCOMPARE(p.robot.Testi(), QStringList({messaggio}));
    QVERIFY(p.Intatto(prima));
    QVERIFY(p.chiamante->Ignaro());
    QCOMPARE(Testo(*p.dialogo, "Nome"), nome);
}

void tst_FrmElemento::NomeVuotoRifiutato_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("campo") << Genere::Campo;
    QTest::newRow("cornice") << Genere::Cornice;
}

void tst_FrmElemento::NomeVuotoRifiutato()
{
    QFETCH(Genere, genere);
    DialogoAperto p(genere);
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(*p.dialogo, "Nome", QString());
    Digita(*p.dialogo, "X", QStringLiteral("abc")); // looked at only afterwards
    p.Conferma();
    QCOMPARE(p.robot.Testi(), QStringList({QStringLiteral("Nome: non può essere vuoto")}));
    QVERIFY(p.Intatto(prima));
}

void tst_FrmElemento::TestoCheNonENumero_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QByteArray>("casella");
    QTest::addColumn<QString>("testo");
    QTest::addColumn<QString>("messaggio");
    const auto riga = [](const char *nome, Genere genere, const char *casella, const char *testo,
                         const char *messaggio) {
        QTest::newRow(nome) << genere << QByteArray(casella) << QString::fromUtf8(testo)
                            << QString::fromUtf8(messaggio);
    };
    riga("lettere", Genere::Campo, "X", "abc", "Posizione X: «abc» non è un numero");
    riga("vuoto", Genere::Campo, "Y", "", "Posizione Y: manca il numero");
    riga("misto", Genere::Campo, "Y", "12mm", "Posizione Y: «12mm» non è un numero");
    riga("virgola in una locale col punto", Genere::Campo, "X", "1,5",
         "Posizione X: «1,5» non è un numero");
    riga("infinito", Genere::Campo, "X", "1e999", "Posizione X: «1e999» non è un numero");
    const QList<std::pair<const char *, Genere>> conMisure{{"cornice", Genere::Cornice},
                                                           {"immagine", Genere::Immagine}};
    for (const auto &voce : conMisure) {
        const auto unoX = [&](const char *casella, const char *messaggio) {
            riga(QByteArray(voce.first) + ", " + casella, voce.second, casella, "1x", messaggio);
        };
        unoX("X", "Posizione X: «1x» non è un numero");
        unoX("Y", "Posizione Y: «1x» non è un numero");
        unoX("Largh", "Larghezza: «1x» non è un numero");
        unoX("Alt", "Altezza: «1x» non è un numero");
    }
    riga("immagine, Bordo", Genere::Immagine, "Bordo", "1x", "Bordo: «1x» non è un numero");
}

void tst_FrmElemento::TestoCheNonENumero()
{
    QFETCH(Genere, genere);
    QFETCH(QByteArray, casella);
    QFETCH(QString, testo);
    QFETCH(QString, messaggio);
    DialogoAperto p(genere);
    const Modello prima = p.stato.Aperto();
    p.robot.Ok();
    Digita(*p.dialogo, "Nome", QStringLiteral("Iva"));
    Digita(*p.dialogo, "Descrizione", QStringLiteral("cambiata"));
    Digita(*p.dialogo, casella, testo);
    p.Conferma();
    QCOMPARE(p.robot.Testi(), QStringList({messaggio}));
    QVERIFY(p.Intatto(prima));
    QCOMPARE(p.dialogo->focusWidget(), Trova<QWidget>(*p.dialogo, casella));
}

void tst_FrmElemento::NumeriConLaVirgolaDellaLocale()
{
    QFETCH(Genere, genere);
    QLocale::setDefault(QLocale(QStringLiteral("it_IT")));
    DialogoDiProva p(genere);
    Lascia(p.stato, {genere, 2}, {12.5, 40, 20, 10});
    p.Apre(2);
    QCOMPARE(Testo(*p.dialogo, "X"), QStringLiteral("12,5"));
    Digita(*p.dialogo, "X", QStringLiteral("7,25"));
    Digita(*p.dialogo, "Y", QStringLiteral("8.75"));
    p.Conferma();
    // An image may stand anywhere, the others on whole millimetres.
    const QPointF atteso = genere == Genere::Immagine ? QPointF(7.25, 8.75) : QPointF(7, 9);
    QCOMPARE(QPointF(p.Secondo().X, p.Secondo().Y), atteso);
}

void tst_FrmElemento::IndiceFuoriTabellaAllaConferma()
{
    QFETCH(Genere, genere);
    DialogoAperto p(genere);
    const Modello prima = p.stato.Aperto();
    p.robot.Ok().Ok();
    Trova<QLineEdit>(*p.dialogo, "Num")->setText(QStringLiteral("101"));
    Digita(*p.dialogo, "Nome", QStringLiteral("Iva"));
    p.Conferma();
    p.Elimina();
    QCOMPARE(p.robot.Testi().size(), 2);
    for (const QString &testo : p.robot.Testi()) {
        QVERIFY2(testo.startsWith(QStringLiteral("errore 9 ")), qPrintable(testo));
    }
    QVERIFY(p.Intatto(prima));
    QVERIFY(p.chiamante->Ignaro());
}

void tst_FrmElemento::ConfermaCon101Elementi()
{
    QFETCH(Genere, genere);
    DialogoAperto p(genere);
    Cambia(p.stato, [](Modello &modello) {
        modello.NumCampi = modello.NumCornici = modello.NumImmagini = 101;
    });
    Digita(*p.dialogo, "Nome", QStringLiteral("Iva"));
    Digita(*p.dialogo, "X", QStringLiteral("7"));
    p.Conferma();
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY(!p.dialogo->isVisible());
    QCOMPARE(p.Secondo().Nome, QStringLiteral("Iva"));
    QCOMPARE(p.Secondo().X, 7.0);
}

void tst_FrmElemento::Domande()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QString>("domanda");
    QTest::newRow("campo") << Genere::Campo << QStringLiteral("Elimino il campo Elemento2");
    QTest::newRow("cornice") << Genere::Cornice << QStringLiteral("Elimino Cornice Elemento2");
    QTest::newRow("immagine") << Genere::Immagine << QStringLiteral("Elimino Immagine Elemento2");
}

void tst_FrmElemento::EliminaConNo()
{
    QFETCH(Genere, genere);
    QFETCH(QString, domanda);
    DialogoAperto p(genere);
    const Modello prima = p.stato.Aperto();
    p.robot.No();
    Digita(*p.dialogo, "Nome", QStringLiteral("altro"));
    p.Elimina();
    QCOMPARE(p.robot.Testi(), QStringList({domanda}));
    QCOMPARE(p.robot.Predefiniti(), QStringList({QStringLiteral("&No")}));
    QVERIFY(p.Intatto(prima));
    QVERIFY(p.chiamante->Ignaro());
}

void tst_FrmElemento::EliminaConSi()
{
    QFETCH(Genere, genere);
    QFETCH(QString, domanda);
    DialogoAperto p(genere);
    Modello atteso = p.stato.Aperto();
    atteso.Di({genere, 2}).Nome.clear();
    p.robot.Si();
    p.Elimina();
    QCOMPARE(p.robot.Testi(), QStringList({domanda}));
    QVERIFY(p.stato.Aperto() == atteso);
    p.VerificaConcluso(QStringLiteral(" ELIMINATO: Elemento2"));
}

QTEST_MAIN(tst_FrmElemento)
#include "tst_FrmElemento.moc"
