#include "model/Modello.h"

#include "support/Errori.h"

#include <QSet>
#include <QTest>

#include <cmath>

#include <type_traits>
#include <variant>

class tst_Modello : public QObject
{
    Q_OBJECT

private slots:
    void IlBordoDiceTipoESpessore_data();
    void IlBordoDiceTipoESpessore();
    void LaMascheraNoSiLeggeInDueModi_data();
    void LaMascheraNoSiLeggeInDueModi();
    void ProgrammaFresco();
    void Indici_data();
    void Indici();
    void CampoNuovo();
    void CorniceNuova();
    void CorniceNuovaTieneIlColoreDelTesto();
    void NomeDiCorniceNuova_data();
    void NomeDiCorniceNuova();
    void NomeDiCorniceNuovaLibero_data();
    void NomeDiCorniceNuovaLibero();
    void CentoCorniciNelloStessoSecondo();
    void ImmagineNuova();
    void CentounesimoElemento_data();
    void CentounesimoElemento();
    void EliminatoTieneLoSlot_data();
    void EliminatoTieneLoSlot();
    void PerGenere_data();
    void PerGenere();
    void CampoDiRiga_data();
    void CampoDiRiga();
    void EUnValore();
    void ArrotondaAMillimetriInteri();
    void ArrotondaLeRigheAllInizio();
};

Q_DECLARE_METATYPE(Genere)

namespace {

void RigheDeiGeneri()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("campi") << Genere::Campo;
    QTest::newRow("cornici") << Genere::Cornice;
    QTest::newRow("immagini") << Genere::Immagine;
}

int Aggiunge(Modello &modello, Genere genere)
{
    switch (genere) {
    case Genere::Campo:
        return modello.AggiungeCampo(10, 20);
    case Genere::Cornice:
        return modello.AggiungeCornice(10, 20, 5, 7);
    case Genere::Immagine:
        break;
    }
    return modello.AggiungeImmagine(10, 20);
}

} // namespace

void tst_Modello::ProgrammaFresco()
{
    const Modello modello;
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        QCOMPARE(modello.Numero(genere), qint16(0));
        QCOMPARE(modello.UltimoSlot(genere), 0);
        for (int i = 0; i <= 100; ++i) {
            QVERIFY(!modello.Presente(genere, i));
        }
    }
    QCOMPARE(modello.Cornici[1].ColoreTesto, qint16(0));
    QCOMPARE(QString(Modello::SeguePagPredefinito), QStringLiteral("segue su pagina successiva"));
}

void tst_Modello::Indici_data()
{
    QTest::addColumn<int>("indice");
    QTest::addColumn<int>("errore");

    QTest::newRow("0, mai usato") << 0 << 0;
    QTest::newRow("1") << 1 << 0;
    QTest::newRow("100, l'ultimo") << 100 << 0;
    QTest::newRow("101") << 101 << 9;
    QTest::newRow("-1") << -1 << 9;
    QTest::newRow("32767") << 32767 << 9;
    QTest::newRow("-32768") << -32768 << 9;
}

void tst_Modello::Indici()
{
    QFETCH(int, indice);
    QFETCH(int, errore);
    Modello modello;
    const Modello &costante = modello;
    QCOMPARE(ErroreDi([&] { modello.Campi[indice].X = 1; }), errore);
    QCOMPARE(ErroreDi([&] { modello.Cornici[indice].X = 1; }), errore);
    QCOMPARE(ErroreDi([&] { modello.Immagini[indice].X = 1; }), errore);
    QCOMPARE(ErroreDi([&] { (void)costante.Campi[indice]; }), errore);
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        QCOMPARE(ErroreDi([&] { (void)costante.Presente(genere, indice); }), errore);
        QCOMPARE(ErroreDi([&] { modello.Nome(genere, indice).clear(); }), errore);
    }
}

void tst_Modello::CampoNuovo()
{
    Modello modello;
    modello.NumCampi = 6;
    // What the slot held before is not the new field's.
    modello.Campi[7] = {{QStringLiteral("x"), 1, 2, QStringLiteral("x")},
                        QStringLiteral("x"),
                        QStringLiteral("No"),
                        QStringLiteral("x"),
                        3,
                        Vero,
                        QStringLiteral("x")};
    QCOMPARE(modello.AggiungeCampo(12.5, 30), 7);
    QCOMPARE(modello.NumCampi, qint16(7));
    const QString nome = QStringLiteral("nuovocampo7");
    const QString dollari = QStringLiteral("$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$");
    QCOMPARE(dollari.size(), 30);
    const Campo atteso{
        {nome, 12.5, 30, nome}, nome, dollari, QStringLiteral("Arial"), 11, Falso, dollari};
    QVERIFY(modello.Campi[7] == atteso);
}

