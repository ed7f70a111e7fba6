#include "editor/RigheSimulate.h"

#include <QTest>

#include <cmath>
#include <limits>

namespace {

constexpr double LarghezzaCampo = 30; // mm of screen

double Larghezza(int)
{
    return LarghezzaCampo;
}

Modello ConRighe(double yInizio, double yFine, double interlinea)
{
    Modello modello;
    modello.Righe = {yInizio, yFine, interlinea, 4, QString()};
    for (const auto &[nome, x] : {std::pair{"R_Descr", 40.0}, {"R_Codice", 10.0}, {"Data", 5.0}}) {
        const int n = modello.AggiungeCampo(x, yInizio);
        modello.Campi[n].Nome = QString::fromLatin1(nome);
    }
    modello.Campi[2].Dimensione = 9;
    modello.Campi[2].Grassetto = Vero;
    return modello;
}

QList<double> Altezze(const QList<Frm1::RigaSimulata> &righe)
{
    QList<double> altezze;
    for (const auto &riga : righe) {
        altezze.append(riga.posto.top());
    }
    return altezze;
}

} // namespace

class tst_RigheSimulate : public QObject
{
    Q_OBJECT
private slots:
    void CinqueRigheTra100e130();
    void FasciaDalPiuASinistraAlBordoDestro();
    void AspettoDelCampoPiuASinistra();
    void SenzaDimensioneComeIlCampo();
    void UgualeXVinceIlPrimoDellaTabella();
    void AlloZoom();
    void SenzaCampiDiRigaNessunaRiga();
    void NomeMinuscoloNonEDiRiga();
    void InterlineaStretta_data();
    void InterlineaStretta();
    void ValoriSenzaSenso_data();
    void ValoriSenzaSenso();
};

void tst_RigheSimulate::CinqueRigheTra100e130()
{
    QCOMPARE(Altezze(RigheSimulate(ConRighe(100, 130, 5), 1, Larghezza)),
             QList<double>({105, 110, 115, 120, 125}));
}

void tst_RigheSimulate::FasciaDalPiuASinistraAlBordoDestro()
{
    const QRectF posto = RigheSimulate(ConRighe(100, 130, 5), 1, Larghezza).constFirst().posto;
    QCOMPARE(posto.left(), 10.0);
    QCOMPARE(posto.width(), 40.0 + LarghezzaCampo - 10.0);
    QCOMPARE(posto.height(), 5.0);
}

void tst_RigheSimulate::AspettoDelCampoPiuASinistra()
{
    const auto riga = RigheSimulate(ConRighe(100, 130, 5), 2, Larghezza).constFirst();
    QCOMPARE(riga.punti, 4.5);
    QVERIFY(riga.grassetto);
    QCOMPARE(riga.testo, QString(200, QChar(0xA4)));
}

void tst_RigheSimulate::SenzaDimensioneComeIlCampo()
{
    Modello modello = ConRighe(100, 130, 5);
    for (int k = 1; k <= modello.NumCampi; ++k) {
        modello.Campi[k].Dimensione = 0;
    }
    QCOMPARE(RigheSimulate(modello, 2, Larghezza).constFirst().punti, 4.0);
}

void tst_RigheSimulate::UgualeXVinceIlPrimoDellaTabella()
{
    Modello modello = ConRighe(100, 130, 5);
    modello.Campi[1].X = 10;
    modello.Campi[1].Dimensione = 20;
    QCOMPARE(RigheSimulate(modello, 1, Larghezza).constFirst().punti, 20.0);
}

void tst_RigheSimulate::AlloZoom()
{
    const auto righe = RigheSimulate(ConRighe(100, 130, 5), 2.5, Larghezza);
    QCOMPARE(Altezze(righe), QList<double>({42, 44, 46, 48, 50}));
    QCOMPARE(righe.constFirst().posto.left(), 4.0);
    QCOMPARE(righe.constFirst().posto.width(), (40 + LarghezzaCampo * 2.5 - 10) / 2.5);
}

void tst_RigheSimulate::SenzaCampiDiRigaNessunaRiga()
{
    Modello modello = ConRighe(100, 130, 5);
    modello.Campi[1].Nome = QStringLiteral("Descr");
    modello.Campi[2].Nome = QStringLiteral("Codice");
    QVERIFY(RigheSimulate(modello, 1, Larghezza).isEmpty());
}

