#include "editor/RigheElenco.h"

#include "support/DocumentoDiProva.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QFont>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr Chiave Numero{Genere::Campo, 1};
constexpr Chiave DiRiga{Genere::Campo, 2};
constexpr Chiave Riquadro{Genere::Cornice, 1};
constexpr Chiave Logo{Genere::Immagine, 1};

/// Two fields, the second a row field, a frame and an image, and the rows that show them.
struct Banco
{
    Banco()
    {
        Modello modello;
        modello.Righe.yInizio = 101.5;
        Campo &numero = modello.Campi[modello.AggiungeCampo(20, 30)];
        numero.Nome = QStringLiteral("Doc_Numero");
        numero.Testo = QStringLiteral("12345");
        numero.Grassetto = Vero;
        modello.Campi[modello.AggiungeCampo(40, 0)].Nome = QStringLiteral("R_Descr");
        Cornice &riquadro = modello.Cornici[modello.AggiungeCornice(30, 50, 1, 2)];
        riquadro.Nome = QStringLiteral("Riquadro");
        riquadro.Testo = QStringLiteral("una\nscritta");
        riquadro.Larghezza = 40;
        riquadro.Altezza = 20;
        riquadro.Font = QStringLiteral("Courier New");
        riquadro.Dimensione = 8;
        Immagine &logo = modello.Immagini[modello.AggiungeImmagine(90.26, 50.349999)];
        logo.Nome = QStringLiteral("logo.bmp");
        logo.Larghezza = 30.25;
        stato.documento.Prende(modello, false);
        prova = std::make_unique<QAbstractItemModelTester>(
            &righe, QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    QModelIndex Casella(Chiave chiave, int colonna) const
    {
        return righe.index(righe.RigaDi(chiave), colonna);
    }
    QString Testo(Chiave chiave, int colonna) const
    {
        return Casella(chiave, colonna).data().toString();
    }
    QStringList Riga(Chiave chiave) const
    {
        QStringList testi;
        for (int colonna = 0; colonna < RigheElenco::NumeroColonne; ++colonna) {
            testi.append(Testo(chiave, colonna));
        }
        return testi;
    }
    bool Modificabile(Chiave chiave, int colonna) const
    {
        return righe.flags(Casella(chiave, colonna)) & Qt::ItemIsEditable;
    }
    bool Scrive(Chiave chiave, int colonna, const QString &testo)
    {
        return righe.setData(Casella(chiave, colonna), testo);
    }
    void Elimina(Chiave chiave)
    {
        Passo passo(stato.documento, {});
        passo.Elimina(chiave);
    }

    StatoProgramma stato;
    RigheElenco righe{stato.documento};
    std::unique_ptr<QAbstractItemModelTester> prova;
};

} // namespace

/// The rows of the element list: what they show, how they follow, what can be written into them.
class tst_RigheElenco : public QObject
{
    Q_OBJECT
private slots:
    void UnaRigaPerElemento();
    void IlTestoStaSuUnaRiga();
    void INumeriSiOrdinanoDaNumeri();
    void LEliminatoEGrigioESiLeggeComeNegliElenchi();
    void BarratoSoloChiHaNo();
    void UnGestoToccaSoloIlSuoPosto();
    void IlTestoCambiatoCambiaLaMisura();
    void UnElementoAggiuntoEAnnullato();
    void UnAltroModello();
    void LeRigheSeguonoYInizio();
    void ScriveUnPosto_data();
    void ScriveUnPosto();
    void UnPostoScrittoEUnPasso();
    void IlTestoIntattoNonPerdeCifre();
    void ChiNonSiPuoSpostare();
};

void tst_RigheElenco::UnaRigaPerElemento()
{
    const Banco banco;
    QCOMPARE(banco.righe.rowCount(), 4);
    QStringList riga = banco.Riga(Numero);
    // How wide a text is depends on the fonts of the machine.
    QVERIFY(riga.takeAt(RigheElenco::ColonnaLarghezza).toDouble() > 5);
    QVERIFY(riga.takeAt(RigheElenco::ColonnaLarghezza).toDouble() > 3);
    QCOMPARE(riga, (QStringList{QStringLiteral("Campo"), QStringLiteral("Doc_Numero"),
                                QStringLiteral("12345"), QStringLiteral("20"), QStringLiteral("30"),
                                QStringLiteral("Arial 11 grassetto")}));
    QCOMPARE(banco.Riga(Logo),
             (QStringList{QStringLiteral("Immagine"), QStringLiteral("logo.bmp"),
                          QStringLiteral(""), QStringLiteral("90.3"), QStringLiteral("50.3"),
                          QStringLiteral("30.2"), QStringLiteral("10"), QStringLiteral("")}));
    for (int k = 0; k < banco.righe.rowCount(); ++k) {
        QCOMPARE(banco.righe.RigaDi(banco.righe.ChiaveDi(k)), k);
    }
    QCOMPARE(banco.righe.RigaDi({Genere::Campo, 3}), -1);
    QCOMPARE(banco.righe.RigaDi({Genere::Immagine, 0}), -1);
}

void tst_RigheElenco::IlTestoStaSuUnaRiga()
{
    const Banco banco;
    QCOMPARE(
        banco.Riga(Riquadro),
        (QStringList{QStringLiteral("Cornice"), QStringLiteral("Riquadro"),
                     QStringLiteral("una scritta"), QStringLiteral("30"), QStringLiteral("50"),
                     QStringLiteral("40"), QStringLiteral("20"), QStringLiteral("Courier New 8")}));
}

void tst_RigheElenco::INumeriSiOrdinanoDaNumeri()
{
    const Banco banco;
    const QVariant x = banco.Casella(Logo, RigheElenco::ColonnaX).data(RigheElenco::RuoloOrdine);
    QCOMPARE(x.typeId(), int(QMetaType::Double));
    QCOMPARE(x.toDouble(), 90.26);
}

void tst_RigheElenco::LEliminatoEGrigioESiLeggeComeNegliElenchi()
{
    Banco banco;
    QVERIFY(!banco.Casella(Numero, 0).data(Qt::ForegroundRole).isValid());
    banco.Elimina(Numero);
    QCOMPARE(banco.righe.rowCount(), 4);
    QCOMPARE(banco.Testo(Numero, RigheElenco::ColonnaNome),
             QStringLiteral(" ELIMINATO: Doc_Numero"));
    const QColor grigio = banco.Casella(Numero, 0).data(Qt::ForegroundRole).value<QColor>();
    QVERIFY(grigio.isValid() && grigio.saturation() == 0);
    QVERIFY(!banco.Modificabile(Numero, RigheElenco::ColonnaX));
    QVERIFY(!(banco.righe.flags(banco.Casella(Numero, 0)) & Qt::ItemIsSelectable));
    QVERIFY(!banco.Scrive(Numero, RigheElenco::ColonnaX, QStringLiteral("50")));
    QCOMPARE(banco.stato.Aperto().Campi[1].X, 20.0);
    banco.stato.documento.Annulla();
    QCOMPARE(banco.Testo(Numero, RigheElenco::ColonnaNome), QStringLiteral("Doc_Numero"));
    QVERIFY(banco.Modificabile(Numero, RigheElenco::ColonnaX));
}

void tst_RigheElenco::BarratoSoloChiHaNo()
{
    Banco banco;
    const auto maschera = [&](const QString &testo) {
        Campo campo = banco.stato.Aperto().Campi[1];
        campo.Maschera = testo;
        Passo(banco.stato.documento, {}).Scrive(1, campo);
    };
    const auto barrato = [&] {
        return banco.Casella(Numero, 1).data(Qt::FontRole).value<QFont>().strikeOut();
    };
    QVERIFY(!barrato());
    maschera(QStringLiteral("No"));
    QVERIFY(barrato());
    QCOMPARE(banco.Casella(Numero, 1).data(Qt::AccessibleDescriptionRole).toString(),
             QStringLiteral("non stampato"));
    maschera(QStringLiteral("NO"));
    QVERIFY(!barrato());
}

void tst_RigheElenco::UnGestoToccaSoloIlSuoPosto()
{
    Banco banco;
    const QSignalSpy cambiati(&banco.righe, &QAbstractItemModel::dataChanged);
    const QSignalSpy rifatto(&banco.righe, &QAbstractItemModel::modelReset);
    Passo passo(banco.stato.documento, {});
    passo.Trascina(Riquadro, {33.3, 44.4});
    passo.Mostra();
    QCOMPARE(cambiati.size(), 1);
    QCOMPARE(rifatto.size(), 0);
    const auto da = cambiati.constFirst().at(0).toModelIndex();
    const auto a = cambiati.constFirst().at(1).toModelIndex();
    QCOMPARE(da, banco.Casella(Riquadro, RigheElenco::ColonnaX));
    QCOMPARE(a, banco.Casella(Riquadro, RigheElenco::ColonnaAltezza));
    QCOMPARE(banco.Testo(Riquadro, RigheElenco::ColonnaY), QStringLiteral("44.4"));
}

void tst_RigheElenco::IlTestoCambiatoCambiaLaMisura()
{
    Banco banco;
    const double prima = banco.Testo(Numero, RigheElenco::ColonnaLarghezza).toDouble();
    Campo campo = banco.stato.Aperto().Campi[1];
    campo.Testo += campo.Testo;
    Passo(banco.stato.documento, {}).Scrive(1, campo);
    const double dopo = banco.Testo(Numero, RigheElenco::ColonnaLarghezza).toDouble();
    QVERIFY2(qAbs(dopo - 2 * prima) < 0.5, qPrintable(QString::number(dopo)));
}

void tst_RigheElenco::UnElementoAggiuntoEAnnullato()
{
    Banco banco;
    const QSignalSpy rifatto(&banco.righe, &QAbstractItemModel::modelReset);
    {
        Passo passo(banco.stato.documento, {});
        passo.Aggiunge(Genere::Cornice, {1, 2}, QTime(0, 3, 4));
    }
    QCOMPARE(banco.righe.rowCount(), 5);
    QCOMPARE(banco.Testo({Genere::Cornice, 2}, RigheElenco::ColonnaNome),
             QStringLiteral("Nuova34"));
    QCOMPARE(banco.righe.RigaDi(Logo), 4);
    banco.stato.documento.Annulla();
    QCOMPARE(banco.righe.rowCount(), 4);
    QCOMPARE(banco.righe.RigaDi(Logo), 3);
    banco.stato.documento.Ripristina();
    QCOMPARE(banco.Testo({Genere::Cornice, 2}, RigheElenco::ColonnaX), QStringLiteral("1"));
    QCOMPARE(rifatto.size(), 0);
}

void tst_RigheElenco::UnAltroModello()
{
    Banco banco;
    Cambia(banco.stato, [](Modello &modello) { modello = Modello{}; });
    QCOMPARE(banco.righe.rowCount(), 0);
}

void tst_RigheElenco::LeRigheSeguonoYInizio()
{
    Banco banco;
    QCOMPARE(banco.Testo(DiRiga, RigheElenco::ColonnaY), QStringLiteral("101.5"));
    ParametriRighe righe = banco.stato.Aperto().Righe;
    righe.yInizio = 120;
    Passo(banco.stato.documento, {}).ImpostaRighe(righe);
    QCOMPARE(banco.Testo(DiRiga, RigheElenco::ColonnaY), QStringLiteral("120"));
}

void tst_RigheElenco::ScriveUnPosto_data()
{
    QTest::addColumn<int>("genere");
    QTest::addColumn<int>("colonna");
    QTest::addColumn<QString>("testo");
    QTest::addColumn<double>("dopo");
    QTest::addColumn<QString>("avviso");
    constexpr int C = int(Genere::Cornice);
    constexpr int I = int(Genere::Immagine);
    constexpr int X = RigheElenco::ColonnaX;
    constexpr int Y = RigheElenco::ColonnaY;
    const QString nessuno;
    QTest::newRow("intero") << C << X << "77" << 77.0 << nessuno;
    QTest::newRow("cornice al millimetro") << C << X << "77.5" << 78.0 << nessuno;
    QTest::newRow("immagine com'e scritta") << I << X << "77.5" << 77.5 << nessuno;
    QTest::newRow("in altezza") << C << Y << "12" << 12.0 << nessuno;
    QTest::newRow("con spazi") << C << X << " 12 " << 12.0 << nessuno;
    QTest::newRow("non un numero")
        << C << X << "12mm" << 30.0 << QStringLiteral("X: «12mm» non è un numero");
    QTest::newRow("vuoto") << C << Y << "" << 50.0 << QStringLiteral("Y: manca il numero");
    QTest::newRow("smisurato") << C << X << "1e999" << 30.0
                               << QStringLiteral("X: «1e999» non è un numero");
    QTest::newRow("prima del foglio")
        << C << X << "-5" << 0.0 << "X: -5 è fuori dal foglio; l'elemento sta a 0 mm";
    QTest::newRow("oltre il foglio")
        << C << X << "999" << 200.0 << "X: 999 è fuori dal foglio; l'elemento sta a 200 mm";
    QTest::newRow("sotto il foglio")
        << C << Y << "331" << 330.0 << "Y: 331 è fuori dal foglio; l'elemento sta a 330 mm";
    QTest::newRow("immagine fino al bordo")
        << I << X << "300" << 209.75 << "X: 300 è fuori dal foglio; l'elemento sta a 209.8 mm";
    QTest::newRow("ultimo posto") << C << X << "200" << 200.0 << nessuno;
}

void tst_RigheElenco::ScriveUnPosto()
{
    QFETCH(int, genere);
    QFETCH(int, colonna);
    QFETCH(QString, testo);
    Banco banco;
    QSignalSpy avvisi(&banco.righe, &RigheElenco::Avviso);
    const Chiave chiave{Genere(genere), 1};
    QFETCH(double, dopo);
    banco.Scrive(chiave, colonna, testo);
    const Elemento &elemento = banco.stato.Aperto().Di(chiave);
    QCOMPARE(colonna == RigheElenco::ColonnaX ? elemento.X : elemento.Y, dopo);
    QTEST(avvisi.isEmpty() ? QString() : avvisi.takeFirst().constFirst().toString(), "avviso");
    QVERIFY(avvisi.isEmpty());
}

void tst_RigheElenco::UnPostoScrittoEUnPasso()
{
    Banco banco;
    const Modello prima = banco.stato.Aperto();
    QVERIFY(banco.Scrive(Numero, RigheElenco::ColonnaX, QStringLiteral("60")));
    QVERIFY(banco.stato.documento.Variato());
    QCOMPARE(banco.stato.documento.TestoAnnulla(), QStringLiteral("sposta Doc_Numero"));
    banco.stato.documento.Annulla();
    QCOMPARE(banco.stato.Aperto(), prima);
    QVERIFY(!banco.stato.documento.PuoAnnullare());
    // A field ends on the sheet with all of its text.
    QVERIFY(banco.Scrive(Numero, RigheElenco::ColonnaX, QStringLiteral("239")));
    const double larghezza = banco.Casella(Numero, RigheElenco::ColonnaLarghezza)
                                 .data(RigheElenco::RuoloOrdine)
                                 .toDouble();
    const double x = banco.stato.Aperto().Campi[1].X;
    QVERIFY2(x + larghezza <= 240 && x + larghezza > 239, qPrintable(QString::number(x)));
}

void tst_RigheElenco::IlTestoIntattoNonPerdeCifre()
{
    Banco banco;
    const double precisa = 1.0 / 3;
    Cambia(banco.stato, [&](Modello &modello) { modello.Immagini[1].X = precisa; });
    const QString mostrato =
        banco.Casella(Logo, RigheElenco::ColonnaX).data(Qt::EditRole).toString();
    QVERIFY(banco.Scrive(Logo, RigheElenco::ColonnaX, mostrato));
    QCOMPARE(banco.stato.Aperto().Immagini[1].X, precisa);
    QVERIFY(!banco.stato.documento.PuoAnnullare());
    QVERIFY(!banco.stato.documento.Variato());
}

void tst_RigheElenco::ChiNonSiPuoSpostare()
{
    Banco banco;
    QVERIFY(banco.Modificabile(DiRiga, RigheElenco::ColonnaX));
    QVERIFY(!banco.Modificabile(DiRiga, RigheElenco::ColonnaY));
    QVERIFY(!banco.Modificabile(Riquadro, RigheElenco::ColonnaLarghezza));
    QVERIFY(!banco.Modificabile(Riquadro, RigheElenco::ColonnaNome));
    QVERIFY(!banco.Scrive(DiRiga, RigheElenco::ColonnaY, QStringLiteral("5")));
    QCOMPARE(banco.stato.Aperto().Campi[2].Y, 101.5);
}

QTEST_MAIN(tst_RigheElenco)
#include "tst_RigheElenco.moc"