void tst_Modello::CorniceNuova()
{
    Modello modello;
    QCOMPARE(modello.AggiungeCornice(12.5, 30, 5, 7), 1);
    QCOMPARE(modello.NumCornici, qint16(1));
    const Cornice atteso{{QStringLiteral("Nuova57"), 12.5, 30, QStringLiteral("nuovaCornice1")},
                         QStringLiteral("Nuova57"),
                         QStringLiteral("Arial"),
                         11,
                         Falso,
                         10,
                         20,
                         1,
                         0,
                         0};
    QVERIFY(modello.Cornici[1] == atteso);
}

void tst_Modello::CorniceNuovaTieneIlColoreDelTesto()
{
    Modello modello;
    modello.Cornici[1].ColoreTesto = 12;
    modello.Cornici[1].ColoreCornice = 9;
    modello.Cornici[1].Grassetto = Vero;
    modello.AggiungeCornice(0, 0, 0, 0);
    QCOMPARE(modello.Cornici[1].ColoreTesto, qint16(12));
    QCOMPARE(modello.Cornici[1].ColoreCornice, qint16(0));
    QCOMPARE(modello.Cornici[1].Grassetto, Falso);
}

void tst_Modello::NomeDiCorniceNuova_data()
{
    QTest::addColumn<int>("minuto");
    QTest::addColumn<int>("secondo");
    QTest::addColumn<QString>("nome");

    QTest::newRow("senza zeri davanti") << 5 << 7 << QStringLiteral("Nuova57");
    QTest::newRow("zero in punto") << 0 << 0 << QStringLiteral("Nuova00");
    QTest::newRow("due cifre") << 59 << 59 << QStringLiteral("Nuova5959");
}

void tst_Modello::NomeDiCorniceNuova()
{
    QFETCH(int, minuto);
    QFETCH(int, secondo);
    QFETCH(QString, nome);
    Modello modello;
    modello.AggiungeCornice(0, 0, minuto, secondo);
    QCOMPARE(modello.Cornici[1].Nome, nome);
    QCOMPARE(modello.Cornici[1].Testo, nome);
}

void tst_Modello::NomeDiCorniceNuovaLibero_data()
{
    QTest::addColumn<QStringList>("presenti");
    QTest::addColumn<int>("minuto");
    QTest::addColumn<int>("secondo");
    QTest::addColumn<QString>("nome");

    QTest::newRow("stesso secondo")
        << QStringList{QStringLiteral("Nuova57")} << 5 << 7 << QStringLiteral("Nuova58");
    QTest::newRow("maiuscole e minuscole")
        << QStringList{QStringLiteral("NUOVA57"), QStringLiteral("nuova58")} << 5 << 7
        << QStringLiteral("Nuova59");
    QTest::newRow("minuto seguente")
        << QStringList{QStringLiteral("Nuova559")} << 5 << 59 << QStringLiteral("Nuova60");
    QTest::newRow("ora seguente") << QStringList{QStringLiteral("Nuova5959")} << 59 << 59
                                  << QStringLiteral("Nuova00");
    QTest::newRow("nome di un altro istante")
        << QStringList{QStringLiteral("Nuova111")} << 11 << 1 << QStringLiteral("Nuova112");
    QTest::newRow("eliminata") << QStringList{QString()} << 5 << 7 << QStringLiteral("Nuova57");
}

void tst_Modello::NomeDiCorniceNuovaLibero()
{
    QFETCH(QStringList, presenti);
    QFETCH(int, minuto);
    QFETCH(int, secondo);
    QFETCH(QString, nome);
    Modello modello;
    for (const QString &presente : presenti) {
        modello.Cornici[modello.AggiungeCornice(0, 0, 0, 0)].Nome = presente;
    }
    const Cornice &nuova = modello.Cornici[modello.AggiungeCornice(0, 0, minuto, secondo)];
    QCOMPARE(nuova.Nome, nome);
    QCOMPARE(nuova.Testo, nome);
}

void tst_Modello::CentoCorniciNelloStessoSecondo()
{
    Modello modello;
    QSet<QString> nomi;
    for (int i = 1; i <= 100; ++i) {
        nomi.insert(modello.Cornici[modello.AggiungeCornice(0, 0, 59, 30)].Nome);
    }
    QCOMPARE(nomi.size(), 100);
    QVERIFY(nomi.contains(QStringLiteral("Nuova5930")));
}