void tst_RigheSimulate::NomeMinuscoloNonEDiRiga()
{
    Modello modello = ConRighe(100, 130, 5);
    modello.Campi[1].Nome = QStringLiteral("r_Descr");
    modello.Campi[2].Nome = QStringLiteral("r_Codice");
    QVERIFY(RigheSimulate(modello, 1, Larghezza).isEmpty());
}

void tst_RigheSimulate::InterlineaStretta_data()
{
    QTest::addColumn<double>("interlinea");
    QTest::addColumn<double>("passo"); // from one row to the next
    QTest::newRow("mezzo millimetro") << 0.5 << 0.5;
    QTest::newRow("appena meno") << 0.49 << 0.49;
    QTest::newRow("tre decimi") << 0.3 << 0.3;
    QTest::newRow("un decimo") << 0.1 << 0.1;
    QTest::newRow("meno di un decimo: una riga ogni due") << 0.06 << 0.12;
    QTest::newRow("un millesimo: una ogni cento") << 0.001 << 0.1;
    QTest::newRow("quasi niente") << 1e-9 << 0.1;
    QTest::newRow("il numero piu' piccolo") << std::numeric_limits<double>::denorm_min() << 0.1;
}

void tst_RigheSimulate::InterlineaStretta()
{
    QFETCH(const double, interlinea);
    QFETCH(const double, passo);
    for (const double yInizio : {0.0, 100.0, -1e6}) {
        const double inizio = std::max(yInizio, 0.0);
        const auto righe = RigheSimulate(ConRighe(yInizio, 1e6, interlinea), 1, Larghezza);
        const double foglio = 350 - inizio;
        // At most one for each 0.1 mm of sheet, but for the one that reaches onto it from above.
        QVERIFY2(righe.size() <= std::ceil(foglio * 10) + 1,
                 qPrintable(QString::number(righe.size())));
        QVERIFY2(righe.size() >= std::floor(foglio / passo) - 1,
                 qPrintable(QString::number(righe.size())));
        const double primo = righe.first().posto.top();
        if (yInizio >= 0) {
            QVERIFY(std::abs(primo - (yInizio + interlinea)) < 1e-6);
        } else {
            QVERIFY(primo < passo);
        }
        for (int k = 1; k < righe.size(); ++k) {
            const double distanza = righe[k].posto.top() - righe[k - 1].posto.top();
            QVERIFY2(std::abs(distanza - passo) < 1e-6, qPrintable(QString::number(distanza)));
        }
        QVERIFY(righe.last().posto.top() < 350);
    }
}

void tst_RigheSimulate::ValoriSenzaSenso_data()
{
    QTest::addColumn<double>("yInizio");
    QTest::addColumn<double>("yFine");
    QTest::addColumn<double>("interlinea");
    QTest::addColumn<int>("righe");
    QTest::newRow("interlinea zero") << 100.0 << 130.0 << 0.0 << 0;
    QTest::newRow("interlinea negativa") << 100.0 << 130.0 << -5.0 << 0;
    QTest::newRow("fine prima dell'inizio") << 130.0 << 100.0 << 5.0 << 0;
    QTest::newRow("area di un chilometro") << 100.0 << 1e6 << 5.0 << 49;
    QTest::newRow("inizio sotto il foglio") << 1e300 << 2e300 << 5.0 << 0;
    QTest::newRow("inizio un chilometro sopra il foglio") << -1e6 << 20.0 << 5.0 << 4;
    QTest::newRow("inizio all'infinito sopra il foglio") << -1e300 << 20.0 << 5.0 << 0;
}

void tst_RigheSimulate::ValoriSenzaSenso()
{
    QFETCH(const double, yInizio);
    QFETCH(const double, yFine);
    QFETCH(const double, interlinea);
    QFETCH(const int, righe);
    QCOMPARE(RigheSimulate(ConRighe(yInizio, yFine, interlinea), 1, Larghezza).size(), righe);
}

QTEST_GUILESS_MAIN(tst_RigheSimulate)
#include "tst_RigheSimulate.moc"