void tst_Modello::ImmagineNuova()
{
    Modello modello;
    modello.NumImmagini = 2;
    modello.Immagini[3].Nome = QStringLiteral("vecchia.jpg");
    QCOMPARE(modello.AggiungeImmagine(12.5, 30), 3);
    const Immagine atteso{QString(), 12.5, 30, QStringLiteral("nuovaImmagine3"), 10, 50, 1};
    QVERIFY(modello.Immagini[3] == atteso);
    QVERIFY(!modello.Presente(Genere::Immagine, 3));
}

void tst_Modello::CentounesimoElemento_data()
{
    RigheDeiGeneri();
}

void tst_Modello::CentounesimoElemento()
{
    QFETCH(Genere, genere);
    Modello modello;
    for (int i = 1; i <= 100; ++i) {
        QCOMPARE(Aggiunge(modello, genere), i);
    }
    QCOMPARE(ErroreDi([&] { Aggiunge(modello, genere); }), 9);
    QCOMPARE(modello.Numero(genere), qint16(101));
    QCOMPARE(modello.UltimoSlot(genere), 100);
    QCOMPARE(modello.Di({genere, 100}).X, 10.0);
}

void tst_Modello::EliminatoTieneLoSlot_data()
{
    RigheDeiGeneri();
}

void tst_Modello::EliminatoTieneLoSlot()
{
    QFETCH(Genere, genere);
    Modello modello;
    for (int i = 1; i <= 3; ++i) {
        Aggiunge(modello, genere);
        modello.Nome(genere, i) = QStringLiteral("elemento") + QString::number(i);
    }
    modello.Nome(genere, 2).clear();
    QCOMPARE(modello.Numero(genere), qint16(3));
    QVERIFY(modello.Presente(genere, 1));
    QVERIFY(!modello.Presente(genere, 2));
    QVERIFY(modello.Presente(genere, 3));
    QCOMPARE(modello.Nome(genere, 3), QStringLiteral("elemento3"));
}

void tst_Modello::PerGenere_data()
{
    RigheDeiGeneri();
}

void tst_Modello::PerGenere()
{
    QFETCH(Genere, genere);
    Modello modello;
    modello.Numero(genere) = 1;
    modello.Nome(genere, 1) = QStringLiteral("n");
    modello.Di({genere, 1}).X = 1.5;
    modello.Di({genere, 1}).Y = 2.5;
    modello.Di({genere, 1}).Descrizione = QStringLiteral("d");

    Modello atteso;
    switch (genere) {
    case Genere::Campo:
        atteso.NumCampi = 1;
        break;
    case Genere::Cornice:
        atteso.NumCornici = 1;
        break;
    case Genere::Immagine:
        atteso.NumImmagini = 1;
        break;
    }
    atteso.Con(genere, [](auto &tabella) {
        tabella[1].Nome = QStringLiteral("n");
        tabella[1].X = 1.5;
        tabella[1].Y = 2.5;
        tabella[1].Descrizione = QStringLiteral("d");
    });
    QVERIFY(modello == atteso);

    using Record = std::variant<Campo, Cornice, Immagine>;
    const Modello &costante = modello;
    const Record trovato =
        costante.Con(genere, [](const auto &tabella) { return Record(tabella[1]); });
    QCOMPARE(trovato.index(), static_cast<std::size_t>(genere));
}

void tst_Modello::CampoDiRiga_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<bool>("diRiga");

    QTest::newRow("R_Quantita") << QStringLiteral("R_Quantita") << true;
    QTest::newRow("solo R_") << QStringLiteral("R_") << true;
    QTest::newRow("minuscolo") << QStringLiteral("r_Quantita") << false;
    QTest::newRow("non in testa") << QStringLiteral("xR_") << false;
    QTest::newRow("blank davanti") << QStringLiteral(" R_") << false;
    QTest::newRow("senza barra bassa") << QStringLiteral("Ragione") << false;
    QTest::newRow("eliminato") << QString() << false;
}

void tst_Modello::CampoDiRiga()
{
    QFETCH(QString, nome);
    QFETCH(bool, diRiga);
    Campo campo;
    campo.Nome = nome;
    QCOMPARE(::CampoDiRiga(campo), diRiga);
}

void tst_Modello::EUnValore()
{
    static_assert(std::is_copy_constructible_v<Modello> && std::is_copy_assignable_v<Modello>);
    Modello modello;
    modello.AggiungeCampo(1, 2);
    const Modello copia = modello;
    QVERIFY(copia == modello);
    modello.Campi[1].X = 3;
    QVERIFY(!(copia == modello));
    QCOMPARE(copia.Campi[1].X, 1.0);
}

void tst_Modello::ArrotondaAMillimetriInteri()
{
    Modello modello;
    modello.AggiungeCampo(30.5, -2.5);
    modello.AggiungeCornice(50.49, 60.5, 1, 1);
    modello.Cornici[1].Larghezza = 40.5;
    modello.Cornici[1].Altezza = 7.4;
    modello.AggiungeImmagine(70.7, 80.2);
    modello.Immagini[1].Larghezza = 11.5;
    Modello atteso = modello;
    atteso.Campi[1].X = 31;
    atteso.Campi[1].Y = -2;
    atteso.Cornici[1].X = 50;
    atteso.Cornici[1].Y = 61;
    atteso.Cornici[1].Larghezza = 41;
    atteso.Cornici[1].Altezza = 7;
    modello.ArrotondaTutti(); // images stay as they are
    QVERIFY(modello == atteso);
    QCOMPARE(ErroreDi([&] { modello.Arrotonda(Genere::Campo, 101); }), 9);
}

void tst_Modello::ArrotondaLeRigheAllInizio()
{
    Modello modello;
    modello.Righe.yInizio = 95.3;
    modello.AggiungeCampo(10.5, 231.7);
    modello.Campi[1].Nome = QStringLiteral("R_Qta");
    modello.ArrotondaTutti();
    QCOMPARE(modello.Campi[1].X, 11.0);
    QCOMPARE(modello.Campi[1].Y, 95.3);
}

void tst_Modello::IlBordoDiceTipoESpessore_data()
{
    QTest::addColumn<double>("bordo");
    QTest::addColumn<int>("tipo");
    QTest::addColumn<double>("spessore");
    QTest::addColumn<bool>("inAnteprima");
    QTest::addColumn<bool>("ridimensionabile");
    const auto riga = [](double bordo, Cornice::Bordatura tipo, double spessore, bool inAnteprima,
                         bool ridimensionabile) {
        QTest::newRow(qPrintable(QString::number(bordo)))
            << bordo << static_cast<int>(tipo) << spessore << inAnteprima << ridimensionabile;
    };
    riga(0, Cornice::Bordatura::Nessuna, 0.3, false, false);
    riga(0.5, Cornice::Bordatura::Nessuna, 0.5, false, true);
    riga(1, Cornice::Bordatura::Rettangolo, 0.3, true, true);
    riga(1.5, Cornice::Bordatura::Rettangolo, 0.5, true, true);
    riga(2, Cornice::Bordatura::LineaSuperiore, 0.3, true, false);
    riga(2.2, Cornice::Bordatura::LineaSuperiore, 0.2, true, false);
    riga(3, Cornice::Bordatura::Nessuna, 0.3, true, true);
}

void tst_Modello::IlBordoDiceTipoESpessore()
{
    QFETCH(const double, bordo);
    QFETCH(const double, spessore);
    Cornice cornice;
    cornice.Bordo = bordo;
    QTEST(static_cast<int>(cornice.TipoBordo()), "tipo");
    QVERIFY(std::abs(cornice.SpessoreBordo() - spessore) < 1e-12);
    QTEST(cornice.BordoInAnteprima(), "inAnteprima");
    QTEST(cornice.Ridimensionabile(), "ridimensionabile");
}

void tst_Modello::LaMascheraNoSiLeggeInDueModi_data()
{
    QTest::addColumn<QString>("maschera");
    QTest::addColumn<bool>("nonStampato");
    QTest::addColumn<bool>("barrato");
    QTest::newRow("No") << "No" << true << true;
    QTest::newRow("no") << "no" << true << false;
    QTest::newRow("NO") << "NO" << true << false;
    QTest::newRow("No with a blank") << "No " << false << false;
    QTest::newRow("none") << "" << false << false;
    QTest::newRow("alphanumeric") << "$$" << false << false;
}

void tst_Modello::LaMascheraNoSiLeggeInDueModi()
{
    QFETCH(const QString, maschera);
    Campo campo;
    campo.Maschera = maschera;
    QTEST(campo.NonStampato(), "nonStampato");
    QTEST(campo.Barrato(), "barrato");
}

QTEST_GUILESS_MAIN(tst_Modello)
#include "tst_Modello.moc"
